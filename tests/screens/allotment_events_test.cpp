#include <gtest/gtest.h>

#include "screens/field_checks.h"
#include "screens/form_at_work.h"
#include "screens/notice_walk.h"
#include "screens/screen_mapping.h"
#include "support/valid_notices.h"

namespace zamo {
namespace {

using Texts = std::vector<std::string>;

class Allotment : public testing::TestWithParam<FormCode> {
 protected:
  Allotment() { loadForm(desk.form); }

  bool leave(ControlName control) {
    screen.byUser = true;
    const bool allowed = mayLeaveField(desk.form, control);
    screen.byUser = false;
    return allowed;
  }
  void addContour(std::string_view number) {
    desk.type("Txt_LMZ04_contour_id", number);
    desk.click("Button_Add_Contour");
  }
  void expectBox(const std::string& text) {
    ASSERT_EQ(desk.script.boxes.size(), 1U);
    EXPECT_EQ(desk.script.boxes[0].text, text);
    desk.script.boxes.clear();
  }

  test::FormAtWork desk{GetParam()};
  Screen& screen = desk.screen;
  const Texts& list = screen.items("ListBoxContourID");
};

INSTANTIATE_TEST_SUITE_P(Both, Allotment, testing::Values(kGS2Allot, kGT2Allot));

TEST_P(Allotment, the_sub_areas_open_locked_and_both_ways_are_shown) {
  EXPECT_FALSE(screen.at("FrameSubArea").enabled);
  EXPECT_FALSE(screen.at("Txt_LMZ04_contour_id").enabled);
  EXPECT_FALSE(screen.at("Button_Add_Contour").enabled);
  for (const ControlName name :
       ControlNames{"Txt_LMZ04_nb_sub_areas", "Lbl_LMZ04_nb_sub_areas", "FrameSubArea",
                    "Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area", "Lbl_LMZ04_or"}) {
    EXPECT_TRUE(screen.isVisible(name)) << name;
  }
}

TEST_P(Allotment, a_number_of_sub_areas_hides_the_geographic_area_and_unlocks) {
  desk.work.state.screenIsBlank = true;
  desk.type("Txt_LMZ04_nb_sub_areas", "2");
  for (const ControlName name : ControlNames{"Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area", "Lbl_LMZ04_or"})
    EXPECT_FALSE(screen.isVisible(name)) << name;
  EXPECT_TRUE(screen.at("FrameSubArea").enabled);
  EXPECT_TRUE(screen.at("Txt_LMZ04_contour_id").enabled);
  EXPECT_FALSE(desk.work.state.screenIsBlank);
}

TEST_P(Allotment, emptying_it_shows_the_area_again_and_locks) {
  desk.type("Txt_LMZ04_nb_sub_areas", "2");
  addContour("5");
  desk.type("Txt_LMZ04_nb_sub_areas", "");
  EXPECT_TRUE(leave("Txt_LMZ04_nb_sub_areas"));
  for (const ControlName name : ControlNames{"Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area", "Lbl_LMZ04_or"})
    EXPECT_TRUE(screen.isVisible(name)) << name;
  EXPECT_FALSE(screen.at("FrameSubArea").enabled);
  EXPECT_TRUE(list.empty());
  EXPECT_TRUE(desk.focus.empty());
  EXPECT_TRUE(desk.script.boxes.empty());
}

TEST_P(Allotment, a_wrong_number_changes_nothing_and_is_told_on_leaving) {
  for (const char* wrong : {"0", "10", "1.5", "x"}) {
    desk.type("Txt_LMZ04_nb_sub_areas", wrong);
    EXPECT_TRUE(screen.isVisible("Combo_LMZ04_geo_area")) << wrong;
    EXPECT_TRUE(desk.script.boxes.empty());
    EXPECT_FALSE(leave("Txt_LMZ04_nb_sub_areas"));
    expectBox("Value must be between [1-9]");
  }
}

TEST_P(Allotment, leaving_it_leads_to_an_empty_contour_id) {
  desk.type("Txt_LMZ04_nb_sub_areas", "2");
  desk.type("Txt_LMZ04_contour_id", "77");
  EXPECT_TRUE(leave("Txt_LMZ04_nb_sub_areas"));
  EXPECT_EQ(desk.focus, Texts{"Txt_LMZ04_contour_id"});
  EXPECT_EQ(screen.text("Txt_LMZ04_contour_id"), "");
}

TEST_P(Allotment, a_geographic_area_hides_the_sub_areas) {
  desk.work.state.screenIsBlank = true;
  desk.choose("Combo_LMZ04_geo_area", "F");
  for (const ControlName name :
       ControlNames{"Txt_LMZ04_nb_sub_areas", "Lbl_LMZ04_nb_sub_areas", "FrameSubArea", "Lbl_LMZ04_or"}) {
    EXPECT_FALSE(screen.isVisible(name)) << name;
  }
  EXPECT_FALSE(desk.work.state.screenIsBlank);
  desk.work.state.screenIsBlank = true;
  desk.choose("Combo_LMZ04_geo_area", "");
  EXPECT_TRUE(desk.work.state.screenIsBlank);
  for (const ControlName name :
       ControlNames{"Txt_LMZ04_nb_sub_areas", "Lbl_LMZ04_nb_sub_areas", "FrameSubArea", "Lbl_LMZ04_or"}) {
    EXPECT_TRUE(screen.isVisible(name)) << name;
  }
}

TEST_P(Allotment, contours_are_listed_up_to_the_number_of_sub_areas) {
  desk.type("Txt_LMZ04_nb_sub_areas", "2");
  addContour("007");
  EXPECT_EQ(screen.text("Txt_LMZ04_contour_id"), "");
  addContour("8");
  EXPECT_EQ(list, (Texts{"7", "8"}));
  EXPECT_TRUE(desk.script.boxes.empty());
  desk.type("Txt_LMZ04_contour_id", "9");
  desk.work.state.screenIsBlank = true;
  desk.click("Button_Add_Contour");
  expectBox("The number of sub-areas have been added");
  EXPECT_EQ(list, (Texts{"7", "8"}));
  EXPECT_EQ(screen.text("Txt_LMZ04_contour_id"), "");
  EXPECT_FALSE(screen.at("Button_Add_Contour").enabled);
  EXPECT_FALSE(desk.work.state.screenIsBlank);
}

TEST_P(Allotment, the_same_number_stands_once) {
  desk.type("Txt_LMZ04_nb_sub_areas", "3");
  addContour("7");
  desk.type("Txt_LMZ04_contour_id", "0007");
  desk.work.state.screenIsBlank = true;
  desk.click("Button_Add_Contour");
  EXPECT_FALSE(desk.work.state.screenIsBlank);
  EXPECT_EQ(list, Texts{"7"});
  EXPECT_TRUE(desk.script.boxes.empty());
}

TEST_P(Allotment, without_a_number_nothing_is_added) {
  desk.type("Txt_LMZ04_nb_sub_areas", "3");
  desk.click("Button_Add_Contour");
  expectBox("First type in a Contour ID");
  EXPECT_TRUE(list.empty());
}

TEST_P(Allotment, a_whole_number_enables_its_button) {
  desk.type("Txt_LMZ04_nb_sub_areas", "3");
  screen.setEnabled("Button_Add_Contour", false);
  desk.type("Txt_LMZ04_contour_id", "1.5");
  EXPECT_FALSE(screen.at("Button_Add_Contour").enabled);
  EXPECT_FALSE(leave("Txt_LMZ04_contour_id"));
  expectBox("Value must be an integer");
  desk.work.state.screenIsBlank = true;
  desk.type("Txt_LMZ04_contour_id", "15");
  EXPECT_TRUE(screen.at("Button_Add_Contour").enabled);
  EXPECT_FALSE(desk.work.state.screenIsBlank);
  screen.setEnabled("Button_Add_Contour", false);
  EXPECT_TRUE(leave("Txt_LMZ04_contour_id"));
  EXPECT_TRUE(screen.at("Button_Add_Contour").enabled);
}

TEST_P(Allotment, the_contour_that_was_clicked_is_removed) {
  desk.type("Txt_LMZ04_nb_sub_areas", "3");
  for (const char* id : {"1", "2", "3"}) addContour(id);
  screen.setEnabled("Button_Clear_Contour", false);
  desk.choose("ListBoxContourID", "2");
  EXPECT_TRUE(screen.at("Button_Clear_Contour").enabled);
  screen.choose("ListBoxContourID", -1);
  desk.click("Button_Clear_Contour");
  EXPECT_EQ(list, (Texts{"1", "3"}));
  EXPECT_FALSE(screen.at("Button_Clear_Contour").enabled);
  // Another number of sub-areas enables the button, but nothing is remembered any more.
  desk.type("Txt_LMZ04_nb_sub_areas", "4");
  EXPECT_TRUE(screen.at("Button_Clear_Contour").enabled);
  desk.click("Button_Clear_Contour");
  EXPECT_EQ(list, (Texts{"1", "3"}));
}

TEST_P(Allotment, intent_and_plan_entry_run_their_rules) {
  desk.type("Txt_AdmRefID", "F-1");
  desk.set("OptInt_Mod");
  EXPECT_TRUE(screen.isVisible("FrameTrg"));
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "F-1");
  desk.set("OptInt_Add");
  EXPECT_FALSE(screen.isVisible("FrameTrg"));
  EXPECT_EQ(screen.text("Txt_TrgAdmRefID"), "");
  desk.type("Txt_LMZ04_SfnID", "S1");
  desk.choose("Combo_KV19_Plan", "5");
  EXPECT_FALSE(screen.isVisible("Txt_LMZ04_SfnID"));
  EXPECT_EQ(screen.text("Txt_LMZ04_SfnID"), "");
}

TEST_P(Allotment, choosing_something_ends_a_blank_screen) {
  for (const ControlName combo : ControlNames{"Combo_9D_Polariz", "Combo_LMZ04_RefPlan"}) {
    desk.work.state.screenIsBlank = true;
    desk.choose(combo, screen.items(combo).at(1));
    EXPECT_FALSE(desk.work.state.screenIsBlank) << combo;
    desk.work.state.screenIsBlank = true;
    desk.choose(combo, "");
    EXPECT_TRUE(desk.work.state.screenIsBlank) << combo;
  }
}

TEST_P(Allotment, a_stored_allotment_shows_its_sub_areas_unlocked) {
  NtcRec ntc = GetParam() == kGT2Allot ? makeGt2() : makeGs2();
  ntc.digital.allot.t_geo_area.clear();
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"11", "12"};
  fillForm(ntc, screen);
  EXPECT_EQ(list, (Texts{"11", "12"}));
  EXPECT_TRUE(screen.at("FrameSubArea").enabled);
  EXPECT_FALSE(screen.isVisible("Combo_LMZ04_geo_area"));
}

constexpr ControlName kWholeCountry[] = {"Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area"};
constexpr ControlName kSubAreas[] = {"Lbl_LMZ04_nb_sub_areas", "Txt_LMZ04_nb_sub_areas", "FrameSubArea"};

class AllotmentOfBothKinds : public Allotment {
 protected:
  AllotmentOfBothKinds() {
    NtcRec ntc = GetParam() == kGT2Allot ? makeGt2() : makeGs2();
    ntc.digital.allot.t_geo_area = "F";
    ntc.digital.allot.t_nb_sub_areas = "1";
    ntc.digital.allot.t_contour_id = {"11"};
    fillForm(ntc, screen);
  }

  void expectSeen(bool wholeCountry, bool subAreas, bool orBetween) {
    for (const ControlName name : kWholeCountry) EXPECT_EQ(screen.isVisible(name), wholeCountry) << name;
    for (const ControlName name : kSubAreas) EXPECT_EQ(screen.isVisible(name), subAreas) << name;
    EXPECT_EQ(screen.isVisible("Lbl_LMZ04_or"), orBetween);
  }
};

INSTANTIATE_TEST_SUITE_P(Both, AllotmentOfBothKinds, testing::Values(kGS2Allot, kGT2Allot));

TEST_P(AllotmentOfBothKinds, shows_both_as_they_are_stored) {
  expectSeen(true, true, false);
  EXPECT_EQ(screen.text("Combo_LMZ04_geo_area"), "F");
  EXPECT_EQ(screen.text("Txt_LMZ04_nb_sub_areas"), "1");
  EXPECT_EQ(list, Texts{"11"});
}

TEST_P(AllotmentOfBothKinds, keeps_its_sub_areas_in_sight_when_their_number_is_left) {
  EXPECT_TRUE(leave("Txt_LMZ04_nb_sub_areas"));
  expectSeen(false, true, false);
  EXPECT_EQ(list, Texts{"11"});
  desk.type("Txt_LMZ04_nb_sub_areas", "2");
  expectSeen(false, true, false);
  desk.type("Txt_LMZ04_nb_sub_areas", "");
  EXPECT_TRUE(leave("Txt_LMZ04_nb_sub_areas"));
  expectSeen(true, true, true);
  EXPECT_EQ(screen.text("Combo_LMZ04_geo_area"), "F");
}

TEST_P(AllotmentOfBothKinds, keeps_its_geographic_area_in_sight_when_that_is_left) {
  EXPECT_TRUE(leave("Combo_LMZ04_geo_area"));
  expectSeen(true, false, false);
  desk.choose("Combo_LMZ04_geo_area", "SUI");
  expectSeen(true, false, false);
  desk.choose("Combo_LMZ04_geo_area", "");
  EXPECT_TRUE(leave("Combo_LMZ04_geo_area"));
  expectSeen(true, true, true);
  EXPECT_EQ(list, Texts{"11"});
}

}  // namespace
}  // namespace zamo
