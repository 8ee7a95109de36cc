#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "screens/field_checks.h"
#include "screens/form_at_work.h"
#include "screens/visibility.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const std::vector<ControlName> kNumbers = {"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM",
                                           "Txt_trg_long_SS",    "Txt_trg_lat_DD",  "Txt_trg_lat_MM",
                                           "Txt_trg_lat_SS"};
const std::vector<ControlName> kPlace = {"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM",
                                         "Txt_trg_long_SS",    "Txt_trg_long_EW", "Txt_trg_lat_DD",
                                         "Txt_trg_lat_MM",     "Txt_trg_lat_SS",  "Txt_trg_lat_NS"};

class AssignmentForm : public testing::Test {
 protected:
  explicit AssignmentForm(FormCode code) : at(code) {
    connectEvents(at.form);
    applyDefaultVisibility(at.screen);
    at.work.state.screenIsBlank = false;
  }

  bool isShown(ControlName control) const { return at.screen.isVisible(control); }
  // Those of the controls that are hidden.
  std::set<std::string> hiddenOf(const std::vector<ControlName>& controls) const {
    std::set<std::string> hidden;
    for (const ControlName control : controls) {
      if (!isShown(control)) hidden.emplace(control);
    }
    return hidden;
  }
  void expectBlank(bool expected) { EXPECT_EQ(at.work.state.screenIsBlank, expected); }

  FormAtWork at;
};

class AssignmentEvents : public AssignmentForm, public testing::WithParamInterface<FormCode> {
 protected:
  AssignmentEvents() : AssignmentForm(GetParam()) {}

  // A modification under article 5, whose target may be named either way.
  void openTarget() {
    at.set("Opt_Art5");
    at.set("OptInt_Mod");
    ASSERT_TRUE(isShown("FrameTrg"));
    ASSERT_TRUE(isShown("Lbl_trg_or"));
    ASSERT_THAT(hiddenOf(kPlace), IsEmpty());
  }
};
INSTANTIATE_TEST_SUITE_P(Forms, AssignmentEvents, testing::Values(kGS1Assign, kGT1Assign));

class SoundAssignmentEvents : public AssignmentForm {
 protected:
  SoundAssignmentEvents() : AssignmentForm(kGS1Assign) {}
};

class TelevisionAssignmentEvents : public AssignmentForm {
 protected:
  TelevisionAssignmentEvents() : AssignmentForm(kGT1Assign) {}
};

TEST_P(AssignmentEvents, an_article_shows_its_frame) {
  at.set("Opt_Art5");
  EXPECT_TRUE(isShown("Frame_ART5_Only"));
  EXPECT_FALSE(isShown("Frame_Art4_Only"));
  at.set("Opt_Art4");
  EXPECT_FALSE(isShown("Frame_ART5_Only"));
  EXPECT_TRUE(isShown("Frame_Art4_Only"));
}

TEST_P(AssignmentEvents, a_modification_shows_the_target_and_an_addition_hides_it) {
  EXPECT_FALSE(isShown("FrameTrg"));
  at.set("OptInt_Mod");
  EXPECT_TRUE(isShown("FrameTrg"));
  at.set("OptInt_Add");
  EXPECT_FALSE(isShown("FrameTrg"));
}

TEST_P(AssignmentEvents, either_intent_is_followed_by_the_antenna_and_the_article) {
  at.set("Opt_Art4");
  for (const ControlName intent : ControlNames{"OptInt_Mod", "OptInt_Add"}) {
    at.screen.setVisible({"Frame_9NH_AttnH", "Frame_9NV_AttnV", "Frame_Art4_Only"}, false);
    at.set(intent);
    EXPECT_TRUE(isShown("Frame_9NH_AttnH")) << intent;
    EXPECT_TRUE(isShown("Frame_9NV_AttnV")) << intent;
    EXPECT_TRUE(isShown("Frame_Art4_Only")) << intent;
  }
}

TEST_P(AssignmentEvents, a_plan_modification_takes_its_own_identifier_as_target) {
  at.type("Txt_AdmRefID", "F-1");
  at.set("Opt_Art4");
  at.set("OptInt_Mod");
  EXPECT_EQ(at.screen.text("Txt_TrgAdmRefID"), "F-1");
  EXPECT_EQ(hiddenOf(kPlace).size(), kPlace.size());
  EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));
}

TEST_P(AssignmentEvents, the_directivity_shows_the_attenuations_it_needs) {
  at.work.state.screenIsBlank = true;
  at.choose("Combo_9_AntDir", "ND");
  EXPECT_FALSE(isShown("Frame_9NH_AttnH"));
  EXPECT_FALSE(isShown("Frame_9NV_AttnV"));
  expectBlank(false);
}

TEST_P(AssignmentEvents, the_polarization_shows_the_attenuations_it_needs) {
  at.choose("Combo_9_AntDir", "D");
  at.work.state.screenIsBlank = true;
  at.choose("Combo_9D_Polariz", "H");
  EXPECT_TRUE(isShown("Frame_9NH_AttnH"));
  EXPECT_FALSE(isShown("Frame_9NV_AttnV"));
  EXPECT_FALSE(isShown("Txt_8BV_Erp_V"));
  expectBlank(false);
}

TEST_P(AssignmentEvents, the_plan_entry_hides_the_references_that_it_excludes) {
  at.work.state.screenIsBlank = true;
  at.choose("Combo_KV19_Plan", "2");
  EXPECT_TRUE(isShown("Txt_LMZ04_SfnID"));
  EXPECT_FALSE(isShown("Txt_KV19_assoc_allot_sfnID"));
  EXPECT_FALSE(isShown("Txt_LMZ04_AdmAllotID"));
  expectBlank(false);
}

TEST_P(AssignmentEvents, the_screen_is_blank_while_an_empty_mask_is_clicked) {
  at.click("Combo_LMZ04_SpectMask");
  expectBlank(true);
  at.choose("Combo_LMZ04_SpectMask", GetParam() == kGS1Assign ? "1" : "N");
  expectBlank(false);
  at.choose("Combo_LMZ04_SpectMask", "");
  expectBlank(true);
}

TEST_P(AssignmentEvents, what_the_program_does_moves_nothing_of_the_blank_state) {
  at.screen.chooseText("Combo_LMZ04_SpectMask", GetParam() == kGS1Assign ? "1" : "N");
  at.screen.chooseText("Combo_LMZ04_SpectMask", "");
  expectBlank(false);
  at.work.state.screenIsBlank = true;
  at.screen.chooseText("Combo_LMZ04_SpectMask", GetParam() == kGS1Assign ? "1" : "N");
  at.screen.chooseText("Combo_9_AntDir", "D");
  at.screen.chooseText("Combo_9D_Polariz", "M");
  at.screen.chooseText("Combo_KV19_Plan", "1");
  at.screen.chooseText("Combo_LMZ04_RefPlan", GetParam() == kGS1Assign ? "RPC4" : "RPC1");
  expectBlank(true);
}

TEST_P(AssignmentEvents, a_notice_that_the_user_calls_up_moves_nothing_of_the_blank_state) {
  at.choose("Combo_LMZ04_SpectMask", GetParam() == kGS1Assign ? "1" : "N");
  at.screen.filling = true;
  at.choose("Combo_LMZ04_SpectMask", "");
  expectBlank(false);
}

TEST_P(AssignmentEvents, typing_the_target_identifier_hides_frequency_and_coordinates) {
  openTarget();
  at.type("Txt_TrgAdmRefID", "X1");
  EXPECT_EQ(hiddenOf(kPlace).size(), 9U);
  EXPECT_FALSE(isShown("Lbl_trg_or"));
  EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));

  at.type("Txt_TrgAdmRefID", "");
  EXPECT_THAT(hiddenOf(kPlace), IsEmpty());
  EXPECT_TRUE(isShown("Lbl_trg_or"));
}

TEST_P(AssignmentEvents, each_number_of_the_target_place_hides_the_identifier) {
  openTarget();
  for (const ControlName box : kNumbers) {
    SCOPED_TRACE(box);
    at.type(box, "1");
    EXPECT_FALSE(isShown("Txt_TrgAdmRefID"));
    EXPECT_FALSE(isShown("Lbl_TrgAdmRefID"));
    EXPECT_FALSE(isShown("Lbl_trg_or"));
    EXPECT_THAT(hiddenOf(kPlace), IsEmpty());

    at.type(box, "");
    EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));
    EXPECT_TRUE(isShown("Lbl_TrgAdmRefID"));
    EXPECT_TRUE(isShown("Lbl_trg_or"));
  }
}

TEST_P(AssignmentEvents, the_identifier_comes_back_when_the_last_number_is_gone) {
  openTarget();
  at.type("Txt_trg_freq_assgn", "474");
  at.type("Txt_trg_lat_SS", "30");
  at.type("Txt_trg_freq_assgn", "");
  EXPECT_FALSE(isShown("Txt_TrgAdmRefID"));
  at.type("Txt_trg_lat_SS", "");
  EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));
}

TEST_P(AssignmentEvents, emptied_numbers_bring_back_the_whole_target) {
  openTarget();
  at.type("Txt_trg_long_DD", "5");
  at.screen.setVisible({"Txt_trg_long_EW", "Txt_trg_lat_NS", "Txt_trg_lat_DD"}, false);
  at.type("Txt_trg_long_DD", "");
  EXPECT_THAT(hiddenOf(kPlace), IsEmpty());
}

TEST_P(AssignmentEvents, a_letter_of_the_coordinates_names_no_target) {
  openTarget();
  at.type("Txt_trg_long_EW", "E");
  at.type("Txt_trg_lat_NS", "N");
  EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));
  EXPECT_TRUE(isShown("Lbl_trg_or"));
}

TEST_P(AssignmentEvents, a_stored_target_that_is_named_twice_stays_to_be_seen) {
  openTarget();
  at.screen.filling = true;
  at.screen.setText("Txt_trg_freq_assgn", "474");
  at.screen.setText("Txt_TrgAdmRefID", "X1");
  EXPECT_TRUE(isShown("Txt_trg_freq_assgn"));
  EXPECT_FALSE(isShown("Txt_trg_lat_NS"));
  at.screen.setText("Txt_trg_long_DD", "5");
  EXPECT_TRUE(isShown("Txt_TrgAdmRefID"));
  EXPECT_TRUE(isShown("Lbl_TrgAdmRefID"));
}

struct FillButton {
  ControlName button;
  const char* boxes;
  FillGrid grid;
  int hgtMax;
};
const std::vector<FillButton> kFillButtons = {
    {"Button_Fill9EC", "Txt_9EC_azm", FillGrid::effectiveHeight, 300},
    {"Button_Fill9NH", "Txt_9NHAzm", FillGrid::attenuation, 0},
    {"Button_Fill9NV", "Txt_9NVAzm", FillGrid::attenuation, 0}};

// The boxes of the three grids that hold something.
std::set<std::string> filledBoxes(const Screen& screen) {
  std::set<std::string> filled;
  screen.forEach([&filled](const Control& control) {
    const bool isOfGrid =
        control.name.find("azm") != std::string::npos || control.name.find("Azm") != std::string::npos;
    if (isOfGrid && !control.text.empty()) filled.insert(control.name);
  });
  return filled;
}

TEST_P(AssignmentEvents, a_range_is_filled_in_steps_of_ten_degrees) {
  at.type("Txt_9EB_Eff_hgtmax", "300");
  for (const FillButton& one : kFillButtons) {
    SCOPED_TRACE(one.button);
    std::vector<std::pair<FillGrid, int>> asked;
    at.work.dialogs.FillRangeFrm = [&asked](FillGrid grid, int hgtMax) {
      asked.emplace_back(grid, hgtMax);
      return AzimuthFill{"12", 340, 350};
    };
    at.work.state.screenIsBlank = true;
    at.click(one.button);
    EXPECT_THAT(asked, ElementsAre(Pair(one.grid, one.hgtMax)));
    const std::string boxes = one.boxes;
    EXPECT_EQ(filledBoxes(at.screen), (std::set<std::string>{boxes + "340", boxes + "350"}));
    EXPECT_EQ(at.screen.text(madeName(boxes + "340")), "12");
    EXPECT_EQ(at.screen.text(madeName(boxes + "350")), "12");
    expectBlank(false);
    at.type(madeName(boxes + "340"), "");
    at.type(madeName(boxes + "350"), "");
  }
  EXPECT_THAT(at.script.boxes, IsEmpty());
}

TEST_P(AssignmentEvents, a_range_from_0_to_350_fills_all_36_boxes) {
  at.work.dialogs.FillRangeFrm = [](FillGrid, int) { return AzimuthFill{"0.5", 0, 350}; };
  for (const FillButton& one : kFillButtons) at.click(one.button);
  EXPECT_EQ(filledBoxes(at.screen).size(), 108U);
  EXPECT_EQ(at.screen.text("Txt_9EC_azm000"), "0.5");
  EXPECT_EQ(at.screen.text("Txt_9NHAzm180"), "0.5");
  EXPECT_EQ(at.screen.text("Txt_9NVAzm350"), "0.5");
}

TEST_P(AssignmentEvents, a_cancelled_range_fills_nothing) {
  at.work.state.screenIsBlank = true;
  for (const FillButton& one : kFillButtons) at.click(one.button);
  EXPECT_THAT(filledBoxes(at.screen), IsEmpty());
  expectBlank(true);
}

TEST_P(AssignmentEvents, an_azimuth_without_a_box_is_passed_over) {
  at.work.dialogs.FillRangeFrm = [](FillGrid, int) { return AzimuthFill{"1", 350, 370}; };
  at.click("Button_Fill9NH");
  EXPECT_EQ(filledBoxes(at.screen), std::set<std::string>{"Txt_9NHAzm350"});
}

TEST_P(AssignmentEvents, the_limit_of_the_heights_is_the_number_in_9eb) {
  std::vector<int> limits;
  at.work.dialogs.FillRangeFrm = [&limits](FillGrid, int hgtMax) {
    limits.push_back(hgtMax);
    return AzimuthFill();
  };
  for (const char* const text : {"", "-20", "x", "12.9", "-0.5", "1e9", "-1e9"}) {
    at.screen.setText("Txt_9EB_Eff_hgtmax", text);
    at.click("Button_Fill9EC");
  }
  EXPECT_THAT(limits, ElementsAre(0, -20, 0, 12, -1, 32767, -32768));
}

TEST_P(AssignmentEvents, an_empty_site_altitude_is_passed) {
  EXPECT_TRUE(mayLeaveField(at.form, "Txt_9EA_SiteAlt"));
  EXPECT_THAT(at.script.boxes, IsEmpty());
}

TEST_P(AssignmentEvents, what_the_user_chooses_tells_nothing_in_boxes) {
  openTarget();
  at.choose("Combo_9_AntDir", "D");
  at.choose("Combo_KV19_Plan", "5");
  EXPECT_THAT(at.script.boxes, IsEmpty());
  EXPECT_THAT(at.script.questions, IsEmpty());
}

TEST_F(SoundAssignmentEvents, the_screen_is_blank_while_an_empty_planning_is_clicked) {
  at.click("Combo_LMZ04_RefPlan");
  expectBlank(true);
  at.choose("Combo_LMZ04_RefPlan", "RPC4");
  expectBlank(false);
  at.choose("Combo_LMZ04_RefPlan", "");
  expectBlank(true);
}

TEST_F(SoundAssignmentEvents, article_5_writes_no_hours) {
  at.set("Opt_Art5");
  EXPECT_EQ(at.screen.text("Txt_10B_Ophhfr"), "");
  EXPECT_EQ(at.screen.text("Txt_10B_Ophhto"), "");
}

TEST_F(TelevisionAssignmentEvents, article_5_writes_the_whole_day) {
  at.type("Txt_10B_Ophhfr", "");
  at.type("Txt_10B_Ophhto", "");
  at.set("Opt_Art5");
  EXPECT_EQ(at.screen.text("Txt_10B_Ophhfr"), "0000");
  EXPECT_EQ(at.screen.text("Txt_10B_Ophhto"), "2400");
}

TEST_F(TelevisionAssignmentEvents, a_planning_configuration_hides_the_system) {
  at.set("Opt_Art4");
  at.work.state.screenIsBlank = true;
  at.choose("Combo_LMZ04_RefPlan", "RPC1");
  EXPECT_FALSE(isShown("Combo_LMZ04_Sys_Var"));
  EXPECT_FALSE(isShown("Combo_LMZ04_RxMode"));
  expectBlank(false);
}

TEST_F(TelevisionAssignmentEvents, a_system_variant_or_a_reception_mode_hides_the_planning_configuration) {
  at.set("Opt_Art4");
  for (const auto& [combo, item] : {std::pair(ControlName("Combo_LMZ04_Sys_Var"), "C3"),
                                    std::pair(ControlName("Combo_LMZ04_RxMode"), "FX")}) {
    SCOPED_TRACE(combo);
    at.work.state.screenIsBlank = true;
    at.choose(combo, item);
    EXPECT_FALSE(isShown("Combo_LMZ04_RefPlan"));
    expectBlank(false);
    at.choose(combo, "");
    EXPECT_TRUE(isShown("Combo_LMZ04_RefPlan"));
  }
}

TEST_F(TelevisionAssignmentEvents, an_empty_planning_or_system_makes_no_blank_screen) {
  for (const ControlName combo :
       ControlNames{"Combo_LMZ04_RefPlan", "Combo_LMZ04_Sys_Var", "Combo_LMZ04_RxMode"}) {
    at.work.state.screenIsBlank = true;
    at.click(combo);
    expectBlank(false);
  }
}

TEST_F(TelevisionAssignmentEvents, either_intent_is_followed_by_the_planning_rule) {
  at.set("Opt_Art4");
  at.choose("Combo_LMZ04_RefPlan", "RPC1");
  for (const ControlName intent : ControlNames{"OptInt_Mod", "OptInt_Add"}) {
    at.screen.setVisible("Combo_LMZ04_Sys_Var", true);
    at.set(intent);
    EXPECT_FALSE(isShown("Combo_LMZ04_Sys_Var")) << intent;
  }
}

}  // namespace
}  // namespace zamo::test
