#include "screens/field_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "screens/field_check_tables.h"
#include "screens/form_at_work.h"

namespace zamo::test {
namespace {

constexpr FormSet kTb2 = formBit(kTB2);

struct FieldCase {
  FormSet forms = 0;
  std::string control;
  std::vector<std::string> accepted;
  std::vector<std::string> refused;
  std::string title;
  std::string text;
  int beeps = 0;
};

struct FreeField {
  FormSet forms = 0;
  std::string control;
};

// A grid's name stands for its 36 boxes.
std::vector<FieldCase> singleBoxes(const std::vector<FieldCase>& cases) {
  std::vector<FieldCase> all;
  for (const FieldCase& field : cases) {
    if (!field.control.ends_with("zm")) {
      all.push_back(field);
      continue;
    }
    for (int azimuth = 0; azimuth < 360; azimuth += 10) {
      const std::string digits = std::to_string(1000 + azimuth).substr(1);
      all.push_back(field);
      all.back().control += digits;
    }
  }
  return all;
}

// clang-format off
const std::vector<FieldCase> kCases = singleBoxes({
    {kAssignmentForms | kTb2, "Txt_4C_Deg_Lat", {"0", "89", "-5", "-90", "07", " 7"}, {"90", "91", "12.5", "89.0", "12,5", "N", "1x", "-"}, "Prevalidation Error - Latitude", "Value must be between [0,90]"},
    {kAssignmentForms | kTb2, "Txt_4C_Min_Lat", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Latitude", "Value must be between [0,59]"},
    {kAssignmentForms | kTb2, "Txt_4C_Sec_Lat", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Latitude", "Value must be between [0,59]"},
    {kAssignmentForms | kTb2, "Txt_4C_NS", {"N", "S", "n", "s"}, {"E", "W", "1", "NS", " "}, "Prevalidation Error - Latitude", "Value can only be N or S"},
    {kAssignmentForms | kTb2, "Txt_4C_Deg_Long", {"0", "179", "-200", "007"}, {"180", "181", "12.5", "12,5", "E"}, "Prevalidation Error - Longitude", "Value must be between [0,180]"},
    {kAssignmentForms | kTb2, "Txt_4C_Min_Long", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Longitude", "Value must be between [0,59]"},
    {kAssignmentForms | kTb2, "Txt_4C_Sec_Long", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Longitude", "Value must be between [0,59]"},
    {kAssignmentForms | kTb2, "Txt_4C_EW", {"E", "W", "e", "w"}, {"N", "S", "0", "EW", " "}, "Prevalidation Error - Longitude", "Value can only be E or W"},
    {kAssignmentForms, "Txt_trg_lat_DD", {"0", "89", "-5"}, {"90", "12.5", "12,5", "N"}, "Prevalidation Error - Target Latitude", "Value must be between [0,90]"},
    {kAssignmentForms, "Txt_trg_lat_MM", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Target Latitude", "Value must be between [0,59]"},
    {kAssignmentForms, "Txt_trg_lat_SS", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Target Latitude", "Value must be between [0,59]"},
    {kAssignmentForms, "Txt_trg_lat_NS", {"N", "S"}, {"E", "W", "1"}, "Prevalidation Error - Target Latitude", "Value can only be N or S"},
    {kAssignmentForms, "Txt_trg_long_DD", {"0", "179", "-5"}, {"180", "12.5", "12,5", "E"}, "Prevalidation Error - Target Longitude", "Value must be between [0,180]"},
    {kAssignmentForms, "Txt_trg_long_MM", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Target Longitude", "Value must be between [0,59]"},
    {kAssignmentForms, "Txt_trg_long_SS", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Target Longitude", "Value must be between [0,59]"},
    {kAssignmentForms, "Txt_trg_long_EW", {"E", "W"}, {"N", "S", "1"}, "Prevalidation Error - Target Longitude", "Value can only be E or W"},
    {kAssignmentForms, "Txt_trg_freq_assgn", {"474", "176.64", "-1", "0"}, {"176,64", "MHz", "47x"}, "Prevalidation Error - Target Assign frequency", "Value must be numerical"},
    {kTb2, "Txt_TrgFreq", {"474", "176.64", "-1", "0"}, {"176,64", "MHz", "47x"}, "Prevalidation Error - Target Assign frequency", "Value must be numerical"},
    {formBit(kGT1Assign) | formBit(kGT2Allot), "Txt_KV19_freqAssgn", {"474", "177.5", "-1"}, {"177,5", "MHz"}, "Prevalidation Error - Assign frequency", "Value must be numerical"},
    {kAssignmentForms | kAllotmentForms, "Txt_KV19_Offset", {"-500", "0", "500", "499.9", "-500.0"}, {"-500.1", "500.1", "501", "1,5", "x"}, "Prevalidation Error - Offset", " t_offset : Value should be between [-500.0, 500.0] (1E)"},
    {kAssignmentForms, "Txt_9EA_SiteAlt", {"-1000", "0", "8850"}, {"-1001", "8851", "12.0", "1,0", "x"}, "Prevalidation Error - Site altitude", "Value must be an integer between [-1000, 8850]"},
    {kAssignmentForms, "Txt_8BH_Erp_H", {"53", "-100", "52.9"}, {"53.1", "54", "5,3", "x"}, "Prevalidation Error - Radiated power", "Value must be between <= 53"},
    {kAssignmentForms, "Txt_8BV_Erp_V", {"53", "-100", "52.9"}, {"53.1", "54", "5,3", "x"}, "Prevalidation Error - Radiated power", "Value must be between <= 53"},
    {formBit(kGT1Assign), "Txt_KV19_erpBeam_tilt", {"53", "-100", "52.9"}, {"53.1", "54", "5,3", "x"}, "Prevalidation Error - Radiated power defined by the beam tilt", "Value must be between <= 53"},
    {formBit(kGT1Assign), "Txt_KV19_TiltAngle", {"-30", "30", "0.5"}, {"-30.1", "30.1", "31", "1,5", "x"}, "Prevalidation Error - Beam tilt angle", "Value must be between [-30, 30]"},
    {kAssignmentForms, "Txt_9E_AntHgt", {"0", "800", "10.5"}, {"-1", "-0.1", "800.1", "801", "1,5", "x"}, "Prevalidation Error - Height of antenna", "Value must be between [0, 800]"},
    {kAssignmentForms, "Txt_9EB_Eff_hgtmax", {"-3000", "0", "3000"}, {"-3001", "3001", "1.5", "1,5", "x"}, "Prevalidation Error - Max effective Ant. height", "Value must be an integer between [-3000, 3000]"},
    {kAssignmentForms, "Txt_9EC_azm", {"-3000", "0", "3000"}, {"-3001", "3001", "1.5", "1,5", "x"}, "Prevalidation Error - Eff. ant. height", "Value must be an integer between [-3000, 3000] and less than the t_eff_hgtmax (9EB)"},
    {kAssignmentForms, "Txt_9NHAzm", {"0", "41", "-3", "0.5"}, {"0,5", "x"}, "Prevalidation Error - Attenuation (H)", "Value must be numerical"},
    {kAssignmentForms, "Txt_9NVAzm", {"0", "41", "-3", "0.5"}, {"0,5", "x"}, "Prevalidation Error - Attenuation (V)", "Value must be numerical"},
    {kAssignmentForms, "Txt_10B_Ophhfr", {"0000", "2359", "0930"}, {"12.5", "12,5", "ab12", "12345", "09:30"}, "Prevalidation Error - Start time", "Value must be between [0000,2359]"},
    {kAssignmentForms, "Txt_10B_Ophhto", {"0100", "2400", "2359"}, {"2430", "12.5", "12,5", "12345"}, "Prevalidation Error - Stop time", "Value must be between [0001,2400]"},
    {kAssignmentForms, "Txt_12A_OpAgcy", {"012", "123", "1234", "1.5"}, {"A12", "12a"}, "Prevalidation Error - Operating Agency", " Invalid t_op_agcy (12A)"},
    {kAssignmentForms, "Txt_12B_AddrCde", {"A", "AB", "A1"}, {"1", "12", "-3"}, "Prevalidation Error - Address code (12B)", " t_addr_code : can have ONLY 1 Characters no digits (12B)"},
    {kAssignmentForms | kTb2, "Txt_InUse_DD", {"1", "31", "09", "1.5"}, {"0", "32", "-1", "x"}, "Prevalidation Error - Date (day)", "Value should be between [1,31]", 1},
    {kAssignmentForms | kTb2, "Txt_InUse_MM", {"1", "12", "09", "1.5"}, {"0", "13", "-1", "x"}, "Prevalidation Error - Date (month)", "Value should be between [1,12]"},
    {kAssignmentForms | kTb2, "Txt_InUse_YY", {"2000", "2026", "9999", "2000.0"}, {"1999", "05", "x"}, "Prevalidation Error - Date (year)", "The year must be entered as YYYY and must be after 2000"},
    {kAssignmentForms | kAllotmentForms, "Txt_Exp_DD", {"1", "31", "09", "1.5"}, {"0", "32", "-1", "x"}, "Prevalidation Error - Date (day)", "Value should be between [1,31]", 1},
    {kAssignmentForms | kAllotmentForms, "Txt_Exp_MM", {"1", "12", "09", "1.5"}, {"0", "13", "-1", "x"}, "Prevalidation Error - Date (month)", "Value should be between [1,12]"},
    {kAssignmentForms | formBit(kGS2Allot), "Txt_Exp_YY", {"2000", "2026", "9999", "2000.0"}, {"1999", "05", "x"}, "Prevalidation Error - Date (year)", "The year must be entered as YYYY and must be after 2000"},
    {formBit(kGT2Allot), "Txt_Exp_YY", {"2000", "2026", "9999", "2000.0"}, {"1999", "05", "x"}, "Prevalidation Error - Date (year)", "Invalid year in date of notice"},
    {kAllotmentForms, "Txt_LMZ04_nb_sub_areas", {"1", "9"}, {"0", "10", "-1", "1.0", "1,0", "x"}, "Prevalidation Error - Nb.Sub area(s)", "Value must be between [1-9]"},
    {kAllotmentForms, "Txt_LMZ04_contour_id", {"1", "12345", "0"}, {"1.0", "1,0", "x"}, "Prevalidation Error - Contour Id", "Value must be an integer"},
    {kContourForm, "Txt_LMZ04_contour_id", {"1", "9999", "0000"}, {"12345", "1.0", "1,0", "x"}, "Prevalidation Error - Contour Id", "Value must be 4 digits maximum"},
    {kContourForm, "Txt_LMZ04_nb_test_pts", {"3", "99"}, {"2", "100", "0", "3.5", "3,5", "x"}, "Prevalidation Error - Nb Test pts", "Value must be between [3-99]"},
    {kContourForm, "Txt_LMZ04_Deg_Lat", {"0", "89", "-5", "45.5"}, {"90", "12,5", "N"}, "Prevalidation Error - Latitude", "Value must be between [0,90]"},
    {kContourForm, "Txt_LMZ04_Min_Lat", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Latitude", "Value must be between [0,59]"},
    {kContourForm, "Txt_LMZ04_Sec_Lat", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Latitude", "Value must be between [0,59]"},
    {kContourForm, "Txt_LMZ04_NS", {"N", "S"}, {"E", "W", "1"}, "Prevalidation Error - Latitude", "Value can only be N or S"},
    {kContourForm, "Txt_LMZ04_Deg_Long", {"0", "179", "-5"}, {"180", "12.5", "12,5", "E"}, "Prevalidation Error - Longitude", "Value must be between [0,180]"},
    {kContourForm, "Txt_LMZ04_Min_Long", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Longitude", "Value must be between [0,59]"},
    {kContourForm, "Txt_LMZ04_Sec_Long", {"0", "59", "-1"}, {"60", "5.5", "5,5", "m"}, "Prevalidation Error - Longitude", "Value must be between [0,59]"},
    {kContourForm, "Txt_LMZ04_EW", {"E", "W"}, {"N", "S", "1"}, "Prevalidation Error - Longitude", "Value can only be E or W"},
});

// Any value of theirs tells that something stands on the screen. The last two say so when they hide others.
const std::vector<FreeField> kAnythingGoes = {
    {kAssignmentForms | kAllotmentForms, "Txt_AdmRefID"},
    {kAssignmentForms | kAllotmentForms, "Txt_TrgAdmRefID"},
    {kAssignmentForms | kAllotmentForms, "Txt_LMZ04_SfnID"},
    {kAssignmentForms, "Txt_4A_SiteName"},
    {kAssignmentForms, "Txt_LMZ04_AdmAllotID"},
    {kAssignmentForms, "Combo_B_Adm"},
    {kAssignmentForms, "Combo_4B_Ctry"},
    {kAllotmentForms, "Txt_LMZ04_allot_name"},
    {kTb2, "Txt_12A_OpAgcy"},
    {kTb2, "Txt_TrgAdmRefID"},
    {kAllotmentForms, "Combo_LMZ04_geo_area"},
};
// clang-format on

template <typename Field>
bool has(const std::vector<Field>& fields, FormCode code, std::string_view control) {
  return std::any_of(fields.begin(), fields.end(), [&](const Field& field) {
    return isOneOf(code, field.forms) && field.control == control;
  });
}

class FieldChecks : public testing::Test {
 protected:
  FieldChecks() {
    for (const FormCode code : kFormCodes) forms[code] = std::make_unique<FormAtWork>(code);
  }

  // Leaves the field with the value.
  bool leave(FormAtWork& at, ControlName control, const std::string& value) {
    at.script.boxes.clear();
    at.script.beeps = 0;
    at.work.state.screenIsBlank = true;
    at.screen.setText(control, value);
    at.screen.byUser = true;
    const bool left = mayLeaveField(at.form, control);
    at.screen.byUser = false;
    return left;
  }

  void expectAccepted(FormAtWork& at, ControlName control, const std::string& value) {
    SCOPED_TRACE(std::string(control) + " \"" + value + "\" on form " + std::to_string(at.screen.code()));
    EXPECT_TRUE(leave(at, control, value));
    EXPECT_TRUE(at.script.boxes.empty());
    EXPECT_EQ(at.script.beeps, 0);
    EXPECT_FALSE(at.work.state.screenIsBlank);
    EXPECT_EQ(at.screen.text(control), value);
    EXPECT_TRUE(isAcceptable(at.screen, control));
    at.screen.setText(control, "");
  }

  void expectRefused(FormAtWork& at, ControlName control, const std::string& value, const std::string& title,
                     const std::string& text, int beeps = 0) {
    SCOPED_TRACE(std::string(control) + " \"" + value + "\" on form " + std::to_string(at.screen.code()));
    EXPECT_FALSE(leave(at, control, value));
    ASSERT_EQ(at.script.boxes.size(), 1U);
    EXPECT_EQ(at.script.boxes[0].title, title);
    EXPECT_EQ(at.script.boxes[0].text, text);
    EXPECT_EQ(at.script.boxes[0].icon, BoxIcon::exclamation);
    EXPECT_EQ(at.script.boxes[0].buttons, BoxButtons::ok);
    EXPECT_EQ(at.script.beeps, beeps);
    EXPECT_TRUE(at.work.state.screenIsBlank);
    EXPECT_EQ(at.screen.text(control), value);
    EXPECT_FALSE(isAcceptable(at.screen, control));
    EXPECT_EQ(at.script.boxes.size(), 1U) << "asking tells nothing";
    at.screen.setText(control, "");
  }

  std::map<FormCode, std::unique_ptr<FormAtWork>> forms;
};

TEST_F(FieldChecks, values_up_to_the_limits_are_accepted) {
  for (const FieldCase& field : kCases) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, field.forms)) continue;
      for (const std::string& value : field.accepted) expectAccepted(*at, madeName(field.control), value);
    }
  }
}

TEST_F(FieldChecks, values_beyond_the_limits_give_one_box_each) {
  for (const FieldCase& field : kCases) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, field.forms)) continue;
      for (const std::string& value : field.refused) {
        expectRefused(*at, madeName(field.control), value, field.title, field.text, field.beeps);
      }
    }
  }
}

TEST_F(FieldChecks, empty_fields_are_accepted_and_leave_the_screen_as_blank_as_it_was) {
  for (const FieldCase& field : kCases) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, field.forms)) continue;
      SCOPED_TRACE(field.control);
      EXPECT_TRUE(leave(*at, madeName(field.control), ""));
      EXPECT_TRUE(at->script.boxes.empty());
      EXPECT_TRUE(at->work.state.screenIsBlank);
      EXPECT_TRUE(isAcceptable(at->screen, madeName(field.control)));
    }
  }
}

TEST_F(FieldChecks, every_row_has_a_case_with_its_words) {
  for (const FieldCheck& check : kFieldChecks) {
    if (check.test == FieldTest::dateWithParts || check.test == FieldTest::fourOrMore) continue;
    for (const FormCode code : kFormCodes) {
      if (!isOneOf(code, check.forms)) continue;
      const auto isItsCase = [&](const FieldCase& field) {
        return isOneOf(code, field.forms) && field.control.starts_with(std::string_view(check.control)) &&
               field.title == check.title && field.text == check.message;
      };
      EXPECT_TRUE(std::any_of(kCases.begin(), kCases.end(), isItsCase))
          << std::string_view(check.control) << " on " << code;
    }
  }
}

TEST_F(FieldChecks, every_case_is_on_its_form) {
  for (const auto& [code, at] : forms) {
    for (const FieldCase& field : kCases) {
      EXPECT_TRUE(!isOneOf(code, field.forms) || at->screen.has(madeName(field.control))) << field.control;
    }
    for (const FreeField& field : kAnythingGoes) {
      EXPECT_TRUE(!isOneOf(code, field.forms) || at->screen.has(madeName(field.control))) << field.control;
    }
  }
}

TEST_F(FieldChecks, identifiers_and_names_only_tell_that_something_stands_on_the_screen) {
  for (const FreeField& field : kAnythingGoes) {
    for (const auto& [code, at] : forms) {
      if (isOneOf(code, field.forms)) expectAccepted(*at, madeName(field.control), "1x,.?");
    }
  }
}

TEST_F(FieldChecks, no_other_field_is_checked) {
  for (const auto& [code, at] : forms) {
    std::set<std::string> others;
    at->screen.forEach([&, formCode = code](const Control& control) {
      const bool holdsText = control.kind == ControlKind::text || control.kind == ControlKind::memo ||
                             control.kind == ControlKind::combo;
      if (!holdsText || has(kCases, formCode, control.name) || has(kAnythingGoes, formCode, control.name)) {
        return;
      }
      others.insert(control.name);
    });
    for (const std::string& control : others) {
      SCOPED_TRACE(control + " on form " + std::to_string(code));
      EXPECT_TRUE(leave(*at, madeName(control), "1x,.?"));
      EXPECT_TRUE(at->script.boxes.empty());
      EXPECT_TRUE(at->work.state.screenIsBlank);
      EXPECT_EQ(at->screen.text(madeName(control)), "1x,.?");
      EXPECT_TRUE(isAcceptable(at->screen, madeName(control)));
    }
  }
}

TEST_F(FieldChecks, fields_without_a_check_on_their_form_are_those_that_are_told) {
  const FormAtWork& at = *forms[kGT1Assign];
  for (const ControlName control : ControlNames{"Txt_3A1_CallSign", "Txt_PlanAdm_RefID", "Txt_EmailAddr",
                                                "Txt_notified_Rmks", "Txt_KV19_assoc_allot_sfnID"}) {
    EXPECT_TRUE(at.screen.has(control)) << control;
    EXPECT_FALSE(has(kCases, kGT1Assign, control) || has(kAnythingGoes, kGT1Assign, control)) << control;
  }
}

TEST_F(FieldChecks, a_control_that_the_form_does_not_have_may_be_left) {
  FormAtWork& at = *forms[kTB5];
  EXPECT_TRUE(mayLeaveField(at.form, madeName("qt_spinbox_lineedit")));
  EXPECT_TRUE(isAcceptable(at.screen, madeName("qt_spinbox_lineedit")));
  EXPECT_TRUE(at.script.boxes.empty());
}

TEST_F(FieldChecks, latitude_of_90_is_refused_89_and_minus_5_are_not) {
  FormAtWork& at = *forms[kGS1Assign];
  expectRefused(at, "Txt_4C_Deg_Lat", "90", "Prevalidation Error - Latitude", "Value must be between [0,90]");
  expectAccepted(at, "Txt_4C_Deg_Lat", "89");
  expectAccepted(at, "Txt_4C_Deg_Lat", "-5");
}

TEST_F(FieldChecks, a_refused_value_can_be_put_right) {
  FormAtWork& at = *forms[kGS1Assign];
  expectRefused(at, "Txt_9E_AntHgt", "801", "Prevalidation Error - Height of antenna",
                "Value must be between [0, 800]");
  expectAccepted(at, "Txt_9E_AntHgt", "800");
}

TEST_F(FieldChecks, a_single_height_is_not_compared_with_9eb) {
  FormAtWork& at = *forms[kGS1Assign];
  at.screen.setText("Txt_9EB_Eff_hgtmax", "100");
  expectAccepted(at, "Txt_9EC_azm000", "3000");
}

TEST_F(FieldChecks, short_times_are_asked_for_as_hhmm_under_the_title_of_the_start_time) {
  for (const FormCode code : {kGS1Assign, kGT1Assign}) {
    for (const ControlName control : ControlNames{"Txt_10B_Ophhfr", "Txt_10B_Ophhto"}) {
      for (const char* const value : {"930", "1", "9:3", "xy"}) {
        expectRefused(*forms[code], control, value, "Prevalidation Error - Start time",
                      "The time must be entered as HHMM");
      }
    }
  }
}

TEST_F(FieldChecks, wrong_hours_and_minutes_are_told_before_the_range_of_the_start_time) {
  FormAtWork& at = *forms[kGT1Assign];
  const std::string title = "Prevalidation Error - Start time";
  expectRefused(at, "Txt_10B_Ophhfr", "2400", title,
                " where the first 2 digits HH should [0,23]\r\nValue must be between [0000,2359]");
  expectRefused(at, "Txt_10B_Ophhfr", "-100", title,
                " where the first 2 digits HH should [0,23]\r\nValue must be between [0000,2359]");
  expectRefused(at, "Txt_10B_Ophhfr", "1260", title,
                " where the last 2 digits MM should [0,59]\r\nValue must be between [0000,2359]");
  expectRefused(at, "Txt_10B_Ophhfr", "2460", title,
                " where the first 2 digits HH should [0,23]\r\n where the last 2 digits MM should [0,59]\r\n"
                "Value must be between [0000,2359]");
}

TEST_F(FieldChecks, wrong_hours_and_minutes_are_told_before_the_range_of_the_stop_time) {
  FormAtWork& at = *forms[kGS1Assign];
  const std::string title = "Prevalidation Error - Stop time";
  expectRefused(at, "Txt_10B_Ophhto", "2500", title,
                " where the first 2 digits HH should [1,24]\r\nValue must be between [0001,2400]");
  expectRefused(at, "Txt_10B_Ophhto", "0030", title,
                " where the first 2 digits HH should [1,24]\r\nValue must be between [0001,2400]");
  expectRefused(at, "Txt_10B_Ophhto", "1260", title,
                " where the last 2 digits MM should [0,59]\r\nValue must be between [0001,2400]");
  expectRefused(at, "Txt_10B_Ophhto", "0060", title,
                " where the first 2 digits HH should [1,24]\r\n where the last 2 digits MM should [0,59]\r\n"
                "Value must be between [0001,2400]");
}

TEST_F(FieldChecks, an_operating_agency_gets_its_leading_zeros) {
  for (const FormCode code : {kGS1Assign, kGT1Assign, kTB2}) {
    FormAtWork& at = *forms[code];
    for (const auto& [typed, kept] :
         {std::pair("12", "012"), {"7", "007"}, {"123", "123"}, {"1234", "1234"}}) {
      EXPECT_TRUE(leave(at, "Txt_12A_OpAgcy", typed));
      EXPECT_EQ(at.screen.text("Txt_12A_OpAgcy"), kept);
      EXPECT_FALSE(at.work.state.screenIsBlank);
      EXPECT_TRUE(at.script.boxes.empty());
    }
    EXPECT_TRUE(leave(at, "Txt_12A_OpAgcy", ""));
    EXPECT_EQ(at.screen.text("Txt_12A_OpAgcy"), "");
  }
}

TEST_F(FieldChecks, the_copy_to_the_master_register_pads_any_operating_agency_without_a_word) {
  FormAtWork& at = *forms[kTB2];
  EXPECT_TRUE(leave(at, "Txt_12A_OpAgcy", "A"));
  EXPECT_EQ(at.screen.text("Txt_12A_OpAgcy"), "00A");
  EXPECT_TRUE(at.script.boxes.empty());
}

TEST_F(FieldChecks, an_operating_agency_that_is_asked_about_stays_as_it_is) {
  FormAtWork& at = *forms[kGS1Assign];
  at.screen.setText("Txt_12A_OpAgcy", "12");
  EXPECT_TRUE(isAcceptable(at.screen, "Txt_12A_OpAgcy"));
  EXPECT_EQ(at.screen.text("Txt_12A_OpAgcy"), "12");
}

struct DateCase {
  FormSet forms;
  std::string boxes;
};
const std::vector<DateCase> kDates = {{kAssignmentForms | kTb2, "Txt_InUse_"},
                                      {kAssignmentForms | kAllotmentForms, "Txt_Exp_"}};

TEST_F(FieldChecks, a_day_that_is_not_in_the_calendar_is_refused_in_each_of_the_three_boxes) {
  for (const DateCase& date : kDates) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, date.forms)) continue;
      for (const char* const part : {"DD", "MM", "YY"}) {
        at->screen.setText(madeName(date.boxes + "DD"), "31");
        at->screen.setText(madeName(date.boxes + "MM"), "2");
        at->screen.setText(madeName(date.boxes + "YY"), "2005");
        const std::string box = date.boxes + part;
        expectRefused(*at, madeName(box), std::string(at->screen.text(madeName(box))),
                      "Prevalidation Error - InValid Date", "Invalid date");
      }
    }
  }
}

TEST_F(FieldChecks, a_day_of_the_calendar_is_accepted_in_each_of_the_three_boxes) {
  for (const DateCase& date : kDates) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, date.forms)) continue;
      for (const char* const part : {"DD", "MM", "YY"}) {
        at->screen.setText(madeName(date.boxes + "DD"), "29");
        at->screen.setText(madeName(date.boxes + "MM"), "02");
        at->screen.setText(madeName(date.boxes + "YY"), "2004");
        const std::string box = date.boxes + part;
        expectAccepted(*at, madeName(box), std::string(at->screen.text(madeName(box))));
      }
    }
  }
}

TEST_F(FieldChecks, a_date_is_looked_up_in_the_calendar_only_when_it_is_whole) {
  for (const DateCase& date : kDates) {
    for (const auto& [code, at] : forms) {
      if (!isOneOf(code, date.forms)) continue;
      at->screen.setText(madeName(date.boxes + "MM"), "2");
      expectAccepted(*at, madeName(date.boxes + "DD"), "31");
      at->screen.setText(madeName(date.boxes + "YY"), "2005");
      at->screen.setText(madeName(date.boxes + "DD"), "31");
      EXPECT_TRUE(leave(*at, madeName(date.boxes + "MM"), "")) << "an emptied box is accepted";
      EXPECT_TRUE(at->script.boxes.empty());
    }
  }
}

TEST_F(FieldChecks, a_part_that_is_wrong_by_itself_gives_its_own_box_alone) {
  FormAtWork& at = *forms[kGS1Assign];
  at.screen.setText("Txt_InUse_MM", "2");
  at.screen.setText("Txt_InUse_YY", "2005");
  expectRefused(at, "Txt_InUse_DD", "32", "Prevalidation Error - Date (day)",
                "Value should be between [1,31]", 1);
}

TEST_F(FieldChecks, a_year_of_five_digits_or_a_day_with_a_fraction_is_no_date) {
  FormAtWork& at = *forms[kGS1Assign];
  at.screen.setText("Txt_InUse_DD", "3");
  at.screen.setText("Txt_InUse_MM", "5");
  expectRefused(at, "Txt_InUse_YY", "20005", "Prevalidation Error - InValid Date", "Invalid date");
  at.screen.setText("Txt_InUse_YY", "2005");
  expectRefused(at, "Txt_InUse_DD", "3.5", "Prevalidation Error - InValid Date", "Invalid date");
}

TEST_F(FieldChecks, the_dates_of_use_and_of_expiry_are_two) {
  FormAtWork& at = *forms[kGS1Assign];
  at.screen.setText("Txt_InUse_MM", "2");
  at.screen.setText("Txt_InUse_YY", "2005");
  expectAccepted(at, "Txt_Exp_DD", "31");
}

}  // namespace
}  // namespace zamo::test
