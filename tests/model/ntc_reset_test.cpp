#include "model/ntc_reset.h"

#include <gtest/gtest.h>

#include "model/fields.h"

namespace zamo {
namespace {

// Every text, number and flag of the main level set to something.
void fillMain(NtcRec& ntc) {
  ntc.ScrCode = 4;
  ntc.vornakey = 80100001;
  ntc.trg_key = 12;
  for (std::string NtcRec::*text : {&NtcRec::t_action,
                                    &NtcRec::t_fragment,
                                    &NtcRec::t_plan,
                                    &NtcRec::t_prov,
                                    &NtcRec::assgn_id,
                                    &NtcRec::t_adm_ref_id,
                                    &NtcRec::t_trg_adm_ref_id,
                                    &NtcRec::t_plan_adm_ref_id,
                                    &NtcRec::t_notice_type,
                                    &NtcRec::stn_cls,
                                    &NtcRec::t_sys_var,
                                    &NtcRec::t_adm,
                                    &NtcRec::t_ctry,
                                    &NtcRec::t_is_resub,
                                    &NtcRec::t_is_pub_req,
                                    &NtcRec::t_call_sign,
                                    &NtcRec::t_plan_entry,
                                    &NtcRec::t_assgn_code,
                                    &NtcRec::t_offset,
                                    &NtcRec::t_remark_conds_met,
                                    &NtcRec::t_signed_commitment,
                                    &NtcRec::t_erp_beam_tilt_dbw,
                                    &NtcRec::t_beam_tilt_angle,
                                    &NtcRec::stn_id,
                                    &NtcRec::t_addr_code,
                                    &NtcRec::t_op_agcy,
                                    &NtcRec::d_adm_ntc,
                                    &NtcRec::t_d_expiry,
                                    &NtcRec::t_d_inuse,
                                    &NtcRec::d_rcv,
                                    &NtcRec::t_freq_assgn,
                                    &NtcRec::t_trg_freq_assgn,
                                    &NtcRec::t_hgt_agl,
                                    &NtcRec::t_eff_hgtmax,
                                    &NtcRec::t_erp_h_dbw,
                                    &NtcRec::t_erp_v_dbw,
                                    &NtcRec::t_polar,
                                    &NtcRec::t_ant_dir,
                                    &NtcRec::spare,
                                    &NtcRec::t_site_name,
                                    &NtcRec::long_deg,
                                    &NtcRec::long_ew,
                                    &NtcRec::long_min,
                                    &NtcRec::long_sec,
                                    &NtcRec::lat_deg,
                                    &NtcRec::lat_ns,
                                    &NtcRec::lat_min,
                                    &NtcRec::lat_sec,
                                    &NtcRec::trg_long_deg,
                                    &NtcRec::trg_long_ew,
                                    &NtcRec::trg_long_min,
                                    &NtcRec::trg_long_sec,
                                    &NtcRec::trg_lat_deg,
                                    &NtcRec::trg_lat_ns,
                                    &NtcRec::trg_lat_min,
                                    &NtcRec::trg_lat_sec,
                                    &NtcRec::t_site_alt,
                                    &NtcRec::src_update,
                                    &NtcRec::d_updated,
                                    &NtcRec::d_recog,
                                    &NtcRec::kept_spare,
                                    &NtcRec::t_remarks,
                                    &NtcRec::t_int_remarks}) {
    ntc.*text = "set";
  }
  ntc.last_spares.fill("set");
}

void fillGroups(NtcRec& ntc) {
  ntc.op_hours = {true, "0600", "2400"};
  for (auto* values : {&ntc.ant_diagr_v, &ntc.ant_diagr_h, &ntc.ant_hgt}) values->fill({true, "010", "12"});
  ntc.digital.present = true;
  for (std::string DigitalRec::*text :
       {&DigitalRec::t_email_addr, &DigitalRec::t_rx_mode, &DigitalRec::t_ref_plan_cfg, &DigitalRec::t_sfn_id,
        &DigitalRec::t_associated_adm_allot_id, &DigitalRec::t_associated_allot_sfn_id,
        &DigitalRec::t_spect_mask}) {
    ntc.digital.*text = "set";
  }
  AllotRec& allot = ntc.digital.allot;
  allot = {true, "name", "SUI", "2", "RN1", {}};
  allot.t_contour_id.fill("7");
  ntc.digital.contour = {
      true, "7", "99", std::vector<PointRec>(100, {true, "+0071234", "+465758"}), "2007-06-15", "2007-06-16"};
  ntc.coord.count = 3;
  ntc.coord.present = true;
  ntc.coord.entries.assign(4, {"SUI", "p", "s", "NOTIFIER", "d", "x"});
}

NtcRec filledRecord() {
  NtcRec ntc;
  fillMain(ntc);
  fillGroups(ntc);
  return ntc;
}

TEST(FreshRecord, has_empty_texts_zero_numbers_and_nothing_present) {
  NtcRec ntc;
  EXPECT_EQ(ntc.ScrCode, 0);
  EXPECT_EQ(ntc.vornakey, 0);
  EXPECT_EQ(ntc.trg_key, 0);
  for (const FieldRow& row : fieldTable()) {
    if (row.text.in != nullptr) {
      EXPECT_EQ(row.text.in(ntc), "") << row.key << row.column;
    }
  }
  EXPECT_FALSE(ntc.op_hours.present);
  EXPECT_FALSE(ntc.digital.present);
  EXPECT_FALSE(ntc.digital.allot.present);
  EXPECT_FALSE(ntc.digital.contour.present);
  EXPECT_FALSE(ntc.coord.present);
}

TEST(FreshRecord, has_36_places_for_each_diagram_none_of_them_present) {
  const NtcRec ntc;
  for (const auto* values : {&ntc.ant_diagr_v, &ntc.ant_diagr_h, &ntc.ant_hgt}) {
    EXPECT_EQ(values->size(), 36U);
    for (const AzmValueRec& value : *values) EXPECT_EQ(value, (AzmValueRec{false, "", ""}));
  }
}

TEST(FreshRecord, has_two_points_and_one_place_for_coordination) {
  const NtcRec ntc;
  EXPECT_EQ(ntc.digital.contour.points, (std::vector<PointRec>{{false, "", ""}, {false, "", ""}}));
  EXPECT_EQ(ntc.coord.count, 0);
  EXPECT_EQ(ntc.coord.entries, (std::vector<CoordEntryRec>{{"", "", "", "", "", ""}}));
  EXPECT_EQ(ntc.digital.allot.t_contour_id.size(), 10U);
}

TEST(FixedLimits, are_those_of_the_format) {
  EXPECT_EQ(kAzimuths, 36U);
  EXPECT_EQ(kAllotContourIds, 10U);
  EXPECT_EQ(kBufferedContourIds, 9U);
}

TEST(Reset, of_a_notice_keeps_the_administration_and_the_unused_text_alone) {
  NtcRec ntc = filledRecord();
  ntc.t_adm = "SUI";
  ntc.kept_spare = "kept";
  resetNtc(ntc);
  NtcRec expected;
  expected.t_adm = "SUI";
  expected.kept_spare = "kept";
  EXPECT_EQ(ntc, expected);
}

TEST(Reset, of_a_notice_loses_the_mail_address) {
  NtcRec ntc;
  ntc.digital.t_email_addr = "tester@example.org";
  resetNtc(ntc);
  EXPECT_EQ(ntc.digital.t_email_addr, "");
}

TEST(Reset, of_a_notice_with_99_points_leaves_two_elements) {
  NtcRec ntc = filledRecord();
  ASSERT_EQ(ntc.digital.contour.points.size(), 100U);
  resetNtc(ntc);
  EXPECT_EQ(ntc.digital.contour.points, (std::vector<PointRec>{{false, "", ""}, {false, "", ""}}));
}

TEST(Reset, of_a_notice_forgets_the_antenna_values) {
  NtcRec ntc = filledRecord();
  resetNtc(ntc);
  for (const auto* values : {&ntc.ant_diagr_v, &ntc.ant_diagr_h, &ntc.ant_hgt}) {
    for (const AzmValueRec& value : *values) EXPECT_EQ(value, (AzmValueRec{false, "", ""}));
  }
}

TEST(Reset, of_the_main_level_leaves_the_groups) {
  NtcRec ntc = filledRecord();
  resetNtcMain(ntc);
  NtcRec expected;
  fillGroups(expected);
  expected.t_adm = "set";
  expected.kept_spare = "set";
  EXPECT_EQ(ntc, expected);
}

TEST(Reset, of_the_administration_takes_that_alone) {
  NtcRec ntc = filledRecord();
  NtcRec expected = ntc;
  expected.t_adm.clear();
  resetAdm(ntc);
  EXPECT_EQ(ntc, expected);
}

TEST(Reset, of_a_point_clears_flag_and_texts_of_all_three_shapes) {
  PointRec point{true, "+0071234", "+465758"};
  resetPoint(point);
  EXPECT_EQ(point, (PointRec{false, "", ""}));
  OpHoursRec hours{true, "0600", "2400"};
  resetPoint(hours);
  EXPECT_EQ(hours, (OpHoursRec{false, "", ""}));
  AzmValueRec value{true, "010", "12"};
  resetPoint(value);
  EXPECT_EQ(value, (AzmValueRec{false, "", ""}));
}

TEST(Reset, of_a_coordination_list_leaves_one_empty_element) {
  CoordListRec coord{122, true, std::vector<CoordEntryRec>(123, {"SUI", "p", "s", "NOTIFIER", "d", "x"})};
  resetCoordList(coord);
  EXPECT_EQ(coord.count, 0);
  EXPECT_FALSE(coord.present);
  EXPECT_EQ(coord.entries, (std::vector<CoordEntryRec>{{"", "", "", "", "", ""}}));
}

TEST(Reset, of_the_digital_group_takes_allotment_and_contour_along) {
  NtcRec ntc = filledRecord();
  resetDigital(ntc.digital);
  EXPECT_EQ(ntc.digital, DigitalRec{});
  EXPECT_EQ(ntc.digital.contour.points.size(), 2U);
}

TEST(Reset, of_an_allotment_clears_the_four_texts_and_ten_identifiers) {
  NtcRec ntc = filledRecord();
  resetAllot(ntc.digital.allot);
  EXPECT_FALSE(ntc.digital.allot.present);
  EXPECT_EQ(ntc.digital.allot, AllotRec{});
  EXPECT_TRUE(ntc.digital.contour.present);
}

TEST(Reset, of_a_contour_clears_its_texts_and_leaves_two_points) {
  NtcRec ntc = filledRecord();
  resetContour(ntc.digital.contour);
  const ContourRec& contour = ntc.digital.contour;
  EXPECT_FALSE(contour.present);
  EXPECT_EQ(contour.t_contour_id + contour.t_nb_test_pts + contour.d_updated + contour.d_recog, "");
  EXPECT_EQ(contour.points, (std::vector<PointRec>{{false, "", ""}, {false, "", ""}}));
}

TEST(Reset, of_eight_texts_clears_flag_and_texts) {
  EightTextsRec group;
  group.present = true;
  group.texts.fill("set");
  resetEightTexts(group);
  EXPECT_FALSE(group.present);
  for (const std::string& text : group.texts) EXPECT_EQ(text, "");
}

TEST(ContourIds, are_counted_wherever_they_stand) {
  AllotRec allot;
  EXPECT_EQ(countContourIds(allot), 0);
  allot.t_contour_id[0] = "1";
  allot.t_contour_id[9] = "12";
  EXPECT_EQ(countContourIds(allot), 2);
  allot.t_contour_id.fill("7");
  EXPECT_EQ(countContourIds(allot), 10);
}

TEST(Record, a_copy_owns_its_texts_and_arrays) {
  NtcRec ntc = filledRecord();
  const NtcRec copy = ntc;
  ntc.digital.contour.points[0].t_long = "other";
  ntc.t_remarks += ";more";
  EXPECT_EQ(copy, filledRecord());
}

}  // namespace
}  // namespace zamo
