// Database files made to harm whoever opens them.
#include "database/untrusted_file.h"

#include <chrono>

#include "database/db_connection.h"
#include "database/export.h"
#include "database/read_notice.h"
#include "database/row_cursor.h"
#include "database/update_notice.h"
#include "database/working_database.h"
#include "database/write_notice.h"
#include "support/valid_notices.h"

namespace zamo {
namespace {

using test::RawDatabase;
using test::Script;

// Far beyond what is needed, on a machine that is busy, and far below for ever.
constexpr std::chrono::seconds kPatience(60);

class AnUntrustedFile : public testing::Test {
 protected:
  AnUntrustedFile() { std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path); }

  void change(const std::string& sql) { RawDatabase(path).run(sql); }

  void expectRefused(const std::string& text) {
    SCOPED_TRACE(text);
    const auto start = std::chrono::steady_clock::now();
    DbConnection opened;
    EXPECT_FALSE(OpenDB(host, path, opened));
    EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, "OpenDB");
    script.boxes.clear();
  }

  // The table is made anew as `sql`, and the file is refused.
  void expectTableRefused(const std::string& sql, const std::string& table = "fmtv_rmks") {
    SCOPED_TRACE(sql);
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path,
                               std::filesystem::copy_options::overwrite_existing);
    change("DROP TABLE " + table + "; " + sql);
    expectRefused("Erreur 26:not a working database: " + table);
  }

  void expectOpens() {
    DbConnection opened;
    EXPECT_TRUE(OpenDB(host, path, opened));
    EXPECT_TRUE(script.boxes.empty());
  }

  test::TempFolder folder;
  std::string path = folder.file("hostile.mdb");
  Script script;
  Host host = makeScriptedHost(script);
};

TEST_F(AnUntrustedFile, with_a_view_in_place_of_a_table_is_refused_before_the_view_is_looked_at) {
  expectTableRefused(
      "CREATE VIEW fmtv_rmks AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
      "SELECT i AS vornakey, 'x' AS rmk_text, 0 AS rmk_seq_no, 'ASSIGNMENT' AS rmk_type FROM n WHERE i < 0");
}

TEST_F(AnUntrustedFile, with_a_virtual_table_in_place_of_a_table_is_refused) {
  expectTableRefused("CREATE VIRTUAL TABLE fmtv_rmks USING fts5(vornakey, rmk_text, rmk_seq_no, rmk_type)");
  expectTableRefused("CREATE VIRTUAL TABLE op_agcy USING rtree(id, low, high)", "op_agcy");
}

TEST_F(AnUntrustedFile, that_computes_a_column_is_refused) {
  expectTableRefused(
      "CREATE TABLE fmtv_rmks (vornakey INTEGER, rmk_seq_no INTEGER, rmk_type TEXT,"
      " rmk_text TEXT GENERATED ALWAYS AS (vornakey) VIRTUAL)");
  expectTableRefused("CREATE TABLE fmtv_rmks (vornakey INTEGER, rmk_text TEXT AS (vornakey + 1) STORED)");
}

TEST_F(AnUntrustedFile, that_calls_functions_which_the_template_does_not_is_refused) {
  for (const char* check :
       {"instr(rmk_text, 'x') = 0", "\"instr\"(rmk_text, 'x') = 0", "[instr] (rmk_text, 'x') = 0",
        "`instr`/* ( */(rmk_text, 'x') = 0", "rmk_text NOT LIKE '%a%a%a%a%a%a%b'", "rmk_text GLOB '*a*b'",
        "length(rmk_text) < 80 AND printf('%.*c', 1000000, 'x') <> rmk_text"}) {
    expectTableRefused("CREATE TABLE fmtv_rmks (vornakey INTEGER, rmk_text TEXT CHECK (" +
                       std::string(check) + "))");
  }
  expectTableRefused(
      "CREATE TABLE fmtv_rmks (vornakey INTEGER, rmk_text TEXT DEFAULT (hex(zeroblob(10000))))");
  for (const char* index :
       {"(hex(rmk_text))", "(vornakey, hex(rmk_text))", "(vornakey) WHERE rmk_text LIKE '%a%a%a%b'",
        "(vornakey) WHERE hex(rmk_text) = 'A'"}) {
    expectTableRefused(
        "CREATE TABLE fmtv_rmks (vornakey INTEGER, rmk_text TEXT); CREATE INDEX i ON fmtv_rmks " +
        std::string(index));
  }
}

TEST_F(AnUntrustedFile, with_plain_tables_of_its_own_is_opened) {
  change(
      "DROP TABLE fmtv_rmks; CREATE TABLE \"fmtv_rmks\" (\n"
      "  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna (vornakey) ON DELETE CASCADE, -- instr(, a view AS "
      "(\n"
      "  rmk_text VARCHAR (80) CHECK (length(rmk_text) <= 80 AND rmk_text <> 'glob like(as''('),\n"
      "  \"as\" TEXT /* hex( */, rmk_seq_no INTEGER DEFAULT (0), rmk_type TEXT CHECK (rmk_type IN ('A', "
      "'B')),\n"
      "  UNIQUE (vornakey, rmk_seq_no));\n"
      "CREATE UNIQUE INDEX \"i\" ON \"fmtv_rmks\" (vornakey, abs(rmk_seq_no)) WHERE (rmk_text IS NOT NULL)");
  expectOpens();
}

TEST_F(AnUntrustedFile, may_have_tables_views_and_triggers_that_nobody_asks_for) {
  change(
      "CREATE VIEW other AS SELECT hex(rmk_text) FROM fmtv_rmks;"
      "CREATE VIRTUAL TABLE found USING fts5(text);"
      "CREATE TABLE computed (a INTEGER, b AS (a * 2));"
      "CREATE TRIGGER eats BEFORE DELETE ON fmtv_rmks BEGIN SELECT hex(1); END");
  expectOpens();
}

TEST_F(AnUntrustedFile, of_very_many_tables_is_refused_in_time) {
  {
    RawDatabase raw(path);
    raw.run("PRAGMA synchronous = OFF");
    sqlite3_db_config(raw.handle(), SQLITE_DBCONFIG_DEFENSIVE, 0, nullptr);
    raw.run(
        "PRAGMA writable_schema = ON;"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 60000) "
        "INSERT INTO sqlite_schema SELECT 'table', 't' || i, 't' || i, 2, 'CREATE TABLE t' || i || ' (a)' "
        "FROM n");
  }
  expectRefused("Erreur 26:not a working database");
}

TEST_F(AnUntrustedFile, with_a_statement_without_measure_in_its_schema_is_refused) {
  std::string columns;
  for (int i = 0; i < 1000; ++i) columns += ", c" + std::to_string(i);
  change("DROP TABLE fmtv_rmks; CREATE TABLE fmtv_rmks (vornakey" + columns + ")");
  DbConnection opened;
  EXPECT_FALSE(OpenDB(host, path, opened));
  EXPECT_EQ(script.boxes.size(), 1U);
}

TEST_F(AnUntrustedFile, has_triggers_that_eat_nothing) {
  change(
      "CREATE TRIGGER eats AFTER INSERT ON fmtv_vorna BEGIN DELETE FROM fmtv_vorna; END;"
      "CREATE TRIGGER skips BEFORE INSERT ON proc_ntc_hist BEGIN SELECT RAISE(IGNORE); END");
  DbConnection opened;
  ASSERT_TRUE(OpenDB(host, path, opened));
  NtcRec ntc = makeTb5();
  ContourOutcome outcome;
  EXPECT_TRUE(writeNtcToDB(host, ntc, *opened, outcome, false));
  EXPECT_TRUE(script.boxes.empty());
  closeDB(opened);
  EXPECT_EQ(RawDatabase(path).value("SELECT count(*) FROM fmtv_vorna, proc_ntc_hist"), "1");
}

// Walks without a row, as long as the file makes it: here a sort of a table that never ends.
class AnEndlessTable : public AnUntrustedFile {
 protected:
  // A tree of pages each of which has the one below it as every one of its children, so that a few pages are
  // billions of rows.
  void makeEndless(const std::string& table) {
    constexpr int kPageSize = 4096;
    constexpr int kLevels = 6;
    int root = 0;
    int first = 0;
    {
      RawDatabase raw(path);
      raw.run("DELETE FROM " + table + "; INSERT INTO " + table + " (vornakey) VALUES (1)");
      root = std::stoi(raw.value("SELECT rootpage FROM sqlite_schema WHERE name = '" + table + "'"));
      first = std::stoi(raw.value("PRAGMA page_count")) + 1;
    }
    std::string file = test::readFile(path);
    const auto at = [&](int page) { return static_cast<std::size_t>(page - 1) * kPageSize; };
    const std::string leaf = file.substr(at(root), kPageSize);
    for (int level = 0; level < kLevels; ++level) {
      const int page = level == 0 ? root : first + level - 1;
      file.resize(std::max(file.size(), at(page + 1)));
      file.replace(at(page), kPageSize, interiorPage(first + level));
    }
    file += leaf;
    const int pages = first + kLevels - 1;
    for (int i = 0; i < 4; ++i)
      file[28 + static_cast<std::size_t>(i)] = static_cast<char>(pages >> (24 - 8 * i));
    folder.write("hostile.mdb", file);
  }

 private:
  static std::string interiorPage(int child) {
    constexpr std::size_t kCells = 200;
    constexpr std::size_t kCellSize = 5;
    std::string page(4096, '\0');
    const auto put = [&page](std::size_t place, int bytes, unsigned value) {
      for (int i = 0; i < bytes; ++i)
        page[place + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * (bytes - 1 - i)));
    };
    const std::size_t cells = page.size() - kCells * kCellSize;
    put(0, 1, 5);
    put(3, 2, kCells);
    put(5, 2, static_cast<unsigned>(cells));
    put(8, 4, static_cast<unsigned>(child));
    for (std::size_t i = 0; i < kCells; ++i) {
      put(12 + 2 * i, 2, static_cast<unsigned>(cells + kCellSize * i));
      put(cells + kCellSize * i, 4, static_cast<unsigned>(child));
      put(cells + kCellSize * i + 4, 1, 1);
    }
    return page;
  }
};

TEST_F(AnEndlessTable, of_notices_is_told_once_and_not_read_for_ever) {
  makeEndless("fmtv_vorna");
  DbConnection opened;
  ASSERT_TRUE(OpenDB(host, path, opened));
  const auto start = std::chrono::steady_clock::now();
  ExportRun run{"version"};
  script.answers = {true};
  EXPECT_FALSE(exportDBToTxt(host, folder.file("out.txt"), *opened, run, "SELECT vornakey FROM fmtv_vorna",
                             "SELECT contourkey FROM lmz_contour", ""));
  EXPECT_EQ(run.end, ExportEnd::failed);
  EXPECT_LT(std::chrono::steady_clock::now() - start, kPatience);
  ASSERT_GE(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 26:not a working database");
  for (std::size_t i = 1; i < script.boxes.size(); ++i)
    EXPECT_EQ(script.boxes[i].text.find("Erreur"), std::string::npos);
}

TEST_F(AnEndlessTable, that_is_walked_without_a_row_is_told_once_and_ends_the_export) {
  change(
      "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ) VALUES (1, 'F', 'TB5'), (2, 'F', 'TB5'), (3, 'F', "
      "'TB5'); DROP INDEX fmtv_rmks_vornakey");
  makeEndless("fmtv_coord");
  change("DROP INDEX fmtv_coord_vornakey");
  DbConnection opened;
  ASSERT_TRUE(OpenDB(host, path, opened));
  script.answers = {true};
  ExportRun run{"version"};
  EXPECT_FALSE(exportDBToTxt(host, folder.file("out.txt"), *opened, run, "SELECT vornakey FROM fmtv_vorna",
                             "SELECT contourkey FROM lmz_contour", ""));
  EXPECT_EQ(run.end, ExportEnd::failed);
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].text, "Erreur 26:not a working database");
}

}  // namespace
}  // namespace zamo
