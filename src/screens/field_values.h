// Tests of what stands in a field.
#pragma once

#include <limits>
#include <string_view>

namespace zamo {

// A range of numbers. Each end belongs to it unless told otherwise.
struct Limits {
  double low = -std::numeric_limits<double>::infinity();
  double high = std::numeric_limits<double>::infinity();
  bool lowIsIn = true;
  bool highIsIn = true;
};

constexpr Limits within(double low, double high) {
  return {.low = low, .high = high};
}
constexpr Limits notBelow(double low) {
  return {.low = low};
}
constexpr Limits atMost(double high) {
  return {.high = high};
}
constexpr Limits below(double high) {
  return {.high = high, .highIsIn = false};
}
// Above `low` and at most `high`.
constexpr Limits above(double low, double high) {
  return {.low = low, .high = high, .lowIsIn = false};
}

// Numeric, and in the range.
bool isNumberIn(const Limits& limits, std::string_view text);

// The same without a decimal point or a comma.
bool isIntegerIn(const Limits& limits, std::string_view text);

}  // namespace zamo
