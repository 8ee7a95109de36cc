#include "database/recordset.h"
#include "database/working_database.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

using Rows = test::Rows;

class AChangedRecordset : public test::WorkingDatabase {
 protected:
  // The number and the text of what `act` throws; "0: " when it doesn't.
  template <typename Act>
  static std::string errorOf(Act act) {
    try {
      act();
    } catch (const RunTimeError& error) {
      return std::to_string(error.number) + ": " + error.text;
    }
    return "0: ";
  }

  // Three notices: 1 in Paris, 2 in Lyon, 3 in Lille.
  void storeNotices() {
    raw.run(
        "INSERT INTO fmtv_vorna (vornakey, site_name, freq_assgn) VALUES (1, 'PARIS', 474), (2, 'LYON', "
        "482), "
        "(3, 'LILLE', 490)");
  }

  Recordset open(std::string_view sql) { return Recordset(sql, connection); }
  Recordset openTable(std::string_view table) { return Recordset(table, connection, OpenAs::table); }

  // A row of file_trace, a table where everything may be Null.
  void addTrace(std::string_view name) {
    Recordset rows = openTable("file_trace");
    rows.AddNew();
    rows.Collect("file_name", name);
    rows.Update();
  }

  std::string traces() { return raw.value("SELECT group_concat(file_name) FROM file_trace"); }
};

TEST_F(AChangedRecordset, adds_a_row_with_the_fields_that_were_set) {
  Recordset rows = openTable("fmtv_vorna");
  rows.AddNew();
  rows.Collect("vornakey", std::int64_t{83700001});
  rows.Collect("site_name", "Orl\351ans");
  rows.Collect("freq_assgn", "474.0");
  rows.CollectReal("long_rdn", 0.1);
  rows.Update();
  rows.Close();
  EXPECT_EQ(
      raw.rows("SELECT vornakey, site_name, freq_assgn, typeof(freq_assgn), long_rdn, adm FROM fmtv_vorna"),
      (Rows{{"83700001", "Orl\303\251ans", "474.0", "real", "0.1", "NULL"}}));
}

TEST_F(AChangedRecordset, adds_row_after_row) {
  Recordset rows = openTable("fmtv_coord");
  storeNotices();
  for (const char* adm : {"D", "BEL"}) {
    rows.AddNew();
    rows.Collect("vornakey", std::int64_t{1});
    rows.Collect("adm", adm);
    rows.Update();
  }
  EXPECT_EQ(raw.rows("SELECT adm, coord_st FROM fmtv_coord ORDER BY rowid"),
            (Rows{{"D", "NULL"}, {"BEL", "NULL"}}));
}

TEST_F(AChangedRecordset, adds_a_row_through_a_selection_of_its_table) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.AddNew();
  rows.Collect("vornakey", std::int64_t{4});
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name FROM fmtv_vorna WHERE vornakey IN (1, 4)"),
            (Rows{{"1", "PARIS"}, {"4", "NULL"}}));
}

TEST_F(AChangedRecordset, adds_a_row_of_nulls_when_nothing_was_set) {
  Recordset rows = openTable("file_trace");
  rows.AddNew();
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT file_name, nb_notices, d_rcv FROM file_trace"),
            (Rows{{"NULL", "NULL", "NULL"}}));
}

TEST_F(AChangedRecordset, tells_null_from_an_empty_text) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("site_name", std::nullopt);
  rows.Collect("adm", "");
  rows.Collect("freq_assgn", std::nullopt);
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT site_name, adm, freq_assgn FROM fmtv_vorna WHERE vornakey = 1"),
            (Rows{{"NULL", "", "NULL"}}));
  const Recordset again = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  EXPECT_EQ(again.value("site_name"), std::nullopt);
  EXPECT_EQ(again.value("adm"), "");
}

TEST_F(AChangedRecordset, changes_the_current_row_alone_and_the_fields_that_were_set_alone) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna");
  rows.MoveNext();
  rows.Collect("site_name", "LYON SUD");
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name, freq_assgn FROM fmtv_vorna"),
            (Rows{{"1", "PARIS", "474.0"}, {"2", "LYON SUD", "482.0"}, {"3", "LILLE", "490.0"}}));
}

TEST_F(AChangedRecordset, takes_the_last_value_that_a_field_was_given) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("site_name", "A");
  rows.Collect("adm", "F");
  rows.Collect("site_name", "B");
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT site_name, adm FROM fmtv_vorna WHERE vornakey = 1"), (Rows{{"B", "F"}}));
}

TEST_F(AChangedRecordset, stores_nothing_before_update) {
  storeNotices();
  {
    Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
    rows.Collect("site_name", "A");
    rows.AddNew();
    rows.Collect("vornakey", std::int64_t{9});
  }
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name FROM fmtv_vorna"),
            (Rows{{"1", "PARIS"}, {"2", "LYON"}, {"3", "LILLE"}}));
}

TEST_F(AChangedRecordset, forgets_what_was_set_on_cancel) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("site_name", "A");
  rows.CancelUpdate();
  rows.Update();
  rows.AddNew();
  rows.Collect("vornakey", std::int64_t{9});
  rows.CancelUpdate();
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name FROM fmtv_vorna"),
            (Rows{{"1", "PARIS"}, {"2", "LYON"}, {"3", "LILLE"}}));
  rows.Collect("site_name", "B");
  rows.Update();
  EXPECT_EQ(raw.value("SELECT site_name FROM fmtv_vorna WHERE vornakey = 1"), "B");
}

TEST_F(AChangedRecordset, takes_a_date_in_any_of_its_forms) {
  storeNotices();
  for (const char* date : {"2005-12-31", "2005/12/31", "2005.12.31", "31-12-2005", "31/12/2005", "31.12.2005",
                           "2005-12/31", "31/12-2005"}) {
    SCOPED_TRACE(date);
    Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
    rows.Collect("d_inuse", date);
    rows.Update();
    EXPECT_EQ(raw.value("SELECT d_inuse FROM fmtv_vorna WHERE vornakey = 1"), "2005-12-31");
    raw.run("UPDATE fmtv_vorna SET d_inuse = NULL");
  }
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("d_inuse", "1.2.2004");
  rows.Collect("d_expiry", "29/2/2004");
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT d_inuse, d_expiry FROM fmtv_vorna WHERE vornakey = 1"),
            (Rows{{"2004-02-01", "2004-02-29"}}));
}

TEST_F(AChangedRecordset, refuses_what_is_no_date_at_update) {
  storeNotices();
  for (const char* date : {"31.02.2005", "29/2/2005", "2005-13-01", "2005-12-31 10:00", "31.12/2005",
                           "12/31/2005", "soon", "", "38353"}) {
    SCOPED_TRACE(date);
    Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
    rows.Collect("d_inuse", date);
    EXPECT_EQ(errorOf([&] { rows.Update(); }).substr(0, 32), "275: CHECK constraint failed: d_");
  }
  EXPECT_EQ(raw.value("SELECT d_inuse FROM fmtv_vorna WHERE vornakey = 1"), "NULL");
}

TEST_F(AChangedRecordset, converts_text_to_the_kind_of_its_column) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("freq_assgn", " 1.5e2 ");
  rows.Collect("long_deg", "002");
  rows.Collect("erp_h_dbw", "-.5");
  rows.Collect("op_agcy", "001");
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT freq_assgn, long_deg, erp_h_dbw, op_agcy FROM fmtv_vorna WHERE vornakey = 1"),
            (Rows{{"150.0", "2.0", "-0.5", "001"}}));
}

TEST_F(AChangedRecordset, refuses_at_update_what_cannot_be_converted) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  for (const char* value : {"abc", "", "1,5", "1 2", "12x"}) {
    SCOPED_TRACE(value);
    rows.Collect("site_name", "A");
    rows.Collect("freq_assgn", value);
    EXPECT_EQ(errorOf([&] { rows.Update(); }),
              "3091: cannot store TEXT value in REAL column fmtv_vorna.freq_assgn");
    rows.CancelUpdate();
  }
  rows.Collect("vornakey", "x");
  EXPECT_EQ(errorOf([&] { rows.Update(); }).substr(0, 3), "20:");
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name, freq_assgn FROM fmtv_vorna WHERE vornakey = 1"),
            (Rows{{"1", "PARIS", "474.0"}}));
}

TEST_F(AChangedRecordset, that_was_refused_can_be_corrected) {
  Recordset rows = openTable("fmtv_vorna");
  rows.AddNew();
  rows.Collect("vornakey", std::int64_t{1});
  rows.Collect("freq_assgn", "abc");
  EXPECT_EQ(errorOf([&] { rows.Update(); }),
            "3091: cannot store TEXT value in REAL column fmtv_vorna.freq_assgn");
  rows.Collect("freq_assgn", "474");
  rows.Update();
  EXPECT_EQ(raw.rows("SELECT vornakey, freq_assgn FROM fmtv_vorna"), (Rows{{"1", "474.0"}}));
}

TEST_F(AChangedRecordset, refuses_a_key_that_is_taken_and_a_row_without_its_notice) {
  storeNotices();
  Recordset notices = openTable("fmtv_vorna");
  notices.AddNew();
  notices.Collect("vornakey", std::int64_t{1});
  EXPECT_EQ(errorOf([&] { notices.Update(); }), "1555: UNIQUE constraint failed: fmtv_vorna.vornakey");
  Recordset hours = openTable("fmtv_op_prd");
  hours.AddNew();
  hours.Collect("vornakey", std::int64_t{99});
  EXPECT_EQ(errorOf([&] { hours.Update(); }), "787: FOREIGN KEY constraint failed");
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_vorna"), "3");
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_op_prd"), "0");
}

TEST_F(AChangedRecordset, refuses_a_field_that_the_table_lacks) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna WHERE vornakey = 1");
  rows.Collect("no_such", "A");
  EXPECT_EQ(errorOf([&] { rows.Update(); }), "1: no such column: no_such");
}

TEST_F(AChangedRecordset, of_a_join_takes_no_change) {
  storeNotices();
  raw.run("INSERT INTO fmtv_op_prd VALUES (1, '0600', '2200')");
  for (const char* sql :
       {"SELECT fmtv_vorna.vornakey FROM fmtv_vorna INNER JOIN fmtv_op_prd ON fmtv_vorna.vornakey = "
        "fmtv_op_prd.vornakey",
        "SELECT * FROM fmtv_vorna INNER JOIN fmtv_op_prd ON fmtv_vorna.vornakey = fmtv_op_prd.vornakey",
        "SELECT * FROM fmtv_vorna, fmtv_op_prd", "SELECT vornakey, site_name FROM fmtv_vorna",
        "SELECT DISTINCT * FROM fmtv_vorna", "SELECT * FROM (SELECT * FROM fmtv_vorna)",
        "SELECT * FROM fmtv_vorna AS a WHERE vornakey = 1"}) {
    SCOPED_TRACE(sql);
    Recordset rows = open(sql);
    EXPECT_FALSE(rows.atEnd());
    EXPECT_EQ(errorOf([&] { rows.AddNew(); }), "5: The rows of this recordset can't be changed");
    EXPECT_EQ(errorOf([&] {
                rows.Collect("site_name", "A");
                rows.Update();
              }),
              "5: The rows of this recordset can't be changed");
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), "5: The rows of this recordset can't be changed");
  }
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name FROM fmtv_vorna"),
            (Rows{{"1", "PARIS"}, {"2", "LYON"}, {"3", "LILLE"}}));
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_op_prd"), "1");
}

TEST_F(AChangedRecordset, moves_to_its_first_and_its_last_row) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna");
  rows.MoveLast();
  EXPECT_EQ(rows.value("site_name"), "LILLE");
  rows.MoveNext();
  EXPECT_TRUE(rows.atEnd());
  rows.MoveFirst();
  EXPECT_EQ(rows.value("site_name"), "PARIS");
  EXPECT_EQ(rows.RecordCount(), 3);
}

TEST_F(AChangedRecordset, without_a_row_is_at_its_end_wherever_it_moves) {
  Recordset rows = open("SELECT * FROM fmtv_vorna");
  rows.MoveLast();
  EXPECT_TRUE(rows.atEnd());
  rows.MoveFirst();
  EXPECT_TRUE(rows.atEnd());
  EXPECT_EQ(errorOf([&] { rows.value("vornakey"); }), "9: No current row");
  EXPECT_EQ(errorOf([&] { rows.Collect("site_name", "A"); }), "9: No current row");
  EXPECT_EQ(errorOf([&] { rows.Delete(); }), "9: No current row");
}

TEST_F(AChangedRecordset, of_a_table_shows_no_row_of_it) {
  storeNotices();
  Recordset rows = openTable("fmtv_vorna");
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_TRUE(rows.atEnd());
  EXPECT_EQ(errorOf([&] { rows.Collect("site_name", "A"); }), "9: No current row");
  EXPECT_EQ(errorOf([&] { openTable("no_such"); }), "1: no such table: no_such");
}

TEST_F(AChangedRecordset, deletes_the_current_row_and_keeps_its_count) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna");
  rows.MoveNext();
  rows.Delete();
  EXPECT_EQ(raw.rows("SELECT vornakey FROM fmtv_vorna"), (Rows{{"1"}, {"3"}}));
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_FALSE(rows.atEnd());
  EXPECT_EQ(errorOf([&] { rows.value("vornakey"); }), "9: No current row");
  EXPECT_EQ(errorOf([&] { rows.Collect("site_name", "A"); }), "9: No current row");
  EXPECT_EQ(errorOf([&] { rows.Delete(); }), "9: No current row");
  rows.MoveNext();
  EXPECT_EQ(rows.value("vornakey"), "3");
  rows.MoveFirst();
  EXPECT_EQ(rows.value("vornakey"), "1");
  rows.MoveLast();
  rows.Delete();
  rows.MoveNext();
  EXPECT_TRUE(rows.atEnd());
  EXPECT_EQ(rows.RecordCount(), 3);
  EXPECT_EQ(raw.rows("SELECT vornakey FROM fmtv_vorna"), (Rows{{"1"}}));
}

TEST_F(AChangedRecordset, deletes_all_its_rows_in_one_walk) {
  storeNotices();
  raw.run("INSERT INTO fmtv_rmks (vornakey, rmk_text) VALUES (1, 'a'), (2, 'b'), (2, 'c')");
  for (Recordset rows = open("SELECT * FROM fmtv_rmks WHERE vornakey = 2"); !rows.atEnd(); rows.MoveNext())
    rows.Delete();
  EXPECT_EQ(raw.rows("SELECT rmk_text FROM fmtv_rmks"), (Rows{{"a"}}));
}

TEST_F(AChangedRecordset, takes_the_rows_that_hang_on_a_notice_with_it) {
  storeNotices();
  raw.run("INSERT INTO fmtv_op_prd VALUES (1, '0600', '2200'), (2, '0600', '2200')");
  open("SELECT * FROM fmtv_vorna WHERE vornakey = 1").Delete();
  EXPECT_EQ(raw.rows("SELECT vornakey FROM fmtv_op_prd"), (Rows{{"2"}}));
}

TEST_F(AChangedRecordset, that_is_closed_gives_an_error_at_every_access) {
  storeNotices();
  Recordset rows = open("SELECT * FROM fmtv_vorna");
  rows.Close();
  const std::string closed = "5: The recordset is closed";
  EXPECT_EQ(errorOf([&] { rows.RecordCount(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.atEnd(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.MoveFirst(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.MoveLast(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.MoveNext(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.value("vornakey"); }), closed);
  EXPECT_EQ(errorOf([&] { rows.value(0); }), closed);
  EXPECT_EQ(errorOf([&] { rows.AddNew(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.Collect("site_name", "A"); }), closed);
  EXPECT_EQ(errorOf([&] { rows.CollectReal("freq_assgn", 1); }), closed);
  EXPECT_EQ(errorOf([&] { rows.Update(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.CancelUpdate(); }), closed);
  EXPECT_EQ(errorOf([&] { rows.Delete(); }), closed);
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_vorna"), "3");
}

TEST_F(AChangedRecordset, in_a_transaction_is_kept_by_its_commit) {
  connection.BeginTrans();
  addTrace("a");
  EXPECT_EQ(traces(), "NULL");
  connection.CommitTrans();
  EXPECT_EQ(traces(), "a");
}

TEST_F(AChangedRecordset, in_a_transaction_is_undone_by_its_rollback) {
  addTrace("before");
  connection.BeginTrans();
  addTrace("a");
  EXPECT_EQ(open("SELECT * FROM file_trace").RecordCount(), 2);
  open("SELECT * FROM file_trace").Delete();
  connection.RollbackTrans();
  EXPECT_EQ(traces(), "before");
  EXPECT_EQ(open("SELECT * FROM file_trace").RecordCount(), 1);
}

TEST_F(AChangedRecordset, has_one_level_of_transaction) {
  connection.BeginTrans();
  EXPECT_EQ(errorOf([&] { connection.BeginTrans(); }), "5: A transaction is open already");
  connection.CommitTrans();
  EXPECT_EQ(errorOf([&] { connection.CommitTrans(); }), "5: No transaction is open");
  EXPECT_EQ(errorOf([&] { connection.RollbackTrans(); }), "5: No transaction is open");
}

TEST_F(AChangedRecordset, runs_transaction_after_transaction) {
  for (const char* name : {"a", "b", "c"}) {
    connection.BeginTrans();
    addTrace(name);
    name[0] == 'b' ? connection.RollbackTrans() : connection.CommitTrans();
  }
  EXPECT_EQ(traces(), "a,c");
}

TEST_F(AChangedRecordset, in_a_transaction_that_the_engine_ended_takes_no_more_changes) {
  raw.run(
      "CREATE TRIGGER ending BEFORE INSERT ON file_trace WHEN new.file_name = 'bad' "
      "BEGIN SELECT RAISE(ROLLBACK, 'ended by the engine'); END");
  connection.BeginTrans();
  addTrace("a");
  EXPECT_EQ(errorOf([&] { addTrace("bad"); }), "1811: ended by the engine");
  EXPECT_EQ(errorOf([&] { addTrace("b"); }), "4: The transaction was ended by an earlier error");
  EXPECT_EQ(errorOf([&] { connection.CommitTrans(); }), "1: cannot commit - no transaction is active");
  connection.RollbackTrans();
  EXPECT_EQ(traces(), "NULL");

  connection.BeginTrans();
  addTrace("c");
  connection.CommitTrans();
  EXPECT_EQ(traces(), "c");
}

TEST_F(AChangedRecordset, that_another_program_holds_waits_and_then_fails) {
  connection.BeginTrans();
  connection.RollbackTrans();
  raw.run("BEGIN IMMEDIATE");
  EXPECT_EQ(errorOf([&] { connection.BeginTrans(); }), "5: database is locked");
  raw.run("ROLLBACK");
  connection.BeginTrans();
  addTrace("a");
  connection.CommitTrans();
  EXPECT_EQ(traces(), "a");
}

}  // namespace
}  // namespace zamo
