#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace zamo {
namespace {

TEST(NumericText, takes_sign_point_exponent_and_blanks_around) {
  for (const char* text : {"0",      "474",
                           "007",    "+1",
                           "-1",     "176.64",
                           "-0.5",   ".5",
                           "5.",     "+.5",
                           "-5.",    "1e3",
                           "1E3",    "1e+3",
                           "1E-3",   "1.5e10",
                           ".5e1",   "5.e1",
                           "  12  ", " -3.5 ",
                           "1e999",  "123456789012345678901234567890"}) {
    EXPECT_TRUE(isNumericText(text)) << text;
  }
}

TEST(NumericText, refuses_everything_else) {
  for (const char* text :
       {"",      " ",     ".",   "+",   "-",   "-.",  "e5",   "1e",    "1e+",   "1e1.5", "1,5",
        "1.2.3", "--1",   "+-1", "1-",  "- 1", "1 2", "1e 3", "12a",   "a12",   "0x10",  "&H10",
        "$5",    "\2425", "1d3", "inf", "nan", "\t1", "1\t",  "1_000", "1'000", "\262",  "(5)"}) {
    EXPECT_FALSE(isNumericText(text)) << text;
  }
}

TEST(LeadingNumber, takes_the_longest_head_that_is_a_number) {
  EXPECT_EQ(leadingNumber("474"), 474.0);
  EXPECT_EQ(leadingNumber("176.64 MHz"), 176.64);
  EXPECT_EQ(leadingNumber("-0.5"), -0.5);
  EXPECT_EQ(leadingNumber("+7"), 7.0);
  EXPECT_EQ(leadingNumber(".5x"), 0.5);
  EXPECT_EQ(leadingNumber("5."), 5.0);
  EXPECT_EQ(leadingNumber("12,5"), 12.0);
  EXPECT_EQ(leadingNumber("1.2.3"), 1.2);
  EXPECT_EQ(leadingNumber("010"), 10.0);
  EXPECT_EQ(leadingNumber("0x10"), 0.0);
}

TEST(LeadingNumber, is_the_nearest_double_whatever_the_length) {
  std::mt19937 random(19);
  const auto below = [&random](int bound) {
    return std::uniform_int_distribution<int>(0, bound - 1)(random);
  };
  for (int round = 0; round < 100'000; ++round) {
    std::string text;
    if (below(3) == 0) text += below(2) == 0 ? '-' : '+';
    const int digits = 1 + below(19);
    const int pointAt = below(2) == 0 ? below(digits + 1) : -1;
    for (int i = 0; i < digits; ++i) {
      if (i == pointAt) text += '.';
      text += static_cast<char>('0' + below(10));
    }
    // What it is behind an exponent of 0 is the library's business.
    EXPECT_EQ(leadingNumber(text), leadingNumber(text + "e0")) << text;
    EXPECT_EQ(leadingNumber(text), std::strtod(text.c_str(), nullptr)) << text;
    EXPECT_TRUE(isNumericText(text)) << text;
  }
  EXPECT_TRUE(std::signbit(leadingNumber("-0")));
  EXPECT_FALSE(std::signbit(leadingNumber("+0")));
}

TEST(LeadingNumber, is_zero_where_no_number_stands) {
  for (const char* text : {"", " ", "abc", ".", "-", "+", "-.", "e5", "x1", ",5"}) {
    EXPECT_EQ(leadingNumber(text), 0.0) << text;
  }
}

TEST(LeadingNumber, passes_over_blanks_and_tabs_wherever_they_stand) {
  EXPECT_EQ(leadingNumber("  1 2 3  "), 123.0);
  EXPECT_EQ(leadingNumber("\t4\t7 4"), 474.0);
  EXPECT_EQ(leadingNumber("- 1 . 5"), -1.5);
  EXPECT_EQ(leadingNumber("1 e 3"), 1000.0);
  EXPECT_EQ(leadingNumber("1 2 a 3"), 12.0);
}

TEST(LeadingNumber, reads_exponents_and_leaves_half_ones) {
  EXPECT_EQ(leadingNumber("1e3"), 1000.0);
  EXPECT_EQ(leadingNumber("1E+3"), 1000.0);
  EXPECT_EQ(leadingNumber("25e-1"), 2.5);
  EXPECT_EQ(leadingNumber("5e"), 5.0);
  EXPECT_EQ(leadingNumber("5e+"), 5.0);
  EXPECT_EQ(leadingNumber("5ex"), 5.0);
  EXPECT_EQ(leadingNumber("5e1.5"), 50.0);
}

TEST(LeadingNumber, beyond_a_double_is_infinite_or_zero) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(leadingNumber("1e999"), infinity);
  EXPECT_EQ(leadingNumber("-1e999"), -infinity);
  EXPECT_EQ(leadingNumber("+1e999"), infinity);
  EXPECT_EQ(leadingNumber("1e-999"), 0.0);
  EXPECT_EQ(leadingNumber(std::string(400, '9')), infinity);
  EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(leadingNumber(std::string(400, '0') + "7"), 7.0);
  EXPECT_EQ(leadingNumber("1" + std::string(400, '0') + "e-50"), infinity);
  EXPECT_EQ(leadingNumber("0e999"), 0.0);
  EXPECT_EQ(leadingNumber("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(AllDigits, an_empty_text_passes) {
  EXPECT_TRUE(isAllDigits(""));
}

TEST(AllDigits, each_character_must_be_a_digit) {
  EXPECT_TRUE(isAllDigits("0"));
  EXPECT_TRUE(isAllDigits("0123456789"));
  for (const char* text : {" ", "1 ", "-1", "+1", "1.5", "1,5", "a", "12a", "\262", "\271"}) {
    EXPECT_FALSE(isAllDigits(text)) << text;
  }
}

TEST(AllDigits, yields_once_for_each_character) {
  int yields = 0;
  const Yield count = [&yields] { ++yields; };
  isAllDigits("", count);
  EXPECT_EQ(yields, 0);
  isAllDigits("12345", count);
  EXPECT_EQ(yields, 5);
  yields = 0;
  isAllDigits("abc", count);
  EXPECT_EQ(yields, 3);
}

TEST(NumberText, is_the_shortest_decimal_without_exponent) {
  EXPECT_EQ(numberText(474), "474");
  EXPECT_EQ(numberText(176.64), "176.64");
  EXPECT_EQ(numberText(-0.5), "-0.5");
  EXPECT_EQ(numberText(0), "0");
  EXPECT_EQ(numberText(0.1), "0.1");
  EXPECT_EQ(numberText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(numberText(1e21), "1000000000000000000000");
  EXPECT_EQ(numberText(1e-7), "0.0000001");
  EXPECT_EQ(numberText(-1e-7), "-0.0000001");
}

TEST(NumberText, reads_back_as_the_same_double) {
  for (const double value : {1.0 / 3, 2.0 / 3, 1e22, 1e23, 229.072, 0.1234567890123456, -99.99,
                             1.7976931348623157e308, 2.2250738585072014e-308, 3.141592653589 / 180}) {
    EXPECT_EQ(leadingNumber(numberText(value)), value) << numberText(value);
    EXPECT_EQ(numberText(value).find_first_of("eE"), std::string::npos) << numberText(value);
  }
}

TEST(NumberText, the_smallest_double_fits) {
  const double smallest = std::numeric_limits<double>::denorm_min();
  EXPECT_EQ(numberText(smallest), "0." + std::string(323, '0') + "5");
  EXPECT_EQ(numberText(-std::numeric_limits<double>::max()).size(), 310U);
}

}  // namespace
}  // namespace zamo
