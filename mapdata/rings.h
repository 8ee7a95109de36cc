// Rings of degrees, as the sources give them, and what is asked of them in the plane.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zamo::mapdata {

struct Place {
  double lon = 0;
  double lat = 0;
  bool operator==(const Place&) const = default;
};

// Closed without repeating its first place. Shells run counterclockwise, holes clockwise.
struct Ring {
  std::vector<Place> places;
  bool hole = false;
};

struct Box {
  double west = 1e9, east = -1e9, south = 1e9, north = -1e9;
  bool contains(const Place& place) const {
    return place.lon >= west && place.lon <= east && place.lat >= south && place.lat <= north;
  }
};

// The rings of one country of a source.
struct CountryRings {
  std::string country;
  std::vector<Ring> rings;
};

Box boxOf(const Ring& ring);
bool isInside(const Ring& ring, const Place& place);
// A place inside, well away from the ring where it is wide; none if the ring encloses nothing.
std::optional<Place> placeInside(const Ring& ring);
// Drops places that repeat the one before and gives the ring its direction. False if fewer than three are
// left.
bool tidy(Ring& ring);
// Moves each place to the nearest one of a grid of so many degrees, and tidies.
bool coarsen(Ring& ring, double grid);

}  // namespace zamo::mapdata
