#include "widgets/leave_checks.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "support/waiting.h"
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
    ++asked;
    whenLeft();
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
  int asked = 0;
  std::function<void()> whenLeft = [] {};
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
  test::waitForButtons(form);
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

TEST_F(LeaveChecksForm, a_key_that_leaves_a_field_asks_once) {
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
    asked = 0;
    second->setFocus();
    asked = 0;
    QTest::keyClick(second, key);
    EXPECT_FALSE(second->hasFocus());
    EXPECT_EQ(asked, 1);
  }
}

TEST_F(LeaveChecksForm, what_is_typed_after_an_answer_is_asked_about_again) {
  QTest::keyClicks(first, "1");
  QTest::keyClick(first, Qt::Key_Return);
  EXPECT_EQ(asked, 1);
  first->setText("x");
  QTest::mouseClick(second, Qt::LeftButton);
  EXPECT_EQ(refusals, 1);
  EXPECT_TRUE(first->hasFocus());
}

// What the field wants when it is left comes after the click that leaves it.
TEST_F(LeaveChecksForm, a_button_that_is_clicked_keeps_the_focus_until_it_is_up_again) {
  const auto press = [this](auto&& mouse) {
    mouse(form.windowHandle(), act->mapTo(&form, act->rect().center()));
    QCoreApplication::processEvents();
  };
  whenLeft = [this] { checks.afterLeaving([this] { second->setFocus(); }); };
  press([](QWindow* window, QPoint place) { QTest::mousePress(window, Qt::LeftButton, {}, place); });
  EXPECT_TRUE(act->hasFocus());
  EXPECT_TRUE(act->isDown());
  EXPECT_EQ(acted, 0);
  whenLeft = [] {};
  press([](QWindow* window, QPoint place) { QTest::mouseRelease(window, Qt::LeftButton, {}, place); });
  EXPECT_EQ(acted, 1);
  EXPECT_TRUE(second->hasFocus());
}

TEST_F(LeaveChecksForm, a_key_has_its_way_before_what_the_field_wants) {
  whenLeft = [this] {
    checks.afterLeaving([this] {
      EXPECT_TRUE(second->hasFocus());
      act->setFocus();
    });
  };
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_TRUE(second->hasFocus());
  whenLeft = [] {};
  EXPECT_TRUE(test::waitFor([this] { return act->hasFocus(); }));
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
