#include "map/map_shape.h"

#include <s2/s2shapeutil_get_reference_point.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace zamo {
namespace {

static_assert(std::endian::native == std::endian::little, "the lower bytes of a number come first");

// With fewer corners there is no area, and without any the library takes the whole sphere.
constexpr std::uint32_t kFewestCorners = 3;

}  // namespace

bool isSound(const Outline& outline) {
  const auto& starts = outline.starts;
  const std::size_t count = outline.places.size() / kMapPlaceBytes;
  if (starts.empty() || starts.front() != 0 || starts.back() != count ||
      count > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    return false;
  }
  const auto isTooSmall = [](std::uint32_t from, std::uint32_t to) {
    return to < from || to - from < kFewestCorners;
  };
  return std::adjacent_find(starts.begin(), starts.end(), isTooSmall) == starts.end();
}

S2Point MapShape::place(std::uint32_t number) const {
  std::uint64_t upper = 0;
  std::memcpy(&upper, places_.data() + std::size_t{number} * kMapPlaceBytes, kMapPlaceBytes);
  const S2CellId cell(upper << kMapPlaceShift);
  // What is no cell's number is some place all the same.
  return (cell.is_valid() ? cell : S2CellId::FromFace(0)).ToPoint();
}

S2Shape::Edge MapShape::edge(int number) const {
  const ChainPosition position = chain_position(number);
  return chain_edge(position.chain_id, position.offset);
}

S2Shape::ReferencePoint MapShape::GetReferencePoint() const {
  return s2shapeutil::GetReferencePoint(*this);
}

S2Shape::Chain MapShape::chain(int number) const {
  const auto at = static_cast<std::size_t>(number);
  return Chain(static_cast<int>(starts_[at]), static_cast<int>(starts_[at + 1] - starts_[at]));
}

S2Shape::Edge MapShape::chain_edge(int chain, int offset) const {
  const std::uint32_t first = starts_[static_cast<std::size_t>(chain)];
  const std::uint32_t from = first + static_cast<std::uint32_t>(offset);
  const bool isLast = from + 1 == starts_[static_cast<std::size_t>(chain) + 1];
  return Edge(place(from), place(isLast ? first : from + 1));
}

S2Shape::ChainPosition MapShape::chain_position(int edge) const {
  const auto next = std::upper_bound(starts_.begin(), starts_.end(), static_cast<std::uint32_t>(edge));
  const auto chain = static_cast<int>(next - starts_.begin()) - 1;
  return ChainPosition(chain, edge - static_cast<int>(starts_[static_cast<std::size_t>(chain)]));
}

}  // namespace zamo
