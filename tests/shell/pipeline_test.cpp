#include "shell/pipeline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "database/recordset.h"
#include "platform/files.h"
#include "platform/run_time_error.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;
using test::Script;
using test::TempFolder;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kGoodFile =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = TB5\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";
constexpr std::string_view kBadStructure =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n<TAIL>\r\nt_num_notices = 0\r\n</TAIL>\r\n";
constexpr std::string_view kBadValue =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = TB9\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";

class Pipeline : public testing::Test {
 protected:
  Pipeline() {
    shell.host = makeScriptedHost(script);
    shell.screen.viewFileVisible = false;
    shell.screen.reValVisible = false;
    shell.screen.queryEnabled = false;
    shell.screen.txtDbEnabled = false;
  }

  std::string choose(std::string_view name, std::string_view content) {
    script.files.push_back(folder.write(name, content));
    return script.files.back();
  }

  Script script;
  TempFolder folder;
  Shell shell;
};

TEST_F(Pipeline, a_file_with_sound_values_leaves_no_report_and_enables_the_menus) {
  choose("good.txt", kGoodFile);
  runTextCommand(shell, kBasic);
  EXPECT_FALSE(std::filesystem::exists(folder.file("good_val_outcome.txt")));
  EXPECT_THAT(script.viewed, IsEmpty());
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
  EXPECT_FALSE(shell.screen.viewFileVisible);
  EXPECT_FALSE(shell.screen.reValVisible);
  EXPECT_THAT(script.statuses, ElementsAre("Checking the File format. Please be patient....",
                                           "Basic validation is running. Please be patient....",
                                           "Notice no : 1", "Creating database structure",
                                           "Reading and writing to the database", "Notice no : 1"));
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Pipeline, a_failed_structure_check_reports_its_text_alone) {
  const std::string file = choose("bad.txt", kBadStructure);
  runTextCommand(shell, kCompleteWithGeo);
  EXPECT_EQ(readFile(folder.file("bad_val_outcome.txt")),
            "Number of Notice sections found : 0\r\n" + file +
                " : ERROR : An electronic notice should have \r\n at least ONE <NOTICE> section\r\n\r\n");
  EXPECT_THAT(script.viewed, ElementsAre(folder.file("bad_val_outcome.txt")));
  EXPECT_EQ(script.statuses.back(), "File format has errors. Please correct and re-validate to proceed");
  EXPECT_TRUE(shell.screen.viewFileVisible);
  EXPECT_TRUE(shell.screen.reValVisible);
  EXPECT_FALSE(shell.screen.queryEnabled);
  EXPECT_FALSE(shell.screen.txtDbEnabled);
  EXPECT_EQ(shell.run.ValLevel, 3);
}

TEST_F(Pipeline, a_failed_basic_validation_reports_behind_the_five_header_items) {
  choose("bad.txt", kBadValue);
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_EQ(
      readFile(folder.file("bad_val_outcome.txt")),
      "The input file has been validated with  LMZ Zamo HDLK Digital Version 3.07 / 13.01.2006\r\n"
      "On 2026-03-07 -  09:05:04 by tester\r\n"
      " \r\n"
      "Basic Validation error(s)\r\n"
      "Notice No : 1 : Error : Line No : 5  t_notice_type : Acceptables values are {GS1, GT1, GS2, GT2, GA1, "
      "TB2, TB3, TB5}\r\n"
      "\r\n");
  EXPECT_THAT(script.viewed, ElementsAre(folder.file("bad_val_outcome.txt")));
  EXPECT_EQ(script.statuses.back(), "Basic validation has errors. Please correct and re-validate to proceed");
  EXPECT_TRUE(shell.screen.viewFileVisible);
  EXPECT_TRUE(shell.screen.reValVisible);
  EXPECT_FALSE(shell.screen.queryEnabled);
  EXPECT_FALSE(shell.screen.txtDbEnabled);
}

// A TB5 that passes as text and meets every rule.
constexpr std::string_view kGoodNotice =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = TB5\r\nt_fragment = KV19D\r\nt_action = SUPPRESS\r\nt_trg_adm_ref_id = "
    "A1\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";

TEST_F(Pipeline, complete_validation_without_findings_leaves_no_report_and_hides_the_buttons) {
  choose("good.txt", kGoodNotice);
  shell.screen.viewFileVisible = true;
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_FALSE(std::filesystem::exists(folder.file("good_val_outcome.txt")));
  EXPECT_FALSE(shell.screen.viewFileVisible);
  EXPECT_FALSE(shell.screen.reValVisible);
  EXPECT_THAT(script.boxes, IsEmpty());
  EXPECT_THAT(
      script.statuses,
      ElementsAre("Checking the File format. Please be patient....",
                  "Basic validation is running. Please be patient....", "Notice no : 1",
                  "Complete validation without geo coordinates is running. Please be patient....",
                  "Complete validation without Geographic validation : Notice no : 1",
                  "Creating database structure", "Reading and writing to the database", "Notice no : 1"));
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Pipeline, complete_validation_reports_behind_two_lines_and_keeps_the_menus_enabled) {
  choose("bad.txt", kGoodFile);
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_EQ(
      readFile(folder.file("bad_val_outcome.txt")),
      "Basic Validation OK\r\n"
      "Complete Validation WITHOUT the validation of the geographical coordination against the GZMP\r\n"
      "FATAL ERROR : \r\n"
      "Notice No : 1 at line number : 4 : Trg_Admin_ref_id =  :  t_action is a mandatory value\r\n"
      "FATAL ERROR : \r\n"
      "Notice No : 1 at line number : 4 : Trg_Admin_ref_id =  :  t_fragment is a mandatory value\r\n"
      "FATAL ERROR : \r\n"
      "Notice No : 1 at line number : 4 : Trg_Admin_ref_id =  : t_trg_adm_ref_id is a mandatory value\r\n"
      "\r\n"
      "\r\n");
  EXPECT_THAT(script.viewed, ElementsAre(folder.file("bad_val_outcome.txt")));
  EXPECT_THAT(script.statuses, Contains("Complete validation without geo coordinates has error(s)."));
  // It is loaded all the same, to be corrected on screen.
  EXPECT_TRUE(std::filesystem::exists(folder.file("bad.mdb")));
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_TRUE(shell.screen.viewFileVisible);
  EXPECT_TRUE(shell.screen.reValVisible);
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
}

TEST_F(Pipeline, the_third_level_asks_the_map_and_leaves_a_blank_line_in_its_report) {
  // A map on which everything is sea, and far from any country.
  shell.map.gzmp.gzmpParseCoords = [](const std::string&) { return GzmpPoint{}; };
  shell.map.gzmp.gzmpLoadMapAround = [](const GzmpPoint&, float) {};
  shell.map.gzmp.gzmpCountryAtPoint = [](const GzmpPoint&) { return std::string("   "); };
  shell.map.gzmp.gzmpNearestCountries = [](const GzmpPoint&, float, int, const std::string&, int) {
    return GzmpNearest{};
  };
  shell.map.gzmp.gzmpFindCrossings = [](const std::vector<GzmpPoint>&) { return GzmpCrossings{}; };
  std::string points;
  for (const char* lat : {"+485000", "+485100", "+485200"}) {
    points += "<POINT>\r\nt_long = +0021000\r\nt_lat = " + std::string(lat) + "\r\n</POINT>\r\n";
  }
  choose(
      "contour.txt",
      "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n<NOTICE>\r\nt_notice_type = GA1\r\nt_action = ADD\r\nt_ctry = F\r\n"
      "t_contour_id = 7\r\nt_nb_test_pts = 3\r\n" +
          points + "</NOTICE>\r\n<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n");
  runTextCommand(shell, kCompleteWithGeo);
  const std::string line =
      "FATAL ERROR : \r\nNotice No : 1 at line number : 4 : Contour_id = 7 : t_long : +0021000 t_lat : ";
  const std::string remark = " are not in F according to the MN's GZMP\r\n";
  EXPECT_EQ(readFile(folder.file("contour_val_outcome.txt")),
            "Basic Validation OK\r\n"
            "Complete Validation WITH validation of the geographical coordination against the GZMP\r\n"
            " \r\n" +
                line + "+485000" + remark + line + "+485100" + remark + line + "+485200" + remark +
                "\r\n\r\n");
  EXPECT_THAT(script.statuses,
              Contains("Complete validation with validation of the geo coordinates is running. Please "
                       "be patient...."));
  EXPECT_THAT(script.statuses, Contains("Complete validation with Geographic validation : Notice no : 1"));
  EXPECT_THAT(script.statuses, Contains("Complete validation with geo coordinates has error(s)."));
  EXPECT_TRUE(shell.screen.reValVisible);
  EXPECT_TRUE(std::filesystem::exists(folder.file("contour.mdb")));
}

TEST_F(Pipeline, a_file_of_bad_values_never_reaches_complete_validation) {
  choose("bad.txt", kBadValue);
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_EQ(script.statuses.back(), "Basic validation has errors. Please correct and re-validate to proceed");
}

// Basic validation lets all of them pass: the head behind a notice wipes out what was found in it.
TEST_F(Pipeline, an_error_that_the_content_makes_before_any_finding_leaves_the_heading_alone) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"t_notice_type = GA1\r\n<POINT>\r\nt_long = +0021000\r\n</POINT>\r\n",
       "Erreur 9:Subscript out of range"},
      {"t_notice_type = GA1\r\nt_nb_test_pts = 40000\r\n", "Erreur 6:Overflow"},
      {"t_notice_type = TB3\r\nt_d_inuse = soon\r\nt_d_expiry = 2026-01-01\r\n", "Erreur 13:Type mismatch"},
  };
  shell.run.ValLevel = kCompleteWithoutGeo;
  for (const auto& [body, text] : cases) {
    SCOPED_TRACE(text);
    script.boxes.clear();
    script.viewed.clear();
    shell.run.NtcFileName =
        folder.write("early.txt", std::string("<NOTICE>\r\n")
                                      .append(body)
                                      .append("</NOTICE>\r\n<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
                                              "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n"));
    const Verdict verdict = judgeFile(shell);
    EXPECT_EQ(verdict.failedAt, Stage::complete);
    EXPECT_TRUE(verdict.mayLoad);
    EXPECT_EQ(verdict.report, folder.file("early_val_outcome.txt"));
    EXPECT_EQ(
        readFile(folder.file("early_val_outcome.txt")),
        "Basic Validation OK\r\n"
        "Complete Validation WITHOUT the validation of the geographical coordination against the GZMP\r\n"
        "\r\n");
    EXPECT_THAT(script.viewed, ElementsAre(folder.file("early_val_outcome.txt")));
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, "Backend Validation");
    std::filesystem::remove(folder.file("early_val_outcome.txt"));
  }
}

TEST_F(Pipeline, an_administration_with_a_quote_breaks_the_lookup_and_ends_the_stage_with_its_box) {
  shell.run.NtcFileName = folder.write("quote.txt",
                                       "<HEAD>\r\nt_adm = F'\r\n</HEAD>\r\n"
                                       "<NOTICE>\r\nt_notice_type = TB2\r\nt_addr_code = A\r\n</NOTICE>\r\n"
                                       "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n");
  shell.run.ValLevel = kCompleteWithoutGeo;
  const Verdict verdict = judgeFile(shell);
  EXPECT_EQ(verdict.failedAt, Stage::complete);
  EXPECT_TRUE(verdict.machineFailed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Backend Validation");
}

TEST_F(Pipeline, a_file_that_fails_its_checks_is_not_loaded) {
  choose("bad.txt", kBadValue);
  runTextCommand(shell, kBasic);
  EXPECT_FALSE(std::filesystem::exists(folder.file("bad.mdb")));
  choose("bad.txt", kBadStructure);
  runTextCommand(shell, kBasic);
  EXPECT_FALSE(std::filesystem::exists(folder.file("bad.mdb")));
}

TEST_F(Pipeline, a_loaded_file_is_named_as_one_and_its_database_stays_open) {
  const std::string file = choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  EXPECT_EQ(shell.screen.fileName, "TEXT FILE : " + file);
  EXPECT_EQ(shell.run.DbFileName, folder.file("good.mdb"));
  ASSERT_NE(shell.run.DbConn, nullptr);
  Recordset rows("SELECT adm_ref_id, adm FROM fmtv_vorna", *shell.run.DbConn);
  ASSERT_EQ(rows.RecordCount(), 1);
  EXPECT_EQ(rows.value("adm_ref_id"), "A1");
  EXPECT_EQ(rows.value("adm"), "F");
}

// What a query form would do that is left by OK, with a selection of one notice.
void confirmOneNotice(Shell& shell) {
  shell.run.qrySql = "SELECT vornakey FROM fmtv_vorna WHERE adm_ref_id = 'A1'";
  shell.run.qryIsNotice = true;
  shell.run.qryConfirmed = true;
}

TEST_F(Pipeline, a_confirmed_query_behind_the_load_counts_what_it_selects_and_not_what_was_loaded) {
  int shown = 0;
  shell.forms.showQueryForm = [&] {
    ++shown;
    EXPECT_NE(shell.run.DbConn, nullptr);
    EXPECT_EQ(shell.screen.fileName, "TEXT FILE : " + folder.file("two.txt"));
    EXPECT_TRUE(shell.screen.queryEnabled);
    EXPECT_TRUE(shell.screen.txtDbEnabled);
    EXPECT_FALSE(shell.screen.gridVisible);
    confirmOneNotice(shell);
  };
  std::string two(kGoodNotice);
  two.replace(two.find("<TAIL>"), std::string::npos,
              "<NOTICE>\r\nt_notice_type = TB5\r\nt_fragment = KV19D\r\nt_action = SUPPRESS\r\n"
              "t_trg_adm_ref_id = A2\r\n</NOTICE>\r\n<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n");
  choose("two.txt", two);
  runTextCommand(shell, kBasic);
  EXPECT_EQ(shown, 1);
  ASSERT_GE(script.statuses.size(), 4U);
  EXPECT_THAT(
      std::vector<std::string>(script.statuses.end() - 4, script.statuses.end()),
      ElementsAre("Notice no : 2", "Retrieving the data ... Please be patient", "Number of records : 1",
                  "Written sucessfully to the database - Number of notices : 1"));
  EXPECT_TRUE(shell.screen.gridVisible);
  EXPECT_THAT(script.boxes, IsEmpty());
}

TEST_F(Pipeline, a_cancelled_query_behind_the_load_leaves_the_database_open_and_no_grid) {
  int shown = 0;
  shell.forms.showQueryForm = [&] { ++shown; };
  shell.run.qrySql = "SELECT vornakey FROM fmtv_vorna";
  shell.run.qryConfirmed = true;
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  EXPECT_EQ(shown, 1);
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_TRUE(shell.screen.queryEnabled);
  EXPECT_TRUE(shell.screen.txtDbEnabled);
  EXPECT_FALSE(shell.screen.gridVisible);
  EXPECT_EQ(script.statuses.back(), "Notice no : 1");
}

TEST_F(Pipeline, findings_of_complete_validation_stay_in_sight_over_the_loaded_selection) {
  shell.forms.showQueryForm = [this] { confirmOneNotice(shell); };
  choose("bad.txt", kGoodFile);
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_THAT(script.viewed, ElementsAre(folder.file("bad_val_outcome.txt")));
  EXPECT_EQ(script.statuses.back(), "Written sucessfully to the database - Number of notices : 0");
  EXPECT_TRUE(shell.screen.viewFileVisible);
  EXPECT_TRUE(shell.screen.reValVisible);
}

TEST_F(Pipeline, the_query_form_is_not_shown_where_no_database_was_made) {
  int shown = 0;
  shell.forms.showQueryForm = [&] { ++shown; };
  std::filesystem::create_directories(folder.file("good.mdb/kept"));
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  EXPECT_EQ(shell.run.DbConn, nullptr);
  EXPECT_EQ(shown, 0);
  EXPECT_EQ(script.boxes.size(), 1U);
}

TEST_F(Pipeline, a_load_that_ends_early_is_followed_by_the_query_of_what_was_loaded) {
  shell.forms.showQueryForm = [this] { confirmOneNotice(shell); };
  // The reader of the second notice stops at its number of test points.
  std::string two(kGoodNotice);
  two.replace(two.find("<TAIL>"), std::string::npos,
              "<NOTICE>\r\nt_notice_type = GA1\r\nt_nb_test_pts = -1\r\n</NOTICE>\r\n"
              "<TAIL>\r\nt_num_notices = 2\r\n</TAIL>\r\n");
  shell.run.NtcFileName = folder.write("two.txt", two);
  Verdict verdict;
  createAndLoadDb(shell, verdict);
  EXPECT_EQ(verdict.failedAt, Stage::load);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "readNtcsFromFileToDB");
  EXPECT_EQ(script.statuses.back(), "Written sucessfully to the database - Number of notices : 1");
}

TEST_F(Pipeline, the_grid_lets_go_of_an_open_database_before_the_load) {
  std::vector<const Connection*> detachedFrom;
  shell.forms.detachGrid = [&] { detachedFrom.push_back(shell.run.DbConn.get()); };
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  EXPECT_THAT(detachedFrom, IsEmpty());
  std::filesystem::copy_file(folder.file("good.mdb"), folder.file("other.mdb"));
  const Connection* const open =
      (shell.run.DbConn = std::make_unique<Connection>(folder.file("other.mdb"))).get();
  Verdict verdict;
  createAndLoadDb(shell, verdict);
  EXPECT_THAT(detachedFrom, ElementsAre(open));
  EXPECT_TRUE(verdict.passed());
}

TEST_F(Pipeline, an_error_of_the_query_behind_the_load_is_told_under_its_stage) {
  shell.forms.showQueryForm = [this] { confirmOneNotice(shell); };
  shell.forms.bindGrid = [](const GridRows&) { throw RunTimeError{11, "database disk image is malformed"}; };
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 11:database disk image is malformed");
  EXPECT_EQ(script.boxes[0].title, "createAndLoadDb");
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Pipeline, a_second_run_replaces_the_working_database_without_a_question) {
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  shell.run.DbConn->BeginTrans();
  Recordset rows("SELECT * FROM fmtv_vorna", *shell.run.DbConn);
  rows.Collect("adm_ref_id", "CORRECTED");
  rows.Update();
  shell.run.DbConn->CommitTrans();
  ButtonReVal(shell);
  EXPECT_EQ(Recordset("SELECT adm_ref_id FROM fmtv_vorna", *shell.run.DbConn).value(0), "A1");
  EXPECT_THAT(script.questions, IsEmpty());
  EXPECT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(shell.screen.fileName, "TEXT FILE : " + folder.file("good.txt"));
}

TEST_F(Pipeline, a_database_that_cannot_be_replaced_is_told_and_left_as_it_is) {
  std::filesystem::create_directories(folder.file("good.mdb/kept"));
  shell.run.NtcFileName = folder.write("good.txt", kGoodNotice);
  shell.run.ValLevel = kBasic;
  const Verdict verdict = judgeAndLoadFile(shell);
  EXPECT_EQ(verdict.failedAt, Stage::load);
  EXPECT_TRUE(verdict.machineFailed);
  EXPECT_EQ(shell.run.DbConn, nullptr);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Error 70 : Permission denied: " + folder.file("good.mdb"));
  EXPECT_TRUE(std::filesystem::exists(folder.file("good.mdb/kept")));
}

TEST_F(Pipeline, an_old_database_is_not_added_to_when_the_template_cannot_be_copied) {
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  std::filesystem::permissions(folder.file("good.mdb"), std::filesystem::perms::owner_read);
  ButtonReVal(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Error 70 : Permission denied: " + folder.file("good.mdb"));
  EXPECT_EQ(shell.run.DbConn, nullptr);
  Connection kept(folder.file("good.mdb"));
  EXPECT_EQ(Recordset("SELECT * FROM fmtv_vorna", kept).RecordCount(), 1);
}

TEST_F(Pipeline, a_database_that_another_program_has_open_is_left_to_it) {
  choose("good.txt", kGoodNotice);
  runTextCommand(shell, kBasic);
  closeDB(shell.run.DbConn);
  Connection elsewhere(folder.file("good.mdb"));
  elsewhere.BeginTrans();
  Recordset rows("SELECT * FROM fmtv_vorna", elsewhere);
  rows.Collect("adm_ref_id", "CORRECTED");
  rows.Update();
  elsewhere.CommitTrans();
  ButtonReVal(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_TRUE(script.boxes[0].text.starts_with(
      "Error 70 : The database is open elsewhere: " + folder.file("good.mdb") + " (shell_test, process " +
      std::to_string(::getpid()) + ", user "))
      << script.boxes[0].text;
  EXPECT_EQ(script.statuses.back(), "Notice no : 1");
  EXPECT_EQ(Recordset("SELECT adm_ref_id FROM fmtv_vorna", elsewhere).value(0), "CORRECTED");
}

TEST_F(Pipeline, a_notice_file_is_never_replaced_by_its_database) {
  shell.run.NtcFileName = folder.write("notices.mdb", kGoodNotice);
  shell.run.ValLevel = kBasic;
  EXPECT_TRUE(judgeAndLoadFile(shell).machineFailed);
  EXPECT_EQ(readFile(folder.file("notices.mdb")), kGoodNotice);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "createAndLoadDb");
}

TEST_F(Pipeline, revalidating_after_a_cancelled_choice_shows_the_status_again) {
  choose("bad.txt", kBadValue);
  runTextCommand(shell, kBasic);
  runTextCommand(shell, kBasic);
  EXPECT_FALSE(shell.screen.statusVisible);
  ButtonReVal(shell);
  EXPECT_TRUE(shell.screen.statusVisible);
}

TEST_F(Pipeline, a_report_replaces_the_old_one_and_a_stale_one_stays_after_a_clean_run) {
  folder.write("a_val_outcome.txt", "old");
  const std::string file = choose("a.txt", kBadValue);
  runTextCommand(shell, kBasic);
  const std::string report = readFile(folder.file("a_val_outcome.txt"));
  EXPECT_EQ(report.find("old"), std::string::npos);
  folder.write("a.txt", kGoodFile);
  ButtonReVal(shell);
  EXPECT_EQ(readFile(folder.file("a_val_outcome.txt")), report);
  EXPECT_FALSE(shell.screen.reValVisible);
  EXPECT_EQ(script.fileRequests.size(), 1U);
}

TEST_F(Pipeline, every_extension_loses_its_last_four_characters) {
  choose("a.upd", kBadValue);
  runTextCommand(shell, kBasic);
  EXPECT_TRUE(std::filesystem::exists(folder.file("a_val_outcome.txt")));
  choose("notice.text", kBadValue);
  runTextCommand(shell, kBasic);
  EXPECT_TRUE(std::filesystem::exists(folder.file("notice._val_outcome.txt")));
}

TEST_F(Pipeline, cancelling_the_dialog_keeps_the_level_and_runs_no_stage) {
  shell.run.WorkDir = "c:\\";
  shell.screen.fileName = "before";
  runTextCommand(shell, kCompleteWithoutGeo);
  EXPECT_EQ(shell.run.ValLevel, 2);
  EXPECT_THAT(script.statuses, IsEmpty());
  EXPECT_EQ(shell.screen.fileName, "before");
  EXPECT_FALSE(shell.screen.statusVisible);
  ASSERT_EQ(script.fileRequests.size(), 1U);
  EXPECT_EQ(script.fileRequests[0].folder, "c:\\");
  EXPECT_EQ(script.fileRequests[0].filter, "Text Files (*.txt)|*.txt|Updated Files (*.upd)|*.upd");
}

TEST_F(Pipeline, choosing_a_file_disables_the_menus_of_the_last_run_and_stamps_the_times) {
  shell.screen.queryEnabled = true;
  shell.screen.txtDbEnabled = true;
  shell.screen.gridVisible = true;
  const std::string file = choose("good.txt", kGoodFile);
  EXPECT_TRUE(chooseNoticeFile(shell));
  EXPECT_FALSE(shell.screen.queryEnabled);
  EXPECT_FALSE(shell.screen.txtDbEnabled);
  EXPECT_FALSE(shell.screen.gridVisible);
  EXPECT_TRUE(shell.screen.inputVisible);
  EXPECT_TRUE(shell.screen.statusVisible);
  EXPECT_EQ(shell.screen.fileName, file);
  EXPECT_EQ(shell.run.NtcFileName, file);
  EXPECT_EQ(shell.run.fileTime, "9:5:4");
}

TEST_F(Pipeline, without_a_viewer_a_box_names_the_report) {
  script.hasViewer = false;
  choose("bad.txt", kBadStructure);
  runTextCommand(shell, kBasic);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text,
            "Cannot find Notepad.exe. The validation report cannot be shown, but is available on " +
                folder.file("bad_val_outcome.txt"));
  EXPECT_EQ(script.boxes[0].title, "Information");
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::information);
}

TEST_F(Pipeline, view_file_shows_the_input_file_and_not_the_report) {
  const std::string file = choose("bad.txt", kBadStructure);
  runTextCommand(shell, kBasic);
  script.viewed.clear();
  ButtonViewFile(shell);
  EXPECT_THAT(script.viewed, ElementsAre(file));
  script.hasViewer = false;
  ButtonViewFile(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Cannot find Notepad.exe. Unable to show the input file");
  EXPECT_EQ(script.boxes[0].title, "Information");
  EXPECT_EQ(script.boxes[0].icon, BoxIcon::information);
}

TEST_F(Pipeline, a_report_that_cannot_be_written_is_told_and_leaves_nothing_half_written) {
  std::filesystem::create_directory(folder.file("bad_val_outcome.txt"));
  shell.run.NtcFileName = folder.write("bad.txt", kBadValue);
  const Verdict verdict = judgeFile(shell);
  EXPECT_EQ(verdict.failedAt, Stage::basic);
  EXPECT_TRUE(verdict.machineFailed);
  EXPECT_EQ(verdict.report, "");
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 70:Permission denied: " + folder.file("bad_val_outcome.txt"));
  EXPECT_EQ(script.boxes[0].title, "checkFormatAndBasic");
  EXPECT_THAT(script.viewed, IsEmpty());
  EXPECT_THAT(folder.names(), ElementsAre("bad.txt", "bad_val_outcome.txt"));
}

TEST_F(Pipeline, a_file_that_vanished_before_revalidation_fails_with_the_box_of_the_structure_check) {
  shell.run.NtcFileName = folder.file("gone.txt");
  ButtonReVal(shell);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 53:File not found: " + folder.file("gone.txt"));
  EXPECT_EQ(script.boxes[0].title, "Validate File format");
  EXPECT_TRUE(shell.screen.reValVisible);
  EXPECT_FALSE(std::filesystem::exists(folder.file("gone_val_outcome.txt")));
  EXPECT_THAT(script.viewed, IsEmpty());
}

TEST_F(Pipeline, a_directory_is_no_notice_file) {
  shell.run.NtcFileName = folder.path();
  const Verdict verdict = judgeFile(shell);
  EXPECT_TRUE(verdict.machineFailed);
  EXPECT_EQ(verdict.failedAt, Stage::structure);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 70:Permission denied: " + folder.path());
}

TEST_F(Pipeline, an_empty_file_reports_the_missing_head) {
  const std::string file = folder.write("empty.txt", "");
  shell.run.NtcFileName = file;
  EXPECT_FALSE(judgeFile(shell).passed());
  EXPECT_EQ(readFile(folder.file("empty_val_outcome.txt")),
            "Number of Notice sections found : 0\r\n" + file +
                " : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n\r\n");
}

}  // namespace
}  // namespace zamo
