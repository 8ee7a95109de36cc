#include "validation/allotment_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/valid_notices.h"
#include "validation/common_rules.h"
#include "validation/reference_rules.h"

namespace zamo {
namespace {

// The area of an allotment told by its sub-areas instead.
void giveSubAreas(NtcRec& ntc, const std::string& told, int slots) {
  ntc.digital.allot.t_geo_area.clear();
  ntc.digital.allot.t_nb_sub_areas = told;
  for (int i = 0; i < slots; ++i) {
    ntc.digital.allot.t_contour_id[static_cast<std::size_t>(i)] = std::to_string(100 + i);
  }
}

void givePoints(NtcRec& ntc, const std::string& told, std::size_t size, std::size_t present) {
  ntc.digital.contour.t_nb_test_pts = told;
  ntc.digital.contour.points.assign(size, {});
  for (std::size_t i = 0; i < present; ++i) ntc.digital.contour.points[i] = {true, "+0160000", "+480000"};
}

bool values(const NtcRec& ntc, std::string& errs, std::string_view label) {
  return checkNtcValues(ntc, errs, label, kToday);
}

struct Case {
  const char* name;
  void (*change)(NtcRec&);
  const char* behindLabel;
};

const char* const kAllotmentTypes[] = {"GT2", "GS2"};

TEST(AllotmentRules, a_valid_allotment_or_contour_has_no_finding_in_any_group) {
  for (const NtcRec& ntc : {makeGt2(), makeGs2(), makeGa1()}) {
    SCOPED_TRACE(ntc.t_notice_type);
    EXPECT_EQ(judge(values, ntc), kPassed);
    EXPECT_EQ(judge(checkNtcMandatory, ntc), kPassed);
    EXPECT_EQ(judge(checkNtcRefs, ntc), kPassed);
    const bool contour = ntc.t_notice_type == "GA1";
    EXPECT_EQ(judge(contour ? checkContourMandatory : checkAllotMandatory, ntc), kPassed);
    EXPECT_EQ(contour ? kPassed : judge(checkAllotValues, ntc), kPassed);
  }
}

TEST(AllotmentRules, findings_are_added_behind_what_was_found_before) {
  NtcRec ntc = makeGt2();
  ntc.digital.allot.t_allot_name.clear();
  std::string errs = "WARNING : \r\nearlier\r\n";
  EXPECT_FALSE(checkAllotMandatory(ntc, errs, "L"));
  EXPECT_EQ(errs, "WARNING : \r\nearlier\r\nFATAL ERROR : \r\nL :  t_allot_name is mandatory\r\n");
}

TEST(AllotmentRules, an_allotment_is_of_fragment_kv19d_alone) {
  for (const char* type : kAllotmentTypes) {
    SCOPED_TRACE(type);
    NtcRec ntc = makeNotice(type);
    for (const char* accepted : {"KV19D", "kv19d", ""}) {
      ntc.t_fragment = accepted;
      EXPECT_EQ(judge(checkAllotValues, ntc), kPassed) << accepted;
    }
    for (const char* other : {"NTFD_PZ", "KV19", "KV19D "}) {
      ntc.t_fragment = other;
      EXPECT_EQ(judge(checkAllotValues, ntc),
                failed(fatal(" :  t_fragment : Acceptable value for allotments are {KV19D}")))
          << other;
    }
  }
}

TEST(AllotmentRules, the_fragment_of_an_allotment_is_tested_among_all_values) {
  NtcRec ntc = makeGs2();
  ntc.t_fragment = "NTFD_PZ";
  EXPECT_EQ(judge(values, ntc),
            failed(fatal(" :  t_fragment : Acceptable value for allotments are {KV19D}")));
}

TEST(AllotmentRules, one_to_nine_sub_areas_are_as_many_as_the_contour_identifiers) {
  for (int count = 1; count <= 9; ++count) {
    NtcRec ntc = makeGt2();
    giveSubAreas(ntc, std::to_string(count), count);
    EXPECT_EQ(judge(checkAllotValues, ntc), kPassed) << count;
    EXPECT_EQ(judge(checkAllotMandatory, ntc), kPassed) << count;
  }
}

TEST(AllotmentRules, sub_areas_outside_1_to_9_are_told_without_a_match_of_their_number) {
  for (const char* told : {"0", "10", "-1", "0.5", "9.5", "abc"}) {
    NtcRec ntc = makeGt2();
    giveSubAreas(ntc, told, 2);
    EXPECT_EQ(judge(checkAllotValues, ntc),
              failed(fatal(" :  t_nb_sub_area : Value should be between [1, 9]")))
        << told;
  }
}

TEST(AllotmentRules, a_number_of_sub_areas_that_the_identifiers_do_not_have_is_told) {
  for (const char* type : kAllotmentTypes) {
    for (const int slots : {0, 1, 3, 10}) {
      NtcRec ntc = makeNotice(type);
      giveSubAreas(ntc, "2", slots);
      EXPECT_EQ(judge(checkAllotValues, ntc),
                failed(fatal(" :  t_nb_sub_area and the number of t_contour_id notified, do not match")))
          << type << " " << slots;
    }
  }
}

TEST(AllotmentRules, free_places_between_contour_identifiers_do_not_count) {
  NtcRec ntc = makeGt2();
  giveSubAreas(ntc, "2", 0);
  ntc.digital.allot.t_contour_id[3] = "7";
  ntc.digital.allot.t_contour_id[9] = "8";
  EXPECT_EQ(judge(checkAllotValues, ntc), kPassed);
}

TEST(AllotmentRules, the_fragment_is_told_before_the_sub_areas) {
  NtcRec ntc = makeGt2();
  giveSubAreas(ntc, "10", 10);
  ntc.t_fragment = "NTFD_PZ";
  EXPECT_EQ(judge(checkAllotValues, ntc),
            failed("FATAL ERROR : \r\nNotice No : 7 :  t_fragment : Acceptable value for allotments are "
                   "{KV19D}\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 :  t_nb_sub_area : Value should be between [1, 9]\r\n"));
}

TEST(AllotmentRules, each_mandatory_field_of_an_allotment_is_asked_for) {
  const Case cases[] = {
      {"t_adm_ref_id", [](NtcRec& n) { n.t_adm_ref_id.clear(); }, " :  t_adm_ref_id is a mandatory value"},
      {"t_allot_name", [](NtcRec& n) { n.digital.allot.t_allot_name.clear(); },
       " :  t_allot_name is mandatory"},
      {"t_polar", [](NtcRec& n) { n.t_polar.clear(); }, " :  t_polar is a mandatory value (9D)"},
      {"t_is_pub_req", [](NtcRec& n) { n.t_is_pub_req.clear(); },
       " :  t_is_pub_req is a mandatory value if notified under Art 4"},
      {"t_plan_entry", [](NtcRec& n) { n.t_plan_entry.clear(); }, " :  t_plan_entry is a mandatory value"},
      {"t_ref_plan_cfg", [](NtcRec& n) { n.digital.t_ref_plan_cfg.clear(); },
       " :  t_ref_plan_cfg is mandatory"},
  };
  for (const char* type : kAllotmentTypes) {
    for (const Case& one : cases) {
      SCOPED_TRACE(std::string(type) + " " + one.name);
      NtcRec ntc = makeNotice(type);
      one.change(ntc);
      EXPECT_EQ(judge(checkAllotMandatory, ntc), failed(fatal(one.behindLabel)));
    }
  }
}

TEST(AllotmentRules, the_reference_network_is_asked_of_television_alone) {
  NtcRec television = makeGt2();
  television.digital.allot.t_typ_ref_netwk.clear();
  EXPECT_EQ(judge(checkAllotMandatory, television), failed(fatal(" :  t_typ_ref_netwk is mandatory")));
  EXPECT_EQ(makeGs2().digital.allot.t_typ_ref_netwk, "");
}

TEST(AllotmentRules, an_allotment_is_not_asked_for_its_frequency) {
  for (const char* type : kAllotmentTypes) {
    NtcRec ntc = makeNotice(type);
    ntc.t_freq_assgn.clear();
    EXPECT_EQ(judge(checkNtcMandatory, ntc), kPassed) << type;
  }
}

TEST(AllotmentRules, an_area_or_sub_areas_but_not_both) {
  for (const char* type : kAllotmentTypes) {
    SCOPED_TRACE(type);
    NtcRec both = makeNotice(type);
    both.digital.allot.t_nb_sub_areas = "2";
    EXPECT_EQ(judge(checkAllotMandatory, both),
              failed(fatal(" :  If t_geo_area is provided then t_nb_sub_areas should not be given")));

    NtcRec neither = makeNotice(type);
    giveSubAreas(neither, "", 3);
    EXPECT_EQ(judge(checkAllotMandatory, neither),
              failed(fatal(" :  Either t_geo_area or t_nb_sub_areas and t_contour_id(s) should be given")));

    NtcRec subAreas = makeNotice(type);
    giveSubAreas(subAreas, "2", 0);
    EXPECT_EQ(judge(checkAllotMandatory, subAreas), kPassed);
  }
}

TEST(AllotmentRules, an_area_passes_beside_contour_identifiers) {
  NtcRec ntc = makeGt2();
  ntc.digital.allot.t_contour_id.fill("7");
  EXPECT_EQ(judge(checkAllotValues, ntc), kPassed);
  EXPECT_EQ(judge(checkAllotMandatory, ntc), kPassed);
}

struct PlanEntryCase {
  const char* planEntry;
  const char* sfnId;
  bool wrong;
  const char* msg;
};

const PlanEntryCase kPlanEntryCases[] = {
    {"3", "", true, "For t_plan_entry = 3, t_sfn_id MUST be provided\r\n"},
    {"3", "SFN1", false, ""},
    {"4", "", true, "For t_plan_entry = 4, t_sfn_id MUST be provided\r\n"},
    {"4", "SFN1", false, ""},
    {"5", "", false, ""},
    {"5", "SFN1", true, "For t_plan_entry = 5, t_sfn_id MUST be NOT be provided\r\n"},
    {"1", "", false, ""},
    {"1", "SFN1", false, ""},
    {"2", "", false, ""},
    {"2", "SFN1", false, ""},
    {"6", "", false, ""},
    {"6", "SFN1", false, ""},
    {"03", "", false, ""},
    {"X", "SFN1", false, ""},
    {"", "", false, ""},
    {"", "SFN1", false, ""},
};

TEST(AllotmentRules, plan_entries_3_to_5_govern_the_sfn_identifier_and_others_do_not) {
  for (const PlanEntryCase& one : kPlanEntryCases) {
    SCOPED_TRACE(std::string(one.planEntry) + " [" + one.sfnId + "]");
    std::string msg = "left from before";
    EXPECT_EQ(checkPlanEntryAllot(one.planEntry, one.sfnId, msg), one.wrong);
    EXPECT_EQ(msg, one.msg);
  }
}

TEST(AllotmentRules, the_finding_on_the_plan_entry_keeps_its_own_line_end) {
  for (const char* type : kAllotmentTypes) {
    SCOPED_TRACE(type);
    NtcRec ntc = makeNotice(type);
    ntc.t_plan_entry = "3";
    ntc.digital.t_sfn_id.clear();
    EXPECT_EQ(judge(checkAllotMandatory, ntc),
              failed(fatal(" : For t_plan_entry = 3, t_sfn_id MUST be provided\r\n")));
    ntc.t_plan_entry = "4";
    EXPECT_EQ(judge(checkAllotMandatory, ntc),
              failed(fatal(" : For t_plan_entry = 4, t_sfn_id MUST be provided\r\n")));
    ntc.t_plan_entry = "5";
    EXPECT_EQ(judge(checkAllotMandatory, ntc), kPassed);
    ntc.digital.t_sfn_id = "SFN1";
    EXPECT_EQ(judge(checkAllotMandatory, ntc),
              failed(fatal(" : For t_plan_entry = 5, t_sfn_id MUST be NOT be provided\r\n")));
  }
}

TEST(AllotmentRules, an_added_allotment_has_no_target) {
  NtcRec ntc = makeGt2();
  ntc.t_trg_adm_ref_id = "ALLOT-0";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed(fatal(" : t_trg_adm_ref_id should not be notified for a ADD; t_trg_adm_ref_id is used as the "
                   "identifier of the target")));
  ntc.t_action = "Add";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed(fatal(" : t_trg_adm_ref_id should not be notified for a Add; t_trg_adm_ref_id is used as the "
                   "identifier of the target")));
  ntc.t_action = "MODIFY";
  EXPECT_EQ(judge(checkAllotMandatory, ntc), kPassed);
}

// clang-format off
const Case kAbsentInAllotment[] = {
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
    {"t_nb_test_pts", [](NtcRec& n) { n.digital.contour.t_nb_test_pts = "3"; }, " : t_nb_test_pts should not be notified for a "},
    {"t_assgn_code", [](NtcRec& n) { n.t_assgn_code = "L"; }, " : t_assgn_code should not be notified for a "},
    {"t_contour_id", [](NtcRec& n) { n.digital.contour.t_contour_id = "12"; }, " : t_contour_id should not be notified for a "},
    {"t_sys_var", [](NtcRec& n) { n.t_sys_var = "C2"; }, " : t_sys_var should not be notified for a "},
    {"t_rx_mode", [](NtcRec& n) { n.digital.t_rx_mode = "FX"; }, " : t_rx_mode should not be notified for a "},
    {"t_op_agcy", [](NtcRec& n) { n.t_op_agcy = "001"; }, " : t_op_agcy should not be notified for a "},
    {"t_d_inuse", [](NtcRec& n) { n.t_d_inuse = "2026-01-01"; }, " : t_d_inuse should not be notified for a "},
    {"t_addr_code", [](NtcRec& n) { n.t_addr_code = "A"; }, " : t_addr_code should not be notified for a "},
    {"t_op_hh_fr", [](NtcRec& n) { n.op_hours.t_op_hh_fr = "0000"; }, " : t_op_hh_fr should not be notified for a "},
    {"t_op_hh_to", [](NtcRec& n) { n.op_hours.t_op_hh_to = "2400"; }, " : t_op_hh_to should not be notified for a "},
    {"t_remark_conds_met", [](NtcRec& n) { n.t_remark_conds_met = "TRUE"; }, " : t_remarks_conds_met should not be notified for a "},
    {"t_is_resub", [](NtcRec& n) { n.t_is_resub = "TRUE"; }, " : t_is_resub should not be notified for a "},
    {"t_signed_commitment", [](NtcRec& n) { n.t_signed_commitment = "TRUE"; }, " : t_signed_commitment should not be notified for a "},
};

const Case kAbsentInContour[] = {
    {"t_site_name", [](NtcRec& n) { n.t_site_name = "KAHLENBERG"; }, " : t_site_name should not be notified for a GA1"},
    {"t_site_alt", [](NtcRec& n) { n.t_site_alt = "484"; }, " : t_site_alt should not be notified for a GA1"},
    {"long_deg", [](NtcRec& n) { n.long_deg = "16"; }, " : t_long t_lat should not be notified for a GA1"},
    {"long_ew", [](NtcRec& n) { n.long_ew = "E"; }, " : t_long t_lat should not be notified for a GA1"},
    {"long_min", [](NtcRec& n) { n.long_min = "20"; }, " : t_long t_lat should not be notified for a GA1"},
    {"long_sec", [](NtcRec& n) { n.long_sec = "05"; }, " : t_long t_lat should not be notified for a GA1"},
    {"lat_deg", [](NtcRec& n) { n.lat_deg = "48"; }, " : t_long t_lat should not be notified for a GA1"},
    {"lat_ns", [](NtcRec& n) { n.lat_ns = "N"; }, " : t_long t_lat should not be notified for a GA1"},
    {"lat_min", [](NtcRec& n) { n.lat_min = "16"; }, " : t_long t_lat should not be notified for a GA1"},
    {"lat_sec", [](NtcRec& n) { n.lat_sec = "20"; }, " : t_long t_lat should not be notified for a GA1"},
    {"t_erp_h_dbw", [](NtcRec& n) { n.t_erp_h_dbw = "20"; }, " : t_erp_h_dbw should not be notified for a GA1"},
    {"t_erp_v_dbw", [](NtcRec& n) { n.t_erp_v_dbw = "20"; }, " : t_erp_v_dbw should not be notified for a GA1"},
    {"t_eff_hgtmax", [](NtcRec& n) { n.t_eff_hgtmax = "300"; }, " : t_eff_hgtmax should not be notified for a GA1"},
    {"t_hgt_agl", [](NtcRec& n) { n.t_hgt_agl = "120"; }, " : t_hgt_agl should not be notified for a GA1"},
    {"coord present", [](NtcRec& n) { n.coord.present = true; }, " : <COORD> or <COORDINATION> should not be notified for a GA1"},
    {"coord counted", [](NtcRec& n) { n.coord.count = 1; }, " : <COORD> or <COORDINATION> should not be notified for a GA1"},
    {"first of ant_diagr_h", [](NtcRec& n) { n.ant_diagr_h[0].value = "3"; }, " : <ANT_DIAGR_H> should not be notified for a GA1"},
    {"last of ant_diagr_h", [](NtcRec& n) { n.ant_diagr_h[35].value = "3"; }, " : <ANT_DIAGR_H> should not be notified for a GA1"},
    {"first of ant_diagr_v", [](NtcRec& n) { n.ant_diagr_v[0].value = "3"; }, " : <ANT_DIAGR_V> should not be notified for a GA1"},
    {"last of ant_diagr_v", [](NtcRec& n) { n.ant_diagr_v[35].value = "3"; }, " : <ANT_DIAGR_V> should not be notified for a GA1"},
    {"first of ant_hgt", [](NtcRec& n) { n.ant_hgt[0].value = "3"; }, " : <ANT_HGT> should not be notified for a GA1"},
    {"last of ant_hgt", [](NtcRec& n) { n.ant_hgt[35].value = "3"; }, " : <ANT_HGT> should not be notified for a GA1"},
    {"t_associated_adm_allot_id", [](NtcRec& n) { n.digital.t_associated_adm_allot_id = "A1"; }, " : t_associated_adm_allot_id should not be notified for a GA1"},
    {"t_allot_name", [](NtcRec& n) { n.digital.allot.t_allot_name = "VIENNA"; }, " : t_allot_name should not be notified for a GA1"},
    {"t_geo_area", [](NtcRec& n) { n.digital.allot.t_geo_area = "AUT"; }, " : t_geo_area should not be notified for a GA1"},
    {"t_nb_sub_areas", [](NtcRec& n) { n.digital.allot.t_nb_sub_areas = "1"; }, " : t_nb_sub_areas should not be notified for a GA1"},
    {"t_sys_var", [](NtcRec& n) { n.t_sys_var = "C2"; }, " : t_sys_var should not be notified for a GA1"},
    {"t_rx_mode", [](NtcRec& n) { n.digital.t_rx_mode = "FX"; }, " : t_rx_mode should not be notified for a GA1"},
    {"t_op_agcy", [](NtcRec& n) { n.t_op_agcy = "001"; }, " : t_op_agcy should not be notified for a GA1"},
    {"t_d_inuse", [](NtcRec& n) { n.t_d_inuse = "2026-01-01"; }, " : t_d_inuse should not be notified for a GA1"},
    {"t_addr_code", [](NtcRec& n) { n.t_addr_code = "A"; }, " : t_addr_code should not be notified for a GA1"},
    {"t_op_hh_fr", [](NtcRec& n) { n.op_hours.t_op_hh_fr = "0000"; }, " : t_op_hh_fr should not be notified for a GA1"},
    {"t_op_hh_to", [](NtcRec& n) { n.op_hours.t_op_hh_to = "2400"; }, " : t_op_hh_to should not be notified for a GA1"},
    {"t_remark_conds_met", [](NtcRec& n) { n.t_remark_conds_met = "TRUE"; }, " : t_remarks_conds_met should not be notified for a GA1"},
    {"t_is_resub", [](NtcRec& n) { n.t_is_resub = "TRUE"; }, " : t_is_resub should not be notified for a GA1"},
    {"t_signed_commitment", [](NtcRec& n) { n.t_signed_commitment = "TRUE"; }, " : t_signed_commitment should not be notified for a GA1"},
    {"t_freq_assgn", [](NtcRec& n) { n.t_freq_assgn = "474"; }, " : t_freq_assgn should not be notified for a GA1"},
    {"t_erp_beam_tilt_dbw", [](NtcRec& n) { n.t_erp_beam_tilt_dbw = "20"; }, " : t_erp_beam_tilt_dbw should not be notified for a GA1"},
    {"t_beam_tilt_angle", [](NtcRec& n) { n.t_beam_tilt_angle = "1"; }, " : t_beam_tilt_angle should not be notified for a GA1"},
    {"t_typ_ref_netwk", [](NtcRec& n) { n.digital.allot.t_typ_ref_netwk = "RN1"; }, " : t_typ_ref_netwk should not be notified for a GA1"},
    {"t_is_pub_req", [](NtcRec& n) { n.t_is_pub_req = "TRUE"; }, " : t_is_pub_req should not be notified under Art 5"},
};
// clang-format on

TEST(AllotmentRules, each_field_that_an_allotment_does_not_have_gives_its_one_line) {
  for (const char* type : kAllotmentTypes) {
    for (const Case& one : kAbsentInAllotment) {
      SCOPED_TRACE(std::string(type) + " " + one.name);
      NtcRec ntc = makeNotice(type);
      one.change(ntc);
      EXPECT_EQ(judge(checkAllotMandatory, ntc), failed(fatal(std::string(one.behindLabel) + type)));
    }
  }
}

TEST(AllotmentRules, everything_an_allotment_may_not_carry_is_told_in_order_for_television) {
  NtcRec ntc = makeGt2();
  for (const Case& one : kAbsentInAllotment) one.change(ntc);
  givePoints(ntc, "3", 4, 3);
  ntc.t_trg_adm_ref_id = "ALLOT-0";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_trg_adm_ref_id should not be notified for a ADD; "
          "t_trg_adm_ref_id is used as the identifier of the target\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_allot_sfn_id should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_assgn_code should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_agcy should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_d_inuse should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_addr_code should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_fr should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_to should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a GT2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a GT2\r\n"));
}

TEST(AllotmentRules, everything_an_allotment_may_not_carry_is_told_in_order_for_sound) {
  NtcRec ntc = makeGs2();
  for (const Case& one : kAbsentInAllotment) one.change(ntc);
  givePoints(ntc, "3", 4, 3);
  ntc.t_trg_adm_ref_id = "ALLOT-0";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_trg_adm_ref_id should not be notified for a ADD; "
          "t_trg_adm_ref_id is used as the identifier of the target\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_allot_sfn_id should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_assgn_code should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_agcy should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_d_inuse should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_addr_code should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_fr should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_to should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a GS2\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a GS2\r\n"));
}

TEST(AllotmentRules, everything_missing_is_told_in_order_before_what_may_not_be_there) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  ntc.t_action = "ADD";
  ntc.t_trg_adm_ref_id = "ALLOT-0";
  ntc.t_site_name = "KAHLENBERG";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 :  t_adm_ref_id is a mandatory value\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_allot_name is mandatory\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_polar is a mandatory value (9D)\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_is_pub_req is a mandatory value if notified under Art 4\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_plan_entry is a mandatory value\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  Either t_geo_area or t_nb_sub_areas and t_contour_id(s) should "
          "be "
          "given\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_ref_plan_cfg is mandatory\r\n"
          "FATAL ERROR : \r\nNotice No : 7 :  t_typ_ref_netwk is mandatory\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_trg_adm_ref_id should not be notified for a ADD; "
          "t_trg_adm_ref_id is used as the identifier of the target\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a GT2\r\n"));
}

TEST(AllotmentRules, the_plan_entry_is_told_before_the_area) {
  NtcRec ntc = makeGs2();
  ntc.t_polar.clear();
  ntc.t_plan_entry = "4";
  ntc.digital.t_sfn_id.clear();
  ntc.digital.allot.t_nb_sub_areas = "1";
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 :  t_polar is a mandatory value (9D)\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : For t_plan_entry = 4, t_sfn_id MUST be provided\r\n\r\n"
             "FATAL ERROR : \r\nNotice No : 7 :  If t_geo_area is provided then t_nb_sub_areas should not be "
             "given\r\n"));
}

TEST(AllotmentRules, azimuths_without_a_value_are_no_section) {
  for (NtcRec ntc : {makeGt2(), makeGa1()}) {
    for (auto* section : {&ntc.ant_diagr_h, &ntc.ant_diagr_v, &ntc.ant_hgt}) {
      for (AzmValueRec& one : *section) one = {true, "10", ""};
    }
    EXPECT_EQ(judge(checkNtcMandatory, ntc), kPassed) << ntc.t_notice_type;
  }
}

TEST(AllotmentRules, other_fields_of_an_allotment_are_left_alone) {
  for (const char* type : kAllotmentTypes) {
    NtcRec ntc = makeNotice(type);
    ntc.t_prov = "Art 4";
    ntc.t_call_sign = "OE1";
    ntc.t_offset = "0";
    ntc.t_d_expiry = "2030-01-01";
    ntc.t_ant_dir = "ND";
    ntc.t_remarks = "a;b";
    ntc.t_int_remarks = "c";
    ntc.digital.t_sfn_id = "SFN1";
    ntc.digital.t_spect_mask = "1";
    ntc.digital.t_email_addr = "a@b";
    ntc.digital.allot.t_typ_ref_netwk = "RN1";
    ntc.digital.allot.t_contour_id.fill("7");
    ntc.coord = {1, true, {{"D", "", "", "", "", ""}, {}}};
    EXPECT_EQ(judge(checkNtcMandatory, ntc), kPassed) << type;
  }
}

TEST(AllotmentRules, points_of_an_allotment_are_told_up_to_their_count_less_one) {
  NtcRec ntc = makeGt2();
  givePoints(ntc, "2", 5, 5);
  ntc.digital.contour.points[0].present = false;
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a GT2\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GT2\r\n"));
}

TEST(AllotmentRules, points_of_an_allotment_without_a_count_are_not_looked_at) {
  NtcRec ntc = makeGt2();
  givePoints(ntc, "", 5, 5);
  EXPECT_EQ(judge(checkAllotMandatory, ntc), kPassed);
  for (const char* none : {"0", "abc"}) {
    ntc.digital.contour.t_nb_test_pts = none;
    EXPECT_EQ(judge(checkAllotMandatory, ntc),
              failed(fatal(" : t_nb_test_pts should not be notified for a GT2")))
        << none;
  }
}

TEST(AllotmentRules, half_a_point_of_an_allotment_does_not_reach_the_next_one) {
  NtcRec ntc = makeGt2();
  givePoints(ntc, "1.5", 2, 2);
  EXPECT_EQ(
      judge(checkAllotMandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts should not be notified for a GT2\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_long and t_lat should not be notified for a GT2\r\n"));
}

TEST(ContourRules, a_contour_has_its_identifier_and_its_number_of_test_points) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_contour_id.clear();
  EXPECT_EQ(judge(checkContourMandatory, ntc), failed(fatal(" : t_countour_id is mandatory")));

  ntc = makeGa1();
  givePoints(ntc, "", 4, 0);
  EXPECT_EQ(judge(checkContourMandatory, ntc), failed(fatal(" : t_nb_test_pts is mandatory")));
}

TEST(ContourRules, an_empty_number_of_test_points_is_told_by_values_and_by_what_is_mandatory) {
  NtcRec ntc = makeGa1();
  givePoints(ntc, "", 4, 0);
  EXPECT_EQ(judge(values, ntc), failed(fatal(" : Value must be between [3-99]")));
  EXPECT_EQ(judge(checkNtcMandatory, ntc), failed(fatal(" : t_nb_test_pts is mandatory")));
}

TEST(ContourRules, each_test_point_that_is_missing_gives_a_line) {
  NtcRec ntc = makeGa1();
  givePoints(ntc, "3", 4, 2);
  EXPECT_EQ(judge(checkContourMandatory, ntc),
            failed(fatal(" : All the coordinates of the test points are mandatory")));
  givePoints(ntc, "3", 4, 0);
  EXPECT_EQ(
      judge(checkContourMandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : All the coordinates of the test points are mandatory\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : All the coordinates of the test points are mandatory\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : All the coordinates of the test points are mandatory\r\n"));
  givePoints(ntc, "99", 100, 99);
  EXPECT_EQ(judge(checkContourMandatory, ntc), kPassed);
}

TEST(ContourRules, a_missing_point_between_others_is_told) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.points[1] = {};
  EXPECT_EQ(judge(checkContourMandatory, ntc),
            failed(fatal(" : All the coordinates of the test points are mandatory")));
}

TEST(ContourRules, a_number_of_test_points_that_is_none_asks_for_no_point) {
  for (const char* told : {"abc", "0"}) {
    NtcRec ntc = makeGa1();
    givePoints(ntc, told, 4, 0);
    EXPECT_EQ(judge(checkContourMandatory, ntc), kPassed) << told;
  }
}

TEST(ContourRules, half_a_test_point_does_not_ask_for_the_next_one) {
  NtcRec ntc = makeGa1();
  givePoints(ntc, "3.5", 4, 3);
  EXPECT_EQ(judge(checkContourMandatory, ntc), kPassed);
}

TEST(ContourRules, each_field_that_a_contour_does_not_have_gives_its_one_line) {
  for (const Case& one : kAbsentInContour) {
    SCOPED_TRACE(one.name);
    NtcRec ntc = makeGa1();
    one.change(ntc);
    EXPECT_EQ(judge(checkContourMandatory, ntc), failed(fatal(one.behindLabel)));
  }
}

TEST(ContourRules, each_slot_of_an_allotments_contour_identifiers_gives_a_line) {
  for (std::size_t slot = 0; slot < 10; ++slot) {
    NtcRec ntc = makeGa1();
    ntc.digital.allot.t_contour_id[slot] = "7";
    EXPECT_EQ(judge(checkContourMandatory, ntc),
              failed(fatal(" : t_contour_id should not be notified for a GA1")))
        << slot;
  }
}

TEST(ContourRules, everything_a_contour_may_not_carry_is_told_in_order) {
  NtcRec ntc = makeGa1();
  for (const Case& one : kAbsentInContour) one.change(ntc);
  ntc.digital.allot.t_contour_id.fill("7");
  EXPECT_EQ(
      judge(checkContourMandatory, ntc),
      failed(
          "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_site_alt should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_long t_lat should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_h_dbw should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_v_dbw should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_eff_hgtmax should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_hgt_agl should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <COORD> or <COORDINATION> should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_H> should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_DIAGR_V> should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : <ANT_HGT> should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_associated_adm_allot_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_allot_name should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_geo_area should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_nb_sub_areas should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_contour_id should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_sys_var should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_rx_mode should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_agcy should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_d_inuse should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_addr_code should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_fr should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_op_hh_to should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_remarks_conds_met should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_resub should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_signed_commitment should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_freq_assgn should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_erp_beam_tilt_dbw should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_beam_tilt_angle should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_typ_ref_netwk should not be notified for a GA1\r\n"
          "FATAL ERROR : \r\nNotice No : 7 : t_is_pub_req should not be notified under Art 5\r\n"));
}

TEST(ContourRules, what_a_contour_lacks_is_told_in_order_before_what_may_not_be_there) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_contour_id.clear();
  givePoints(ntc, "3", 4, 2);
  ntc.t_site_name = "KAHLENBERG";
  EXPECT_EQ(
      judge(checkContourMandatory, ntc),
      failed("FATAL ERROR : \r\nNotice No : 7 : t_countour_id is mandatory\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : All the coordinates of the test points are mandatory\r\n"
             "FATAL ERROR : \r\nNotice No : 7 : t_site_name should not be notified for a GA1\r\n"));

  ntc = makeGa1();
  ntc.digital.contour.t_contour_id.clear();
  ntc.digital.contour.t_nb_test_pts.clear();
  EXPECT_EQ(judge(checkContourMandatory, ntc),
            failed("FATAL ERROR : \r\nNotice No : 7 : t_countour_id is mandatory\r\n"
                   "FATAL ERROR : \r\nNotice No : 7 : t_nb_test_pts is mandatory\r\n"));
}

TEST(ContourRules, other_fields_of_a_contour_are_left_alone) {
  NtcRec ntc = makeGa1();
  ntc.t_fragment = "KV19D";
  ntc.t_adm_ref_id = "CONTOUR-1";
  ntc.t_prov = "Art 4";
  ntc.t_assgn_code = "L";
  ntc.t_polar = "H";
  ntc.t_plan_entry = "5";
  ntc.t_offset = "0";
  ntc.t_d_expiry = "2030-01-01";
  ntc.t_remarks = "a";
  ntc.digital.t_sfn_id = "SFN1";
  ntc.digital.t_ref_plan_cfg = "RPC1";
  ntc.digital.t_spect_mask = "N";
  ntc.digital.t_associated_allot_sfn_id = "S1";
  EXPECT_EQ(judge(checkContourMandatory, ntc), kPassed);
}

TEST(ContourRules, a_contour_that_is_modified_is_refused_among_all_values) {
  NtcRec ntc = makeGa1();
  ntc.t_action = "MODIFY";
  EXPECT_EQ(judge(values, ntc), failed(fatal(" :  t_action : Acceptable values are {ADD, SUPPRESS}")));
  ntc.t_action = "SUPPRESS";
  EXPECT_EQ(judge(values, ntc), kPassed);
}

}  // namespace
}  // namespace zamo
