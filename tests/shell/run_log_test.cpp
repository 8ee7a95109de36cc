#include "shell/run_log.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;

class RunLog : public testing::Test {
 protected:
  RunLog() {
    shell.host = makeScriptedHost(script);
    shell.run.fileTime = "9:6:0";
    shell.run.startTime = "9:5:4";
    std::filesystem::create_directory(folder.file("common"));
    places.localFile = folder.file("local.csv");
    places.sharedFolder = folder.file("common/");
  }

  test::Script script;
  test::TempFolder folder;
  Shell shell;
  RunLogPlaces places;
};

TEST_F(RunLog, a_line_goes_to_the_local_and_the_shared_file) {
  writeRunLog(shell, "one", "two", 7, places);
  writeRunLog(shell, "one", "two", 0, places);
  const std::string expected =
      "one;two;7; KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009;tester;2026-03-07;9:6:0-9:5:4\r\n"
      "one;two;; KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009;tester;2026-03-07;9:6:0-9:5:4\r\n";
  EXPECT_EQ(readFile(folder.file("local.csv")), expected);
  EXPECT_EQ(readFile(folder.file("common/LMZ_Pro_Log.csv")), expected);
}

TEST_F(RunLog, one_user_and_a_missing_shared_folder_keep_it_local) {
  script.logonName = "zuwerkal";
  writeRunLog(shell, "one", "two", 1, places);
  EXPECT_FALSE(std::filesystem::exists(folder.file("common/LMZ_Pro_Log.csv")));
  script.logonName = "tester";
  places.sharedFolder = folder.file("nowhere/");
  writeRunLog(shell, "one", "two", 1, places);
  EXPECT_FALSE(std::filesystem::exists(folder.file("nowhere")));
}

TEST_F(RunLog, where_writing_is_not_permitted_the_name_grows_by_the_logon_name) {
  std::filesystem::create_directory(folder.file("local.csv"));
  writeRunLog(shell, "one", "two", 1, places);
  EXPECT_TRUE(readFile(folder.file("local.csvtester.csv")).starts_with("one;two;1;"));
}

TEST_F(RunLog, any_other_failure_skips_the_line) {
  places.localFile = folder.file("no/such/folder.csv");
  writeRunLog(shell, "one", "two", 1, places);
  EXPECT_TRUE(readFile(folder.file("common/LMZ_Pro_Log.csv")).starts_with("one;two;1;"));
}

}  // namespace
}  // namespace zamo
