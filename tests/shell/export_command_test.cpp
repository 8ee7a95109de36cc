#include "shell/export_command.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "database/recordset.h"
#include "platform/run_time_error.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;
using test::Script;
using test::TempFolder;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kWritten = "File created on 2026-03-07-09:05:04\r\n";

class ExportCommand : public testing::Test {
 protected:
  ExportCommand() {
    shell.host = makeScriptedHost(script);
    shell.screen.statusVisible = false;
    shell.draw = [this](const MainScreen& screen) { drawn = screen; };
    shell.forms.detachGrid = [this] { ++detached; };
    shell.forms.askUpdateCondition = [this] {
      ++asked;
      return condition;
    };
    script.answers = {true};
  }

  void open(std::string_view name = "notices.mdb") {
    shell.run.DbFileName = folder.file(name);
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", shell.run.DbFileName);
    ASSERT_TRUE(OpenDB(shell.host, shell.run.DbFileName, shell.run.DbConn));
  }

  void addNotice(std::int64_t key, std::string_view updated = "2026-03-01") {
    Recordset row("fmtv_vorna", *shell.run.DbConn, OpenAs::table);
    row.AddNew();
    row.Collect("vornakey", key);
    row.Collect("adm", "F");
    row.Collect("notice_typ", "TB5");
    row.Collect("d_updated", updated);
    row.Update();
  }

  // One that an allotment alone names has no points.
  void addContour(std::int64_t key, bool hasPoints, std::string_view updated = "2026-03-01") {
    Recordset row("lmz_contour", *shell.run.DbConn, OpenAs::table);
    row.AddNew();
    row.Collect("contourkey", key);
    row.Collect("contour_id", key);
    row.Collect("adm", "F");
    row.Collect("d_updated", updated);
    if (hasPoints) row.Collect("nb_test_pts", std::int64_t{1});
    row.Update();
    if (!hasPoints) return;
    Recordset point("lmz_contour_pt", *shell.run.DbConn, OpenAs::table);
    point.AddNew();
    point.Collect("contourkey", key);
    point.Collect("test_pt", std::int64_t{1});
    point.Update();
  }

  std::vector<std::string> exportsHere() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      if (name.ends_with(".corr.txt")) names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  // How many notices the written file counts; -1 without a tail.
  int counted() const {
    const std::string text = readFile(shell.run.CorrFileName);
    const std::string_view key = "t_num_notices = ";
    const std::size_t at = text.find(key);
    return at == std::string::npos ? -1 : std::stoi(text.substr(at + key.size()));
  }

  void expectCompleted() {
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, "Electronic file completed");
    EXPECT_EQ(script.boxes[0].title, "Information");
    EXPECT_EQ(script.boxes[0].icon, BoxIcon::information);
    EXPECT_THAT(script.statuses, ElementsAre("Writing the selected record to an electronic file",
                                             "Electronic file completed"));
    EXPECT_EQ(script.hourglasses, 0);
  }

  Script script;
  TempFolder folder;
  Shell shell;
  MainScreen drawn;
  int detached = 0;
  int asked = 0;
  std::string condition;
};

TEST_F(ExportCommand, writes_all_notices_and_says_so) {
  open();
  addNotice(83700001);
  addContour(1, true);
  mnuTxtDBAll(shell);
  EXPECT_EQ(counted(), 2);
  expectCompleted();
  EXPECT_EQ(script.questions.size(), 1U);
  EXPECT_TRUE(drawn.statusVisible);
  EXPECT_EQ(detached, 1);
  EXPECT_GE(script.repaints, 2);
}

TEST_F(ExportCommand, tells_the_version_of_the_program_in_the_file) {
  open();
  addNotice(83700001);
  mnuTxtDBAll(shell);
  EXPECT_TRUE(readFile(shell.run.CorrFileName)
                  .starts_with("File created on 2026-03-07-09:05:04\r\nProcessed by tester\r\n"
                               "Program Id:  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009\r\n \r\n\r\n"
                               "<HEAD>\r\n"));
}

TEST_F(ExportCommand, names_the_file_by_the_database_and_the_time_of_day_without_zeros) {
  open();
  addNotice(83700001);
  mnuTxtDBAll(shell);
  EXPECT_EQ(shell.run.CorrFileName, folder.file("notices954.corr.txt"));
  script.answers = {true};
  script.now.hour = 0;
  script.now.minute = 12;
  script.now.second = 59;
  mnuTxtDBAll(shell);
  EXPECT_EQ(shell.run.CorrFileName, folder.file("notices01259.corr.txt"));
  EXPECT_THAT(exportsHere(), ElementsAre("notices01259.corr.txt", "notices954.corr.txt"));
}

TEST_F(ExportCommand, cuts_four_characters_of_any_name) {
  open("notices.sqlite");
  addNotice(83700001);
  mnuTxtDBAll(shell);
  EXPECT_EQ(shell.run.CorrFileName, folder.file("notices.sq954.corr.txt"));
  EXPECT_THAT(exportsHere(), ElementsAre("notices.sq954.corr.txt"));
}

TEST_F(ExportCommand, twice_in_one_second_writes_the_same_file_again) {
  open();
  addNotice(83700001);
  mnuTxtDBAll(shell);
  EXPECT_EQ(counted(), 1);
  addNotice(83700002);
  script.answers = {true};
  mnuTxtDBAll(shell);
  EXPECT_EQ(counted(), 2);
  EXPECT_THAT(exportsHere(), ElementsAre("notices954.corr.txt"));
}

TEST_F(ExportCommand, leaves_out_contours_without_test_points) {
  open();
  addContour(1, false);
  addContour(2, true);
  mnuTxtDBAll(shell);
  EXPECT_EQ(script.questions.at(0).text, "1 Notices will be written to a text file. Do you want to proceed?");
  EXPECT_EQ(counted(), 1);
  EXPECT_NE(readFile(shell.run.CorrFileName).find("t_contour_id = 2\r\n"), std::string::npos);
}

TEST_F(ExportCommand, shows_the_hourglass_and_its_status_while_it_works) {
  open();
  addNotice(83700001);
  int hourglass = 0;
  std::vector<std::string> statuses;
  int detachedBefore = 0;
  shell.host.askYesNo = [&](const Box&) {
    hourglass = script.hourglasses;
    statuses = script.statuses;
    detachedBefore = detached;
    return true;
  };
  mnuTxtDBAll(shell);
  EXPECT_EQ(hourglass, 1);
  EXPECT_THAT(statuses, ElementsAre("Writing the selected record to an electronic file"));
  EXPECT_EQ(detachedBefore, 1);
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(ExportCommand, of_updated_records_takes_those_that_meet_the_condition) {
  open();
  addNotice(83700001, "2026-02-28");
  addNotice(83700002, "2026-03-02");
  addContour(1, true, "2026-02-28");
  addContour(2, true, "2026-03-03");
  addContour(3, false, "2026-03-03");
  condition = "d_updated >= #03/01/2026#";
  mnuTxtDBUpdated(shell);
  expectCompleted();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(detached, 1);
  EXPECT_EQ(counted(), 2);
  const std::string text = readFile(shell.run.CorrFileName);
  EXPECT_NE(text.find("t_contour_id = 2\r\n"), std::string::npos);
}

TEST_F(ExportCommand, of_updated_records_without_one_says_so) {
  open();
  addNotice(83700001, "2026-02-28");
  condition = "d_updated >= #03/01/2026#";
  mnuTxtDBUpdated(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "There are no updated notices. Output text file will not be created");
  EXPECT_THAT(script.statuses, ElementsAre("Writing the selected record to an electronic file"));
  EXPECT_THAT(script.questions, IsEmpty());
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(ExportCommand, of_all_records_of_an_empty_database_speaks_of_updated_ones_too) {
  open();
  mnuTxtDBAll(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "There are no updated notices. Output text file will not be created");
  EXPECT_TRUE(readFile(shell.run.CorrFileName).starts_with(kWritten));
}

TEST_F(ExportCommand, without_a_condition_ends_there) {
  open();
  addNotice(83700001);
  mnuTxtDBUpdated(shell);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(detached, 0);
  EXPECT_THAT(exportsHere(), IsEmpty());
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(script.statuses, IsEmpty());
  EXPECT_EQ(shell.run.CorrFileName, "");
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(ExportCommand, that_is_declined_shows_no_closing_box) {
  open();
  addNotice(83700001);
  script.answers = {false};
  mnuTxtDBAll(shell);
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(script.statuses, ElementsAre("Writing the selected record to an electronic file",
                                           "Process canceled by the operator"));
  EXPECT_EQ(counted(), -1);
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(ExportCommand, without_a_database_is_an_error_and_does_nothing) {
  shell.run.DbFileName = folder.file("notices.mdb");
  condition = "d_updated >= #03/01/2026#";
  for (const auto command : {mnuTxtDBAll, mnuTxtDBUpdated}) {
    try {
      command(shell);
      ADD_FAILURE() << "not refused";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number, 5);
      EXPECT_EQ(error.text, "No database is open");
    }
  }
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(detached, 0);
  EXPECT_THAT(exportsHere(), IsEmpty());
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(script.statuses, IsEmpty());
  EXPECT_EQ(script.hourglasses, 0);
}

}  // namespace
}  // namespace zamo
