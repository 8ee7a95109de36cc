#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zamo {
namespace {

// Bytes 80 to 9F; all others have the number of their character.
// clang-format off
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

constexpr char32_t kIllFormed = 0xFFFFFFFF;

void appendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Takes one character off the front of `utf8`; an ill-formed sequence costs one byte.
char32_t takeCharacter(std::string_view& utf8) {
  const auto byte = [&utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 1;
  char32_t value = lead;
  if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    value = lead & 0x07U;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3;
    value = lead & 0x0FU;
  } else if (lead >= 0xC2 && lead < 0xE0) {
    length = 2;
    value = lead & 0x1FU;
  } else if (lead >= 0x80) {
    value = kIllFormed;
  }
  for (std::size_t i = 1; i < length; ++i) {
    if (i >= utf8.size() || (byte(i) & 0xC0) != 0x80) {
      length = 1;
      value = kIllFormed;
      break;
    }
    value = (value << 6) | (byte(i) & 0x3FU);
  }
  // A longer form than the character needs isn't well formed either, nor is half of a pair.
  constexpr char32_t lowestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  if (value < lowestOfLength[length] || (value >= 0xD800 && value < 0xE000) || value > 0x10FFFF) {
    length = 1;
    value = kIllFormed;
  }
  utf8.remove_prefix(length);
  return value;
}

}  // namespace

char16_t unicodeOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte;
}

char byteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
  const auto* found = std::find(kHighControls.begin(), kHighControls.end(), character);
  return found == kHighControls.end() ? '?' : static_cast<char>(0x80 + (found - kHighControls.begin()));
}

std::u16string utf16FromText(std::string_view text) {
  std::u16string result(text.size(), u'\0');
  std::transform(text.begin(), text.end(), result.begin(), unicodeOf);
  return result;
}

std::string textFromUtf16(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] >= 0xD800 && text[i] < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
                      text[i + 1] < 0xE000;
    result += byteOf(text[i]);
    if (pair) ++i;
  }
  return result;
}

std::string utf8FromText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) appendUtf8(result, unicodeOf(c));
  return result;
}

std::string textFromUtf8(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) result += byteOf(takeCharacter(utf8));
  return result;
}

}  // namespace zamo
