#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <map>
#include <set>

#include "database/raw_database.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace zamo::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const std::string kTemplate = ZAMO_BIN "/MasterHDLK_WQN.mdb";

enum class Kind { text, number, whole, date };

struct Column {
  std::string table;
  std::string name;
  Kind kind;
};

struct TableColumns {
  const char* table;
  // The names of its columns by kind, parted by blanks.
  const char* text;
  const char* numbers;
  const char* whole;
  const char* dates;
};

// clang-format off
const TableColumns kTables[] = {
    {"fmtv_vorna",
     "assgn_id adm notice_typ stn_cls tran_sys fragment prov intent adm_ref_id plan_adm_ref_id call_sign stn_id "
     "long_ew lat_ns ctry site_name polar op_agcy addr_code ant_dir src_update offset_khz erp_beam_tilt_dbw "
     "beam_tilt_angle plan_entry assgn_code are_rmk_conds_met has_signed_commitment is_pub_req is_resub rx_mode "
     "ref_plan_cfg sfn_id assoc_allot_id assoc_allot_sfn_id spect_mask src_notice is_public is_digital is_notice "
     "amend_type stage",
     "freq_assgn long_deg long_min long_sec long_rdn lat_deg lat_min lat_sec lat_rdn erp_h_dbw erp_v_dbw hgt_agl "
     "site_alt eff_hgtmax",
     "vornakey",
     "d_rcv d_adm_ntc d_inuse d_updated d_recog d_expiry"},
    {"lmz_allotment", "allot_name typ_ref_netwk geo_area", "nb_sub_areas", "vornakey allotkey", ""},
    {"lmz_sub_area", "", "", "allotkey contourkey", ""},
    {"lmz_contour", "ctry adm intent remarks", "contour_id nb_test_pts", "contourkey", "d_updated d_recog"},
    {"lmz_contour_pt", "long_ew lat_ns", "long_deg long_min long_sec lat_deg lat_min lat_sec", "contourkey test_pt", ""},
    {"fmtv_art5_target", "trg_adm_ref_id trg_long_ew trg_lat_ns",
     "trg_freq_assgn trg_long_deg trg_long_min trg_long_sec trg_lat_deg trg_lat_min trg_lat_sec", "vornakey", ""},
    {"fmtv_op_prd", "op_hh_fr op_hh_to", "", "vornakey", ""},
    {"fmtv_rmks", "rmk_text rmk_type", "", "vornakey rmk_seq_no", ""},
    {"fmtv_coord", "adm coord_prov coord_st src_status decl_affct", "", "vornakey", "d_coord_st"},
    {"fmtv_ant_hgt", "", "azm eff_hgt", "vornakey", ""},
    {"fmtv_ant_diag", "polar", "azm attn", "vornakey", ""},
    {"proc_ntc_hist", "email_addr src_update", "", "vornakey", "d_updated"},
    {"fmtv_keys", "", "", "vornakey allotkey contourkey", ""},
    {"op_agcy", "adm op_agcy", "", "", ""},
    {"addr_code", "adm addr_code", "", "", ""},
};

const std::set<std::string> kTablesOfOtherTools = {
    "fmtv_status", "fmtv_pub_hist", "file_trace", "contour_trace", "circ", "pub", "lmz_sfnID_proc", "lmz_elements"};

// The tables whose rows go with the notice, lmz_sub_area apart.
const char* const kChildren[] = {
    "lmz_allotment", "fmtv_art5_target", "fmtv_op_prd", "fmtv_rmks", "fmtv_coord", "fmtv_ant_hgt", "fmtv_ant_diag",
    "proc_ntc_hist", "fmtv_status", "fmtv_pub_hist"};

const char* const kAdministrations[] = {
    "AFS", "AGL", "ALB", "ALG", "AND", "ARM", "ARS", "AUT", "AZE", "BDI", "BEL", "BEN", "BFA", "BHR", "BIH", "BLR",
    "BOT", "BUL", "CAF", "CME", "COD", "COG", "COM", "CPV", "CTI", "CVA", "CYP", "CZE", "D", "DJI", "DNK", "E", "EGY",
    "ERI", "EST", "ETH", "F", "FIN", "G", "GAB", "GEO", "GHA", "GMB", "GNB", "GNE", "GRC", "GUI", "HNG", "HOL", "HRV",
    "I", "IRL", "IRN", "IRQ", "ISL", "ISR", "JOR", "KAZ", "KEN", "KGZ", "KWT", "LBN", "LBR", "LBY", "LIE", "LSO",
    "LTU", "LUX", "LVA", "MAU", "MCO", "MDA", "MDG", "MKD", "MLI", "MLT", "MNE", "MOZ", "MRC", "MTN", "MWI", "NGR",
    "NIG", "NMB", "NOR", "OMA", "POL", "POR", "PSE", "QAT", "ROU", "RRW", "RUS", "S", "SDN", "SEN", "SEY", "SMR",
    "SOM", "SRB", "SRL", "STP", "SUI", "SVK", "SVN", "SWZ", "SYR", "TCD", "TGO", "TJK", "TKM", "TUN", "TUR", "TZA",
    "UAE", "UGA", "UKR", "UZB", "YEM", "ZMB", "ZWE"};

// The statements of the program that look for something, with values in their places.
const char* const kLookups[] = {
    "SELECT * FROM fmtv_vorna WHERE vornakey = 83700001",
    "SELECT notice_typ FROM fmtv_vorna WHERE vornakey = 83700001",
    "SELECT freq_assgn, long_deg, long_min, long_sec, long_ew, lat_deg, lat_min, lat_sec, lat_ns FROM fmtv_vorna "
    "WHERE vornakey = 83700001",
    "SELECT vornakey, intent FROM fmtv_vorna WHERE adm_ref_id = 'REF1' AND adm = 'F'    ",
    "SELECT vornakey, adm_ref_id From fmtv_vorna WHERE freq_assgn = 474 AND adm = 'F' AND long_deg = 2 AND "
    "long_ew = 'E' AND long_min = 20 AND long_sec = 0 AND lat_deg = 48 AND lat_ns = 'N' AND lat_min = 51 AND "
    "lat_sec = 12",
    "SELECT * FROM fmtv_rmks WHERE vornakey = 83700001",
    "SELECT * FROM proc_ntc_hist WHERE vornakey = 83700001",
    "SELECT * FROM fmtv_art5_target WHERE vornakey = 83700001",
    "SELECT * FROM fmtv_op_prd WHERE vornakey = 83700001",
    "SELECT * FROM fmtv_coord WHERE vornakey = 83700001",
    "SELECT * FROM fmtv_coord WHERE vornakey = 83700001 AND coord_st = 'COORD COMPLETED'",
    "SELECT * FROM fmtv_ant_hgt WHERE vornakey = 83700001",
    "SELECT * FROM fmtv_ant_diag WHERE vornakey = 83700001 AND polar = 'H' ",
    "SELECT * FROM fmtv_ant_diag WHERE vornakey = 83700001 AND polar = 'V'",
    "SELECT * from lmz_allotment WHERE vornakey = 83700001",
    "SELECT * FROM lmz_allotment WHERE vornakey = 83700001 AND nb_sub_areas is NOT Null",
    "SELECT lmz_contour.contour_id FROM lmz_sub_area INNER JOIN lmz_contour ON lmz_sub_area.contourkey = "
    "lmz_contour.contourkey WHERE allotkey = 83700001",
    "SELECT * FROM lmz_sub_area WHERE allotkey = 83700001",
    "Select * FROM lmz_sub_area WHERE contourkey = 7",
    "SELECT * FROM lmz_contour WHERE contourkey = 7",
    "SELECT * FROM lmz_contour WHERE contourkey = 7 AND nb_test_pts Is NULL",
    "SELECT * FROM lmz_contour WHERE contour_id = 12 AND ctry = 'F' AND adm = 'F'",
    "SELECT * FROM lmz_contour_pt WHERE contourkey = 7",
    "SELECT lmz_contour.contourkey, lmz_contour.contour_id, lmz_contour.ctry, lmz_contour.adm, lmz_contour.intent, "
    "lmz_contour.remarks, lmz_contour.d_updated, lmz_contour.d_recog, nb_test_pts, test_pt, long_deg, long_min, "
    "long_sec, long_ew, lat_deg, lat_min, lat_sec, lat_ns FROM lmz_contour INNER JOIN lmz_contour_pt ON "
    "lmz_contour.contourkey = lmz_contour_pt.contourkey WHERE lmz_contour.contourkey = 7 "
    "ORDER BY lmz_contour_pt.test_pt",
    "SELECT contourkey, contour_id, ctry, adm, remarks, d_updated, d_recog, nb_test_pts FROM lmz_contour WHERE "
    "lmz_contour.contourkey = 7",
    "Select op_agcy From op_agcy WHERE adm = 'F'",
    "Select addr_code From addr_code WHERE adm = 'F'",
};
// clang-format on

std::string allotmentByElements(const std::string& condition) {
  return "SELECT fmtv_vorna.vornakey, fmtv_vorna.intent, fmtv_vorna.adm_ref_id, fmtv_vorna.assgn_id FROM "
         "lmz_contour INNER JOIN ((fmtv_vorna INNER JOIN lmz_allotment ON fmtv_vorna.vornakey = "
         "lmz_allotment.vornakey) INNER JOIN lmz_sub_area ON lmz_allotment.allotkey = lmz_sub_area.allotkey) "
         "ON "
         "lmz_contour.contourkey = lmz_sub_area.contourkey WHERE (" +
         condition + ") AND fmtv_vorna.adm = 'F' AND fmtv_vorna.freq_assgn = 474";
}

std::set<std::string> words(const std::string& text) {
  std::set<std::string> found;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find(' ', from), text.size());
    found.insert(text.substr(from, end - from));
    from = end + 1;
  }
  return found;
}

std::vector<Column> expectedColumns() {
  std::vector<Column> columns;
  for (const TableColumns& table : kTables) {
    const auto add = [&](const char* names, Kind kind) {
      for (const std::string& name : words(names)) columns.push_back({table.table, name, kind});
    };
    add(table.text, Kind::text);
    add(table.numbers, Kind::number);
    add(table.whole, Kind::whole);
    add(table.dates, Kind::date);
  }
  return columns;
}

class TheTemplate : public testing::Test {
 protected:
  static std::string copyInto(const TempFolder& folder) {
    fs::copy_file(kTemplate, folder.file("copy.mdb"));
    return folder.file("copy.mdb");
  }

  // A notice with a row in every table that hangs on it, linked to a contour of two points. Keys from `key`
  // on.
  void addNotice(int key) {
    const std::string k = std::to_string(key);
    db.run("INSERT INTO fmtv_vorna (vornakey) VALUES (" + k + ")");
    for (const char* child : kChildren) {
      const bool allotment = child == std::string("lmz_allotment");
      db.run(std::string("INSERT INTO ") + child +
             (allotment ? " (vornakey, allotkey) VALUES (" + k + "," + k + ")"
                        : " (vornakey) VALUES (" + k + ")"));
    }
    db.run("INSERT INTO lmz_contour (contourkey, nb_test_pts) VALUES (" + k + ", 2)");
    db.run("INSERT INTO lmz_contour_pt (contourkey, test_pt) VALUES (" + k + ", 0), (" + k + ", 1)");
    db.run("INSERT INTO lmz_sub_area VALUES (" + k + "," + k + ")");
  }

  // A database with one row in every table.
  void addOneRowEverywhere() {
    addNotice(1);
    db.run("DELETE FROM lmz_contour_pt WHERE test_pt = 1; DELETE FROM op_agcy WHERE adm <> 'F'");
    db.run("DELETE FROM addr_code WHERE adm <> 'F'");
  }

  int set(const Column& column, const std::string& literal) {
    return db.codeOf("UPDATE " + column.table + " SET " + column.name + " = " + literal);
  }

  std::string count(const std::string& table, int key, const std::string& column = "vornakey") {
    return db.value("SELECT count(*) FROM " + table + " WHERE " + column + " = " + std::to_string(key));
  }

  TempFolder folder;
  RawDatabase db{copyInto(folder)};
};

TEST_F(TheTemplate, has_the_tables_of_the_program_and_of_the_other_tools_and_no_more) {
  std::set<std::string> expected = kTablesOfOtherTools;
  for (const TableColumns& table : kTables) expected.insert(table.table);
  std::set<std::string> found;
  for (const auto& row : db.rows("SELECT name FROM sqlite_schema WHERE type = 'table'")) found.insert(row[0]);
  EXPECT_EQ(found, expected);
  EXPECT_EQ(found.count("lmz_aux_border_contour"), 0U);
}

TEST_F(TheTemplate, has_strict_tables) {
  EXPECT_EQ(
      db.rows("SELECT name FROM pragma_table_list WHERE schema = 'main' AND name NOT LIKE 'sqlite_%' AND "
              "(strict = 0 OR wr = 1)"),
      Rows{});
}

TEST_F(TheTemplate, has_the_columns_that_the_program_uses_and_no_others_beside_them) {
  for (const TableColumns& table : kTables) {
    std::set<std::string> expected;
    for (const char* names : {table.text, table.numbers, table.whole, table.dates})
      expected.merge(words(names));
    std::set<std::string> found;
    for (const auto& row :
         db.rows(std::string("SELECT name FROM pragma_table_xinfo('") + table.table + "')")) {
      found.insert(row[0]);
    }
    EXPECT_EQ(found, expected) << table.table;
  }
}

TEST_F(TheTemplate, gives_each_column_its_kind) {
  const std::map<Kind, std::pair<std::string, std::string>> kinds = {{Kind::text, {"TEXT", "NOCASE"}},
                                                                     {Kind::number, {"REAL", "BINARY"}},
                                                                     {Kind::whole, {"INTEGER", "BINARY"}},
                                                                     {Kind::date, {"TEXT", "BINARY"}}};
  for (const Column& column : expectedColumns()) {
    const char* type = nullptr;
    const char* collation = nullptr;
    ASSERT_EQ(sqlite3_table_column_metadata(db.handle(), nullptr, column.table.c_str(), column.name.c_str(),
                                            &type, &collation, nullptr, nullptr, nullptr),
              SQLITE_OK)
        << column.table << "." << column.name;
    EXPECT_EQ(std::make_pair(std::string(type), std::string(collation)), kinds.at(column.kind))
        << column.table << "." << column.name;
  }
}

TEST_F(TheTemplate, takes_only_days_of_the_calendar_in_a_date) {
  addOneRowEverywhere();
  int dates = 0;
  for (const Column& column : expectedColumns()) {
    if (column.kind != Kind::date) continue;
    SCOPED_TRACE(column.table + "." + column.name);
    ++dates;
    for (const char* day : {"'2005-02-28'", "'2004-02-29'", "'1999-12-31'", "NULL"}) {
      EXPECT_EQ(set(column, day), SQLITE_OK) << day;
    }
    EXPECT_EQ(set(column, "'2005-02-28'"), SQLITE_OK);
    for (const char* day : {"'2005-02-31'", "'2005-02-29'", "'20050101'", "'2005-13-01'", "'2005-1-1'",
                            "'28.02.2005'", "'02/28/2005'", "'2005-02-28 10:00'", "' 2005-02-28'",
                            "'-2005-02-28'", "'2453430'", "'12:00'", "'x'", "''"}) {
      EXPECT_EQ(set(column, day), SQLITE_CONSTRAINT_CHECK) << day;
    }
    EXPECT_NE(set(column, "'now'"), SQLITE_OK);
    EXPECT_EQ(db.value("SELECT " + column.name + " FROM " + column.table), "2005-02-28");
  }
  EXPECT_EQ(dates, 10);
}

TEST_F(TheTemplate, takes_only_numbers_in_a_number) {
  addOneRowEverywhere();
  for (const Column& column : expectedColumns()) {
    if (column.kind != Kind::number) continue;
    SCOPED_TRACE(column.table + "." + column.name);
    EXPECT_EQ(set(column, "'474.25'"), SQLITE_OK);
    for (const char* text : {"'12a'", "'4,5'", "'0x10'", "'x'", "''", "x'00'"}) {
      EXPECT_EQ(set(column, text), SQLITE_CONSTRAINT_DATATYPE) << text;
    }
    EXPECT_EQ(db.rows("SELECT " + column.name + ", typeof(" + column.name + ") FROM " + column.table),
              (Rows{{"474.25", "real"}}));
    EXPECT_EQ(set(column, "NULL"), SQLITE_OK);
  }
}

TEST_F(TheTemplate, takes_only_whole_numbers_in_a_key_or_a_count) {
  addOneRowEverywhere();
  for (const Column& column : expectedColumns()) {
    if (column.kind != Kind::whole) continue;
    SCOPED_TRACE(column.table + "." + column.name);
    EXPECT_EQ(set(column, "'1'"), SQLITE_OK);
    for (const char* text : {"'1.5'", "'x'", "''"}) EXPECT_NE(set(column, text), SQLITE_OK) << text;
    EXPECT_EQ(db.rows("SELECT " + column.name + ", typeof(" + column.name + ") FROM " + column.table),
              (Rows{{"1", "integer"}}));
  }
}

TEST_F(TheTemplate, compares_text_without_regard_to_case_and_keeps_its_zeros) {
  addOneRowEverywhere();
  for (const Column& column : expectedColumns()) {
    if (column.kind != Kind::text) continue;
    SCOPED_TRACE(column.table + "." + column.name);
    EXPECT_EQ(set(column, "'aBc'"), SQLITE_OK);
    EXPECT_EQ(db.value("SELECT count(*) FROM " + column.table + " WHERE " + column.name + " = 'AbC'"), "1");
    EXPECT_EQ(set(column, "'001'"), SQLITE_OK);
    EXPECT_EQ(db.value("SELECT " + column.name + " FROM " + column.table), "001");
  }
}

TEST_F(TheTemplate, takes_remarks_of_80_characters_and_not_of_81) {
  addNotice(1);
  const std::string accents = "'" + std::string(78, 'x');
  EXPECT_EQ(set({"fmtv_rmks", "rmk_text", Kind::text}, accents + "\xc3\xa9\xc3\xa9'"), SQLITE_OK);
  EXPECT_EQ(db.value("SELECT length(rmk_text) FROM fmtv_rmks"), "80");
  EXPECT_EQ(set({"fmtv_rmks", "rmk_text", Kind::text}, accents + "\xc3\xa9\xc3\xa9\xc3\xa9'"),
            SQLITE_CONSTRAINT_CHECK);
  EXPECT_EQ(set({"lmz_contour", "remarks", Kind::text}, "'" + std::string(200, 'x') + "'"), SQLITE_OK);
}

TEST_F(TheTemplate, starts_all_keys_at_1) {
  EXPECT_EQ(db.rows("SELECT vornakey, allotkey, contourkey FROM fmtv_keys"), (Rows{{"1", "1", "1"}}));
}

TEST_F(TheTemplate, lets_the_row_of_keys_be_missing_or_doubled_for_the_program_to_notice) {
  db.run("INSERT INTO fmtv_keys VALUES (1, 1, 1)");
  db.run("DELETE FROM fmtv_keys");
}

TEST_F(TheTemplate, gives_each_administration_the_agency_001_and_the_address_A) {
  Rows agencies;
  Rows addresses;
  for (const char* adm : kAdministrations) {
    agencies.push_back({adm, "001", "text"});
    addresses.push_back({adm, "A", "text"});
  }
  ASSERT_EQ(agencies.size(), 121U);
  EXPECT_EQ(db.rows("SELECT adm, op_agcy, typeof(op_agcy) FROM op_agcy ORDER BY adm"), agencies);
  EXPECT_EQ(db.rows("SELECT adm, addr_code, typeof(addr_code) FROM addr_code ORDER BY adm"), addresses);
}

TEST_F(TheTemplate, holds_no_rows_in_the_other_tables) {
  const std::set<std::string> filled = {"fmtv_keys", "op_agcy", "addr_code"};
  for (const auto& row : db.rows("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
    if (filled.count(row[0]) == 0) {
      EXPECT_EQ(db.value("SELECT count(*) FROM " + row[0]), "0") << row[0];
    }
  }
}

TEST_F(TheTemplate, is_one_file_that_stands_alone) {
  EXPECT_EQ(db.value("PRAGMA journal_mode"), "delete");
  EXPECT_EQ(db.value("PRAGMA integrity_check"), "ok");
  for (const char* beside : {"-journal", "-wal", "-shm"}) EXPECT_FALSE(fs::exists(kTemplate + beside));
}

TEST_F(TheTemplate, takes_the_rows_of_a_deleted_notice_along_and_no_others) {
  addNotice(1);
  addNotice(2);
  db.run("DELETE FROM fmtv_vorna WHERE vornakey = 1");
  for (const char* child : kChildren) {
    EXPECT_EQ(count(child, 1), "0") << child;
    EXPECT_EQ(count(child, 2), "1") << child;
  }
  EXPECT_EQ(count("lmz_sub_area", 1, "allotkey"), "0");
  EXPECT_EQ(count("lmz_sub_area", 2, "allotkey"), "1");
  EXPECT_EQ(count("lmz_contour", 1, "contourkey"), "1") << "a contour outlives the allotment";
  EXPECT_EQ(count("lmz_contour_pt", 1, "contourkey"), "2");
}

TEST_F(TheTemplate, takes_the_links_of_a_deleted_allotment_along) {
  addNotice(1);
  db.run("DELETE FROM lmz_allotment");
  EXPECT_EQ(count("lmz_sub_area", 1, "allotkey"), "0");
  EXPECT_EQ(count("fmtv_vorna", 1), "1");
}

TEST_F(TheTemplate, takes_the_points_and_links_of_a_deleted_contour_along) {
  addNotice(1);
  db.run("DELETE FROM lmz_contour");
  EXPECT_EQ(count("lmz_sub_area", 1, "contourkey"), "0");
  EXPECT_EQ(count("lmz_contour_pt", 1, "contourkey"), "0");
  EXPECT_EQ(count("lmz_allotment", 1), "1");
}

TEST_F(TheTemplate, refuses_rows_of_a_notice_or_contour_that_is_not_there) {
  for (const char* child : kChildren) {
    EXPECT_EQ(db.codeOf(std::string("INSERT INTO ") + child + " (vornakey) VALUES (1)"),
              SQLITE_CONSTRAINT_FOREIGNKEY)
        << child;
    EXPECT_EQ(db.codeOf(std::string("INSERT INTO ") + child + " (vornakey) VALUES (NULL)"),
              SQLITE_CONSTRAINT_NOTNULL)
        << child;
  }
  EXPECT_EQ(db.codeOf("INSERT INTO lmz_contour_pt (contourkey) VALUES (1)"), SQLITE_CONSTRAINT_FOREIGNKEY);
}

TEST_F(TheTemplate, lets_a_link_be_written_before_what_it_ties) {
  db.run("BEGIN; INSERT INTO lmz_sub_area VALUES (1, 1); INSERT INTO lmz_contour (contourkey) VALUES (1)");
  db.run("INSERT INTO fmtv_vorna (vornakey) VALUES (1)");
  db.run("INSERT INTO lmz_allotment (vornakey, allotkey) VALUES (1, 1); COMMIT");

  db.run("BEGIN; INSERT INTO lmz_sub_area VALUES (1, 2)");
  EXPECT_EQ(db.codeOf("COMMIT"), SQLITE_CONSTRAINT_FOREIGNKEY);
  db.run("ROLLBACK");
  EXPECT_EQ(db.rows("SELECT allotkey, contourkey FROM lmz_sub_area"), (Rows{{"1", "1"}}));
}

TEST_F(TheTemplate, refuses_a_key_that_is_there_and_a_second_allotment_of_a_notice) {
  addNotice(1);
  EXPECT_EQ(db.codeOf("INSERT INTO fmtv_vorna (vornakey) VALUES (1)"), SQLITE_CONSTRAINT_PRIMARYKEY);
  EXPECT_EQ(db.codeOf("INSERT INTO lmz_contour (contourkey) VALUES (1)"), SQLITE_CONSTRAINT_PRIMARYKEY);
  EXPECT_EQ(db.codeOf("INSERT INTO lmz_allotment (vornakey, allotkey) VALUES (1, 2)"),
            SQLITE_CONSTRAINT_UNIQUE);
  db.run("INSERT INTO fmtv_vorna (vornakey) VALUES (2)");
  EXPECT_EQ(db.codeOf("INSERT INTO lmz_allotment (vornakey, allotkey) VALUES (2, 1)"),
            SQLITE_CONSTRAINT_PRIMARYKEY);
}

TEST_F(TheTemplate, lets_contours_share_an_id_and_notices_a_reference) {
  db.run(
      "INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm) VALUES (1, 5, 'F', 'F'), (2, 5, 'F', "
      "'F')");
  db.run("INSERT INTO fmtv_vorna (vornakey, adm_ref_id, adm) VALUES (1, 'A', 'F'), (2, 'A', 'F')");
}

TEST_F(TheTemplate, answers_every_lookup_from_an_index) {
  std::vector<std::string> lookups(std::begin(kLookups), std::end(kLookups));
  std::string ids = " lmz_contour.contour_id = 1";
  for (int id = 2; id <= 11; ++id) {
    lookups.push_back(allotmentByElements(ids));
    ids += " or lmz_contour.contour_id = " + std::to_string(id);
  }
  lookups.push_back(allotmentByElements(" geo_area = 'F'"));
  lookups.push_back(allotmentByElements(" geo_area = 'F'") + " ORDER BY fmtv_vorna.vornakey");
  lookups.push_back(allotmentByElements(ids) + " ORDER BY fmtv_vorna.vornakey");

  EXPECT_EQ(db.rows("SELECT name FROM sqlite_schema WHERE name LIKE 'sqlite_stat%'"), Rows{});
  for (const std::string& sql : lookups) {
    int searches = 0;
    for (const auto& step : db.rows("EXPLAIN QUERY PLAN " + sql)) {
      EXPECT_EQ(step[3].find("SCAN"), std::string::npos) << sql << "\n" << step[3];
      if (step[3].starts_with("SEARCH")) ++searches;
    }
    EXPECT_GT(searches, 0) << sql;
  }
}

TEST_F(TheTemplate, looks_for_an_allotment_by_what_few_rows_share) {
  for (const char* condition : {" geo_area = 'F'", " lmz_contour.contour_id = 1",
                                " lmz_contour.contour_id = 1 or lmz_contour.contour_id = 2"}) {
    const Rows steps = db.rows("EXPLAIN QUERY PLAN " + allotmentByElements(condition));
    ASSERT_EQ(steps.size(), 4U);
    EXPECT_THAT(steps[0][3],
                testing::AnyOf(HasSubstr("lmz_allotment_geo_area"), HasSubstr("lmz_contour_identity")));
    for (const auto& step : steps) EXPECT_THAT(step[3], testing::Not(HasSubstr("adm=?")));
  }
}

TEST_F(TheTemplate, deletes_and_updates_through_an_index) {
  // The engine's plan of a DELETE leaves its cascades out, so each child's index is looked for by itself.
  Rows unindexed = db.rows(
      "SELECT t.name, f.\"from\" FROM sqlite_schema t, pragma_foreign_key_list(t.name) f WHERE t.type = "
      "'table' AND "
      "NOT EXISTS (SELECT 1 FROM pragma_index_list(t.name) i, pragma_index_info(i.name) c WHERE c.seqno = 0 "
      "AND "
      "c.name = f.\"from\" AND i.partial = 0)");
  EXPECT_EQ(unindexed, Rows{});
  EXPECT_EQ(
      db.value(
          "SELECT count(*) FROM sqlite_schema t, pragma_foreign_key_list(t.name) f WHERE t.type = 'table' "
          "AND f.on_delete = 'CASCADE'"),
      "13");
}

TEST_F(TheTemplate, gives_the_rows_of_a_walk_in_the_order_of_their_keys) {
  db.run(
      "INSERT INTO fmtv_vorna (vornakey, adm_ref_id, adm, long_deg, freq_assgn) VALUES (1, 'C', 'F', 3, "
      "490), "
      "(2, 'B', 'F', 2, 482), (3, 'A', 'D', 1, 474)");
  db.run(
      "INSERT INTO lmz_contour (contourkey, contour_id, ctry, adm) VALUES (1, 3, 'F', 'F'), (2, 2, 'F', "
      "'F'), "
      "(3, 1, 'D', 'D')");
  db.run(
      "INSERT INTO lmz_allotment (vornakey, allotkey, geo_area) VALUES (3, 1, 'F'), (2, 2, 'E'), (1, 3, "
      "'D')");
  EXPECT_EQ(db.rows("SELECT fmtv_vorna.vornakey FROM fmtv_vorna "), (Rows{{"1"}, {"2"}, {"3"}}));
  EXPECT_EQ(db.rows("SELECT adm_ref_id FROM fmtv_vorna"), (Rows{{"C"}, {"B"}, {"A"}}));
  EXPECT_EQ(db.rows("SELECT contour_id, ctry FROM lmz_contour"),
            (Rows{{"3.0", "F"}, {"2.0", "F"}, {"1.0", "D"}}));
}

TEST_F(TheTemplate, gives_the_rows_of_a_notice_in_the_order_in_which_they_came) {
  addNotice(1);
  addNotice(2);
  db.run("DELETE FROM fmtv_rmks; DELETE FROM lmz_sub_area; UPDATE lmz_contour SET contour_id = contourkey");
  for (const char* text : {"z", "a", "m"}) {
    db.run(std::string("INSERT INTO fmtv_rmks (vornakey, rmk_text) VALUES (2, 'other'), (1, '") + text +
           "')");
  }
  db.run("INSERT INTO lmz_sub_area VALUES (1, 2), (1, 1)");
  EXPECT_EQ(db.rows("SELECT rmk_text FROM fmtv_rmks WHERE vornakey = 1"), (Rows{{"z"}, {"a"}, {"m"}}));
  EXPECT_EQ(db.rows("SELECT lmz_contour.contour_id FROM lmz_sub_area INNER JOIN lmz_contour ON "
                    "lmz_sub_area.contourkey = lmz_contour.contourkey WHERE allotkey = 1"),
            (Rows{{"2.0"}, {"1.0"}}));
}

TEST_F(TheTemplate, finds_the_first_of_several_equal_notices_first) {
  const std::string values = ", 'F', 'R', 474, 2, 20, 0, 'E', 48, 51, 12, 'N')";
  for (const char* key : {"1", "2", "3"}) {
    db.run(std::string(
               "INSERT INTO fmtv_vorna (vornakey, adm, adm_ref_id, freq_assgn, long_deg, long_min, long_sec, "
               "long_ew, lat_deg, lat_min, lat_sec, lat_ns) VALUES (") +
           key + values);
  }
  EXPECT_EQ(db.rows("SELECT vornakey, intent FROM fmtv_vorna WHERE adm_ref_id = 'r' AND adm = 'f'    "),
            (Rows{{"1", "NULL"}, {"2", "NULL"}, {"3", "NULL"}}));
  EXPECT_EQ(
      db.value(
          "SELECT vornakey, adm_ref_id From fmtv_vorna WHERE freq_assgn = 474 AND adm = 'F' AND long_deg "
          "= 2 AND long_ew = 'E' AND long_min = 20 AND long_sec = 0 AND lat_deg = 48 AND lat_ns = 'N' AND "
          "lat_min = 51 AND lat_sec = 12"),
      "1");
}

// The script that builds it.

struct Outcome {
  int status;
  std::string output;
};

class TheTemplateScript : public testing::Test {
 protected:
  TheTemplateScript() { folder.write("addr_code.csv", "adm,addr_code\nF,A\n"); }

  static std::string quoted(const std::string& path) { return "'" + path + "'"; }

  static Outcome runWith(const std::string& arguments) {
    const std::string command =
        quoted(ZAMO_TEST_DATA "/../../template/build-template.sh") + arguments + " 2>&1";
    std::FILE* output = ::popen(command.c_str(), "r");
    Outcome outcome{-1, ""};
    if (output == nullptr) return outcome;
    std::array<char, 256> part;
    while (std::fgets(part.data(), part.size(), output) != nullptr) outcome.output += part.data();
    const int status = ::pclose(output);
    if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
    return outcome;
  }

  Outcome build() const {
    return runWith(" " + quoted(out) + " " + quoted(folder.file("op_agcy.csv")) + " " +
                   quoted(folder.file("addr_code.csv")));
  }

  // The file is refused in these words, and nothing is left behind.
  void expectRefused(const std::string& opAgcyCsv, const std::string& words) {
    SCOPED_TRACE(opAgcyCsv);
    const std::string path = folder.write("op_agcy.csv", opAgcyCsv);
    const Outcome outcome = build();
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "build-template.sh: " + path + ": " + words + "\n");
    expectNothingLeft();
  }

  void expectNothingLeft() const {
    std::set<std::string> files;
    for (const auto& file : fs::directory_iterator(folder.path())) files.insert(file.path().filename());
    files.erase("op_agcy.csv");
    files.erase("addr_code.csv");
    EXPECT_EQ(files, std::set<std::string>{});
  }

  TempFolder folder;
  const std::string out = folder.file("my template.mdb");
};

TEST_F(TheTemplateScript, builds_a_template_from_an_operators_own_files) {
  folder.write("op_agcy.csv", "adm,op_agcy\nF,001\nF,0123\nD,007\n");
  folder.write("addr_code.csv", "adm,addr_code\nF,A\nF,b\n");
  const Outcome outcome = build();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, "");
  RawDatabase db(out);
  EXPECT_EQ(db.rows("SELECT adm, op_agcy, typeof(op_agcy) FROM op_agcy ORDER BY rowid"),
            (Rows{{"F", "001", "text"}, {"F", "0123", "text"}, {"D", "007", "text"}}));
  EXPECT_EQ(db.rows("SELECT adm, addr_code FROM addr_code ORDER BY rowid"), (Rows{{"F", "A"}, {"F", "b"}}));
  EXPECT_EQ(db.rows("SELECT * FROM fmtv_keys"), (Rows{{"1", "1", "1"}}));
  RawDatabase built(kTemplate);
  const std::string schema = "SELECT type, name, sql FROM sqlite_schema ORDER BY name";
  EXPECT_EQ(db.rows(schema), built.rows(schema));
}

TEST_F(TheTemplateScript, takes_the_line_ends_and_the_mark_of_a_spreadsheet) {
  folder.write("op_agcy.csv",
               "\xef\xbb\xbf"
               "adm,op_agcy\r\nF,001\r\n\r\nD,002");
  EXPECT_EQ(build().status, 0);
  EXPECT_EQ(RawDatabase(out).rows("SELECT adm, op_agcy FROM op_agcy ORDER BY rowid"),
            (Rows{{"F", "001"}, {"D", "002"}}));
}

TEST_F(TheTemplateScript, replaces_an_older_template) {
  folder.write("my template.mdb", "old");
  folder.write("op_agcy.csv", "adm,op_agcy\nF,001\n");
  EXPECT_EQ(build().status, 0);
  EXPECT_EQ(RawDatabase(out).value("SELECT op_agcy FROM op_agcy"), "001");
}

TEST_F(TheTemplateScript, refuses_a_malformed_file_and_leaves_none_behind) {
  expectRefused("", "the file is empty");
  expectRefused("adm,op_agcy\n", "no row follows the first line");
  expectRefused("adm,op_agcy\n\n", "no row follows the first line");
  expectRefused("F,001\n", "the first line is not adm,op_agcy");
  expectRefused("adm;op_agcy\nF;001\n", "the first line is not adm,op_agcy");
  expectRefused("op_agcy,adm\n001,F\n", "the first line is not adm,op_agcy");
  expectRefused("adm,op_agcy\nF,001\nD\n", "line 3 has not two columns");
  expectRefused("adm,op_agcy\nF,001,A\n", "line 2 has not two columns");
  expectRefused("adm,op_agcy\nF,1\n", "line 2: op_agcy is not three or four digits");
  expectRefused("adm,op_agcy\nF,\n", "line 2: op_agcy is not three or four digits");
  expectRefused("adm,op_agcy\nF,'01\n", "line 2: op_agcy is not three or four digits");
  expectRefused("adm,op_agcy\nFRAN,001\n", "line 2: adm is not one to three capital letters");
  expectRefused("adm,op_agcy\n\"F\",001\n", "line 2: adm is not one to three capital letters");
  expectRefused("adm,op_agcy\nF,001\nF,001\n", "line 3 repeats an earlier line");
  expectRefused(std::string("adm,op_agcy\nF,0\0001\n", 19), "line 2: op_agcy is not three or four digits");
}

TEST_F(TheTemplateScript, refuses_a_malformed_file_of_address_codes_too) {
  folder.write("op_agcy.csv", "adm,op_agcy\nF,001\n");
  const std::string path = folder.write("addr_code.csv", "adm,addr_code\nF,1\n");
  const Outcome outcome = build();
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "build-template.sh: " + path + ": line 2: addr_code is not one letter\n");
  expectNothingLeft();
}

TEST_F(TheTemplateScript, keeps_the_older_template_when_it_refuses) {
  folder.write("my template.mdb", "old");
  folder.write("op_agcy.csv", "adm,op_agcy\nF,1\n");
  EXPECT_EQ(build().status, 2);
  EXPECT_EQ(readFile(out), "old");
}

TEST_F(TheTemplateScript, refuses_a_missing_file) {
  const Outcome outcome = build();
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "build-template.sh: " + folder.file("op_agcy.csv") + ": no such file\n");
  expectNothingLeft();
}

TEST_F(TheTemplateScript, refuses_a_place_that_is_no_file) {
  const std::string files = " " + quoted(folder.write("op_agcy.csv", "adm,op_agcy\nF,001\n")) + " " +
                            quoted(folder.file("addr_code.csv"));
  const Outcome intoFolder = runWith(" " + quoted(folder.path()) + files);
  EXPECT_EQ(intoFolder.status, 2);
  EXPECT_EQ(intoFolder.output, "build-template.sh: " + folder.path() + ": is a folder\n");
  const Outcome intoNowhere = runWith(" " + quoted(folder.file("none/a.mdb")) + files);
  EXPECT_EQ(intoNowhere.status, 2);
  EXPECT_EQ(intoNowhere.output,
            "build-template.sh: " + folder.file("none/a.mdb") + ": there is no such folder\n");
  expectNothingLeft();
}

TEST_F(TheTemplateScript, tells_its_usage) {
  const Outcome outcome = runWith("");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "build-template.sh: usage: build-template.sh OUT OP_AGCY_CSV ADDR_CODE_CSV\n");
}

}  // namespace
}  // namespace zamo::test
