#include "shell/batch.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "database/export.h"
#include "database/lookups.h"
#include "database/read_notice.h"
#include "noticefile/notice_writer.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message.h"
#include "platform/plain_host.h"
#include "platform/run_time_error.h"
#include "platform/system.h"
#include "platform/text.h"
#include "shell/export_command.h"
#include "shell/pipeline.h"
#include "shell/start_up.h"

namespace zamo {
namespace {

const Message kNoSuchNotice("show: no notice has the key", "The database has no notice with the key %1");

enum ExitStatus { kNothingFound = 0, kFindings = 1, kFailed = 2 };

// Stands for standard input among the files to check.
constexpr const char* kStandardInput = "-";

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

// A path in a line of its own, whatever characters it has.
std::string onOneLine(std::string_view path) {
  std::string text;
  for (const char c : path) {
    switch (c) {
      case '\n':
        text += "\\n";
        break;
      case '\r':
        text += "\\r";
        break;
      case '\t':
        text += "\\t";
        break;
      default:
        text += c;
    }
  }
  return text;
}

// What became of an input file and, unless it is empty, the file that was made of it. Gives whether standard
// output took it.
bool printOutcome(const std::string& file, std::string_view outcome, const std::string& made) {
  std::string line = onOneLine(file) + "\t" + std::string(outcome);
  if (!made.empty()) line += "\t" + onOneLine(made);
  std::fflush(stderr);
  return print(line + "\n");
}

// How files are judged.
struct Judging {
  Host host;
  WorldMap map;
  int level;
  bool loads;
};

void tellError(const Host& host) {
  const RunTimeError error = presentError();
  showRunTimeError(host, error.number, "zamo-kv19-batch", error.text);
}

Verdict judged(const Judging& judging, const std::string& path, const std::string& title) {
  Shell shell;
  shell.host = judging.host;
  shell.map = judging.map;
  shell.inputTitle = title;
  shell.run.ValLevel = static_cast<std::int16_t>(judging.level);
  shell.run.NtcFileName = path;
  Verdict verdict;
  try {
    judging.loads ? judgeAndLoadFile(shell, verdict) : judgeFile(shell, verdict);
  } catch (...) {
    verdict.machineFailed = true;
    tellError(judging.host);
  }
  return verdict;
}

// What comes on standard input has no folder: it is kept in one for the run, and `report` takes what would
// have been written beside it.
Verdict judgeStandardInput(const Judging& judging, std::string& report) {
  try {
    const TemporaryFolder folder;
    const std::string kept = folder.path() + "/notices.txt";
    keepStandardInput(kept);
    Verdict verdict = judged(judging, kept, kStandardInput);
    if (!verdict.report.empty()) report = contentOf(std::exchange(verdict.report, {}));
    return verdict;
  } catch (...) {
    tellError(judging.host);
    return {Stage::structure, true, {}, false};
  }
}

ExitStatus statusOf(const Verdict& verdict) {
  if (verdict.passed()) return kNothingFound;
  return verdict.machineFailed ? kFailed : kFindings;
}

int judgeFiles(const std::vector<std::string>& files, const Judging& judging) {
  ExitStatus status = kNothingFound;
  for (const std::string& file : files) {
    std::string report;
    const Verdict verdict =
        file == kStandardInput ? judgeStandardInput(judging, report) : judged(judging, file, file);
    const bool printed =
        printOutcome(file, stageName(verdict.failedAt), verdict.report) && print(utf8FromText(report));
    status = std::max(status, printed ? statusOf(verdict) : kFailed);
  }
  return status;
}

int judgeFiles(const std::vector<std::string>& files, int level, bool answer, bool loads) {
  Shell start;
  start.host = makePlainHost(answer);
  if (level == kCompleteWithGeo && !openMap(start.host, mapBesideExecutable(start))) return kFailed;
  return judgeFiles(files, {start.host, start.map, level, loads});
}

// A failed lookup has been told already, and so has a contour that isn't there.
void tellUnknownKey(const Host& host, std::int32_t key, Connection& connection) {
  std::vector<std::int32_t> keys;
  std::int32_t count = 0;
  const std::string number = std::to_string(key);
  const std::string sql = "SELECT vornakey FROM fmtv_vorna WHERE vornakey = " + number;
  if (!getVornaKeyList(host, keys, sql, count, connection) || count > 0) return;
  host.showBox({kNoSuchNotice.filled({number}), ""});
}

// A terminal is not to obey what somebody has written into a notice.
bool printNotice(const std::string& text) {
  return print(utf8FromText(standardOutputIsTerminal() ? withControlsEscaped(text) : text) + "\n");
}

int show(const std::string& databasePath, std::int32_t key, bool isContour) {
  const Host host = makePlainHost(true);
  DbConnection connection;
  if (!OpenDB(host, databasePath, connection)) return kFailed;
  NtcRec ntc;
  const auto read = isContour ? readContourNtcFromDB : readNtcFromDB;
  if (!read(host, key, ntc, *connection)) {
    if (!isContour) tellUnknownKey(host, key, *connection);
    return kFailed;
  }
  const std::string text =
      isContour ? makeContourNotice(ntc, 1) : makeNoticeSection(ntc, 1, targetsOf(host, *connection));
  return printNotice(text) ? kNothingFound : kFailed;
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

std::string refuseStandardInput(const std::string& file) {
  return file == kStandardInput ? "standard input can be checked and not loaded" : "";
}

int runCall(int argc, const char* const* argv) {
  CLI::App app("Checks electronic notices of the plan KV19 without a window.", "zamo-kv19-batch");
  app.require_subcommand(1);
  std::vector<std::string> files;
  int level = kCompleteWithGeo;

  CLI::App* const checking =
      app.add_subcommand("check", "Structure check, basic validation and, by level, complete validation");
  addLevel(*checking, level);
  checking
      ->add_option("FILE", files, "Notice files; - is standard input, whose report goes to standard output")
      ->required();

  bool answer = true;
  CLI::App* const loading =
      app.add_subcommand("load", "The same, and then the working database of each file");
  addLevel(*loading, level);
  loading->add_flag("--yes,!--no", answer, "Answer every question with Yes, as is usual, or with No");
  loading->add_option("FILE", files, "Notice files")->required()->check(refuseStandardInput);

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
    if (std::count(files.begin(), files.end(), kStandardInput) > 1)
      throw CLI::ValidationError("FILE", "standard input can be checked once");
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? kNothingFound : kFailed;
  }
  if (exporting->parsed()) return exportNotices(database, condition, answer);
  if (showing->parsed()) return show(database, key, isContour);
  return judgeFiles(files, level, answer, loading->parsed());
}

}  // namespace

int runBatch(int argc, const char* const* argv) {
  try {
    return runCall(argc, argv);
  } catch (...) {
    tellError(makePlainHost(true));
    return kFailed;
  }
}

}  // namespace zamo
