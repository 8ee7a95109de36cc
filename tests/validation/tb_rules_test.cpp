#include "validation/tb_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/valid_notices.h"
#include "validation/common_rules.h"
#include "validation/reference_rules.h"

namespace zamo {
namespace {

bool values(const NtcRec& ntc, std::string& errs, std::string_view label) {
  return checkNtcValues(ntc, errs, label, kToday);
}

struct Case {
  const char* name;
  void (*change)(NtcRec&);
  const char* behindLabel;
};

struct Type {
  NtcRec (*make)();
  RuleGroup values;
  RuleGroup mandatory;
};

const Type kTb2 = {makeTb2, checkTb2Values, checkTb2Mandatory};
const Type kTb3 = {makeTb3, checkTb3Values, checkTb3Mandatory};
const Type kTb5 = {makeTb5, checkTb5Values, checkTb5Mandatory};
const Type kTypes[] = {kTb2, kTb3, kTb5};

// One change to a valid notice, and what the group of mandatory fields then finds.
Verdict judgeChanged(const Type& type, void (*change)(NtcRec&)) {
  NtcRec ntc = type.make();
  change(ntc);
  return judge(type.mandatory, ntc);
}

TEST(TbRules, a_valid_notice_has_no_finding_in_any_group) {
  for (const Type& type : kTypes) {
    const NtcRec ntc = type.make();
    SCOPED_TRACE(ntc.t_notice_type);
    EXPECT_EQ(judge(values, ntc), kPassed);
    EXPECT_EQ(judge(checkNtcMandatory, ntc), kPassed);
    EXPECT_EQ(judge(checkNtcRefs, ntc), kPassed);
    EXPECT_EQ(judge(type.values, ntc), kPassed);
    EXPECT_EQ(judge(type.mandatory, ntc), kPassed);
    EXPECT_EQ(judge(checkTbAbsentFields, ntc), kPassed);
  }
}

TEST(TbRules, findings_are_added_behind_what_was_found_before) {
  NtcRec ntc = makeTb5();
  ntc.t_trg_adm_ref_id.clear();
  ntc.t_site_name = "KAHLENBERG";
  std::string errs = "WARNING : \r\nearlier\r\n";
  EXPECT_FALSE(checkTb5Mandatory(ntc, errs, "L"));
  EXPECT_EQ(errs,
            "WARNING : \r\nearlier\r\n"
            "FATAL ERROR : \r\nL : t_trg_adm_ref_id is a mandatory value\r\n"
            "FATAL ERROR : \r\nL : t_site_name should not be notified for a TB5\r\n");
}

TEST(TbRules, the_fragment_of_a_tb5_is_kv19d_or_ntfd_pz) {
  NtcRec ntc = makeTb5();
  for (const char* accepted : {"KV19D", "NTFD_PZ", "kv19d", "ntfd_pz", ""}) {
    ntc.t_fragment = accepted;
    EXPECT_EQ(judge(checkTb5Values, ntc), kPassed) << accepted;
  }
  for (const char* other : {"KV19", "NTFD", "KV19D "}) {
    ntc.t_fragment = other;
    EXPECT_EQ(judge(checkTb5Values, ntc),
              failed(fatal(" :  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}")))
        << other;
  }
}

TEST(TbRules, the_plan_of_a_tb3_and_a_tb2_is_kv19d) {
  for (const Type& type : {kTb2, kTb3}) {
    NtcRec ntc = type.make();
    SCOPED_TRACE(ntc.t_notice_type);
    for (const char* accepted : {"KV19D", "kv19d", ""}) {
      ntc.t_plan = accepted;
      EXPECT_EQ(judge(type.values, ntc), kPassed) << accepted;
    }
    for (const char* other : {"NTFD_PZ", "KV19"}) {
      ntc.t_plan = other;
      EXPECT_EQ(judge(type.values, ntc),
                failed(fatal(" :  t_plan : Acceptable value for assignments are {KV19D}")))
          << other;
    }
  }
}

TEST(TbRules, the_plan_of_a_tb5_is_not_tested_among_its_values) {
  NtcRec ntc = makeTb5();
  ntc.t_plan = "NTFD_PZ";
  EXPECT_EQ(judge(checkTb5Values, ntc), kPassed);
}

TEST(TbRules, the_fragment_of_a_tb3_and_a_tb2_is_not_tested_among_their_values) {
  for (const Type& type : {kTb2, kTb3}) {
    NtcRec ntc = type.make();
    ntc.t_fragment = "OTHER";
    EXPECT_EQ(judge(type.values, ntc), kPassed) << ntc.t_notice_type;
  }
}

TEST(TbRules, a_tb5_withdraws_or_suppresses) {
  NtcRec ntc = makeTb5();
  for (const char* accepted : {"WITHDRAW", "SUPPRESS", "withdraw", "Suppress", ""}) {
    ntc.t_action = accepted;
    EXPECT_EQ(judge(checkTb5Values, ntc), kPassed) << accepted;
    EXPECT_EQ(judge(values, ntc), kPassed) << accepted;
  }
  for (const char* other : {"ADD", "MODIFY", "PARTB", "CONFORM"}) {
    ntc.t_action = other;
    EXPECT_EQ(judge(checkTb5Values, ntc),
              failed(fatal(" :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}")))
        << other;
  }
}

TEST(TbRules, a_tb3_is_a_partb) {
  NtcRec ntc = makeTb3();
  for (const char* accepted : {"PARTB", "PartB", ""}) {
    ntc.t_action = accepted;
    EXPECT_EQ(judge(checkTb3Values, ntc), kPassed) << accepted;
  }
  for (const char* other : {"CONFORM", "ADD", "WITHDRAW"}) {
    ntc.t_action = other;
    EXPECT_EQ(judge(checkTb3Values, ntc), failed(fatal(" :  t_action : Acceptable values are {PARTB}")))
        << other;
  }
}

TEST(TbRules, a_tb2_conforms_though_the_message_names_partb) {
  NtcRec ntc = makeTb2();
  for (const char* accepted : {"CONFORM", "conform", ""}) {
    ntc.t_action = accepted;
    EXPECT_EQ(judge(checkTb2Values, ntc), kPassed) << accepted;
  }
  for (const char* other : {"PARTB", "ADD", "WITHDRAW"}) {
    ntc.t_action = other;
    EXPECT_EQ(judge(checkTb2Values, ntc), failed(fatal(" :  t_action : Acceptable values are {PARTB}")))
        << other;
  }
}

TEST(TbRules, fragment_or_plan_is_told_before_the_action) {
  NtcRec tb5 = makeTb5();
  tb5.t_fragment = "X";
  tb5.t_action = "X";
  EXPECT_EQ(
      judge(checkTb5Values, tb5),
      failed("FATAL ERROR : \r\nNotice No : 7 :  t_fragment : Acceptable value for assignments are {KV19D, "
             "NTFD_PZ}\r\n"
             "FATAL ERROR : \r\nNotice No : 7 :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}\r\n"));
  for (const Type& type : {kTb2, kTb3}) {
    NtcRec ntc = type.make();
    ntc.t_plan = "X";
    ntc.t_action = "X";
    EXPECT_EQ(
        judge(type.values, ntc),
        failed("FATAL ERROR : \r\nNotice No : 7 :  t_plan : Acceptable value for assignments are {KV19D}\r\n"
               "FATAL ERROR : \r\nNotice No : 7 :  t_action : Acceptable values are {PARTB}\r\n"))
        << ntc.t_notice_type;
  }
}

TEST(TbRules, the_values_of_each_type_are_tested_among_all_values) {
  NtcRec tb2 = makeTb2();
  tb2.t_action = "PARTB";
  EXPECT_EQ(judge(values, tb2), failed(fatal(" :  t_action : Acceptable values are {PARTB}")));
  NtcRec tb3 = makeTb3();
  tb3.t_action = "CONFORM";
  EXPECT_EQ(judge(values, tb3), failed(fatal(" :  t_action : Acceptable values are {PARTB}")));
  NtcRec tb5 = makeTb5();
  tb5.t_action = "ADD";
  EXPECT_EQ(judge(values, tb5), failed(fatal(" :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}")));
}

TEST(TbRules, a_tb5_that_modifies_fails_the_values_of_its_type_and_those_of_all) {
  NtcRec ntc = makeTb5();
  ntc.t_action = "MODIFY";
  EXPECT_EQ(
      judge(values, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 :  t_action : Acceptable values are {SUPPRESS, WITHDRAW}\r\n"
             "FATAL ERROR : \r\nNotice No : 7 :  t_action : Acceptable values are {ADD, SUPPRESS}\r\n"));
}

TEST(TbRules, a_tb3_and_a_tb5_name_their_target) {
  for (const Type& type : {kTb3, kTb5}) {
    EXPECT_EQ(judgeChanged(type, [](NtcRec& n) { n.t_trg_adm_ref_id.clear(); }),
              failed(fatal(" : t_trg_adm_ref_id is a mandatory value")))
        << type.make().t_notice_type;
  }
}

TEST(TbRules, a_tb3_names_its_plan_behind_its_target) {
  EXPECT_EQ(judgeChanged(kTb3, [](NtcRec& n) { n.t_plan.clear(); }),
            failed(fatal(" :  t_plan is a mandatory value")));
  NtcRec ntc;
  ntc.t_notice_type = "TB3";
  EXPECT_EQ(judge(checkTb3Mandatory, ntc),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_trg_adm_ref_id is a mandatory value\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_plan is a mandatory value\r\n"));
}

TEST(TbRules, each_mandatory_field_of_a_tb2_is_asked_for) {
  const Case cases[] = {
      {"t_plan_adm_ref_id", [](NtcRec& n) { n.t_plan_adm_ref_id.clear(); },
       " :  t_plan_adm_ref_id is a mandatory value"},
      {"t_plan", [](NtcRec& n) { n.t_plan.clear(); }, " :  t_plan is a mandatory value"},
      {"t_d_inuse", [](NtcRec& n) { n.t_d_inuse.clear(); }, " :  t_d_inuse is a mandatory value (2C)"},
      {"t_addr_code", [](NtcRec& n) { n.t_addr_code.clear(); }, " :  t_addr_code is a mandatory value (12B)"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(judgeChanged(kTb2, one.change), failed(fatal(one.behindLabel))) << one.name;
  }
}

TEST(TbRules, everything_a_tb2_lacks_is_told_in_order_before_its_target) {
  NtcRec ntc;
  ntc.t_notice_type = "TB2";
  ntc.t_trg_freq_assgn = "474";
  ntc.t_site_name = "KAHLENBERG";
  EXPECT_EQ(judge(checkTb2Mandatory, ntc),
            failed("FATAL ERROR : \r\nNotice No : 7 :  t_plan_adm_ref_id is a mandatory value\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_plan is a mandatory value\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_d_inuse is a mandatory value (2C)\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_addr_code is a mandatory value (12B)\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_trg_long and t_trg_lat must be provided\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a TB2\r\n"));
}

// Longitude degrees and minutes, latitude degrees and minutes.
using TargetParts = std::vector<std::string>;

const TargetParts kNoParts = {"", "", "", ""};
const TargetParts kAllParts = {"16", "20", "48", "16"};
const TargetParts kSomeParts[] = {
    {"16", "", "", ""},     {"", "20", "", ""},     {"", "", "48", ""},     {"", "", "", "16"},
    {"16", "20", "", ""},   {"", "", "48", "16"},   {"", "20", "48", "16"}, {"16", "", "48", "16"},
    {"16", "20", "", "16"}, {"16", "20", "48", ""},
};

Verdict judgeTarget(const char* reference, const char* frequency, const TargetParts& parts) {
  NtcRec ntc = makeTb2();
  ntc.t_trg_adm_ref_id = reference;
  ntc.t_trg_freq_assgn = frequency;
  ntc.trg_long_deg = parts[0];
  ntc.trg_long_min = parts[1];
  ntc.trg_lat_deg = parts[2];
  ntc.trg_lat_min = parts[3];
  return judge(checkTb2Mandatory, ntc);
}

TEST(TbRules, the_target_of_a_tb2_is_a_reference_or_frequency_and_coordinates) {
  EXPECT_EQ(judgeTarget("REF-1", "", kNoParts), kPassed);
  EXPECT_EQ(judgeTarget("", "474", kAllParts), kPassed);
}

TEST(TbRules, a_tb2_without_any_target_has_no_finding) {
  EXPECT_EQ(judgeTarget("", "", kNoParts), kPassed);
}

TEST(TbRules, a_target_frequency_asks_for_all_parts_of_the_coordinates) {
  EXPECT_EQ(judgeTarget("", "474", kNoParts), failed(fatal(" :  t_trg_long and t_trg_lat must be provided")));
  for (const TargetParts& parts : kSomeParts) {
    EXPECT_EQ(judgeTarget("", "474", parts), failed(fatal(" :  t_trg_long and t_trg_lat must be provided")));
  }
}

TEST(TbRules, all_target_coordinates_ask_for_a_frequency_and_some_do_not) {
  EXPECT_EQ(judgeTarget("", "", kAllParts), failed(fatal(" :  t_freq_assgn must be provided")));
  for (const TargetParts& parts : kSomeParts) EXPECT_EQ(judgeTarget("", "", parts), kPassed);
}

TEST(TbRules, a_target_reference_beside_any_other_value_of_the_target_is_told) {
  EXPECT_EQ(
      judgeTarget("REF-1", "474", kAllParts),
      failed(fatal(" :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, "
                   "but not both")));
  for (const TargetParts& parts : kSomeParts) {
    EXPECT_EQ(judgeTarget("REF-1", "", parts),
              failed(fatal(" :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be "
                           "provided, but not both")));
  }
}

TEST(TbRules, the_three_tests_of_the_target_do_not_hide_each_other) {
  EXPECT_EQ(
      judgeTarget("REF-1", "", kAllParts),
      failed("FATAL ERROR : \r\nNotice No : 7 :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and "
             "t_trg_lat must be provided, but not both\r\n"
             "FATAL ERROR : \r\nNotice No : 7 :  t_freq_assgn must be provided\r\n"));
  std::vector<TargetParts> incomplete(std::begin(kSomeParts), std::end(kSomeParts));
  incomplete.push_back(kNoParts);
  for (const TargetParts& parts : incomplete) {
    EXPECT_EQ(
        judgeTarget("REF-1", "474", parts),
        failed("FATAL ERROR : \r\nNotice No : 7 :  Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and "
               "t_trg_lat must be provided, but not both\r\n"
               "FATAL ERROR : \r\nNotice No : 7 :  t_trg_long and t_trg_lat must be provided\r\n"));
  }
}

TEST(TbRules, seconds_and_hemispheres_are_no_values_of_the_target) {
  NtcRec ntc = makeTb2();
  ntc.trg_long_ew = "E";
  ntc.trg_long_sec = "05";
  ntc.trg_lat_ns = "N";
  ntc.trg_lat_sec = "20";
  EXPECT_EQ(judge(checkTb2Mandatory, ntc), kPassed);
}

// clang-format off
const Case kAbsent[] = {
    {"t_adm_ref_id", [](NtcRec& n) { n.t_adm_ref_id = "REF-1"; }, " : t_adm_ref_id should not be notified for a "},
    {"t_site_name", [](NtcRec& n) { n.t_site_name = "KAHLENBERG"; }, " : t_site_name should not be notified for a "},
    {"t_site_alt", [](NtcRec& n) { n.t_site_alt = "484"; }, " : t_site_alt should not be notified for a "},
    {"long_deg", [](NtcRec& n) { n.long_deg = "16"; }, " : t_long t_lat should not be notified for a "},
    {"long_ew", [](NtcRec& n) { n.long_ew = "E"; }, " : t_long t_lat should not be notified for a "},
    {"long_min", [](NtcRec& n) { n.long_min = "20"; }, " : t_long t_lat should not be notified for a "},
    {"long_sec", [](NtcRec& n) { n.long_sec = "05"; }, " : t_long t_lat should not be notified for a "},
    {"lat_deg", [](NtcRec& n) { n.lat_deg = "48"; }, " : t_long t_lat should not be notified for a "},
    {"lat_ns", [](NtcRec& n) { n.lat_ns = "N"; }, " : t_long t_lat should not be notified for a "},
    {"lat_min", [](NtcRec& n) { n.lat_min = "16"; }, " : t_long t_lat should not be notified for a "},
    {"lat_sec", [](NtcRec& n) { n.lat_sec = "20"; }, " : t_long t_lat should not be notified for a "},
    {"t_erp_h_dbw", [](NtcRec& n) { n.t_erp_h_dbw = "20"; }, " : t_erp_h_dbw should not be notified for a "},
    {"t_erp_v_dbw", [](NtcRec& n) { n.t_erp_v_dbw = "20"; }, " : t_erp_v_dbw should not be notified for a "},
    {"t_erp_beam_tilt_dbw", [](NtcRec& n) { n.t_erp_beam_tilt_dbw = "20"; }, " : t_erp_beam_tilt_dbw should not be notified for a "},
    {"t_beam_tilt_angle", [](NtcRec& n) { n.t_beam_tilt_angle = "1"; }, " : t_beam_tilt_angle should not be notified for a "},
    {"t_eff_hgtmax", [](NtcRec& n) { n.t_eff_hgtmax = "300"; }, " : t_eff_hgtmax should not be notified for a "},
    {"t_hgt_agl", [](NtcRec& n) { n.t_hgt_agl = "120"; }, " : t_hgt_agl should not be notified for a "},
    {"first of ant_diagr_h", [](NtcRec& n) { n.ant_diagr_h[0].value = "3"; }, " : <ANT_DIAGR_H> should not be notified for a "},
    {"last of ant_diagr_h", [](NtcRec& n) { n.ant_diagr_h[35].value = "3"; }, " : <ANT_DIAGR_H> should not be notified for a "},
    {"first of ant_diagr_v", [](NtcRec& n) { n.ant_diagr_v[0].value = "3"; }, " : <ANT_DIAGR_V> should not be notified for a "},
    {"last of ant_diagr_v", [](NtcRec& n) { n.ant_diagr_v[35].value = "3"; }, " : <ANT_DIAGR_V> should not be notified for a "},
    {"first of ant_hgt", [](NtcRec& n) { n.ant_hgt[0].value = "3"; }, " : <ANT_HGT> should not be notified for a "},
    {"last of ant_hgt", [](NtcRec& n) { n.ant_hgt[35].value = "3"; }, " : <ANT_HGT> should not be notified for a "},
    {"t_associated_adm_allot_id", [](NtcRec& n) { n.digital.t_associated_adm_allot_id = "A1"; }, " : t_associated_adm_allot_id should not be notified for a "},
    {"t_associated_allot_sfn_id", [](NtcRec& n) { n.digital.t_associated_allot_sfn_id = "S1"; }, " : t_associated_allot_sfn_id should not be notified for a "},
    {"t_nb_test_pts", [](NtcRec& n) { n.digital.contour.t_nb_test_pts = "2"; }, " : t_nb_test_pts should not be notified for a "},
    {"t_assgn_code", [](NtcRec& n) { n.t_assgn_code = "L"; }, " : t_assgn_code should not be notified for a "},
    {"t_sys_var", [](NtcRec& n) { n.t_sys_var = "C2"; }, " : t_sys_var should not be notified for a "},
    {"t_rx_mode", [](NtcRec& n) { n.digital.t_rx_mode = "FX"; }, " : t_rx_mode should not be notified for a "},
    {"t_remark_conds_met", [](NtcRec& n) { n.t_remark_conds_met = "TRUE"; }, " : t_remarks_conds_met should not be notified for a "},
    {"t_is_resub", [](NtcRec& n) { n.t_is_resub = "TRUE"; }, " : t_is_resub should not be notified for a "},
    {"t_signed_commitment", [](NtcRec& n) { n.t_signed_commitment = "TRUE"; }, " : t_signed_commitment should not be notified for a "},
    {"t_typ_ref_netwk", [](NtcRec& n) { n.digital.allot.t_typ_ref_netwk = "RN1"; }, " : t_typ_ref_netwk should not be notified for a "},
    {"t_allot_name", [](NtcRec& n) { n.digital.allot.t_allot_name = "VIENNA"; }, " : t_allot_name should not be notified for a "},
    {"t_geo_area", [](NtcRec& n) { n.digital.allot.t_geo_area = "AUT"; }, " : t_geo_area should not be notified for a "},
    {"t_nb_sub_areas", [](NtcRec& n) { n.digital.allot.t_nb_sub_areas = "1"; }, " : t_nb_sub_areas should not be notified for a "},
    {"t_is_pub_req", [](NtcRec& n) { n.t_is_pub_req = "TRUE"; }, " : t_is_pub_req should not be notified for a "},
    {"t_sfn_id", [](NtcRec& n) { n.digital.t_sfn_id = "SFN1"; }, " : t_sfn_id should not be notified for a "},
};

const Case kAbsentExceptInTb3[] = {
    {"coord present", [](NtcRec& n) { n.coord.present = true; }, " : <COORD> or <COORDINATION> should not be notified for a "},
    {"coord counted", [](NtcRec& n) { n.coord.count = 1; }, " : <COORD> or <COORDINATION> should not be notified for a "},
};

const Case kAbsentExceptInTb2[] = {
    {"t_op_agcy", [](NtcRec& n) { n.t_op_agcy = "001"; }, " : t_op_agcy should not be notified for a "},
    {"t_d_inuse", [](NtcRec& n) { n.t_d_inuse = "2026-01-01"; }, " : t_d_inuse should not be notified for a "},
    {"t_addr_code", [](NtcRec& n) { n.t_addr_code = "A"; }, " : t_addr_code should not be notified for a "},
    {"t_op_hh_fr", [](NtcRec& n) { n.op_hours.t_op_hh_fr = "0000"; }, " : t_op_hh_fr should not be notified for a "},
    {"t_op_hh_to", [](NtcRec& n) { n.op_hours.t_op_hh_to = "2400"; }, " : t_op_hh_to should not be notified for a "},
};
// clang-format on

void giveEverything(NtcRec& ntc) {
  for (const Case& one : kAbsent) one.change(ntc);
  for (const Case& one : kAbsentExceptInTb3) one.change(ntc);
  for (const Case& one : kAbsentExceptInTb2) one.change(ntc);
  ntc.digital.contour.points.assign(2, {true, "+0160000", "+480000"});
  ntc.digital.contour.t_contour_id = "12";
  ntc.digital.allot.t_contour_id.fill("7");
}

TEST(TbRules, each_field_that_no_tb_notice_has_gives_its_one_line) {
  for (const Type& type : kTypes) {
    for (const Case& one : kAbsent) {
      const std::string name = type.make().t_notice_type;
      EXPECT_EQ(judgeChanged(type, one.change), failed(fatal(one.behindLabel + name)))
          << name << " " << one.name;
    }
  }
}

TEST(TbRules, a_tb3_alone_has_a_coordination) {
  for (const Case& one : kAbsentExceptInTb3) {
    EXPECT_EQ(judgeChanged(kTb3, one.change), kPassed) << one.name;
    EXPECT_EQ(judgeChanged(kTb2, one.change), failed(fatal(std::string(one.behindLabel) + "TB2")))
        << one.name;
    EXPECT_EQ(judgeChanged(kTb5, one.change), failed(fatal(std::string(one.behindLabel) + "TB5")))
        << one.name;
  }
}

TEST(TbRules, a_tb2_alone_has_an_agency_an_address_a_date_of_use_and_hours) {
  for (const Case& one : kAbsentExceptInTb2) {
    EXPECT_EQ(judgeChanged(kTb2, one.change), kPassed) << one.name;
    EXPECT_EQ(judgeChanged(kTb3, one.change), failed(fatal(std::string(one.behindLabel) + "TB3")))
        << one.name;
    EXPECT_EQ(judgeChanged(kTb5, one.change), failed(fatal(std::string(one.behindLabel) + "TB5")))
        << one.name;
  }
}

TEST(TbRules, the_identifier_of_a_contour_is_told_twice) {
  const auto give = [](NtcRec& n) { n.digital.contour.t_contour_id = "12"; };
  EXPECT_EQ(judgeChanged(kTb2, give),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"));
  EXPECT_EQ(judgeChanged(kTb3, give),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"));
  EXPECT_EQ(judgeChanged(kTb5, give),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"));
}

TEST(TbRules, the_second_line_on_the_contour_stands_behind_the_sub_areas) {
  NtcRec ntc = makeTb5();
  ntc.digital.contour.t_contour_id = "12";
  ntc.t_sys_var = "C2";
  ntc.digital.allot.t_nb_sub_areas = "1";
  ntc.t_is_pub_req = "TRUE";
  EXPECT_EQ(judge(checkTbAbsentFields, ntc),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a TB5\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_nb_sub_areas should not be notified for a TB5\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_is_pub_req should not be notified for a TB5\r\n"));
}

TEST(TbRules, each_slot_of_an_allotments_contour_identifiers_gives_a_line) {
  for (const Type& type : kTypes) {
    for (std::size_t slot = 0; slot < 10; ++slot) {
      NtcRec ntc = type.make();
      ntc.digital.allot.t_contour_id[slot] = "7";
      EXPECT_EQ(judge(type.mandatory, ntc),
                failed(fatal(" : t_contour_id should not be notified for a " + ntc.t_notice_type)))
          << slot;
    }
  }
}

TEST(TbRules, every_point_present_is_told_whatever_the_count) {
  NtcRec ntc = makeTb5();
  ntc.digital.contour.t_nb_test_pts = "1";
  ntc.digital.contour.points.assign(4, {true, "+0160000", "+480000"});
  ntc.digital.contour.points[1].present = false;
  EXPECT_EQ(
      judge(checkTb5Mandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a TB5\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB5\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB5\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB5\r\n"));
}

TEST(TbRules, points_without_a_count_are_not_looked_at) {
  for (const Type& type : kTypes) {
    NtcRec ntc = type.make();
    ntc.digital.contour.points.assign(4, {true, "+0160000", "+480000"});
    EXPECT_EQ(judge(type.mandatory, ntc), kPassed) << ntc.t_notice_type;
  }
}

TEST(TbRules, azimuths_without_a_value_are_no_section) {
  for (const Type& type : kTypes) {
    NtcRec ntc = type.make();
    for (auto* section : {&ntc.ant_diagr_h, &ntc.ant_diagr_v, &ntc.ant_hgt}) {
      for (AzmValueRec& one : *section) one = {true, "10", ""};
    }
    EXPECT_EQ(judge(type.mandatory, ntc), kPassed) << ntc.t_notice_type;
  }
}

TEST(TbRules, other_fields_of_a_tb_notice_are_left_alone) {
  for (const Type& type : kTypes) {
    NtcRec ntc = type.make();
    ntc.t_ctry = "AUT";
    ntc.t_freq_assgn = "474";
    ntc.t_prov = "Art 5";
    ntc.t_call_sign = "OE1";
    ntc.t_polar = "H";
    ntc.t_plan_entry = "5";
    ntc.t_offset = "0";
    ntc.t_d_expiry = "2030-01-01";
    ntc.t_ant_dir = "ND";
    ntc.t_remarks = "a";
    ntc.digital.t_ref_plan_cfg = "RPC1";
    ntc.digital.t_spect_mask = "N";
    EXPECT_EQ(judge(type.mandatory, ntc), kPassed) << ntc.t_notice_type;
  }
}

TEST(TbRules, everything_a_tb2_may_not_carry_is_told_in_order) {
  NtcRec ntc = makeTb2();
  giveEverything(ntc);
  EXPECT_EQ(
      judge(checkTbAbsentFields, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_adm_ref_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> or <COORDINATION> should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_allot_sfn_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_assgn_code should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_typ_ref_netwk should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_allot_name should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_geo_area should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_sub_areas should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_pub_req should not be notified for a TB2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sfn_id should not be notified for a TB2\r\n"));
}

TEST(TbRules, everything_a_tb3_may_not_carry_is_told_in_order) {
  NtcRec ntc = makeTb3();
  giveEverything(ntc);
  EXPECT_EQ(
      judge(checkTbAbsentFields, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_adm_ref_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_allot_sfn_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_assgn_code should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_agcy should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_d_inuse should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_addr_code should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_fr should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_to should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_typ_ref_netwk should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_allot_name should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_geo_area should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_sub_areas should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_pub_req should not be notified for a TB3\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sfn_id should not be notified for a TB3\r\n"));
}

TEST(TbRules, everything_a_tb5_may_not_carry_is_told_in_order) {
  NtcRec ntc = makeTb5();
  giveEverything(ntc);
  EXPECT_EQ(
      judge(checkTbAbsentFields, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_adm_ref_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> or <COORDINATION> should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_allot_sfn_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_assgn_code should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_agcy should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_d_inuse should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_addr_code should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_fr should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_to should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_typ_ref_netwk should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_allot_name should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_geo_area should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_sub_areas should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_pub_req should not be notified for a TB5\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sfn_id should not be notified for a TB5\r\n"));
}

TEST(TbRules, the_mandatory_fields_of_each_type_are_tested_for_all_types) {
  NtcRec tb2 = makeTb2();
  tb2.t_addr_code.clear();
  EXPECT_EQ(judge(checkNtcMandatory, tb2), failed(fatal(" :  t_addr_code is a mandatory value (12B)")));
  for (NtcRec ntc : {makeTb3(), makeTb5()}) {
    ntc.t_trg_adm_ref_id.clear();
    EXPECT_EQ(judge(checkNtcMandatory, ntc), failed(fatal(" : t_trg_adm_ref_id is a mandatory value")))
        << ntc.t_notice_type;
  }
}

}  // namespace
}  // namespace zamo
