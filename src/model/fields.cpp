#include "model/fields.h"

#include <algorithm>

#include "model/key_index.h"

namespace zamo {
namespace {

using enum StoredAs;

template <auto Member>
constexpr TextMember digitalText = textAt<&NtcRec::digital, Member>;
template <auto Member>
constexpr TextMember allotText = textAt<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
constexpr TextMember contourText = textAt<&NtcRec::digital, &DigitalRec::contour, Member>;

// clang-format off
constexpr FieldRow kFields[] = {
    // key                         record                                                   column                  stored              marks
    {"t_action",                   textAt<&NtcRec::t_action>,                               "intent",               upperCase},
    {"t_fragment",                 textAt<&NtcRec::t_fragment>,                             "fragment",             upperCase},
    {"t_plan",                     textAt<&NtcRec::t_plan>,                                 "fragment",             upperCase},
    {"t_prov",                     textAt<&NtcRec::t_prov>,                                 "prov",                 upperCase},
    {"",                           textAt<&NtcRec::assgn_id>,                               "assgn_id",             notRead},
    {"t_adm_ref_id",               textAt<&NtcRec::t_adm_ref_id>,                           "adm_ref_id",           upperCase},
    {"t_trg_adm_ref_id",           textAt<&NtcRec::t_trg_adm_ref_id>,                       "adm_ref_id",           asItStands},
    {"t_plan_adm_ref_id",          textAt<&NtcRec::t_plan_adm_ref_id>,                      "plan_adm_ref_id",      asItStands},
    {"t_notice_type",              textAt<&NtcRec::t_notice_type>,                          "notice_typ",           noticeType},
    {"",                           textAt<&NtcRec::stn_cls>,                                "stn_cls",              notRead},
    {"t_sys_var",                  textAt<&NtcRec::t_sys_var>,                              "tran_sys",             upperCase,          Group::digital},
    {"t_adm",                      textAt<&NtcRec::t_adm>,                                  "adm",                  notRead},
    {"t_ctry",                     textAt<&NtcRec::t_ctry>,                                 "ctry",                 upperCase},
    {"t_is_resub",                 textAt<&NtcRec::t_is_resub>,                             "is_resub",             asItStands},
    {"t_is_pub_req",               textAt<&NtcRec::t_is_pub_req>,                           "is_pub_req",           asItStands},
    {"t_call_sign",                textAt<&NtcRec::t_call_sign>,                            "call_sign",            asItStands},
    {"t_plan_entry",               textAt<&NtcRec::t_plan_entry>,                           "plan_entry",           upperCase},
    {"t_assgn_code",               textAt<&NtcRec::t_assgn_code>,                           "assgn_code",           upperCase},
    {"t_offset",                   textAt<&NtcRec::t_offset>,                               "offset_khz",           asItStands},
    {"t_remark_conds_met",         textAt<&NtcRec::t_remark_conds_met>,                     "are_rmk_conds_met",    asItStands},
    {"t_signed_commitment",        textAt<&NtcRec::t_signed_commitment>,                    "has_signed_commitment", asItStands},
    {"t_erp_beam_tilt_dbw",        textAt<&NtcRec::t_erp_beam_tilt_dbw>,                    "erp_beam_tilt_dbw",    asItStands},
    {"t_beam_tilt_angle",          textAt<&NtcRec::t_beam_tilt_angle>,                      "beam_tilt_angle",      asItStands},
    {"",                           textAt<&NtcRec::stn_id>,                                 "stn_id",               notRead},
    {"t_addr_code",                textAt<&NtcRec::t_addr_code>,                            "addr_code",            upperCase},
    {"t_op_agcy",                  textAt<&NtcRec::t_op_agcy>,                              "op_agcy",              threeDigits},
    {"",                           textAt<&NtcRec::d_adm_ntc>,                              "d_adm_ntc",            notRead},
    {"t_d_expiry",                 textAt<&NtcRec::t_d_expiry>,                             "d_expiry",             asItStands},
    {"t_d_inuse",                  textAt<&NtcRec::t_d_inuse>,                              "d_inuse",              asItStands},
    {"",                           textAt<&NtcRec::d_rcv>,                                  "d_rcv",                notRead},
    {"t_freq_assgn",               textAt<&NtcRec::t_freq_assgn>,                           "freq_assgn",           asItStands},
    {"t_trg_freq_assgn",           textAt<&NtcRec::t_trg_freq_assgn>,                       "freq_assgn",           asItStands},
    {"t_hgt_agl",                  textAt<&NtcRec::t_hgt_agl>,                              "hgt_agl",              asItStands},
    {"t_hgt_alt",                  textAt<&NtcRec::t_hgt_agl>,                              "hgt_agl",              asItStands},
    {"t_eff_hgtmax",               textAt<&NtcRec::t_eff_hgtmax>,                           "eff_hgtmax",           asItStands},
    {"t_erp_h_dbw",                textAt<&NtcRec::t_erp_h_dbw>,                            "erp_h_dbw",            asItStands},
    {"t_erp_v_dbw",                textAt<&NtcRec::t_erp_v_dbw>,                            "erp_v_dbw",            asItStands},
    {"t_polar",                    textAt<&NtcRec::t_polar>,                                "polar",                upperCase},
    {"t_ant_dir",                  textAt<&NtcRec::t_ant_dir>,                              "ant_dir",              upperCase,          Group::digital},
    {"t_site_name",                textAt<&NtcRec::t_site_name>,                            "site_name",            upperCase},
    {"t_long",                     {},                                                      "",                     coordinate},
    {"t_lat",                      {},                                                      "",                     coordinate},
    {"t_trg_long",                 {},                                                      "",                     coordinate},
    {"t_trg_lat",                  {},                                                      "",                     coordinate},
    {"t_site_alt",                 textAt<&NtcRec::t_site_alt>,                             "site_alt",             asItStands},
    {"",                           textAt<&NtcRec::src_update>,                             "src_update",           notRead},
    {"",                           textAt<&NtcRec::d_updated>,                              "d_updated",            notRead},
    {"",                           textAt<&NtcRec::d_recog>,                                "d_recog",              notRead},
    {"t_op_hh_fr",                 textAt<&NtcRec::op_hours, &OpHoursRec::t_op_hh_fr>,      "op_hh_fr",             timeWithoutColon,   Group::opHours},
    {"t_op_hh_to",                 textAt<&NtcRec::op_hours, &OpHoursRec::t_op_hh_to>,      "op_hh_to",             timeWithoutColon,   Group::opHours},
    {"t_email_addr",               digitalText<&DigitalRec::t_email_addr>,                  "email_addr",           notRead},
    {"t_rx_mode",                  digitalText<&DigitalRec::t_rx_mode>,                     "rx_mode",              upperCase,          Group::digital},
    {"t_ref_plan_cfg",             digitalText<&DigitalRec::t_ref_plan_cfg>,                "ref_plan_cfg",         upperCase,          Group::digital},
    {"t_sfn_id",                   digitalText<&DigitalRec::t_sfn_id>,                      "sfn_id",               upperCase,          Group::digital},
    {"t_associated_adm_allot_id",  digitalText<&DigitalRec::t_associated_adm_allot_id>,     "assoc_allot_id",       upperCase,          Group::digital},
    {"t_associated_allot_sfn_id",  digitalText<&DigitalRec::t_associated_allot_sfn_id>,     "assoc_allot_sfn_id",   upperCase,          Group::digital},
    {"t_spect_mask",               digitalText<&DigitalRec::t_spect_mask>,                  "spect_mask",           upperCase,          Group::digital},
    {"t_allot_name",               allotText<&AllotRec::t_allot_name>,                      "allot_name",           upperCase,          Group::allot},
    {"t_geo_area",                 allotText<&AllotRec::t_geo_area>,                        "geo_area",             upperCase,          Group::allot},
    {"t_nb_sub_areas",             allotText<&AllotRec::t_nb_sub_areas>,                    "nb_sub_areas",         asItStands,         Group::allot},
    {"t_typ_ref_netwk",            allotText<&AllotRec::t_typ_ref_netwk>,                   "typ_ref_netwk",        upperCase,          Group::allot},
    {"t_contour_id",               {},                                                      "contour_id",           contourId},
    {"t_nb_test_pts",              contourText<&ContourRec::t_nb_test_pts>,                 "nb_test_pts",          testPointCount,     Group::contour},
    {"t_remarks",                  textAt<&NtcRec::t_remarks>,                              "rmk_text",             joined},
    {"t_int_remarks",              textAt<&NtcRec::t_int_remarks>,                          "rmk_text",             replaced},
};
// clang-format on

constexpr std::array<std::string_view, std::size(kFields)> storedKeys() {
  std::array<std::string_view, std::size(kFields)> keys;
  for (std::size_t row = 0; row < keys.size(); ++row) {
    if (kFields[row].storedAs != notRead) keys[row] = kFields[row].key;
  }
  return keys;
}

constexpr bool keysAreUnique() {
  for (const FieldRow& row : kFields) {
    const auto count = std::count_if(std::begin(kFields), std::end(kFields),
                                     [&row](const FieldRow& other) { return other.key == row.key; });
    if (!row.key.empty() && count != 1) return false;
  }
  return true;
}
static_assert(keysAreUnique());

constexpr KeyIndex kIndex(storedKeys());

}  // namespace

std::span<const FieldRow> fieldTable() {
  return kFields;
}

const FieldRow* findField(std::string_view key) {
  const std::size_t row = kIndex.find(key);
  return row == kNoKey ? nullptr : &kFields[row];
}

int countContourIds(const AllotRec& allot) {
  return static_cast<int>(std::count_if(allot.t_contour_id.begin(), allot.t_contour_id.end(),
                                        [](const std::string& id) { return !id.empty(); }));
}

}  // namespace zamo
