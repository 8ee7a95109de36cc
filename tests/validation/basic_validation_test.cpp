#include "validation/basic_validation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>

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
  std::int64_t notices = -1;
  std::string report;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << (outcome.passed ? "passed" : "refused") << ", " << outcome.notices << " notices\n"
             << outcome.report;
}

Outcome validate(Script& script, const std::string& path, bool withFileName = false) {
  Outcome outcome;
  outcome.passed =
      runBasicValidation(makeScriptedHost(script), outcome.report, outcome.notices, path, withFileName)
          .passed;
  return outcome;
}

// Validates lines that are given without their line ends.
Outcome validate(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append("\r\n");
  const TempFolder folder;
  Script script;
  Outcome outcome = validate(script, folder.write("a.txt", text));
  EXPECT_THAT(script.boxes, IsEmpty());
  return outcome;
}

constexpr std::string_view kGoodFile =
    "<HEAD>\r\nt_adm = SUI\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\n</NOTICE>\r\n"
    "<NOTICE>\r\nt_notice_type = GS1\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n";

constexpr std::string_view kBadFile =
    "<HEAD>\r\nt_foo = 1\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_polar = X\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n";

TEST(BasicValidation, a_well_made_file_passes_without_a_line) {
  const TempFolder folder;
  Script script;
  EXPECT_EQ(validate(script, folder.write("a.txt", kGoodFile)), (Outcome{true, 2, ""}));
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST(BasicValidation, shows_each_notice_and_repaints_behind_it) {
  const TempFolder folder;
  Script script;
  validate(script, folder.write("a.txt", kGoodFile));
  EXPECT_THAT(script.statuses, ElementsAre("Notice no : 1", "Notice no : 2"));
  EXPECT_EQ(script.repaints, 2);
}

TEST(BasicValidation, an_empty_file_fails_without_a_line) {
  EXPECT_EQ(validate({}), (Outcome{false, 0, ""}));
  EXPECT_EQ(validate({"", "text"}), (Outcome{false, 0, ""}));
}

TEST(BasicValidation, a_file_without_head_fails_without_a_line) {
  EXPECT_EQ(
      validate({"<NOTICE>", "t_notice_type = GT1", "</NOTICE>", "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
      (Outcome{false, 1, ""}));
}

TEST(BasicValidation, the_tail_is_compared_with_the_notices_read) {
  EXPECT_EQ(
      validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "</NOTICE>",
                "<NOTICE>", "t_notice_type = GT1", "</NOTICE>", "<TAIL>", "t_num_notices = 3", "</TAIL>"}),
      (Outcome{false, 2,
               " : Error : Line No : 11 t_num_notices : The number of notices notified : 3 and the number of"
               " notices read : 2\r\n"}));
}

TEST(BasicValidation, only_notices_ahead_of_the_tail_count_for_it) {
  EXPECT_EQ(validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<TAIL>", "t_num_notices = 0", "</TAIL>",
                      "<NOTICE>", "t_notice_type = GT1", "</NOTICE>"}),
            (Outcome{true, 1, ""}));
}

TEST(BasicValidation, a_bad_notice_does_not_stop_the_next_ones) {
  EXPECT_EQ(
      validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_polar = X", "</NOTICE>", "<NOTICE>",
                "t_ctry = SUI", "</NOTICE>", "<NOTICE>", "t_notice_type = GT1", "t_prov = PZ12",
                "</NOTICE>"}),
      (Outcome{
          false, 3,
          "Notice No : 1 : Error : Line No : 5 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"
          "Notice No : 2 : <NOTICE> started at line : 8 has a  FATAL ERROR t_notice_type is not provided."
          " Cannot proceed further\r\n"
          "Notice No : 3 : Error : Line No : 12  t_prov : Acceptable value {PZ11.2}\r\n"}));
}

TEST(BasicValidation, a_good_section_behind_a_bad_one_does_not_make_it_pass) {
  EXPECT_EQ(validate({"<HEAD>", "t_foo = 1", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "</NOTICE>",
                      "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
            (Outcome{false, 1, " : Error : Line No : 2 Undefined key. Please check the spelling\r\n"}));
  EXPECT_EQ(validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<TAIL>", "t_num_notices =", "</TAIL>", "<NOTICE>",
                      "t_notice_type = GT1", "</NOTICE>"}),
            (Outcome{false, 1,
                     " : Error : Line No : 5 t_num_notices : Value must be notified. The number of notices "
                     "read : 0\r\n"}));
}

TEST(BasicValidation, a_head_behind_a_notice_wipes_out_its_result_and_not_its_line) {
  EXPECT_EQ(
      validate({"<NOTICE>", "t_notice_type = GT1", "t_polar = X", "</NOTICE>", "<HEAD>", "t_adm = SUI",
                "</HEAD>"}),
      (Outcome{true, 1,
               "Notice No : 1 : Error : Line No : 3 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"}));
}

TEST(BasicValidation, an_undefined_key_of_a_point_alone_passes_with_its_line) {
  EXPECT_EQ(
      validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GA1", "<POINT>", "t_foo = 1",
                "</POINT>", "</NOTICE>"}),
      (Outcome{true, 1, "Notice No : 1 : Error : Line No : 7 Undefined key. Please check the spelling\r\n"}));
}

TEST(BasicValidation, tags_count_in_any_case) {
  EXPECT_EQ(
      validate({"<head>", "t_foo = 1", "</head>", "<Notice>", "t_notice_type = GT1", "</nOTICE>", "<tail>",
                "t_num_notices = 2", "</Tail>"}),
      (Outcome{false, 1,
               " : Error : Line No : 2 Undefined key. Please check the spelling\r\n"
               " : Error : Line No : 8 t_num_notices : The number of notices notified : 2 and the number of"
               " notices read : 1\r\n"}));
}

TEST(BasicValidation, lines_outside_sections_are_passed_over) {
  EXPECT_EQ(validate({"t_foo = 1", "", "<POINT>", "t_lat = X", "</POINT>", "</HEAD>", "<HEAD>", "t_adm = SUI",
                      "</HEAD>", "t_polar = X"}),
            (Outcome{true, 0, ""}));
}

TEST(BasicValidation, the_line_number_is_that_of_the_file) {
  EXPECT_EQ(
      validate({"", "", "<HEAD>", "", "t_adm = SUI", "", "</HEAD>", "", "<NOTICE>", "", "t_notice_type = GT1",
                "", "<POINT>", "", "</POINT>", "", "t_polar = X", "</NOTICE>"}),
      (Outcome{
          false, 1,
          "Notice No : 1 : Error : Line No : 17 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"}));
}

TEST(BasicValidation, a_tag_on_the_last_line_opens_its_section_all_the_same) {
  EXPECT_EQ(
      validate({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>"}),
      (Outcome{
          false, 1,
          "Notice No : 1 : <NOTICE> started at line : 5 has a  FATAL ERROR t_notice_type is not provided."
          " Cannot proceed further\r\n"}));
  EXPECT_EQ(validate({"<HEAD>"}), (Outcome{true, 0, ""}));
}

TEST(BasicValidation, the_file_name_leads_each_line_when_it_is_wanted) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", kBadFile);
  Script script;
  EXPECT_EQ(
      validate(script, path, true),
      (Outcome{
          false, 1,
          path + " : Error : Line No : 2 Undefined key. Please check the spelling\r\n" + path +
              "Notice No : 1 : Error : Line No : 6 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n" +
              path +
              " : Error : Line No : 9 t_num_notices : The number of notices notified : 2 and the number of"
              " notices read : 1\r\n"}));
  EXPECT_THAT(script.statuses, IsEmpty());
}

TEST(BasicValidation, the_file_name_is_left_out_when_it_is_not_wanted) {
  const TempFolder folder;
  Script script;
  EXPECT_EQ(
      validate(script, folder.write("a.txt", kBadFile)),
      (Outcome{false, 1,
               " : Error : Line No : 2 Undefined key. Please check the spelling\r\n"
               "Notice No : 1 : Error : Line No : 6 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"
               " : Error : Line No : 9 t_num_notices : The number of notices notified : 2 and the number of"
               " notices read : 1\r\n"}));
}

TEST(BasicValidation, adds_to_the_report_and_starts_its_count_anew) {
  const TempFolder folder;
  Script script;
  std::string report = "before\r\n";
  std::int64_t notices = 17;
  const StageResult result =
      runBasicValidation(makeScriptedHost(script), report, notices,
                         folder.write("a.txt", "<HEAD>\r\nt_foo = 1\r\n</HEAD>\r\n"), false);
  EXPECT_FALSE(result.passed);
  EXPECT_FALSE(result.machineFailed);
  EXPECT_EQ(report, "before\r\n : Error : Line No : 2 Undefined key. Please check the spelling\r\n");
  EXPECT_EQ(notices, 0);
}

TEST(BasicValidation, a_missing_file_is_told_in_the_box_of_the_stage) {
  const TempFolder folder;
  Script script;
  std::string report;
  std::int64_t notices = 17;
  const StageResult result =
      runBasicValidation(makeScriptedHost(script), report, notices, folder.file("none.txt"), false);
  EXPECT_FALSE(result.passed);
  EXPECT_TRUE(result.machineFailed);
  EXPECT_EQ(report, "");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Validate Notice");
  EXPECT_TRUE(script.boxes[0].text.starts_with("Erreur 53:")) << script.boxes[0].text;
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::none);
}

TEST(BasicValidation, the_count_of_notices_is_zero_for_a_missing_file) {
  const TempFolder folder;
  Script script;
  std::string report;
  std::int64_t notices = 17;
  runBasicValidation(makeScriptedHost(script), report, notices, folder.file("none.txt"), false);
  EXPECT_EQ(notices, 0);
}

TEST(BasicValidation, a_folder_is_told_in_the_box_of_the_stage) {
  const TempFolder folder;
  Script script;
  EXPECT_FALSE(validate(script, folder.path()).passed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Validate Notice");
  EXPECT_TRUE(script.boxes[0].text.starts_with("Erreur 70:")) << script.boxes[0].text;
}

// A file <case>.expected begins with the verdict and the count of notices on a line; the rest is the whole
// report.
TEST(BasicValidation, whole_files_give_their_whole_reports) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(ZAMO_TEST_DATA "/basic")) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  EXPECT_GE(files.size(), 12U);
  for (std::filesystem::path file : files) {
    Script script;
    const Outcome outcome = validate(script, file.string());
    const std::string verdict =
        std::string(outcome.passed ? "passed, " : "refused, ") + std::to_string(outcome.notices) + "\r\n";
    EXPECT_EQ(verdict + outcome.report, readFile(file.replace_extension(".expected").string())) << file;
    EXPECT_THAT(script.boxes, IsEmpty()) << file;
    EXPECT_EQ(script.repaints, outcome.notices) << file;
  }
}

}  // namespace
}  // namespace zamo
