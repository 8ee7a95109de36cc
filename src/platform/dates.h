// Calendar dates and times of day as text, and the checks on their parts.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace zamo {

using Date = std::chrono::year_month_day;

struct DateTime {
  Date date{};
  int hour = 0;
  int minute = 0;
  int second = 0;
};

// Reads three numbers joined by one and the same of "-", "/", ".": year first when it has four digits, year
// last otherwise; day and month have one or two digits. Nothing when that isn't a day of the calendar.
std::optional<Date> parseDate(std::string_view text);

// The system's short date, YYYY-MM-DD.
std::string shortDateText(const Date& date);

// The system's time of day, HH:MM:SS.
std::string timeText(const DateTime& moment);

// Hours, minutes and seconds joined by colons, none of them padded.
std::string timeStamp(const DateTime& moment);

// The same day some months on, or the last day of that month when it has no such day.
Date addMonths(const Date& date, int months);

// The separator of the system's short date.
std::string getDateSeparator();

// A date in the system's form as dd.mm.yyyy; an empty text, and one that is no date, as it is.
std::string normalizeDate(std::string_view text);

// Cuts dd.mm.yyyy at its two full stops. Without both of them the three stay untouched.
void splitDate(std::string_view text, std::string& day, std::string& month, std::string& year);

bool isValidDay(int day);
bool isValidMonth(int month);
bool isValidYear(int year, int presentYear);
bool isYear2000OrLater(int year);

// Whether HHMM is a time at which operation can start (0000 to 2359) or stop (0001 to 2400). A refused hour
// or minute is told in `message`, which is left alone otherwise.
bool checkHourFrom(std::string_view hhmm, std::string& message);
bool checkHourTo(std::string_view hhmm, std::string& message);

}  // namespace zamo
