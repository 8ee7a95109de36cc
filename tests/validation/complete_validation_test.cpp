#include "validation/complete_validation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "platform/run_time_error.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::makeScriptedHost;
using test::readFile;
using test::Script;
using test::TempFolder;
using testing::ElementsAre;
using testing::IsEmpty;

struct Outcome {
  bool passed = false;
  std::string report;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << (outcome.passed ? "passed" : "refused") << "\n" << outcome.report;
}

// Agency 001 and address A, for every administration.
AgencyLookups oneOfEach() {
  return {[](std::string_view, std::string_view opAgcy) { return opAgcy == "001"; },
          [](std::string_view, std::string_view addrCode) { return addrCode == "A"; }};
}

AgencyLookups failing(int number) {
  const auto fail = [number](std::string_view, std::string_view) -> bool {
    throw RunTimeError{number, "unable to open database file"};
  };
  return {fail, fail};
}

// A map on which all land is the one country.
GzmpMap makeMapOf(const std::string& code) {
  GzmpMap map;
  map.gzmpParseCoords = [](const std::string&) { return GzmpPoint{}; };
  map.gzmpLoadMapAround = [](const GzmpPoint&, float) {};
  map.gzmpCountryAtPoint = [code](const GzmpPoint&) { return code; };
  map.gzmpNearestCountries = [](const GzmpPoint&, float, int, const std::string&, int) {
    return GzmpNearest{};
  };
  map.gzmpFindCrossings = [](const std::vector<GzmpPoint>&) { return GzmpCrossings{}; };
  return map;
}

Outcome validateFile(Script& script, const std::string& path, bool withGeo = false,
                     const AgencyLookups& lookups = oneOfEach()) {
  Outcome outcome;
  NtcRec ntc;
  const GzmpMap map = makeMapOf("F  ");
  outcome.passed = runCompleteValidation(makeScriptedHost(script), ntc, outcome.report,
                                         withGeo ? &map : nullptr, path, lookups)
                       .passed;
  return outcome;
}

using Lines = std::vector<std::string>;

std::string textOf(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  return text;
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

const Lines kHead = {"<HEAD>", "t_adm = SUI", "</HEAD>"};
const Lines kGoodTb3 = {"<NOTICE>",       "t_notice_type = TB3", "t_trg_adm_ref_id = R3",
                        "t_plan = KV19D", "t_action = PARTB",    "</NOTICE>"};
const Lines kGoodTb2 = {"<NOTICE>",
                        "t_notice_type = TB2",
                        "t_plan_adm_ref_id = R2",
                        "t_plan = KV19D",
                        "t_d_inuse = 2026-01-01",
                        "t_addr_code = A",
                        "t_action = CONFORM",
                        "</NOTICE>"};

// Validates lines that are given without their line ends.
Outcome validate(Script& script, const Lines& lines, const AgencyLookups& lookups = oneOfEach()) {
  const TempFolder folder;
  return validateFile(script, folder.write("a.txt", textOf(lines)), false, lookups);
}

Outcome validate(const Lines& lines) {
  Script script;
  Outcome outcome = validate(script, lines);
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(script.questions, IsEmpty());
  return outcome;
}

void expectOneBox(const Script& script, std::string_view text) {
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, text);
  EXPECT_EQ(script.boxes[0].title, "Backend Validation");
  EXPECT_THAT(script.questions, IsEmpty());
}

TEST(CompleteValidation, a_file_without_a_finding_leaves_no_line) {
  EXPECT_EQ(validate(kHead + kGoodTb3 + kGoodTb2), (Outcome{true, ""}));
}

TEST(CompleteValidation, a_file_without_a_section_passes) {
  EXPECT_EQ(validate(Lines{}), (Outcome{true, ""}));
  EXPECT_EQ(validate({"", "t_adm = XXX", "</NOTICE>", "<POINT>", "<NOTICES>"}), (Outcome{true, ""}));
}

TEST(CompleteValidation, tells_its_sort_and_the_notice_and_repaints_behind_each) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", textOf(kHead + kGoodTb3 + kGoodTb2));
  Script without;
  validateFile(without, path, false);
  EXPECT_THAT(without.statuses,
              ElementsAre("Complete validation without Geographic validation : Notice no : 1",
                          "Complete validation without Geographic validation : Notice no : 2"));
  EXPECT_EQ(without.repaints, 2);
  Script with;
  validateFile(with, path, true);
  EXPECT_THAT(with.statuses, ElementsAre("Complete validation with Geographic validation : Notice no : 1",
                                         "Complete validation with Geographic validation : Notice no : 2"));
  EXPECT_EQ(with.repaints, 2);
}

TEST(CompleteValidation, findings_go_behind_what_the_report_holds) {
  const TempFolder folder;
  Script script;
  NtcRec ntc;
  std::string report = "before\r\n";
  const std::string path = folder.write("a.txt", "<HEAD>\r\nt_adm = XXX\r\n</HEAD>\r\n");
  const StageResult result =
      runCompleteValidation(makeScriptedHost(script), ntc, report, nullptr, path, oneOfEach());
  EXPECT_FALSE(result.passed);
  EXPECT_EQ(report,
            "before\r\n"
            "Head : at line number : 2\r\n\r\n"
            "FATAL ERROR : \r\nHead : at line number : 2\r\n :  t_adm : Invalid administration code for the "
            "KV19\r\n"
            "\r\n");
}

TEST(CompleteValidation, the_label_of_a_head_names_the_first_line_inside_it) {
  EXPECT_EQ(
      validate({"", "text", "<HEAD>", "", "t_adm =", "</HEAD>"}),
      (Outcome{false,
               "Head : at line number : 4\r\n\r\n"
               "FATAL ERROR : \r\nHead : at line number : 4\r\n :  t_adm is a mandatory value (B)\r\n\r\n"}));
}

TEST(CompleteValidation, the_label_of_a_head_is_printed_once) {
  EXPECT_EQ(validate({"<HEAD>", "t_adm = XXX", "t_adm = SUI", "</HEAD>"}),
            (Outcome{false,
                     "Head : at line number : 2\r\n\r\n"
                     "FATAL ERROR : \r\nHead : at line number : 2\r\n : t_adm : Duplicate key\r\n\r\n"
                     "FATAL ERROR : \r\nHead : at line number : 2\r\n"
                     " :  t_adm : Invalid administration code for the KV19\r\n\r\n"}));
}

TEST(CompleteValidation, a_key_given_twice_fails_a_head_that_is_right_otherwise) {
  EXPECT_EQ(validate({"<HEAD>", "t_adm = SUI", "t_adm = XXX", "</HEAD>"}),
            (Outcome{false,
                     "Head : at line number : 2\r\n\r\n"
                     "FATAL ERROR : \r\nHead : at line number : 2\r\n : t_adm : Duplicate key\r\n\r\n"}));
}

TEST(CompleteValidation, a_second_head_gives_the_administration_twice) {
  EXPECT_EQ(validate(kHead + kHead),
            (Outcome{false,
                     "Head : at line number : 5\r\n\r\n"
                     "FATAL ERROR : \r\nHead : at line number : 5\r\n : t_adm : Duplicate key\r\n\r\n"}));
}

TEST(CompleteValidation, a_head_ends_at_its_tag_in_upper_case_alone) {
  EXPECT_EQ(validate(Lines{"<HEAD>", "t_adm = SUI", "</head>"} + Lines{"<NOTICE>", "</NOTICE>"}),
            (Outcome{true, ""}));
}

TEST(CompleteValidation, a_notice_without_a_head_before_it_has_no_administration) {
  EXPECT_EQ(validate(kGoodTb3 + kHead + kGoodTb3),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 1 : Trg_Admin_ref_id = R3"
                     " :  t_adm is a mandatory value (B)\r\n\r\n"}));
}

TEST(CompleteValidation, a_missing_administration_is_told_as_a_field_and_with_the_country) {
  const Lines contour = {"<NOTICE>",          "t_notice_type = GA1",
                         "t_ctry = SUI",      "t_contour_id = 7",
                         "t_nb_test_pts = 3", "t_action = ADD",
                         "<POINT>",           "t_long = +0070000",
                         "t_lat = +470000",   "</POINT>",
                         "<POINT>",           "t_long = +0073000",
                         "t_lat = +470000",   "</POINT>",
                         "<POINT>",           "t_long = +0070000",
                         "t_lat = +473000",   "</POINT>",
                         "</NOTICE>"};
  EXPECT_EQ(validate(kHead + contour), (Outcome{true, ""}));
  EXPECT_EQ(validate(contour + kHead),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 1 : Contour_id = 7"
                     " :  t_adm is a mandatory value (B)\r\n\r\n"
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 1 : Contour_id = 7"
                     " : t_adm =  cannot notify for t_ctry = SUI\r\n\r\n"}));
}

TEST(CompleteValidation, the_label_of_a_notice_carries_the_line_of_its_tag_and_its_identity) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"GA1", "Contour_id = 7"},         {"TB5", "Trg_Admin_ref_id = TRG"},
      {"TB3", "Trg_Admin_ref_id = TRG"}, {"TB2", "Plan_Admin_ref_id = PLAN"},
      {"GT1", "Admin_ref_id = OWN"},     {"GS1", "Admin_ref_id = OWN"},
      {"GT2", "Admin_ref_id = OWN"},     {"GS2", "Admin_ref_id = OWN"},
      {"XX9", "Admin_ref_id = OWN"},
  };
  for (const auto& [type, identity] : cases) {
    SCOPED_TRACE(type);
    const std::string report =
        validate(kHead + Lines{"", "<NOTICE>", std::string("t_notice_type = ").append(type),
                               "t_contour_id = 7", "t_trg_adm_ref_id = TRG", "t_plan_adm_ref_id = PLAN",
                               "t_adm_ref_id = own", "t_nb_test_pts = 3", "t_hgt_agl = 900", "</NOTICE>"})
            .report;
    const std::string wanted = std::string("FATAL ERROR : \r\nNotice No : 1 at line number : 5 : ")
                                   .append(identity)
                                   .append(" :  t_hgt_agl : Value should be between [0, 800] (9E)\r\n");
    EXPECT_TRUE(report.starts_with(wanted)) << report;
  }
}

TEST(CompleteValidation, the_reader_does_not_know_the_identity_yet) {
  EXPECT_EQ(
      validate(kHead + Lines{"<NOTICE>", "t_notice_type = TB5", "t_trg_adm_ref_id = R",
                             "t_trg_adm_ref_id = S", "t_fragment = KV19D", "</NOTICE>"}),
      (Outcome{
          false,
          " FATAL ERROR : \r\nNotice No : 1 at line number : 4 : t_trg_adm_ref_id : Duplicate key\r\n\r\n"
          "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = R"
          " :  t_action is a mandatory value\r\n\r\n"}));
}

TEST(CompleteValidation, groups_tell_in_order_each_closed_by_an_empty_line) {
  EXPECT_EQ(
      validate(kHead + Lines{"<NOTICE>", "t_notice_type = TB2", "t_plan_adm_ref_id = R", "t_plan = X",
                             "t_plan = KV19D", "t_d_inuse = 2026-01-01", "t_addr_code = B", "t_op_agcy = 002",
                             "t_hgt_agl = 801", "<COORD>", "t_adm = SUI", "</COORD>", "t_action = CONFORM",
                             "</NOTICE>"}),
      (Outcome{false,
               " FATAL ERROR : \r\nNotice No : 1 at line number : 4 : t_plan : Duplicate key\r\n\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " :  t_plan : Acceptable value for assignments are {KV19D}\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " :  t_hgt_agl : Value should be between [0, 800] (9E)\r\n\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " : t_hgt_agl should not be notified for a TB2\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " : <COORD> or <COORDINATION> should not be notified for a TB2\r\n\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " : <COORD> SUI : Notifying administration cannot be within in the <COORD> section.\r\n\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " :  Invalid t_op_agcy (12A)\r\n"
               "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Plan_Admin_ref_id = R"
               " :  Invalid t_addr_code (12B)\r\n\r\n"}));
}

TEST(CompleteValidation, a_finding_of_any_single_group_fails_the_file) {
  const Lines tb2 = {"<NOTICE>",       "t_notice_type = TB2",    "t_plan_adm_ref_id = R",
                     "t_plan = KV19D", "t_d_inuse = 2026-01-01", "t_action = CONFORM"};
  const Lines good = {"t_addr_code = A", "</NOTICE>"};
  EXPECT_TRUE(validate(kHead + tb2 + good).passed);
  EXPECT_FALSE(validate(kHead + tb2 + Lines{"t_plan = KV19D"} + good).passed);
  EXPECT_FALSE(validate(kHead + tb2 + Lines{"t_offset = 501"} + good).passed);
  EXPECT_FALSE(validate(kHead + tb2 + Lines{"t_is_resub = TRUE"} + good).passed);
  EXPECT_FALSE(validate(kHead + tb2 + Lines{"t_op_agcy = 2"} + good).passed);
  EXPECT_FALSE(
      validate(kHead + Lines{"<NOTICE>", "t_notice_type = TB3", "t_trg_adm_ref_id = R", "t_plan = KV19D",
                             "t_action = PARTB", "<COORD>", "t_adm = XX", "</COORD>", "</NOTICE>"})
          .passed);
}

TEST(CompleteValidation, a_bad_notice_stops_nothing_and_good_ones_do_not_make_up_for_it) {
  const Lines bad = {"<NOTICE>", "t_notice_type = TB3", "t_trg_adm_ref_id = BAD", "t_plan = KV19D",
                     "</NOTICE>"};
  EXPECT_EQ(validate(kHead + kGoodTb2 + bad + kGoodTb3),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 2 at line number : 12 : Trg_Admin_ref_id = BAD"
                     " :  t_action is a mandatory value\r\n\r\n"}));
  EXPECT_EQ(validate(kHead + bad + kGoodTb2 + bad),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = BAD"
                     " :  t_action is a mandatory value\r\n\r\n"
                     "FATAL ERROR : \r\nNotice No : 3 at line number : 17 : Trg_Admin_ref_id = BAD"
                     " :  t_action is a mandatory value\r\n\r\n"}));
}

TEST(CompleteValidation, a_notice_leaves_nothing_to_the_next_but_the_administration) {
  const Lines full = {"<NOTICE>",
                      "t_notice_type = TB5",
                      "t_action = WITHDRAW",
                      "t_fragment = KV19D",
                      "t_trg_adm_ref_id = R",
                      "t_sfn_id = X",
                      "<COORD>",
                      "t_adm = F",
                      "</COORD>",
                      "</NOTICE>"};
  EXPECT_EQ(validate(kHead + full + kGoodTb3),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = R"
                     " : <COORD> or <COORDINATION> should not be notified for a TB5\r\n"
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = R"
                     " : t_sfn_id should not be notified for a TB5\r\n\r\n"}));
}

TEST(CompleteValidation, the_lookups_get_the_administration_and_the_stored_codes) {
  std::vector<std::string> asked;
  const AgencyLookups lookups = {
      [&asked](std::string_view adm, std::string_view code) {
        asked.push_back(std::string("agency ").append(adm).append(" ").append(code));
        return true;
      },
      [&asked](std::string_view adm, std::string_view code) {
        asked.push_back(std::string("address ").append(adm).append(" ").append(code));
        return true;
      }};
  Script script;
  EXPECT_EQ(validate(script,
                     kHead + kGoodTb3 +
                         Lines{"<NOTICE>", "t_notice_type = TB2", "t_plan_adm_ref_id = R", "t_plan = KV19D",
                               "t_d_inuse = 2026-01-01", "t_addr_code = b", "t_op_agcy = 7",
                               "t_action = CONFORM", "</NOTICE>"},
                     lookups),
            (Outcome{true, ""}));
  EXPECT_THAT(asked, ElementsAre("agency SUI 007", "address SUI B"));
}

TEST(CompleteValidation, the_tail_is_not_looked_at) {
  EXPECT_EQ(validate(kHead + kGoodTb3 +
                     Lines{"<TAIL>", "t_num_notices = 9", "t_num_notices = 8", "t_foo = 1", "</TAIL>"}),
            (Outcome{true, ""}));
}

TEST(CompleteValidation, tags_are_compared_without_regard_to_case) {
  EXPECT_EQ(validate({"<head>", "t_adm = XX", "</HEAD>", "<Notice>", "t_notice_type = tb3",
                      "t_trg_adm_ref_id = r", "t_plan = kv19d", "</notice>"}),
            (Outcome{false,
                     "Head : at line number : 2\r\n\r\n"
                     "FATAL ERROR : \r\nHead : at line number : 2\r\n"
                     " :  t_adm : Invalid administration code for the KV19\r\n\r\n"
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = r"
                     " :  t_action is a mandatory value\r\n\r\n"}));
}

TEST(CompleteValidation, a_warning_is_told_and_passes) {
  Lines gt1 = {"<NOTICE>",
               "t_notice_type = GT1",
               "t_action = ADD",
               "t_fragment = KV19D",
               "t_adm_ref_id = R",
               "t_plan_entry = 1",
               "t_assgn_code = S",
               "t_ctry = SUI",
               "t_site_name = S",
               "t_long = +00730",
               "t_lat = +4700",
               "t_site_alt = 500",
               "t_freq_assgn = 474",
               "t_hgt_agl = 10",
               "t_eff_hgtmax = 10",
               "t_polar = H",
               "t_erp_h_dbw = 10",
               "t_ant_dir = ND",
               "t_spect_mask = N",
               "t_ref_plan_cfg = RPC1",
               "t_is_pub_req = TRUE",
               "t_call_sign = X",
               "<ANT_HGT>"};
  for (int azimuth = 100; azimuth < 460; azimuth += 10) {
    gt1.push_back("t_eff_hgt@azm" + std::to_string(azimuth) + " = 5");
  }
  gt1.insert(gt1.end(), {"</ANT_HGT>", "</NOTICE>"});
  EXPECT_EQ(validate(kHead + gt1),
            (Outcome{true,
                     "WARNING : \r\nNotice No : 1 at line number : 4 : Admin_ref_id = R"
                     " : t_call_sign (3A1) provided but NOT validated.\r\n\r\n"}));
}

TEST(CompleteValidation, a_section_that_the_file_breaks_off_is_judged_as_it_stands) {
  EXPECT_EQ(validate(kHead + Lines{"<NOTICE>", "t_notice_type = TB3", "t_plan = KV19D", "t_action = PARTB"}),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = "
                     " : t_trg_adm_ref_id is a mandatory value\r\n\r\n"}));
  EXPECT_EQ(
      validate({"<HEAD>"}),
      (Outcome{false,
               "Head : at line number : 2\r\n\r\n"
               "FATAL ERROR : \r\nHead : at line number : 2\r\n :  t_adm is a mandatory value (B)\r\n\r\n"}));
}

TEST(CompleteValidation, a_text_that_is_no_date_is_a_failure_of_the_stage) {
  Script script;
  const Lines badDate = {"<NOTICE>",         "t_notice_type = TB3",     "t_plan = KV19D",
                         "t_d_inuse = soon", "t_d_expiry = 2026-01-01", "</NOTICE>"};
  EXPECT_EQ(validate(script, kHead +
                                 Lines{"<NOTICE>", "t_notice_type = TB3", "t_plan = KV19D",
                                       "t_trg_adm_ref_id = R", "</NOTICE>"} +
                                 badDate + kGoodTb3),
            (Outcome{false,
                     "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Trg_Admin_ref_id = R"
                     " :  t_action is a mandatory value\r\n\r\n"}));
  expectOneBox(script, "Erreur 13:Type mismatch");
  EXPECT_EQ(script.statuses.size(), 2U);
}

TEST(CompleteValidation, a_point_without_a_place_is_a_failure_of_the_stage) {
  const Lines point = {"<POINT>", "t_long = +00700", "t_lat = +4700", "</POINT>"};
  for (const Lines& body : {point, Lines{"t_nb_test_pts = 1"} + point + point + point}) {
    Script script;
    EXPECT_EQ(validate(script, kHead + Lines{"<NOTICE>", "t_notice_type = GA1"} + body + Lines{"</NOTICE>"}),
              (Outcome{false, ""}));
    expectOneBox(script, "Erreur 9:Subscript out of range");
  }
}

TEST(CompleteValidation, a_missing_file_is_told_in_the_box_of_the_stage) {
  const TempFolder folder;
  Script script;
  const std::string path = folder.file("none.txt");
  EXPECT_EQ(validateFile(script, path), (Outcome{false, ""}));
  expectOneBox(script, "Erreur 53:File not found: " + path);
  EXPECT_THAT(script.statuses, IsEmpty());
}

TEST(CompleteValidation, a_lookup_that_fails_is_told_in_the_box_of_the_stage) {
  Script script;
  EXPECT_EQ(validate(script, kHead + kGoodTb2 + kGoodTb3, failing(14)), (Outcome{false, ""}));
  expectOneBox(script, "Erreur 14:unable to open database file");
  EXPECT_EQ(script.repaints, 0);
}

TEST(CompleteValidation, a_lookup_that_would_fail_is_not_asked_without_a_code) {
  Script script;
  EXPECT_EQ(validate(script, kHead + kGoodTb3, failing(14)), (Outcome{true, ""}));
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST(CompleteValidation, the_result_tells_a_failure_of_the_machine_from_a_finding) {
  const TempFolder folder;
  Script script;
  NtcRec ntc;
  std::string report;
  const Host host = makeScriptedHost(script);
  const StageResult missing =
      runCompleteValidation(host, ntc, report, nullptr, folder.file("none"), oneOfEach());
  EXPECT_TRUE(missing.machineFailed);
  const StageResult found = runCompleteValidation(
      host, ntc, report, nullptr, folder.write("a.txt", "<HEAD>\r\nt_adm = X\r\n</HEAD>\r\n"), oneOfEach());
  EXPECT_FALSE(found.machineFailed);
  EXPECT_FALSE(found.passed);
}

// A file passes when no finding of its report is fatal.
TEST(CompleteValidation, whole_files_give_their_whole_reports) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(ZAMO_TEST_DATA "/complete")) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  EXPECT_GE(files.size(), 50U);
  for (std::filesystem::path file : files) {
    SCOPED_TRACE(file.filename());
    Script script;
    const Outcome outcome = validateFile(script, file.string());
    const std::string expected = readFile(file.replace_extension(".expected").string());
    EXPECT_EQ(outcome.report, expected);
    EXPECT_EQ(outcome.passed, expected.find("FATAL ERROR : ") == std::string::npos);
    EXPECT_THAT(script.boxes, IsEmpty());
    EXPECT_THAT(script.questions, IsEmpty());
    EXPECT_EQ(static_cast<std::size_t>(script.repaints), script.statuses.size());
  }
}

}  // namespace
}  // namespace zamo
