// The small texts that a notice file is made of: key lines, sections, dates, times and coordinates.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zamo {

// A line end and then `key = value`, so that lines and sections join with nothing between them. Empty when
// the key or the value is.
std::string makeKeyLine(std::string_view key, std::string_view value);

// The body between its tags, of which only the first is put in upper case. Empty when the tag or the body is.
std::string makeSection(std::string_view tag, std::string_view body);

// The last section of a file, with a line end behind it; empty for fewer than one notice.
std::string makeTailSection(std::int32_t notices);

// YYYY-MM-DD; empty when any of the three is.
std::string makeDateText(std::string_view year, std::string_view month, std::string_view day);

// The sign, the degrees of three digits for a hemisphere E or W and of two for N or S, two digits of minutes
// and two of seconds. Empty without degrees, without minutes and for any other hemisphere.
std::string makeCoordText(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                          std::string_view hemisphere);

// HH:MM from HHMM; empty for an empty text.
std::string makeTimeText(std::string_view hhmm);

}  // namespace zamo
