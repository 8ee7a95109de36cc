#include "shell/grid_rows.h"

#include <gtest/gtest.h>

#include "database/raw_database.h"
#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::TempFolder;

class GridRowsOf : public testing::Test {
 protected:
  GridRowsOf() {
    raw.run(
        "CREATE TABLE t (whole INTEGER PRIMARY KEY, name TEXT, number REAL) STRICT;"
        "INSERT INTO t VALUES (1, 'For\xc3\xaat', 474.0), (2, NULL, NULL), (30, 'Mont', 0.5)");
  }

  GridRows read(std::string_view sql) { return {sql, connection}; }

  TempFolder folder;
  RawDatabase raw{folder.file("a.mdb")};
  Connection connection{folder.file("a.mdb")};
};

TEST_F(GridRowsOf, a_statement_hold_each_cell_as_text_and_nothing_of_the_database) {
  const GridRows rows = read("SELECT whole AS VornaKey, name, number FROM t");
  raw.run("DROP TABLE t");
  ASSERT_EQ(rows.rowCount(), 3U);
  ASSERT_EQ(rows.columnCount(), 3U);
  EXPECT_EQ(rows.title(0), "VornaKey");
  EXPECT_EQ(rows.title(1), "name");
  const char* const expected[3][3] = {{"1", "For\352t", "474"}, {"2", "", ""}, {"30", "Mont", "0.5"}};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      EXPECT_EQ(rows.text(row, column), expected[row][column]) << row << " " << column;
    }
  }
}

TEST_F(GridRowsOf, a_statement_tell_columns_of_numbers_and_their_longest_texts) {
  const GridRows rows = read("SELECT whole, name, number, NULL AS none, '7' AS digits FROM t");
  EXPECT_TRUE(rows.holdsNumbers(0));
  EXPECT_FALSE(rows.holdsNumbers(1));
  EXPECT_TRUE(rows.holdsNumbers(2));
  EXPECT_FALSE(rows.holdsNumbers(3));
  EXPECT_FALSE(rows.holdsNumbers(4));
  EXPECT_EQ(rows.longestRow(0), 2U);
  EXPECT_EQ(rows.longestRow(1), 0U);
  EXPECT_EQ(rows.longestRow(3), 0U);
}

TEST_F(GridRowsOf, a_column_of_numbers_and_texts_are_no_numbers) {
  EXPECT_FALSE(read("SELECT CASE whole WHEN 1 THEN 1 ELSE 'x' END FROM t").holdsNumbers(0));
  EXPECT_FALSE(read("SELECT CASE whole WHEN 1 THEN 'x' ELSE 1 END FROM t").holdsNumbers(0));
}

TEST_F(GridRowsOf, an_empty_selection_have_titles_alone) {
  const GridRows rows = read("SELECT whole AS VornaKey FROM t WHERE name = 'z'");
  EXPECT_EQ(rows.rowCount(), 0U);
  EXPECT_EQ(rows.title(0), "VornaKey");
  EXPECT_FALSE(rows.holdsNumbers(0));
}

TEST_F(GridRowsOf, nothing_are_none) {
  const GridRows rows;
  EXPECT_EQ(rows.rowCount(), 0U);
  EXPECT_EQ(rows.columnCount(), 0U);
}

TEST_F(GridRowsOf, a_broken_statement_are_an_error) {
  EXPECT_THROW(read("SELECT whole FROM none"), RunTimeError);
}

}  // namespace
}  // namespace zamo
