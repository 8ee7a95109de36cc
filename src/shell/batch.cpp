#include "shell/batch.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/plain_host.h"
#include "shell/pipeline.h"

namespace zamo {
namespace {

enum ExitStatus { kNothingFound = 0, kFindings = 1, kFailed = 2 };

std::string_view stageName(Stage stage) {
  switch (stage) {
    case Stage::structure:
      return "structure";
    case Stage::basic:
      return "basic";
    case Stage::complete:
      return "complete";
    case Stage::none:
      break;
  }
  return "ok";
}

void printVerdict(const std::string& file, const Verdict& verdict) {
  std::string line = file + "\t" + std::string(stageName(verdict.failedAt));
  if (!verdict.report.empty()) line += "\t" + verdict.report;
  std::fflush(stderr);
  std::puts(line.c_str());
  std::fflush(stdout);
}

int check(const std::vector<std::string>& files, int level) {
  Shell shell;
  shell.host = makePlainHost(true);
  shell.run.ValLevel = static_cast<std::int16_t>(level);
  int status = kNothingFound;
  for (const std::string& file : files) {
    shell.run.NtcFileName = file;
    const Verdict verdict = judgeFile(shell);
    printVerdict(file, verdict);
    if (!verdict.passed()) status = std::max<int>(status, verdict.machineFailed ? kFailed : kFindings);
  }
  return status;
}

}  // namespace

int runBatch(int argc, const char* const* argv) {
  CLI::App app("Checks electronic notices of the plan KV19 without a window.", "zamo-kv19-batch");
  app.require_subcommand(1);

  std::vector<std::string> files;
  int level = kCompleteWithoutGeo;
  CLI::App* checking =
      app.add_subcommand("check", "Structure check, basic validation and, by level, complete validation");
  checking
      ->add_option("--level", level, "1: basic validation; 2: complete validation without geographic checks")
      ->check(CLI::Range(kBasic, kCompleteWithoutGeo))
      ->capture_default_str();
  checking->add_option("FILE", files, "Notice files")->required();
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kNothingFound : kFailed;
  }
  return check(files, level);
}

}  // namespace zamo
