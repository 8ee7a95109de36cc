#include "platform/host.h"

#include <gtest/gtest.h>

#include "platform/plain_host.h"
#include "platform/system.h"
#include "support/scripted_host.h"

namespace zamo {
namespace {

using test::makeScriptedHost;
using test::Script;

std::string logonNameFrom(const std::string& systemName) {
  Script script;
  script.logonName = systemName;
  return getLogonName(makeScriptedHost(script));
}

TEST(LogonName, is_cut_to_eight_characters) {
  EXPECT_EQ(logonNameFrom("administrator"), "administ");
  EXPECT_EQ(logonNameFrom("operator"), "operator");
  EXPECT_EQ(logonNameFrom("zoe"), "zoe");
  EXPECT_EQ(logonNameFrom("z\351ph\351rine"), "z\351ph\351rin");
}

TEST(LogonName, leaves_out_what_is_nul) {
  EXPECT_EQ(logonNameFrom(std::string("ab\0cdefghij", 11)), "abcdefg");
  EXPECT_EQ(logonNameFrom(std::string("zoe\0\0\0\0\0", 8)), "zoe");
}

TEST(LogonName, has_a_fixed_text_where_there_is_none) {
  EXPECT_EQ(logonNameFrom(""), "Unknown (NON Windows NT environment)");
  EXPECT_EQ(logonNameFrom(std::string(8, '\0')), "Unknown (NON Windows NT environment)");
}

TEST(RunTimeErrorBox, tells_number_and_description_under_the_name_of_the_operation) {
  Script script;
  showRunTimeError(makeScriptedHost(script), 53, "Validate Notice", "File not found");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 53:File not found");
  EXPECT_EQ(script.boxes[0].title, "Validate Notice");
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::none);
  EXPECT_TRUE(script.questions.empty());
}

TEST(RunTimeErrorBox, keeps_a_negative_number) {
  Script script;
  showRunTimeError(makeScriptedHost(script), -2147467259, "addContour", "locked");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur -2147467259:locked");
}

TEST(RunTimeErrorBox, shows_nothing_for_the_number_0) {
  Script script;
  showRunTimeError(makeScriptedHost(script), 0, "Validate Notice", "nothing");
  EXPECT_TRUE(script.boxes.empty());
  EXPECT_TRUE(script.questions.empty());
}

TEST(PlainHost, answers_each_question_as_it_was_told_and_shows_it_on_standard_error) {
  testing::internal::CaptureStderr();
  EXPECT_TRUE(makePlainHost(true).askYesNo({"Replace it\?", "Load", BoxIcon::none}));
  EXPECT_FALSE(makePlainHost(false).askYesNo({"Replace it\?", "", BoxIcon::none}));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Load: Replace it\?\nYes\nReplace it\?\nNo\n");
}

TEST(PlainHost, prints_boxes_and_status_texts_in_utf_8) {
  const Host host = makePlainHost(true);
  testing::internal::CaptureStderr();
  host.setStatus("Notice no : 1");
  host.showBox({"\261DDDMM", "", BoxIcon::none});
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Notice no : 1\n\xC2\xB1"
            "DDDMM\n");
}

TEST(PlainHost, has_no_setting_and_cancels_dialogs) {
  const Host host = makePlainHost(true);
  host.saveSetting("workDir", "/tmp");
  EXPECT_EQ(host.readSetting("workDir"), "");
  EXPECT_FALSE(host.openFile({}).has_value());
  EXPECT_FALSE(host.chooseFolder("Folder").has_value());
}

TEST(PlainHost, knows_the_present_time) {
  const DateTime now = systemNow();
  EXPECT_TRUE(now.date.ok());
  EXPECT_GE(static_cast<int>(now.date.year()), 2020);
  EXPECT_TRUE(now.hour >= 0 && now.hour < 24);
  EXPECT_TRUE(now.minute >= 0 && now.minute < 60);
}

}  // namespace
}  // namespace zamo
