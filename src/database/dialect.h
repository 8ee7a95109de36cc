// The SQL that the operations send, turned into what the engine takes.
#pragma once

#include <string>
#include <string_view>

namespace zamo {

// Dates between "#" become texts, "&" joins texts with a Null as an empty one, and a RIGHT JOIN of two tables
// becomes a LEFT JOIN of the second and the first, so that rows come in the order of the table that is kept
// whole. A comment and a date that is none are thrown as a RunTimeError.
std::string engineSql(std::string_view sql);

// A value on its way between quotes of a statement. One that would end the text there is thrown as a
// RunTimeError.
std::string_view joinedText(std::string_view value);

// A value on its way into a statement as a number. What is no number, an empty text among them, is thrown
// likewise.
std::string_view joinedNumber(std::string_view value);

}  // namespace zamo
