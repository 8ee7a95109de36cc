#include "validation/geo_rules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "model/notice_words.h"
#include "noticefile/writer_text.h"
#include "platform/coordinates.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"
#include "validation/reference_steps.h"
#include "validation/rule_report.h"

namespace zamo {
namespace {

// clang-format off
const Message kIncomplete("GT1, GS1, with the map: degrees or minutes of the site are missing", " : coordinates are incomplete");
const Message kTargetIncomplete("GT1, GS1 under NTFD_PZ, MODIFY, with the map: degrees or minutes of the target site are missing", " : target coordinates are incomplete");
const Message kSite("GT1, GS1, with the map: the site is not in t_ctry; what follows is one of the remarks below", " : t_long : %1 t_lat : %2%3");
const Message kTargetSite("GT1, GS1 under NTFD_PZ, MODIFY, with the map: the target site is not in t_ctry; what follows is one of the remarks below", " : t_trg_long : %1 t_trg_lat : %2%3");
const Message kTestPoint("GA1, with the map: a test point is not in t_ctry; what follows is one of the remarks below", " : t_long : %1 t_lat : %2%3");
const Message kVeryNear("remark: less than 1 km from t_ctry; a warning", " are in %1, less than 1 km from %2");
const Message kAway("remark: so many km from t_ctry; a warning below 10 km", " are in %1, %3 km from %2");
const Message kVeryNearOutside("remark: less than 1 km from t_ctry, but in CHN, AFG, J, KRE, MNG or PAK", " are in %1, less than 1 km from %2 and OUTSIDE of the PLANNING AREA ");
const Message kAwayOutside("remark: less than 10 km from t_ctry, but in CHN, AFG, J, KRE, MNG or PAK", " are in %1, %3 km from %2 and OUTSIDE of the PLANNING AREA ");
const Message kNotThere("remark: t_ctry is none of the ten nearest countries within 1000 km", " are not in %1 according to the MN's GZMP");
const Message kPointCount("GA1, with the map: t_nb_test_pts is 0 or above 100", " : Number of test point notified is : %1 the maximum number of test point allowed is 99 so the coordinates are not validated.");
const Message kCrossing("GA1, with the map: the contour crosses itself, a line for each crossing", " : EITHER the segment formed by test point %1 and %2 crosses the segment formed by test point %3 and %4 OR the two points have the same coordinates");
// clang-format on

constexpr float kRadius = 1000;  // km
constexpr int kLimit = 10;
constexpr float kNear = 10;  // km
constexpr std::size_t kMostPoints = 100;
constexpr std::array<std::string_view, 6> kOutsidePlan = {"CHN", "AFG", "J", "KRE", "MNG", "PAK"};

std::string_view trimmed(std::string_view code) {
  while (code.starts_with(' ')) code.remove_prefix(1);
  while (code.ends_with(' ')) code.remove_suffix(1);
  return code;
}

bool isOutsidePlan(std::string_view place) {
  return std::any_of(kOutsidePlan.begin(), kOutsidePlan.end(),
                     [place](std::string_view code) { return equalsIgnoringCase(code, place); });
}

void letRepaint(const Host& host) {
  if (host.yield) host.yield();
}

std::string pairText(const SiteTexts& site) {
  return padTo2(site.latDeg) + padTo2(site.latMin) + padTo2(site.latSec) + site.latNs + padTo3(site.longDeg) +
         padTo2(site.longMin) + padTo2(site.longSec) + site.longEw;
}

std::string remark(std::string_view place, std::string_view ctry, float km, bool outsidePlan) {
  const auto whole = static_cast<int>(km);
  const Message& nearby = outsidePlan ? kVeryNearOutside : kVeryNear;
  const Message& away = outsidePlan ? kAwayOutside : kAway;
  return (whole == 0 ? nearby : away).filled({place, ctry, std::to_string(whole)});
}

bool isIncomplete(const SiteTexts& site) {
  return site.longDeg.empty() || site.longMin.empty() || site.latDeg.empty() || site.latMin.empty();
}

void report(RuleReport& findings, bool accepted, const Message& where, std::string_view longitude,
            std::string_view latitude, const std::string& msg) {
  if (!accepted) {
    findings.fatal(where, {longitude, latitude, msg});
  } else if (!msg.empty()) {
    findings.warning(where, {longitude, latitude, msg});
  }
}

struct Judge {
  const Host& host;
  const GzmpMap& map;
  RuleReport& findings;
  NtcRec& ntc;
};

void checkSite(Judge& judge, SiteTexts site, const Message& where) {
  std::string msg;
  const bool accepted = checkSiteInCountry(judge.host, judge.map, site, judge.ntc.t_ctry, msg);
  report(judge.findings, accepted, where,
         makeCoordText(site.longDeg, site.longMin, site.longSec, site.longEw),
         makeCoordText(site.latDeg, site.latMin, site.latSec, site.latNs), msg);
}

void checkSites(Judge& judge) {
  NtcRec& ntc = judge.ntc;
  if (!isInAnyCase(ntc.t_notice_type, {types::GT1, types::GS1})) return;
  const SiteTexts site{ntc.long_deg, ntc.long_min, ntc.long_sec, ntc.long_ew,
                       ntc.lat_deg,  ntc.lat_min,  ntc.lat_sec,  ntc.lat_ns};
  if (isIncomplete(site)) {
    judge.findings.fatal(kIncomplete);
  } else {
    checkSite(judge, site, kSite);
  }
  if (!isExactly(ntc.t_fragment, fragments::NTFD_PZ) || !isExactly(ntc.t_action, actions::MODIFY) ||
      !ntc.t_trg_adm_ref_id.empty())
    return;
  const SiteTexts target{ntc.trg_long_deg, ntc.trg_long_min, ntc.trg_long_sec, ntc.trg_long_ew,
                         ntc.trg_lat_deg,  ntc.trg_lat_min,  ntc.trg_lat_sec,  ntc.trg_lat_ns};
  if (isIncomplete(target)) {
    judge.findings.fatal(kTargetIncomplete);
  } else {
    checkSite(judge, target, kTargetSite);
  }
}

void checkTestPoint(Judge& judge, const PointRec& point) {
  std::string parts[] = {std::string(longDeg(point.t_long)), std::string(longMin(point.t_long)),
                         std::string(longSec(point.t_long)), std::string(longHemisphere(point.t_long)),
                         std::string(latDeg(point.t_lat)),   std::string(latMin(point.t_lat)),
                         std::string(latSec(point.t_lat)),   std::string(latHemisphere(point.t_lat))};
  std::string msg;
  const bool accepted = checkSiteInCountry(
      judge.host, judge.map, {parts[0], parts[1], parts[2], parts[3], parts[4], parts[5], parts[6], parts[7]},
      judge.ntc.t_ctry, msg);
  report(judge.findings, accepted, kTestPoint, point.t_long, point.t_lat, msg);
}

void checkContour(Judge& judge) {
  if (!isInAnyCase(judge.ntc.t_notice_type, types::GA1)) return;
  const ContourRec& contour = judge.ntc.digital.contour;
  const double count = leadingNumber(contour.t_nb_test_pts);
  if (count > static_cast<double>(kMostPoints) || count == 0) {
    judge.findings.fatal(kPointCount, {contour.t_nb_test_pts});
    return;
  }
  // The place behind the last one is looked at as well.
  for (std::size_t i = 0; i < contour.points.size() && static_cast<double>(i) <= count; ++i) {
    if (contour.points[i].present) checkTestPoint(judge, contour.points[i]);
  }
  if (!judge.findings.good) return;
  judge.findings.good =
      !ContourCross(judge.host, judge.map, contour, judge.findings.errs, judge.findings.label);
}

// The map's points of a contour, closed. Throws RunTimeError when there is no room for them.
std::vector<GzmpPoint> polygonOf(const Host& host, const GzmpMap& map, const ContourRec& contour) {
  const double count = std::trunc(leadingNumber(contour.t_nb_test_pts));
  const RunTimeError outOfRange{kIndexOutOfRange, "Subscript out of range"};
  if (count < 1 || count > static_cast<double>(std::min(kMostPoints, contour.points.size())))
    throw outOfRange;
  std::vector<GzmpPoint> points(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < points.size(); ++i) {
    const PointRec& point = contour.points[i];
    if (!point.present) continue;
    letRepaint(host);
    points[i] = map.gzmpParseCoords(coordKeyText(point.t_long, point.t_lat));
  }
  const PointRec& first = contour.points.front();
  const PointRec& last = contour.points[points.size() - 1];
  if (!equalsIgnoringCase(first.t_long, last.t_long) || !equalsIgnoringCase(first.t_lat, last.t_lat)) {
    if (points.size() == kMostPoints) throw outOfRange;
    points.push_back(points.front());
  }
  return points;
}

}  // namespace

bool checkSiteInCountry(const Host& host, const GzmpMap& map, SiteTexts site, std::string_view t_ctry,
                        std::string& msg) {
  if (site.longSec.empty()) site.longSec = "00";
  if (site.latSec.empty()) site.latSec = "00";
  letRepaint(host);
  const GzmpPoint point = map.gzmpParseCoords(pairText(site));
  map.gzmpLoadMapAround(point, kRadius);
  const std::string code = map.gzmpCountryAtPoint(point);
  const std::string_view found = trimmed(code);
  if (equalsIgnoringCase(found, t_ctry)) return true;
  const std::string_view place = found.empty() ? "the sea" : found;
  letRepaint(host);
  const GzmpNearest nearest = map.gzmpNearestCountries(point, kRadius, 1, code, kLimit);
  const std::string_view codes = nearest.codes;
  for (int i = 0; i < nearest.count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (!equalsIgnoringCase(trimmed(codes.substr(at * kGzmpCodeLength, kGzmpCodeLength)), t_ctry)) continue;
    const float km = nearest.distances[at];
    const bool outsidePlan = km < kNear && isOutsidePlan(place);
    msg = remark(place, t_ctry, km, outsidePlan);
    return km < kNear && !outsidePlan;
  }
  msg = kNotThere.filled({t_ctry});
  return false;
}

bool ContourCross(const Host& host, const GzmpMap& map, const ContourRec& contour, std::string& errs,
                  std::string_view label) {
  RuleReport findings{errs, label};
  try {
    const std::vector<GzmpPoint> points = polygonOf(host, map, contour);
    letRepaint(host);
    for (const auto& [a, b] : map.gzmpFindCrossings(points).segments) {
      findings.fatal(kCrossing,
                     {std::to_string(a), std::to_string(a + 1), std::to_string(b), std::to_string(b + 1)});
    }
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, "ContourCross", error.text);
  }
  return !findings.good;
}

bool checkNtcRefsGeo(const Host& host, const GzmpMap& map, NtcRec& ntc, std::string& errs,
                     std::string_view label) {
  RuleReport findings{errs, label};
  Judge judge{host, map, findings, ntc};
  checkCountry(findings, ntc);
  checkSites(judge);
  checkCoord(findings, ntc, {types::GT1, types::GS1, types::GS2, types::GT2, types::TB3});
  checkGeoArea(findings, ntc);
  checkContour(judge);
  return findings.good;
}

}  // namespace zamo
