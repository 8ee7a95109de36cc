#include "database/write_notice.h"

#include <gtest/gtest.h>

#include "database/notice_store.h"

namespace zamo {
namespace {

using test::Columns;
using test::isAmong;
using test::kAwkward;
using test::kNotSaved;
using test::makeAllotmentOf;
using test::makeBareNotice;
using test::makeCoordination;
using test::makeFullNotice;
using test::NoticeStore;
using test::refusedIn;
using test::Rows;
using test::Texts;
using test::wordsOf;

class StoringANotice : public NoticeStore {
 protected:
  // The columns in radians, to all their digits.
  double radians(const std::string& column, std::int32_t key) {
    return std::stod(value("SELECT printf('%!.17g', " + column +
                           ") FROM fmtv_vorna WHERE vornakey = " + std::to_string(key)));
  }
};

// --- fmtv_vorna

TEST_F(StoringANotice, sets_what_the_program_says_itself_and_nothing_that_is_empty) {
  for (const std::string& type : wordsOf(test::kTypesWithRow)) {
    SCOPED_TRACE(type);
    const NtcRec ntc = stored(makeBareNotice(type));
    Columns expected;
    for (const auto& [column, unused] : vornaRow(ntc.vornakey)) expected[column] = "NULL";
    expected["vornakey"] = std::to_string(ntc.vornakey);
    expected["adm"] = "F";
    expected["notice_typ"] = type;
    expected["src_update"] = "UQX";
    expected["src_notice"] = "NOTIFIER";
    expected["is_public"] = "FALSE";
    expected["is_digital"] = "TRUE";
    expected["is_notice"] = "TRUE";
    expected["amend_type"] = "NOT AMENDED";
    EXPECT_EQ(vornaRow(ntc.vornakey), expected);
  }
}

TEST_F(StoringANotice, puts_each_field_in_its_column_and_nowhere_else) {
  for (const std::string& type : wordsOf(test::kTypesWithRow)) {
    const Columns bare = vornaRow(stored(makeBareNotice(type)).vornakey);
    for (const test::VornaField& field : test::kVornaFields) {
      SCOPED_TRACE(type + " " + field.column);
      NtcRec ntc = makeBareNotice(type);
      field.text.of(ntc) = field.given;
      ntc = stored(ntc);
      Columns expected = bare;
      expected["vornakey"] = std::to_string(ntc.vornakey);
      if (isAmong(field.added, type)) expected[field.column] = field.stored;
      EXPECT_EQ(vornaRow(ntc.vornakey), expected);
    }
  }
}

TEST_F(StoringANotice, takes_an_administration_and_a_type_with_an_apostrophe) {
  NtcRec ntc = makeBareNotice(kAwkward);
  ntc.t_adm = kAwkward;
  const Columns row = vornaRow(stored(ntc).vornakey);
  EXPECT_EQ(row.at("adm"), kAwkward);
  EXPECT_EQ(row.at("notice_typ"), kAwkward);
}

TEST_F(StoringANotice, prefers_the_plan_to_the_fragment) {
  NtcRec ntc = makeTb2();
  ntc.t_fragment = "NTFD_PZ";
  const Columns row = vornaRow(stored(ntc).vornakey);
  EXPECT_EQ(row.at("fragment"), "KV19D");
  EXPECT_EQ(row.at("is_public"), "TRUE");
}

TEST_F(StoringANotice, is_public_under_art_5_in_any_case) {
  for (const auto& [fragment, isPublic] :
       {std::pair("NTFD_PZ", "TRUE"), {"ntfd_pz", "TRUE"}, {"NTFD_P", "FALSE"}, {"KV19D", "FALSE"}}) {
    NtcRec ntc = makeBareNotice("GT1");
    ntc.t_fragment = fragment;
    EXPECT_EQ(vornaRow(stored(ntc).vornakey).at("is_public"), isPublic) << fragment;
  }
}

TEST_F(StoringANotice, takes_the_reference_of_the_target_for_an_action) {
  for (const std::string& type : wordsOf("TB2 TB3 TB5")) {
    NtcRec ntc = makeBareNotice(type);
    ntc.t_adm_ref_id = "own";
    EXPECT_EQ(vornaRow(stored(ntc).vornakey).at("adm_ref_id"), "own") << type;
    ntc.t_trg_adm_ref_id = "target";
    EXPECT_EQ(vornaRow(stored(ntc).vornakey).at("adm_ref_id"), "target") << type;
  }
}

TEST_F(StoringANotice, stores_powers_in_the_planes_of_its_polarization) {
  const std::vector<Texts> cases = {{"H", "43.0", "NULL"}, {"V", "NULL", "40.0"}, {"M", "43.0", "40.0"},
                                    {"U", "43.0", "40.0"}, {"", "NULL", "NULL"},  {"m", "NULL", "NULL"}};
  for (const Texts& one : cases) {
    NtcRec ntc = makeBareNotice("GT1");
    ntc.t_polar = one[0];
    ntc.t_erp_h_dbw = "43";
    ntc.t_erp_v_dbw = "40";
    const Columns row = vornaRow(stored(ntc).vornakey);
    EXPECT_EQ(row.at("erp_h_dbw"), one[1]) << one[0];
    EXPECT_EQ(row.at("erp_v_dbw"), one[2]) << one[0];
    ntc.t_erp_h_dbw = ntc.t_erp_v_dbw = "";
    const Columns empty = vornaRow(stored(ntc).vornakey);
    EXPECT_EQ(empty.at("erp_h_dbw"), "NULL") << one[0];
    EXPECT_EQ(empty.at("erp_v_dbw"), "NULL") << one[0];
  }
}

TEST_F(StoringANotice, fills_an_operating_agency_up_to_three_digits) {
  for (const auto& [given, agency] :
       {std::pair("7", "007"), {"12", "012"}, {"123", "123"}, {"1234", "1234"}}) {
    NtcRec ntc = makeBareNotice("GT1");
    ntc.t_op_agcy = given;
    EXPECT_EQ(vornaRow(stored(ntc).vornakey).at("op_agcy"), agency);
  }
}

TEST_F(StoringANotice, computes_radians_with_the_constant_of_twelve_decimals) {
  NtcRec ntc = makeGt1();
  ntc.long_deg = "170", ntc.long_min = "24", ntc.long_sec = "10", ntc.long_ew = "W";
  ntc.lat_deg = "80", ntc.lat_min = "5", ntc.lat_sec = "30", ntc.lat_ns = "S";
  ntc = stored(ntc);
  EXPECT_NEAR(radians("long_rdn", ntc.vornakey), -2.9740895267656975, 1e-15);
  EXPECT_NEAR(radians("lat_rdn", ntc.vornakey), -1.3978632867427723, 1e-15);
  ntc.long_ew = "E", ntc.lat_ns = "N";
  ntc = stored(ntc);
  EXPECT_NEAR(radians("long_rdn", ntc.vornakey), 2.9740895267656975, 1e-15);
  EXPECT_NEAR(radians("lat_rdn", ntc.vornakey), 1.3978632867427723, 1e-15);
}

TEST_F(StoringANotice, has_no_radians_without_minutes_seconds_or_hemisphere) {
  for (const TextMember& part :
       {textAt<&NtcRec::long_min>, textAt<&NtcRec::long_sec>, textAt<&NtcRec::long_ew>}) {
    NtcRec ntc = makeGt1();
    part.of(ntc).clear();
    const Columns row = vornaRow(stored(ntc).vornakey);
    EXPECT_EQ(row.at("long_rdn"), "NULL");
    EXPECT_NE(row.at("lat_rdn"), "NULL");
  }
  for (const TextMember& part :
       {textAt<&NtcRec::lat_min>, textAt<&NtcRec::lat_sec>, textAt<&NtcRec::lat_ns>}) {
    NtcRec ntc = makeGs1();
    part.of(ntc).clear();
    const Columns row = vornaRow(stored(ntc).vornakey);
    EXPECT_NE(row.at("long_rdn"), "NULL");
    EXPECT_EQ(row.at("lat_rdn"), "NULL");
  }
}

TEST_F(StoringANotice, has_no_radians_in_a_tb2) {
  NtcRec ntc = makeGt1();
  ntc.t_notice_type = "TB2";
  const Columns row = vornaRow(stored(ntc).vornakey);
  EXPECT_EQ(row.at("long_rdn"), "NULL");
  EXPECT_EQ(row.at("lat_rdn"), "NULL");
  EXPECT_EQ(row.at("long_deg"), "NULL");
}

TEST_F(StoringANotice, fails_when_radians_are_due_and_a_part_is_no_number) {
  for (const TextMember& part :
       {textAt<&NtcRec::long_deg>, textAt<&NtcRec::long_min>, textAt<&NtcRec::long_sec>,
        textAt<&NtcRec::lat_deg>, textAt<&NtcRec::lat_min>, textAt<&NtcRec::lat_sec>}) {
    NtcRec ntc = makeGt1();
    part.of(ntc) = "4x";
    expectNotStored(ntc, {"writeToKv19VornaTable: Erreur 13:Type mismatch", kNotSaved});
  }
  for (const TextMember& degrees : {textAt<&NtcRec::long_deg>, textAt<&NtcRec::lat_deg>}) {
    NtcRec ntc = makeGt1();
    degrees.of(ntc).clear();
    expectNotStored(ntc, {"writeToKv19VornaTable: Erreur 13:Type mismatch", kNotSaved});
  }
}

TEST_F(StoringANotice, fails_when_a_value_is_not_of_the_kind_of_its_column) {
  stored(makeGs1());
  NtcRec ntc = makeGt1();
  ntc.t_freq_assgn = "high";
  expectNotStored(
      ntc, {"writeToKv19VornaTable: Erreur 3091:cannot store TEXT value in REAL column fmtv_vorna.freq_assgn",
            kNotSaved});
  ntc = makeGt1();
  ntc.t_d_inuse = "31.02.2009";
  const auto before = everything();
  EXPECT_FALSE(store(ntc));
  ASSERT_EQ(script.boxes.size(), 2U);
  EXPECT_EQ(script.boxes[0].title, "writeToKv19VornaTable");
  EXPECT_EQ(everything(), before);
}

// --- Keys

TEST_F(StoringANotice, takes_keys_from_the_block_of_its_administration) {
  const NtcRec first = stored(makeFullNotice("GT2"));
  EXPECT_EQ(first.vornakey, 83700001);
  EXPECT_EQ(value("SELECT allotkey FROM lmz_allotment"), "83700001");
  EXPECT_EQ(rows("SELECT contourkey FROM lmz_contour"), (Rows{{"1"}, {"2"}}));
  EXPECT_EQ(rows("SELECT * FROM fmtv_keys"), (Rows{{"2", "2", "3"}}));
  NtcRec second = makeFullNotice("GS2");
  second.t_adm = "AFS";
  EXPECT_EQ(stored(second).vornakey, 80100002);
  EXPECT_EQ(value("SELECT max(contourkey) FROM lmz_contour"), "4");
  EXPECT_EQ(value("SELECT min(allotkey) FROM lmz_allotment"), "80100002");
  NtcRec third = makeBareNotice("TB5");
  third.t_adm = "XYZ";
  EXPECT_EQ(stored(third).vornakey, 3);
  EXPECT_EQ(rows("SELECT * FROM fmtv_keys"), (Rows{{"4", "3", "5"}}));
}

TEST_F(StoringANotice, is_refused_when_there_is_not_one_row_of_counters) {
  const std::string noVornaKey =
      "Error Reading the database (!): There is more than one Vornakey. Please consult your administrator!";
  const std::string noAllotKey =
      "Error Reading the database (!): There is more than one Allokey. Please consult your administrator!";
  for (const char* damage : {"INSERT INTO fmtv_keys VALUES (5, 5, 5)", "DELETE FROM fmtv_keys"}) {
    SCOPED_TRACE(damage);
    raw.run(damage);
    expectNotStored(makeGt1(), {noVornaKey, kNotSaved});
    expectNotStored(makeTb5(), {noVornaKey, kNotSaved});
    expectNotStored(makeGa1(), {noAllotKey, kNotSaved});
    std::int32_t key = 77;
    EXPECT_FALSE(writeAllotKeyTable(host, key, "F", connection));
    expectTold({noAllotKey});
    EXPECT_EQ(key, 77);
  }
}

TEST_F(StoringANotice, makes_neither_allotment_nor_link_when_their_counters_fail) {
  refuseRowsOf("fmtv_keys", "UPDATE OF allotkey");
  expectNotStored(makeFullNotice("GT2"), {refusedIn("writeAllotKeyTable"), kNotSaved});
  refuseNoMore();
  refuseRowsOf("fmtv_keys", "UPDATE OF contourkey");
  expectNotStored(makeFullNotice("GT2"),
                  {refusedIn("writeContourKeyTable"), refusedIn("writeContourKeyTable"), kNotSaved});
  expectNotStored(makeGa1(), {refusedIn("writeContourKeyTable"), kNotSaved});
  refuseNoMore();
  refuseRowsOf("fmtv_keys", "UPDATE OF vornakey");
  expectNotStored(makeFullNotice("GT2"), {refusedIn("writeVornaKeyTable"), kNotSaved});
}

TEST_F(StoringANotice, is_refused_when_keys_have_run_out) {
  raw.run("UPDATE fmtv_keys SET vornakey = 2147483647");
  NtcRec ntc = makeBareNotice("TB5");
  expectNotStored(ntc, {"writeVornaKeyTable: Erreur 6:Overflow", kNotSaved});
  raw.run("UPDATE fmtv_keys SET vornakey = 2147483648");
  ntc.t_adm = "XYZ";
  expectNotStored(ntc, {"writeVornaKeyTable: Erreur 6:Overflow", kNotSaved});
}

TEST_F(StoringANotice, gives_its_key_back_when_it_is_rolled_back) {
  NtcRec bad = makeGt1();
  bad.t_freq_assgn = "high";
  EXPECT_FALSE(store(bad));
  script.boxes.clear();
  EXPECT_EQ(stored(makeGt1()).vornakey, 83700001);
}

// --- Child rows

TEST_F(StoringANotice, has_a_row_of_history_with_what_is_given) {
  NtcRec ntc = makeBareNotice("TB3");
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM proc_ntc_hist"), (Rows{{"83700001", "NULL", "NULL", "NULL"}}));
  ntc.digital.t_email_addr = kAwkward;
  ntc.src_update = kAwkward;
  ntc.d_updated = "2009-01-15";
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM proc_ntc_hist WHERE vornakey = 83700002"),
            (Rows{{"83700002", kAwkward, kAwkward, "2009-01-15"}}));
}

TEST_F(StoringANotice, has_a_row_for_each_administration_coordinated_with) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.coord = makeCoordination({"BEL", "", kAwkward});
  ntc.coord.entries[0].coord_prov = ntc.coord.entries[0].decl_affct = "x";
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_coord"),
            (Rows{{"83700001", "BEL", "COORD", "COORD COMPLETED", "NOTIFIER", " ", "NULL"},
                  {"83700001", kAwkward, "COORD", "COORD COMPLETED", "NOTIFIER", " ", "NULL"}}));
  ntc.d_rcv = "2009-01-15";
  stored(ntc);
  EXPECT_EQ(rows("SELECT DISTINCT d_coord_st FROM fmtv_coord WHERE vornakey = 83700002"),
            (Rows{{"2009-01-15"}}));
}

TEST_F(StoringANotice, stops_at_the_first_administration_that_fails) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.coord = makeCoordination({"BEL", "SUI"});
  refuseRowsOf("fmtv_coord");
  expectNotStored(ntc, {refusedIn("writeTokv19CoordTable"), kNotSaved});
}

TEST_F(StoringANotice, cuts_remarks_into_pieces_of_80_characters) {
  const std::string of80(80, 'a');
  const std::string with80 = std::string(78, 'b') + " \351";
  NtcRec ntc = makeBareNotice("GT1");
  ntc.t_remarks = of80;
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_rmks"), (Rows{{"83700001", of80, "0", "ASSIGNMENT"}}));
  ntc.t_remarks = with80 + "'; " + of80;
  ntc.t_int_remarks = of80 + "c";
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_rmks WHERE vornakey = 83700002"),
            (Rows{{"83700002", std::string(78, 'b') + " \303\251", "0", "ASSIGNMENT"},
                  {"83700002", "'; " + std::string(77, 'a'), "1", "ASSIGNMENT"},
                  {"83700002", "aaa", "2", "ASSIGNMENT"},
                  {"83700002", of80, "0", "SCRATCHPAD"},
                  {"83700002", "c", "1", "SCRATCHPAD"}}));
}

TEST_F(StoringANotice, has_no_row_of_empty_remarks) {
  stored(makeGt1());
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_rmks"), "0");
}

TEST_F(StoringANotice, has_operating_hours_in_an_assignment_and_a_tb2_alone) {
  for (const std::string& type : wordsOf("GT1 GS1 TB2")) {
    NtcRec ntc = makeBareNotice(type);
    ntc.op_hours = {true, "0600", "'; "};
    const std::string key = std::to_string(stored(ntc).vornakey);
    EXPECT_EQ(rows("SELECT * FROM fmtv_op_prd"), (Rows{{key, "0600", "'; "}})) << type;
    raw.run("DELETE FROM fmtv_op_prd");
    ntc.op_hours = {true, "", ""};
    const std::string emptyKey = std::to_string(stored(ntc).vornakey);
    EXPECT_EQ(rows("SELECT * FROM fmtv_op_prd"), (Rows{{emptyKey, "NULL", "NULL"}})) << type;
    raw.run("DELETE FROM fmtv_op_prd");
    ntc.op_hours = {false, "0600", "1800"};
    stored(ntc);
    EXPECT_EQ(value("SELECT count(*) FROM fmtv_op_prd"), "0") << type;
  }
  for (const std::string& type : wordsOf("GT2 GS2 TB3 TB5")) {
    NtcRec ntc = makeBareNotice(type);
    ntc.op_hours = {true, "0600", "1800"};
    stored(ntc);
    EXPECT_EQ(value("SELECT count(*) FROM fmtv_op_prd"), "0") << type;
  }
}

TEST_F(StoringANotice, has_a_target_as_a_modification_of_a_notified_assignment_alone) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.t_action = "MODIFY";
  ntc.t_fragment = "NTFD_PZ";
  stored(ntc);
  EXPECT_EQ(
      rows("SELECT * FROM fmtv_art5_target"),
      (Rows{{"83700001", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL"}}));
  raw.run("DELETE FROM fmtv_art5_target");
  ntc.t_trg_adm_ref_id = kAwkward;
  ntc.t_trg_freq_assgn = "474.5";
  ntc.trg_long_deg = "2", ntc.trg_long_min = "24", ntc.trg_long_sec = "10", ntc.trg_long_ew = "E";
  ntc.trg_lat_deg = "47", ntc.trg_lat_min = "5", ntc.trg_lat_sec = "30", ntc.trg_lat_ns = "N";
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_art5_target"),
            (Rows{{"83700002", kAwkward, "474.5", "2.0", "24.0", "10.0", "E", "47.0", "5.0", "30.0", "N"}}));
  raw.run("DELETE FROM fmtv_art5_target");
  NtcRec added = ntc;
  added.t_action = "ADD";
  stored(added);
  NtcRec planned = ntc;
  planned.t_fragment = "KV19D";
  stored(planned);
  NtcRec allotment = ntc;
  allotment.t_notice_type = "GT2";
  stored(allotment);
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_art5_target"), "0");
  ntc.t_notice_type = "GS1";
  stored(ntc);
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_art5_target"), "1");
}

TEST_F(StoringANotice, has_the_heights_that_are_present_in_order) {
  NtcRec ntc = makeBareNotice("GS1");
  ntc.ant_hgt[0] = {true, "000", "250"};
  ntc.ant_hgt[1] = {false, "010", "260"};
  ntc.ant_hgt[2] = {true, "", ""};
  ntc.ant_hgt[35] = {true, "350", "-7.5"};
  stored(ntc);
  EXPECT_EQ(
      rows("SELECT * FROM fmtv_ant_hgt"),
      (Rows{{"83700001", "0.0", "250.0"}, {"83700001", "NULL", "NULL"}, {"83700001", "350.0", "-7.5"}}));
}

TEST_F(StoringANotice, has_diagrams_in_the_planes_of_its_polarization_when_directional) {
  const std::vector<Texts> cases = {// ant_dir, polar, rows of "azm attn polar"
                                    {"D", "H", "10.0 1.0 H"},
                                    {"D", "V", "20.0 2.0 V"},
                                    {"D", "M", "10.0 1.0 H", "20.0 2.0 V"},
                                    {"D", "U", "10.0 1.0 H", "20.0 2.0 V"},
                                    {"D", ""},
                                    {"ND", "M"},
                                    {"", "M"},
                                    {"d", "M"}};
  for (const Texts& one : cases) {
    NtcRec ntc = makeBareNotice("GT1");
    ntc.t_ant_dir = one[0];
    ntc.t_polar = one[1];
    ntc.ant_diagr_h[1] = {true, "010", "1"};
    ntc.ant_diagr_h[2] = {false, "020", "9"};
    ntc.ant_diagr_v[2] = {true, "020", "2"};
    stored(ntc);
    Texts found;
    for (const auto& row : rows("SELECT azm || ' ' || attn || ' ' || polar FROM fmtv_ant_diag"))
      found.push_back(row[0]);
    EXPECT_EQ(found, Texts(one.begin() + 2, one.end())) << one[0] << " " << one[1];
    raw.run("DELETE FROM fmtv_ant_diag");
  }
}

TEST_F(StoringANotice, has_no_antenna_but_in_an_assignment) {
  for (const std::string& type : wordsOf("GT2 GS2 TB2 TB3 TB5")) {
    NtcRec ntc = makeGt1();
    ntc.t_notice_type = type;
    stored(ntc);
  }
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_ant_hgt"), "0");
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_ant_diag"), "0");
}

// --- Allotments and their sub-areas

TEST_F(StoringANotice, has_an_allotment_with_what_is_given) {
  NtcRec ntc = makeBareNotice("GT2");
  stored(ntc);
  EXPECT_EQ(value("SELECT count(*) FROM lmz_allotment"), "0");
  ntc.digital.allot.present = true;
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_allotment"),
            (Rows{{"83700002", "83700001", "NULL", "NULL", "NULL", "NULL"}}));
  ntc.digital.allot.t_allot_name = kAwkward;
  ntc.digital.allot.t_typ_ref_netwk = kAwkward;
  ntc.digital.allot.t_geo_area = kAwkward;
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_allotment WHERE vornakey = 83700003"),
            (Rows{{"83700003", "83700002", kAwkward, kAwkward, kAwkward, "NULL"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "0");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "0");
}

TEST_F(StoringANotice, has_no_allotment_in_an_assignment) {
  NtcRec ntc = makeGt1();
  ntc.digital.allot.present = true;
  stored(ntc);
  EXPECT_EQ(value("SELECT count(*) FROM lmz_allotment"), "0");
}

TEST_F(StoringANotice, links_contours_and_makes_placeholders_of_those_not_notified) {
  storedContour("5");
  stored(makeAllotmentOf("2", {"5", "007"}));
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700001", "1"}, {"83700001", "2"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_contour WHERE contourkey = 2"),
            (Rows{{"2", "7.0", "F", "F", "NULL", "NULL", "NULL", "2026-03-07", "NULL"}}));
  EXPECT_EQ(value("SELECT nb_sub_areas FROM lmz_allotment"), "2.0");
  // A second allotment shares both.
  stored(makeAllotmentOf("2", {"7", "5"}));
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area WHERE allotkey = 83700002"),
            (Rows{{"83700002", "2"}, {"83700002", "1"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "2");
}

TEST_F(StoringANotice, looks_for_contours_of_its_own_country_and_administration) {
  storedContour("5");
  NtcRec ntc = makeAllotmentOf("1", {"5"});
  ntc.t_ctry = "REU";
  stored(ntc);
  ntc.t_ctry.clear();
  stored(ntc);
  EXPECT_EQ(rows("SELECT ctry FROM lmz_contour"), (Rows{{"F"}, {"REU"}, {"NULL"}}));
}

TEST_F(StoringANotice, has_nine_links_at_most) {
  stored(makeAllotmentOf("12", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "9");
  EXPECT_EQ(value("SELECT max(contour_id) FROM lmz_contour"), "9.0");
  EXPECT_EQ(value("SELECT nb_sub_areas FROM lmz_allotment"), "12.0");
}

TEST_F(StoringANotice, looks_at_as_many_places_as_its_number_of_sub_areas) {
  stored(makeAllotmentOf("2", {"1", "", "3"}));
  EXPECT_EQ(rows("SELECT contour_id FROM lmz_contour"), (Rows{{"1.0"}}));
  stored(makeAllotmentOf("3", {"1", "", "3"}));
  EXPECT_EQ(rows("SELECT contour_id FROM lmz_contour"), (Rows{{"1.0"}, {"3.0"}}));
}

TEST_F(StoringANotice, is_rolled_back_when_no_contour_is_linked) {
  expectNotStored(makeAllotmentOf("2", {}), {kNotSaved});
  expectNotStored(makeAllotmentOf("0", {"1"}), {kNotSaved});
  expectNotStored(makeAllotmentOf("-1", {"1"}), {kNotSaved});
  expectNotStored(makeAllotmentOf("1", {"", "2"}), {kNotSaved});
}

TEST_F(StoringANotice, fails_when_its_contour_identifier_is_no_number) {
  expectNotStored(makeAllotmentOf("1", {"1x"}), {"addSubArea: Erreur 13:Type mismatch", kNotSaved});
  expectNotStored(makeAllotmentOf("1", {"40000"}), {"addSubArea: Erreur 6:Overflow", kNotSaved});
}

TEST_F(StoringANotice, is_settled_by_its_last_contour_when_one_is_not_unique) {
  raw.run(
      "INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm) VALUES (8, 5, 'F', 'F'), (9, 5, 'F', "
      "'F')");
  const std::string notUnique = ": Problem : Contour ID is not unique !! Please consult the adminstrator";
  expectNotStored(makeAllotmentOf("2", {"1", "5"}), {notUnique, kNotSaved});
  NtcRec ntc = makeAllotmentOf("2", {"5", "1"});
  EXPECT_TRUE(store(ntc));
  expectTold({notUnique});
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "1");
}

// --- All or nothing

struct FailingTable {
  const char* table;
  Texts boxes;  // ahead of the one that nothing was saved
};

struct FailingKind {
  const char* kind;
  std::vector<FailingTable> tables;
};

void PrintTo(const FailingKind& one, std::ostream* out) {
  *out << one.kind;
}

class StoringANoticeThatFails : public StoringANotice, public testing::WithParamInterface<FailingKind> {};

TEST_P(StoringANoticeThatFails, leaves_no_row_whichever_table_fails) {
  for (const std::string& kind : wordsOf("GT1 GS1/5 GT2 TB2 TB5")) {
    NtcRec earlier = makeFullNotice(kind);
    earlier.digital.allot.t_contour_id = {"21", "22"};
    stored(earlier);
  }
  storedContour("23");
  const auto before = everything();
  for (const FailingTable& one : GetParam().tables) {
    SCOPED_TRACE(one.table);
    refuseRowsOf(one.table);
    Texts boxes = one.boxes;
    boxes.push_back(kNotSaved);
    expectNotStored(makeFullNotice(GetParam().kind), boxes);
    refuseNoMore();
    EXPECT_EQ(everything(), before);
  }
  // These are all its tables, and with nothing in the way it is stored.
  stored(makeFullNotice(GetParam().kind));
  Texts tables;
  for (const FailingTable& one : GetParam().tables) tables.emplace_back(one.table);
  std::sort(tables.begin(), tables.end());
  EXPECT_EQ(tablesChangedSince(before), tables);
}

const FailingTable kVorna = {"fmtv_vorna", {refusedIn("writeToKv19VornaTable")}};
const FailingTable kHist = {"proc_ntc_hist", {refusedIn("writeToprocNtcHistTable")}};
const FailingTable kCoord = {"fmtv_coord", {refusedIn("writeTokv19CoordTable")}};
const FailingTable kRemarks = {"fmtv_rmks",
                               {refusedIn("writeToKv19RmksTable"), refusedIn("writeToKv19RmksTable")}};
const FailingTable kHours = {"fmtv_op_prd", {refusedIn("writeToKv19OpPrdTable")}};
const FailingTable kTarget = {"fmtv_art5_target", {refusedIn("writeToArt5TargetTable")}};
const FailingTable kHeights = {"fmtv_ant_hgt", {refusedIn("writeToKv19AntHgtTable")}};
const FailingTable kDiagram = {"fmtv_ant_diag", {refusedIn("writeToKv19AntDiagTable")}};
const FailingTable kDiagrams = {"fmtv_ant_diag",
                                {refusedIn("writeToKv19AntDiagTable"), refusedIn("writeToKv19AntDiagTable")}};
const FailingTable kAllotment = {"lmz_allotment", {refusedIn("addAllot")}};
const FailingTable kLinks = {"lmz_sub_area", {refusedIn("addSubArea")}};
const FailingTable kPlaceholder = {"lmz_contour", {refusedIn("addSubArea")}};
const FailingTable kContour = {"lmz_contour", {refusedIn("addNewContour")}};
const FailingTable kPoints = {"lmz_contour_pt", {refusedIn("writeContourPoint")}};

INSTANTIATE_TEST_SUITE_P(
    Types, StoringANoticeThatFails,
    testing::Values(
        FailingKind{"GT1", {kVorna, kHist, kCoord, kRemarks, kHeights, kDiagram}},
        FailingKind{"GS1", {kVorna, kHist, kCoord, kRemarks, kHeights, kDiagram}},
        FailingKind{"GT1/5", {kVorna, kHist, kCoord, kRemarks, kHours, kTarget, kHeights, kDiagrams}},
        FailingKind{"GS1/5", {kVorna, kHist, kCoord, kRemarks, kHours, kTarget, kHeights, kDiagrams}},
        FailingKind{"GT2", {kVorna, kHist, kCoord, kRemarks, kAllotment, kLinks, kPlaceholder}},
        FailingKind{"GS2", {kVorna, kHist, kCoord, kRemarks, kAllotment, kLinks, kPlaceholder}},
        FailingKind{"TB2", {kVorna, kHist, kCoord, kRemarks, kHours}},
        FailingKind{"TB3", {kVorna, kHist, kCoord, kRemarks}},
        FailingKind{"TB5", {kVorna, kHist, kCoord, kRemarks}}, FailingKind{"GA1", {kContour, kPoints}}));

TEST_F(StoringANotice, tries_every_table_after_one_has_failed) {
  for (const char* table : {"proc_ntc_hist", "fmtv_coord", "fmtv_op_prd", "fmtv_ant_hgt"}) {
    raw.run(std::string("CREATE TRIGGER no_") + table + " BEFORE INSERT ON " + table +
            " BEGIN SELECT RAISE(ABORT, 'no room'); END");
  }
  expectNotStored(makeFullNotice("GT1/5"),
                  {refusedIn("writeToprocNtcHistTable"), refusedIn("writeTokv19CoordTable"),
                   refusedIn("writeToKv19OpPrdTable"), refusedIn("writeToKv19AntHgtTable"), kNotSaved});
}

TEST_F(StoringANotice, tries_its_allotment_after_a_table_has_failed) {
  raw.run(
      "CREATE TRIGGER no_history BEFORE INSERT ON proc_ntc_hist BEGIN SELECT RAISE(ABORT, 'no room'); END");
  refuseRowsOf("lmz_allotment");
  expectNotStored(makeFullNotice("GS2"),
                  {refusedIn("writeToprocNtcHistTable"), refusedIn("addAllot"), kNotSaved});
}

TEST_F(StoringANotice, does_not_begin_while_another_program_writes) {
  stored(makeGt1());
  const auto before = everything();
  raw.run("BEGIN IMMEDIATE");
  NtcRec ntc = makeGs1();
  EXPECT_FALSE(store(ntc));
  expectTold({"writeNtcToDB: Erreur 5:database is locked"});
  raw.run("ROLLBACK");
  EXPECT_EQ(everything(), before);
  stored(ntc);
}

TEST_F(StoringANotice, leaves_a_transaction_of_its_caller_open) {
  connection.BeginTrans();
  NtcRec ntc = makeGt1();
  EXPECT_FALSE(store(ntc));
  expectTold({"writeNtcToDB: Erreur 5:A transaction is open already"});
  connection.CommitTrans();
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_vorna"), "0");
}

TEST(AppendingAKey, puts_it_behind_those_that_count) {
  for (const auto append : {appendKeyToList, appendNewContourKey}) {
    std::vector<std::int32_t> list = {5, 888888888};
    std::int32_t count = 2;
    append(list, count, 83700001);
    EXPECT_EQ(list, (std::vector<std::int32_t>{5, 888888888, 83700001}));
    EXPECT_EQ(count, 3);
    count = 0;
    append(list, count, 7);
    EXPECT_EQ(list, (std::vector<std::int32_t>{7}));
    EXPECT_EQ(count, 1);
  }
}

}  // namespace
}  // namespace zamo
