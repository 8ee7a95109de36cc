// The fixed knowledge of the plan: administrations, countries and areas, channel rasters and frequencies.
#pragma once

#include <array>
#include <string_view>

#include "model/adm_numeric_base.h"

namespace zamo {

// Codes of the regulator's country list. Unused places at the end of a table stay empty and never match.
extern const std::array<std::string_view, 122> kv19Administrations;
extern const std::array<std::string_view, 133> kv19GeoAreas;
extern const std::array<std::string_view, 90> sevenMhzCountries;
extern const std::array<std::string_view, 11> eightMhzCountriesA;
extern const std::array<std::string_view, 13> eightMhzCountriesB;
extern const std::array<std::string_view, 18> eightMhzCountriesC;

// Centre frequencies in MHz. Unused places are 0.
extern const std::array<double, 32> dabFrequencies;
extern const std::array<double, 50> dvbtUhfFrequencies;

// Whether the code may notify under the plan, in any case.
bool isKv19Administration(std::string_view code);

// Whether the administration may notify for a country or area, in any case: for itself and for those of its
// group.
bool isCtryOfAdm(std::string_view ctry, std::string_view adm);

// Whether a country has channels of 7 or 8 MHz in VHF. Codes are compared exactly.
bool isSevenMhzCountry(std::string_view code);
bool isEightMhzCountryA(std::string_view code);
bool isEightMhzCountryB(std::string_view code);
bool isEightMhzCountryC(std::string_view code);

}  // namespace zamo
