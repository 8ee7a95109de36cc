// The outlines of the countries around a place, for pictures.
#pragma once

#include <vector>

#include "map/world_map.h"

namespace zamo {

// The outlines that lie in the box or touch it, of the country in its middle and of those nearest to it.
// Empty before the data are open.
std::vector<GzmpLine> outlinesAround(const WorldMap& map, const GzmpBox& box);

}  // namespace zamo
