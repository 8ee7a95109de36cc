#include "widgets/leave_checks.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "support/widgets_application.h"
#include "widgets/upper_case.h"

namespace zamo {
namespace {

// Two fields that want a digit, a button that acts and one that closes.
class LeaveChecksForm : public testing::Test {
 protected:
  LeaveChecksForm() {
    for (QWidget* const control : std::initializer_list<QWidget*>{first, second, act, shut})
      layout->addWidget(control);
    form.setTabOrder(first, second);
    act->setAutoDefault(false);
    shut->setAutoDefault(false);
    checks.setFree(*shut);
    QObject::connect(act, &QPushButton::clicked, [this] { ++acted; });
    QObject::connect(shut, &QPushButton::clicked, &form, &QDialog::reject);
    form.show();
    first->setFocus();
    (void)QTest::qWaitForWindowActive(&form);
  }

  bool check(QWidget& field) {
    const auto* const line = qobject_cast<QLineEdit*>(&field);
    if (line == nullptr || line->text().isEmpty() || line->text().front().isDigit()) return true;
    ++refusals;
    return false;
  }

  test::Application application;
  QDialog form;
  QVBoxLayout* layout = new QVBoxLayout(&form);
  QLineEdit* first = new QLineEdit;
  QLineEdit* second = new QLineEdit;
  QPushButton* act = new QPushButton("&Act");
  QPushButton* shut = new QPushButton("&Close");
  int acted = 0;
  int refusals = 0;
  LeaveChecks checks{form, [this](QWidget& field) { return check(field); }};
};

TEST_F(LeaveChecksForm, a_wrong_value_keeps_the_focus_and_is_told_once) {
  QTest::keyClicks(first, "x");
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_TRUE(first->hasFocus());
  EXPECT_EQ(refusals, 1);
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_EQ(refusals, 2);
  QTest::keyClick(first, Qt::Key_Backspace);
  QTest::keyClicks(first, "1");
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_TRUE(second->hasFocus());
  EXPECT_EQ(refusals, 2);
}

TEST_F(LeaveChecksForm, a_click_elsewhere_is_swallowed) {
  QTest::keyClicks(first, "x");
  QTest::mouseClick(act, Qt::LeftButton);
  EXPECT_EQ(acted, 0);
  EXPECT_EQ(refusals, 1);
  EXPECT_TRUE(first->hasFocus());
  QTest::mouseClick(second, Qt::LeftButton);
  EXPECT_EQ(refusals, 2);
  EXPECT_TRUE(first->hasFocus());
  first->setText("1");
  QTest::mouseClick(act, Qt::LeftButton);
  EXPECT_EQ(acted, 1);
}

TEST_F(LeaveChecksForm, focus_that_the_program_moves_comes_back) {
  QTest::keyClicks(first, "x");
  second->setFocus();
  EXPECT_TRUE(first->hasFocus());
  EXPECT_EQ(refusals, 1);
}

TEST_F(LeaveChecksForm, two_wrong_fields_are_told_one_at_a_time) {
  second->setText("y");
  QTest::keyClicks(first, "x");
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_EQ(refusals, 1);
}

TEST_F(LeaveChecksForm, a_mnemonic_is_swallowed_too) {
  QTest::keyClicks(first, "x");
  QTest::keyClick(&form, Qt::Key_A, Qt::AltModifier);
  QTest::qWait(150);
  EXPECT_EQ(acted, 0);
  EXPECT_EQ(refusals, 1);
}

TEST_F(LeaveChecksForm, closing_always_works) {
  QTest::keyClicks(first, "x");
  QTest::mouseClick(shut, Qt::LeftButton);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(refusals, 0);
}

TEST_F(LeaveChecksForm, the_frame_and_escape_close_as_well) {
  QTest::keyClicks(first, "x");
  form.close();
  EXPECT_FALSE(form.isVisible());
  form.show();
  first->setFocus();
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(refusals, 0);
}

TEST_F(LeaveChecksForm, typed_letters_become_upper_case_and_set_ones_stay) {
  typeUpperCase(*second);
  second->setText("ab");
  second->setFocus();
  QTest::keyClicks(second, "c1");
  QTest::sendKeyEvent(QTest::Click, second, Qt::Key_Eacute, QString::fromUtf8("\u00e9"), Qt::NoModifier);
  EXPECT_EQ(second->text(), QString::fromUtf8("abC1\u00c9"));
}

}  // namespace
}  // namespace zamo
