// The whole road from the menus: a notice file, the query form, the grid and the exported file on disk.
#include <QAbstractButton>

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
