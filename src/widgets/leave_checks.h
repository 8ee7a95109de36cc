// Checks on leaving a field: a refused value keeps the focus where it is, until it is put right or the form
// is closed.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace zamo {

class LeaveChecks final : public QObject {
 public:
  // `mayLeave` is asked about the field that has the focus before anything else of `form` takes it or is
  // clicked. It tells the user what is wrong and gives whether the field may be left; when it may not, the
  // click or key is swallowed, so that nothing else happens and nothing else is asked.
  LeaveChecks(QWidget& form, std::function<bool(QWidget& field)> mayLeave);

  // Makes a control work whatever the field holds, as the button that closes the form must.
  void setFree(QWidget& control);

  // Asks about the field that has the focus now.
  bool mayLeave();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void holdFocus(QWidget& field, const QEvent& event);

  QWidget& form_;
  std::function<bool(QWidget&)> mayLeave_;
  bool asking_ = false;
  bool pressIsRefused_ = false;  // the click that is on its way wanted the focus
};

}  // namespace zamo
