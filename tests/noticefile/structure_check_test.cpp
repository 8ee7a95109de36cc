#include "noticefile/structure_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <vector>

#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::makeScriptedHost;
using test::Script;
using test::TempFolder;

struct Verdict {
  bool passed = false;
  std::string text;
  bool operator==(const Verdict&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Verdict& verdict) {
  return out << verdict.passed << "\n" << verdict.text;
}

// Checks lines that are given without their line ends, under the name "a.txt".
Verdict check(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text.append(line).append("\r\n");
  LineSource source = LineSource::ofText(text);
  Verdict verdict;
  verdict.passed = checkStructureOfLines(source, verdict.text, "a.txt");
  return verdict;
}

TEST(StructureCheck, a_well_made_file_passes_with_its_count_of_notices) {
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "</NOTICE>", "<NOTICE>",
             "t_notice_type = GT1", "<POINT>", "</POINT>", "</NOTICE>", "<TAIL>", "t_num_notices = 2",
             "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 2\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, an_empty_file_reports_the_missing_head_and_no_notice) {
  const Verdict expected{
      false,
      "Number of Notice sections found : 0\r\n"
      "a.txt : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n"};
  EXPECT_EQ(check({}), expected);
  EXPECT_EQ(check({"some text", ""}), expected);
}

TEST(StructureCheck, a_missing_head_is_told_before_the_other_missing_sections) {
  EXPECT_EQ(
      check({"<NOTICE>", "t_notice_type = GT1", "</NOTICE>"}),
      (Verdict{false,
               "Number of Notice sections found : 1\r\n"
               "a.txt : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n"}));
}

TEST(StructureCheck, a_missing_notice_is_told_before_a_missing_tail) {
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>"}),
      (Verdict{false,
               "Number of Notice sections found : 0\r\n"
               "a.txt : ERROR : An electronic notice should have \r\n at least ONE <NOTICE> section\r\n"}));
}

TEST(StructureCheck, a_missing_tail_is_told) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "</NOTICE>"}),
            (Verdict{false,
                     "Number of Notice sections found : 1\r\n"
                     "a.txt : ERROR : An electronic notice should have \r\n ONE <TAIL> section\r\n"}));
}

TEST(StructureCheck, a_second_head_fails_at_its_end_tag) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>"}),
            (Verdict{false, "a.txt : ERROR : There can only be one <HEAD> section\r\n"}));
  // Before that end tag it is this that is told.
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<HEAD>", "t_adm = SUI", "<NOTICE>"}),
            (Verdict{false, "The end tag : </HEAD> is missing at line number 6"}));
}

TEST(StructureCheck, a_second_tail_fails_at_its_end_tag) {
  EXPECT_EQ(check({"<TAIL>", "t_num_notices = 0", "</TAIL>", "<TAIL>", "t_num_notices = 0", "</TAIL>"}),
            (Verdict{false, "a.txt : ERROR : There can only be one <TAIL> section\r\n"}));
}

TEST(StructureCheck, the_order_of_the_sections_is_free) {
  EXPECT_EQ(
      check({"<TAIL>", "t_num_notices = 1", "</TAIL>", "<NOTICE>", "t_notice_type = GT1", "</NOTICE>",
             "<HEAD>", "t_adm = SUI", "</HEAD>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, a_notice_without_end_tag_fails_at_the_next_top_tag) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "t_action = ADD",
                   "<NOTICE>", "t_notice_type = GT1", "</NOTICE>"}),
            (Verdict{false, "The end tag : </NOTICE> is missing at line number 7"}));
  EXPECT_EQ(check({"<NOTICE>", "t_notice_type = GT1", "", "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
            (Verdict{false, "The end tag : </NOTICE> is missing at line number 4"}));
}

TEST(StructureCheck, a_section_that_never_ends_fails_with_the_line_where_it_started) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "t_action = ADD"}),
            (Verdict{false,
                     "The end tag : </NOTICE> for the section started at line number 4 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
}

TEST(StructureCheck, an_end_tag_in_a_message_is_upper_case) {
  EXPECT_EQ(check({"<head>", "t_adm = SUI", "<notice>"}),
            (Verdict{false, "The end tag : </HEAD> is missing at line number 3"}));
  EXPECT_EQ(check({"<notice>", "x", "<point>", "x"}),
            (Verdict{false,
                     "The end tag : </POINT> for the section started at line number 3 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
}

TEST(StructureCheck, tags_pass_in_any_case) {
  EXPECT_EQ(
      check({"<head>", "t_adm = SUI", "</Head>", "<Notice>", "x", "<coord>", "</COORD>", "</notice>",
             "<tail>", "t_num_notices = 1", "</tail>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, each_sub_section_needs_its_own_end_tag) {
  struct Sub {
    const char* tag;
    const char* message;
  };
  for (const Sub& sub : {
           Sub{"<ANT_HGT>", "The end tag : </ANT_HGT> is missing at line number 5"},
           Sub{"<ANT_DIAGR_V>", "The end tag : </ANT_DIAGR_V> is missing at line number 5"},
           Sub{"<ANT_DIAGR_H>", "The end tag : </ANT_DIAGR_H> is missing at line number 5"},
           Sub{"<COORD>", "The end tag : </COORD> is missing at line number 5"},
           Sub{"<COORDINATION>", "The end tag : </COORDINATION> is missing at line number 5"},
           Sub{"<POINT>", "The end tag : </POINT> is missing at line number 5"},
       }) {
    EXPECT_EQ(check({"<NOTICE>", "t_notice_type = GT1", sub.tag, "</NOTICE>", "<TAIL>"}),
              (Verdict{false, sub.message}));
  }
}

TEST(StructureCheck, a_sub_section_that_never_ends_fails_with_the_line_where_it_started) {
  EXPECT_EQ(check({"<NOTICE>", "t_notice_type = GT1", "<ANT_HGT>", "t_eff_hgt@azm010 = 1", "</NOTICE>"}),
            (Verdict{false,
                     "The end tag : </ANT_HGT> for the section started at line number 3 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
}

TEST(StructureCheck, a_sub_section_may_be_closed_on_its_next_line) {
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "t_notice_type = GT1", "<COORD>", "</COORD>",
             "</NOTICE>", "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, sub_sections_may_stand_in_sub_sections) {
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "x", "<POINT>", "<COORD>", "</COORD>",
             "</POINT>", "</NOTICE>", "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
  EXPECT_EQ(check({"<NOTICE>", "x", "<POINT>", "<COORD>", "</POINT>", "</NOTICE>"}),
            (Verdict{false,
                     "The end tag : </COORD> for the section started at line number 4 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
}

TEST(StructureCheck, the_two_old_coordination_tags_need_no_end_tag) {
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "x", "<COORD_A>", "<COORD_O>", "<FOO>",
             "</NOTICE>", "<TAIL>", "t_num_notices = 1", "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, the_line_behind_a_top_tag_is_never_looked_at) {
  // A sub-section that opens there needs no end tag.
  EXPECT_EQ(
      check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "<ANT_HGT>", "x", "</NOTICE>", "<TAIL>",
             "t_num_notices = 1", "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
  // Nor does another top tag count there.
  EXPECT_EQ(
      check({"<HEAD>", "<NOTICE>", "</HEAD>", "<NOTICE>", "<TAIL>", "</NOTICE>", "<TAIL>", "<HEAD>",
             "</TAIL>"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, an_end_tag_behind_its_top_tag_goes_unnoticed) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "x", "</NOTICE>", "<TAIL>", "</TAIL>"}),
            (Verdict{false,
                     "The end tag : </TAIL> for the section started at line number 7 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
  EXPECT_EQ(check({"<TAIL>", "</TAIL>", "<HEAD>", "t_adm = SUI", "</HEAD>"}),
            (Verdict{false, "The end tag : </TAIL> is missing at line number 3"}));
}

TEST(StructureCheck, a_top_tag_on_the_last_line_of_the_file_opens_nothing) {
  EXPECT_EQ(check({"<HEAD>", "t_adm = SUI", "</HEAD>", "<NOTICE>", "x", "</NOTICE>", "<TAIL>"}),
            (Verdict{false,
                     "Number of Notice sections found : 1\r\n"
                     "a.txt : ERROR : An electronic notice should have \r\n ONE <TAIL> section\r\n"}));
}

TEST(StructureCheck, lines_outside_any_section_are_ignored) {
  EXPECT_EQ(
      check({"t_adm = SUI", "", "<FOO>", "</NOTICE>", "<POINT>", "<HEAD>", "t_adm = SUI", "</HEAD>", "text",
             "<NOTICE>", "x", "</NOTICE>", "</POINT>", "<TAIL>", "t_num_notices = 1", "</TAIL>", "more"}),
      (Verdict{true, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n"}));
}

TEST(StructureCheck, an_end_tag_of_another_section_does_not_close) {
  EXPECT_EQ(check({"<NOTICE>", "x", "</HEAD>", "</POINT>", "</TAIL>"}),
            (Verdict{false,
                     "The end tag : </NOTICE> for the section started at line number 1 was not found.\r\n"
                     "PLEASE CORRECT TO PROCEED\r\n"}));
}

TEST(StructureCheck, a_hundred_thousand_nested_sections_are_followed_to_the_end) {
  constexpr int kDepth = 100000;
  std::string text = "<HEAD>\r\nt_adm = SUI\r\n</HEAD>\r\n<NOTICE>\r\nx\r\n";
  std::string opened = text;
  for (int i = 0; i < kDepth; ++i) opened += "<POINT>\r\n";
  std::string closed = opened;
  for (int i = 0; i < kDepth; ++i) closed += "</POINT>\r\n";
  closed += "</NOTICE>\r\n<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";

  std::string errText;
  LineSource whole = LineSource::ofText(closed);
  EXPECT_TRUE(checkStructureOfLines(whole, errText, "a.txt"));
  EXPECT_EQ(errText, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n");

  errText.clear();
  LineSource cut = LineSource::ofText(opened);
  EXPECT_FALSE(checkStructureOfLines(cut, errText, "a.txt"));
  EXPECT_EQ(errText,
            "The end tag : </POINT> for the section started at line number 100005 was not found.\r\n"
            "PLEASE CORRECT TO PROCEED\r\n");
}

TEST(StructureCheckOfFile, names_the_file_as_it_was_given) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "");
  Script script;
  std::string errText;
  const StageResult result = checkFileStructure(makeScriptedHost(script), errText, path);
  EXPECT_FALSE(result.passed);
  EXPECT_FALSE(result.machineFailed);
  EXPECT_EQ(errText,
            "Number of Notice sections found : 0\r\n" + path +
                " : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n");
  EXPECT_TRUE(script.boxes.empty());
}

TEST(StructureCheckOfFile, names_the_file_in_the_code_page) {
  const TempFolder folder;
  const std::string path = folder.write("Gen\xC3\xA8ve.txt", "");
  Script script;
  std::string errText;
  checkFileStructure(makeScriptedHost(script), errText, path);
  EXPECT_EQ(errText, "Number of Notice sections found : 0\r\n" + folder.path() +
                         "/Gen\350ve.txt : ERROR : An electronic notice file should start with \r\n"
                         " ONE <HEAD> section \r\n");
}

TEST(StructureCheckOfFile, passes_a_well_made_file) {
  const TempFolder folder;
  const std::string path =
      folder.write("a.upd",
                   "<HEAD>\r\nt_adm = SUI\r\n</HEAD>\r\n<NOTICE>\r\nt_notice_type = GT1\r\n"
                   "</NOTICE>\r\n<TAIL>\r\nt_num_notices = 1\r\n</TAIL>");
  Script script;
  std::string errText;
  const StageResult result = checkFileStructure(makeScriptedHost(script), errText, path);
  EXPECT_TRUE(result.passed);
  EXPECT_FALSE(result.machineFailed);
  EXPECT_EQ(errText, "Number of Notice sections found : 1\r\nThe electronic file is structure is ok\r\n");
  EXPECT_TRUE(script.boxes.empty());
}

TEST(StructureCheckOfFile, a_missing_file_is_told_in_the_box_of_the_stage) {
  const TempFolder folder;
  Script script;
  std::string errText;
  const StageResult result = checkFileStructure(makeScriptedHost(script), errText, folder.file("none.txt"));
  EXPECT_FALSE(result.passed);
  EXPECT_TRUE(result.machineFailed);
  EXPECT_EQ(errText, "");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Validate File format");
  EXPECT_TRUE(script.boxes[0].text.starts_with("Erreur 53:")) << script.boxes[0].text;
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::none);
}

TEST(StructureCheckOfFile, a_folder_is_told_in_the_box_of_the_stage) {
  const TempFolder folder;
  Script script;
  std::string errText;
  EXPECT_FALSE(checkFileStructure(makeScriptedHost(script), errText, folder.path()).passed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Validate File format");
  EXPECT_TRUE(script.boxes[0].text.starts_with("Erreur 70:")) << script.boxes[0].text;
}

// A file <case>.expected begins with the verdict on a line; the rest is the whole text, in which the file has
// the name that stands in the folder.
TEST(StructureCheck, whole_files_give_their_whole_texts) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(ZAMO_TEST_DATA "/structure")) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  EXPECT_GE(files.size(), 6U);
  for (std::filesystem::path file : files) {
    LineSource lines(file.string());
    std::string text;
    const bool passed = checkStructureOfLines(lines, text, file.filename().string());
    const std::string verdict = passed ? "passed\r\n" : "refused\r\n";
    EXPECT_EQ(verdict + text, test::readFile(file.replace_extension(".expected").string())) << file;
  }
}

}  // namespace
}  // namespace zamo
