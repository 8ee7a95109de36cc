// How a rule group tells its findings: a line "FATAL ERROR : " or "WARNING : ", and a line with label and
// message.
#pragma once

#include <string>
#include <string_view>

#include "model/fields.h"
#include "model/ntc_rec.h"
#include "platform/message.h"

namespace zamo {

// The findings of one rule group on one notice. A fatal one makes `good` false, a warning leaves it.
struct RuleReport {
  std::string& errs;
  std::string_view label;
  bool good = true;

  // Behind the label, and behind " : " unless the message begins with it.
  void fatal(const Message& message, std::initializer_list<std::string_view> values = {});
  void warning(const Message& message, std::initializer_list<std::string_view> values = {});
  // Directly behind the label, whatever the message begins with.
  void fatalGlued(const Message& message, std::initializer_list<std::string_view> values);
  // The same as fatal, with the words of a table's row.
  void fatalRow(std::string_view words);

 private:
  void add(std::string_view head, std::string_view gap, std::string_view message);
};

// Whether a field of a record is given.
using Given = bool (*)(const NtcRec&);

template <auto... Path>
inline constexpr Given isGiven = [](const NtcRec& ntc) { return !followMembers<Path...>(ntc).empty(); };
template <auto Member>
inline constexpr Given isGivenInDigital = isGiven<&NtcRec::digital, Member>;
template <auto Member>
inline constexpr Given isGivenInAllot = isGiven<&NtcRec::digital, &DigitalRec::allot, Member>;
template <auto Member>
inline constexpr Given isGivenInContour = isGiven<&NtcRec::digital, &DigitalRec::contour, Member>;

// A field that must be given, and the fatal message when it isn't.
struct MandatoryRow {
  Given given;
  std::string_view message;
};

// A field that may not be given. It is told as many times as `count` finds it, with `message` and the
// notice's type.
struct AbsentRow {
  int (*count)(const NtcRec&);
  std::string_view message;
};

template <Given given>
inline constexpr auto once = [](const NtcRec& ntc) { return given(ntc) ? 1 : 0; };

template <std::size_t Rows>
void demand(RuleReport& report, const NtcRec& ntc, const MandatoryRow (&rows)[Rows]) {
  for (const MandatoryRow& row : rows) {
    if (!row.given(ntc)) report.fatalRow(row.message);
  }
}

template <std::size_t Rows>
void forbid(RuleReport& report, const NtcRec& ntc, const AbsentRow (&rows)[Rows], std::string_view ending) {
  for (const AbsentRow& row : rows) {
    for (int left = row.count(ntc); left > 0; --left)
      report.fatalRow(std::string(row.message).append(ending));
  }
}

// Questions to a record that several groups ask.
// Any value in one of the three sections of azimuths.
bool hasAntHgt(const NtcRec& ntc);
bool hasAntDiagrH(const NtcRec& ntc);
bool hasAntDiagrV(const NtcRec& ntc);
// Any of the eight parts of the position, or of the four parts of one coordinate of the target.
bool hasPosition(const NtcRec& ntc);
bool hasTargetLong(const NtcRec& ntc);
bool hasTargetLat(const NtcRec& ntc);
bool hasCoord(const NtcRec& ntc);

int countGivenContourIds(const NtcRec& ntc);
int countPointsPresent(const NtcRec& ntc);
// The number of test points as a notice tells it, cut to a whole number; 0 for none.
double notifiedPoints(const NtcRec& ntc);
// The points present among those that the notified number counts.
int countNotifiedPointsPresent(const NtcRec& ntc);

// Within both bounds, read as the leading number.
bool isWithin(std::string_view text, double lowest, double highest);

}  // namespace zamo
