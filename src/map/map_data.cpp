#include "map/map_data.h"

#include <s2/s2debug.h>
#include <s2/s2lax_polygon_shape.h>
#include <s2/s2shapeutil_coding.h>
#include <s2/util/coding/coder.h>

#include <algorithm>
#include <cstdint>

#include "platform/run_time_error.h"

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

[[noreturn]] void throwDamaged() {
  throw RunTimeError{kDeviceError, "The data file of the map is damaged"};
}

// The outlines of all countries, as they lie in the file.
class Outlines : public S2ShapeIndex::ShapeFactory {
 public:
  explicit Outlines(std::vector<Outline> outlines) : outlines_(std::move(outlines)) {}

  int size() const override { return static_cast<int>(outlines_.size()); }
  std::unique_ptr<S2Shape> operator[](int country) const override {
    return std::make_unique<MapShape>(outlines_[static_cast<std::size_t>(country)]);
  }
  std::unique_ptr<ShapeFactory> Clone() const override { return std::make_unique<Outlines>(outlines_); }

 private:
  std::vector<Outline> outlines_;
};

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
  const auto isInside = [this](const MapSpan& span, std::size_t alignment) {
    const std::uint64_t size = header_.fileSize;
    return span.offset >= sizeof(MapHeader) && span.offset <= size && span.size <= size - span.offset &&
           span.offset % alignment == 0;
  };
  if (!isInside(header_.countryTable, alignof(MapCountry)) || !isInside(header_.capTable, alignof(MapCap)) ||
      !isInside(header_.index, 1)) {
    return false;
  }
  countries_ = rowsOf<MapCountry>(part(header_.countryTable));
  caps_ = rowsOf<MapCap>(part(header_.capTable));
  if (countries_.size() != header_.countries || caps_.size() != header_.caps) return false;
  const auto isSound = [&](const MapCountry& country) {
    return isInside(country.loops, alignof(std::uint32_t)) && isInside(country.places, 1) &&
           isInside(country.index, 1) && country.firstCap <= caps_.size() &&
           country.caps <= caps_.size() - country.firstCap;
  };
  return std::ranges::all_of(countries_, isSound) && initIndex();
}

bool MapData::initIndex() {
  std::vector<Outline> outlines;
  for (const MapCountry& country : countries_) {
    const Outline outline{rowsOf<std::uint32_t>(part(country.loops)), part(country.places)};
    if (!isSound(outline)) return false;
    outlines.push_back(outline);
    edges_.push_back(static_cast<int>(outline.starts.back()));
  }
  const std::string_view index = part(header_.index);
  cells_ = IndexCells::in(index);
  Decoder decoder(index.data(), index.size());
  if (!cells_ || !joint_.Init(&decoder, Outlines(std::move(outlines)))) return false;
  soundCells_.resize(cells_->size());
  containing_.Init(&joint_);
  opened_.resize(countries_.size());
  return true;
}

void MapData::requireSoundAt(const S2Point& point) const {
  const std::size_t next = cells_->cellAt(point);
  for (std::size_t cell = next == 0 ? 0 : next - 1; cell <= next && cell < cells_->size(); ++cell) {
    if (soundCells_[cell]) continue;
    if (!cells_->isSound(cell, edges_)) throwDamaged();
    soundCells_[cell] = true;
  }
}

std::span<const MapCap> MapData::caps(std::size_t country) const {
  return caps_.subspan(countries_[country].firstCap, countries_[country].caps);
}

int MapData::countryAt(const S2Point& point) const {
  requireSoundAt(point);
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
    auto found = std::make_unique<Country>();
    const std::string_view index = part(countries_[country].index);
    const auto cells = IndexCells::in(index);
    Decoder decoder(index.data(), index.size());
    if (!cells || !cells->areAllSound(std::span(edges_).subspan(country, 1)) ||
        !found->index.Init(&decoder, s2shapeutil::SingletonShapeFactory(decoded(shape(country))))) {
      throwDamaged();
    }
    found->query.Init(&found->index);
    opened = std::move(found);
  }
  return opened->query;
}

}  // namespace zamo
