// The assignment forms in their windows.
#include <gmock/gmock.h>

#include "platform/numbers.h"
#include "screens/screen_mapping.h"
#include "screens_window/real_form.h"
#include "support/waiting.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kAssignments[] = {"GS1/5", "GT1/5"};

class AssignmentForms : public RealForm {
 protected:
  // On both forms, under Art. 5 and as a modification, so that every frame is in sight.
  void onBoth(const std::function<void(Operator&)>& step) {
    for (const char* kind : kAssignments) {
      SCOPED_TRACE(kind);
      openNew(kind, step);
    }
  }
  // The value is refused with one box, and the focus stays.
  void expectRefused(Operator& hand, ControlName name, const std::string& value, const std::string& told) {
    hand.enter(name, value);
    EXPECT_EQ(hand.focused(), name) << value;
    EXPECT_EQ(hand.text(name), value) << name;
    ASSERT_EQ(script.boxes.size(), 1U) << name << " " << value;
    EXPECT_EQ(script.boxes[0].icon, BoxIcon::exclamation);
    expectTold({told});
  }
  void expectTaken(Operator& hand, ControlName name, const std::string& value) {
    hand.enter(name, value);
    EXPECT_NE(hand.focused(), name) << value;
    expectTold({});
  }
};

// --- leaving a field

struct Refusal {
  ControlName field;
  const char* wrong;
  const char* told;
  const char* right;
};

// clang-format off
constexpr Refusal kRefusals[] = {
    {"Txt_4C_Deg_Lat",  "90",  "Prevalidation Error - Latitude: Value must be between [0,90]",   "89"},
    {"Txt_4C_Min_Lat",  "60",  "Prevalidation Error - Latitude: Value must be between [0,59]",   "59"},
    {"Txt_4C_Sec_Lat",  "5.5", "Prevalidation Error - Latitude: Value must be between [0,59]",   "5"},
    {"Txt_4C_NS",       "E",   "Prevalidation Error - Latitude: Value can only be N or S",       "S"},
    {"Txt_4C_Deg_Long", "180", "Prevalidation Error - Longitude: Value must be between [0,180]", "179"},
    {"Txt_4C_Min_Long", "60",  "Prevalidation Error - Longitude: Value must be between [0,59]",  "0"},
    {"Txt_4C_Sec_Long", "A",   "Prevalidation Error - Longitude: Value must be between [0,59]",  "59"},
    {"Txt_4C_EW",       "N",   "Prevalidation Error - Longitude: Value can only be E or W",      "W"},
    {"Txt_KV19_Offset", "501", "Prevalidation Error - Offset:  t_offset : Value should be between [-500.0, 500.0] (1E)", "-500"},
    {"Txt_9EA_SiteAlt", "8851", "Prevalidation Error - Site altitude: Value must be an integer between [-1000, 8850]", "8850"},
    {"Txt_8BH_Erp_H",   "53.1", "Prevalidation Error - Radiated power: Value must be between <= 53", "53"},
    {"Txt_8BV_Erp_V",   "54",   "Prevalidation Error - Radiated power: Value must be between <= 53", "-3.5"},
    {"Txt_9E_AntHgt",   "801",  "Prevalidation Error - Height of antenna: Value must be between [0, 800]", "800"},
    {"Txt_9EB_Eff_hgtmax", "3001", "Prevalidation Error - Max effective Ant. height: Value must be an integer between [-3000, 3000]", "-3000"},
    {"Txt_9EC_azm350",  "3001", "Prevalidation Error - Eff. ant. height: Value must be an integer between [-3000, 3000] and less than the t_eff_hgtmax (9EB)", "3000"},
    {"Txt_9NHAzm010",   "x",    "Prevalidation Error - Attenuation (H): Value must be numerical", "99"},
    {"Txt_9NVAzm340",   "1,5",  "Prevalidation Error - Attenuation (V): Value must be numerical", "1.5"},
    {"Txt_10B_Ophhfr",  "600",  "Prevalidation Error - Start time: The time must be entered as HHMM", "0600"},
    {"Txt_10B_Ophhto",  "600",  "Prevalidation Error - Start time: The time must be entered as HHMM", "1800"},
    {"Txt_12A_OpAgcy",  "X",    "Prevalidation Error - Operating Agency:  Invalid t_op_agcy (12A)", "001"},
    {"Txt_12B_AddrCde", "7",    "Prevalidation Error - Address code (12B):  t_addr_code : can have ONLY 1 Characters no digits (12B)", "A"},
    {"Txt_Exp_DD",      "32",   "Prevalidation Error - Date (day): Value should be between [1,31]", "31"},
    {"Txt_Exp_MM",      "13",   "Prevalidation Error - Date (month): Value should be between [1,12]", "12"},
    {"Txt_Exp_YY",      "1999", "Prevalidation Error - Date (year): The year must be entered as YYYY and must be after 2000", "2000"},
    {"Txt_InUse_DD",    "0",    "Prevalidation Error - Date (day): Value should be between [1,31]", "28"},
    {"Txt_InUse_MM",    "0",    "Prevalidation Error - Date (month): Value should be between [1,12]", "12"},
    {"Txt_InUse_YY",    "99",   "Prevalidation Error - Date (year): The year must be entered as YYYY and must be after 2000", "2010"},
    {"Txt_trg_freq_assgn", "x", "Prevalidation Error - Target Assign frequency: Value must be numerical", "474"},
    {"Txt_trg_lat_DD",  "90",   "Prevalidation Error - Target Latitude: Value must be between [0,90]", "-5"},
    {"Txt_trg_lat_MM",  "60",   "Prevalidation Error - Target Latitude: Value must be between [0,59]", "1"},
    {"Txt_trg_lat_SS",  "60",   "Prevalidation Error - Target Latitude: Value must be between [0,59]", "2"},
    {"Txt_trg_lat_NS",  "W",    "Prevalidation Error - Target Latitude: Value can only be N or S", "N"},
    {"Txt_trg_long_DD", "180",  "Prevalidation Error - Target Longitude: Value must be between [0,180]", "179"},
    {"Txt_trg_long_MM", "1.5",  "Prevalidation Error - Target Longitude: Value must be between [0,59]", "3"},
    {"Txt_trg_long_SS", "60",   "Prevalidation Error - Target Longitude: Value must be between [0,59]", "4"},
    {"Txt_trg_long_EW", "S",    "Prevalidation Error - Target Longitude: Value can only be E or W", "E"},
};
constexpr Refusal kTelevisionRefusals[] = {
    {"Txt_KV19_freqAssgn", "47x", "Prevalidation Error - Assign frequency: Value must be numerical", "482"},
    {"Txt_KV19_erpBeam_tilt", "54", "Prevalidation Error - Radiated power defined by the beam tilt: Value must be between <= 53", "53"},
    {"Txt_KV19_TiltAngle", "31", "Prevalidation Error - Beam tilt angle: Value must be between [-30, 30]", "-30"},
};
// clang-format on

TEST_F(AssignmentForms, every_wrong_value_is_told_once_and_keeps_the_focus_until_it_is_put_right) {
  onBoth([&](Operator& hand) {
    hand.click("OptInt_Mod");
    hand.pick("Combo_9D_Polariz", "M");
    const auto check = [&](const Refusal& row) {
      expectRefused(hand, row.field, row.wrong, row.told);
      expectTaken(hand, row.field, row.right);
    };
    for (const Refusal& row : kRefusals) check(row);
    if (hand.form.screen.code() != kGT1Assign) return;
    for (const Refusal& row : kTelevisionRefusals) check(row);
  });
}

TEST_F(AssignmentForms, a_latitude_of_90_is_refused_and_89_and_a_negative_one_pass) {
  onBoth([&](Operator& hand) {
    expectRefused(hand, "Txt_4C_Deg_Lat", "90",
                  "Prevalidation Error - Latitude: Value must be between [0,90]");
    expectTaken(hand, "Txt_4C_Deg_Lat", "89");
    expectTaken(hand, "Txt_4C_Deg_Lat", "-5");
  });
}

TEST_F(AssignmentForms, the_year_2000_passes_and_1999_fails) {
  onBoth([&](Operator& hand) {
    expectTaken(hand, "Txt_InUse_YY", "2000");
    expectRefused(
        hand, "Txt_InUse_YY", "1999",
        "Prevalidation Error - Date (year): The year must be entered as YYYY and must be after 2000");
  });
}

TEST_F(AssignmentForms, a_day_that_its_month_has_not_keeps_the_focus) {
  onBoth([&](Operator& hand) {
    expectTaken(hand, "Txt_InUse_MM", "2");
    expectTaken(hand, "Txt_InUse_YY", "2005");
    expectRefused(hand, "Txt_InUse_DD", "31", "Prevalidation Error - InValid Date: Invalid date");
    EXPECT_EQ(script.beeps, 0);
    expectRefused(hand, "Txt_InUse_DD", "32",
                  "Prevalidation Error - Date (day): Value should be between [1,31]");
    EXPECT_EQ(std::exchange(script.beeps, 0), 1);
    expectTaken(hand, "Txt_InUse_DD", "28");
  });
}

TEST_F(AssignmentForms, a_short_agency_gets_its_zeros_on_leaving) {
  onBoth([&](Operator& hand) {
    hand.type("Txt_12A_OpAgcy", "12");
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "12");
    hand.tab();
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "012");
    hand.type("Txt_12A_OpAgcy", "7");
    hand.click("Txt_12B_AddrCde");
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "007");
    EXPECT_EQ(hand.focused(), "Txt_12B_AddrCde");
    expectTold({});
  });
}

TEST_F(AssignmentForms, an_agency_is_checked_as_it_was_typed_and_not_once_more_with_its_zeros) {
  onBoth([&](Operator& hand) {
    hand.enter("Txt_12A_OpAgcy", "-1");
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "0-1");
    EXPECT_NE(hand.focused(), "Txt_12A_OpAgcy");
    expectTold({});
    hand.type("Txt_12A_OpAgcy", "-2");
    hand.press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(hand.text("Txt_12A_OpAgcy"), "0-2");
    EXPECT_NE(hand.focused(), "Txt_12A_OpAgcy");
    expectTold({});
  });
}

TEST_F(AssignmentForms, an_empty_altitude_can_be_left_and_is_told_when_the_notice_is_saved) {
  onBoth([&](Operator& hand) {
    expectTaken(hand, "Txt_9EA_SiteAlt", "");
    hand.click("Button_Next");
    expectTold({}, {"Save Invalid Notice: The following fields are either missing or invalid\r\n"
                    "Altitude of the site : t_site_alt (9EA)\r\n\r\nSave invalid Notice"});
  });
}

TEST_F(AssignmentForms, times_are_told_what_is_wrong_with_them) {
  onBoth([&](Operator& hand) {
    hand.enter("Txt_10B_Ophhto", "2500");
    EXPECT_EQ(hand.focused(), "Txt_10B_Ophhto");
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].title, "Prevalidation Error - Stop time");
    EXPECT_THAT(script.boxes[0].text, testing::EndsWith("Value must be between [0001,2400]"));
    script.boxes.clear();
    expectTaken(hand, "Txt_10B_Ophhto", "2400");
    hand.enter("Txt_10B_Ophhfr", "2400");
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].title, "Prevalidation Error - Start time");
    EXPECT_THAT(script.boxes[0].text, testing::EndsWith("Value must be between [0000,2359]"));
    script.boxes.clear();
    expectTaken(hand, "Txt_10B_Ophhfr", "2359");
  });
}

TEST_F(AssignmentForms, free_fields_take_anything) {
  onBoth([&](Operator& hand) {
    for (const ControlName name : ControlNames{"Txt_3A1_CallSign", "Txt_PlanAdm_RefID", "Txt_EmailAddr",
                                               "Txt_4A_SiteName", "Txt_AdmRefID"})
      expectTaken(hand, name, "12,5 %");
    hand.type("Txt_notified_Rmks", "12,5 %");
    hand.tab();
    expectTold({});
  });
}

// --- a wrong value is no trap

TEST_F(AssignmentForms, a_wrong_value_keeps_every_other_control_back_with_one_box_each) {
  onBoth([&](Operator& hand) {
    const std::string told = "Prevalidation Error - Height of antenna: Value must be between [0, 800]";
    hand.type("Txt_9E_AntHgt", "801");
    const auto inputs = hand.contents();
    for (const ControlName name : ControlNames{"Button_Next", "Button_AddNew", "Button_Finish",
                                               "Button_Validate", "Txt_9EA_SiteAlt"}) {
      hand.click(name);
      EXPECT_EQ(hand.focused(), "Txt_9E_AntHgt") << name;
      expectTold({told});
    }
    hand.press(Qt::Key_Backtab);
    expectTold({told});
    hand.press(Qt::Key_U, Qt::AltModifier);
    waitForButtons(hand.window);
    expectTold({told});
    hand.click("Opt_Art4");
    expectTold({told});
    EXPECT_EQ(hand.contents(), inputs);
    EXPECT_TRUE(hand.window.isVisible());
  });
}

TEST_F(AssignmentForms, a_wrong_value_keeps_the_page_in_front) {
  onBoth([&](Operator& hand) {
    hand.type("Txt_9E_AntHgt", "801");
    hand.turnTo("ListAdmAvail");
    EXPECT_TRUE(hand.control("Txt_9E_AntHgt").isVisible());
    EXPECT_EQ(hand.focused(), "Txt_9E_AntHgt");
    expectTold({"Prevalidation Error - Height of antenna: Value must be between [0, 800]"});
  });
}

TEST_F(AssignmentForms, a_form_with_a_wrong_value_can_be_closed_in_every_way) {
  const std::vector<std::function<void(Operator&)>> ways = {
      [](Operator& hand) { hand.click("Button_Reset"); },
      [](Operator& hand) { hand.window.close(); },
      [](Operator& hand) {
        hand.press(Qt::Key_C, Qt::AltModifier);
        waitForButtons(hand.window);
      },
  };
  for (const auto& leave : ways) {
    onBoth([&](Operator& hand) {
      hand.enter("Txt_9E_AntHgt", "801");
      expectTold({"Prevalidation Error - Height of antenna: Value must be between [0, 800]"});
      leave(hand);
      EXPECT_FALSE(hand.window.isVisible());
      EXPECT_LE(script.boxes.size(), 1U);
      script.boxes.clear();
    });
  }
}

// --- the target

TEST_F(AssignmentForms, typing_the_targets_identifier_hides_its_place_and_deleting_it_brings_it_back) {
  constexpr ControlName place[] = {
      "Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM", "Txt_trg_long_SS", "Txt_trg_long_EW",
      "Txt_trg_lat_DD",     "Txt_trg_lat_MM",  "Txt_trg_lat_SS",  "Txt_trg_lat_NS",  "Lbl_trg_or"};
  onBoth([&](Operator& hand) {
    EXPECT_FALSE(hand.sees("FrameTrg"));
    hand.click("OptInt_Mod");
    EXPECT_TRUE(hand.sees("FrameTrg"));
    for (const ControlName name : place) EXPECT_TRUE(hand.sees(name)) << name;
    EXPECT_EQ(hand.caption("Lbl_trg_or"), "Or");
    hand.type("Txt_TrgAdmRefID", "F");
    for (const ControlName name : place) EXPECT_FALSE(hand.sees(name)) << name;
    EXPECT_TRUE(hand.sees("Txt_TrgAdmRefID"));
    hand.press(Qt::Key_Backspace);
    for (const ControlName name : place) EXPECT_TRUE(hand.sees(name)) << name;
  });
}

TEST_F(AssignmentForms, typing_the_targets_place_hides_its_identifier_until_all_is_deleted) {
  onBoth([&](Operator& hand) {
    hand.click("OptInt_Mod");
    for (const ControlName name :
         ControlNames{"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_long_MM", "Txt_trg_long_SS",
                      "Txt_trg_lat_DD", "Txt_trg_lat_MM", "Txt_trg_lat_SS"}) {
      hand.type(name, "5");
      for (const ControlName other : ControlNames{"Txt_TrgAdmRefID", "Lbl_TrgAdmRefID", "Lbl_trg_or"})
        EXPECT_FALSE(hand.sees(other)) << other << " with " << name;
      hand.press(Qt::Key_Backspace);
      for (const ControlName other :
           ControlNames{"Txt_TrgAdmRefID", "Lbl_TrgAdmRefID", "Lbl_trg_or", "Txt_trg_long_EW"})
        EXPECT_TRUE(hand.sees(other)) << other << " without " << name;
    }
    expectTold({});
  });
}

// --- the coordination

TEST_F(AssignmentForms, an_administration_is_added_once) {
  onBoth([&](Operator& hand) {
    hand.clickItem("ListAdmAvail", "BEL");
    EXPECT_TRUE(hand.canUse("Button_Coord_Add"));
    hand.click("Button_Coord_Add");
    EXPECT_FALSE(hand.canUse("Button_Coord_Add"));
    EXPECT_TRUE(hand.canUse("Button_Coord_Clear"));
    hand.clickItem("ListAdmAvail", "BEL");
    hand.click("Button_Coord_Add");
    EXPECT_FALSE(hand.canUse("Button_Coord_Add"));
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("BEL"));
    hand.doubleClickItem("ListAdmAvail", "SUI");
    hand.doubleClickItem("ListAdmAvail", "SUI");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("BEL", "SUI"));
    expectTold({});
  });
}

TEST_F(AssignmentForms, administrations_are_taken_out_one_by_one_or_all_at_once) {
  onBoth([&](Operator& hand) {
    for (const char* adm : {"BEL", "SUI", "D"}) hand.doubleClickItem("ListAdmAvail", adm);
    EXPECT_FALSE(hand.canUse("Button_Coord_Del"));
    hand.clickItem("ListAdmSel", "SUI");
    EXPECT_TRUE(hand.canUse("Button_Coord_Del"));
    hand.click("Button_Coord_Del");
    EXPECT_EQ(hand.focused(), "ListAdmSel");
    EXPECT_THAT(hand.items("ListAdmSel"), ElementsAre("BEL", "D"));
    for (int left = 2; left > 0; --left) {
      EXPECT_TRUE(hand.canUse("Button_Coord_Clear"));
      hand.clickItem("ListAdmSel", 0);
      hand.click("Button_Coord_Del");
    }
    EXPECT_THAT(hand.items("ListAdmSel"), IsEmpty());
    EXPECT_FALSE(hand.canUse("Button_Coord_Del"));
    EXPECT_FALSE(hand.canUse("Button_Coord_Clear"));
    hand.click("Button_Coord_AddALL");
    EXPECT_EQ(hand.items("ListAdmSel"), hand.items("ListAdmAvail"));
    EXPECT_EQ(hand.items("ListAdmSel").size(), 122U);
    hand.click("Button_Coord_Clear");
    EXPECT_THAT(hand.items("ListAdmSel"), IsEmpty());
    EXPECT_FALSE(hand.canUse("Button_Coord_Clear"));
    expectTold({});
  });
}

TEST_F(AssignmentForms, an_administration_is_added_with_the_keyboard) {
  onBoth([&](Operator& hand) {
    hand.turnTo("ListAdmAvail");
    hand.control("ListAdmAvail").setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(hand.canUse("Button_Coord_Add"));
    hand.press(Qt::Key_Down);
    hand.press(Qt::Key_Down);
    EXPECT_TRUE(hand.canUse("Button_Coord_Add"));
    hand.tab();
    EXPECT_EQ(hand.focused(), "Button_Coord_Add");
    hand.press(Qt::Key_Space);
    EXPECT_EQ(hand.items("ListAdmSel").size(), 1U);
  });
}

// --- what stands on the screen

TEST_F(AssignmentForms, a_mask_that_is_picked_empty_makes_the_screen_blank_and_any_value_ends_that) {
  onBoth([&](Operator& hand) {
    hand.pick("Combo_LMZ04_SpectMask", "");
    EXPECT_TRUE(work.state.screenIsBlank);
    hand.click("Button_Validate");
    expectTold({"Missing values: Not enough fields to validate"});
    hand.enter("Txt_9E_AntHgt", "80");
    EXPECT_FALSE(work.state.screenIsBlank);
    hand.pick("Combo_LMZ04_SpectMask", "");
    EXPECT_TRUE(work.state.screenIsBlank);
    hand.pick("Combo_9_AntDir", "ND");
    EXPECT_FALSE(work.state.screenIsBlank);
  });
}

TEST_F(AssignmentForms, the_hours_of_a_television_assignment_under_article_5_are_written_when_it_is_chosen) {
  openNew("GT1", [](Operator& hand) {
    hand.click("Opt_Art5");
    EXPECT_EQ(hand.text("Txt_10B_Ophhfr"), "0000");
    EXPECT_EQ(hand.text("Txt_10B_Ophhto"), "2400");
    hand.type("Txt_10B_Ophhfr", "0600");
    hand.click("Opt_Art5");
    hand.click("OptInt_Mod");
    EXPECT_TRUE(hand.isSet("Opt_Art5"));
    EXPECT_EQ(hand.text("Txt_10B_Ophhfr"), "0000");
  });
}

}  // namespace
}  // namespace zamo::test
