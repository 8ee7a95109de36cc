#include "map/outlines_around.h"

#include <cmath>
#include <numbers>

namespace zamo {
namespace {

constexpr double kKilometresPerDegree = 111.2;
constexpr int kSortByDistance = 1;
constexpr int kMostCountries = 10;

float reachOf(const GzmpBox& box, double latitude) {
  const double high = box.north - box.south;
  const double wide = (box.east - box.west) * std::cos(latitude * std::numbers::pi / 180);
  return static_cast<float>(std::hypot(high, wide) / 2 * kKilometresPerDegree);
}

std::string withoutBlanks(const std::string& code) {
  return code.substr(0, code.find(' '));
}

}  // namespace

std::vector<GzmpLine> outlinesAround(const WorldMap& map, const GzmpBox& box) {
  const double latitude = (box.south + box.north) / 2;
  const GzmpPoint middle = {static_cast<float>(latitude), static_cast<float>((box.west + box.east) / 2)};
  const std::string here = map.gzmp.gzmpCountryAtPoint(middle);
  const GzmpNearest nearest =
      map.gzmp.gzmpNearestCountries(middle, reachOf(box, latitude), kSortByDistance, here, kMostCountries);
  std::vector<GzmpLine> lines = map.countryOutline(withoutBlanks(here), box);
  for (int i = 0; i < nearest.count; ++i) {
    const auto place = static_cast<std::size_t>(i) * kGzmpCodeLength;
    for (GzmpLine& line :
         map.countryOutline(withoutBlanks(nearest.codes.substr(place, kGzmpCodeLength)), box)) {
      lines.push_back(std::move(line));
    }
  }
  return lines;
}

}  // namespace zamo
