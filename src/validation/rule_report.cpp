#include "validation/rule_report.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

bool hasValue(const std::array<AzmValueRec, kAzimuths>& values) {
  return std::any_of(values.begin(), values.end(), [](const AzmValueRec& one) { return !one.value.empty(); });
}

std::string_view gapBefore(std::string_view message) {
  return message.starts_with(" : ") ? "" : " : ";
}

}  // namespace

void RuleReport::fatal(const Message& message, std::initializer_list<std::string_view> values) {
  fatalRow(message.filled(values));
}

void RuleReport::warning(const Message& message, std::initializer_list<std::string_view> values) {
  add("WARNING : \r\n", gapBefore(message.words()), message.filled(values));
}

void RuleReport::fatalGlued(const Message& message, std::initializer_list<std::string_view> values) {
  good = false;
  add("FATAL ERROR : \r\n", "", message.filled(values));
}

void RuleReport::fatalRow(std::string_view words) {
  good = false;
  add("FATAL ERROR : \r\n", gapBefore(words), words);
}

void RuleReport::add(std::string_view head, std::string_view gap, std::string_view message) {
  errs.append(head).append(label).append(gap).append(message).append(kLineEnd);
}

bool hasAntHgt(const NtcRec& ntc) {
  return hasValue(ntc.ant_hgt);
}

bool hasAntDiagrH(const NtcRec& ntc) {
  return hasValue(ntc.ant_diagr_h);
}

bool hasAntDiagrV(const NtcRec& ntc) {
  return hasValue(ntc.ant_diagr_v);
}

bool hasPosition(const NtcRec& ntc) {
  return !(ntc.long_deg.empty() && ntc.long_min.empty() && ntc.long_sec.empty() && ntc.long_ew.empty() &&
           ntc.lat_deg.empty() && ntc.lat_min.empty() && ntc.lat_sec.empty() && ntc.lat_ns.empty());
}

bool hasTargetLong(const NtcRec& ntc) {
  return !(ntc.trg_long_deg.empty() && ntc.trg_long_min.empty() && ntc.trg_long_sec.empty() &&
           ntc.trg_long_ew.empty());
}

bool hasTargetLat(const NtcRec& ntc) {
  return !(ntc.trg_lat_deg.empty() && ntc.trg_lat_min.empty() && ntc.trg_lat_sec.empty() &&
           ntc.trg_lat_ns.empty());
}

bool hasCoord(const NtcRec& ntc) {
  return ntc.coord.present || ntc.coord.count >= 1;
}

int countGivenContourIds(const NtcRec& ntc) {
  return countContourIds(ntc.digital.allot);
}

int countPointsPresent(const NtcRec& ntc) {
  const auto& points = ntc.digital.contour.points;
  return static_cast<int>(
      std::count_if(points.begin(), points.end(), [](const PointRec& point) { return point.present; }));
}

double notifiedPoints(const NtcRec& ntc) {
  return std::trunc(leadingNumber(ntc.digital.contour.t_nb_test_pts));
}

int countNotifiedPointsPresent(const NtcRec& ntc) {
  const auto& points = ntc.digital.contour.points;
  const double notified = notifiedPoints(ntc);
  int present = 0;
  for (std::size_t i = 0; i < points.size() && static_cast<double>(i) < notified; ++i) {
    if (points[i].present) ++present;
  }
  return present;
}

bool isWithin(std::string_view text, double lowest, double highest) {
  const double value = leadingNumber(text);
  return value >= lowest && value <= highest;
}

}  // namespace zamo
