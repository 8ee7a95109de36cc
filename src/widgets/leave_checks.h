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

  // Does `act` when the key or the click that leaves the field has had its way: a button that loses the focus
  // while it is pressed isn't clicked.
  void afterLeaving(std::function<void()> act);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void holdFocus(QWidget& field, const QEvent& event);
  bool refusesKey(QWidget& field, const QEvent& event);
  void noteEndOfClick(const QWidget& widget, const QEvent& event);
  void finishLeaving();

  QWidget& form_;
  std::function<bool(QWidget&)> mayLeave_;
  bool asking_ = false;
  bool pressIsRefused_ = false;         // the click that is on its way wanted the focus
  bool isClicking_ = false;             // a click took the focus and its button is still down
  const QWidget* asked_ = nullptr;      // by the key that is on its way
  std::function<void()> afterLeaving_;  // none: nothing is left to do
};

}  // namespace zamo
