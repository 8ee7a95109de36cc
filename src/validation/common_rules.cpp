#include "validation/common_rules.h"

#include <algorithm>
#include <span>

#include "noticefile/strict_tables.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "validation/allotment_rules.h"
#include "validation/assignment_rules.h"
#include "validation/frequency_rules.h"
#include "validation/rule_report.h"
#include "validation/tb_rules.h"

namespace zamo {
namespace {

constexpr std::string_view kRefPlanMessage =
    " t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : {RPC4, RPC5}";

Date dateOf(std::string_view text) {
  std::string slashed(text);
  std::replace(slashed.begin(), slashed.end(), getDateSeparator().front(), '/');
  const std::optional<Date> date = parseDate(slashed);
  if (!date) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  return *date;
}

bool isGivenAndNotOneOf(std::string_view value, std::initializer_list<std::string_view> accepted) {
  return !value.empty() && std::none_of(accepted.begin(), accepted.end(),
                                        [value](std::string_view one) { return equalsIgnoringCase(one, value); });
}

using RuleGroup = bool (*)(const NtcRec&, std::string&, std::string_view);

void join(RuleReport& report, const NtcRec& ntc, RuleGroup group) {
  report.good = group(ntc, report.errs, report.label) && report.good;
}

void checkTbValues(RuleReport& report, const NtcRec& ntc) {
  // The result of these replaces what stood before.
  if (isType(ntc, "TB5")) report.good = checkTb5Values(ntc, report.errs, report.label);
  if (isType(ntc, "TB3")) report.good = checkTb3Values(ntc, report.errs, report.label);
  if (isType(ntc, "TB2")) report.good = checkTb2Values(ntc, report.errs, report.label);
}

void checkAction(RuleReport& report, const NtcRec& ntc) {
  if (isAnyType(ntc, {"GA1", "TB5"})) {
    if (isAction(ntc, "MODIFY")) report.fatal(" t_action : Acceptable values are {ADD, SUPPRESS}");
  } else if (isAction(ntc, "SUPPRESS")) {
    report.fatal(" t_action : Acceptable values are {ADD, MODIFY}");
  }
}

void checkDates(RuleReport& report, const NtcRec& ntc, const Date& today) {
  if (!ntc.t_d_inuse.empty() && !ntc.t_d_expiry.empty() && dateOf(ntc.t_d_expiry) < dateOf(ntc.t_d_inuse)) {
    report.fatal(" t_d_inuse =< t_d_expiry");
  }
  if (ntc.t_fragment == "NTFD_PZ" && !ntc.t_d_inuse.empty()) {
    const Date received = ntc.d_rcv.empty() ? today : dateOf(ntc.d_rcv);
    if (dateOf(ntc.t_d_inuse) > addMonths(received, 3)) report.fatal(" t_d_inuse must be =< t_date_rcv + 3 months");
  }
}

struct RangeRow {
  TextMember field;
  double lowest;
  double highest;
  std::string_view message;
};

// clang-format off
constexpr RangeRow kHeightRanges[] = {
    {textAt<&NtcRec::t_hgt_agl>,        0,  800, " t_hgt_agl : Value should be between [0, 800] (9E)"},
    {textAt<&NtcRec::t_site_alt>,   -1000, 8850, " t_site_alt : Value should be an integer between [-1000, 8850] (9EA)"},
    {textAt<&NtcRec::t_eff_hgtmax>, -3000, 3000, " : t_eff_hgtmax  : Value should be an integer between [-3000, 3000] (9EB)"},
};
constexpr RangeRow kOffsetRange[] = {
    {textAt<&NtcRec::t_offset>,      -500,  500, " :  t_offset  t_offset : Value should be between [-500.0, 500.0] (1E)"},
};
// clang-format on

void checkRanges(RuleReport& report, const NtcRec& ntc, std::span<const RangeRow> rows) {
  for (const RangeRow& row : rows) {
    const std::string& value = row.field.in(ntc);
    if (!value.empty() && !isWithin(value, row.lowest, row.highest)) report.fatal(row.message);
  }
}

void checkSpectrumMask(RuleReport& report, const NtcRec& ntc) {
  const std::string& mask = ntc.digital.t_spect_mask;
  if (isAnyType(ntc, {"GT1", "GT2"}) && isGivenAndNotOneOf(mask, {"S", "N"})) {
    report.fatal(" t_spect_mask : Acceptable values are : for DVB-T : {N, S} ");
  }
  if (isAnyType(ntc, {"GS1", "GS2"}) && isGivenAndNotOneOf(mask, {"1", "2", "3"})) {
    report.fatal(" t_spect_mask : Acceptable values are : for T-DAB : {1, 2, 3}");
  }
}

void checkSystemVariant(RuleReport& report, const NtcRec& ntc) {
  const std::string& variant = ntc.t_sys_var;
  if (variant.empty()) return;
  if (variant.size() >= 3) return report.fatal(kSystemVariantLength);
  if (!isSystemVariant(variant)) return report.fatal(kSystemVariantValues);
  report.good = checkChannelRaster(ntc, variant.front(), report.errs, report.label) && report.good;
}

void checkFrequency(RuleReport& report, std::string_view key, std::string_view frequency, const NtcRec& ntc,
                    bool television) {
  if (frequency.empty()) return;
  std::string msg;
  const bool good =
      television ? checkDvbtFrequency(ntc.t_ctry, frequency, msg) : checkDabFrequency(frequency, msg);
  if (!good) report.fatal(std::string(key).append(" : ").append(msg));
}

void checkFrequencies(RuleReport& report, const NtcRec& ntc, bool television) {
  checkFrequency(report, "t_freq_assgn", ntc.t_freq_assgn, ntc, television);
  checkFrequency(report, "t_trg_freq_assgn", ntc.t_trg_freq_assgn, ntc, television);
}

void checkSoundPlanning(RuleReport& report, const NtcRec& ntc) {
  if (isGivenAndNotOneOf(ntc.digital.t_ref_plan_cfg, {"RPC5", "RPC4"})) report.fatal(kRefPlanMessage);
  checkFrequencies(report, ntc, false);
}

void checkTelevisionPlanning(RuleReport& report, const NtcRec& ntc) {
  if (isType(ntc, "GT2") && isGivenAndNotOneOf(ntc.digital.allot.t_typ_ref_netwk, {"RN1", "RN2", "RN3", "RN4"})) {
    report.fatal(" t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}");
  }
  if (isGivenAndNotOneOf(ntc.digital.t_ref_plan_cfg, {"RPC1", "RPC2", "RPC3"})) report.fatal(kRefPlanMessage);
  checkFrequencies(report, ntc, true);
}

// clang-format off
constexpr MandatoryRow kMandatory[] = {
    {isGiven<&NtcRec::t_adm>,         " t_adm is a mandatory value (B)"},
    {isGiven<&NtcRec::t_notice_type>, " t_notice_type is a mandatory value"},
    {isGiven<&NtcRec::t_action>,      " t_action is a mandatory value"},
};
constexpr MandatoryRow kMandatoryFragment[] = {
    {isGiven<&NtcRec::t_fragment>,    " t_fragment is a mandatory value"},
};
constexpr MandatoryRow kMandatoryCountry[] = {
    {isGiven<&NtcRec::t_ctry>,        " t_ctry is a mandatory value (4B)"},
};

struct TypeGroup {
  std::string_view type;
  RuleGroup check;
};

constexpr TypeGroup kMandatoryGroups[] = {
    {"GT1", checkAssgnMandatory},
    {"GS1", checkAssgnMandatory},
    {"GT2", checkAllotMandatory},
    {"GS2", checkAllotMandatory},
    {"GA1", checkContourMandatory},
    {"TB5", checkTb5Mandatory},
    {"TB3", checkTb3Mandatory},
    {"TB2", checkTb2Mandatory},
};

// For a fragment other than NTFD_PZ. The type, " - Fragment: " and the fragment follow each message.
constexpr AbsentRow kOnlyInNotifiedFragment[] = {
    {once<isGiven<&NtcRec::t_plan_adm_ref_id>>, " : t_plan_adm_ref_id should not be notified for a "},
    {once<isGiven<&NtcRec::t_trg_freq_assgn>>,  " : t_trg_freq_assgn should not be notified for a "},
    {once<hasTargetLong>,                       " : t_trg_long should not be notified for a "},
    {once<hasTargetLat>,                        " : t_trg_lat should not be notified for a "},
};
// clang-format on

void checkFragmentFields(RuleReport& report, const NtcRec& ntc) {
  if (isAnyType(ntc, {"TB3", "TB2"})) {
    if (!ntc.t_fragment.empty()) report.fatal(" : t_fragment should not be notified for a " + ntc.t_notice_type);
  } else if (!ntc.t_plan.empty()) {
    report.fatal(" : t_plan should not be notified for a " + ntc.t_notice_type);
  }
  if (!isFragment(ntc, "NTFD_PZ") && !isType(ntc, "TB2")) {
    forbid(report, ntc, kOnlyInNotifiedFragment, ntc.t_notice_type + " - Fragment: " + ntc.t_fragment);
  }
}

}  // namespace

bool checkNtcValues(const NtcRec& ntc, std::string& errs, std::string_view label, const Date& today) {
  RuleReport report{errs, label};
  checkTbValues(report, ntc);
  if (isAnyType(ntc, {"GT1", "GS1"})) join(report, ntc, checkAssgnValues);
  checkAction(report, ntc);
  checkDates(report, ntc, today);
  checkRanges(report, ntc, kHeightRanges);
  checkSpectrumMask(report, ntc);
  checkSystemVariant(report, ntc);
  checkRanges(report, ntc, kOffsetRange);
  if (isAnyType(ntc, {"GT2", "GS2"})) join(report, ntc, checkAllotValues);
  if (isAnyType(ntc, {"GS1", "GS2"})) checkSoundPlanning(report, ntc);
  if (isAnyType(ntc, {"GT2", "GT1"})) checkTelevisionPlanning(report, ntc);
  if (isType(ntc, "GA1") && !isWithin(ntc.digital.contour.t_nb_test_pts, 3, 99)) {
    report.fatal("Value must be between [3-99]");
  }
  return report.good;
}

bool checkNtcMandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kMandatory);
  if (!isAnyType(ntc, {"TB2", "TB3", "GA1"})) {
    demand(report, ntc, kMandatoryFragment);
    if (isAction(ntc, "MODIFY") && ntc.t_trg_adm_ref_id != ntc.t_adm_ref_id && ntc.t_fragment != "NTFD_PZ") {
      report.fatal(" t_trg_adm_ref_id must be same as t_adm_ref_id for fragment " + ntc.t_fragment);
    }
  }
  if (!isAnyType(ntc, {"TB5", "TB2", "TB3"})) demand(report, ntc, kMandatoryCountry);
  for (const TypeGroup& group : kMandatoryGroups) {
    if (isType(ntc, group.type)) join(report, ntc, group.check);
  }
  checkFragmentFields(report, ntc);
  return report.good;
}

}  // namespace zamo
