#include "database/kept_copies.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "database/files_beside.h"
#include "platform/file_hold.h"
#include "platform/files.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostCopies = 10;

// Behind the name of the database: a digit for each 0.
constexpr std::string_view kPattern = " 0000-00-00 000000.mdb";

std::string copyName(const std::string& database, const DateTime& time) {
  std::array<char, 64> stamp{};
  std::snprintf(stamp.data(), stamp.size(), " %04d-%02u-%02u %02d%02d%02d.mdb",
                static_cast<int>(time.date.year()), static_cast<unsigned>(time.date.month()),
                static_cast<unsigned>(time.date.day()), time.hour, time.minute, time.second);
  return baseOf(database) + stamp.data();
}

DateTime nextSecond(const DateTime& time) {
  using namespace std::chrono;
  const seconds sum = sys_days(time.date).time_since_epoch() + hours(time.hour) + minutes(time.minute) +
                      seconds(time.second + 1);
  const days day = floor<days>(sum);
  const hh_mm_ss<seconds> clock(sum - day);
  return {year_month_day(sys_days(day)), static_cast<int>(clock.hours().count()),
          static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count())};
}

// The newest first.
std::vector<std::string> copiesOf(const std::string& database) {
  const std::string name = fs::path(database).filename().string();
  std::vector<std::string> copies;
  std::error_code failed;
  for (const fs::directory_entry& entry : fs::directory_iterator(folderOf(database), failed)) {
    std::error_code unknown;
    if (isCopyName(entry.path().filename().string(), name) && entry.is_regular_file(unknown))
      copies.push_back(entry.path().string());
  }
  std::sort(copies.begin(), copies.end(), std::greater<>());
  return copies;
}

}  // namespace

bool isCopyName(std::string_view name, std::string_view database) {
  const std::string base = baseOf(database);
  if (!name.starts_with(base) || name.size() != base.size() + kPattern.size()) return false;
  return std::equal(
      kPattern.begin(), kPattern.end(), name.begin() + static_cast<std::ptrdiff_t>(base.size()),
      [](char wanted, char given) { return wanted == '0' ? given >= '0' && given <= '9' : given == wanted; });
}

void removeCopy(const std::string& copy) {
  if (copy.empty()) return;
  try {
    removeFile(copy);
  } catch (const RunTimeError&) {
    // Its name tells what it is.
  }
}

std::string keepCopy(const std::string& database, const DateTime& now) {
  DateTime time = now;
  while (fileExists(copyName(database, time))) time = nextSecond(time);
  const std::string path = copyName(database, time);
  NewFile copy(path);
  copy.writeCopyOf(database);
  copy.close();
  copy.takePlace();
  return path;
}

void removeOldCopies(const std::string& database) {
  const std::vector<std::string> copies = copiesOf(database);
  for (std::size_t i = kMostCopies; i < copies.size(); ++i) {
    try {
      if (SoleUse(copies[i]).ask()) continue;
      removeFile(copies[i]);
    } catch (const RunTimeError&) {
      // It stays until the next time.
    }
  }
}

}  // namespace zamo
