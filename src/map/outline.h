// The outline of a country within a box, for pictures.
#pragma once

#include <vector>

#include "map/map_data.h"
#include "map/world_map.h"

namespace zamo {

std::vector<GzmpLine> outlineWithin(const S2Shape& country, const GzmpBox& asked);

}  // namespace zamo
