#include "map/crossings.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

using Segments = std::vector<GzmpSegments>;

TEST(Crossings, a_triangle_has_none) {
  EXPECT_EQ(findCrossings({{50, 10}, {51, 10}, {50, 11}, {50, 10}}).segments, Segments());
  EXPECT_EQ(findCrossings({{50, 10}, {51, 10}, {50, 11}}).segments, Segments());
}

TEST(Crossings, a_figure_of_eight_names_its_two_segments) {
  const auto found = findCrossings({{50, 10}, {51, 11}, {51, 10}, {50, 11}, {50, 10}});
  EXPECT_EQ(found.segments, (Segments{{1, 3}}));
  ASSERT_EQ(found.places.size(), 1U);
  EXPECT_FLOAT_EQ(found.places[0][0], 50.5);
  EXPECT_FLOAT_EQ(found.places[0][1], 10.5);
  EXPECT_EQ(found.status, 0);
}

TEST(Crossings, equal_points_that_follow_each_other_count) {
  EXPECT_EQ(findCrossings({{50, 10}, {51, 10}, {51, 10}, {50, 11}, {50, 10}}).segments, (Segments{{1, 3}}));
}

TEST(Crossings, a_last_segment_without_length_counts) {
  EXPECT_EQ(findCrossings({{50, 10}, {51, 10}, {50, 11}, {50, 10}, {50, 10}}).segments, (Segments{{1, 3}}));
}

TEST(Crossings, a_corner_on_another_segment_counts_for_both_its_sides) {
  EXPECT_EQ(findCrossings({{50, 10}, {50, 14}, {52, 14}, {50, 12}, {52, 10}, {50, 10}}).segments,
            (Segments{{1, 3}, {1, 4}}));
}

TEST(Crossings, segments_on_one_line_that_do_not_overlap_do_not_count) {
  EXPECT_EQ(
      findCrossings({{50, 10}, {50, 11}, {51, 11.5F}, {50, 12}, {50, 13}, {49, 11.5F}, {50, 10}}).segments,
      Segments());
}

TEST(Crossings, a_polygon_across_the_antimeridian_is_no_larger_for_it) {
  EXPECT_EQ(findCrossings({{-16, 179}, {-16, -179}, {-17, -179}, {-17, 179}, {-16, 179}}).segments,
            Segments());
  EXPECT_EQ(findCrossings({{-16, 179}, {-17, -179}, {-16, -179}, {-17, 179}, {-16, 179}}).segments,
            (Segments{{1, 3}}));
}

TEST(Crossings, too_few_points_have_none) {
  EXPECT_EQ(findCrossings({}).segments, Segments());
  EXPECT_EQ(findCrossings({{50, 10}}).segments, Segments());
  EXPECT_EQ(findCrossings({{50, 10}, {51, 10}, {50, 10}}).segments, Segments());
}

TEST(Crossings, equal_points_of_a_triangle_count_too) {
  const GzmpPoint a = {50, 10};
  const GzmpPoint b = {51, 10};
  EXPECT_EQ(findCrossings({a, a, b}).segments, (Segments{{1, 2}}));
  EXPECT_EQ(findCrossings({a, b, b}).segments, (Segments{{2, 3}}));
  EXPECT_EQ(findCrossings({a, a, a}).segments, (Segments{{1, 2}}));
}

TEST(Crossings, a_ring_of_a_hundred_points_has_none) {
  std::vector<GzmpPoint> points;
  for (int i = 0; i < 50; ++i) points.push_back({50, static_cast<float>(10 + i * 0.01)});
  for (int i = 49; i >= 0; --i) points.push_back({51, static_cast<float>(10 + i * 0.01)});
  EXPECT_EQ(findCrossings(points).segments, Segments());
}

}  // namespace
}  // namespace zamo
