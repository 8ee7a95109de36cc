#include "rings.h"

#include <algorithm>
#include <cmath>

namespace zamo::mapdata {
namespace {

double signedArea(const Ring& ring) {
  double area = 0;
  const Place* before = &ring.places.back();
  for (const Place& place : ring.places) {
    area += before->lon * place.lat - place.lon * before->lat;
    before = &place;
  }
  return area / 2;
}

// The longitudes at which the ring crosses a parallel, in order.
std::vector<double> crossingsOf(const Ring& ring, double lat) {
  std::vector<double> crossings;
  const Place* before = &ring.places.back();
  for (const Place& place : ring.places) {
    if ((before->lat > lat) != (place.lat > lat)) {
      crossings.push_back(before->lon +
                          (lat - before->lat) / (place.lat - before->lat) * (place.lon - before->lon));
    }
    before = &place;
  }
  std::sort(crossings.begin(), crossings.end());
  return crossings;
}

}  // namespace

Box boxOf(const Ring& ring) {
  Box box;
  for (const Place& place : ring.places) {
    box.west = std::min(box.west, place.lon);
    box.east = std::max(box.east, place.lon);
    box.south = std::min(box.south, place.lat);
    box.north = std::max(box.north, place.lat);
  }
  return box;
}

bool isInside(const Ring& ring, const Place& place) {
  const auto crossings = crossingsOf(ring, place.lat);
  const auto beyond = std::upper_bound(crossings.begin(), crossings.end(), place.lon);
  return (beyond - crossings.begin()) % 2 == 1;
}

std::optional<Place> placeInside(const Ring& ring) {
  const Box box = boxOf(ring);
  std::optional<Place> best;
  double widest = 0;
  for (const double share : {0.5137, 0.2711, 0.7391}) {
    const double lat = box.south + share * (box.north - box.south);
    const auto crossings = crossingsOf(ring, lat);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
      if (crossings[i + 1] - crossings[i] <= widest) continue;
      widest = crossings[i + 1] - crossings[i];
      best = Place{(crossings[i] + crossings[i + 1]) / 2, lat};
    }
  }
  return best;
}

bool tidy(Ring& ring) {
  auto& places = ring.places;
  places.erase(std::unique(places.begin(), places.end()), places.end());
  while (places.size() > 1 && places.front() == places.back()) places.pop_back();
  if (places.size() < 3) return false;
  const double area = signedArea(ring);
  if ((area > 0) == ring.hole) std::reverse(places.begin(), places.end());
  return area != 0;
}

bool coarsen(Ring& ring, double grid) {
  for (Place& place : ring.places) {
    place = {std::round(place.lon / grid) * grid, std::round(place.lat / grid) * grid};
  }
  return tidy(ring);
}

}  // namespace zamo::mapdata
