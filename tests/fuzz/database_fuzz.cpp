// A working database that somebody else has had a hand in: every notice of it is brought to its form and to
// another one, worked with there, and all are exported.
#include <algorithm>
#include <filesystem>
#include <functional>

#include "database/export.h"
#include "database/lookups.h"
#include "database/read_notice.h"
#include "database/row_cursor.h"
#include "database_edits.h"
#include "fuzz_support.h"
#include "model/ntc_reset.h"
#include "noticefile/notice_writer.h"
#include "query/selection.h"
#include "screens/field_checks.h"
#include "screens/notice_walk.h"
#include "screens/screen_mapping.h"
#include "support/temp_folder.h"

namespace zamo::fuzz {
namespace {

constexpr std::size_t kMostNotices = 12;
constexpr int kMostRows = 100;
constexpr FormCode kForms[] = {kGS1Assign, kGT1Assign, kGS2Allot, kGT2Allot, kGA1SubAllot, kTB5, kTB3, kTB2};
constexpr const char* kNotices = "SELECT fmtv_vorna.vornakey FROM fmtv_vorna ";
constexpr const char* kContours = "SELECT lmz_contour.contourkey FROM lmz_contour ";

const Subject& subject() {
  static const Subject made = makeSubject();
  return made;
}

// What the window answers with a box. Anything else that is thrown is a bug.
void guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    require(error.number != 0);
  }
}

// The user's hand.
void act(NoticeForm& form, const std::function<void()>& action) {
  form.screen.byUser = true;
  guarded(action);
  form.screen.byUser = false;
}

void workOn(NoticeForm& form) {
  Screen& screen = form.screen;
  std::vector<std::string> lists;
  std::vector<std::string> fields;
  screen.forEach([&](const Control& control) {
    if (control.kind == ControlKind::list && !control.items.empty()) lists.push_back(control.name);
    if (control.kind == ControlKind::text && !control.text.empty()) fields.push_back(control.name);
  });
  for (const std::string& name : lists)
    act(form, [&] { screen.choose(name, static_cast<int>(screen.items(name).size()) - 1); });
  for (const std::string& name : fields) act(form, [&] { mayLeaveField(form, name); });
  for (const char* button : {"Button_View", "Button_Validate", "Button_Next", "Button_AddNew"}) {
    if (screen.has(button)) act(form, [&] { screen.raise(Event::click, button); });
  }
}

// As though the notice were of that form's type, whatever it says.
void bringTo(FormCode code, NtcRec ntc, Workplace& work) {
  NoticeForm form(work, code);
  loadForm(form);
  ntc.ScrCode = code;
  guarded([&] { fillForm(ntc, form.screen); });
  NtcRec read;
  guarded([&] { readForm(read, form.screen, work.host); });
}

void lookAt(std::int32_t key, bool isContour, FormCode otherForm, Workplace& work) {
  Connection& connection = *work.run.DbConn;
  NtcRec ntc;
  resetNtc(ntc);
  (isContour ? readContourNtcFromDB : readNtcFromDB)(work.host, key, ntc, connection);
  bringTo(otherForm, ntc, work);
  guarded([&] {
    isContour ? makeContourNotice(ntc, 1) : makeNoticeSection(ntc, 1, targetsOf(work.host, connection));
  });
  work.run.SelKey = key;
  guarded([&] { openNtcFromGrid(work, key, 0, isContour ? "GA1" : ""); });
}

void lookAtAll(const std::vector<std::int32_t>& keys, bool areContours, Workplace& work) {
  work.run.IndexList = keys;
  work.run.NtcCount = static_cast<std::int32_t>(keys.size());
  std::size_t number = 0;
  for (const std::int32_t key : keys) {
    if (++number > kMostNotices) break;
    lookAt(key, areContours, kForms[(number + (areContours ? 4 : 0)) % std::size(kForms)], work);
  }
}

void readGrid(Connection& connection) {
  QueryChoices choices;
  guarded([&] {
    RowCursor rows(makeSelection(choices).qrySql, connection);
    for (int row = 0; row < kMostRows && rows.next(); ++row) {
      for (std::size_t column = 0; column < rows.columnCount(); ++column) rows.value(column);
    }
  });
}

void judge(const std::string& path, const std::string& exportPath) {
  const Host host = makeQuietHost();
  RunState run;
  run.DbFileName = path;
  if (!OpenDB(host, path, run.DbConn)) return;
  Connection& connection = *run.DbConn;
  isCentralDatabase(host, connection);
  dbHasAddrCodeTable(host, connection);
  readGrid(connection);
  ExportRun exported{"fuzzed"};
  exportDBToTxt(host, exportPath, connection, exported, kNotices, kContours, "");

  const GzmpMap noMap;
  Dialogs dialogs;
  dialogs.showForm = workOn;
  Workplace work{host,    run, noMap, {[](auto, auto) { return true; }, [](auto, auto) { return true; }},
                 dialogs, {},  {},    false};
  std::vector<std::int32_t> notices;
  std::vector<std::int32_t> contours;
  std::int32_t count = 0;
  getVornaKeyList(host, notices, kNotices, count, connection);
  getContourKeyList(host, contours, count, kContours, connection);
  run.qryIsNotice = true;
  lookAtAll(notices, false, work);
  run.qryIsNotice = false;
  lookAtAll(contours, true, work);
}

}  // namespace
}  // namespace zamo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zamo::fuzz;
  static const zamo::test::TempFolder folder;
  const std::string path = folder.write("fuzzed.mdb", edited(subject(), textOf(data, size)));
  judge(path, folder.file("fuzzed.corr.txt"));
  for (const auto& left : std::filesystem::directory_iterator(folder.path()))
    std::filesystem::remove(left.path());
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t mostBytes,
                                               unsigned seed) {
  std::mt19937 random(seed);
  const std::string text =
      zamo::fuzz::mutated(zamo::fuzz::subject(), zamo::fuzz::textOf(data, size), mostBytes, random);
  std::copy(text.begin(), text.end(), data);
  return text.size();
}
