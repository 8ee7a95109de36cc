#include "noticefile/key_table.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

// clang-format off
constexpr std::array<std::string_view, 57> kExpected = {
    "t_action",
    "t_notice_type",
    "t_fragment",
    "t_adm_ref_id",
    "t_trg_adm_ref_id",
    "t_ctry",
    "t_site_name",
    "",
    "t_lat",
    "t_long",
    "t_site_alt",
    "t_erp_h_dbw",
    "t_erp_v_dbw",
    "t_polar",
    "t_hgt_agl",
    "t_eff_hgtmax",
    "t_d_adm_ntc",
    "t_remarks",
    "t_sys_var",
    "t_rx_mode",
    "t_ref_plan_cfg",
    "t_sfn_id",
    "t_associated_adm_allot_id",
    "t_ant_dir",
    "t_spect_mask",
    "t_allot_name",
    "t_typ_ref_netwk",
    "t_geo_area",
    "t_nb_sub_areas",
    "t_contour_id",
    "t_nb_test_pts",
    "t_is_pub_req",
    "t_plan_entry",
    "t_assgn_code",
    "t_associated_allot_sfn_id",
    "t_call_sign",
    "t_freq_assgn",
    "t_offset",
    "t_d_inuse",
    "t_d_expiry",
    "t_op_agcy",
    "t_addr_code",
    "t_op_hh_fr",
    "t_op_hh_to",
    "t_is_resub",
    "t_remark_conds_met",
    "t_signed_commitment",
    "t_erp_beam_tilt_dbw",
    "t_beam_tilt_angle",
    "t_plan",
    "t_plan_adm_ref_id",
    "t_trg_freq_assgn",
    "t_trg_long",
    "t_trg_lat",
    "t_int_remarks",
    "t_prov",
    "",
};
// clang-format on

TEST(KeyTable, has_57_slots_in_order) {
  ASSERT_EQ(kNoticeKeys.size(), 57U);
  for (std::size_t slot = 0; slot < kExpected.size(); ++slot)
    EXPECT_EQ(kNoticeKeys[slot], kExpected[slot]) << slot;
}

TEST(KeyTable, each_key_is_found_in_its_slot) {
  for (std::size_t slot = 0; slot < kExpected.size(); ++slot) {
    if (kExpected[slot].empty()) continue;
    EXPECT_TRUE(isKnownKey(kExpected[slot])) << kExpected[slot];
    EXPECT_EQ(keySlot(kExpected[slot]), slot) << kExpected[slot];
  }
}

TEST(KeyTable, the_empty_slots_never_match) {
  EXPECT_FALSE(isKnownKey(""));
  EXPECT_EQ(keySlot(""), kNoKey);
}

TEST(KeyTable, keys_are_compared_exactly) {
  for (const char* key : {"T_ACTION", "t_Action", "t_action ", "t_actio", "t_actions", "t_", "t", "action"}) {
    EXPECT_FALSE(isKnownKey(key)) << key;
  }
}

TEST(KeyTable, keys_of_other_sections_and_synonyms_are_unknown) {
  for (const char* key : {"t_hgt_alt", "t_adm", "t_email_addr", "t_char_set", "t_d_sent", "t_num_notices",
                          "t_eff_hgt@azm010", "t_attn@azm010"}) {
    EXPECT_FALSE(isKnownKey(key)) << key;
  }
}

}  // namespace
}  // namespace zamo
