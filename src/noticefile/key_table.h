// The table of keys by which the strict reader tells known keys of a notice from unknown ones.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "model/key_index.h"

namespace zamo {

// clang-format off
inline constexpr std::array<std::string_view, 57> kNoticeKeys = {
    "t_action", "t_notice_type", "t_fragment", "t_adm_ref_id", "t_trg_adm_ref_id", "t_ctry", "t_site_name", "",
    "t_lat", "t_long", "t_site_alt", "t_erp_h_dbw", "t_erp_v_dbw", "t_polar", "t_hgt_agl", "t_eff_hgtmax",
    "t_d_adm_ntc", "t_remarks", "t_sys_var", "t_rx_mode", "t_ref_plan_cfg", "t_sfn_id", "t_associated_adm_allot_id",
    "t_ant_dir", "t_spect_mask", "t_allot_name", "t_typ_ref_netwk", "t_geo_area", "t_nb_sub_areas", "t_contour_id",
    "t_nb_test_pts", "t_is_pub_req", "t_plan_entry", "t_assgn_code", "t_associated_allot_sfn_id", "t_call_sign",
    "t_freq_assgn", "t_offset", "t_d_inuse", "t_d_expiry", "t_op_agcy", "t_addr_code", "t_op_hh_fr", "t_op_hh_to",
    "t_is_resub", "t_remark_conds_met", "t_signed_commitment", "t_erp_beam_tilt_dbw", "t_beam_tilt_angle", "t_plan",
    "t_plan_adm_ref_id", "t_trg_freq_assgn", "t_trg_long", "t_trg_lat", "t_int_remarks", "t_prov", ""};
// clang-format on

// The slot of a key, compared exactly; kNoKey when no slot holds it.
std::size_t keySlot(std::string_view key);

inline bool isKnownKey(std::string_view key) {
  return keySlot(key) != kNoKey;
}

}  // namespace zamo
