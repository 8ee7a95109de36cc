#include <gtest/gtest.h>

#include "screens/field_checks.h"
#include "screens/form_at_work.h"
#include "screens/notice_desk.h"
#include "screens/notice_walk.h"
#include "screens/screen_mapping.h"

namespace zamo {
namespace {

using Texts = std::vector<std::string>;

constexpr ControlName kBoxes[] = {"Txt_LMZ04_Deg_Long", "Txt_LMZ04_Min_Long", "Txt_LMZ04_Sec_Long",
                                  "Txt_LMZ04_EW",       "Txt_LMZ04_Deg_Lat",  "Txt_LMZ04_Min_Lat",
                                  "Txt_LMZ04_Sec_Lat",  "Txt_LMZ04_NS"};

class Contour : public testing::Test {
 protected:
  Contour() {
    desk.map = test::makeOneCountryMap("F");
    loadForm(desk.form);
    screen.chooseText("Combo_4B_Ctry", "F");
    desk.work.dialogs.ContourDetailFrm = [this](const NtcRec& ntc) { viewed.push_back(ntc); };
  }

  void typePoint(const Texts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) desk.type(kBoxes[i], texts[i]);
  }
  void addPoint(const std::string& deg) {
    typePoint({deg, "24", "10", "E", "47", "5", "30", "N"});
    desk.click("Button_Add_Coordinates");
  }
  void addPoints(int count) {
    desk.type("Txt_LMZ04_nb_test_pts", std::to_string(count));
    for (int i = 1; i <= count; ++i) addPoint(std::to_string(i));
  }
  bool leave(ControlName control) {
    screen.byUser = true;
    const bool allowed = mayLeaveField(desk.form, control);
    screen.byUser = false;
    return allowed;
  }
  void expectBox(const std::string& text) {
    ASSERT_EQ(desk.script.boxes.size(), 1U);
    EXPECT_EQ(desk.script.boxes[0].text, text);
    desk.script.boxes.clear();
  }
  bool isEnabled(ControlName control) { return screen.at(control).enabled; }
  bool boxesAreEmpty() {
    for (const ControlName box : kBoxes) {
      if (!screen.isEmpty(box)) return false;
    }
    return true;
  }

  test::FormAtWork desk{kGA1SubAllot};
  Screen& screen = desk.screen;
  const Texts& list = screen.items("ListBox_LMZ04_Coordinates");
  std::vector<NtcRec> viewed;
};

// A field of its own takes each of these.
TEST_F(Contour, a_point_whose_parts_have_not_their_width_is_refused_and_nothing_is_lost) {
  struct Wrong {
    std::size_t box;
    const char* value;
    const char* told;
  };
  const Wrong wrongs[] = {
      {1, "007", "Coordinates out of boundary\r\nt_long : 00200710E t_lat : 470530N"},
      {1, "-5", "Coordinates out of boundary\r\nt_long : 002-510E t_lat : 470530N"},
      {0, "0002", "Coordinates out of boundary\r\nt_long : 00022410E t_lat : 470530N"},
      {0, "+02", "Coordinates out of boundary\r\nt_long : +022410E t_lat : 470530N"},
      {4, "45.5", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : 45.50530N"},
      {4, "5.", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : 5.0530N"},
      {4, "-5", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : -50530N"},
      {4, "+5", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : +50530N"},
      {5, "005", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : 4700530N"},
      {6, " 3", "Coordinates out of boundary\r\nt_long : 0022410E t_lat : 4705 3N"},
  };
  for (const bool hasMap : {true, false}) {
    if (!hasMap) desk.map = {};
    for (const Wrong& wrong : wrongs) {
      SCOPED_TRACE(wrong.value);
      desk.type("Txt_LMZ04_nb_test_pts", "3");
      Texts point = {"2", "24", "10", "E", "47", "5", "30", "N"};
      point[wrong.box] = wrong.value;
      typePoint(point);
      EXPECT_TRUE(leave(kBoxes[wrong.box]));
      EXPECT_TRUE(desk.script.boxes.empty());
      for (const ControlName button : ControlNames{"Button_Add_Coordinates", "Button_Ins_Coordinates"}) {
        desk.click(button);
        expectBox(wrong.told);
        EXPECT_EQ(list, Texts{});
        EXPECT_EQ(screen.text(kBoxes[wrong.box]), wrong.value);
      }
    }
  }
}

TEST_F(Contour, after_an_added_point_the_next_one_is_typed_at_once) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  addPoint("2");
  EXPECT_EQ(desk.focus, Texts{"Txt_LMZ04_Deg_Long"});
  addPoint("2");
  expectBox("This test points is already in the list");
  EXPECT_EQ(desk.focus, Texts{"Txt_LMZ04_Deg_Long"});
  desk.choose("ListBox_LMZ04_Coordinates", list.at(0));
  desk.click("Button_Upd_Coordinates");
  EXPECT_EQ(desk.focus, Texts{"Txt_LMZ04_Deg_Long"});
  EXPECT_EQ(list, Texts{"0022410E 470530N"});
}

TEST_F(Contour, the_form_opens_locked_with_nothing_to_press) {
  for (const ControlName button :
       ControlNames{"Button_View", "Button_Del_Coordinates", "Button_Upd_Coordinates",
                    "Button_Ins_Coordinates", "Button_Add_Coordinates", "Button_ClearAll_Coordinates"}) {
    EXPECT_FALSE(isEnabled(button)) << button;
  }
  EXPECT_TRUE(screen.isSet("OptInt_Add"));
  EXPECT_FALSE(isEnabled("Txt_LMZ04_Deg_Long"));
  EXPECT_TRUE(screen.at("ListBox_LMZ04_Coordinates").grey);
}

TEST_F(Contour, a_count_unlocks_and_counts_down) {
  desk.type("Txt_LMZ04_nb_test_pts", "4");
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "4");
  EXPECT_TRUE(isEnabled("Txt_LMZ04_Deg_Long"));
  EXPECT_TRUE(leave("Txt_LMZ04_nb_test_pts"));
  EXPECT_EQ(desk.focus, Texts{"Txt_LMZ04_Deg_Long"});
  EXPECT_FALSE(isEnabled("Combo_4B_Ctry"));
  addPoint("1");
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "3");
  desk.type("Txt_LMZ04_nb_test_pts", "9");
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "8");
}

TEST_F(Contour, a_country_that_is_still_to_be_chosen_is_not_locked) {
  screen.choose("Combo_4B_Ctry", 0);
  desk.type("Txt_LMZ04_nb_test_pts", "4");
  EXPECT_TRUE(leave("Txt_LMZ04_nb_test_pts"));
  EXPECT_TRUE(isEnabled("Combo_4B_Ctry"));
}

TEST_F(Contour, an_empty_count_locks_on_leaving_and_not_while_it_is_typed) {
  addPoints(3);
  desk.type("Txt_LMZ04_nb_test_pts", "");
  EXPECT_EQ(list.size(), 3U);
  desk.type("Txt_LMZ04_nb_test_pts", "5");
  EXPECT_EQ(list.size(), 3U);
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "2");
  desk.type("Txt_LMZ04_nb_test_pts", "");
  desk.focus.clear();
  EXPECT_TRUE(leave("Txt_LMZ04_nb_test_pts"));
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "0");
  EXPECT_TRUE(isEnabled("Combo_4B_Ctry"));
  EXPECT_TRUE(desk.focus.empty());
  EXPECT_FALSE(isEnabled("Txt_LMZ04_Deg_Long"));
  EXPECT_TRUE(screen.at("Txt_LMZ04_Deg_Long").grey);
}

TEST_F(Contour, counts_outside_3_to_99_are_refused) {
  for (const char* wrong : {"2", "100", "3.0", "x"}) {
    desk.type("Txt_LMZ04_nb_test_pts", wrong);
    EXPECT_FALSE(isEnabled("Txt_LMZ04_Deg_Long")) << wrong;
    EXPECT_FALSE(leave("Txt_LMZ04_nb_test_pts")) << wrong;
    expectBox("Value must be between [3-99]");
  }
  desk.type("Txt_LMZ04_nb_test_pts", "");
  EXPECT_FALSE(isEnabled("Txt_LMZ04_Deg_Long"));
}

TEST_F(Contour, a_number_of_five_digits_is_refused) {
  desk.type("Txt_LMZ04_contour_id", "12345");
  EXPECT_FALSE(leave("Txt_LMZ04_contour_id"));
  expectBox("Value must be 4 digits maximum");
  desk.type("Txt_LMZ04_contour_id", "1234");
  EXPECT_TRUE(leave("Txt_LMZ04_contour_id"));
}

TEST_F(Contour, eight_boxes_enable_the_buttons) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  typePoint({"2", "24", "10", "E", "47", "5", "30"});
  for (const ControlName button :
       ControlNames{"Button_Add_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates"})
    EXPECT_FALSE(isEnabled(button)) << button;
  desk.type("Txt_LMZ04_NS", "N");
  EXPECT_TRUE(isEnabled("Button_Add_Coordinates"));
  EXPECT_TRUE(isEnabled("Button_Ins_Coordinates"));
  EXPECT_TRUE(isEnabled("Button_Upd_Coordinates"));
  desk.type("Txt_LMZ04_Sec_Long", "");
  EXPECT_FALSE(isEnabled("Button_Add_Coordinates"));
  desk.type("Txt_LMZ04_Min_Long", "25");
  EXPECT_FALSE(isEnabled("Button_Add_Coordinates"));
  desk.type("Txt_LMZ04_Sec_Long", "10");
  EXPECT_TRUE(isEnabled("Button_Add_Coordinates"));
  desk.type("Txt_LMZ04_Min_Long", "60");
  EXPECT_FALSE(isEnabled("Button_Add_Coordinates"));
  EXPECT_TRUE(desk.script.boxes.empty());
}

TEST_F(Contour, each_box_has_its_say_on_the_buttons) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  const Texts point = {"2", "24", "10", "E", "47", "5", "30", "N"};
  for (std::size_t i = 0; i < point.size(); ++i) {
    typePoint(point);
    EXPECT_TRUE(isEnabled("Button_Add_Coordinates"));
    desk.type(kBoxes[i], "");
    EXPECT_FALSE(isEnabled("Button_Add_Coordinates")) << kBoxes[i];
    EXPECT_TRUE(leave(kBoxes[i]));
    EXPECT_FALSE(isEnabled("Button_Add_Coordinates")) << kBoxes[i];
    screen.setEnabled("Button_Add_Coordinates", true);
    EXPECT_TRUE(leave(kBoxes[i]));
    EXPECT_FALSE(isEnabled("Button_Add_Coordinates")) << kBoxes[i];
  }
}

TEST_F(Contour, modify_without_a_selected_point_adds_one_and_counts_right) {
  addPoints(3);
  desk.type("Txt_LMZ04_nb_test_pts", "5");
  typePoint({"9", "24", "10", "E", "47", "5", "30", "N"});
  desk.click("Button_Upd_Coordinates");
  EXPECT_EQ(list.size(), 4U);
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "1");
}

TEST_F(Contour, delete_after_clear_all_counts_nothing) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  desk.click("Button_ClearAll_Coordinates");
  desk.click("Button_Del_Coordinates");
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "3");
  EXPECT_TRUE(list.empty());
}

TEST_F(Contour, a_point_is_padded_and_added_at_the_end) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  addPoint("2");
  EXPECT_EQ(list, Texts{"0022410E 470530N"});
  EXPECT_TRUE(boxesAreEmpty());
  EXPECT_TRUE(isEnabled("Button_View"));
  EXPECT_TRUE(isEnabled("Button_ClearAll_Coordinates"));
  for (const ControlName button : ControlNames{"Button_Add_Coordinates", "Button_Ins_Coordinates",
                                               "Button_Upd_Coordinates", "Button_Del_Coordinates"}) {
    EXPECT_FALSE(isEnabled(button)) << button;
  }
  addPoint("3");
  EXPECT_EQ(list, (Texts{"0022410E 470530N", "0032410E 470530N"}));
  EXPECT_EQ(desk.form.pointEditMode, 0);
}

TEST_F(Contour, the_point_after_the_last_one_is_refused_and_the_boxes_emptied) {
  addPoints(3);
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "0");
  addPoint("9");
  expectBox(
      "The number of test points have already been entered. \r\nPlease increase the number of test points to "
      "proceed");
  EXPECT_TRUE(boxesAreEmpty());
  EXPECT_EQ(list.size(), 3U);
}

TEST_F(Contour, a_repeated_point_is_refused) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  addPoint("2");
  addPoint("002");
  expectBox("This test points is already in the list");
  EXPECT_EQ(list.size(), 1U);
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "2");
}

TEST_F(Contour, a_point_without_coordinates_or_country_is_refused) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  desk.click("Button_Ins_Coordinates");
  expectBox("Coordinates are empty, cannot proceed");
  screen.choose("Combo_4B_Ctry", 0);
  addPoint("2");
  expectBox("Please select country (4B)");
  EXPECT_TRUE(list.empty());
}

TEST_F(Contour, a_point_outside_the_country_is_refused) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  desk.map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("SUI"); };
  addPoint("2");
  ASSERT_EQ(desk.script.boxes.size(), 1U);
  EXPECT_EQ(
      desk.script.boxes[0].text.rfind("Coordinates out of boundary\r\nt_long : 0022410E t_lat : 470530N", 0),
      0U)
      << desk.script.boxes[0].text;
  EXPECT_TRUE(list.empty());
  EXPECT_FALSE(boxesAreEmpty());
}

TEST_F(Contour, without_a_map_points_are_taken_as_they_are) {
  desk.map = {};
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  addPoint("2");
  EXPECT_EQ(list.size(), 1U);
  EXPECT_TRUE(desk.script.boxes.empty());
}

TEST_F(Contour, a_click_shows_the_point_in_the_boxes) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  EXPECT_EQ(screen.text("Txt_LMZ04_Deg_Long"), "002");
  EXPECT_EQ(screen.text("Txt_LMZ04_Min_Long"), "24");
  EXPECT_EQ(screen.text("Txt_LMZ04_Sec_Long"), "10");
  EXPECT_EQ(screen.text("Txt_LMZ04_EW"), "E");
  EXPECT_EQ(screen.text("Txt_LMZ04_Deg_Lat"), "47");
  EXPECT_EQ(screen.text("Txt_LMZ04_Min_Lat"), "05");
  EXPECT_EQ(screen.text("Txt_LMZ04_Sec_Lat"), "30");
  EXPECT_EQ(screen.text("Txt_LMZ04_NS"), "N");
  for (const ControlName button :
       ControlNames{"Button_Del_Coordinates", "Button_Ins_Coordinates", "Button_Upd_Coordinates"}) {
    EXPECT_TRUE(isEnabled(button)) << button;
  }
}

TEST_F(Contour, choosing_no_point_leaves_the_one_clicked_last) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  screen.choose("ListBox_LMZ04_Coordinates", -1);
  EXPECT_EQ(screen.text("Txt_LMZ04_Deg_Long"), "002");
  desk.click("Button_Del_Coordinates");
  EXPECT_EQ(list, (Texts{"0012410E 470530N", "0032410E 470530N"}));
}

TEST_F(Contour, a_point_is_inserted_above_the_one_clicked_last) {
  addPoints(3);
  desk.type("Txt_LMZ04_nb_test_pts", "5");
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  desk.type("Txt_LMZ04_Deg_Long", "9");
  desk.click("Button_Ins_Coordinates");
  EXPECT_EQ(list, (Texts{"0012410E 470530N", "0092410E 470530N", "0022410E 470530N", "0032410E 470530N"}));
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "1");
  // Nothing is chosen any more, and the index clicked last still counts.
  typePoint({"8", "24", "10", "E", "47", "5", "30", "N"});
  desk.click("Button_Ins_Coordinates");
  EXPECT_EQ(list[1], "0082410E 470530N");
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "0");
}

TEST_F(Contour, a_point_is_modified_in_its_place) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  desk.type("Txt_LMZ04_Deg_Long", "9");
  desk.click("Button_Upd_Coordinates");
  EXPECT_EQ(list, (Texts{"0012410E 470530N", "0092410E 470530N", "0032410E 470530N"}));
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "0");
  EXPECT_EQ(desk.form.pointEditMode, 0);
}

TEST_F(Contour, a_modification_that_fails_leaves_the_list_one_short) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", "0022410E 470530N");
  desk.map.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("SUI"); };
  desk.type("Txt_LMZ04_Deg_Long", "9");
  screen.setVisible({"Txt_CountDownTP", "Lbl_CountDownTP"}, false);
  desk.click("Button_Upd_Coordinates");
  EXPECT_EQ(desk.script.boxes.size(), 1U);
  EXPECT_EQ(list, (Texts{"0012410E 470530N", "0032410E 470530N"}));
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "1");
  EXPECT_TRUE(screen.isVisible("Txt_CountDownTP"));
  EXPECT_TRUE(screen.isVisible("Lbl_CountDownTP"));
  EXPECT_EQ(desk.form.pointEditMode, 0);
}

TEST_F(Contour, points_are_deleted_one_by_one) {
  addPoints(3);
  for (int left = 2; left >= 0; --left) {
    desk.choose("ListBox_LMZ04_Coordinates", list.front());
    desk.click("Button_Del_Coordinates");
    EXPECT_EQ(list.size(), static_cast<std::size_t>(left));
    EXPECT_EQ(screen.text("Txt_CountDownTP"), std::to_string(3 - left));
    EXPECT_EQ(isEnabled("Button_View"), left > 0);
    EXPECT_TRUE(boxesAreEmpty());
  }
}

TEST_F(Contour, clear_empties_the_boxes_and_clear_all_the_list) {
  addPoints(3);
  desk.choose("ListBox_LMZ04_Coordinates", list.front());
  desk.click("Button_Clear_Coordinates");
  EXPECT_TRUE(boxesAreEmpty());
  EXPECT_EQ(list.size(), 3U);
  EXPECT_FALSE(isEnabled("Button_Del_Coordinates"));
  EXPECT_FALSE(isEnabled("Button_Ins_Coordinates"));
  EXPECT_FALSE(isEnabled("Button_Upd_Coordinates"));
  desk.click("Button_ClearAll_Coordinates");
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "3");
  EXPECT_FALSE(isEnabled("Button_ClearAll_Coordinates"));
  EXPECT_FALSE(isEnabled("Button_View"));
}

TEST_F(Contour, view_shows_what_stands_on_the_screen) {
  addPoints(3);
  desk.type("Txt_LMZ04_contour_id", "42");
  desk.click("Button_View");
  ASSERT_EQ(viewed.size(), 1U);
  const ContourRec& contour = viewed[0].digital.contour;
  EXPECT_EQ(contour.t_contour_id, "42");
  ASSERT_GE(contour.points.size(), 3U);
  EXPECT_EQ(contour.points[1].t_long, "+0022410");
  EXPECT_EQ(contour.points[1].t_lat, "+470530");
}

TEST_F(Contour, a_stored_contour_can_be_edited_and_viewed_at_once) {
  NtcRec ntc = makeGa1();
  fillForm(ntc, screen);
  EXPECT_EQ(list.size(), 3U);
  EXPECT_EQ(screen.text("Txt_CountDownTP"), "0");
  EXPECT_TRUE(isEnabled("Txt_LMZ04_Deg_Long"));
  EXPECT_TRUE(isEnabled("Button_View"));
  EXPECT_TRUE(isEnabled("Button_ClearAll_Coordinates"));
}

TEST_F(Contour, degrees_of_the_top_value_are_refused) {
  desk.type("Txt_LMZ04_nb_test_pts", "3");
  desk.type("Txt_LMZ04_Deg_Lat", "90");
  EXPECT_FALSE(leave("Txt_LMZ04_Deg_Lat"));
  expectBox("Value must be between [0,90]");
  desk.type("Txt_LMZ04_Deg_Long", "180");
  EXPECT_FALSE(leave("Txt_LMZ04_Deg_Long"));
  expectBox("Value must be between [0,180]");
}

}  // namespace
}  // namespace zamo
