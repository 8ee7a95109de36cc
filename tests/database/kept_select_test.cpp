// SELECTs that the connection keeps for the next key, and reading one state of the database.
#include <gmock/gmock.h>

#include "database/recordset.h"
#include "database/working_database.h"

namespace zamo {
namespace {

using testing::ElementsAre;

class AKeptSelect : public test::WorkingDatabase {
 protected:
  AKeptSelect() {
    raw.run("INSERT INTO fmtv_vorna (vornakey, site_name) VALUES (1, 'one'), (2, 'two'), (-3, NULL)");
  }

  Recordset notice(std::int32_t key) {
    return Recordset("SELECT * FROM fmtv_vorna WHERE vornakey = ?", key, connection);
  }

  std::string siteOf(std::int32_t key) {
    const Recordset rows = notice(key);
    return rows.atEnd() ? "no row" : rows.value("site_name").value_or("Null");
  }

  static int errorNumber(const std::function<void()>& work) {
    try {
      work();
    } catch (const RunTimeError& error) {
      return error.number;
    }
    return 0;
  }
};

TEST_F(AKeptSelect, gives_the_rows_of_each_key) {
  EXPECT_EQ(siteOf(1), "one");
  EXPECT_EQ(siteOf(2), "two");
  EXPECT_EQ(siteOf(-3), "Null");
  EXPECT_EQ(siteOf(4), "no row");
  EXPECT_EQ(siteOf(1), "one");
}

TEST_F(AKeptSelect, has_its_rows_to_itself) {
  const Recordset first = notice(1);
  const Recordset second = notice(2);
  EXPECT_EQ(first.value("site_name"), "one");
  EXPECT_EQ(second.value("SITE_NAME"), "two");
  EXPECT_EQ(first.RecordCount(), 1);
}

TEST_F(AKeptSelect, sees_what_was_changed_since) {
  EXPECT_EQ(siteOf(1), "one");
  raw.run("UPDATE fmtv_vorna SET site_name = 'uno' WHERE vornakey = 1");
  EXPECT_EQ(siteOf(1), "uno");
}

TEST_F(AKeptSelect, of_whole_rows_can_be_changed) {
  Recordset one = notice(1);
  one.Collect("site_name", "uno");
  one.Update();
  Recordset two = notice(2);
  two.Delete();
  EXPECT_EQ(raw.rows("SELECT vornakey, site_name FROM fmtv_vorna"),
            (test::Rows{{"-3", "NULL"}, {"1", "uno"}}));
}

TEST_F(AKeptSelect, gives_the_values_of_many_rows_in_their_order) {
  raw.run(
      "INSERT INTO fmtv_ant_diag (vornakey, polar, azm, attn) VALUES (1, 'H', 10, 3.5), (2, 'H', 0, 1), (1, "
      "'V', 20, NULL)");
  Recordset rows("SELECT azm, attn FROM fmtv_ant_diag WHERE vornakey = ?", 1, connection);
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows.value("azm"), "10");
  EXPECT_EQ(rows.value(1), "3.5");
  rows.MoveNext();
  EXPECT_EQ(rows.value("azm"), "20");
  EXPECT_EQ(rows.value(1), std::nullopt);
  EXPECT_EQ(errorNumber([&] { rows.value(2); }), 9);
  EXPECT_EQ(errorNumber([&] { rows.value("polar"); }), 9);
}

TEST_F(AKeptSelect, that_is_none_is_refused_each_time) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(errorNumber([&] { Recordset("DELETE FROM fmtv_vorna WHERE vornakey = ?", 1, connection); }), 5);
    EXPECT_EQ(errorNumber([&] { Recordset("SELECT missing WHERE 1 = ?", 1, connection); }), 1);
  }
  EXPECT_EQ(raw.value("SELECT count(*) FROM fmtv_vorna"), "3");
}

TEST_F(AKeptSelect, keeps_no_file_open_behind_its_connection) {
  const auto timesOpen = [this] {
    std::ptrdiff_t count = 0;
    std::error_code gone;  // the one that looks is among them
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
      if (std::filesystem::read_symlink(entry.path(), gone) == path) ++count;
    }
    return count;
  };
  const std::string copy = copyTemplate(folder, "copy.mdb");
  path = copy;
  auto other = std::make_unique<Connection>(copy);
  const Recordset rows("SELECT * FROM addr_code WHERE 1 = ?", 1, *other);
  EXPECT_EQ(timesOpen(), 2);  // by the engine, and by the hold on it
  other.reset();
  EXPECT_EQ(timesOpen(), 0);
  EXPECT_FALSE(rows.atEnd());
}

TEST_F(AKeptSelect, leaves_nothing_of_the_database_locked) {
  EXPECT_EQ(siteOf(1), "one");
  raw.run("UPDATE fmtv_vorna SET site_name = 'uno'");
  connection.BeginTrans();
  connection.CommitTrans();
}

TEST_F(AKeptSelect, of_one_state_sees_no_change_of_others) {
  {
    const ReadingOneState state(connection);
    EXPECT_EQ(siteOf(1), "one");
    EXPECT_EQ(raw.codeOf("UPDATE fmtv_vorna SET site_name = 'uno'"), SQLITE_BUSY);
    EXPECT_EQ(siteOf(2), "two");
  }
  raw.run("UPDATE fmtv_vorna SET site_name = 'uno'");
  EXPECT_EQ(siteOf(1), "uno");
}

TEST_F(AKeptSelect, of_one_state_ends_with_it_even_after_an_error) {
  {
    const ReadingOneState state(connection);
    EXPECT_EQ(errorNumber([&] { Recordset("SELECT missing WHERE 1 = ?", 1, connection); }), 1);
  }
  connection.BeginTrans();
  EXPECT_EQ(errorNumber([&] { ReadingOneState{connection}; }), 1);
  connection.RollbackTrans();
}

}  // namespace
}  // namespace zamo
