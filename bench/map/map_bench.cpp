// The map against GEOS with prepared geometries and an STRtree: same countries, same points, one run.
#include <geos_c.h>
#include <s2/s2latlng.h>

#include <GeographicLib/Geodesic.hpp>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "map/crossings.h"
#include "map/distances.h"
#include "map/map_data.h"
#include "map/world_map.h"

namespace {

using Clock = std::chrono::steady_clock;

double microseconds(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::micro>(to - from).count();
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

// The countries of the map as GEOS has them: prepared, in a tree by their boxes.
class GeosWorld {
 public:
  explicit GeosWorld(const zamo::MapData& data)
      : context_(GEOS_init_r()), tree_(GEOSSTRtree_create_r(context_, 10)) {
    for (std::size_t i = 0; i < data.countries(); ++i) {
      countries_.push_back(std::make_unique<Country>());
      Country& country = *countries_.back();
      country.geometry = polygonsOf(data.shape(i));
      country.prepared = GEOSPrepare_r(context_, country.geometry);
      GEOSSTRtree_insert_r(context_, tree_, country.geometry, &country);
      country.number = static_cast<int>(i);
      GEOSGeom_getXMin_r(context_, country.geometry, &country.west);
      GEOSGeom_getYMin_r(context_, country.geometry, &country.south);
      GEOSGeom_getXMax_r(context_, country.geometry, &country.east);
      GEOSGeom_getYMax_r(context_, country.geometry, &country.north);
    }
  }

  int countryAt(double lat, double lon) const {
    GEOSGeometry* point = pointAt(lat, lon);
    Search search{context_, point, -1};
    GEOSSTRtree_query_r(context_, tree_, point, contains, &search);
    GEOSGeom_destroy_r(context_, point);
    return search.found;
  }

  // By the boxes first and exactly after, nearest box first, until the next box is farther than the last of
  // ten.
  std::vector<std::pair<double, int>> nearest(double lat, double lon, double radius, std::size_t limit,
                                              int own) const {
    GEOSGeometry* point = pointAt(lat, lon);
    const double widening = std::cos(std::min(89.0, std::abs(lat) + 9) * std::numbers::pi / 180);
    const double degrees = radius / 110.5;
    GEOSGeometry* box = GEOSGeom_createRectangle_r(context_, lon - degrees / widening, lat - degrees,
                                                   lon + degrees / widening, lat + degrees);
    std::vector<const Country*> candidates;
    GEOSSTRtree_query_r(context_, tree_, box, collect, &candidates);
    GEOSGeom_destroy_r(context_, box);
    std::vector<std::pair<double, const Country*>> byBox;
    for (const Country* country : candidates) {
      const double up = std::max({country->south - lat, lat - country->north, 0.0});
      const double across = std::max({country->west - lon, lon - country->east, 0.0}) * widening;
      byBox.emplace_back(std::hypot(up, across) * 110.5, country);
    }
    std::sort(byBox.begin(), byBox.end());
    std::vector<std::pair<double, int>> found;
    for (const auto& [atLeast, country] : byBox) {
      if (country->number == own) continue;
      if (found.size() == limit && atLeast > found.back().first) break;
      GEOSCoordSequence* ends = GEOSPreparedNearestPoints_r(context_, country->prepared, point);
      double x = 0, y = 0, metres = 0;
      GEOSCoordSeq_getXY_r(context_, ends, 0, &x, &y);
      GEOSCoordSeq_destroy_r(context_, ends);
      GeographicLib::Geodesic::WGS84().Inverse(lat, lon, y, x, metres);
      if (metres > radius * 1000) continue;
      found.emplace_back(metres / 1000, country->number);
      std::sort(found.begin(), found.end());
      if (found.size() > limit) found.pop_back();
    }
    GEOSGeom_destroy_r(context_, point);
    return found;
  }

  GEOSContextHandle_t context() const { return context_; }

 private:
  struct Country {
    GEOSGeometry* geometry = nullptr;
    const GEOSPreparedGeometry* prepared = nullptr;
    int number = 0;
    double west = 0, south = 0, east = 0, north = 0;
  };
  struct Search {
    GEOSContextHandle_t context;
    GEOSGeometry* point;
    int found;
  };

  static void contains(void* item, void* data) {
    const auto* country = static_cast<const Country*>(item);
    auto* search = static_cast<Search*>(data);
    if (search->found < 0 &&
        GEOSPreparedIntersects_r(search->context, country->prepared, search->point) == 1) {
      search->found = country->number;
    }
  }
  static void collect(void* item, void* data) {
    static_cast<std::vector<const Country*>*>(data)->push_back(static_cast<const Country*>(item));
  }

  GEOSGeometry* pointAt(double lat, double lon) const {
    return GEOSGeom_createPointFromXY_r(context_, lon, lat);
  }

  GEOSGeometry* ringOf(const S2Shape& shape, int chain) const {
    const int length = shape.chain(chain).length;
    GEOSCoordSequence* places = GEOSCoordSeq_create_r(context_, static_cast<unsigned>(length + 1), 2);
    double first = 0, before = 0;
    for (int i = 0; i <= length; ++i) {
      const S2LatLng place(shape.chain_edge(chain, i % length).v0);
      double lon = place.lng().degrees();
      if (i > 0 && lon - before > 180) lon -= 360;
      if (i > 0 && lon - before < -180) lon += 360;
      if (i == 0) first = lon;
      if (i == length) lon = first;
      before = lon;
      GEOSCoordSeq_setXY_r(context_, places, static_cast<unsigned>(i), lon, place.lat().degrees());
    }
    return GEOSGeom_createLinearRing_r(context_, places);
  }

  struct Shell {
    GEOSGeometry* ring;
    GEOSGeometry* area;
    std::vector<GEOSGeometry*> holes;
  };

  // The rings of the map: shells run counterclockwise, each hole goes to the shell around it.
  GEOSGeometry* polygonsOf(const S2Shape& shape) const {
    std::vector<Shell> shells;
    std::vector<GEOSGeometry*> holes;
    for (int chain = 0; chain < shape.num_chains(); ++chain) {
      if (shape.chain(chain).length < 3) continue;
      GEOSGeometry* ring = ringOf(shape, chain);
      char counterclockwise = 0;
      GEOSCoordSeq_isCCW_r(context_, GEOSGeom_getCoordSeq_r(context_, ring), &counterclockwise);
      if (counterclockwise != 0) {
        shells.push_back(
            {ring, GEOSGeom_createPolygon_r(context_, GEOSGeom_clone_r(context_, ring), nullptr, 0), {}});
      } else {
        holes.push_back(ring);
      }
    }
    GEOSSTRtree* tree = GEOSSTRtree_create_r(context_, 10);
    for (Shell& shell : shells) GEOSSTRtree_insert_r(context_, tree, shell.area, &shell);
    for (GEOSGeometry* hole : holes) {
      GEOSGeometry* area = GEOSGeom_createPolygon_r(context_, GEOSGeom_clone_r(context_, hole), nullptr, 0);
      GEOSGeometry* inside = GEOSPointOnSurface_r(context_, area);
      std::vector<Shell*> around;
      GEOSSTRtree_query_r(
          context_, tree, inside,
          [](void* item, void* list) {
            static_cast<std::vector<Shell*>*>(list)->push_back(static_cast<Shell*>(item));
          },
          &around);
      for (Shell* shell : around) {
        if (GEOSIntersects_r(context_, shell->area, inside) != 1) continue;
        shell->holes.push_back(hole);
        break;
      }
      GEOSGeom_destroy_r(context_, inside);
      GEOSGeom_destroy_r(context_, area);
    }
    GEOSSTRtree_destroy_r(context_, tree);
    std::vector<GEOSGeometry*> polygons;
    for (Shell& shell : shells) {
      GEOSGeom_destroy_r(context_, shell.area);
      polygons.push_back(GEOSGeom_createPolygon_r(context_, shell.ring, shell.holes.data(),
                                                  static_cast<unsigned>(shell.holes.size())));
    }
    return GEOSGeom_createCollection_r(context_, GEOS_MULTIPOLYGON, polygons.data(),
                                       static_cast<unsigned>(polygons.size()));
  }

  GEOSContextHandle_t context_;
  GEOSSTRtree* tree_;
  std::vector<std::unique_ptr<Country>> countries_;
};

void row(const char* what, const std::vector<double>& ours, const std::vector<double>& theirs,
         double wanted) {
  const double a = median(ours), b = median(theirs);
  std::printf("| %s | %.2f | %.2f | %.1f | %.1f | %s |\n", what, a, b, b / a, wanted,
              b / a >= wanted ? "yes" : "NO");
}

// In and around the planning area, land and sea alike.
std::vector<zamo::GzmpPoint> points(std::size_t count) {
  std::mt19937 random(11);
  std::uniform_real_distribution<float> lat(-35, 65), lon(-20, 75);
  std::vector<zamo::GzmpPoint> all;
  while (all.size() < count) all.push_back({lat(random), lon(random)});
  return all;
}

std::vector<zamo::GzmpPoint> contour(std::mt19937& random, int count) {
  std::uniform_real_distribution<double> radius(0.6, 1.0);
  std::vector<zamo::GzmpPoint> ring;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * std::numbers::pi * i / count, r = radius(random);
    ring.push_back(
        {static_cast<float>(47 + r * std::sin(angle)), static_cast<float>(9 + r * std::cos(angle))});
  }
  ring.push_back(ring.front());
  return ring;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: map_bench MAP\n");
    return 2;
  }
  std::vector<double> opening;
  for (int i = 0; i < 20; ++i) {
    const auto start = Clock::now();
    if (!zamo::MapData::open(argv[1])) {
      std::fprintf(stderr, "map_bench: no map in %s\n", argv[1]);
      return 1;
    }
    opening.push_back(microseconds(start, Clock::now()));
  }
  const auto data = zamo::MapData::open(argv[1]);
  const GeosWorld geos(*data);

  const auto places = points(20000);
  std::vector<double> ours, theirs;
  std::vector<int> countries;
  int differing = 0;
  // Once to warm both up, then measured.
  for (int round = 0; round < 2; ++round) {
    ours.clear();
    theirs.clear();
    countries.clear();
    differing = 0;
    for (const auto& place : places) {
      const auto start = Clock::now();
      const int one = data->countryAt(S2LatLng::FromDegrees(place[0], place[1]).ToPoint());
      const auto middle = Clock::now();
      const int other = geos.countryAt(place[0], place[1]);
      const auto end = Clock::now();
      ours.push_back(microseconds(start, middle));
      theirs.push_back(microseconds(middle, end));
      countries.push_back(one);
      differing += one != other;
    }
  }
  std::printf(
      "| Median, microseconds | map | GEOS | times | wanted | reached |\n|---|---|---|---|---|---|\n");
  row("country at a point", ours, theirs, 2.5);

  std::vector<double> oursNear, theirsNear;
  int others = 0;
  for (int round = 0; round < 2; ++round) {
    oursNear.clear();
    theirsNear.clear();
    others = 0;
    for (std::size_t i = 0; i < 1000; ++i) {
      const auto& place = places[i];
      const auto start = Clock::now();
      const auto one = zamo::nearestCountries(*data, place, 1000, 10, countries[i]);
      const auto middle = Clock::now();
      const auto other = geos.nearest(place[0], place[1], 1000, 10, countries[i]);
      const auto end = Clock::now();
      oursNear.push_back(microseconds(start, middle));
      theirsNear.push_back(microseconds(middle, end));
      bool same = one.size() == other.size();
      for (std::size_t k = 0; same && k < one.size(); ++k)
        same = static_cast<int>(one[k].country) == other[k].second;
      others += !same;
    }
  }
  row("ten nearest countries", oursNear, theirsNear, 8);

  std::mt19937 random(5);
  std::vector<double> oursCross, theirsCross;
  int verdicts = 0;
  for (int i = 0; i < 2000; ++i) {
    const auto ring = contour(random, 99);
    auto start = Clock::now();
    const bool crosses = !zamo::findCrossings(ring).segments.empty();
    oursCross.push_back(microseconds(start, Clock::now()));
    start = Clock::now();
    GEOSCoordSequence* sequence =
        GEOSCoordSeq_create_r(geos.context(), static_cast<unsigned>(ring.size()), 2);
    for (unsigned k = 0; k < ring.size(); ++k)
      GEOSCoordSeq_setXY_r(geos.context(), sequence, k, ring[k][1], ring[k][0]);
    GEOSGeometry* line = GEOSGeom_createLineString_r(geos.context(), sequence);
    const bool simple = GEOSisSimple_r(geos.context(), line) == 1;
    theirsCross.push_back(microseconds(start, Clock::now()));
    GEOSGeom_destroy_r(geos.context(), line);
    verdicts += crosses == simple;
  }
  row("crossings of 100 points", oursCross, theirsCross, 1.5);
  std::printf("\nOpening the map: %.0f microseconds, median of 20.\n", median(opening));
  std::printf("Differing answers: %d of %zu countries, %d of 1000 lists of ten, %d of 2000 contours.\n",
              differing, places.size(), others, verdicts);
  return 0;
}
