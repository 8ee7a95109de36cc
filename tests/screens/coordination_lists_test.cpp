#include "screens/coordination_lists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screens/form_at_work.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CoordinationLists : public testing::TestWithParam<FormCode> {
 protected:
  CoordinationLists() {
    connectEvents(at.form);
    resetCoordinationLists(at.screen);
  }

  void pick(ControlName list, std::string_view item) {
    at.choose(list, item);
    at.click(list);
  }
  void add(std::string_view adm) {
    pick("ListAdmAvail", adm);
    at.click("Button_Coord_Add");
  }
  const std::vector<std::string>& selected() const { return at.screen.items("ListAdmSel"); }
  bool isEnabled(ControlName button) const { return at.screen.at(button).enabled; }

  FormAtWork at{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Forms, CoordinationLists,
                         testing::Values(kGS1Assign, kGT1Assign, kGS2Allot, kGT2Allot, kTB3));

TEST_P(CoordinationLists, nothing_can_be_added_or_removed_at_first_but_all_of_them) {
  EXPECT_FALSE(isEnabled("Button_Coord_Add"));
  EXPECT_TRUE(isEnabled("Button_Coord_AddALL"));
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
  EXPECT_FALSE(isEnabled("Button_Coord_Clear"));
}

TEST_P(CoordinationLists, a_stored_list_can_be_cleared_at_once) {
  at.screen.addItem("ListAdmSel", "F");
  resetCoordinationLists(at.screen);
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
}

TEST_P(CoordinationLists, a_clicked_administration_can_be_added) {
  pick("ListAdmAvail", "BEL");
  EXPECT_EQ(at.form.pickedAdm, "BEL");
  EXPECT_TRUE(isEnabled("Button_Coord_Add"));
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_P(CoordinationLists, the_picked_one_is_added_at_the_end) {
  add("F");
  add("BEL");
  EXPECT_THAT(selected(), ElementsAre("F", "BEL"));
  EXPECT_FALSE(isEnabled("Button_Coord_Add"));
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
}

TEST_P(CoordinationLists, one_that_is_there_is_not_added_again) {
  add("F");
  pick("ListAdmAvail", "F");
  EXPECT_TRUE(isEnabled("Button_Coord_Add"));
  at.click("Button_Coord_Add");
  at.click("Button_Coord_Add");
  EXPECT_THAT(selected(), ElementsAre("F"));
  EXPECT_FALSE(isEnabled("Button_Coord_Add"));
}

TEST_P(CoordinationLists, a_double_click_adds) {
  pick("ListAdmAvail", "D");
  at.doubleClick("ListAdmAvail");
  EXPECT_THAT(selected(), ElementsAre("D"));
  EXPECT_FALSE(isEnabled("Button_Coord_Add"));
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
}

TEST_P(CoordinationLists, a_choice_that_goes_away_is_no_click) {
  pick("ListAdmAvail", "F");
  at.click("Button_Coord_Add");
  at.screen.choose("ListAdmAvail", -1);
  EXPECT_FALSE(isEnabled("Button_Coord_Add"));
  at.screen.choose("ListAdmSel", 0);
  at.screen.choose("ListAdmSel", -1);
  EXPECT_EQ(at.form.selectedAdmIdx, 0);
}

TEST_P(CoordinationLists, all_122_rows_are_added_in_their_order_in_place_of_what_was_there) {
  add("ZWE");
  at.click("Button_Coord_AddALL");
  EXPECT_EQ(selected().size(), 122U);
  EXPECT_EQ(selected(), at.screen.items("ListAdmAvail"));
  EXPECT_EQ(selected().at(1), "AFS");
  EXPECT_EQ(selected().back(), "ZWE");
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
}

TEST_P(CoordinationLists, all_of_them_can_be_cleared_again) {
  at.click("Button_Coord_AddALL");
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
  at.click("Button_Coord_Clear");
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_P(CoordinationLists, a_clicked_one_of_the_selected_can_be_removed) {
  add("F");
  add("BEL");
  add("D");
  pick("ListAdmSel", "BEL");
  EXPECT_EQ(at.form.selectedAdmIdx, 1);
  EXPECT_TRUE(isEnabled("Button_Coord_Del"));
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), ElementsAre("F", "D"));
  EXPECT_TRUE(isEnabled("Button_Coord_Del"));
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
  EXPECT_THAT(at.focus, ElementsAre("ListAdmSel"));
}

TEST_P(CoordinationLists, the_remembered_place_is_removed_again) {
  add("F");
  add("BEL");
  add("D");
  pick("ListAdmSel", "BEL");
  at.click("Button_Coord_Del");
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), ElementsAre("F"));
  // The last row has taken its place.
  EXPECT_EQ(at.screen.at("ListAdmSel").index, 0);
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
}

TEST_P(CoordinationLists, the_row_that_takes_the_place_of_a_removed_one_is_chosen) {
  for (const char* adm : {"F", "BEL", "D"}) add(adm);
  pick("ListAdmSel", "F");
  at.click("Button_Coord_Del");
  EXPECT_EQ(at.screen.at("ListAdmSel").index, 0);
  EXPECT_TRUE(isEnabled("Button_Coord_Del"));
  pick("ListAdmSel", "D");
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), ElementsAre("BEL"));
  EXPECT_EQ(at.screen.at("ListAdmSel").index, 0);
  EXPECT_TRUE(isEnabled("Button_Coord_Del"));
}

TEST_P(CoordinationLists, the_chosen_row_stays_chosen_when_another_is_added) {
  add("F");
  EXPECT_EQ(at.screen.at("ListAdmSel").index, -1);
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
  pick("ListAdmSel", "F");
  add("BEL");
  EXPECT_EQ(at.screen.at("ListAdmSel").index, 0);
  EXPECT_TRUE(isEnabled("Button_Coord_Del"));
  EXPECT_EQ(at.screen.items("ListAdmAvail").at(static_cast<std::size_t>(at.screen.at("ListAdmAvail").index)),
            "BEL");
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), ElementsAre("BEL"));
}

TEST_P(CoordinationLists, of_all_rows_none_is_chosen_and_none_can_be_removed) {
  add("F");
  pick("ListAdmSel", "F");
  at.click("Button_Coord_AddALL");
  EXPECT_EQ(at.screen.at("ListAdmSel").index, -1);
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
  EXPECT_TRUE(isEnabled("Button_Coord_Clear"));
  pick("ListAdmSel", "BEL");
  at.click("Button_Coord_Del");
  EXPECT_EQ(selected().size(), 121U);
}

TEST_P(CoordinationLists, nothing_can_be_removed_from_an_empty_list) {
  add("F");
  pick("ListAdmSel", "F");
  at.click("Button_Coord_Del");
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
  EXPECT_FALSE(isEnabled("Button_Coord_Clear"));
  EXPECT_THAT(at.focus, ElementsAre("ListAdmSel"));
}

TEST_P(CoordinationLists, clearing_empties_the_list) {
  add("F");
  add("BEL");
  pick("ListAdmSel", "F");
  at.click("Button_Coord_Clear");
  EXPECT_THAT(selected(), IsEmpty());
  EXPECT_FALSE(isEnabled("Button_Coord_Del"));
  EXPECT_FALSE(isEnabled("Button_Coord_Clear"));
  EXPECT_THAT(at.focus, IsEmpty());
}

TEST_P(CoordinationLists, nobody_is_told_anything) {
  add("F");
  at.click("Button_Coord_AddALL");
  at.click("Button_Coord_Clear");
  EXPECT_THAT(at.script.boxes, IsEmpty());
  EXPECT_THAT(at.script.questions, IsEmpty());
}

TEST(CoordinationListsElsewhere, forms_without_lists_have_nothing_to_reset) {
  for (const FormCode code : {kGA1SubAllot, kTB5, kTB2}) {
    FormAtWork at(code);
    ASSERT_FALSE(at.screen.has("ListAdmSel"));
    EXPECT_NO_THROW(resetCoordinationLists(at.screen));
  }
}

}  // namespace
}  // namespace zamo::test
