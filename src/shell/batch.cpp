#include "shell/batch.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <string>
#include <vector>

#include "database/export.h"
#include "database/read_notice.h"
#include "noticefile/notice_writer.h"
#include "platform/code_page.h"
#include "platform/plain_host.h"
#include "shell/export_command.h"
#include "shell/pipeline.h"
#include "shell/start_up.h"

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
    case Stage::load:
      return "load";
    case Stage::none:
      break;
  }
  return "ok";
}

// What became of an input file and, unless it is empty, the file that was made of it. Gives whether standard
// output took it.
bool printOutcome(const std::string& file, std::string_view outcome, const std::string& made) {
  std::string line = file + "\t" + std::string(outcome);
  if (!made.empty()) line += "\t" + made;
  std::fflush(stderr);
  return std::puts(line.c_str()) >= 0 && std::fflush(stdout) == 0;
}

// Which of the stages the files go through.
using Judge = Verdict (*)(Shell&);

int judgeFiles(const std::vector<std::string>& files, int level, bool answer, Judge judge) {
  Shell start;
  start.host = makePlainHost(answer);
  if (level == kCompleteWithGeo && !openMap(start.host, mapBesideExecutable(start))) return kFailed;
  int status = kNothingFound;
  for (const std::string& file : files) {
    Shell shell;
    shell.host = start.host;
    shell.map = start.map;
    shell.run.ValLevel = static_cast<std::int16_t>(level);
    shell.run.NtcFileName = file;
    const Verdict verdict = judge(shell);
    if (!printOutcome(file, stageName(verdict.failedAt), verdict.report)) status = kFailed;
    if (!verdict.passed()) status = std::max<int>(status, verdict.machineFailed ? kFailed : kFindings);
  }
  return status;
}

int show(const std::string& databasePath, std::int32_t key, bool isContour) {
  const Host host = makePlainHost(true);
  DbConnection connection;
  if (!OpenDB(host, databasePath, connection)) return kFailed;
  NtcRec ntc;
  const auto read = isContour ? readContourNtcFromDB : readNtcFromDB;
  if (!read(host, key, ntc, *connection)) return kFailed;
  const std::string text =
      isContour ? makeContourNotice(ntc, 1) : makeNoticeSection(ntc, 1, targetsOf(host, *connection));
  const bool printed = std::puts(utf8FromText(text).c_str()) >= 0 && std::fflush(stdout) == 0;
  return printed ? kNothingFound : kFailed;
}

bool openWorkingDatabase(const Host& host, const std::string& path, DbConnection& connection) {
  return OpenDB(host, path, connection) && !isCentralDatabase(host, *connection) &&
         dbHasAddrCodeTable(host, *connection);
}

ExitStatus statusOf(ExportEnd end) {
  if (end == ExportEnd::written) return kNothingFound;
  return end == ExportEnd::failed ? kFailed : kFindings;
}

int exportNotices(const std::string& databasePath, const std::string& condition, bool answer) {
  Shell shell;
  shell.host = makePlainHost(answer);
  int boxes = 0;
  shell.host.showBox = [&boxes, showBox = shell.host.showBox](const Box& box) {
    ++boxes;
    showBox(box);
  };
  shell.run.DbFileName = databasePath;
  ExportEnd end = ExportEnd::failed;
  if (openWorkingDatabase(shell.host, databasePath, shell.run.DbConn)) {
    end = condition.empty() ? exportAll(shell) : exportUpdated(shell, textFromUtf8(condition));
  }
  const bool isWritten = end == ExportEnd::written;
  const std::string made = isWritten ? shell.run.CorrFileName : std::string();
  if (!printOutcome(databasePath, isWritten ? "ok" : "export", made)) return kFailed;
  // Any box but the one that tells of the finished file is about a notice that couldn't be read as a whole.
  return isWritten && boxes > 1 ? kFindings : statusOf(end);
}

void addLevel(CLI::App& command, int& level) {
  command
      .add_option("--level", level,
                  "1: basic validation; 2: complete validation without geographic checks; 3: with them")
      ->check(CLI::Range(kBasic, kCompleteWithGeo))
      ->capture_default_str();
}

}  // namespace

int runBatch(int argc, const char* const* argv) {
  CLI::App app("Checks electronic notices of the plan KV19 without a window.", "zamo-kv19-batch");
  app.require_subcommand(1);
  std::vector<std::string> files;
  int level = kCompleteWithGeo;

  CLI::App* const checking =
      app.add_subcommand("check", "Structure check, basic validation and, by level, complete validation");
  addLevel(*checking, level);
  checking->add_option("FILE", files, "Notice files")->required();

  bool answer = true;
  CLI::App* const loading =
      app.add_subcommand("load", "The same, and then the working database of each file");
  addLevel(*loading, level);
  loading->add_flag("--yes,!--no", answer, "Answer every question with Yes, as is usual, or with No");
  loading->add_option("FILE", files, "Notice files")->required();

  std::string database;
  std::string condition;
  CLI::App* const exporting =
      app.add_subcommand("export", "The notices of a working database, as a notice file beside it");
  exporting->add_flag("--yes,!--no", answer, "Answer every question with Yes, as is usual, or with No");
  exporting
      ->add_option("--updated", condition,
                   "Only those that meet the condition, such as \"d_updated > #01/31/2009#\"")
      ->check([](const std::string& given) { return given.empty() ? "a condition is missing" : ""; });
  exporting->add_option("DB", database, "Working database")->required();

  std::int32_t key = 0;
  bool isContour = false;
  CLI::App* const showing =
      app.add_subcommand("show", "One notice of a working database, as it is written to a file");
  showing->add_flag("--contour", isContour, "KEY is that of a contour");
  showing->add_option("DB", database, "Working database")->required();
  showing->add_option("KEY", key, "Key of the notice")->required();

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kNothingFound : kFailed;
  }
  if (exporting->parsed()) return exportNotices(database, condition, answer);
  if (showing->parsed()) return show(database, key, isContour);
  return judgeFiles(files, level, answer, loading->parsed() ? judgeAndLoadFile : judgeFile);
}

}  // namespace zamo
