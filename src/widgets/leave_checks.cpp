#include "widgets/leave_checks.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>
#include <utility>

namespace zamo {
namespace {

constexpr const char* kFree = "leavesUnchecked";

bool isLeavingKey(const QEvent& event) {
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool staysInForm(Qt::FocusReason reason) {
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

bool comesOfKey(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
         reason == Qt::ShortcutFocusReason;
}

}  // namespace

LeaveChecks::LeaveChecks(QWidget& form, std::function<bool(QWidget& field)> mayLeave)
    : QObject(&form), form_(form), mayLeave_(std::move(mayLeave)) {
  QCoreApplication::instance()->installEventFilter(this);
}

void LeaveChecks::setFree(QWidget& control) {
  control.setProperty(kFree, true);
  // A click that took the focus would be a way out of the field, too.
  control.setFocusPolicy(Qt::TabFocus);
}

bool LeaveChecks::mayLeave() {
  QWidget* const field = form_.focusWidget();
  if (field == nullptr) return true;
  asking_ = true;
  const bool allowed = mayLeave_(*field);
  asking_ = false;
  if (!allowed) field->setFocus();
  return allowed;
}

void LeaveChecks::afterLeaving(std::function<void()> act) {
  afterLeaving_ = std::move(act);
  if (!isClicking_) QMetaObject::invokeMethod(this, &LeaveChecks::finishLeaving, Qt::QueuedConnection);
}

void LeaveChecks::finishLeaving() {
  // A list that the click has opened is chosen from first.
  if (!afterLeaving_ || isClicking_ || QApplication::activePopupWidget() != nullptr) return;
  std::exchange(afterLeaving_, {})();
}

void LeaveChecks::noteEndOfClick(const QWidget& widget, const QEvent& event) {
  const bool isUp = event.type() == QEvent::MouseButtonRelease;
  if (isUp) isClicking_ = false;
  if (!isUp && (event.type() != QEvent::Hide || widget.windowType() != Qt::Popup)) return;
  if (afterLeaving_) QMetaObject::invokeMethod(this, &LeaveChecks::finishLeaving, Qt::QueuedConnection);
}

// The focus goes before a click arrives, or because the program moves it.
void LeaveChecks::holdFocus(QWidget& field, const QEvent& event) {
  const auto reason = static_cast<const QFocusEvent&>(event).reason();
  if (std::exchange(asked_, nullptr) == &field && comesOfKey(reason)) return;
  if (!staysInForm(reason) || !field.isVisible() || !field.isEnabled() || !form_.isVisible()) return;
  isClicking_ = reason == Qt::MouseFocusReason;
  asking_ = true;
  const bool allowed = mayLeave_(field);
  if (!allowed) field.setFocus();
  pressIsRefused_ = !allowed && reason == Qt::MouseFocusReason;
  asking_ = false;
}

bool LeaveChecks::refusesKey(QWidget& field, const QEvent& event) {
  asked_ = nullptr;
  isClicking_ = false;
  if (&field != form_.focusWidget() || !isLeavingKey(event)) return false;
  if (!mayLeave()) return true;
  asked_ = &field;
  return false;
}

bool LeaveChecks::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  noteEndOfClick(widget, *event);
  if (asking_ || widget.window() != &form_ || widget.property(kFree).toBool()) return false;
  switch (event->type()) {
    case QEvent::FocusOut:
      holdFocus(widget, *event);
      return false;
    case QEvent::MouseButtonPress:
      return std::exchange(pressIsRefused_, false);
    case QEvent::KeyPress:
      return refusesKey(widget, *event);
    case QEvent::Shortcut:
      return !mayLeave();
    default:
      return false;
  }
}

}  // namespace zamo
