#include "database/notice_columns.h"

#include <algorithm>
#include <iterator>

#include "model/notice_words.h"
#include "platform/coordinates.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

using enum WhenEmpty;

template <auto Member>
constexpr TextMember digitalText = textAt<&NtcRec::digital, Member>;
template <auto Member>
constexpr TextMember allotText = textAt<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
constexpr TextMember contourText = textAt<&NtcRec::digital, &DigitalRec::contour, Member>;

constexpr const CoordinateField* kLongitude = kCoordinateFields.data();
constexpr const CoordinateField* kLatitude = kLongitude + 1;
static_assert(kLongitude->key == "t_long" && kLatitude->key == "t_lat");

// clang-format off
constexpr ColumnRow kVornaColumns[] = {
    // column                  record                                                   new row      correction         an empty value    counts if      stored as
    {"adm",                    textAt<&NtcRec::t_adm>},
    {"d_rcv",                  textAt<&NtcRec::d_rcv>,                                  kAllTypes,   kNoType},
    {"notice_typ",             textAt<&NtcRec::t_notice_type>},
    {"stn_cls",                textAt<&NtcRec::stn_cls>},
    {"tran_sys",               textAt<&NtcRec::t_sys_var>},
    {"d_adm_ntc",              textAt<&NtcRec::d_adm_ntc>},
    {"fragment",               textAt<&NtcRec::t_fragment>,                             kAllTypes,   kNeitherTb2NorTb3},
    {"fragment",               textAt<&NtcRec::t_plan>,                                 kAllTypes,   kTb2AndTb3},
    {"intent",                 textAt<&NtcRec::t_action>},
    {"adm_ref_id",             textAt<&NtcRec::t_adm_ref_id>,                           kAllTypes,   kNeitherTb2NorTb3},
    {"plan_adm_ref_id",        textAt<&NtcRec::t_plan_adm_ref_id>},
    {"call_sign",              textAt<&NtcRec::t_call_sign>},
    {"stn_id",                 textAt<&NtcRec::stn_id>},
    {"adm_ref_id",             textAt<&NtcRec::t_trg_adm_ref_id>,                       kTargeted,   kTargeted},
    {"freq_assgn",             textAt<&NtcRec::t_trg_freq_assgn>,                       kTb2,        kTb2},
    {"long_deg",               textAt<&NtcRec::trg_long_deg>,                           kTb2,        kTb2},
    {"long_min",               textAt<&NtcRec::trg_long_min>,                           kTb2,        kTb2},
    {"long_sec",               textAt<&NtcRec::trg_long_sec>,                           kTb2,        kTb2},
    {"long_ew",                textAt<&NtcRec::trg_long_ew>,                            kTb2,        kTb2},
    {"lat_deg",                textAt<&NtcRec::trg_lat_deg>,                            kTb2,        kTb2},
    {"lat_min",                textAt<&NtcRec::trg_lat_min>,                            kTb2,        kTb2},
    {"lat_sec",                textAt<&NtcRec::trg_lat_sec>,                            kTb2,        kTb2},
    {"lat_ns",                 textAt<&NtcRec::trg_lat_ns>,                             kTb2,        kTb2},
    {"ctry",                   textAt<&NtcRec::t_ctry>},
    {"site_name",              textAt<&NtcRec::t_site_name>},
    {"freq_assgn",             textAt<&NtcRec::t_freq_assgn>,                           kNotTb2,     kNeitherTb2NorTb3},
    {"long_deg",               textAt<&NtcRec::long_deg>,                               kNotTb2,     kNeitherTb2NorTb3},
    {"long_min",               textAt<&NtcRec::long_min>,                               kNotTb2,     kNeitherTb2NorTb3},
    {"long_sec",               textAt<&NtcRec::long_sec>,                               kNotTb2,     kNeitherTb2NorTb3},
    {"long_ew",                textAt<&NtcRec::long_ew>,                                kNotTb2,     kNeitherTb2NorTb3},
    {"long_rdn",               {},                                                      kNotTb2,     kNeitherTb2NorTb3, clears,           nullptr,       nullptr, kLongitude},
    {"lat_deg",                textAt<&NtcRec::lat_deg>,                                kNotTb2,     kNeitherTb2NorTb3},
    {"lat_min",                textAt<&NtcRec::lat_min>,                                kNotTb2,     kNeitherTb2NorTb3},
    {"lat_sec",                textAt<&NtcRec::lat_sec>,                                kNotTb2,     kNeitherTb2NorTb3},
    {"lat_ns",                 textAt<&NtcRec::lat_ns>,                                 kNotTb2,     kNeitherTb2NorTb3},
    {"lat_rdn",                {},                                                      kNotTb2,     kNeitherTb2NorTb3, clears,           nullptr,       nullptr, kLatitude},
    {"polar",                  textAt<&NtcRec::t_polar>},
    {"erp_h_dbw",              textAt<&NtcRec::t_erp_h_dbw>,                            kAllTypes,   kAllTypes,         clears,           isHorizontal},
    {"erp_v_dbw",              textAt<&NtcRec::t_erp_v_dbw>,                            kAllTypes,   kAllTypes,         clears,           isVertical},
    {"hgt_agl",                textAt<&NtcRec::t_hgt_agl>},
    {"site_alt",               textAt<&NtcRec::t_site_alt>},
    {"eff_hgtmax",             textAt<&NtcRec::t_eff_hgtmax>},
    {"op_agcy",                textAt<&NtcRec::t_op_agcy>,                              kAllTypes,   kNoType,           clears,           nullptr,       padTo3},
    {"op_agcy",                textAt<&NtcRec::t_op_agcy>,                              kNoType,     kAllTypes},
    {"addr_code",              textAt<&NtcRec::t_addr_code>},
    {"d_inuse",                textAt<&NtcRec::t_d_inuse>},
    {"ant_dir",                textAt<&NtcRec::t_ant_dir>},
    {"d_updated",              textAt<&NtcRec::d_updated>,                              kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"d_recog",                textAt<&NtcRec::d_recog>,                                kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"d_expiry",               textAt<&NtcRec::t_d_expiry>},
    {"offset_khz",             textAt<&NtcRec::t_offset>},
    {"erp_beam_tilt_dbw",      textAt<&NtcRec::t_erp_beam_tilt_dbw>},
    {"beam_tilt_angle",        textAt<&NtcRec::t_beam_tilt_angle>},
    {"plan_entry",             textAt<&NtcRec::t_plan_entry>},
    {"assgn_code",             textAt<&NtcRec::t_assgn_code>},
    {"are_rmk_conds_met",      textAt<&NtcRec::t_remark_conds_met>},
    {"has_signed_commitment",  textAt<&NtcRec::t_signed_commitment>},
    {"is_pub_req",             textAt<&NtcRec::t_is_pub_req>},
    {"is_resub",               textAt<&NtcRec::t_is_resub>},
    {"rx_mode",                digitalText<&DigitalRec::t_rx_mode>},
    {"ref_plan_cfg",           digitalText<&DigitalRec::t_ref_plan_cfg>},
    {"sfn_id",                 digitalText<&DigitalRec::t_sfn_id>},
    {"assoc_allot_id",         digitalText<&DigitalRec::t_associated_adm_allot_id>},
    {"assoc_allot_sfn_id",     digitalText<&DigitalRec::t_associated_allot_sfn_id>},
    {"spect_mask",             digitalText<&DigitalRec::t_spect_mask>},
};

constexpr ColumnRow kNtcHistColumns[] = {
    {"email_addr",             digitalText<&DigitalRec::t_email_addr>},
    {"src_update",             textAt<&NtcRec::src_update>,                             kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"d_updated",              textAt<&NtcRec::d_updated>,                              kAllTypes,   kAllTypes,         keepsWhatIsThere},
};

constexpr ColumnRow kArt5TargetColumns[] = {
    {"trg_adm_ref_id",         textAt<&NtcRec::t_trg_adm_ref_id>},
    {"trg_freq_assgn",         textAt<&NtcRec::t_trg_freq_assgn>},
    {"trg_long_deg",           textAt<&NtcRec::trg_long_deg>},
    {"trg_long_min",           textAt<&NtcRec::trg_long_min>},
    {"trg_long_sec",           textAt<&NtcRec::trg_long_sec>},
    {"trg_long_ew",            textAt<&NtcRec::trg_long_ew>},
    {"trg_lat_deg",            textAt<&NtcRec::trg_lat_deg>},
    {"trg_lat_min",            textAt<&NtcRec::trg_lat_min>},
    {"trg_lat_sec",            textAt<&NtcRec::trg_lat_sec>},
    {"trg_lat_ns",             textAt<&NtcRec::trg_lat_ns>},
};

// A correction sets the number of sub-areas together with their links.
constexpr ColumnRow kAllotmentColumns[] = {
    {"allot_name",             allotText<&AllotRec::t_allot_name>},
    {"typ_ref_netwk",          allotText<&AllotRec::t_typ_ref_netwk>},
    {"geo_area",               allotText<&AllotRec::t_geo_area>},
    {"nb_sub_areas",           allotText<&AllotRec::t_nb_sub_areas>,                    kAllTypes,   kNoType},
};

constexpr ColumnRow kContourColumns[] = {
    {"contour_id",             contourText<&ContourRec::t_contour_id>,                  kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"ctry",                   textAt<&NtcRec::t_ctry>,                                 kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"adm",                    textAt<&NtcRec::t_adm>,                                  kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"intent",                 textAt<&NtcRec::t_action>,                               kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"nb_test_pts",            contourText<&ContourRec::t_nb_test_pts>,                 kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"remarks",                textAt<&NtcRec::t_remarks>,                              kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"d_updated",              contourText<&ContourRec::d_updated>,                     kAllTypes,   kAllTypes,         keepsWhatIsThere},
    {"d_recog",                contourText<&ContourRec::d_recog>,                       kAllTypes,   kAllTypes,         keepsWhatIsThere},
};
// clang-format on

constexpr bool isSound(std::span<const ColumnRow> columns) {
  return std::all_of(columns.begin(), columns.end(), [](const ColumnRow& one) {
    const bool isUsed = (one.added | one.corrected) != kNoType;
    return !one.column.empty() && isUsed && (one.text.in == nullptr) == (one.radians != nullptr);
  });
}
static_assert(isSound(kVornaColumns) && isSound(kNtcHistColumns) && isSound(kArt5TargetColumns) &&
              isSound(kAllotmentColumns) && isSound(kContourColumns));

TypeSet typeOf(const NtcRec& ntc) {
  if (isExactly(ntc.t_notice_type, types::TB2)) return kTb2;
  if (isExactly(ntc.t_notice_type, types::TB3)) return kTb3;
  if (isExactly(ntc.t_notice_type, types::TB5)) return kTb5;
  return kOtherTypes;
}

std::string textFor(const ColumnRow& one, const NtcRec& ntc) {
  if (one.counts != nullptr && !one.counts(ntc)) return {};
  const std::string& text = one.text.in(ntc);
  return one.stored == nullptr || text.empty() ? text : one.stored(text);
}

double radiansOf(const CoordinateField& coordinate, const NtcRec& ntc) {
  for (const auto part : {coordinate.degrees, coordinate.minutes, coordinate.seconds}) {
    if (!isNumericText(ntc.*part)) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  }
  return dmsToRadians(ntc.*coordinate.degrees, ntc.*coordinate.minutes, ntc.*coordinate.seconds,
                      ntc.*coordinate.hemisphere);
}

// The degrees aren't asked for: without them the coordinate is an error.
bool hasRadians(const CoordinateField& coordinate, const NtcRec& ntc) {
  return !(ntc.*coordinate.minutes).empty() && !(ntc.*coordinate.seconds).empty() &&
         !(ntc.*coordinate.hemisphere).empty();
}

// False for an empty value, which is left to the caller.
bool setValue(Recordset& row, const ColumnRow& one, const NtcRec& ntc) {
  if (one.radians != nullptr) {
    if (!hasRadians(*one.radians, ntc)) return false;
    row.CollectReal(one.column, radiansOf(*one.radians, ntc));
    return true;
  }
  const std::string text = textFor(one, ntc);
  if (!text.empty()) row.Collect(one.column, text);
  return !text.empty();
}

}  // namespace

std::span<const ColumnRow> vornaColumns() {
  return kVornaColumns;
}

std::span<const ColumnRow> ntcHistColumns() {
  return kNtcHistColumns;
}

std::span<const ColumnRow> art5TargetColumns() {
  return kArt5TargetColumns;
}

std::span<const ColumnRow> allotmentColumns() {
  return kAllotmentColumns;
}

std::span<const ColumnRow> contourColumns() {
  return kContourColumns;
}

void setForNewRow(Recordset& row, std::span<const ColumnRow> columns, const NtcRec& ntc) {
  const TypeSet type = typeOf(ntc);
  for (const ColumnRow& one : columns) {
    if ((one.added & type) != 0) setValue(row, one, ntc);
  }
}

void setForCorrection(Recordset& row, std::span<const ColumnRow> columns, const NtcRec& ntc) {
  const TypeSet type = typeOf(ntc);
  for (const ColumnRow& one : columns) {
    if ((one.corrected & type) == 0 || setValue(row, one, ntc)) continue;
    if (one.whenEmpty == WhenEmpty::clears) row.Collect(one.column, std::nullopt);
  }
}

bool isHorizontal(const NtcRec& ntc) {
  return ntc.t_polar == "M" || ntc.t_polar == "H" || ntc.t_polar == "U";
}

bool isVertical(const NtcRec& ntc) {
  return ntc.t_polar == "V" || ntc.t_polar == "M" || ntc.t_polar == "U";
}

}  // namespace zamo
