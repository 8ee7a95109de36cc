// The operator's hand and eyes at a form's window: everything goes through the keyboard and the mouse, and
// what is seen is what the widgets show.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "screens/control_text.h"
#include "screens/form_widgets.h"
#include "screens/notice_window.h"
#include "widgets/qt_text.h"

namespace zamo::test {

using Texts = std::vector<std::string>;

// What widgets show of a notice, by name: texts, chosen options as "set", and the items of lists joined by
// "|".
using Contents = std::map<std::string, std::string>;

template <typename Widget>
Widget& childOf(const QWidget& form, const std::string& name) {
  auto* const found = dynamic_cast<Widget*>(form.findChild<QWidget*>(QString::fromStdString(name)));
  if (found == nullptr) throw std::logic_error("no control " + name);
  return *found;
}

// As the display does with the window under one that closes.
inline void activate(QWidget& window) {
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << window.objectName().toStdString();
}

class Operator {
 public:
  Operator(NoticeWindow& shownWindow, NoticeForm& shownForm) : window(shownWindow), form(shownForm) {}

  NoticeWindow& window;
  NoticeForm& form;

  // --- what is seen

  template <typename Widget = QWidget>
  Widget& control(ControlName name) const {
    return childOf<Widget>(window, std::string(name));
  }

  // On its page, whichever page is in front.
  bool sees(ControlName name) const {
    const QWidget& one = control(name);
    for (QWidget* holder = one.parentWidget(); holder != nullptr; holder = holder->parentWidget()) {
      if (auto* const page = dynamic_cast<QScrollArea*>(holder)) return one.isVisibleTo(page->widget());
    }
    return one.isVisibleTo(&window);
  }
  bool canUse(ControlName name) const { return sees(name) && control(name).isEnabled(); }

  std::string text(ControlName name) const {
    const QWidget& one = control(name);
    if (auto* const box = dynamic_cast<const QLineEdit*>(&one)) return toText(box->text());
    if (auto* const combo = dynamic_cast<const QComboBox*>(&one)) return toText(combo->currentText());
    if (auto* const memo = dynamic_cast<const QPlainTextEdit*>(&one)) return toText(memo->toPlainText());
    throw std::logic_error("no field " + std::string(name));
  }
  bool isSet(ControlName name) const { return control<QRadioButton>(name).isChecked(); }
  std::string caption(ControlName name) const {
    const QWidget& one = control(name);
    if (auto* const label = dynamic_cast<const QLabel*>(&one)) return toText(label->text());
    if (auto* const box = dynamic_cast<const QGroupBox*>(&one)) return plain(box->title());
    return plain(control<QAbstractButton>(name).text());
  }
  Texts items(ControlName name) const {
    Texts all;
    const QWidget& one = control(name);
    if (auto* const combo = dynamic_cast<const QComboBox*>(&one)) {
      for (int i = 0; i < combo->count(); ++i) all.push_back(toText(combo->itemText(i)));
      return all;
    }
    const auto& list = control<PickList>(name);
    for (int i = 0; i < list.count(); ++i) all.push_back(toText(list.item(i)->text()));
    return all;
  }
  bool isGrey(ControlName name) const {
    return control(name).palette().color(QPalette::Base) == QColor(0xC0, 0xC0, 0xC0);
  }
  std::string focused() const {
    const QWidget* const widget = window.focusWidget();
    return widget == nullptr ? "" : widget->objectName().toStdString();
  }

  Contents contents() const {
    Contents all;
    form.screen.forEach([&](const Control& known) { note(all, madeName(known.name)); });
    return all;
  }

  // --- what is done

  // Brings the control's page to the front.
  void turnTo(ControlName name) {
    auto* const pages = window.findChild<QTabWidget*>("Pages");
    for (int i = 0; pages != nullptr && i < pages->count(); ++i) {
      if (!pages->widget(i)->isAncestorOf(&control(name)) || i == pages->currentIndex()) continue;
      QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {}, pages->tabBar()->tabRect(i).center());
      QCoreApplication::processEvents();
    }
  }

  void click(ControlName name) {
    turnTo(name);
    QWidget& one = control(name);
    EXPECT_TRUE(one.isVisible()) << name << " is out of sight";
    auto* const area = dynamic_cast<QAbstractScrollArea*>(&one);
    QWidget& target = area == nullptr ? one : *area->viewport();
    // An option is hit at its circle, wherever its caption ends.
    const QPoint place(std::min(10, target.width() / 2), target.height() / 2);
    QTest::mouseClick(&target, Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
  }

  // As a display gives it: the program goes on between the press and the release.
  void clickSlowly(QWidget& target, QPoint place) {
    const QPoint at = target.mapTo(&window, place);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
  }
  void clickSlowly(ControlName name) {
    QWidget& target = control(name);
    EXPECT_TRUE(target.isVisible()) << name << " is out of sight";
    clickSlowly(target, {std::min(10, target.width() / 2), target.height() / 2});
  }

  void clickItem(ControlName name, int row) { hitItem(name, row, false); }
  void doubleClickItem(ControlName name, int row) { hitItem(name, row, true); }
  void clickItem(ControlName name, const std::string& item) { hitItem(name, rowOf(name, item), false); }
  void doubleClickItem(ControlName name, const std::string& item) { hitItem(name, rowOf(name, item), true); }

  // Puts the focus on a field as the operator does: with the mouse, on a combo with the keyboard.
  void go(ControlName name) {
    turnTo(name);
    QWidget& field = control(name);
    if (dynamic_cast<QComboBox*>(&field) == nullptr) {
      click(name);
    } else {
      field.setFocus(Qt::TabFocusReason);
    }
    EXPECT_EQ(focused(), std::string(name));
  }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window.focusWidget(), key, modifiers);
    QCoreApplication::processEvents();
  }
  void tab() { press(Qt::Key_Tab); }

  // In place of what stands in the field that has the focus.
  void typeHere(const std::string& value) {
    QTest::keyClick(window.focusWidget(), Qt::Key_A, Qt::ControlModifier);
    if (value.empty()) QTest::keyClick(window.focusWidget(), Qt::Key_Delete);
    // The toolkit's own typing knows ASCII alone.
    for (const QChar c : fromText(value)) {
      QTest::sendKeyEvent(QTest::Click, window.focusWidget(), static_cast<Qt::Key>(c.toUpper().unicode()),
                          QString(c), Qt::NoModifier);
    }
  }
  void type(ControlName name, const std::string& value) {
    go(name);
    typeHere(value);
  }
  // Types and leaves the field.
  void enter(ControlName name, const std::string& value) {
    type(name, value);
    tab();
  }

  // From the open list of a combo.
  void pick(ControlName name, const std::string& item) {
    go(name);
    auto& combo = control<QComboBox>(name);
    const int row = rowOf(name, item);
    QTest::keyClick(&combo, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(combo.view()->isVisible()) << name;
    QTest::keyClick(combo.view(), Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    activate(window);
    EXPECT_EQ(text(name), item) << name;
  }

 private:
  static std::string plain(QString captioned) {
    // A letter's mnemonic is no part of what is read.
    return toText(captioned.replace("&&", "\n").remove('&').replace('\n', '&'));
  }

  int rowOf(ControlName name, const std::string& item) const {
    const Texts all = items(name);
    const auto found = std::find(all.begin(), all.end(), item);
    if (found == all.end()) throw std::logic_error(std::string(name) + " has no item " + item);
    return static_cast<int>(found - all.begin());
  }

  void hitItem(ControlName name, int row, bool twice) {
    turnTo(name);
    auto& list = control<PickList>(name);
    list.scrollToItem(list.item(row));
    const QPoint place = list.visualItemRect(list.item(row)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    if (twice) QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
  }

  void note(Contents& all, ControlName name) const {
    const QWidget& one = control(name);
    if (dynamic_cast<const PickList*>(&one) != nullptr) {
      if (name == "ListAdmAvail") return;
      std::string joined;
      for (const std::string& item : items(name)) joined += (joined.empty() ? "" : "|") + item;
      if (!joined.empty()) all[std::string(name)] = joined;
    } else if (auto* const option = dynamic_cast<const QRadioButton*>(&one)) {
      if (option->isChecked()) all[std::string(name)] = "set";
    } else if (dynamic_cast<const QLineEdit*>(&one) != nullptr ||
               dynamic_cast<const QComboBox*>(&one) != nullptr ||
               dynamic_cast<const QPlainTextEdit*>(&one) != nullptr) {
      if (!text(name).empty()) all[std::string(name)] = text(name);
    }
  }
};

}  // namespace zamo::test
