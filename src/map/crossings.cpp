#include "map/crossings.h"

#include <algorithm>
#include <cmath>

namespace zamo {
namespace {

struct Spot {
  double x = 0;
  double y = 0;
};

// On which side of the line through a and b the spot c lies. Differences of floats are exact in double
// precision.
double sideOf(const Spot& a, const Spot& b, const Spot& c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

struct Segment {
  Spot from, to;
  double west, east, south, north;
};

Segment segmentOf(const Spot& from, const Spot& to) {
  return {from,
          to,
          std::min(from.x, to.x),
          std::max(from.x, to.x),
          std::min(from.y, to.y),
          std::max(from.y, to.y)};
}

bool boxesMeet(const Segment& one, const Segment& other) {
  return one.west <= other.east && other.west <= one.east && one.south <= other.north &&
         other.south <= one.north;
}

// Of segments whose boxes meet. Touching counts.
bool meet(const Segment& one, const Segment& other) {
  const double a = sideOf(one.from, one.to, other.from);
  const double b = sideOf(one.from, one.to, other.to);
  if ((a > 0 && b > 0) || (a < 0 && b < 0)) return false;
  const double c = sideOf(other.from, other.to, one.from);
  const double d = sideOf(other.from, other.to, one.to);
  return !((c > 0 && d > 0) || (c < 0 && d < 0));
}

GzmpPoint meetingPlace(const Segment& one, const Segment& other) {
  const double a = sideOf(other.from, other.to, one.from);
  const double b = sideOf(other.from, other.to, one.to);
  const double share = a == b ? 0 : a / (a - b);
  return {static_cast<float>(one.from.y + share * (one.to.y - one.from.y)),
          static_cast<float>(one.from.x + share * (one.to.x - one.from.x))};
}

bool hasNoLength(const Segment& segment) {
  return segment.from.x == segment.to.x && segment.from.y == segment.to.y;
}

// The corners of the polygon, with longitudes that run on across the antimeridian.
std::vector<Spot> cornersOf(const std::vector<GzmpPoint>& points) {
  std::vector<Spot> corners;
  corners.reserve(points.size());
  for (const GzmpPoint& point : points) {
    Spot corner{point[1], point[0]};
    if (!corners.empty()) {
      const double before = corners.back().x;
      if (corner.x - before > 180) corner.x -= 360;
      if (corner.x - before < -180) corner.x += 360;
    }
    corners.push_back(corner);
  }
  return corners;
}

}  // namespace

GzmpCrossings findCrossings(const std::vector<GzmpPoint>& points) {
  GzmpCrossings found;
  std::vector<Spot> corners = cornersOf(points);
  if (corners.size() < 2) return found;
  if (points.front() != points.back()) corners.push_back(corners.front());
  std::vector<Segment> segments;
  segments.reserve(corners.size());
  for (std::size_t i = 0; i + 1 < corners.size(); ++i)
    segments.push_back(segmentOf(corners[i], corners[i + 1]));
  const std::size_t last = segments.size() - 1;
  // Up to three segments all follow each other, so equal points are told by themselves.
  if (segments.size() < 4) {
    for (std::size_t i = 0; i + 1 < segments.size(); ++i) {
      if (!hasNoLength(segments[i]) && !(i + 1 == last && hasNoLength(segments[last]))) continue;
      found.segments.push_back({static_cast<int>(i + 1), static_cast<int>(i + 2)});
      found.places.push_back({static_cast<float>(segments[i].to.y), static_cast<float>(segments[i].to.x)});
    }
  }
  for (std::size_t i = 0; i < segments.size(); ++i) {
    for (std::size_t j = i + 2; j < segments.size(); ++j) {
      if (!boxesMeet(segments[i], segments[j]) || (i == 0 && j == last)) continue;
      if (!meet(segments[i], segments[j])) continue;
      found.segments.push_back({static_cast<int>(i + 1), static_cast<int>(j + 1)});
      found.places.push_back(meetingPlace(segments[i], segments[j]));
    }
  }
  return found;
}

}  // namespace zamo
