// Numbers in text: what counts as one, what it is worth, and how one is written.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zamo {

// Lets the interface handle what has queued up. May be empty.
using Yield = std::function<void()>;

// True for optional blanks, an optional sign, digits with at most one "." and at least one digit, an optional
// exponent, optional blanks, and nothing else.
bool isNumericText(std::string_view text);

// The value of the longest head of `text` that is a number in the form of isNumericText, blanks and tabs
// being passed over wherever they stand; 0 when there is none, infinity when it is beyond a double.
double leadingNumber(std::string_view text);

// True when every character is 0 to 9, so for an empty text too. Yields after each character.
bool isAllDigits(std::string_view text, const Yield& yield = {});

// The shortest decimal text that reads back as the same double, with "." and no exponent.
std::string numberText(double value);

}  // namespace zamo
