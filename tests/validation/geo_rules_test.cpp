#include "validation/geo_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "map/crossings.h"
#include "platform/run_time_error.h"
#include "support/scripted_host.h"
#include "support/valid_notices.h"
#include "validation/reference_rules.h"

namespace zamo {
namespace {

struct Square {
  std::string code;
  float south, west, north, east;
};

// A flat world on which a minute is a kilometre: AUT from 10 to 20 degrees north and east, D east of it and
// CHN north of it, F two degrees south across the water, and twelve more along the parallel of 60 degrees.
std::vector<Square> drawnWorld() {
  std::vector<Square> world = {
      {"AUT", 10, 10, 20, 20}, {"D", 10, 20, 20, 30}, {"CHN", 20, 10, 30, 20}, {"F", 6, 10, 8, 20}};
  const char* const far[] = {"AND", "BEL", "CZE", "DNK", "E", "FIN", "G", "HNG", "I", "LUX", "MCO", "NOR"};
  float west = 50;
  for (const char* code : far) {
    world.push_back({code, 59, west, 60, west + 0.5F});
    west += 1;
  }
  return world;
}

float kilometresTo(const Square& square, const GzmpPoint& point) {
  const float lat = std::max({square.south - point[0], point[0] - square.north, 0.0F});
  const float lon = std::max({square.west - point[1], point[1] - square.east, 0.0F});
  return std::hypot(lat, lon) * 60;
}

std::string padded(const std::string& code) {
  return (code + "   ").substr(0, 3);
}

float degreesOf(const std::string& pair, std::size_t from, std::size_t digits) {
  return static_cast<float>(std::stoi(pair.substr(from, digits)) +
                            std::stoi(pair.substr(from + digits, 2)) / 60.0 +
                            std::stoi(pair.substr(from + digits + 2, 2)) / 3600.0);
}

GzmpPoint parsePair(const std::string& pair) {
  EXPECT_EQ(pair.size(), 15U) << pair;
  const float lat = degreesOf(pair, 0, 2), lon = degreesOf(pair, 7, 3);
  return {pair[6] == 'S' ? -lat : lat, pair[14] == 'W' ? -lon : lon};
}

GzmpNearest nearestOn(const std::vector<Square>& world, const GzmpPoint& point, float radius,
                      const std::string& found, int limit) {
  std::vector<std::pair<float, std::string>> near;
  for (const Square& square : world) {
    const float km = kilometresTo(square, point);
    if (padded(square.code) != found && km <= radius) near.emplace_back(km, padded(square.code));
  }
  std::sort(near.begin(), near.end());
  if (near.size() > static_cast<std::size_t>(limit)) near.resize(static_cast<std::size_t>(limit));
  GzmpNearest result;
  for (const auto& [km, code] : near) {
    result.distances[static_cast<std::size_t>(result.count++)] = km;
    result.codes += code;
  }
  return result;
}

class GeoRules : public ::testing::Test {
 protected:
  GeoRules() {
    map.gzmpParseCoords = [this](const std::string& pair) {
      pairs.push_back(pair);
      return parsePair(pair);
    };
    map.gzmpLoadMapAround = [this](const GzmpPoint&, float radius) { loadedRadius = radius; };
    map.gzmpCountryAtPoint = [this](const GzmpPoint& point) {
      for (const Square& square : world) {
        if (kilometresTo(square, point) == 0) return padded(square.code);
      }
      return std::string("   ");
    };
    map.gzmpNearestCountries = [this](const GzmpPoint& point, float radius, int mode,
                                      const std::string& found, int limit) {
      EXPECT_EQ(mode, 1);
      EXPECT_EQ(limit, 10);
      return nearestOn(world, point, radius, found, limit);
    };
    map.gzmpFindCrossings = [this](const std::vector<GzmpPoint>& points) {
      polygon = points;
      return findCrossings(points);
    };
  }

  Verdict judgeGeo(NtcRec& ntc) {
    Verdict verdict;
    verdict.good = checkNtcRefsGeo(host, map, ntc, verdict.errs, kLabel);
    return verdict;
  }
  Verdict judgeGeo(NtcRec&& ntc) { return judgeGeo(ntc); }

  std::vector<Square> world = drawnWorld();
  std::vector<std::string> pairs;
  std::vector<GzmpPoint> polygon;
  float loadedRadius = 0;
  GzmpMap map;
  test::Script script;
  Host host = test::makeScriptedHost(script);
};

void setLong(NtcRec& ntc, const char* deg, const char* min, const char* sec, const char* ew) {
  ntc.long_deg = deg;
  ntc.long_min = min;
  ntc.long_sec = sec;
  ntc.long_ew = ew;
}

void setLat(NtcRec& ntc, const char* deg, const char* min, const char* sec, const char* ns) {
  ntc.lat_deg = deg;
  ntc.lat_min = min;
  ntc.lat_sec = sec;
  ntc.lat_ns = ns;
}

// An assignment of AUT whose site lies well within it.
NtcRec assignment(const char* type = "GT1") {
  NtcRec ntc;
  ntc.t_notice_type = type;
  ntc.t_adm = "AUT";
  ntc.t_ctry = "AUT";
  setLong(ntc, "015", "00", "00", "E");
  setLat(ntc, "15", "00", "00", "N");
  return ntc;
}

NtcRec assignmentAt(const char* longDegrees, const char* longMinutes, const char* latDegrees,
                    const char* latMinutes) {
  NtcRec ntc = assignment();
  setLong(ntc, longDegrees, longMinutes, "00", "E");
  setLat(ntc, latDegrees, latMinutes, "00", "N");
  return ntc;
}

Verdict warned(std::string_view errs) {
  return {true, std::string(errs)};
}

TEST_F(GeoRules, a_site_in_its_country_has_no_remark) {
  EXPECT_EQ(judgeGeo(assignment("GT1")), kPassed);
  EXPECT_EQ(judgeGeo(assignment("GS1")), kPassed);
  EXPECT_EQ(pairs, (std::vector<std::string>{"150000N0150000E", "150000N0150000E"}));
  EXPECT_EQ(loadedRadius, 1000);
}

TEST_F(GeoRules, the_country_is_compared_in_any_case) {
  NtcRec ntc = assignment();
  ntc.t_ctry = "aut";
  EXPECT_EQ(judgeGeo(ntc), kPassed);
}

TEST_F(GeoRules, a_site_at_sea_three_kilometres_off_is_accepted_with_a_warning) {
  EXPECT_EQ(judgeGeo(assignmentAt("009", "57", "15", "00")),
            warned(warning(" : t_long : +0095700 t_lat : +150000 are in the sea, 3 km from AUT")));
}

TEST_F(GeoRules, kilometres_are_whole) {
  NtcRec ntc = assignmentAt("009", "56", "15", "00");
  ntc.long_sec = "01";
  EXPECT_EQ(judgeGeo(ntc),
            warned(warning(" : t_long : +0095601 t_lat : +150000 are in the sea, 3 km from AUT")));
}

TEST_F(GeoRules, less_than_a_kilometre_is_told_so) {
  NtcRec ntc = assignmentAt("009", "59", "15", "00");
  ntc.long_sec = "30";
  EXPECT_EQ(judgeGeo(ntc),
            warned(warning(" : t_long : +0095930 t_lat : +150000 are in the sea, less than 1 km from AUT")));
}

TEST_F(GeoRules, a_site_in_another_country_nearby_is_accepted_with_a_warning) {
  EXPECT_EQ(judgeGeo(assignmentAt("020", "05", "15", "00")),
            warned(warning(" : t_long : +0200500 t_lat : +150000 are in D, 5 km from AUT")));
}

TEST_F(GeoRules, a_site_in_another_country_fifteen_kilometres_away_is_refused) {
  EXPECT_EQ(judgeGeo(assignmentAt("020", "15", "15", "00")),
            failed(fatal(" : t_long : +0201500 t_lat : +150000 are in D, 15 km from AUT")));
}

TEST_F(GeoRules, a_site_at_sea_ten_kilometres_off_is_refused) {
  map.gzmpNearestCountries = [](const GzmpPoint&, float, int, const std::string&, int) {
    return GzmpNearest{2, {4.5F, 10.0F}, {}, "D  AUT", 0};
  };
  EXPECT_EQ(judgeGeo(assignmentAt("009", "50", "15", "00")),
            failed(fatal(" : t_long : +0095000 t_lat : +150000 are in the sea, 10 km from AUT")));
}

TEST_F(GeoRules, a_site_outside_the_planning_area_is_refused_though_near) {
  EXPECT_EQ(judgeGeo(assignmentAt("015", "00", "20", "05")),
            failed(fatal(
                " : t_long : +0150000 t_lat : +200500 are in CHN, 5 km from AUT and OUTSIDE of the PLANNING "
                "AREA ")));
}

TEST_F(GeoRules, less_than_a_kilometre_outside_the_planning_area_is_told_so) {
  NtcRec ntc = assignmentAt("015", "00", "20", "00");
  ntc.lat_sec = "30";
  EXPECT_EQ(judgeGeo(ntc),
            failed(fatal(" : t_long : +0150000 t_lat : +200030 are in CHN, less than 1 km from AUT and "
                         "OUTSIDE of the PLANNING AREA ")));
}

TEST_F(GeoRules, far_outside_the_planning_area_the_distance_alone_is_told) {
  EXPECT_EQ(judgeGeo(assignmentAt("015", "00", "20", "15")),
            failed(fatal(" : t_long : +0150000 t_lat : +201500 are in CHN, 15 km from AUT")));
}

TEST_F(GeoRules, six_countries_are_outside_the_planning_area) {
  for (const std::string code : {"CHN", "AFG", "J", "KRE", "MNG", "PAK", "afg"}) {
    world[2].code = code;
    EXPECT_EQ(judgeGeo(assignmentAt("015", "00", "20", "05")),
              failed(fatal(" : t_long : +0150000 t_lat : +200500 are in " + code +
                           ", 5 km from AUT and OUTSIDE of the PLANNING AREA ")));
  }
  for (const std::string code : {"IND", "KOR", "IRN", "KAZ"}) {
    world[2].code = code;
    EXPECT_EQ(judgeGeo(assignmentAt("015", "00", "20", "05")),
              warned(warning(" : t_long : +0150000 t_lat : +200500 are in " + code + ", 5 km from AUT")));
  }
}

TEST_F(GeoRules, a_country_that_is_not_among_the_ten_nearest_is_not_there) {
  EXPECT_EQ(judgeGeo(assignmentAt("050", "45", "59", "30")),
            failed(fatal(" : t_long : +0504500 t_lat : +593000 are not in AUT according to the MN's GZMP")));
}

TEST_F(GeoRules, hemispheres_are_those_of_the_notice) {
  NtcRec ntc = assignment();
  setLong(ntc, "015", "00", "00", "W");
  setLat(ntc, "15", "00", "00", "S");
  EXPECT_EQ(judgeGeo(ntc),
            failed(fatal(" : t_long : -0150000 t_lat : -150000 are not in AUT according to the MN's GZMP")));
  EXPECT_EQ(pairs, std::vector<std::string>{"150000S0150000W"});
}

TEST_F(GeoRules, missing_seconds_become_zeros_in_the_notice_too) {
  NtcRec ntc = assignment();
  ntc.long_sec.clear();
  ntc.lat_sec.clear();
  EXPECT_EQ(judgeGeo(ntc), kPassed);
  EXPECT_EQ(ntc.long_sec, "00");
  EXPECT_EQ(ntc.lat_sec, "00");
  EXPECT_EQ(pairs, std::vector<std::string>{"150000N0150000E"});
}

TEST_F(GeoRules, parts_written_short_are_filled_up_for_the_map) {
  NtcRec ntc = assignment();
  setLong(ntc, "9", "57", "0", "E");
  setLat(ntc, "15", "0", "0", "N");
  EXPECT_EQ(judgeGeo(ntc),
            warned(warning(" : t_long : +0095700 t_lat : +150000 are in the sea, 3 km from AUT")));
}

TEST_F(GeoRules, a_site_without_degrees_or_minutes_is_incomplete) {
  for (std::string NtcRec::*part :
       {&NtcRec::long_deg, &NtcRec::long_min, &NtcRec::lat_deg, &NtcRec::lat_min}) {
    NtcRec ntc = assignment();
    (ntc.*part).clear();
    EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : coordinates are incomplete")));
  }
  EXPECT_TRUE(pairs.empty());
}

TEST_F(GeoRules, a_site_is_looked_up_without_a_country_too) {
  NtcRec ntc = assignment();
  ntc.t_ctry.clear();
  EXPECT_EQ(judgeGeo(ntc),
            failed(fatal(" : t_ctry is empty cannot validate") +
                   fatal(" : t_long : +0150000 t_lat : +150000 are not in  according to the MN's GZMP")));
}

TEST_F(GeoRules, sites_of_other_types_are_not_looked_up) {
  for (const char* type : {"GT2", "GS2", "TB2", "TB3", "TB5"}) {
    NtcRec ntc = assignmentAt("020", "15", "15", "00");
    ntc.t_notice_type = type;
    EXPECT_EQ(judgeGeo(ntc), kPassed) << type;
  }
  EXPECT_TRUE(pairs.empty());
}

// A modification that names its target by its place, five kilometres into D.
NtcRec modification() {
  NtcRec ntc = assignment();
  ntc.t_fragment = "NTFD_PZ";
  ntc.t_action = "MODIFY";
  ntc.trg_long_deg = "020";
  ntc.trg_long_min = "05";
  ntc.trg_long_ew = "E";
  ntc.trg_lat_deg = "15";
  ntc.trg_lat_min = "30";
  ntc.trg_lat_ns = "N";
  return ntc;
}

TEST_F(GeoRules, the_target_site_of_a_modification_is_looked_up) {
  NtcRec ntc = modification();
  EXPECT_EQ(judgeGeo(ntc),
            warned(warning(" : t_trg_long : +0200500 t_trg_lat : +153000 are in D, 5 km from AUT")));
  EXPECT_EQ(ntc.trg_long_sec, "00");
  EXPECT_EQ(ntc.trg_lat_sec, "00");
  ntc.trg_long_min = "15";
  EXPECT_EQ(judgeGeo(ntc),
            failed(fatal(" : t_trg_long : +0201500 t_trg_lat : +153000 are in D, 15 km from AUT")));
}

TEST_F(GeoRules, a_target_site_without_all_its_parts_is_incomplete) {
  for (std::string NtcRec::*part :
       {&NtcRec::trg_long_deg, &NtcRec::trg_long_min, &NtcRec::trg_lat_deg, &NtcRec::trg_lat_min}) {
    NtcRec ntc = modification();
    (ntc.*part).clear();
    EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : target coordinates are incomplete")));
  }
}

TEST_F(GeoRules, only_a_modification_under_art_5_without_a_reference_has_a_target_site) {
  NtcRec referred = modification();
  referred.t_trg_adm_ref_id = "A-1";
  EXPECT_EQ(judgeGeo(referred), kPassed);
  NtcRec plan = modification();
  plan.t_fragment = "KV19D";
  EXPECT_EQ(judgeGeo(plan), kPassed);
  NtcRec lower = modification();
  lower.t_action = "modify";
  EXPECT_EQ(judgeGeo(lower), kPassed);
}

NtcRec coordinated(const char* type) {
  NtcRec ntc = assignment(type);
  ntc.coord.present = true;
  ntc.coord.count = 2;
  ntc.coord.entries.assign(3, {});
  ntc.coord.entries[0].adm = "XYZ";
  ntc.coord.entries[1].adm = "aut";
  return ntc;
}

TEST_F(GeoRules, coordinated_administrations_are_judged_for_all_but_tb2) {
  const std::string findings =
      fatal(" : <COORD> XYZ t_adm : Invalid administration code for the KV19") +
      fatal(" : <COORD> aut : Notifying administration cannot be within in the <COORD> section.");
  for (const char* type : {"GT1", "GS1", "GT2", "GS2", "TB3"}) {
    EXPECT_EQ(judgeGeo(coordinated(type)), failed(findings)) << type;
  }
  EXPECT_EQ(judgeGeo(coordinated("TB2")), kPassed);
}

TEST_F(GeoRules, the_area_of_an_allotment_is_its_country) {
  NtcRec ntc = assignment("GT2");
  ntc.t_adm = "F";
  ntc.t_ctry = "REU";
  ntc.digital.allot.t_geo_area = "F";
  EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : t_geo_area has to be identical to t_ctry ")));
  ntc.digital.allot.t_geo_area = "D";
  EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : t_geo_area = D does not belong to t_adm = F")));
}

TEST_F(GeoRules, findings_come_in_the_order_of_country_site_target_and_coordination) {
  NtcRec ntc = modification();
  ntc.t_ctry = "F";
  ntc.coord = coordinated("GT1").coord;
  ntc.trg_lat_min.clear();
  EXPECT_EQ(
      judgeGeo(ntc),
      failed(fatal(" : t_adm = AUT cannot notify for t_ctry = F") +
             fatal(" : t_long : +0150000 t_lat : +150000 are in AUT, 420 km from F") +
             fatal(" : target coordinates are incomplete") +
             fatal(" : <COORD> XYZ t_adm : Invalid administration code for the KV19") +
             fatal(" : <COORD> aut : Notifying administration cannot be within in the <COORD> section.")));
}

TEST_F(GeoRules, the_coordination_comes_before_the_area) {
  NtcRec ntc = coordinated("GT2");
  ntc.coord.entries[1].adm.clear();
  ntc.digital.allot.t_geo_area = "D";
  EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : <COORD> XYZ t_adm : Invalid administration code for the KV19") +
                                  fatal(" : t_geo_area = D does not belong to t_adm = AUT")));
}

// A contour of AUT, with the free place behind the last point that the reader leaves.
NtcRec contour(std::initializer_list<std::pair<const char*, const char*>> longsAndLats) {
  NtcRec ntc;
  ntc.t_notice_type = "GA1";
  ntc.t_adm = "AUT";
  ntc.t_ctry = "AUT";
  ContourRec& rec = ntc.digital.contour;
  rec.t_nb_test_pts = std::to_string(longsAndLats.size());
  rec.points.clear();
  for (const auto& [longitude, latitude] : longsAndLats) rec.points.push_back({true, longitude, latitude});
  rec.points.emplace_back();
  return ntc;
}

NtcRec triangle() {
  return contour({{"+0150000", "+150000"}, {"+0160000", "+150000"}, {"+0150000", "+160000"}});
}

TEST_F(GeoRules, a_triangle_is_closed_and_has_no_crossing) {
  EXPECT_EQ(judgeGeo(triangle()), kPassed);
  EXPECT_EQ(polygon, (std::vector<GzmpPoint>{{15, 15}, {15, 16}, {16, 15}, {15, 15}}));
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(GeoRules, a_contour_that_is_closed_in_the_file_stays_as_it_is) {
  EXPECT_EQ(judgeGeo(contour({{"+0150000", "+150000"},
                              {"+0160000", "+150000"},
                              {"+0150000", "+160000"},
                              {"+0150000", "+150000"}})),
            kPassed);
  EXPECT_EQ(polygon.size(), 4U);
}

TEST_F(GeoRules, a_figure_of_eight_tells_its_two_segments) {
  EXPECT_EQ(
      judgeGeo(contour({{"+0150000", "+150000"},
                        {"+0160000", "+160000"},
                        {"+0160000", "+150000"},
                        {"+0150000", "+160000"}})),
      failed(fatal(
          " : EITHER the segment formed by test point 1 and 2 crosses the segment formed by test point 3 "
          "and 4 OR the two points have the same coordinates")));
}

TEST_F(GeoRules, without_the_map_a_crossing_is_not_looked_for) {
  const NtcRec ntc = contour(
      {{"+0150000", "+150000"}, {"+0160000", "+160000"}, {"+0160000", "+150000"}, {"+0150000", "+160000"}});
  std::string errs;
  EXPECT_TRUE(checkNtcRefs(ntc, errs, "label"));
  EXPECT_EQ(errs, "");
}

TEST_F(GeoRules, two_equal_points_in_a_row_are_told_as_a_crossing) {
  EXPECT_EQ(
      judgeGeo(contour({{"+0150000", "+150000"},
                        {"+0160000", "+150000"},
                        {"+0160000", "+150000"},
                        {"+0150000", "+160000"}})),
      failed(fatal(
          " : EITHER the segment formed by test point 1 and 2 crosses the segment formed by test point 3 "
          "and 4 OR the two points have the same coordinates")));
}

TEST_F(GeoRules, the_same_place_without_its_seconds_is_closed_once_more) {
  EXPECT_EQ(
      judgeGeo(contour({{"+0150000", "+150000"},
                        {"+0160000", "+150000"},
                        {"+0150000", "+160000"},
                        {"+01500", "+150000"}})),
      failed(fatal(
          " : EITHER the segment formed by test point 1 and 2 crosses the segment formed by test point 3 "
          "and 4 OR the two points have the same coordinates")));
  EXPECT_EQ(polygon.size(), 5U);
}

TEST_F(GeoRules, test_points_are_told_as_notified) {
  EXPECT_EQ(judgeGeo(contour({{"+00957", "+1500"}, {"+0160000", "+150000"}, {"+0150000", "+160000"}})),
            warned(warning(" : t_long : +00957 t_lat : +1500 are in the sea, 3 km from AUT")));
}

TEST_F(GeoRules, a_test_point_that_is_refused_keeps_the_contour_from_being_looked_at) {
  EXPECT_EQ(judgeGeo(contour({{"+0150000", "+150000"},
                              {"+0160000", "+160000"},
                              {"+0160000", "+150000"},
                              {"+0201500", "+150000"}})),
            failed(fatal(" : t_long : +0201500 t_lat : +150000 are in D, 15 km from AUT")));
  EXPECT_TRUE(polygon.empty());
}

TEST_F(GeoRules, a_point_behind_the_count_is_looked_up) {
  NtcRec ntc = triangle();
  ntc.digital.contour.points[3] = {true, "+0201500", "+150000"};
  EXPECT_EQ(judgeGeo(ntc), failed(fatal(" : t_long : +0201500 t_lat : +150000 are in D, 15 km from AUT")));
}

TEST_F(GeoRules, a_point_that_is_not_present_is_passed_over) {
  NtcRec ntc = triangle();
  ntc.digital.contour.points[1] = {false, "+0201500", "+150000"};
  EXPECT_EQ(judgeGeo(ntc), kPassed);
  EXPECT_EQ(polygon[1], (GzmpPoint{0, 0}));
}

TEST_F(GeoRules, no_points_and_more_than_a_hundred_are_not_looked_up) {
  for (const std::string count : {"0", "101", "", "100.5"}) {
    NtcRec ntc = triangle();
    ntc.digital.contour.t_nb_test_pts = count;
    EXPECT_EQ(judgeGeo(ntc),
              failed(fatal(
                  " : Number of test point notified is : " + count +
                  " the maximum number of test point allowed is 99 so the coordinates are not validated.")));
  }
  EXPECT_TRUE(pairs.empty());
}

// Up along one meridian and down along the next.
NtcRec hundredPoints() {
  NtcRec ntc = contour({});
  ContourRec& rec = ntc.digital.contour;
  rec.points.clear();
  for (int i = 0; i < 99; ++i) {
    const int minute = i < 50 ? i : 99 - i;
    rec.points.push_back({true, i < 50 ? "+0150000" : "+0160000",
                          "+15" + std::string(minute < 10 ? "0" : "") + std::to_string(minute) + "00"});
  }
  rec.points.push_back(rec.points.front());
  rec.points.emplace_back();
  rec.t_nb_test_pts = "100";
  return ntc;
}

TEST_F(GeoRules, a_hundred_points_that_are_closed_are_looked_up) {
  EXPECT_EQ(judgeGeo(hundredPoints()), kPassed);
  EXPECT_EQ(polygon.size(), 100U);
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(GeoRules, a_hundred_points_leave_no_room_to_close_them) {
  NtcRec ntc = hundredPoints();
  ntc.digital.contour.points[99] = {true, "+0155000", "+150000"};
  EXPECT_EQ(judgeGeo(ntc), kPassed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 9:Subscript out of range");
  EXPECT_EQ(script.boxes[0].title, "ContourCross");
  EXPECT_TRUE(polygon.empty());
}

TEST_F(GeoRules, an_error_while_crossings_are_sought_is_shown_and_finds_none) {
  map.gzmpFindCrossings = [](const std::vector<GzmpPoint>&) -> GzmpCrossings {
    throw RunTimeError{57, "Device"};
  };
  EXPECT_EQ(judgeGeo(triangle()), kPassed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "ContourCross");
}

TEST_F(GeoRules, an_error_while_a_site_is_looked_up_goes_to_the_caller) {
  map.gzmpCountryAtPoint = [](const GzmpPoint&) -> std::string { throw RunTimeError{57, "Device"}; };
  EXPECT_THROW(judgeGeo(assignment()), RunTimeError);
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(GeoRules, the_remark_of_a_site_in_its_country_is_left_alone) {
  NtcRec ntc = assignment();
  std::string msg = "as it was";
  EXPECT_TRUE(checkSiteInCountry(host, map,
                                 {ntc.long_deg, ntc.long_min, ntc.long_sec, ntc.long_ew, ntc.lat_deg,
                                  ntc.lat_min, ntc.lat_sec, ntc.lat_ns},
                                 "AUT", msg));
  EXPECT_EQ(msg, "as it was");
}

TEST_F(GeoRules, the_screen_may_repaint_while_places_are_looked_up) {
  judgeGeo(triangle());
  EXPECT_GT(script.yields, 3);
}

}  // namespace
}  // namespace zamo
