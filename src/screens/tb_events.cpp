#include <algorithm>
#include <iterator>
#include <string>

#include "platform/message.h"
#include "platform/text.h"
#include "screens/form_events.h"
#include "screens/notice_walk.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoType("box \"MN/QST/WQN\": a corresponding notice of no type", "Please, choose a notice type");
const Message kNoTb2("box \"Notice creation Error\": TB2 of a television assignment with a planning configuration", "TB2 notices can be created, ONLY if the notice has rx_mode and sys_var");
// clang-format on

// What a TB2 target that isn't named by its identifier takes.
constexpr ControlName kTargetBoxes[] = {"Txt_TrgFreq",     "Txt_4C_Deg_Long", "Txt_4C_Min_Long",
                                        "Txt_4C_Sec_Long", "Txt_4C_EW",       "Txt_4C_Deg_Lat",
                                        "Txt_4C_Min_Lat",  "Txt_4C_Sec_Lat",  "Txt_4C_NS"};
constexpr ControlName kTargetLabels[] = {"LblOr", "Lbl_FreqUnit", "lbl_freqAssgn", "Lbl_4C_Long",
                                         "Lbl_4C_Lat"};

// What makes no sense on a form whose notice isn't stored yet.
constexpr ControlName kOfStoredNotices[] = {"Txt_Ntc_Number", "Lbl_Ntc_Number",  "Button_Finish",
                                            "Button_Next",    "Button_Next_Ntc", "Button_Prev_Ntc"};

void leaveTarget(NoticeForm& form, ControlName control) {
  const bool isEmpty = form.screen.isEmpty(control);
  for (const ControlName box : kTargetBoxes) form.screen.setVisible(box, isEmpty);
  for (const ControlName label : kTargetLabels) form.screen.setVisible(label, isEmpty);
  if (!isEmpty) form.work.state.screenIsBlank = false;
}

// A stored frequency and place hide the identifier; once they are emptied the user may tell it instead.
void leaveTargetBox(NoticeForm& form, ControlName /*control*/) {
  Screen& screen = form.screen;
  if (std::all_of(std::begin(kTargetBoxes), std::end(kTargetBoxes),
                  [&screen](ControlName box) { return screen.isEmpty(box); })) {
    screen.setVisible({"Txt_TrgAdmRefID", "Lbl_trg_YBKO", "LblOr"}, true);
  }
}

// clang-format off
constexpr LeaveRow kLeaves[] = {
    {formBit(kTB2), "Txt_TrgAdmRefID", leaveTarget},
    {formBit(kTB2), "Txt_TrgFreq",     leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Deg_Long", leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Min_Long", leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Sec_Long", leaveTargetBox},
    {formBit(kTB2), "Txt_4C_EW",       leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Deg_Lat",  leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Min_Lat",  leaveTargetBox},
    {formBit(kTB2), "Txt_4C_Sec_Lat",  leaveTargetBox},
    {formBit(kTB2), "Txt_4C_NS",       leaveTargetBox},
};
static_assert(areOnTheirForms(kLeaves, &LeaveRow::control));
// clang-format on

// While it lives, a TB form belongs to another notice, whose screen is the same afterwards.
class FromOtherNotice {
 public:
  explicit FromOtherNotice(ScreenState& state) : state_(state), wasBlank_(state.screenIsBlank) {
    state_.ntcFromOtherNotice = true;
  }
  FromOtherNotice(const FromOtherNotice&) = delete;
  FromOtherNotice& operator=(const FromOtherNotice&) = delete;
  ~FromOtherNotice() {
    state_.ntcFromOtherNotice = false;
    state_.screenIsBlank = wasBlank_;
  }

 private:
  ScreenState& state_;
  bool wasBlank_;
};

void copyText(const Screen& from, ControlName control, Screen& to, ControlName toControl) {
  to.setText(toControl, from.text(control));
}

void fillTB5(const Screen& from, Screen& to) {
  copyText(from, "Txt_AdmRefID", to, "Txt_TrgAdmRefID");
  if (!isOneOf(from.code(), kAssignmentForms)) return to.setOption("Opt_Art4");
  copyText(from, "Txt_EmailAddr", to, "Txt_EmailAddr");
  for (const ControlName article : ControlNames{"Opt_Art4", "Opt_Art5"}) {
    if (from.isSet(article)) {
      to.setOption(article);
    } else {
      to.unsetOption(article);
    }
  }
}

void fillTB3(const Screen& from, Screen& to) {
  copyText(from, "Txt_AdmRefID", to, "Txt_TrgAdmRefID");
}

void fillTB2(const Screen& from, Screen& to) {
  copyText(from, "Txt_AdmRefID", to, "Txt_PlanAdmRefID");
}

struct CreationRow {
  ControlName option;
  FormCode code;
  void (*fill)(const Screen& from, Screen& to);
};

constexpr CreationRow kCreations[] = {
    {"Opt_TB5", kTB5, fillTB5},
    {"Opt_TB3", kTB3, fillTB3},
    {"Opt_TB2", kTB2, fillTB2},
};

const CreationRow* chosenCreation(const Screen& screen) {
  for (const CreationRow& row : kCreations) {
    if (screen.has(row.option) && screen.isSet(row.option)) return &row;
  }
  return nullptr;
}

void showCreated(NoticeForm& source, const CreationRow& row) {
  const Screen& from = source.screen;
  NoticeForm created(source.work, row.code);
  Screen& to = created.screen;
  loadForm(created);
  copyText(from, "Txt_Filename", to, "Txt_Filename");
  row.fill(from, to);
  to.chooseText("Combo_B_Adm", trimText(from.text("Combo_B_Adm")));
  for (const ControlName control : kOfStoredNotices) to.setVisible(control, false);
  source.work.dialogs.showForm(created);
}

// A television assignment with neither system variant nor reception mode, so with a planning configuration.
bool lacksSystem(const Screen& screen) {
  return screen.code() == kGT1Assign && screen.isVisible("Combo_LMZ04_RefPlan") &&
         screen.isEmpty("Combo_LMZ04_Sys_Var") && screen.isEmpty("Combo_LMZ04_RxMode");
}

void createNotice(NoticeForm& form, ControlName /*button*/) {
  const Host& host = form.work.host;
  const FromOtherNotice fromOther(form.work.state);
  const CreationRow* const row = chosenCreation(form.screen);
  if (row == nullptr) {
    host.beep();
    return host.showBox({kNoType.filled({}), "MN/QST/WQN", BoxIcon::exclamation});
  }
  if (row->code == kTB2 && lacksSystem(form.screen))
    return host.showBox({kNoTb2.filled({}), "Notice creation Error", BoxIcon::exclamation});
  showCreated(form, *row);
  // The new notice may stand behind this one now.
  setWalkButtons(form);
}

constexpr EventRow kCreate[] = {
    {kAssignmentForms | kAllotmentForms, Event::click, "btn_Create", createNotice},
};
static_assert(areOnTheirForms(kCreate, &EventRow::control));

}  // namespace

std::span<const EventRow> createEvents() {
  return kCreate;
}

std::span<const LeaveRow> tbLeaves() {
  return kLeaves;
}

}  // namespace zamo
