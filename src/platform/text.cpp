#include "platform/text.h"

#include <algorithm>

namespace zamo {
namespace {

std::string padded(std::string_view text, std::size_t width) {
  const std::size_t zeros = text.size() < width ? width - text.size() : 0;
  return std::string(zeros, '0').append(text);
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

bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                            [](char x, char y) { return lowerChar(x) == lowerChar(y); });
}

std::string_view characters(std::string_view text, std::size_t first, std::size_t last) {
  if (first > text.size()) return {};
  return text.substr(first - 1, last - first + 1);
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
