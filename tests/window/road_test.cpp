// The whole road from the menus: a notice file, the query form, the grid and the exported file on disk.
#include <QAbstractButton>
#include <filesystem>

#include "query/only_date_update.h"
#include "query/query_form.h"
#include "shell/qt_forms.h"
#include "window/operators_hand.h"
#include "window/selection_fixture.h"

namespace zamo::test {
namespace {

constexpr std::string_view kThreeNotices =
    "<HEAD>\r\nt_adm = F\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_fragment = KV19D\r\nt_action = ADD\r\nt_adm_ref_id = F-1\r\n"
    "t_site_name = FOR\312T\r\nt_freq_assgn = 474\r\n</NOTICE>\r\n"
    "<NOTICE>\r\nt_notice_type = GT2\r\nt_fragment = KV19D\r\nt_action = ADD\r\nt_adm_ref_id = F-2\r\n"
    "t_allot_name = CENTRE\r\nt_freq_assgn = 482\r\nt_geo_area = F\r\n</NOTICE>\r\n"
    "<NOTICE>\r\nt_notice_type = GA1\r\nt_action = ADD\r\nt_ctry = F\r\nt_contour_id = 7\r\n"
    "t_nb_test_pts = 3\r\n"
    "<POINT>\r\nt_long = +0021000\r\nt_lat = +485000\r\n</POINT>\r\n"
    "<POINT>\r\nt_long = +0021000\r\nt_lat = +485100\r\n</POINT>\r\n"
    "<POINT>\r\nt_long = +0021100\r\nt_lat = +485100\r\n</POINT>\r\n"
    "</NOTICE>\r\n<TAIL>\r\nt_num_notices = 3\r\n</TAIL>\r\n";

class Road : public SelectionWindow {
 protected:
  Road() { useQtForms(shell, window); }

  // Does something in the query form that opens next, and leaves it with OK.
  void confirmQuery(std::function<void(QrySelectFrmKV19&)> choose = [](QrySelectFrmKV19&) {}) {
    operatorDoes<QrySelectFrmKV19>(window, [this, choose = std::move(choose)](QrySelectFrmKV19& form) {
      EXPECT_TRUE(form.isModal());
      EXPECT_EQ(form.parentWidget(), &window);
      choose(form);
      press(form, "ButtonOK");
    });
  }
  void leave(const char* button) {
    operatorDoes<QrySelectFrmKV19>(window, [button](QrySelectFrmKV19& form) { press(form, button); });
  }

  static void tick(QDialog& form, const char* name, bool on = true) {
    auto* const box = form.findChild<QAbstractButton*>(name);
    ASSERT_NE(box, nullptr) << name;
    box->setChecked(on);
  }
  static void press(QDialog& form, const char* name) {
    auto* const button = form.findChild<QPushButton*>(name);
    ASSERT_NE(button, nullptr) << name;
    button->click();
  }

  void exportAll() {
    script.answers.push_back(true);
    menu("mnuTxtDBAll").trigger();
  }
  std::string exportPath() const { return folder.file("notices954.corr.txt"); }
};

TEST_F(Road, of_a_notice_file_leads_through_query_and_grid_to_an_exported_file) {
  confirmQuery();
  open(kThreeNotices);
  EXPECT_EQ(status(), "Written sucessfully to the database - Number of notices : 2");
  EXPECT_EQ(control<QLineEdit>("TxtFileName").text().toStdString(),
            "TEXT FILE : " + folder.file("notices.txt"));
  ASSERT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(grid().model()->rowCount(), 2);
  EXPECT_EQ(cell(0, 2), "F-1");
  EXPECT_EQ(cell(0, 7), "FOR\xC3\x8AT");
  EXPECT_EQ(cell(1, 3), "GT2");
  EXPECT_EQ(cell(1, 8), "CENTRE");

  doubleClick(grid(), 1, 3);
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0], cell(1, 0) + " at 1 as GT2");
  EXPECT_EQ(status(), "Database was sucessfully updated - Number of notices : 2");

  exportAll();
  expectOneBox("Electronic file completed", "Information", BoxIcon::information);
  EXPECT_EQ(status(), "Electronic file completed");
  const std::string exported = readFile(exportPath());
  for (const char* line :
       {"<HEAD>\r\n", "t_notice_type = GT1\r\n", "t_adm_ref_id = F-1\r\n", "t_site_name = FOR\312T\r\n",
        "t_notice_type = GT2\r\n", "t_allot_name = CENTRE\r\n", "t_notice_type = GA1\r\n",
        "t_contour_id = 7\r\n", "t_lat = +485100\r\n", "</TAIL>\r\n"}) {
    EXPECT_NE(exported.find(line), std::string::npos) << line << "\n" << exported;
  }
  ASSERT_EQ(script.questions.size(), 1U);
  EXPECT_EQ(script.questions[0].text, "3 Notices will be written to a text file. Do you want to proceed?");
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Road, of_a_database_leads_to_the_selection_of_allotments) {
  store(1, "GT1");
  store(2, "GT2");
  confirmQuery([](QrySelectFrmKV19& form) {
    for (const char* other : {"CheckBoxGT1", "CheckBoxGS1", "CheckBoxGS2"}) tick(form, other, false);
    tick(form, "CheckBoxGT2");
  });
  openDatabase();
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 1");
  EXPECT_EQ(titles().back(), "ContourID");
  EXPECT_EQ(cell(0, 0), "2");
  expectNoBox();
}

TEST_F(Road, to_contours_opens_a_contour) {
  leave("ButtonCancel");
  open(kThreeNotices);
  confirmQuery([](QrySelectFrmKV19& form) { tick(form, "Opt_SubArea"); });
  menu("mnuQueryNew").trigger();
  EXPECT_EQ(status(), "Number of records : 1");
  EXPECT_EQ(titles().front(), "ContourKey");
  EXPECT_EQ(cell(0, 1), "7");
  doubleClick(grid(), 0, 0);
  EXPECT_EQ(opened, std::vector<std::string>{cell(0, 0) + " at 0 as GA1"});
  expectNoBox();
}

TEST_F(Road, tells_how_far_it_is_while_a_form_stands_over_the_window) {
  store(1);
  confirmQuery();
  openDatabase();
  shell.host.repaint = [] {};
  std::string seen;
  onScreen = [&] {
    operatorDoes<QDialog>(window, [&](QDialog& form) {
      seen = status();
      form.reject();
    });
    QDialog(&window).exec();
  };
  shell.forms.openNotice = [this](std::int32_t, std::int32_t, const std::string&) { onScreen(); };
  doubleClick(grid(), 0, 0);
  EXPECT_EQ(seen, "Reading the selected notice from database");
  EXPECT_EQ(status(), "Database was sucessfully updated - Number of notices : 1");
}

TEST_F(Road, ends_without_a_grid_when_the_query_form_is_cancelled) {
  leave("ButtonCancel");
  open(kThreeNotices);
  EXPECT_FALSE(shows("NtcDataGrid"));
  EXPECT_EQ(status(), "Notice no : 3");
  EXPECT_NE(shell.run.DbConn, nullptr);
  EXPECT_TRUE(menu("mnuQuery").isEnabled());
  EXPECT_TRUE(menu("mnuTxtDB").isEnabled());

  exportAll();
  EXPECT_TRUE(std::filesystem::exists(exportPath()));
}

TEST_F(Road, without_a_database_is_told_at_its_commands) {
  // The database can't be made where a folder stands.
  std::filesystem::create_directories(folder.file("notices.mdb") + "/occupied");
  open(kThreeNotices);
  ASSERT_EQ(shell.run.DbConn, nullptr);
  script.boxes.clear();
  for (const char* command : {"mnuQueryNew", "mnuTxtDBAll", "mnuTxtDBUpdated"}) {
    ASSERT_TRUE(menu(command).isEnabled()) << command;
    menu(command).trigger();
    expectOneBox("Erreur 5:No database is open", command, BoxIcon::none);
    script.boxes.clear();
  }
  EXPECT_FALSE(shows("NtcDataGrid"));
  EXPECT_TRUE(script.questions.empty());
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Road, has_the_hourglass_while_the_query_form_is_shown) {
  operatorDoes<QrySelectFrmKV19>(window, [this](QrySelectFrmKV19& form) {
    EXPECT_EQ(script.hourglasses, 1);
    tick(form, "CheckBoxLs");
    press(form, "ButtonOK");
    EXPECT_TRUE(form.isVisible());
    tick(form, "CheckBoxLs", false);
    press(form, "ButtonOK");
  });
  openDatabase();
  expectOneBox("Please select either 'Prior' or 'After' for the date update", "Error-Date Update",
               BoxIcon::none);
  EXPECT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(script.hourglasses, 0);
}

TEST_F(Road, of_a_new_query_that_is_cancelled_leaves_the_hidden_grid_as_it_was) {
  store(1);
  confirmQuery();
  openDatabase();
  const auto expectCancelled = [this](const std::function<void(QrySelectFrmKV19&)>& leaveForm) {
    operatorDoes<QrySelectFrmKV19>(window, leaveForm);
    menu("mnuQueryNew").trigger();
    EXPECT_EQ(shell.run.qrySql, "");
    EXPECT_FALSE(shell.run.qryConfirmed);
    EXPECT_NE(shell.run.DbConn, nullptr);
    EXPECT_FALSE(shows("NtcDataGrid"));
    EXPECT_FALSE(shows("TxtProcessingStatus"));
    EXPECT_EQ(grid().model()->rowCount(), 1);
    EXPECT_TRUE(menu("mnuQuery").isEnabled());
    EXPECT_TRUE(menu("mnuTxtDB").isEnabled());
    EXPECT_EQ(script.hourglasses, 0);
  };
  expectCancelled([](QrySelectFrmKV19& form) { press(form, "ButtonCancel"); });
  expectCancelled([](QrySelectFrmKV19& form) { QTest::keyClick(&form, Qt::Key_Escape); });
  expectCancelled([](QrySelectFrmKV19& form) { form.close(); });
  expectNoBox();
  confirmQuery();
  menu("mnuQueryNew").trigger();
  EXPECT_EQ(status(), "Number of records : 1");
  EXPECT_TRUE(shows("NtcDataGrid"));
}

TEST_F(Road, to_a_database_with_broken_tables_says_so_and_opens_the_next_one) {
  const std::string sound = folder.file("sound.mdb");
  std::filesystem::copy_file(databasePath, sound);
  raw.run("DROP TABLE fmtv_rmks");
  confirmQuery();
  openDatabase();
  expectOneBox("Erreur 1:no such table: fmtv_rmks", "getVornaKeyList", BoxIcon::none);
  EXPECT_EQ(grid().model()->rowCount(), 0);
  script.boxes.clear();
  script.files.push_back(sound);
  confirmQuery();
  menu("mnuFileOpenDB").trigger();
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 0");
  expectNoBox();
}

TEST_F(Road, over_a_database_that_was_spoiled_while_it_was_open_tells_so_and_goes_on) {
  store(1);
  const std::string sound = folder.file("sound.mdb");
  std::filesystem::copy_file(databasePath, sound);
  confirmQuery();
  openDatabase();
  folder.write("working.mdb", std::string(std::filesystem::file_size(databasePath), 'x'));
  const auto expectTold = [this](const std::vector<std::string>& boxes) {
    std::vector<std::string> shown;
    for (const Box& box : script.boxes) shown.push_back(box.title + ": " + box.text);
    EXPECT_EQ(shown, boxes);
    EXPECT_EQ(script.hourglasses, 0);
    script.boxes.clear();
  };
  confirmQuery();
  menu("mnuQueryNew").trigger();
  expectTold({"QrySelectFrmKV19: Erreur 26:file is not a database",
              "getVornaKeyList: Erreur 26:file is not a database"});
  EXPECT_EQ(grid().model()->rowCount(), 0);
  menu("mnuTxtDBAll").trigger();
  expectTold({"countSelectedRecords: Erreur 26:file is not a database",
              ": There are no updated notices. Output text file will not be created"});
  script.files.push_back(sound);
  confirmQuery();
  menu("mnuFileOpenDB").trigger();
  expectTold({});
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 1");
}

TEST_F(Road, to_updated_records_goes_by_the_date_dialog) {
  store(1);
  store(2);
  raw.run(
      "UPDATE fmtv_vorna SET d_updated = '2026-03-06' WHERE vornakey = 1;"
      "UPDATE fmtv_vorna SET d_updated = '2026-03-07' WHERE vornakey = 2");
  confirmQuery();
  openDatabase();
  operatorDoes<OnlyDateUpdate>(window, [](OnlyDateUpdate& form) {
    tick(form, "CheckBoxEqual");
    press(form, "ButtonOK");
  });
  script.answers.push_back(true);
  menu("mnuTxtDBUpdated").trigger();
  expectOneBox("Electronic file completed", "Information", BoxIcon::information);
  const std::string exported = readFile(folder.file("working954.corr.txt"));
  EXPECT_NE(exported.find("REF2"), std::string::npos) << exported;
  EXPECT_EQ(exported.find("REF1"), std::string::npos) << exported;
}

TEST_F(Road, to_updated_records_ends_at_a_cancelled_dialog) {
  confirmQuery();
  openDatabase();
  const std::string before = status();
  operatorDoes<OnlyDateUpdate>(window, [](OnlyDateUpdate& form) { press(form, "ButtonCancel"); });
  menu("mnuTxtDBUpdated").trigger();
  EXPECT_EQ(status(), before);
  EXPECT_FALSE(std::filesystem::exists(folder.file("working954.corr.txt")));
  expectNoBox();
}

}  // namespace
}  // namespace zamo::test
