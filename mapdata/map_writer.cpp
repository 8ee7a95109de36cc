#include "map_writer.h"

#include <s2/encoded_s2shape_index.h>
#include <s2/s2cell.h>
#include <s2/s2earth.h>
#include <s2/s2region_coverer.h>
#include <s2/s2shape_index_region.h>
#include <s2/util/coding/coder.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "map/map_file.h"
#include "map/map_shape.h"

namespace zamo::mapdata {
namespace {

// How finely a country is bounded: enough that few are searched in vain.
constexpr int kCapsOfCountry = 12;
// Radians, above all rounding.
constexpr double kCapMargin = 1e-9;

std::string encoded(const MutableS2ShapeIndex& index) {
  Encoder encoder;
  index.Encode(&encoder);
  return {encoder.base(), encoder.length()};
}

// The numbers of the cells whose centres the places are; all are of one level, with nothing in the lower
// bytes.
std::string numbersOf(const std::vector<S2Point>& places) {
  std::string bytes;
  for (const S2Point& place : places) {
    const S2CellId cell = S2CellId(place).parent(kPlaceLevel);
    const std::uint64_t upper = cell.id() >> kMapPlaceShift;
    if ((cell.ToPoint() - place).Norm2() > 0 || upper << kMapPlaceShift != cell.id())
      throw std::runtime_error("a place that is no centre of a cell: " + placeText(place));
    bytes.append(reinterpret_cast<const char*>(&upper), kMapPlaceBytes);
  }
  return bytes;
}

MapCap capOf(const S2Cap& cap) {
  const S2Point& centre = cap.center();
  return {{centre.x(), centre.y(), centre.z()}, cap.GetRadius().radians() + kCapMargin};
}

class Content {
 public:
  MapSpan add(const void* bytes, std::size_t size) {
    while (text_.size() % 16 != 0) text_ += '\0';
    const MapSpan span{sizeof(MapHeader) + text_.size(), size};
    text_.append(static_cast<const char*>(bytes), size);
    return span;
  }
  MapSpan add(const std::string& bytes) { return add(bytes.data(), bytes.size()); }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

MapCountry countryOf(const std::string& code, const Region& region, std::vector<MapCap>& caps,
                     Content& content) {
  MapCountry country;
  code.copy(country.code, 3);
  for (std::size_t i = code.size(); i < 3; ++i) country.code[i] = ' ';
  const auto indexRegion = MakeS2ShapeIndexRegion(&region.index());
  country.bound = capOf(indexRegion.GetCapBound());
  S2RegionCoverer::Options options;
  options.set_max_cells(kCapsOfCountry);
  S2RegionCoverer coverer(options);
  std::vector<S2CellId> cells;
  coverer.GetCovering(indexRegion, &cells);
  country.firstCap = static_cast<std::uint32_t>(caps.size());
  country.caps = static_cast<std::uint32_t>(cells.size());
  for (const S2CellId cell : cells) caps.push_back(capOf(S2Cell(cell).GetCapBound()));
  std::vector<std::uint32_t> starts = {0};
  std::string places;
  for (const auto& loop : region.loops()) {
    starts.push_back(starts.back() + static_cast<std::uint32_t>(loop.size()));
    places += numbersOf(loop);
  }
  country.loops = content.add(starts.data(), starts.size() * sizeof starts[0]);
  country.places = content.add(places);
  MutableS2ShapeIndex index;
  index.Add(std::make_unique<S2LaxPolygonShape>(region.loops()));
  country.index = content.add(encoded(index));
  return country;
}

}  // namespace

void writeMap(const World& world, const std::string& path) {
  Content content;
  MapHeader header;
  std::vector<MapCountry> countries;
  std::vector<MapCap> caps;
  MutableS2ShapeIndex all;
  int places = 0;
  for (const auto& [code, region] : world) {
    if (region.empty()) continue;
    countries.push_back(countryOf(code, region, caps, content));
    all.Add(std::make_unique<S2LaxPolygonShape>(region.loops()));
    places += region.vertices();
  }
  header.index = content.add(encoded(all));
  header.countryTable = content.add(countries.data(), countries.size() * sizeof(MapCountry));
  header.capTable = content.add(caps.data(), caps.size() * sizeof(MapCap));
  std::memcpy(header.magic, kMapMagic, sizeof header.magic);
  header.version = kMapVersion;
  header.byteOrder = kMapByteOrder;
  header.countries = static_cast<std::uint32_t>(countries.size());
  header.caps = static_cast<std::uint32_t>(caps.size());
  header.fileSize = sizeof header + content.text().size();
  header.contentSum = mapSum(content.text());
  header.headerSum = mapSum({reinterpret_cast<const char*>(&header), offsetof(MapHeader, headerSum)});

  const std::string unfinished = path + ".new";
  std::ofstream file(unfinished, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file << content.text();
  file.close();
  if (!file || std::rename(unfinished.c_str(), path.c_str()) != 0)
    throw std::runtime_error("can't write " + path);
  std::printf("%zu countries, %d places: index %llu, file %llu bytes\n", countries.size(), places,
              static_cast<unsigned long long>(header.index.size),
              static_cast<unsigned long long>(header.fileSize));
}

}  // namespace zamo::mapdata
