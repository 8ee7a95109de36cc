#include "shell/pipeline.h"

#include <initializer_list>

#include "database/agency_lookups.h"
#include "database/corrections.h"
#include "database/load.h"
#include "database/new_database.h"
#include "model/ntc_reset.h"
#include "noticefile/structure_check.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "shell/command_parts.h"
#include "shell/notice_query.h"
#include "validation/basic_validation.h"
#include "validation/complete_validation.h"

namespace zamo {
namespace {

// clang-format off
const Message kChecking("status: the structure check begins", "Checking the File format. Please be patient....");
const Message kFormatHasErrors("status: the structure check failed", "File format has errors. Please correct and re-validate to proceed");
const Message kBasicRuns("status: basic validation begins", "Basic validation is running. Please be patient....");
const Message kBasicHasErrors("status: basic validation failed", "Basic validation has errors. Please correct and re-validate to proceed");
const Message kReportVersion("report: first line after a failed basic validation", "The input file has been validated with  LMZ Zamo HDLK Digital Version 3.07 / 13.01.2006");
const Message kReportStamp("report: second line after a failed basic validation, with date, time and logon name", "On %1 -  %2 by %3");
const Message kReportBasic("report: heading of the findings of basic validation", "Basic Validation error(s)");
const Message kReportComplete("report: first line after a failed complete validation", "Basic Validation OK");
const Message kCompleteRuns("status: complete validation begins on level 2", "Complete validation without geo coordinates is running. Please be patient....");
const Message kCompleteHasErrors("status: complete validation failed on level 2", "Complete validation without geo coordinates has error(s).");
const Message kCompleteRunsWithGeo("status: complete validation begins on level 3", "Complete validation with validation of the geo coordinates is running. Please be patient....");
const Message kCompleteHasErrorsWithGeo("status: complete validation failed on level 3", "Complete validation with geo coordinates has error(s).");
const Message kReportWithGeo("report: second line after a failed complete validation on level 3; a line of one blank follows", "Complete Validation WITH validation of the geographical coordination against the GZMP");
const Message kReportWithoutGeo("report: second line after a failed complete validation on level 2", "Complete Validation WITHOUT the validation of the geographical coordination against the GZMP");
const Message kNoTemplate("box: the master template can't be opened for reading; number of the error", "Error %1 : \n\rMasterHDLK_WQN.mdb file not found");
const Message kCreating("status: the working database is made", "Creating database structure");
const Message kLoading("status: the load begins", "Reading and writing to the database");
const Message kWritten("status: the load is done and its query confirmed; number of selected notices", "Written sucessfully to the database - Number of notices : %1");
const Message kReportFallback("box \"Information\": no text viewer for the outcome report", "The validation report cannot be shown, but is available on ");
const Message kNoViewerForReport("box \"Information\": no text viewer for a report; the second part tells which", "Cannot find Notepad.exe. %1%2");
const Message kNoViewerForInput("box \"Information\": no text viewer for the input file", "Cannot find Notepad.exe. Unable to show the input file");
// clang-format on

void disableQueryMenus(Shell& shell) {
  shell.screen.queryEnabled = false;
  shell.screen.txtDbEnabled = false;
}

void showValidationButtons(Shell& shell, bool visible) {
  shell.screen.viewFileVisible = visible;
  shell.screen.reValVisible = visible;
}

// Each item gets a line end behind it; the error text has one of its own besides.
void writeReport(const std::string& path, std::initializer_list<std::string_view> items) {
  NewFile report(path);
  for (const std::string_view item : items) {
    report.write(item);
    report.write(kLineEnd);
  }
  report.close();
  report.takePlace();
}

std::string reportStampLine(const Host& host) {
  const DateTime now = host.now();
  return kReportStamp.filled({shortDateText(now.date), timeText(now), getLogonName(host)});
}

struct FailedStage {
  Stage stage;
  const Message& status;
};

const FailedStage kFormatErrors = {Stage::structure, kFormatHasErrors};
const FailedStage kBasicErrors = {Stage::basic, kBasicHasErrors};

// What differs between complete validation without and with geographic checks.
struct CompleteLevel {
  bool withGeo;
  const Message& status;
  FailedStage errors;
  const Message& reportLine;
  bool blankLine;  // between the report line and the text
};

const CompleteLevel kWithoutGeo = {
    false, kCompleteRuns, {Stage::complete, kCompleteHasErrors}, kReportWithoutGeo, false};
const CompleteLevel kWithGeo = {
    true, kCompleteRunsWithGeo, {Stage::complete, kCompleteHasErrorsWithGeo}, kReportWithGeo, true};

void tellFailure(Shell& shell, Verdict& verdict, const FailedStage& failed, const StageResult& result,
                 std::string_view findings, std::initializer_list<std::string_view> reportItems) {
  verdict.failedAt = failed.stage;
  verdict.machineFailed = result.machineFailed;
  showValidationButtons(shell, true);
  showStatus(shell, failed.status.words());
  // The user has been told already why there is nothing to report.
  if (result.unreadable && findings.empty()) return;
  const std::string report = outcomeReportPath(shell.run.NtcFileName);
  writeReport(report, reportItems);
  verdict.report = report;
  showReportInNotepad(shell.host, report, kReportFallback.words());
}

AgencyLookups lookupsOf(MasterAgencies& agencies) {
  return {
      [&agencies](std::string_view adm, std::string_view code) { return agencies.isOpAgcyOfAdm(adm, code); },
      [&agencies](std::string_view adm, std::string_view code) {
        return agencies.isAddrCodeOfAdm(adm, code);
      }};
}

void validateCompletely(Shell& shell, Verdict& verdict, const CompleteLevel& level) {
  showStatus(shell, level.status.words());
  std::string errText;
  StageResult complete;
  {
    const Hourglass hourglass(shell.host);
    NtcRec work;
    MasterAgencies agencies;
    complete = runCompleteValidation(shell.host, work, errText, level.withGeo ? &shell.map.gzmp : nullptr,
                                     shell.run.NtcFileName, lookupsOf(agencies));
  }
  if (complete.passed) {
    showValidationButtons(shell, false);
    shell.draw(shell.screen);
  } else if (level.blankLine) {
    tellFailure(shell, verdict, level.errors, complete, errText,
                {kReportComplete.words(), level.reportLine.words(), " ", errText});
  } else {
    tellFailure(shell, verdict, level.errors, complete, errText,
                {kReportComplete.words(), level.reportLine.words(), errText});
  }
}

// Before anything is made.
void requireNamesOfLoad(Shell& shell, Verdict& /*verdict*/) {
  requireNameable(baseOf(shell.run.NtcFileName).append(kLongestEndingOfLoad));
}

bool isTemplateReadable(const Host& host) {
  try {
    requireReadable(masterTemplatePath());
    return true;
  } catch (const RunTimeError& error) {
    host.showBox({kNoTemplate.filled({std::to_string(error.number)}), ""});
    return false;
  }
}

struct PipelineStage {
  Stage failure;  // what an error that ends it counts as
  std::string_view operation;
  void (*run)(Shell&, Verdict&);
};

// clang-format off
constexpr PipelineStage kNamesOfLoad    = {Stage::load,      "createAndLoadDb",         requireNamesOfLoad};
constexpr PipelineStage kFormatAndBasic = {Stage::structure, "checkFormatAndBasic",     checkFormatAndBasic};
constexpr PipelineStage kCompleteNoGeo  = {Stage::complete,  "completeValidationNoGeo", completeValidationNoGeo};
constexpr PipelineStage kCompleteGeo    = {Stage::complete,  "completeValidationGeo",   completeValidationGeo};
constexpr PipelineStage kCreateAndLoad  = {Stage::load,      "createAndLoadDb",         createAndLoadDb};
// clang-format on

// Runs a stage to its end, or to the box for the failure of the machine that it throws. Gives whether it came
// to its end.
bool runStage(Shell& shell, Verdict& verdict, const PipelineStage& stage) {
  const auto fail = [&verdict, &stage] {
    verdict.machineFailed = true;
    if (verdict.failedAt == Stage::none) verdict.failedAt = stage.failure;
  };
  try {
    stage.run(shell, verdict);
    return true;
  } catch (const RunTimeError& error) {
    fail();
    showRunTimeError(shell.host, error.number, stage.operation, error.text);
    return false;
  } catch (...) {
    fail();
    throw;
  }
}

}  // namespace

void runTextCommand(Shell& shell, std::int16_t level) {
  shell.run.ValLevel = level;
  shell.run.startTime = timeStamp(shell.host.now());
  if (!chooseNoticeFile(shell)) return;
  judgeAndLoadFile(shell);
}

void ButtonReVal(Shell& shell) {
  shell.screen.gridVisible = false;
  detachNoticeGrid(shell);
  closeDB(shell.run.DbConn);
  judgeAndLoadFile(shell);
}

void ButtonViewFile(const Shell& shell) {
  if (shell.host.startTextViewer(shell.run.NtcFileName)) return;
  shell.host.showBox({kNoViewerForInput.filled({}), "Information", BoxIcon::information});
}

bool chooseNoticeFile(Shell& shell) {
  shell.screen.gridVisible = false;
  shell.host.setNote("");
  detachNoticeGrid(shell);
  closeDB(shell.run.DbConn);
  disableQueryMenus(shell);
  shell.screen.statusVisible = false;
  shell.draw(shell.screen);
  const std::optional<std::string> chosen =
      shell.host.openFile({shell.run.WorkDir, "Text Files (*.txt)|*.txt|Updated Files (*.upd)|*.upd"});
  if (!chosen || chosen->empty()) {
    shell.host.setHourglass(false);
    return false;
  }
  shell.screen.fileName.clear();
  shell.run.NtcFileName = *chosen;
  shell.run.fileTime = timeStamp(shell.host.now());
  shell.screen.fileName = textFromUtf8(shell.run.NtcFileName);
  shell.screen.inputVisible = true;
  shell.screen.statusVisible = true;
  shell.draw(shell.screen);
  if (masterHasAddrCodeTable(shell.host)) return true;
  shell.screen.inputVisible = false;
  shell.screen.statusVisible = false;
  shell.draw(shell.screen);
  return false;
}

void checkFormatAndBasic(Shell& shell, Verdict& verdict) {
  shell.screen.gridVisible = false;
  requireNameable(outcomeReportPath(shell.run.NtcFileName));
  showStatus(shell, kChecking.words());
  std::string errText;
  StageResult structure;
  {
    const Hourglass hourglass(shell.host);
    const std::string& path = shell.run.NtcFileName;
    structure =
        checkFileStructure(shell.host, errText, path, shell.inputTitle.empty() ? path : shell.inputTitle);
  }
  if (!structure.passed) {
    disableQueryMenus(shell);
    return tellFailure(shell, verdict, kFormatErrors, structure, errText, {errText});
  }

  errText.clear();
  showStatus(shell, kBasicRuns.words());
  std::int64_t noticesRead = 0;
  StageResult basic;
  {
    const Hourglass hourglass(shell.host);
    basic = runBasicValidation(shell.host, errText, noticesRead, shell.run.NtcFileName, false);
  }
  if (!basic.passed) {
    disableQueryMenus(shell);
    return tellFailure(
        shell, verdict, kBasicErrors, basic, errText,
        {kReportVersion.words(), reportStampLine(shell.host), " ", kReportBasic.words(), errText});
  }
  shell.screen.queryEnabled = true;
  shell.screen.txtDbEnabled = true;
  showValidationButtons(shell, false);
  shell.draw(shell.screen);
}

void completeValidationNoGeo(Shell& shell, Verdict& verdict) {
  validateCompletely(shell, verdict, kWithoutGeo);
}

void completeValidationGeo(Shell& shell, Verdict& verdict) {
  validateCompletely(shell, verdict, kWithGeo);
}

namespace {

// The report of duplicates, which is shown when its database has its place and goes when it got none.
struct LoadReport {
  std::string path;
  std::string_view messageHead;
};

LoadResult fill(Shell& shell, LineSource& lines, const std::string& path, LoadReport& report) {
  const LoadRun load{shell.run.CurrNtc, shell.run.NtcFileName, kWindowVersion,
                     [&report](const std::string& written, std::string_view messageHead) {
                       report = {written, messageHead};
                     }};
  LoadResult result;
  DbConnection filling;
  if (!OpenDB(shell.host, path, filling, Purpose::fill)) return result;
  result = readNtcsFromFileToDB(shell.host, lines, load, *filling);
  if (result.end != LoadEnd::failed) markAsLoaded(*filling);
  return result;
}

// What a load that the user stopped has stored takes the place of no other database.
bool mayTakePlace(const LoadResult& result, const NewDatabase& database) {
  return result.end == LoadEnd::done || (result.end == LoadEnd::stopped && !database.replacesAnother());
}

// Loads the notices into the new database and opens that in its place. Gives whether it is open; until it has
// its place, everything is as before.
bool fillAndOpen(Shell& shell, LineSource& lines, NewDatabase* database, bool& complete) {
  const Hourglass hourglass(shell.host);
  RunState& run = shell.run;
  if (database == nullptr) {
    // What stands there after a failed copy is another run's, and not to be added to.
    if (!fileExists(run.DbFileName)) OpenDB(shell.host, run.DbFileName, run.DbConn);
    return false;
  }
  closeDB(run.DbConn);
  LoadReport report;
  const LoadResult result = fill(shell, lines, database->path(), report);
  complete = result.complete;
  if (!mayTakePlace(result, *database) || !putInPlace(shell.host, *database)) {
    if (!report.path.empty()) removeFile(report.path);
    return false;
  }
  if (!report.path.empty()) showReportInNotepad(shell.host, report.path, report.messageHead);
  return OpenDB(shell.host, run.DbFileName, run.DbConn);
}

}  // namespace

void createAndLoadDb(Shell& shell, Verdict& verdict) {
  RunState& run = shell.run;
  const auto fail = [&verdict] {
    verdict.failedAt = Stage::load;
    verdict.machineFailed = true;
  };
  detachNoticeGrid(shell);
  shell.host.setNote("");
  if (!isTemplateReadable(shell.host)) return fail();
  shell.screen.fileName = trimText(textFromUtf8(run.NtcFileName));
  shell.draw(shell.screen);
  run.DbFileName = baseOf(run.NtcFileName) + ".mdb";
  if (isSameFile(run.DbFileName, run.NtcFileName)) {
    throw RunTimeError{kPermissionDenied,
                       "The notice file stands where its database would: " + textFromUtf8(run.DbFileName)};
  }
  const MasterCopy copy = copyMasterDB(shell.host, run.DbFileName);
  if (copy.isRefused) return fail();
  showStatus(shell, kCreating.words());
  resetAdm(run.CurrNtc);
  LineSource lines(run.NtcFileName);
  resetNtc(run.CurrNtc);
  showStatus(shell, kLoading.words());
  bool complete = false;
  if (!fillAndOpen(shell, lines, copy.database.get(), complete)) return fail();
  if (!complete) fail();
  shell.screen.fileName.insert(0, "TEXT FILE : ");
  shell.draw(shell.screen);
  runQuery(shell);
  if (run.qryConfirmed) showStatus(shell, kWritten.filled({std::to_string(run.NtcCount)}));
}

void judgeFile(Shell& shell, Verdict& verdict) {
  if (!runStage(shell, verdict, kFormatAndBasic) || !verdict.passed()) return;
  // Findings of complete validation stop no run: the tool is there to correct such notices.
  verdict.mayLoad = shell.run.ValLevel == kBasic;
  if (shell.run.ValLevel == kCompleteWithoutGeo) {
    verdict.mayLoad = runStage(shell, verdict, kCompleteNoGeo);
  } else if (shell.run.ValLevel == kCompleteWithGeo) {
    verdict.mayLoad = runStage(shell, verdict, kCompleteGeo);
  }
}

void judgeAndLoadFile(Shell& shell, Verdict& verdict) {
  if (!runStage(shell, verdict, kNamesOfLoad)) return;
  judgeFile(shell, verdict);
  if (verdict.mayLoad) runStage(shell, verdict, kCreateAndLoad);
}

Verdict judgeFile(Shell& shell) {
  Verdict verdict;
  judgeFile(shell, verdict);
  return verdict;
}

Verdict judgeAndLoadFile(Shell& shell) {
  Verdict verdict;
  judgeAndLoadFile(shell, verdict);
  return verdict;
}

void showReportInNotepad(const Host& host, const std::string& path, std::string_view messageHead) {
  if (host.startTextViewer(path)) return;
  host.showBox(
      {kNoViewerForReport.filled({messageHead, textFromUtf8(path)}), "Information", BoxIcon::information});
}

std::string outcomeReportPath(std::string_view ntcFileName) {
  return baseOf(ntcFileName) + "_val_outcome.txt";
}

}  // namespace zamo
