#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/save_rules_at_work.h"

namespace zamo::test {
namespace {

const std::vector<FormCode> kBoth = {kGS2Allot, kGT2Allot};
const std::vector<FormCode> kGS2 = {kGS2Allot};
const std::vector<FormCode> kGT2 = {kGT2Allot};

class FamilySaveRules : public SaveRules {
 protected:
  void expectIdentity(const std::vector<LineCase>& cases) {
    expectLines(
        cases, [this](const Screen& screen) { return ask(screen); }, asIdentity);
  }
  void expectFurther(const std::vector<LineCase>& cases) {
    expectLines(
        cases, [this](const Screen& screen) { return ask(screen); }, asFurther);
  }
  // What an empty form is told after some entries.
  Told askEmpty(FormCode code, const Entries& entries = {}) {
    Screen screen(code);
    makeControls(screen);
    put(screen, entries);
    return ask(screen);
  }
};

using AllotmentSaveRules = FamilySaveRules;
using ContourSaveRules = FamilySaveRules;
using TbSaveRules = FamilySaveRules;

TEST_F(FamilySaveRules, complete_forms_are_told_nothing_and_the_map_is_not_asked) {
  expectFurther({{{kGS2Allot, kGT2Allot, kGA1SubAllot, kTB5, kTB3, kTB2}, {}, {}, ""}});
  EXPECT_TRUE(pairs.empty());
}

TEST_F(AllotmentSaveRules, each_field_that_identifies_the_notice_is_asked_for) {
  const Entries mod = {{"OptInt_Mod", "set"}, {"Txt_TrgAdmRefID", "F-A-0000"}};
  // clang-format off
  expectIdentity({
      {kBoth, {},  {{"Combo_B_Adm", ""}},          "Notifying Administration : t_adm (B)\r\n"},
      {kBoth, {},  {{"Txt_AdmRefID", ""}},         "Administration's unique ID of the notice : t_adm_ref_id \r\n"},
      {kBoth, mod, {{"Txt_TrgAdmRefID", ""}},      "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n"},
      {kBoth, {},  {{"Txt_TrgAdmRefID", ""}},      ""},
      {kBoth, {},  {{"Combo_4B_Ctry", ""}},        "Country in which the transmitter is sited : t_ctry (4B)\r\n"},
      {kBoth, {},  {{"Combo_4B_Ctry", "D"}},       "F cannot notify for D\r\n"},
      {kBoth, {},  {{"Combo_4B_Ctry", "REU"}},     ""},
      {kGS2,  {},  {{"Combo_KV19_FreqAssgn", ""}}, "Assign Frequency : t_freq_assgn\r\n"},
      {kGT2,  {},  {{"Txt_KV19_freqAssgn", ""}},   "Assign Frequency : t_freq_assgn\r\n"},
      {kGT2,  {},  {{"Txt_KV19_freqAssgn", "475"}}, ""},
      {kBoth, {},  {{"Txt_LMZ04_allot_name", ""}}, "Digital broadcasting allotment name : t_allot_name\r\n"},
  });
  // clang-format on
}

TEST_F(AllotmentSaveRules, the_order_of_sound) {
  EXPECT_EQ(askEmpty(kGS2Allot, {{"OptInt_Mod", "set"}}),
            identity("To save a notice the following Mandatory fields are necessary : \r\n"
                     "Notifying Administration : t_adm (B)\r\n"
                     "Administration's unique ID of the notice : t_adm_ref_id \r\n"
                     "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n"
                     "Country in which the transmitter is sited : t_ctry (4B)\r\n"
                     "Assign Frequency : t_freq_assgn\r\n"
                     "Digital broadcasting allotment name : t_allot_name\r\n"));
  EXPECT_EQ(askEmpty(kGS2Allot, {{"OptInt_Mod", "set"}, {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "D"}}),
            identity("To save a notice the following Mandatory fields are necessary : \r\n"
                     "Administration's unique ID of the notice : t_adm_ref_id \r\n"
                     "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n"
                     "F cannot notify for D\r\n"
                     "Assign Frequency : t_freq_assgn\r\n"
                     "Digital broadcasting allotment name : t_allot_name\r\n"));
}

TEST_F(AllotmentSaveRules, the_order_of_television) {
  EXPECT_EQ(askEmpty(kGT2Allot, {{"OptInt_Mod", "set"}}),
            identity("To save a notice the following Mandatory fields are necessary : \r\n"
                     "Notifying Administration : t_adm (B)\r\n"
                     "Administration's unique ID of the notice : t_adm_ref_id \r\n"
                     "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n"
                     "Country in which the transmitter is sited : t_ctry (4B)\r\n"
                     "Digital broadcasting allotment name : t_allot_name\r\n"
                     "Assign Frequency : t_freq_assgn\r\n"));
  EXPECT_EQ(askEmpty(kGT2Allot, {{"OptInt_Mod", "set"}, {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "D"}}),
            identity("To save a notice the following Mandatory fields are necessary : \r\n"
                     "F cannot notify for D\r\n"
                     "Administration's unique ID of the notice : t_adm_ref_id \r\n"
                     "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n"
                     "Digital broadcasting allotment name : t_allot_name\r\n"
                     "Assign Frequency : t_freq_assgn\r\n"));
}

TEST_F(AllotmentSaveRules, each_further_field_is_asked_for) {
  // clang-format off
  expectFurther({
      {kGS2,  {}, {{"Combo_LMZ04_RefPlan", ""}},     "Ref. planning configuration : t_ref_plan_cfg \r\n"},
      {kGT2,  {}, {{"Combo_LMZ04_RefPlan", ""}},     "Ref. planning configuration : t_ref_plan_cfg\r\n"},
      {kGT2,  {}, {{"Combo_LMZ04_TypRefNetwk", ""}}, "Type of reference network : t_typ_ref_netwk\r\n"},
      {kBoth, {}, {{"Combo_9D_Polariz", ""}},        "Polarization : t_polar (9D)\r\n"},
      {kBoth, {}, {{"Combo_KV19_Plan", ""}},         "Plan entry : t_plan_entry \r\n"},
      {kBoth, {}, {{"Combo_KV19_PubReq", ""}},       "Publication Request : t_is_pub_req \r\n"},
      {kGS2,  {}, {{"Txt_LMZ04_nb_sub_areas", ""}},
       "Enter either the Number of sub-areas within this allotment : t_nb_sub_areas\r\n"
       "      or the Country boundary if all the test points are on it's boundary : t_geo_area \r\n"},
      {kGT2,  {}, {{"Txt_LMZ04_nb_sub_areas", ""}},
       "Enter either the Number of sub-areas within this allotment : t_nb_sub_areas\r\n"
       "      or the Country boundary if all the test points are on it's boundary : t_geo_area\r\n"},
      {kBoth, {}, {{"Txt_LMZ04_nb_sub_areas", ""}, {"Combo_LMZ04_geo_area", "F"}}, ""},
  });
  // clang-format on
}

TEST_F(AllotmentSaveRules, the_number_of_sub_areas_is_that_of_the_listed_contours) {
  const std::string gs2 = "The nb of Sub_area and the nb of Contours entered is INCONSISTENT\r\n";
  const std::string gt2 = "The nb of sub_area and the nb of Contours entered is INCONSISTENT\r\n";
  for (const Entry& change : Entries{{"ListBoxContourID", "11"},
                                     {"ListBoxContourID", "11|12|13"},
                                     {"ListBoxContourID", ""},
                                     {"Txt_LMZ04_nb_sub_areas", "3"},
                                     {"Txt_LMZ04_nb_sub_areas", "x"}}) {
    expectFurther({{kGS2, {}, {change}, gs2}, {kGT2, {}, {change}, gt2}});
  }
  expectFurther({{kBoth, {}, {{"Txt_LMZ04_nb_sub_areas", "02"}}, ""}});
}

TEST_F(AllotmentSaveRules, the_plan_entry_governs_the_network) {
  // The check's line is closed, and the list closes the whole once more.
  // clang-format off
  expectFurther({
      {kBoth, {}, {{"Txt_LMZ04_SfnID", ""}}, "For t_plan_entry = 3, t_sfn_id MUST be provided\r\n\r\n"},
      {kBoth, {}, {{"Combo_KV19_Plan", "5"}}, "For t_plan_entry = 5, t_sfn_id MUST be NOT be provided\r\n\r\n"},
      {kBoth, {{"Combo_KV19_Plan", "4"}}, {{"Txt_LMZ04_SfnID", ""}}, "For t_plan_entry = 4, t_sfn_id MUST be provided\r\n\r\n"},
      {kBoth, {{"Txt_LMZ04_SfnID", ""}, {"Combo_KV19_Plan", "5"}}, {}, ""},
  });
  // clang-format on
}

TEST_F(AllotmentSaveRules, the_administration_notifies_for_the_area_too) {
  const Entries whole = {
      {"Txt_LMZ04_nb_sub_areas", ""}, {"ListBoxContourID", ""}, {"Combo_LMZ04_geo_area", "F"}};
  expectFurther({{kBoth, whole, {{"Combo_LMZ04_geo_area", "D"}}, "F cannot notify for D\r\n"},
                 {kBoth, whole, {{"Combo_LMZ04_geo_area", "REU"}}, ""}});
}

TEST_F(AllotmentSaveRules, the_further_lines_come_in_their_order) {
  const Entries change = {{"Combo_LMZ04_RefPlan", ""}, {"Combo_9D_Polariz", ""},
                          {"Txt_LMZ04_SfnID", ""},     {"Combo_KV19_PubReq", ""},
                          {"ListBoxContourID", ""},    {"Combo_LMZ04_geo_area", "D"},
                          {"Combo_KV19_Plan", "3"}};
  expectFurther(
      {{kGS2,
        {},
        change,
        "Ref. planning configuration : t_ref_plan_cfg \r\n"
        "Polarization : t_polar (9D)\r\n"
        "Publication Request : t_is_pub_req \r\n"
        "The nb of Sub_area and the nb of Contours entered is INCONSISTENT\r\n"
        "For t_plan_entry = 3, t_sfn_id MUST be provided\r\n"
        "\r\n"
        "F cannot notify for D\r\n"},
       {kGT2,
        {},
        {{"Combo_LMZ04_RefPlan", ""},
         {"Combo_LMZ04_TypRefNetwk", ""},
         {"Combo_9D_Polariz", ""},
         {"Combo_KV19_Plan", ""},
         {"Combo_KV19_PubReq", ""},
         {"Txt_LMZ04_nb_sub_areas", ""}},
        "Ref. planning configuration : t_ref_plan_cfg\r\n"
        "Type of reference network : t_typ_ref_netwk\r\n"
        "Polarization : t_polar (9D)\r\n"
        "Plan entry : t_plan_entry \r\n"
        "Publication Request : t_is_pub_req \r\n"
        "Enter either the Number of sub-areas within this allotment : t_nb_sub_areas\r\n"
        "      or the Country boundary if all the test points are on it's boundary : t_geo_area\r\n"}});
}

TEST_F(ContourSaveRules, each_field_is_asked_for) {
  const std::vector<FormCode> ga1 = {kGA1SubAllot};
  // clang-format off
  expectIdentity({
      {ga1, {}, {{"Combo_B_Adm", ""}},           "Notifying Administration : t_adm (B)\r\n"},
      {ga1, {}, {{"Combo_4B_Ctry", ""}},         "Country in which the transmitter is sited : t_ctry (4B)\r\n"},
      {ga1, {}, {{"Combo_4B_Ctry", "D"}},        "F cannot notify for D\r\n"},
      {ga1, {}, {{"Combo_4B_Ctry", "REU"}},      ""},
      {ga1, {}, {{"Txt_LMZ04_contour_id", ""}},  "Unique contour ID : t_contour_id\r\n"},
      {ga1, {}, {{"Txt_LMZ04_nb_test_pts", ""}}, "Number of boundary test points : t_nb_test_pts\r\n"},
      {ga1, {}, {{"Txt_LMZ04_nb_test_pts", "4"}}, "The list of Test points is INCOMPLETE\r\n"},
      {ga1, {}, {{"Txt_LMZ04_nb_test_pts", "2"}}, "The list of Test points is INCOMPLETE\r\n"},
      {ga1, {}, {{"Txt_LMZ04_nb_test_pts", "03"}}, ""},
  });
  // clang-format on
}

TEST_F(ContourSaveRules, the_lines_come_in_their_order) {
  EXPECT_EQ(askEmpty(kGA1SubAllot),
            identity("To save a notice the following Mandatory fields are necessary : \r\n"
                     "Notifying Administration : t_adm (B)\r\n"
                     "Country in which the transmitter is sited : t_ctry (4B)\r\n"
                     "Unique contour ID : t_contour_id\r\n"
                     "Number of boundary test points : t_nb_test_pts\r\n"));
  EXPECT_EQ(
      askEmpty(kGA1SubAllot, {{"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "D"}, {"Txt_LMZ04_nb_test_pts", "3"}}),
      identity("To save a notice the following Mandatory fields are necessary : \r\n"
               "F cannot notify for D\r\n"
               "Unique contour ID : t_contour_id\r\n"
               "The list of Test points is INCOMPLETE\r\n"));
}

const Entries kTb2Target = {{"Txt_TrgFreq", "474"},   {"Txt_4C_Deg_Long", "2"}, {"Txt_4C_Min_Long", "20"},
                            {"Txt_4C_Sec_Long", "5"}, {"Txt_4C_EW", "E"},       {"Txt_4C_Deg_Lat", "48"},
                            {"Txt_4C_Min_Lat", "51"}, {"Txt_4C_Sec_Lat", "30"}, {"Txt_4C_NS", "N"}};

TEST_F(TbSaveRules, each_field_is_asked_for) {
  const std::vector<FormCode> all = {kTB5, kTB3, kTB2}, atTarget = {kTB5, kTB3}, tb5 = {kTB5}, tb2 = {kTB2};
  // clang-format off
  expectIdentity({
      {all,      {}, {{"Combo_B_Adm", ""}},      "Notifying Administration : t_adm (B)\r\n"},
      {atTarget, {}, {{"Txt_TrgAdmRefID", ""}},  "Unique ID code of the assignment/allotment to which the intent is to apply : t_trg_adm_ref_id \r\n"},
      {tb5,      {}, {{"Opt_Art5", ""}},         "Fragment : t_fragment\r\n"},
      {tb5,      {}, {{"Opt_Art4", "set"}},      ""},
      {tb2,      {}, {{"Txt_PlanAdmRefID", ""}}, "Unique ID code of the assignment to be copied to Master Register : t_plan_adm_ref_id \r\n"},
      {tb2,      {}, {{"Txt_InUse_DD", ""}},     "Date of bringing into use : t_d_inuse \r\n"},
      {tb2,      {}, {{"Txt_InUse_MM", ""}},     "Date of bringing into use : t_d_inuse \r\n"},
      {tb2,      {}, {{"Txt_InUse_YY", ""}},     "Date of bringing into use : t_d_inuse \r\n"},
      {tb2,      {}, {{"Txt_12B_AddrCde", ""}},  " Address code : t_addr_code \r\n"},
      {tb2,      {}, {{"Txt_TrgAdmRefID", "F-0002"}}, ""},
      {tb2,      {}, kTb2Target,                 ""},
      {tb2, kTb2Target, {{"Txt_TrgFreq", ""}},   "Target Assign Frequency : t_trg_freq_assgn\r\n"},
  });
  // clang-format on
}

TEST_F(TbSaveRules, the_target_of_tb2_is_a_frequency_with_both_coordinates) {
  const std::vector<FormCode> tb2 = {kTB2};
  for (const char* part : {"Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_EW"}) {
    expectIdentity({{tb2, kTb2Target, {{part, ""}}, "Target Longitude : t_trg_long \r\n"},
                    {tb2, {}, {{part, "1"}}, ""},
                    {tb2, kTb2Target, {{"Txt_TrgFreq", ""}, {part, ""}}, ""}});
  }
  for (const char* part : {"Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_4C_NS"}) {
    expectIdentity({{tb2, kTb2Target, {{part, ""}}, "Target Latitude : t_trg_lat  \r\n"},
                    {tb2, {}, {{part, "1"}}, ""},
                    {tb2, kTb2Target, {{"Txt_TrgFreq", ""}, {part, ""}}, ""}});
  }
}

TEST_F(TbSaveRules, the_lines_come_in_their_order) {
  const std::string target =
      "To save a notice the following Mandatory fields are necessary : \r\n"
      "Notifying Administration : t_adm (B)\r\n"
      "Unique ID code of the assignment/allotment to which the intent is to apply : t_trg_adm_ref_id \r\n";
  EXPECT_EQ(askEmpty(kTB5), identity(target + "Fragment : t_fragment\r\n"));
  EXPECT_EQ(askEmpty(kTB3), identity(target));
  EXPECT_EQ(
      askEmpty(kTB2, {{"Txt_TrgFreq", "474"}}),
      identity("To save a notice the following Mandatory fields are necessary : \r\n"
               "Notifying Administration : t_adm (B)\r\n"
               "Unique ID code of the assignment to be copied to Master Register : t_plan_adm_ref_id \r\n"
               "Date of bringing into use : t_d_inuse \r\n"
               " Address code : t_addr_code \r\n"
               "Target Longitude : t_trg_long \r\n"
               "Target Latitude : t_trg_lat  \r\n"));
}

struct EnoughCase {
  FormCode code;
  std::vector<ControlName> fields;
};

// clang-format off
const std::vector<EnoughCase> kEnough = {
    {kGS1Assign,   {"Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_AdmRefID"}},
    {kGT1Assign,   {"Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_Deg_Lat", "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_AdmRefID", "Txt_TrgAdmRefID"}},
    {kGS2Allot,    {"Txt_AdmRefID", "Txt_TrgAdmRefID"}},
    {kGT2Allot,    {"Txt_AdmRefID", "Txt_TrgAdmRefID"}},
    {kGA1SubAllot, {"Txt_LMZ04_contour_id"}},
    {kTB2,         {"Txt_PlanAdmRefID"}},
    {kTB3,         {"Txt_TrgAdmRefID"}},
    {kTB5,         {"Txt_TrgAdmRefID"}},
};
// clang-format on

TEST(EnoughFields, one_identifying_field_is_enough) {
  for (const EnoughCase& one : kEnough) {
    for (const ControlName field : one.fields) {
      Screen screen(one.code);
      makeControls(screen);
      EXPECT_FALSE(hasEnoughFields(screen)) << one.code;
      screen.setText(field, "1");
      EXPECT_TRUE(hasEnoughFields(screen)) << one.code << ' ' << field;
    }
  }
}

TEST(EnoughFields, everything_else_is_not_enough) {
  for (const EnoughCase& one : kEnough) {
    Screen screen(one.code);
    makeControls(screen);
    complete(screen);
    std::vector<std::string> boxes;
    screen.forEach([&boxes](const Control& control) {
      if (control.kind == ControlKind::text) boxes.push_back(control.name);
    });
    for (const std::string& box : boxes) screen.setText(madeName(box), "1");
    for (const ControlName field : one.fields) screen.setText(field, "");
    EXPECT_FALSE(hasEnoughFields(screen)) << one.code;
  }
}

}  // namespace
}  // namespace zamo::test
