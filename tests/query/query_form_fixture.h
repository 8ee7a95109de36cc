// The query form over a working database and a scripted host, driven as a user does it.
#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "database/working_database.h"
#include "query/query_form.h"
#include "support/widgets_application.h"

namespace zamo::test {

using Texts = std::vector<std::string>;

class QueryForm : public WorkingDatabase {
 protected:
  QueryForm() {
    run.DbConn = std::make_unique<Connection>(path);
    host.setHourglass = [this](bool on) { hourglasses.push_back(on); };
  }

  void putNotice(const std::string& adm, const std::string& ctry) {
    raw.run("INSERT INTO fmtv_vorna (adm, ctry, notice_typ) VALUES ('" + adm + "', '" + ctry + "', 'GT1')");
  }
  void putContour(const std::string& adm, const std::string& ctry, const std::string& points = "3") {
    raw.run("INSERT INTO lmz_contour (contour_id, adm, ctry, nb_test_pts) VALUES (1, '" + adm + "', '" +
            ctry + "', " + points + ")");
  }
  void putSomeNotices() {
    putNotice("SUI", "LIE");
    putNotice("F", "MCO");
    putNotice("F", "F");
    putNotice("BEL", "F");
  }

  void open() {
    form.emplace(host, run);
    form->show();
    (void)QTest::qWaitForWindowActive(&*form);
  }

  template <typename Widget = QWidget>
  Widget& control(const char* name) {
    auto* const found = form->findChild<Widget*>(name);
    if (found == nullptr) throw std::logic_error(std::string("no control ") + name);
    return *found;
  }
  QLineEdit& field(const char* name) { return control<QLineEdit>(name); }
  QListWidget& list(const char* name) { return control<QListWidget>(name); }
  bool isTicked(const char* name) { return control<QCheckBox>(name).isChecked(); }
  bool isEnabled(const char* name) { return control(name).isEnabled(); }
  bool isShown(const char* name) { return control(name).isVisible(); }

  // A click as the user makes it: upon the indicator of a box or an option.
  void click(const char* name) {
    QWidget& target = control(name);
    const bool isButton = qobject_cast<QPushButton*>(&target) != nullptr;
    QTest::mouseClick(&target, Qt::LeftButton, {},
                      isButton ? target.rect().center() : QPoint(8, target.height() / 2));
  }
  void type(const char* name, const QString& text) {
    field(name).setFocus();
    QTest::keyClicks(&field(name), text);
  }
  QPoint placeOf(const char* name, const char* text) {
    const auto items = list(name).findItems(text, Qt::MatchExactly);
    if (items.size() != 1) throw std::logic_error(std::string("not one item ") + text);
    list(name).scrollToItem(items[0]);
    return list(name).visualItemRect(items[0]).center();
  }
  void clickItem(const char* name, const char* text) {
    QTest::mouseClick(list(name).viewport(), Qt::LeftButton, {}, placeOf(name, text));
  }
  void doubleClickItem(const char* name, const char* text) {
    const QPoint place = placeOf(name, text);
    QTest::mouseClick(list(name).viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list(name).viewport(), Qt::LeftButton, {}, place);
  }
  Texts items(const char* name) {
    Texts texts;
    for (int row = 0; row < list(name).count(); ++row)
      texts.push_back(list(name).item(row)->text().toStdString());
    return texts;
  }

  // What stands behind the select when OK is pressed now.
  std::string whereOnOk() {
    click("ButtonOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(run.qryConfirmed);
    const std::size_t at = run.qrySql.find(" WHERE ");
    return at == std::string::npos ? "" : run.qrySql.substr(at);
  }

  // The focus can't leave the field with this text, of which the user is told once.
  void expectHeld(const char* name, const QString& text, const char* title, const char* message, int beeps) {
    SCOPED_TRACE(std::string(name) + " " + text.toStdString());
    field(name).clear();
    type(name, text);
    QTest::keyClick(&field(name), Qt::Key_Tab);
    EXPECT_TRUE(field(name).hasFocus());
    EXPECT_EQ(script.boxes.size(), 1U);
    expectBox(0, message, title, BoxIcon::exclamation);
    expectNothingElse();
    EXPECT_EQ(script.beeps, beeps);
    EXPECT_EQ(field(name).text(), text);
    script.boxes.clear();
    script.beeps = 0;
    field(name).clear();
  }
  void expectLeft(const char* name, const QString& text) {
    SCOPED_TRACE(std::string(name) + " " + text.toStdString());
    field(name).clear();
    type(name, text);
    QTest::keyClick(&field(name), Qt::Key_Tab);
    EXPECT_FALSE(field(name).hasFocus());
    EXPECT_EQ(script.beeps, 0);
    expectNoBox();
    field(name).clear();
  }

  Application application;
  RunState run;
  std::vector<bool> hourglasses;
  std::optional<QrySelectFrmKV19> form;
};

}  // namespace zamo::test
