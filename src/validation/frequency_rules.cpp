#include "validation/frequency_rules.h"

#include <algorithm>
#include <span>

#include "model/notice_words.h"
#include "platform/numbers.h"
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

// clang-format off
const Message kNoUhfChannel("DVB-T from 474 to 858 MHz: no channel centre", "Invalid DVB-T frequency in Bands IV and V");
const Message kNoSevenMhzChannel("DVB-T in VHF, country with channels of 7 MHz: no channel centre", "For %1 the valid frequencies are {177.5, 184.5, 191.5, 198.5, 205.5, 212.5, 219.5, 226.5} or [474, 858] ");
const Message kNoEightMhzChannel("DVB-T in VHF, country with channels of 8 MHz: no channel centre", "For %1 the valid frequencies are {178, 188, 194, 202, 210, 218, 226} or [474, 858]");
const Message kNoRaster("DVB-T in VHF: the country has no channel raster", "No frequency validation found for %1");
const Message kNoDabBlock("T-DAB: no block centre", "Invalid T-DAB frequency in Band III");
const Message kWideSystem("t_sys_var A, B or C in VHF, country with channels of 7 MHz; a warning for fragment NTFD_PZ", " 8MHz system notified in a 7MHz channel.");
const Message kNarrowSystem("t_sys_var D, E or F in UHF, without a frequency, or in VHF in a country with channels of 8 MHz; a warning for fragment NTFD_PZ", " 7MHz system notified in a 8MHz channel.");
// clang-format on

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
  if (value >= kLowestUhfChannel && value <= kHighestUhfChannel) {
    if (holds(dvbtUhfFrequencies, value)) return true;
    msg = kNoUhfChannel.words();
  } else if (isSevenMhzCountry(ctry)) {
    if (holds(dvbtVhf7MHz, value)) return true;
    msg = kNoSevenMhzChannel.filled({ctry});
  } else if (!isEightMhzCountryA(ctry) && !isEightMhzCountryBOrLater(ctry)) {
    msg = kNoRaster.filled({ctry});
  } else {
    if (holds(dvbtVhf8MHz, value)) return true;
    msg = kNoEightMhzChannel.filled({ctry});
  }
  return false;
}

bool checkDabFrequency(std::string_view frequency, std::string& msg) {
  if (holds(dabFrequencies, leadingNumber(frequency))) return true;
  msg = kNoDabBlock.words();
  return false;
}

bool checkChannelRaster(const NtcRec& ntc, char letter, std::string& errs, std::string_view label) {
  RuleReport report{errs, label};
  const auto tell = [&](const Message& message) {
    if (isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ)) {
      report.warning(message);
    } else {
      report.fatal(message);
    }
  };
  const bool isVhf = !ntc.t_freq_assgn.empty() && leadingNumber(ntc.t_freq_assgn) < kUhfFrom;
  const bool is8MhzSystem = letter <= 'C';
  if (isVhf && is8MhzSystem && isSevenMhzCountry(ntc.t_ctry)) {
    tell(kWideSystem);
  } else if (!is8MhzSystem &&
             (!isVhf || isEightMhzCountryA(ntc.t_ctry) || isEightMhzCountryBOrLater(ntc.t_ctry))) {
    tell(kNarrowSystem);
  }
  return report.good;
}

}  // namespace zamo
