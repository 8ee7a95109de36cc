// A map file that was made up: its sums are right, what stands behind them isn't.
#include <cstring>
#include <filesystem>
#include <functional>
#include <iterator>
#include <span>

#include "map/map_file.h"
#include "platform/run_time_error.h"
#include "real_map.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::TempFolder;

class ForgedMap {
 public:
  ForgedMap() : content_(test::readFile(kRealMapFile)) {
    std::memcpy(&header_, content_.data(), sizeof header_);
  }

  MapHeader& header() { return header_; }
  char* at(const MapSpan& span) { return content_.data() + span.offset; }
  std::span<MapCountry> countries() {
    return {reinterpret_cast<MapCountry*>(at(header_.countryTable)), header_.countries};
  }
  MapCountry& country(std::string_view code) {
    for (MapCountry& one : countries()) {
      if (code == one.code) return one;
    }
    throw std::out_of_range(std::string(code));
  }

  WorldMap write(const TempFolder& folder) {
    header_.contentSum = mapSum(std::string_view(content_).substr(sizeof header_));
    header_.headerSum = mapSum({reinterpret_cast<const char*>(&header_), offsetof(MapHeader, headerSum)});
    std::memcpy(content_.data(), &header_, sizeof header_);
    return makeWorldMap(folder.write("gzmp32d.dat", content_));
  }

 private:
  std::string content_;
  MapHeader header_;
};

constexpr GzmpPoint kParis = {48.85F, 2.35F};
constexpr GzmpPoint kMadrid = {40.4F, -3.7F};

// The number of the error that an operation ends in; 0 when there is none.
int errorOf(const std::function<void()>& operation) {
  try {
    operation();
    return 0;
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.text, "The data file of the map is damaged");
    return error.number;
  }
}

TEST(ForgedMapFile, is_no_other_than_the_real_one_when_nothing_was_changed) {
  const TempFolder folder;
  const WorldMap map = ForgedMap().write(folder);
  EXPECT_EQ(map.gzmp.gzmpOpenData(), 72);
  EXPECT_EQ(map.gzmp.gzmpCountryAtPoint(kParis), "F  ");
}

TEST(ForgedMapFile, cells_of_the_index_that_name_edges_beyond_their_country_are_told_and_not_followed) {
  const TempFolder folder;
  ForgedMap forged;
  const MapSpan& index = forged.header().index;
  // What is in the cells stands behind all that tells where they are.
  std::memset(forged.at(index) + index.size - index.size / 4, 0xFF, index.size / 4);
  const WorldMap map = forged.write(folder);
  ASSERT_EQ(map.gzmp.gzmpOpenData(), 72);
  int told = 0;
  for (int lat = -80; lat <= 80; lat += 5) {
    for (int lon = -180; lon < 180; lon += 5) {
      const int error = errorOf([&] {
        const GzmpPoint place = {static_cast<float>(lat), static_cast<float>(lon)};
        EXPECT_EQ(map.gzmp.gzmpCountryAtPoint(place), realMap().gzmp.gzmpCountryAtPoint(place));
      });
      EXPECT_TRUE(error == 0 || error == 57) << error;
      told += error != 0 ? 1 : 0;
    }
  }
  EXPECT_GT(told, 50);
}

TEST(ForgedMapFile, an_index_that_is_none_has_no_data) {
  const TempFolder folder;
  for (const int byte : {0x55, 0xFF}) {
    ForgedMap forged;
    std::memset(forged.at(forged.header().index), byte, forged.header().index.size);
    EXPECT_EQ(forged.write(folder).gzmp.gzmpOpenData(), -1) << byte;
  }
}

// It was searched all the same, and the program ended there.
TEST(ForgedMapFile, a_country_without_an_index_of_its_own_is_told_when_it_is_searched) {
  const TempFolder folder;
  for (const int byte : {0x00, 0x55, 0xFF}) {
    ForgedMap forged;
    const MapSpan& index = forged.country("E  ").index;
    std::memset(forged.at(index), byte, index.size);
    const WorldMap map = forged.write(folder);
    ASSERT_EQ(map.gzmp.gzmpOpenData(), 72);
    EXPECT_EQ(map.gzmp.gzmpCountryAtPoint(kMadrid), "E  ");
    EXPECT_EQ(errorOf([&] { map.gzmp.gzmpNearestCountries(kMadrid, 100, 1, "E  ", 10); }), 0);
    // Twice: what was refused isn't kept.
    EXPECT_EQ(errorOf([&] { map.gzmp.gzmpNearestCountries(kParis, 1000, 1, "F  ", 10); }), 57);
    EXPECT_EQ(errorOf([&] { map.gzmp.gzmpNearestCountries(kParis, 1000, 1, "F  ", 10); }), 57);
  }
}

TEST(ForgedMapFile, an_index_of_another_country_is_told_when_it_is_searched) {
  const TempFolder folder;
  ForgedMap forged;
  forged.country("E  ").index = forged.country("F  ").index;
  forged.country("SMR").index = forged.country("E  ").index;
  const WorldMap map = forged.write(folder);
  ASSERT_EQ(map.gzmp.gzmpOpenData(), 72);
  EXPECT_EQ(errorOf([&] { map.gzmp.gzmpNearestCountries({43.9F, 12.6F}, 100, 1, "I  ", 10); }), 57);
}

TEST(ForgedMapFile, loops_that_lead_beyond_their_places_have_no_data) {
  const TempFolder folder;
  const auto statusWith = [&folder](std::uint32_t loop, std::uint32_t start) {
    ForgedMap forged;
    std::memcpy(forged.at(forged.country("F  ").loops) + loop * sizeof start, &start, sizeof start);
    return forged.write(folder).gzmp.gzmpOpenData();
  };
  EXPECT_EQ(statusWith(0, 0), 72);
  EXPECT_EQ(statusWith(0, 3), -1);
  EXPECT_EQ(statusWith(1, 2), -1);
  EXPECT_EQ(statusWith(1, 0xFFFFFFFF), -1);
}

TEST(ForgedMapFile, an_outline_without_a_table_of_loops_has_no_data) {
  const TempFolder folder;
  for (const std::uint64_t size : {0U, 4U}) {
    ForgedMap forged;
    forged.country("F  ").loops.size = size;
    EXPECT_EQ(forged.write(folder).gzmp.gzmpOpenData(), -1) << size;
  }
}

TEST(ForgedMapFile, spans_of_a_country_that_leave_the_file_have_no_data) {
  const TempFolder folder;
  for (MapSpan MapCountry::*span : {&MapCountry::loops, &MapCountry::places, &MapCountry::index}) {
    ForgedMap forged;
    (forged.country("F  ").*span).offset = forged.header().fileSize;
    EXPECT_EQ(forged.write(folder).gzmp.gzmpOpenData(), -1);
  }
}

TEST(ForgedMapFile, places_that_are_no_cells_number_are_drawn_somewhere) {
  const TempFolder folder;
  ForgedMap forged;
  const MapSpan& places = forged.country("F  ").places;
  std::memset(forged.at(places), 0xFF, places.size);
  const WorldMap map = forged.write(folder);
  ASSERT_EQ(map.gzmp.gzmpOpenData(), 72);
  EXPECT_EQ(errorOf([&] { map.gzmp.gzmpCountryAtPoint(kParis); }), 0);
  EXPECT_EQ(errorOf([&] { map.countryOutline("F", {-10, 40, 10, 55}); }), 0);
  EXPECT_EQ(errorOf([&] { map.gzmp.gzmpNearestCountries(kMadrid, 1500, 1, "E  ", 10); }), 0);
}

}  // namespace
}  // namespace zamo
