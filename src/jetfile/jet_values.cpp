#include "jetfile/jet_values.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zamo {
namespace {

unsigned char byteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

// A character takes one byte, and two behind a byte of 0, which the next one ends.
std::optional<std::u16string> unpacked(std::string_view bytes) {
  std::u16string text;
  bool packed = true;
  for (std::size_t at = 0; at < bytes.size();) {
    if (bytes[at] == 0) {
      packed = !packed;
      ++at;
    } else if (packed) {
      text += byteAt(bytes, at++);
    } else {
      if (at + 1 == bytes.size()) return {};
      text += static_cast<char16_t>(byteAt(bytes, at) | (byteAt(bytes, at + 1) << 8));
      at += 2;
    }
  }
  return text;
}

std::optional<std::u16string> plain(std::string_view bytes) {
  if (bytes.size() % 2 != 0) return {};
  std::u16string text;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    text += static_cast<char16_t>(byteAt(bytes, at) | (byteAt(bytes, at + 1) << 8));
  }
  return text;
}

// The digits of the whole number with a point before the last `scale` of them, and without zeros that say
// nothing.
std::string withPoint(std::string digits, int scale, bool negative) {
  const auto behind = static_cast<std::size_t>(scale);
  if (digits.size() <= behind) digits.insert(0, behind + 1 - digits.size(), '0');
  if (behind > 0) {
    digits.insert(digits.size() - behind, 1, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
  }
  return negative && digits != "0" ? "-" + digits : digits;
}

// Divides the number, whose most significant word comes first, by ten; gives what remains.
unsigned divideByTen(std::array<std::uint32_t, 4>& words) {
  std::uint64_t rest = 0;
  for (std::uint32_t& word : words) {
    rest = (rest << 32) | word;
    word = static_cast<std::uint32_t>(rest / 10);
    rest %= 10;
  }
  return static_cast<unsigned>(rest);
}

}  // namespace

std::optional<std::u16string> jetText(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") ? unpacked(bytes.substr(2)) : plain(bytes);
}

std::optional<JetDecimal> jetDecimal(std::string_view bytes, int scale) {
  constexpr int largestScale = 28;
  if (bytes.size() != 17 || scale < 0 || scale > largestScale) return {};
  std::array<std::uint32_t, 4> words{};
  for (std::size_t word = 0; word < words.size(); ++word) {
    for (std::size_t i = 0; i < 4; ++i) {
      words[word] |= static_cast<std::uint32_t>(byteAt(bytes, 1 + word * 4 + i)) << (8 * i);
    }
  }
  std::string digits;
  while (words != std::array<std::uint32_t, 4>{}) {
    digits.insert(digits.begin(), static_cast<char>('0' + divideByTen(words)));
  }
  if (digits.empty()) digits = "0";
  return JetDecimal{withPoint(std::move(digits), scale, bytes[0] != 0)};
}

JetDecimal jetMoney(std::int64_t units) {
  const std::string digits = std::to_string(units);
  const bool negative = units < 0;
  return {withPoint(digits.substr(negative ? 1 : 0), 4, negative)};
}

double jetSingle(float value) {
  std::array<char, 64> text{};
  const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
  double result = value;
  std::from_chars(text.data(), written.ptr, result);
  return result;
}

std::optional<DateTime> jetDateTime(JetMoment moment) {
  constexpr double firstDay = -657434;
  constexpr double lastDay = 2958465;
  constexpr int secondsADay = 86400;
  double day = std::trunc(moment.days);
  // Also no when it isn't a number.
  if (!(day >= firstDay && day <= lastDay)) return {};
  auto second = static_cast<int>(std::lround(std::fabs(moment.days - day) * secondsADay));
  if (second == secondsADay) {
    second = 0;
    ++day;
  }
  if (day > lastDay) return {};
  constexpr std::chrono::sys_days dayZero{
      Date{std::chrono::year(1899), std::chrono::month(12), std::chrono::day(30)}};
  DateTime result;
  result.date = Date(dayZero + std::chrono::days(static_cast<int>(day)));
  result.hour = second / 3600;
  result.minute = second / 60 % 60;
  result.second = second % 60;
  return result;
}

}  // namespace zamo
