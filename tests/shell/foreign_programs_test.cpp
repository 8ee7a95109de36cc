// A load where another program has the database open: the built companion and the engine's own shell.
#include <gmock/gmock.h>

#include <filesystem>
#include <map>

#include "database/raw_database.h"
#include "support/companion.h"
#include "support/other_program.h"

namespace zamo::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

constexpr std::string_view kTwoNotices =
    "<HEAD>\nt_adm = F\n</HEAD>\n<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A1\n</NOTICE>\n"
    "<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A2\n</NOTICE>\n"
    "<TAIL>\nt_num_notices = 2\n</TAIL>\n";

// What the other program does with the database, in statements.
struct ForeignState {
  const char* name;
  std::vector<std::string> before;  // it has the database
  // What stands in the database when it has gone.
  const char* siteName;
};

const ForeignState kStates[] = {
    {"an_idle_connection", {}, "NULL"},
    {"a_transaction_that_reads", {"BEGIN; SELECT count(*) FROM fmtv_vorna;"}, "NULL"},
    {"a_transaction_that_will_write", {"BEGIN IMMEDIATE; UPDATE fmtv_vorna SET site_name = 'LOST';"}, "NULL"},
    {"an_exclusive_transaction", {"BEGIN EXCLUSIVE; UPDATE fmtv_vorna SET site_name = 'LOST';"}, "NULL"},
    {"an_exclusive_journal",
     {"PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = WAL;",
      "UPDATE fmtv_vorna SET site_name = 'KEPT';"},
     "KEPT"},
    {"a_journal", {"PRAGMA journal_mode = WAL;", "UPDATE fmtv_vorna SET site_name = 'KEPT';"}, "KEPT"},
};

std::ostream& operator<<(std::ostream& out, const ForeignState& state) {
  return out << state.name;
}

class ALoadOverADatabase : public testing::TestWithParam<ForeignState> {
 protected:
  ALoadOverADatabase() {
    folder.write("n.txt", kTwoNotices);
    EXPECT_EQ(load().status, 0);
  }

  CompanionRun load() const { return runCompanion(folder, "load --level 1 n.txt"); }

  // The engine's shell, as far as its state is.
  void take(OtherProgram& shell) const {
    for (const std::string& statement : GetParam().before) shell.say(statement);
    // A dot command that answers, when all before it is done.
    shell.say(".print ready");
    while (shell.hear() != "ready") continue;
  }

  std::map<std::string, std::string> files() const {
    std::map<std::string, std::string> all;
    for (const auto& entry : fs::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      // The companion's own output. The index of a journal is for those who have it open.
      if (!name.ends_with(".log") && !name.ends_with("-shm")) all[name] = readFile(entry.path().string());
    }
    return all;
  }

  // The one database beside n.mdb.
  std::string keptDatabase() const {
    std::string kept;
    for (const auto& [name, content] : files()) {
      if (!name.starts_with("n ") || !name.ends_with(".mdb")) continue;
      EXPECT_EQ(kept, "");
      kept = folder.file(name);
    }
    return kept;
  }

  TempFolder folder;
};

TEST_P(ALoadOverADatabase, that_another_program_has_open_is_refused_and_touches_nothing) {
  OtherProgram shell({"sqlite3", folder.file("n.mdb")});
  take(shell);
  const auto before = files();
  const CompanionRun refused = load();
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.output, "n.txt\tload\n");
  EXPECT_THAT(refused.messages,
              HasSubstr("Error 70 : The database is open elsewhere: n.mdb (sqlite3, process " +
                        std::to_string(shell.process()) + ", user "));
  EXPECT_EQ(files(), before);

  // Whatever it did is there when it has gone, and the next load keeps it.
  shell.leave();
  EXPECT_EQ(RawDatabase(folder.file("n.mdb")).value("SELECT site_name FROM fmtv_vorna"), GetParam().siteName);
  EXPECT_EQ(load().status, 0);
  EXPECT_EQ(
      RawDatabase(folder.file("n.mdb")).value("SELECT count(*) FROM fmtv_vorna WHERE site_name IS NULL"),
      "2");
}

TEST_P(ALoadOverADatabase, whose_other_program_was_killed_is_not_refused) {
  OtherProgram shell({"sqlite3", folder.file("n.mdb")});
  take(shell);
  shell.say("UPDATE proc_ntc_hist SET src_update = 'anna';");
  shell.say(".print ready");
  while (shell.hear() != "ready") continue;
  shell.kill();
  EXPECT_EQ(load().status, 0);
  RawDatabase loaded(folder.file("n.mdb"));
  EXPECT_EQ(loaded.value("SELECT count(*) FROM fmtv_vorna WHERE site_name IS NULL"), "2");
  EXPECT_EQ(loaded.value("PRAGMA integrity_check"), "ok");
  for (const auto& [name, content] : files())
    EXPECT_THAT(name, testing::Not(testing::ContainsRegex("-wal|-journal")));
  // What it had committed is kept, and what it hadn't is not.
  const bool committed =
      !GetParam().before.empty() && GetParam().before[0].starts_with("BEGIN") ? false : true;
  const std::string kept = keptDatabase();
  EXPECT_EQ(kept.empty(), !committed);
  if (!committed) return;
  EXPECT_EQ(RawDatabase(kept).value("SELECT src_update FROM proc_ntc_hist"), "anna");
  EXPECT_EQ(RawDatabase(kept).value("SELECT site_name FROM fmtv_vorna"), GetParam().siteName);
}

INSTANTIATE_TEST_SUITE_P(ForeignPrograms, ALoadOverADatabase, testing::ValuesIn(kStates),
                         [](const testing::TestParamInfo<ForeignState>& state) { return state.param.name; });

}  // namespace
}  // namespace zamo::test
