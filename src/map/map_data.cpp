#include "map/map_data.h"

#include <s2/s2debug.h>
#include <s2/s2lax_polygon_shape.h>
#include <s2/s2shapeutil_coding.h>
#include <s2/util/coding/coder.h>

#include <cstdint>

namespace zamo {
namespace {

// A country's polygon with its places decoded: searches for the nearest edge ask for the same ones again and
// again.
std::unique_ptr<S2Shape> decoded(const S2Shape& shape) {
  std::vector<std::vector<S2Point>> loops(static_cast<std::size_t>(shape.num_chains()));
  for (int chain = 0; chain < shape.num_chains(); ++chain) {
    auto& loop = loops[static_cast<std::size_t>(chain)];
    for (int i = 0; i < shape.chain(chain).length; ++i) loop.push_back(shape.chain_edge(chain, i).v0);
  }
  return std::make_unique<S2LaxPolygonShape>(loops);
}

template <typename Row>
std::span<const Row> rowsOf(std::string_view bytes) {
  return {reinterpret_cast<const Row*>(bytes.data()), bytes.size() / sizeof(Row)};
}

}  // namespace

std::unique_ptr<MapData> MapData::open(const std::string& path) {
  // Its checks are for makers of polygons; ours were made whole by the builder.
  FLAGS_s2debug = false;
  auto data = std::make_unique<MapData>();
  data->file_ = MappedFile(path);
  if (!data->isWhole() || !data->init()) return nullptr;
  return data;
}

std::string_view MapData::part(const MapSpan& span) const {
  return file_.content().substr(span.offset, span.size);
}

bool MapData::isWhole() const {
  const std::string_view content = file_.content();
  if (content.size() < sizeof(MapHeader)) return false;
  MapHeader header;
  std::memcpy(&header, content.data(), sizeof header);
  if (std::memcmp(header.magic, kMapMagic, sizeof header.magic) != 0 || header.version != kMapVersion ||
      header.byteOrder != kMapByteOrder || header.fileSize != content.size() ||
      header.headerSum != mapSum(content.substr(0, offsetof(MapHeader, headerSum)))) {
    return false;
  }
  return header.contentSum == mapSum(content.substr(sizeof header));
}

bool MapData::init() {
  std::memcpy(&header_, file_.content().data(), sizeof header_);
  const auto isInside = [this](const MapSpan& span) {
    const std::uint64_t size = header_.fileSize;
    return span.offset >= sizeof(MapHeader) && span.offset <= size && span.size <= size - span.offset;
  };
  if (!isInside(header_.countryTable) || !isInside(header_.capTable) || !isInside(header_.shapes) ||
      !isInside(header_.index) || header_.countryTable.offset % alignof(MapCountry) != 0 ||
      header_.capTable.offset % alignof(MapCap) != 0) {
    return false;
  }
  countries_ = rowsOf<MapCountry>(part(header_.countryTable));
  caps_ = rowsOf<MapCap>(part(header_.capTable));
  if (countries_.size() != header_.countries || caps_.size() != header_.caps) return false;
  for (const MapCountry& country : countries_) {
    if (!isInside(country.index) || country.firstCap > caps_.size() ||
        country.caps > caps_.size() - country.firstCap) {
      return false;
    }
  }
  const std::string_view shapes = part(header_.shapes);
  const std::string_view index = part(header_.index);
  Decoder shapeDecoder(shapes.data(), shapes.size());
  Decoder indexDecoder(index.data(), index.size());
  if (!joint_.Init(&indexDecoder, s2shapeutil::LazyDecodeShapeFactory(&shapeDecoder)) ||
      joint_.num_shape_ids() != static_cast<int>(countries_.size())) {
    return false;
  }
  containing_.Init(&joint_);
  opened_.resize(countries_.size());
  return true;
}

std::span<const MapCap> MapData::caps(std::size_t country) const {
  return caps_.subspan(countries_[country].firstCap, countries_[country].caps);
}

int MapData::countryAt(const S2Point& point) const {
  int found = -1;
  containing_.VisitContainingShapes(point, [&](S2Shape* shape) {
    found = shape->id();
    return false;
  });
  return found;
}

S2ClosestEdgeQuery& MapData::edgesOf(std::size_t country) const {
  auto& opened = opened_[country];
  if (!opened) {
    opened = std::make_unique<Country>();
    const std::string_view index = part(countries_[country].index);
    Decoder decoder(index.data(), index.size());
    // The file's sums were right, so this is as the builder wrote it.
    opened->index.Init(&decoder, s2shapeutil::SingletonShapeFactory(decoded(shape(country))));
    opened->query.Init(&opened->index);
  }
  return opened->query;
}

}  // namespace zamo
