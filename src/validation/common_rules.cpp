#include "validation/common_rules.h"

#include <algorithm>
#include <span>

#include "model/notice_words.h"
#include "noticefile/strict_reader.h"
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

// clang-format off
const Message kActionOfContour("GA1, TB5: t_action is MODIFY", " t_action : Acceptable values are {ADD, SUPPRESS}");
const Message kActionOfOthers("all types but GA1 and TB5: t_action is SUPPRESS", " t_action : Acceptable values are {ADD, MODIFY}");
const Message kExpiryBeforeUse("t_d_expiry is before t_d_inuse", " t_d_inuse =< t_d_expiry");
const Message kUseTooLate("fragment NTFD_PZ: t_d_inuse is later than 3 months from the date of receipt, or from today", " t_d_inuse must be =< t_date_rcv + 3 months");
const Message kMaskOfTelevision("GT1, GT2: t_spect_mask is another value", " t_spect_mask : Acceptable values are : for DVB-T : {N, S} ");
const Message kMaskOfSound("GS1, GS2: t_spect_mask is another value", " t_spect_mask : Acceptable values are : for T-DAB : {1, 2, 3}");
const Message kVariantTooLong("t_sys_var has 3 characters or more", kSystemVariantLength);
const Message kVariantUnknown("t_sys_var is another value", kSystemVariantValues);
const Message kFrequency("t_freq_assgn or t_trg_freq_assgn is refused; the second part is that of the frequency rules", "%1 : %2");
const Message kRefPlan("GT1, GT2, GS1, GS2: t_ref_plan_cfg is another value than those of the type", " t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : {RPC4, RPC5}");
const Message kNetwork("GT2: t_typ_ref_netwk is another value", " t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}");
const Message kTestPoints("GA1: t_nb_test_pts is empty or outside the range", "Value must be between [3-99]");
const Message kTargetDiffers("MODIFY, fragment other than NTFD_PZ, not TB2, TB3 or GA1: t_trg_adm_ref_id differs from t_adm_ref_id", " t_trg_adm_ref_id must be same as t_adm_ref_id for fragment %1");
const Message kNoFragment("TB2, TB3: t_fragment is given", " : t_fragment should not be notified for a %1");
const Message kNoPlan("all types but TB2 and TB3: t_plan is given", " : t_plan should not be notified for a %1");
// clang-format on

Date dateOf(std::string_view text) {
  std::string slashed(text);
  std::replace(slashed.begin(), slashed.end(), getDateSeparator().front(), '/');
  const std::optional<Date> date = parseDate(slashed);
  if (!date) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  return *date;
}

bool isGivenAndNotOneOf(std::string_view value, std::initializer_list<std::string_view> accepted) {
  return !value.empty() && std::none_of(accepted.begin(), accepted.end(), [value](std::string_view one) {
    return equalsIgnoringCase(one, value);
  });
}

using RuleGroup = bool (*)(const NtcRec&, std::string&, std::string_view);

void join(RuleReport& report, const NtcRec& ntc, RuleGroup group) {
  report.good = group(ntc, report.errs, report.label) && report.good;
}

void checkTbValues(RuleReport& report, const NtcRec& ntc) {
  if (isInAnyCase(ntc.t_notice_type, types::TB5)) join(report, ntc, checkTb5Values);
  if (isInAnyCase(ntc.t_notice_type, types::TB3)) join(report, ntc, checkTb3Values);
  if (isInAnyCase(ntc.t_notice_type, types::TB2)) join(report, ntc, checkTb2Values);
}

void checkAction(RuleReport& report, const NtcRec& ntc) {
  if (isInAnyCase(ntc.t_notice_type, {types::GA1, types::TB5})) {
    if (isInAnyCase(ntc.t_action, actions::MODIFY)) report.fatal(kActionOfContour);
  } else if (isInAnyCase(ntc.t_action, actions::SUPPRESS)) {
    report.fatal(kActionOfOthers);
  }
}

void checkDates(RuleReport& report, const NtcRec& ntc, const Date& today) {
  if (!ntc.t_d_inuse.empty() && !ntc.t_d_expiry.empty() && dateOf(ntc.t_d_expiry) < dateOf(ntc.t_d_inuse)) {
    report.fatal(kExpiryBeforeUse);
  }
  if (isExactly(ntc.t_fragment, fragments::NTFD_PZ) && !ntc.t_d_inuse.empty()) {
    const Date received = ntc.d_rcv.empty() ? today : dateOf(ntc.d_rcv);
    if (dateOf(ntc.t_d_inuse) > addMonths(received, 3)) report.fatal(kUseTooLate);
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
const TableMessages kListedHeights("the value is outside the range", kHeightRanges);
const TableMessages kListedOffset("the value is outside the range", kOffsetRange);
// clang-format on

void checkRanges(RuleReport& report, const NtcRec& ntc, std::span<const RangeRow> rows) {
  for (const RangeRow& row : rows) {
    const std::string& value = row.field.in(ntc);
    if (!value.empty() && !isWithin(value, row.lowest, row.highest)) report.fatalRow(row.message);
  }
}

void checkSpectrumMask(RuleReport& report, const NtcRec& ntc) {
  const std::string& mask = ntc.digital.t_spect_mask;
  if (isInAnyCase(ntc.t_notice_type, {types::GT1, types::GT2}) && isGivenAndNotOneOf(mask, {"S", "N"})) {
    report.fatal(kMaskOfTelevision);
  }
  if (isInAnyCase(ntc.t_notice_type, {types::GS1, types::GS2}) && isGivenAndNotOneOf(mask, {"1", "2", "3"})) {
    report.fatal(kMaskOfSound);
  }
}

void checkSystemVariant(RuleReport& report, const NtcRec& ntc) {
  const std::string& variant = ntc.t_sys_var;
  if (variant.empty()) return;
  if (variant.size() >= 3) return report.fatal(kVariantTooLong);
  if (!isSystemVariant(variant)) return report.fatal(kVariantUnknown);
  report.good = checkChannelRaster(ntc, variant.front(), report.errs, report.label) && report.good;
}

void checkFrequency(RuleReport& report, std::string_view key, std::string_view frequency, const NtcRec& ntc,
                    bool television) {
  if (frequency.empty()) return;
  std::string msg;
  const bool good =
      television ? checkDvbtFrequency(ntc.t_ctry, frequency, msg) : checkDabFrequency(frequency, msg);
  if (!good) report.fatal(kFrequency, {key, msg});
}

void checkFrequencies(RuleReport& report, const NtcRec& ntc, bool television) {
  checkFrequency(report, "t_freq_assgn", ntc.t_freq_assgn, ntc, television);
  checkFrequency(report, "t_trg_freq_assgn", ntc.t_trg_freq_assgn, ntc, television);
}

void checkSoundPlanning(RuleReport& report, const NtcRec& ntc) {
  if (isGivenAndNotOneOf(ntc.digital.t_ref_plan_cfg, {"RPC5", "RPC4"})) report.fatal(kRefPlan);
  checkFrequencies(report, ntc, false);
}

void checkTelevisionPlanning(RuleReport& report, const NtcRec& ntc) {
  if (isInAnyCase(ntc.t_notice_type, types::GT2) &&
      isGivenAndNotOneOf(ntc.digital.allot.t_typ_ref_netwk, {"RN1", "RN2", "RN3", "RN4"})) {
    report.fatal(kNetwork);
  }
  if (isGivenAndNotOneOf(ntc.digital.t_ref_plan_cfg, {"RPC1", "RPC2", "RPC3"})) report.fatal(kRefPlan);
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
  NoticeType type;
  RuleGroup check;
};

constexpr TypeGroup kMandatoryGroups[] = {
    {types::GT1, checkAssgnMandatory},
    {types::GS1, checkAssgnMandatory},
    {types::GT2, checkAllotMandatory},
    {types::GS2, checkAllotMandatory},
    {types::GA1, checkContourMandatory},
    {types::TB5, checkTb5Mandatory},
    {types::TB3, checkTb3Mandatory},
    {types::TB2, checkTb2Mandatory},
};

// For a fragment other than NTFD_PZ. The type, " - Fragment: " and the fragment follow each message.
constexpr AbsentRow kOnlyInNotifiedFragment[] = {
    {once<isGiven<&NtcRec::t_plan_adm_ref_id>>, " : t_plan_adm_ref_id should not be notified for a "},
    {once<isGiven<&NtcRec::t_trg_freq_assgn>>,  " : t_trg_freq_assgn should not be notified for a "},
    {once<hasTargetLong>,                       " : t_trg_long should not be notified for a "},
    {once<hasTargetLat>,                        " : t_trg_lat should not be notified for a "},
};
const TableMessages kListedMandatory("the field is empty", kMandatory);
const TableMessages kListedFragment("all types but TB2, TB3 and GA1: the field is empty", kMandatoryFragment);
const TableMessages kListedCountry("all types but TB2, TB3 and TB5: the field is empty", kMandatoryCountry);
const TableMessages kListedNotified("fragment other than NTFD_PZ, all types but TB2: the field is given; the type, \" - Fragment: \" and the fragment follow", kOnlyInNotifiedFragment);
// clang-format on

void checkFragmentFields(RuleReport& report, const NtcRec& ntc) {
  if (isInAnyCase(ntc.t_notice_type, {types::TB3, types::TB2})) {
    if (!ntc.t_fragment.empty()) report.fatal(kNoFragment, {ntc.t_notice_type});
  } else if (!ntc.t_plan.empty()) {
    report.fatal(kNoPlan, {ntc.t_notice_type});
  }
  if (!isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ) && !isInAnyCase(ntc.t_notice_type, types::TB2)) {
    forbid(report, ntc, kOnlyInNotifiedFragment, ntc.t_notice_type + " - Fragment: " + ntc.t_fragment);
  }
}

}  // namespace

bool checkNtcValues(const NtcRec& ntc, std::string& errs, std::string_view label, const Date& today) {
  RuleReport report{errs, label};
  checkTbValues(report, ntc);
  if (isInAnyCase(ntc.t_notice_type, {types::GT1, types::GS1})) join(report, ntc, checkAssgnValues);
  checkAction(report, ntc);
  checkDates(report, ntc, today);
  checkRanges(report, ntc, kHeightRanges);
  checkSpectrumMask(report, ntc);
  checkSystemVariant(report, ntc);
  checkRanges(report, ntc, kOffsetRange);
  if (isInAnyCase(ntc.t_notice_type, {types::GT2, types::GS2})) join(report, ntc, checkAllotValues);
  if (isInAnyCase(ntc.t_notice_type, {types::GS1, types::GS2})) checkSoundPlanning(report, ntc);
  if (isInAnyCase(ntc.t_notice_type, {types::GT2, types::GT1})) checkTelevisionPlanning(report, ntc);
  if (isInAnyCase(ntc.t_notice_type, types::GA1) && !isWithin(ntc.digital.contour.t_nb_test_pts, 3, 99)) {
    report.fatal(kTestPoints);
  }
  return report.good;
}

bool checkNtcMandatory(const NtcRec& ntc, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  demand(report, ntc, kMandatory);
  if (!isInAnyCase(ntc.t_notice_type, {types::TB2, types::TB3, types::GA1})) {
    demand(report, ntc, kMandatoryFragment);
    if (isInAnyCase(ntc.t_action, actions::MODIFY) && ntc.t_trg_adm_ref_id != ntc.t_adm_ref_id &&
        !isExactly(ntc.t_fragment, fragments::NTFD_PZ)) {
      report.fatal(kTargetDiffers, {ntc.t_fragment});
    }
  }
  if (!isInAnyCase(ntc.t_notice_type, {types::TB5, types::TB2, types::TB3}))
    demand(report, ntc, kMandatoryCountry);
  for (const TypeGroup& group : kMandatoryGroups) {
    if (isInAnyCase(ntc.t_notice_type, group.type)) join(report, ntc, group.check);
  }
  checkFragmentFields(report, ntc);
  return report.good;
}

}  // namespace zamo
