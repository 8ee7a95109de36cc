#include "model/adm_numeric_base.h"

#include <algorithm>
#include <iterator>

#include "platform/text.h"

namespace zamo {
namespace {

// The codes in the order of their key blocks.
// clang-format off
constexpr std::string_view kNumberedAdministrations[] = {
    "AFS", "AGL", "ALB", "ALG", "AND", "ARM", "ARS", "AUT", "AZE", "BDI", "BEL", "BEN", "BFA", "BHR",
    "BIH", "BLR", "BOT", "BUL", "CAF", "CME", "COD", "COG", "COM", "CPV", "CTI", "CVA", "CYP", "CZE",
    "D", "DJI", "DNK", "E", "EGY", "ERI", "EST", "ETH", "F", "FIN", "G", "GAB", "GEO", "GHA", "GMB",
    "GNB", "GNE", "GRC", "GUI", "HNG", "HOL", "HRV", "I", "IRL", "IRN", "IRQ", "ISL", "ISR", "JOR",
    "KAZ", "KEN", "KGZ", "KWT", "LBN", "LBR", "LBY", "LIE", "LSO", "LTU", "LUX", "LVA", "MAU", "MCO",
    "MDA", "MDG", "MKD", "MLI", "MLT", "MOZ", "MRC", "MTN", "MWI", "NGR", "NIG", "NMB", "NOR", "OMA",
    "POL", "POR", "PSE", "QAT", "ROU", "RRW", "RUS", "S", "SCG", "SDN", "SEN", "SEY", "SMR", "SOM",
    "SRL", "STP", "SUI", "SVK", "SVN", "SWZ", "SYR", "TCD", "TGO", "TJK", "TKM", "TUN", "TUR", "TZA",
    "UAE", "UGA", "UKR", "UZB", "YEM", "ZMB", "ZWE"};
// clang-format on

constexpr std::int32_t kFirstBase = 80100000;
constexpr std::int32_t kBlockSize = 100000;

static_assert(std::size(kNumberedAdministrations) == 120);

}  // namespace

std::int32_t admNumericBase(std::string_view code) {
  const auto* found = std::find_if(std::begin(kNumberedAdministrations), std::end(kNumberedAdministrations),
                                   [code](std::string_view one) { return equalsIgnoringCase(one, code); });
  if (found == std::end(kNumberedAdministrations)) return 0;
  return kFirstBase + kBlockSize * static_cast<std::int32_t>(found - kNumberedAdministrations);
}

}  // namespace zamo
