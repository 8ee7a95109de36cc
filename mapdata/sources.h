// The two sources of borders, read as they are.
#pragma once

#include <string>
#include <vector>

#include "rings.h"

namespace zamo::mapdata {

// GeoJSON with one feature a country and the property A3. Throws std::runtime_error.
std::vector<CountryRings> readGeoJson(const std::string& path);

// The polygons of the digital chart of the world for the countries and parts of countries named, by their
// keys there ("PT", "CNHK"). A key that the chart doesn't have is left out. Throws std::runtime_error.
std::vector<CountryRings> readChart(const std::string& path, const std::vector<std::string>& keys);

}  // namespace zamo::mapdata
