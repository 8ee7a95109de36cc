#include "query/field_rules.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "platform/message.h"

namespace zamo {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct FieldRule {
  std::string_view field;
  double least;
  double most;
  bool beeps;
  std::string_view title;
  std::string_view message;
};

// clang-format off
constexpr FieldRule kFieldRules[] = {
    {"TxtChannelFreq", -kInfinity, kInfinity, true,  "Error - Assign frequency",    "Value must be numerical"},
    {"Txt_DD",         1,          31,        true,  "Error - Date Update (day)",   "Value should be between [1,31]"},
    {"Txt_MM",         1,          12,        true,  "Error - Date Update (month)", "Value should be between [1,12]"},
    {"Txt_YYYY",       2000,       kInfinity, false, "Error - Date Update (year)",  "Invalid year in date of notice"},
};
const TableMessages kFieldMessages("box: the cursor leaves a field of the query form or the date dialog that has a wrong value", kFieldRules);
const Message kBothWays("box \"Error-Date Update\": OK with both Prior and After", "Please select either 'Prior' or 'After' for the date update");
// clang-format on

bool fits(const FieldRule& rule, std::string_view text) {
  if (text.empty()) return true;
  const double value = leadingNumber(text);
  return isNumericText(text) && rule.least <= value && value <= rule.most;
}

}  // namespace

bool mayStandIn(const Host& host, std::string_view field, std::string_view text) {
  const auto* const rule = std::find_if(std::begin(kFieldRules), std::end(kFieldRules),
                                        [field](const FieldRule& row) { return row.field == field; });
  if (rule == std::end(kFieldRules) || fits(*rule, text)) return true;
  if (rule->beeps) host.beep();
  host.showBox({std::string(rule->message), std::string(rule->title), BoxIcon::exclamation});
  return false;
}

bool mayCompareDates(const Host& host, bool after, bool prior) {
  if (!after || !prior) return true;
  host.showBox({std::string(kBothWays.words()), "Error-Date Update"});
  return false;
}

}  // namespace zamo
