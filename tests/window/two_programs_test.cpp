// Two windows, and a window and the companion, over one database: real windows, each in a process of its own.
#include <gmock/gmock.h>

#include <filesystem>

#include "database/raw_database.h"
#include "support/companion.h"
#include "support/other_program.h"

namespace zamo::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kUpdated = "|Save Notice: The notice was sucessfully updated in the Database";

class TwoPrograms : public testing::Test {
 protected:
  TwoPrograms() {
    std::filesystem::copy_file(ZAMO_EXAMPLES "/valid-all-types.txt", folder.file("n.txt"));
    EXPECT_EQ(runCompanion(folder, "load --level 1 n.txt").status, 0);
    const RawDatabase loaded(database);
    notices = RawDatabase(database).value("SELECT count(*) FROM fmtv_vorna");
    const Rows rows =
        RawDatabase(database).rows("SELECT vornakey FROM fmtv_vorna WHERE notice_typ IN ('GT1', 'GS1')");
    EXPECT_GE(rows.size(), 2U);
    first = rows[0][0];
    second = rows[1][0];
  }

  struct Window : OtherProgram {
    Window() : OtherProgram({ZAMO_BIN "/other_window"}) {}
    std::string answer(const std::string& command) {
      say(command);
      return hear();
    }
  };

  void open(Window& window) const {
    EXPECT_EQ(window.answer("open " + database),
              "Sucessfully opened the database - Number of notices : " + notices);
  }
  static void correct(Window& window, const std::string& key, const std::string& siteName) {
    EXPECT_THAT(window.answer("correct " + key + " " + siteName), HasSubstr(kUpdated));
  }
  // Refused, and told who has the database.
  void expectRefused(Window& window, const Window& holder) const {
    EXPECT_THAT(window.answer("load " + folder.file("n.txt")),
                HasSubstr("|: Error 70 : The database is open elsewhere: " + database +
                          " (other_window, process " + std::to_string(holder.process()) + ", user "));
  }

  void expectWhole() const {
    RawDatabase left(database);
    EXPECT_EQ(left.value("SELECT count(*) FROM fmtv_vorna"), notices);
    EXPECT_EQ(left.value("PRAGMA integrity_check"), "ok");
  }
  std::string siteOf(const std::string& key, const std::string& path) const {
    return RawDatabase(path).value("SELECT site_name FROM fmtv_vorna WHERE vornakey = " + key);
  }
  std::string siteOf(const std::string& key) const { return siteOf(key, database); }

  std::vector<std::string> databases() const {
    std::vector<std::string> all;
    for (const std::string& name : folder.names()) {
      if (name.find(".mdb") != std::string::npos) all.push_back(name);
    }
    return all;
  }

  TempFolder folder;
  std::string database = folder.file("n.mdb");
  std::string notices;
  std::string first;
  std::string second;
};

TEST_F(TwoPrograms, of_which_the_second_would_load_over_the_first_lose_nothing_when_the_first_closes_first) {
  Window one;
  Window two;
  open(one);
  expectRefused(two, one);
  correct(one, first, "NEVERS");
  one.answer("close");
  two.answer("close");
  expectWhole();
  EXPECT_EQ(siteOf(first), "NEVERS");
  EXPECT_THAT(databases(), ElementsAre("n.mdb"));
}

TEST_F(TwoPrograms, of_which_the_second_would_load_over_the_first_lose_nothing_when_the_second_closes_first) {
  Window one;
  Window two;
  open(one);
  correct(one, first, "NEVERS");
  expectRefused(two, one);
  two.answer("close");
  correct(one, second, "BOURGES-2");
  one.answer("close");
  expectWhole();
  EXPECT_EQ(siteOf(first), "NEVERS");
  EXPECT_EQ(siteOf(second), "BOURGES-2");
  EXPECT_THAT(databases(), ElementsAre("n.mdb"));
}

TEST_F(TwoPrograms, load_one_after_the_other_and_the_correction_is_kept_beside) {
  Window one;
  Window two;
  open(one);
  correct(one, first, "NEVERS");
  one.answer("close");
  EXPECT_EQ(two.answer("load " + folder.file("n.txt")),
            "Written sucessfully to the database - Number of notices : " + notices);
  EXPECT_EQ(two.answer("note"),
            "The database that was there is kept as " + folder.file("n 2026-03-07 090504.mdb"));
  two.answer("close");
  expectWhole();
  EXPECT_NE(siteOf(first), "NEVERS");
  EXPECT_EQ(siteOf(first, folder.file("n 2026-03-07 090504.mdb")), "NEVERS");
  EXPECT_THAT(databases(), ElementsAre("n 2026-03-07 090504.mdb", "n.mdb"));
}

TEST_F(TwoPrograms, are_refused_by_one_that_has_just_loaded_until_it_is_killed) {
  Window one;
  Window two;
  EXPECT_THAT(one.answer("load " + folder.file("n.txt")), StartsWith("Written sucessfully"));
  EXPECT_EQ(one.answer("note"), "");
  expectRefused(two, one);
  correct(one, first, "NEVERS");
  one.kill();
  EXPECT_THAT(two.answer("load " + folder.file("n.txt")), StartsWith("Written sucessfully"));
  two.answer("close");
  expectWhole();
  EXPECT_EQ(siteOf(first, folder.file("n 2026-03-07 090504.mdb")), "NEVERS");
}

TEST_F(TwoPrograms, save_in_turn_into_one_database) {
  Window one;
  Window two;
  open(one);
  open(two);
  correct(one, first, "NEVERS");
  correct(two, second, "BOURGES-2");
  correct(one, second, "LE CREUSOT");
  correct(two, first, "MACON");
  one.answer("close");
  correct(two, first, "CLUNY");
  two.answer("close");
  expectWhole();
  EXPECT_EQ(siteOf(first), "CLUNY");
  EXPECT_EQ(siteOf(second), "LE CREUSOT");
  EXPECT_THAT(databases(), ElementsAre("n.mdb"));
}

TEST_F(TwoPrograms, a_window_and_the_companion_lose_nothing) {
  Window window;
  open(window);
  correct(window, first, "NEVERS");
  const CompanionRun refused = runCompanion(folder, "load --level 1 n.txt");
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.output, "n.txt\tload\n");
  EXPECT_THAT(refused.messages,
              HasSubstr("Error 70 : The database is open elsewhere: n.mdb (other_window, process " +
                        std::to_string(window.process()) + ", user "));
  EXPECT_EQ(runCompanion(folder, "show n.mdb " + first).status, 0);
  EXPECT_EQ(runCompanion(folder, "export n.mdb").status, 0);
  correct(window, second, "BOURGES-2");
  window.answer("close");
  expectWhole();
  EXPECT_EQ(siteOf(first), "NEVERS");
  EXPECT_EQ(siteOf(second), "BOURGES-2");
  EXPECT_EQ(runCompanion(folder, "load --level 1 n.txt").status, 0);
  expectWhole();
  EXPECT_THAT(databases(), testing::SizeIs(2));
}

}  // namespace
}  // namespace zamo::test
