#include "database/lookups.h"

#include "database/working_database.h"
#include "support/valid_notices.h"

namespace zamo {
namespace {

using Keys = std::vector<std::int32_t>;

class ALookup : public test::WorkingDatabase {
 protected:
  // A GT1 of France on 474 MHz at 002 20 57 E, 48 51 24 N, but for what is told.
  void storeAssignment(std::int32_t vornakey, const std::string& admRefId, const std::string& changes = "") {
    const std::string id = std::to_string(vornakey);
    raw.run(
        "INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, notice_typ, intent, freq_assgn, long_deg, "
        "long_min, "
        "long_sec, long_ew, lat_deg, lat_min, lat_sec, lat_ns) VALUES (" +
        id + ", 'F', '" + admRefId + "', 'GT1', 'ADD', 474, 2, 20, 57, 'E', 48, 51, 24, 'N')");
    if (!changes.empty()) raw.run("UPDATE fmtv_vorna SET " + changes + " WHERE vornakey = " + id);
  }

  // A GT2 of France on 474 MHz with links to contours.
  void storeAllotment(std::int32_t vornakey, const std::string& admRefId, const std::string& area,
                      const Keys& contours) {
    const std::string id = std::to_string(vornakey);
    raw.run("INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, notice_typ, freq_assgn) VALUES (" + id +
            ", 'F', '" + admRefId + "', 'GT2', 474)");
    raw.run("INSERT INTO lmz_allotment (vornakey, allotkey, geo_area) VALUES (" + id + ", " + id + ", " +
            (area.empty() ? "NULL" : "'" + area + "'") + ")");
    for (const std::int32_t contour : contours) {
      raw.run("INSERT INTO lmz_sub_area VALUES (" + id + ", " + std::to_string(contour) + ")");
    }
  }

  void storeContour(std::int32_t contourkey, std::int32_t id, const std::string& points,
                    const std::string& ctry = "F", const std::string& adm = "F") {
    raw.run("INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm, nb_test_pts) VALUES (" +
            std::to_string(contourkey) + ", " + std::to_string(id) + ", '" + ctry + "', '" + adm + "', " +
            points + ")");
  }

  void storePoints(std::int32_t contourkey, int count) {
    for (int i = 0; i < count; ++i) {
      raw.run("INSERT INTO lmz_contour_pt (contourkey, test_pt) VALUES (" + std::to_string(contourkey) +
              ", " + std::to_string(i) + ")");
    }
  }

  static NtcRec assignment() {
    NtcRec ntc;
    ntc.t_notice_type = "GT1";
    ntc.t_adm = "F";
    ntc.t_freq_assgn = "474.0";
    ntc.long_deg = "002", ntc.long_min = "20", ntc.long_sec = "57", ntc.long_ew = "E";
    ntc.lat_deg = "48", ntc.lat_min = "51", ntc.lat_sec = "24", ntc.lat_ns = "N";
    return ntc;
  }

  static NtcRec allotment() {
    NtcRec ntc;
    ntc.t_notice_type = "GT2";
    ntc.t_adm = "F";
    ntc.t_freq_assgn = "474";
    return ntc;
  }

  bool findReference(std::string_view admRefId, std::string_view adm) {
    return findByAdmRefId(host, admRefId, adm, key, connection);
  }
  bool findAssignment(const NtcRec& ntc) {
    return findAssignmentByElements(host, ntc, key, reference, connection);
  }
  bool findAllotment(const NtcRec& ntc) {
    return findAllotmentByElements(host, ntc, key, reference, connection);
  }

  void expectUntouched() {
    EXPECT_EQ(key, -7);
    EXPECT_EQ(reference, "before");
  }

  void expectFound(std::int32_t expectedKey, std::string_view expectedReference) {
    EXPECT_EQ(key, expectedKey);
    EXPECT_EQ(reference, expectedReference);
    expectNoBox();
  }

  std::int32_t key = -7;
  std::string reference = "before";
};

TEST_F(ALookup, finds_a_notice_by_its_reference) {
  storeAssignment(83700001, "F-0001");
  EXPECT_TRUE(findReference("F-0001", "F"));
  EXPECT_EQ(key, 83700001);
  expectNoBox();
}

TEST_F(ALookup, by_reference_takes_no_account_of_case) {
  storeAssignment(83700001, "F-abc");
  EXPECT_TRUE(findReference("f-ABC", "f"));
  EXPECT_EQ(key, 83700001);
  expectNoBox();
}

TEST_F(ALookup, by_reference_finds_no_notice_of_another_administration) {
  storeAssignment(83700001, "F-0001");
  EXPECT_FALSE(findReference("F-0001", "D"));
  EXPECT_FALSE(findReference("F-0002", "F"));
  EXPECT_FALSE(findReference("", "F"));
  expectUntouched();
  expectNoBox();
}

TEST_F(ALookup, by_reference_gives_the_notice_that_was_stored_first) {
  storeAssignment(83700002, "f-0001");
  storeAssignment(83700003, "F-0001");
  storeAssignment(83700001, "F-0001");
  EXPECT_TRUE(findReference("F-0001", "F"));
  EXPECT_EQ(key, 83700001);
  expectNoBox();
}

TEST_F(ALookup, by_reference_with_an_apostrophe_fails_in_the_box_and_finds_nothing) {
  storeAssignment(83700001, "F-0001");
  EXPECT_FALSE(findReference("F-0001' OR '1' = '1", "F"));
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in F-0001' OR '1' = '1", "findByAdmRefId");
  script.boxes.clear();
  EXPECT_FALSE(findReference("F-0001", "F'"));
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in F'", "findByAdmRefId");
  expectUntouched();
}

TEST_F(ALookup, by_reference_takes_marks_of_the_dialect_as_they_are) {
  storeAssignment(83700001, "F#1 & -- /* #2");
  EXPECT_TRUE(findReference("F#1 & -- /* #2", "F"));
  EXPECT_EQ(key, 83700001);
  expectNoBox();
}

TEST_F(ALookup, finds_an_assignment_by_frequency_and_position) {
  storeAssignment(83700001, "F-0001");
  EXPECT_TRUE(findAssignment(assignment()));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_assignment_asks_for_each_of_its_elements) {
  for (const char* change : {"adm = 'D'", "freq_assgn = 474.1", "long_deg = 3", "long_min = 21",
                             "long_sec = 58", "long_ew = 'W'", "lat_deg = 49", "lat_min = 52", "lat_sec = 25",
                             "lat_ns = 'S'", "long_sec = NULL", "lat_sec = NULL"}) {
    SCOPED_TRACE(change);
    storeAssignment(83700001, "F-0001", change);
    EXPECT_FALSE(findAssignment(assignment()));
    raw.run("DELETE FROM fmtv_vorna");
  }
  expectUntouched();
  expectNoBox();
}

TEST_F(ALookup, of_an_assignment_passes_empty_parts_as_0) {
  storeAssignment(83700001, "F-0001", "freq_assgn = 0, long_deg = 0, long_min = 0, long_sec = 0");
  NtcRec ntc = assignment();
  ntc.t_freq_assgn.clear();
  ntc.long_deg.clear();
  ntc.long_min.clear();
  ntc.long_sec.clear();
  EXPECT_TRUE(findAssignment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_assignment_rounds_parts_of_the_position_halves_to_even) {
  storeAssignment(83700001, "F-0001", "long_sec = 58, lat_sec = 24");
  NtcRec ntc = assignment();
  ntc.long_sec = "57.5";
  ntc.lat_sec = "24.5";
  EXPECT_TRUE(findAssignment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_assignment_keeps_the_decimals_of_the_frequency) {
  storeAssignment(83700001, "F-0001", "freq_assgn = 176.64");
  NtcRec ntc = assignment();
  ntc.t_freq_assgn = "176.640 MHz";
  EXPECT_TRUE(findAssignment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_assignment_gives_the_one_that_was_stored_first) {
  storeAssignment(83700002, "F-0002");
  storeAssignment(83700003, "F-0003");
  storeAssignment(83700001, "F-0001");
  EXPECT_TRUE(findAssignment(assignment()));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, gives_a_reference_that_is_null_as_an_empty_text) {
  storeAssignment(83700001, "", "adm_ref_id = NULL");
  EXPECT_TRUE(findAssignment(assignment()));
  expectFound(83700001, "");
}

TEST_F(ALookup, of_an_assignment_fails_in_the_box_on_what_breaks_its_statement) {
  storeAssignment(83700001, "F-0001");
  struct Case {
    std::string NtcRec::*field;
    const char* value;
    const char* box;
  };
  const Case cases[] = {
      {&NtcRec::t_adm, "F'", "Erreur 1:Syntax error: an apostrophe in F'"},
      {&NtcRec::long_ew, "'", "Erreur 1:Syntax error: an apostrophe in '"},
      {&NtcRec::lat_ns, "N'", "Erreur 1:Syntax error: an apostrophe in N'"},
      {&NtcRec::long_deg, "32768", "Erreur 6:Overflow"},
      {&NtcRec::lat_sec, "-32769", "Erreur 6:Overflow"},
      {&NtcRec::lat_min, "1e999", "Erreur 6:Overflow"},
      {&NtcRec::t_freq_assgn, "1e999", "Erreur 1:Syntax error: no number in the statement: inf"},
  };
  for (const Case& one : cases) {
    NtcRec ntc = assignment();
    ntc.*one.field = one.value;
    EXPECT_FALSE(findAssignment(ntc));
    expectOnlyBox(one.box, "findAssignmentByElements");
    script.boxes.clear();
  }
  expectUntouched();
}

TEST_F(ALookup, finds_an_allotment_by_its_area_when_it_has_a_sub_area) {
  storeContour(1, 10, "3");
  storeAllotment(83700001, "F-0001", "CENTRE", {1});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_geo_area = "CENTRE";
  ntc.digital.allot.t_contour_id[0] = "99";
  EXPECT_TRUE(findAllotment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, never_matches_an_allotment_without_sub_areas) {
  storeAllotment(83700001, "F-0001", "CENTRE", {});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_geo_area = "CENTRE";
  EXPECT_FALSE(findAllotment(ntc));
  expectUntouched();
  expectNoBox();
}

TEST_F(ALookup, finds_an_allotment_by_any_sub_area_that_both_have) {
  storeContour(1, 10, "3");
  storeContour(2, 11, "NULL");
  storeAllotment(83700001, "F-0001", "", {1, 2});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"99", "11"};
  EXPECT_TRUE(findAllotment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_allotment_looks_at_as_many_places_as_are_told_and_at_the_first_in_any_case) {
  storeContour(1, 10, "3");
  storeAllotment(83700001, "F-0001", "", {1});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_contour_id = {"99", "10"};
  for (const char* told : {"", "1", "0", "-4", "x"}) {
    ntc.digital.allot.t_nb_sub_areas = told;
    EXPECT_FALSE(findAllotment(ntc)) << told;
  }
  expectUntouched();
  ntc.digital.allot.t_contour_id = {"10"};
  for (const char* told : {"", "1", "0", "x"}) {
    ntc.digital.allot.t_nb_sub_areas = told;
    EXPECT_TRUE(findAllotment(ntc)) << told;
  }
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_allotment_looks_at_all_ten_places) {
  storeContour(1, 10, "3");
  storeAllotment(83700001, "F-0001", "", {1});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_contour_id = {"91", "92", "93", "94", "95", "96", "97", "98", "99", "10"};
  ntc.digital.allot.t_nb_sub_areas = "9";
  EXPECT_FALSE(findAllotment(ntc));
  ntc.digital.allot.t_nb_sub_areas = "1e999";
  EXPECT_TRUE(findAllotment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_allotment_asks_for_administration_and_frequency) {
  storeContour(1, 10, "3");
  storeAllotment(83700001, "F-0001", "", {1});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_contour_id[0] = "10";
  ntc.t_adm = "D";
  EXPECT_FALSE(findAllotment(ntc));
  ntc.t_adm = "F";
  ntc.t_freq_assgn = "482";
  EXPECT_FALSE(findAllotment(ntc));
  expectUntouched();
  expectNoBox();
}

TEST_F(ALookup, of_an_allotment_gives_the_one_that_was_stored_first_whatever_the_order_of_contours) {
  storeContour(1, 20, "3");
  storeContour(2, 10, "3");
  storeAllotment(83700001, "F-0001", "", {1});
  storeAllotment(83700002, "F-0002", "", {2});
  storeAllotment(83700003, "F-0003", "", {2, 1});
  NtcRec ntc = allotment();
  ntc.digital.allot.t_nb_sub_areas = "2";
  ntc.digital.allot.t_contour_id = {"10", "20"};
  EXPECT_TRUE(findAllotment(ntc));
  expectFound(83700001, "F-0001");
}

TEST_F(ALookup, of_an_allotment_fails_in_the_box_on_what_breaks_its_statement) {
  storeContour(1, 10, "3");
  storeAllotment(83700001, "F-0001", "CENTRE", {1});
  NtcRec good = allotment();
  good.digital.allot.t_contour_id[0] = "10";
  const auto expectBroken = [this](const NtcRec& ntc, std::string_view box) {
    EXPECT_FALSE(findAllotment(ntc));
    expectOnlyBox(box, "findAllotmentByElements");
    expectUntouched();
    script.boxes.clear();
  };
  NtcRec ntc = good;
  ntc.digital.allot.t_geo_area = "VAL-D'OISE";
  expectBroken(ntc, "Erreur 1:Syntax error: an apostrophe in VAL-D'OISE");
  ntc = good;
  ntc.t_adm = "F'";
  expectBroken(ntc, "Erreur 1:Syntax error: an apostrophe in F'");
  ntc = good;
  ntc.t_freq_assgn = "";
  expectBroken(ntc, "Erreur 1:Syntax error: no number in the statement: ");
  ntc = good;
  ntc.t_freq_assgn = "474 OR 1 = 1";
  expectBroken(ntc, "Erreur 1:Syntax error: no number in the statement: 474 OR 1 = 1");
  ntc = good;
  ntc.digital.allot.t_contour_id[0] = "";
  expectBroken(ntc, "Erreur 1:Syntax error: no number in the statement: ");
  ntc = good;
  ntc.digital.allot.t_nb_sub_areas = "2";
  expectBroken(ntc, "Erreur 1:Syntax error: no number in the statement: ");
  ntc.digital.allot.t_contour_id[1] = "contourkey";
  expectBroken(ntc, "Erreur 1:Syntax error: no number in the statement: contourkey");
}

TEST_F(ALookup, of_a_contour_that_is_not_there_finds_nothing_and_is_no_problem) {
  storeContour(5, 10, "3", "F", "F");
  for (const auto& [id, ctry, adm] :
       {std::tuple(11, "F", "F"), std::tuple(10, "D", "F"), std::tuple(10, "F", "D")}) {
    const FoundContour contour = findContour(host, id, ctry, adm, "4", connection);
    EXPECT_FALSE(contour.found);
    EXPECT_FALSE(contour.problem);
    EXPECT_FALSE(contour.hasPoints);
    EXPECT_EQ(contour.contourkey, 0);
    EXPECT_EQ(contour.question, "");
  }
  expectNoBox();
}

TEST_F(ALookup, of_a_contour_with_points_has_the_question_ready) {
  storeContour(5, 10, "3");
  const FoundContour contour = findContour(host, 10, "F", "F", "4", connection);
  EXPECT_TRUE(contour.found);
  EXPECT_FALSE(contour.problem);
  EXPECT_TRUE(contour.hasPoints);
  EXPECT_EQ(contour.contourkey, 5);
  EXPECT_EQ(contour.question,
            "Do you want to overwrite : \r\n"
            "Contour ID : 10 defined with 3 test points  WITH\r\n"
            "Contour ID : 10 defined with 4 test points ?");
  expectNoBox();
}

TEST_F(ALookup, of_a_contour_that_was_only_named_finds_it_without_points) {
  storeContour(5, 10, "NULL");
  const FoundContour contour = findContour(host, 10, "f", "f", "4", connection);
  EXPECT_TRUE(contour.found);
  EXPECT_FALSE(contour.problem);
  EXPECT_FALSE(contour.hasPoints);
  EXPECT_EQ(contour.contourkey, 5);
  EXPECT_EQ(contour.question, "");
  expectNoBox();
}

TEST_F(ALookup, of_a_contour_that_is_there_twice_tells_of_the_problem) {
  storeContour(5, 10, "3");
  storeContour(6, 10, "NULL");
  const FoundContour contour = findContour(host, 10, "F", "F", "4", connection);
  EXPECT_FALSE(contour.found);
  EXPECT_TRUE(contour.problem);
  EXPECT_FALSE(contour.hasPoints);
  EXPECT_EQ(contour.contourkey, 0);
  EXPECT_EQ(contour.question, "");
  expectOnlyBox("Problem : Contour ID is not unique !! Please consult the adminstrator", "");
}

TEST_F(ALookup, of_a_contour_fails_in_the_box_on_an_apostrophe) {
  storeContour(5, 10, "3");
  EXPECT_FALSE(findContour(host, 10, "F'", "F", "4", connection).found);
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in F'", "findContour");
  script.boxes.clear();
  EXPECT_FALSE(findContour(host, 10, "F", "'F", "4", connection).problem);
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in 'F", "findContour");
}

TEST_F(ALookup, compares_the_points_that_a_contour_tells_with_those_it_has) {
  storeContour(5, 10, "3");
  storePoints(5, 2);
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F", connection));
  storePoints(5, 1);
  EXPECT_TRUE(contourPointCountMatches(host, "10", "F", "F", connection));
  EXPECT_FALSE(contourPointCountMatches(host, "11", "F", "F", connection));
  EXPECT_FALSE(contourPointCountMatches(host, "10", "D", "F", connection));
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "D", connection));
  storePoints(5, 1);
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F", connection));
  expectNoBox();
}

TEST_F(ALookup, of_the_points_passes_over_a_contour_that_tells_no_number) {
  storeContour(5, 10, "NULL");
  storePoints(5, 3);
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F", connection));
  storeContour(6, 10, "2.5");
  storePoints(6, 2);
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F", connection));
  storeContour(7, 10, "2");
  storePoints(7, 2);
  EXPECT_TRUE(contourPointCountMatches(host, "10", "F", "F", connection));
  expectNoBox();
}

TEST_F(ALookup, of_the_points_fails_in_the_box_on_what_breaks_its_statement) {
  storeContour(5, 10, "0");
  EXPECT_FALSE(contourPointCountMatches(host, "", "F", "F", connection));
  expectOnlyBox("Erreur 1:Syntax error: no number in the statement: ", "contourPointCountMatches");
  script.boxes.clear();
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F'", "F", connection));
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in F'", "contourPointCountMatches");
  script.boxes.clear();
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F'", connection));
  expectOnlyBox("Erreur 1:Syntax error: an apostrophe in F'", "contourPointCountMatches");
}

TEST_F(ALookup, counts_the_points_of_a_contour) {
  storeContour(5, 10, "NULL");
  EXPECT_FALSE(hasContourPoints(host, 5, connection));
  EXPECT_TRUE(countContourPoints(host, 0, 5, connection));
  storePoints(5, 2);
  EXPECT_TRUE(hasContourPoints(host, 5, connection));
  EXPECT_FALSE(hasContourPoints(host, 6, connection));
  EXPECT_TRUE(countContourPoints(host, 2, 5, connection));
  EXPECT_FALSE(countContourPoints(host, 1, 5, connection));
  EXPECT_FALSE(countContourPoints(host, 3, 5, connection));
  EXPECT_FALSE(countContourPoints(host, 0, 5, connection));
  expectNoBox();
}

TEST_F(ALookup, that_its_table_fails_is_told_under_its_own_name) {
  storeContour(5, 10, "3");
  raw.run(
      "ALTER TABLE lmz_contour_pt RENAME TO a; ALTER TABLE fmtv_vorna RENAME TO b; ALTER TABLE fmtv_keys "
      "RENAME TO c");
  EXPECT_FALSE(hasContourPoints(host, 5, connection));
  expectOnlyBox("Erreur 1:no such table: lmz_contour_pt", "hasContourPoints");
  script.boxes.clear();
  EXPECT_FALSE(countContourPoints(host, 0, 5, connection));
  expectOnlyBox("Erreur 1:no such table: lmz_contour_pt", "countContourPoints");
  script.boxes.clear();
  EXPECT_FALSE(contourPointCountMatches(host, "10", "F", "F", connection));
  expectOnlyBox("Erreur 1:no such table: lmz_contour_pt", "countContourPoints");
  script.boxes.clear();
  EXPECT_EQ(getNoticeType(host, 5, connection), "");
  expectOnlyBox("Erreur 1:no such table: fmtv_vorna", "getNoticeType");
  script.boxes.clear();
  std::string text = "before";
  EXPECT_FALSE(getTargetElements(host, 5, text, text, text, connection));
  EXPECT_EQ(text, "before");
  expectOnlyBox("Erreur 1:no such table: fmtv_vorna", "getTargetElements");
  script.boxes.clear();
  EXPECT_FALSE(getLastVornaKey(host, connection, key));
  expectOnlyBox("Erreur 1:no such table: fmtv_keys", "getLastVornaKey");
  script.boxes.clear();
  EXPECT_FALSE(getLastContourKey(host, connection, key));
  expectOnlyBox("Erreur 1:no such table: fmtv_keys", "getLastContourKey");
  expectUntouched();
}

TEST_F(ALookup, of_a_target_gives_frequency_and_signed_coordinates) {
  storeAssignment(83700001, "F-0001", "freq_assgn = 176.64, long_deg = 7, long_min = 5, long_sec = NULL");
  storeAssignment(83700002, "F-0002",
                  "long_deg = 70, long_ew = 'w', lat_deg = 5, lat_min = 4, lat_sec = 3, lat_ns = 's'");
  std::string frequency;
  std::string longitude;
  std::string latitude;
  EXPECT_TRUE(getTargetElements(host, 83700001, frequency, longitude, latitude, connection));
  EXPECT_EQ(frequency, "176.64");
  EXPECT_EQ(longitude, "+0070500");
  EXPECT_EQ(latitude, "+485124");
  EXPECT_TRUE(getTargetElements(host, 83700002, frequency, longitude, latitude, connection));
  EXPECT_EQ(frequency, "474");
  EXPECT_EQ(longitude, "-0702057");
  EXPECT_EQ(latitude, "-050403");
  EXPECT_FALSE(getTargetElements(host, 83700003, frequency, longitude, latitude, connection));
  EXPECT_EQ(frequency, "474");
  EXPECT_EQ(longitude, "-0702057");
  EXPECT_EQ(latitude, "-050403");
  expectNoBox();
}

TEST_F(ALookup, of_a_target_without_elements_gives_empty_texts) {
  raw.run("INSERT INTO fmtv_vorna (vornakey) VALUES (83700001)");
  std::string frequency = "before";
  std::string longitude = "before";
  std::string latitude = "before";
  EXPECT_TRUE(getTargetElements(host, 83700001, frequency, longitude, latitude, connection));
  EXPECT_EQ(frequency, "");
  EXPECT_EQ(longitude, "");
  EXPECT_EQ(latitude, "");
  expectNoBox();
}

TEST_F(ALookup, gives_a_notice_type_as_it_is_stored) {
  storeAssignment(83700001, "F-0001", "notice_typ = ' gt1 '");
  storeAssignment(83700002, "F-0002", "notice_typ = NULL");
  EXPECT_EQ(getNoticeType(host, 83700001, connection), " gt1 ");
  EXPECT_EQ(getNoticeType(host, 83700002, connection), "");
  EXPECT_EQ(getNoticeType(host, 83700003, connection), "");
  expectNoBox();
}

TEST_F(ALookup, gives_the_keys_of_a_selection_in_its_order) {
  storeAssignment(83700002, "F-0002");
  storeAssignment(83700001, "F-0001");
  storeAssignment(80100003, "F-0003");
  Keys list = {9};
  std::int32_t count = -1;
  EXPECT_TRUE(getVornaKeyList(host, list,
                              "SELECT fmtv_vorna.vornakey AS VornaKey FROM fmtv_vorna ORDER by adm_ref_id",
                              count, connection));
  EXPECT_EQ(list, (Keys{83700001, 83700002, 80100003}));
  EXPECT_EQ(count, 3);
  EXPECT_TRUE(getVornaKeyList(host, list, "SELECT fmtv_vorna.vornakey FROM fmtv_vorna ", count, connection));
  EXPECT_EQ(list, (Keys{80100003, 83700001, 83700002}));
  EXPECT_EQ(count, 3);
  expectNoBox();
}

TEST_F(ALookup, gives_the_contours_of_a_selection) {
  storeContour(8, 10, "3");
  storeContour(5, 11, "NULL");
  storeContour(6, 12, "4");
  Keys list;
  std::int32_t count = -1;
  EXPECT_TRUE(getContourKeyList(
      host, list, count, "SELECT lmz_contour.contourkey FROM lmz_contour WHERE lmz_contour.nb_test_pts > 0 ",
      connection));
  EXPECT_EQ(list, (Keys{6, 8}));
  EXPECT_EQ(count, 2);
  expectNoBox();
}

TEST_F(ALookup, of_an_empty_selection_gives_the_count_and_leaves_the_list) {
  Keys list = {9};
  std::int32_t count = -1;
  EXPECT_TRUE(getVornaKeyList(host, list, "SELECT vornakey FROM fmtv_vorna", count, connection));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(list, Keys{9});
  count = -1;
  EXPECT_TRUE(getContourKeyList(host, list, count, "SELECT contourkey FROM lmz_contour", connection));
  EXPECT_EQ(count, 0);
  EXPECT_EQ(list, Keys{9});
  expectNoBox();
}

TEST_F(ALookup, of_a_selection_that_fails_leaves_list_and_count) {
  storeAssignment(83700001, "F-0001");
  storeContour(5, 10, "3");
  Keys list = {9};
  std::int32_t count = -1;
  const auto expectFailed = [&](bool result, std::string_view box, std::string_view title) {
    EXPECT_FALSE(result);
    expectOnlyBox(box, title);
    EXPECT_EQ(list, Keys{9});
    EXPECT_EQ(count, -1);
    script.boxes.clear();
  };
  expectFailed(getVornaKeyList(host, list, "SELECT vornakey FROM fmtv_vorna WHERE site_name = 'O'X'", count,
                               connection),
               "Erreur 1:near \"X\": syntax error", "getVornaKeyList");
  expectFailed(getVornaKeyList(host, list, "DELETE FROM fmtv_vorna", count, connection),
               "Erreur 5:A recordset takes one SELECT and nothing else", "getVornaKeyList");
  expectFailed(getVornaKeyList(host, list, "SELECT adm FROM fmtv_vorna", count, connection),
               "Erreur 9:No such field", "getVornaKeyList");
  expectFailed(getVornaKeyList(host, list, "SELECT NULL AS vornakey", count, connection),
               "Erreur 13:Type mismatch", "getVornaKeyList");
  expectFailed(getVornaKeyList(host, list, "SELECT 'x' AS vornakey", count, connection),
               "Erreur 13:Type mismatch", "getVornaKeyList");
  expectFailed(getVornaKeyList(host, list, "SELECT 2147483648 AS vornakey", count, connection),
               "Erreur 6:Overflow", "getVornaKeyList");
  expectFailed(getContourKeyList(host, list, count, "SELECT contourkey FROM lmz_contour WHERE", connection),
               "Erreur 1:incomplete input", "getContourKeyList");
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_vorna"), "1");
}

TEST_F(ALookup, counts_the_rows_of_both_selections) {
  storeAssignment(83700001, "F-0001");
  storeAssignment(83700002, "F-0002");
  storeContour(5, 10, "3");
  EXPECT_EQ(countSelectedRecords(
                host, connection, "SELECT fmtv_vorna.vornakey FROM fmtv_vorna ",
                "SELECT lmz_contour.contourkey FROM lmz_contour WHERE lmz_contour.nb_test_pts > 0 "),
            3);
  EXPECT_EQ(countSelectedRecords(host, connection, "SELECT vornakey FROM fmtv_vorna WHERE adm = 'D'",
                                 "SELECT contourkey FROM lmz_contour WHERE adm = 'D'"),
            0);
  expectNoBox();
}

TEST_F(ALookup, counts_nothing_when_either_selection_fails) {
  storeAssignment(83700001, "F-0001");
  const char* good = "SELECT vornakey FROM fmtv_vorna";
  const char* bad = "SELECT vornakey FROM fmtv_vorna WHERE d_updated > #02/31/2005#";
  EXPECT_EQ(countSelectedRecords(host, connection, bad, good), 0);
  expectOnlyBox("Erreur 1:Syntax error in date #02/31/2005#", "countSelectedRecords");
  script.boxes.clear();
  EXPECT_EQ(countSelectedRecords(host, connection, good, bad), 0);
  expectOnlyBox("Erreur 1:Syntax error in date #02/31/2005#", "countSelectedRecords");
}

TEST_F(ALookup, gives_the_last_keys_that_were_taken) {
  raw.run("UPDATE fmtv_keys SET vornakey = 17, allotkey = 5, contourkey = 42");
  std::int32_t number = 0;
  EXPECT_TRUE(getLastVornaKey(host, connection, number));
  EXPECT_EQ(number, 16);
  EXPECT_TRUE(getLastContourKey(host, connection, number));
  EXPECT_EQ(number, 41);
  expectNoBox();
}

TEST_F(ALookup, gives_no_last_key_of_an_empty_table) {
  raw.run("DELETE FROM fmtv_keys");
  EXPECT_FALSE(getLastVornaKey(host, connection, key));
  EXPECT_FALSE(getLastContourKey(host, connection, key));
  expectUntouched();
  expectNoBox();
}

}  // namespace
}  // namespace zamo
