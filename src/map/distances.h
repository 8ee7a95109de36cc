// Distances on the ellipsoid from a point to the countries around it.
#pragma once

#include <string_view>
#include <vector>

#include "map/gzmp_map.h"
#include "map/map_data.h"

namespace zamo {

struct CountryDistance {
  std::size_t country = 0;
  double km = 0;
  double bearing = 0;  // degrees from north, clockwise
};

// The nearest countries within `radius` km, nearest first, at most `limit`, without the one of that number.
std::vector<CountryDistance> nearestCountries(const MapData& data, const GzmpPoint& point, double radius,
                                              std::size_t limit, int leftOut);

}  // namespace zamo
