// Whole notices of each type, and the way from text to record and back.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/fields.h"
#include "model/ntc_reset.h"
#include "noticefile/notice_writer.h"
#include "noticefile/section_reader.h"
#include "noticefile/structure_check.h"
#include "noticefile/writer_text.h"
#include "support/places.h"

namespace zamo {
namespace {

// Fails the test that asks for a target.
TargetElements noTarget(std::int32_t key) {
  ADD_FAILURE() << "asked for the target " << key;
  return {};
}

std::string write(const NtcRec& ntc, std::int32_t number = 1) {
  return makeNoticeSection(ntc, number, noTarget);
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

// One whole notice of each type, as a stored one comes back.

TEST(WholeNotice, gt1_under_the_plan) {
  NtcRec ntc;
  ntc.t_notice_type = "GT1";
  ntc.t_fragment = "KV19D";
  ntc.t_action = "ADD";
  ntc.t_adm_ref_id = "F-GT1-1";
  ntc.t_is_pub_req = "TRUE";
  ntc.t_ctry = "F";
  ntc.t_site_name = "PUY DE D\324ME";
  ntc.long_deg = "002";
  ntc.long_min = "57";
  ntc.long_sec = "52";
  ntc.long_ew = "E";
  ntc.lat_deg = "45";
  ntc.lat_min = "46";
  ntc.lat_ns = "N";
  ntc.t_freq_assgn = "530";
  ntc.t_polar = "H";
  ntc.t_erp_h_dbw = "43";
  ntc.t_ant_dir = "D";
  ntc.t_plan_entry = "1";
  ntc.t_assgn_code = "S";
  ntc.t_hgt_agl = "80";
  ntc.t_eff_hgtmax = "980";
  ntc.t_site_alt = "1465";
  ntc.ant_hgt[0] = {true, "0", "645"};
  ntc.ant_diagr_h[0] = {true, "0", "10"};
  ntc.ant_diagr_h[1] = {true, "10", "8.3"};
  ntc.digital.present = true;
  ntc.digital.t_ref_plan_cfg = "RPC1";
  ntc.digital.t_spect_mask = "S";
  EXPECT_EQ(write(ntc, 1),
            "<NOTICE>\r\n"
            "Notice No = 1\r\n"
            "t_notice_type = GT1\r\n"
            "t_fragment = KV19D\r\n"
            "t_action = ADD\r\n"
            "t_adm_ref_id = F-GT1-1\r\n"
            "t_site_name = PUY DE D\324ME\r\n"
            "t_ctry = F\r\n"
            "t_long = +0025752\r\n"
            "t_lat = +454600\r\n"
            "t_freq_assgn = 530\r\n"
            "t_site_alt = 1465\r\n"
            "t_plan_entry = 1\r\n"
            "t_assgn_code = S\r\n"
            "t_polar = H\r\n"
            "t_erp_h_dbw = 43\r\n"
            "t_hgt_agl = 80\r\n"
            "t_eff_hgtmax = 980\r\n"
            "t_ant_dir = D\r\n"
            "t_is_pub_req = TRUE\r\n"
            "t_ref_plan_cfg = RPC1\r\n"
            "t_spect_mask = S\r\n"
            "<ANT_HGT>\r\n"
            "t_eff_hgt@azm0 = 645\r\n"
            "</ANT_HGT>\r\n"
            "<ANT_DIAGR_H>\r\n"
            "t_attn@azm0 = 10\r\n"
            "t_attn@azm10 = 8.3\r\n"
            "</ANT_DIAGR_H>\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, gs1_under_article_5) {
  NtcRec ntc;
  ntc.t_notice_type = "GS1";
  ntc.t_fragment = "NTFD_PZ";
  ntc.t_action = "MODIFY";
  ntc.t_adm_ref_id = "F-GS1-1";
  ntc.trg_long_deg = "4";
  ntc.trg_long_min = "49";
  ntc.trg_long_ew = "W";
  ntc.trg_lat_deg = "5";
  ntc.trg_lat_min = "6";
  ntc.trg_lat_sec = "7";
  ntc.trg_lat_ns = "S";
  ntc.t_trg_freq_assgn = "222.064";
  ntc.t_plan_adm_ref_id = "F-PLAN-1";
  ntc.t_ctry = "F";
  ntc.t_site_name = "LYON";
  ntc.t_freq_assgn = "223.936";
  ntc.t_polar = "V";
  ntc.t_erp_v_dbw = "30";
  ntc.t_ant_dir = "ND";
  ntc.t_d_inuse = "2009-03-02";
  ntc.t_op_agcy = "001";
  ntc.t_addr_code = "A";
  ntc.op_hours = {true, "0000", "2400"};
  ntc.t_is_resub = "FALSE";
  ntc.t_remark_conds_met = "TRUE";
  ntc.t_signed_commitment = "TRUE";
  ntc.t_remarks = "on air";
  ntc.digital.present = true;
  ntc.digital.t_spect_mask = "2";
  ntc.coord = coordinatedWith({"SUI"});
  EXPECT_EQ(write(ntc, 2),
            "<NOTICE>\r\n"
            "Notice No = 2\r\n"
            "t_notice_type = GS1\r\n"
            "t_fragment = NTFD_PZ\r\n"
            "t_action = MODIFY\r\n"
            "t_adm_ref_id = F-GS1-1\r\n"
            "t_d_inuse = 2009-03-02\r\n"
            "t_trg_freq_assgn = 222.064\r\n"
            "t_trg_long = -0044900\r\n"
            "t_trg_lat = -050607\r\n"
            "t_site_name = LYON\r\n"
            "t_ctry = F\r\n"
            "t_freq_assgn = 223.936\r\n"
            "t_polar = V\r\n"
            "t_erp_v_dbw = 30\r\n"
            "t_ant_dir = ND\r\n"
            "t_op_agcy = 001\r\n"
            "t_addr_code = A\r\n"
            "t_is_resub = FALSE\r\n"
            "t_remark_conds_met = TRUE\r\n"
            "t_signed_commitment = TRUE\r\n"
            "t_op_hh_fr = 00:00\r\n"
            "t_op_hh_to = 24:00\r\n"
            "t_plan_adm_ref_id = F-PLAN-1\r\n"
            "t_prov = PZ11.2\r\n"
            "t_spect_mask = 2\r\n"
            "<COORD>\r\n"
            "t_adm = SUI\r\n"
            "</COORD>\r\n"
            "\r\n"
            "t_remarks = on air\r\n"
            "</NOTICE>");
}

NtcRec makeAllotment(const char* type) {
  NtcRec ntc;
  ntc.t_notice_type = type;
  ntc.t_fragment = "KV19D";
  ntc.t_action = "ADD";
  ntc.t_adm_ref_id = "F-ALLOT-1";
  ntc.t_is_pub_req = "FALSE";
  ntc.t_ctry = "F";
  ntc.t_plan_entry = "3";
  ntc.t_polar = "V";
  ntc.digital.present = true;
  ntc.digital.t_sfn_id = "F-SFN";
  ntc.digital.allot.present = true;
  ntc.digital.allot.t_allot_name = "AUVERGNE";
  return ntc;
}

TEST(WholeNotice, gt2) {
  NtcRec ntc = makeAllotment("GT2");
  ntc.t_freq_assgn = "530";
  ntc.digital.allot.t_typ_ref_netwk = "RN1";
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"11", "12"};
  ntc.t_int_remarks = "checked";
  EXPECT_EQ(write(ntc, 3),
            "<NOTICE>\r\n"
            "Notice No = 3\r\n"
            "t_notice_type = GT2\r\n"
            "t_fragment = KV19D\r\n"
            "t_action = ADD\r\n"
            "t_adm_ref_id = F-ALLOT-1\r\n"
            "t_ctry = F\r\n"
            "t_freq_assgn = 530\r\n"
            "t_plan_entry = 3\r\n"
            "t_polar = V\r\n"
            "t_is_pub_req = FALSE\r\n"
            "t_typ_ref_netwk = RN1\r\n"
            "t_sfn_id = F-SFN\r\n"
            "t_allot_name = AUVERGNE\r\n"
            "t_nb_sub_areas = 2\r\n"
            "t_contour_id = 11\r\n"
            "t_contour_id = 12\r\n"
            "t_int_remarks = checked\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, gs2) {
  NtcRec ntc = makeAllotment("GS2");
  ntc.t_freq_assgn = "208.064";
  ntc.t_d_expiry = "2015-06-30";
  ntc.digital.t_ref_plan_cfg = "RPC4";
  ntc.digital.allot.t_geo_area = "F";
  EXPECT_EQ(write(ntc, 4),
            "<NOTICE>\r\n"
            "Notice No = 4\r\n"
            "t_notice_type = GS2\r\n"
            "t_fragment = KV19D\r\n"
            "t_action = ADD\r\n"
            "t_adm_ref_id = F-ALLOT-1\r\n"
            "t_d_expiry = 2015-06-30\r\n"
            "t_ctry = F\r\n"
            "t_freq_assgn = 208.064\r\n"
            "t_plan_entry = 3\r\n"
            "t_polar = V\r\n"
            "t_is_pub_req = FALSE\r\n"
            "t_ref_plan_cfg = RPC4\r\n"
            "t_sfn_id = F-SFN\r\n"
            "t_allot_name = AUVERGNE\r\n"
            "t_geo_area = F\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, ga1) {
  NtcRec ntc;
  ntc.t_notice_type = "GA1";
  ntc.t_action = "ADD";
  ntc.t_ctry = "F";
  ntc.digital.contour.t_contour_id = "11";
  ntc.digital.contour.t_nb_test_pts = "2";
  ntc.digital.contour.points = {{true, "+0023600", "+460900"}, {true, "+0031800", "+461200"}, {}};
  EXPECT_EQ(makeContourNotice(ntc, 5),
            "<NOTICE>\r\n"
            "Notice No = 5\r\n"
            "t_notice_type = GA1\r\n"
            "t_action = ADD\r\n"
            "t_ctry = F\r\n"
            "t_contour_id = 11\r\n"
            "t_nb_test_pts = 2\r\n"
            "<POINT>\r\n"
            "t_long = +0023600\r\n"
            "t_lat = +460900\r\n"
            "</POINT>\r\n"
            "<POINT>\r\n"
            "t_long = +0031800\r\n"
            "t_lat = +461200\r\n"
            "</POINT>\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, tb2) {
  NtcRec ntc;
  ntc.t_notice_type = "TB2";
  ntc.t_action = "CONFORM";
  ntc.t_plan = "KV19D";
  ntc.t_plan_adm_ref_id = "POL-PLAN-12";
  ntc.trg_long_deg = "021";
  ntc.trg_long_min = "00";
  ntc.trg_long_sec = "24";
  ntc.trg_long_ew = "E";
  ntc.trg_lat_deg = "52";
  ntc.trg_lat_min = "13";
  ntc.trg_lat_sec = "55";
  ntc.trg_lat_ns = "N";
  ntc.t_trg_freq_assgn = "218.640";
  ntc.t_d_inuse = "2010-05-01";
  ntc.t_op_agcy = "001";
  ntc.t_addr_code = "A";
  ntc.op_hours = {true, "0530", "2400"};
  EXPECT_EQ(write(ntc, 6),
            "<NOTICE>\r\n"
            "Notice No = 6\r\n"
            "t_notice_type = TB2\r\n"
            "t_action = CONFORM\r\n"
            "t_plan = KV19D\r\n"
            "t_plan_adm_ref_id = POL-PLAN-12\r\n"
            "t_trg_long = +0210024\r\n"
            "t_trg_lat = +521355\r\n"
            "t_trg_freq_assgn = 218.640\r\n"
            "t_op_agcy = 001\r\n"
            "t_addr_code = A\r\n"
            "t_op_hh_fr = 05:30\r\n"
            "t_op_hh_to = 24:00\r\n"
            "t_d_inuse = 2010-05-01\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, tb3) {
  NtcRec ntc;
  ntc.t_notice_type = "TB3";
  ntc.t_action = "PARTB";
  ntc.t_plan = "KV19D";
  ntc.t_trg_adm_ref_id = "POL-44";
  ntc.t_remarks = "w toku;drugi etap";
  ntc.coord = coordinatedWith({"CZE", "D"});
  EXPECT_EQ(write(ntc, 7),
            "<NOTICE>\r\n"
            "Notice No = 7\r\n"
            "t_notice_type = TB3\r\n"
            "t_action = PARTB\r\n"
            "t_plan = KV19D\r\n"
            "t_trg_adm_ref_id = POL-44\r\n"
            "<COORD>\r\n"
            "t_adm = CZE\r\n"
            "t_adm = D\r\n"
            "</COORD>\r\n"
            "t_remarks = w toku;drugi etap\r\n"
            "</NOTICE>");
}

TEST(WholeNotice, tb5) {
  NtcRec ntc;
  ntc.t_notice_type = "TB5";
  ntc.t_action = "SUPPRESS";
  ntc.t_fragment = "KV19D";
  ntc.t_trg_adm_ref_id = "F-51";
  ntc.t_remarks = "ferm\351e";
  EXPECT_EQ(write(ntc, 8),
            "<NOTICE>\r\n"
            "Notice No = 8\r\n"
            "t_notice_type = TB5\r\n"
            "t_action = SUPPRESS\r\n"
            "t_fragment = KV19D\r\n"
            "t_trg_adm_ref_id = F-51\r\n"
            "t_remarks = ferm\351e\r\n"
            "</NOTICE>");
}

// From text to record and back.

struct FileRecords {
  std::string t_adm;
  std::string t_email_addr;
  std::vector<NtcRec> notices;
  std::string messages;
};

FileRecords readRecords(LineSource lines) {
  FileRecords records;
  NtcRec ntc;
  SectionReading reading{lines, ntc, "P", {}, {}};
  while (!lines.atEnd()) {
    readLine(reading);
    if (reading.currentLine == "<HEAD>") {
      readLine(reading);
      records.messages += readHeadSection(reading);
      records.t_adm = ntc.t_adm;
      records.t_email_addr = ntc.digital.t_email_addr;
    } else if (reading.currentLine == "<NOTICE>") {
      readLine(reading);
      resetNtc(ntc);
      const std::string messages = readNoticeSection(reading);
      if (messages != " ") records.messages += messages;
      records.notices.push_back(ntc);
    }
  }
  return records;
}

std::string writeAny(const NtcRec& ntc, std::int32_t number) {
  return ntc.t_notice_type == "GA1" ? makeContourNotice(ntc, number) : write(ntc, number);
}

std::string writeRecords(const FileRecords& records) {
  std::string file = makeHeadSection(records.t_adm, records.t_email_addr) + "\r\n";
  std::int32_t number = 0;
  for (const NtcRec& ntc : records.notices) file += writeAny(ntc, ++number) + "\r\n";
  return file + makeTailSection(number);
}

// The record that comes back from a single notice.
NtcRec writtenAndRead(const NtcRec& ntc) {
  const FileRecords records = readRecords(LineSource::ofText(writeAny(ntc, 1)));
  EXPECT_EQ(records.messages, "");
  EXPECT_EQ(records.notices.size(), 1U);
  return records.notices.empty() ? NtcRec() : records.notices.front();
}

// A database gives every coordination that came from a file to the notifier.
FileRecords asStored(FileRecords records) {
  for (NtcRec& ntc : records.notices) {
    for (CoordEntryRec& entry : ntc.coord.entries) {
      if (!entry.adm.empty()) entry.src_status = "NOTIFIER";
    }
  }
  return records;
}

// A stored record less what its text doesn't carry.
NtcRec lessItsLosses(NtcRec ntc) {
  for (CoordEntryRec& entry : ntc.coord.entries) entry.src_status.clear();
  if (ntc.t_notice_type == "TB2") ntc.t_trg_adm_ref_id.clear();
  for (const CoordinateField& field : kCoordinateFields) {
    if (!(ntc.*field.degrees).empty() && (ntc.*field.seconds).empty()) ntc.*field.seconds = "00";
  }
  return ntc;
}

class ValidExample : public ::testing::TestWithParam<const char*> {
 protected:
  static FileRecords read() { return readRecords(LineSource(std::string(ZAMO_EXAMPLES "/") + GetParam())); }
};

TEST_P(ValidExample, comes_back_from_its_written_text) {
  const FileRecords first = read();
  EXPECT_EQ(first.messages, "");
  ASSERT_FALSE(first.notices.empty());

  const std::string written = writeRecords(asStored(first));
  const FileRecords second = readRecords(LineSource::ofText(written));
  EXPECT_EQ(second.messages, "");
  EXPECT_EQ(second.t_adm, first.t_adm);
  EXPECT_EQ(second.t_email_addr, first.t_email_addr);
  ASSERT_EQ(second.notices.size(), first.notices.size());
  for (std::size_t i = 0; i < first.notices.size(); ++i) {
    EXPECT_TRUE(second.notices[i] == lessItsLosses(first.notices[i])) << "notice " << i + 1;
  }
  EXPECT_EQ(writeRecords(asStored(second)), written);
}

TEST_P(ValidExample, is_written_with_a_sound_structure) {
  const FileRecords records = asStored(read());
  LineSource lines = LineSource::ofText(writeRecords(records));
  std::string errText;
  EXPECT_TRUE(checkStructureOfLines(lines, errText, "written.txt"));
  EXPECT_EQ(errText, "Number of Notice sections found : " + std::to_string(records.notices.size()) +
                         "\r\nThe electronic file is structure is ok\r\n");
}

INSTANTIATE_TEST_SUITE_P(NoticeWriter, ValidExample,
                         ::testing::Values("valid-all-types.txt", "valid-tv-plan.txt",
                                           "valid-tv-notified.txt", "valid-radio.txt", "valid-allotments.txt",
                                           "valid-overseas.txt", "valid-actions.upd", "valid-utf8.txt"),
                         [](const auto& tested) {
                           std::string name = tested.param;
                           std::replace_if(
                               name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
                           return name;
                         });

TEST(WrittenNotice, carries_coordination_only_when_it_is_the_notifiers) {
  NtcRec ntc;
  ntc.t_notice_type = "GT2";
  ntc.stn_cls = "BT";
  ntc.coord = coordinatedWith({"D", "SUI"});
  ntc.coord.entries[0].src_status.clear();
  NtcRec expected = ntc;
  expected.coord = {1, true, {{"SUI", "", "", "", "", ""}, {}}};
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
  ntc.coord.entries[1].src_status.clear();
  expected.coord = {};
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
}

TEST(WrittenNotice, of_a_tb2_does_not_carry_the_reference_of_its_target) {
  NtcRec ntc;
  ntc.t_notice_type = "TB2";
  ntc.t_action = "CONFORM";
  ntc.t_trg_adm_ref_id = "F-0000";
  NtcRec expected = ntc;
  expected.t_trg_adm_ref_id.clear();
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
}

TEST(WrittenNotice, carries_zeros_for_missing_seconds) {
  NtcRec ntc;
  ntc.t_notice_type = "GS1";
  ntc.stn_cls = "BC";
  ntc.long_deg = "002";
  ntc.long_min = "24";
  ntc.long_ew = "W";
  ntc.lat_deg = "47";
  ntc.lat_min = "05";
  ntc.lat_ns = "N";
  NtcRec expected = ntc;
  expected.long_sec = "00";
  expected.lat_sec = "00";
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
}

TEST(WrittenNotice, of_a_contour_does_not_carry_the_internal_remarks) {
  NtcRec ntc;
  ntc.t_notice_type = "GA1";
  ntc.t_remarks = "one;two";
  ntc.t_int_remarks = "scratch";
  NtcRec expected = ntc;
  expected.t_int_remarks.clear();
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
}

TEST(WrittenNotice, does_not_carry_a_date_that_is_none) {
  NtcRec ntc;
  ntc.t_notice_type = "TB2";
  ntc.t_d_inuse = "soon";
  NtcRec expected = ntc;
  expected.t_d_inuse.clear();
  EXPECT_TRUE(writtenAndRead(ntc) == expected);
}

}  // namespace
}  // namespace zamo
