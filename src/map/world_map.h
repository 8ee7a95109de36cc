// The world map over its data file: the eight operations, and outlines for pictures.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "map/gzmp_map.h"

namespace zamo {

// The data file's name. It stands beside the executable.
inline constexpr const char* kMapDataFile = "gzmp32d.dat";

// Degrees. A box across the antimeridian has an east below its west.
struct GzmpBox {
  double west = 0;
  double south = 0;
  double east = 0;
  double north = 0;
};

using GzmpLine = std::vector<GzmpPoint>;

struct WorldMap {
  GzmpMap gzmp;
  // The parts of a country's outline that lie in the box or touch it, as lines. Longitudes are continuous
  // through the box, so beyond 180 where it crosses the antimeridian. Empty for an unknown code and before
  // the data are open.
  std::function<std::vector<GzmpLine>(const std::string& code, const GzmpBox& box)> countryOutline;
};

// Nothing is read before gzmpOpenData, which gives kGzmpNoData for a file that is missing, damaged or
// another's. The file stays mapped as long as a copy of the record lives.
WorldMap makeWorldMap(const std::string& dataFile);

}  // namespace zamo
