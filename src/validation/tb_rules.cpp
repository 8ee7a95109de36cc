#include "validation/tb_rules.h"

#include "model/notice_words.h"
#include "validation/absent_fields.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

// clang-format off
const Message kTwoTargets("TB2: t_trg_adm_ref_id and data of the target are given", " Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, but not both");
const Message kNoTargetPosition("TB2: t_trg_freq_assgn is given, a part of the target's coordinates is empty", " t_trg_long and t_trg_lat must be provided");
const Message kNoTargetFrequency("TB2: the target's coordinates are given, t_trg_freq_assgn is empty", " t_freq_assgn must be provided");
const Message kPlanValue("TB2, TB3: t_plan is another value", " t_plan : Acceptable value for assignments are {KV19D}");
const Message kFragment("TB5: t_fragment is another value", " t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}");
const Message kActionOfTb5("TB5: t_action is another value", " t_action : Acceptable values are {SUPPRESS, WITHDRAW}");
const Message kActionOfTb3("TB3: t_action is another value than PARTB", " t_action : Acceptable values are {PARTB}");
// The words have always named the value of a TB3.
const Message kActionOfTb2("TB2: t_action is another value than CONFORM", " t_action : Acceptable values are {PARTB}");

constexpr MandatoryRow kTarget[] = {
    {isGiven<&NtcRec::t_trg_adm_ref_id>,  "t_trg_adm_ref_id is a mandatory value"},
};
constexpr MandatoryRow kPlan[] = {
    {isGiven<&NtcRec::t_plan>,            " t_plan is a mandatory value"},
};
constexpr MandatoryRow kMandatoryForTb2[] = {
    {isGiven<&NtcRec::t_plan_adm_ref_id>, " t_plan_adm_ref_id is a mandatory value"},
    {isGiven<&NtcRec::t_plan>,            " t_plan is a mandatory value"},
    {isGiven<&NtcRec::t_d_inuse>,         " t_d_inuse is a mandatory value (2C)"},
    {isGiven<&NtcRec::t_addr_code>,       " t_addr_code is a mandatory value (12B)"},
};

constexpr AbsentRow kAbsent[] = {
    absent::adm_ref_id,
    absent::site_name,
    absent::site_alt,
    absent::position,
    absent::erp_h_dbw,
    absent::erp_v_dbw,
    absent::erp_beam_tilt_dbw,
    absent::beam_tilt_angle,
    absent::eff_hgtmax,
    absent::hgt_agl,
};

constexpr AbsentRow kAbsentExceptInTb3[] = {
    absent::coord,
};

constexpr AbsentRow kAbsentAntenna[] = {
    absent::ant_diagr_h,
    absent::ant_diagr_v,
    absent::ant_hgt,
    absent::associated_adm_allot_id,
    absent::associated_allot_sfn_id,
};

constexpr AbsentRow kAbsentTestPoints[] = {
    absent::nb_test_pts,
    absent::test_points,
};

constexpr AbsentRow kAbsentSystem[] = {
    absent::assgn_code,
    absent::contour_id,
    absent::sys_var,
    absent::rx_mode,
};

constexpr AbsentRow kAbsentExceptInTb2[] = {
    absent::op_agcy,
    absent::d_inuse,
    absent::addr_code,
    absent::op_hh_fr,
    absent::op_hh_to,
};

constexpr AbsentRow kAbsentDeclarations[] = {
    absent::remark_conds_met,
    absent::is_resub,
    absent::signed_commitment,
    absent::typ_ref_netwk,
    absent::allot_name,
    absent::geo_area,
    absent::nb_sub_areas,
    absent::contour_ids,
    absent::contour_id,
    absent::is_pub_req,
    absent::sfn_id,
};

const TableMessages kListedTarget("TB3, TB5: the field is empty", kTarget);
const TableMessages kListedPlan("TB3: the field is empty", kPlan);
const TableMessages kListedMandatory("TB2: the field is empty", kMandatoryForTb2);
const TableMessages kListedAbsent("TB2, TB3, TB5: the field is given; the type follows", kAbsent);
const TableMessages kListedCoord("TB2, TB5: the section is given; the type follows", kAbsentExceptInTb3);
const TableMessages kListedAntenna("TB2, TB3, TB5: a value is given; the type follows", kAbsentAntenna);
const TableMessages kListedPoints("TB2, TB3, TB5: t_nb_test_pts is given, a line for each point; the type follows", kAbsentTestPoints);
const TableMessages kListedSystem("TB2, TB3, TB5: the field is given; the type follows", kAbsentSystem);
const TableMessages kListedAgency("TB3, TB5: the field is given; the type follows", kAbsentExceptInTb2);
const TableMessages kListedDeclarations("TB2, TB3, TB5: the field is given, a line for each; the type follows", kAbsentDeclarations);
// clang-format on

void checkTarget(RuleReport& report, const NtcRec& ntc) {
  const bool frequency = !ntc.t_trg_freq_assgn.empty();
  const bool allParts = !(ntc.trg_long_deg.empty() || ntc.trg_long_min.empty() || ntc.trg_lat_deg.empty() ||
                          ntc.trg_lat_min.empty());
  const bool anyPart = !(ntc.trg_long_deg.empty() && ntc.trg_long_min.empty() && ntc.trg_lat_deg.empty() &&
                         ntc.trg_lat_min.empty());
  if (!ntc.t_trg_adm_ref_id.empty() && (frequency || anyPart)) {
    report.fatal(kTwoTargets);
  }
  if (frequency && !allParts) report.fatal(kNoTargetPosition);
  if (allParts && !frequency) report.fatal(kNoTargetFrequency);
}

bool isGivenAndNot(std::string_view value, bool accepted) {
  return !value.empty() && !accepted;
}

void checkPlan(RuleReport& report, const NtcRec& ntc) {
  if (isGivenAndNot(ntc.t_plan, isInAnyCase(ntc.t_plan, fragments::KV19D))) {
    report.fatal(kPlanValue);
  }
}

}  // namespace

bool checkTb5Values(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (isGivenAndNot(ntc.t_fragment, isInAnyCase(ntc.t_fragment, {fragments::KV19D, fragments::NTFD_PZ}))) {
    report.fatal(kFragment);
  }
  if (isGivenAndNot(ntc.t_action, isInAnyCase(ntc.t_action, {actions::WITHDRAW, actions::SUPPRESS}))) {
    report.fatal(kActionOfTb5);
  }
  return report.good;
}

bool checkTb3Values(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  checkPlan(report, ntc);
  if (isGivenAndNot(ntc.t_action, isInAnyCase(ntc.t_action, actions::PARTB))) report.fatal(kActionOfTb3);
  return report.good;
}

bool checkTb2Values(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  checkPlan(report, ntc);
  if (isGivenAndNot(ntc.t_action, isInAnyCase(ntc.t_action, actions::CONFORM))) report.fatal(kActionOfTb2);
  return report.good;
}

bool checkTb5Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kTarget);
  return checkTbAbsentFields(ntc, errs, label) && report.good;
}

bool checkTb3Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kTarget);
  demand(report, ntc, kPlan);
  return checkTbAbsentFields(ntc, errs, label) && report.good;
}

bool checkTb2Mandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kMandatoryForTb2);
  checkTarget(report, ntc);
  return checkTbAbsentFields(ntc, errs, label) && report.good;
}

bool checkTbAbsentFields(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  const std::string& type = ntc.t_notice_type;
  forbid(report, ntc, kAbsent, type);
  if (!isInAnyCase(ntc.t_notice_type, types::TB3)) forbid(report, ntc, kAbsentExceptInTb3, type);
  forbid(report, ntc, kAbsentAntenna, type);
  if (!ntc.digital.contour.t_nb_test_pts.empty()) forbid(report, ntc, kAbsentTestPoints, type);
  forbid(report, ntc, kAbsentSystem, type);
  if (!isInAnyCase(ntc.t_notice_type, types::TB2)) forbid(report, ntc, kAbsentExceptInTb2, type);
  forbid(report, ntc, kAbsentDeclarations, type);
  return report.good;
}

}  // namespace zamo
