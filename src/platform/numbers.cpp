#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::size_t kLongestExponent = 20;

double valueOf(std::string_view number);

constexpr bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t digitsFrom(std::string_view text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

// The length of the number at the head of `text`, its sign included; 0 when there is none.
std::size_t numberLength(std::string_view text) {
  std::size_t at = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const std::size_t whole = digitsFrom(text, at);
  std::size_t digits = whole - at;
  at = whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = digitsFrom(text, at + 1);
    digits += fraction - at - 1;
    at = fraction;
  }
  if (digits == 0) return 0;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t end = digitsFrom(text, exponent);
    if (end > exponent) at = end;
  }
  return at;
}

// Whether a number that is no double lies beyond 1, and not between it and 0: by the place of its first digit
// that isn't 0.
bool isBeyondOne(std::string_view number) {
  const std::size_t exponentAt = std::min(number.find_first_of("eE"), number.size());
  const std::string_view digits = number.substr(0, exponentAt);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
  const double place = static_cast<double>(point) - static_cast<double>(first);
  std::string_view exponentText = number.substr(exponentAt);
  if (!exponentText.empty()) exponentText.remove_prefix(1);
  return place + valueOf(exponentText.substr(0, kLongestExponent)) > 0;
}

// So many digits make a number below 2^53, and as many places divide it by a power of ten that is exact: one
// division then gives the nearest double.
constexpr std::size_t kExactDigits = 15;
constexpr auto kPowersOfTen = [] {
  std::array<double, kExactDigits + 1> powers{};
  double power = 1;
  for (double& one : powers) {
    one = power;
    power *= 10;
  }
  return powers;
}();

// A text that is nothing but digits, with a sign and a point at most, as nearly all numbers are.
struct PlainNumber {
  bool isOne = false;
  bool isNegative = false;
  std::int64_t digits = 0;
  std::size_t places = 0;  // behind the point

  double value() const {
    const double whole = static_cast<double>(digits) / kPowersOfTen[places];
    return isNegative ? -whole : whole;
  }
};

inline PlainNumber plainNumber(std::string_view text) {
  PlainNumber number;
  if (text.size() > kExactDigits) return number;
  number.isNegative = text.starts_with('-');
  if (number.isNegative || text.starts_with('+')) text.remove_prefix(1);
  std::size_t points = 0;
  for (const char c : text) {
    if (isDigit(c)) {
      number.digits = 10 * number.digits + (c - '0');
      number.places += points;
    } else if (c == '.') {
      ++points;
    } else {
      return number;
    }
  }
  number.isOne = points <= 1 && text.size() > points;
  return number;
}

double valueOf(std::string_view number) {
  if (number.starts_with('+')) number.remove_prefix(1);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  if (!isBeyondOne(number)) return 0;
  constexpr double infinity = std::numeric_limits<double>::infinity();
  return number.front() == '-' ? -infinity : infinity;
}

}  // namespace

bool isNumericText(std::string_view text) {
  text = trimText(text);
  return plainNumber(text).isOne || (!text.empty() && numberLength(text) == text.size());
}

double leadingNumber(std::string_view text) {
  const PlainNumber plain = plainNumber(text);
  if (plain.isOne) return plain.value();
  const auto isGap = [](char c) { return c == ' ' || c == '\t'; };
  if (std::none_of(text.begin(), text.end(), isGap)) return valueOf(text.substr(0, numberLength(text)));
  std::string closed;
  std::copy_if(text.begin(), text.end(), std::back_inserter(closed), [&](char c) { return !isGap(c); });
  return valueOf(std::string_view(closed).substr(0, numberLength(closed)));
}

bool isAllDigits(std::string_view text, const Yield& yield) {
  bool allDigits = true;
  for (const char c : text) {
    allDigits = allDigits && isDigit(c);
    if (yield) yield();
  }
  return allDigits;
}

std::string numberText(double value) {
  std::array<char, 400> buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

}  // namespace zamo
