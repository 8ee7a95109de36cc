#include "map/index_cells.h"

#include <s2/util/coding/coder.h>

namespace zamo {
namespace {

// Reads one cell as the library does. A function gives whether what it has read is sound; how each case is
// told from the others is the library's encoding.
class CellReader {
 public:
  CellReader(std::string_view bytes, std::span<const int> edges)
      : decoder_(bytes.data(), bytes.size()), edges_(edges) {}

  bool readCell() { return edges_.size() == 1 ? readOnlyShape() : readShapes(); }

 private:
  std::uint64_t edgesOf(std::size_t shape) const { return static_cast<std::uint64_t>(edges_[shape]); }

  bool isRange(std::size_t shape, std::uint64_t first, std::uint64_t count) const {
    return count <= edgesOf(shape) && first <= edgesOf(shape) - count;
  }

  // A cell of an index over one shape.
  bool readOnlyShape() {
    uint64 header = 0;
    if (!decoder_.get_varint64(&header)) return false;
    if ((header & 1) == 0) return isRange(0, header >> 6, ((header >> 2) & 15) + 2);
    if ((header & 2) == 0) return isRange(0, header >> 3, 1);
    return readEdges(0, header >> 3);
  }

  bool readShapes() {
    uint32 header = 0;
    if (!decoder_.get_varint32(&header)) return false;
    std::uint32_t count = 1;
    if ((header & 7) == 3) {
      count = header >> 3;
      if (!decoder_.get_varint32(&header)) return false;
    }
    std::size_t shape = 0;
    for (std::uint32_t i = 0; i < count; ++i, ++shape) {
      if (i > 0 && !decoder_.get_varint32(&header)) return false;
      if (!readShape(header, shape)) return false;
    }
    return count > 0;
  }

  // `shape` goes on to the one that is read.
  bool readShape(std::uint32_t header, std::size_t& shape) {
    if ((header & 7) == 7) {
      shape += header >> 4;
      return shape < edges_.size();
    }
    if ((header & 1) != 0 && (header & 3) != 1) return false;
    uint32 next = 0;
    if (!decoder_.get_varint32(&next)) return false;
    const bool isRangeOfEdges = (header & 1) == 0;
    shape += isRangeOfEdges ? next >> 4 : next;
    if (shape >= edges_.size()) return false;
    return isRangeOfEdges ? isRange(shape, header >> 2, (next & 15) + 1)
                          : readEdges(shape, (header >> 3) + 1);
  }

  // Ranges of edges with gaps between them; of the last edge there is no count.
  bool readEdges(std::size_t shape, std::uint64_t count) {
    std::uint64_t edge = 0;
    if (count > edgesOf(shape)) return false;
    while (count > 0) {
      uint32 gap = 0;
      if (!decoder_.get_varint32(&gap)) return false;
      std::uint64_t length = 1;
      if (count > 1) {
        length = (gap & 7) + 1;
        gap >>= 3;
        if (length == 8) {
          length = std::uint64_t{gap} + 8;
          if (!decoder_.get_varint32(&gap)) return false;
        }
      }
      edge += gap;
      if (length > count || !isRange(shape, edge, length)) return false;
      edge += length;
      count -= length;
    }
    return true;
  }

  Decoder decoder_;
  std::span<const int> edges_;
};

}  // namespace

std::optional<IndexCells> IndexCells::in(std::string_view index) {
  Decoder decoder(index.data(), index.size());
  IndexCells cells;
  uint64 version = 0;
  if (!decoder.get_varint64(&version) || !cells.ids_.Init(&decoder) || !cells.ends_.Init(&decoder) ||
      cells.ids_.size() != cells.ends_.size()) {
    return std::nullopt;
  }
  cells.bytes_ = index.substr(index.size() - decoder.avail());
  return cells;
}

std::string_view IndexCells::bytesOf(std::size_t cell) const {
  const auto place = static_cast<int>(cell);
  const std::uint64_t begin = cell == 0 ? 0 : ends_[place - 1];
  const std::uint64_t end = ends_[place];
  if (begin > end || end > bytes_.size()) return {};
  return bytes_.substr(begin, end - begin);
}

bool IndexCells::isSound(std::size_t cell, std::span<const int> edges) const {
  return ids_[static_cast<int>(cell)].is_valid() && CellReader(bytesOf(cell), edges).readCell();
}

bool IndexCells::areAllSound(std::span<const int> edges) const {
  for (std::size_t cell = 0; cell < size(); ++cell) {
    if (!isSound(cell, edges)) return false;
    const auto place = static_cast<int>(cell);
    if (cell > 0 && ids_[place - 1].range_max() >= ids_[place].range_min()) return false;
  }
  return size() > 0;
}

}  // namespace zamo
