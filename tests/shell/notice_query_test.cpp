#include "shell/notice_query.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "database/raw_database.h"
#include "platform/run_time_error.h"
#include "shell/pipeline.h"
#include "shell/start_up.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::Script;
using test::TempFolder;
using testing::ElementsAre;
using testing::IsEmpty;
using Keys = std::vector<std::int32_t>;

constexpr const char* kAllNotices =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey FROM fmtv_vorna ORDER by fmtv_vorna.vornakey";
constexpr const char* kContours = "SELECT DISTINCT lmz_contour.contourkey AS ContourKey FROM lmz_contour";

// A working database of three notices and two contours, and a query form, a grid and a screen that write down
// what becomes of them.
class ASelection : public testing::Test {
 protected:
  ASelection() {
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path);
    RawDatabase(path).run(
        "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ) VALUES (83700001, 'F', 'GT1'), "
        "(83700002, 'F', 'GT2'), (83700003, 'F', 'TB5');"
        "INSERT INTO lmz_contour (contourkey, contour_id) VALUES (11, 1), (12, 2)");
    shell.host = makeScriptedHost(script);
    shell.host.setStatus = [this, note = shell.host.setStatus](std::string_view text) {
      note(text);
      events.push_back("status");
    };
    startUp(shell, {});
    shell.forms.showQueryForm = [this] {
      events.push_back("form");
      sqlBeforeForm = shell.run.qrySql;
      shell.run.qrySql = sql;
      shell.run.qryIsNotice = isNotice;
      shell.run.qryConfirmed = !sql.empty();
      if (onForm) onForm();
    };
    shell.forms.bindGrid = [this](const GridRows& rows) {
      events.push_back("bind");
      boundTo = shell.run.qrySql;
      bound.clear();
      for (std::size_t row = 0; row < rows.rowCount(); ++row) bound.emplace_back(rows.text(row, 0));
      boundTitles.clear();
      for (std::size_t i = 0; i < rows.columnCount(); ++i) boundTitles.push_back(rows.title(i));
    };
    shell.forms.detachGrid = [this] {
      events.push_back(shell.run.DbConn != nullptr ? "detach" : "detach without database");
    };
    shell.forms.openNotice = [this](std::int32_t key, std::int32_t idx, const std::string& type) {
      events.push_back("screen");
      opened.push_back({key, idx, type});
      EXPECT_FALSE(shell.screen.gridVisible);
      EXPECT_EQ(script.statuses.back(), "Reading the selected notice from database");
    };
  }

  void openDatabase() {
    script.files.push_back(path);
    mnuFileOpenDB(shell);
  }
  // With the selection of all notices, and everything forgotten that was told on the way.
  void browse() {
    openDatabase();
    EXPECT_TRUE(shell.screen.gridVisible);
    script.statuses.clear();
    events.clear();
  }

  void expectOnlyBox(std::string_view text, std::string_view title, BoxIcon icon = BoxIcon::none) {
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, title);
    EXPECT_EQ(script.boxes[0].icon, icon);
    EXPECT_EQ(script.hourglasses, 0);
  }
  void expectNoBox() {
    EXPECT_EQ(script.boxes.size(), 0U) << script.boxes[0].text;
    EXPECT_THAT(script.questions, IsEmpty());
    EXPECT_EQ(script.hourglasses, 0);
  }
  // Nothing is open, and the window is as after a choice that came to nothing.
  void expectNothingOpened() {
    EXPECT_EQ(shell.run.DbConn, nullptr);
    EXPECT_FALSE(shell.screen.inputVisible);
    EXPECT_FALSE(shell.screen.queryEnabled);
    EXPECT_FALSE(shell.screen.txtDbEnabled);
    EXPECT_FALSE(shell.screen.gridVisible);
    EXPECT_THAT(events, IsEmpty());
    EXPECT_THAT(script.statuses, IsEmpty());
    EXPECT_EQ(script.repaints, 1) << "with the name of the file";
  }

  struct Opened {
    std::int32_t key;
    std::int32_t idx;
    std::string type;
    bool operator==(const Opened&) const = default;
  };

  TempFolder folder;
  std::string path = folder.file("working.mdb");
  Script script;
  Shell shell;

  std::string sql = kAllNotices;  // the form's; empty: Cancel
  bool isNotice = true;
  std::function<void()> onForm;

  std::string sqlBeforeForm;
  std::string boundTo;
  std::vector<std::string> bound;  // the first column of the rows
  std::vector<std::string> boundTitles;
  std::vector<std::string> events;
  std::vector<Opened> opened;
};

// --- opening a database

TEST_F(ASelection, of_an_opened_database_is_shown_and_counted) {
  openDatabase();
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, "c:\\");
  EXPECT_EQ(script.fileRequests[0].filter, "Microsoft Access Database (*.mdb)|*.mdb|");
  EXPECT_EQ(shell.run.DbFileName, path);
  EXPECT_EQ(shell.screen.fileName, "DATABASE FILE: " + path);
  EXPECT_EQ(shell.run.ValLevel, 3);
  EXPECT_EQ(shell.run.startTime, "9:5:4");
  EXPECT_EQ(shell.run.fileTime, "9:5:4");
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_THAT(script.statuses,
              ElementsAre("Retrieving the data ... Please be patient", "Number of records : 3",
                          "Sucessfully opened the database - Number of notices : 3"));
  EXPECT_THAT(events, ElementsAre("form", "status", "bind", "status", "status"));
  EXPECT_TRUE(shell.screen.inputVisible);
  EXPECT_TRUE(shell.screen.statusVisible);
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
  expectNoBox();
}

TEST_F(ASelection, is_asked_for_before_the_export_commands_are_there) {
  onForm = [this] {
    EXPECT_TRUE(shell.screen.queryEnabled);
    EXPECT_FALSE(shell.screen.txtDbEnabled);
    EXPECT_FALSE(shell.screen.gridVisible);
    EXPECT_FALSE(shell.screen.statusVisible);
  };
  openDatabase();
  EXPECT_TRUE(shell.screen.txtDbEnabled);
}

TEST_F(ASelection, begins_in_the_working_directory) {
  shell.run.WorkDir = folder.path();
  mnuFileOpenDB(shell);
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, folder.path());
}

TEST_F(ASelection, is_not_made_when_the_choice_of_a_database_is_cancelled) {
  shell.screen.viewFileVisible = true;
  shell.screen.reValVisible = true;
  shell.screen.fileName = "before";
  mnuFileOpenDB(shell);
  EXPECT_EQ(shell.run.ValLevel, 3);
  EXPECT_EQ(shell.run.DbFileName, "");
  EXPECT_EQ(shell.screen.fileName, "before");
  EXPECT_TRUE(shell.screen.inputVisible);
  EXPECT_FALSE(shell.screen.viewFileVisible);
  EXPECT_FALSE(shell.screen.reValVisible);
  EXPECT_FALSE(shell.screen.statusVisible);
  EXPECT_FALSE(shell.screen.queryEnabled);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_THAT(script.statuses, IsEmpty());
  expectNoBox();
}

TEST_F(ASelection, ends_with_its_database_when_another_one_is_chosen) {
  browse();
  mnuFileOpenDB(shell);
  EXPECT_THAT(events, ElementsAre("detach"));
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_FALSE(shell.screen.gridVisible);
  EXPECT_FALSE(shell.screen.statusVisible);
  EXPECT_FALSE(shell.screen.queryEnabled);
  EXPECT_FALSE(shell.screen.txtDbEnabled);
  expectNoBox();
}

TEST_F(ASelection, ends_with_its_database_when_a_notice_file_is_chosen) {
  browse();
  EXPECT_FALSE(chooseNoticeFile(shell));
  EXPECT_THAT(events, ElementsAre("detach"));
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_FALSE(shell.screen.gridVisible);
}

TEST_F(ASelection, is_not_made_of_the_full_reference_database) {
  RawDatabase(path).run("CREATE TABLE lmz_aux_border_contour (a INTEGER)");
  openDatabase();
  expectOnlyBox(
      "Error : You must first create a working database by extracting the necessary data from this database. "
      "\r\nThis can be done using the tool 'Data Query and Extraction'\r\nand then you may open the "
      "extracted database with this tool",
      "Error in Reading Database", BoxIcon::information);
  expectNothingOpened();
}

TEST_F(ASelection, is_not_made_of_an_old_database) {
  RawDatabase(path).run("DROP TABLE addr_code");
  openDatabase();
  expectOnlyBox(
      "Addr_code and Op_agcy tables have been added to the database. Please get the latest database "
      "version. ",
      "Old Database Structure");
  expectNothingOpened();
}

TEST_F(ASelection, is_not_made_of_a_file_that_is_no_database) {
  path = folder.write("text.mdb", "no database at all, but long enough to be looked at by the engine");
  openDatabase();
  expectOnlyBox("Erreur 26:file is not a database", "OpenDB");
  expectNothingOpened();
}

TEST_F(ASelection, is_not_made_when_the_dialog_fails) {
  shell.host.openFile = [this](const OpenFileRequest&) -> std::optional<std::string> {
    shell.host.setHourglass(true);
    throw RunTimeError{71, "Disk not ready"};
  };
  mnuFileOpenDB(shell);
  expectOnlyBox("Error 71 : Disk not ready", "");
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ASelection, that_cannot_be_bound_is_told_as_an_error_of_the_command) {
  shell.forms.bindGrid = [](const GridRows&) { throw RunTimeError{11, "database disk image is malformed"}; };
  openDatabase();
  expectOnlyBox("Error 11 : database disk image is malformed", "");
  EXPECT_FALSE(shell.screen.gridVisible);
}

TEST_F(ASelection, after_open_db_is_followed_by_a_revalidation_at_level_3) {
  shell.run.NtcFileName = folder.write("a.txt",
                                       "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
                                       "<NOTICE>\r\nt_notice_type = TB5\r\n</NOTICE>\r\n"
                                       "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n");
  shell.run.ValLevel = kBasic;
  browse();
  ButtonReVal(shell);
  EXPECT_THAT(events.front(), "detach");
  EXPECT_THAT(script.statuses,
              testing::Contains("Complete validation with Geographic validation : Notice no : 1"));
}

// --- the query

TEST_F(ASelection, that_is_cancelled_leaves_the_database_open_and_no_grid) {
  sql.clear();
  openDatabase();
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
  EXPECT_FALSE(shell.screen.gridVisible);
  EXPECT_FALSE(shell.screen.statusVisible);
  EXPECT_THAT(events, ElementsAre("form"));
  EXPECT_THAT(script.statuses, IsEmpty());
  expectNoBox();
}

TEST_F(ASelection, of_notices_has_their_keys_in_the_order_of_its_statement) {
  sql = "SELECT vornakey AS VornaKey FROM fmtv_vorna ORDER by vornakey DESC";
  shell.run.GridListsContours = true;
  openDatabase();
  EXPECT_EQ(shell.run.IndexList, (Keys{83700003, 83700002, 83700001}));
  EXPECT_EQ(shell.run.NtcCount, 3);
  EXPECT_FALSE(shell.run.GridListsContours);
  EXPECT_EQ(boundTo, sql);
  EXPECT_THAT(bound, ElementsAre("83700003", "83700002", "83700001"));
  EXPECT_THAT(boundTitles, ElementsAre("VornaKey"));
}

TEST_F(ASelection, of_contours_has_their_keys) {
  sql = kContours;
  isNotice = false;
  openDatabase();
  EXPECT_EQ(shell.run.IndexList, (Keys{11, 12}));
  EXPECT_EQ(shell.run.NtcCount, 2);
  EXPECT_TRUE(shell.run.GridListsContours);
  EXPECT_EQ(boundTo, kContours);
  EXPECT_THAT(bound, ElementsAre("11", "12"));
  expectNoBox();
}

TEST_F(ASelection, is_made_under_the_hourglass_and_shown_under_the_usual_pointer) {
  onForm = [this] { EXPECT_EQ(script.hourglasses, 1); };
  shell.forms.bindGrid = [this](const GridRows&) { EXPECT_EQ(script.hourglasses, 0); };
  openDatabase();
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(ASelection, of_the_last_query_is_not_taken_for_one_that_nobody_made) {
  browse();
  shell.forms.showQueryForm = [] {};
  runQuery(shell);
  EXPECT_EQ(shell.run.qrySql, "");
  EXPECT_FALSE(shell.run.qryConfirmed);
  EXPECT_THAT(events, IsEmpty());
  EXPECT_THAT(script.statuses, IsEmpty());
}

TEST_F(ASelection, that_the_engine_refuses_is_told_once_and_gives_an_empty_grid) {
  sql = "SELECT vornakey FROM fmtv_vorna WHERE d_updated > #02/31/2005#";
  openDatabase();
  expectOnlyBox("Erreur 1:Syntax error in date #02/31/2005#", "getVornaKeyList");
  EXPECT_EQ(boundTo, "");
  EXPECT_THAT(bound, IsEmpty());
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_EQ(shell.run.NtcCount, 0);
  EXPECT_THAT(script.statuses,
              ElementsAre("Retrieving the data ... Please be patient", "Number of records : 0",
                          "Sucessfully opened the database - Number of notices : 0"));
}

TEST_F(ASelection, with_a_row_that_has_no_key_is_told_and_gives_an_empty_grid) {
  sql = "SELECT vornakey FROM (SELECT vornakey FROM fmtv_vorna UNION ALL SELECT NULL)";
  openDatabase();
  expectOnlyBox("Erreur 13:Type mismatch", "getVornaKeyList");
  EXPECT_THAT(bound, IsEmpty());
  EXPECT_EQ(shell.run.NtcCount, 0);
}

TEST_F(ASelection, shows_the_rows_as_the_screen_left_them) {
  browse();
  shell.forms.openNotice = [this](std::int32_t, std::int32_t, const std::string&) {
    RawDatabase(path).run("DELETE FROM fmtv_vorna WHERE vornakey = 83700002");
  };
  openGridRow(shell, GridRow{83700002, "GT2"});
  EXPECT_THAT(bound, ElementsAre("83700001", "83700003"));
}

TEST_F(ASelection, that_is_refused_is_not_counted_as_the_one_before) {
  browse();
  sql = "SELECT vornakey FROM none";
  mnuQueryNew(shell);
  expectOnlyBox("Erreur 1:no such table: none", "getVornaKeyList");
  EXPECT_EQ(shell.run.NtcCount, 0);
  EXPECT_EQ(boundTo, "");
  EXPECT_EQ(script.statuses.back(), "Number of records : 0");
}

TEST_F(ASelection, of_contours_that_the_engine_refuses_is_told_once_too) {
  sql = "SELECT contourkey FROM lmz_contour WHERE ";
  isNotice = false;
  openDatabase();
  expectOnlyBox("Erreur 1:incomplete input", "getContourKeyList");
  EXPECT_EQ(boundTo, "");
}

TEST_F(ASelection, made_anew_replaces_the_one_before) {
  browse();
  sql = "SELECT vornakey AS VornaKey FROM fmtv_vorna WHERE notice_typ = 'GT2'";
  onForm = [this] {
    EXPECT_FALSE(shell.screen.gridVisible);
    EXPECT_FALSE(shell.screen.statusVisible);
    EXPECT_NE(shell.run.DbConn, nullptr);
  };
  mnuQueryNew(shell);
  EXPECT_EQ(sqlBeforeForm, "");
  EXPECT_THAT(events, ElementsAre("detach", "form", "status", "bind", "status"));
  EXPECT_EQ(shell.run.IndexList, Keys{83700002});
  EXPECT_EQ(shell.run.NtcCount, 1);
  EXPECT_THAT(script.statuses,
              ElementsAre("Retrieving the data ... Please be patient", "Number of records : 1"));
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_TRUE(shell.screen.statusVisible);
  expectNoBox();
}

TEST_F(ASelection, that_is_cancelled_the_second_time_leaves_no_grid) {
  browse();
  sql.clear();
  mnuQueryNew(shell);
  EXPECT_THAT(events, ElementsAre("detach", "form"));
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_FALSE(shell.screen.gridVisible);
  EXPECT_FALSE(shell.screen.statusVisible);
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
}

TEST_F(ASelection, is_not_asked_for_without_a_database) {
  try {
    mnuQueryNew(shell);
    ADD_FAILURE() << "not refused";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number, 5);
    EXPECT_EQ(error.text, "No database is open");
  }
  EXPECT_THAT(events, IsEmpty());
  expectNoBox();
}

TEST_F(ASelection, fixes_the_columns_of_its_shape) {
  struct Case {
    bool isNotice, GT1, GT2, GS1, GS2;
    int columns;
  };
  const Case cases[] = {
      {false, false, false, false, false, 5}, {false, true, true, true, true, 5},
      {true, true, false, false, false, 9},   {true, false, false, true, false, 9},
      {true, true, false, true, false, 9},    {true, false, true, false, false, 7},
      {true, false, false, false, true, 7},   {true, false, true, false, true, 7},
      {true, true, true, false, false, 10},   {true, false, true, true, false, 10},
      {true, true, true, true, true, 10},     {true, false, false, false, false, 10},
  };
  for (const Case& one : cases) {
    RunState run;
    run.qryIsNotice = one.isNotice;
    run.QryGT1 = one.GT1;
    run.QryGT2 = one.GT2;
    run.QryGS1 = one.GS1;
    run.QryGS2 = one.GS2;
    EXPECT_EQ(fixedColumnCount(run), one.columns) << one.isNotice << one.GT1 << one.GT2 << one.GS1 << one.GS2;
  }
}

// --- a row of the grid

TEST_F(ASelection, hands_the_notice_of_a_row_to_its_screen_and_comes_back) {
  browse();
  shell.screen.viewFileVisible = true;
  shell.screen.reValVisible = true;
  openGridRow(shell, GridRow{83700002, "GT2"});
  EXPECT_THAT(opened, ElementsAre(Opened{83700002, 1, "GT2"}));
  EXPECT_EQ(shell.run.SelKey, 83700002);
  EXPECT_EQ(shell.run.IndexPos, 1);
  EXPECT_THAT(events, ElementsAre("detach", "status", "screen", "bind", "status"));
  EXPECT_EQ(boundTo, kAllNotices);
  EXPECT_THAT(script.statuses, ElementsAre("Reading the selected notice from database",
                                           "Database was sucessfully updated - Number of notices : 3"));
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_FALSE(shell.screen.viewFileVisible);
  EXPECT_FALSE(shell.screen.reValVisible);
  expectNoBox();
}

TEST_F(ASelection, of_contours_opens_every_row_as_ga1) {
  sql = kContours;
  isNotice = false;
  browse();
  openGridRow(shell, GridRow{12, "F"});
  EXPECT_THAT(opened, ElementsAre(Opened{12, 1, "GA1"}));
  expectNoBox();
}

TEST_F(ASelection, finds_the_first_of_equal_keys) {
  browse();
  shell.run.IndexList = {4, 83700001, 7, 83700001};
  shell.run.NtcCount = 4;
  openGridRow(shell, GridRow{83700001, "GT1"});
  EXPECT_THAT(opened, ElementsAre(Opened{83700001, 1, "GT1"}));
}

TEST_F(ASelection, whose_list_lost_the_key_of_a_row_says_so_and_comes_back) {
  browse();
  shell.run.IndexList[1] = kDeletedKey;
  const Keys before = shell.run.IndexList;
  openGridRow(shell, GridRow{83700002, "GT2"});
  expectOnlyBox("Index list corrupted", "Index error", BoxIcon::exclamationAndInformation);
  EXPECT_THAT(opened, IsEmpty());
  EXPECT_THAT(events, ElementsAre("detach", "status", "bind"));
  EXPECT_EQ(boundTo, kAllNotices);
  EXPECT_EQ(shell.run.IndexList, before);
  EXPECT_EQ(shell.run.NtcCount, 3);
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_THAT(script.statuses, ElementsAre("Reading the selected notice from database"));
}

TEST_F(ASelection, that_counts_no_notice_has_no_key) {
  shell.run.IndexList = {83700001};
  shell.run.SelKey = 83700001;
  shell.run.NtcCount = 0;
  EXPECT_EQ(findNtcIndex(shell.run), 999999999);
  shell.run.NtcCount = 1;
  EXPECT_EQ(findNtcIndex(shell.run), 0);
  shell.run.SelKey = 8370000;
  EXPECT_EQ(findNtcIndex(shell.run), 999999999);
}

TEST_F(ASelection, without_a_row_has_nothing_to_open_though_the_database_holds_notices) {
  sql = "SELECT vornakey AS VornaKey FROM fmtv_vorna WHERE adm = 'D'";
  browse();
  EXPECT_EQ(shell.run.NtcCount, 0);
  EXPECT_THAT(bound, IsEmpty());
  EXPECT_THAT(boundTitles, ElementsAre("VornaKey"));
  openGridRow(shell, {});
  expectOnlyBox("No notices in the database", "Database is Empty", BoxIcon::exclamationAndInformation);
  EXPECT_THAT(opened, IsEmpty());
  EXPECT_THAT(events, IsEmpty());
  EXPECT_TRUE(shell.screen.gridVisible);
}

TEST_F(ASelection, without_a_row_leaves_the_two_buttons_as_they_are) {
  browse();
  shell.screen.viewFileVisible = true;
  shell.screen.reValVisible = true;
  openGridRow(shell, {});
  EXPECT_TRUE(shell.screen.viewFileVisible);
  EXPECT_TRUE(shell.screen.reValVisible);
}

}  // namespace
}  // namespace zamo
