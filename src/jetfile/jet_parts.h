// What stands in a Jet file, free of the file's own form: it comes in parts, one after the other, none of
// them kept.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace zamo {

struct JetNull {
  bool operator==(const JetNull&) const = default;
};

// A decimal number or an amount of money, with "." and no exponent.
struct JetDecimal {
  std::string digits;
  bool operator==(const JetDecimal&) const = default;
};

// A day and the time of day, in days since 30 December 1899. Before that day the fraction counts forward all
// the same: -1.75 is 29 December at 18 hours.
struct JetMoment {
  double days = 0;
  bool operator==(const JetMoment&) const = default;
};

// A value that the file has and that can't be given.
enum class JetUnreadable : std::uint8_t { damaged, tooLong, kindWithoutText };

// Whole numbers of all sizes are one kind. A Single is the double of its shortest text. Text is UTF-16 and
// may hold half a pair.
using JetValue =
    std::variant<JetNull, bool, std::int64_t, double, JetDecimal, JetMoment, std::u16string, JetUnreadable>;

// A table of the user's and the number of rows that the file itself holds of it.
struct JetTable {
  std::string name;
  std::uint32_t rows = 0;
  bool operator==(const JetTable&) const = default;
};

// All tables of the file, those that weren't asked for among them. The first part.
struct JetCatalogue {
  std::vector<JetTable> tables;
};

struct JetTableHead {
  JetTable table;
  std::vector<std::string> columns;
};

// A value for each column of the table.
using JetRow = std::vector<JetValue>;

// A row that the file speaks of and that can't be read.
struct JetLostRow {};

struct JetTableEnd {};

// Nothing is left. The last part, unless a failure is.
struct JetFileEnd {};

enum class JetFailure : std::uint8_t { notOpened, cutOff, noCatalogue, brokenTable };

using JetPart =
    std::variant<JetCatalogue, JetTableHead, JetRow, JetLostRow, JetTableEnd, JetFileEnd, JetFailure>;

using JetTaker = std::function<void(const JetPart&)>;

// No longer text is given: so many units of two bytes.
inline constexpr std::size_t kLongestJetText = std::size_t{8} * 1024 * 1024;

// More columns no table has.
inline constexpr std::size_t kMostJetColumns = 255;

}  // namespace zamo
