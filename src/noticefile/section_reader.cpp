#include "noticefile/section_reader.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <span>

#include "model/fields.h"
#include "model/notice_words.h"
#include "model/presence.h"
#include "model/test_points.h"
#include "platform/coordinates.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kDuplicateKey("a key is given twice; %1 is the label of the notice", "FATAL ERROR : \r\n%1 : %2 : Duplicate key\r\n");
const Message kDuplicateContourId("a t_contour_id is given twice, compared as a number", "FATAL ERROR : \r\n%1 : %2 : Duplicate Contour ID : %3 Value will be ignored\r\n");
const Message kOneContourId("GA1: more than one t_contour_id before t_notice_type", "FATAL ERROR : \r\n%1 : GA1 can have only ONE t_contour_id \r\n");
const Message kTooManyValues("<ANT_HGT>, <ANT_DIAGR_H>, <ANT_DIAGR_V>: a 37th value", "FATAL ERROR : \r\n%1 : Cannot notify more than 36 values");
// clang-format on

std::string duplicateKey(const SectionReading& reading) {
  return kDuplicateKey.filled({reading.prefix, reading.keyValue.key});
}

std::string duplicateContourId(const SectionReading& reading) {
  return kDuplicateContourId.filled({reading.prefix, reading.keyValue.key, reading.keyValue.value});
}

[[noreturn]] void throwOutOfRange() {
  throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
}

// Hands each key line of a section to `onKey`.
template <typename OnKey>
void readSection(SectionReading& reading, std::initializer_list<std::string_view> endTags, OnKey onKey) {
  const auto ends = [&reading](std::string_view tag) { return isTag(reading.currentLine, tag); };
  while (!reading.lines.exhausted() && std::none_of(endTags.begin(), endTags.end(), ends)) {
    if (splitKeyValue(reading.currentLine, reading.keyValue))
      onKey(reading.keyValue.key, reading.keyValue.value);
    readLine(reading);
  }
}

// The state of one notice while it is read.
struct NoticeReading {
  SectionReading& section;
  std::string messages = " ";
  std::vector<std::string> bufferedContourIds = {};  // met before the type
  std::size_t contourIds = 0;                        // places of the allotment that are used up
  bool pointsAreSized = false;
  std::size_t points = 0;
};

std::string storedForm(StoredAs storedAs, std::string_view value) {
  switch (storedAs) {
    case StoredAs::upperCase:
    case StoredAs::noticeType:
      return upperText(value);
    case StoredAs::threeDigits:
      return padTo3(value);
    case StoredAs::timeWithoutColon:
      return stripTimeColon(value);
    default:
      return std::string(value);
  }
}

void storeCoordinate(NoticeReading& notice) {
  SectionReading& section = notice.section;
  const std::string_view value = section.keyValue.value;
  if (value.empty()) return;
  const auto* field =
      std::find_if(kCoordinateFields.begin(), kCoordinateFields.end(),
                   [&section](const CoordinateField& row) { return row.key == section.keyValue.key; });
  const bool isLong = field->isLongitude;
  const auto store = [&](std::string NtcRec::*part, std::string_view text) {
    if (!(section.ntc.*part).empty()) {
      notice.messages += duplicateKey(section);
    } else {
      section.ntc.*part = text;
    }
  };
  store(field->degrees, isLong ? longDeg(value) : latDeg(value));
  store(field->minutes, isLong ? longMin(value) : latMin(value));
  store(field->seconds, isLong ? longSec(value) : latSec(value));
  store(field->hemisphere, isLong ? longHemisphere(value) : latHemisphere(value));
}

bool holdsNumber(std::span<const std::string> ids, std::string_view value) {
  const double number = leadingNumber(value);
  return std::any_of(ids.begin(), ids.end(),
                     [number](const std::string& id) { return leadingNumber(id) == number; });
}

void placeContourId(NoticeReading& notice, std::string_view value) {
  auto& places = notice.section.ntc.digital.allot.t_contour_id;
  if (notice.contourIds == places.size()) {
    notice.messages += kDuplicateKey.filled({notice.section.prefix, "t_contour_id"});
  } else {
    places[notice.contourIds++] = value;
  }
}

void addContourIdOfAllotment(NoticeReading& notice, std::string_view value) {
  auto& places = notice.section.ntc.digital.allot.t_contour_id;
  if (holdsNumber(std::span(places).first(notice.contourIds), value)) {
    notice.messages += duplicateContourId(notice.section);
  } else {
    placeContourId(notice, value);
  }
}

void bufferContourId(NoticeReading& notice, std::string_view value) {
  auto& buffer = notice.bufferedContourIds;
  if (buffer.size() == kBufferedContourIds) {
    notice.messages += duplicateKey(notice.section);
  } else if (holdsNumber(buffer, value)) {
    notice.messages += duplicateContourId(notice.section);
  } else {
    buffer.emplace_back(value);
  }
}

void storeContourId(NoticeReading& notice) {
  NtcRec& ntc = notice.section.ntc;
  const std::string_view value = notice.section.keyValue.value;
  if (ntc.t_notice_type.empty()) {
    bufferContourId(notice, value);
  } else if (!isExactly(ntc.t_notice_type, types::GA1)) {
    addContourIdOfAllotment(notice, value);
  } else if (ntc.digital.contour.t_contour_id.empty()) {
    ntc.digital.contour.t_contour_id = value;
    ntc.digital.contour.present = true;
  } else {
    notice.messages += duplicateKey(notice.section);
  }
}

void settleBufferedContourIds(NoticeReading& notice) {
  NtcRec& ntc = notice.section.ntc;
  auto& buffer = notice.bufferedContourIds;
  if (!isExactly(ntc.t_notice_type, types::GA1)) {
    for (const std::string& id : buffer) placeContourId(notice, id);
  } else if (buffer.size() == 1) {
    ntc.digital.contour.t_contour_id = buffer.front();
    ntc.digital.contour.present = true;
  } else if (buffer.size() > 1) {
    notice.messages += kOneContourId.filled({notice.section.prefix});
  }
  buffer.clear();
}

void settleNoticeType(NoticeReading& notice) {
  NtcRec& ntc = notice.section.ntc;
  if (isExactly(ntc.t_notice_type, {types::GT1, types::GT2})) ntc.stn_cls = "BT";
  if (isExactly(ntc.t_notice_type, {types::GS1, types::GS2})) ntc.stn_cls = "BC";
  settleBufferedContourIds(notice);
}

void storeKey(NoticeReading& notice) {
  SectionReading& section = notice.section;
  const FieldRow* row = findField(section.keyValue.key);
  if (row == nullptr) return;
  if (row->storedAs == StoredAs::coordinate) return storeCoordinate(notice);
  if (row->storedAs == StoredAs::contourId) return storeContourId(notice);

  std::string& field = row->text.of(section.ntc);
  const std::string_view value = section.keyValue.value;
  if (row->storedAs == StoredAs::replaced) {
    field = value;
  } else if (row->storedAs == StoredAs::joined && !field.empty()) {
    field.append(";").append(value);
  } else if (!field.empty()) {
    notice.messages += duplicateKey(section);
  } else {
    field = storedForm(row->storedAs, value);
    markPresent(section.ntc, row->group);
    if (row->storedAs == StoredAs::noticeType) settleNoticeType(notice);
    if (row->storedAs == StoredAs::testPointCount) {
      sizePoints(section.ntc.digital.contour);
      notice.pointsAreSized = true;
    }
  }
}

void appendSubMessage(NoticeReading& notice, std::string_view before, const std::string& message) {
  if (!message.empty()) notice.messages.append(before).append(message).append(kLineEnd);
}

void readPoint(NoticeReading& notice) {
  SectionReading& section = notice.section;
  PointRec point;
  const std::string message = readPointSection(section, point);
  if (!message.empty()) {
    const std::string before =
        section.prefix + " <POINT> #" + std::to_string(notice.points) + " : " + section.prefix;
    return appendSubMessage(notice, before, message);
  }
  auto& points = section.ntc.digital.contour.points;
  if (!notice.pointsAreSized || notice.points >= points.size()) throwOutOfRange();
  points[notice.points++] = std::move(point);
}

void readCoord(NoticeReading& notice) {
  CoordListRec coord;
  readCoordSection(notice.section, coord);
  notice.section.ntc.coord = std::move(coord);
}

// clang-format off
struct Subsection {
  std::string_view tag;
  void (*read)(NoticeReading&);
};

constexpr Subsection kSubsections[] = {
    {"<POINT>",        readPoint},
    {"<COORDINATION>", readCoord},
    {"<COORD>",        readCoord},
    {"<ANT_HGT>",      [](NoticeReading& notice) { appendSubMessage(notice, " <ANT_HGT> ", readAntHgtSection(notice.section)); }},
    {"<ANT_DIAGR_H>",  [](NoticeReading& notice) { appendSubMessage(notice, " <ANT_DIAGR_H> ", readAntDiagrHSection(notice.section)); }},
    {"<ANT_DIAGR_V>",  [](NoticeReading& notice) { appendSubMessage(notice, " <ANT_DIAGR_V> ", readAntDiagrVSection(notice.section)); }},
};
// clang-format on

void readSubsection(NoticeReading& notice) {
  const std::string_view line = notice.section.currentLine;
  if (!isTagLine(line)) return;
  const auto* found =
      std::find_if(std::begin(kSubsections), std::end(kSubsections),
                   [line](const Subsection& one) { return equalsIgnoringCase(one.tag, line); });
  if (found == std::end(kSubsections)) return;
  readLine(notice.section);
  found->read(notice);
}

using AzimuthValues = std::array<AzmValueRec, kAzimuths>;

// A value that stands already is overwritten in the heights and a duplicate in the diagrams.
std::string readAzimuths(SectionReading& reading, AzimuthValues& values, std::string_view endTag,
                         std::string_view stem, bool overwrites) {
  std::string messages;
  std::size_t index = 0;
  readSection(reading, {endTag}, [&](std::string_view key, std::string_view value) {
    std::string_view azimuth;
    if (!parseAzimuthKey(key, azimuth) || !key.starts_with(stem)) return;
    if (index >= values.size()) {
      messages += kTooManyValues.filled({reading.prefix});
    } else if (!value.empty() && !overwrites && !values[index].value.empty()) {
      messages += duplicateKey(reading);
    } else if (!value.empty()) {
      AzmValueRec& place = values[index++];
      place.present = true;
      place.azm = azimuth;
      place.value = value;
    }
  });
  return messages;
}

}  // namespace

std::string readHeadSection(SectionReading& reading) {
  std::string messages;
  while (!reading.lines.exhausted() && reading.currentLine != "</HEAD>") {
    if (splitKeyValue(reading.currentLine, reading.keyValue)) {
      std::string* const field = reading.keyValue.key == "t_adm"          ? &reading.ntc.t_adm
                                 : reading.keyValue.key == "t_email_addr" ? &reading.ntc.digital.t_email_addr
                                                                          : nullptr;
      if (field != nullptr && field->empty()) {
        *field = reading.keyValue.value;
      } else if (field != nullptr) {
        messages += duplicateKey(reading);
      }
    }
    readLine(reading);
  }
  return messages;
}

std::string readNoticeSection(SectionReading& reading) {
  NoticeReading notice{reading};
  while (!reading.lines.exhausted() && !isTag(reading.currentLine, "</NOTICE>")) {
    if (splitKeyValue(reading.currentLine, reading.keyValue)) storeKey(notice);
    readSubsection(notice);
    readLine(reading);
  }
  return std::move(notice.messages);
}

std::string readPointSection(SectionReading& reading, PointRec& point) {
  std::string messages;
  readSection(reading, {"</POINT>"}, [&](std::string_view key, std::string_view value) {
    std::string* const field = key == "t_long" ? &point.t_long : key == "t_lat" ? &point.t_lat : nullptr;
    if (field == nullptr || value.empty()) return;
    if (!field->empty()) {
      messages += duplicateKey(reading);
    } else {
      point.present = true;
      *field = value;
    }
  });
  return messages;
}

std::string readCoordSection(SectionReading& reading, CoordListRec& coord) {
  coord = {};
  readSection(reading, {"</COORD>", "</COORDINATION>"}, [&](std::string_view key, std::string_view value) {
    if (key != "t_adm" || value.empty()) return;
    coord.present = true;
    const auto count = static_cast<std::size_t>(coord.count);
    const auto tested = std::span(coord.entries).first(std::min(count, kCoordSlotsTested));
    const auto isValue = [value](const CoordEntryRec& entry) { return entry.adm == value; };
    if (std::any_of(tested.begin(), tested.end(), isValue)) return;
    if (count == kCoordSlots) throwOutOfRange();
    coord.entries[count].adm = value;
    ++coord.count;
    coord.entries.emplace_back();
  });
  return {};
}

std::string readAntHgtSection(SectionReading& reading) {
  return readAzimuths(reading, reading.ntc.ant_hgt, "</ANT_HGT>", "t_eff_hgt@azm", true);
}

std::string readAntDiagrHSection(SectionReading& reading) {
  return readAzimuths(reading, reading.ntc.ant_diagr_h, "</ANT_DIAGR_H>", "t_attn@azm", false);
}

std::string readAntDiagrVSection(SectionReading& reading) {
  return readAzimuths(reading, reading.ntc.ant_diagr_v, "</ANT_DIAGR_V>", "t_attn@azm", false);
}

}  // namespace zamo
