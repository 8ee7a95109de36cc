#include "noticefile/strict_reader.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

#include "noticefile/key_table.h"
#include "noticefile/strict_tables.h"
#include "platform/coordinates.h"
#include "platform/dates.h"
#include "platform/message.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kUndefinedKey("a key that the section doesn't have", " Undefined key. Please check the spelling");
const Message kAdm("<HEAD>, <COORD>: t_adm is a number or longer than 3", " t_adm : cannot have more than 3 Characters (B)");
const Message kEmail("<HEAD>: t_email_addr is longer than 50", " t_email_addr : Maximum number of alphanumerical characters is 50");
const TableMessages kListedEnumerations("<NOTICE>: the value is another one", kEnumerations);
const TableMessages kListedFreeTexts("<NOTICE>: two blanks in the value, or a value too long", kFreeTexts);
const TableMessages kListedLengths("<NOTICE>: the value is too long", kLengths);
const TableMessages kListedNumbers("<NOTICE>: the value isn't in the form of the key", kNumbers);
const TableMessages kListedPlanEntry("<NOTICE>: t_plan_entry is no digit from 1 to 5", kPlanEntry);
const TableMessages kListedVariant("<NOTICE>: t_sys_var is too long, or another value", kSystemVariant);
const TableMessages kListedCoordinates("<NOTICE>: the length, the degrees, the minutes or the seconds are refused", kNoticeCoordinates);
const TableMessages kListedDates("<NOTICE>: no date from the year 2000 on", kDates);
const Message kNoType("<NOTICE>: no t_notice_type, and no other error in the notice", " : <NOTICE> started at line : %1 has a  FATAL ERROR t_notice_type is not provided. Cannot proceed further");
const TableMessages kListedPoint("<POINT>: the length, the degrees, the minutes or the seconds are refused", kPointCoordinates);
const Message kAzimuthHeight("<ANT_HGT>: the value is no integer", " %1 : Value should be between [-3000, 3000]");
const Message kAzimuthAttenuation("<ANT_DIAGR_H>, <ANT_DIAGR_V>: the value is no number or longer than 4", " %1 : Value must be numerical and cannot exceed 4 digits");
const Message kNoCount("<TAIL>: t_num_notices is empty", " t_num_notices : Value must be notified. The number of notices read : %1");
const Message kCountNoNumber("<TAIL>: t_num_notices is no number", " t_num_notices : Value must be an integer");
const Message kCountDiffers("<TAIL>: t_num_notices is not the number of notices before it", " t_num_notices : The number of notices notified : %1 and the number of notices read : %2");
// clang-format on

bool isOneOf(std::string_view value, std::span<const std::string_view> accepted) {
  return std::any_of(accepted.begin(), accepted.end(),
                     [value](std::string_view one) { return equalsIgnoringCase(one, value); });
}

// Adds the report's line for a message and gives false.
bool refuse(StrictReading& reading, std::string_view message, Gap gap = Gap::narrow) {
  reading.report.append(reading.prefix).append(" : Error : Line No : ");
  reading.report.append(std::to_string(reading.lines.lineNo()));
  if (gap == Gap::wide) reading.report.push_back(' ');
  reading.report.append(message).append(kLineEnd);
  return false;
}

// Tests of one value that isn't empty. Each gives whether it was accepted.

bool accepts(StrictReading& reading, const EnumerationRule& rule, std::string_view value) {
  return isOneOf(value, rule.accepted) || refuse(reading, rule.message, rule.gap);
}

bool accepts(StrictReading& reading, const FreeTextRule& rule, std::string_view value) {
  bool good = true;
  if (!rule.doubleBlankMessage.empty() && value.find("  ") != std::string_view::npos) {
    good = refuse(reading, rule.doubleBlankMessage, rule.gap);
  }
  if (value.size() > rule.limit) good = refuse(reading, rule.limitMessage, rule.gap);
  return good;
}

bool accepts(StrictReading& reading, const LengthRule& rule, std::string_view value) {
  return value.size() <= rule.limit || refuse(reading, rule.message);
}

bool hasForm(std::string_view value, NumberForm form, const Yield& yield) {
  switch (form) {
    case NumberForm::numeric:
      return isNumericText(value);
    case NumberForm::integer:
      return isNumericText(value) && value.find('.') == std::string_view::npos;
    case NumberForm::digits:
      return isAllDigits(value, yield);
    case NumberForm::notNumeric:
      return !isNumericText(value);
    case NumberForm::notDigits:
      return !isAllDigits(value, yield);
  }
  return false;
}

bool accepts(StrictReading& reading, const NumberRule& rule, std::string_view value) {
  const bool shortEnough = rule.limit == 0 || value.size() <= rule.limit;
  return (shortEnough && hasForm(value, rule.form, reading.yield)) || refuse(reading, rule.message, rule.gap);
}

// Whether a part of a coordinate is digits alone and below `bound`.
bool isPartBelow(std::string_view part, int bound, const Yield& yield) {
  return isAllDigits(part, yield) && leadingNumber(part) < bound;
}

bool accepts(StrictReading& reading, const CoordinateRule& rule, std::string_view value) {
  const std::size_t longest = rule.isLongitude ? 8 : 7;
  if (value.size() != longest && value.size() != longest - 2)
    return refuse(reading, rule.formatMessage, rule.gap);
  const std::string_view degrees = rule.isLongitude ? longDeg(value) : latDeg(value);
  const std::string_view minutes = rule.isLongitude ? longMin(value) : latMin(value);
  const std::string_view seconds = rule.isLongitude ? longSec(value) : latSec(value);
  bool good = true;
  if (!isPartBelow(degrees, rule.degreeBound, reading.yield))
    good = refuse(reading, rule.degreeMessage, rule.gap);
  if (!isPartBelow(minutes, 60, reading.yield)) good = refuse(reading, rule.minuteMessage, rule.gap);
  if (!seconds.empty() && !isPartBelow(seconds, 60, reading.yield)) {
    good = refuse(reading, rule.secondMessage, rule.gap);
  }
  return good;
}

bool accepts(StrictReading& reading, const DateRule& rule, std::string_view value) {
  std::string day;
  std::string month;
  std::string year;
  splitDate(normalizeDate(value), day, month, year);
  const bool good = parseDate(day + "/" + month + "/" + year).has_value() &&
                    isYear2000OrLater(static_cast<int>(leadingNumber(year)));
  return good || refuse(reading, rule.message, Gap::wide);
}

bool accepts(StrictReading& reading, const PlanEntryRule& rule, std::string_view value) {
  const double number = leadingNumber(value);
  return (isNumericText(value) && value.size() <= 1 && number >= 1 && number <= 5) ||
         refuse(reading, rule.message, Gap::wide);
}

bool accepts(StrictReading& reading, const SystemVariantRule& rule, std::string_view value) {
  if (value.size() >= 3) return refuse(reading, rule.lengthMessage);
  return isSystemVariant(value) || refuse(reading, rule.message);
}

// A row of any of the tables, together with the test that its table asks for.
struct Rule {
  const void* row = nullptr;
  bool (*accepts)(StrictReading& reading, const void* row, std::string_view value) = nullptr;
};

// The rule of each slot of the key table; a slot whose values aren't tested has none.
constexpr std::array<Rule, kNoticeKeys.size()> makeRulesBySlot() {
  std::array<Rule, kNoticeKeys.size()> rules{};
  const auto place = [&rules]<typename Row>(std::span<const Row> table) {
    for (const Row& row : table) {
      const auto* slot = std::find(kNoticeKeys.begin(), kNoticeKeys.end(), row.key);
      rules[static_cast<std::size_t>(slot - kNoticeKeys.begin())] = {
          &row, [](StrictReading& reading, const void* known, std::string_view value) {
            return accepts(reading, *static_cast<const Row*>(known), value);
          }};
    }
  };
  place(std::span<const EnumerationRule>(kEnumerations));
  place(std::span<const FreeTextRule>(kFreeTexts));
  place(std::span<const LengthRule>(kLengths));
  place(std::span<const NumberRule>(kNumbers));
  place(std::span<const CoordinateRule>(kNoticeCoordinates));
  place(std::span<const DateRule>(kDates));
  place(std::span<const PlanEntryRule>(kPlanEntry));
  place(std::span<const SystemVariantRule>(kSystemVariant));
  return rules;
}

constexpr std::array<Rule, kNoticeKeys.size()> kRules = makeRulesBySlot();

constexpr std::size_t countRules() {
  return static_cast<std::size_t>(
      std::count_if(kRules.begin(), kRules.end(), [](const Rule& rule) { return rule.row != nullptr; }));
}
static_assert(countRules() == std::size(kEnumerations) + std::size(kFreeTexts) + std::size(kLengths) +
                                  std::size(kNumbers) + std::size(kNoticeCoordinates) + std::size(kDates) +
                                  std::size(kPlanEntry) + std::size(kSystemVariant));

// Hands each key line of a section that has a "t_" key to `onKey`, and then each line to `onLine`.
template <typename OnKey, typename OnLine>
bool readSection(StrictReading& reading, std::initializer_list<std::string_view> closingTags, OnKey onKey,
                 OnLine onLine) {
  const auto closes = [&reading](std::string_view tag) { return isTag(reading.currentLine, tag); };
  bool good = true;
  while (!reading.lines.exhausted() && std::none_of(closingTags.begin(), closingTags.end(), closes)) {
    if (splitKeyValue(reading.currentLine, reading.keyValue) && hasKeyPrefix(reading.keyValue.key)) {
      good = onKey(reading.keyValue.key, reading.keyValue.value) && good;
    }
    good = onLine() && good;
    readLine(reading);
  }
  return good;
}

template <typename OnKey>
bool readSection(StrictReading& reading, std::initializer_list<std::string_view> closingTags, OnKey onKey) {
  return readSection(reading, closingTags, onKey, [] { return true; });
}

bool acceptsAdm(StrictReading& reading, std::string_view value, bool isNumber, Gap gap) {
  return value.empty() || (!isNumber && value.size() < 4) || refuse(reading, kAdm.words(), gap);
}

// A section of azimuth keys: `stem` and the azimuth. A numeric azimuth behind another stem passes in silence.
template <typename Accepts>
bool readAzimuths(StrictReading& reading, std::string_view closingTag, std::string_view stem,
                  Accepts acceptsValue, const Message& message) {
  return readSection(reading, {closingTag}, [&](std::string_view key, std::string_view value) {
    std::string_view azimuth;
    if (!parseAzimuthKey(key, azimuth)) return refuse(reading, kUndefinedKey.words());
    if (!key.starts_with(stem) || value.empty() || acceptsValue(value)) return true;
    return refuse(reading, message.filled({key}));
  });
}

bool readDiagram(StrictReading& reading, std::string_view closingTag) {
  const auto acceptsValue = [](std::string_view value) { return value.size() <= 4 && isNumericText(value); };
  return readAzimuths(reading, closingTag, "t_attn@azm", acceptsValue, kAzimuthAttenuation);
}

struct Subsection {
  std::string_view tag;
  bool (*read)(StrictReading&);
};

// clang-format off
constexpr Subsection kSubsections[] = {
    {"<POINT>",        valReadPoint},
    {"<COORDINATION>", valReadCoord},
    {"<COORD>",        valReadCoord},
    {"<ANT_HGT>",      valReadAntHgt},
    {"<ANT_DIAGR_H>",  valReadAntDiagrH},
    {"<ANT_DIAGR_V>",  valReadAntDiagrV},
};
// clang-format on

// Reads the subsection that the current line opens, if it opens one.
bool readSubsection(StrictReading& reading) {
  if (!isTagLine(reading.currentLine)) return true;
  for (const Subsection& subsection : kSubsections) {
    if (!equalsIgnoringCase(reading.currentLine, subsection.tag)) continue;
    readLine(reading);
    return subsection.read(reading);
  }
  return true;
}

}  // namespace

bool isSystemVariant(std::string_view variant) {
  constexpr std::string_view letters = "ABCDEF";
  constexpr std::string_view digits = "12357";
  return variant.size() == 2 && letters.find(variant[0]) != std::string_view::npos &&
         digits.find(variant[1]) != std::string_view::npos;
}

bool hasKeyPrefix(std::string_view key) {
  return key.size() >= 2 && lowerChar(key[0]) == 't' && key[1] == '_';
}

bool valReadHead(StrictReading& reading) {
  return readSection(reading, {"</HEAD>"}, [&](std::string_view key, std::string_view value) {
    if (key == "t_adm") return acceptsAdm(reading, value, isNumericText(value), Gap::narrow);
    if (key == "t_email_addr") {
      return value.size() <= 50 || refuse(reading, kEmail.words());
    }
    return key == "t_char_set" || key == "t_d_sent" || refuse(reading, kUndefinedKey.words());
  });
}

bool valReadNotice(StrictReading& reading) {
  const std::int64_t startLine = reading.lines.lineNo();
  bool sawNoticeType = false;
  const auto onKey = [&](std::string_view key, std::string_view value) {
    const std::size_t slot = keySlot(key);
    if (slot == kNoKey) return refuse(reading, kUndefinedKey.words(), Gap::wide);
    if (value.empty()) return true;
    const Rule& rule = kRules[slot];
    const bool accepted = rule.row == nullptr || rule.accepts(reading, rule.row, value);
    if (accepted && key == "t_notice_type") sawNoticeType = true;
    return accepted;
  };
  const bool good = readSection(reading, {"</NOTICE>"}, onKey, [&] { return readSubsection(reading); });
  if (!good || sawNoticeType) return good;
  reading.report.append(reading.prefix).append(kNoType.filled({std::to_string(startLine)})).append(kLineEnd);
  return false;
}

bool valReadTail(StrictReading& reading, std::int64_t noticesRead) {
  const std::string read = std::to_string(noticesRead);
  return readSection(reading, {"</TAIL>"}, [&](std::string_view key, std::string_view value) {
    if (key != "t_num_notices") return true;
    if (value.empty()) {
      return refuse(reading, kNoCount.filled({read}));
    }
    bool good = isNumericText(value) || refuse(reading, kCountNoNumber.words());
    if (leadingNumber(value) != static_cast<double>(noticesRead)) {
      good = refuse(reading, kCountDiffers.filled({value, read}));
    }
    return good;
  });
}

bool valReadPoint(StrictReading& reading) {
  return readSection(reading, {"</POINT>"}, [&](std::string_view key, std::string_view value) {
    for (const CoordinateRule& rule : kPointCoordinates) {
      if (key == rule.key) return value.empty() || accepts(reading, rule, value);
    }
    refuse(reading, kUndefinedKey.words());
    return true;  // told, and yet the point counts as good
  });
}

bool valReadCoord(StrictReading& reading) {
  return readSection(reading, {"</COORDINATION>", "</COORD>"},
                     [&](std::string_view key, std::string_view value) {
                       if (key != "t_adm") return refuse(reading, kUndefinedKey.words());
                       return acceptsAdm(reading, value, isAllDigits(value, reading.yield), Gap::wide);
                     });
}

bool valReadAntHgt(StrictReading& reading) {
  const auto acceptsValue = [](std::string_view value) { return hasForm(value, NumberForm::integer, {}); };
  return readAzimuths(reading, "</ANT_HGT>", "t_eff_hgt@azm", acceptsValue, kAzimuthHeight);
}

bool valReadAntDiagrH(StrictReading& reading) {
  return readDiagram(reading, "</ANT_DIAGR_H>");
}

bool valReadAntDiagrV(StrictReading& reading) {
  return readDiagram(reading, "</ANT_DIAGR_V>");
}

}  // namespace zamo
