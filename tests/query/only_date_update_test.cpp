#include "query/only_date_update.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "support/scripted_host.h"
#include "support/widgets_application.h"

namespace zamo {
namespace {

class DateDialog : public testing::Test {
 protected:
  DateDialog() {
    form.show();
    (void)QTest::qWaitForWindowActive(&form);
  }

  template <typename Widget>
  Widget& control(const char* name) {
    auto* const found = form.findChild<Widget*>(name);
    if (found == nullptr) throw std::logic_error(std::string("no control ") + name);
    return *found;
  }
  QLineEdit& field(const char* name) { return control<QLineEdit>(name); }
  std::string captionOf(const char* name) {
    return control<QAbstractButton>(name).text().remove('&').toStdString();
  }
  void click(const char* name) {
    auto& button = control<QAbstractButton>(name);
    const bool isPush = qobject_cast<QPushButton*>(&button) != nullptr;
    QTest::mouseClick(&button, Qt::LeftButton, {},
                      isPush ? button.rect().center() : QPoint(8, button.height() / 2));
  }
  void fill(const char* name, const QString& text) {
    field(name).setFocus();
    field(name).selectAll();
    QTest::keyClick(&field(name), Qt::Key_Delete);
    QTest::keyClicks(&field(name), text);
  }

  void expectOnlyBox(const char* text, const char* title, BoxIcon icon) {
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, title);
    EXPECT_EQ(script.boxes[0].icon, icon);
    EXPECT_TRUE(script.questions.empty());
    script.boxes.clear();
  }
  void expectHeld(const char* name, const QString& text, const char* title, const char* message, int beeps) {
    SCOPED_TRACE(std::string(name) + " " + text.toStdString());
    fill(name, text);
    QTest::keyClick(&field(name), Qt::Key_Tab);
    EXPECT_TRUE(field(name).hasFocus());
    expectOnlyBox(message, title, BoxIcon::exclamation);
    EXPECT_EQ(script.beeps, beeps);
    script.beeps = 0;
    fill(name, "");
  }

  test::Application application;
  test::Script script;
  Host host = test::makeScriptedHost(script);
  OnlyDateUpdate form{host};
};

TEST_F(DateDialog, has_all_controls_with_their_captions) {
  EXPECT_EQ(form.objectName(), "OnlyDateUpdate");
  EXPECT_EQ(control<QGroupBox>("NtcFrm").title(), " DATE OF UPDATE ");
  EXPECT_EQ(control<QLabel>("LblDDMMYYYY").text(), " dd     mm       yyyy");
  EXPECT_EQ(captionOf("CheckBoxGt"), "After");
  EXPECT_EQ(captionOf("CheckBoxLs"), "Prior");
  EXPECT_EQ(captionOf("CheckBoxEqual"), "Equal");
  EXPECT_EQ(captionOf("ButtonOK"), "OK");
  EXPECT_EQ(captionOf("ButtonCancel"), "Cancel");
  for (const char* name :
       {"Txt_DD", "Txt_MM", "Txt_YYYY", "CheckBoxGt", "CheckBoxLs", "CheckBoxEqual", "LblDDMMYYYY"})
    EXPECT_EQ(control<QWidget>(name).parentWidget(), &control<QGroupBox>("NtcFrm")) << name;
}

TEST_F(DateDialog, opens_with_on_or_after_today) {
  EXPECT_EQ(field("Txt_DD").text(), "7");
  EXPECT_EQ(field("Txt_MM").text(), "3");
  EXPECT_EQ(field("Txt_YYYY").text(), "2026");
  EXPECT_TRUE(control<QCheckBox>("CheckBoxGt").isChecked());
  EXPECT_TRUE(control<QCheckBox>("CheckBoxEqual").isChecked());
  EXPECT_FALSE(control<QCheckBox>("CheckBoxLs").isChecked());
  EXPECT_EQ(form.filter(), "");
}

TEST_F(DateDialog, gives_its_filter_with_ok) {
  click("ButtonOK");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "(d_updated >= #3/7/2026#)");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(DateDialog, gives_the_month_first_and_the_date_as_typed) {
  fill("Txt_DD", "031");
  fill("Txt_MM", "02");
  fill("Txt_YYYY", "2009");
  click("CheckBoxGt");
  click("CheckBoxLs");
  click("CheckBoxEqual");
  QTest::keyClick(&form, Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "(d_updated < #02/031/2009#)");
}

TEST_F(DateDialog, gives_no_filter_without_the_whole_date) {
  fill("Txt_MM", "");
  click("ButtonOK");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(DateDialog, gives_no_filter_without_a_comparison) {
  click("CheckBoxGt");
  click("CheckBoxEqual");
  click("ButtonOK");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "");
}

TEST_F(DateDialog, refuses_after_together_with_prior) {
  click("CheckBoxLs");
  click("ButtonOK");
  expectOnlyBox("Please select either 'Prior' or 'After' for the date update", "Error-Date Update",
                BoxIcon::none);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.filter(), "");
  click("CheckBoxGt");
  click("ButtonOK");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "(d_updated <= #3/7/2026#)");
}

TEST_F(DateDialog, checks_its_fields_when_they_are_left) {
  expectHeld("Txt_DD", "32", "Error - Date Update (day)", "Value should be between [1,31]", 1);
  expectHeld("Txt_MM", "0", "Error - Date Update (month)", "Value should be between [1,12]", 1);
  expectHeld("Txt_YYYY", "1999", "Error - Date Update (year)", "Invalid year in date of notice", 0);
  fill("Txt_DD", "x");
  click("ButtonOK");
  expectOnlyBox("Value should be between [1,31]", "Error - Date Update (day)", BoxIcon::exclamation);
  control<QPushButton>("ButtonOK").click();
  expectOnlyBox("Value should be between [1,31]", "Error - Date Update (day)", BoxIcon::exclamation);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.filter(), "");
}

TEST_F(DateDialog, closes_without_a_filter_whatever_stands_in_the_field) {
  const auto expectCloses = [this](auto&& close) {
    form.show();
    (void)QTest::qWaitForWindowActive(&form);
    fill("Txt_DD", "32");
    close();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.filter(), "");
    EXPECT_TRUE(script.boxes.empty());
  };
  expectCloses([this] { click("ButtonCancel"); });
  expectCloses([this] { QTest::keyClick(&field("Txt_DD"), Qt::Key_Escape); });
  expectCloses([this] { form.close(); });
}

TEST_F(DateDialog, left_by_cancel_forgets_the_filter_that_ok_made) {
  click("ButtonOK");
  EXPECT_EQ(form.filter(), "(d_updated >= #3/7/2026#)");
  form.show();
  (void)QTest::qWaitForWindowActive(&form);
  click("ButtonCancel");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.filter(), "");
}

}  // namespace
}  // namespace zamo
