// Which column takes which value of a notice, in a new row and in a correction.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "database/recordset.h"
#include "model/fields.h"

namespace zamo {

// Sets of notice types, as far as the columns tell them apart.
enum TypeSet : unsigned {
  kNoType = 0,
  kTb2 = 1,
  kTb3 = 2,
  kTb5 = 4,
  kOtherTypes = 8,
  kAllTypes = kTb2 | kTb3 | kTb5 | kOtherTypes,
  kTargeted = kTb2 | kTb3 | kTb5,
  kNotTb2 = kTb3 | kTb5 | kOtherTypes,
  kNeitherTb2NorTb3 = kTb5 | kOtherTypes,
  kTb2AndTb3 = kTb2 | kTb3,
};

// What an empty value does in a correction. A new row never takes one.
enum class WhenEmpty { clears, keepsWhatIsThere };

struct ColumnRow {
  std::string_view column;
  TextMember text;
  TypeSet added = kAllTypes;      // notices whose new row takes the value
  TypeSet corrected = kAllTypes;  // notices whose correction does
  WhenEmpty whenEmpty = WhenEmpty::clears;
  bool (*counts)(const NtcRec&) = nullptr;  // where it doesn't hold the value is taken for empty
  std::string (*stored)(std::string_view) = nullptr;
  const CoordinateField* radians = nullptr;  // in place of `text`: a coordinate, signed, in radians
};

std::span<const ColumnRow> vornaColumns();
std::span<const ColumnRow> ntcHistColumns();
std::span<const ColumnRow> art5TargetColumns();
std::span<const ColumnRow> allotmentColumns();
std::span<const ColumnRow> contourColumns();

// Set the columns of the current row, without Update. Where several rows of a table name a column the last
// one counts. A coordinate whose radians are due is thrown as a RunTimeError when a part of it is no number.
void setForNewRow(Recordset& row, std::span<const ColumnRow> columns, const NtcRec& ntc);
void setForCorrection(Recordset& row, std::span<const ColumnRow> columns, const NtcRec& ntc);

// The polarizations that radiate in each plane.
bool isHorizontal(const NtcRec& ntc);
bool isVertical(const NtcRec& ntc);

}  // namespace zamo
