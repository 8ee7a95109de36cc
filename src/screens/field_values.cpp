#include "screens/field_values.h"

#include "platform/numbers.h"

namespace zamo {

bool isNumberIn(const Limits& limits, std::string_view text) {
  if (!isNumericText(text)) return false;
  const double value = leadingNumber(text);
  const bool notTooLow = limits.lowIsIn ? value >= limits.low : value > limits.low;
  const bool notTooHigh = limits.highIsIn ? value <= limits.high : value < limits.high;
  return notTooLow && notTooHigh;
}

bool isIntegerIn(const Limits& limits, std::string_view text) {
  return text.find_first_of(",.") == std::string_view::npos && isNumberIn(limits, text);
}

}  // namespace zamo
