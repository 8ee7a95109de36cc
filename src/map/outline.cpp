#include "map/outline.h"

#include <s2/s2latlng.h>

#include <algorithm>

namespace zamo {
namespace {

struct Spot {
  double lat = 0;
  double lon = 0;
};

// The longitude of that place that is nearest to the box's middle.
double lonNear(double lon, double middle) {
  if (lon - middle > 180) return lon - 360;
  if (lon - middle < -180) return lon + 360;
  return lon;
}

bool touches(const Spot& from, const Spot& to, const GzmpBox& box) {
  return std::min(from.lat, to.lat) <= box.north && std::max(from.lat, to.lat) >= box.south &&
         std::min(from.lon, to.lon) <= box.east && std::max(from.lon, to.lon) >= box.west;
}

GzmpPoint pointOf(const Spot& spot) {
  return {static_cast<float>(spot.lat), static_cast<float>(spot.lon)};
}

}  // namespace

std::vector<GzmpLine> outlineWithin(const S2Shape& country, const GzmpBox& asked) {
  GzmpBox box = asked;
  if (box.east < box.west) box.east += 360;
  const double middle = (box.west + box.east) / 2;
  const auto spotOf = [&](const S2Point& point) {
    const S2LatLng place(point);
    return Spot{place.lat().degrees(), lonNear(place.lng().degrees(), middle)};
  };
  std::vector<GzmpLine> lines;
  for (int chain = 0; chain < country.num_chains(); ++chain) {
    const int length = country.chain(chain).length;
    if (length == 0) continue;
    Spot from = spotOf(country.chain_edge(chain, 0).v0);
    bool drawing = false;
    for (int i = 0; i < length; ++i) {
      const Spot to = spotOf(country.chain_edge(chain, i).v1);
      // What lies opposite to the box would run once around the world.
      const bool seen = std::abs(to.lon - from.lon) < 180 && touches(from, to, box);
      if (seen && !drawing) lines.push_back({pointOf(from)});
      if (seen) lines.back().push_back(pointOf(to));
      drawing = seen;
      from = to;
    }
  }
  return lines;
}

}  // namespace zamo
