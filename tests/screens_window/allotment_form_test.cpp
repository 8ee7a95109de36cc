// The allotment forms in their windows.
#include <gmock/gmock.h>

#include "database/notice_store.h"
#include "screens_window/real_form.h"
#include "support/waiting.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ControlName kWholeCountry[] = {"Combo_LMZ04_geo_area", "Lbl_LMZ04_geo_area"};
constexpr ControlName kSubAreas[] = {"Lbl_LMZ04_nb_sub_areas", "Txt_LMZ04_nb_sub_areas",
                                     "FrameSubArea",           "Txt_LMZ04_contour_id",
                                     "ListBoxContourID",       "Button_Add_Contour"};

class AllotmentForms : public RealForm {
 protected:
  void onBoth(const std::function<void(Operator&)>& step) {
    for (const char* type : {"GS2", "GT2"}) {
      SCOPED_TRACE(type);
      openNew(type, step);
    }
  }
  // An allotment of so many sub-areas and these contours.
  void onBoth(const std::string& count, const Texts& ids, const std::function<void(Operator&)>& step) {
    for (const char* type : {"GS2", "GT2"}) {
      SCOPED_TRACE(type);
      NtcRec ntc = makeKind(type);
      AllotRec& allot = ntc.digital.allot;
      allot.t_geo_area.clear();
      allot.t_nb_sub_areas = count;
      std::copy(ids.begin(), ids.end(), allot.t_contour_id.begin());
      openNew(ntc, step);
    }
  }
  // A list that is to take so many contours.
  void onEmptyList(const std::string& count, const std::function<void(Operator&)>& step) {
    onBoth([&](Operator& hand) {
      hand.pick("Combo_LMZ04_geo_area", "");
      hand.enter("Txt_LMZ04_nb_sub_areas", count);
      step(hand);
    });
  }
  static void addContour(Operator& hand, const std::string& number) {
    hand.type("Txt_LMZ04_contour_id", number);
    hand.click("Button_Add_Contour");
  }
  template <std::size_t Count>
  static void expectSeen(const Operator& hand, const ControlName (&names)[Count], bool seen) {
    for (const ControlName name : names) EXPECT_EQ(hand.sees(name), seen) << name;
  }
};

// --- the area

TEST_F(AllotmentForms, a_geographic_area_hides_the_sub_areas_and_emptying_it_brings_them_back) {
  onBoth([](Operator& hand) {
    EXPECT_EQ(hand.text("Combo_LMZ04_geo_area"), "F");
    expectSeen(hand, kSubAreas, false);
    EXPECT_FALSE(hand.sees("Lbl_LMZ04_or"));
    hand.pick("Combo_LMZ04_geo_area", "");
    expectSeen(hand, kSubAreas, true);
    EXPECT_TRUE(hand.sees("Lbl_LMZ04_or"));
    hand.pick("Combo_LMZ04_geo_area", "SUI");
    expectSeen(hand, kSubAreas, false);
    expectSeen(hand, kWholeCountry, true);
    hand.enter("Combo_LMZ04_geo_area", "");
    expectSeen(hand, kSubAreas, true);
    hand.enter("Combo_LMZ04_geo_area", "d");
    EXPECT_EQ(hand.text("Combo_LMZ04_geo_area"), "D");
    expectSeen(hand, kSubAreas, false);
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_number_of_sub_areas_hides_the_geographic_area_and_emptying_it_brings_it_back) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    expectSeen(hand, kWholeCountry, false);
    expectSeen(hand, kSubAreas, true);
    EXPECT_FALSE(hand.sees("Lbl_LMZ04_or"));
    hand.enter("Txt_LMZ04_nb_sub_areas", "");
    expectSeen(hand, kWholeCountry, true);
    EXPECT_TRUE(hand.sees("Lbl_LMZ04_or"));
    hand.enter("Txt_LMZ04_nb_sub_areas", "3");
    expectSeen(hand, kWholeCountry, false);
  });
  expectTold({});
}

TEST_F(AllotmentForms, of_two_stored_ways_the_one_that_is_left_stays_and_the_other_goes) {
  for (const char* type : {"GS2", "GT2"}) {
    SCOPED_TRACE(type);
    NtcRec ntc = makeKind(type);
    ntc.digital.allot.t_geo_area = "F";
    ntc.digital.allot.t_nb_sub_areas = "1";
    ntc.digital.allot.t_contour_id = {"1"};
    for (const bool leavesNumber : {true, false}) {
      SCOPED_TRACE(leavesNumber);
      openNew(ntc, [&](Operator& hand) {
        expectSeen(hand, kWholeCountry, true);
        expectSeen(hand, kSubAreas, true);
        hand.go(leavesNumber ? ControlName("Txt_LMZ04_nb_sub_areas") : ControlName("Combo_LMZ04_geo_area"));
        hand.tab();
        expectSeen(hand, kWholeCountry, !leavesNumber);
        expectSeen(hand, kSubAreas, leavesNumber);
        EXPECT_EQ(hand.text("Combo_LMZ04_geo_area"), "F");
        EXPECT_EQ(hand.text("Txt_LMZ04_nb_sub_areas"), "1");
      });
    }
  }
  expectTold({});
}

TEST_F(AllotmentForms, without_a_number_the_sub_areas_are_locked_and_grey) {
  onBoth([](Operator& hand) {
    hand.pick("Combo_LMZ04_geo_area", "");
    for (const ControlName name :
         ControlNames{"Txt_LMZ04_contour_id", "FrameSubArea", "Button_Add_Contour", "Button_Clear_Contour"})
      EXPECT_FALSE(hand.canUse(name)) << name;
    for (const ControlName name : ControlNames{"Txt_LMZ04_contour_id", "ListBoxContourID"})
      EXPECT_TRUE(hand.isGrey(name)) << name;
    hand.enter("Txt_LMZ04_nb_sub_areas", "1");
    for (const ControlName name : ControlNames{"Txt_LMZ04_contour_id", "FrameSubArea"})
      EXPECT_TRUE(hand.canUse(name)) << name;
    for (const ControlName name : ControlNames{"Txt_LMZ04_contour_id", "ListBoxContourID"})
      EXPECT_FALSE(hand.isGrey(name)) << name;
    addContour(hand, "7");
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("7"));
    hand.enter("Txt_LMZ04_nb_sub_areas", "");
    EXPECT_THAT(hand.items("ListBoxContourID"), IsEmpty());
    EXPECT_TRUE(hand.isGrey("ListBoxContourID"));
    EXPECT_FALSE(hand.canUse("Txt_LMZ04_contour_id"));
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_number_of_0_or_10_is_refused_and_keeps_the_focus) {
  onBoth("2", {"1", "2"}, [this](Operator& hand) {
    for (const char* wrong : {"0", "10", "1.5", "x"}) {
      hand.enter("Txt_LMZ04_nb_sub_areas", wrong);
      EXPECT_EQ(hand.focused(), "Txt_LMZ04_nb_sub_areas") << wrong;
      expectTold({"Prevalidation Error - Nb.Sub area(s): Value must be between [1-9]"});
    }
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("1", "2"));
    for (const char* right : {"1", "9"}) {
      hand.enter("Txt_LMZ04_nb_sub_areas", right);
      EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id") << right;
    }
    expectTold({});
  });
}

TEST_F(AllotmentForms, leaving_the_number_by_tab_hands_the_focus_to_an_empty_contour_box) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    hand.type("Txt_LMZ04_contour_id", "77");
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.tab();
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");
    EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), "");
  });
  expectTold({});
}

TEST_F(AllotmentForms, shift_tab_leads_back_out_of_the_number) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_NE(hand.focused(), "Txt_LMZ04_contour_id");
    EXPECT_NE(hand.focused(), "Txt_LMZ04_nb_sub_areas");
  });
  expectTold({});
}

TEST_F(AllotmentForms, leaving_the_number_by_a_click_hands_the_focus_to_an_empty_contour_box_too) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    for (const ControlName other : ControlNames{"Txt_KV19_Offset", "Txt_LMZ04_allot_name", "Txt_AdmRefID"}) {
      hand.type("Txt_LMZ04_contour_id", "77");
      hand.go("Txt_LMZ04_nb_sub_areas");
      hand.click(other);
      EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id") << other;
      EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), "");
    }
    hand.click("Txt_AdmRefID");
    EXPECT_EQ(hand.focused(), "Txt_AdmRefID");
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_click_that_leaves_the_number_does_what_it_says_once_before_the_focus_goes_on) {
  onBoth("2", {"1", "2"}, [this](Operator& hand) {
    hand.go("Txt_LMZ04_nb_sub_areas");
    dialogSteps.push_back([](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "ErrMsgFrm"); });
    hand.clickSlowly("Button_Validate");
    EXPECT_TRUE(dialogSteps.empty());
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");

    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.clickSlowly("OptInt_Mod");
    EXPECT_TRUE(hand.isSet("OptInt_Mod"));
    EXPECT_TRUE(hand.sees("FrameTrg"));
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");

    hand.type("Txt_LMZ04_contour_id", "77");
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.clickSlowly("Button_Add_Contour");
    expectTold({": First type in a Contour ID"});
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("1", "2"));
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_page_that_is_clicked_from_the_number_comes_to_the_front_and_stays) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    hand.go("Txt_LMZ04_nb_sub_areas");
    auto& pages = childOf<QTabWidget>(hand.window, "Pages");
    hand.clickSlowly(*pages.tabBar(), pages.tabBar()->tabRect(1).center());
    EXPECT_EQ(pages.currentIndex(), 1);
    EXPECT_EQ(hand.focused(), "ListAdmAvail");
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(pages.currentIndex(), 1);
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_list_that_is_clicked_from_the_number_can_be_chosen_from) {
  onBoth("2", {"1", "2"}, [](Operator& hand) {
    hand.go("Txt_LMZ04_nb_sub_areas");
    auto& polarization = hand.control<QComboBox>("Combo_9D_Polariz");
    hand.clickSlowly("Combo_9D_Polariz");
    ASSERT_TRUE(polarization.view()->isVisible());
    QTest::keyClick(polarization.view(), Qt::Key_End);
    QTest::keyClick(polarization.view(), Qt::Key_Return);
    activate(hand.window);
    EXPECT_EQ(hand.text("Combo_9D_Polariz"), "U");
    EXPECT_TRUE(waitFor([&hand] { return hand.focused() == "Txt_LMZ04_contour_id"; }));
  });
  expectTold({});
}

TEST_F(AllotmentForms, a_step_of_the_walk_from_the_number_is_one_step) {
  std::vector<std::string> keys;
  for (const char* count : {"2", "1", "2"}) {
    NtcRec ntc = makeKind("GT2");
    ntc.t_adm_ref_id = "F-WALK-" + std::to_string(keys.size());
    ntc.digital.allot.t_geo_area.clear();
    ntc.digital.allot.t_nb_sub_areas = count;
    ntc.digital.allot.t_contour_id = {"1", *count == '2' ? "2" : ""};
    keys.push_back(std::to_string(add(ntc)));
  }
  open(0, [&](Operator& hand) {
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.clickSlowly("Button_Next_Ntc");
    EXPECT_EQ(hand.text("Txt_Ntc_Number"), keys[1]);
    EXPECT_EQ(hand.text("Txt_LMZ04_nb_sub_areas"), "1");
    hand.go("Txt_LMZ04_nb_sub_areas");
    hand.clickSlowly("Button_Prev_Ntc");
    EXPECT_EQ(hand.text("Txt_Ntc_Number"), keys[0]);
  });
  expectTold({});
}

// --- the contours

TEST_F(AllotmentForms, a_third_contour_of_two_is_refused) {
  onEmptyList("2", [this](Operator& hand) {
    addContour(hand, "11");
    EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), "");
    addContour(hand, "12");
    expectTold({});
    addContour(hand, "13");
    expectTold({": The number of sub-areas have been added"});
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("11", "12"));
    EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), "");
    EXPECT_FALSE(hand.canUse("Button_Add_Contour"));
    hand.type("Txt_LMZ04_contour_id", "1");
    EXPECT_TRUE(hand.canUse("Button_Add_Contour"));
  });
}

TEST_F(AllotmentForms, the_same_contour_stands_once_in_the_list) {
  onEmptyList("3", [this](Operator& hand) {
    addContour(hand, "12");
    addContour(hand, "12");
    addContour(hand, "0012");
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("12"));
    addContour(hand, "0013");
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("12", "13"));
    expectTold({});
  });
}

TEST_F(AllotmentForms, a_contour_without_a_number_is_asked_for_and_a_wrong_one_refused) {
  onEmptyList("2", [this](Operator& hand) {
    hand.click("Button_Add_Contour");
    expectTold({": First type in a Contour ID"});
    hand.enter("Txt_LMZ04_contour_id", "1.5");
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");
    expectTold({"Prevalidation Error - Contour Id: Value must be an integer"});
    hand.click("Button_Add_Contour");
    expectTold({"Prevalidation Error - Contour Id: Value must be an integer"});
    EXPECT_THAT(hand.items("ListBoxContourID"), IsEmpty());
    hand.enter("Txt_LMZ04_contour_id", "15");
    expectTold({});
  });
}

TEST_F(AllotmentForms, a_contour_that_is_clicked_can_be_taken_out) {
  onBoth("3", {"1", "2", "3"}, [this](Operator& hand) {
    hand.clickItem("ListBoxContourID", "2");
    EXPECT_TRUE(hand.canUse("Button_Clear_Contour"));
    hand.click("Button_Clear_Contour");
    EXPECT_FALSE(hand.canUse("Button_Clear_Contour"));
    EXPECT_THAT(hand.items("ListBoxContourID"), ElementsAre("1", "3"));
    expectTold({});
  });
}

TEST_F(AllotmentForms, two_sub_areas_and_one_contour_are_told_when_the_notice_is_saved) {
  const char* const words[] = {"Sub_area", "sub_area"};
  int form = 0;
  onBoth("2", {"1", "2"}, [&](Operator& hand) {
    hand.clickItem("ListBoxContourID", "2");
    hand.click("Button_Clear_Contour");
    hand.click("Button_Next");
    expectTold({}, {"Save Invalid Notice: The following fields are either missing or invalid\r\nThe nb of " +
                    std::string(words[form++]) +
                    " and the nb of Contours entered is INCONSISTENT\r\n\r\nSave invalid Notice"});
  });
  EXPECT_EQ(form, 2);
}

// --- the rest of the form

TEST_F(AllotmentForms, a_modification_names_the_notice_itself_as_its_target) {
  onBoth([](Operator& hand) {
    EXPECT_FALSE(hand.sees("FrameTrg"));
    hand.click("OptInt_Mod");
    EXPECT_TRUE(hand.sees("FrameTrg"));
    EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-0002");
    EXPECT_TRUE(hand.sees("Frame_Art4_Only"));
    hand.click("OptInt_Add");
    EXPECT_FALSE(hand.sees("FrameTrg"));
    EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "");
  });
}

TEST_F(AllotmentForms, plan_entry_5_has_no_network) {
  onBoth([](Operator& hand) {
    EXPECT_EQ(hand.text("Txt_LMZ04_SfnID"), "F-SFN-0001");
    hand.pick("Combo_KV19_Plan", "5");
    for (const ControlName name : ControlNames{"Txt_LMZ04_SfnID", "Lbl_LMZ04_SfnID"})
      EXPECT_FALSE(hand.sees(name)) << name;
    for (const char* other : {"4", "3", ""}) {
      hand.pick("Combo_KV19_Plan", other);
      for (const ControlName name : ControlNames{"Txt_LMZ04_SfnID", "Lbl_LMZ04_SfnID"})
        EXPECT_TRUE(hand.sees(name)) << name;
    }
    EXPECT_EQ(hand.text("Txt_LMZ04_SfnID"), "");
  });
}

struct Refusal {
  const char* type;
  ControlName field;
  const char* wrong;
  const char* told;
  const char* right;
};

// clang-format off
constexpr Refusal kRefusals[] = {
    {"GS2", "Txt_KV19_Offset", "-501", "Prevalidation Error - Offset:  t_offset : Value should be between [-500.0, 500.0] (1E)", "500"},
    {"GT2", "Txt_KV19_Offset", "-501", "Prevalidation Error - Offset:  t_offset : Value should be between [-500.0, 500.0] (1E)", "500"},
    {"GS2", "Txt_Exp_DD", "32",   "Prevalidation Error - Date (day): Value should be between [1,31]", "31"},
    {"GT2", "Txt_Exp_DD", "32",   "Prevalidation Error - Date (day): Value should be between [1,31]", "31"},
    {"GS2", "Txt_Exp_MM", "0",    "Prevalidation Error - Date (month): Value should be between [1,12]", "1"},
    {"GT2", "Txt_Exp_MM", "0",    "Prevalidation Error - Date (month): Value should be between [1,12]", "1"},
    {"GS2", "Txt_Exp_YY", "1999", "Prevalidation Error - Date (year): The year must be entered as YYYY and must be after 2000", "2000"},
    {"GT2", "Txt_Exp_YY", "1999", "Prevalidation Error - Date (year): Invalid year in date of notice", "2000"},
    {"GT2", "Txt_KV19_freqAssgn", "x", "Prevalidation Error - Assign frequency: Value must be numerical", "482"},
};
// clang-format on

TEST_F(AllotmentForms, every_wrong_value_is_told_once_and_keeps_the_focus_until_it_is_put_right) {
  for (const Refusal& row : kRefusals) {
    SCOPED_TRACE(row.field);
    openNew(row.type, [&](Operator& hand) {
      hand.enter(row.field, row.wrong);
      EXPECT_EQ(hand.focused(), row.field);
      expectTold({row.told});
      hand.click("Button_Validate");
      expectTold({row.told});
      hand.enter(row.field, row.right);
      EXPECT_NE(hand.focused(), row.field);
      expectTold({});
      hand.type(row.field, row.wrong);
      hand.click("Button_Reset");
      EXPECT_FALSE(hand.window.isVisible());
    });
    EXPECT_LE(script.boxes.size(), 1U);
    script.boxes.clear();
  }
}

TEST_F(AllotmentForms, a_day_that_its_month_has_not_keeps_the_focus) {
  onBoth([this](Operator& hand) {
    hand.enter("Txt_Exp_DD", "31");
    hand.enter("Txt_Exp_MM", "2");
    hand.enter("Txt_Exp_YY", "2030");
    EXPECT_EQ(hand.focused(), "Txt_Exp_YY");
    expectTold({"Prevalidation Error - InValid Date: Invalid date"});
  });
  script.boxes.clear();
}

TEST_F(AllotmentForms, there_is_no_TB2_of_an_allotment) {
  onBoth([](Operator& hand) {
    EXPECT_EQ(hand.window.findChild<QWidget*>("Opt_TB2"), nullptr);
    for (const ControlName name : ControlNames{"Opt_TB3", "Opt_TB5", "btn_Create"})
      EXPECT_TRUE(hand.canUse(name)) << name;
  });
}

TEST_F(AllotmentForms, administrations_are_coordinated_as_on_the_assignments) {
  onBoth([](Operator& hand) {
    hand.doubleClickItem("ListAdmAvail", "BEL");
    hand.clickItem("ListAdmAvail", "SUI");
    hand.click("Button_Coord_Add");
    hand.doubleClickItem("ListAdmAvail", "BEL");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("BEL", "SUI"));
    hand.clickItem("ListAdmSel", "BEL");
    hand.click("Button_Coord_Del");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("SUI"));
    EXPECT_EQ(hand.focused(), "ListAdmSel");
  });
  expectTold({});
}

}  // namespace
}  // namespace zamo::test
