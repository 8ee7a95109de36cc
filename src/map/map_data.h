// The map's data file, checked and ready to be asked. What is asked for is decoded then, not before.
#pragma once

#include <s2/encoded_s2shape_index.h>
#include <s2/s2closest_edge_query.h>
#include <s2/s2contains_point_query.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "map/index_cells.h"
#include "map/map_file.h"
#include "map/map_shape.h"
#include "platform/mapped_file.h"

namespace zamo {

// The sums tell that a file is whole, not that it makes sense. What only a forged one can hold is found where
// it is asked for and thrown as a RunTimeError.
class MapData {
 public:
  // Nothing if the file isn't whole and ours.
  static std::unique_ptr<MapData> open(const std::string& path);

  std::size_t countries() const { return countries_.size(); }
  std::string_view code(std::size_t country) const { return {countries_[country].code, 3}; }
  const MapCap& bound(std::size_t country) const { return countries_[country].bound; }
  std::span<const MapCap> caps(std::size_t country) const;

  // The number of the country at a point, -1 at sea. Of two that both claim a strip along their border, the
  // first.
  int countryAt(const S2Point& point) const;

  // Calls `one` with the number of each country that claims the point.
  template <typename One>
  void forEachAt(const S2Point& point, One one) const {
    requireSoundAt(point);
    containing_.VisitContainingShapes(point, [&](S2Shape* shape) {
      one(static_cast<std::size_t>(shape->id()));
      return true;
    });
  }

  // Edges of one country; a point within it is at distance 0. Reused from call to call.
  S2ClosestEdgeQuery& edgesOf(std::size_t country) const;
  const S2Shape& shape(std::size_t country) const { return *joint_.shape(static_cast<int>(country)); }

 private:
  struct Country {
    EncodedS2ShapeIndex index;
    S2ClosestEdgeQuery query;
  };

  bool isWhole() const;
  bool init();
  bool initIndex();
  void requireSoundAt(const S2Point& point) const;
  std::string_view part(const MapSpan& span) const;

  MappedFile file_;
  MapHeader header_;
  std::span<const MapCountry> countries_;
  std::span<const MapCap> caps_;
  std::vector<int> edges_;  // how many each country has
  std::optional<IndexCells> cells_;
  mutable std::vector<bool> soundCells_;  // of those that were asked for
  EncodedS2ShapeIndex joint_;
  mutable S2ContainsPointQuery<EncodedS2ShapeIndex> containing_;
  mutable std::vector<std::unique_ptr<Country>> opened_;
};

}  // namespace zamo
