#include "validation/allotment_rules.h"

#include <algorithm>

#include "model/notice_words.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "validation/absent_fields.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

// clang-format off
const Message kTwoAreas("GT2, GS2: t_geo_area and t_nb_sub_areas are given", " If t_geo_area is provided then t_nb_sub_areas should not be given");
const Message kNoArea("GT2, GS2: t_geo_area and t_nb_sub_areas are empty", " Either t_geo_area or t_nb_sub_areas and t_contour_id(s) should be given");
const Message kFragment("GT2, GS2: t_fragment is another value", " t_fragment : Acceptable value for allotments are {KV19D}");
const Message kSubAreas("GT2, GS2: t_nb_sub_areas is outside the range", " t_nb_sub_area : Value should be between [1, 9]");
const Message kSubAreasDiffer("GT2, GS2: t_nb_sub_areas is not the number of t_contour_id", " t_nb_sub_area and the number of t_contour_id notified, do not match");
const Message kNoTargetOfAdd("GT2, GS2, ADD: t_trg_adm_ref_id is given", " : t_trg_adm_ref_id should not be notified for a %1; t_trg_adm_ref_id is used as the identifier of the target");
const Message kPointMissing("GA1: a test point is missing, a line for each", "All the coordinates of the test points are mandatory");
const Message kNoPublication("GA1: t_is_pub_req is given", " : t_is_pub_req should not be notified under Art 5");
// clang-format on

// clang-format off
constexpr MandatoryRow kMandatory[] = {
    {isGiven<&NtcRec::t_adm_ref_id>,                " t_adm_ref_id is a mandatory value"},
    {isGivenInAllot<&AllotRec::t_allot_name>,       " t_allot_name is mandatory"},
    {isGiven<&NtcRec::t_polar>,                     " t_polar is a mandatory value (9D)"},
    {isGiven<&NtcRec::t_is_pub_req>,                " t_is_pub_req is a mandatory value if notified under Art 4"},
    {isGiven<&NtcRec::t_plan_entry>,                " t_plan_entry is a mandatory value"},
};

constexpr MandatoryRow kMandatoryPlanning[] = {
    {isGivenInDigital<&DigitalRec::t_ref_plan_cfg>, " t_ref_plan_cfg is mandatory"},
};

constexpr MandatoryRow kMandatoryForTelevision[] = {
    {isGivenInAllot<&AllotRec::t_typ_ref_netwk>,    " t_typ_ref_netwk is mandatory"},
};

constexpr AbsentRow kAbsent[] = {
    absent::site_name,
    absent::site_alt,
    absent::position,
    absent::erp_h_dbw,
    absent::erp_v_dbw,
    absent::erp_beam_tilt_dbw,
    absent::beam_tilt_angle,
    absent::eff_hgtmax,
    absent::hgt_agl,
    absent::ant_diagr_h,
    absent::ant_diagr_v,
    absent::ant_hgt,
    absent::associated_adm_allot_id,
    absent::associated_allot_sfn_id,
};

constexpr AbsentRow kAbsentTestPoints[] = {
    absent::nb_test_pts,
    absent::notified_test_points,
};

constexpr AbsentRow kFurtherAbsent[] = {
    absent::assgn_code,
    absent::contour_id,
    absent::sys_var,
    absent::rx_mode,
    absent::op_agcy,
    absent::d_inuse,
    absent::addr_code,
    absent::op_hh_fr,
    absent::op_hh_to,
    absent::remark_conds_met,
    absent::is_resub,
    absent::signed_commitment,
};

// The words of the first row lack what the rules of the key have.
constexpr MandatoryRow kMandatoryForContour[] = {
    {isGivenInContour<&ContourRec::t_contour_id>,   "t_countour_id is mandatory"},
    {isGivenInContour<&ContourRec::t_nb_test_pts>,  "t_nb_test_pts is mandatory"},
};

constexpr AbsentRow kAbsentForContour[] = {
    absent::site_name,
    absent::site_alt,
    absent::position,
    absent::erp_h_dbw,
    absent::erp_v_dbw,
    absent::eff_hgtmax,
    absent::hgt_agl,
    absent::coord,
    absent::ant_diagr_h,
    absent::ant_diagr_v,
    absent::ant_hgt,
    absent::associated_adm_allot_id,
    absent::allot_name,
    absent::geo_area,
    absent::nb_sub_areas,
    absent::contour_ids,
    absent::sys_var,
    absent::rx_mode,
    absent::op_agcy,
    absent::d_inuse,
    absent::addr_code,
    absent::op_hh_fr,
    absent::op_hh_to,
    absent::remark_conds_met,
    absent::is_resub,
    absent::signed_commitment,
    absent::freq_assgn,
    absent::erp_beam_tilt_dbw,
    absent::beam_tilt_angle,
    absent::typ_ref_netwk,
};

struct PlanEntryRow {
  std::string_view planEntry;
  bool sfnIdGiven;
  std::string_view message;
};

constexpr PlanEntryRow kPlanEntries[] = {
    {"3", true,  "For t_plan_entry = 3, t_sfn_id MUST be provided"},
    {"4", true,  "For t_plan_entry = 4, t_sfn_id MUST be provided"},
    {"5", false, "For t_plan_entry = 5, t_sfn_id MUST be NOT be provided"},
};

const TableMessages kListedMandatory("GT2, GS2: the field is empty", kMandatory);
const TableMessages kListedPlanEntries("GT2, GS2: t_sfn_id doesn't fit the plan entry", kPlanEntries);
const TableMessages kListedPlanning("GT2, GS2: the field is empty", kMandatoryPlanning);
const TableMessages kListedTelevision("GT2: the field is empty", kMandatoryForTelevision);
const TableMessages kListedAbsent("GT2, GS2: the field is given; the type follows", kAbsent);
const TableMessages kListedPoints("GT2, GS2: t_nb_test_pts is given, a line for each point counted; the type follows", kAbsentTestPoints);
const TableMessages kListedFurther("GT2, GS2: the field is given; the type follows", kFurtherAbsent);
const TableMessages kListedContour("GA1: the field is empty", kMandatoryForContour);
const TableMessages kListedAbsentForContour("GA1: the field is given, a line for each; the type follows", kAbsentForContour);
// clang-format on

void checkArea(RuleReport& report, const NtcRec& ntc) {
  const bool area = !ntc.digital.allot.t_geo_area.empty();
  const bool subAreas = !ntc.digital.allot.t_nb_sub_areas.empty();
  if (area && subAreas) report.fatal(kTwoAreas);
  if (!area && !subAreas) report.fatal(kNoArea);
}

}  // namespace

bool checkAllotValues(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (!ntc.t_fragment.empty() && !isInAnyCase(ntc.t_fragment, fragments::KV19D)) {
    report.fatal(kFragment);
  }
  const std::string& subAreas = ntc.digital.allot.t_nb_sub_areas;
  if (!subAreas.empty()) {
    if (!isWithin(subAreas, 1, 9)) {
      report.fatal(kSubAreas);
    } else if (leadingNumber(subAreas) != countContourIds(ntc.digital.allot)) {
      report.fatal(kSubAreasDiffer);
    }
  }
  return report.good;
}

bool checkAllotMandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kMandatory);
  std::string msg;
  if (checkPlanEntryAllot(ntc.t_plan_entry, ntc.digital.t_sfn_id, msg)) report.fatalRow(msg);
  checkArea(report, ntc);
  demand(report, ntc, kMandatoryPlanning);
  if (isInAnyCase(ntc.t_notice_type, types::GT2)) demand(report, ntc, kMandatoryForTelevision);
  if (isInAnyCase(ntc.t_action, actions::ADD) && !ntc.t_trg_adm_ref_id.empty()) {
    report.fatal(kNoTargetOfAdd, {ntc.t_action});
  }
  forbid(report, ntc, kAbsent, ntc.t_notice_type);
  if (!ntc.digital.contour.t_nb_test_pts.empty()) forbid(report, ntc, kAbsentTestPoints, ntc.t_notice_type);
  forbid(report, ntc, kFurtherAbsent, ntc.t_notice_type);
  return report.good;
}

bool checkContourMandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kMandatoryForContour);
  const auto& points = ntc.digital.contour.points;
  const double notified = notifiedPoints(ntc);
  for (std::size_t i = 0; static_cast<double>(i) < notified; ++i) {
    if (i >= points.size()) throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
    if (!points[i].present) report.fatal(kPointMissing);
  }
  forbid(report, ntc, kAbsentForContour, ntc.t_notice_type);
  if (!ntc.t_is_pub_req.empty()) report.fatal(kNoPublication);
  return report.good;
}

bool checkPlanEntryAllot(std::string_view planEntry, std::string_view sfnId, std::string& msg) {
  msg.clear();
  for (const PlanEntryRow& row : kPlanEntries) {
    if (equalsIgnoringCase(row.planEntry, planEntry) && row.sfnIdGiven == sfnId.empty()) {
      msg.append(row.message).append(kLineEnd);
    }
  }
  return !msg.empty();
}

}  // namespace zamo
