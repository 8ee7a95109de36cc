// The window of a notice form: shows the form's screen and passes the user's hand on to it.
#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "screens/layouts.h"
#include "screens/notice_form.h"
#include "widgets/leave_checks.h"

class QBoxLayout;
class QGridLayout;
class QRadioButton;
class QScrollArea;
class QTabWidget;

namespace zamo {

// Whether the user may leave a field, as mayLeaveField gives it.
using LeaveRule = std::function<bool(NoticeForm& form, ControlName control)>;

// Makes a widget for every control that the form's screen has when the window is made, and follows the screen
// from then on. One window a form; the form must outlive it.
class NoticeWindow final : public QDialog {
 public:
  NoticeWindow(NoticeForm& form, LeaveRule mayLeave, QWidget* parent = nullptr);
  NoticeWindow(const NoticeWindow&) = delete;
  NoticeWindow& operator=(const NoticeWindow&) = delete;
  ~NoticeWindow() override;

  // Puts the focus on the first control of the page in front that can take it.
  void focusFirst();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Box {
    QWidget* widget = nullptr;
    QGridLayout* grid = nullptr;
  };

  void makeWidgets();
  void layOut();
  QLayout* makeTopStrip();
  QLayout* makeButtonStrip();
  QWidget* makePages();
  QScrollArea* makePage(const PageRow& row);
  void makeBox(const BoxRow& row);
  void fillCell(const Cell& cell);
  void finishBox(const Box& box);
  void setTabOrder();
  void chooseSize();

  void connectControl(const Control& control, QWidget& widget);
  void pick(const std::string& name, int index);
  void press(const std::string& name);
  void connectScreen();
  void settleTabStop(const std::string& group);
  void focus(const std::string& name);
  void focusNow(QWidget& wanted);
  void bringToView(QWidget& part);
  bool askToLeave(QWidget& field);

  // Does what the user did to a control. What goes wrong is told in a box that is titled `name`; then
  // the control shows what the screen holds.
  void act(const std::string& name, const std::function<void(Screen&)>& action);

  QWidget* widget(std::string_view name) const;

  NoticeForm& form_;
  LeaveRule mayLeave_;
  FormLayout layout_;
  std::map<std::string, QWidget*, std::less<>> widgets_;
  std::map<std::string, std::vector<QRadioButton*>, std::less<>> options_;  // by group
  std::map<std::string, Box, std::less<>> boxes_;
  QTabWidget* tabs_ = nullptr;
  std::vector<QScrollArea*> pages_;
  LeaveChecks* checks_ = nullptr;
  bool leaving_ = false;
};

// Shows a form modally until it closes. The form that a walk goes on in takes the place of the one before.
void showNoticeWindow(NoticeForm& form, QWidget* parent);

}  // namespace zamo
