// Text in Windows-1252: one byte, one character. Case, trimming, comparison and padding.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace zamo {

inline constexpr std::string_view kLineEnd = "\r\n";

struct CaseTables {
  std::array<char, 256> lower{};
  std::array<char, 256> upper{};
};

constexpr CaseTables makeCaseTables() {
  CaseTables tables;
  for (std::size_t c = 0; c < 256; ++c) tables.lower[c] = tables.upper[c] = static_cast<char>(c);
  const auto pair = [&tables](std::size_t upper, std::size_t lower) {
    tables.lower[upper] = static_cast<char>(lower);
    tables.upper[lower] = static_cast<char>(upper);
  };
  for (std::size_t c = 'A'; c <= 'Z'; ++c) pair(c, c + 32);
  for (std::size_t c = 0xC0; c <= 0xDE; ++c) {
    if (c != 0xD7) pair(c, c + 32);
  }
  pair(0x8A, 0x9A);
  pair(0x8C, 0x9C);
  pair(0x8E, 0x9E);
  pair(0x9F, 0xFF);
  return tables;
}

inline constexpr CaseTables kCaseTables = makeCaseTables();

// The letter in the other case; every other character as it is.
inline char lowerChar(char c) {
  return kCaseTables.lower[static_cast<unsigned char>(c)];
}
inline char upperChar(char c) {
  return kCaseTables.upper[static_cast<unsigned char>(c)];
}

std::string lowerText(std::string_view text);
std::string upperText(std::string_view text);

// Without the blanks (0x20 alone) at both ends.
inline std::string_view trimText(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool equalIgnoringCase(const char* a, const char* b, std::size_t size);

inline bool equalsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && equalIgnoringCase(a.data(), b.data(), a.size());
}

// Characters `first` to `last`, counted from 1 and both included; what lies beyond the text is left out.
std::string_view characters(std::string_view text, std::size_t first, std::size_t last);

// Each control character as "\x1B", so that a terminal obeys none of them. Line ends of CR LF stay.
std::string withControlsEscaped(std::string_view text);

// Each puts zeros in front up to its width and leaves a longer text alone.
std::string padTo2(std::string_view text);
std::string padTo3(std::string_view text);
std::string padTo3IfShort(std::string_view text);
std::string padTo4(std::string_view text);

// At most two zeros in front: a text three or more short of the width stays as it is.
std::string padToWidth(std::string_view text, std::size_t width);

}  // namespace zamo
