// The rules of the fields, applied when a field of a form is left.
#pragma once

#include <QLineEdit>

#include "query/field_rules.h"
#include "widgets/leave_checks.h"
#include "widgets/qt_text.h"

namespace zamo {

// The host must outlive the form, to which the checks belong. `cancel` closes it whatever the fields hold.
inline LeaveChecks* checkFieldsOnLeaving(const Host& host, QWidget& form, QWidget& cancel) {
  auto* const checks = new LeaveChecks(form, [&host](QWidget& control) {
    const auto* const field = qobject_cast<QLineEdit*>(&control);
    return field == nullptr || mayStandIn(host, toText(field->objectName()), toText(field->text()));
  });
  checks->setFree(cancel);
  return checks;
}

}  // namespace zamo
