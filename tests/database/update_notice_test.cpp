#include "database/update_notice.h"

#include <gtest/gtest.h>

#include "database/notice_store.h"

namespace zamo {
namespace {

using test::Columns;
using test::isAmong;
using test::kAwkward;
using test::kNotSaved;
using test::makeBareNotice;
using test::makeCoordination;
using test::makeFullNotice;
using test::NoticeStore;
using test::refusedIn;
using test::Rows;
using test::Texts;
using test::wordsOf;

class CorrectingANotice : public NoticeStore {
 protected:
  bool update(const NtcRec& ntc) { return updateNtcInDB(host, ntc, ntc.vornakey, connection); }

  void correct(const NtcRec& ntc) {
    EXPECT_TRUE(update(ntc));
    expectNothingTold();
  }

  void expectRefused(const NtcRec& ntc, const Texts& boxes) {
    const auto before = everything();
    EXPECT_FALSE(update(ntc));
    expectTold(boxes);
    EXPECT_EQ(everything(), before);
    expectNoTransaction();
  }

  std::string count(const std::string& table) { return value("SELECT count(*) FROM " + table); }

  Texts diagram() {
    Texts found;
    for (const auto& row : rows("SELECT azm || ' ' || attn || ' ' || polar FROM fmtv_ant_diag"))
      found.push_back(row[0]);
    return found;
  }
};

// --- fmtv_vorna

TEST_F(CorrectingANotice, puts_each_field_in_its_column_and_clears_it_again) {
  for (const std::string& type : wordsOf(test::kTypesWithRow)) {
    const NtcRec bare = stored(makeBareNotice(type));
    const Columns asStored = vornaRow(bare.vornakey);
    for (const test::VornaField& field : test::kVornaFields) {
      SCOPED_TRACE(type + " " + field.column);
      NtcRec ntc = bare;
      field.text.of(ntc) = field.given;
      correct(ntc);
      Columns expected = asStored;
      if (isAmong(field.corrected, type)) expected[field.column] = field.stored;
      EXPECT_EQ(vornaRow(bare.vornakey), expected);
      correct(bare);
      if (!field.isNeverCleared) expected = asStored;
      EXPECT_EQ(vornaRow(bare.vornakey), expected);
      if (field.isNeverCleared) raw.run(std::string("UPDATE fmtv_vorna SET ") + field.column + " = NULL");
    }
  }
}

TEST_F(CorrectingANotice, changes_administration_and_type_and_clears_them) {
  NtcRec ntc = stored(makeBareNotice("GT1"));
  ntc.t_adm = kAwkward;
  ntc.t_notice_type = kAwkward;
  correct(ntc);
  EXPECT_EQ(vornaRow(ntc.vornakey).at("adm"), kAwkward);
  EXPECT_EQ(vornaRow(ntc.vornakey).at("notice_typ"), kAwkward);
  ntc.t_adm = ntc.t_notice_type = "";
  correct(ntc);
  EXPECT_EQ(vornaRow(ntc.vornakey).at("adm"), "NULL");
  EXPECT_EQ(vornaRow(ntc.vornakey).at("notice_typ"), "NULL");
}

TEST_F(CorrectingANotice, leaves_alone_what_belongs_to_the_load_and_to_others) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.d_rcv = "2009-01-15";
  ntc = stored(ntc);
  raw.run(
      "UPDATE fmtv_vorna SET src_notice = 'a', is_public = 'b', is_digital = 'c', is_notice = 'd', "
      "amend_type = 'e', "
      "src_update = 'f', stage = 'g', assgn_id = 'h', prov = 'i'");
  const Columns before = vornaRow(ntc.vornakey);
  ntc.t_fragment = "NTFD_PZ";
  ntc.d_rcv = "2010-01-15";
  correct(ntc);
  Columns expected = before;
  expected["fragment"] = "NTFD_PZ";
  EXPECT_EQ(vornaRow(ntc.vornakey), expected);
}

TEST_F(CorrectingANotice, takes_the_reference_of_the_target_for_an_action_even_an_empty_one) {
  for (const std::string& type : wordsOf("TB2 TB3 TB5")) {
    NtcRec ntc = makeBareNotice(type);
    ntc.t_adm_ref_id = "own";
    ntc.t_trg_adm_ref_id = "target";
    ntc = stored(ntc);
    ntc.t_trg_adm_ref_id = "other";
    correct(ntc);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("adm_ref_id"), "other") << type;
    ntc.t_trg_adm_ref_id.clear();
    correct(ntc);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("adm_ref_id"), "NULL") << type;
  }
}

TEST_F(CorrectingANotice, stores_an_operating_agency_as_it_stands) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.t_op_agcy = "7";
  ntc = stored(ntc);
  EXPECT_EQ(vornaRow(ntc.vornakey).at("op_agcy"), "007");
  correct(ntc);
  EXPECT_EQ(vornaRow(ntc.vornakey).at("op_agcy"), "7");
}

TEST_F(CorrectingANotice, stores_powers_in_the_planes_of_its_polarization_and_clears_the_others) {
  const std::vector<Texts> cases = {{"H", "43.0", "NULL"}, {"V", "NULL", "40.0"}, {"M", "43.0", "40.0"},
                                    {"U", "43.0", "40.0"}, {"", "NULL", "NULL"},  {"X", "NULL", "NULL"}};
  for (const Texts& one : cases) {
    NtcRec ntc = makeBareNotice("GT1");
    ntc.t_polar = "M";
    ntc.t_erp_h_dbw = "1";
    ntc.t_erp_v_dbw = "2";
    ntc = stored(ntc);
    ntc.t_polar = one[0];
    ntc.t_erp_h_dbw = "43";
    ntc.t_erp_v_dbw = "40";
    correct(ntc);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("erp_h_dbw"), one[1]) << one[0];
    EXPECT_EQ(vornaRow(ntc.vornakey).at("erp_v_dbw"), one[2]) << one[0];
    ntc.t_erp_h_dbw = ntc.t_erp_v_dbw = "";
    correct(ntc);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("erp_h_dbw"), "NULL") << one[0];
    EXPECT_EQ(vornaRow(ntc.vornakey).at("erp_v_dbw"), "NULL") << one[0];
  }
}

TEST_F(CorrectingANotice, computes_radians_anew_or_clears_them) {
  NtcRec ntc = stored(makeGt1());
  ntc.long_ew = "W";
  correct(ntc);
  EXPECT_NEAR(std::stod(vornaRow(ntc.vornakey).at("long_rdn")), -0.0419363830, 1e-9);
  EXPECT_NEAR(std::stod(vornaRow(ntc.vornakey).at("lat_rdn")), 0.8219046336, 1e-9);
  for (const TextMember& part :
       {textAt<&NtcRec::long_min>, textAt<&NtcRec::long_sec>, textAt<&NtcRec::long_ew>}) {
    NtcRec changed = ntc;
    part.of(changed).clear();
    correct(changed);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("long_rdn"), "NULL");
    EXPECT_NE(vornaRow(ntc.vornakey).at("lat_rdn"), "NULL");
  }
  for (const TextMember& part :
       {textAt<&NtcRec::lat_min>, textAt<&NtcRec::lat_sec>, textAt<&NtcRec::lat_ns>}) {
    NtcRec changed = ntc;
    part.of(changed).clear();
    correct(changed);
    EXPECT_EQ(vornaRow(ntc.vornakey).at("lat_rdn"), "NULL");
    EXPECT_NE(vornaRow(ntc.vornakey).at("long_rdn"), "NULL");
  }
  NtcRec changed = ntc;
  changed.long_deg.clear();
  expectRefused(changed, {"updateKv19VornaTable: Erreur 13:Type mismatch", kNotSaved});
  changed = ntc;
  changed.lat_min = "x";
  expectRefused(changed, {"updateKv19VornaTable: Erreur 13:Type mismatch", kNotSaved});
}

TEST_F(CorrectingANotice, is_refused_when_there_is_no_such_row) {
  NtcRec ntc = makeGt1();
  ntc.vornakey = 5;
  expectRefused(
      ntc,
      {"Update Error (!): The selected notice is not unique. Please consult the administrator!", kNotSaved});
}

TEST_F(CorrectingANotice, changes_the_row_of_its_key_alone) {
  const NtcRec one = stored(makeFullNotice("GT1/5"));
  NtcRec two = stored(makeFullNotice("GT1/5"));
  const Columns before = vornaRow(one.vornakey);
  const std::map<std::string, Rows> all = everything();
  two.t_site_name.clear();
  two.ant_hgt = {};
  two.ant_diagr_h = {};
  two.coord = {};
  two.t_int_remarks.clear();
  correct(two);
  EXPECT_EQ(vornaRow(one.vornakey), before);
  EXPECT_EQ(vornaRow(two.vornakey).at("site_name"), "NULL");
  for (const std::string table : {"proc_ntc_hist", "fmtv_coord", "fmtv_rmks", "fmtv_op_prd",
                                  "fmtv_art5_target", "fmtv_ant_hgt", "fmtv_ant_diag"}) {
    Rows firsts;
    for (const auto& row : all.at(table)) {
      if (row[0] == std::to_string(one.vornakey)) firsts.push_back(row);
    }
    EXPECT_EQ(rows("SELECT * FROM " + table + " WHERE vornakey = " + std::to_string(one.vornakey)), firsts)
        << table;
    EXPECT_FALSE(firsts.empty()) << table;
  }
}

// --- Child rows

TEST_F(CorrectingANotice, marks_itself_in_its_row_of_history) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.digital.t_email_addr = "a@b.int";
  ntc.src_update = "loader";
  ntc.d_updated = "2009-01-15";
  ntc = stored(ntc);
  ntc.digital.t_email_addr.clear();
  ntc.src_update.clear();
  ntc.d_updated.clear();
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM proc_ntc_hist"), (Rows{{"83700001", "NULL", "loader", "2009-01-15"}}));
  ntc.digital.t_email_addr = kAwkward;
  ntc.src_update = kAwkward;
  ntc.d_updated = "2009-02-15";
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM proc_ntc_hist"), (Rows{{"83700001", kAwkward, kAwkward, "2009-02-15"}}));
  raw.run("DELETE FROM proc_ntc_hist");
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM proc_ntc_hist"), (Rows{{"83700001", kAwkward, kAwkward, "2009-02-15"}}));
}

TEST_F(CorrectingANotice, adds_a_row_of_history_when_there_is_more_than_one) {
  const NtcRec ntc = stored(makeBareNotice("GT1"));
  raw.run("INSERT INTO proc_ntc_hist (vornakey, email_addr) VALUES (83700001, 'x')");
  correct(ntc);
  EXPECT_EQ(rows("SELECT email_addr FROM proc_ntc_hist"), (Rows{{"NULL"}, {"x"}, {"NULL"}}));
}

TEST_F(CorrectingANotice, keeps_its_internal_remarks_and_loses_the_others) {
  NtcRec ntc = makeFullNotice("TB5");
  ntc = stored(ntc);
  EXPECT_EQ(count("fmtv_rmks"), "2");
  ntc.t_remarks = std::string(90, 'a');
  ntc.t_int_remarks = std::string(80, 'b') + "';";
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_rmks"), (Rows{{"83700001", std::string(80, 'b'), "0", "SCRATCHPAD"},
                                                   {"83700001", "';", "1", "SCRATCHPAD"}}));
  ntc.t_int_remarks.clear();
  correct(ntc);
  EXPECT_EQ(count("fmtv_rmks"), "0");
}

TEST_F(CorrectingANotice, writes_its_coordination_anew_when_it_is_present) {
  NtcRec ntc = makeFullNotice("GT1");
  ntc = stored(ntc);
  ntc.coord = makeCoordination({"D"});
  ntc.d_rcv = "2009-03-01";
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_coord"),
            (Rows{{"83700001", "D", "COORD", "COORD COMPLETED", "NOTIFIER", " ", "2009-03-01"}}));
  ntc.coord.present = false;
  correct(ntc);
  EXPECT_EQ(count("fmtv_coord"), "0");
}

TEST_F(CorrectingANotice, changes_its_operating_hours) {
  for (const std::string& type : wordsOf("GT1 GS1 TB2")) {
    SCOPED_TRACE(type);
    NtcRec ntc = stored(makeBareNotice(type));
    correct(ntc);
    EXPECT_EQ(count("fmtv_op_prd"), "0");
    ntc.op_hours = {true, "0600", "1800"};
    correct(ntc);
    EXPECT_EQ(rows("SELECT op_hh_fr, op_hh_to FROM fmtv_op_prd"), (Rows{{"0600", "1800"}}));
    ntc.op_hours = {true, "", "';"};
    correct(ntc);
    EXPECT_EQ(rows("SELECT op_hh_fr, op_hh_to FROM fmtv_op_prd"), (Rows{{"NULL", "';"}}));
    ntc.op_hours = {};
    correct(ntc);
    EXPECT_EQ(rows("SELECT op_hh_fr, op_hh_to FROM fmtv_op_prd"), (Rows{{"NULL", "NULL"}}));
    raw.run("DELETE FROM fmtv_op_prd");
  }
  for (const std::string& type : wordsOf("GT2 GS2 TB3 TB5")) {
    NtcRec ntc = stored(makeBareNotice(type));
    ntc.op_hours = {true, "0600", "1800"};
    correct(ntc);
    EXPECT_EQ(count("fmtv_op_prd"), "0") << type;
  }
}

TEST_F(CorrectingANotice, changes_the_target_of_a_modification) {
  NtcRec ntc = makeBareNotice("GT1");
  ntc.t_action = "MODIFY";
  ntc = stored(ntc);
  correct(ntc);
  EXPECT_EQ(count("fmtv_art5_target"), "0");
  ntc.trg_long_deg = "2", ntc.trg_long_min = "24", ntc.trg_long_sec = "10", ntc.trg_long_ew = "E";
  ntc.trg_lat_deg = "47", ntc.trg_lat_min = "5", ntc.trg_lat_sec = "30", ntc.trg_lat_ns = "N";
  correct(ntc);
  EXPECT_EQ(count("fmtv_art5_target"), "0");
  ntc.t_trg_freq_assgn = "474.5";
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_art5_target"),
            (Rows{{"83700001", "NULL", "474.5", "2.0", "24.0", "10.0", "E", "47.0", "5.0", "30.0", "N"}}));
  NtcRec cleared = makeBareNotice("GT1");
  cleared.t_action = "MODIFY";
  cleared.vornakey = ntc.vornakey;
  correct(cleared);
  EXPECT_EQ(
      rows("SELECT * FROM fmtv_art5_target"),
      (Rows{{"83700001", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL", "NULL"}}));
  ntc.t_trg_adm_ref_id = kAwkward;
  correct(ntc);
  EXPECT_EQ(rows("SELECT trg_adm_ref_id, trg_freq_assgn, trg_lat_ns FROM fmtv_art5_target"),
            (Rows{{kAwkward, "474.5", "N"}}));
}

TEST_F(CorrectingANotice, loses_its_target_when_it_becomes_an_addition) {
  NtcRec ntc = stored(makeFullNotice("GT1/5"));
  EXPECT_EQ(count("fmtv_art5_target"), "1");
  ntc.t_action = "WITHDRAW";
  correct(ntc);
  EXPECT_EQ(count("fmtv_art5_target"), "1");
  ntc.t_action = "ADD";
  correct(ntc);
  EXPECT_EQ(count("fmtv_art5_target"), "0");
}

TEST_F(CorrectingANotice, keeps_targets_of_which_there_are_two) {
  NtcRec ntc = stored(makeFullNotice("GT1/5"));
  raw.run("INSERT INTO fmtv_art5_target (vornakey) VALUES (83700001)");
  ntc.t_action = "ADD";
  correct(ntc);
  EXPECT_EQ(count("fmtv_art5_target"), "2");
}

TEST_F(CorrectingANotice, writes_its_heights_anew) {
  NtcRec ntc = stored(makeGt1());
  EXPECT_EQ(count("fmtv_ant_hgt"), "36");
  ntc.ant_hgt = {};
  ntc.ant_hgt[3] = {true, "030", "99.5"};
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM fmtv_ant_hgt"), (Rows{{"83700001", "30.0", "99.5"}}));
}

class CorrectingADiagram : public CorrectingANotice {
 protected:
  CorrectingADiagram() {
    ntc.t_ant_dir = "D";
    ntc.t_polar = "M";
    ntc.ant_diagr_h[0] = {true, "000", "1"};
    ntc.ant_diagr_v[0] = {true, "000", "2"};
    ntc = stored(ntc);
    EXPECT_EQ(diagram(), (Texts{"0.0 1.0 H", "0.0 2.0 V"}));
    ntc.ant_diagr_h[1] = {true, "010", "3"};
    ntc.ant_diagr_v[35] = {true, "350", "4"};
  }

  NtcRec ntc = makeBareNotice("GS1");
};

TEST_F(CorrectingADiagram, writes_both_when_both_planes_radiate) {
  for (const char* polar : {"M", "U"}) {
    ntc.t_polar = polar;
    correct(ntc);
    EXPECT_EQ(diagram(), (Texts{"0.0 1.0 H", "10.0 3.0 H", "0.0 2.0 V", "350.0 4.0 V"}));
  }
}

TEST_F(CorrectingADiagram, deletes_that_of_the_plane_that_radiates_no_more) {
  ntc.t_polar = "H";
  correct(ntc);
  EXPECT_EQ(diagram(), (Texts{"0.0 1.0 H", "10.0 3.0 H"}));
  ntc.t_polar = "V";
  correct(ntc);
  EXPECT_EQ(diagram(), (Texts{"0.0 2.0 V", "350.0 4.0 V"}));
}

TEST_F(CorrectingADiagram, drops_one_without_a_value_to_the_north) {
  ntc.ant_diagr_h[0].present = false;
  correct(ntc);
  EXPECT_EQ(diagram(), (Texts{"0.0 2.0 V", "350.0 4.0 V"}));
  ntc.ant_diagr_v[0].present = false;
  correct(ntc);
  EXPECT_EQ(diagram(), Texts{});
}

TEST_F(CorrectingADiagram, empties_both_without_a_direction_unless_the_record_holds_them) {
  ntc.t_ant_dir = "ND";
  correct(ntc);
  EXPECT_EQ(diagram(), (Texts{"0.0 1.0 H", "10.0 3.0 H", "0.0 2.0 V", "350.0 4.0 V"}));
  ntc.ant_diagr_h = {};
  ntc.ant_diagr_v = {};
  correct(ntc);
  EXPECT_EQ(diagram(), Texts{});
}

TEST_F(CorrectingADiagram, leaves_both_alone_when_directional_without_a_polarization) {
  ntc.t_polar.clear();
  correct(ntc);
  EXPECT_EQ(diagram(), (Texts{"0.0 1.0 H", "0.0 2.0 V"}));
}

// The deletion's result takes the place of what went before.
TEST_F(CorrectingADiagram, is_saved_after_an_earlier_failure_when_the_other_diagram_is_deleted) {
  refuseRowsOf("fmtv_ant_hgt");
  ntc.ant_hgt[0] = {true, "000", "5"};
  for (const char* polar : {"H", "V"}) {
    ntc.t_polar = polar;
    EXPECT_TRUE(update(ntc));
    expectTold({refusedIn("writeToKv19AntHgtTable")});
    EXPECT_EQ(vornaRow(ntc.vornakey).at("polar"), polar);
  }
  ntc.t_polar = "M";
  expectRefused(ntc, {refusedIn("writeToKv19AntHgtTable"), kNotSaved});
  ntc.t_ant_dir = "ND";
  expectRefused(ntc, {refusedIn("writeToKv19AntHgtTable"), kNotSaved});
}

// --- Allotments

class CorrectingAnAllotment : public CorrectingANotice {
 protected:
  NtcRec ntc = makeFullNotice("GT2");
};

TEST_F(CorrectingAnAllotment, changes_its_fields_and_links) {
  ntc = stored(ntc);
  ntc.digital.allot.t_allot_name = kAwkward;
  ntc.digital.allot.t_typ_ref_netwk = kAwkward;
  ntc.digital.allot.t_geo_area = kAwkward;
  ntc.digital.allot.t_nb_sub_areas = "1";
  ntc.digital.allot.t_contour_id = {"3"};
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_allotment"),
            (Rows{{"83700001", "83700001", kAwkward, kAwkward, kAwkward, "1.0"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700001", "3"}}));
  EXPECT_EQ(rows("SELECT contour_id FROM lmz_contour"), (Rows{{"1.0"}, {"2.0"}, {"3.0"}}));
}

TEST_F(CorrectingAnAllotment, clears_its_fields_and_links) {
  ntc = stored(ntc);
  ntc.digital.allot = {};
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_allotment"),
            (Rows{{"83700001", "83700001", "NULL", "NULL", "NULL", "NULL"}}));
  EXPECT_EQ(count("lmz_sub_area"), "0");
  EXPECT_EQ(count("lmz_contour"), "2");
}

TEST_F(CorrectingAnAllotment, gets_links_when_it_had_no_number_of_sub_areas) {
  NtcRec whole = stored(makeGs2());
  whole.digital.allot.t_nb_sub_areas = "1";
  whole.digital.allot.t_contour_id = {"3"};
  correct(whole);
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700001", "1"}}));
  EXPECT_EQ(value("SELECT nb_sub_areas FROM lmz_allotment"), "1.0");
}

TEST_F(CorrectingAnAllotment, is_refused_when_its_links_are_gone) {
  ntc = stored(ntc);
  raw.run("DELETE FROM lmz_sub_area");
  ntc.digital.allot.t_allot_name = "OTHER";
  const std::string corrupted =
      "Database error (!): deleteSubAreaTable: The allotment is corrupted. Please consult the administrator!";
  expectRefused(ntc, {corrupted, kNotSaved});
  ntc.digital.allot.t_nb_sub_areas.clear();
  expectRefused(ntc, {corrupted, kNotSaved});
}

TEST_F(CorrectingAnAllotment, is_refused_when_no_contour_is_linked) {
  ntc = stored(ntc);
  ntc.digital.allot.t_contour_id = {};
  expectRefused(ntc, {kNotSaved});
}

TEST_F(CorrectingAnAllotment, makes_one_of_what_the_record_holds_when_there_is_none) {
  ntc = stored(ntc);
  raw.run("DELETE FROM lmz_allotment");
  ntc.digital.allot.present = false;
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_allotment"),
            (Rows{{"83700001", "83700002", "CENTRE", "RN1", "NULL", "2.0"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700002", "1"}, {"83700002", "2"}}));
}

TEST_F(CorrectingANotice, gives_an_action_an_allotment_without_text_once) {
  for (const std::string& type : wordsOf("TB2 TB3 TB5")) {
    const NtcRec ntc = stored(makeNotice(type));
    correct(ntc);
    correct(ntc);
    const std::string key = std::to_string(ntc.vornakey);
    EXPECT_EQ(rows("SELECT * FROM lmz_allotment WHERE vornakey = " + key),
              (Rows{{key, key, "NULL", "NULL", "NULL", "NULL"}}));
  }
}

TEST_F(CorrectingANotice, makes_no_allotment_of_an_assignment) {
  correct(stored(makeGt1()));
  EXPECT_EQ(count("lmz_allotment"), "0");
}

// --- Contours

class CorrectingAContour : public CorrectingANotice {
 protected:
  CorrectingAContour() {
    ntc.t_remarks = "old";
    ntc.digital.contour.d_updated = "2009-01-15";
    ntc.digital.contour.d_recog = "2009-01-16";
    ntc = stored(ntc);
    ntc.vornakey = 1;
  }

  NtcRec ntc = makeGa1();
};

TEST_F(CorrectingAContour, changes_what_is_given) {
  ntc.digital.contour.t_contour_id = "8";
  ntc.t_ctry = kAwkward;
  ntc.t_adm = kAwkward;
  ntc.t_action = kAwkward;
  ntc.t_remarks = kAwkward;
  ntc.digital.contour.d_updated = "2009-02-15";
  ntc.digital.contour.d_recog = "2009-02-16";
  ntc.digital.contour.t_nb_test_pts = "2";
  ntc.digital.contour.points[1] = {true, "-0010203", "-010203"};
  correct(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_contour"),
            (Rows{{"1", "8.0", kAwkward, kAwkward, kAwkward, "2.0", kAwkward, "2009-02-15", "2009-02-16"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_contour_pt"),
            (Rows{{"1", "0", "2.0", "0.0", "0.0", "E", "47.0", "0.0", "0.0", "N"},
                  {"1", "1", "1.0", "2.0", "3.0", "W", "1.0", "2.0", "3.0", "S"}}));
}

TEST_F(CorrectingAContour, clears_no_column) {
  const Columns before = columnsOf("lmz_contour", "contourkey = 1");
  NtcRec bare = makeBareNotice("GA1");
  bare.t_adm.clear();
  bare.vornakey = 1;
  correct(bare);
  EXPECT_EQ(columnsOf("lmz_contour", "contourkey = 1"), before);
  EXPECT_EQ(count("lmz_contour_pt"), "0");
}

TEST_F(CorrectingAContour, is_refused_when_it_has_a_single_point) {
  raw.run("DELETE FROM lmz_contour_pt WHERE test_pt > 0");
  ntc.t_remarks = "new";
  expectRefused(
      ntc, {"Database error (!): deleteContourPointTable: The contour point is corrupted. Please consult the "
            "administrator!",
            kNotSaved});
}

TEST_F(CorrectingAContour, is_refused_when_there_is_no_such_row) {
  ntc.vornakey = 2;
  expectRefused(
      ntc,
      {"Update Error (!): updateContour: The sub area unique. Please consult the administrator!", kNotSaved});
}

TEST_F(CorrectingAContour, fails_when_the_count_goes_beyond_the_points) {
  ntc.digital.contour.t_nb_test_pts = "9";
  expectRefused(ntc, {"updateContour: Erreur 9:Subscript out of range", kNotSaved});
}

// --- All or nothing

struct FailingChange {
  const char* change;  // of a table
  const char* table;
  const char* operation;
  int boxes = 1;
};

TEST_F(CorrectingANotice, changes_nothing_whichever_table_fails) {
  NtcRec ntc = stored(makeFullNotice("GT1/5"));
  ntc.t_site_name = "ELSEWHERE";
  const FailingChange changes[] = {
      {"UPDATE", "fmtv_vorna", "updateKv19VornaTable"},
      {"UPDATE", "proc_ntc_hist", "updateprocNtcHistTable"},
      {"DELETE", "fmtv_rmks", "updateKV19RmksTable", 2},
      {"INSERT", "fmtv_rmks", "writeToKv19RmksTable", 2},
      {"DELETE", "fmtv_coord", "updateCoordSection"},
      {"INSERT", "fmtv_coord", "writeTokv19CoordTable"},
      {"UPDATE", "fmtv_art5_target", "updateArt5TargetTable"},
      {"UPDATE", "fmtv_op_prd", "updateKv19OpPrdTable"},
      {"DELETE", "fmtv_ant_hgt", "updateAntHgtSection"},
      {"INSERT", "fmtv_ant_hgt", "writeToKv19AntHgtTable"},
      {"DELETE", "fmtv_ant_diag", "updateAttnSection", 2},
      {"INSERT", "fmtv_ant_diag", "writeToKv19AntDiagTable", 2},
  };
  for (const FailingChange& one : changes) {
    SCOPED_TRACE(std::string(one.change) + " " + one.table);
    refuseRowsOf(one.table, one.change);
    Texts boxes(static_cast<std::size_t>(one.boxes), refusedIn(one.operation));
    boxes.push_back(kNotSaved);
    expectRefused(ntc, boxes);
    refuseNoMore();
  }
  correct(ntc);
}

TEST_F(CorrectingAnAllotment, changes_nothing_whichever_table_fails) {
  ntc = stored(ntc);
  ntc.digital.allot.t_allot_name = "OTHER";
  ntc.digital.allot.t_contour_id = {"1", "7"};
  for (const FailingChange& one : {FailingChange{"UPDATE", "lmz_allotment", "updateAllotTable"},
                                   {"DELETE", "lmz_sub_area", "deleteSubAreaTable"},
                                   {"INSERT", "lmz_sub_area", "addSubArea"},
                                   {"INSERT", "lmz_contour", "addSubArea"}}) {
    SCOPED_TRACE(std::string(one.change) + " " + one.table);
    refuseRowsOf(one.table, one.change);
    expectRefused(ntc, {refusedIn(one.operation), kNotSaved});
    refuseNoMore();
  }
  correct(ntc);
}

TEST_F(CorrectingAContour, changes_nothing_whichever_table_fails) {
  ntc.t_remarks = "new";
  for (const FailingChange& one : {FailingChange{"UPDATE", "lmz_contour", "updateContour"},
                                   {"DELETE", "lmz_contour_pt", "deleteContourPointTable"},
                                   {"INSERT", "lmz_contour_pt", "writeContourPoint"}}) {
    SCOPED_TRACE(std::string(one.change) + " " + one.table);
    refuseRowsOf(one.table, one.change);
    expectRefused(ntc, {refusedIn(one.operation), kNotSaved});
    refuseNoMore();
  }
  correct(ntc);
}

// Deleting the target has no result of its own.
TEST_F(CorrectingANotice, is_saved_when_its_target_can_not_be_deleted) {
  NtcRec ntc = stored(makeFullNotice("GT1/5"));
  refuseRowsOf("fmtv_art5_target", "DELETE");
  ntc.t_action = "ADD";
  EXPECT_TRUE(update(ntc));
  expectTold({refusedIn("deleteArt5TargetTable")});
  EXPECT_EQ(vornaRow(ntc.vornakey).at("intent"), "ADD");
}

TEST_F(CorrectingADiagram, fails_when_the_other_diagram_can_not_be_deleted) {
  refuseRowsOf("fmtv_ant_diag", "DELETE");
  ntc.t_polar = "H";
  expectRefused(ntc, {refusedIn("updateAttnSection"), refusedIn("deleteFromAntDiagr"), kNotSaved});
}

}  // namespace
}  // namespace zamo
