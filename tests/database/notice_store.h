// What tests that store, correct and delete notices share: notices that fill every table, the fields with
// their columns, and all that a change left in the database and told the operator.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "database/working_database.h"
#include "database/write_notice.h"
#include "model/fields.h"
#include "support/valid_notices.h"

namespace zamo::test {

using Texts = std::vector<std::string>;
using Columns = std::map<std::string, std::string>;

inline Texts wordsOf(const std::string& text) {
  std::istringstream in(text);
  Texts all;
  for (std::string word; in >> word;) all.push_back(word);
  return all;
}

inline bool isAmong(const std::string& words, const std::string& word) {
  const Texts all = wordsOf(words);
  return std::find(all.begin(), all.end(), word) != all.end();
}

// A box as one text: what it says, its title, and "!" for the warning sign.
inline std::string told(const Box& box) {
  return box.title +
         (box.icon == BoxIcon::none          ? ": "
          : box.icon == BoxIcon::exclamation ? " (!): "
                                             : " (?): ") +
         box.text;
}

inline const std::string kNotSaved = "Erreur base de donn\351es (!): The data was not saved to the database";

// What the engine says when a trigger of refuseRowsOf stands in the way.
inline std::string refusedIn(const std::string& operation) {
  return operation + ": Erreur 1811:no room";
}

inline constexpr const char* kTypesWithRow = "GT1 GS1 GT2 GS2 TB2 TB3 TB5";
inline constexpr const char* kNoTarget = "GT1 GS1 GT2 GS2";

// A notice of which nothing but its type and its administration is known.
inline NtcRec makeBareNotice(std::string_view type) {
  NtcRec ntc;
  ntc.t_notice_type = type;
  ntc.t_adm = "F";
  return ntc;
}

// A field, a value of it, and the column of fmtv_vorna that takes it: in new rows and in corrections of these
// types.
struct VornaField {
  const char* column;
  TextMember text;
  const char* given;
  const char* stored;
  const char* added = kTypesWithRow;
  const char* corrected = kTypesWithRow;
  bool isNeverCleared = false;
};

// Stored as it stands, whatever it would mean in a statement.
inline constexpr const char* kAwkward = "O'Neil; \"1\" --";

template <auto Member>
inline constexpr TextMember digitalField = textAt<&NtcRec::digital, Member>;

// clang-format off
inline const std::vector<VornaField> kVornaFields = {
    {"d_rcv",                 textAt<&NtcRec::d_rcv>,                            "15.01.2009", "2009-01-15", kTypesWithRow, ""},
    {"stn_cls",               textAt<&NtcRec::stn_cls>,                          kAwkward,     kAwkward},
    {"tran_sys",              textAt<&NtcRec::t_sys_var>,                        kAwkward,     kAwkward},
    {"d_adm_ntc",             textAt<&NtcRec::d_adm_ntc>,                        "2009-1-5",   "2009-01-05"},
    {"fragment",              textAt<&NtcRec::t_fragment>,                       kAwkward,     kAwkward,     kTypesWithRow, "GT1 GS1 GT2 GS2 TB5"},
    {"fragment",              textAt<&NtcRec::t_plan>,                           kAwkward,     kAwkward,     kTypesWithRow, "TB2 TB3"},
    {"intent",                textAt<&NtcRec::t_action>,                         kAwkward,     kAwkward},
    {"adm_ref_id",            textAt<&NtcRec::t_adm_ref_id>,                     kAwkward,     kAwkward,     kTypesWithRow, kNoTarget},
    {"plan_adm_ref_id",       textAt<&NtcRec::t_plan_adm_ref_id>,                kAwkward,     kAwkward},
    {"call_sign",             textAt<&NtcRec::t_call_sign>,                      kAwkward,     kAwkward},
    {"stn_id",                textAt<&NtcRec::stn_id>,                           kAwkward,     kAwkward},
    {"adm_ref_id",            textAt<&NtcRec::t_trg_adm_ref_id>,                 kAwkward,     kAwkward,     "TB2 TB3 TB5", "TB2 TB3 TB5"},
    {"freq_assgn",            textAt<&NtcRec::t_trg_freq_assgn>,                 "474.5",      "474.5",      "TB2", "TB2"},
    {"long_deg",              textAt<&NtcRec::trg_long_deg>,                     "002",        "2.0",        "TB2", "TB2"},
    {"long_min",              textAt<&NtcRec::trg_long_min>,                     "24",         "24.0",       "TB2", "TB2"},
    {"long_sec",              textAt<&NtcRec::trg_long_sec>,                     "10",         "10.0",       "TB2", "TB2"},
    {"long_ew",               textAt<&NtcRec::trg_long_ew>,                      "W",          "W",          "TB2", "TB2"},
    {"lat_deg",               textAt<&NtcRec::trg_lat_deg>,                      "47",         "47.0",       "TB2", "TB2"},
    {"lat_min",               textAt<&NtcRec::trg_lat_min>,                      "05",         "5.0",        "TB2", "TB2"},
    {"lat_sec",               textAt<&NtcRec::trg_lat_sec>,                      "30",         "30.0",       "TB2", "TB2"},
    {"lat_ns",                textAt<&NtcRec::trg_lat_ns>,                       "S",          "S",          "TB2", "TB2"},
    {"ctry",                  textAt<&NtcRec::t_ctry>,                           kAwkward,     kAwkward},
    {"site_name",             textAt<&NtcRec::t_site_name>,                      "Gen\350ve d'en haut; 2", "Gen\303\250ve d'en haut; 2"},
    {"freq_assgn",            textAt<&NtcRec::t_freq_assgn>,                     "174.928",    "174.928",    "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"long_deg",              textAt<&NtcRec::long_deg>,                         "002",        "2.0",        "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"long_min",              textAt<&NtcRec::long_min>,                         "24",         "24.0",       "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"long_sec",              textAt<&NtcRec::long_sec>,                         "10",         "10.0",       "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"long_ew",               textAt<&NtcRec::long_ew>,                          "E",          "E",          "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"lat_deg",               textAt<&NtcRec::lat_deg>,                          "47",         "47.0",       "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"lat_min",               textAt<&NtcRec::lat_min>,                          "05",         "5.0",        "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"lat_sec",               textAt<&NtcRec::lat_sec>,                          "30",         "30.0",       "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"lat_ns",                textAt<&NtcRec::lat_ns>,                           "N",          "N",          "GT1 GS1 GT2 GS2 TB3 TB5", "GT1 GS1 GT2 GS2 TB5"},
    {"polar",                 textAt<&NtcRec::t_polar>,                          kAwkward,     kAwkward},
    {"hgt_agl",               textAt<&NtcRec::t_hgt_agl>,                        "75",         "75.0"},
    {"site_alt",              textAt<&NtcRec::t_site_alt>,                       "-3",         "-3.0"},
    {"eff_hgtmax",            textAt<&NtcRec::t_eff_hgtmax>,                     "300",        "300.0"},
    {"op_agcy",               textAt<&NtcRec::t_op_agcy>,                        "O'1; ",      "O'1; "},
    {"addr_code",             textAt<&NtcRec::t_addr_code>,                      kAwkward,     kAwkward},
    {"d_inuse",               textAt<&NtcRec::t_d_inuse>,                        "1/2/2009",   "2009-02-01"},
    {"ant_dir",               textAt<&NtcRec::t_ant_dir>,                        kAwkward,     kAwkward},
    {"d_updated",             textAt<&NtcRec::d_updated>,                        "2009-03-04", "2009-03-04", kTypesWithRow, kTypesWithRow, true},
    {"d_recog",               textAt<&NtcRec::d_recog>,                          "2009-03-05", "2009-03-05", kTypesWithRow, kTypesWithRow, true},
    {"d_expiry",              textAt<&NtcRec::t_d_expiry>,                       "2019-12-31", "2019-12-31"},
    {"offset_khz",            textAt<&NtcRec::t_offset>,                         kAwkward,     kAwkward},
    {"erp_beam_tilt_dbw",     textAt<&NtcRec::t_erp_beam_tilt_dbw>,              kAwkward,     kAwkward},
    {"beam_tilt_angle",       textAt<&NtcRec::t_beam_tilt_angle>,                kAwkward,     kAwkward},
    {"plan_entry",            textAt<&NtcRec::t_plan_entry>,                     kAwkward,     kAwkward},
    {"assgn_code",            textAt<&NtcRec::t_assgn_code>,                     kAwkward,     kAwkward},
    {"are_rmk_conds_met",     textAt<&NtcRec::t_remark_conds_met>,               kAwkward,     kAwkward},
    {"has_signed_commitment", textAt<&NtcRec::t_signed_commitment>,              kAwkward,     kAwkward},
    {"is_pub_req",            textAt<&NtcRec::t_is_pub_req>,                     kAwkward,     kAwkward},
    {"is_resub",              textAt<&NtcRec::t_is_resub>,                       kAwkward,     kAwkward},
    {"rx_mode",               digitalField<&DigitalRec::t_rx_mode>,              kAwkward,     kAwkward},
    {"ref_plan_cfg",          digitalField<&DigitalRec::t_ref_plan_cfg>,         kAwkward,     kAwkward},
    {"sfn_id",                digitalField<&DigitalRec::t_sfn_id>,               kAwkward,     kAwkward},
    {"assoc_allot_id",        digitalField<&DigitalRec::t_associated_adm_allot_id>, kAwkward,  kAwkward},
    {"assoc_allot_sfn_id",    digitalField<&DigitalRec::t_associated_allot_sfn_id>, kAwkward,  kAwkward},
    {"spect_mask",            digitalField<&DigitalRec::t_spect_mask>,           kAwkward,     kAwkward},
    // Nowhere: the reference database alone fills these.
    {"",                      textAt<&NtcRec::assgn_id>,                         kAwkward,     "",           "", ""},
    {"",                      textAt<&NtcRec::t_prov>,                           kAwkward,     "",           "", ""},
    // The source of an update stands in proc_ntc_hist.
    {"",                      textAt<&NtcRec::src_update>,                       kAwkward,     "",           "", ""},
};
// clang-format on

inline CoordListRec makeCoordination(const Texts& administrations) {
  CoordListRec coord;
  coord.count = static_cast<std::int32_t>(administrations.size());
  coord.present = true;
  for (const std::string& adm : administrations) {
    coord.entries.back().adm = adm;
    coord.entries.emplace_back();
  }
  return coord;
}

// All that a notice of a kind may hold, so that it has a row in each of its tables.
inline NtcRec makeFullNotice(std::string_view kind) {
  NtcRec ntc = makeKind(kind);
  ntc.src_update = "tester";
  ntc.d_rcv = ntc.d_updated = ntc.digital.contour.d_updated = "2009-01-15";
  ntc.digital.t_email_addr = "a@b.int";
  ntc.coord = makeCoordination({"BEL", "SUI"});
  ntc.t_remarks = "one";
  ntc.t_int_remarks = "two";
  if (kind == "TB2") ntc.op_hours = {true, "0600", "1800"};
  if (kind == "GT1/5" || kind == "GS1/5") {
    ntc.t_action = "MODIFY";
    ntc.t_trg_adm_ref_id = "F-9";
    ntc.t_polar = "M";
    ntc.t_erp_v_dbw = "40";
    ntc.ant_diagr_v = makeDiagram();
  }
  if (kind == "GT2" || kind == "GS2") {
    ntc.digital.allot.t_geo_area.clear();
    ntc.digital.allot.t_nb_sub_areas = "2";
    ntc.digital.allot.t_contour_id = {"1", "2"};
  }
  return ntc;
}

// With a number of sub-areas and their contours.
inline NtcRec makeAllotmentOf(const std::string& number, const Texts& ids) {
  NtcRec ntc = makeGt2();
  ntc.digital.allot.t_geo_area.clear();
  ntc.digital.allot.t_nb_sub_areas = number;
  for (std::size_t i = 0; i < ids.size(); ++i) ntc.digital.allot.t_contour_id[i] = ids[i];
  return ntc;
}

class NoticeStore : public WorkingDatabase {
 protected:
  NtcRec stored(NtcRec ntc) {
    EXPECT_TRUE(store(ntc));
    expectNothingTold();
    return ntc;
  }

  bool store(NtcRec& ntc, bool force = false) { return writeNtcToDB(host, ntc, connection, outcome, force); }

  void expectNotStored(NtcRec ntc, const Texts& boxes) {
    const auto before = everything();
    EXPECT_FALSE(store(ntc));
    expectTold(boxes);
    EXPECT_EQ(everything(), before);
    expectNoTransaction();
  }

  // The contour of an identifier of the administration F in F, with three points.
  NtcRec storedContour(const std::string& id) {
    NtcRec ntc = makeGa1();
    ntc.digital.contour.t_contour_id = id;
    return stored(ntc);
  }

  std::string value(const std::string& sql) { return raw.value(sql); }
  Rows rows(const std::string& sql) { return raw.rows(sql); }

  Columns columnsOf(const std::string& table, const std::string& condition) {
    Columns columns;
    const Rows names = rows("SELECT name FROM pragma_table_info('" + table + "')");
    const Rows found = rows("SELECT * FROM " + table + " WHERE " + condition);
    EXPECT_EQ(found.size(), 1U) << table << " " << condition;
    for (std::size_t i = 0; !found.empty() && i < names.size(); ++i) columns[names[i][0]] = found[0][i];
    return columns;
  }
  Columns vornaRow(std::int32_t key) { return columnsOf("fmtv_vorna", "vornakey = " + std::to_string(key)); }

  // All rows of all tables.
  std::map<std::string, Rows> everything() {
    std::map<std::string, Rows> all;
    for (const auto& table : rows("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
      all[table[0]] = rows("SELECT * FROM " + table[0]);
    }
    return all;
  }

  // The tables whose rows aren't what they were, apart from the counters of keys.
  Texts tablesChangedSince(const std::map<std::string, Rows>& before) {
    Texts changed;
    for (const auto& [table, now] : everything()) {
      if (table != "fmtv_keys" && now != before.at(table)) changed.push_back(table);
    }
    return changed;
  }

  void refuseRowsOf(const std::string& table, const std::string& change = "INSERT") {
    raw.run("CREATE TRIGGER refusal BEFORE " + change + " ON " + table +
            " BEGIN SELECT RAISE(ABORT, 'no room'); END");
  }
  void refuseNoMore() { raw.run("DROP TRIGGER refusal"); }

  // Exactly these, and no question that wasn't asked for.
  void expectTold(const Texts& boxes) {
    Texts all;
    for (const Box& box : script.boxes) all.push_back(told(box));
    EXPECT_EQ(all, boxes);
    script.boxes.clear();
    EXPECT_TRUE(script.questions.empty());
    EXPECT_TRUE(script.statuses.empty());
  }
  void expectNothingTold() { expectTold({}); }

  // No transaction is left open: another one can begin.
  void expectNoTransaction() {
    connection.BeginTrans();
    connection.RollbackTrans();
  }

  ContourOutcome outcome;
};

}  // namespace zamo::test
