#include "validation/ref_data.h"

#include <algorithm>
#include <span>

#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::string_view kOfSpain[] = {"CNR", "E"};
constexpr std::string_view kOfFrance[] = {"F", "MYT", "REU"};
constexpr std::string_view kOfUnitedKingdom[] = {"ASC", "G", "GIB", "SHN", "TRC"};
constexpr std::string_view kOfPortugal[] = {"AZR", "MDR", "POR"};
constexpr std::string_view kOfPalestine[] = {"XGZ", "XWB"};
constexpr std::string_view kOfJordan[] = {"JOR", "XWB"};
constexpr std::string_view kOfMorocco[] = {"AOE", "MRC"};
constexpr std::string_view kOfDenmark[] = {"DNK", "FRO"};
constexpr std::string_view kOfIsrael[] = {"ISR", "XWB"};

struct AdministrationGroup {
  std::string_view adm;
  std::span<const std::string_view> countries;
};

constexpr AdministrationGroup kGroups[] = {
    {"E", kOfSpain},      {"F", kOfFrance},      {"G", kOfUnitedKingdom},
    {"POR", kOfPortugal}, {"PSE", kOfPalestine}, {"JOR", kOfJordan},
    {"MRC", kOfMorocco},  {"DNK", kOfDenmark},   {"ISR", kOfIsrael},
};

bool holds(std::span<const std::string_view> codes, std::string_view code) {
  return !code.empty() && std::find(codes.begin(), codes.end(), code) != codes.end();
}

const std::string_view* findIgnoringCase(std::span<const std::string_view> codes, std::string_view code) {
  const auto found = std::find_if(codes.begin(), codes.end(),
                                  [code](std::string_view one) { return equalsIgnoringCase(one, code); });
  return found == codes.end() || code.empty() ? nullptr : &*found;
}

}  // namespace

// clang-format off
constexpr std::array<std::string_view, 122> kv19Administrations = {
    "AFS", "AGL", "ALB", "ALG", "AND", "ARM", "ARS", "AUT", "AZE", "BDI", "BEL", "BEN", "BFA", "BHR",
    "BIH", "BLR", "BOT", "BUL", "CAF", "CME", "COD", "COG", "COM", "CPV", "CTI", "CVA", "CYP", "CZE",
    "D", "DJI", "DNK", "E", "EGY", "ERI", "EST", "ETH", "F", "FIN", "G", "GAB", "GEO", "GHA", "GMB",
    "GNB", "GNE", "GRC", "GUI", "HNG", "HOL", "HRV", "I", "IRL", "IRN", "IRQ", "ISL", "ISR", "JOR",
    "KAZ", "KEN", "KGZ", "KWT", "LBN", "LBR", "LBY", "LIE", "LSO", "LTU", "LUX", "LVA", "MAU", "MCO",
    "MDA", "MDG", "MKD", "MLI", "MLT", "MNE", "MOZ", "MRC", "MTN", "MWI", "NGR", "NIG", "NMB", "NOR",
    "OMA", "POL", "POR", "PSE", "QAT", "ROU", "RRW", "RUS", "S", "SDN", "SEN", "SEY", "SMR", "SOM",
    "SRB", "SRL", "STP", "SUI", "SVK", "SVN", "SWZ", "SYR", "TCD", "TGO", "TJK", "TKM", "TUN", "TUR",
    "TZA", "UAE", "UGA", "UKR", "UZB", "YEM", "ZMB", "ZWE"};

constexpr std::array<std::string_view, 133> kv19GeoAreas = {
    "AFS", "AGL", "ALB", "ALG", "AND", "AOE", "ARM", "ARS", "ASC", "AUT", "AZE", "AZR", "BDI", "BEL",
    "BEN", "BFA", "BHR", "BIH", "BLR", "BOT", "BUL", "CAF", "CME", "CNR", "COD", "COG", "COM", "CPV",
    "CTI", "CVA", "CYP", "CZE", "D", "DJI", "DNK", "E", "EGY", "ERI", "EST", "ETH", "F", "FIN", "FRO",
    "G", "GAB", "GEO", "GHA", "GIB", "GMB", "GNB", "GNE", "GRC", "GUI", "HNG", "HOL", "HRV", "I", "IRL",
    "IRN", "IRQ", "ISL", "ISR", "JOR", "KAZ", "KEN", "KGZ", "KWT", "LBN", "LBR", "LBY", "LIE", "LSO",
    "LTU", "LUX", "LVA", "MAU", "MCO", "MDA", "MDG", "MDR", "MKD", "MLI", "MLT", "MNE", "MOZ", "MRC",
    "MTN", "MWI", "MYT", "NGR", "NIG", "NMB", "NOR", "OMA", "POL", "POR", "QAT", "REU", "ROU", "RRW",
    "RUS", "S", "SDN", "SEN", "SEY", "SHN", "SMR", "SOM", "SRB", "SRL", "STP", "SUI", "SVK", "SVN",
    "SWZ", "SYR", "TCD", "TGO", "TJK", "TKM", "TRC", "TUN", "TUR", "TZA", "UAE", "UGA", "UKR", "UZB",
    "XGZ", "XWB", "YEM", "ZMB", "ZWE"};

constexpr std::array<std::string_view, 90> sevenMhzCountries = {
    "ALB", "ALG", "AND", "ARS", "AUT", "AZR", "BEL", "BHR", "BIH", "BUL", "CME", "CNR", "CVA", "CYP",
    "CZE", "D", "DJI", "DNK", "E", "EGY", "ERI", "EST", "ETH", "F", "FIN", "FRO", "GHA", "GIB", "GNB",
    "GNE", "GRC", "HNG", "HOL", "HRV", "I", "IRL", "IRN", "IRQ", "ISL", "ISR", "JOR", "KEN", "KWT",
    "LBN", "LBR", "LBY", "LIE", "LTU", "LUX", "LVA", "MAU", "MDA", "MDR", "MKD", "MLI", "MLT", "MNE",
    "MRC", "MTN", "NIG", "NOR", "OMA", "POL", "POR", "QAT", "ROU", "RRW", "S", "SCG", "SDN", "SEY",
    "SMR", "SOM", "SRB", "SRL", "STP", "SUI", "SVK", "SVN", "SYR", "TCD", "TUN", "TUR", "UAE", "UGA",
    "UKR", "YEM", "XGZ", "XWB", "ZMB"};

constexpr std::array<std::string_view, 11> eightMhzCountriesA = {
    "ARM", "AZE", "BLR", "GEO", "KAZ", "KGZ", "RUS", "TJK", "TKM", "UZB"};

constexpr std::array<std::string_view, 13> eightMhzCountriesB = {
    "AFS", "AGL", "ASC", "BOT", "G", "GMB", "LSO", "MWI", "NMB", "SHN", "TRC", "TZA"};

constexpr std::array<std::string_view, 18> eightMhzCountriesC = {
    "BDI", "BEN", "BFA", "CAF", "COD", "COG", "COM", "CPV", "CTI", "GAB", "GUI", "MDG", "MYT", "NGR",
    "REU", "SEN", "TGO"};

constexpr std::array<double, 32> dabFrequencies = {
    174.928, 176.640, 178.352, 180.064, 181.936, 183.648, 185.360, 187.072, 188.928, 190.640, 192.352,
    194.064, 195.936, 197.648, 199.360, 201.072, 202.928, 204.640, 206.352, 208.064, 209.936, 211.648,
    213.360, 215.072, 216.928, 218.640, 220.352, 222.064, 223.936, 225.648, 227.360, 229.072};

constexpr std::array<double, 50> dvbtUhfFrequencies = {
    474, 482, 490, 498, 506, 514, 522, 530, 538, 546, 554, 562, 570, 578, 586, 594, 602, 610, 618, 626,
    634, 642, 650, 658, 666, 674, 682, 690, 698, 706, 714, 722, 730, 738, 746, 754, 762, 770, 778, 786,
    794, 802, 810, 818, 826, 834, 842, 850, 858};
// clang-format on

// The last code of each table stands where it must, and nothing but the spare place stands behind it.
static_assert(kv19Administrations[120] == "ZWE" && kv19Administrations[121].empty());
static_assert(kv19GeoAreas[132] == "ZWE");
static_assert(sevenMhzCountries[89] == "ZMB");
static_assert(eightMhzCountriesA[9] == "UZB" && eightMhzCountriesA[10].empty());
static_assert(eightMhzCountriesB[11] == "TZA" && eightMhzCountriesB[12].empty());
static_assert(eightMhzCountriesC[16] == "TGO" && eightMhzCountriesC[17].empty());
static_assert(dvbtUhfFrequencies[48] == 858 && dvbtUhfFrequencies[49] == 0);

bool isKv19Administration(std::string_view code) {
  return findIgnoringCase(kv19Administrations, code) != nullptr;
}

bool isCtryOfAdm(std::string_view ctry, std::string_view adm) {
  if (equalsIgnoringCase(ctry, adm)) return true;
  const auto* group =
      std::find_if(std::begin(kGroups), std::end(kGroups),
                   [adm](const AdministrationGroup& one) { return equalsIgnoringCase(one.adm, adm); });
  return group != std::end(kGroups) && findIgnoringCase(group->countries, ctry) != nullptr;
}

bool isSevenMhzCountry(std::string_view code) {
  return holds(sevenMhzCountries, code);
}

bool isEightMhzCountryA(std::string_view code) {
  return holds(eightMhzCountriesA, code);
}

bool isEightMhzCountryB(std::string_view code) {
  return holds(eightMhzCountriesB, code);
}

bool isEightMhzCountryC(std::string_view code) {
  return holds(eightMhzCountriesC, code);
}

}  // namespace zamo
