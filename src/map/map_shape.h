// The outline of one country as it lies in the map's data file, each place decoded where it is asked for.
#pragma once

#include <s2/s2cell_id.h>
#include <s2/s2shape.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace zamo {

// A place is the centre of a cell of the sphere, of whose number these are the upper bytes.
inline constexpr std::size_t kMapPlaceBytes = 6;
inline constexpr int kMapPlaceShift = 64 - 8 * static_cast<int>(kMapPlaceBytes);

// Loop `i` is made of the places from `starts[i]` up to `starts[i + 1]`, with its inside on the left.
struct Outline {
  std::span<const std::uint32_t> starts;
  std::string_view places;
};

// Whether nothing in the table of loops leads beyond the places.
bool isSound(const Outline& outline);

class MapShape final : public S2Shape {
 public:
  // A sound one, whose bytes outlive it.
  explicit MapShape(const Outline& outline) : starts_(outline.starts), places_(outline.places) {}

  int num_edges() const override { return static_cast<int>(starts_.back()); }
  Edge edge(int number) const override;
  int dimension() const override { return 2; }
  ReferencePoint GetReferencePoint() const override;
  int num_chains() const override { return static_cast<int>(starts_.size()) - 1; }
  Chain chain(int number) const override;
  Edge chain_edge(int chain, int offset) const override;
  ChainPosition chain_position(int edge) const override;

 private:
  S2Point place(std::uint32_t number) const;

  std::span<const std::uint32_t> starts_;
  std::string_view places_;
};

}  // namespace zamo
