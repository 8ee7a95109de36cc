#include "validation/assignment_rules.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"
#include "platform/text.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

using AzimuthValues = std::array<AzmValueRec, kAzimuths>;

constexpr double kHighestPower = 53;
constexpr double kHighestAttenuation = 40;
constexpr double kHighestEffectiveHeight = 3000;

bool isFilled(const AzmValueRec& one) { return !one.azm.empty() && !one.value.empty(); }

bool hasAll(const AzimuthValues& values) { return std::all_of(values.begin(), values.end(), isFilled); }

bool isGivenAndAbove(std::string_view value, double highest) {
  return !value.empty() && leadingNumber(value) > highest;
}

void checkBeamTilt(RuleReport& report, const NtcRec& ntc) {
  const std::string& tiltPower = ntc.t_erp_beam_tilt_dbw;
  if (!tiltPower.empty()) {
    const double power = leadingNumber(tiltPower);
    if (power > kHighestPower) report.fatal(" t_erp_beam_tilt_dbw : Value should be <= 53.0");
    if (!ntc.t_erp_h_dbw.empty() && leadingNumber(ntc.t_erp_h_dbw) >= power) {
      report.fatal(" t_erp_beam_tilt_dbw must be greater than t_erp_h_dbw");
    }
    if (!ntc.t_erp_v_dbw.empty() && leadingNumber(ntc.t_erp_v_dbw) >= power) {
      report.fatal(" t_erp_beam_tilt_dbw must be greater than t_erp_v_dbw");
    }
  }
  if (!ntc.t_beam_tilt_angle.empty() && !isWithin(ntc.t_beam_tilt_angle, -30, 30)) {
    report.fatal(" t_beam_tilt_angle : Value should be [-30.0, 30.0]");
  }
}

// Gives whether the value passed and normalizes its diagram; an empty slot reads as 0 and so does.
bool checkAttenuation(RuleReport& report, const AzmValueRec& slot, std::string_view sectionText) {
  const double value = leadingNumber(slot.value);
  if (value > kHighestAttenuation || (value < 0 && slot.present)) {
    report.fatal(std::string(sectionText)
                     .append(" t_attn@azm")
                     .append(slot.azm)
                     .append(" : Value should be a numerical between [0.0 , 40.0]"));
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
      report.fatal(" t_eff_hgt@azm" + ntc.ant_hgt[slot].azm +
                   " : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)");
    }
    normalizedH |= checkAttenuation(report, ntc.ant_diagr_h[slot], " : <ANT_DIAGR_H> : ");
    normalizedV |= checkAttenuation(report, ntc.ant_diagr_v[slot], " : <ANT_DIAGR_V> : ");
  }
  if (!normalizedV) report.fatal(" : <ANT_DIAGR_V> : has to be normalized ");
  if (!normalizedH) report.fatal(" : <ANT_DIAGR_H> : has to be normalized ");
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
  if (!isAction(ntc, "MODIFY")) return;
  const bool named = !ntc.t_trg_adm_ref_id.empty();
  if (!isFragment(ntc, "NTFD_PZ")) {
    if (!named) report.fatal("t_trg_adm_ref_id is a mandatory value");
  } else if (!named && !hasWholeTarget(ntc)) {
    report.fatal(" Either t_trg_adm_ref_id Or t_trg_freq, t_trg_long and t_trg_lat must be provided");
  } else if (named && hasAnyOfTarget(ntc)) {
    report.fatal(
        " Either t_trg_adm_ref_id or t_trg_freq and t_trg_long and t_trg_lat must be provided, but not both");
  }
}

bool hasLong(const NtcRec& ntc) { return !(ntc.long_deg.empty() || ntc.long_min.empty() || ntc.long_ew.empty()); }

bool hasLat(const NtcRec& ntc) { return !(ntc.lat_deg.empty() || ntc.lat_min.empty() || ntc.lat_ns.empty()); }

bool hasAllHeights(const NtcRec& ntc) { return hasAll(ntc.ant_hgt); }

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
    {once<isGivenInAllot<&AllotRec::t_typ_ref_netwk>>, "t_typ_ref_netwk should not be notified for a "},
};

constexpr AbsentRow kAbsentAllotment[] = {
    {once<isGivenInAllot<&AllotRec::t_allot_name>>,    " : t_allot_name should not be notified for a "},
    {once<isGivenInAllot<&AllotRec::t_geo_area>>,      " : t_geo_area should not be notified for a "},
    {once<isGivenInAllot<&AllotRec::t_nb_sub_areas>>,  " : t_nb_sub_areas should not be notified for a "},
    {countGivenContourIds,                             " : t_contour_id should not be notified for a "},
};

constexpr AbsentRow kAbsentTestPoints[] = {
    {once<isGivenInContour<&ContourRec::t_nb_test_pts>>, " : t_nb_test_pts should not be notified for a "},
    {countPointsPresent,                               " : t_long and t_lat should not be notified for a "},
};

constexpr AbsentRow kAbsentContour[] = {
    {once<isGivenInContour<&ContourRec::t_contour_id>>, " : t_contour_id should not be notified for a "},
};

constexpr AbsentRow kAbsentForSound[] = {
    {once<isGiven<&NtcRec::t_sys_var>>,                " : t_sys_var should not be notified for a "},
    {once<isGivenInDigital<&DigitalRec::t_rx_mode>>,   " : t_rx_mode should not be notified for a "},
    {once<isGiven<&NtcRec::t_erp_beam_tilt_dbw>>,      " : t_erp_beam_tilt_dbw should not be notified for a "},
    {once<isGiven<&NtcRec::t_beam_tilt_angle>>,        " : t_beam_tilt_angle should not be notified for a "},
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
// clang-format on

constexpr std::string_view kNoHDiagram = " (9NH) <ANT_DIAGR_H> : should not be notified if the polarization is";
constexpr std::string_view kNoVDiagram = " (9NV) <ANT_DIAGR_V> : should not be notified if the polarization is ";
constexpr std::string_view kAllOfH =
    " (9NH) <ANT_DIAGR_H> : All 36 values of e.r.p reduction of horizontally-polarized component must be provided";
constexpr std::string_view kAllOfV =
    " (9NV) <ANT_DIAGR_V> : All 36 values of e.r.p reduction of vertically-polarized component must be provided";
constexpr std::string_view kPowerH = " t_erp_h_dbw is a mandatory value (8BH)";
constexpr std::string_view kPowerV = " t_erp_v_dbw is a mandatory value (8BV)";

void checkMixedPolarization(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_erp_v_dbw.empty()) report.fatal(kPowerV);
  if (ntc.t_erp_h_dbw.empty()) report.fatal(kPowerH);
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_h)) report.fatal(kAllOfH);
  if (!hasAll(ntc.ant_diagr_v)) report.fatal(kAllOfV);
}

void checkVerticalPolarization(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.t_erp_h_dbw.empty()) {
    report.fatal(" t_erp_h_dbw should not be notified when polarization is V (8BH)");
  } else if (ntc.t_erp_v_dbw.empty()) {
    report.fatal(kPowerV);
  }
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_v)) report.fatal(kAllOfV);
  if (hasAntDiagrH(ntc)) report.fatal(std::string(kNoHDiagram).append(ntc.t_polar));
}

void checkHorizontalPolarization(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.t_erp_v_dbw.empty()) {
    report.fatal(" t_erp_v_dbw should not be notified when polarization is H (8BV)");
  } else if (ntc.t_erp_h_dbw.empty()) {
    report.fatal(kPowerH);
  }
  if (ntc.t_ant_dir != "D") return;
  if (!hasAll(ntc.ant_diagr_h)) report.fatal(kAllOfH);
  if (hasAntDiagrV(ntc)) report.fatal(std::string(kNoVDiagram).append(ntc.t_polar));
}

void checkPolarization(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_polar == "M") checkMixedPolarization(report, ntc);
  if (ntc.t_polar == "V") checkVerticalPolarization(report, ntc);
  if (ntc.t_polar == "H") checkHorizontalPolarization(report, ntc);
}

void checkNonDirectional(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_ant_dir != "ND") return;
  const std::string ending = ntc.t_polar + " and the antenna is " + ntc.t_ant_dir;
  if (hasAntDiagrV(ntc)) {
    report.fatal(std::string(kNoVDiagram).append(ending));
  } else if (hasAntDiagrH(ntc)) {
    report.fatalGlued(std::string(kNoHDiagram).append(ending));
  }
}

void checkPlanEntry(RuleReport& report, const NtcRec& ntc) {
  if (ntc.t_plan_entry.empty()) report.fatal(" t_plan_entry is a mandatory value");
  if (ntc.t_assgn_code.empty()) report.fatal(" t_assgn_code is a mandatory value");
  const DigitalRec& digital = ntc.digital;
  if (!ntc.t_plan_entry.empty() && !ntc.t_assgn_code.empty()) {
    std::string msg;
    if (checkPlanEntryAssgn(ntc.t_plan_entry, ntc.t_assgn_code, digital.t_sfn_id, digital.t_associated_adm_allot_id,
                            digital.t_associated_allot_sfn_id, msg)) {
      report.fatal(msg);
    }
  }
  if (equalsIgnoringCase(ntc.t_assgn_code, "S") && !digital.t_associated_allot_sfn_id.empty()) {
    report.fatal("if t_assgn_code = S then t_associated_allot_sfn_id must not be provided");
  }
}

void checkSystemUnderArt4(RuleReport& report, const NtcRec& ntc) {
  const bool variant = !ntc.t_sys_var.empty();
  const bool mode = !ntc.digital.t_rx_mode.empty();
  if (!ntc.digital.t_ref_plan_cfg.empty()) {
    if (variant || mode) {
      report.fatal(
          " If t_ref_plan_cfg is provided then {t_sys_var, t_rx_mode} must NOT be provided if notifed under Art 4");
    }
  } else if (!variant && !mode) {
    report.fatal(" Either {t_sys_var, t_rx_mode} or {t_ref_plan_cfg} must be provided if notifed under Art 4");
  } else if (!variant || !mode) {
    report.fatal("{t_sys_var, t_rx_mode} must be provided");
  }
}

void checkSystemUnderArt5(RuleReport& report, const NtcRec& ntc) {
  if (!ntc.digital.t_ref_plan_cfg.empty()) {
    report.fatal(
        "t_ref_plan_cfg must not be provided if notified under Art 5, however {t_sys_var, t_rx_mode} must be "
        "provided");
  }
  if (ntc.t_sys_var.empty() || ntc.digital.t_rx_mode.empty()) report.fatal("{t_sys_var, t_rx_mode} must be provided");
}

void checkTelevision(RuleReport& report, const NtcRec& ntc) {
  const bool power = !ntc.t_erp_beam_tilt_dbw.empty();
  const bool angle = !ntc.t_beam_tilt_angle.empty();
  if (power && !angle) report.fatal("if t_erp_beam_tilt_dbw is provided then t_beam_tilt_angle must be provided");
  if (angle && !power) report.fatal("if t_beam_tilt_angle is provided then t_erp_beam_tilt_dbw must be provided");
  if (isFragment(ntc, "KV19D")) checkSystemUnderArt4(report, ntc);
  if (isFragment(ntc, "NTFD_PZ")) checkSystemUnderArt5(report, ntc);
}

void checkAbsent(RuleReport& report, const NtcRec& ntc) {
  forbid(report, ntc, kNoNetworkType, ntc.t_notice_type);
  if (isAction(ntc, "ADD") && !ntc.t_trg_adm_ref_id.empty()) {
    report.fatal("t_trg_adm_ref_id should not be notified for a " + ntc.t_action +
                 "; t_adm_ref_id is used as the identifier of the target");
  }
  forbid(report, ntc, kAbsentAllotment, ntc.t_notice_type);
  if (!ntc.digital.contour.t_nb_test_pts.empty()) forbid(report, ntc, kAbsentTestPoints, ntc.t_notice_type);
  forbid(report, ntc, kAbsentContour, ntc.t_notice_type);
  if (isType(ntc, "GS1")) forbid(report, ntc, kAbsentForSound, ntc.t_notice_type);
  if (isFragment(ntc, "KV19D")) forbid(report, ntc, kAbsentUnderArt4, "");
  if (isFragment(ntc, "NTFD_PZ")) forbid(report, ntc, kAbsentUnderArt5, "");
}

}  // namespace

bool checkAssgnValues(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  if (!ntc.t_fragment.empty() && !isFragment(ntc, "KV19D") && !isFragment(ntc, "NTFD_PZ")) {
    report.fatal(" t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}");
  }
  if (isGivenAndAbove(ntc.t_erp_h_dbw, kHighestPower)) {
    report.fatal(" t_erp_h_dbw : Value should be <= 53.0 (8BH)");
  }
  if (isGivenAndAbove(ntc.t_erp_v_dbw, kHighestPower)) {
    report.fatal(" t_erp_v_dbw : Value should be <= 53.0 (8BV)");
  }
  if (equalsIgnoringCase(ntc.t_polar, "U")) {
    report.fatal(" t_polar : For assignments acceptable values are {V, H, M} (9D)");
  }
  if (!ntc.t_call_sign.empty()) report.warning(" : t_call_sign (3A1) provided but NOT validated.");
  if (isType(ntc, "GT1")) checkBeamTilt(report, ntc);
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
  if (isFragment(ntc, "KV19D")) demand(report, ntc, kMandatoryUnderArt4);
  if (isFragment(ntc, "NTFD_PZ")) demand(report, ntc, kMandatoryUnderArt5);
  if (isType(ntc, "GS1") && ntc.digital.t_ref_plan_cfg.empty()) report.fatal(" t_ref_plan_cfg is mandatory");
  if (isType(ntc, "GT1")) checkTelevision(report, ntc);
  checkAbsent(report, ntc);
  const std::string& associated = ntc.digital.t_associated_allot_sfn_id;
  if (!associated.empty() && !ntc.digital.t_sfn_id.empty() && associated != ntc.digital.t_sfn_id) {
    report.fatal(" : t_associated_allot_sfn_id must be equal to t_sfn_id");
  }
  return report.good;
}

bool checkPlanEntryAssgn(std::string_view planEntry, std::string_view assgnCode, std::string_view sfnId,
                         std::string_view associatedAdmAllotId, std::string_view associatedAllotSfnId,
                         std::string& msg) {
  msg.clear();
  const auto* row = std::find_if(std::begin(kPlanEntries), std::end(kPlanEntries), [planEntry](const PlanEntryRow& one) {
    return equalsIgnoringCase(one.planEntry, planEntry);
  });
  if (row == std::end(kPlanEntries)) return false;
  const auto expect = [&msg](bool good, std::string_view message) {
    if (!good) msg.append(message).append(kLineEnd);
  };
  const auto meets = [](Demand demanded, std::string_view value) {
    return demanded == Demand::none || (demanded == Demand::given) == !value.empty();
  };
  const bool codeGood = assgnCode.size() == 1 && row->codes.find(upperChar(assgnCode[0])) != std::string_view::npos;
  expect(codeGood, row->codeMessage);
  expect(meets(row->sfnId, sfnId), row->sfnIdMessage);
  expect(meets(row->admAllotId, associatedAdmAllotId), row->admAllotIdMessage);
  expect(meets(row->allotSfnId, associatedAllotSfnId), row->allotSfnIdMessage);
  return !msg.empty();
}

}  // namespace zamo
