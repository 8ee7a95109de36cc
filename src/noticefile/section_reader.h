// The section reader: turns the lines of a section into a record. It takes each value as it stands, so that a
// wrong one reaches the rules, the database and the screens, and reports only what would lose data: a key
// given twice.
#pragma once

#include <string>
#include <string_view>

#include "model/ntc_rec.h"
#include "noticefile/line_source.h"
#include "noticefile/lines.h"

namespace zamo {

// What the readers of one file share. `currentLine` holds the first line behind the tag when a reader is
// called and the end tag when it returns, or an empty text at the end of the file, which ends every section.
struct SectionReading {
  LineSource& lines;
  NtcRec& ntc;
  std::string prefix;  // leads every message
  std::string_view currentLine;
  KeyValue keyValue;
};

// The next line becomes the current one.
inline void readLine(SectionReading& reading) {
  reading.currentLine = reading.lines.nextLine();
}

// Each gives the text of its messages. More than the places of a record, and a point before their number is
// known, is thrown as a RunTimeError.

// Stops at </HEAD> in upper case alone. Empty when all was well.
std::string readHeadSection(SectionReading& reading);

// A single blank when all was well.
std::string readNoticeSection(SectionReading& reading);

std::string readPointSection(SectionReading& reading, PointRec& point);
std::string readCoordSection(SectionReading& reading, CoordListRec& coord);
std::string readAntHgtSection(SectionReading& reading);
std::string readAntDiagrHSection(SectionReading& reading);
std::string readAntDiagrVSection(SectionReading& reading);

}  // namespace zamo
