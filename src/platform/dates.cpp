#include "platform/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

const Message kHourFrom("a start of operation whose hour is refused",
                        " where the first 2 digits HH should [0,23]\r\n");
const Message kHourTo("an end of operation whose hour is refused",
                      " where the first 2 digits HH should [1,24]\r\n");
const Message kMinute("a time of operation whose minute is refused",
                      " where the last 2 digits MM should [0,59]\r\n");

int wholeNumber(std::string_view digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

std::optional<Date> dateOf(std::string_view year, std::string_view month, std::string_view day) {
  const auto shortNumber = [](std::string_view part) { return part.size() == 1 || part.size() == 2; };
  if (year.size() != 4 || !shortNumber(month) || !shortNumber(day)) return {};
  if (!isAllDigits(year) || !isAllDigits(month) || !isAllDigits(day)) return {};
  const Date date{std::chrono::year(wholeNumber(year)),
                  std::chrono::month(static_cast<unsigned>(wholeNumber(month))),
                  std::chrono::day(static_cast<unsigned>(wholeNumber(day)))};
  if (!date.ok() || date.year() < std::chrono::year(1)) return {};
  return date;
}

bool checkHour(std::string_view hhmm, int firstHour, int lastHour, int lowest, int highest,
               const Message& hourMessage, std::string& message) {
  const double hour = leadingNumber(characters(hhmm, 1, 2));
  const double minute = leadingNumber(characters(hhmm, 3, 4));
  const double value = leadingNumber(hhmm);
  const bool hourGood = hour >= firstHour && hour <= lastHour;
  const bool minuteGood = minute >= 0 && minute <= 59;
  if (!hourGood) message += hourMessage.words();
  if (!minuteGood) message += kMinute.words();
  return hourGood && minuteGood && value >= lowest && value <= highest;
}

}  // namespace

std::optional<Date> parseDate(std::string_view text) {
  const std::size_t first = text.find_first_of("-/.");
  if (first == std::string_view::npos) return {};
  const std::size_t second = text.find(text[first], first + 1);
  if (second == std::string_view::npos) return {};
  const std::string_view head = text.substr(0, first);
  const std::string_view middle = text.substr(first + 1, second - first - 1);
  const std::string_view tail = text.substr(second + 1);
  return head.size() == 4 ? dateOf(head, middle, tail) : dateOf(tail, middle, head);
}

std::string shortDateText(const Date& date) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text.data();
}

std::string timeText(const DateTime& moment) {
  return padTo2(std::to_string(moment.hour)) + ":" + padTo2(std::to_string(moment.minute)) + ":" +
         padTo2(std::to_string(moment.second));
}

std::string timeStamp(const DateTime& moment) {
  return std::to_string(moment.hour) + ":" + std::to_string(moment.minute) + ":" +
         std::to_string(moment.second);
}

Date addMonths(const Date& date, int months) {
  const Date later = date + std::chrono::months(months);
  return later.ok() ? later : Date(later.year() / later.month() / std::chrono::last);
}

std::string getDateSeparator() {
  return "-";
}

std::string normalizeDate(std::string_view text) {
  std::string slashed(text);
  std::replace(slashed.begin(), slashed.end(), getDateSeparator().front(), '/');
  const std::optional<Date> date = parseDate(slashed);
  if (!date) return std::string(text);
  std::array<char, 32> result;
  std::snprintf(result.data(), result.size(), "%02u.%02u.%04d", static_cast<unsigned>(date->day()),
                static_cast<unsigned>(date->month()), static_cast<int>(date->year()));
  return result.data();
}

void splitDate(std::string_view text, std::string& day, std::string& month, std::string& year) {
  const std::size_t first = text.find('.');
  const std::size_t second = first == std::string_view::npos ? first : text.find('.', first + 1);
  if (second == std::string_view::npos) return;
  day = text.substr(0, first);
  month = text.substr(first + 1, second - first - 1);
  year = text.substr(second + 1);
}

bool isValidDay(int day) {
  return day >= 1 && day <= 31;
}

bool isValidMonth(int month) {
  return month >= 1 && month <= 12;
}

bool isValidYear(int year, int presentYear) {
  return year >= presentYear - 2 && year <= presentYear + 1;
}

bool isYear2000OrLater(int year) {
  return year >= 2000;
}

bool checkHourFrom(std::string_view hhmm, std::string& message) {
  return checkHour(hhmm, 0, 23, 0, 2359, kHourFrom, message);
}

bool checkHourTo(std::string_view hhmm, std::string& message) {
  return checkHour(hhmm, 1, 24, 1, 2400, kHourTo, message);
}

}  // namespace zamo
