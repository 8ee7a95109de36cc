#include "platform/dates.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

Date day(int year, unsigned month, unsigned dayOfMonth) {
  return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(dayOfMonth)};
}

struct DateText {
  const char* text;
  int year;
  unsigned month;
  unsigned day;
};

TEST(Dates, the_year_stands_first_or_last_behind_one_of_three_separators) {
  for (const DateText& given : {DateText{"2007-06-15", 2007, 6, 15}, DateText{"2007/06/15", 2007, 6, 15},
                                DateText{"2007.06.15", 2007, 6, 15}, DateText{"15-06-2007", 2007, 6, 15},
                                DateText{"15/06/2007", 2007, 6, 15}, DateText{"15.06.2007", 2007, 6, 15},
                                DateText{"2007-6-5", 2007, 6, 5}, DateText{"5.6.2007", 2007, 6, 5},
                                DateText{"2008-02-29", 2008, 2, 29}, DateText{"2000-02-29", 2000, 2, 29},
                                DateText{"1999-12-31", 1999, 12, 31}, DateText{"31.1.2007", 2007, 1, 31},
                                DateText{"9999-12-31", 9999, 12, 31}}) {
    EXPECT_EQ(parseDate(given.text), day(given.year, given.month, given.day)) << given.text;
  }
}

TEST(Dates, everything_else_is_no_date) {
  for (const char* text : {"",
                           " ",
                           "2007",
                           "2007-06",
                           "2007-06-",
                           "-06-15",
                           "2007--15",
                           "2007-06/15",
                           "2007/06-15",
                           "15.06-2007",
                           "2007 06 15",
                           "20070615",
                           "07-06-15",
                           "15.06.07",
                           "207-06-15",
                           "15.06.207",
                           "12007-06-15",
                           "2007-006-15",
                           "2007-06-015",
                           "2007-13-01",
                           "2007-00-01",
                           "2007-06-31",
                           "2007-06-00",
                           "2007-02-29",
                           "1900-02-29",
                           "06-2007-15",
                           "2007-06-2007",
                           "2007-06-15-",
                           "2007-06-15-01",
                           "-2007-06-15",
                           "2007-JUN-15",
                           "2007-a6-15",
                           "2007-06-1x",
                           "x007-06-15",
                           "2007- 6-15",
                           " 2007-06-15",
                           "2007-06-15 ",
                           "2007-06-15 10:00",
                           "+1-06-2007",
                           "2007,06,15"}) {
    EXPECT_FALSE(parseDate(text).has_value()) << text;
  }
}

TEST(Dates, the_short_date_has_four_two_and_two_digits) {
  EXPECT_EQ(shortDateText(day(2007, 6, 5)), "2007-06-05");
  EXPECT_EQ(shortDateText(day(2026, 12, 31)), "2026-12-31");
  EXPECT_EQ(getDateSeparator(), "-");
}

TEST(Dates, a_time_is_padded_and_a_time_stamp_is_not) {
  const DateTime moment{day(2007, 6, 5), 9, 5, 4};
  EXPECT_EQ(timeText(moment), "09:05:04");
  EXPECT_EQ(timeText({day(2007, 6, 5), 23, 59, 59}), "23:59:59");
  EXPECT_EQ(timeStamp(moment), "9:5:4");
}

TEST(Dates, adding_months_keeps_the_day_or_takes_the_last_of_the_month) {
  EXPECT_EQ(addMonths(day(2007, 6, 15), 3), day(2007, 9, 15));
  EXPECT_EQ(addMonths(day(2007, 11, 30), 3), day(2008, 2, 29));
  EXPECT_EQ(addMonths(day(2006, 11, 30), 3), day(2007, 2, 28));
  EXPECT_EQ(addMonths(day(2007, 1, 31), 1), day(2007, 2, 28));
  EXPECT_EQ(addMonths(day(2008, 1, 31), 1), day(2008, 2, 29));
  EXPECT_EQ(addMonths(day(2007, 3, 31), 1), day(2007, 4, 30));
  EXPECT_EQ(addMonths(day(2008, 2, 29), 12), day(2009, 2, 28));
  EXPECT_EQ(addMonths(day(2008, 2, 29), 48), day(2012, 2, 29));
  EXPECT_EQ(addMonths(day(2007, 12, 31), 1), day(2008, 1, 31));
  EXPECT_EQ(addMonths(day(2007, 6, 15), 0), day(2007, 6, 15));
  EXPECT_EQ(addMonths(day(2008, 3, 31), -1), day(2008, 2, 29));
  EXPECT_EQ(addMonths(day(2008, 1, 15), -1), day(2007, 12, 15));
}

TEST(Dates, normalizing_gives_day_month_year_with_full_stops) {
  EXPECT_EQ(normalizeDate("2007-06-05"), "05.06.2007");
  EXPECT_EQ(normalizeDate("2007/6/5"), "05.06.2007");
  EXPECT_EQ(normalizeDate("5.6.2007"), "05.06.2007");
  EXPECT_EQ(normalizeDate("05-06-2007"), "05.06.2007");
  EXPECT_EQ(normalizeDate("2007-06/05"), "05.06.2007");
  EXPECT_EQ(normalizeDate("1999-12-31"), "31.12.1999");
}

TEST(Dates, normalizing_leaves_what_is_no_date) {
  for (const char* text : {"", "soon", "2007-02-30", "20070605", "2007-06", "07-06-05", "2007.06-05"}) {
    EXPECT_EQ(normalizeDate(text), text);
  }
}

TEST(Dates, splitting_cuts_at_both_full_stops) {
  std::string dayText = "d";
  std::string month = "m";
  std::string year = "y";
  splitDate("05.06.2007", dayText, month, year);
  EXPECT_EQ(dayText, "05");
  EXPECT_EQ(month, "06");
  EXPECT_EQ(year, "2007");
}

TEST(Dates, splitting_without_a_full_stop_leaves_the_three_untouched) {
  for (const char* text : {"", "2007-06-05"}) {
    std::string dayText = "d";
    std::string month = "m";
    std::string year = "y";
    splitDate(text, dayText, month, year);
    EXPECT_EQ(dayText + month + year, "dmy") << text;
  }
}

TEST(DateChecks, days_run_to_31_and_months_to_12) {
  EXPECT_FALSE(isValidDay(0));
  EXPECT_TRUE(isValidDay(1));
  EXPECT_TRUE(isValidDay(31));
  EXPECT_FALSE(isValidDay(32));
  EXPECT_FALSE(isValidDay(-1));
  EXPECT_FALSE(isValidMonth(0));
  EXPECT_TRUE(isValidMonth(1));
  EXPECT_TRUE(isValidMonth(12));
  EXPECT_FALSE(isValidMonth(13));
}

TEST(DateChecks, a_year_is_valid_from_two_before_to_one_after_the_present) {
  EXPECT_FALSE(isValidYear(2023, 2026));
  EXPECT_TRUE(isValidYear(2024, 2026));
  EXPECT_TRUE(isValidYear(2026, 2026));
  EXPECT_TRUE(isValidYear(2027, 2026));
  EXPECT_FALSE(isValidYear(2028, 2026));
}

TEST(DateChecks, the_year_2000_is_2000_or_later) {
  EXPECT_FALSE(isYear2000OrLater(1999));
  EXPECT_TRUE(isYear2000OrLater(2000));
  EXPECT_TRUE(isYear2000OrLater(2030));
}

struct HourCase {
  const char* hhmm;
  bool good;
  const char* message;
};

TEST(HourChecks, operation_starts_between_0000_and_2359) {
  for (const HourCase& given : {
           HourCase{"0000", true, ""},
           HourCase{"0059", true, ""},
           HourCase{"0630", true, ""},
           HourCase{"2359", true, ""},
           HourCase{"2400", false, " where the first 2 digits HH should [0,23]\r\n"},
           HourCase{"2430", false, " where the first 2 digits HH should [0,23]\r\n"},
           HourCase{"2360", false, " where the last 2 digits MM should [0,59]\r\n"},
           HourCase{"0060", false, " where the last 2 digits MM should [0,59]\r\n"},
           HourCase{
               "2460", false,
               " where the first 2 digits HH should [0,23]\r\n where the last 2 digits MM should [0,59]\r\n"},
       }) {
    std::string message;
    EXPECT_EQ(checkHourFrom(given.hhmm, message), given.good) << given.hhmm;
    EXPECT_EQ(message, given.message) << given.hhmm;
  }
}

TEST(HourChecks, operation_stops_between_0100_and_2400) {
  for (const HourCase& given : {
           HourCase{"0100", true, ""},
           HourCase{"1259", true, ""},
           HourCase{"2359", true, ""},
           HourCase{"2400", true, ""},
           HourCase{"0000", false, " where the first 2 digits HH should [1,24]\r\n"},
           HourCase{"0001", false, " where the first 2 digits HH should [1,24]\r\n"},
           HourCase{"0059", false, " where the first 2 digits HH should [1,24]\r\n"},
           HourCase{"2500", false, " where the first 2 digits HH should [1,24]\r\n"},
           HourCase{"1260", false, " where the last 2 digits MM should [0,59]\r\n"},
           HourCase{
               "2599", false,
               " where the first 2 digits HH should [1,24]\r\n where the last 2 digits MM should [0,59]\r\n"},
       }) {
    std::string message;
    EXPECT_EQ(checkHourTo(given.hhmm, message), given.good) << given.hhmm;
    EXPECT_EQ(message, given.message) << given.hhmm;
  }
}

TEST(HourChecks, half_past_24_is_refused_without_a_word) {
  std::string message;
  EXPECT_FALSE(checkHourTo("2430", message));
  EXPECT_EQ(message, "");
}

}  // namespace
}  // namespace zamo
