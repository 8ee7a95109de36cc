#include "database/recordset.h"

#include <gtest/gtest.h>

#include "database/raw_database.h"
#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::Rows;
using test::TempFolder;

class ARecordset : public testing::Test {
 protected:
  ARecordset() {
    raw.run(
        "CREATE TABLE t (name TEXT, number REAL, whole INTEGER) STRICT;"
        "INSERT INTO t VALUES ('a', 474.0, 1), ('b', 176.64, -2), (NULL, NULL, NULL), ('', -0.5, 0)");
  }

  void expectRefused(std::string_view sql, int number) {
    SCOPED_TRACE(sql);
    const Rows before = raw.rows("SELECT * FROM t");
    try {
      const Recordset rows(sql, connection);
      ADD_FAILURE() << "not refused";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number, number) << error.text;
      EXPECT_FALSE(error.text.empty());
    }
    EXPECT_EQ(raw.rows("SELECT * FROM t"), before);
    EXPECT_EQ(raw.value("SELECT count(*) FROM sqlite_schema"), "1");
  }

  std::optional<std::string> first(std::string_view sql) { return Recordset(sql, connection).value(0); }

  TempFolder folder;
  RawDatabase raw{folder.file("a.mdb")};
  Connection connection{folder.file("a.mdb")};
};

TEST_F(ARecordset, gives_the_rows_of_a_select_one_by_one) {
  Recordset rows("SELECT name, whole FROM t WHERE whole <> 0 ORDER BY name", connection);
  EXPECT_EQ(rows.RecordCount(), 2);
  ASSERT_FALSE(rows.atEnd());
  EXPECT_EQ(rows.value(0), "a");
  EXPECT_EQ(rows.value(1), "1");
  rows.MoveNext();
  ASSERT_FALSE(rows.atEnd());
  EXPECT_EQ(rows.value(0), "b");
  EXPECT_EQ(rows.value(1), "-2");
  rows.MoveNext();
  EXPECT_TRUE(rows.atEnd());
  EXPECT_EQ(rows.RecordCount(), 2);
}

TEST_F(ARecordset, without_a_row_is_at_its_end) {
  const Recordset rows("SELECT * FROM t WHERE name = 'z'", connection);
  EXPECT_EQ(rows.RecordCount(), 0);
  EXPECT_TRUE(rows.atEnd());
}

TEST_F(ARecordset, tells_null_from_an_empty_text) {
  Recordset rows("SELECT name, number, whole FROM t WHERE name IS NULL", connection);
  ASSERT_FALSE(rows.atEnd());
  for (std::size_t column : {0U, 1U, 2U}) EXPECT_EQ(rows.value(column), std::nullopt);
  EXPECT_EQ(first("SELECT name FROM t WHERE name = ''"), "");
}

TEST_F(ARecordset, gives_a_number_in_its_shortest_form) {
  EXPECT_EQ(first("SELECT number FROM t WHERE name = 'a'"), "474");
  EXPECT_EQ(first("SELECT number FROM t WHERE name = 'b'"), "176.64");
  EXPECT_EQ(first("SELECT number FROM t WHERE name = ''"), "-0.5");
  EXPECT_EQ(first("SELECT 0.1 + 0.2"), "0.30000000000000004");
  EXPECT_EQ(first("SELECT 1e21"), "1000000000000000000000");
  EXPECT_EQ(first("SELECT 1e-7"), "0.0000001");
  EXPECT_EQ(first("SELECT 2147483648"), "2147483648");
  EXPECT_EQ(first("SELECT '007'"), "007");
}

TEST_F(ARecordset, gives_and_takes_text_in_the_code_page) {
  raw.run("INSERT INTO t VALUES ('Gen\xc3\xa8ve', 1, 1), ('\xe2\x82\xac \xe6\x97\xa5', 2, 2)");
  EXPECT_EQ(first("SELECT name FROM t WHERE number = 1"), "Gen\350ve");
  EXPECT_EQ(first("SELECT name FROM t WHERE number = 2"), "\200 ?");
  EXPECT_EQ(first("SELECT number FROM t WHERE name = 'Gen\350ve'"), "1");
}

TEST_F(ARecordset, takes_one_select_with_blanks_and_an_ending_semicolon) {
  EXPECT_EQ(first("SELECT whole FROM t WHERE name = 'a'    "), "1");
  EXPECT_EQ(first("  select whole from t where name = 'a';"), "1");
  EXPECT_EQ(first("Select whole From t WHERE name = 'a' ;\r\n "), "1");
  EXPECT_EQ(first("SELECT whole FROM t WHERE name = 'a' OR name = 'x; DELETE FROM t'"), "1");
}

TEST_F(ARecordset, refuses_statements_that_change_data) {
  expectRefused("UPDATE t SET name = 'x'", 5);
  expectRefused("DELETE FROM t", 5);
  expectRefused("INSERT INTO t VALUES ('x', 1, 1)", 5);
  expectRefused("DROP TABLE t", 5);
  expectRefused("CREATE TABLE u (a)", 5);
  expectRefused("UPDATE t SET name = 'x' RETURNING name", 5);
  expectRefused("DELETE FROM t RETURNING *", 5);
  expectRefused("WITH one AS (SELECT 1) DELETE FROM t", 5);
}

TEST_F(ARecordset, refuses_everything_else_that_is_no_select) {
  expectRefused("", 5);
  expectRefused("   ", 5);
  expectRefused(";", 5);
  expectRefused("-- SELECT 1", 5);
  expectRefused("BEGIN", 5);
  expectRefused("VALUES (1)", 5);
  expectRefused("EXPLAIN SELECT 1", 5);
  expectRefused("PRAGMA table_info(t)", 5);
  expectRefused("ATTACH 'other.mdb' AS other", 5);
}

TEST_F(ARecordset, refuses_a_select_that_something_follows) {
  expectRefused("SELECT * FROM t; DELETE FROM t", 5);
  expectRefused("SELECT * FROM t WHERE name = ''; UPDATE t SET name = 'x' --'", 5);
  expectRefused("SELECT 1; SELECT 2", 5);
  expectRefused("SELECT 1; x", 5);
  expectRefused("SELECT 1; -- and no more", 5);
  expectRefused("SELECT 1; PRAGMA foreign_keys = OFF", 5);
  expectRefused("DELETE FROM t; SELECT 1", 5);
  expectRefused(std::string_view("SELECT 1\0; DELETE FROM t", 24), 5);
}

TEST_F(ARecordset, that_is_refused_leaves_the_settings_of_the_connection) {
  expectRefused("PRAGMA foreign_keys = OFF", 5);
  sqlite3_stmt* statement = nullptr;
  ASSERT_EQ(sqlite3_prepare_v2(connection.handle(), "PRAGMA foreign_keys", -1, &statement, nullptr),
            SQLITE_OK);
  ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
  EXPECT_EQ(sqlite3_column_int(statement, 0), 1);
  sqlite3_finalize(statement);
}

TEST_F(ARecordset, gives_the_engines_number_and_text_for_a_broken_statement) {
  try {
    const Recordset rows("SELECT name FROM t WHERE name = 'O'Neill'", connection);
    ADD_FAILURE() << "not refused";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number, 1);
    EXPECT_EQ(error.text, "near \"Neill\": syntax error");
  }
  expectRefused("SELECT * FROM none", 1);
  expectRefused("SELECT none FROM t", 1);
}

TEST_F(ARecordset, can_be_opened_again_after_a_refusal) {
  expectRefused("SELECT", 1);
  expectRefused("DELETE FROM t", 5);
  EXPECT_EQ(first("SELECT count(*) FROM t"), "4");
}

TEST_F(ARecordset, has_no_value_beyond_its_rows_and_columns) {
  Recordset rows("SELECT name FROM t WHERE name = 'a'", connection);
  const auto numberOf = [&rows](std::size_t column) {
    try {
      rows.value(column);
    } catch (const RunTimeError& error) {
      return error.number;
    }
    return 0;
  };
  EXPECT_EQ(numberOf(0), 0);
  EXPECT_EQ(numberOf(1), 9);
  rows.MoveNext();
  EXPECT_EQ(numberOf(0), 9);
}

TEST_F(ARecordset, holds_no_lock_once_it_is_open) {
  const Recordset rows("SELECT * FROM t", connection);
  raw.run("DELETE FROM t");
  EXPECT_EQ(rows.RecordCount(), 4);
}

}  // namespace
}  // namespace zamo
