#include "screens/control_name.h"

#include <gtest/gtest.h>

#include "screens/control_table.h"
#include "screens/control_text.h"
#include "screens/form_at_work.h"

namespace zamo::test {
namespace {

using control_names::isControl;
using control_names::isStem;

TEST(ControlName, every_control_of_every_form_can_be_named) {
  for (const FormCode code : kFormCodes) {
    for (const ControlRow& row : controlRows(code)) EXPECT_TRUE(isControl(row.name)) << row.name;
  }
}

TEST(ControlName, what_no_form_has_is_no_name) {
  for (const char* name : {"", "Txt", "Txt_4C_Deg_", "Txt_4C_Deg_Lon", "txt_4C_Deg_Long", "Txt_4C_Deg_Long ",
                           "Lbl_4C_Deg_Long", "GT1AssignFrmKV19", "identification"})
    EXPECT_FALSE(isControl(name)) << name;
}

TEST(ControlName, boxes_and_labels_of_the_grids_are_named_by_their_azimuths) {
  for (const char* name :
       {"Txt_9EC_azm000", "Txt_9NHAzm120", "Txt_9NVAzm350", "Lbl_9EC_azm010", "Lbl_9NHAzm350"})
    EXPECT_TRUE(isControl(name)) << name;
  for (const char* name :
       {"Txt_9EC_azm", "Txt_9EC_azm0", "Txt_9EC_azm005", "Txt_9EC_azm360", "Txt_9EC_azm990",
        "Txt_9EC_azm0000", "Txt_9EC_azmA00", "Txt_9EC_azm-10", "Txt_9NH_azm000"})
    EXPECT_FALSE(isControl(name)) << name;
}

TEST(ControlName, a_stem_begins_the_name_of_a_control) {
  EXPECT_TRUE(isStem("Txt_InUse_"));
  EXPECT_TRUE(isStem("Txt_9NVAzm"));
  EXPECT_FALSE(isStem("Txt_InUsed_"));
  constexpr ControlStem dates = "Txt_InUse_";
  EXPECT_TRUE(dates.begins("Txt_InUse_YY"));
  EXPECT_FALSE(dates.begins("Txt_Exp_YY"));
  EXPECT_FALSE(ControlStem().begins("Txt_Exp_YY"));
}

TEST(ControlName, a_made_up_name_is_the_one_that_was_written) {
  EXPECT_EQ(madeName(std::string("Txt_9EC_azm") + "120"), ControlName("Txt_9EC_azm120"));
  EXPECT_TRUE(ControlName().empty());
}

TEST(ControlName, a_screen_without_the_control_says_so) {
  Screen screen(kTB5);
  makeControls(screen);
  EXPECT_THROW(screen.text("Txt_4C_Deg_Long"), std::out_of_range);
  EXPECT_THROW(screen.text(madeName("Txt_9EC_azm005")), std::out_of_range);
  EXPECT_FALSE(screen.has("Txt_4C_Deg_Long"));
}

}  // namespace
}  // namespace zamo::test
