#include "database/read_notice.h"

#include "database/working_database.h"
#include "model/fields.h"

namespace zamo {
namespace {

constexpr std::int32_t kKey = 83700001;

template <auto Member>
constexpr TextMember digitalText = textAt<&NtcRec::digital, Member>;

class AReadNotice : public test::WorkingDatabase {
 protected:
  using test::WorkingDatabase::WorkingDatabase;

  // The notice, with more columns set: "site_name = 'X', polar = 'H'".
  void store(const std::string& type, const std::string& settings = "") {
    raw.run("INSERT INTO fmtv_vorna (vornakey, notice_typ) VALUES (83700001, '" + type + "')");
    if (!settings.empty()) raw.run("UPDATE fmtv_vorna SET " + settings + " WHERE vornakey = 83700001");
  }

  // A row of a table that hangs on the notice; the values behind its key.
  void storeChild(const std::string& table, const std::string& values) {
    raw.run("INSERT INTO " + table + " VALUES (83700001, " + values + ")");
  }

  bool read(NtcRec& ntc) { return readNtcFromDB(host, kKey, ntc, connection); }

  // What reading gives, without a word.
  NtcRec readQuietly() {
    NtcRec ntc;
    EXPECT_TRUE(read(ntc));
    expectNoBox();
    return ntc;
  }

  static NtcRec bare(std::string_view type) {
    NtcRec ntc;
    ntc.t_notice_type = type;
    return ntc;
  }

  void loseTable(const std::string& table) { raw.run("ALTER TABLE " + table + " RENAME TO gone_" + table); }
};

struct ColumnCase {
  const char* type;
  const char* column;
  const char* stored;  // as SQL
  TextMember text;
  const char* given;
  bool marksDigital = false;
};

// clang-format off
const ColumnCase kColumnCases[] = {
    {"GT1", "assgn_id",              "' id 7 '",      textAt<&NtcRec::assgn_id>,                             "id 7"},
    {"GT1", "adm",                   "' f '",         textAt<&NtcRec::t_adm>,                                " f "},
    {"GT1", "notice_typ",            "' gs1 '",       textAt<&NtcRec::t_notice_type>,                        "GS1"},
    {"GT1", "stn_cls",               "' bt '",        textAt<&NtcRec::stn_cls>,                              "BT"},
    {"GT1", "tran_sys",              "' c2 '",        textAt<&NtcRec::t_sys_var>,                            "C2"},
    {"GT1", "d_rcv",                 "'2009-01-15'",  textAt<&NtcRec::d_rcv>,                                "2009-01-15"},
    {"GT1", "d_adm_ntc",             "'2009-01-16'",  textAt<&NtcRec::d_adm_ntc>,                            "2009-01-16"},
    {"GT1", "fragment",              "' kv19d '",     textAt<&NtcRec::t_fragment>,                           "KV19D"},
    {"TB5", "fragment",              "' kv19d '",     textAt<&NtcRec::t_fragment>,                           "KV19D"},
    {"TB2", "fragment",              "' kv19d '",     textAt<&NtcRec::t_plan>,                               " kv19d "},
    {"TB3", "fragment",              "' kv19d '",     textAt<&NtcRec::t_plan>,                               " kv19d "},
    {"GT1", "prov",                  "' pz11.2 '",    textAt<&NtcRec::t_prov>,                               "PZ11.2"},
    {"GT1", "intent",                "' add '",       textAt<&NtcRec::t_action>,                             "ADD"},
    {"GT1", "adm_ref_id",            "' f-1 '",       textAt<&NtcRec::t_adm_ref_id>,                         "F-1"},
    {"DS1", "adm_ref_id",            "' f-1 '",       textAt<&NtcRec::t_adm_ref_id>,                         "F-1"},
    {"TB5", "adm_ref_id",            "' f-1 '",       textAt<&NtcRec::t_trg_adm_ref_id>,                     "f-1"},
    {"TB3", "adm_ref_id",            "' f-1 '",       textAt<&NtcRec::t_trg_adm_ref_id>,                     "f-1"},
    {"TB2", "adm_ref_id",            "' f-1 '",       textAt<&NtcRec::t_plan_adm_ref_id>,                    "f-1"},
    {"GT1", "plan_adm_ref_id",       "' f-plan '",    textAt<&NtcRec::t_plan_adm_ref_id>,                    " f-plan "},
    {"GT1", "plan_adm_ref_id",       "'  '",          textAt<&NtcRec::t_plan_adm_ref_id>,                    ""},
    {"TB2", "freq_assgn",            "176.64",        textAt<&NtcRec::t_trg_freq_assgn>,                     "176.64"},
    {"TB2", "long_deg",              "2",             textAt<&NtcRec::trg_long_deg>,                         "002"},
    {"TB2", "long_min",              "3",             textAt<&NtcRec::trg_long_min>,                         "03"},
    {"TB2", "long_sec",              "0",             textAt<&NtcRec::trg_long_sec>,                         "00"},
    {"TB2", "long_ew",               "' e '",         textAt<&NtcRec::trg_long_ew>,                          "E"},
    {"TB2", "lat_deg",               "8",             textAt<&NtcRec::trg_lat_deg>,                          "08"},
    {"TB2", "lat_min",               "9",             textAt<&NtcRec::trg_lat_min>,                          "09"},
    {"TB2", "lat_sec",               "7",             textAt<&NtcRec::trg_lat_sec>,                          "07"},
    {"TB2", "lat_ns",                "' s '",         textAt<&NtcRec::trg_lat_ns>,                           "S"},
    {"GT1", "freq_assgn",            "474",           textAt<&NtcRec::t_freq_assgn>,                         "474"},
    {"TB3", "freq_assgn",            "474",           textAt<&NtcRec::t_freq_assgn>,                         "474"},
    {"GT1", "long_deg",              "2",             textAt<&NtcRec::long_deg>,                             "002"},
    {"GT1", "long_deg",              "179",           textAt<&NtcRec::long_deg>,                             "179"},
    {"GT1", "long_min",              "3",             textAt<&NtcRec::long_min>,                             "03"},
    {"GT1", "long_sec",              "4",             textAt<&NtcRec::long_sec>,                             "04"},
    {"GT1", "long_sec",              "4.25",          textAt<&NtcRec::long_sec>,                             "4.25"},
    {"GT1", "long_ew",               "' w '",         textAt<&NtcRec::long_ew>,                              "W"},
    {"GT1", "lat_deg",               "8",             textAt<&NtcRec::lat_deg>,                              "08"},
    {"GT1", "lat_min",               "9",             textAt<&NtcRec::lat_min>,                              "09"},
    {"GT1", "lat_sec",               "7",             textAt<&NtcRec::lat_sec>,                              "07"},
    {"GT1", "lat_ns",                "' n '",         textAt<&NtcRec::lat_ns>,                               "N"},
    {"GT1", "call_sign",             "' call me '",   textAt<&NtcRec::t_call_sign>,                          "call me"},
    {"GT1", "stn_id",                "' st 1 '",      textAt<&NtcRec::stn_id>,                               "st 1"},
    {"GT1", "ctry",                  "' f '",         textAt<&NtcRec::t_ctry>,                               "F"},
    {"GT1", "site_name",             "' Orl\303\251ans '", textAt<&NtcRec::t_site_name>,                     "ORL\311ANS"},
    {"GT1", "polar",                 "' m '",         textAt<&NtcRec::t_polar>,                              "M"},
    {"GT1", "erp_h_dbw",             "-0.5",          textAt<&NtcRec::t_erp_h_dbw>,                          "-0.5"},
    {"GT1", "erp_v_dbw",             "33",            textAt<&NtcRec::t_erp_v_dbw>,                          "33"},
    {"GT1", "hgt_agl",               "120",           textAt<&NtcRec::t_hgt_agl>,                            "120"},
    {"GT1", "site_alt",              "-12",           textAt<&NtcRec::t_site_alt>,                           "-12"},
    {"GT1", "eff_hgtmax",            "250",           textAt<&NtcRec::t_eff_hgtmax>,                         "250"},
    {"GT1", "op_agcy",               "' 00a '",       textAt<&NtcRec::t_op_agcy>,                            "00A"},
    {"GT1", "addr_code",             "' a '",         textAt<&NtcRec::t_addr_code>,                          "a"},
    {"GT1", "d_inuse",               "'2009-02-01'",  textAt<&NtcRec::t_d_inuse>,                            "2009-02-01"},
    {"GT1", "ant_dir",               "' nd '",        textAt<&NtcRec::t_ant_dir>,                            "nd"},
    {"GT1", "d_updated",             "'2009-01-17'",  textAt<&NtcRec::d_updated>,                            "2009-01-17"},
    {"GT1", "d_recog",               "'2009-01-18'",  textAt<&NtcRec::d_recog>,                              "2009-01-18"},
    {"GT1", "src_update",            "' uqx '",       textAt<&NtcRec::src_update>,                           "uqx"},
    {"GT1", "d_expiry",              "'2012-02-29'",  textAt<&NtcRec::t_d_expiry>,                           "2012-02-29"},
    {"GT1", "offset_khz",            "' +167 '",      textAt<&NtcRec::t_offset>,                             " +167 "},
    {"GT1", "erp_beam_tilt_dbw",     "' 20.0 '",      textAt<&NtcRec::t_erp_beam_tilt_dbw>,                  " 20.0 "},
    {"GT1", "beam_tilt_angle",       "' 1.0 '",       textAt<&NtcRec::t_beam_tilt_angle>,                    " 1.0 "},
    {"GT1", "plan_entry",            "' 1 '",         textAt<&NtcRec::t_plan_entry>,                         "1"},
    {"GT1", "assgn_code",            "' l '",         textAt<&NtcRec::t_assgn_code>,                         "L"},
    {"GT1", "are_rmk_conds_met",     "' true '",      textAt<&NtcRec::t_remark_conds_met>,                   " true "},
    {"GT1", "has_signed_commitment", "' true '",      textAt<&NtcRec::t_signed_commitment>,                  " true "},
    {"GT1", "is_pub_req",            "' true '",      textAt<&NtcRec::t_is_pub_req>,                         " true "},
    {"GT1", "is_resub",              "' true '",      textAt<&NtcRec::t_is_resub>,                           " true "},
    {"GT1", "rx_mode",               "' fx '",        digitalText<&DigitalRec::t_rx_mode>,                   "fx",     true},
    {"GT1", "ref_plan_cfg",          "' rpc1 '",      digitalText<&DigitalRec::t_ref_plan_cfg>,              "rpc1",   true},
    {"GT1", "sfn_id",                "' sfn 1 '",     digitalText<&DigitalRec::t_sfn_id>,                    "sfn 1",  true},
    {"GT1", "assoc_allot_id",        "' allot 1 '",   digitalText<&DigitalRec::t_associated_adm_allot_id>,   "allot 1", true},
    {"GT1", "assoc_allot_sfn_id",    "' sfn 2 '",     digitalText<&DigitalRec::t_associated_allot_sfn_id>,   "sfn 2",  true},
    {"GT1", "spect_mask",            "' n '",         digitalText<&DigitalRec::t_spect_mask>,                "n",      true},
    {"GT1", "spect_mask",            "''",            digitalText<&DigitalRec::t_spect_mask>,                "",       true},
};
// clang-format on

TEST_F(AReadNotice, has_each_column_in_its_field_and_nothing_else) {
  for (const ColumnCase& one : kColumnCases) {
    SCOPED_TRACE(std::string(one.type) + " " + one.column);
    store(one.type, std::string(one.column) + " = " + one.stored);
    NtcRec expected = bare(one.type);
    one.text.of(expected) = one.given;
    expected.digital.present = one.marksDigital;
    EXPECT_EQ(one.text.in(readQuietly()), one.given);
    EXPECT_TRUE(readQuietly() == expected);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, keeps_its_fields_where_the_columns_are_null) {
  for (const char* type : {"GT1", "TB2", "TB3", "TB5"}) {
    SCOPED_TRACE(type);
    raw.run("INSERT INTO fmtv_vorna (vornakey) VALUES (83700001)");
    NtcRec before;
    for (const ColumnCase& one : kColumnCases) one.text.of(before) = "before";
    before.t_notice_type = type;
    NtcRec ntc = before;
    EXPECT_TRUE(read(ntc));
    EXPECT_TRUE(ntc == before);
    expectNoBox();
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, of_a_key_that_no_row_has_stays_as_it_was) {
  store("GT1");
  storeChild("fmtv_op_prd", "'0600', '2200'");
  NtcRec ntc = bare("before");
  ntc.t_remarks = "before";
  const NtcRec before = ntc;
  EXPECT_FALSE(readNtcFromDB(host, 4, ntc, connection));
  EXPECT_TRUE(ntc == before);
  expectNoBox();
}

TEST_F(AReadNotice, that_modifies_the_plan_has_its_reference_as_its_target_too) {
  store("GT1", "intent = ' modify', fragment = 'kv19d ', adm_ref_id = ' f-1 '");
  NtcRec ntc = readQuietly();
  EXPECT_EQ(ntc.t_adm_ref_id, "F-1");
  EXPECT_EQ(ntc.t_trg_adm_ref_id, "f-1");
  for (const char* other : {"intent = 'ADD'", "intent = 'MODIFY', fragment = 'NTFD_PZ'", "fragment = NULL"}) {
    SCOPED_TRACE(other);
    raw.run("UPDATE fmtv_vorna SET " + std::string(other));
    ntc = readQuietly();
    EXPECT_EQ(ntc.t_adm_ref_id, "F-1");
    EXPECT_EQ(ntc.t_trg_adm_ref_id, "");
  }
}

TEST_F(AReadNotice, of_type_tb2_that_modifies_the_plan_has_the_reference_in_both_places) {
  store("TB2", "intent = 'MODIFY', fragment = 'KV19D', adm_ref_id = ' f-1 '");
  const NtcRec ntc = readQuietly();
  EXPECT_EQ(ntc.t_plan, "KV19D");
  EXPECT_EQ(ntc.t_plan_adm_ref_id, "f-1");
  EXPECT_EQ(ntc.t_trg_adm_ref_id, "f-1");
  EXPECT_EQ(ntc.t_adm_ref_id, "");
}

TEST_F(AReadNotice, of_type_tb2_takes_a_filled_reference_of_the_plan_before_its_own) {
  store("TB2", "adm_ref_id = 'F-1', plan_adm_ref_id = 'F-PLAN'");
  EXPECT_EQ(readQuietly().t_plan_adm_ref_id, "F-PLAN");
  raw.run("UPDATE fmtv_vorna SET plan_adm_ref_id = '  '");
  EXPECT_EQ(readQuietly().t_plan_adm_ref_id, "F-1");
  raw.run("UPDATE fmtv_vorna SET plan_adm_ref_id = NULL");
  EXPECT_EQ(readQuietly().t_plan_adm_ref_id, "F-1");
}

TEST_F(AReadNotice, joins_the_pieces_of_its_remarks_in_the_order_they_were_stored) {
  store("GT1");
  storeChild("fmtv_rmks", "'second, ', 1, 'ASSIGNMENT'");
  storeChild("fmtv_rmks", "'first ', 0, 'ASSIGNMENT'");
  storeChild("fmtv_rmks", "'inside', 0, 'SCRATCHPAD'");
  storeChild("fmtv_rmks", "NULL, 2, 'ASSIGNMENT'");
  storeChild("fmtv_rmks", "'other', 0, 'COORD'");
  storeChild("fmtv_rmks", "'none', 0, NULL");
  storeChild("fmtv_rmks", "' third', 3, 'ASSIGNMENT'");
  NtcRec expected = bare("GT1");
  expected.t_remarks = "second, first  third";
  expected.t_int_remarks = "inside";
  NtcRec ntc;
  ntc.t_remarks = ntc.t_int_remarks = "before";
  EXPECT_TRUE(read(ntc));
  EXPECT_TRUE(ntc == expected);
  expectNoBox();
}

TEST_F(AReadNotice, without_remarks_has_both_fields_emptied) {
  store("GT1");
  NtcRec ntc;
  ntc.t_remarks = ntc.t_int_remarks = "before";
  EXPECT_TRUE(read(ntc));
  EXPECT_TRUE(ntc == bare("GT1"));
  expectNoBox();
}

TEST_F(AReadNotice, has_address_and_update_from_its_history) {
  store("GT1", "src_update = 'UQX', d_updated = '2009-01-01'");
  storeChild("proc_ntc_hist", "' a@b.c ', ' tester ', '2009-01-17'");
  NtcRec expected = bare("GT1");
  expected.digital.present = true;
  expected.digital.t_email_addr = " a@b.c ";
  expected.src_update = " tester ";
  expected.d_updated = "2009-01-17";
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, keeps_its_own_update_where_the_history_is_null) {
  store("GT1", "src_update = 'UQX', d_updated = '2009-01-01'");
  storeChild("proc_ntc_hist", "NULL, NULL, NULL");
  NtcRec expected = bare("GT1");
  expected.digital.present = true;
  expected.src_update = "UQX";
  expected.d_updated = "2009-01-01";
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, takes_no_history_of_two_rows) {
  store("GT1", "src_update = 'UQX'");
  storeChild("proc_ntc_hist", "'a@b.c', 'tester', NULL");
  storeChild("proc_ntc_hist", "'a@b.c', 'tester', NULL");
  NtcRec expected = bare("GT1");
  expected.src_update = "UQX";
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, of_a_database_from_elsewhere_has_no_history_and_no_target) {
  std::filesystem::create_directory(folder.file("kv19.mdb"));
  for (const auto& [name, fromElsewhere] :
       {std::pair("KV19.MDB", true), std::pair("my_kv19.mdb", true), std::pair("Pelmarun.mdb.copy", true),
        std::pair("kv19_2.mdb", false), std::pair("kv19.mdb/other.mdb", false)}) {
    SCOPED_TRACE(name);
    const std::string copy = copyTemplate(folder, name);
    test::RawDatabase(copy).run(
        "INSERT INTO fmtv_vorna (vornakey, notice_typ, intent, src_update) VALUES (83700001, 'GT1', "
        "'MODIFY', 'UQX');"
        "INSERT INTO proc_ntc_hist VALUES (83700001, 'a@b.c', 'tester', '2009-01-17');"
        "INSERT INTO fmtv_art5_target (vornakey, trg_adm_ref_id) VALUES (83700001, 'F-1');"
        "INSERT INTO fmtv_op_prd VALUES (83700001, '0600', '2200')");
    NtcRec expected = bare("GT1");
    expected.t_action = "MODIFY";
    expected.src_update = "UQX";
    expected.op_hours = {true, "0600", "2200"};
    if (!fromElsewhere) {
      expected.digital.present = true;
      expected.digital.t_email_addr = "a@b.c";
      expected.src_update = "tester";
      expected.d_updated = "2009-01-17";
      expected.t_trg_adm_ref_id = "F-1";
    }
    Connection elsewhere(copy);
    NtcRec ntc;
    EXPECT_TRUE(readNtcFromDB(host, kKey, ntc, elsewhere));
    EXPECT_TRUE(ntc == expected);
    expectNoBox();
  }
}

TEST_F(AReadNotice, that_modifies_has_its_target) {
  store("GT1", "intent = 'MODIFY', fragment = 'NTFD_PZ'");
  storeChild("fmtv_art5_target", "' f-1 ', 176.64, 2, 3, 4, ' e ', 8, 9, 7, ' n '");
  storeChild("fmtv_art5_target", "'f-2', 474, 1, 1, 1, 'W', 1, 1, 1, 'S'");
  NtcRec expected = bare("GT1");
  expected.t_action = "MODIFY";
  expected.t_fragment = "NTFD_PZ";
  expected.t_trg_adm_ref_id = "f-1";
  expected.t_trg_freq_assgn = "176.64";
  expected.trg_long_deg = "002", expected.trg_long_min = "03", expected.trg_long_sec = "04",
  expected.trg_long_ew = "E";
  expected.trg_lat_deg = "08", expected.trg_lat_min = "09", expected.trg_lat_sec = "07",
  expected.trg_lat_ns = "N";
  EXPECT_TRUE(readQuietly() == expected);

  raw.run("UPDATE fmtv_vorna SET intent = 'ADD'");
  expected = bare("GT1");
  expected.t_action = "ADD";
  expected.t_fragment = "NTFD_PZ";
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, keeps_its_target_where_the_columns_are_null) {
  store("GT1", "intent = 'MODIFY', fragment = 'KV19D', adm_ref_id = 'F-1'");
  storeChild("fmtv_art5_target", "NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL");
  NtcRec expected = bare("GT1");
  expected.t_action = "MODIFY";
  expected.t_fragment = "KV19D";
  expected.t_adm_ref_id = expected.t_trg_adm_ref_id = "F-1";
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, has_its_operating_hours_in_four_digits) {
  store("GT1");
  storeChild("fmtv_op_prd", "'630', '2400'");
  storeChild("fmtv_op_prd", "'1', '2'");
  NtcRec expected = bare("GT1");
  expected.op_hours = {true, "0630", "2400"};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, has_operating_hours_even_when_both_are_null) {
  store("TB2");
  storeChild("fmtv_op_prd", "NULL, NULL");
  NtcRec expected = bare("TB2");
  expected.op_hours.present = true;
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, has_the_administrations_it_was_coordinated_with) {
  store("GT1");
  storeChild("fmtv_coord", "' d ', ' COORD ', 'coord completed', ' NOTIFIER ', ' ', '2009-01-15'");
  storeChild("fmtv_coord", "'I', 'COORD', 'COORD REQUIRED', 'NOTIFIER', ' ', NULL");
  storeChild("fmtv_coord", "NULL, 'COORD', 'COORD COMPLETED', 'NOTIFIER', ' ', '2009-01-15'");
  storeChild("fmtv_coord", "'BEL', NULL, 'COORD COMPLETED', NULL, NULL, NULL");
  NtcRec expected = bare("GT1");
  expected.coord = {3,
                    true,
                    {{"d", "COORD", "coord completed", "NOTIFIER", "2009-01-15", " "},
                     {},
                     {"BEL", "", "COORD COMPLETED", "", "", ""}}};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, has_its_heights_by_azimuth) {
  store("GT1");
  storeChild("fmtv_ant_hgt", "350, 35.5");
  storeChild("fmtv_ant_hgt", "0, -7");
  storeChild("fmtv_ant_hgt", "10, NULL");
  NtcRec expected = bare("GT1");
  expected.ant_hgt[35] = {true, "350", "35.5"};
  expected.ant_hgt[0] = {true, "0", "-7"};
  expected.ant_hgt[1] = {true, "10", ""};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, puts_a_height_between_two_azimuths_to_the_even_one) {
  struct Place {
    const char* azm;
    std::size_t entry;
  };
  for (const Place& place : {Place{"15", 2}, Place{"25", 2}, Place{"5", 0}, Place{"4.5", 0}, Place{"24.9", 2},
                             Place{"25.1", 3}, Place{"345", 34}, Place{"354.9", 35}, Place{"-5", 0}}) {
    SCOPED_TRACE(place.azm);
    store("GT1");
    storeChild("fmtv_ant_hgt", std::string(place.azm) + ", 1");
    NtcRec expected = bare("GT1");
    expected.ant_hgt[place.entry] = {true, place.azm, "1"};
    EXPECT_TRUE(readQuietly() == expected);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, keeps_the_later_of_two_heights_in_one_place) {
  store("GT1");
  storeChild("fmtv_ant_hgt", "20, 1");
  storeChild("fmtv_ant_hgt", "15, NULL");
  NtcRec expected = bare("GT1");
  expected.ant_hgt[2] = {true, "15", "1"};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, with_37_heights_keeps_36_and_is_told_of_twice) {
  store("GT1", "ant_dir = 'D', polar = 'H'");
  for (int row = 0; row < 37; ++row)
    storeChild("fmtv_ant_hgt", std::to_string(row % 36 * 10) + ", " + std::to_string(row));
  storeChild("fmtv_ant_diag", "10, 3, 'H'");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, "To many data in the table. Please consult the administrator!", "Read Error");
  expectBox(1, "Erreur 5:The recordset is closed", "readFromKv19AntHgt");
  expectNothingElse();
  EXPECT_EQ(ntc.ant_hgt[0], (AzmValueRec{true, "0", "0"}));
  EXPECT_EQ(ntc.ant_hgt[35], (AzmValueRec{true, "350", "35"}));
  EXPECT_EQ(ntc.ant_diagr_h[1], (AzmValueRec{true, "10", "3"}));
}

TEST_F(AReadNotice, with_36_heights_is_read_without_a_word) {
  store("GT1");
  for (int row = 0; row < 36; ++row) storeChild("fmtv_ant_hgt", std::to_string(row * 10) + ", 5");
  const NtcRec ntc = readQuietly();
  for (const AzmValueRec& entry : ntc.ant_hgt) EXPECT_TRUE(entry.present);
}

TEST_F(AReadNotice, with_a_height_without_azimuth_is_told_of_twice) {
  store("GT1");
  storeChild("fmtv_ant_hgt", "0, 1");
  storeChild("fmtv_ant_hgt", "NULL, 2");
  storeChild("fmtv_ant_hgt", "20, 3");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, "Corrupted data in the table. Please consult the administrator!", "Read Error");
  expectBox(1, "Erreur 5:The recordset is closed", "readFromKv19AntHgt");
  expectNothingElse();
  NtcRec expected = bare("GT1");
  expected.ant_hgt[0] = {true, "0", "1"};
  EXPECT_TRUE(ntc == expected);
}

TEST_F(AReadNotice, with_a_height_beyond_the_circle_fails_in_the_box) {
  for (const char* azm : {"355", "360", "-6", "1e300"}) {
    SCOPED_TRACE(azm);
    store("GT1");
    storeChild("fmtv_ant_hgt", std::string(azm) + ", 1");
    NtcRec ntc;
    EXPECT_FALSE(read(ntc));
    EXPECT_TRUE(ntc == bare("GT1"));
    expectOnlyBox("Erreur 9:Subscript out of range", "readFromKv19AntHgt");
    script.boxes.clear();
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, has_the_diagrams_of_its_polarization_when_it_is_directional) {
  struct Case {
    const char* settings;
    bool h, v;
  };
  for (const Case& one :
       {Case{"ant_dir = 'D', polar = 'H'", true, false}, Case{"ant_dir = 'D', polar = 'v'", false, true},
        Case{"ant_dir = ' D ', polar = 'M'", true, true}, Case{"ant_dir = 'D', polar = 'U'", true, true},
        Case{"ant_dir = 'D', polar = NULL", false, false}, Case{"ant_dir = 'ND', polar = 'M'", false, false},
        Case{"ant_dir = NULL, polar = 'M'", false, false}}) {
    SCOPED_TRACE(one.settings);
    store("GT1", one.settings);
    storeChild("fmtv_ant_diag", "10, 3.5, 'H'");
    storeChild("fmtv_ant_diag", "25, NULL, 'V'");
    const NtcRec ntc = readQuietly();
    NtcRec expected = bare("GT1");
    expected.t_ant_dir = ntc.t_ant_dir;
    expected.t_polar = ntc.t_polar;
    if (one.h) expected.ant_diagr_h[1] = {true, "10", "3.5"};
    if (one.v) expected.ant_diagr_v[2] = {true, "25", ""};
    EXPECT_TRUE(ntc == expected);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, with_37_values_in_a_diagram_keeps_36_without_a_word) {
  for (const char* polar : {"H", "V"}) {
    store("GT1", "ant_dir = 'D', polar = '" + std::string(polar) + "'");
    for (int row = 0; row < 37; ++row) {
      storeChild("fmtv_ant_diag",
                 std::to_string(row % 36 * 10) + ", " + std::to_string(row) + ", '" + polar + "'");
    }
    const NtcRec ntc = readQuietly();
    const auto& diagram = polar[0] == 'H' ? ntc.ant_diagr_h : ntc.ant_diagr_v;
    EXPECT_EQ(diagram[0], (AzmValueRec{true, "0", "0"}));
    EXPECT_EQ(diagram[35], (AzmValueRec{true, "350", "35"}));
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, ends_a_diagram_at_a_value_without_azimuth_without_a_word) {
  store("GT1", "ant_dir = 'D', polar = 'M'");
  for (const char* polar : {"'H'", "'V'"}) {
    storeChild("fmtv_ant_diag", "0, 1, " + std::string(polar));
    storeChild("fmtv_ant_diag", "NULL, 2, " + std::string(polar));
    storeChild("fmtv_ant_diag", "20, 3, " + std::string(polar));
  }
  NtcRec expected = bare("GT1");
  expected.t_ant_dir = "D";
  expected.t_polar = "M";
  expected.ant_diagr_h[0] = expected.ant_diagr_v[0] = {true, "0", "1"};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadNotice, with_a_diagram_beyond_the_circle_fails_in_the_box_of_its_polarization) {
  store("GT1", "ant_dir = 'D', polar = 'M'");
  storeChild("fmtv_ant_diag", "360, 1, 'H'");
  storeChild("fmtv_ant_diag", "360, 1, 'V'");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, "Erreur 9:Subscript out of range", "readFromKV19AntDiagr_H");
  expectBox(1, "Erreur 9:Subscript out of range", "readFromKv19AntDiagr_V");
  expectNothingElse();
}

TEST_F(AReadNotice, of_an_older_type_is_read_like_its_twin) {
  for (const char* type : {"DT1", "DS1"}) {
    store(type);
    storeChild("fmtv_op_prd", "'0600', '2200'");
    storeChild("fmtv_ant_hgt", "0, 1");
    NtcRec expected = bare(type);
    expected.op_hours = {true, "0600", "2200"};
    expected.ant_hgt[0] = {true, "0", "1"};
    EXPECT_TRUE(readQuietly() == expected);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, of_an_allotment_has_it_and_nothing_of_an_assignment) {
  for (const char* type : {"GT2", "GS2", "DT2", "DS2"}) {
    SCOPED_TRACE(type);
    store(type, "ant_dir = 'D', polar = 'H'");
    storeChild("fmtv_op_prd", "'0600', '2200'");
    storeChild("fmtv_ant_hgt", "0, 1");
    storeChild("fmtv_ant_diag", "0, 1, 'H'");
    raw.run(
        "INSERT INTO lmz_allotment (vornakey, allotkey, allot_name, typ_ref_netwk, geo_area) "
        "VALUES (83700001, 83700009, ' centre ', ' rn1 ', ' f ')");
    NtcRec expected = bare(type);
    expected.t_ant_dir = "D";
    expected.t_polar = "H";
    expected.digital.allot.present = true;
    expected.digital.allot.t_allot_name = "centre";
    expected.digital.allot.t_typ_ref_netwk = "rn1";
    expected.digital.allot.t_geo_area = "f";
    EXPECT_TRUE(readQuietly() == expected);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

class AReadAllotment : public AReadNotice {
 protected:
  // An allotment with links to so many contours of ids 11, 12 and so on, whose keys fall.
  void storeAllotment(const std::string& subAreas, int links) {
    store("GT2");
    raw.run("INSERT INTO lmz_allotment (vornakey, allotkey, nb_sub_areas) VALUES (83700001, 83700009, " +
            subAreas + ")");
    for (int link = 1; link <= links; ++link) {
      const std::string contour = std::to_string(100 - link);
      raw.run("INSERT INTO lmz_contour (contourkey, contour_id) VALUES (" + contour + ", " +
              std::to_string(10 + link) + ")");
      raw.run("INSERT INTO lmz_sub_area VALUES (83700009, " + contour + ")");
    }
  }
};

TEST_F(AReadAllotment, has_its_sub_areas_in_the_order_they_were_linked) {
  storeAllotment("3", 3);
  raw.run("UPDATE lmz_contour SET contour_id = NULL WHERE contour_id = 12");
  NtcRec expected = bare("GT2");
  expected.digital.allot.present = true;
  expected.digital.allot.t_nb_sub_areas = "3";
  expected.digital.allot.t_contour_id = {"11", "", "13"};
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadAllotment, without_a_number_of_sub_areas_has_none) {
  storeAllotment("NULL", 2);
  NtcRec expected = bare("GT2");
  expected.digital.allot.present = true;
  EXPECT_TRUE(readQuietly() == expected);
}

TEST_F(AReadAllotment, has_ten_sub_areas_whatever_their_number_tells) {
  storeAllotment("0", 10);
  const NtcRec ntc = readQuietly();
  EXPECT_EQ(ntc.digital.allot.t_contour_id,
            (std::array<std::string, 10>{"11", "12", "13", "14", "15", "16", "17", "18", "19", "20"}));
}

TEST_F(AReadAllotment, with_an_eleventh_sub_area_fails_in_the_box) {
  storeAllotment("11", 11);
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(ntc.digital.allot.t_contour_id,
            (std::array<std::string, 10>{"11", "12", "13", "14", "15", "16", "17", "18", "19", "20"}));
  expectOnlyBox("Erreur 9:Subscript out of range", "readSubArea");
}

TEST_F(AReadAllotment, that_has_no_row_of_its_own_is_told_of) {
  store("GT2", "site_name = 'X'");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(ntc.t_site_name, "X");
  EXPECT_FALSE(ntc.digital.allot.present);
  expectOnlyBox("readFromAllotment: The assignment 83700001 is not UNIQUE. Please consult the administrator!",
                "Read Error");
}

TEST_F(AReadAllotment, of_two_rows_is_told_of) {
  store("GT2");
  raw.run(
      "ALTER TABLE lmz_allotment RENAME TO gone;"
      "CREATE TABLE lmz_allotment (vornakey INTEGER, allotkey INTEGER, allot_name TEXT, typ_ref_netwk TEXT, "
      "geo_area TEXT, nb_sub_areas REAL);"
      "INSERT INTO lmz_allotment (vornakey, allotkey) VALUES (83700001, 1), (83700001, 2)");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  expectOnlyBox("readFromAllotment: The assignment 83700001 is not UNIQUE. Please consult the administrator!",
                "Read Error");
}

TEST_F(AReadNotice, tells_the_failure_of_each_section_under_its_name_and_reads_the_others) {
  struct Case {
    const char* table;
    const char* title;
  };
  for (const Case& one :
       {Case{"fmtv_art5_target", "readFromFmtvArt5target"}, Case{"fmtv_op_prd", "readFromKv19OpPrds"},
        Case{"fmtv_ant_hgt", "readFromKv19AntHgt"}}) {
    SCOPED_TRACE(one.table);
    store("GT1", "intent = 'MODIFY', ant_dir = 'D', polar = 'V'");
    storeChild("fmtv_ant_diag", "0, 1, 'V'");
    loseTable(one.table);
    NtcRec ntc;
    EXPECT_FALSE(read(ntc));
    expectOnlyBox(std::string("Erreur 1:no such table: ") + one.table, one.title);
    EXPECT_TRUE(ntc.ant_diagr_v[0].present);
    script.boxes.clear();
    raw.run(std::string("ALTER TABLE gone_") + one.table + " RENAME TO " + one.table);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, tells_the_failure_of_both_diagrams) {
  store("GT1", "ant_dir = 'D', polar = 'M'");
  loseTable("fmtv_ant_diag");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, "Erreur 1:no such table: fmtv_ant_diag", "readFromKV19AntDiagr_H");
  expectBox(1, "Erreur 1:no such table: fmtv_ant_diag", "readFromKv19AntDiagr_V");
  expectNothingElse();
}

TEST_F(AReadNotice, tells_the_failure_of_remarks_history_and_coordination_as_its_own_and_ends_there) {
  for (const char* table : {"fmtv_rmks", "proc_ntc_hist", "fmtv_coord"}) {
    SCOPED_TRACE(table);
    store("GT1", "site_name = 'X'");
    storeChild("fmtv_op_prd", "'0600', '2200'");
    loseTable(table);
    NtcRec ntc;
    EXPECT_FALSE(read(ntc));
    expectOnlyBox(std::string("Erreur 1:no such table: ") + table, "readFromKv19Vorna");
    NtcRec expected = bare("GT1");
    expected.t_site_name = "X";
    EXPECT_TRUE(ntc == expected);
    script.boxes.clear();
    raw.run(std::string("ALTER TABLE gone_") + table + " RENAME TO " + table);
    raw.run("DELETE FROM fmtv_vorna");
  }
}

TEST_F(AReadNotice, tells_the_failure_of_its_table) {
  loseTable("fmtv_vorna");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_TRUE(ntc == NtcRec());
  expectOnlyBox("Erreur 1:no such table: fmtv_vorna", "readFromKv19Vorna");
}

TEST_F(AReadNotice, holds_what_was_read_before_a_column_that_is_missing) {
  store("GT1", "site_name = 'X', is_resub = 'TRUE', spect_mask = 'N'");
  raw.run("ALTER TABLE fmtv_vorna RENAME COLUMN ref_plan_cfg TO other");
  Connection changed(path);
  NtcRec ntc;
  EXPECT_FALSE(readNtcFromDB(host, kKey, ntc, changed));
  EXPECT_EQ(ntc.t_site_name, "X");
  EXPECT_EQ(ntc.t_is_resub, "TRUE");
  EXPECT_EQ(ntc.digital.t_spect_mask, "");
  expectOnlyBox("Erreur 9:No such field", "readFromKv19Vorna");
}

TEST_F(AReadAllotment, tells_the_failure_of_its_tables) {
  storeAllotment("1", 1);
  loseTable("lmz_sub_area");
  NtcRec ntc;
  EXPECT_FALSE(read(ntc));
  EXPECT_EQ(ntc.digital.allot.t_nb_sub_areas, "1");
  expectOnlyBox("Erreur 1:no such table: lmz_sub_area", "readSubArea");
  script.boxes.clear();
  loseTable("lmz_allotment");
  EXPECT_FALSE(read(ntc));
  expectOnlyBox("Erreur 1:no such table: lmz_allotment", "readFromAllotment");
}

class AReadContour : public AReadNotice {
 protected:
  void storeContour(const std::string& points, const std::string& settings = "") {
    raw.run("INSERT INTO lmz_contour (contourkey, nb_test_pts) VALUES (7, " + points + ")");
    if (!settings.empty()) raw.run("UPDATE lmz_contour SET " + settings);
  }

  void storePoint(int number, const std::string& position) {
    raw.run("INSERT INTO lmz_contour_pt VALUES (7, " + std::to_string(number) + ", " + position + ")");
  }

  bool readIt(NtcRec& ntc) { return readContourNtcFromDB(host, 7, ntc, connection); }

  NtcRec readItQuietly() {
    NtcRec ntc;
    EXPECT_TRUE(readIt(ntc));
    expectNoBox();
    return ntc;
  }

  static NtcRec bareContour() {
    NtcRec ntc = bare("GA1");
    ntc.digital.contour.present = true;
    return ntc;
  }

  // The fields of a contour, stored by kAll.
  static void setAll(NtcRec& ntc) {
    ntc.t_ctry = "GUF";
    ntc.t_adm = "F";
    ntc.digital.contour.t_contour_id = "12";
    ntc.digital.contour.d_updated = "2009-01-17";
    ntc.digital.contour.d_recog = "2009-01-18";
  }
  static constexpr const char* kAll =
      "contour_id = 12, ctry = 'GUF', adm = 'F', intent = 'ADD', remarks = 'A remark', d_updated = "
      "'2009-01-17', "
      "d_recog = '2009-01-18'";
};

TEST_F(AReadContour, has_its_columns_and_its_points_by_number) {
  storeContour("3", kAll);
  storePoint(2, "2, 30, 0, 'E', 48, 0, 0, 'N'");
  storePoint(0, "2, 0, NULL, ' e ', 4, 5, 6, ' s '");
  storePoint(1, "103, 7, 8, 'W', 47, 0, 0, 'N'");
  NtcRec expected = bareContour();
  setAll(expected);
  expected.t_action = "ADD";
  expected.t_remarks = "A remark";
  expected.digital.contour.t_nb_test_pts = "3";
  expected.digital.contour.points = {
      {true, "+0020000", "-040506"}, {true, "-1030708", "+470000"}, {true, "+0023000", "+480000"}, {}};
  EXPECT_TRUE(readItQuietly() == expected);
}

TEST_F(AReadContour, keeps_its_fields_where_the_columns_are_null) {
  storeContour("1");
  storePoint(0, "NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL");
  NtcRec expected = bareContour();
  setAll(expected);
  expected.t_action = expected.t_remarks = "before";
  NtcRec ntc = expected;
  expected.digital.contour.t_nb_test_pts = "1";
  expected.digital.contour.points = {{true, "", ""}, {}};
  EXPECT_TRUE(readIt(ntc));
  EXPECT_TRUE(ntc == expected);
  expectNoBox();
}

TEST_F(AReadContour, has_no_coordinate_without_its_degrees_minutes_or_letter) {
  storeContour("3");
  storePoint(0, "NULL, 3, 4, 'E', 48, NULL, 0, 'N'");
  storePoint(1, "2, 3, 4, NULL, 48, 0, 0, 'X'");
  storePoint(2, "2, 3, 4, 'E', 48, 0, 0, 'N'");
  EXPECT_EQ(readItQuietly().digital.contour.points,
            (std::vector<PointRec>{{true, "", ""}, {true, "", ""}, {true, "+0020304", "+480000"}, {}}));
}

TEST_F(AReadContour, keeps_a_remark_of_any_length_when_it_has_points) {
  storeContour("0", "remarks = '" + std::string(200, 'r') + "'");
  storePoint(0, "2, 0, 0, 'E', 48, 0, 0, 'N'");
  EXPECT_EQ(readItQuietly().t_remarks, std::string(200, 'r'));
}

TEST_F(AReadContour, with_more_points_than_it_has_room_for_fails_in_the_box) {
  storeContour("1", kAll);
  for (int number = 0; number < 3; ++number) storePoint(number, "2, 0, 0, 'E', 48, 0, 0, 'N'");
  NtcRec ntc;
  EXPECT_FALSE(readIt(ntc));
  EXPECT_EQ(ntc.t_notice_type, "GA1");
  EXPECT_EQ(ntc.digital.contour.t_contour_id, "12");
  EXPECT_EQ(ntc.digital.contour.points.size(), 2U);
  expectOnlyBox("Erreur 9:Subscript out of range", "readContour");
}

TEST_F(AReadContour, with_a_number_of_points_that_cannot_be_fails_in_the_box) {
  storeContour("-1");
  storePoint(0, "2, 0, 0, 'E', 48, 0, 0, 'N'");
  NtcRec ntc;
  EXPECT_FALSE(readIt(ntc));
  expectOnlyBox("Erreur 9:Subscript out of range", "readContour");
  script.boxes.clear();
  raw.run("UPDATE lmz_contour SET nb_test_pts = 32768");
  EXPECT_FALSE(readIt(ntc));
  expectOnlyBox("Erreur 6:Overflow", "readContour");
}

TEST_F(AReadContour, that_was_only_named_is_read_with_no_points) {
  storeContour("NULL", kAll);
  NtcRec expected = bareContour();
  setAll(expected);
  expected.digital.present = true;
  expected.t_remarks = "A remark";
  expected.digital.contour.points.clear();
  EXPECT_TRUE(readItQuietly() == expected);
}

TEST_F(AReadContour, without_points_keeps_the_number_it_tells) {
  storeContour("4");
  NtcRec expected = bareContour();
  expected.digital.present = true;
  expected.digital.contour.t_nb_test_pts = "4";
  expected.digital.contour.points.clear();
  EXPECT_TRUE(readItQuietly() == expected);
}

TEST_F(AReadContour, without_points_has_a_remark_cut_at_80_and_is_told_of) {
  storeContour("NULL", "remarks = '" + std::string(80, 'r') + "'");
  EXPECT_EQ(readItQuietly().t_remarks, std::string(80, 'r'));
  raw.run("UPDATE lmz_contour SET remarks = remarks || 's'");
  NtcRec ntc;
  EXPECT_TRUE(readIt(ntc));
  EXPECT_EQ(ntc.t_remarks, std::string(80, 'r'));
  expectOnlyBox("readOnlyContourID: The notified remark is greater than 80, it will be truncated.",
                "Contour Remarks");
}

TEST_F(AReadContour, that_is_missing_is_told_of) {
  NtcRec ntc;
  EXPECT_FALSE(readIt(ntc));
  EXPECT_TRUE(ntc == bare("GA1"));
  expectOnlyBox("readOnlyContourID: The contour 7 is Missing . Please consult the administrator!",
                "Read Error");
}

TEST_F(AReadContour, tells_the_failure_of_its_tables) {
  storeContour("NULL");
  loseTable("lmz_contour_pt");
  NtcRec ntc;
  EXPECT_FALSE(readIt(ntc));
  EXPECT_EQ(ntc.t_notice_type, "GA1");
  expectOnlyBox("Erreur 1:no such table: lmz_contour_pt", "readContour");
  script.boxes.clear();
  loseTable("lmz_contour");
  EXPECT_FALSE(readOnlyContourID(host, 7, ntc, connection));
  expectOnlyBox("Erreur 1:no such table: lmz_contour", "readOnlyContourID");
}

}  // namespace
}  // namespace zamo
