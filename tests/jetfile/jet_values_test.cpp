#include "jetfile/jet_values.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zamo {
namespace {

using namespace std::string_view_literals;

TEST(JetText, behind_its_mark_takes_a_byte_for_a_character) {
  EXPECT_EQ(jetText("\xFF\xFE"sv), u"");
  EXPECT_EQ(jetText("\xFF\xFE"
                    "caf\xE9"sv),
            u"caf\u00E9");
}

TEST(JetText, takes_two_bytes_between_two_zeros) {
  EXPECT_EQ(jetText("\xFF\xFE"
                    "a\0\x1C\x04\x38\x04\0b"sv),
            u"a\u041C\u0438b");
  // A letter of the first kind among those of the second one.
  EXPECT_EQ(jetText("\xFF\xFE\0\x1C\x04\x20\x00\x38\x04"sv), u"\u041C \u0438");
  EXPECT_EQ(jetText("\xFF\xFE\0\x1C"sv), std::nullopt);
}

TEST(JetText, without_its_mark_takes_two_bytes) {
  EXPECT_EQ(jetText(""sv), u"");
  EXPECT_EQ(jetText("a\0\x1C\x04"sv), u"a\u041C");
  EXPECT_EQ(jetText("\x34\xD8\x1E\xDD"sv), u"\U0001D11E");
  EXPECT_EQ(jetText("a\0b"sv), std::nullopt);
}

std::string decimalBytes(bool negative, std::uint32_t high, std::uint32_t low) {
  std::string bytes(17, '\0');
  bytes[0] = negative ? '\x80' : '\0';
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[9 + i] = static_cast<char>(high >> (8 * i));
    bytes[13 + i] = static_cast<char>(low >> (8 * i));
  }
  return bytes;
}

std::string decimal(bool negative, std::uint32_t high, std::uint32_t low, int scale) {
  const std::optional<JetDecimal> result = jetDecimal(decimalBytes(negative, high, low), scale);
  return result ? result->digits : "none";
}

TEST(JetDecimal, has_its_point_by_the_scale) {
  EXPECT_EQ(decimal(false, 0, 0, 6), "0");
  EXPECT_EQ(decimal(true, 0, 0, 6), "0");
  EXPECT_EQ(decimal(false, 0, 17664, 2), "176.64");
  EXPECT_EQ(decimal(true, 0, 1, 6), "-0.000001");
  EXPECT_EQ(decimal(false, 0, 1500, 3), "1.5");
  EXPECT_EQ(decimal(false, 0, 1500, 0), "1500");
  EXPECT_EQ(decimal(false, 1, 0, 0), "4294967296");
  EXPECT_EQ(decimal(false, 0, 1, 28), "0.0000000000000000000000000001");
}

TEST(JetDecimal, of_another_size_or_scale_is_none) {
  EXPECT_EQ(decimal(false, 0, 1, 29), "none");
  EXPECT_EQ(decimal(false, 0, 1, -1), "none");
  EXPECT_EQ(jetDecimal(std::string(16, '\0'), 2), std::nullopt);
}

TEST(JetMoney, is_exact_at_both_ends) {
  EXPECT_EQ(jetMoney(0).digits, "0");
  EXPECT_EQ(jetMoney(-5000).digits, "-0.5");
  EXPECT_EQ(jetMoney(std::numeric_limits<std::int64_t>::max()).digits, "922337203685477.5807");
  EXPECT_EQ(jetMoney(std::numeric_limits<std::int64_t>::min()).digits, "-922337203685477.5808");
}

TEST(JetSingle, is_the_number_of_its_shortest_text) {
  EXPECT_EQ(jetSingle(176.64F), 176.64);
  EXPECT_EQ(jetSingle(-0.1F), -0.1);
  EXPECT_EQ(jetSingle(std::numeric_limits<float>::max()), 3.4028235e38);
}

std::string moment(double days) {
  const std::optional<DateTime> read = jetDateTime({days});
  return read ? shortDateText(read->date) + " " + timeText(*read) : "none";
}

TEST(JetDateTime, counts_the_time_forward_on_both_sides_of_day_0) {
  EXPECT_EQ(moment(0), "1899-12-30 00:00:00");
  EXPECT_EQ(moment(0.25), "1899-12-30 06:00:00");
  EXPECT_EQ(moment(-0.25), "1899-12-30 06:00:00");
  EXPECT_EQ(moment(-1.75), "1899-12-29 18:00:00");
  EXPECT_EQ(moment(38884), "2006-06-16 00:00:00");
}

TEST(JetDateTime, takes_the_last_half_second_of_a_day_for_the_next_day) {
  EXPECT_EQ(moment(38884 + 86399.4 / 86400), "2006-06-16 23:59:59");
  EXPECT_EQ(moment(38884 + 86399.9 / 86400), "2006-06-17 00:00:00");
  EXPECT_EQ(moment(-2 - 86399.9 / 86400), "1899-12-29 00:00:00");
}

TEST(JetDateTime, outside_of_the_years_100_to_9999_is_none) {
  EXPECT_EQ(moment(-657434), "0100-01-01 00:00:00");
  EXPECT_EQ(moment(-657435), "none");
  EXPECT_EQ(moment(2958465.5), "9999-12-31 12:00:00");
  EXPECT_EQ(moment(2958465 + 86399.9 / 86400), "none");
  EXPECT_EQ(moment(2958466), "none");
  EXPECT_EQ(moment(std::nan("")), "none");
  EXPECT_EQ(moment(std::numeric_limits<double>::infinity()), "none");
}

}  // namespace
}  // namespace zamo
