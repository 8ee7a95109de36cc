#include "model/fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace zamo {
namespace {

struct KeyColumn {
  std::string_view key;
  std::string_view column;
  StoredAs storedAs;
  Group group;
};

using enum StoredAs;

// clang-format off
constexpr KeyColumn kStoredKeys[] = {
    {"t_notice_type",             "notice_typ",            noticeType,       Group::main},
    {"t_action",                  "intent",                upperCase,        Group::main},
    {"t_plan",                    "fragment",              upperCase,        Group::main},
    {"t_fragment",                "fragment",              upperCase,        Group::main},
    {"t_adm_ref_id",              "adm_ref_id",            upperCase,        Group::main},
    {"t_trg_adm_ref_id",          "adm_ref_id",            asItStands,       Group::main},
    {"t_plan_adm_ref_id",         "plan_adm_ref_id",       asItStands,       Group::main},
    {"t_prov",                    "prov",                  upperCase,        Group::main},
    {"t_plan_entry",              "plan_entry",            upperCase,        Group::main},
    {"t_assgn_code",              "assgn_code",            upperCase,        Group::main},
    {"t_ctry",                    "ctry",                  upperCase,        Group::main},
    {"t_site_name",               "site_name",             upperCase,        Group::main},
    {"t_freq_assgn",              "freq_assgn",            asItStands,       Group::main},
    {"t_trg_freq_assgn",          "freq_assgn",            asItStands,       Group::main},
    {"t_offset",                  "offset_khz",            asItStands,       Group::main},
    {"t_polar",                   "polar",                 upperCase,        Group::main},
    {"t_erp_h_dbw",               "erp_h_dbw",             asItStands,       Group::main},
    {"t_erp_v_dbw",               "erp_v_dbw",             asItStands,       Group::main},
    {"t_erp_beam_tilt_dbw",       "erp_beam_tilt_dbw",     asItStands,       Group::main},
    {"t_beam_tilt_angle",         "beam_tilt_angle",       asItStands,       Group::main},
    {"t_hgt_agl",                 "hgt_agl",               asItStands,       Group::main},
    {"t_hgt_alt",                 "hgt_agl",               asItStands,       Group::main},
    {"t_site_alt",                "site_alt",              asItStands,       Group::main},
    {"t_eff_hgtmax",              "eff_hgtmax",            asItStands,       Group::main},
    {"t_ant_dir",                 "ant_dir",               upperCase,        Group::digital},
    {"t_d_inuse",                 "d_inuse",               asItStands,       Group::main},
    {"t_d_expiry",                "d_expiry",              asItStands,       Group::main},
    {"t_op_agcy",                 "op_agcy",               threeDigits,      Group::main},
    {"t_addr_code",               "addr_code",             upperCase,        Group::main},
    {"t_op_hh_fr",                "op_hh_fr",              timeWithoutColon, Group::opHours},
    {"t_op_hh_to",                "op_hh_to",              timeWithoutColon, Group::opHours},
    {"t_call_sign",               "call_sign",             asItStands,       Group::main},
    {"t_is_pub_req",              "is_pub_req",            asItStands,       Group::main},
    {"t_is_resub",                "is_resub",              asItStands,       Group::main},
    {"t_remark_conds_met",        "are_rmk_conds_met",     asItStands,       Group::main},
    {"t_signed_commitment",       "has_signed_commitment", asItStands,       Group::main},
    {"t_sys_var",                 "tran_sys",              upperCase,        Group::digital},
    {"t_rx_mode",                 "rx_mode",               upperCase,        Group::digital},
    {"t_ref_plan_cfg",            "ref_plan_cfg",          upperCase,        Group::digital},
    {"t_sfn_id",                  "sfn_id",                upperCase,        Group::digital},
    {"t_associated_adm_allot_id", "assoc_allot_id",        upperCase,        Group::digital},
    {"t_associated_allot_sfn_id", "assoc_allot_sfn_id",    upperCase,        Group::digital},
    {"t_spect_mask",              "spect_mask",            upperCase,        Group::digital},
    {"t_typ_ref_netwk",           "typ_ref_netwk",         upperCase,        Group::allot},
    {"t_allot_name",              "allot_name",            upperCase,        Group::allot},
    {"t_geo_area",                "geo_area",              upperCase,        Group::allot},
    {"t_nb_sub_areas",            "nb_sub_areas",          asItStands,       Group::allot},
    {"t_contour_id",              "contour_id",            contourId,        Group::main},
    {"t_nb_test_pts",             "nb_test_pts",           testPointCount,   Group::contour},
    {"t_remarks",                 "rmk_text",              joined,           Group::main},
    {"t_int_remarks",             "rmk_text",              replaced,         Group::main},
};
// clang-format on

TEST(FieldTable, each_key_of_a_notice_has_its_column_and_way_of_storing) {
  for (const KeyColumn& expected : kStoredKeys) {
    const FieldRow* row = findField(expected.key);
    ASSERT_NE(row, nullptr) << expected.key;
    EXPECT_EQ(row->key, expected.key);
    EXPECT_EQ(row->column, expected.column) << expected.key;
    EXPECT_EQ(row->storedAs, expected.storedAs) << expected.key;
    if (expected.storedAs != contourId) {
      EXPECT_EQ(row->group, expected.group) << expected.key;
    }
  }
}

TEST(FieldTable, coordinates_are_stored_in_four_texts_each) {
  for (const char* key : {"t_long", "t_lat", "t_trg_long", "t_trg_lat"}) {
    const FieldRow* row = findField(key);
    ASSERT_NE(row, nullptr) << key;
    EXPECT_EQ(row->storedAs, coordinate) << key;
  }
}

TEST(FieldTable, stores_no_other_key) {
  std::set<std::string_view> stored;
  for (const FieldRow& row : fieldTable()) {
    if (!row.key.empty() && row.storedAs != notRead) stored.insert(row.key);
  }
  std::set<std::string_view> expected = {"t_long", "t_lat", "t_trg_long", "t_trg_lat"};
  for (const KeyColumn& key : kStoredKeys) expected.insert(key.key);
  EXPECT_EQ(stored, expected);
}

TEST(FieldTable, finds_nothing_for_keys_that_no_notice_section_stores) {
  for (const char* key :
       {"", "t_adm", "t_email_addr", "t_d_adm_ntc", "t_foo", "t_site", "Notice No", "t_char_set"}) {
    EXPECT_EQ(findField(key), nullptr) << key;
  }
}

TEST(FieldTable, head_values_have_their_column_but_are_not_read_in_a_notice) {
  std::map<std::string_view, std::string_view> columns;
  for (const FieldRow& row : fieldTable()) {
    if (row.storedAs == notRead && !row.key.empty()) columns[row.key] = row.column;
  }
  EXPECT_EQ(columns,
            (std::map<std::string_view, std::string_view>{{"t_adm", "adm"}, {"t_email_addr", "email_addr"}}));
}

TEST(FieldTable, fields_that_the_file_does_not_carry_are_there_for_the_database) {
  std::multiset<std::string_view> columns;
  for (const FieldRow& row : fieldTable()) {
    if (row.key.empty()) columns.insert(row.column);
  }
  EXPECT_EQ(columns, (std::multiset<std::string_view>{"assgn_id", "d_adm_ntc", "d_rcv", "d_recog",
                                                      "d_updated", "src_update", "stn_cls", "stn_id"}));
}

TEST(FieldTable, what_is_written_through_a_row_is_read_through_it) {
  for (const FieldRow& row : fieldTable()) {
    if (row.text.of == nullptr) continue;
    NtcRec ntc;
    row.text.of(ntc) = "value of " + std::string(row.key);
    EXPECT_EQ(row.text.in(ntc), "value of " + std::string(row.key));
    EXPECT_EQ(&row.text.of(ntc), &row.text.in(ntc)) << row.key;
  }
}

TEST(FieldTable, only_coordinates_and_contour_identifiers_have_no_text_of_their_own) {
  for (const FieldRow& row : fieldTable()) {
    const bool without = row.storedAs == coordinate || row.storedAs == contourId;
    EXPECT_EQ(row.text.of == nullptr, without) << row.key;
    EXPECT_EQ(row.text.in == nullptr, without) << row.key;
  }
}

TEST(FieldTable, no_two_rows_share_a_text_but_the_two_keys_of_the_antenna_height) {
  NtcRec ntc;
  std::map<const std::string*, std::vector<std::string_view>> keysOfText;
  for (const FieldRow& row : fieldTable()) {
    if (row.text.of != nullptr) keysOfText[&row.text.of(ntc)].push_back(row.key);
  }
  for (const auto& [text, keys] : keysOfText) {
    if (keys.size() > 1) {
      EXPECT_EQ(keys, (std::vector<std::string_view>{"t_hgt_agl", "t_hgt_alt"}));
    }
  }
  EXPECT_EQ(keysOfText.at(&ntc.t_hgt_agl).size(), 2U);
}

TEST(FieldTable, keys_lead_to_the_fields_of_their_name) {
  NtcRec ntc;
  const std::map<std::string_view, const std::string*> fields = {
      {"t_action", &ntc.t_action},
      {"t_fragment", &ntc.t_fragment},
      {"t_plan", &ntc.t_plan},
      {"t_prov", &ntc.t_prov},
      {"t_adm_ref_id", &ntc.t_adm_ref_id},
      {"t_trg_adm_ref_id", &ntc.t_trg_adm_ref_id},
      {"t_plan_adm_ref_id", &ntc.t_plan_adm_ref_id},
      {"t_notice_type", &ntc.t_notice_type},
      {"t_sys_var", &ntc.t_sys_var},
      {"t_ctry", &ntc.t_ctry},
      {"t_is_resub", &ntc.t_is_resub},
      {"t_is_pub_req", &ntc.t_is_pub_req},
      {"t_call_sign", &ntc.t_call_sign},
      {"t_plan_entry", &ntc.t_plan_entry},
      {"t_assgn_code", &ntc.t_assgn_code},
      {"t_offset", &ntc.t_offset},
      {"t_remark_conds_met", &ntc.t_remark_conds_met},
      {"t_signed_commitment", &ntc.t_signed_commitment},
      {"t_erp_beam_tilt_dbw", &ntc.t_erp_beam_tilt_dbw},
      {"t_beam_tilt_angle", &ntc.t_beam_tilt_angle},
      {"t_addr_code", &ntc.t_addr_code},
      {"t_op_agcy", &ntc.t_op_agcy},
      {"t_d_expiry", &ntc.t_d_expiry},
      {"t_d_inuse", &ntc.t_d_inuse},
      {"t_freq_assgn", &ntc.t_freq_assgn},
      {"t_trg_freq_assgn", &ntc.t_trg_freq_assgn},
      {"t_hgt_agl", &ntc.t_hgt_agl},
      {"t_hgt_alt", &ntc.t_hgt_agl},
      {"t_eff_hgtmax", &ntc.t_eff_hgtmax},
      {"t_erp_h_dbw", &ntc.t_erp_h_dbw},
      {"t_erp_v_dbw", &ntc.t_erp_v_dbw},
      {"t_polar", &ntc.t_polar},
      {"t_ant_dir", &ntc.t_ant_dir},
      {"t_site_name", &ntc.t_site_name},
      {"t_site_alt", &ntc.t_site_alt},
      {"t_op_hh_fr", &ntc.op_hours.t_op_hh_fr},
      {"t_op_hh_to", &ntc.op_hours.t_op_hh_to},
      {"t_rx_mode", &ntc.digital.t_rx_mode},
      {"t_ref_plan_cfg", &ntc.digital.t_ref_plan_cfg},
      {"t_sfn_id", &ntc.digital.t_sfn_id},
      {"t_associated_adm_allot_id", &ntc.digital.t_associated_adm_allot_id},
      {"t_associated_allot_sfn_id", &ntc.digital.t_associated_allot_sfn_id},
      {"t_spect_mask", &ntc.digital.t_spect_mask},
      {"t_allot_name", &ntc.digital.allot.t_allot_name},
      {"t_geo_area", &ntc.digital.allot.t_geo_area},
      {"t_nb_sub_areas", &ntc.digital.allot.t_nb_sub_areas},
      {"t_typ_ref_netwk", &ntc.digital.allot.t_typ_ref_netwk},
      {"t_nb_test_pts", &ntc.digital.contour.t_nb_test_pts},
      {"t_remarks", &ntc.t_remarks},
      {"t_int_remarks", &ntc.t_int_remarks}};
  for (const auto& [key, field] : fields) {
    const FieldRow* row = findField(key);
    ASSERT_NE(row, nullptr) << key;
    EXPECT_EQ(&row->text.in(ntc), field) << key;
  }
}

TEST(CoordinateFields, lead_to_sixteen_texts_of_their_own) {
  const NtcRec ntc;
  std::set<const std::string*> texts;
  for (const CoordinateField& field : kCoordinateFields) {
    for (const auto member : {field.degrees, field.minutes, field.seconds, field.hemisphere}) {
      texts.insert(&(ntc.*member));
    }
  }
  EXPECT_EQ(texts.size(), 16U);
}

TEST(CoordinateFields, take_the_parts_of_their_name) {
  const CoordinateField& targetLatitude = kCoordinateFields[3];
  EXPECT_EQ(targetLatitude.key, "t_trg_lat");
  EXPECT_FALSE(targetLatitude.isLongitude);
  EXPECT_EQ(targetLatitude.degrees, &NtcRec::trg_lat_deg);
  EXPECT_EQ(targetLatitude.minutes, &NtcRec::trg_lat_min);
  EXPECT_EQ(targetLatitude.seconds, &NtcRec::trg_lat_sec);
  EXPECT_EQ(targetLatitude.hemisphere, &NtcRec::trg_lat_ns);
  const CoordinateField& longitude = kCoordinateFields[0];
  EXPECT_EQ(longitude.key, "t_long");
  EXPECT_TRUE(longitude.isLongitude);
  EXPECT_EQ(longitude.degrees, &NtcRec::long_deg);
  EXPECT_EQ(longitude.minutes, &NtcRec::long_min);
  EXPECT_EQ(longitude.seconds, &NtcRec::long_sec);
  EXPECT_EQ(longitude.hemisphere, &NtcRec::long_ew);
}

}  // namespace
}  // namespace zamo
