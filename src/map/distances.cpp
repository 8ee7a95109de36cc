#include "map/distances.h"

#include <s2/s2edge_distances.h>
#include <s2/s2latlng.h>

#include <GeographicLib/Geodesic.hpp>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace zamo {
namespace {

constexpr double kEquator = 6378.137;  // km, WGS84
constexpr double kFlattening = 1 / 298.257223563;
constexpr double kEccentricity2 = kFlattening * (2 - kFlattening);
// What the estimate of a distance is off at most, up to 1500 km.
constexpr double kEstimateError = 6e-5;
constexpr double kRadiansToDegrees = 180 / std::numbers::pi;

// The radius of curvature of the meridian, in km, from the square of the sine of the latitude.
double meridianRadius(double sin2) {
  const double w = 1 - kEccentricity2 * sin2;
  return kEquator * (1 - kEccentricity2) / (w * std::sqrt(w));
}

struct Site {
  S2Point point;
  double lat;
  double lon;
};

// The least km that an angle at the centre can stand for, for ways of that angle from the site.
double leastKm(const Site& site, double angle) {
  const double lat = std::max(0.0, std::abs(site.lat) / kRadiansToDegrees - 1.01 * angle - 1e-4);
  const double sine = std::sin(lat);
  return angle * meridianRadius(sine * sine);
}

// The angle that no way of so many km exceeds.
S1Angle widestAngle(const Site& site, double km) {
  const double reach = km / meridianRadius(0);
  const double lat = std::max(0.0, std::abs(site.lat) / kRadiansToDegrees - 1.01 * reach - 1e-4);
  const double sine = std::sin(lat);
  return S1Angle::Radians(km / meridianRadius(sine * sine) * (1 + 1e-9) + 1e-12);
}

// A distance without a geodesic: the arc with the radius of curvature in its direction at its middle.
double estimateKm(const S2Point& from, const S2Point& to) {
  const S2Point way = to - from;
  const double chord2 = way.Norm2();
  if (chord2 == 0) return 0;
  const S2Point middle = from + to;
  const double sin2 = middle.z() * middle.z() / middle.Norm2();
  const double north2 = sin2 < 1 ? way.z() * way.z() / (chord2 * (1 - sin2)) : 1;
  const double w = 1 - kEccentricity2 * sin2;
  const double across = kEquator / std::sqrt(w);
  const double along = across * (1 - kEccentricity2) / w;
  const double radius = 1 / (north2 / along + (1 - north2) / across);
  return 2 * std::asin(std::min(1.0, std::sqrt(chord2) / 2)) * radius;
}

struct Geodesic {
  double km = 0;
  double bearing = 0;
  double arrival = 0;
};

Geodesic geodesicTo(const Site& site, const S2Point& to) {
  const S2LatLng place(to);
  Geodesic way;
  GeographicLib::Geodesic::WGS84().Inverse(site.lat, site.lon, place.lat().degrees(), place.lng().degrees(),
                                           way.km, way.bearing, way.arrival);
  way.km /= 1000;
  return way;
}

// From the foot of the perpendicular on the sphere to that on the ellipsoid, which lies some thousandths of
// the distance further along the edge.
Geodesic refined(const Site& site, const S2Shape::Edge& edge, const S2Point& foot, const Geodesic& way) {
  const double length = edge.v0.Angle(edge.v1) * kEquator;
  const double shift = std::min(length, 0.0034 * way.km);
  if (shift * shift < 1e-4 * way.km) return way;
  const auto toEnd = [&](const S2Point& end) {
    const S2LatLng a(foot);
    const S2LatLng b(end);
    double azimuth = 0;
    double backwards = 0;
    GeographicLib::Geodesic::WGS84().Inverse(a.lat().degrees(), a.lng().degrees(), b.lat().degrees(),
                                             b.lng().degrees(), azimuth, backwards);
    return azimuth;
  };
  const bool towardsEnd = foot.Angle(edge.v1) >= foot.Angle(edge.v0);
  const double azimuth = toEnd(towardsEnd ? edge.v1 : edge.v0);
  // Positive towards that end.
  const double move = -way.km * std::cos((way.arrival - azimuth) / kRadiansToDegrees);
  const S2Point& end = (move > 0) == towardsEnd ? edge.v1 : edge.v0;
  const double room = foot.Angle(end) * kEquator;
  if (room == 0) return way;
  const double share = std::min(1.0, std::abs(move) / room);
  const Geodesic moved = geodesicTo(site, ((1 - share) * foot + share * end).Normalize());
  return moved.km < way.km ? moved : way;
}

// The distance to one country, if it isn't beyond `most` km. On the ellipsoid the nearest edge needn't be the
// one that is nearest on the sphere, so all that could be are looked at.
std::optional<CountryDistance> distanceTo(const MapData& data, const Site& site, std::size_t country,
                                          double most, std::vector<S2ClosestEdgeQuery::Result>& edges) {
  S2ClosestEdgeQuery& query = data.edgesOf(country);
  S2ClosestEdgeQuery::PointTarget target(site.point);
  query.mutable_options()->set_conservative_max_distance(widestAngle(site, most));
  query.mutable_options()->set_max_results(1);
  query.mutable_options()->set_include_interiors(true);
  query.FindClosestEdges(&target, &edges);
  if (edges.empty()) return std::nullopt;
  if (edges.front().is_interior()) return CountryDistance{country, 0, 0};
  const auto footOn = [&](const S2ClosestEdgeQuery::Result& result) {
    return query.Project(site.point, result);
  };

  double least = estimateKm(site.point, footOn(edges.front()));
  query.mutable_options()->set_conservative_max_distance(
      widestAngle(site, std::min(most, least * (1 + kEstimateError))));
  query.mutable_options()->set_max_results(S2ClosestEdgeQuery::Options::kMaxMaxResults);
  query.mutable_options()->set_include_interiors(false);
  query.FindClosestEdges(&target, &edges);
  std::vector<std::pair<double, const S2ClosestEdgeQuery::Result*>> candidates;
  for (const auto& result : edges) {
    const double km = estimateKm(site.point, footOn(result));
    if (km > least * (1 + 3 * kEstimateError)) continue;
    least = std::min(least, km);
    candidates.emplace_back(km, &result);
  }
  std::sort(candidates.begin(), candidates.end());
  std::optional<CountryDistance> nearest;
  for (const auto& [km, result] : candidates) {
    if (nearest && km * (1 - kEstimateError) > nearest->km) break;
    const S2Point foot = footOn(*result);
    const Geodesic way = refined(site, query.GetEdge(*result), foot, geodesicTo(site, foot));
    if (way.km <= most && (!nearest || way.km < nearest->km))
      nearest = CountryDistance{country, way.km, way.bearing};
  }
  return nearest;
}

double angleTo(const MapCap& cap, const S2Point& point) {
  const double cosine = cap.centre[0] * point.x() + cap.centre[1] * point.y() + cap.centre[2] * point.z();
  return std::max(0.0, std::acos(std::clamp(cosine, -1.0, 1.0)) - cap.radius);
}

struct Bounded {
  double atLeast = 0;
  std::size_t country = 0;
  bool operator<(const Bounded& other) const { return atLeast < other.atLeast; }
};

// The countries that can lie within the radius, by the least km they can be away.
std::vector<Bounded> boundedCountries(const MapData& data, const Site& site, double radius, int leftOut) {
  std::vector<Bounded> bounded;
  for (std::size_t country = 0; country < data.countries(); ++country) {
    if (static_cast<int>(country) == leftOut) continue;
    double angle = angleTo(data.bound(country), site.point);
    if (leastKm(site, angle) > radius) continue;
    double nearestPart = std::numbers::pi;
    for (const MapCap& cap : data.caps(country))
      nearestPart = std::min(nearestPart, angleTo(cap, site.point));
    angle = std::max(angle, nearestPart);
    const double km = leastKm(site, angle);
    if (km <= radius) bounded.push_back({km, country});
  }
  std::sort(bounded.begin(), bounded.end());
  return bounded;
}

}  // namespace

std::vector<CountryDistance> nearestCountries(const MapData& data, const GzmpPoint& point, double radius,
                                              std::size_t limit, int leftOut) {
  const Site site{S2LatLng::FromDegrees(point[0], point[1]).Normalized().ToPoint(), point[0], point[1]};
  std::vector<CountryDistance> nearest;
  std::vector<S2ClosestEdgeQuery::Result> edges;
  for (const Bounded& next : boundedCountries(data, site, radius, leftOut)) {
    const bool full = nearest.size() >= limit;
    const double most = full ? nearest.back().km : radius;
    if (limit == 0 || next.atLeast > most) break;
    const auto found = distanceTo(data, site, next.country, most, edges);
    if (!found) continue;
    if (full) nearest.pop_back();
    const auto place = std::upper_bound(nearest.begin(), nearest.end(), *found,
                                        [](const auto& one, const auto& other) { return one.km < other.km; });
    nearest.insert(place, *found);
  }
  return nearest;
}

}  // namespace zamo
