// Small maps for the fuzzer to begin with, in the form that the program maps into memory. Usage: map_seeds
// FOLDER
#include <s2/s2latlng.h>

#include <cmath>
#include <cstdio>
#include <exception>
#include <initializer_list>
#include <numbers>
#include <string>

#include "map_writer.h"

namespace zamo::mapdata {
namespace {

struct Corner {
  double lat, lon;
};

S2Point centreAt(const S2Point& point) {
  return S2CellId(point).parent(kPlaceLevel).ToPoint();
}

std::vector<S2Point> loop(std::initializer_list<Corner> corners) {
  std::vector<S2Point> points;
  for (const Corner& corner : corners)
    points.push_back(centreAt(S2LatLng::FromDegrees(corner.lat, corner.lon).ToPoint()));
  return points;
}

// Corners every so many degrees of the circle.
std::vector<S2Point> ringAround(double lat, double lon, double radius, int corners) {
  const S2Point centre = S2LatLng::FromDegrees(lat, lon).ToPoint();
  std::vector<S2Point> points;
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    const S2Point x = S2::Ortho(centre);
    const S2Point y = centre.CrossProd(x);
    const double far = std::tan(radius * std::numbers::pi / 180);
    points.push_back(centreAt((centre + far * (std::cos(angle) * x + std::sin(angle) * y)).Normalize()));
  }
  return points;
}

Region regionOf(Loops loops) {
  return Region(std::move(loops));
}

const auto kSquare = loop({{45, 0}, {45, 4}, {49, 4}, {49, 0}});
const auto kNeighbour = loop({{45, 4}, {45, 8}, {49, 8}, {49, 4}});

}  // namespace

void writeSeeds(const std::string& folder) {
  writeMap({{"F", regionOf({kSquare})}}, folder + "/one-country.dat");
  writeMap({{"F", regionOf({kSquare})}, {"SUI", regionOf({kNeighbour, loop({{51, 5}, {51, 6}, {52, 6}})})}},
           folder + "/neighbours.dat");
  writeMap({{"FJI", regionOf({loop({{-2, 179}, {-2, -179}, {2, -179}, {2, 179}})})},
            {"NOR", regionOf({loop({{85, 0}, {85, 90}, {85, 180}, {85, -90}})})}},
           folder + "/antimeridian-and-pole.dat");
  writeMap({{"AAA", regionOf({ringAround(46, 5, 6, 60)})}, {"BBB", regionOf({ringAround(-33, -70, 1, 25)})}},
           folder + "/many-corners.dat");
}

}  // namespace zamo::mapdata

int main(int argc, char** argv) try {
  if (argc != 2) return 2;
  zamo::mapdata::writeSeeds(argv[1]);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
