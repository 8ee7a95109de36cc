#include "regions.h"

#include <s2/s2boolean_operation.h>
#include <s2/s2builderutil_lax_polygon_layer.h>
#include <s2/s2builderutil_snap_functions.h>
#include <s2/s2closest_edge_query.h>
#include <s2/s2contains_point_query.h>
#include <s2/s2earth.h>
#include <s2/s2latlng.h>
#include <s2/s2latlng_rect.h>
#include <s2/s2loop.h>
#include <s2/s2loop_measures.h>
#include <s2/s2winding_operation.h>

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace zamo::mapdata {
namespace {

// Sides longer than this are given places between, as they run straight in degrees.
constexpr double kLongestSide = 0.1;
// In the South Pacific, far from any land.
const S2Point kAtSea = S2LatLng::FromDegrees(-42.0123, -121.0321).ToPoint();

s2builderutil::S2CellIdSnapFunction snapFunction() {
  return s2builderutil::S2CellIdSnapFunction(kPlaceLevel);
}

Loops loopsOf(const S2LaxPolygonShape& shape) {
  Loops loops;
  for (int i = 0; i < shape.num_loops(); ++i) {
    std::vector<S2Point> loop;
    for (int j = 0; j < shape.num_loop_vertices(i); ++j) loop.push_back(shape.loop_vertex(i, j));
    loops.push_back(std::move(loop));
  }
  return loops;
}

void require(bool good, const S2Error& error) {
  if (!good) throw std::runtime_error(error.text());
}

Region combine(S2BooleanOperation::OpType type, const Region& one, const Region& other) {
  S2LaxPolygonShape result;
  S2BooleanOperation::Options options;
  options.set_snap_function(snapFunction());
  S2BooleanOperation operation(type, std::make_unique<s2builderutil::LaxPolygonLayer>(&result), options);
  S2Error error;
  require(operation.Build(one.index(), other.index(), &error), error);
  return Region(loopsOf(result));
}

// Clang finds S2's own comparison ambiguous in C++20.
bool isSame(const S2Point& one, const S2Point& other) {
  return one.x() == other.x() && one.y() == other.y() && one.z() == other.z();
}

S2Point pointAt(const Place& place) {
  // Both sides of the antimeridian are one line.
  const double lon = place.lon == -180 ? 180 : place.lon;
  return S2LatLng::FromDegrees(place.lat, lon).Normalized().ToPoint();
}

}  // namespace

Region::Region(Loops loops) : loops_(std::move(loops)), index_(std::make_shared<MutableS2ShapeIndex>()) {
  index_->Add(std::make_unique<S2LaxPolygonShape>(loops_));
  index_->ForceBuild();
}

int Region::vertices() const {
  std::size_t count = 0;
  for (const auto& loop : loops_) count += loop.size();
  return static_cast<int>(count);
}

std::vector<S2Point> pointsOf(const Ring& ring) {
  std::vector<S2Point> points;
  Place before = ring.places.back();
  for (const Place& place : ring.places) {
    const double longest = std::max(std::abs(place.lon - before.lon), std::abs(place.lat - before.lat));
    const int parts = std::max(1, static_cast<int>(std::ceil(longest / kLongestSide)));
    for (int part = 1; part <= parts; ++part) {
      const double share = static_cast<double>(part) / parts;
      const Place at = part == parts ? place
                                     : Place{before.lon + share * (place.lon - before.lon),
                                             before.lat + share * (place.lat - before.lat)};
      const S2Point point = pointAt(at);
      if (points.empty() || !isSame(points.back(), point)) points.push_back(point);
    }
    before = place;
  }
  while (points.size() > 1 && isSame(points.front(), points.back())) points.pop_back();
  return points;
}

Region enclosed(const std::vector<const Loops*>& inputs, int times) {
  S2LaxPolygonShape result;
  S2WindingOperation operation(std::make_unique<s2builderutil::LaxPolygonLayer>(&result),
                               S2WindingOperation::Options(snapFunction()));
  for (const Loops* loops : inputs) {
    for (const auto& loop : *loops) operation.AddLoop(loop);
  }
  S2Error error;
  require(operation.Build(kAtSea, 1 - times, S2WindingOperation::WindingRule::POSITIVE, &error), error);
  return Region(loopsOf(result));
}

Region difference(const Region& from, const Region& what) {
  return combine(S2BooleanOperation::OpType::DIFFERENCE, from, what);
}

Region intersection(const Region& one, const Region& other) {
  return combine(S2BooleanOperation::OpType::INTERSECTION, one, other);
}

bool contains(const Region& region, const S2Point& point) {
  return MakeS2ContainsPointQuery(&region.index()).Contains(point);
}

double squareKilometres(const std::vector<S2Point>& loop) {
  return S2Earth::SteradiansToSquareKm(S2::GetSignedArea(loop));
}

double widthOf(const std::vector<S2Point>& loop, S2Point* where) {
  constexpr int kSteps = 24;
  MutableS2ShapeIndex index;
  index.Add(std::make_unique<S2LaxPolygonShape>(Loops{loop}));
  S2LatLngRect box = S2LatLngRect::Empty();
  for (const S2Point& point : loop) {
    box = box.Union(S2LatLngRect::FromPoint(S2LatLng(point)));
  }
  auto inside = MakeS2ContainsPointQuery(&index);
  S2ClosestEdgeQuery query(&index);
  query.mutable_options()->set_include_interiors(false);
  double widest = 0;
  for (int i = 0; i < kSteps * kSteps; ++i) {
    const double across = (i % kSteps + 0.5) / kSteps;
    const double up = (i / kSteps + 0.5) / kSteps;  // NOLINT(bugprone-integer-division): rows of the grid
    const S2Point point = S2LatLng::FromRadians(box.lat_lo().radians() + up * box.lat().GetLength(),
                                                box.lng_lo().radians() + across * box.lng().GetLength())
                              .Normalized()
                              .ToPoint();
    if (!inside.Contains(point)) continue;
    S2ClosestEdgeQuery::PointTarget target(point);
    const double km = S2Earth::ToKm(query.GetDistance(&target).ToAngle());
    if (km <= widest) continue;
    widest = km;
    *where = point;
  }
  return widest;
}

double distanceBetween(const std::vector<S2Point>& loop, const Place& place) {
  const S2Point from = pointAt(place);
  S1Angle nearest = S1Angle::Infinity();
  for (const S2Point& point : loop) nearest = std::min(nearest, S1Angle(from, point));
  return S2Earth::ToKm(nearest);
}

double shareAlong(const std::vector<S2Point>& loop, const Region& region) {
  const S1ChordAngle near(S2Earth::KmToAngle(0.01));
  S2ClosestEdgeQuery query(&region.index());
  query.mutable_options()->set_include_interiors(false);
  double along = 0;
  double all = 0;
  S2Point before = loop.back();
  for (const S2Point& point : loop) {
    const double length = before.Angle(point);
    S2ClosestEdgeQuery::PointTarget middle((before + point).Normalize());
    if (query.IsDistanceLess(&middle, near)) along += length;
    all += length;
    before = point;
  }
  return all > 0 ? along / all : 1;
}

std::string placeText(const S2Point& point) {
  const S2LatLng at(point);
  char text[48];
  std::snprintf(text, sizeof text, "%.3f %c %.3f %c", std::abs(at.lat().degrees()),
                at.lat().degrees() < 0 ? 'S' : 'N', std::abs(at.lng().degrees()),
                at.lng().degrees() < 0 ? 'W' : 'E');
  return text;
}

}  // namespace zamo::mapdata
