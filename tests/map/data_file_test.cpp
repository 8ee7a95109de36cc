#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>

#include "map/map_file.h"
#include "real_map.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class MapFile : public ::testing::Test {
 protected:
  int statusOf(const std::string& content) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("zamo-map-" + std::to_string(getpid()))).string();
    std::ofstream(path, std::ios::binary) << content;
    const int status = makeWorldMap(path).gzmp.gzmpOpenData();
    std::filesystem::remove(path);
    return status;
  }
};

TEST_F(MapFile, a_missing_file_has_no_data) {
  EXPECT_EQ(makeWorldMap("/nowhere/gzmp32d.dat").gzmp.gzmpOpenData(), -1);
  EXPECT_EQ(makeWorldMap("/tmp").gzmp.gzmpOpenData(), -1);
}

TEST_F(MapFile, a_foreign_file_has_no_data) {
  EXPECT_EQ(statusOf(""), -1);
  EXPECT_EQ(statusOf("GZMP32D\n"), -1);
  EXPECT_EQ(statusOf("<HEAD>\r\nt_adm=F\r\n</HEAD>\r\n"), -1);
  EXPECT_EQ(statusOf(std::string(100000, '\0')), -1);
}

TEST_F(MapFile, a_file_that_was_cut_has_no_data) {
  const std::string whole = contentOf(kRealMapFile);
  for (const std::size_t size : {std::size_t{1}, std::size_t{50}, sizeof(MapHeader) - 1, sizeof(MapHeader),
                                 sizeof(MapHeader) + 1, whole.size() / 3, whole.size() - 1}) {
    EXPECT_EQ(statusOf(whole.substr(0, size)), -1) << size;
  }
  EXPECT_EQ(statusOf(whole + '\0'), -1);
}

TEST_F(MapFile, a_file_with_any_byte_changed_has_no_data) {
  std::string content = contentOf(kRealMapFile);
  std::mt19937 random(7);
  std::uniform_int_distribution<std::size_t> anywhere(0, content.size() - 1);
  for (std::size_t i = 0; i < sizeof(MapHeader) + 60; ++i) {
    const std::size_t at = i < sizeof(MapHeader) ? i : anywhere(random);
    content[at] = static_cast<char>(content[at] ^ 0x10);
    EXPECT_EQ(statusOf(content), -1) << at;
    content[at] = static_cast<char>(content[at] ^ 0x10);
  }
  EXPECT_EQ(statusOf(content), 72);
}

// What a program other than the builder could write: the sums are right, the table isn't.
TEST_F(MapFile, a_table_that_points_out_of_the_file_has_no_data) {
  const std::string whole = contentOf(kRealMapFile);
  MapHeader header;
  std::memcpy(&header, whole.data(), sizeof header);
  for (MapSpan MapHeader::*span : {&MapHeader::countryTable, &MapHeader::capTable, &MapHeader::index}) {
    for (const std::uint64_t offset : {std::uint64_t{0}, header.fileSize, ~std::uint64_t{0} - 4}) {
      MapHeader wrong = header;
      (wrong.*span).offset = offset;
      wrong.headerSum = mapSum({reinterpret_cast<const char*>(&wrong), offsetof(MapHeader, headerSum)});
      std::string content = whole;
      std::memcpy(content.data(), &wrong, sizeof wrong);
      EXPECT_EQ(statusOf(content), -1);
    }
  }
}

TEST_F(MapFile, without_data_every_place_is_at_sea_and_nothing_is_near) {
  const WorldMap map = makeWorldMap("/nowhere/gzmp32d.dat");
  EXPECT_EQ(map.gzmp.gzmpOpenData(), -1);
  EXPECT_EQ(map.gzmp.gzmpCountryAtPoint({48.8F, 2.3F}), "   ");
  EXPECT_EQ(map.gzmp.gzmpNearestCountries({48.8F, 2.3F}, 1000, 1, "   ", 10).status, -1);
  EXPECT_TRUE(map.countryOutline("F", {-10, 40, 10, 50}).empty());
}

TEST_F(MapFile, opens_in_a_moment_and_stays_small) {
  EXPECT_LT(std::filesystem::file_size(kRealMapFile), 90U << 20);
  auto fastest = std::chrono::nanoseconds::max();
  for (int i = 0; i < 20; ++i) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(makeWorldMap(kRealMapFile).gzmp.gzmpOpenData(), 72);
    fastest = std::min<std::chrono::nanoseconds>(fastest, std::chrono::steady_clock::now() - start);
  }
  RecordProperty("microseconds", std::to_string(fastest.count() / 1000));
  // Ten times what is asked for, so that a busy machine or a sanitizer doesn't fail it.
  EXPECT_LT(fastest, std::chrono::milliseconds(50));
}

TEST(MapCoordinates, a_pair_is_latitude_and_longitude_with_its_hemispheres) {
  const auto& map = realMap().gzmp;
  EXPECT_EQ(map.gzmpParseCoords("483000N0021500E"), (GzmpPoint{48.5F, 2.25F}));
  EXPECT_EQ(map.gzmpParseCoords("334500S0183000W"), (GzmpPoint{-33.75F, -18.5F}));
  EXPECT_EQ(map.gzmpParseCoords("000000n1795959e")[1], 179.99972F);
  EXPECT_EQ(map.gzmpParseCoords("48xx30N00A1500E")[0], 48 + 30.0F / 3600);
  EXPECT_EQ(map.gzmpParseCoords(""), (GzmpPoint{0, 0}));
}

}  // namespace
}  // namespace zamo
