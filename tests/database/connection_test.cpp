#include "database/connection.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "database/db_connection.h"
#include "database/raw_database.h"
#include "platform/run_time_error.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;
using test::RawDatabase;
using test::Script;
using test::TempFolder;

const std::string kTemplate = ZAMO_BIN "/MasterHDLK_WQN.mdb";

class ADatabaseFile : public testing::Test {
 protected:
  bool open(const std::string& path) { return OpenDB(host, path, connection); }

  void expectBox(std::size_t place, std::string_view text, std::string_view title) {
    ASSERT_LT(place, script.boxes.size());
    EXPECT_EQ(script.boxes[place].text, text);
    EXPECT_EQ(script.boxes[place].title, title);
    EXPECT_EQ(script.boxes[place].icon, BoxIcon::none);
  }

  void expectOnlyBox(std::string_view text, std::string_view title) {
    EXPECT_EQ(script.boxes.size(), 1U);
    expectBox(0, text, title);
    expectNothingElse();
  }

  void expectNoBox() {
    EXPECT_TRUE(script.boxes.empty());
    expectNothingElse();
  }

  void expectNothingElse() {
    EXPECT_TRUE(script.questions.empty());
    EXPECT_TRUE(script.statuses.empty());
  }

  // What opening a path that can't be opened must do.
  void expectRefused(const std::string& path, std::string_view text) {
    EXPECT_FALSE(open(path));
    EXPECT_EQ(connection, nullptr);
    expectOnlyBox(text, "OpenDB");
    script.boxes.clear();
  }

  TempFolder folder;
  Script script;
  Host host = test::makeScriptedHost(script);
  DbConnection connection;
};

constexpr const char* kCannotOpen = "Erreur 14:unable to open database file";
constexpr const char* kOldDatabase =
    "Addr_code and Op_agcy tables have been added to the database. Please get the latest database version. ";

TEST_F(ADatabaseFile, is_opened_without_a_word) {
  EXPECT_TRUE(open(kTemplate));
  EXPECT_NE(connection, nullptr);
  expectNoBox();
}

TEST_F(ADatabaseFile, that_is_missing_is_refused_and_not_created) {
  expectRefused(folder.file("none.mdb"), kCannotOpen);
  EXPECT_FALSE(fs::exists(folder.file("none.mdb")));
}

TEST_F(ADatabaseFile, in_a_missing_folder_is_refused) {
  expectRefused(folder.file("none/a.mdb"), kCannotOpen);
}

TEST_F(ADatabaseFile, that_is_a_folder_is_refused) {
  expectRefused(folder.path(), kCannotOpen);
}

TEST_F(ADatabaseFile, of_the_names_that_the_engine_keeps_for_itself_is_a_plain_missing_file) {
  for (const char* path : {"", ":memory:", "file:none.mdb?mode=memory"}) {
    SCOPED_TRACE(path);
    expectRefused(path, kCannotOpen);
  }
}

TEST_F(ADatabaseFile, that_holds_something_else_is_refused_and_left_alone) {
  for (const std::string& content :
       {std::string("xy"), std::string("<HEAD>\r\nt_adm=F\r\n</HEAD>\r\n"), std::string(8192, 'x')}) {
    const std::string path = folder.write("notices.mdb", content);
    expectRefused(path, "Erreur 26:file is not a database");
    EXPECT_EQ(test::readFile(path), content);
  }
}

TEST_F(ADatabaseFile, of_no_bytes_is_a_database_without_tables) {
  const std::string path = folder.write("empty.mdb", "");
  EXPECT_TRUE(open(path));
  expectNoBox();
  closeDB(connection);

  EXPECT_FALSE(masterHasAddrCodeTable(host, path));
  expectOnlyBox(kOldDatabase, "Old Database Structure");
  EXPECT_EQ(fs::file_size(path), 0U);
}

TEST_F(ADatabaseFile, that_another_program_has_locked_is_refused_until_it_is_free) {
  const std::string path = folder.file("locked.mdb");
  fs::copy_file(kTemplate, path);
  RawDatabase other(path);
  other.run("BEGIN EXCLUSIVE");
  expectRefused(path, "Erreur 5:database is locked");

  other.run("ROLLBACK");
  EXPECT_TRUE(open(path));
  expectNoBox();
}

TEST_F(ADatabaseFile, may_have_any_name) {
  const std::string path = folder.file("a b?mode=memory#%41 \xc3\xa9'.mdb");
  fs::copy_file(kTemplate, path);
  EXPECT_TRUE(open(path));
  expectNoBox();
  EXPECT_NO_THROW(connection->openTable("fmtv_vorna"));
}

TEST_F(ADatabaseFile, may_be_named_from_the_current_folder) {
  fs::copy_file(kTemplate, folder.file("here.mdb"));
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  EXPECT_TRUE(open("here.mdb"));
  fs::current_path(before);
  expectNoBox();
}

TEST_F(ADatabaseFile, that_fails_to_open_leaves_no_connection_to_the_one_before) {
  ASSERT_TRUE(open(kTemplate));
  expectRefused(folder.file("none.mdb"), kCannotOpen);
}

TEST_F(ADatabaseFile, that_is_read_only_in_a_read_only_folder_is_opened) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions don't bind this user";
  const std::string path = folder.file("fixed.mdb");
  fs::copy_file(kTemplate, path);
  fs::permissions(path, fs::perms::owner_read);
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_TRUE(open(path));
  EXPECT_TRUE(masterHasAddrCodeTable(host, path));
  expectNoBox();
  closeDB(connection);
  fs::permissions(folder.path(), fs::perms::owner_all);
}

TEST_F(ADatabaseFile, is_closed_once_and_then_again_without_harm) {
  ASSERT_TRUE(open(kTemplate));
  closeDB(connection);
  EXPECT_EQ(connection, nullptr);
  closeDB(connection);
  EXPECT_EQ(connection, nullptr);
  expectNoBox();
}

TEST_F(ADatabaseFile, gives_the_error_of_the_engine_for_a_table_that_it_lacks) {
  ASSERT_TRUE(open(kTemplate));
  EXPECT_NO_THROW(connection->openTable("addr_code"));
  EXPECT_NO_THROW(connection->openTable("ADDR_CODE"));
  for (const char* name : {"lmz_aux_border_contour", "addr_code\"; DROP TABLE addr_code; --"}) {
    try {
      connection->openTable(name);
      ADD_FAILURE() << name;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number, 1);
      EXPECT_EQ(error.text, std::string("no such table: ") + name);
    }
  }
  EXPECT_NO_THROW(connection->openTable("addr_code"));
}

TEST_F(ADatabaseFile, is_the_master_template_beside_the_program) {
  EXPECT_EQ(fs::canonical(masterTemplatePath()), fs::canonical(kTemplate));
  EXPECT_TRUE(masterHasAddrCodeTable(host));
  expectNoBox();
}

TEST_F(ADatabaseFile, without_the_table_of_address_codes_is_an_old_one) {
  const std::string path = folder.file("old.mdb");
  {
    RawDatabase old(path);
    old.run("CREATE TABLE fmtv_vorna (vornakey INTEGER)");
  }
  EXPECT_FALSE(masterHasAddrCodeTable(host, path));
  expectOnlyBox(kOldDatabase, "Old Database Structure");
}

TEST_F(ADatabaseFile, that_cannot_be_opened_as_the_template_gives_both_boxes) {
  EXPECT_FALSE(masterHasAddrCodeTable(host, folder.file("none.mdb")));
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, kCannotOpen, "OpenDB");
  expectBox(1, kOldDatabase, "Old Database Structure");
  expectNothingElse();
}

TEST_F(ADatabaseFile, is_not_held_after_the_template_was_looked_at) {
  const std::string path = folder.file("template.mdb");
  fs::copy_file(kTemplate, path);
  const std::string before = test::readFile(path);
  EXPECT_TRUE(masterHasAddrCodeTable(host, path));
  EXPECT_EQ(test::readFile(path), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
  for (const auto& open : fs::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    EXPECT_NE(fs::read_symlink(open.path(), gone), fs::path(path));
  }
}

}  // namespace
}  // namespace zamo
