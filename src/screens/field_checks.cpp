#include "screens/field_checks.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "platform/coordinates.h"
#include "platform/dates.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "screens/bindings.h"
#include "screens/field_check_tables.h"
#include "screens/form_events.h"

namespace zamo {
namespace {

const TableMessages kRefusals(
    "box \"Prevalidation Error - \" and what the field holds: a field of a notice form is left with a value "
    "that it doesn't take",
    kFieldChecks);

// The day, month and year boxes of the date to which the box belongs.
bool isCalendarDate(const Screen& screen, ControlName box) {
  const DateBoxes boxes = dateBoxes(box);
  const std::string& day = screen.text(madeName(boxes.day));
  const std::string& month = screen.text(madeName(boxes.month));
  const std::string& year = screen.text(madeName(boxes.year));
  if (day.empty() || month.empty() || year.empty()) return true;
  return parseDate(day + "/" + month + "/" + year).has_value();
}

// `detail` gets what a time has to tell besides its message.
bool fits(const FieldCheck& check, const Screen& screen, ControlName control, std::string& detail) {
  const std::string& text = screen.text(control);
  switch (check.test) {
    case FieldTest::number:
      return isNumberIn(check.limits, text);
    case FieldTest::integer:
      return isIntegerIn(check.limits, text);
    case FieldTest::shortInteger:
      return isIntegerIn(check.limits, text) && text.size() <= 4;
    case FieldTest::notNumeric:
      return !isNumericText(text);
    case FieldTest::northSouth:
      return isNorthSouth(text);
    case FieldTest::eastWest:
      return isEastWest(text);
    case FieldTest::fourOrMore:
      return text.size() >= 4;
    case FieldTest::startTime:
      return checkHourFrom(text, detail) && isIntegerIn(kNoLimits, text);
    case FieldTest::stopTime:
      return checkHourTo(text, detail) && isIntegerIn(kNoLimits, text);
    case FieldTest::dateWithParts:
      return isCalendarDate(screen, control);
  }
  return true;
}

bool isMeant(const FieldCheck& check, FormCode code, ControlName control) {
  if (!isOneOf(code, check.forms)) return false;
  return check.isGroup ? check.control.begins(control) : control == madeName(check.control);
}

// Whether leaving the field says anything about its value.
bool isJudged(FormCode code, ControlName control) {
  return std::any_of(std::begin(kFieldChecks), std::end(kFieldChecks),
                     [&](const FieldCheck& check) { return isMeant(check, code, control); }) ||
         std::any_of(
             std::begin(kUncheckedFields), std::end(kUncheckedFields),
             [&](const UncheckedField& row) { return isOneOf(code, row.forms) && control == row.control; });
}

// The check that refuses the value that stands in the field; none for an empty field.
const FieldCheck* findRefusal(const Screen& screen, ControlName control, std::string& detail) {
  for (const FieldCheck& check : kFieldChecks) {
    if (!isMeant(check, screen.code(), control) || screen.isEmpty(control)) continue;
    if (!fits(check, screen, control, detail)) return &check;
  }
  return nullptr;
}

void tellRefusal(const Host& host, const FieldCheck& check, const std::string& detail) {
  if (check.beeps) host.beep();
  host.showBox({detail + std::string(check.message), std::string(check.title), BoxIcon::exclamation});
}

void takeValue(NoticeForm& form, ControlName control) {
  form.work.state.screenIsBlank = false;
  if (control == "Txt_12A_OpAgcy") form.screen.setText(control, padTo3(form.screen.text(control)));
}

}  // namespace

bool mayLeaveField(NoticeForm& form, ControlName control) {
  std::string detail;
  if (const FieldCheck* const refusal = findRefusal(form.screen, control, detail)) {
    tellRefusal(form.work.host, *refusal, detail);
    return false;
  }
  if (isJudged(form.screen.code(), control) && !form.screen.isEmpty(control)) takeValue(form, control);
  leaveField(form, control);
  return true;
}

bool isAcceptable(const Screen& screen, ControlName control) {
  std::string detail;
  return findRefusal(screen, control, detail) == nullptr;
}

}  // namespace zamo
