// The window driven from its menus and buttons to the files on disk.
#include <QMenu>
#include <filesystem>
#include <new>
#include <stdexcept>

#include "window/window_fixture.h"

namespace zamo::test {
namespace {

TEST_F(Window, the_first_dialog_starts_where_an_unset_setting_says) {
  start();
  menu("mnuFileOpenTxtBasicV").trigger();
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, "c:\\");
  EXPECT_EQ(script.fileRequests[0].filter, "Text Files (*.txt)|*.txt|Updated Files (*.upd)|*.upd");
}

TEST_F(Window, the_first_dialog_starts_in_the_working_directory) {
  script.settings["workDir"] = folder.path();
  start();
  menu("mnuFileOpenTxtBasicV").trigger();
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, folder.path());
}

TEST_F(Window, cancel_keeps_the_level_of_the_command_and_runs_no_stage) {
  start();
  const std::pair<const char*, int> commands[] = {
      {"mnuFileOpenTxtBasicV", 1}, {"mnuFileOpenTxtComplVNoGeo", 2}, {"mnuFileOpenTxtComplVGeo", 3}};
  for (const auto& [command, level] : commands) {
    menu(command).trigger();
    EXPECT_EQ(shell.run.ValLevel, level) << command;
  }
  EXPECT_TRUE(script.statuses.empty());
  EXPECT_TRUE(script.boxes.empty());
  EXPECT_FALSE(shows("TxtFileName"));
  EXPECT_FALSE(shows("TxtProcessingStatus"));
}

TEST_F(Window, cancel_after_a_failed_file_leaves_its_name_and_hides_the_status) {
  start();
  const std::string path = open(kFileWithoutTail);
  menu("mnuFileOpenTxtBasicV").trigger();
  EXPECT_TRUE(shows("TxtFileName"));
  EXPECT_EQ(control<QLineEdit>("TxtFileName").text().toStdString(), path);
  EXPECT_FALSE(shows("TxtProcessingStatus"));
  EXPECT_TRUE(shows("ButtonReVal"));
}

TEST_F(Window, a_file_without_its_tail_is_reported_and_the_two_buttons_appear) {
  start();
  const std::string path = open(kFileWithoutTail);
  EXPECT_EQ(readFile(reportPath()),
            "Number of Notice sections found : 1\r\n" + path +
                " : ERROR : An electronic notice should have \r\n ONE <TAIL> section\r\n\r\n");
  EXPECT_EQ(script.viewed, std::vector<std::string>{reportPath()});
  EXPECT_EQ(status(), "File format has errors. Please correct and re-validate to proceed");
  EXPECT_TRUE(shows("TxtProcessingStatus"));
  EXPECT_TRUE(shows("LblInputTxt"));
  EXPECT_TRUE(shows("TxtFileName"));
  EXPECT_EQ(control<QLineEdit>("TxtFileName").text().toStdString(), path);
  EXPECT_TRUE(shows("ButtonViewFile"));
  EXPECT_TRUE(shows("ButtonReVal"));
  EXPECT_EQ(plain(control<QPushButton>("ButtonViewFile")), "View File");
  EXPECT_EQ(plain(control<QPushButton>("ButtonReVal")), "ReValidate");
  EXPECT_FALSE(shows("NtcDataGrid"));
  EXPECT_FALSE(menu("mnuQuery").isEnabled());
  EXPECT_FALSE(menu("mnuTxtDB").isEnabled());
  EXPECT_TRUE(script.boxes.empty());
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Window, a_refused_value_is_reported_below_the_programs_lines) {
  start();
  open(kFileWithBadPolar);
  EXPECT_EQ(readFile(reportPath()),
            "The input file has been validated with  LMZ Zamo HDLK Digital Version 3.07 / 13.01.2006\r\n"
            "On 2026-03-07 -  09:05:04 by tester\r\n"
            " \r\n"
            "Basic Validation error(s)\r\n"
            "Notice No : 1 : Error : Line No : 6 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n\r\n");
  EXPECT_EQ(status(), "Basic validation has errors. Please correct and re-validate to proceed");
  EXPECT_TRUE(shows("ButtonViewFile"));
  EXPECT_TRUE(shows("ButtonReVal"));
  EXPECT_FALSE(menu("mnuQuery").isEnabled());
  EXPECT_FALSE(menu("mnuTxtDB").isEnabled());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, a_file_without_fault_leaves_no_report) {
  start();
  open(kGoodFile);
  EXPECT_FALSE(std::filesystem::exists(reportPath()));
  EXPECT_FALSE(shows("ButtonViewFile"));
  EXPECT_FALSE(shows("ButtonReVal"));
  EXPECT_TRUE(menu("mnuQuery").isEnabled());
  EXPECT_TRUE(menu("mnuTxtDB").isEnabled());
  EXPECT_EQ(status(), "Notice no : 1");
  EXPECT_TRUE(script.boxes.empty());
  EXPECT_TRUE(script.viewed.empty());
}

TEST_F(Window, a_file_of_wrong_format_is_refused_at_every_level) {
  start();
  for (const char* command :
       {"mnuFileOpenTxtBasicV", "mnuFileOpenTxtComplVNoGeo", "mnuFileOpenTxtComplVGeo"}) {
    script.statuses.clear();
    open(kFileWithoutTail, command);
    EXPECT_EQ(script.statuses,
              (std::vector<std::string>{"Checking the File format. Please be patient....",
                                        "File format has errors. Please correct and re-validate to proceed"}))
        << command;
    EXPECT_TRUE(shows("ButtonReVal")) << command;
  }
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, revalidating_the_corrected_file_hides_the_buttons_and_leaves_the_report) {
  start();
  open(kFileWithoutTail);
  const std::string report = readFile(reportPath());
  folder.write("notices.txt", kGoodFile);
  control<QPushButton>("ButtonReVal").click();
  EXPECT_FALSE(shows("ButtonViewFile"));
  EXPECT_FALSE(shows("ButtonReVal"));
  EXPECT_EQ(status(), "Notice no : 1");
  EXPECT_EQ(readFile(reportPath()), report);
  EXPECT_EQ(script.fileRequests.size(), 1U);
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, revalidating_a_file_that_is_still_wrong_writes_its_new_report) {
  start();
  open(kFileWithBadPolar);
  const std::string path = folder.write("notices.txt", "");
  control<QPushButton>("ButtonReVal").click();
  EXPECT_EQ(readFile(reportPath()), "Number of Notice sections found : 0\r\n" + path +
                                        " : ERROR : An electronic notice file should start with \r\n"
                                        " ONE <HEAD> section \r\n\r\n");
  EXPECT_TRUE(shows("ButtonReVal"));
  EXPECT_EQ(status(), "File format has errors. Please correct and re-validate to proceed");
}

TEST_F(Window, view_file_shows_the_input_and_not_the_report) {
  start();
  const std::string path = open(kFileWithoutTail);
  script.viewed.clear();
  control<QPushButton>("ButtonViewFile").click();
  EXPECT_EQ(script.viewed, std::vector<std::string>{path});
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, without_a_viewer_boxes_tell_where_the_report_is) {
  script.hasViewer = false;
  start();
  open(kFileWithoutTail);
  expectOneBox(
      "Cannot find Notepad.exe. The validation report cannot be shown, but is available on " + reportPath(),
      "Information", BoxIcon::information);
  script.boxes.clear();
  control<QPushButton>("ButtonViewFile").click();
  expectOneBox("Cannot find Notepad.exe. Unable to show the input file", "Information", BoxIcon::information);
  EXPECT_EQ(status(), "File format has errors. Please correct and re-validate to proceed");
}

TEST_F(Window, a_report_that_cannot_be_written_is_told_and_the_window_lives_on) {
  start();
  std::filesystem::create_directories(reportPath() + "/occupied");
  open(kFileWithoutTail);
  expectOneBox("Erreur 70:Permission denied: " + reportPath(), "checkFormatAndBasic", BoxIcon::none);
  EXPECT_TRUE(script.viewed.empty());
  EXPECT_TRUE(shows("ButtonReVal"));
  EXPECT_EQ(status(), "File format has errors. Please correct and re-validate to proceed");
  EXPECT_EQ(script.hourglasses, 0);

  std::filesystem::remove_all(reportPath());
  control<QPushButton>("ButtonReVal").click();
  EXPECT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.viewed, std::vector<std::string>{reportPath()});
}

TEST_F(Window, an_unset_working_directory_is_chosen_without_a_question) {
  start();
  script.folders.push_back(folder.path());
  menu("mnuPrefDir").trigger();
  EXPECT_TRUE(script.questions.empty());
  EXPECT_EQ(script.settings["workDir"], folder.path());
  menu("mnuFileOpenTxtBasicV").trigger();
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, folder.path());
}

TEST_F(Window, cancelling_the_choice_of_an_unset_working_directory_saves_the_default) {
  start();
  menu("mnuPrefDir").trigger();
  EXPECT_EQ(script.settings["workDir"], "c:\\");
  EXPECT_TRUE(script.questions.empty());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, a_set_working_directory_is_changed_after_a_yes) {
  script.settings["workDir"] = "/srv/notices";
  start();
  script.answers.push_back(true);
  script.folders.push_back(folder.path());
  menu("mnuPrefDir").trigger();
  ASSERT_EQ(script.questions.size(), 1U);
  EXPECT_EQ(script.questions[0].text,
            "The current working directory is : /srv/notices\r\nDo you want to change it?");
  EXPECT_EQ(script.questions[0].title, "Set the Working Directory");
  EXPECT_EQ(script.questions[0].icon, BoxIcon::information);
  EXPECT_EQ(script.settings["workDir"], folder.path());
}

TEST_F(Window, a_set_working_directory_stays_after_a_no) {
  script.settings["workDir"] = "/srv/notices";
  start();
  script.answers.push_back(false);
  script.folders.push_back(folder.path());
  menu("mnuPrefDir").trigger();
  EXPECT_EQ(script.questions.size(), 1U);
  EXPECT_EQ(script.folders.size(), 1U) << "no folder was asked for";
  EXPECT_EQ(script.settings["workDir"], "/srv/notices");
}

TEST_F(Window, exit_closes_the_window_and_asks_nothing) {
  start();
  EXPECT_TRUE(window.isVisible());
  menu("mnuFileExit").trigger();
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(script.questions.empty());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, exit_and_the_frame_close_the_database) {
  start();
  shell.run.DbConn = std::make_unique<Connection>(folder.write("exit.mdb", ""));
  menu("mnuFileExit").trigger();
  EXPECT_EQ(shell.run.DbConn, nullptr);

  window.show();
  shell.run.DbConn = std::make_unique<Connection>(folder.write("frame.mdb", ""));
  window.close();
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, closing_it_during_a_run_waits_for_the_end_of_the_command) {
  start();
  int statusesWhileOpen = 0;
  onStatus = [&] {
    window.close();
    if (window.isVisible()) ++statusesWhileOpen;
  };
  open(kFileWithBadPolar);
  EXPECT_EQ(statusesWhileOpen, static_cast<int>(script.statuses.size()));
  EXPECT_EQ(script.statuses.back(), "Basic validation has errors. Please correct and re-validate to proceed");
  EXPECT_TRUE(std::filesystem::exists(reportPath()));
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, no_command_starts_within_another) {
  start();
  open(kFileWithoutTail);
  script.statuses.clear();
  onStatus = [this] {
    control<QPushButton>("ButtonReVal").click();
    menu("mnuFileOpenTxtBasicV").trigger();
    menu("mnuPrefDir").trigger();
    menu("mnuFileExit").trigger();
  };
  control<QPushButton>("ButtonReVal").click();
  EXPECT_EQ(script.statuses,
            (std::vector<std::string>{"Checking the File format. Please be patient....",
                                      "File format has errors. Please correct and re-validate to proceed"}));
  EXPECT_EQ(script.fileRequests.size(), 1U);
  EXPECT_TRUE(script.settings.empty());
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Window, want_of_memory_ends_the_command_and_not_the_program) {
  start();
  onStatus = [] { throw std::bad_alloc(); };
  open(kGoodFile);
  expectOneBox("Erreur 7:Out of memory", "mnuFileOpenTxtBasicV", BoxIcon::none);
  EXPECT_EQ(script.hourglasses, 0);

  onStatus = nullptr;
  script.boxes.clear();
  open(kGoodFile);
  EXPECT_EQ(status(), "Notice no : 1");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(Window, an_error_of_the_program_itself_is_told_under_the_commands_name) {
  start();
  open(kFileWithoutTail);
  onStatus = [] { throw std::runtime_error("the clock has stopped"); };
  control<QPushButton>("ButtonReVal").click();
  expectOneBox("Erreur 51:the clock has stopped", "ButtonReVal", BoxIcon::none);
}

TEST_F(Window, commands_on_a_database_are_there_while_one_is_open) {
  start();
  EXPECT_TRUE(menu("mnuFileOpenDB").isEnabled());
  open(kGoodFile);
  for (const char* entry : {"mnuFileOpenDB", "mnuQueryNew", "mnuTxtDBUpdated", "mnuTxtDBAll"}) {
    EXPECT_TRUE(menu(entry).isEnabled()) << entry;
  }
}

TEST_F(Window, bad_news_in_the_status_line_is_marked_until_better_news_comes) {
  start();
  auto& line = control<QLineEdit>("TxtProcessingStatus");
  open(kFileWithoutTail);
  EXPECT_TRUE(line.font().bold());
  open(kGoodFile);
  EXPECT_FALSE(line.font().bold());
}

TEST_F(Window, letters_beyond_ascii_are_shown_as_they_are) {
  start();
  const std::string path = folder.write("\xC3\xA9t\xC3\xA9.txt", kFileWithoutTail);
  script.files.push_back(path);
  menu("mnuFileOpenTxtBasicV").trigger();
  EXPECT_EQ(control<QLineEdit>("TxtFileName").text().toStdString(), path);
  EXPECT_EQ(script.viewed, std::vector<std::string>{folder.file("\xC3\xA9t\xC3\xA9_val_outcome.txt")});
}

}  // namespace
}  // namespace zamo::test
