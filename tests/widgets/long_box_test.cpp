#include "widgets/long_box.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include "support/widgets_application.h"

namespace zamo::test {
namespace {

QString linesOf(int count, const QString& line) {
  return QStringList(count, line).join('\n');
}

class LongBox : public testing::Test {
 protected:
  void show(const QString& words) {
    box.setTextFormat(Qt::PlainText);
    box.setText(words);
    fitToDisplay(box);
    box.show();
    (void)QTest::qWaitForWindowActive(&box);
  }

  QPlainTextEdit* scrolled() { return box.findChild<QPlainTextEdit*>("LongText"); }

  void expectWholeInSight() {
    EXPECT_TRUE(box.screen()->availableSize().width() >= box.width());
    EXPECT_TRUE(box.screen()->availableSize().height() >= box.height());
    for (QAbstractButton* const button : box.buttons())
      EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
  }

  Application application;
  QMessageBox box{QMessageBox::NoIcon, "title", "", QMessageBox::Yes | QMessageBox::No};
};

TEST_F(LongBox, scrolls_what_would_not_fit_and_keeps_its_words) {
  const QString words = linesOf(75, "FATAL ERROR : t_long is missing");
  show(words);
  expectWholeInSight();
  EXPECT_EQ(box.text(), words);
  ASSERT_NE(scrolled(), nullptr);
  EXPECT_TRUE(scrolled()->isVisible());
  EXPECT_EQ(scrolled()->toPlainText(), words);
  EXPECT_GT(scrolled()->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(scrolled()->horizontalScrollBar()->maximum(), 0);
  EXPECT_FALSE(box.findChild<QLabel*>("qt_msgbox_label")->isVisible());
}

TEST_F(LongBox, breaks_a_line_without_blanks_that_is_wider_than_the_display) {
  show(linesOf(40, QString(500, 'W')));
  expectWholeInSight();
  ASSERT_NE(scrolled(), nullptr);
  EXPECT_EQ(scrolled()->horizontalScrollBar()->maximum(), 0);
}

TEST_F(LongBox, has_a_text_that_can_be_selected_and_read_by_keys_but_not_changed) {
  const QString words = linesOf(75, "<b>FATAL</b>");
  show(words);
  QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
  QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(box.focusWidget(), scrolled());
  QTest::keyClick(scrolled(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_TRUE(scrolled()->textCursor().atEnd());
  EXPECT_TRUE(scrolled()->viewport()->rect().contains(scrolled()->cursorRect()));
  EXPECT_GT(scrolled()->verticalScrollBar()->value(), 0);
  QTest::keyClick(scrolled(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(scrolled()->textCursor().hasSelection());
  QTest::keyClick(scrolled(), Qt::Key_Delete);
  EXPECT_EQ(scrolled()->toPlainText(), words);
}

TEST_F(LongBox, answers_to_the_keys_of_a_short_one) {
  show("short");
  const QWidget* const first = box.focusWidget();
  EXPECT_EQ(scrolled(), nullptr);
  EXPECT_TRUE(box.findChild<QLabel*>("qt_msgbox_label")->isVisible());
  box.hide();
  show(linesOf(75, "line"));
  EXPECT_NE(scrolled(), nullptr);
  EXPECT_EQ(box.focusWidget(), first);
  QTest::keyClick(&box, Qt::Key_Escape);
  EXPECT_FALSE(box.isVisible());
  EXPECT_EQ(box.result(), QMessageBox::No);
}

}  // namespace
}  // namespace zamo::test
