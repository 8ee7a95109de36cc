// The field table: what ties a file key to its place in a record, its column and the way a reader stores it.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

// The way to one text in a record.
struct TextMember {
  std::string& (*of)(NtcRec&) = nullptr;
  const std::string& (*in)(const NtcRec&) = nullptr;
};

template <auto First, auto... Rest, typename Record>
constexpr auto& followMembers(Record& record) {
  if constexpr (sizeof...(Rest) == 0) {
    return record.*First;
  } else {
    return followMembers<Rest...>(record.*First);
  }
}

template <auto... Path>
inline constexpr TextMember textAt = {
    [](NtcRec& ntc) -> std::string& { return followMembers<Path...>(ntc); },
    [](const NtcRec& ntc) -> const std::string& { return followMembers<Path...>(ntc); }};

// How the section reader stores a value. Where nothing else is said, a field that is filled already keeps its
// first value and the second key is a duplicate.
enum class StoredAs {
  asItStands,
  upperCase,
  threeDigits,  // with zeros in front
  timeWithoutColon,
  coordinate,      // cut into the four texts of its CoordinateField
  joined,          // with ";" behind what is there
  replaced,        // the last one counts
  noticeType,      // upper case; settles the class of station and the buffered contour identifiers
  contourId,       // in the buffer, the contour or the next place of the allotment, by type
  testPointCount,  // sizes the array of points
  notRead,         // no key of a notice section stores it
};

// The group that a stored value marks as present.
enum class Group { main, opHours, digital, allot, contour };

struct FieldRow {
  std::string_view key;  // in the file; empty for a field that the file doesn't carry
  TextMember text;       // none for a coordinate and for the identifiers of contours
  std::string_view column;
  StoredAs storedAs = StoredAs::asItStands;
  Group group = Group::main;
};

struct CoordinateField {
  std::string_view key;
  bool isLongitude = false;
  std::string NtcRec::*degrees = nullptr;
  std::string NtcRec::*minutes = nullptr;
  std::string NtcRec::*seconds = nullptr;
  std::string NtcRec::*hemisphere = nullptr;
};

inline constexpr std::array<CoordinateField, 4> kCoordinateFields = {{
    {"t_long", true, &NtcRec::long_deg, &NtcRec::long_min, &NtcRec::long_sec, &NtcRec::long_ew},
    {"t_lat", false, &NtcRec::lat_deg, &NtcRec::lat_min, &NtcRec::lat_sec, &NtcRec::lat_ns},
    {"t_trg_long", true, &NtcRec::trg_long_deg, &NtcRec::trg_long_min, &NtcRec::trg_long_sec,
     &NtcRec::trg_long_ew},
    {"t_trg_lat", false, &NtcRec::trg_lat_deg, &NtcRec::trg_lat_min, &NtcRec::trg_lat_sec,
     &NtcRec::trg_lat_ns},
}};

// All rows, in the order of the record.
std::span<const FieldRow> fieldTable();

// The row of a file key in lower case; nothing for a key that the section reader doesn't store.
const FieldRow* findField(std::string_view key);

}  // namespace zamo
