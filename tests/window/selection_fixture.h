// The main window over a working database, with a query form that confirms what the test says.
#pragma once

#include <QScrollBar>
#include <QTest>
#include <filesystem>

#include "database/raw_database.h"
#include "query/selection.h"
#include "shell/frozen_table.h"
#include "support/places.h"
#include "window/window_fixture.h"

namespace zamo::test {

class SelectionWindow : public Window {
 protected:
  SelectionWindow() {
    raw.run("PRAGMA synchronous = OFF");
    shell.host.repaint = [this] { window.refresh(); };
    shell.forms.showQueryForm = [this] { confirm(); };
    shell.forms.openNotice = [this](std::int32_t key, std::int32_t idx, const std::string& type) {
      opened.push_back(std::to_string(key) + " at " + std::to_string(idx) + " as " + type);
      EXPECT_FALSE(shows("NtcDataGrid"));
      EXPECT_EQ(status(), "Reading the selected notice from database");
      if (onScreen) onScreen();
    };
    start();
  }

  // What OK in the query form leaves behind.
  void confirm() {
    shell.run.qrySql = makeSelection(choices).qrySql;
    shell.run.qryIsNotice = choices.isNotice;
    shell.run.qryConfirmed = true;
    shell.run.QryGT1 = choices.GT1;
    shell.run.QryGT2 = choices.GT2;
    shell.run.QryGS1 = choices.GS1;
    shell.run.QryGS2 = choices.GS2;
  }

  // A TB5 that its key tells, with nothing but its reference.
  void store(std::int32_t key, const std::string& type = "TB5") {
    raw.run("INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, notice_typ, intent) VALUES (" +
            std::to_string(key) + ", 'F', 'REF" + std::to_string(key) + "', '" + type + "', 'ADD')");
  }
  void storeMany(int count) {
    raw.run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
            std::to_string(count) +
            ") INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, notice_typ, freq_assgn, site_name) "
            "SELECT i, 'F', 'REF' || i, 'GT1', 474, 'SITE ' || i FROM n");
  }
  void remove(std::int32_t key) { raw.run("DELETE FROM fmtv_vorna WHERE vornakey = " + std::to_string(key)); }

  void openDatabase() {
    script.files.push_back(databasePath);
    menu("mnuFileOpenDB").trigger();
    QCoreApplication::processEvents();
  }

  FrozenTable& grid() { return static_cast<FrozenTable&>(control<QTableView>("NtcDataGrid")); }
  // The view that keeps columns in sight.
  QTableView& overlay() {
    auto* const found = grid().findChild<QTableView*>();
    if (found == nullptr) throw std::logic_error("no overlay");
    return *found;
  }
  std::string cell(int row, int column) {
    return grid().model()->index(row, column).data().toString().toStdString();
  }
  std::string title(int column) {
    return grid().model()->headerData(column, Qt::Horizontal).toString().toStdString();
  }
  std::vector<std::string> titles() {
    std::vector<std::string> all;
    for (int column = 0; column < grid().model()->columnCount(); ++column) all.push_back(title(column));
    return all;
  }
  int currentRow() { return grid().currentIndex().row(); }

  static void doubleClick(QTableView& view, int row, int column, Qt::MouseButton button = Qt::LeftButton) {
    const QPoint place = view.visualRect(view.model()->index(row, column)).center();
    QTest::mouseClick(view.viewport(), button, {}, place);
    QTest::mouseDClick(view.viewport(), button, {}, place);
  }
  void expectNoBox() { EXPECT_TRUE(script.boxes.empty()) << script.boxes[0].text; }

  std::string copyTemplate() const {
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", folder.file("working.mdb"));
    return folder.file("working.mdb");
  }

  std::string databasePath = copyTemplate();
  RawDatabase raw{databasePath};
  QueryChoices choices;
  std::vector<std::string> opened;
  std::function<void()> onScreen;
};

}  // namespace zamo::test
