#include "map/index_cells.h"

#include <gtest/gtest.h>
#include <s2/encoded_s2shape_index.h>
#include <s2/mutable_s2shape_index.h>
#include <s2/s2latlng.h>
#include <s2/s2lax_polygon_shape.h>
#include <s2/s2shapeutil_coding.h>
#include <s2/util/coding/coder.h>

#include <cmath>
#include <numbers>

#include "real_map.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using Loop = std::vector<S2Point>;

// So many corners around a place, a degree away.
Loop ring(double lat, double lon, int corners) {
  Loop loop;
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    loop.push_back(S2LatLng::FromDegrees(lat + std::sin(angle), lon + std::cos(angle)).ToPoint());
  }
  return loop;
}

struct EncodedIndex {
  std::vector<int> edges;  // of each shape
  std::string bytes;
  std::string shapes;

  explicit EncodedIndex(const std::vector<Loop>& loops) {
    MutableS2ShapeIndex index;
    for (const Loop& loop : loops) {
      index.Add(std::make_unique<S2LaxPolygonShape>(std::vector<Loop>{loop}));
      edges.push_back(static_cast<int>(loop.size()));
    }
    Encoder encoder;
    index.Encode(&encoder);
    bytes = {encoder.base(), encoder.length()};
    Encoder shapeEncoder;
    s2shapeutil::CompactEncodeTaggedShapes(index, &shapeEncoder);
    shapes = {shapeEncoder.base(), shapeEncoder.length()};
  }
};

// Whether the library, which trusts the bytes, finds nothing in them but what there is.
bool libraryStaysWithin(const EncodedIndex& encoded) {
  Decoder decoder(encoded.bytes.data(), encoded.bytes.size());
  Decoder shapes(encoded.shapes.data(), encoded.shapes.size());
  EncodedS2ShapeIndex index;
  if (!index.Init(&decoder, s2shapeutil::LazyDecodeShapeFactory(&shapes))) return true;
  for (EncodedS2ShapeIndex::Iterator cell(&index, S2ShapeIndex::BEGIN); !cell.done(); cell.Next()) {
    for (int i = 0; i < cell.cell().num_clipped(); ++i) {
      const S2ClippedShape& shape = cell.cell().clipped(i);
      if (shape.shape_id() < 0 || shape.shape_id() >= static_cast<int>(encoded.edges.size())) return false;
      for (int edge = 0; edge < shape.num_edges(); ++edge) {
        if (shape.edge(edge) < 0 ||
            shape.edge(edge) >= encoded.edges[static_cast<std::size_t>(shape.shape_id())])
          return false;
      }
    }
  }
  return true;
}

const std::vector<std::vector<Loop>> kWorlds = {
    {ring(45, 5, 3)},
    {ring(45, 5, 200)},
    {ring(45, 5, 40), ring(45.5, 5.5, 40), ring(-20, 130, 3)},
    {ring(0, 0, 7), ring(0, 0.2, 9), ring(0.1, 0, 120), ring(0, -0.2, 5)},
};

TEST(IndexCells, what_the_library_wrote_is_sound) {
  for (const auto& loops : kWorlds) {
    const EncodedIndex encoded(loops);
    const auto cells = IndexCells::in(encoded.bytes);
    ASSERT_TRUE(cells);
    EXPECT_GT(cells->size(), 0U);
    EXPECT_TRUE(cells->areAllSound(encoded.edges));
  }
}

TEST(IndexCells, an_edge_less_than_the_index_names_is_found) {
  for (const auto& loops : kWorlds) {
    EncodedIndex encoded(loops);
    for (int& edges : encoded.edges) {
      --edges;
      EXPECT_FALSE(IndexCells::in(encoded.bytes)->areAllSound(encoded.edges));
      ++edges;
    }
  }
}

TEST(IndexCells, a_shape_less_than_the_index_names_is_found) {
  for (const auto& loops : {kWorlds[2], kWorlds[3]}) {
    EncodedIndex encoded(loops);
    encoded.edges.pop_back();
    EXPECT_FALSE(IndexCells::in(encoded.bytes)->areAllSound(encoded.edges));
  }
}

TEST(IndexCells, an_index_that_was_cut_is_found) {
  const EncodedIndex encoded(kWorlds[2]);
  for (std::size_t size = 0; size < encoded.bytes.size(); ++size) {
    const auto cells = IndexCells::in(std::string_view(encoded.bytes).substr(0, size));
    EXPECT_FALSE(cells && cells->areAllSound(encoded.edges)) << size;
  }
}

// The library follows whatever a cell says; what it is given after this look never leads it astray.
TEST(IndexCells, what_is_sound_after_any_byte_was_changed_stays_within_the_shapes) {
  int sound = 0;
  int refused = 0;
  for (const auto& loops : kWorlds) {
    EncodedIndex encoded(loops);
    for (char& byte : encoded.bytes) {
      const char before = byte;
      for (const int change : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
        byte = static_cast<char>(before ^ change);
        const auto cells = IndexCells::in(encoded.bytes);
        const bool isSound = cells && cells->areAllSound(encoded.edges);
        EXPECT_TRUE(!isSound || libraryStaysWithin(encoded));
        ++(isSound ? sound : refused);
      }
      byte = before;
    }
  }
  EXPECT_GT(sound, 100);
  EXPECT_GT(refused, 100);
}

TEST(IndexCells, all_of_the_real_map_are_sound) {
  std::vector<int> edges;
  for (std::size_t country = 0; country < realData().countries(); ++country) {
    edges.push_back(realData().shape(country).num_edges());
    EXPECT_NO_THROW(realData().edgesOf(country)) << realData().code(country);
  }
  const std::string content = test::readFile(kRealMapFile);
  MapHeader header;
  std::memcpy(&header, content.data(), sizeof header);
  const auto cells = IndexCells::in(std::string_view(content).substr(header.index.offset, header.index.size));
  ASSERT_TRUE(cells);
  EXPECT_TRUE(cells->areAllSound(edges));
}

}  // namespace
}  // namespace zamo
