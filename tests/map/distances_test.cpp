#include "map/distances.h"

#include <s2/s2edge_distances.h>
#include <s2/s2latlng.h>

#include <GeographicLib/Geodesic.hpp>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include "real_map.h"

namespace zamo {
namespace {

double geodesicKm(const GzmpPoint& from, const S2Point& to) {
  const S2LatLng place(to);
  double metres = 0;
  GeographicLib::Geodesic::WGS84().Inverse(from[0], from[1], place.lat().degrees(), place.lng().degrees(),
                                           metres);
  return metres / 1000;
}

// The least distance from a point to an edge on the ellipsoid, by halving in thirds.
double edgeKm(const GzmpPoint& from, const S2Point& a, const S2Point& b) {
  double low = 0, high = 1;
  const auto at = [&](double share) { return geodesicKm(from, ((1 - share) * a + share * b).Normalize()); };
  for (int i = 0; i < 25; ++i) {
    const double left = low + (high - low) / 3, right = high - (high - low) / 3;
    (at(left) < at(right) ? high : low) = at(left) < at(right) ? right : left;
  }
  return std::min({at(0), at(1), at((low + high) / 2)});
}

// All edges of a country, decoded once.
struct Outline {
  std::vector<S2Shape::Edge> edges;
};

const std::vector<Outline>& outlines() {
  static const std::vector<Outline> all = [] {
    std::vector<Outline> decoded(realData().countries());
    for (std::size_t country = 0; country < decoded.size(); ++country) {
      const S2Shape& shape = realData().shape(country);
      for (int i = 0; i < shape.num_edges(); ++i) decoded[country].edges.push_back(shape.edge(i));
    }
    return decoded;
  }();
  return all;
}

// Every edge is measured; on the ellipsoid those that the sphere can't rule out, as it is never off by 1 %.
double bruteForceKm(const GzmpPoint& from, const Outline& outline) {
  const S2Point point = S2LatLng::FromDegrees(from[0], from[1]).ToPoint();
  double nearest = 10;
  for (const auto& edge : outline.edges) nearest = std::min(nearest, (edge.v0 - point).Norm2());
  // An edge is at most some kilometres long, so its nearest place lies near an end of it.
  const double far = std::sqrt(nearest) * 1.01 + 0.004;
  std::vector<std::pair<double, const S2Shape::Edge*>> near;
  for (const auto& edge : outline.edges) {
    if ((edge.v0 - point).Norm2() > far * far) continue;
    near.emplace_back(S2::GetDistance(point, edge.v0, edge.v1).radians(), &edge);
  }
  std::sort(near.begin(), near.end(),
            [](const auto& one, const auto& other) { return one.first < other.first; });
  double km = 1e9;
  for (const auto& [angle, edge] : near) {
    if (angle > near.front().first * 1.0075) break;
    // No place of the edge is nearer than its end less its length.
    const double length = edge->v0.Angle(edge->v1) * 6400;
    if (geodesicKm(from, edge->v0) - length <= km) km = std::min(km, edgeKm(from, edge->v0, edge->v1));
  }
  return km;
}

// Beyond this many km no point of the country can be, whatever its edges.
double leastKmTo(const GzmpPoint& from, const MapCap& cap) {
  const S2Point point = S2LatLng::FromDegrees(from[0], from[1]).ToPoint();
  const double cosine = cap.centre[0] * point.x() + cap.centre[1] * point.y() + cap.centre[2] * point.z();
  return (std::acos(std::clamp(cosine, -1.0, 1.0)) - cap.radius) * 6335;
}

TEST(NearestCountries, agree_with_a_brute_force_over_all_edges_to_a_metre) {
  std::mt19937 random(20061);
  std::uniform_real_distribution<double> sine(std::sin(-40 * std::numbers::pi / 180),
                                              std::sin(75 * std::numbers::pi / 180));
  std::uniform_real_distribution<float> longitude(-30, 170);
  constexpr int points = 1000;
  double worst = 0;
  for (int i = 0; i < points; ++i) {
    const GzmpPoint from{static_cast<float>(std::asin(sine(random)) * 180 / std::numbers::pi),
                         longitude(random)};
    const int own = realData().countryAt(S2LatLng::FromDegrees(from[0], from[1]).ToPoint());
    const auto found = nearestCountries(realData(), from, 1000, 10, own);
    std::vector<std::pair<double, std::size_t>> expected;
    for (std::size_t country = 0; country < outlines().size(); ++country) {
      if (static_cast<int>(country) == own || leastKmTo(from, realData().bound(country)) > 1000) continue;
      const double km = bruteForceKm(from, outlines()[country]);
      if (km <= 1000) expected.emplace_back(km, country);
    }
    std::sort(expected.begin(), expected.end());
    if (expected.size() > 10) expected.resize(10);
    ASSERT_EQ(found.size(), expected.size()) << from[0] << " " << from[1];
    for (std::size_t k = 0; k < found.size(); ++k) {
      // Countries that meet in the nearest point are equally far, in either order.
      const bool tied = std::any_of(expected.begin(), expected.end(), [&](const auto& other) {
        return other.second == found[k].country && std::abs(other.first - expected[k].first) < 1e-6;
      });
      EXPECT_TRUE(tied) << from[0] << " " << from[1];
      EXPECT_NEAR(found[k].km, expected[k].first, 0.001) << from[0] << " " << from[1];
      worst = std::max(worst, std::abs(found[k].km - expected[k].first));
    }
  }
  RecordProperty("worst_metres", std::to_string(worst * 1000));
}

TEST(NearestCountries, leave_out_the_country_found_at_the_point_and_end_at_the_limit) {
  const auto& map = realMap().gzmp;
  const GzmpPoint bern{46.948F, 7.447F};
  const GzmpNearest ten = map.gzmpNearestCountries(bern, 1000, 1, map.gzmpCountryAtPoint(bern), 10);
  EXPECT_EQ(ten.status, 0);
  EXPECT_EQ(ten.count, 10);
  EXPECT_EQ(ten.codes.size(), 30U);
  EXPECT_EQ(ten.codes.find("SUI"), std::string::npos);
  EXPECT_EQ(ten.codes.substr(0, 3), "F  ");
  EXPECT_TRUE(std::is_sorted(ten.distances.begin(), ten.distances.end()));
  const GzmpNearest two = map.gzmpNearestCountries(bern, 1000, 1, "SUI", 2);
  EXPECT_EQ(two.count, 2);
  EXPECT_EQ(two.codes, ten.codes.substr(0, 6));
}

TEST(NearestCountries, none_is_given_beyond_the_radius) {
  const GzmpNearest none = realMap().gzmp.gzmpNearestCountries({-45, -110}, 1000, 1, "   ", 10);
  EXPECT_EQ(none.count, 0);
  EXPECT_EQ(none.codes, "");
}

TEST(NearestCountries, kilometres_are_those_of_the_ellipsoid) {
  // From a place on the equator due south of Accra's coast; the sphere would say 2 to 3 km more or less.
  const auto& map = realMap().gzmp;
  const GzmpPoint from{0, -0.19F};
  const GzmpNearest found = map.gzmpNearestCountries(from, 1000, 1, map.gzmpCountryAtPoint(from), 1);
  ASSERT_EQ(found.count, 1);
  EXPECT_EQ(found.codes, "GHA");
  double north = 0;
  for (north = 4; countryAt(north, -0.19) != "GHA"; north += 0.0005) continue;
  double metres = 0;
  GeographicLib::Geodesic::WGS84().Inverse(0, -0.19, north, -0.19, metres);
  EXPECT_LE(found.distances[0], metres / 1000);
}

}  // namespace
}  // namespace zamo
