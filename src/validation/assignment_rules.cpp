#include "validation/assignment_rules.h"

#include <algorithm>
#include <cmath>

#include "model/notice_words.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "validation/absent_fields.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

using AzimuthValues = std::array<AzmValueRec, kAzimuths>;

constexpr double kHighestPower = 53;
constexpr double kHighestAttenuation = 40;
constexpr double kHighestEffectiveHeight = 3000;

// clang-format off
const Message kFragment("GT1, GS1: t_fragment is another value", " t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}");
const Message kPowerHTooHigh("GT1, GS1: t_erp_h_dbw is above 53", " t_erp_h_dbw : Value should be <= 53.0 (8BH)");
const Message kPowerVTooHigh("GT1, GS1: t_erp_v_dbw is above 53", " t_erp_v_dbw : Value should be <= 53.0 (8BV)");
const Message kPolarization("GT1, GS1: t_polar is U", " t_polar : For assignments acceptable values are {V, H, M} (9D)");
const Message kCallSign("GT1, GS1: t_call_sign is given; a warning", " : t_call_sign (3A1) provided but NOT validated.");
const Message kTiltPowerTooHigh("GT1: t_erp_beam_tilt_dbw is above 53", " t_erp_beam_tilt_dbw : Value should be <= 53.0");
const Message kTiltPowerBelowH("GT1: t_erp_h_dbw is not below t_erp_beam_tilt_dbw", " t_erp_beam_tilt_dbw must be greater than t_erp_h_dbw");
const Message kTiltPowerBelowV("GT1: t_erp_v_dbw is not below t_erp_beam_tilt_dbw", " t_erp_beam_tilt_dbw must be greater than t_erp_v_dbw");
const Message kTiltAngle("GT1: t_beam_tilt_angle is outside the range", " t_beam_tilt_angle : Value should be [-30.0, 30.0]");
const Message kHeight("GT1, GS1: a height of <ANT_HGT> is outside the range; an empty one counts as 0", " t_eff_hgt@azm%1 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)");
const Message kAttenuationH("GT1, GS1: an attenuation is outside the range", " : <ANT_DIAGR_H> :  t_attn@azm%1 : Value should be a numerical between [0.0 , 40.0]");
const Message kAttenuationV("GT1, GS1: an attenuation is outside the range", " : <ANT_DIAGR_V> :  t_attn@azm%1 : Value should be a numerical between [0.0 , 40.0]");
const Message kNotNormalizedV("GT1, GS1: none of the 36 attenuations is 0 or empty", " : <ANT_DIAGR_V> : has to be normalized ");
const Message kNotNormalizedH("GT1, GS1: none of the 36 attenuations is 0 or empty", " : <ANT_DIAGR_H> : has to be normalized ");
const Message kNoTargetId("GT1, GS1, MODIFY, fragment other than NTFD_PZ: t_trg_adm_ref_id is empty", "t_trg_adm_ref_id is a mandatory value");
const Message kNoTarget("GT1, GS1, MODIFY, fragment NTFD_PZ: neither the identifier nor all data of the target are given", " Either t_trg_adm_ref_id Or t_trg_freq, t_trg_long and t_trg_lat must be provided");
const Message kTwoTargets("GT1, GS1, MODIFY, fragment NTFD_PZ: the identifier and data of the target are given", " Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, but not both");
const Message kPowerV("GT1, GS1, polarization M or V: t_erp_v_dbw is empty", " t_erp_v_dbw is a mandatory value (8BV)");
const Message kPowerH("GT1, GS1, polarization M or H: t_erp_h_dbw is empty", " t_erp_h_dbw is a mandatory value (8BH)");
const Message kNoPowerH("GT1, GS1, polarization V: t_erp_h_dbw is given", " t_erp_h_dbw should not be notified when polarization is V (8BH)");
const Message kNoPowerV("GT1, GS1, polarization H: t_erp_v_dbw is given", " t_erp_v_dbw should not be notified when polarization is H (8BV)");
const Message kAllOfH("GT1, GS1, antenna D, polarization M or H: a value is missing", " (9NH) <ANT_DIAGR_H> : All 36 values of e.r.p reduction of horizontally-polarized component must be provided");
const Message kAllOfV("GT1, GS1, antenna D, polarization M or V: a value is missing", " (9NV) <ANT_DIAGR_V> : All 36 values of e.r.p reduction of vertically-polarized component must be provided");
const Message kNoneOfH("GT1, GS1, antenna D, polarization V: a value is given", " (9NH) <ANT_DIAGR_H> : should not be notified if the polarization is%1");
const Message kNoneOfV("GT1, GS1, antenna D, polarization H: a value is given", " (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is %1");
const Message kNoneOfVForNd("GT1, GS1, antenna ND: a value is given", " (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is %1 and the antenna is %2");
const Message kNoneOfHForNd("GT1, GS1, antenna ND: a value is given, and none of <ANT_DIAGR_V>; directly behind the label", " (9NH) <ANT_DIAGR_H> : should not be notified if the polarization is%1 and the antenna is %2");
const Message kPlanEntry("GT1, GS1: t_plan_entry is empty", " t_plan_entry is a mandatory value");
const Message kAssignmentCode("GT1, GS1: t_assgn_code is empty", " t_assgn_code is a mandatory value");
const Message kNoSfnOfAllotment("GT1, GS1: t_assgn_code is S and t_associated_allot_sfn_id is given", "if t_assgn_code = S then t_associated_allot_sfn_id must not be provided");
const Message kSoundPlanning("GS1: t_ref_plan_cfg is empty", " t_ref_plan_cfg is mandatory");
const Message kTiltAngleMissing("GT1: t_erp_beam_tilt_dbw is given, t_beam_tilt_angle is empty", "if t_erp_beam_tilt_dbw is provided then t_beam_tilt_angle must be provided");
const Message kTiltPowerMissing("GT1: t_beam_tilt_angle is given, t_erp_beam_tilt_dbw is empty", "if t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided");
const Message kNoSystem("GT1, fragment KV19D: t_ref_plan_cfg, t_sys_var and t_rx_mode are empty", " Either {t_sys_var, t_rx_mode} or {t_ref_plan_cfg} must be provided if notifed under Art 4");
const Message kHalfSystem("GT1: only one of t_sys_var and t_rx_mode is given under Art 4 without t_ref_plan_cfg, or not both under Art 5", "{t_sys_var, t_rx_mode} must be provided");
const Message kTwoSystems("GT1, fragment KV19D: t_ref_plan_cfg is given, and t_sys_var or t_rx_mode too", " If t_ref_plan_cfg is provided then {t_sys_var, t_rx_mode} must NOT be provided if notifed under Art 4");
const Message kNoPlanning("GT1, fragment NTFD_PZ: t_ref_plan_cfg is given", "t_ref_plan_cfg must not be provided if notified under Art 5, however {t_sys_var, t_rx_mode} must be provided");
const Message kNoTargetOfAdd("GT1, GS1, ADD: t_trg_adm_ref_id is given", "t_trg_adm_ref_id should not be notified for a %1; t_adm_ref_id is used as the identifier of the target");
const Message kSfnDiffers("GT1, GS1: t_associated_allot_sfn_id and t_sfn_id are given and differ", " : t_associated_allot_sfn_id must be equal to t_sfn_id");
// clang-format on

bool isFilled(const AzmValueRec& one) {
  return !one.azm.empty() && !one.value.empty();
}

bool hasAll(const AzimuthValues& values) {
  return std::all_of(values.begin(), values.end(), isFilled);
}

bool isGivenAndAbove(std::string_view value, double highest) {
  return !value.empty() && leadingNumber(value) > highest;
}

void checkBeamTilt(RuleReport& report, const NtcRec& ntc) {
  const std::string& tiltPower = ntc.t_erp_beam_tilt_dbw;
  if (!tiltPower.empty()) {
    const double power = leadingNumber(tiltPower);
    if (power > kHighestPower) report.fatal(kTiltPowerTooHigh);
    if (!ntc.t_erp_h_dbw.empty() && leadingNumber(ntc.t_erp_h_dbw) >= power) {
      report.fatal(kTiltPowerBelowH);
    }
    if (!ntc.t_erp_v_dbw.empty() && leadingNumber(ntc.t_erp_v_dbw) >= power) {
      report.fatal(kTiltPowerBelowV);
    }
  }
  if (!ntc.t_beam_tilt_angle.empty() && !isWithin(ntc.t_beam_tilt_angle, -30, 30)) {
    report.fatal(kTiltAngle);
  }
}

// Gives whether the value passed and normalizes its diagram; an empty slot reads as 0 and so does.
bool checkAttenuation(RuleReport& report, const AzmValueRec& slot, const Message& message) {
  const double value = leadingNumber(slot.value);
  if (value > kHighestAttenuation || (value < 0 && slot.present)) {
    report.fatal(message, {slot.azm});
  }
  return value == 0;
}

void checkHeightsAndDiagrams(RuleReport& report, const NtcRec& ntc) {
  const double highest =
      ntc.t_eff_hgtmax.empty() ? kHighestEffectiveHeight : std::trunc(leadingNumber(ntc.t_eff_hgtmax));
  bool normalizedH = false;
  bool normalizedV = false;
  for (std::size_t slot = 0; slot < kAzimuths; ++slot) {
    if (!isWithin(ntc.ant_hgt[slot].value, -3000, highest)) {
      report.fatal(kHeight, {ntc.ant_hgt[slot].azm});
    }
    normalizedH |= checkAttenuation(report, ntc.ant_diagr_h[slot], kAttenuationH);
    normalizedV |= checkAttenuation(report, ntc.ant_diagr_v[slot], kAttenuationV);
  }
  if (!normalizedV) report.fatal(kNotNormalizedV);
  if (!normalizedH) report.fatal(kNotNormalizedH);
}

bool hasWholeTarget(const NtcRec& ntc) {
  return !(ntc.trg_long_deg.empty() || ntc.trg_long_min.empty() || ntc.t_trg_freq_assgn.empty() ||
           ntc.trg_lat_deg.empty() || ntc.trg_lat_min.empty());
}

bool hasAnyOfTarget(const NtcRec& ntc) {
  return !(ntc.trg_long_deg.empty() && ntc.trg_long_min.empty() && ntc.t_trg_freq_assgn.empty() &&
           ntc.trg_lat_deg.empty() && ntc.trg_lat_min.empty());
}

void checkTarget(RuleReport& report, const NtcRec& ntc) {
  if (!isInAnyCase(ntc.t_action, actions::MODIFY)) return;
  const bool named = !ntc.t_trg_adm_ref_id.empty();
  if (!isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ)) {
    if (!named) report.fatal(kNoTargetId);
  } else if (!named && !hasWholeTarget(ntc)) {
    report.fatal(kNoTarget);
  } else if (named && hasAnyOfTarget(ntc)) {
    report.fatal(kTwoTargets);
  }
}

bool hasLong(const NtcRec& ntc) {
  return !(ntc.long_deg.empty() || ntc.long_min.empty() || ntc.long_ew.empty());
}

bool hasLat(const NtcRec& ntc) {
  return !(ntc.lat_deg.empty() || ntc.lat_min.empty() || ntc.lat_ns.empty());
}

bool hasAllHeights(const NtcRec& ntc) {
  return hasAll(ntc.ant_hgt);
}

// clang-format off
constexpr MandatoryRow kReference[] = {
    {isGiven<&NtcRec::t_adm_ref_id>,              " t_adm_ref_id is a mandatory value"},
};

constexpr MandatoryRow kMandatory[] = {
    {isGiven<&NtcRec::t_site_name>,               " t_sitename is a mandatory value (4A)"},
    {hasLong,                                     " t_long is a mandatory value (4C)"},
    {hasLat,                                      " t_lat is a mandatory value (4C)"},
    {isGiven<&NtcRec::t_site_alt>,                " t_site_alt is a mandatory value (9EA)"},
    {isGiven<&NtcRec::t_polar>,                   " t_polar is a mandatory value (9D)"},
    {isGiven<&NtcRec::t_hgt_agl>,                 " t_hgt_agl is a mandatory value (9E)"},
    {isGiven<&NtcRec::t_ant_dir>,                 " t_ant_dir is a mandatory value (9)"},
    {isGiven<&NtcRec::t_eff_hgtmax>,              " t_eff_hgtmax is a mandatory value (9EB)"},
    {isGivenInDigital<&DigitalRec::t_spect_mask>, " t_spect_mask is a mandatory value"},
    {hasAllHeights,                               " (9EC) <ANT_HGT> : All 36 values of the effective antenna height must be provided"},
    {isGiven<&NtcRec::t_freq_assgn>,              " t_freq_assgn is a mandatory value (1A)"},
};

constexpr MandatoryRow kMandatoryUnderArt4[] = {
    {isGiven<&NtcRec::t_is_pub_req>,              " t_is_pub_req is a mandatory value if notified under Art 4"},
};

constexpr MandatoryRow kMandatoryUnderArt5[] = {
    {isGiven<&NtcRec::t_d_inuse>,                 " t_d_inuse is a mandatory value if notified under Art 5 (2C)"},
    {isGiven<&NtcRec::t_addr_code>,               " t_addr_code is a mandatory value if notified under Art 5 (12B)"},
    {isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_fr>, " t_op_hh_fr is a mandatory value if notified under Art 5 (10B)"},
    {isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_to>, " t_op_hh_to is a mandatory value if notified under Art 5 (10B)"},
    {isGiven<&NtcRec::t_remark_conds_met>,        " t_remark_conds_met is a mandatory value if notified under Art 5"},
    {isGiven<&NtcRec::t_is_resub>,                " t_is_resub is a mandatory value if notified under Art 5"},
    {isGiven<&NtcRec::t_signed_commitment>,       " t_signed_commitment is a mandatory value if notified under Art 5"},
    {isGiven<&NtcRec::t_plan_adm_ref_id>,         " t_plan_adm_ref_id is a mandatory value if notified under Art 5"},
    {isGiven<&NtcRec::t_prov>,                    " t_prov is a mandatory value if notified under Art 5\r\n(The value will be automatically generated if validated through Zamo and saved back to text file)"},
};

constexpr AbsentRow kNoNetworkType[] = {
    absent::typ_ref_netwk,
};

constexpr AbsentRow kAbsentAllotment[] = {
    absent::allot_name,
    absent::geo_area,
    absent::nb_sub_areas,
    absent::contour_ids,
};

constexpr AbsentRow kAbsentTestPoints[] = {
    absent::nb_test_pts,
    absent::test_points,
};

constexpr AbsentRow kAbsentContour[] = {
    absent::contour_id,
};

constexpr AbsentRow kAbsentForSound[] = {
    absent::sys_var,
    absent::rx_mode,
    absent::erp_beam_tilt_dbw,
    absent::beam_tilt_angle,
};

constexpr AbsentRow kAbsentUnderArt4[] = {
    {once<isGiven<&NtcRec::t_op_agcy>>,                " : t_op_agcy should not be notified under Art 4"},
    {once<isGiven<&NtcRec::t_addr_code>>,              " : t_addr_code should not be notified under Art 4"},
    {once<isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_fr>>, " : t_op_hh_fr should not be notified under Art 4"},
    {once<isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_to>>, " : t_op_hh_to should not be notified under Art 4"},
    {once<isGiven<&NtcRec::t_remark_conds_met>>,       " : t_remarks_conds_met should not be notified under Art 4"},
    {once<isGiven<&NtcRec::t_is_resub>>,               " : t_is_resub should not be notified under Art 4"},
    {once<isGiven<&NtcRec::t_signed_commitment>>,      " : t_signed_commitment should not be notified under Art 4"},
};

constexpr AbsentRow kAbsentUnderArt5[] = {
    {once<isGiven<&NtcRec::t_is_pub_req>>,             " : t_is_pub_req should not be notified under Art 5"},
};

enum class Demand { none, given, absent };

struct PlanEntryRow {
  std::string_view planEntry;
  std::string_view codes;  // the assignment codes that the entry takes, each one letter
  std::string_view codeMessage;
  Demand sfnId;
  std::string_view sfnIdMessage;
  Demand admAllotId;
  std::string_view admAllotIdMessage;
  Demand allotSfnId;
  std::string_view allotSfnIdMessage;
  std::array<std::string_view, 4> allWords() const { return {codeMessage, sfnIdMessage, admAllotIdMessage, allotSfnIdMessage}; }
};

constexpr PlanEntryRow kPlanEntries[] = {
    {"1", "S",  "For t_plan_entry = 1, t_assgn_code must be 'S' ",
     Demand::absent, "For t_plan_entry = 1, t_sfn_id must NOT be provided",
     Demand::absent, "For t_plan_entry = 1, t_associated_adm_allot_id must NOT be provided",
     Demand::none,   ""},
    {"2", "L",  "For t_plan_entry = 2, t_assgn_code must be 'L'",
     Demand::given,  "For t_plan_entry = 2, t_sfn_id MUST be provided",
     Demand::absent, "For t_plan_entry = 2, t_associated_adm_allot_id must NOT be provided",
     Demand::absent, "For t_plan_entry = 2, t_associated_allot_sfn_id must NOT be provided"},
    {"3", "C",  "For t_plan_entry = 3, t_assgn_code must be 'C'",
     Demand::given,  "For t_plan_entry = 3, t_sfn_id MUST be provided",
     Demand::given,  "For t_plan_entry = 3, t_associated_adm_allot_id must be provided",
     Demand::given,  "For t_plan_entry = 3, t_associated_allot_sfn_id must be provided and it must be equal to t_sfn_id of the allotment"},
    {"4", "LC", "For t_plan_entry = 4, t_assgn_code can only be {L, C}",
     Demand::given,  "For t_plan_entry = 4, t_sfn_id MUST be provided",
     Demand::given,  "For t_plan_entry = 4, t_associated_adm_allot_id must be provided",
     Demand::given,  "For t_plan_entry = 4, t_associated_allot_sfn_id must be provided and it must be equal to t_sfn_id of the allotment"},
    {"5", "L",  "For t_plan_entry = 5, t_assgn_code must be 'L'",
     Demand::absent, "For t_plan_entry = 5, t_sfn_id MUST NOT be provided",
     Demand::given,  "For t_plan_entry = 5, t_associated_adm_allot_id must be provided",
     Demand::absent, "For t_plan_entry = 5, t_associated_allot_sfn_id must NOT be provided"},
};

const TableMessages kListedReference("GT1, GS1: the field is empty", kReference);
const TableMessages kListedMandatory("GT1, GS1: the field is empty, or a value of the section", kMandatory);
const TableMessages kListedMandatory4("GT1, GS1, fragment KV19D: the field is empty", kMandatoryUnderArt4);
const TableMessages kListedMandatory5("GT1, GS1, fragment NTFD_PZ: the field is empty", kMandatoryUnderArt5);
const TableMessages kListedNetwork("GT1, GS1: the field is given; the type follows", kNoNetworkType);
const TableMessages kListedAllotment("GT1, GS1: the field is given, a line for each; the type follows", kAbsentAllotment);
const TableMessages kListedPoints("GT1, GS1: t_nb_test_pts is given, a line for each point; the type follows", kAbsentTestPoints);
const TableMessages kListedContour("GT1, GS1: the field is given; the type follows", kAbsentContour);
const TableMessages kListedSound("GS1: the field is given; the type follows", kAbsentForSound);
const TableMessages kListedAbsent4("GT1, GS1, fragment KV19D: the field is given", kAbsentUnderArt4);
const TableMessages kListedAbsent5("GT1, GS1, fragment NTFD_PZ: the field is given", kAbsentUnderArt5);
const TableMessages kListedPlanEntries("GT1, GS1: the field doesn't fit the plan entry", kPlanEntries);
// clang-format on

void checkMixedPolarization(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_erp_v_dbw.empty()) report.fatal(kPowerV);
  if (ntc.t_erp_h_dbw.empty()) report.fatal(kPowerH);
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_h)) report.fatal(kAllOfH);
  if (!hasAll(ntc.ant_diagr_v)) report.fatal(kAllOfV);
}

void checkVerticalPolarization(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.t_erp_h_dbw.empty()) {
    report.fatal(kNoPowerH);
  } else if (ntc.t_erp_v_dbw.empty()) {
    report.fatal(kPowerV);
  }
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_v)) report.fatal(kAllOfV);
  if (hasAntDiagrH(ntc)) report.fatal(kNoneOfH, {ntc.t_polar});
}

void checkHorizontalPolarization(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.t_erp_v_dbw.empty()) {
    report.fatal(kNoPowerV);
  } else if (ntc.t_erp_h_dbw.empty()) {
    report.fatal(kPowerH);
  }
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_h)) report.fatal(kAllOfH);
  if (hasAntDiagrV(ntc)) report.fatal(kNoneOfV, {ntc.t_polar});
}

void checkPolarization(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_polar == "M") checkMixedPolarization(report, ntc);
  if (ntc.t_polar == "V") checkVerticalPolarization(report, ntc);
  if (ntc.t_polar == "H") checkHorizontalPolarization(report, ntc);
}

void checkNonDirectional(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_ant_dir != "ND") return;
  if (hasAntDiagrV(ntc)) {
    report.fatal(kNoneOfVForNd, {ntc.t_polar, ntc.t_ant_dir});
  } else if (hasAntDiagrH(ntc)) {
    report.fatalGlued(kNoneOfHForNd, {ntc.t_polar, ntc.t_ant_dir});
  }
}

void checkPlanEntry(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_plan_entry.empty()) report.fatal(kPlanEntry);
  if (ntc.t_assgn_code.empty()) report.fatal(kAssignmentCode);
  const DigitalRec& digital = ntc.digital;
  if (!ntc.t_plan_entry.empty() && !ntc.t_assgn_code.empty()) {
    std::string msg;
    if (checkPlanEntryAssgn(ntc.t_plan_entry, ntc.t_assgn_code, digital.t_sfn_id,
                            digital.t_associated_adm_allot_id, digital.t_associated_allot_sfn_id, msg)) {
      report.fatalRow(msg);
    }
  }
  if (equalsIgnoringCase(ntc.t_assgn_code, "S") && !digital.t_associated_allot_sfn_id.empty()) {
    report.fatal(kNoSfnOfAllotment);
  }
}

void checkSystemUnderArt4(RuleReport& report, const NtcRec& ntc) {
  const bool variant = !ntc.t_sys_var.empty();
  const bool mode = !ntc.digital.t_rx_mode.empty();
  if (!ntc.digital.t_ref_plan_cfg.empty()) {
    if (variant || mode) {
      report.fatal(kTwoSystems);
    }
  } else if (!variant && !mode) {
    report.fatal(kNoSystem);
  } else if (!variant || !mode) {
    report.fatal(kHalfSystem);
  }
}

void checkSystemUnderArt5(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.digital.t_ref_plan_cfg.empty()) {
    report.fatal(kNoPlanning);
  }
  if (ntc.t_sys_var.empty() || ntc.digital.t_rx_mode.empty()) report.fatal(kHalfSystem);
}

void checkTelevision(RuleReport& report, const NtcRec& ntc) {
  const bool power = !ntc.t_erp_beam_tilt_dbw.empty();
  const bool angle = !ntc.t_beam_tilt_angle.empty();
  if (power && !angle) report.fatal(kTiltAngleMissing);
  if (angle && !power) report.fatal(kTiltPowerMissing);
  if (isInAnyCase(ntc.t_fragment, fragments::KV19D)) checkSystemUnderArt4(report, ntc);
  if (isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ)) checkSystemUnderArt5(report, ntc);
}

void checkAbsent(RuleReport& report, const NtcRec& ntc) {
  forbid(report, ntc, kNoNetworkType, ntc.t_notice_type);
  if (isInAnyCase(ntc.t_action, actions::ADD) && !ntc.t_trg_adm_ref_id.empty()) {
    report.fatal(kNoTargetOfAdd, {ntc.t_action});
  }
  forbid(report, ntc, kAbsentAllotment, ntc.t_notice_type);
  if (!ntc.digital.contour.t_nb_test_pts.empty()) forbid(report, ntc, kAbsentTestPoints, ntc.t_notice_type);
  forbid(report, ntc, kAbsentContour, ntc.t_notice_type);
  if (isInAnyCase(ntc.t_notice_type, types::GS1)) forbid(report, ntc, kAbsentForSound, ntc.t_notice_type);
  if (isInAnyCase(ntc.t_fragment, fragments::KV19D)) forbid(report, ntc, kAbsentUnderArt4, "");
  if (isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ)) forbid(report, ntc, kAbsentUnderArt5, "");
}

}  // namespace

bool checkAssgnValues(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (!ntc.t_fragment.empty() && !isInAnyCase(ntc.t_fragment, {fragments::KV19D, fragments::NTFD_PZ})) {
    report.fatal(kFragment);
  }
  if (isGivenAndAbove(ntc.t_erp_h_dbw, kHighestPower)) {
    report.fatal(kPowerHTooHigh);
  }
  if (isGivenAndAbove(ntc.t_erp_v_dbw, kHighestPower)) {
    report.fatal(kPowerVTooHigh);
  }
  if (equalsIgnoringCase(ntc.t_polar, "U")) {
    report.fatal(kPolarization);
  }
  if (!ntc.t_call_sign.empty()) report.warning(kCallSign);
  if (isInAnyCase(ntc.t_notice_type, types::GT1)) checkBeamTilt(report, ntc);
  checkHeightsAndDiagrams(report, ntc);
  return report.good;
}

bool checkAssgnMandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kReference);
  checkTarget(report, ntc);
  demand(report, ntc, kMandatory);
  checkPolarization(report, ntc);
  checkNonDirectional(report, ntc);
  checkPlanEntry(report, ntc);
  if (isInAnyCase(ntc.t_fragment, fragments::KV19D)) demand(report, ntc, kMandatoryUnderArt4);
  if (isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ)) demand(report, ntc, kMandatoryUnderArt5);
  if (isInAnyCase(ntc.t_notice_type, types::GS1) && ntc.digital.t_ref_plan_cfg.empty())
    report.fatal(kSoundPlanning);
  if (isInAnyCase(ntc.t_notice_type, types::GT1)) checkTelevision(report, ntc);
  checkAbsent(report, ntc);
  const std::string& associated = ntc.digital.t_associated_allot_sfn_id;
  if (!associated.empty() && !ntc.digital.t_sfn_id.empty() && associated != ntc.digital.t_sfn_id) {
    report.fatal(kSfnDiffers);
  }
  return report.good;
}

bool checkPlanEntryAssgn(std::string_view planEntry, std::string_view assgnCode, std::string_view sfnId,
                         std::string_view associatedAdmAllotId, std::string_view associatedAllotSfnId,
                         std::string& msg) {
  msg.clear();
  const auto* row = std::find_if(
      std::begin(kPlanEntries), std::end(kPlanEntries),
      [planEntry](const PlanEntryRow& one) { return equalsIgnoringCase(one.planEntry, planEntry); });
  if (row == std::end(kPlanEntries)) return false;
  const auto expect = [&msg](bool good, std::string_view message) {
    if (!good) msg.append(message).append(kLineEnd);
  };
  const auto meets = [](Demand demanded, std::string_view value) {
    return demanded == Demand::none || (demanded == Demand::given) == !value.empty();
  };
  const bool codeGood =
      assgnCode.size() == 1 && row->codes.find(upperChar(assgnCode[0])) != std::string_view::npos;
  expect(codeGood, row->codeMessage);
  expect(meets(row->sfnId, sfnId), row->sfnIdMessage);
  expect(meets(row->admAllotId, associatedAdmAllotId), row->admAllotIdMessage);
  expect(meets(row->allotSfnId, associatedAllotSfnId), row->allotSfnIdMessage);
  return !msg.empty();
}

}  // namespace zamo
