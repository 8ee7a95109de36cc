#include "platform/coordinates.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

TEST(Coordinates, a_longitude_is_cut_at_fixed_places) {
  EXPECT_EQ(longDeg("+0301020"), "030");
  EXPECT_EQ(longMin("+0301020"), "10");
  EXPECT_EQ(longSec("+0301020"), "20");
  EXPECT_EQ(longDeg("-17959"), "179");
  EXPECT_EQ(longMin("-17959"), "59");
}

TEST(Coordinates, a_latitude_is_cut_at_fixed_places) {
  EXPECT_EQ(latDeg("+461530"), "46");
  EXPECT_EQ(latMin("+461530"), "15");
  EXPECT_EQ(latSec("+461530"), "30");
  EXPECT_EQ(latDeg("-4615"), "46");
  EXPECT_EQ(latMin("-4615"), "15");
}

TEST(Coordinates, seconds_are_empty_when_the_value_has_none) {
  EXPECT_EQ(longSec("+03010"), "");
  EXPECT_EQ(longSec("+030102"), "");
  EXPECT_EQ(latSec("+4615"), "");
  EXPECT_EQ(latSec("+46153"), "3");
}

TEST(Coordinates, short_values_give_what_they_have) {
  EXPECT_EQ(longDeg("+03"), "03");
  EXPECT_EQ(longMin("+030"), "");
  EXPECT_EQ(longSec(""), "");
  EXPECT_EQ(latDeg(""), "");
  EXPECT_EQ(latMin("+461"), "1");
  EXPECT_EQ(latSec("+"), "");
}

TEST(Coordinates, only_a_plus_is_east_and_only_a_minus_is_south) {
  EXPECT_EQ(longHemisphere("+0301020"), "E");
  EXPECT_EQ(longHemisphere("-0301020"), "W");
  EXPECT_EQ(longHemisphere("X0301020"), "W");
  EXPECT_EQ(longHemisphere(""), "W");
  EXPECT_EQ(latHemisphere("-461530"), "S");
  EXPECT_EQ(latHemisphere("+461530"), "N");
  EXPECT_EQ(latHemisphere("X461530"), "N");
  EXPECT_EQ(latHemisphere(""), "N");
}

TEST(Coordinates, the_key_of_a_pair_has_the_latitude_first) {
  EXPECT_EQ(coordKeyText("+0071234", "+465758"), "465758N0071234E");
  EXPECT_EQ(coordKeyText("-0713001", "-333002"), "333002S0713001W");
}

TEST(Coordinates, the_key_of_a_pair_writes_missing_seconds_as_zeros) {
  EXPECT_EQ(coordKeyText("+00712", "+4657"), "465700N0071200E");
  EXPECT_EQ(coordKeyText("+0071234", "+4657"), "465700N0071234E");
  EXPECT_EQ(coordKeyText("-00712", "-465758"), "465758S0071200W");
}

TEST(Times, the_colon_is_taken_out) {
  EXPECT_EQ(stripTimeColon("06:30"), "0630");
  EXPECT_EQ(stripTimeColon("0630"), "0630");
  EXPECT_EQ(stripTimeColon("06:30:59"), "0630");
  EXPECT_EQ(stripTimeColon("063059"), "0630");
  EXPECT_EQ(stripTimeColon("6:30"), "6:0");
  EXPECT_EQ(stripTimeColon("630"), "630");
  EXPECT_EQ(stripTimeColon(""), "");
}

TEST(Conversions, degrees_are_in_single_precision) {
  static_assert(std::is_same_v<decltype(dmsToDegrees(0, 0, 0)), float>);
  EXPECT_EQ(dmsToDegrees(46, 30, 0), 46.5F);
  EXPECT_EQ(dmsToDegrees(7, 15, 0), 7.25F);
  EXPECT_EQ(dmsToDegrees(0, 0, 0), 0.0F);
  EXPECT_EQ(dmsToDegrees(-5, 30, 0), -4.5F);
  EXPECT_FLOAT_EQ(dmsToDegrees(46, 57, 58), 46.966111F);
  EXPECT_FLOAT_EQ(dmsToDegrees(0, 0, 36), 0.01F);
}

TEST(Conversions, degrees_are_rounded_to_single_precision_once) {
  int different = 0;
  for (int degrees = 0; degrees < 180; ++degrees) {
    for (int minutes = 0; minutes < 60; ++minutes) {
      for (int seconds = 0; seconds < 60; ++seconds) {
        const auto exact = static_cast<float>((seconds / 60.0 + minutes) / 60.0 + degrees);
        if (dmsToDegrees(degrees, minutes, seconds) != exact) ++different;
      }
    }
  }
  EXPECT_EQ(different, 0);
}

TEST(Conversions, radians_use_the_constant_of_the_columns) {
  EXPECT_EQ(dmsToRadians("180", "0", "0", "E"), 3.141592653589);
  EXPECT_EQ(dmsToRadians("090", "00", "00", "N"), 90 * 3.141592653589 / 180);
  EXPECT_DOUBLE_EQ(dmsToRadians("007", "30", "36", "E"), 7.51 * 3.141592653589 / 180);
  EXPECT_EQ(dmsToRadians("010", "30", "", "E"), 10.5 * 3.141592653589 / 180);
  EXPECT_EQ(dmsToRadians("", "", "", ""), 0.0);
}

TEST(Conversions, west_and_south_negate_in_any_case) {
  const double east = dmsToRadians("012", "34", "56", "E");
  EXPECT_GT(east, 0.0);
  EXPECT_EQ(dmsToRadians("012", "34", "56", "e"), east);
  EXPECT_EQ(dmsToRadians("012", "34", "56", "N"), east);
  EXPECT_EQ(dmsToRadians("012", "34", "56", "n"), east);
  for (const char* hemisphere : {"W", "w", "S", "s"}) {
    EXPECT_EQ(dmsToRadians("012", "34", "56", hemisphere), -east) << hemisphere;
  }
}

TEST(Checks, hemisphere_letters_pass_in_any_case) {
  for (const char* letter : {"E", "W", "e", "w"}) {
    EXPECT_TRUE(isEastWest(letter)) << letter;
    EXPECT_FALSE(isNorthSouth(letter)) << letter;
  }
  for (const char* letter : {"N", "S", "n", "s"}) {
    EXPECT_TRUE(isNorthSouth(letter)) << letter;
    EXPECT_FALSE(isEastWest(letter)) << letter;
  }
  for (const char* other : {"", " ", "EW", "NS", "X", "+"}) {
    EXPECT_FALSE(isEastWest(other)) << other;
    EXPECT_FALSE(isNorthSouth(other)) << other;
  }
}

}  // namespace
}  // namespace zamo
