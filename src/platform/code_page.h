// Windows-1252 against Unicode. Text is converted at the edges alone: the screen, the database, the terminal.
#pragma once

#include <string>
#include <string_view>

namespace zamo {

// The Unicode character of a byte; the five unassigned bytes give the control characters of their number.
char16_t unicodeOf(char c);

// The byte of a Unicode character, or '?' for one that the code page doesn't hold.
char byteOf(char32_t character);

std::u16string utf16FromText(std::string_view text);
std::string textFromUtf16(std::u16string_view text);
std::string utf8FromText(std::string_view text);

// An ill-formed byte becomes '?', as does what the code page doesn't hold.
std::string textFromUtf8(std::string_view utf8);

}  // namespace zamo
