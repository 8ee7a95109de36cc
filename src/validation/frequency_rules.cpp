#include "validation/frequency_rules.h"

#include <algorithm>
#include <span>

#include "platform/numbers.h"
#include "platform/text.h"
#include "validation/ref_data.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

constexpr double kLowestUhfChannel = 474;
constexpr double kHighestUhfChannel = 858;
constexpr double kUhfFrom = 470;

constexpr double dvbtVhf7MHz[] = {177.5, 184.5, 191.5, 198.5, 205.5, 212.5, 219.5, 226.5};
constexpr double dvbtVhf8MHz[] = {178, 186, 194, 202, 210, 218, 226};
// Countries with channels of 8 MHz that stand in no list.
constexpr std::string_view kFurther8MhzCountries[] = {"MOZ", "SWZ", "ZWE"};

bool holds(std::span<const double> table, double value) {
  return std::find(table.begin(), table.end(), value) != table.end();
}

bool isEightMhzCountryBOrLater(std::string_view ctry) {
  return isEightMhzCountryB(ctry) || isEightMhzCountryC(ctry) ||
         std::find(std::begin(kFurther8MhzCountries), std::end(kFurther8MhzCountries), ctry) !=
             std::end(kFurther8MhzCountries);
}

}  // namespace

bool checkDvbtFrequency(std::string_view ctry, std::string_view frequency, std::string& msg) {
  const double value = leadingNumber(frequency);
  const std::string country(ctry);
  if (value >= kLowestUhfChannel && value <= kHighestUhfChannel) {
    if (holds(dvbtUhfFrequencies, value)) return true;
    msg = "Invalid DVB-T frequency in Bands IV and V";
  } else if (isSevenMhzCountry(ctry)) {
    if (holds(dvbtVhf7MHz, value)) return true;
    msg = "For " + country +
          " the valid frequencies are {177.5, 184.5, 191.5, 198.5, 205.5, 212.5, 219.5, 226.5} or [474, 858] ";
  } else if (!isEightMhzCountryA(ctry) && !isEightMhzCountryBOrLater(ctry)) {
    msg = "No frequency validation found for " + country;
  } else {
    if (holds(dvbtVhf8MHz, value)) return true;
    msg = "For " + country + " the valid frequencies are {178, 188, 194, 202, 210, 218, 226} or [474, 858]";
  }
  return false;
}

bool checkDabFrequency(std::string_view frequency, std::string& msg) {
  if (holds(dabFrequencies, leadingNumber(frequency))) return true;
  msg = "Invalid T-DAB frequency in Band III";
  return false;
}

bool checkChannelRaster(const NtcRec& ntc, char letter, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  const auto tell = [&](std::string_view message) {
    if (isFragment(ntc, "NTFD_PZ")) {
      report.warning(message);
    } else {
      report.fatal(message);
    }
  };
  const bool isVhf = !ntc.t_freq_assgn.empty() && leadingNumber(ntc.t_freq_assgn) < kUhfFrom;
  const bool is8MhzSystem = letter <= 'C';
  if (isVhf && is8MhzSystem && isSevenMhzCountry(ntc.t_ctry)) {
    tell(" 8MHz system notified in a 7MHz channel.");
  } else if (!is8MhzSystem &&
             (!isVhf || isEightMhzCountryA(ntc.t_ctry) || isEightMhzCountryBOrLater(ntc.t_ctry))) {
    tell(" 7MHz system notified in a 8MHz channel.");
  }
  return report.good;
}

bool isSystemVariant(std::string_view variant) {
  constexpr std::string_view letters = "ABCDEF";
  constexpr std::string_view digits = "12357";
  return variant.size() == 2 && letters.find(variant[0]) != std::string_view::npos &&
         digits.find(variant[1]) != std::string_view::npos;
}

}  // namespace zamo
