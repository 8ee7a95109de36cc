#include "shell/notice_query.h"

#include <algorithm>
#include <utility>

#include "database/lookups.h"
#include "model/notice_words.h"
#include "platform/code_page.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "shell/command_parts.h"

namespace zamo {
namespace {

// clang-format off
const Message kDatabaseFile("file name: a database is opened; its path", "DATABASE FILE: %1");
const Message kOpened("status: a database is open and its query confirmed; number of selected notices", "Sucessfully opened the database - Number of notices : %1");
const Message kOpenFailed("box: an error while a database is opened; its number and text", "Error %1 : %2");
const Message kRetrieving("status: the query form was confirmed", "Retrieving the data ... Please be patient");
const Message kRecords("status: the grid is shown; number of its records", "Number of records : %1");
const Message kNoRow("box \"Database is Empty\": the grid has no row to open", "No notices in the database");
const Message kReading("status: a row of the grid is opened", "Reading the selected notice from database");
const Message kNotInList("box \"Index error\": the key of the row isn't in the selection's list", "Index list corrupted");
const Message kUpdated("status: the screen of a notice has closed, whatever was done there; number of selected notices", "Database was sucessfully updated - Number of notices : %1");
// clang-format on

// The fixed columns of each sort of selection, up to NbTestPts, Intent, Intent and Intent.
constexpr int kContourColumns = 5;
constexpr int kAssignmentColumns = 9;
constexpr int kAllotmentColumns = 7;
constexpr int kMixedColumns = 10;

std::string countText(const Shell& shell) {
  return std::to_string(shell.run.NtcCount);
}

void hideInput(Shell& shell) {
  shell.screen.inputVisible = false;
  shell.draw(shell.screen);
}

// Opens DbFileName; gives whether it is a working database.
bool openWorkingDatabase(Shell& shell) {
  RunState& run = shell.run;
  if (OpenDB(shell.host, run.DbFileName, run.DbConn) && !isCentralDatabase(shell.host, *run.DbConn) &&
      dbHasAddrCodeTable(shell.host, *run.DbConn)) {
    return true;
  }
  hideInput(shell);
  closeDB(run.DbConn);
  return false;
}

void chooseAndOpen(Shell& shell) {
  RunState& run = shell.run;
  const std::optional<std::string> chosen =
      shell.host.openFile({run.WorkDir, "Microsoft Access Database (*.mdb)|*.mdb|"});
  if (!chosen || chosen->empty()) {
    shell.host.setHourglass(false);
    return;
  }
  run.DbFileName = *chosen;
  shell.screen.fileName = kDatabaseFile.filled({textFromUtf8(run.DbFileName)});
  shell.draw(shell.screen);
  shell.host.repaint();
  if (!openWorkingDatabase(shell)) return;
  shell.screen.queryEnabled = true;
  shell.draw(shell.screen);
  runQuery(shell);
  shell.screen.txtDbEnabled = true;
  shell.draw(shell.screen);
  if (run.qryConfirmed) showStatus(shell, kOpened.filled({countText(shell)}));
}

// The selection: its keys, in the order of its statement, and what the grid shows of it. False after an
// error, which the user was shown.
bool readSelection(Shell& shell, GridRows& rows) {
  RunState& run = shell.run;
  run.GridListsContours = !run.qryIsNotice;
  run.NtcCount = 0;
  const RowTaker take = [&rows](const RowCursor& row) { rows.add(row); };
  return run.qryIsNotice
             ? getVornaKeyList(shell.host, run.IndexList, run.qrySql, run.NtcCount, *run.DbConn, take)
             : getContourKeyList(shell.host, run.IndexList, run.NtcCount, run.qrySql, *run.DbConn, take);
}

void showGrid(Shell& shell, GridRows rows) {
  shell.forms.bindGrid(std::move(rows));
  shell.screen.gridVisible = true;
  shell.draw(shell.screen);
}

}  // namespace

void mnuFileOpenDB(Shell& shell) {
  RunState& run = shell.run;
  MainScreen& screen = shell.screen;
  run.ValLevel = kCompleteWithGeo;
  screen.queryEnabled = false;
  screen.txtDbEnabled = false;
  screen.reValVisible = false;
  screen.viewFileVisible = false;
  run.startTime = run.fileTime = timeStamp(shell.host.now());
  screen.gridVisible = false;
  screen.statusVisible = false;
  shell.host.setNote("");
  detachNoticeGrid(shell);
  closeDB(run.DbConn);
  screen.inputVisible = true;
  shell.draw(screen);
  try {
    chooseAndOpen(shell);
  } catch (const RunTimeError& error) {
    shell.host.setHourglass(false);
    shell.host.showBox({kOpenFailed.filled({std::to_string(error.number), error.text}), ""});
  }
}

void mnuQueryNew(Shell& shell) {
  requireDatabase(shell);
  // While it is in sight, so that it keeps its rows: after Cancel it is as it was.
  if (shell.screen.gridVisible) detachNoticeGrid(shell);
  shell.screen.gridVisible = false;
  shell.screen.statusVisible = false;
  shell.draw(shell.screen);
  runQuery(shell);
}

void runQuery(Shell& shell) {
  RunState& run = shell.run;
  // As the form itself does when it is loaded: what was chosen last must not stand when there is no form.
  run.qrySql.clear();
  run.qryConfirmed = false;
  {
    const Hourglass hourglass(shell.host);
    shell.forms.showQueryForm();
  }
  if (run.qrySql.empty()) return;
  showStatus(shell, kRetrieving.words());
  GridRows rows;
  // The grid would only be refused the same statement once more.
  if (!readSelection(shell, rows)) run.qrySql.clear();
  if (run.NtcCount > 0) {
    showGrid(shell, std::move(rows));
  } else {
    bindNoticeGrid(shell);
  }
  showStatus(shell, kRecords.filled({countText(shell)}));
}

void bindNoticeGrid(Shell& shell) {
  const RunState& run = shell.run;
  const bool hasStatement = run.DbConn != nullptr && !run.qrySql.empty();
  showGrid(shell, hasStatement ? GridRows(run.qrySql, *run.DbConn) : GridRows());
}

void detachNoticeGrid(Shell& shell) {
  if (shell.run.DbConn != nullptr) shell.forms.detachGrid();
}

int fixedColumnCount(const RunState& run) {
  const bool assignments = run.QryGT1 || run.QryGS1;
  const bool allotments = run.QryGT2 || run.QryGS2;
  if (!run.qryIsNotice) return kContourColumns;
  if (assignments && !allotments) return kAssignmentColumns;
  return allotments && !assignments ? kAllotmentColumns : kMixedColumns;
}

void openGridRow(Shell& shell, const std::optional<GridRow>& row) {
  RunState& run = shell.run;
  if (!row) {
    shell.host.showBox({kNoRow.filled({}), "Database is Empty", BoxIcon::exclamationAndInformation});
    return;
  }
  shell.screen.viewFileVisible = false;
  shell.screen.reValVisible = false;
  run.SelKey = row->key;
  shell.screen.gridVisible = false;
  detachNoticeGrid(shell);
  showStatus(shell, kReading.words());
  const std::int32_t place = findNtcIndex(run);
  if (place == kNoSuchEntry) {
    bindNoticeGrid(shell);
    shell.host.showBox({kNotInList.filled({}), "Index error", BoxIcon::exclamationAndInformation});
    return;
  }
  run.IndexPos = place;
  shell.forms.openNotice(row->key, place, run.GridListsContours ? std::string(types::GA1.text) : row->type);
  bindNoticeGrid(shell);
  showStatus(shell, kUpdated.filled({countText(shell)}));
}

std::int32_t findNtcIndex(const RunState& run) {
  if (run.NtcCount < 1) return kNoSuchEntry;
  const auto found = std::find(run.IndexList.begin(), run.IndexList.end(), run.SelKey);
  if (found == run.IndexList.end()) return kNoSuchEntry;
  return static_cast<std::int32_t>(found - run.IndexList.begin());
}

}  // namespace zamo
