// A notice form in its window over a scripted host. Nothing but the window itself acts: what the form would
// do is written down.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "screens/control_table.h"
#include "screens/control_text.h"
#include "screens/form_widgets.h"
#include "screens/notice_window.h"
#include "support/scripted_host.h"
#include "support/widgets_application.h"
#include "widgets/qt_text.h"

namespace zamo::test {

class ShownForm {
 public:
  explicit ShownForm(FormCode code) : form(work, code) {
    makeControls(form.screen);
    form.screen.raised = [this](Event event, ControlName name) {
      raised.push_back(nameOf(event) + " " + std::string(name) + (form.screen.byUser ? " by the user" : ""));
      if (onRaised) onRaised(event, name);
    };
  }

  void show(QSize size = {}) {
    window = std::make_unique<NoticeWindow>(form,
                                            [this](NoticeForm&, ControlName name) { return mayLeave(name); });
    if (size.isValid()) window->resize(size);
    window->show();
    (void)QTest::qWaitForWindowActive(window.get());
  }

  template <typename Widget = QWidget>
  Widget& control(ControlName name) {
    auto* const found =
        dynamic_cast<Widget*>(window->findChild<QWidget*>(QString::fromStdString(std::string(name))));
    if (found == nullptr) throw std::logic_error("no control " + std::string(name));
    return *found;
  }
  QLineEdit& box(ControlName name) { return control<QLineEdit>(name); }
  QComboBox& combo(ControlName name) { return control<QComboBox>(name); }
  PickList& list(ControlName name) { return control<PickList>(name); }
  QRadioButton& option(ControlName name) { return control<QRadioButton>(name); }
  QPushButton& button(ControlName name) { return control<QPushButton>(name); }
  QPlainTextEdit& memo(ControlName name) { return control<QPlainTextEdit>(name); }
  QTabWidget& pages() { return *window->findChild<QTabWidget*>("Pages"); }

  std::string focused() const {
    const QWidget* const widget = window->focusWidget();
    return widget == nullptr ? "" : widget->objectName().toStdString();
  }

  void clickItem(ControlName name, int row) {
    PickList& items = list(name);
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualItemRect(items.item(row)).center());
  }

  Script script;
  RunState run;
  Host host = makeScriptedHost(script);
  GzmpMap map;
  Workplace work{
      .host = host, .run = run, .map = map, .agencies = {}, .dialogs = {}, .state = {}, .next = {}};
  Application application;
  NoticeForm form;
  std::vector<std::string> raised;
  std::function<void(Event, ControlName)> onRaised;
  std::function<bool(ControlName)> mayLeave = [](ControlName) { return true; };
  std::unique_ptr<NoticeWindow> window;

 private:
  static std::string nameOf(Event event) {
    if (event == Event::change) return "change";
    return event == Event::click ? "click" : "doubleClick";
  }
};

inline constexpr FormCode kEveryForm[] = {kGS1Assign,   kGT1Assign, kGS2Allot, kGT2Allot,
                                          kGA1SubAllot, kTB5,       kTB3,      kTB2};

}  // namespace zamo::test
