// A database that takes the place of another one, and what is kept of that.
#include "database/new_database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "database/corrections.h"
#include "database/delete_notice.h"
#include "database/kept_copies.h"
#include "database/raw_database.h"
#include "database/update_notice.h"
#include "database/write_notice.h"
#include "support/other_program.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"
#include "support/valid_notices.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;
using test::OtherProgram;
using test::RawDatabase;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class ANewDatabase : public testing::Test {
 protected:
  // Loads one notice and puts the database in its place.
  bool load() {
    const MasterCopy copy = copyMasterDB(host, place);
    if (copy.database == nullptr) return false;
    {
      DbConnection filling;
      EXPECT_TRUE(OpenDB(host, copy.database->path(), filling, Purpose::fill));
      NtcRec ntc = makeGt1();
      ntc.d_updated = "2026-03-07";
      ntc.src_update = "tester";
      ContourOutcome outcome;
      EXPECT_TRUE(writeNtcToDB(host, ntc, *filling, outcome, false));
      NtcRec contour = makeGa1();
      EXPECT_TRUE(writeNtcToDB(host, contour, *filling, outcome, false));
      markAsLoaded(*filling);
    }
    return putInPlace(host, *copy.database);
  }

  void change(const std::string& sql) { RawDatabase(place).run(sql); }

  // Does something with the open database, as a window does.
  template <typename Work>
  void workOn(Work work) {
    DbConnection opened;
    ASSERT_TRUE(OpenDB(host, place, opened));
    work(*opened);
  }

  void expectKeptBy(const std::string& why) {
    SCOPED_TRACE(why);
    EXPECT_TRUE(load());
    EXPECT_EQ(script.note,
              "The database that was there is kept as " + folder.file("n 2026-03-07 090504.mdb"));
    EXPECT_THAT(folder.names(), ElementsAre("n 2026-03-07 090504.mdb", "n.mdb"));
    EXPECT_THAT(script.boxes, IsEmpty());
    fs::remove(folder.file("n 2026-03-07 090504.mdb"));
    script.note.clear();
  }

  void expectNotKept() {
    EXPECT_TRUE(load());
    EXPECT_EQ(script.note, "");
    EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
    EXPECT_THAT(script.boxes, IsEmpty());
  }

  test::TempFolder folder;
  test::Script script;
  Host host = makeScriptedHost(script);
  std::string place = folder.file("n.mdb");
};

TEST_F(ANewDatabase, is_not_there_before_it_takes_its_place) {
  const MasterCopy copy = copyMasterDB(host, place);
  ASSERT_NE(copy.database, nullptr);
  EXPECT_FALSE(fs::exists(place));
  EXPECT_FALSE(copy.database->replacesAnother());
  EXPECT_TRUE(putInPlace(host, *copy.database));
  EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
}

TEST_F(ANewDatabase, that_never_takes_its_place_leaves_everything_as_it_was) {
  ASSERT_TRUE(load());
  const std::string before = test::readFile(place);
  {
    const MasterCopy copy = copyMasterDB(host, place);
    ASSERT_NE(copy.database, nullptr);
    EXPECT_TRUE(copy.database->replacesAnother());
  }
  EXPECT_EQ(test::readFile(place), before);
  EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
}

TEST_F(ANewDatabase, replaces_one_that_was_only_loaded_and_looked_at) {
  ASSERT_TRUE(load());
  workOn([](Connection& connection) { connection.openTable("fmtv_vorna"); });
  expectNotKept();
}

TEST_F(ANewDatabase, replaces_one_whose_change_was_taken_back) {
  ASSERT_TRUE(load());
  workOn([](Connection& connection) {
    connection.BeginTrans();
    connection.RollbackTrans();
  });
  expectNotKept();
}

TEST_F(ANewDatabase, keeps_one_that_was_corrected) {
  ASSERT_TRUE(load());
  // By the same user and on the day of the load, so that nothing in the row tells it.
  workOn([this](Connection& connection) {
    NtcRec ntc = makeGt1();
    ntc.t_site_name = "NEVERS";
    ntc.d_updated = "2026-03-07";
    ntc.src_update = "tester";
    EXPECT_TRUE(updateNtcInDB(host, ntc, 83700001, connection));
  });
  EXPECT_TRUE(load());
  EXPECT_EQ(RawDatabase(folder.file("n 2026-03-07 090504.mdb")).value("SELECT site_name FROM fmtv_vorna"),
            "NEVERS");
  EXPECT_EQ(RawDatabase(place).value("SELECT site_name FROM fmtv_vorna"), "BOURGES");
}

TEST_F(ANewDatabase, keeps_one_in_which_a_notice_was_added_or_deleted_or_a_contour_corrected) {
  ASSERT_TRUE(load());
  workOn([this](Connection& connection) {
    NtcRec ntc = makeGs1();
    ContourOutcome outcome;
    EXPECT_TRUE(writeNtcToDB(host, ntc, connection, outcome, false));
  });
  expectKeptBy("an added notice");
  workOn([this](Connection& connection) { deleteNtcFromDB(host, 83700001, connection); });
  expectKeptBy("a deleted notice");
  workOn([this](Connection& connection) { EXPECT_TRUE(updateNtcInDB(host, makeGa1(), 1, connection)); });
  expectKeptBy("a corrected contour");
}

TEST_F(ANewDatabase, keeps_one_whose_history_another_program_wrote) {
  ASSERT_TRUE(load());
  change("UPDATE proc_ntc_hist SET d_updated = '2026-03-08'");
  expectKeptBy("another date");
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  expectKeptBy("another user");
}

TEST_F(ANewDatabase, keeps_one_of_which_it_cannot_tell) {
  fs::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", place);
  change("INSERT INTO fmtv_vorna (vornakey) VALUES (1)");
  expectKeptBy("no load has marked it");
  RawDatabase(place).run("PRAGMA user_version = 0; DROP TABLE fmtv_vorna");
  expectKeptBy("it can't be read as a whole");
  folder.write("n.mdb", std::string(5000, 'x'));
  expectKeptBy("it is no database of this program");
  folder.write("n.mdb", "");
  expectNotKept();
}

TEST_F(ANewDatabase, keeps_what_a_killed_window_left_in_the_journal) {
  ASSERT_TRUE(load());
  {
    OtherProgram window({"sqlite3", place});
    window.say("PRAGMA journal_mode = WAL; UPDATE fmtv_vorna SET site_name = 'NEVERS';");
    window.say("UPDATE proc_ntc_hist SET src_update = 'anna';");
    window.say(".print ready");
    while (window.hear() != "ready") continue;
    window.kill();
  }
  ASSERT_TRUE(fs::exists(place + "-wal"));
  EXPECT_TRUE(load());
  EXPECT_THAT(folder.names(), ElementsAre("n 2026-03-07 090504.mdb", "n.mdb"));
  EXPECT_EQ(RawDatabase(folder.file("n 2026-03-07 090504.mdb")).value("SELECT site_name FROM fmtv_vorna"),
            "NEVERS");
  EXPECT_EQ(RawDatabase(place).value("SELECT site_name FROM fmtv_vorna"), "BOURGES");
}

TEST_F(ANewDatabase, gives_each_copy_a_second_of_its_own) {
  script.now.date = Date{std::chrono::year(2026), std::chrono::month(12), std::chrono::day(31)};
  script.now.hour = 23;
  script.now.minute = 59;
  script.now.second = 58;
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(load());
    change("UPDATE proc_ntc_hist SET src_update = 'user " + std::to_string(i) + "'");
  }
  ASSERT_TRUE(load());
  EXPECT_THAT(folder.names(), ElementsAre("n 2026-12-31 235958.mdb", "n 2026-12-31 235959.mdb",
                                          "n 2027-01-01 000000.mdb", "n.mdb"));
  EXPECT_EQ(RawDatabase(folder.file("n 2026-12-31 235959.mdb")).value("SELECT src_update FROM proc_ntc_hist"),
            "user 1");
}

TEST_F(ANewDatabase, leaves_the_ten_newest_copies_and_what_only_looks_like_one) {
  std::vector<std::string> others = {"n 2026-01-01 0000000.mdb", "n 2026-01-01 00000.mdb",
                                     "n 2026-01-01T000000.mdb",  "m 2026-01-01 000000.mdb",
                                     "n 2026-01-01 000000.txt",  "nn 2026-01-01 000000.mdb",
                                     "n 2026-01-01 00000x.mdb",  "N 2026-01-01 000000.mdb"};
  for (const std::string& name : others) folder.write(name, "not touched");
  fs::create_directory(folder.file("n 2026-01-01 000000.mdb"));
  for (int day = 10; day < 22; ++day)
    folder.write("n 2026-02-" + std::to_string(day) + " 120000.mdb", "copy");
  ASSERT_TRUE(load());
  EXPECT_TRUE(fs::exists(folder.file("n 2026-02-10 120000.mdb")));
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  ASSERT_TRUE(load());
  std::vector<std::string> left = {"n 2026-01-01 000000.mdb", "n 2026-03-07 090504.mdb", "n.mdb"};
  for (int day = 13; day < 22; ++day) left.push_back("n 2026-02-" + std::to_string(day) + " 120000.mdb");
  left.insert(left.end(), others.begin(), others.end());
  EXPECT_THAT(folder.names(), testing::UnorderedElementsAreArray(left));
}

TEST_F(ANewDatabase, leaves_an_old_copy_that_somebody_has_open) {
  for (int day = 10; day < 20; ++day) {
    fs::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb",
                  folder.file("n 2026-02-" + std::to_string(day) + " 120000.mdb"));
  }
  DbConnection opened;
  ASSERT_TRUE(OpenDB(host, folder.file("n 2026-02-10 120000.mdb"), opened));
  ASSERT_TRUE(load());
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  ASSERT_TRUE(load());
  EXPECT_THAT(folder.names(), SizeIs(12));
  closeDB(opened);
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  ASSERT_TRUE(load());
  EXPECT_THAT(folder.names(), SizeIs(11));
  EXPECT_FALSE(fs::exists(folder.file("n 2026-02-10 120000.mdb")));
}

TEST_F(ANewDatabase, is_refused_over_one_that_is_open_and_makes_nothing) {
  ASSERT_TRUE(load());
  const std::string before = test::readFile(place);
  DbConnection opened;
  ASSERT_TRUE(OpenDB(host, place, opened));
  const MasterCopy copy = copyMasterDB(host, place);
  EXPECT_EQ(copy.database, nullptr);
  EXPECT_TRUE(copy.isRefused);
  ASSERT_THAT(script.boxes, SizeIs(1));
  EXPECT_THAT(script.boxes[0].text,
              HasSubstr("Error 70 : The database is open elsewhere: " + place + " (database_test, process "));
  EXPECT_EQ(test::readFile(place), before);
  EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
}

TEST_F(ANewDatabase, is_refused_over_one_that_was_opened_meanwhile_and_goes) {
  ASSERT_TRUE(load());
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  const std::string before = test::readFile(place);
  {
    const MasterCopy copy = copyMasterDB(host, place);
    ASSERT_NE(copy.database, nullptr);
    OtherProgram shell({"sqlite3", place});
    shell.say(".print ready");
    EXPECT_EQ(shell.hear(), "ready");
    EXPECT_FALSE(putInPlace(host, *copy.database));
    ASSERT_THAT(script.boxes, SizeIs(1));
    EXPECT_THAT(script.boxes[0].text, HasSubstr("(sqlite3, process " + std::to_string(shell.process())));
  }
  EXPECT_EQ(test::readFile(place), before);
  EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
}

TEST_F(ANewDatabase, is_refused_while_another_one_is_made_for_the_same_place) {
  const MasterCopy first = copyMasterDB(host, place);
  ASSERT_NE(first.database, nullptr);
  const MasterCopy second = copyMasterDB(host, place);
  EXPECT_TRUE(second.isRefused);
  EXPECT_TRUE(putInPlace(host, *first.database));
  EXPECT_THAT(folder.names(), ElementsAre("n.mdb"));
}

TEST_F(ANewDatabase, stays_held_from_its_making_until_it_is_open) {
  const MasterCopy copy = copyMasterDB(host, place);
  ASSERT_TRUE(putInPlace(host, *copy.database));
  EXPECT_TRUE(copyMasterDB(host, place).isRefused);
}

TEST_F(ANewDatabase, removes_what_killed_ones_for_the_same_place_have_left) {
  for (const char* left : {"n.mdb.abcdefghijkl.part", "n 2026-03-07 090504.mdb.abcdefghijkl.part"})
    folder.write(left, "left");
  std::vector<std::string> others = {"n.mdb.part",
                                     "n.mdb.abcdefghijk.part",
                                     "n.mdb.abcdefghijkL.part",
                                     "m.mdb.abcdefghijkl.part",
                                     "n.txt.abcdefghijkl.part",
                                     "n.mdb.abcdefghijkl.party"};
  for (const std::string& name : others) folder.write(name, "not touched");
  ASSERT_TRUE(load());
  others.push_back("n.mdb");
  EXPECT_THAT(folder.names(), testing::UnorderedElementsAreArray(others));
}

TEST_F(ANewDatabase, that_finds_no_room_for_the_copy_of_the_old_one_replaces_nothing) {
  ASSERT_TRUE(load());
  change("UPDATE proc_ntc_hist SET src_update = 'anna'");
  const std::string before = test::readFile(place);
  // In the way of the copy, whatever its second.
  const MasterCopy copy = copyMasterDB(host, place);
  ASSERT_NE(copy.database, nullptr);
  host.now = []() -> DateTime { throw RunTimeError{kDiskFull, "Disk full"}; };
  EXPECT_FALSE(putInPlace(host, *copy.database));
  EXPECT_EQ(script.boxes.back().text, "Error 61 : Disk full");
  EXPECT_EQ(test::readFile(place), before);
}

}  // namespace
}  // namespace zamo
