// Areas on the sphere: repaired, joined and cut. All points are centres of cells of one level, so that what
// touches shares its points exactly.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <s2/mutable_s2shape_index.h>
#include <s2/s2lax_polygon_shape.h>

#include "rings.h"

namespace zamo::mapdata {

// About 4 m: far below what the sources know, and a point takes few bytes.
inline constexpr int kPlaceLevel = 21;

using Loops = std::vector<std::vector<S2Point>>;

// An area with its index. Loops have their inside on the left.
class Region {
 public:
  Region() : Region(Loops{}) {}
  explicit Region(Loops loops);
  const Loops& loops() const { return loops_; }
  bool empty() const { return loops_.empty(); }
  int vertices() const;
  // Several threads may ask at once.
  const S2ShapeIndex& index() const { return *index_; }

 private:
  Loops loops_;
  std::shared_ptr<MutableS2ShapeIndex> index_;
};

// The points of a ring. A side along a parallel stays on it, however long it is.
std::vector<S2Point> pointsOf(const Ring& ring);

// What at least `times` of the loops enclose. Throws std::runtime_error.
Region enclosed(const std::vector<const Loops*>& inputs, int times = 1);
Region difference(const Region& from, const Region& what);
Region intersection(const Region& one, const Region& other);

bool contains(const Region& region, const S2Point& point);
double squareKilometres(const std::vector<S2Point>& loop);

// Kilometres from the place within the loop that is farthest from it; of a grid of places, so a little less.
double widthOf(const std::vector<S2Point>& loop, S2Point* where);

// Kilometres from a place to the nearest point of a loop.
double distanceBetween(const std::vector<S2Point>& loop, const Place& place);

// The share of a loop's length that runs along the region's border.
double shareAlong(const std::vector<S2Point>& loop, const Region& region);

// A loop's first place, for messages: "41.23 N 9.87 E".
std::string placeText(const S2Point& point);

}  // namespace zamo::mapdata
