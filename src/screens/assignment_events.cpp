#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "platform/numbers.h"
#include "screens/control_table.h"
#include "screens/form_events.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

constexpr ControlName kTargetNumbers[] = {"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM",
                                          "Txt_trg_long_SS",    "Txt_trg_lat_DD",  "Txt_trg_lat_MM",
                                          "Txt_trg_lat_SS"};
constexpr ControlName kTargetLetters[] = {"Txt_trg_long_EW", "Txt_trg_lat_NS"};
constexpr ControlName kTargetIdentifier[] = {"Txt_TrgAdmRefID"};

void chooseArticle(NoticeForm& form, ControlName /*control*/) {
  applyArticleRule(form.screen);
}

void chooseIntent(NoticeForm& form, ControlName /*control*/) {
  applyIntentRule(form.screen);
  applyAntennaRule(form.screen);
  applyArticleRule(form.screen);
}

void chooseAntenna(NoticeForm& form, ControlName /*control*/) {
  applyAntennaRule(form.screen);
  noteBlank(form, false);
}

void choosePlanEntry(NoticeForm& form, ControlName /*control*/) {
  applyPlanEntryRule(form.screen);
  noteBlank(form, false);
}

void choosePlanning(NoticeForm& form, ControlName /*control*/) {
  applyPlanningRule(form.screen);
  noteBlank(form, false);
}

void chooseOrEmpty(NoticeForm& form, ControlName control) {
  noteBlank(form, form.screen.isEmpty(control));
}

// What is stored stays to be seen, even if it names the target twice.
template <std::size_t Count>
void show(Screen& screen, const ControlName (&controls)[Count], bool visible) {
  for (const ControlName control : controls) {
    screen.setVisible(control, visible || (screen.filling && !screen.isEmpty(control)));
  }
}

void changeTargetIdentifier(NoticeForm& form, ControlName control) {
  Screen& screen = form.screen;
  const bool isEmpty = screen.isEmpty(control);
  show(screen, kTargetNumbers, isEmpty);
  show(screen, kTargetLetters, isEmpty);
  screen.setVisible("Lbl_trg_or", isEmpty);
}

void changeTargetNumber(NoticeForm& form, ControlName /*control*/) {
  Screen& screen = form.screen;
  const bool allEmpty = std::all_of(std::begin(kTargetNumbers), std::end(kTargetNumbers),
                                    [&screen](ControlName control) { return screen.isEmpty(control); });
  show(screen, kTargetIdentifier, allEmpty);
  screen.setVisible("Lbl_TrgAdmRefID", screen.isVisible("Txt_TrgAdmRefID"));
  screen.setVisible("Lbl_trg_or", allEmpty);
  if (!allEmpty) return;
  show(screen, kTargetNumbers, true);
  show(screen, kTargetLetters, true);
}

void fillRange(NoticeForm& form, ControlStem boxes, FillGrid grid, int hgtMax) {
  const AzimuthFill fill = form.work.dialogs.FillRangeFrm(grid, hgtMax);
  for (int azimuth = fill.from; azimuth <= fill.to; azimuth += 10) {
    const std::string box = azimuthBox(boxes, azimuth);
    if (!form.screen.has(madeName(box))) continue;
    form.screen.setText(madeName(box), fill.value);
    noteBlank(form, false);
  }
}

// The greatest height of the grid, which has whole numbers only; 0 when 9EB is empty.
int readHgtMax(const Screen& screen) {
  using Limits16 = std::numeric_limits<std::int16_t>;
  const double height = std::floor(leadingNumber(screen.text("Txt_9EB_Eff_hgtmax")));
  return static_cast<int>(std::clamp<double>(height, Limits16::min(), Limits16::max()));
}

void fillEffectiveHeights(NoticeForm& form, ControlName /*control*/) {
  fillRange(form, "Txt_9EC_azm", FillGrid::effectiveHeight, readHgtMax(form.screen));
}

void fillHorizontal(NoticeForm& form, ControlName /*control*/) {
  fillRange(form, "Txt_9NHAzm", FillGrid::attenuation, 0);
}

void fillVertical(NoticeForm& form, ControlName /*control*/) {
  fillRange(form, "Txt_9NVAzm", FillGrid::attenuation, 0);
}

constexpr FormSet kBoth = kAssignmentForms;
constexpr FormSet kSound = formBit(kGS1Assign);
constexpr FormSet kTelevision = formBit(kGT1Assign);

// clang-format off
constexpr EventRow kEvents[] = {
    {kBoth,       Event::click,  "Opt_Art4",              chooseArticle},
    {kBoth,       Event::click,  "Opt_Art5",              chooseArticle},
    {kBoth,       Event::click,  "OptInt_Add",            chooseIntent},
    {kBoth,       Event::click,  "OptInt_Mod",            chooseIntent},
    {kBoth,       Event::click,  "Combo_9_AntDir",        chooseAntenna},
    {kBoth,       Event::click,  "Combo_9D_Polariz",      chooseAntenna},
    {kBoth,       Event::click,  "Combo_KV19_Plan",       choosePlanEntry},
    {kBoth,       Event::click,  "Combo_LMZ04_SpectMask", chooseOrEmpty},
    {kSound,      Event::click,  "Combo_LMZ04_RefPlan",   chooseOrEmpty},
    {kTelevision, Event::click,  "Combo_LMZ04_RefPlan",   choosePlanning},
    {kTelevision, Event::click,  "Combo_LMZ04_RxMode",    choosePlanning},
    {kTelevision, Event::click,  "Combo_LMZ04_Sys_Var",   choosePlanning},
    {kBoth,       Event::change, "Txt_TrgAdmRefID",       changeTargetIdentifier},
    {kBoth,       Event::change, "Txt_trg_freq_assgn",    changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_long_DD",       changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_long_MM",       changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_long_SS",       changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_lat_DD",        changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_lat_MM",        changeTargetNumber},
    {kBoth,       Event::change, "Txt_trg_lat_SS",        changeTargetNumber},
    {kBoth,       Event::click,  "Button_Fill9EC",        fillEffectiveHeights},
    {kBoth,       Event::click,  "Button_Fill9NH",        fillHorizontal},
    {kBoth,       Event::click,  "Button_Fill9NV",        fillVertical},
};
static_assert(areOnTheirForms(kEvents, &EventRow::control));
// clang-format on

}  // namespace

std::span<const EventRow> assignmentEvents() {
  return kEvents;
}

}  // namespace zamo
