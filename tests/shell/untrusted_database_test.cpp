// Databases from strangers, in the built companion.
#include <filesystem>

#include "database/raw_database.h"
#include "support/companion.h"

namespace zamo::test {
namespace {

class AStrangersDatabase : public testing::Test {
 protected:
  AStrangersDatabase() {
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path);
    change(
        "INSERT INTO fmtv_vorna (vornakey, adm, notice_typ, adm_ref_id) VALUES (1, 'F', 'TB5', 'A1');"
        "INSERT INTO fmtv_rmks VALUES (1, 'seen', 0, 'ASSIGNMENT')");
  }

  void change(const std::string& sql) const { RawDatabase(path).run(sql); }

  void expectRefused(const std::string& messages) const {
    const CompanionRun shown = runCompanion(folder, "show strange.mdb 1");
    EXPECT_EQ(shown.status, 2);
    EXPECT_EQ(shown.output, "");
    EXPECT_EQ(shown.messages, messages);
    const CompanionRun exported = runCompanion(folder, "export strange.mdb");
    EXPECT_EQ(exported.status, 2);
    EXPECT_EQ(exported.output, "strange.mdb\texport\n");
    EXPECT_EQ(exported.messages, messages);
  }

  TempFolder folder;
  std::string path = folder.file("strange.mdb");
};

TEST_F(AStrangersDatabase, with_a_view_that_recurses_for_ever_is_told_once) {
  change(
      "DROP TABLE fmtv_rmks; CREATE VIEW fmtv_rmks AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + "
      "1 "
      "FROM n) SELECT i AS vornakey, 'x' AS rmk_text, 0 AS rmk_seq_no, 'A' AS rmk_type FROM n WHERE i < 0");
  expectRefused("OpenDB: Erreur 26:not a working database: fmtv_rmks\n");
}

TEST_F(AStrangersDatabase, with_a_virtual_table_is_told_once) {
  change("DROP TABLE fmtv_rmks; CREATE VIRTUAL TABLE fmtv_rmks USING fts5(vornakey, rmk_text, rmk_type)");
  expectRefused("OpenDB: Erreur 26:not a working database: fmtv_rmks\n");
}

TEST_F(AStrangersDatabase, with_a_generated_column_is_told_once) {
  change("ALTER TABLE fmtv_vorna ADD COLUMN computed TEXT AS (hex(zeroblob(100000000)))");
  expectRefused("OpenDB: Erreur 26:not a working database: fmtv_vorna\n");
}

TEST_F(AStrangersDatabase, with_a_schema_without_end_is_told_once) {
  RawDatabase raw(path);
  raw.run(
      "PRAGMA synchronous = OFF; PRAGMA writable_schema = ON;"
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
      "INSERT INTO sqlite_schema SELECT 'table', 't' || i, 't' || i, 2, 'CREATE TABLE t' || i || ' (a)' FROM "
      "n");
  expectRefused("OpenDB: Erreur 26:not a working database\n");
}

TEST_F(AStrangersDatabase, with_triggers_is_shown_and_exported_as_it_stands) {
  change("CREATE TRIGGER eats AFTER INSERT ON fmtv_vorna BEGIN DELETE FROM fmtv_vorna; END");
  EXPECT_EQ(runCompanion(folder, "show strange.mdb 1").status, 0);
  EXPECT_EQ(runCompanion(folder, "export strange.mdb").status, 0);
}

TEST_F(AStrangersDatabase, as_the_template_eats_no_notice) {
  // A copy of the program beside a template of somebody's making.
  std::filesystem::copy_file(ZAMO_BIN "/zamo-kv19-batch", folder.file("program"));
  std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", folder.file("MasterHDLK_WQN.mdb"));
  RawDatabase(folder.file("MasterHDLK_WQN.mdb"))
      .run("CREATE TRIGGER eats AFTER INSERT ON proc_ntc_hist BEGIN DELETE FROM fmtv_vorna; END");
  folder.write("good.txt",
               "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\n</NOTICE>\n<TAIL>\n"
               "t_num_notices = 1\n</TAIL>\n");
  EXPECT_EQ(std::system(
                ("cd '" + folder.path() + "' && ./program load --level 1 good.txt >/dev/null 2>&1").c_str()),
            0);
  EXPECT_EQ(RawDatabase(folder.file("good.mdb")).value("SELECT count(*) FROM fmtv_vorna"), "1");
}

}  // namespace
}  // namespace zamo::test
