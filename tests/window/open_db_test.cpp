// Opening a working database from the menu of the window.
#include "window/selection_fixture.h"

namespace zamo::test {
namespace {

class OpenDb : public SelectionWindow {
 protected:
  std::string shownFile() { return control<QLineEdit>("TxtFileName").text().toStdString(); }

  void expectNothingOpen() {
    EXPECT_EQ(shell.run.DbConn, nullptr);
    for (const char* hidden : {"LblInputTxt", "TxtFileName", "TxtProcessingStatus", "NtcDataGrid"}) {
      EXPECT_FALSE(shows(hidden)) << hidden;
    }
    EXPECT_FALSE(menu("mnuQuery").isEnabled());
    EXPECT_FALSE(menu("mnuTxtDB").isEnabled());
    EXPECT_TRUE(menu("mnuFileOpenDB").isEnabled());
    EXPECT_TRUE(script.statuses.empty());
  }
};

TEST_F(OpenDb, shows_the_database_its_notices_and_their_number) {
  store(1);
  store(2);
  openDatabase();
  EXPECT_EQ(shownFile(), "DATABASE FILE: " + databasePath);
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 2");
  for (const char* shown : {"LblInputTxt", "TxtFileName", "TxtProcessingStatus", "NtcDataGrid"}) {
    EXPECT_TRUE(shows(shown)) << shown;
  }
  EXPECT_EQ(grid().model()->rowCount(), 2);
  EXPECT_TRUE(menu("mnuQuery").isEnabled());
  EXPECT_TRUE(menu("mnuTxtDB").isEnabled());
  EXPECT_FALSE(shows("ButtonViewFile"));
  EXPECT_FALSE(shows("ButtonReVal"));
  expectNoBox();
}

TEST_F(OpenDb, hides_the_two_buttons_of_a_failed_validation) {
  open(kFileWithoutTail);
  EXPECT_TRUE(shows("ButtonReVal"));
  openDatabase();
  EXPECT_FALSE(shows("ButtonViewFile"));
  EXPECT_FALSE(shows("ButtonReVal"));
}

TEST_F(OpenDb, ends_silently_when_it_is_cancelled) {
  menu("mnuFileOpenDB").trigger();
  EXPECT_EQ(shell.run.ValLevel, 3);
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_TRUE(shows("LblInputTxt"));
  EXPECT_TRUE(shows("TxtFileName"));
  EXPECT_EQ(shownFile(), "");
  EXPECT_FALSE(shows("TxtProcessingStatus"));
  EXPECT_FALSE(menu("mnuQuery").isEnabled());
  EXPECT_FALSE(menu("mnuTxtDB").isEnabled());
  EXPECT_TRUE(script.statuses.empty());
  expectNoBox();
}

TEST_F(OpenDb, refuses_the_full_reference_database) {
  raw.run("CREATE TABLE lmz_aux_border_contour (a INTEGER)");
  openDatabase();
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Error in Reading Database");
  expectNothingOpen();
}

TEST_F(OpenDb, refuses_an_old_database) {
  raw.run("DROP TABLE addr_code");
  openDatabase();
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Old Database Structure");
  expectNothingOpen();
}

TEST_F(OpenDb, tells_of_a_file_that_is_no_database_and_the_file_menu_works_on) {
  script.files.push_back(folder.write("text.mdb", std::string(2000, 'x')));
  menu("mnuFileOpenDB").trigger();
  expectOneBox("Erreur 26:file is not a database", "OpenDB", BoxIcon::none);
  expectNothingOpen();
  script.boxes.clear();
  openDatabase();
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 0");
  expectNoBox();
}

TEST_F(OpenDb, tells_once_of_a_view_that_stands_for_a_table) {
  raw.run(
      "DROP TABLE fmtv_rmks; CREATE VIEW fmtv_rmks AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + "
      "1 "
      "FROM n) SELECT i AS vornakey FROM n WHERE i < 0");
  openDatabase();
  expectOneBox("Erreur 26:not a working database: fmtv_rmks", "OpenDB", BoxIcon::none);
  expectNothingOpen();
}

TEST_F(OpenDb, tells_any_other_error_with_its_number) {
  shell.host.openFile = [](const OpenFileRequest&) -> std::optional<std::string> {
    throw RunTimeError{71, "Disk not ready"};
  };
  menu("mnuFileOpenDB").trigger();
  expectOneBox("Error 71 : Disk not ready", "", BoxIcon::none);
}

TEST_F(OpenDb, works_without_the_map) {
  start(MapOpening{folder.file("no_map"), [] { return 1; }});
  script.boxes.clear();
  EXPECT_FALSE(menu("mnuFileOpenTxt").isEnabled());
  store(1);
  openDatabase();
  QTest::keyClick(&grid(), Qt::Key_Return);
  EXPECT_EQ(opened, std::vector<std::string>{"1 at 0 as TB5"});
  expectNoBox();
}

TEST_F(OpenDb, closes_the_database_with_the_window) {
  openDatabase();
  EXPECT_NE(shell.run.DbConn, nullptr);
  menu("mnuFileExit").trigger();
  EXPECT_EQ(shell.run.DbConn, nullptr);
}

}  // namespace
}  // namespace zamo::test
