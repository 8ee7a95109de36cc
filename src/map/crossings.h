// Which segments of a polygon cross.
#pragma once

#include <vector>

#include "map/gzmp_map.h"

namespace zamo {

// In order of the first segment and then of the second. Segments that follow each other meet in a point and
// aren't looked at; others that touch count.
GzmpCrossings findCrossings(const std::vector<GzmpPoint>& points);

}  // namespace zamo
