// The strict reader: walks the lines of a notice file section by section and tests every value as text.
// It never stops at an error: each bad value adds one line to the report, and reading goes on to the closing
// tag, or to the end of the file, which closes every section.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "noticefile/line_source.h"
#include "noticefile/lines.h"
#include "platform/numbers.h"

namespace zamo {

// What the readers of one file share. `currentLine` holds the first line behind the opening tag when a reader
// is called and the closing tag when it returns.
struct StrictReading {
  LineSource& lines;
  std::string& report;
  std::string prefix;
  Yield yield;
  std::string_view currentLine;
  KeyValue keyValue;
};

// The next line becomes the current one.
inline void readLine(StrictReading& reading) {
  reading.currentLine = reading.lines.nextLine();
}

// Each gives whether its section added no error line. There is one exception: an undefined key in a <POINT>
// adds its line and leaves the result as it stands.
bool valReadHead(StrictReading& reading);
bool valReadNotice(StrictReading& reading);
bool valReadTail(StrictReading& reading, std::int64_t noticesRead);
bool valReadPoint(StrictReading& reading);
bool valReadCoord(StrictReading& reading);
bool valReadAntHgt(StrictReading& reading);
bool valReadAntDiagrH(StrictReading& reading);
bool valReadAntDiagrV(StrictReading& reading);

// True when "t_" stands at the first place of the key, in any case.
bool hasKeyPrefix(std::string_view key);

// Two characters: a letter from A to F in upper case, then 1, 2, 3, 5 or 7.
bool isSystemVariant(std::string_view variant);

}  // namespace zamo
