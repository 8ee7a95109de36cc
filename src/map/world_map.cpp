#include "map/world_map.h"

#include <s2/s2latlng.h>

#include <algorithm>
#include <memory>
#include <string_view>

#include "map/crossings.h"
#include "map/distances.h"
#include "map/map_data.h"
#include "map/outline.h"
#include "platform/coordinates.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::string_view kBlankCode = "   ";

// What the operations share.
struct Opened {
  std::string dataFile;
  std::unique_ptr<MapData> data;
};

int partOf(const std::string& pair, std::size_t first, std::size_t last) {
  return static_cast<int>(leadingNumber(characters(pair, first, last)));
}

GzmpPoint parseCoords(const std::string& pair) {
  const float lat = dmsToDegrees(partOf(pair, 1, 2), partOf(pair, 3, 4), partOf(pair, 5, 6));
  const float lon = dmsToDegrees(partOf(pair, 8, 10), partOf(pair, 11, 12), partOf(pair, 13, 14));
  return {equalsIgnoringCase(characters(pair, 7, 7), "S") ? -lat : lat,
          equalsIgnoringCase(characters(pair, 15, 15), "W") ? -lon : lon};
}

int numberOf(const MapData& data, std::string_view code) {
  for (std::size_t country = 0; country < data.countries(); ++country) {
    const std::string_view known = data.code(country);
    const std::size_t length = std::min(known.find(' '), kGzmpCodeLength);
    if (equalsIgnoringCase(known.substr(0, length), code.substr(0, code.find(' '))))
      return static_cast<int>(country);
  }
  return -1;
}

std::string countryAtPoint(const MapData* data, const GzmpPoint& point) {
  if (data == nullptr) return std::string(kBlankCode);
  const int country = data->countryAt(S2LatLng::FromDegrees(point[0], point[1]).Normalized().ToPoint());
  return std::string(country < 0 ? kBlankCode : data->code(static_cast<std::size_t>(country)));
}

GzmpNearest nearest(const MapData* data, const GzmpPoint& point, float radius, const std::string& found,
                    int limit) {
  GzmpNearest result;
  if (data == nullptr) {
    result.status = kGzmpNoData;
    return result;
  }
  const auto most = static_cast<std::size_t>(std::clamp(limit, 0, static_cast<int>(result.distances.size())));
  for (const CountryDistance& near : nearestCountries(*data, point, radius, most, numberOf(*data, found))) {
    const auto i = static_cast<std::size_t>(result.count++);
    result.distances[i] = static_cast<float>(near.km);
    result.bearings[i] = static_cast<float>(near.bearing);
    result.codes += data->code(near.country);
  }
  return result;
}

}  // namespace

WorldMap makeWorldMap(const std::string& dataFile) {
  const auto opened = std::make_shared<Opened>(Opened{dataFile, nullptr});
  WorldMap map;
  map.gzmp.gzmpSetUnit = [](int) {};
  map.gzmp.gzmpInit = [] { return 0; };
  map.gzmp.gzmpOpenData = [opened] {
    opened->data = MapData::open(opened->dataFile);
    return opened->data ? kGzmpUnit : kGzmpNoData;
  };
  map.gzmp.gzmpParseCoords = parseCoords;
  // Everything is mapped already.
  map.gzmp.gzmpLoadMapAround = [](const GzmpPoint&, float) {};
  map.gzmp.gzmpCountryAtPoint = [opened](const GzmpPoint& point) {
    return countryAtPoint(opened->data.get(), point);
  };
  map.gzmp.gzmpNearestCountries = [opened](const GzmpPoint& point, float radius, int,
                                           const std::string& found, int limit) {
    return nearest(opened->data.get(), point, radius, found, limit);
  };
  map.gzmp.gzmpFindCrossings = findCrossings;
  map.countryOutline = [opened](const std::string& code, const GzmpBox& box) {
    const int country = opened->data ? numberOf(*opened->data, code) : -1;
    if (country < 0) return std::vector<GzmpLine>();
    return outlineWithin(opened->data->shape(static_cast<std::size_t>(country)), box);
  };
  return map;
}

}  // namespace zamo
