#include "screens/notice_walk.h"

#include <utility>

#include "database/read_notice.h"
#include "model/notice_words.h"
#include "platform/code_page.h"
#include "screens/control_table.h"
#include "screens/form_events.h"
#include "screens/screen_mapping.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

struct TypeRow {
  NoticeType type;
  FormCode code;
};

// The older types, with a D, are the same notices and stay as they are stored.
// clang-format off
constexpr TypeRow kTypes[] = {
    {types::GS1, kGS1Assign}, {types::DS1, kGS1Assign},
    {types::GT1, kGT1Assign}, {types::DT1, kGT1Assign},
    {types::GS2, kGS2Allot},  {types::DS2, kGS2Allot},
    {types::GT2, kGT2Allot},  {types::DT2, kGT2Allot},
    {types::GA1, kGA1SubAllot}, {types::DA1, kGA1SubAllot},
    {types::TB5, kTB5}, {types::TB3, kTB3}, {types::TB2, kTB2},
};

struct TitleRow {
  FormCode code;
  std::string_view title;
};

constexpr TitleRow kTitles[] = {
    {kGS1Assign,   "GS1      Digital Sound Broadcasting (T-DAB) Assignment - Data Correction - "},
    {kGT1Assign,   "GT1      Digital Television Broadcasting (DVB-T) Assignment - Data Correction - "},
    {kGS2Allot,    "GS2 Digital Sound Broadcasting (T_DAB) Allotment - Data Correction - "},
    {kGT2Allot,    "GT2 Digital Television Broadcasting (DVB-T) Allotment - Data Correction - "},
    {kGA1SubAllot, "GA1 Sub Allotment Area for Digital Broadcasting - Data Correction - "},
    {kTB5,         "TB5 Suppression of an Assignment/Allotment or Withdrawal of a Notice under treatment - Data Correction - "},
    {kTB3,         "TB3   Request Publication in Part B - Data Correction -"},
    {kTB2,         "TB2   Copy of Plan Assignment to Master Register (Art.11PZ) - Data Correction - "},
};
// clang-format on

bool isLive(const RunState& run, std::int32_t idx) {
  return run.IndexList[static_cast<std::size_t>(idx)] != kDeletedKey;
}

bool isInList(const RunState& run, std::int32_t idx) {
  return idx >= 0 && idx < run.NtcCount && std::cmp_less(idx, run.IndexList.size());
}

bool hasLiveEntry(const RunState& run, std::int32_t idx, std::int32_t step) {
  while (isInList(run, idx)) {
    if (isLive(run, idx)) return true;
    idx += step;
  }
  return false;
}

NtcRec readNotice(Workplace& work, std::int32_t key, bool isContour) {
  NtcRec ntc;
  const auto read = isContour ? readContourNtcFromDB : readNtcFromDB;
  if (!read(work.host, key, ntc, *work.run.DbConn)) return {};
  return ntc;
}

void bringToForm(NoticeForm& form, std::int32_t key, NtcRec ntc) {
  ntc.ScrCode = form.screen.code();
  form.selectedContourIdx = form.selectedPointIdx = form.selectedAdmIdx = -1;
  form.screen.setText("Txt_Ntc_Number", std::to_string(key));
  form.screen.setText("Txt_Filename", textFromUtf8(form.work.run.DbFileName));
  fillForm(ntc, form.screen);
  form.work.state.screenIsBlank = false;
}

void showOneForm(Workplace& work, const NextNotice& notice) {
  NoticeForm form(work, notice.code);
  loadForm(form);
  bringToForm(form, notice.key, notice.ntc);
  work.dialogs.showForm(form);
}

// While it lives, a form of the walk is on the display.
class Showing {
 public:
  explicit Showing(Workplace& work) : work_(work) { work.isShowing = true; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;
  ~Showing() { work_.isShowing = false; }

 private:
  Workplace& work_;
};

}  // namespace

FormCode getNtcFormCode(const NtcRec& ntc) {
  for (const TypeRow& row : kTypes) {
    if (isExactly(ntc.t_notice_type, row.type)) return row.code;
  }
  return kNoForm;
}

std::int32_t getNtcKeyAt(RunState& run, std::int32_t idx, int direction) {
  while (isInList(run, idx)) {
    if (isLive(run, idx)) {
      run.IndexPos = idx;
      return run.IndexList[static_cast<std::size_t>(idx)];
    }
    if (direction != kForward && direction != kBackward) return 0;
    idx += direction == kForward ? 1 : -1;
  }
  return kNoSuchEntry;
}

bool hasNtcFrom(const RunState& run, std::int32_t idx) {
  return hasLiveEntry(run, idx, 1);
}

bool hasNtcBefore(const RunState& run, std::int32_t idx) {
  return hasLiveEntry(run, idx, -1);
}

void showNtcScreen(Workplace& work, std::int32_t key, const NtcRec& ntc, FormCode code, std::int32_t idx) {
  work.run.IndexPos = idx;
  if (code == kNoForm) return;
  work.next = NextNotice{key, ntc, code};
  if (work.isShowing) return;
  const Showing showing(work);
  while (work.next) showOneForm(work, *std::exchange(work.next, std::nullopt));
}

void openNtcFromGrid(Workplace& work, std::int32_t key, std::int32_t idx, std::string_view type) {
  const NtcRec ntc = readNotice(work, key, isExactly(type, {types::DA1, types::GA1}));
  showNtcScreen(work, key, ntc, getNtcFormCode(ntc), idx);
}

void showNtcAt(NoticeForm& form, std::int32_t idx, int direction) {
  RunState& run = form.work.run;
  const std::int32_t key = getNtcKeyAt(run, idx, direction);
  if (key == kNoSuchEntry) return;
  run.SelKey = key;
  const NtcRec ntc = readNotice(form.work, key, form.screen.code() == kGA1SubAllot);
  const FormCode code = getNtcFormCode(ntc);
  if (code == form.screen.code()) {
    clearScreen(form.screen);
    bringToForm(form, key, ntc);
    setWalkButtons(form);
    return;
  }
  closeNtcScreen(form);
  showNtcScreen(form.work, key, ntc, code, run.IndexPos);
}

void showAgain(NoticeForm& form) {
  const std::int32_t key = form.work.run.SelKey;
  const NtcRec ntc = readNotice(form.work, key, form.screen.code() == kGA1SubAllot);
  clearScreen(form.screen);
  bringToForm(form, key, ntc);
}

void markDeleted(RunState& run) {
  if (isInList(run, run.IndexPos)) run.IndexList[static_cast<std::size_t>(run.IndexPos)] = kDeletedKey;
}

void showNeighbourAfterDelete(NoticeForm& form) {
  const RunState& run = form.work.run;
  if (hasNtcFrom(run, run.IndexPos + 1)) {
    showNtcAt(form, run.IndexPos + 1, kForward);
  } else if (hasNtcBefore(run, run.IndexPos - 1)) {
    showNtcAt(form, run.IndexPos - 1, kBackward);
  } else {
    closeNtcScreen(form);
  }
}

void closeNtcScreen(NoticeForm& form) {
  form.close();
}

void setNtcScreenTitle(Screen& screen) {
  for (const TitleRow& row : kTitles) {
    if (row.code == screen.code()) screen.setTitle(std::string(row.title).append(kWindowVersion));
  }
  screen.setEnabled("Combo_B_Adm", false);
  if (screen.code() == kGA1SubAllot) screen.setVisible({"Txt_EmailAddr", "Lbl_EmailAddr"}, false);
}

void setWalkButtons(NoticeForm& form) {
  const RunState& run = form.work.run;
  form.screen.setEnabled("Button_Next_Ntc", hasNtcFrom(run, run.IndexPos + 1));
  form.screen.setEnabled("Button_Prev_Ntc", hasNtcBefore(run, run.IndexPos - 1));
}

void loadForm(NoticeForm& form) {
  makeControls(form.screen);
  setNtcScreenTitle(form.screen);
  connectEvents(form);
  applyDefaultVisibility(form.screen);
  setWalkButtons(form);
  form.work.state.screenIsBlank = false;
}

}  // namespace zamo
