// The grid of the selected notices, as the operator sees and uses it.
#include <QHeaderView>
#include <QWheelEvent>

#include "support/tool_tips.h"
#include "window/selection_fixture.h"

namespace zamo::test {
namespace {

using Texts = std::vector<std::string>;

class Grid : public SelectionWindow {
 protected:
  // Too small for all columns of most selections.
  void makeNarrow() {
    window.resize(window.minimumSize());
    QCoreApplication::processEvents();
  }

  int widthOf(const std::string& text) {
    return grid().fontMetrics().horizontalAdvance(QString::fromStdString(text));
  }
};

// --- what it shows

TEST_F(Grid, of_all_notices_has_the_columns_of_both_sorts) {
  openDatabase();
  EXPECT_EQ(titles(), (Texts{"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Longitude", "Latitude", "Freq",
                             "Sitename", "Allotname", "Intent", "allotkey"}));
}

TEST_F(Grid, of_assignments_has_their_columns) {
  choices.GT1 = choices.GS1 = true;
  openDatabase();
  EXPECT_EQ(titles(), (Texts{"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Longitude", "Latitude", "Freq",
                             "Sitename", "Intent"}));
}

TEST_F(Grid, of_allotments_has_their_columns) {
  choices.GS2 = true;
  openDatabase();
  EXPECT_EQ(titles(),
            (Texts{"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Freq", "Allotname", "Intent", "ContourID"}));
}

TEST_F(Grid, of_contours_has_their_columns) {
  choices.isNotice = false;
  openDatabase();
  EXPECT_EQ(titles(), (Texts{"ContourKey", "ContourID", "Country", "Adm", "NbTestPts"}));
}

TEST_F(Grid, shows_texts_numbers_and_a_null_as_nothing) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ, long_deg, long_min, long_sec, long_ew, lat_deg, "
      "lat_min, lat_sec, lat_ns, freq_assgn, site_name) VALUES "
      "(83700001, 'F', 'GT1', 2, 21, 7.5, 'E', 48, 51, 24, 'N', 177.5, 'For\xc3\xaat')");
  openDatabase();
  const Texts expected = {"83700001",
                          "F",
                          "",
                          "GT1",
                          "2\xC2\xB0 21\xC2\xB4 7.5\xC2\xB4\xC2\xB4 E",
                          "48\xC2\xB0 51\xC2\xB4 24\xC2\xB4\xC2\xB4 N",
                          "177.5",
                          "For\xC3\xAAt",
                          "",
                          "",
                          ""};
  ASSERT_EQ(grid().model()->rowCount(), 1);
  for (int column = 0; column < 11; ++column) {
    EXPECT_EQ(cell(0, column), expected[static_cast<std::size_t>(column)]) << title(column);
  }
  expectNoBox();
}

TEST_F(Grid, puts_numbers_to_the_right_and_texts_to_the_left) {
  raw.run("INSERT INTO fmtv_vorna (vornakey, adm, freq_assgn) VALUES (1, 'F', 474)");
  openDatabase();
  const auto isRight = [this](int column) {
    const auto cellSide = grid().model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
    const auto titleSide = grid().model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    EXPECT_EQ(cellSide, titleSide) << title(column);
    return (cellSide & Qt::AlignRight) != 0;
  };
  for (int column = 0; column < 11; ++column) {
    const std::string name = title(column);
    EXPECT_EQ(isRight(column), name == "VornaKey" || name == "Freq") << name;
  }
}

TEST_F(Grid, is_made_for_reading_whole_rows) {
  store(1);
  openDatabase();
  EXPECT_EQ(grid().selectionBehavior(), QAbstractItemView::SelectRows);
  EXPECT_EQ(grid().selectionMode(), QAbstractItemView::SingleSelection);
  EXPECT_EQ(grid().editTriggers(), QAbstractItemView::NoEditTriggers);
  EXPECT_TRUE(grid().alternatingRowColors());
  EXPECT_EQ(grid().selectionModel()->selectedRows().size(), 1);
  EXPECT_EQ(currentRow(), 0);
}

TEST_F(Grid, keeps_the_order_of_its_statement_whatever_heading_is_clicked) {
  store(2);
  store(1);
  openDatabase();
  const QHeaderView& header = *grid().horizontalHeader();
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(header.sectionPosition(2) + 20, 5));
  EXPECT_FALSE(grid().isSortingEnabled());
  EXPECT_EQ(cell(0, 0), "1");
  EXPECT_EQ(cell(1, 0), "2");
  EXPECT_TRUE(opened.empty());
}

TEST_F(Grid, shows_the_whole_of_a_long_text_that_stands_far_down) {
  storeMany(1000);
  raw.run("UPDATE fmtv_vorna SET adm_ref_id = 'F-A REFERENCE OF 30 CHARACTERS' WHERE vornakey = 900");
  openDatabase();
  EXPECT_GT(grid().columnWidth(2), widthOf("F-A REFERENCE OF 30 CHARACTERS"));
  EXPECT_GT(grid().columnWidth(0), widthOf("VornaKey"));
  EXPECT_LT(grid().columnWidth(1), widthOf("F-A REFERENCE OF 30 CHARACTERS"));
}

TEST_F(Grid, gives_no_column_the_whole_window_and_a_cut_text_as_a_tool_tip) {
  const std::string text(2000, 'W');
  raw.run("INSERT INTO fmtv_vorna (vornakey, site_name) VALUES (1, '" + text + "')");
  openDatabase();
  EXPECT_LT(grid().columnWidth(7), 600);
  EXPECT_EQ(grid().model()->index(0, 7).data(Qt::ToolTipRole).toString().toStdString(), text);
  EXPECT_FALSE(grid().model()->index(0, 0).data(Qt::ToolTipRole).isValid());
}

TEST_F(Grid, shows_a_cell_with_markup_as_it_stands_in_its_tool_tip_too) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, site_name) "
      "SELECT 1, cell, cell, cell FROM (SELECT '<img src=''/dev/zero''> & <b>A</b>' AS cell)");
  openDatabase();
  const auto tipOf = [](QTableView& view, int column) {
    return tipAt(*view.viewport(), view.visualRect(view.model()->index(0, column)).center());
  };
  ASSERT_GT(grid().frozenColumns(), 1);
  EXPECT_EQ(tipOf(overlay(), 1), "<img src='/dev/zero'> & <b>A</b>");
  for (const int column : {2, 7}) {
    EXPECT_EQ(cell(0, column), "<img src='/dev/zero'> & <b>A</b>");
    grid().scrollTo(grid().model()->index(0, column));
    EXPECT_EQ(tipOf(grid(), column), "<img src='/dev/zero'> & <b>A</b>") << column;
  }
}

TEST_F(Grid, shows_the_name_of_a_file_with_markup_as_it_stands_in_its_tool_tip) {
  databasePath = folder.file("<i>a<i>.mdb");
  std::filesystem::copy_file(folder.file("working.mdb"), databasePath);
  openDatabase();
  EXPECT_EQ(tipAt(control<QLineEdit>("TxtFileName"), {5, 5}), "DATABASE FILE: " + databasePath);
}

// --- its fixed columns

TEST_F(Grid, forbids_the_sizing_of_the_fixed_columns) {
  struct Shape {
    bool isNotice, GT1, GT2, GS1, GS2;
    int lastFixed;
  };
  const Shape shapes[] = {{false, false, false, false, false, 4},
                          {true, true, false, false, false, 8},
                          {true, false, false, false, true, 6},
                          {true, false, false, false, false, 9},
                          {true, true, true, false, false, 9}};
  for (const Shape& shape : shapes) {
    choices = {};
    choices.isNotice = shape.isNotice;
    choices.GT1 = shape.GT1;
    choices.GT2 = shape.GT2;
    choices.GS1 = shape.GS1;
    choices.GS2 = shape.GS2;
    openDatabase();
    const QHeaderView& header = *grid().horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
      EXPECT_EQ(header.sectionResizeMode(column) == QHeaderView::Fixed, column <= shape.lastFixed)
          << "of " << shape.lastFixed << ": " << title(column);
    }
  }
}

TEST_F(Grid, that_shows_all_columns_has_none_that_must_be_kept_in_sight) {
  store(1);
  window.resize(2000, 600);
  openDatabase();
  EXPECT_EQ(grid().frozenColumns(), 0);
  EXPECT_FALSE(overlay().isVisible());
  EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
}

TEST_F(Grid, keeps_the_first_columns_in_sight_in_a_narrow_window) {
  storeMany(50);
  makeNarrow();
  openDatabase();
  ASSERT_GT(grid().horizontalScrollBar()->maximum(), 0);
  EXPECT_GE(grid().frozenColumns(), 2);
  ASSERT_TRUE(overlay().isVisible());
  grid().horizontalScrollBar()->setValue(grid().horizontalScrollBar()->maximum());
  EXPECT_EQ(overlay().geometry().left(), grid().viewport()->geometry().left());
  EXPECT_EQ(overlay().horizontalHeader()->height(), grid().horizontalHeader()->height());
  int width = 0;
  for (int column = 0; column < 11; ++column) {
    EXPECT_EQ(overlay().isColumnHidden(column), column >= grid().frozenColumns()) << column;
    if (column < grid().frozenColumns()) width += overlay().columnWidth(column);
  }
  EXPECT_EQ(overlay().width(), width);
  EXPECT_LE(width, grid().viewport()->width() / 2);
}

TEST_F(Grid, follows_the_width_of_the_window_with_what_it_keeps_in_sight) {
  store(1);
  window.resize(2000, 600);
  openDatabase();
  makeNarrow();
  EXPECT_TRUE(overlay().isVisible());
  window.resize(2000, 600);
  QCoreApplication::processEvents();
  EXPECT_FALSE(overlay().isVisible());
}

TEST_F(Grid, whose_columns_are_all_fixed_can_still_be_read_to_the_last_one_in_a_narrow_window) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, notice_typ, site_name, intent) VALUES "
      "(83700001, 'F', 'A REFERENCE OF 30 CHARACTERS..', 'GT1', 'A NAME OF A SITE OF 30 LETTERS', 'MODIFY')");
  choices.GT1 = true;
  makeNarrow();
  openDatabase();
  ASSERT_GT(grid().horizontalScrollBar()->maximum(), 0);
  for (int column = 0; column < 9; ++column) {
    const QModelIndex place = grid().model()->index(0, column);
    grid().scrollTo(place);
    if (column < grid().frozenColumns()) continue;
    const QRect seen = grid().visualRect(place);
    EXPECT_GE(seen.left(), overlay().width()) << title(column);
    EXPECT_LE(seen.right(), grid().viewport()->width()) << title(column);
  }
}

TEST_F(Grid, walked_to_the_left_shows_the_current_cell_beside_the_columns_in_sight) {
  storeMany(50);
  makeNarrow();
  openDatabase();
  for (int i = 0; i < 10; ++i) QTest::keyClick(&grid(), Qt::Key_Right);
  EXPECT_EQ(grid().currentIndex().column(), 10);
  while (grid().currentIndex().column() > grid().frozenColumns()) {
    QTest::keyClick(&grid(), Qt::Key_Left);
    EXPECT_GE(grid().visualRect(grid().currentIndex()).left(), overlay().width())
        << grid().currentIndex().column();
  }
}

TEST_F(Grid, moves_all_of_a_row_up_and_down) {
  storeMany(500);
  makeNarrow();
  openDatabase();
  ASSERT_TRUE(overlay().isVisible());
  const auto expectSideBySide = [this](int row) {
    EXPECT_EQ(overlay().visualRect(overlay().model()->index(row, 0)).top(),
              grid().visualRect(grid().model()->index(row, 0)).top())
        << row;
  };
  expectSideBySide(0);
  grid().verticalScrollBar()->setValue(1234);
  expectSideBySide(60);
  grid().scrollToBottom();
  expectSideBySide(499);
  // Where it is bound anew while it is scrolled.
  menu("mnuQueryNew").trigger();
  QCoreApplication::processEvents();
  expectSideBySide(0);
}

TEST_F(Grid, turns_with_the_wheel_over_the_columns_in_sight) {
  storeMany(500);
  makeNarrow();
  openDatabase();
  ASSERT_TRUE(overlay().isVisible());
  QWheelEvent turn(QPointF(10, 50), overlay().viewport()->mapToGlobal(QPointF(10, 50)), {}, QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(overlay().viewport(), &turn);
  EXPECT_GT(grid().verticalScrollBar()->value(), 0);
  EXPECT_EQ(overlay().verticalScrollBar()->value(), grid().verticalScrollBar()->value());
}

TEST_F(Grid, takes_a_click_on_the_columns_in_sight_as_one_on_the_row) {
  storeMany(5);
  makeNarrow();
  openDatabase();
  ASSERT_TRUE(overlay().isVisible());
  const QPoint place = overlay().visualRect(overlay().model()->index(3, 0)).center();
  QTest::mouseClick(overlay().viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(currentRow(), 3);
  EXPECT_TRUE(grid().selectionModel()->isRowSelected(3));
  doubleClick(overlay(), 4, 0);
  EXPECT_EQ(opened, Texts{"5 at 4 as GT1"});
}

// --- opening a notice

TEST_F(Grid, opens_a_row_with_a_double_click) {
  store(1);
  store(2, "GT2");
  openDatabase();
  doubleClick(grid(), 1, 2);
  EXPECT_EQ(opened, Texts{"2 at 1 as GT2"});
  EXPECT_EQ(status(), "Database was sucessfully updated - Number of notices : 2");
  EXPECT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(currentRow(), 1);
  expectNoBox();
}

TEST_F(Grid, opens_the_current_row_with_either_enter_key) {
  store(1);
  store(2);
  openDatabase();
  EXPECT_EQ(window.focusWidget(), &grid());
  QTest::keyClick(&grid(), Qt::Key_Return);
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClick(&grid(), Qt::Key_Enter);
  EXPECT_EQ(opened, (Texts{"1 at 0 as TB5", "2 at 1 as TB5"}));
}

TEST_F(Grid, opens_nothing_with_one_click_another_button_or_beside_its_rows) {
  store(1);
  openDatabase();
  QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, QPoint(20, 5));
  doubleClick(grid(), 0, 0, Qt::RightButton);
  QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, grid().viewport()->rect().bottomLeft());
  EXPECT_TRUE(opened.empty());
  expectNoBox();
}

TEST_F(Grid, opens_each_row_of_contours_as_ga1) {
  raw.run(
      "INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm, nb_test_pts) VALUES (7, 12, 'F', 'SUI', "
      "3);"
      "INSERT INTO lmz_contour_pt (contourkey, test_pt) VALUES (7, 1)");
  choices.isNotice = false;
  openDatabase();
  EXPECT_EQ(cell(0, 3), "SUI");
  doubleClick(grid(), 0, 3);
  EXPECT_EQ(opened, Texts{"7 at 0 as GA1"});
}

TEST_F(Grid, without_a_row_says_that_there_is_none) {
  store(1);
  choices.GT1 = true;
  openDatabase();
  ASSERT_TRUE(shows("NtcDataGrid"));
  QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, QPoint(20, 20));
  expectOneBox("No notices in the database", "Database is Empty", BoxIcon::exclamationAndInformation);
  script.boxes.clear();
  QTest::keyClick(&grid(), Qt::Key_Return);
  expectOneBox("No notices in the database", "Database is Empty", BoxIcon::exclamationAndInformation);
  EXPECT_TRUE(opened.empty());
}

TEST_F(Grid, whose_row_is_not_in_the_list_says_so_and_comes_back) {
  store(1);
  store(2);
  openDatabase();
  shell.run.IndexList[1] = 888888888;
  doubleClick(grid(), 1, 0);
  expectOneBox("Index list corrupted", "Index error", BoxIcon::exclamationAndInformation);
  EXPECT_TRUE(opened.empty());
  EXPECT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(grid().model()->rowCount(), 2);
}

TEST_F(Grid, shows_what_the_screen_left_in_the_database_and_the_same_row) {
  for (int key = 1; key <= 4; ++key) store(key);
  openDatabase();
  onScreen = [this] { raw.run("UPDATE fmtv_vorna SET adm_ref_id = 'CORRECTED' WHERE vornakey = 3"); };
  doubleClick(grid(), 2, 0);
  EXPECT_EQ(cell(2, 2), "CORRECTED");
  EXPECT_EQ(currentRow(), 2);
  EXPECT_TRUE(grid().selectionModel()->isRowSelected(2));
}

TEST_F(Grid, falls_back_to_the_new_last_row_after_the_deletion_of_the_last) {
  for (int key = 1; key <= 4; ++key) store(key);
  openDatabase();
  onScreen = [this] {
    remove(4);
    remove(3);
  };
  doubleClick(grid(), 3, 0);
  EXPECT_EQ(grid().model()->rowCount(), 2);
  EXPECT_EQ(currentRow(), 1);
  expectNoBox();
}

TEST_F(Grid, stays_on_its_row_after_the_deletion_of_one_in_the_middle) {
  for (int key = 1; key <= 4; ++key) store(key);
  openDatabase();
  onScreen = [this] { remove(2); };
  doubleClick(grid(), 1, 0);
  EXPECT_EQ(currentRow(), 1);
  EXPECT_EQ(cell(1, 0), "3");
}

TEST_F(Grid, that_lost_its_only_notice_is_empty) {
  store(1);
  openDatabase();
  onScreen = [this] { remove(1); };
  doubleClick(grid(), 0, 0);
  EXPECT_EQ(grid().model()->rowCount(), 0);
  EXPECT_EQ(currentRow(), -1);
  expectNoBox();
  QTest::keyClick(&grid(), Qt::Key_Return);
  expectOneBox("No notices in the database", "Database is Empty", BoxIcon::exclamationAndInformation);
}

TEST_F(Grid, comes_back_scrolled_as_it_was) {
  storeMany(2000);
  openDatabase();
  grid().setCurrentIndex(grid().model()->index(1000, 0));
  QCoreApplication::processEvents();
  const int scrolled = grid().verticalScrollBar()->value();
  EXPECT_GT(scrolled, 0);
  QTest::keyClick(&grid(), Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, Texts{"1001 at 1000 as GT1"});
  EXPECT_EQ(currentRow(), 1000);
  EXPECT_EQ(grid().verticalScrollBar()->value(), scrolled);
}

TEST_F(Grid, of_a_new_query_begins_at_its_first_row) {
  storeMany(2000);
  openDatabase();
  grid().setCurrentIndex(grid().model()->index(1000, 0));
  menu("mnuQueryNew").trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(currentRow(), 0);
  EXPECT_EQ(grid().verticalScrollBar()->value(), 0);
}

TEST_F(Grid, opens_one_notice_at_a_time) {
  store(1);
  openDatabase();
  onScreen = [this] {
    QTest::keyClick(&grid(), Qt::Key_Return);
    menu("mnuQueryNew").trigger();
  };
  QTest::keyClick(&grid(), Qt::Key_Return);
  EXPECT_EQ(opened.size(), 1U);
}

// --- with and without a database

TEST_F(Grid, of_a_refused_statement_is_empty_and_the_error_is_told_once) {
  store(1);
  choices.contourId = "7";
  choices.siteName = "x";
  openDatabase();
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "getVornaKeyList");
  EXPECT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(grid().model()->rowCount(), 0);
  EXPECT_EQ(status(), "Sucessfully opened the database - Number of notices : 0");
}

TEST_F(Grid, stays_as_it_was_read_through_an_export_and_opens_its_rows) {
  store(1);
  openDatabase();
  script.answers.push_back(true);
  menu("mnuTxtDBAll").trigger();
  EXPECT_EQ(status(), "Electronic file completed");
  script.boxes.clear();
  ASSERT_TRUE(shows("NtcDataGrid"));
  EXPECT_EQ(cell(0, 2), "REF1");
  doubleClick(grid(), 0, 0);
  EXPECT_EQ(opened, Texts{"1 at 0 as TB5"});
  expectNoBox();
}

TEST_F(Grid, lets_go_of_its_rows_with_its_database) {
  store(1);
  openDatabase();
  EXPECT_EQ(grid().model()->rowCount(), 1);
  menu("mnuFileOpenDB").trigger();
  EXPECT_FALSE(shows("NtcDataGrid"));
  EXPECT_EQ(grid().model()->rowCount(), 0);
}

}  // namespace
}  // namespace zamo::test
