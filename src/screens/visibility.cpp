#include "screens/visibility.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text.h"
#include "screens/control_table.h"
#include "screens/coordination_lists.h"
#include "screens/visibility_tables.h"

namespace zamo {
namespace {

// What is stored stays to be seen, even where no rule wants it.
bool holdsStored(const Screen& screen, ControlName field) {
  return screen.filling && !screen.isEmpty(field);
}

void show(Screen& screen, ControlName field, bool shown) {
  screen.setVisible(field, shown || holdsStored(screen, field));
}

void show(Screen& screen, const LabelledField& one, bool shown) {
  show(screen, one.field, shown);
  screen.setVisible(one.label, screen.isVisible(one.field));
}

void clearText(Screen& screen, ControlName box) {
  if (!holdsStored(screen, box)) screen.setText(box, "");
}

void showOrClear(Screen& screen, const LabelledField& one, bool shown) {
  if (!shown) clearText(screen, one.field);
  show(screen, one, shown);
}

bool hasSystem(const Screen& screen) {
  return std::any_of(std::begin(kSystem), std::end(kSystem),
                     [&screen](const LabelledField& one) { return !screen.isEmpty(one.field); });
}

// The target's frequency and coordinates.
void showTargetPlace(Screen& screen, bool shown) {
  for (const ControlName box : kTargetCoordinates) show(screen, box, shown);
  show(screen, "Txt_trg_freq_assgn", shown);
  screen.setVisible("Lbl_trg_or", shown);
}

void clearTargetPlace(Screen& screen) {
  for (const ControlName box : kTargetCoordinates) clearText(screen, box);
  clearText(screen, "Txt_trg_freq_assgn");
}

// The target is the notice that has the identifier now.
void takeOwnIdAsTarget(Screen& screen) {
  if (!holdsStored(screen, kTargetId.field)) screen.setText(kTargetId.field, screen.text("Txt_AdmRefID"));
}

std::string captionOf(FormCode code, ControlName control) {
  for (const ControlRow& row : controlRows(code)) {
    if (row.name == control) return std::string(row.caption);
  }
  return {};
}

void applyAddOfAssignment(Screen& screen) {
  screen.setVisible("FrameTrg", false);
  clearText(screen, kTargetId.field);
  clearTargetPlace(screen);
  screen.setCaption("Lbl_trg_or", "");
}

void applyModOfAssignment(Screen& screen) {
  screen.setVisible("FrameTrg", true);
  screen.setCaption("Lbl_trg_or", captionOf(screen.code(), "Lbl_trg_or"));
  const bool placeToo = screen.isVisible("Frame_ART5_Only");
  if (!placeToo) takeOwnIdAsTarget(screen);
  showTargetPlace(screen, placeToo);
}

void applyIntentOfAllotment(Screen& screen, bool isMod) {
  screen.setVisible("FrameTrg", isMod);
  if (isMod) {
    takeOwnIdAsTarget(screen);
  } else {
    clearText(screen, kTargetId.field);
  }
  screen.setVisible("Frame_Art4_Only", true);
}

void showWholeTarget(Screen& screen) {
  if (!screen.isEmpty(kTargetId.field)) return;
  showTargetPlace(screen, true);
  show(screen, kTargetId, true);
}

void showOwnIdOnly(Screen& screen) {
  clearTargetPlace(screen);
  takeOwnIdAsTarget(screen);
  showTargetPlace(screen, false);
  show(screen, kTargetId, true);
}

// Hours that are stored stay.
void writeBlankTexts(Screen& screen) {
  for (const BlankText& blank : kBlankTexts) {
    if (!isOneOf(screen.code(), blank.forms) || holdsStored(screen, blank.box)) continue;
    screen.setText(blank.box, blank.text);
  }
}

bool fits(std::string_view pattern, std::string_view text) {
  return pattern == kAny || pattern == text;
}

void showAttenuations(Screen& screen, std::string_view antDir, std::string_view polariz) {
  for (const AttenuationRow& row : kAttenuations) {
    if (!fits(row.antDir, antDir) || !fits(row.polariz, polariz)) continue;
    screen.setVisible({"Frame_9NH_AttnH", "Button_Fill9NH"}, row.h);
    screen.setVisible({"Frame_9NV_AttnV", "Button_Fill9NV"}, row.v);
    return;
  }
}

void showPowers(Screen& screen, std::string_view polariz) {
  for (const PowerRow& row : kPowers) {
    if (!fits(row.polariz, polariz)) continue;
    show(screen, kErpV, row.v);
    show(screen, kErpH, row.h);
    return;
  }
}

void showSystem(Screen& screen, bool shown) {
  for (const LabelledField& one : kSystem) show(screen, one, shown);
}

// Either way of telling the system excludes the other one; the system and its mode come first.
void choosePlanningOrSystem(Screen& screen) {
  if (hasSystem(screen)) {
    if (!holdsStored(screen, kRefPlan.field)) screen.choose(kRefPlan.field, 0);
    show(screen, kRefPlan, false);
    screen.setVisible("LblOr", false);
  } else if (!screen.isSet("Opt_Art5")) {
    show(screen, kRefPlan, true);
  }
}

void applyOpeningStates(Screen& screen) {
  for (const OpeningState& state : kOpeningStates) {
    if (!isOneOf(screen.code(), state.forms)) continue;
    screen.setVisible(state.control, state.visible);
    screen.setEnabled(state.control, state.enabled);
  }
  resetCoordinationLists(screen);
}

void applyFamilyRules(Screen& screen) {
  applyIntentRule(screen);
  applyArticleRule(screen);
  applyAntennaRule(screen);
  applyPlanEntryRule(screen);
  applyAreaRule(screen);
  if (isOneOf(screen.code(), kAllotmentForms)) lockSubAreas(screen, true);
  if (isOneOf(screen.code(), kContourForm)) lockTestPoints(screen, true);
}

std::vector<std::string> controlsOf(const Screen& screen, std::initializer_list<ControlKind> kinds) {
  std::vector<std::string> names;
  screen.forEach([&](const Control& control) {
    if (std::find(kinds.begin(), kinds.end(), control.kind) != kinds.end()) names.push_back(control.name);
  });
  return names;
}

// The options go first, so that no rule takes an emptied field for that of a modification or an article.
void emptyControls(Screen& screen) {
  for (const std::string& option : controlsOf(screen, {ControlKind::option}))
    screen.unsetOption(madeName(option));
  for (const std::string& box : controlsOf(screen, {ControlKind::text, ControlKind::memo})) {
    screen.setText(madeName(box), "");
  }
  for (const std::string& combo : controlsOf(screen, {ControlKind::combo})) screen.choose(madeName(combo), 0);
  for (const ControlName list : kNoticeLists) {
    if (screen.has(list)) screen.clearItems(list);
  }
}

void settleAssignment(Screen& screen) {
  applyPlanEntryRule(screen);
  applyPlanningRule(screen);
  applyAntennaRule(screen);
}

void settleAllotment(Screen& screen) {
  applyPlanEntryRule(screen);
  if (!screen.isEmpty("Txt_LMZ04_nb_sub_areas")) lockSubAreas(screen, false);
}

void settleContour(Screen& screen) {
  if (!screen.isEmpty("Txt_LMZ04_nb_test_pts")) lockTestPoints(screen, false);
  const bool hasPoints = !screen.items("ListBox_LMZ04_Coordinates").empty();
  screen.setEnabled("Button_View", hasPoints);
  screen.setEnabled("Button_ClearAll_Coordinates", hasPoints);
}

}  // namespace

void applyIntentRule(Screen& screen) {
  if (isOneOf(screen.code(), kAllotmentForms)) applyIntentOfAllotment(screen, screen.isSet("OptInt_Mod"));
  if (!isOneOf(screen.code(), kAssignmentForms)) return;
  if (screen.isSet("OptInt_Mod")) {
    applyModOfAssignment(screen);
  } else {
    applyAddOfAssignment(screen);
  }
  applyPlanningRule(screen);
}

void applyArticleRule(Screen& screen) {
  if (!isOneOf(screen.code(), kAssignmentForms)) return;
  const auto* row =
      std::find_if(std::begin(kArticles), std::end(kArticles) - 1,
                   [&screen](const ArticleRow& article) { return screen.isSet(article.option); });
  screen.setVisible("Frame_ART5_Only", row->art5Frame);
  screen.setVisible("Frame_Art4_Only", row->art4Frame);
  if (screen.isSet("OptInt_Mod")) (row->ownIdOnly ? showOwnIdOnly : showWholeTarget)(screen);
  if (screen.code() == kGT1Assign && screen.isSet("Opt_Art5")) writeBlankTexts(screen);
}

void applyAntennaRule(Screen& screen) {
  if (!isOneOf(screen.code(), kAssignmentForms)) return;
  const std::string& polariz = screen.text("Combo_9D_Polariz");
  showAttenuations(screen, screen.text("Combo_9_AntDir"), polariz);
  showPowers(screen, polariz);
}

void applyPlanEntryRule(Screen& screen) {
  if (!isOneOf(screen.code(), kAssignmentForms | kAllotmentForms)) return;
  const std::string planEntry = screen.text("Combo_KV19_Plan");
  if (isOneOf(screen.code(), kAllotmentForms)) {
    showOrClear(screen, kSfnId, planEntry != "5");
    return;
  }
  for (const PlanEntryRow& row : kPlanEntries) {
    if (!equalsIgnoringCase(row.planEntry, planEntry)) continue;
    showOrClear(screen, kSfnId, row.sfnId);
    showOrClear(screen, kAllotSfn, row.allotSfnId);
    showOrClear(screen, kAllotId, row.allotId);
  }
}

void applyPlanningRule(Screen& screen) {
  if (screen.code() != kGT1Assign) return;
  choosePlanningOrSystem(screen);
  const bool hasPlanning = !screen.isEmpty(kRefPlan.field);
  const bool isBlank = !hasPlanning && !hasSystem(screen);
  if (isBlank && !screen.isSet("Opt_Art4") && !screen.isSet("Opt_Art5")) {
    showSystem(screen, true);
    screen.setVisible("LblOr", true);
  } else if (!hasPlanning || !screen.isSet("Opt_Art5")) {
    showSystem(screen, !hasPlanning);
    screen.setVisible("LblOr", false);
  }
}

void applyAreaRule(Screen& screen) {
  if (!isOneOf(screen.code(), kAllotmentForms)) return;
  screen.setVisible({"Lbl_LMZ04_or", "Lbl_LMZ04_nb_sub_areas", "Txt_LMZ04_nb_sub_areas",
                     "Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area", "FrameSubArea"},
                    true);
}

void lockSubAreas(Screen& screen, bool locked) {
  if (locked) screen.clearItems("ListBoxContourID");
  for (const ControlName control :
       ControlNames{"Txt_LMZ04_contour_id", "FrameSubArea", "Button_Add_Contour", "Button_Clear_Contour"}) {
    screen.setEnabled(control, !locked);
  }
  screen.setGrey("Txt_LMZ04_contour_id", locked);
  screen.setGrey("ListBoxContourID", locked);
}

void lockTestPoints(Screen& screen, bool locked) {
  for (const ControlName box : kTestPointBoxes) {
    screen.setEnabled(box, !locked);
    screen.setGrey(box, locked);
  }
  screen.setGrey("ListBox_LMZ04_Coordinates", locked);
  if (!locked) return;
  screen.clearItems("ListBox_LMZ04_Coordinates");
  screen.setEnabled("Button_Del_Coordinates", false);
  screen.setEnabled("Button_Add_Coordinates", false);
}

void applyDefaultVisibility(Screen& screen) {
  applyOpeningStates(screen);
  for (const OpeningOption& one : kOpeningOptions) {
    if (isOneOf(screen.code(), one.forms)) screen.setOption(one.option);
  }
  applyFamilyRules(screen);
}

void clearScreen(Screen& screen) {
  const Filling nothingStored(screen, false);
  emptyControls(screen);
  writeBlankTexts(screen);
  applyOpeningStates(screen);
  for (const OpeningOption& one : kOpeningOptions) {
    if (!isOneOf(screen.code(), one.forms)) continue;
    screen.setCaption(one.option, captionOf(screen.code(), one.option));
    if (one.forNextNotice) screen.setOption(one.option);
  }
  applyFamilyRules(screen);
}

void settleAfterFill(Screen& screen) {
  const Filling stored(screen, true);
  if (isOneOf(screen.code(), kAssignmentForms)) settleAssignment(screen);
  if (isOneOf(screen.code(), kAllotmentForms)) settleAllotment(screen);
  if (isOneOf(screen.code(), kContourForm)) settleContour(screen);
  resetCoordinationLists(screen);
}

}  // namespace zamo
