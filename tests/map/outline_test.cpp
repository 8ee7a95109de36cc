#include <algorithm>

#include "map/outlines_around.h"
#include "real_map.h"

namespace zamo {
namespace {

bool touches(const GzmpBox& box, const GzmpPoint& a, const GzmpPoint& b) {
  return std::min(a[0], b[0]) <= box.north && std::max(a[0], b[0]) >= box.south &&
         std::min(a[1], b[1]) <= box.east && std::max(a[1], b[1]) >= box.west;
}

TEST(CountryOutline, gives_the_border_within_the_box_and_no_more) {
  const GzmpBox box{7, 47, 9, 48};
  const auto lines = realMap().countryOutline("SUI", box);
  ASSERT_FALSE(lines.empty());
  std::size_t points = 0;
  for (const GzmpLine& line : lines) {
    ASSERT_GE(line.size(), 2U);
    points += line.size();
    for (std::size_t i = 1; i < line.size(); ++i) EXPECT_TRUE(touches(box, line[i - 1], line[i]));
  }
  EXPECT_GT(points, 300U);
}

TEST(CountryOutline, of_an_island_is_closed) {
  const auto lines = realMap().countryOutline("mlt", {14.1, 35.7, 14.7, 36.2});
  const auto longest = std::max_element(lines.begin(), lines.end(),
                                        [](const auto& a, const auto& b) { return a.size() < b.size(); });
  ASSERT_NE(longest, lines.end());
  EXPECT_EQ(longest->front(), longest->back());
}

TEST(CountryOutline, runs_on_across_the_antimeridian) {
  const auto lines = realMap().countryOutline("FJI", {176, -19, -178, -15});
  ASSERT_FALSE(lines.empty());
  bool beyond = false;
  for (const GzmpLine& line : lines) {
    for (const GzmpPoint& point : line) {
      EXPECT_GT(point[1], 170);
      EXPECT_LT(point[1], 190);
      beyond = beyond || point[1] > 180.01F;
    }
  }
  EXPECT_TRUE(beyond);
}

TEST(CountryOutline, is_empty_where_the_country_is_not) {
  EXPECT_TRUE(realMap().countryOutline("SUI", {20, 0, 30, 10}).empty());
  EXPECT_TRUE(realMap().countryOutline("XXX", {-180, -90, 180, 90}).empty());
}

TEST(CountryOutline, around_a_border_both_countries_have_theirs) {
  const GzmpBox box{7, 47, 9, 48};
  const auto lines = outlinesAround(realMap(), box);
  const auto pointsOf = [&box](const char* code) {
    std::size_t points = 0;
    for (const GzmpLine& line : realMap().countryOutline(code, box)) points += line.size();
    return points;
  };
  std::size_t points = 0;
  for (const GzmpLine& line : lines) points += line.size();
  EXPECT_EQ(points, pointsOf("SUI") + pointsOf("D") + pointsOf("F"));
}

TEST(CountryOutline, around_a_place_at_sea_the_coasts_have_theirs) {
  EXPECT_FALSE(outlinesAround(realMap(), {0.5, 50.5, 2.0, 51.5}).empty());
  EXPECT_TRUE(outlinesAround(realMap(), {-31, -31, -30, -30}).empty());
}

}  // namespace
}  // namespace zamo
