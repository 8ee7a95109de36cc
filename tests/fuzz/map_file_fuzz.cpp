// Any bytes as the map's data file, with its sums made right, and then all that can be asked of a map.
#include <algorithm>
#include <cstring>

#include "fuzz_support.h"
#include "map/map_file.h"
#include "map/outlines_around.h"
#include "map/world_map.h"
#include "support/temp_folder.h"

namespace zamo::fuzz {
namespace {

// Around the countries of the seeds, on their borders, and far from all of them.
constexpr GzmpPoint kPlaces[] = {{46, 2},  {47, 5},  {46, 8},  {0, 179.5F},
                                 {89, 10}, {-90, 0}, {10, 10}, {-33.75F, -70}};

void fill(std::string& content, std::size_t at, const void* bytes, std::size_t size) {
  std::memcpy(content.data() + at, bytes, size);
}

// What stands in the way of everything else is put right: the file's name and size and its two sums.
std::string madeOurs(std::string_view bytes) {
  std::string content(std::max(bytes.size(), sizeof(MapHeader)), '\0');
  std::copy(bytes.begin(), bytes.end(), content.begin());
  MapHeader header;
  std::memcpy(&header, content.data(), sizeof header);
  std::memcpy(header.magic, kMapMagic, sizeof header.magic);
  header.version = kMapVersion;
  header.byteOrder = kMapByteOrder;
  header.fileSize = content.size();
  header.contentSum = mapSum(std::string_view(content).substr(sizeof header));
  header.headerSum = mapSum({reinterpret_cast<const char*>(&header), offsetof(MapHeader, headerSum)});
  fill(content, 0, &header, sizeof header);
  return content;
}

void askAt(const WorldMap& map, const GzmpPoint& place) {
  map.gzmp.gzmpLoadMapAround(place, 1000);
  const std::string code = map.gzmp.gzmpCountryAtPoint(place);
  require(code.size() == kGzmpCodeLength);
  for (const float radius : {1.0F, 1000.0F, 20100.0F}) {
    const GzmpNearest nearest = map.gzmp.gzmpNearestCountries(place, radius, 1, code, 10);
    require(nearest.count >= 0 && nearest.count <= 10);
    require(nearest.codes.size() == static_cast<std::size_t>(nearest.count) * kGzmpCodeLength);
  }
  const GzmpBox box{place[1] - 6.0, place[0] - 4.0, place[1] + 6.0, place[0] + 4.0};
  map.countryOutline(code, box);
  outlinesAround(map, box);
}

// The bytes as they are, as the corners of a polygon.
void askForCrossings(const WorldMap& map, std::string_view bytes) {
  std::vector<GzmpPoint> points(std::min<std::size_t>(bytes.size() / sizeof(GzmpPoint), 40));
  if (!points.empty()) std::memcpy(points.data(), bytes.data(), points.size() * sizeof(GzmpPoint));
  const GzmpCrossings crossings = map.gzmp.gzmpFindCrossings(points);
  require(crossings.segments.size() == crossings.places.size());
}

}  // namespace
}  // namespace zamo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zamo;
  using namespace zamo::fuzz;
  static const test::TempFolder folder;
  const WorldMap map = makeWorldMap(folder.write("gzmp32d.dat", madeOurs(textOf(data, size))));
  map.gzmp.gzmpSetUnit(kGzmpUnit);
  map.gzmp.gzmpInit();
  map.gzmp.gzmpParseCoords(std::string(textOf(data, size).substr(0, 15)));
  askForCrossings(map, textOf(data, size));
  if (map.gzmp.gzmpOpenData() == kGzmpNoData) return 0;
  for (const GzmpPoint& place : kPlaces) askAt(map, place);
  return 0;
}
