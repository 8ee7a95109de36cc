#include "noticefile/notice_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "model/fields.h"

namespace zamo {
namespace {

using Lines = std::vector<std::string>;

// The lines of a section, joined by line ends.
std::string text(const Lines& lines) {
  std::string joined;
  for (const std::string& line : lines) joined.append(joined.empty() ? "" : "\r\n").append(line);
  return joined;
}

// The lines of a body, a line end before each.
std::string body(const Lines& lines) {
  std::string joined;
  for (const std::string& line : lines) joined.append("\r\n").append(line);
  return joined;
}

Lines without(const Lines& lines, std::string_view key) {
  Lines rest;
  for (const std::string& line : lines) {
    if (!line.starts_with(std::string(key) + " = ")) rest.push_back(line);
  }
  return rest;
}

// Fails the test that asks for a target.
TargetElements noTarget(std::int32_t key) {
  ADD_FAILURE() << "asked for the target " << key;
  return {};
}

std::string write(const NtcRec& ntc, std::int32_t number = 1) {
  return makeNoticeSection(ntc, number, noTarget);
}

bool tells(const std::string& written, std::string_view key) {
  return written.find("\r\n" + std::string(key) + " = ") != std::string::npos;
}

CoordListRec coordinatedWith(const std::vector<std::string>& adms) {
  CoordListRec coord;
  coord.present = true;
  coord.count = static_cast<std::int32_t>(adms.size());
  coord.entries.clear();
  for (const std::string& adm : adms) {
    coord.entries.push_back({adm, "COORD", "COORD COMPLETED", "NOTIFIER", "2009-01-15", " "});
  }
  coord.entries.emplace_back();
  return coord;
}

// A record with something in every text that a file carries.
NtcRec makeFull() {
  NtcRec ntc;
  ntc.vornakey = 1400017;
  ntc.trg_key = 1400005;
  ntc.t_adm = "F";
  ntc.t_action = "MODIFY";
  ntc.t_fragment = "NTFD_PZ";
  ntc.t_plan = "KV19D";
  ntc.t_prov = "OTHER";
  ntc.t_adm_ref_id = "F-0001";
  ntc.t_trg_adm_ref_id = "F-0000";
  ntc.t_plan_adm_ref_id = "F-PLAN-1";
  ntc.t_notice_type = "GT1";
  ntc.stn_cls = "BT";
  ntc.t_sys_var = "C2";
  ntc.t_ctry = "REU";
  ntc.t_is_resub = "FALSE";
  ntc.t_is_pub_req = "TRUE";
  ntc.t_call_sign = "RADIO 1";
  ntc.t_plan_entry = "5";
  ntc.t_assgn_code = "L";
  ntc.t_offset = "166.7";
  ntc.t_remark_conds_met = "TRUE";
  ntc.t_signed_commitment = "YES";
  ntc.t_erp_beam_tilt_dbw = "40.5";
  ntc.t_beam_tilt_angle = "-1.5";
  ntc.t_addr_code = "A";
  ntc.t_op_agcy = "1";
  ntc.t_d_expiry = "2019-12-31";
  ntc.t_d_inuse = "2009-02-01";
  ntc.t_freq_assgn = "474";
  ntc.t_trg_freq_assgn = "482";
  ntc.t_hgt_agl = "75";
  ntc.t_eff_hgtmax = "300";
  ntc.t_erp_h_dbw = "43.0";
  ntc.t_erp_v_dbw = "42.9";
  ntc.t_polar = "M";
  ntc.t_ant_dir = "ND";
  ntc.t_site_name = "PITON D'\311T\311";
  ntc.long_deg = "055";
  ntc.long_ew = "E";
  ntc.long_min = "27";
  ntc.long_sec = "01";
  ntc.lat_deg = "20";
  ntc.lat_ns = "S";
  ntc.lat_min = "53";
  ntc.lat_sec = "02";
  ntc.trg_long_deg = "001";
  ntc.trg_long_ew = "W";
  ntc.trg_long_min = "02";
  ntc.trg_long_sec = "03";
  ntc.trg_lat_deg = "04";
  ntc.trg_lat_ns = "N";
  ntc.trg_lat_min = "05";
  ntc.trg_lat_sec = "06";
  ntc.t_site_alt = "150";
  ntc.op_hours = {true, "0530", "2400"};
  ntc.ant_hgt[0] = {true, "000", "250"};
  ntc.ant_hgt[1] = {true, "010", "260"};
  ntc.ant_diagr_h[0] = {true, "000", "0"};
  ntc.ant_diagr_v[35] = {true, "350", "3.5"};
  ntc.digital.present = true;
  ntc.digital.t_email_addr = "plan@adm.example";
  ntc.digital.t_rx_mode = "FX";
  ntc.digital.t_ref_plan_cfg = "RPC1";
  ntc.digital.t_sfn_id = "F-SFN-1";
  ntc.digital.t_associated_adm_allot_id = "F-ALLOT-1";
  ntc.digital.t_associated_allot_sfn_id = "F-SFN-2";
  ntc.digital.t_spect_mask = "N";
  ntc.digital.allot.present = true;
  ntc.digital.allot.t_allot_name = "LA R\311UNION";
  ntc.digital.allot.t_geo_area = "RE";
  ntc.digital.allot.t_nb_sub_areas = "3";
  ntc.digital.allot.t_typ_ref_netwk = "RN1";
  ntc.digital.allot.t_contour_id = {"11", "12", "13", "14", "15", "16", "17", "18", "19", "20"};
  ntc.digital.contour.present = true;
  ntc.digital.contour.t_contour_id = "99";
  ntc.digital.contour.t_nb_test_pts = "3";
  ntc.digital.contour.points = {
      {true, "+0552701", "-205302"}, {true, "+05528", "-2053"}, {true, "+0552900", "-205400"}, {}};
  ntc.coord = coordinatedWith({"MDG", "MAU"});
  ntc.t_remarks = "one;two";
  ntc.t_int_remarks = "scratch";
  return ntc;
}

// clang-format off
const Lines kFullUnderArt5 = {
    "<NOTICE>",
    "Notice No = 7",
    "t_notice_type = GT1",
    "t_fragment = NTFD_PZ",
    "t_action = MODIFY",
    "t_adm_ref_id = F-0001",
    "t_d_inuse = 2009-02-01",
    "t_d_expiry = 2019-12-31",
    "t_call_sign = RADIO 1",
    "t_trg_adm_ref_id = F-0000",
    "t_site_name = PITON D'\311T\311",
    "t_ctry = REU",
    "t_long = +0552701",
    "t_lat = -205302",
    "t_freq_assgn = 474",
    "t_offset = 166.7",
    "t_site_alt = 150",
    "t_plan_entry = 5",
    "t_assgn_code = L",
    "t_polar = M",
    "t_erp_h_dbw = 43.0",
    "t_erp_v_dbw = 42.9",
    "t_erp_beam_tilt_dbw = 40.5",
    "t_beam_tilt_angle = -1.5",
    "t_hgt_agl = 75",
    "t_eff_hgtmax = 300",
    "t_ant_dir = ND",
    "t_op_agcy = 1",
    "t_addr_code = A",
    "t_is_resub = FALSE",
    "t_remark_conds_met = TRUE",
    "t_signed_commitment = YES",
    "t_op_hh_fr = 05:30",
    "t_op_hh_to = 24:00",
    "t_plan_adm_ref_id = F-PLAN-1",
    "t_prov = PZ11.2",
    "t_sys_var = C2",
    "t_rx_mode = FX",
    "t_ref_plan_cfg = RPC1",
    "t_typ_ref_netwk = RN1",
    "t_sfn_id = F-SFN-1",
    "t_associated_adm_allot_id = F-ALLOT-1",
    "t_associated_allot_sfn_id = F-SFN-2",
    "t_spect_mask = N",
    "t_allot_name = LA R\311UNION",
    "t_geo_area = RE",
    "t_nb_sub_areas = 3",
    "t_contour_id = 11",
    "t_contour_id = 12",
    "t_contour_id = 13",
    "t_contour_id = 14",
    "t_contour_id = 15",
    "t_contour_id = 16",
    "t_contour_id = 17",
    "t_contour_id = 18",
    "t_contour_id = 19",
    "t_contour_id = 20",
    "<COORD>",
    "t_adm = MDG",
    "t_adm = MAU",
    "</COORD>",
    "<ANT_HGT>",
    "t_eff_hgt@azm000 = 250",
    "t_eff_hgt@azm010 = 260",
    "</ANT_HGT>",
    "<ANT_DIAGR_H>",
    "t_attn@azm000 = 0",
    "</ANT_DIAGR_H>",
    "<ANT_DIAGR_V>",
    "t_attn@azm350 = 3.5",
    "</ANT_DIAGR_V>",
    "t_remarks = one;two",
    "t_int_remarks = scratch",
    "</NOTICE>",
};
// clang-format on

TEST(NoticeSection, writes_every_key_of_a_full_assignment_under_article_5_in_order) {
  EXPECT_EQ(write(makeFull(), 7), text(kFullUnderArt5));
}

// The key whose line hangs on a field alone.
std::string_view keyOfLine(std::string_view key) {
  if (key == "t_hgt_alt") return "t_hgt_agl";
  const bool isWrittenElsewhere = key == "t_adm" || key == "t_prov";
  return isWrittenElsewhere ? "" : key;
}

TEST(NoticeSection, leaves_out_the_line_of_each_empty_field_and_no_other) {
  const std::vector<std::string_view> settlingMore = {"t_notice_type", "t_fragment", "t_action",
                                                      "t_trg_adm_ref_id"};
  int fields = 0;
  for (const FieldRow& row : fieldTable()) {
    const auto settles = std::find(settlingMore.begin(), settlingMore.end(), row.key);
    if (row.key.empty() || row.text.of == nullptr || settles != settlingMore.end()) continue;
    NtcRec ntc = makeFull();
    row.text.of(ntc).clear();
    EXPECT_EQ(write(ntc, 7), text(without(kFullUnderArt5, keyOfLine(row.key)))) << row.key;
    ++fields;
  }
  EXPECT_EQ(fields, 48);
}

TEST(NoticeSection, leaves_out_a_coordinate_without_minutes) {
  for (const CoordinateField& field : kCoordinateFields) {
    NtcRec ntc = makeFull();
    (ntc.*field.minutes).clear();
    EXPECT_EQ(write(ntc, 7), text(without(kFullUnderArt5, field.key))) << field.key;
  }
}

TEST(NoticeSection, of_a_notice_with_its_type_alone_holds_the_number_and_the_type) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  EXPECT_EQ(write(ntc, 3), "<NOTICE>\r\nNotice No = 3\r\nt_notice_type = GT2\r\n</NOTICE>");
  ntc.t_notice_type = "GT1";
  EXPECT_EQ(write(ntc, 3), "<NOTICE>\r\nNotice No = 3\r\nt_notice_type = GT1\r\n\r\n</NOTICE>");
}

TEST(NoticeSection, of_an_empty_record_holds_the_number) {
  EXPECT_EQ(write(NtcRec(), 0), "<NOTICE>\r\nNotice No = 0\r\n\r\n</NOTICE>");
}

TEST(NoticeSection, names_the_target_of_a_modification_by_its_elements_without_a_reference) {
  NtcRec ntc = makeFull();
  ntc.t_trg_adm_ref_id.clear();
  Lines expected = kFullUnderArt5;
  const auto reference = std::find(expected.begin(), expected.end(), "t_trg_adm_ref_id = F-0000");
  ASSERT_NE(reference, expected.end());
  *reference = "t_trg_freq_assgn = 482";
  expected.insert(reference + 1, {"t_trg_long = -0010203", "t_trg_lat = +040506"});
  EXPECT_EQ(write(ntc, 7), text(expected));
}

TEST(NoticeSection, takes_the_action_modify_in_any_case) {
  NtcRec ntc = makeFull();
  ntc.t_action = "Modify";
  EXPECT_TRUE(tells(write(ntc), "t_trg_adm_ref_id"));
}

TEST(NoticeSection, writes_no_target_for_another_action) {
  for (const char* action : {"ADD", "SUPPRESS", "MODIFYING", ""}) {
    NtcRec ntc = makeFull();
    ntc.t_action = action;
    Lines expected = without(without(kFullUnderArt5, "t_trg_adm_ref_id"), "t_action");
    if (*action != '\0') expected.insert(expected.begin() + 4, std::string("t_action = ") + action);
    EXPECT_EQ(write(ntc, 7), text(expected)) << action;
    ntc.t_trg_adm_ref_id.clear();
    EXPECT_EQ(write(ntc, 7), text(expected)) << action;
  }
}

Lines withFragment(const char* fragment) {
  Lines expected = without(kFullUnderArt5, "t_fragment");
  if (*fragment != '\0') expected.insert(expected.begin() + 3, std::string("t_fragment = ") + fragment);
  for (const char* key : {"t_op_agcy", "t_addr_code", "t_is_resub", "t_remark_conds_met",
                          "t_signed_commitment", "t_op_hh_fr", "t_op_hh_to", "t_plan_adm_ref_id", "t_prov"}) {
    expected = without(expected, key);
  }
  return expected;
}

TEST(NoticeSection, writes_the_request_of_publication_in_place_of_article_5_under_the_plan) {
  NtcRec ntc = makeFull();
  ntc.t_fragment = "KV19D";
  Lines expected = withFragment("KV19D");
  const auto behind = std::find(expected.begin(), expected.end(), "t_sys_var = C2");
  ASSERT_NE(behind, expected.end());
  expected.insert(behind, "t_is_pub_req = TRUE");
  EXPECT_EQ(write(ntc, 7), text(expected));
}

TEST(NoticeSection, writes_neither_for_another_fragment) {
  for (const char* fragment : {"", "OTHER", "ntfd_pz", "kv19d"}) {
    NtcRec ntc = makeFull();
    ntc.t_fragment = fragment;
    EXPECT_EQ(write(ntc, 7), text(withFragment(fragment))) << fragment;
  }
}

TEST(NoticeSection, writes_the_site_of_four_types_alone) {
  for (const char* type : {"GT1", "GS1", "DS1", "DT1"}) {
    NtcRec ntc = makeFull();
    ntc.t_notice_type = type;
    Lines expected = kFullUnderArt5;
    expected[2] = std::string("t_notice_type = ") + type;
    EXPECT_EQ(write(ntc, 7), text(expected)) << type;
  }
  for (const char* type : {"DS2", "DT2", "DA1", "TB1", "gt1"}) {
    NtcRec ntc = makeFull();
    ntc.t_notice_type = type;
    Lines expected = without(without(kFullUnderArt5, "t_long"), "t_lat");
    expected[2] = std::string("t_notice_type = ") + type;
    EXPECT_EQ(write(ntc, 7), text(expected)) << type;
  }
}

TEST(NoticeSection, writes_no_antenna_for_three_types) {
  for (const char* type : {"GT2", "GS2", "GA1"}) {
    NtcRec ntc = makeFull();
    ntc.t_notice_type = type;
    Lines expected = without(without(kFullUnderArt5, "t_long"), "t_lat");
    expected[2] = std::string("t_notice_type = ") + type;
    const auto first = std::find(expected.begin(), expected.end(), "<ANT_HGT>");
    const auto last = std::find(expected.begin(), expected.end(), "</ANT_DIAGR_V>");
    ASSERT_LT(first, last);
    expected.erase(first, last + 1);
    EXPECT_EQ(write(ntc, 7), text(expected)) << type;
  }
}

TEST(NoticeSection, writes_the_digital_part_only_when_it_is_present) {
  NtcRec ntc = makeFull();
  ntc.digital.present = false;
  Lines expected = kFullUnderArt5;
  const auto first = std::find(expected.begin(), expected.end(), "t_rx_mode = FX");
  const auto last = std::find(expected.begin(), expected.end(), "t_contour_id = 20");
  ASSERT_LT(first, last);
  expected.erase(first, last + 1);
  EXPECT_EQ(write(ntc, 7), text(expected));
}

TEST(NoticeSection, writes_the_allotment_without_its_own_mark) {
  NtcRec ntc = makeFull();
  ntc.digital.allot.present = false;
  EXPECT_EQ(write(ntc, 7), text(kFullUnderArt5));
}

TEST(NoticeSection, writes_the_hours_only_when_they_are_present) {
  NtcRec ntc = makeFull();
  ntc.op_hours.present = false;
  EXPECT_EQ(write(ntc, 7), text(without(without(kFullUnderArt5, "t_op_hh_fr"), "t_op_hh_to")));
}

TEST(NoticeSection, writes_the_coordination_only_when_it_is_present) {
  NtcRec ntc = makeFull();
  ntc.coord.present = false;
  Lines expected = kFullUnderArt5;
  const auto first = std::find(expected.begin(), expected.end(), "<COORD>");
  ASSERT_NE(first, expected.end());
  expected.erase(first, first + 4);
  EXPECT_EQ(write(ntc, 7), text(expected));
}

TEST(NoticeSection, keeps_the_line_end_before_a_section_that_turns_out_empty) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  ntc.coord = coordinatedWith({});
  EXPECT_EQ(write(ntc), "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GT2\r\n\r\n</NOTICE>");
  ntc.t_notice_type = "GS1";
  ntc.ant_diagr_h[0] = {true, "000", "0"};
  EXPECT_EQ(write(ntc),
            "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GS1\r\n\r\n\r\n"
            "<ANT_DIAGR_H>\r\nt_attn@azm000 = 0\r\n</ANT_DIAGR_H>\r\n</NOTICE>");
}

TEST(NoticeSection, writes_dates_as_year_month_and_day_from_every_form) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  for (const char* date : {"2009-02-01", "2009/2/1", "01.02.2009", "1-2-2009"}) {
    ntc.t_d_inuse = date;
    ntc.t_d_expiry = date;
    EXPECT_EQ(write(ntc),
              "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GT2\r\n"
              "t_d_inuse = 2009-02-01\r\nt_d_expiry = 2009-02-01\r\n</NOTICE>")
        << date;
  }
}

TEST(NoticeSection, has_no_line_for_a_date_that_has_no_three_parts) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  ntc.t_d_inuse = "next year";
  ntc.t_d_expiry = "2009";
  EXPECT_EQ(write(ntc), "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GT2\r\n</NOTICE>");
}

TEST(NoticeSection, writes_noon_as_a_time) {
  NtcRec ntc = makeFull();
  ntc.op_hours = {true, "1200", ""};
  const std::string written = write(ntc);
  EXPECT_NE(written.find("\r\nt_op_hh_fr = 12:00\r\nt_plan_adm_ref_id"), std::string::npos);
  EXPECT_FALSE(tells(written, "t_op_hh_to"));
}

// Which body a notice gets.

// clang-format off
const Lines kFullAsTB3 = {
    "<NOTICE>",
    "Notice No = 1",
    "t_notice_type = TB3",
    "t_action = PARTB",
    "t_plan = NTFD_PZ",
    "t_trg_adm_ref_id = F-0001",
    "<COORD>",
    "t_adm = MDG",
    "t_adm = MAU",
    "</COORD>",
    "t_remarks = one;two",
};
// clang-format on

TEST(ChoiceOfBody, takes_tb3_in_the_internal_remarks_before_every_type) {
  for (const char* type : {"GT1", "GS1", "GT2", "GS2", "GA1", "TB2", "TB3", "TB5", ""}) {
    for (const char* remarks : {"TB3", "make a tb3 of it", "xTb3x"}) {
      NtcRec ntc = makeFull();
      ntc.t_notice_type = type;
      ntc.t_int_remarks = remarks;
      Lines expected = kFullAsTB3;
      expected.push_back(std::string("t_int_remarks = ") + remarks);
      expected.push_back("</NOTICE>");
      EXPECT_EQ(write(ntc), text(expected)) << type << ", " << remarks;
    }
  }
}

TEST(ChoiceOfBody, does_not_look_at_the_remarks_for_all) {
  NtcRec ntc = makeFull();
  ntc.t_remarks = "TB3";
  Lines expected = kFullUnderArt5;
  expected[expected.size() - 3] = "t_remarks = TB3";
  EXPECT_EQ(write(ntc, 7), text(expected));
}

TEST(ChoiceOfBody, follows_the_type_of_a_tb_notice) {
  NtcRec ntc;
  ntc.t_adm_ref_id = "F-1";
  ntc.t_remarks = "r";
  ntc.t_int_remarks = "TB 3";
  ntc.t_fragment = "KV19D";
  ntc.t_action = "ADD";
  const std::string remarks = "\r\nt_remarks = r\r\nt_int_remarks = TB 3\r\n</NOTICE>";
  ntc.t_notice_type = "TB3";
  EXPECT_EQ(write(ntc),
            "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB3\r\nt_action = PARTB\r\nt_plan = KV19D\r\n"
            "t_trg_adm_ref_id = F-1" +
                remarks);
  ntc.t_notice_type = "TB5";
  EXPECT_EQ(
      write(ntc),
      "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB5\r\nt_action = ADD\r\nt_fragment = KV19D" + remarks);
  ntc.t_notice_type = "TB2";
  EXPECT_EQ(
      write(ntc),
      "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = TB2\r\nt_action = CONFORM\r\nt_plan = KV19D" + remarks);
}

// Bodies.

TEST(TB3Body, of_a_partb_takes_its_own_fields) {
  NtcRec ntc = makeFull();
  ntc.t_notice_type = "TB3";
  ntc.t_action = "PARTB";
  EXPECT_EQ(makeTB3Body(ntc),
            body({"t_notice_type = TB3", "t_action = PARTB", "t_plan = KV19D", "t_trg_adm_ref_id = F-0000",
                  "<COORD>", "t_adm = MDG", "t_adm = MAU", "</COORD>"}));
  ntc.t_notice_type = "GT1";
  ntc.coord.present = false;
  EXPECT_EQ(makeTB3Body(ntc),
            body({"t_notice_type = TB3", "t_action = PARTB", "t_plan = KV19D", "t_trg_adm_ref_id = F-0000"}));
}

TEST(TB3Body, of_another_action_is_aimed_at_the_notice_itself) {
  for (const char* action : {"ADD", "MODIFY", "", "partb"}) {
    NtcRec ntc = makeFull();
    ntc.t_action = action;
    ntc.coord.present = false;
    EXPECT_EQ(makeTB3Body(ntc), body({"t_notice_type = TB3", "t_action = PARTB", "t_plan = NTFD_PZ",
                                      "t_trg_adm_ref_id = F-0001"}))
        << action;
  }
}

TEST(TB5Body, has_four_keys) {
  NtcRec ntc = makeFull();
  ntc.t_notice_type = "TB5";
  ntc.t_action = "WITHDRAW";
  EXPECT_EQ(makeTB5Body(ntc), body({"t_notice_type = TB5", "t_action = WITHDRAW", "t_fragment = NTFD_PZ",
                                    "t_trg_adm_ref_id = F-0000"}));
}

const Lines kUse = {"t_op_agcy = 1",      "t_addr_code = A",    "t_call_sign = RADIO 1",
                    "t_op_hh_fr = 05:30", "t_op_hh_to = 24:00", "t_d_inuse = 2009-02-01"};

NtcRec makeFullTB2(const char* action) {
  NtcRec ntc = makeFull();
  ntc.t_notice_type = "TB2";
  ntc.t_action = action;
  return ntc;
}

TEST(TB2Body, of_a_conform_takes_its_own_fields) {
  for (const char* action : {"CONFORM", "conform"}) {
    EXPECT_EQ(makeTB2Body(makeFullTB2(action), noTarget),
              body({"t_notice_type = TB2", std::string("t_action = ") + action, "t_plan = KV19D",
                    "t_plan_adm_ref_id = F-PLAN-1", "t_trg_long = -0010203", "t_trg_lat = +040506",
                    "t_trg_freq_assgn = 482"}) +
                  body(kUse));
  }
}

TEST(TB2Body, of_an_addition_confirms_it_without_a_target) {
  for (const char* action : {"ADD", "Add"}) {
    NtcRec ntc = makeFullTB2(action);
    ntc.t_plan = "OTHER";
    EXPECT_EQ(makeTB2Body(ntc, noTarget), body({"t_notice_type = TB2", "t_action = CONFORM", "t_plan = KV19D",
                                                "t_plan_adm_ref_id = F-PLAN-1"}) +
                                              body(kUse));
  }
}

TEST(TB2Body, of_a_modification_confirms_it_with_the_elements_of_the_stored_target) {
  for (const char* action : {"MODIFY", "modify"}) {
    NtcRec ntc = makeFullTB2(action);
    ntc.t_plan = "OTHER";
    std::vector<std::int32_t> asked;
    const auto find = [&asked](std::int32_t key) -> TargetElements {
      asked.push_back(key);
      return {"474.5", "+0022410", "+470530"};
    };
    EXPECT_EQ(makeTB2Body(ntc, find), body({"t_notice_type = TB2", "t_action = CONFORM", "t_plan = KV19D",
                                            "t_plan_adm_ref_id = F-PLAN-1", "t_trg_long = +0022410",
                                            "t_trg_lat = +470530", "t_trg_freq_assgn = 474.5"}) +
                                          body(kUse));
    EXPECT_EQ(asked, std::vector<std::int32_t>{1400005});
  }
}

TEST(TB2Body, of_a_modification_has_no_lines_of_a_target_that_is_not_stored) {
  const std::string expected =
      body({"t_notice_type = TB2", "t_action = CONFORM", "t_plan = KV19D", "t_plan_adm_ref_id = F-PLAN-1"}) +
      body(kUse);
  const auto unknown = [](std::int32_t) { return TargetElements{}; };
  EXPECT_EQ(makeTB2Body(makeFullTB2("MODIFY"), unknown), expected);
  EXPECT_EQ(makeTB2Body(makeFullTB2("MODIFY"), {}), expected);
}

TEST(TB2Body, of_any_other_action_tells_of_the_use_alone) {
  for (const char* action : {"SUPPRESS", "WITHDRAW", "PARTB", ""}) {
    EXPECT_EQ(makeTB2Body(makeFullTB2(action), noTarget), "\r\nt_notice_type = TB2" + body(kUse)) << action;
  }
}

TEST(TB2Body, leaves_out_hours_that_are_not_present_and_an_empty_date) {
  NtcRec ntc = makeFullTB2("ADD");
  ntc.op_hours.present = false;
  ntc.t_d_inuse.clear();
  EXPECT_EQ(makeTB2Body(ntc, noTarget), body({"t_notice_type = TB2", "t_action = CONFORM", "t_plan = KV19D",
                                              "t_plan_adm_ref_id = F-PLAN-1", "t_op_agcy = 1",
                                              "t_addr_code = A", "t_call_sign = RADIO 1"}));
}

TEST(Art5Body, has_its_keys_in_order_and_a_constant_provision) {
  EXPECT_EQ(makeArt5Body(makeFull()),
            body({"t_op_agcy = 1", "t_addr_code = A", "t_is_resub = FALSE", "t_remark_conds_met = TRUE",
                  "t_signed_commitment = YES", "t_op_hh_fr = 05:30", "t_op_hh_to = 24:00",
                  "t_plan_adm_ref_id = F-PLAN-1", "t_prov = PZ11.2"}));
  EXPECT_EQ(makeArt5Body(NtcRec()), "\r\nt_prov = PZ11.2");
}

TEST(Art5Body, does_not_pad_the_operating_agency) {
  NtcRec ntc;
  ntc.t_op_agcy = "7";
  EXPECT_EQ(makeArt5Body(ntc), "\r\nt_op_agcy = 7\r\nt_prov = PZ11.2");
}

TEST(DigitalBody, has_its_keys_in_order_and_then_the_allotment) {
  NtcRec ntc = makeFull();
  ntc.digital.allot.t_contour_id = {"11"};
  EXPECT_EQ(makeDigitalBody(ntc),
            body({"t_rx_mode = FX", "t_ref_plan_cfg = RPC1", "t_typ_ref_netwk = RN1", "t_sfn_id = F-SFN-1",
                  "t_associated_adm_allot_id = F-ALLOT-1", "t_associated_allot_sfn_id = F-SFN-2",
                  "t_spect_mask = N", "t_allot_name = LA R\311UNION", "t_geo_area = RE", "t_nb_sub_areas = 3",
                  "t_contour_id = 11"}));
  EXPECT_EQ(makeDigitalBody(NtcRec()), "");
}

TEST(AllotBody, writes_the_contours_of_all_ten_places_and_no_line_for_an_empty_one) {
  NtcRec ntc;
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"", "0012", "", "", "", "", "", "", "", "7"};
  EXPECT_EQ(makeAllotBody(ntc), body({"t_nb_sub_areas = 2", "t_contour_id = 0012", "t_contour_id = 7"}));
}

// Sections.

TEST(HeadSection, holds_the_administration_and_the_address) {
  EXPECT_EQ(makeHeadSection("F", "plan@adm.example"),
            "<HEAD>\r\nt_adm = F\r\nt_email_addr = plan@adm.example\r\n</HEAD>");
  EXPECT_EQ(makeHeadSection("F", ""), "<HEAD>\r\nt_adm = F\r\n</HEAD>");
  EXPECT_EQ(makeHeadSection("", ""), "");
}

TEST(PointSection, holds_the_texts_of_the_point_as_they_stand) {
  EXPECT_EQ(makePointSection({true, "+00224", "47 N"}),
            "<POINT>\r\nt_long = +00224\r\nt_lat = 47 N\r\n</POINT>");
  EXPECT_EQ(makePointSection({true, "", "+4705"}), "<POINT>\r\nt_lat = +4705\r\n</POINT>");
  EXPECT_EQ(makePointSection({true, "", ""}), "");
}

TEST(CoordSection, holds_the_entries_of_the_notifier_alone) {
  CoordListRec coord = coordinatedWith({"D", "SUI", "I", "", "BEL"});
  coord.entries[1].src_status = "BUREAU";
  coord.entries[2].src_status = "notifier";
  coord.entries[4].src_status = "";
  EXPECT_EQ(makeCoordSection(coord), "<COORD>\r\nt_adm = D\r\nt_adm = I\r\n</COORD>");
  coord.entries[0].src_status = "NOTIFIERS";
  coord.entries[2].src_status = "OTHER";
  EXPECT_EQ(makeCoordSection(coord), "");
}

TEST(AntHgtSection, writes_the_azimuths_as_they_stand_in_the_order_of_the_entries) {
  NtcRec ntc;
  ntc.ant_hgt[0] = {true, "350", "-12.5"};
  ntc.ant_hgt[1] = {true, "0", "1"};
  ntc.ant_hgt[2] = {true, "010", ""};
  ntc.ant_hgt[35] = {true, " 1e1", "0"};
  EXPECT_EQ(
      makeAntHgtSection(ntc),
      "<ANT_HGT>\r\nt_eff_hgt@azm350 = -12.5\r\nt_eff_hgt@azm0 = 1\r\nt_eff_hgt@azm 1e1 = 0\r\n</ANT_HGT>");
}

TEST(AntHgtSection, of_36_empty_entries_is_empty) {
  NtcRec ntc;
  for (AzmValueRec& one : ntc.ant_hgt) one = {true, "000", ""};
  EXPECT_EQ(makeAntHgtSection(ntc), "");
  EXPECT_EQ(makeAntHgtSection(NtcRec()), "");
}

TEST(AntDiagrSections, put_the_horizontal_one_first_and_a_line_end_before_each) {
  NtcRec ntc;
  EXPECT_EQ(makeAntDiagrSections(ntc), "");
  ntc.ant_diagr_v[0] = {true, "0", "1.5"};
  ntc.ant_diagr_v[1] = {true, "010", ""};
  EXPECT_EQ(makeAntDiagrSections(ntc), "\r\n<ANT_DIAGR_V>\r\nt_attn@azm0 = 1.5\r\n</ANT_DIAGR_V>");
  ntc.ant_diagr_h[35] = {true, "0", "0"};
  EXPECT_EQ(makeAntDiagrSections(ntc),
            "\r\n<ANT_DIAGR_H>\r\nt_attn@azm0 = 0\r\n</ANT_DIAGR_H>"
            "\r\n<ANT_DIAGR_V>\r\nt_attn@azm0 = 1.5\r\n</ANT_DIAGR_V>");
  ntc.ant_diagr_v[0].value.clear();
  EXPECT_EQ(makeAntDiagrSections(ntc), "\r\n<ANT_DIAGR_H>\r\nt_attn@azm0 = 0\r\n</ANT_DIAGR_H>");
}

NtcRec makeFullContour() {
  NtcRec ntc = makeFull();
  ntc.t_notice_type = "GA1";
  ntc.t_action = "ADD";
  return ntc;
}

// clang-format off
const Lines kFullContour = {
    "<NOTICE>",
    "t_remarks = one;two",
    "Notice No = 9",
    "t_notice_type = GA1",
    "t_action = ADD",
    "t_ctry = REU",
    "t_contour_id = 99",
    "t_nb_test_pts = 3",
    "<POINT>",
    "t_long = +0552701",
    "t_lat = -205302",
    "</POINT>",
    "<POINT>",
    "t_long = +05528",
    "t_lat = -2053",
    "</POINT>",
    "<POINT>",
    "t_long = +0552900",
    "t_lat = -205400",
    "</POINT>",
    "</NOTICE>",
};
// clang-format on

TEST(ContourNotice, leads_with_the_remarks_and_ends_with_the_points) {
  EXPECT_EQ(makeContourNotice(makeFullContour(), 9), text(kFullContour));
}

TEST(ContourNotice, leaves_out_a_point_that_is_not_present) {
  NtcRec ntc = makeFullContour();
  ntc.digital.contour.points[1].present = false;
  Lines expected = kFullContour;
  expected.erase(expected.begin() + 12, expected.begin() + 16);
  EXPECT_EQ(makeContourNotice(ntc, 9), text(expected));
}

TEST(ContourNotice, keeps_the_line_end_before_a_present_point_without_texts) {
  NtcRec ntc;
  ntc.t_notice_type = "GA1";
  ntc.digital.contour.t_nb_test_pts = "1";
  ntc.digital.contour.points[0].present = true;
  EXPECT_EQ(makeContourNotice(ntc, 1),
            "<NOTICE>\r\nNotice No = 1\r\nt_notice_type = GA1\r\nt_nb_test_pts = 1\r\n\r\n</NOTICE>");
}

TEST(ContourNotice, writes_as_many_points_as_it_tells) {
  NtcRec ntc = makeFullContour();
  ntc.digital.contour.t_nb_test_pts = "2.9";
  Lines expected = kFullContour;
  expected[7] = "t_nb_test_pts = 2.9";
  expected.erase(expected.begin() + 16, expected.begin() + 20);
  EXPECT_EQ(makeContourNotice(ntc, 9), text(expected));
}

TEST(ContourNotice, writes_no_point_without_their_number) {
  const Lines head(kFullContour.begin(), kFullContour.begin() + 7);
  for (const std::string number : {"", "0", "-3", "many"}) {
    NtcRec ntc = makeFullContour();
    ntc.digital.contour.t_nb_test_pts = number;
    const std::string line = number.empty() ? "" : "\r\nt_nb_test_pts = " + number;
    EXPECT_EQ(makeContourNotice(ntc, 9), text(head) + line + "\r\n</NOTICE>") << number;
  }
}

TEST(ContourNotice, writes_no_more_points_than_there_are) {
  for (const char* number : {"99", "1e300", "1e999"}) {
    NtcRec ntc = makeFullContour();
    ntc.digital.contour.t_nb_test_pts = number;
    Lines expected = kFullContour;
    expected[7] = std::string("t_nb_test_pts = ") + number;
    EXPECT_EQ(makeContourNotice(ntc, 9), text(expected)) << number;
  }
}

}  // namespace
}  // namespace zamo
