// Compares the map with its two sources at random places and tells where they differ, away from all borders.
#include <s2/s2closest_edge_query.h>
#include <s2/s2contains_point_query.h>
#include <s2/s2debug.h>
#include <s2/s2earth.h>
#include <s2/s2latlng.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <random>

#include "composition.h"
#include "map/map_data.h"

namespace zamo::mapdata {
namespace {

constexpr double kAway = 2;  // km

// All countries of a source in one index.
struct Answers {
  explicit Answers(const World& world) {
    for (const auto& [code, region] : world) {
      codes.push_back(code);
      index.Add(std::make_unique<S2LaxPolygonShape>(region.loops()));
    }
  }

  std::string at(const S2Point& point) const {
    std::string all;
    for (S2Shape* shape : MakeS2ContainsPointQuery(&index).GetContainingShapes(point)) {
      all += (all.empty() ? "" : " ") + codes[static_cast<std::size_t>(shape->id())];
    }
    return all.empty() ? "sea" : all;
  }

  bool isNearBorder(const S2Point& point) const {
    S2ClosestEdgeQuery query(&index);
    query.mutable_options()->set_include_interiors(false);
    S2ClosestEdgeQuery::PointTarget target(point);
    return query.IsDistanceLess(&target, S1ChordAngle(S2Earth::KmToAngle(kAway)));
  }

  std::vector<std::string> codes;
  MutableS2ShapeIndex index;
};

bool isNearBorder(const MapData& map, const S2Point& point) {
  for (std::size_t country = 0; country < map.countries(); ++country) {
    const MapCap& bound = map.bound(country);
    const S2Point centre(bound.centre[0], bound.centre[1], bound.centre[2]);
    if (centre.Angle(point) > bound.radius + 0.001) continue;
    S2ClosestEdgeQuery& query = map.edgesOf(country);
    query.mutable_options()->set_include_interiors(false);
    S2ClosestEdgeQuery::PointTarget target(point);
    if (query.IsDistanceLess(&target, S1ChordAngle(S2Earth::KmToAngle(kAway)))) return true;
  }
  return false;
}

std::string answersOf(const MapData& map, const S2Point& point) {
  std::string all;
  map.forEachAt(point, [&](std::size_t country) {
    const std::string_view code = map.code(country);
    all.append(all.empty() ? "" : " ").append(code.substr(0, code.find(' ')));
  });
  return all.empty() ? "sea" : all;
}

std::string explanation(const std::string& map, const std::string& first, const std::string& chart) {
  if (map.find(' ') != std::string::npos) return "TWO ANSWERS";
  if (map == "sea") return "BLANK";
  if (map == first) return "the chart differs";
  if (first.find(' ') != std::string::npos)
    return "claimed twice by the first source, settled by the table or the chart";
  if (map != chart) return "patched";
  return first == "sea" ? "a lake or a gap of the first source, filled from the chart" : "claimed as charted";
}

int compare(const Sources& sources, const char* mapFile, int wanted, unsigned seed) {
  const auto map = MapData::open(mapFile);
  if (!map) throw std::runtime_error(std::string("no map in ") + mapFile);
  const Answers first(firstSource(sources));
  const Answers drawn(chart(sources));
  std::mt19937_64 random(seed);
  std::normal_distribution<double> any;
  std::map<std::string, std::map<std::string, std::pair<int, S2Point>>> found;
  int land = 0, differing = 0, near = 0;
  while (land < wanted) {
    const S2Point point = S2Point(any(random), any(random), any(random)).Normalize();
    const std::string ours = answersOf(*map, point);
    const std::string one = first.at(point);
    const std::string other = drawn.at(point);
    if (ours == "sea" && one == "sea" && other == "sea") continue;
    ++land;
    if (ours == one && ours == other) continue;
    // South of 60 S the chart isn't used.
    if (S2LatLng(point).lat().degrees() < -60 && ours == one) continue;
    ++differing;
    if (isNearBorder(*map, point) || first.isNearBorder(point) || drawn.isNearBorder(point)) {
      ++near;
      continue;
    }
    auto& entry = found[explanation(ours, one, other)]["map " + ours + ", first " + one + ", chart " + other];
    ++entry.first;
    entry.second = point;
  }
  std::printf("%d places of land, %d differ, %d of these within %g km of a border\n", land, differing, near,
              kAway);
  for (const auto& [why, kinds] : found) {
    std::printf("%s:\n", why.c_str());
    for (const auto& [kind, entry] : kinds) {
      std::printf("  %4d  %s, as at %s\n", entry.first, kind.c_str(), placeText(entry.second).c_str());
    }
  }
  return found.contains("TWO ANSWERS") || found.contains("BLANK") ? 1 : 0;
}

}  // namespace
}  // namespace zamo::mapdata

int main(int argc, char** argv) {
  if (argc < 5) {
    std::fprintf(stderr, "usage: compare-map GEOJSON CHART TABLES MAP [PLACES [SEED]]\n");
    return 2;
  }
  FLAGS_s2debug = false;
  try {
    return zamo::mapdata::compare({argv[1], argv[2], argv[3]}, argv[4],
                                  argc > 5 ? std::atoi(argv[5]) : 100000,
                                  argc > 6 ? static_cast<unsigned>(std::atoi(argv[6])) : 1);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "compare-map: %s\n", error.what());
    return 1;
  }
}
