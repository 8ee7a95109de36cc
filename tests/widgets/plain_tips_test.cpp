#include "widgets/plain_tips.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTableView>

#include "support/tool_tips.h"
#include "support/widgets_application.h"

namespace zamo::test {
namespace {

constexpr const char* kHostile = "<img src='/dev/zero'> & <b>bold</b>";

class PlainTips : public testing::Test {
 protected:
  PlainTips() { showTipsAsPlainText(); }

  Application application;
};

TEST_F(PlainTips, of_a_widget_are_shown_as_they_stand) {
  QLineEdit field;
  field.setToolTip(kHostile);
  field.show();
  EXPECT_EQ(tipAt(field, {1, 1}), kHostile);
  EXPECT_EQ(field.toolTip(), kHostile);
}

TEST_F(PlainTips, stand_on_one_line_unless_they_are_long) {
  QWidget one;
  const auto heightOf = [&one](const QString& tip) {
    one.setToolTip(tip);
    EXPECT_EQ(tipAt(one, {1, 1}), tip.toStdString());
    for (const QWidget* const shown : QApplication::topLevelWidgets()) {
      if (shown->inherits("QTipLabel") && shown->isVisible()) return shown->height();
    }
    return 0;
  };
  one.show();
  const int line = heightOf("x");
  EXPECT_GT(line, 0);
  EXPECT_EQ(heightOf("DATABASE FILE: /srv/notices  of  2026/<b>france</b>.mdb"), line);
  EXPECT_GT(heightOf(QString("Type of Plan entry ").repeated(10)), 2 * line);
}

TEST_F(PlainTips, of_a_part_without_one_are_those_of_what_holds_it) {
  QWidget holder;
  holder.setToolTip(kHostile);
  QLabel part("text", &holder);
  holder.show();
  EXPECT_EQ(tipAt(part, {1, 1}), kHostile);
}

TEST_F(PlainTips, of_the_items_and_the_headings_of_a_view_are_shown_as_they_stand) {
  QStandardItemModel rows(1, 2);
  rows.setData(rows.index(0, 1), kHostile, Qt::ToolTipRole);
  rows.setHeaderData(1, Qt::Horizontal, kHostile, Qt::ToolTipRole);
  QTableView view;
  view.setModel(&rows);
  view.show();
  EXPECT_EQ(tipAt(*view.viewport(), view.visualRect(rows.index(0, 1)).center()), kHostile);
  EXPECT_EQ(tipAt(*view.viewport(), view.visualRect(rows.index(0, 0)).center()), "");
  const QHeaderView& header = *view.horizontalHeader();
  EXPECT_EQ(tipAt(*header.viewport(), {header.sectionViewportPosition(1) + 5, 5}), kHostile);
  EXPECT_EQ(tipAt(*header.viewport(), {header.sectionViewportPosition(0) + 5, 5}), "");
}

TEST_F(PlainTips, are_asked_for_once_however_often_they_are_wanted) {
  showTipsAsPlainText();
  EXPECT_EQ(QCoreApplication::instance()->findChildren<QObject*>("plainTips").size(), 1);
}

}  // namespace
}  // namespace zamo::test
