// The cells of an encoded index, looked at before the geometry library is given them: it takes what they say
// of shapes and edges as it stands, so a cell that was made up would lead it out of its memory.
#pragma once

#include <s2/encoded_s2cell_id_vector.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace zamo {

class IndexCells {
 public:
  // Nothing if the bytes are no index. They must outlive it.
  static std::optional<IndexCells> in(std::string_view index);

  std::size_t size() const { return ids_.size(); }

  // Whether a cell names only edges that there are: `edges` has the number of each shape's.
  bool isSound(std::size_t cell, std::span<const int> edges) const;

  // Whether there are cells, all of them are sound, and they follow each other on the sphere.
  bool areAllSound(std::span<const int> edges) const;

  // The cells that a search for a place looks at are this one, if there is one of that number, and the one
  // before it.
  std::size_t cellAt(const S2Point& place) const { return ids_.lower_bound(S2CellId(place)); }

 private:
  std::string_view bytesOf(std::size_t cell) const;

  s2coding::EncodedS2CellIdVector ids_;
  s2coding::EncodedUintVector<std::uint64_t> ends_;  // of each cell's bytes
  std::string_view bytes_;
};

}  // namespace zamo
