#include "screens/visibility.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "screens/complete_screens.h"
#include "screens/form_at_work.h"

namespace zamo::test {
namespace {

using Names = std::set<std::string>;

// The names in a text, with blanks between them.
Names names(const std::string& text) {
  std::istringstream in(text);
  Names all;
  for (std::string name; in >> name;) all.insert(name);
  return all;
}

Names namesWhere(const Screen& screen, bool (*test)(const Control&)) {
  Names all;
  screen.forEach([&](const Control& control) {
    if (test(control)) all.insert(control.name);
  });
  return all;
}

// All controls of the form that are hidden, disabled or grey.
Names hidden(const Screen& screen) {
  return namesWhere(screen, [](const Control& control) { return !control.visible; });
}
Names disabled(const Screen& screen) {
  return namesWhere(screen, [](const Control& control) { return !control.enabled; });
}
Names grey(const Screen& screen) {
  return namesWhere(screen, [](const Control& control) { return control.grey; });
}

const std::string kPlace =
    " Txt_trg_freq_assgn Txt_trg_long_DD Txt_trg_long_MM Txt_trg_long_SS Txt_trg_long_EW"
    " Txt_trg_lat_DD Txt_trg_lat_MM Txt_trg_lat_SS Txt_trg_lat_NS";
const std::string kPlaceAndOr = kPlace + " Lbl_trg_or ";
const Entries kPlaceEntries = {
    {"Txt_trg_freq_assgn", "474"}, {"Txt_trg_long_DD", "2"}, {"Txt_trg_long_MM", "21"},
    {"Txt_trg_long_SS", "6"},      {"Txt_trg_long_EW", "E"}, {"Txt_trg_lat_DD", "48"},
    {"Txt_trg_lat_MM", "52"},      {"Txt_trg_lat_SS", "31"}, {"Txt_trg_lat_NS", "N"}};
const std::string kCoordinationButtons = " Button_Coord_Add Button_Coord_Del Button_Coord_Clear";

// A form as it opens. The rules are asked for by the test, with the form's events at work besides or not.
class Form : public testing::Test {
 protected:
  Form(FormCode code, bool connected) : at(code) {
    if (connected) connectEvents(at.form);
    applyDefaultVisibility(screen);
  }

  // The intent and the article as the forms set them: the rules follow the option.
  void setIntent(ControlName option) {
    screen.setOption(option);
    applyIntentRule(screen);
    applyAntennaRule(screen);
    applyArticleRule(screen);
  }
  void setArticle(ControlName option) {
    screen.setOption(option);
    applyArticleRule(screen);
  }
  void expectHidden(const std::string& expected) { EXPECT_EQ(hidden(screen), names(expected)); }
  void expectTexts(const Entries& expected) {
    for (const Entry& one : expected) EXPECT_EQ(screen.text(madeName(one.control)), one.text) << one.control;
  }
  void expectPlaceEmpty() {
    for (const std::string& box : names(kPlace)) EXPECT_EQ(screen.text(madeName(box)), "") << box;
  }

  FormAtWork at;
  Screen& screen = at.screen;
};

using FormAndEvents = std::tuple<FormCode, bool>;

class AssignmentVisibility : public Form, public testing::WithParamInterface<FormAndEvents> {
 protected:
  AssignmentVisibility() : Form(std::get<0>(GetParam()), std::get<1>(GetParam())) {}
  bool isTelevision() const { return screen.code() == kGT1Assign; }
  // LblOr stands between the two ways of telling the system of a GT1, until an article or a system is given.
  std::string orOfSystem() const { return isTelevision() ? " LblOr " : ""; }
};
INSTANTIATE_TEST_SUITE_P(Forms, AssignmentVisibility,
                         testing::Combine(testing::Values(kGS1Assign, kGT1Assign), testing::Bool()));

// --- opening and intent

TEST_P(AssignmentVisibility, a_form_opens_for_an_addition_under_neither_article) {
  expectHidden("FrameTrg");
  EXPECT_EQ(disabled(screen), names(kCoordinationButtons));
  EXPECT_EQ(grey(screen), Names());
  EXPECT_TRUE(screen.isSet("OptInt_Add"));
  for (const ControlName option : ControlNames{"OptInt_Mod", "Opt_Art4", "Opt_Art5"})
    EXPECT_FALSE(screen.isSet(option));
  EXPECT_EQ(screen.at("Lbl_trg_or").caption, "");
  EXPECT_EQ(screen.text("Txt_10B_Ophhfr"), "");
}

TEST_P(AssignmentVisibility, an_addition_hides_and_clears_the_target) {
  setArticle("Opt_Art5");
  setIntent("OptInt_Mod");
  put(screen, kPlaceEntries);
  screen.setText("Txt_TrgAdmRefID", "F-0000");
  setIntent("OptInt_Add");
  EXPECT_FALSE(screen.isVisible("FrameTrg"));
  expectPlaceEmpty();
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
  EXPECT_EQ(screen.at("Lbl_trg_or").caption, "");
}

TEST_P(AssignmentVisibility, a_modification_under_neither_article_is_of_the_notice_itself) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setIntent("OptInt_Mod");
  expectHidden(kPlaceAndOr);
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
  EXPECT_EQ(screen.at("Lbl_trg_or").caption, "Or");
}

TEST_P(AssignmentVisibility, a_modification_under_article_4_is_of_the_notice_itself) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setArticle("Opt_Art4");
  expectHidden("FrameTrg Frame_ART5_Only");
  setIntent("OptInt_Mod");
  expectHidden("Frame_ART5_Only" + kPlaceAndOr + orOfSystem());
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
}

TEST_P(AssignmentVisibility, a_modification_under_article_5_may_name_its_target_by_the_place) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setArticle("Opt_Art5");
  expectHidden("FrameTrg Frame_Art4_Only");
  setIntent("OptInt_Mod");
  expectHidden("Frame_Art4_Only" + orOfSystem());
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
  EXPECT_EQ(screen.at("Lbl_trg_or").caption, "Or");
}

TEST_P(AssignmentVisibility, the_intent_rule_looks_at_the_frame_of_article_5_alone) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setIntent("OptInt_Mod");
  screen.setText("Txt_TrgAdmRefID", "");
  screen.setVisible("Frame_ART5_Only", true);
  applyIntentRule(screen);
  expectHidden("");
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
  screen.setVisible("Frame_ART5_Only", false);
  applyIntentRule(screen);
  expectHidden("Frame_ART5_Only" + kPlaceAndOr);
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
}

TEST_P(AssignmentVisibility, the_intent_rule_hides_a_place_without_clearing_it) {
  setArticle("Opt_Art5");
  setIntent("OptInt_Mod");
  put(screen, kPlaceEntries);
  screen.setVisible("Frame_ART5_Only", false);
  applyIntentRule(screen);
  expectTexts(kPlaceEntries);
  for (const std::string& control : names(kPlaceAndOr))
    EXPECT_FALSE(screen.isVisible(madeName(control))) << control;
}

// --- article

TEST_P(AssignmentVisibility, the_article_shows_its_own_frame) {
  setArticle("Opt_Art4");
  expectHidden("FrameTrg Frame_ART5_Only");
  setArticle("Opt_Art5");
  expectHidden("FrameTrg Frame_Art4_Only");
  screen.unsetOption("Opt_Art5");
  applyArticleRule(screen);
  expectHidden("FrameTrg");
}

TEST_P(AssignmentVisibility, without_a_modification_the_article_leaves_the_target_alone) {
  put(screen, kPlaceEntries);
  screen.setText("Txt_AdmRefID", "F-0001");
  for (const ControlName article : ControlNames{"Opt_Art4", "Opt_Art5"}) {
    setArticle(article);
    expectTexts(kPlaceEntries);
    EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
  }
}

TEST_P(AssignmentVisibility, from_article_5_to_4_the_place_of_the_target_is_cleared) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setArticle("Opt_Art5");
  setIntent("OptInt_Mod");
  put(screen, kPlaceEntries);
  setArticle("Opt_Art4");
  expectHidden("Frame_ART5_Only" + kPlaceAndOr + orOfSystem());
  expectPlaceEmpty();
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
  screen.setVisible({"Txt_TrgAdmRefID", "Lbl_TrgAdmRefID"}, false);
  applyArticleRule(screen);
  expectHidden("Frame_ART5_Only" + kPlaceAndOr + orOfSystem());
}

TEST_P(AssignmentVisibility, article_4_clears_the_place_even_if_the_notice_has_no_identifier) {
  setArticle("Opt_Art5");
  setIntent("OptInt_Mod");
  put(screen, kPlaceEntries);
  screen.setText("Txt_TrgAdmRefID", "F-0000");
  setArticle("Opt_Art4");
  expectHidden("Frame_ART5_Only" + kPlaceAndOr + orOfSystem());
  expectPlaceEmpty();
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
}

TEST_P(AssignmentVisibility, from_article_4_to_5_a_named_target_stays_the_only_one) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setArticle("Opt_Art4");
  setIntent("OptInt_Mod");
  setArticle("Opt_Art5");
  expectHidden("Frame_Art4_Only" + kPlaceAndOr + orOfSystem());
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
}

TEST_P(AssignmentVisibility, from_article_4_to_5_without_a_target_both_ways_are_shown) {
  setArticle("Opt_Art4");
  setIntent("OptInt_Mod");
  screen.setVisible({"Txt_TrgAdmRefID", "Lbl_TrgAdmRefID"}, false);
  setArticle("Opt_Art5");
  expectHidden("Frame_Art4_Only" + orOfSystem());
}

TEST_P(AssignmentVisibility, under_neither_article_that_of_article_4_counts_last) {
  screen.setText("Txt_AdmRefID", "F-0001");
  setArticle("Opt_Art5");
  setIntent("OptInt_Mod");
  put(screen, kPlaceEntries);
  screen.unsetOption("Opt_Art5");
  applyArticleRule(screen);
  expectHidden(kPlaceAndOr + orOfSystem());
  expectPlaceEmpty();
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0001");
}

TEST_P(AssignmentVisibility, article_5_makes_television_work_all_day) {
  const Entries hours = {{"Txt_10B_Ophhfr", "0600"}, {"Txt_10B_Ophhto", "2200"}};
  put(screen, hours);
  applyArticleRule(screen);
  setArticle("Opt_Art4");
  expectTexts(hours);
  setArticle("Opt_Art5");
  expectTexts(isTelevision() ? Entries{{"Txt_10B_Ophhfr", "0000"}, {"Txt_10B_Ophhto", "2400"}} : hours);
}

// --- antenna

struct AntennaCase {
  const char* antDir;
  const char* polariz;
  const char* hidden;
};

TEST_P(AssignmentVisibility, directivity_and_polarization_show_their_grids_and_powers) {
  const std::string h = " Frame_9NH_AttnH Button_Fill9NH ", v = " Frame_9NV_AttnV Button_Fill9NV ";
  const std::string powerH = " Txt_8BH_Erp_H Lbl_8BH_Erp_H ", powerV = " Txt_8BV_Erp_V Lbl_8BV_Erp_V ";
  const struct {
    const char* antDir;
    const char* polariz;
    std::string hidden;
  } cases[] = {
      {"ND", "H", h + v + powerV}, {"ND", "V", h + v + powerH}, {"ND", "M", h + v}, {"ND", "", h + v},
      {"D", "H", v + powerV},      {"D", "V", h + powerH},      {"D", "M", ""},     {"D", "", ""},
      {"", "H", powerV},           {"", "V", powerH},           {"", "M", ""},      {"", "", ""},
  };
  for (const auto& before : cases) {
    for (const auto& one : cases) {
      put(screen, {{"Combo_9_AntDir", before.antDir}, {"Combo_9D_Polariz", before.polariz}});
      applyAntennaRule(screen);
      put(screen, {{"Combo_9_AntDir", one.antDir}, {"Combo_9D_Polariz", one.polariz}});
      applyAntennaRule(screen);
      EXPECT_EQ(hidden(screen), names("FrameTrg" + one.hidden)) << one.antDir << ' ' << one.polariz;
    }
  }
}

TEST_P(AssignmentVisibility, what_the_antenna_hides_keeps_its_values) {
  const Entries values = {{"Txt_8BV_Erp_V", "10"}, {"Txt_9NVAzm000", "0"}, {"Txt_9NHAzm350", "3"}};
  put(screen, values);
  put(screen, {{"Combo_9_AntDir", "ND"}, {"Combo_9D_Polariz", "H"}});
  applyAntennaRule(screen);
  expectTexts(values);
  EXPECT_FALSE(screen.isVisible("Txt_8BV_Erp_V"));
}

// --- plan entry

TEST_P(AssignmentVisibility, the_plan_entry_shows_its_associations_and_clears_the_others) {
  const std::string sfn = " Txt_LMZ04_SfnID Lbl_LMZ04_SfnID ",
                    allotSfn = " Txt_KV19_assoc_allot_sfnID Lbl_KV19_assoc_allot_sfnID ",
                    allotId = " Txt_LMZ04_AdmAllotID Lbl_LMZ04_AdmAllotID ";
  const struct {
    const char* planEntry;
    std::string hidden;
  } cases[] = {{"", ""},
               {"1", sfn + allotSfn + allotId},
               {"2", allotSfn + allotId},
               {"3", ""},
               {"4", ""},
               {"5", sfn + allotSfn}};
  for (const auto& before : cases) {
    for (const auto& one : cases) {
      screen.setText("Combo_KV19_Plan", before.planEntry);
      applyPlanEntryRule(screen);
      put(screen,
          {{"Txt_LMZ04_SfnID", "a"}, {"Txt_KV19_assoc_allot_sfnID", "b"}, {"Txt_LMZ04_AdmAllotID", "c"}});
      screen.setText("Combo_KV19_Plan", one.planEntry);
      applyPlanEntryRule(screen);
      const Names gone = names(one.hidden);
      Names expected = gone;
      expected.insert("FrameTrg");
      EXPECT_EQ(hidden(screen), expected) << one.planEntry;
      expectTexts({{"Txt_LMZ04_SfnID", gone.contains("Txt_LMZ04_SfnID") ? "" : "a"},
                   {"Txt_KV19_assoc_allot_sfnID", gone.contains("Txt_KV19_assoc_allot_sfnID") ? "" : "b"},
                   {"Txt_LMZ04_AdmAllotID", gone.contains("Txt_LMZ04_AdmAllotID") ? "" : "c"}});
    }
  }
}

TEST_P(AssignmentVisibility, another_plan_entry_changes_nothing) {
  for (const char* before : {"1", "5", "3"}) {
    screen.setText("Combo_KV19_Plan", before);
    applyPlanEntryRule(screen);
    const Names unchanged = hidden(screen);
    screen.setText("Combo_KV19_Plan", "6");
    applyPlanEntryRule(screen);
    EXPECT_EQ(hidden(screen), unchanged) << before;
  }
}

// --- while a stored notice is brought to the form

TEST_P(AssignmentVisibility, a_stored_target_survives_the_rules) {
  setIntent("OptInt_Mod");
  put(screen, {{"Txt_AdmRefID", "F-0001"}});
  screen.filling = true;
  put(screen, kPlaceEntries);
  screen.setText("Txt_TrgAdmRefID", "F-0000");
  setArticle("Opt_Art4");
  applyIntentRule(screen);
  expectTexts(kPlaceEntries);
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0000");
  for (const std::string& box : names(kPlace)) EXPECT_TRUE(screen.isVisible(madeName(box))) << box;
  setIntent("OptInt_Add");
  expectTexts(kPlaceEntries);
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-0000");
}

TEST_P(AssignmentVisibility, of_a_stored_target_the_empty_boxes_are_hidden) {
  setArticle("Opt_Art4");
  setIntent("OptInt_Mod");
  screen.filling = true;
  screen.setText("Txt_trg_freq_assgn", "474");
  applyArticleRule(screen);
  EXPECT_TRUE(screen.isVisible("Txt_trg_freq_assgn"));
  for (const std::string& box : names(kPlaceAndOr)) {
    EXPECT_EQ(screen.isVisible(madeName(box)), box == "Txt_trg_freq_assgn") << box;
  }
}

TEST_P(AssignmentVisibility, stored_hours_survive_the_article) {
  screen.filling = true;
  put(screen, {{"Txt_10B_Ophhfr", "0600"}});
  setArticle("Opt_Art5");
  expectTexts({{"Txt_10B_Ophhfr", "0600"}, {"Txt_10B_Ophhto", isTelevision() ? "2400" : ""}});
}

TEST_P(AssignmentVisibility, a_stored_association_that_the_plan_entry_excludes_stays_to_be_seen) {
  screen.filling = true;
  screen.setText("Txt_LMZ04_SfnID", "F-SFN");
  screen.setText("Combo_KV19_Plan", "1");
  applyPlanEntryRule(screen);
  screen.setText("Txt_LMZ04_AdmAllotID", "F-A");
  screen.filling = false;
  settleAfterFill(screen);
  EXPECT_FALSE(screen.filling);
  EXPECT_EQ(hidden(screen), names("FrameTrg Txt_KV19_assoc_allot_sfnID Lbl_KV19_assoc_allot_sfnID"));
  expectTexts({{"Txt_LMZ04_SfnID", "F-SFN"}, {"Txt_LMZ04_AdmAllotID", "F-A"}});
  // The next click clears as ever.
  applyPlanEntryRule(screen);
  expectTexts({{"Txt_LMZ04_SfnID", ""}, {"Txt_LMZ04_AdmAllotID", ""}});
  EXPECT_FALSE(screen.isVisible("Txt_LMZ04_SfnID"));
}

TEST_P(AssignmentVisibility, a_stored_power_that_the_polarization_excludes_stays_to_be_seen) {
  screen.filling = true;
  put(screen, {{"Combo_9D_Polariz", "H"}, {"Combo_9_AntDir", "ND"}, {"Txt_8BV_Erp_V", "10"}});
  screen.filling = false;
  settleAfterFill(screen);
  expectHidden("FrameTrg Frame_9NH_AttnH Button_Fill9NH Frame_9NV_AttnV Button_Fill9NV");
  applyAntennaRule(screen);
  expectHidden(
      "FrameTrg Frame_9NH_AttnH Button_Fill9NH Frame_9NV_AttnV Button_Fill9NV Txt_8BV_Erp_V Lbl_8BV_Erp_V");
}

TEST_P(AssignmentVisibility, settling_lets_stored_coordinations_be_cleared) {
  put(screen, {{"ListAdmSel", "D|BEL"}});
  settleAfterFill(screen);
  EXPECT_EQ(disabled(screen), names("Button_Coord_Add Button_Coord_Del"));
}

// --- the system of television

class TelevisionVisibility : public Form, public testing::WithParamInterface<bool> {
 protected:
  TelevisionVisibility() : Form(kGT1Assign, GetParam()) {}
  void choose(const Entries& entries) {
    for (const Entry& one : entries) {
      ASSERT_TRUE(screen.chooseText(madeName(one.control), one.text)) << one.control;
      applyPlanningRule(screen);
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Events, TelevisionVisibility, testing::Bool());

const std::string kPlanning = " Combo_LMZ04_RefPlan Lbl_LMZ04_RefPlan ";
const std::string kSystem = " Combo_LMZ04_Sys_Var Lbl_LMZ04_DigSys Combo_LMZ04_RxMode Lbl_LMZ04_RxMode ";

TEST_P(TelevisionVisibility, without_article_and_system_all_seven_are_shown) {
  screen.setVisible({"Combo_LMZ04_RefPlan", "Lbl_LMZ04_RefPlan", "LblOr", "Combo_LMZ04_Sys_Var",
                     "Lbl_LMZ04_DigSys", "Combo_LMZ04_RxMode", "Lbl_LMZ04_RxMode"},
                    false);
  applyPlanningRule(screen);
  expectHidden("FrameTrg");
}

TEST_P(TelevisionVisibility, a_system_clears_and_hides_the_planning_configuration) {
  for (const Entry& one : Entries{{"Combo_LMZ04_Sys_Var", "C2"}, {"Combo_LMZ04_RxMode", "FX"}}) {
    choose({{"Combo_LMZ04_RefPlan", "RPC1"}, one});
    expectHidden("FrameTrg LblOr" + kPlanning);
    EXPECT_EQ(screen.text("Combo_LMZ04_RefPlan"), "");
    EXPECT_EQ(screen.at("Combo_LMZ04_RefPlan").index, 0);
    EXPECT_EQ(screen.text(madeName(one.control)), one.text);
    choose({{one.control, ""}});
    expectHidden("FrameTrg");
  }
}

TEST_P(TelevisionVisibility, a_planning_configuration_hides_the_system) {
  choose({{"Combo_LMZ04_RefPlan", "RPC2"}});
  expectHidden("FrameTrg LblOr" + kSystem);
  choose({{"Combo_LMZ04_RefPlan", ""}});
  expectHidden("FrameTrg");
}

TEST_P(TelevisionVisibility, under_article_4_the_two_ways_are_shown_without_the_or) {
  setArticle("Opt_Art4");
  applyPlanningRule(screen);
  expectHidden("FrameTrg Frame_ART5_Only LblOr");
  choose({{"Combo_LMZ04_RefPlan", "RPC2"}});
  expectHidden("FrameTrg Frame_ART5_Only LblOr" + kSystem);
  choose({{"Combo_LMZ04_RefPlan", ""}, {"Combo_LMZ04_RxMode", "PO"}});
  expectHidden("FrameTrg Frame_ART5_Only LblOr" + kPlanning);
  choose({{"Combo_LMZ04_RxMode", ""}});
  expectHidden("FrameTrg Frame_ART5_Only LblOr");
}

TEST_P(TelevisionVisibility, under_article_5_the_system_stays_and_a_planning_configuration_changes_nothing) {
  setArticle("Opt_Art5");
  applyPlanningRule(screen);
  expectHidden("FrameTrg Frame_Art4_Only LblOr");
  screen.setVisible({"Combo_LMZ04_RefPlan", "Lbl_LMZ04_RefPlan"}, false);
  applyPlanningRule(screen);
  expectHidden("FrameTrg Frame_Art4_Only LblOr" + kPlanning);
  screen.setVisible("Combo_LMZ04_RxMode", false);
  screen.setVisible("LblOr", true);
  choose({{"Combo_LMZ04_RefPlan", "RPC1"}});
  expectHidden("FrameTrg Frame_Art4_Only Combo_LMZ04_RxMode" + kPlanning);
  choose({{"Combo_LMZ04_Sys_Var", "A1"}});
  expectHidden("FrameTrg Frame_Art4_Only LblOr" + kPlanning);
  EXPECT_EQ(screen.text("Combo_LMZ04_RefPlan"), "");
}

TEST_P(TelevisionVisibility, the_intent_rule_ends_with_the_planning_rule) {
  setArticle("Opt_Art4");
  EXPECT_TRUE(screen.isVisible("LblOr"));
  applyIntentRule(screen);
  EXPECT_FALSE(screen.isVisible("LblOr"));
}

TEST_P(TelevisionVisibility, stored_values_that_exclude_each_other_stay_to_be_seen) {
  const Entries stored = {{"Combo_LMZ04_RefPlan", "RPC1"}, {"Combo_LMZ04_Sys_Var", "C2"}};
  for (const Entries& order : {stored, Entries{stored[1], stored[0]}}) {
    clearScreen(screen);
    screen.filling = true;
    for (const Entry& one : order) screen.chooseText(madeName(one.control), one.text);
    screen.filling = false;
    settleAfterFill(screen);
    expectTexts(stored);
    expectHidden("FrameTrg LblOr Combo_LMZ04_RxMode Lbl_LMZ04_RxMode");
  }
  applyPlanningRule(screen);
  EXPECT_EQ(screen.text("Combo_LMZ04_RefPlan"), "");
  expectHidden("FrameTrg LblOr" + kPlanning);
}

TEST_P(TelevisionVisibility,
       a_stored_planning_configuration_beside_a_system_under_article_5_stays_to_be_seen) {
  screen.filling = true;
  setArticle("Opt_Art5");
  screen.chooseText("Combo_LMZ04_RefPlan", "RPC1");
  screen.chooseText("Combo_LMZ04_Sys_Var", "C2");
  screen.filling = false;
  settleAfterFill(screen);
  EXPECT_EQ(screen.text("Combo_LMZ04_RefPlan"), "RPC1");
  expectHidden("FrameTrg Frame_Art4_Only LblOr");
}

TEST(SoundVisibility, the_planning_rule_is_of_television_alone) {
  FormAtWork at(kGS1Assign);
  applyDefaultVisibility(at.screen);
  at.screen.setText("Combo_LMZ04_RefPlan", "RPC4");
  applyPlanningRule(at.screen);
  EXPECT_EQ(hidden(at.screen), names("FrameTrg"));
}

// --- allotments

class AllotmentVisibility : public Form, public testing::WithParamInterface<FormAndEvents> {
 protected:
  AllotmentVisibility() : Form(std::get<0>(GetParam()), std::get<1>(GetParam())) {}
};
INSTANTIATE_TEST_SUITE_P(Forms, AllotmentVisibility,
                         testing::Combine(testing::Values(kGS2Allot, kGT2Allot), testing::Bool()));

const std::string kSubAreaControls =
    " Txt_LMZ04_contour_id FrameSubArea Button_Add_Contour Button_Clear_Contour ";

TEST_P(AllotmentVisibility, a_form_opens_for_an_addition_with_its_sub_areas_locked) {
  expectHidden("FrameTrg");
  EXPECT_EQ(disabled(screen), names(kCoordinationButtons + kSubAreaControls));
  EXPECT_EQ(grey(screen), names("Txt_LMZ04_contour_id ListBoxContourID"));
  EXPECT_TRUE(screen.isSet("OptInt_Add"));
  EXPECT_FALSE(screen.isSet("OptInt_Mod"));
}

TEST_P(AllotmentVisibility, the_intent_shows_and_names_the_target) {
  screen.setText("Txt_AdmRefID", "F-A-01");
  screen.setVisible("Frame_Art4_Only", false);
  setIntent("OptInt_Mod");
  expectHidden("");
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-A-01");
  screen.setVisible("Frame_Art4_Only", false);
  setIntent("OptInt_Add");
  expectHidden("FrameTrg");
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
}

TEST_P(AllotmentVisibility, a_stored_target_survives_the_intent) {
  screen.setText("Txt_AdmRefID", "F-A-01");
  screen.filling = true;
  screen.setText("Txt_TrgAdmRefID", "F-A-00");
  setIntent("OptInt_Mod");
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-A-00");
  setIntent("OptInt_Add");
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-A-00");
}

TEST_P(AllotmentVisibility, plan_entry_5_has_no_network) {
  screen.setText("Txt_LMZ04_SfnID", "F-SFN");
  for (const char* entry : {"", "3", "4", "1", "6"}) {
    screen.setText("Combo_KV19_Plan", "5");
    screen.setText("Combo_KV19_Plan", entry);
    applyPlanEntryRule(screen);
    expectHidden("FrameTrg");
  }
  screen.setText("Txt_LMZ04_SfnID", "F-SFN");
  screen.setText("Combo_KV19_Plan", "5");
  applyPlanEntryRule(screen);
  expectHidden("FrameTrg Txt_LMZ04_SfnID Lbl_LMZ04_SfnID");
  EXPECT_EQ(screen.text("Txt_LMZ04_SfnID"), "");
  screen.setText("Combo_KV19_Plan", "4");
  applyPlanEntryRule(screen);
  expectHidden("FrameTrg");
}

TEST_P(AllotmentVisibility, a_stored_network_of_plan_entry_5_stays_to_be_seen) {
  screen.setText("Combo_KV19_Plan", "5");
  applyPlanEntryRule(screen);
  screen.setText("Txt_LMZ04_SfnID", "F-SFN");
  settleAfterFill(screen);
  expectHidden("FrameTrg");
  EXPECT_EQ(screen.text("Txt_LMZ04_SfnID"), "F-SFN");
}

TEST_P(AllotmentVisibility, the_area_rule_shows_both_ways) {
  screen.setVisible({"Lbl_LMZ04_or", "Lbl_LMZ04_nb_sub_areas", "Txt_LMZ04_nb_sub_areas",
                     "Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area", "FrameSubArea"},
                    false);
  applyAreaRule(screen);
  expectHidden("FrameTrg");
}

TEST_P(AllotmentVisibility, unlocked_sub_areas_can_be_entered_and_locking_clears_them) {
  lockSubAreas(screen, false);
  EXPECT_EQ(disabled(screen), names(kCoordinationButtons));
  EXPECT_EQ(grey(screen), Names());
  put(screen, {{"ListBoxContourID", "11|12"}});
  lockSubAreas(screen, false);
  EXPECT_EQ(screen.items("ListBoxContourID").size(), 2U);
  lockSubAreas(screen, true);
  EXPECT_EQ(disabled(screen), names(kCoordinationButtons + kSubAreaControls));
  EXPECT_EQ(grey(screen), names("Txt_LMZ04_contour_id ListBoxContourID"));
  EXPECT_TRUE(screen.items("ListBoxContourID").empty());
}

TEST_P(AllotmentVisibility, settling_unlocks_the_sub_areas_that_are_there) {
  settleAfterFill(screen);
  EXPECT_EQ(grey(screen), names("Txt_LMZ04_contour_id ListBoxContourID"));
  screen.setText("Txt_LMZ04_nb_sub_areas", "2");
  put(screen, {{"ListBoxContourID", "11|12"}});
  settleAfterFill(screen);
  EXPECT_EQ(grey(screen), Names());
  EXPECT_EQ(screen.items("ListBoxContourID").size(), 2U);
}

// --- the contour

class ContourVisibility : public Form, public testing::WithParamInterface<bool> {
 protected:
  ContourVisibility() : Form(kGA1SubAllot, GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(Events, ContourVisibility, testing::Bool());

const std::string kPointBoxes =
    " Txt_LMZ04_Deg_Long Txt_LMZ04_Min_Long Txt_LMZ04_Sec_Long Txt_LMZ04_EW"
    " Txt_LMZ04_Deg_Lat Txt_LMZ04_Min_Lat Txt_LMZ04_Sec_Lat Txt_LMZ04_NS ";
const std::string kPointButtons =
    " Button_View Button_Del_Coordinates Button_Upd_Coordinates Button_Ins_Coordinates"
    " Button_Add_Coordinates Button_ClearAll_Coordinates ";

TEST_P(ContourVisibility, a_form_opens_with_its_test_points_locked) {
  expectHidden("");
  EXPECT_EQ(disabled(screen), names(kPointBoxes + kPointButtons));
  EXPECT_EQ(grey(screen), names(kPointBoxes + "ListBox_LMZ04_Coordinates"));
  EXPECT_TRUE(screen.isSet("OptInt_Add"));
}

TEST_P(ContourVisibility, unlocked_test_points_can_be_entered_and_locking_clears_them) {
  lockTestPoints(screen, false);
  EXPECT_EQ(disabled(screen), names(kPointButtons));
  EXPECT_EQ(grey(screen), Names());
  put(screen, {{"ListBox_LMZ04_Coordinates", "0020000E 480000N|0030000E 480000N"}});
  screen.setEnabled("Button_Del_Coordinates", true);
  screen.setEnabled("Button_Add_Coordinates", true);
  lockTestPoints(screen, false);
  EXPECT_EQ(screen.items("ListBox_LMZ04_Coordinates").size(), 2U);
  EXPECT_TRUE(screen.at("Button_Add_Coordinates").enabled);
  lockTestPoints(screen, true);
  EXPECT_EQ(disabled(screen), names(kPointBoxes + kPointButtons));
  EXPECT_EQ(grey(screen), names(kPointBoxes + "ListBox_LMZ04_Coordinates"));
  EXPECT_TRUE(screen.items("ListBox_LMZ04_Coordinates").empty());
}

TEST_P(ContourVisibility, settling_unlocks_the_test_points_that_are_there_and_lets_them_be_viewed) {
  settleAfterFill(screen);
  EXPECT_EQ(disabled(screen), names(kPointBoxes + kPointButtons));
  screen.setText("Txt_LMZ04_nb_test_pts", "3");
  settleAfterFill(screen);
  EXPECT_EQ(disabled(screen), names(kPointButtons));
  put(screen, {{"ListBox_LMZ04_Coordinates", "0020000E 480000N|0030000E 480000N"}});
  settleAfterFill(screen);
  EXPECT_EQ(disabled(screen), names("Button_Del_Coordinates Button_Upd_Coordinates Button_Ins_Coordinates"
                                    " Button_Add_Coordinates"));
  EXPECT_EQ(grey(screen), Names());
}

// --- TB

TEST(TbVisibility, the_forms_open_without_internal_remarks) {
  for (const FormCode code : {kTB5, kTB3, kTB2}) {
    FormAtWork at(code);
    connectEvents(at.form);
    applyDefaultVisibility(at.screen);
    EXPECT_EQ(hidden(at.screen), names("txt_int_rmk Lbl_int_rmk")) << code;
    EXPECT_EQ(disabled(at.screen), names(code == kTB3 ? kCoordinationButtons : "")) << code;
    EXPECT_EQ(grey(at.screen), Names()) << code;
  }
}

TEST(TbVisibility, tb5_opens_for_a_withdrawal_under_article_4) {
  FormAtWork at(kTB5);
  applyDefaultVisibility(at.screen);
  EXPECT_EQ(namesWhere(at.screen, [](const Control& control) { return control.isSet; }),
            names("OptInt_WDraw Opt_Art4"));
}

TEST(TbVisibility, the_rules_of_other_forms_leave_these_alone) {
  for (const FormCode code : {kTB5, kTB3, kTB2, kGA1SubAllot}) {
    FormAtWork at(code);
    applyDefaultVisibility(at.screen);
    const Names before = hidden(at.screen);
    for (const auto rule : {applyIntentRule, applyArticleRule, applyAntennaRule, applyPlanEntryRule,
                            applyPlanningRule, applyAreaRule}) {
      rule(at.screen);
    }
    EXPECT_EQ(hidden(at.screen), before) << code;
  }
}

}  // namespace
}  // namespace zamo::test
