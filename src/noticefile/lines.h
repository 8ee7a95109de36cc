// The grammar of a line: tabs, keys, values, azimuth keys and section tags.
#pragma once

#include <string>
#include <string_view>

#include "platform/text.h"

namespace zamo {

inline constexpr std::string_view kHeadTag = "<HEAD>";
inline constexpr std::string_view kNoticeTag = "<NOTICE>";
inline constexpr std::string_view kTailTag = "<TAIL>";

// Turns each tab into one blank, in place.
void tabsToBlanks(char* first, char* last);

// A key line taken apart. Both views reach into the line, or into `lowered` for a key that wasn't in lower
// case.
struct KeyValue {
  std::string_view key;
  std::string_view value;
  std::string lowered;
};

// Splits a line as LineSource gives it at its first "=", both sides trimmed. A key that begins with "t" or
// "T" is made lower case as a whole. False for a line without "=", which leaves `result` as it is.
bool splitKeyValue(std::string_view line, KeyValue& result);

// Takes the text from the fourth character behind the "@" as the azimuth and gives whether it is numeric.
// False for a key without "@", which leaves `azimuth` as it is.
bool parseAzimuthKey(std::string_view key, std::string_view& azimuth);

inline bool isTagLine(std::string_view line) {
  return !line.empty() && line.front() == '<';
}

// Whether the line is the tag, in any case.
inline bool isTag(std::string_view line, std::string_view tag) {
  return isTagLine(line) && equalsIgnoringCase(line, tag);
}

// <HEAD>, <NOTICE> or <TAIL>, in any case.
bool isTopTag(std::string_view line);

// The start tag of a section inside a notice that must have its end tag, in any case.
bool isSubTag(std::string_view line);

// The end tag, in upper case, of a start tag in any case; empty for what is no start tag.
std::string_view endTagOf(std::string_view tag);

}  // namespace zamo
