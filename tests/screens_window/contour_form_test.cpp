// The contour form in its window.
#include <gmock/gmock.h>

#include "database/raw_database.h"
#include "screens/contour_chart.h"
#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<ControlName> kPoint = {"Txt_LMZ04_Deg_Long", "Txt_LMZ04_Min_Long", "Txt_LMZ04_Sec_Long",
                                         "Txt_LMZ04_EW",       "Txt_LMZ04_Deg_Lat",  "Txt_LMZ04_Min_Lat",
                                         "Txt_LMZ04_Sec_Lat",  "Txt_LMZ04_NS"};
constexpr const char* kList = "ListBox_LMZ04_Coordinates";
constexpr const char* kCount = "Txt_LMZ04_nb_test_pts";

// The triangle that is stored.
const Texts kStored = {"0020000E 470000N", "0030000E 470000N", "0023000E 480000N"};
const std::string kFull =
    ": The number of test points have already been entered. \r\nPlease increase the number of test points to "
    "proceed";

class ContourWindow : public RealForm {
 protected:
  void onTriangle(const std::function<void(Operator&)>& step) { openNew("GA1", step); }

  static void typePoint(Operator& hand, const Texts& values) {
    for (std::size_t i = 0; i < kPoint.size(); ++i) hand.type(kPoint[i], values[i]);
  }
  static Texts pointBoxes(const Operator& hand) {
    Texts all;
    for (const ControlName name : kPoint) all.push_back(hand.text(name));
    return all;
  }
  static void tabTo(Operator& hand, ControlName name) {
    for (int i = 0; i < 20 && hand.focused() != name; ++i) hand.tab();
    EXPECT_EQ(hand.focused(), name);
  }
  static void expectUsable(const Operator& hand, ControlNames buttons, bool usable) {
    for (const ControlName name : buttons) EXPECT_EQ(hand.canUse(name), usable) << name;
  }
  void outOfCountry() {
    map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("D  "); };
  }
};

const Texts kBlank(8);
const Texts kFourth = {"2", "15", "30", "w", "46", "5", "0", "n"};
constexpr const char* kFourthItem = "0021530W 460500N";

TEST_F(ContourWindow, a_stored_contour_shows_its_points_and_none_remaining) {
  onTriangle([](Operator& hand) {
    EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), "1");
    EXPECT_EQ(hand.text(kCount), "3");
    EXPECT_EQ(hand.items(kList), kStored);
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
    EXPECT_EQ(pointBoxes(hand), kBlank);
    expectUsable(hand, {"Button_View", "Button_ClearAll_Coordinates"}, true);
    expectUsable(hand,
                 {"Button_Add_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates",
                  "Button_Del_Coordinates"},
                 false);
  });
  expectTold({});
}

TEST_F(ContourWindow, a_fourth_point_of_three_is_refused_and_the_boxes_are_emptied) {
  onTriangle([this](Operator& hand) {
    typePoint(hand, kFourth);
    hand.click("Button_Add_Coordinates");
    expectTold({kFull});
    EXPECT_EQ(pointBoxes(hand), kBlank);
    EXPECT_EQ(hand.items(kList), kStored);
    hand.enter(kCount, "4");
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "1");
    typePoint(hand, kFourth);
    EXPECT_EQ(hand.text("Txt_LMZ04_EW"), "W");
    hand.click("Button_Add_Coordinates");
    EXPECT_THAT(hand.items(kList), ElementsAre(kStored[0], kStored[1], kStored[2], kFourthItem));
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
    EXPECT_EQ(pointBoxes(hand), kBlank);
    expectTold({});
  });
}

TEST_F(ContourWindow, points_are_added_one_after_the_other_without_a_way_back) {
  onTriangle([this](Operator& hand) {
    hand.enter(kCount, "6");
    const auto typeOn = [&hand](const Texts& point) {
      for (const std::string& value : point) {
        hand.typeHere(value);
        hand.tab();
      }
    };
    typeOn(kFourth);
    hand.click("Button_Add_Coordinates");
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    typeOn({"4", "0", "0", "E", "46", "0", "0", "N"});
    tabTo(hand, "Button_Add_Coordinates");
    hand.press(Qt::Key_Space);
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    typeOn({"5", "0", "0", "E", "46", "0", "0", "N"});
    tabTo(hand, "Button_Add_Coordinates");
    hand.press(Qt::Key_Return);
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    EXPECT_EQ(hand.items(kList).size(), 6U);
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
    expectTold({});
  });
}

TEST_F(ContourWindow, a_modified_point_that_fails_leaves_the_list_one_short) {
  onTriangle([this](Operator& hand) {
    outOfCountry();
    hand.clickItem(kList, 1);
    EXPECT_EQ(pointBoxes(hand), (Texts{"003", "00", "00", "E", "47", "00", "00", "N"}));
    hand.click("Button_Upd_Coordinates");
    expectTold(
        {": Coordinates out of boundary\r\nt_long : 0030000E t_lat : 470000N are not in F according to the "
         "MN's GZMP"});
    EXPECT_THAT(hand.items(kList), ElementsAre(kStored[0], kStored[2]));
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "1");
    EXPECT_EQ(hand.text("Txt_LMZ04_Deg_Long"), "003");
  });
}

TEST_F(ContourWindow, a_modified_point_takes_a_place_at_the_one_that_was_clicked) {
  onTriangle([this](Operator& hand) {
    hand.clickItem(kList, 1);
    hand.enter("Txt_LMZ04_Min_Long", "7");
    hand.click("Button_Upd_Coordinates");
    EXPECT_THAT(hand.items(kList), ElementsAre(kStored[0], "0030700E 470000N", kStored[2]));
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
    expectTold({});
  });
}

TEST_F(ContourWindow, a_point_is_inserted_above_the_one_that_was_clicked_last) {
  onTriangle([this](Operator& hand) {
    hand.enter(kCount, "5");
    hand.clickItem(kList, 2);
    typePoint(hand, kFourth);
    hand.click("Button_Ins_Coordinates");
    EXPECT_THAT(hand.items(kList), ElementsAre(kStored[0], kStored[1], kFourthItem, kStored[2]));
    EXPECT_EQ(hand.control<PickList>(kList).chosenRow(), -1);
    typePoint(hand, {"4", "0", "0", "E", "46", "0", "0", "N"});
    hand.click("Button_Ins_Coordinates");
    EXPECT_THAT(hand.items(kList),
                ElementsAre(kStored[0], kStored[1], "0040000E 460000N", kFourthItem, kStored[2]));
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
    expectTold({});
  });
}

TEST_F(ContourWindow, a_number_of_five_digits_is_refused_on_leaving) {
  onTriangle([this](Operator& hand) {
    hand.enter("Txt_LMZ04_contour_id", "12345");
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");
    expectTold({"Prevalidation Error - Contour Id: Value must be 4 digits maximum"});
    hand.enter("Txt_LMZ04_contour_id", "1234");
    EXPECT_NE(hand.focused(), "Txt_LMZ04_contour_id");
    expectTold({});
  });
}

TEST_F(ContourWindow, leaving_the_count_by_tab_goes_to_the_longitude_and_locks_the_country) {
  onTriangle([this](Operator& hand) {
    EXPECT_TRUE(hand.canUse("Combo_4B_Ctry"));
    hand.enter(kCount, "5");
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    EXPECT_FALSE(hand.canUse("Combo_4B_Ctry"));
    EXPECT_EQ(hand.text("Combo_4B_Ctry"), "F");
    expectTold({});
  });
}

TEST_F(ContourWindow, leaving_the_count_by_a_click_goes_to_the_longitude_too) {
  onTriangle([this](Operator& hand) {
    for (const ControlName other :
         ControlNames{"Txt_LMZ04_contour_id", "Txt_LMZ04_Sec_Lat", "Txt_notified_Rmks"}) {
      hand.go(kCount);
      hand.click(other);
      EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long") << other;
    }
    EXPECT_FALSE(hand.canUse("Combo_4B_Ctry"));
    hand.click("Txt_LMZ04_contour_id");
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_contour_id");
    expectTold({});
  });
}

TEST_F(ContourWindow, a_click_that_leaves_the_count_does_what_it_says_once_before_the_focus_goes_on) {
  onTriangle([this](Operator& hand) {
    hand.go(kCount);
    dialogSteps.push_back([](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "ErrMsgFrm"); });
    hand.clickSlowly("Button_Validate");
    EXPECT_TRUE(dialogSteps.empty());
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    hand.go(kCount);
    hand.clickSlowly("OptInt_Suppress");
    EXPECT_TRUE(hand.isSet("OptInt_Suppress"));
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    hand.go(kCount);
    hand.clickSlowly("Button_ClearAll_Coordinates");
    EXPECT_THAT(hand.items(kList), IsEmpty());
    EXPECT_EQ(hand.focused(), "Txt_LMZ04_Deg_Long");
    expectTold({});
  });
}

TEST_F(ContourWindow, a_step_of_the_walk_from_the_count_is_one_step) {
  run.qryIsNotice = false;
  for (const char* id : {"1", "2", "3"}) {
    NtcRec ntc = makeKind("GA1");
    ntc.digital.contour.t_contour_id = id;
    add(ntc);
  }
  open(0, [](Operator& hand) {
    for (const char* next : {"2", "3"}) {
      hand.go(kCount);
      hand.clickSlowly("Button_Next_Ntc");
      EXPECT_EQ(hand.text("Txt_LMZ04_contour_id"), next);
    }
  });
  expectTold({});
}

TEST_F(ContourWindow, the_count_is_followed_while_it_is_typed) {
  onTriangle([](Operator& hand) {
    hand.go(kCount);
    hand.typeHere("1");
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "-2");
    hand.press(Qt::Key_2);
    EXPECT_EQ(hand.text(kCount), "12");
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "9");
    EXPECT_EQ(hand.items(kList), kStored);
  });
}

TEST_F(ContourWindow, without_a_count_the_points_are_locked_and_grey) {
  onTriangle([this](Operator& hand) {
    hand.enter(kCount, "");
    for (const ControlName name : kPoint) {
      EXPECT_FALSE(hand.canUse(name)) << name;
      EXPECT_TRUE(hand.isGrey(name)) << name;
    }
    EXPECT_TRUE(hand.isGrey(kList));
    EXPECT_THAT(hand.items(kList), IsEmpty());
    expectUsable(hand, {"Button_Del_Coordinates", "Button_Add_Coordinates"}, false);
    hand.enter(kCount, "3");
    for (const ControlName name : kPoint) {
      EXPECT_TRUE(hand.canUse(name)) << name;
      EXPECT_FALSE(hand.isGrey(name)) << name;
    }
    EXPECT_FALSE(hand.isGrey(kList));
    expectTold({});
  });
}

TEST_F(ContourWindow, a_point_can_be_added_when_all_its_boxes_are_filled) {
  onTriangle([](Operator& hand) {
    for (std::size_t i = 0; i < kPoint.size(); ++i) {
      EXPECT_FALSE(hand.canUse("Button_Add_Coordinates")) << kPoint[i];
      hand.type(kPoint[i], kFourth[i]);
    }
    expectUsable(hand, {"Button_Add_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates"}, true);
    hand.click("Button_Clear_Coordinates");
    EXPECT_EQ(pointBoxes(hand), kBlank);
    expectUsable(hand,
                 {"Button_Add_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates",
                  "Button_Del_Coordinates"},
                 false);
  });
}

TEST_F(ContourWindow, points_are_deleted_until_none_is_left) {
  onTriangle([this](Operator& hand) {
    for (int left = 2; left >= 0; --left) {
      EXPECT_TRUE(hand.canUse("Button_View"));
      hand.clickItem(kList, 0);
      EXPECT_TRUE(hand.canUse("Button_Del_Coordinates"));
      hand.click("Button_Del_Coordinates");
      EXPECT_EQ(hand.items(kList).size(), static_cast<std::size_t>(left));
      EXPECT_EQ(hand.text("Txt_CountDownTP"), std::to_string(3 - left));
      EXPECT_EQ(pointBoxes(hand), kBlank);
      EXPECT_FALSE(hand.canUse("Button_Del_Coordinates"));
    }
    EXPECT_FALSE(hand.canUse("Button_View"));
    expectTold({});
  });
}

TEST_F(ContourWindow, all_points_are_cleared_at_once) {
  onTriangle([this](Operator& hand) {
    hand.click("Button_ClearAll_Coordinates");
    EXPECT_THAT(hand.items(kList), IsEmpty());
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "3");
    expectUsable(hand, {"Button_ClearAll_Coordinates", "Button_View"}, false);
    typePoint(hand, kFourth);
    hand.click("Button_Add_Coordinates");
    expectUsable(hand, {"Button_ClearAll_Coordinates", "Button_View"}, true);
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "2");
    expectTold({});
  });
}

TEST_F(ContourWindow, points_that_cannot_enter_are_told) {
  onTriangle([this](Operator& hand) {
    hand.pick("Combo_4B_Ctry", "");
    hand.clickItem(kList, 0);
    hand.click("Button_Ins_Coordinates");
    expectTold({": Please select country (4B)"});
    hand.pick("Combo_4B_Ctry", "F");
    hand.enter(kCount, "4");
    hand.clickItem(kList, 0);
    hand.click("Button_Ins_Coordinates");
    expectTold({": This test points is already in the list"});
    hand.type("Txt_LMZ04_Sec_Lat", "");
    hand.click("Button_Ins_Coordinates");
    expectTold({": Coordinates are empty, cannot proceed"});
    EXPECT_EQ(hand.items(kList), kStored);
  });
}

struct Refusal {
  ControlName field;
  const char* wrong;
  const char* told;
  const char* right;
};

// clang-format off
constexpr Refusal kRefusals[] = {
    {"Txt_LMZ04_contour_id", "1.5", "Prevalidation Error - Contour Id: Value must be 4 digits maximum", "7"},
    {"Txt_LMZ04_nb_test_pts", "2",  "Prevalidation Error - Nb Test pts: Value must be between [3-99]", "3"},
    {"Txt_LMZ04_nb_test_pts", "100", "Prevalidation Error - Nb Test pts: Value must be between [3-99]", "99"},
    {"Txt_LMZ04_Deg_Lat",  "90",  "Prevalidation Error - Latitude: Value must be between [0,90]",   "89"},
    {"Txt_LMZ04_Min_Lat",  "60",  "Prevalidation Error - Latitude: Value must be between [0,59]",   "59"},
    {"Txt_LMZ04_Sec_Lat",  "60",  "Prevalidation Error - Latitude: Value must be between [0,59]",   "0"},
    {"Txt_LMZ04_NS",       "E",   "Prevalidation Error - Latitude: Value can only be N or S",       "S"},
    {"Txt_LMZ04_Deg_Long", "180", "Prevalidation Error - Longitude: Value must be between [0,180]", "179"},
    {"Txt_LMZ04_Min_Long", "60",  "Prevalidation Error - Longitude: Value must be between [0,59]",  "5"},
    {"Txt_LMZ04_Sec_Long", "1.5", "Prevalidation Error - Longitude: Value must be between [0,59]",  "59"},
    {"Txt_LMZ04_EW",       "N",   "Prevalidation Error - Longitude: Value can only be E or W",      "W"},
};
// clang-format on

TEST_F(ContourWindow, every_wrong_value_is_told_once_and_keeps_the_focus_until_it_is_put_right) {
  onTriangle([this](Operator& hand) {
    for (const Refusal& row : kRefusals) {
      hand.enter(row.field, row.wrong);
      EXPECT_EQ(hand.focused(), row.field) << row.wrong;
      expectTold({row.told});
      hand.click("Button_View");
      EXPECT_EQ(hand.focused(), row.field) << row.wrong;
      expectTold({row.told});
      hand.enter(row.field, row.right);
      EXPECT_NE(hand.focused(), row.field) << row.right;
      expectTold({});
    }
    hand.type("Txt_LMZ04_Deg_Lat", "90");
    hand.click("Button_Reset");
    EXPECT_FALSE(hand.window.isVisible());
  });
  EXPECT_LE(script.boxes.size(), 1U);
}

TEST_F(ContourWindow, a_contour_is_viewed_as_it_stands_on_the_screen) {
  onTriangle([this](Operator& hand) {
    hand.enter(kCount, "4");
    typePoint(hand, kFourth);
    hand.click("Button_Add_Coordinates");
    hand.enter("Txt_LMZ04_contour_id", "77");
    dialogSteps.push_back([](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "ContourDetailFrm");
      EXPECT_TRUE(dialog.isModal());
      const auto textOf = [&](const char* name) { return toText(childOf<QLineEdit>(dialog, name).text()); };
      EXPECT_EQ(textOf("Txt_LMZ04_contour_id"), "77");
      EXPECT_EQ(textOf("Txt_LMZ04_nb_test_pts"), "4");
      EXPECT_EQ(textOf("TxtAdm"), "F");
      EXPECT_EQ(textOf("TxtCtry"), "F");
      auto& list = childOf<QListWidget>(dialog, "ListBox_LMZ04_Coordinates");
      ASSERT_EQ(list.count(), 4);
      EXPECT_EQ(toText(list.item(0)->text()), "0020000E 470000N");
      EXPECT_EQ(toText(list.item(3)->text()), "0021530W 460500N");
      auto& chart = childOf<ContourChart>(dialog, "MSChart_Contour");
      EXPECT_EQ(toText(chart.title()), "Contour ID : 77");
      ASSERT_EQ(chart.points().size(), 4);
      EXPECT_EQ(chart.points().at(2), QPointF(2.5, 48));
      EXPECT_LT(chart.points().at(3).x(), -2.25);
      QTest::mouseClick(&childOf<QPushButton>(dialog, "Button_Close"), Qt::LeftButton);
      EXPECT_FALSE(dialog.isVisible());
    });
    hand.click("Button_View");
    EXPECT_TRUE(hand.window.isVisible());
    EXPECT_EQ(hand.items(kList).size(), 4U);
    expectTold({});
  });
}

TEST_F(ContourWindow, a_contour_with_a_point_more_is_stored) {
  onTriangle([this](Operator& hand) {
    hand.enter(kCount, "4");
    typePoint(hand, kFourth);
    hand.click("Button_Add_Coordinates");
    hand.click("OptInt_Suppress");
    script.answers = {true};
    hand.click("Button_Next");
    EXPECT_THAT(hand.items(kList), ElementsAre(kStored[0], kStored[1], kStored[2], kFourthItem));
    EXPECT_EQ(hand.text("Txt_CountDownTP"), "0");
  });
  expectTold({"Save Notice: The notice was sucessfully updated in the Database"},
             {"Save Notice: Saving changes will update the Database. Do you want to proceed?"});
  const NtcRec after = storedContour(1);
  EXPECT_EQ(after.digital.contour.t_nb_test_pts, "4");
  EXPECT_EQ(after.digital.contour.points.at(3), (PointRec{true, "-0021530", "+460500"}));
}

TEST_F(ContourWindow, a_list_that_is_short_cannot_be_saved) {
  onTriangle([this](Operator& hand) {
    hand.clickItem(kList, 0);
    hand.click("Button_Del_Coordinates");
    for (const ControlName button : ControlNames{"Button_Next", "Button_AddNew"}) {
      hand.click(button);
      EXPECT_EQ(script.boxes.at(0).buttons, BoxButtons::cancelTryContinue);
      expectTold(
          {"Cannot save the notice: To save a notice the following Mandatory fields are necessary : \r\n"
           "The list of Test points is INCOMPLETE\r\n"});
    }
  });
}

TEST_F(ContourWindow, a_new_contour_is_never_one_that_is_there) {
  onTriangle([this](Operator& hand) {
    script.texts = {"1"};
    script.answers = {true};
    hand.click("Button_AddNew");
  });
  expectTold({"Error: Duplicate Contour ID 1\r\nPlease change the Contour ID to save the notice"},
             {"Save Notice: ADD this NEW sub area to the END of Database?"});
  EXPECT_EQ(run.NtcCount, 1);
}

}  // namespace
}  // namespace zamo::test
