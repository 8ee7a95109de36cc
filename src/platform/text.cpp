#include "platform/text.h"

#include <algorithm>

namespace zamo {
namespace {

std::string padded(std::string_view text, std::size_t width) {
  const std::size_t zeros = text.size() < width ? width - text.size() : 0;
  return std::string(zeros, '0').append(text);
}

// The five bytes that the code page doesn't assign are control characters.
constexpr bool isControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7F || byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 ||
         byte == 0x9D;
}

}  // namespace

std::string lowerText(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lowerChar);
  return result;
}

std::string upperText(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), upperChar);
  return result;
}

bool equalIgnoringCase(const char* a, const char* b, std::size_t size) {
  return std::equal(a, a + size, b, [](char x, char y) { return lowerChar(x) == lowerChar(y); });
}

std::string_view characters(std::string_view text, std::size_t first, std::size_t last) {
  if (first > text.size()) return {};
  return text.substr(first - 1, last - first + 1);
}

std::string withControlsEscaped(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.substr(at).starts_with(kLineEnd)) {
      escaped += kLineEnd;
      ++at;
    } else if (isControl(text[at])) {
      const auto byte = static_cast<unsigned char>(text[at]);
      escaped.append("\\x").append({kDigits[byte / 16], kDigits[byte % 16]});
    } else {
      escaped += text[at];
    }
  }
  return escaped;
}

std::string padTo2(std::string_view text) {
  return padded(text, 2);
}

std::string padTo3(std::string_view text) {
  return padded(text, 3);
}

std::string padTo3IfShort(std::string_view text) {
  return padded(text, 3);
}

std::string padTo4(std::string_view text) {
  return padded(text, 4);
}

std::string padToWidth(std::string_view text, std::size_t width) {
  return text.size() + 2 < width ? std::string(text) : padded(text, width);
}

}  // namespace zamo
