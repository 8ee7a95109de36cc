#include "database/dialect.h"

#include "database/recordset.h"
#include "database/working_database.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

class TheDialect : public test::WorkingDatabase {
 protected:
  // The rows of a statement, up to its first column that isn't there; the values of one joined by "|", a Null
  // as "NULL".
  std::vector<std::string> rowsOf(std::string_view sql) {
    std::vector<std::string> all;
    for (Recordset rows(sql, connection); !rows.atEnd(); rows.MoveNext()) {
      std::string& row = all.emplace_back();
      for (std::size_t column = 0;; ++column) {
        try {
          const std::string text = rows.value(column).value_or("NULL");
          row.append(column == 0 ? "" : "|").append(text);
        } catch (const RunTimeError&) {
          break;
        }
      }
    }
    return all;
  }

  // Thrown by `act`; the number 0 when it isn't.
  template <typename Act>
  static RunTimeError errorOf(Act act) {
    try {
      act();
    } catch (const RunTimeError& error) {
      return error;
    }
    return {};
  }

  static void expectRefused(std::string_view sql, int number, std::string_view text) {
    SCOPED_TRACE(sql);
    const RunTimeError error = errorOf([sql] { engineSql(sql); });
    EXPECT_EQ(error.number, number);
    EXPECT_EQ(error.text, text);
  }

  void storeNotice(int vornakey, const std::string& columns, const std::string& values) {
    raw.run("INSERT INTO fmtv_vorna (vornakey, " + columns + ") VALUES (" + std::to_string(vornakey) + ", " +
            values + ")");
  }
};

using Rows = std::vector<std::string>;

TEST_F(TheDialect, turns_a_date_between_marks_from_month_day_year) {
  EXPECT_EQ(engineSql("#12/31/2005#"), "'2005-12-31'");
  EXPECT_EQ(engineSql("#1/2/2005#"), "'2005-01-02'");
  EXPECT_EQ(engineSql("#02/29/2004#"), "'2004-02-29'");
  EXPECT_EQ(engineSql("(d_updated >= #12/31/2005#)"), "( d_updated >= '2005-12-31' )");
}

TEST_F(TheDialect, compares_dates_as_days) {
  storeNotice(1, "d_updated", "'2005-12-30'");
  storeNotice(2, "d_updated", "'2005-12-31'");
  storeNotice(3, "d_updated", "'2006-01-01'");
  storeNotice(4, "adm", "'F'");
  const std::string head = "SELECT vornakey FROM fmtv_vorna WHERE ";
  EXPECT_EQ(rowsOf(head + "(d_updated = #12/31/2005#)"), (Rows{"2"}));
  EXPECT_EQ(rowsOf(head + "(d_updated > #12/31/2005#)"), (Rows{"3"}));
  EXPECT_EQ(rowsOf(head + "(d_updated >= #12/31/2005#)"), (Rows{"2", "3"}));
  EXPECT_EQ(rowsOf(head + "(d_updated < #12/31/2005#)"), (Rows{"1"}));
  EXPECT_EQ(rowsOf(head + "(d_updated <= #12/31/2005#)"), (Rows{"1", "2"}));
  EXPECT_EQ(rowsOf(head + "(d_updated > #9/1/2005#) AND (d_updated < #1/1/2006#)"), (Rows{"1", "2"}));
}

TEST_F(TheDialect, refuses_dates_that_are_none) {
  for (const char* date :
       {"#02/31/2005#", "#02/29/2005#", "#13/01/2005#", "#00/01/2005#", "#01/00/2005#", "#31/12/2005#",
        "#1/2/05#", "#1/2#", "#2005#", "##", "#a/b/c#", "#1/2/2005/6#", "#12/31/2005' OR '1#"}) {
    expectRefused("d_updated = " + std::string(date), 1, "Syntax error in date " + std::string(date));
  }
}

TEST_F(TheDialect, leaves_a_mark_without_its_end_to_the_engine) {
  EXPECT_EQ(errorOf([this] { Recordset("SELECT #12/31/2005", connection); }).number, 1);
}

TEST_F(TheDialect, joins_texts_numbers_and_nulls) {
  storeNotice(1, "long_deg, long_min, long_sec, long_ew", "2, 30.5, NULL, 'E'");
  EXPECT_EQ(
      rowsOf("SELECT fmtv_vorna.long_deg & '\260 ' & fmtv_vorna.long_min & '\264 ' & fmtv_vorna.long_sec & "
             "'\264\264 ' & fmtv_vorna.long_ew AS Longitude FROM fmtv_vorna"),
      (Rows{"2\260 30.5\264 \264\264 E"}));
  EXPECT_EQ(rowsOf("SELECT vornakey & '' & adm & NULL FROM fmtv_vorna"), (Rows{"1"}));
  EXPECT_EQ(rowsOf("SELECT 0.1 & #12/31/2005# & vornakey FROM fmtv_vorna"), (Rows{"0.12005-12-311"}));
}

TEST_F(TheDialect, names_a_joined_column_as_the_statement_does) {
  storeNotice(1, "long_deg", "2");
  Recordset rows("SELECT long_deg & '\260' AS Longitude FROM fmtv_vorna", connection);
  EXPECT_EQ(rows.value("longitude"), "2\260");
}

TEST_F(TheDialect, turns_a_right_join_round) {
  EXPECT_EQ(
      engineSql(
          "SELECT * FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey)"),
      "SELECT * FROM ( fmtv_vorna LEFT JOIN fmtv_rmks ON fmtv_rmks.vornakey = fmtv_vorna.vornakey )");
}

TEST_F(TheDialect, keeps_the_second_table_of_a_right_join_whole_and_in_its_order) {
  for (const int key : {3, 1, 2}) storeNotice(key, "adm", "'F'");
  raw.run("INSERT INTO fmtv_rmks VALUES (3, 'three', 0, 'ASSIGNMENT'), (1, 'one', 0, 'ASSIGNMENT')");
  EXPECT_EQ(
      rowsOf("SELECT fmtv_vorna.vornakey, fmtv_rmks.rmk_text FROM (fmtv_rmks right join fmtv_vorna ON "
             "fmtv_rmks.vornakey = fmtv_vorna.vornakey) LEFT JOIN lmz_allotment ON fmtv_vorna.vornakey = "
             "lmz_allotment.vornakey"),
      (Rows{"1|one", "2|NULL", "3|three"}));
}

TEST_F(TheDialect, takes_nested_joins) {
  storeNotice(1, "adm", "'F'");
  storeNotice(2, "adm", "'F'");
  raw.run(
      "INSERT INTO lmz_allotment (vornakey, allotkey) VALUES (2, 20);"
      "INSERT INTO lmz_contour (contourkey, contour_id) VALUES (30, 12);"
      "INSERT INTO lmz_sub_area VALUES (20, 30)");
  EXPECT_EQ(rowsOf("SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, lmz_contour.contour_id AS ContourID"
                   " FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey)"
                   " LEFT JOIN (lmz_allotment LEFT JOIN (lmz_sub_area LEFT JOIN lmz_contour ON"
                   " lmz_sub_area.contourkey = lmz_contour.contourkey) ON lmz_allotment.allotkey = "
                   "lmz_sub_area.allotkey)"
                   " ON fmtv_vorna.vornakey = lmz_allotment.vornakey ORDER by fmtv_vorna.vornakey"),
            (Rows{"1|NULL", "2|12"}));
}

TEST_F(TheDialect, searches_within_texts_without_regard_to_case) {
  storeNotice(1, "site_name", "'Paris #1 100%'");
  storeNotice(2, "site_name", "'LYON'");
  storeNotice(3, "adm", "'F'");
  const std::string head = "SELECT vornakey FROM fmtv_vorna WHERE site_name ";
  EXPECT_EQ(rowsOf(head + "LIKE '%aris%' "), (Rows{"1"}));
  EXPECT_EQ(rowsOf(head + "Like '%PARIS #1%'"), (Rows{"1"}));
  EXPECT_EQ(rowsOf(head + "LIKE '%%'"), (Rows{"1", "2"}));
  EXPECT_EQ(rowsOf(head + "LIKE 'aris%'"), Rows{});
  EXPECT_EQ(rowsOf(head + "is Null"), (Rows{"3"}));
  EXPECT_EQ(rowsOf(head + "Is Not Null"), (Rows{"1", "2"}));
}

TEST_F(TheDialect, compares_texts_without_regard_to_case_and_quoted_numbers_as_numbers) {
  storeNotice(1, "adm, freq_assgn", "'Bel', 474");
  EXPECT_EQ(rowsOf("SELECT vornakey FROM fmtv_vorna WHERE adm = 'bEL'"), (Rows{"1"}));
  EXPECT_EQ(rowsOf("SELECT vornakey FROM fmtv_vorna WHERE (freq_assgn = '474.0')"), (Rows{"1"}));
  EXPECT_EQ(rowsOf("SELECT vornakey FROM fmtv_vorna WHERE (freq_assgn = '473')"), Rows{});
}

TEST_F(TheDialect, refuses_comments) {
  for (const char* sql :
       {"SELECT 1 -- 2", "SELECT 1 /* 2 */", "SELECT 1 /*", "--", "SELECT 'a' --'", "SELECT 1--2"}) {
    expectRefused(sql, 5, "A statement has no comments");
  }
}

TEST_F(TheDialect, leaves_what_stands_in_quotes_untouched) {
  for (const char* text : {"#12/31/2005#", "#", "a & b", "--", "/* */", "RIGHT JOIN", "  two  blanks  ",
                           "tab\tline\r\nend", "%_", "\"", "[x]", ";"}) {
    SCOPED_TRACE(text);
    EXPECT_EQ(engineSql("SELECT '" + std::string(text) + "'"), "SELECT '" + std::string(text) + "'");
    EXPECT_EQ(rowsOf("SELECT '" + std::string(text) + "' AS a"), (Rows{text}));
  }
}

TEST_F(TheDialect, keeps_a_doubled_quote_as_one_quote_of_the_text) {
  EXPECT_EQ(rowsOf("SELECT 'O''Neill'"), (Rows{"O'Neill"}));
  EXPECT_EQ(rowsOf("SELECT 'a''--''b'"), (Rows{"a'--'b"}));
  EXPECT_EQ(rowsOf("SELECT ''''"), (Rows{"'"}));
  EXPECT_EQ(rowsOf("SELECT ''"), (Rows{""}));
}

TEST_F(TheDialect, leaves_operators_and_numbers_whole) {
  EXPECT_EQ(rowsOf("SELECT 1e-3, 1.5E+2, 2>=1, 1<=0, 1<>2, 7-5, -3"), (Rows{"0.001|150|1|0|1|2|-3"}));
}

TEST_F(TheDialect, lets_a_text_between_quotes_only_without_an_apostrophe) {
  for (const char* good : {"", "F", "a \"b\" #c# & -- d", "\351\264"}) EXPECT_EQ(joinedText(good), good);
  for (const char* bad : {"'", "O'Neill", "''", "x' OR '1' = '1"}) {
    const RunTimeError error = errorOf([bad] { joinedText(bad); });
    EXPECT_EQ(error.number, 1);
    EXPECT_EQ(error.text, std::string("Syntax error: an apostrophe in ") + bad);
  }
}

TEST_F(TheDialect, lets_only_a_number_stand_as_a_number) {
  for (const char* good : {"0", "474", "-0.5", "+7", "1e3", " 12 ", ".5", "5."})
    EXPECT_EQ(joinedNumber(good), good);
  for (const char* bad :
       {"", " ", "x", "1,5", "1 OR 1", "0x10", "1;2", "--1", "1e", "vornakey", "NULL", "inf"}) {
    const RunTimeError error = errorOf([bad] { joinedNumber(bad); });
    EXPECT_EQ(error.number, 1) << bad;
    EXPECT_EQ(error.text, std::string("Syntax error: no number in the statement: ") + bad);
  }
}

TEST_F(TheDialect, takes_every_number_that_may_stand_as_one) {
  for (const char* number : {"0", "474", "-0.5", "+7", "1e3", "1E+3", "1e-3", " 12 ", ".5", "5."}) {
    SCOPED_TRACE(number);
    EXPECT_EQ(rowsOf("SELECT 1 WHERE 3 > " + std::string(joinedNumber(number)) + " OR 3 <= " + number),
              (Rows{"1"}));
  }
}

}  // namespace
}  // namespace zamo
