#include "noticefile/writer_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace zamo {
namespace {

TEST(KeyLine, begins_with_the_line_end) {
  EXPECT_EQ(makeKeyLine("t_adm", "F"), "\r\nt_adm = F");
  EXPECT_EQ(makeKeyLine("Notice No", "12"), "\r\nNotice No = 12");
}

TEST(KeyLine, is_empty_without_a_value_or_a_key) {
  EXPECT_EQ(makeKeyLine("t_adm", ""), "");
  EXPECT_EQ(makeKeyLine("", "F"), "");
  EXPECT_EQ(makeKeyLine("", ""), "");
}

TEST(KeyLine, takes_key_and_value_as_they_stand) {
  EXPECT_EQ(makeKeyLine("T_Adm", " a = b\251 "), "\r\nT_Adm =  a = b\251 ");
}

TEST(Section, stands_between_its_tags_with_a_line_end_before_the_closing_one) {
  EXPECT_EQ(makeSection("POINT", "\r\nt_lat = +4705"), "<POINT>\r\nt_lat = +4705\r\n</POINT>");
}

TEST(Section, puts_its_opening_tag_alone_in_upper_case) {
  EXPECT_EQ(makeSection("Coord\351", "\r\nt_adm = d"), "<COORD\311>\r\nt_adm = d\r\n</Coord\351>");
}

TEST(Section, is_empty_without_a_body_or_a_tag) {
  EXPECT_EQ(makeSection("COORD", ""), "");
  EXPECT_EQ(makeSection("", "\r\nt_adm = F"), "");
  EXPECT_EQ(makeSection("", ""), "");
}

TEST(TailSection, tells_the_number_of_notices_and_ends_in_a_line_end) {
  EXPECT_EQ(makeTailSection(1), "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n");
  EXPECT_EQ(makeTailSection(std::numeric_limits<std::int32_t>::max()),
            "<TAIL>\r\nt_num_notices = 2147483647\r\n</TAIL>\r\n");
}

TEST(TailSection, is_empty_below_one_notice) {
  EXPECT_EQ(makeTailSection(0), "");
  EXPECT_EQ(makeTailSection(-1), "");
}

TEST(DateText, joins_year_month_and_day) {
  EXPECT_EQ(makeDateText("2009", "02", "01"), "2009-02-01");
  EXPECT_EQ(makeDateText("9", "2", "1"), "9-2-1");
}

TEST(DateText, is_empty_when_any_part_is) {
  EXPECT_EQ(makeDateText("", "02", "01"), "");
  EXPECT_EQ(makeDateText("2009", "", "01"), "");
  EXPECT_EQ(makeDateText("2009", "02", ""), "");
}

TEST(CoordText, pads_degrees_by_hemisphere_and_takes_the_sign_from_it) {
  EXPECT_EQ(makeCoordText("2", "24", "10", "E"), "+0022410");
  EXPECT_EQ(makeCoordText("2", "24", "10", "W"), "-0022410");
  EXPECT_EQ(makeCoordText("2", "24", "10", "N"), "+022410");
  EXPECT_EQ(makeCoordText("2", "24", "10", "S"), "-022410");
}

TEST(CoordText, takes_the_hemisphere_in_any_case) {
  EXPECT_EQ(makeCoordText("179", "59", "59", "e"), "+1795959");
  EXPECT_EQ(makeCoordText("179", "59", "59", "w"), "-1795959");
  EXPECT_EQ(makeCoordText("89", "59", "59", "n"), "+895959");
  EXPECT_EQ(makeCoordText("89", "59", "59", "s"), "-895959");
}

TEST(CoordText, gives_two_zeros_for_missing_seconds) {
  EXPECT_EQ(makeCoordText("7", "5", "", "E"), "+0070500");
  EXPECT_EQ(makeCoordText("7", "5", "", "S"), "-070500");
}

TEST(CoordText, leaves_parts_that_are_too_long_as_they_are) {
  EXPECT_EQ(makeCoordText("1234", "567", "890", "E"), "+1234567890");
  EXPECT_EQ(makeCoordText("123", "567", "890", "N"), "+123567890");
}

TEST(CoordText, is_empty_without_degrees_or_minutes) {
  EXPECT_EQ(makeCoordText("", "5", "10", "E"), "");
  EXPECT_EQ(makeCoordText("7", "", "10", "E"), "");
}

TEST(CoordText, is_empty_for_any_other_hemisphere) {
  EXPECT_EQ(makeCoordText("7", "5", "10", ""), "");
  EXPECT_EQ(makeCoordText("7", "5", "10", "X"), "");
  EXPECT_EQ(makeCoordText("7", "5", "10", "EW"), "");
}

TEST(TimeText, puts_a_colon_between_hours_and_minutes) {
  EXPECT_EQ(makeTimeText("0630"), "06:30");
  EXPECT_EQ(makeTimeText("1200"), "12:00");
  EXPECT_EQ(makeTimeText("2400"), "24:00");
}

TEST(TimeText, fills_what_is_missing_with_zeros) {
  EXPECT_EQ(makeTimeText("9"), "09:00");
  EXPECT_EQ(makeTimeText("12"), "12:00");
}

TEST(TimeText, takes_a_lone_third_character_and_drops_what_follows_the_fourth) {
  EXPECT_EQ(makeTimeText("123"), "12:3");
  EXPECT_EQ(makeTimeText("123456"), "12:34");
}

TEST(TimeText, is_empty_for_an_empty_text) {
  EXPECT_EQ(makeTimeText(""), "");
}

}  // namespace
}  // namespace zamo
