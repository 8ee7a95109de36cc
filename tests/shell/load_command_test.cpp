// What a load of the built companion leaves of an old database.
#include <gmock/gmock.h>

#include <filesystem>

#include "database/raw_database.h"
#include "support/companion.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

std::string fileOf(int notices) {
  std::string all = "<HEAD>\nt_adm = F\n</HEAD>\n";
  for (int i = 0; i < notices; ++i)
    all += "<NOTICE>\nt_notice_type = TB5\nt_trg_adm_ref_id = A" + std::to_string(i) + "\n</NOTICE>\n";
  return all + "<TAIL>\nt_num_notices = " + std::to_string(notices) + "\n</TAIL>\n";
}

class ALoadedFile : public testing::Test {
 protected:
  ALoadedFile() {
    folder.write("n.txt", fileOf(2));
    EXPECT_EQ(run("load --level 1 n.txt").status, 0);
  }

  CompanionRun run(const std::string& arguments, const std::string& before = "") const {
    return runCompanion(folder, arguments, before);
  }

  TempFolder folder;
  std::string database = folder.file("n.mdb");
};

TEST_F(ALoadedFile, is_loaded_again_without_a_word_about_the_old_database) {
  const CompanionRun again = run("load --level 1 n.txt");
  EXPECT_EQ(again.status, 0);
  EXPECT_THAT(again.messages, Not(HasSubstr("kept")));
  EXPECT_THAT(folder.names(), ElementsAre("err.log", "n.mdb", "n.txt", "out.log"));
}

TEST_F(ALoadedFile, that_was_corrected_is_kept_and_a_line_tells_where) {
  RawDatabase(database).run("UPDATE proc_ntc_hist SET src_update = 'anna'");
  const CompanionRun again = run("load --level 1 n.txt");
  EXPECT_EQ(again.status, 0);
  EXPECT_EQ(again.output, "n.txt\tok\n");
  const std::string lastLine =
      again.messages.substr(again.messages.rfind('\n', again.messages.size() - 2) + 1);
  EXPECT_THAT(lastLine, MatchesRegex("The database that was there is kept as "
                                     "n [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{6}\\.mdb\n"));
  const std::string kept = folder.file(lastLine.substr(39, 23));
  EXPECT_EQ(RawDatabase(kept).value("SELECT src_update FROM proc_ntc_hist"), "anna");
}

TEST_F(ALoadedFile, stays_when_another_load_finds_no_room_and_stops_by_itself) {
  const std::string before = readFile(database);
  folder.write("n.txt", fileOf(3000));
  const CompanionRun full = run("load --level 1 --yes n.txt", "trap '' XFSZ; ulimit -f 400; ");
  EXPECT_EQ(full.status, 2);
  EXPECT_EQ(full.output, "n.txt\tload\n");
  EXPECT_TRUE(
      full.messages.ends_with(" was not saved to the database, and those behind it may not be either.\r\nDo "
                              "you want to go on loading?\nNo\n"))
      << full.messages;
  EXPECT_EQ(readFile(database), before);
  EXPECT_THAT(folder.names(), ElementsAre("err.log", "n.mdb", "n.txt", "out.log"));
}

TEST_F(ALoadedFile, stays_when_another_load_cannot_begin) {
  const std::string before = readFile(database);
  const CompanionRun full = run("load --level 1 n.txt", "trap '' XFSZ; ulimit -f 20; ");
  EXPECT_EQ(full.status, 2);
  EXPECT_THAT(full.messages, HasSubstr("Error 61 : Disk full: n.mdb\n"));
  EXPECT_EQ(readFile(database), before);
  EXPECT_THAT(folder.names(), ElementsAre("err.log", "n.mdb", "n.txt", "out.log"));
}

}  // namespace
}  // namespace zamo::test
