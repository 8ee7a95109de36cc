#include "database/row_cursor.h"

#include <gtest/gtest.h>

#include "database/raw_database.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::TempFolder;

class ARowCursor : public testing::Test {
 protected:
  ARowCursor() {
    raw.run(
        "CREATE TABLE t (name TEXT, number REAL, whole INTEGER) STRICT;"
        "INSERT INTO t VALUES ('Gen\xc3\xa8ve', 474.0, 1), ('', 176.64, -2), (NULL, NULL, NULL)");
  }

  int numberOf(std::string_view sql) {
    try {
      RowCursor rows(sql, connection);
      while (rows.next()) continue;
    } catch (const RunTimeError& error) {
      EXPECT_FALSE(error.text.empty());
      return error.number;
    }
    return 0;
  }

  TempFolder folder;
  RawDatabase raw{folder.file("a.mdb")};
  Connection connection{folder.file("a.mdb")};
};

TEST_F(ARowCursor, goes_from_row_to_row_and_ends_behind_the_last) {
  RowCursor rows("SELECT name, number, whole FROM t", connection);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value(0), "Gen\350ve");
  EXPECT_EQ(rows.value(1), "474");
  EXPECT_EQ(rows.value(2), "1");
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value(0), "");
  EXPECT_EQ(rows.value(1), "176.64");
  EXPECT_EQ(rows.value(2), "-2");
  ASSERT_TRUE(rows.next());
  for (const std::size_t column : {0U, 1U, 2U}) EXPECT_EQ(rows.value(column), std::nullopt);
  EXPECT_FALSE(rows.next());
}

TEST_F(ARowCursor, tells_numbers_from_texts) {
  RowCursor rows("SELECT name, number, whole, '7' AS digits FROM t", connection);
  ASSERT_TRUE(rows.next());
  EXPECT_FALSE(rows.isNumber(0));
  EXPECT_TRUE(rows.isNumber(1));
  EXPECT_TRUE(rows.isNumber(2));
  EXPECT_FALSE(rows.isNumber(3));
  while (rows.value(0)) ASSERT_TRUE(rows.next());
  EXPECT_FALSE(rows.isNumber(1)) << "a Null";
}

TEST_F(ARowCursor, names_its_columns_as_the_statement_does_even_without_a_row) {
  RowCursor rows("SELECT t.name AS SiteName, t.whole FROM t WHERE name = 'z'", connection);
  EXPECT_EQ(rows.columnCount(), 2U);
  EXPECT_EQ(rows.title(0), "SiteName");
  EXPECT_EQ(rows.title(1), "whole");
  EXPECT_EQ(rows.columnOf("sitename"), 0U);
  EXPECT_EQ(rows.columnOf("WHOLE"), 1U);
  EXPECT_FALSE(rows.next());
  try {
    rows.columnOf("name");
    ADD_FAILURE() << "not refused";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number, 9);
    EXPECT_EQ(error.text, "No such field");
  }
}

TEST_F(ARowCursor, takes_statements_in_the_dialect_of_the_operations) {
  RowCursor rows("SELECT name & '\264' & whole AS joined FROM t WHERE whole = '1'", connection);
  ASSERT_TRUE(rows.next());
  EXPECT_EQ(rows.value(0),
            "Gen\350ve\264"
            "1");
  EXPECT_FALSE(rows.next());
}

TEST_F(ARowCursor, refuses_what_is_not_one_select) {
  for (const char* sql : {"DELETE FROM t", "PRAGMA foreign_keys = OFF", "SELECT 1; DELETE FROM t", "", "-- x",
                          "UPDATE t SET name = 'x' RETURNING name"}) {
    EXPECT_EQ(numberOf(sql), 5) << sql;
  }
  EXPECT_EQ(numberOf("SELECT none FROM t"), 1);
  EXPECT_EQ(raw.value("SELECT count(*) FROM t"), "3");
}

TEST_F(ARowCursor, gives_the_engines_error_of_a_row) {
  EXPECT_EQ(numberOf("SELECT abs(-9223372036854775807 - 1) FROM t"), 1);
}

}  // namespace
}  // namespace zamo
