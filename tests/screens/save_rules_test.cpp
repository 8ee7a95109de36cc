#include "screens/save_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map/real_map.h"
#include "screens/save_rules_at_work.h"

namespace zamo::test {
namespace {

const std::vector<FormCode> kBoth = {kGS1Assign, kGT1Assign};
const std::vector<FormCode> kGS1 = {kGS1Assign};
const std::vector<FormCode> kGT1 = {kGT1Assign};

const Entries kNoEntries;
const Entries kMod4 = {{"OptInt_Mod", "set"}, {"Txt_TrgAdmRefID", "F-0000"}};
const Entries kTargetPlace = {
    {"Txt_trg_freq_assgn", "474"}, {"Txt_trg_long_DD", "2"}, {"Txt_trg_long_MM", "21"},
    {"Txt_trg_long_SS", "6"},      {"Txt_trg_long_EW", "E"}, {"Txt_trg_lat_DD", "48"},
    {"Txt_trg_lat_MM", "52"},      {"Txt_trg_lat_SS", "31"}, {"Txt_trg_lat_NS", "N"}};

Entries joined(Entries first, const Entries& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

// Modifications under Art. 5, with a target by its place or its identifier.
const Entries kMod5ByPlace = joined(joined(kUnderArt5, {{"OptInt_Mod", "set"}}), kTargetPlace);
const Entries kMod5ById = joined(kUnderArt5, kMod4);
// As the first one, but under neither article.
const Entries kModByPlace = joined({{"OptInt_Mod", "set"}, {"Opt_Art4", ""}}, kTargetPlace);

const std::string kNoTarget =
    "Administration's unique ID of the notice to modify : t_trg_adm_ref_id Or \r\n"
    "Target assign frequency t_trg_freq_assgn AND target coordinates t_trg_long, t_trg_lat\r\n";

class AssignmentSaveRules : public SaveRules {
 protected:
  void expectIdentity(const std::vector<LineCase>& cases) {
    expectLines(
        cases, [this](const Screen& screen) { return ask(screen); }, asIdentity);
  }
  void expectFurther(const std::vector<LineCase>& cases) {
    expectLines(
        cases, [this](const Screen& screen) { return ask(screen); }, asFurther);
  }
};

TEST_F(AssignmentSaveRules, a_complete_form_is_told_nothing) {
  expectFurther({{kBoth, kNoEntries, kNoEntries, ""},
                 {kBoth, kUnderArt5, kNoEntries, ""},
                 {kBoth, kMod4, kNoEntries, ""},
                 {kBoth, kMod5ByPlace, kNoEntries, ""},
                 {kBoth, kMod5ById, kNoEntries, ""},
                 {kBoth, kModByPlace, kNoEntries, ""}});
}

TEST_F(AssignmentSaveRules, each_field_that_identifies_the_notice_is_asked_for) {
  // clang-format off
  expectIdentity({
      {kBoth, {}, {{"Combo_B_Adm", ""}},          "Notifying Administration : t_adm (B)\r\n"},
      {kBoth, {}, {{"Combo_4B_Ctry", ""}},        "Country in which the transmitter is sited : t_ctry (4B)\r\n"},
      {kBoth, {}, {{"Combo_4B_Ctry", "D"}},       "F cannot notify for D\r\n"},
      {kBoth, {}, {{"Txt_AdmRefID", ""}},         "Administration's unique ID of the notice : t_adm_ref_id \r\n"},
      {kBoth, {}, {{"Txt_4C_Deg_Long", ""}},      "Longitude : t_long (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_Min_Long", ""}},      "Longitude : t_long (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_Sec_Long", ""}},      "Longitude : t_long (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_EW", ""}},            "Longitude : t_long (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_Deg_Lat", ""}},       "Latitude : t_lat (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_Min_Lat", ""}},       "Latitude : t_lat (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_Sec_Lat", ""}},       "Latitude : t_lat (4C) \r\n"},
      {kBoth, {}, {{"Txt_4C_NS", ""}},            "Latitude : t_lat (4C) \r\n"},
      {kBoth, {}, {{"Txt_4A_SiteName", ""}},      "Name of the location of the transmitting station : t_sitename (4A)\r\n"},
      {kGS1,  {}, {{"Combo_KV19_FreqAssgn", ""}}, "Assign Frequency : t_freq_assgn\r\n"},
      {kGT1,  {}, {{"Txt_KV19_freqAssgn", ""}},   "Assign Frequency : t_freq_assgn\r\n"},
  });
  // clang-format on
}

TEST_F(AssignmentSaveRules, an_administration_notifies_for_the_areas_of_its_group) {
  for (const FormCode code : kBoth) {
    Screen screen(code);
    makeControls(screen);
    complete(screen);
    screen.setText("Combo_4B_Ctry", "REU");
    bool flag = true;
    EXPECT_EQ(getIdentifyingSaveRules(screen, flag), "");
    EXPECT_FALSE(flag);
  }
}

TEST_F(AssignmentSaveRules, under_article_4_a_modification_is_asked_for_the_identifier_of_its_target) {
  const std::string line = "Administration's unique ID of the notice to modify : t_trg_adm_ref_id \r\n";
  expectIdentity({{kBoth, kMod4, {{"Txt_TrgAdmRefID", ""}}, line},
                  {kBoth, joined(kMod4, kTargetPlace), {{"Txt_TrgAdmRefID", ""}}, line},
                  {kBoth, kNoEntries, {{"Txt_TrgAdmRefID", ""}}, ""}});
}

TEST_F(AssignmentSaveRules,
       otherwise_a_modification_is_asked_for_the_identifier_or_the_whole_place_of_its_target) {
  for (const Entry& part : kTargetPlace) {
    expectIdentity({{kBoth, kMod5ByPlace, {{part.control, ""}}, kNoTarget},
                    {kBoth, kModByPlace, {{part.control, ""}}, kNoTarget},
                    {kBoth, joined(kMod5ByPlace, kMod4), {{part.control, ""}}, ""},
                    {kBoth, joined(kMod5ByPlace, {{"OptInt_Add", "set"}}), {{part.control, ""}}, ""}});
  }
  expectIdentity({{kBoth, kMod5ById, {{"Txt_TrgAdmRefID", ""}}, kNoTarget}});
}

TEST_F(AssignmentSaveRules, a_television_frequency_is_checked_for_its_country) {
  // clang-format off
  expectIdentity({
      {kGT1, {}, {{"Txt_KV19_freqAssgn", "475"}}, "Invalid DVB-T frequency in Bands IV and V\r\n"},
      {kGT1, {}, {{"Txt_KV19_freqAssgn", "475"}, {"Combo_4B_Ctry", ""}}, "Country in which the transmitter is sited : t_ctry (4B)\r\n"},
      {kGT1, {{"Txt_KV19_freqAssgn", "482"}}, {}, ""},
      {kGS1, {{"Combo_KV19_FreqAssgn", "475"}}, {}, ""},
  });
  // clang-format on
}

TEST_F(AssignmentSaveRules, what_identifies_an_empty_notice_comes_in_its_order_and_alone) {
  for (const FormCode code : kBoth) {
    Screen screen(code);
    makeControls(screen);
    EXPECT_EQ(ask(screen), identity(identityHeader(code) +
                                    "Notifying Administration : t_adm (B)\r\n"
                                    "Country in which the transmitter is sited : t_ctry (4B)\r\n"
                                    "Administration's unique ID of the notice : t_adm_ref_id \r\n"
                                    "Longitude : t_long (4C) \r\n"
                                    "Latitude : t_lat (4C) \r\n"
                                    "Name of the location of the transmitting station : t_sitename (4A)\r\n"
                                    "Assign Frequency : t_freq_assgn\r\n"));
  }
  Screen screen(kGT1Assign);
  makeControls(screen);
  put(screen,
      {{"OptInt_Mod", "set"}, {"Combo_B_Adm", "F"}, {"Combo_4B_Ctry", "D"}, {"Txt_KV19_freqAssgn", "475"}});
  EXPECT_EQ(ask(screen), identity(kMandatory +
                                  "F cannot notify for D\r\n"
                                  "Administration's unique ID of the notice : t_adm_ref_id \r\n" +
                                  kNoTarget +
                                  "Longitude : t_long (4C) \r\n"
                                  "Latitude : t_lat (4C) \r\n"
                                  "Name of the location of the transmitting station : t_sitename (4A)\r\n"
                                  "Invalid DVB-T frequency in Bands IV and V\r\n"));
}

TEST_F(AssignmentSaveRules, a_missing_site_name_gives_the_identifying_list_alone) {
  Screen screen(kGS1Assign);
  makeControls(screen);
  complete(screen);
  put(screen, {{"Txt_4A_SiteName", ""}, {"Txt_9E_AntHgt", ""}});
  EXPECT_EQ(ask(screen), identity("To save a notice at least the following Mandatory Identifying fields are "
                                  "necessary : \r\n"
                                  "Name of the location of the transmitting station : t_sitename (4A)\r\n"));
}

TEST_F(AssignmentSaveRules, each_further_field_is_asked_for) {
  // clang-format off
  expectFurther({
      {kBoth, {}, {{"Txt_9EA_SiteAlt", ""}},       "Altitude of the site : t_site_alt (9EA)\r\n"},
      {kGS1,  {}, {{"Combo_LMZ04_RefPlan", ""}},   "Ref. Planning configuration : t_ref_plan_cfg\r\n"},
      {kBoth, {}, {{"Combo_9_AntDir", ""}},        "Antenna directivity : t_ant_dir (9)\r\n"},
      {kBoth, {}, {{"Combo_9D_Polariz", ""}},      "Polarization : t_polar (9D)\r\n"},
      {kBoth, {}, {{"Txt_9E_AntHgt", ""}},         "Height antenna : t_hgt_agl (9E)\r\n"},
      {kBoth, {}, {{"Txt_9EB_Eff_hgtmax", ""}},    "Maximum effective antenna height : t_eff_hgtmax (9EB)\r\n"},
      {kBoth, {}, {{"Combo_LMZ04_SpectMask", ""}}, "Spectrum mask : t_spect_mask \r\n"},
      {kBoth, {}, {{"Txt_9EC_azm*", ""}},          "Effective antenna height sub-section : <ANT_HGT> (9EC)\r\n"},
      {kBoth, {}, {{"Txt_9EC_azm000", ""}},        "Effective antenna height sub-section : <ANT_HGT> (9EC)\r\n"},
      {kBoth, {}, {{"Txt_9EC_azm350", ""}},        "Effective antenna height sub-section : <ANT_HGT> (9EC)\r\n"},
      {kBoth, {}, {{"Combo_KV19_Plan", ""}},       "Plan entry : t_plan_entry \r\n"},
      {kBoth, {{"Combo_KV19_Plan", ""}, {"Combo_KV19_Plan", "1"}}, {{"Combo_KV19_PubReq", ""}}, "Publication Request : t_is_pub_req \r\n"},
      {kBoth, kUnderArt5, {{"Txt_InUse_DD", ""}},        "Date of bringing into use : t_d_inuse \r\n"},
      {kBoth, kUnderArt5, {{"Txt_InUse_MM", ""}},        "Date of bringing into use : t_d_inuse \r\n"},
      {kBoth, kUnderArt5, {{"Txt_InUse_YY", ""}},        "Date of bringing into use : t_d_inuse \r\n"},
      {kBoth, kUnderArt5, {{"Txt_12B_AddrCde", ""}},     " Address code : t_addr_code \r\n"},
      {kBoth, kUnderArt5, {{"Txt_10B_Ophhfr", ""}},      " Start time : t_op_hh_fr \r\n"},
      {kBoth, kUnderArt5, {{"Txt_10B_Ophhto", ""}},      " Stop time : t_op_hh_to \r\n"},
      {kBoth, kUnderArt5, {{"Combo_KV19_IsResub", ""}},  " Resubmission : t_is_resub \r\n"},
      {kBoth, kUnderArt5, {{"Combo_KV19_Rmk_Cond", ""}}, " Remark conditions met : t_remark_conds_met \r\n"},
      {kBoth, kUnderArt5, {{"Combo_KV19_SigComit", ""}}, " Signed commitment : t_signed_commitment \r\n"},
      {kBoth, kUnderArt5, {{"Txt_PlanAdm_RefID", ""}},   " Unique identifier of the associated Plan entry : t_plan_adm_ref_id \r\n"},
  });
  // clang-format on
}

TEST_F(AssignmentSaveRules, what_the_other_article_asks_for_may_be_missing) {
  const Entries emptied = {{"Txt_InUse_DD", ""},        {"Txt_12B_AddrCde", ""},
                           {"Txt_10B_Ophhfr", ""},      {"Txt_10B_Ophhto", ""},
                           {"Combo_KV19_IsResub", ""},  {"Combo_KV19_Rmk_Cond", ""},
                           {"Combo_KV19_SigComit", ""}, {"Txt_PlanAdm_RefID", ""}};
  expectFurther({{kBoth, {}, emptied, ""},
                 {kBoth, kUnderArt5, {{"Combo_KV19_PubReq", ""}}, ""},
                 {kBoth, {}, joined(emptied, {{"Opt_Art4", ""}, {"Combo_KV19_PubReq", ""}}), ""}});
}

TEST_F(AssignmentSaveRules, television_is_asked_for_its_system_or_its_planning_configuration) {
  const Entries noSystem = {{"Combo_LMZ04_Sys_Var", ""}, {"Combo_LMZ04_RxMode", ""}};
  const Entries byPlanning = joined(noSystem, {{"Combo_LMZ04_RefPlan", "RPC1"}});
  // clang-format off
  expectFurther({
      {kGT1, {}, noSystem,
       "Enter either Digital television system including DVB-T variant and Reception mode:\r\n"
       "             t_sys_var, t_rx_mode\r\n"
       "      or Ref. planning configuration : t_ref_plan_cfg\r\n"},
      {kGT1, byPlanning, {}, ""},
      {kGT1, kUnderArt5, noSystem, "Digital television system and Reception mode : t_sys_var, t_rx_mode\r\n"},
      {kGT1, {{"Opt_Art4", ""}}, noSystem, ""},
      {kGT1, {}, {{"Combo_LMZ04_Sys_Var", ""}}, "Digital System : t_sys_var \r\n"},
      {kGT1, {}, {{"Combo_LMZ04_RxMode", ""}}, "Reception mode : t_rx_mode\r\n"},
      {kGT1, byPlanning, {{"Combo_LMZ04_RxMode", "FX"}}, "Digital System : t_sys_var \r\n"},
      {kGT1, byPlanning, {{"Combo_LMZ04_Sys_Var", "A1"}}, "Reception mode : t_rx_mode\r\n"},
      {kGT1, kUnderArt5, {{"Combo_LMZ04_Sys_Var", ""}}, "Digital System : t_sys_var \r\n"},
  });
  // clang-format on
}

TEST_F(AssignmentSaveRules, the_vertical_component_is_asked_for_when_there_is_one) {
  const std::string power = "Max. e.r.p. of vertically polarized component : t_erp_v_dbw (8BV)\r\n";
  const std::string grid =
      "Vertical Antenna attenuation sub-section with all the 36 values : <ANT_DIAGR_V> (9NV)\r\n";
  const Entries v = {{"Combo_9D_Polariz", "V"}, {"Txt_8BH_Erp_H", ""}, {"Txt_9NHAzm*", ""}};
  const Entries vOfNd = joined(v, {{"Combo_9_AntDir", "ND"}});
  for (const Entries& before : {kNoEntries, v}) {
    expectFurther(
        {{kBoth, before, {{"Txt_8BV_Erp_V", ""}}, power},
         {kBoth, before, {{"Txt_9NVAzm350", ""}}, grid},
         {kGS1, before, {{"Txt_9NVAzm000", "0.0"}}, "<ANT_DIAGR_V> : has to be normalized\r\n(9NV)\r\n"},
         {kGT1, before, {{"Txt_9NVAzm000", "0.0"}}, "<ANT_DIAGR_V> : has to be normalized\r\n (9NV)\r\n"},
         {kGS1, before, {{"Txt_9NVAzm*", ""}}, grid + "<ANT_DIAGR_V> : has to be normalized\r\n(9NV)\r\n"}});
  }
  expectFurther({{kBoth, vOfNd, {{"Txt_8BV_Erp_V", ""}}, power},
                 {kBoth, vOfNd, {{"Txt_9NVAzm*", ""}}, ""},
                 {kBoth, {{"Combo_9D_Polariz", "H"}}, {{"Txt_8BV_Erp_V", ""}, {"Txt_9NVAzm*", ""}}, ""}});
}

TEST_F(AssignmentSaveRules, the_horizontal_component_is_asked_for_when_there_is_one) {
  const std::string power = "Max. e.r.p. of horizontally polarized component : t_erp_h_dbw (8BH)\r\n";
  const std::string grid =
      "Horizontal Antenna attenuation sub-section all the 36 values : <ANT_DIAGR_H> (9NH)\r\n";
  const std::string zero = "<ANT_DIAGR_H> : has to be normalized\r\n(9NH)\r\n";
  const Entries h = {{"Combo_9D_Polariz", "H"}, {"Txt_8BV_Erp_V", ""}, {"Txt_9NVAzm*", ""}};
  const Entries hOfNd = joined(h, {{"Combo_9_AntDir", "ND"}});
  for (const Entries& before : {kNoEntries, h}) {
    expectFurther({{kBoth, before, {{"Txt_8BH_Erp_H", ""}}, power},
                   {kBoth, before, {{"Txt_9NHAzm000", ""}}, grid},
                   {kBoth, before, {{"Txt_9NHAzm350", "0.0"}}, zero},
                   {kBoth, before, {{"Txt_9NHAzm*", ""}}, grid + zero}});
  }
  expectFurther({{kBoth, hOfNd, {{"Txt_8BH_Erp_H", ""}}, power},
                 {kBoth, hOfNd, {{"Txt_9NHAzm*", ""}}, ""},
                 {kBoth, {{"Combo_9D_Polariz", "V"}}, {{"Txt_8BH_Erp_H", ""}, {"Txt_9NHAzm*", ""}}, ""}});
}

TEST_F(AssignmentSaveRules, without_polarization_or_directivity_nothing_is_asked_of_powers_and_grids) {
  const Entries noValues = {
      {"Txt_8BH_Erp_H", ""}, {"Txt_8BV_Erp_V", ""}, {"Txt_9NHAzm*", ""}, {"Txt_9NVAzm*", ""}};
  const Entries noGrids = {{"Txt_9NHAzm*", ""}, {"Txt_9NVAzm*", ""}};
  expectFurther(
      {{kBoth, {}, joined(noValues, {{"Combo_9D_Polariz", ""}}), "Polarization : t_polar (9D)\r\n"},
       {kBoth, {}, joined(noGrids, {{"Combo_9_AntDir", ""}}), "Antenna directivity : t_ant_dir (9)\r\n"}});
}

TEST_F(AssignmentSaveRules, the_plan_entry_governs_code_and_associations) {
  const Entries entry4 = {{"Combo_KV19_Plan", "4"},
                          {"Combo_KV19_assgnCde", "L"},
                          {"Txt_LMZ04_SfnID", "F-SFN"},
                          {"Txt_LMZ04_AdmAllotID", "F-A-01"},
                          {"Txt_KV19_assoc_allot_sfnID", "F-SFN"}};
  // The check's lines are closed, and the list closes the whole once more.
  // clang-format off
  expectFurther({
      {kBoth, entry4, {}, ""},
      {kBoth, {}, {{"Txt_LMZ04_SfnID", "F-SFN"}}, "For t_plan_entry = 1, t_sfn_id must NOT be provided\r\n\r\n"},
      {kBoth, entry4, {{"Txt_LMZ04_AdmAllotID", ""}}, "For t_plan_entry = 4, t_associated_adm_allot_id must be provided\r\n\r\n"},
      {kBoth, entry4, {{"Txt_LMZ04_SfnID", ""}, {"Txt_KV19_assoc_allot_sfnID", ""}},
       "For t_plan_entry = 4, t_sfn_id MUST be provided\r\n"
       "For t_plan_entry = 4, t_associated_allot_sfn_id must be provided and it must be equal to t_sfn_id of the allotment\r\n\r\n"},
      {kBoth, {}, {{"Combo_KV19_assgnCde", ""}},
       "Assignment code : t_assgn_code \r\n"
       "For t_plan_entry = 1, t_assgn_code must be 'S' \r\n\r\n"},
      {kBoth, {}, {{"Txt_KV19_assoc_allot_sfnID", "F-SFN"}}, "t_associated_allot_sfn_id can only be provided if t_assgn_code = {L,C}\r\n"},
      {kBoth, entry4, {{"Combo_KV19_assgnCde", "S"}},
       "For t_plan_entry = 4, t_assgn_code can only be {L, C}\r\n\r\n"
       "t_associated_allot_sfn_id can only be provided if t_assgn_code = {L,C}\r\n"},
  });
  // clang-format on
}

TEST_F(AssignmentSaveRules, beam_tilt_and_its_power_go_together) {
  // clang-format off
  expectFurther({
      {kGT1, {{"Txt_KV19_erpBeam_tilt", "9"}, {"Txt_KV19_TiltAngle", "1"}}, {{"Txt_KV19_TiltAngle", ""}},
       "If t_erp_beam_tilt_dbw is provided then t_beam_tilt_angle must be provided\r\n"},
      {kGT1, {{"Txt_KV19_erpBeam_tilt", "9"}, {"Txt_KV19_TiltAngle", "1"}}, {{"Txt_KV19_erpBeam_tilt", ""}},
       "If t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided\r\n"},
  });
  // clang-format on
}

class SaveRulesOfPlaces : public AssignmentSaveRules {
 protected:
  std::string fullOf(FormCode code, const Entries& change) {
    Screen screen(code);
    makeControls(screen);
    complete(screen);
    put(screen, change);
    bool flag = false;
    const std::string text = getFullSaveRules(host, map, screen, flag);
    EXPECT_EQ(flag, !text.empty());
    return text;
  }
};

TEST_F(SaveRulesOfPlaces, a_site_that_is_refused_is_told_with_its_padded_coordinates) {
  moveAway("F  ", 25.5F);
  for (const FormCode code : kBoth) {
    pairs.clear();
    EXPECT_EQ(fullOf(code, {}), kFull + "t_long : 0022005E t_lat : 485130N are in D, 25 km from F\r\n");
    EXPECT_EQ(pairs, std::vector<std::string>{"485130N0022005E"});
  }
}

TEST_F(SaveRulesOfPlaces, the_target_place_is_judged_behind_the_site_whatever_the_intent) {
  moveAway("F  ", 25.5F);
  const Entries change = joined(kTargetPlace, {{"Txt_trg_lat_MM", "2"}, {"Txt_trg_long_DD", "12"}});
  for (const FormCode code : kBoth) {
    EXPECT_EQ(fullOf(code, change),
              kFull +
                  "t_long : 0022005E t_lat : 485130N are in D, 25 km from F\r\n"
                  "t_trg_long : 0122106E t_trg_lat : 480231N are in D, 25 km from F\r\n");
  }
}

TEST_F(SaveRulesOfPlaces, a_target_place_that_lacks_a_part_is_not_judged) {
  for (const Entry& part : kTargetPlace) {
    if (part.control == "Txt_trg_freq_assgn") continue;
    pairs.clear();
    EXPECT_EQ(fullOf(kGS1Assign, joined(kTargetPlace, {{part.control, ""}})), "") << part.control;
    EXPECT_EQ(pairs.size(), 1U) << part.control;
  }
}

TEST_F(SaveRulesOfPlaces, a_site_that_is_accepted_with_a_remark_is_not_told) {
  moveAway("F  ", 9.5F);
  EXPECT_EQ(fullOf(kGS1Assign, kTargetPlace), "");
  EXPECT_EQ(pairs.size(), 2U);
}

TEST_F(SaveRulesOfPlaces, without_a_map_no_place_is_judged) {
  map = {};
  EXPECT_EQ(fullOf(kGS1Assign, kTargetPlace), "");
}

TEST_F(SaveRulesOfPlaces, nothing_is_asked_of_the_map_while_the_notice_is_not_identified) {
  fullOf(kGS1Assign, {{"Combo_4B_Ctry", ""}});
  fullOf(kGT1Assign, {{"Txt_4C_Sec_Lat", ""}});
  EXPECT_TRUE(pairs.empty());
}

TEST_F(SaveRulesOfPlaces, the_real_map_knows_where_a_site_is) {
  map = realMap().gzmp;
  EXPECT_EQ(fullOf(kGS1Assign, kTargetPlace), "");
  EXPECT_EQ(fullOf(kGS1Assign, {{"Combo_4B_Ctry", "REU"}}),
            kFull + "t_long : 0022005E t_lat : 485130N are not in REU according to the MN's GZMP\r\n");
}

// Everything that the rules look at beyond what identifies the notice.
const Entries kNothingFurther = {{"Txt_9EA_SiteAlt", ""},
                                 {"Combo_LMZ04_RefPlan", ""},
                                 {"Combo_9_AntDir", "D"},
                                 {"Combo_9D_Polariz", "M"},
                                 {"Txt_9E_AntHgt", ""},
                                 {"Txt_9EB_Eff_hgtmax", ""},
                                 {"Txt_9EC_azm*", ""},
                                 {"Combo_LMZ04_SpectMask", ""},
                                 {"Combo_KV19_Plan", "2"},
                                 {"Combo_KV19_assgnCde", "S"},
                                 {"Txt_KV19_assoc_allot_sfnID", "F-SFN"},
                                 {"Txt_8BV_Erp_V", ""},
                                 {"Txt_8BH_Erp_H", ""},
                                 {"Txt_9NVAzm*", ""},
                                 {"Txt_9NHAzm*", ""},
                                 {"Combo_KV19_PubReq", ""}};

TEST_F(SaveRulesOfPlaces, the_lines_of_sound_come_in_their_order) {
  moveAway("F  ", 25.5F);
  EXPECT_EQ(fullOf(kGS1Assign, joined(kTargetPlace, kNothingFurther)),
            "The following fields are either missing or invalid\r\n"
            "Altitude of the site : t_site_alt (9EA)\r\n"
            "Ref. Planning configuration : t_ref_plan_cfg\r\n"
            "Height antenna : t_hgt_agl (9E)\r\n"
            "Maximum effective antenna height : t_eff_hgtmax (9EB)\r\n"
            "Spectrum mask : t_spect_mask \r\n"
            "Effective antenna height sub-section : <ANT_HGT> (9EC)\r\n"
            "Max. e.r.p. of vertically polarized component : t_erp_v_dbw (8BV)\r\n"
            "Vertical Antenna attenuation sub-section with all the 36 values : <ANT_DIAGR_V> (9NV)\r\n"
            "<ANT_DIAGR_V> : has to be normalized\r\n"
            "(9NV)\r\n"
            "Max. e.r.p. of horizontally polarized component : t_erp_h_dbw (8BH)\r\n"
            "Horizontal Antenna attenuation sub-section all the 36 values : <ANT_DIAGR_H> (9NH)\r\n"
            "<ANT_DIAGR_H> : has to be normalized\r\n"
            "(9NH)\r\n"
            "For t_plan_entry = 2, t_assgn_code must be 'L'\r\n"
            "For t_plan_entry = 2, t_sfn_id MUST be provided\r\n"
            "For t_plan_entry = 2, t_associated_allot_sfn_id must NOT be provided\r\n"
            "\r\n"
            "t_associated_allot_sfn_id can only be provided if t_assgn_code = {L,C}\r\n"
            "Publication Request : t_is_pub_req \r\n"
            "t_long : 0022005E t_lat : 485130N are in D, 25 km from F\r\n"
            "t_trg_long : 0022106E t_trg_lat : 485231N are in D, 25 km from F\r\n");
}

TEST_F(SaveRulesOfPlaces, the_lines_of_television_under_article_5_come_in_their_order) {
  moveAway("F  ", 25.5F);
  const Entries change = joined(kNothingFurther, {{"Opt_Art5", "set"},
                                                  {"Combo_LMZ04_Sys_Var", ""},
                                                  {"Combo_LMZ04_RxMode", ""},
                                                  {"Combo_9_AntDir", ""},
                                                  {"Combo_9D_Polariz", ""},
                                                  {"Combo_KV19_Plan", ""},
                                                  {"Combo_KV19_assgnCde", ""},
                                                  {"Txt_KV19_TiltAngle", "1"}});
  EXPECT_EQ(fullOf(kGT1Assign, change),
            "The following fields are either missing or invalid\r\n"
            "Altitude of the site : t_site_alt (9EA)\r\n"
            "Digital television system and Reception mode : t_sys_var, t_rx_mode\r\n"
            "Antenna directivity : t_ant_dir (9)\r\n"
            "Polarization : t_polar (9D)\r\n"
            "Height antenna : t_hgt_agl (9E)\r\n"
            "Maximum effective antenna height : t_eff_hgtmax (9EB)\r\n"
            "Spectrum mask : t_spect_mask \r\n"
            "Effective antenna height sub-section : <ANT_HGT> (9EC)\r\n"
            "Plan entry : t_plan_entry \r\n"
            "Assignment code : t_assgn_code \r\n"
            "Date of bringing into use : t_d_inuse \r\n"
            " Address code : t_addr_code \r\n"
            " Start time : t_op_hh_fr \r\n"
            " Stop time : t_op_hh_to \r\n"
            " Resubmission : t_is_resub \r\n"
            " Remark conditions met : t_remark_conds_met \r\n"
            " Signed commitment : t_signed_commitment \r\n"
            " Unique identifier of the associated Plan entry : t_plan_adm_ref_id \r\n"
            "If t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided\r\n"
            "t_long : 0022005E t_lat : 485130N are in D, 25 km from F\r\n");
}

TEST_F(AssignmentSaveRules, hidden_controls_are_judged_like_shown_ones) {
  for (const FormCode code : kBoth) {
    Screen screen(code);
    makeControls(screen);
    complete(screen);
    screen.setVisible("Frame_Art4_Only", false);
    screen.setVisible({"Combo_KV19_PubReq", "Txt_9E_AntHgt"}, false);
    EXPECT_EQ(ask(screen), kNothing) << code;
    put(screen, {{"Combo_KV19_PubReq", ""}, {"Txt_9E_AntHgt", ""}});
    EXPECT_EQ(ask(screen), furtherOnly(kFull + "Height antenna : t_hgt_agl (9E)\r\n"
                                               "Publication Request : t_is_pub_req \r\n"))
        << code;
  }
}

}  // namespace
}  // namespace zamo::test
