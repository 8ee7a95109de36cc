#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

#include "database/new_database.h"
#include "database/recordset.h"
#include "database/working_database.h"
#include "platform/run_time_error.h"
#include "support/places.h"

namespace zamo {
namespace {

namespace fs = std::filesystem;

const std::string kTemplate = ZAMO_BIN "/MasterHDLK_WQN.mdb";

// No file may grow beyond so many bytes while this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limited{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limited);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    ::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

// A user whom permissions bind, while this lives.
class OrdinaryUser {
 public:
  OrdinaryUser() : wasRoot_(::geteuid() == 0) {
    if (wasRoot_ && ::seteuid(kNobody) != 0) ADD_FAILURE() << "can't become an ordinary user";
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (wasRoot_ && ::seteuid(0) != 0) ADD_FAILURE() << "can't become root again";
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool wasRoot_;
};

class ADatabaseOperation : public test::WorkingDatabase {
 protected:
  void addTrace(std::string_view name) {
    Recordset rows("file_trace", connection, OpenAs::table);
    rows.AddNew();
    rows.Collect("file_name", name);
    rows.Update();
  }

  std::string traces() { return raw.value("SELECT group_concat(file_name) FROM file_trace"); }

  void expectNotSaved(std::size_t place) {
    expectBox(place, "The data was not saved to the database", "Erreur base de donn\351es",
              BoxIcon::exclamation);
  }
};

TEST_F(ADatabaseOperation, that_succeeded_is_committed_without_a_word) {
  connection.BeginTrans();
  addTrace("a");
  EXPECT_TRUE(endTransaction(host, true, connection));
  EXPECT_EQ(traces(), "a");
  expectNoBox();
}

TEST_F(ADatabaseOperation, that_failed_is_rolled_back_and_told_of) {
  connection.BeginTrans();
  addTrace("a");
  EXPECT_FALSE(endTransaction(host, false, connection));
  EXPECT_EQ(traces(), "NULL");
  EXPECT_EQ(script.boxes.size(), 1U);
  expectNotSaved(0);
  expectNothingElse();

  script.boxes.clear();
  connection.BeginTrans();
  addTrace("b");
  EXPECT_TRUE(endTransaction(host, true, connection));
  EXPECT_EQ(traces(), "b");
  expectNoBox();
}

TEST_F(ADatabaseOperation, whose_commit_fails_is_rolled_back_and_told_of_twice) {
  raw.run(
      "INSERT INTO fmtv_vorna (vornakey) VALUES (1); INSERT INTO lmz_allotment (vornakey, allotkey) VALUES "
      "(1, 1)");
  connection.BeginTrans();
  addTrace("a");
  Recordset links("lmz_sub_area", connection, OpenAs::table);
  links.AddNew();
  links.Collect("allotkey", std::int64_t{1});
  links.Collect("contourkey", std::int64_t{99});
  links.Update();
  EXPECT_FALSE(endTransaction(host, true, connection));
  EXPECT_EQ(traces(), "NULL");
  EXPECT_EQ(raw.value("SELECT count(*) FROM lmz_sub_area"), "0");
  EXPECT_EQ(script.boxes.size(), 2U);
  expectBox(0, "Erreur 787:FOREIGN KEY constraint failed", "endTransaction");
  expectNotSaved(1);
  expectNothingElse();

  script.boxes.clear();
  connection.BeginTrans();
  addTrace("b");
  EXPECT_TRUE(endTransaction(host, true, connection));
  EXPECT_EQ(traces(), "b");
  expectNoBox();
}

TEST_F(ADatabaseOperation, whose_transaction_the_engine_ended_is_not_saved) {
  raw.run(
      "CREATE TRIGGER ending BEFORE INSERT ON file_trace WHEN new.file_name = 'bad' "
      "BEGIN SELECT RAISE(ROLLBACK, 'ended by the engine'); END");
  connection.BeginTrans();
  addTrace("a");
  EXPECT_THROW(addTrace("bad"), RunTimeError);
  EXPECT_FALSE(endTransaction(host, false, connection));
  EXPECT_EQ(traces(), "NULL");
  EXPECT_EQ(script.boxes.size(), 1U);
  expectNotSaved(0);
  expectNothingElse();
}

TEST_F(ADatabaseOperation, on_a_full_disk_is_not_saved_and_the_next_one_is) {
  addTrace("before");
  connection.BeginTrans();
  connection.CommitTrans();
  bool saved = true;
  {
    const FileSizeLimit limit(fs::file_size(path));
    connection.BeginTrans();
    bool stored = true;
    try {
      for (int row = 0; row < 2000; ++row) addTrace(std::string(1000, 'x'));
    } catch (const RunTimeError&) {
      stored = false;
    }
    saved = endTransaction(host, stored, connection);
  }
  EXPECT_FALSE(saved);
  ASSERT_FALSE(script.boxes.empty());
  expectNotSaved(script.boxes.size() - 1);
  expectNothingElse();
  EXPECT_EQ(traces(), "before");

  script.boxes.clear();
  connection.BeginTrans();
  addTrace("after");
  EXPECT_TRUE(endTransaction(host, true, connection));
  EXPECT_EQ(traces(), "before,after");
  expectNoBox();
}

TEST_F(ADatabaseOperation, tells_a_working_database_from_the_central_one) {
  EXPECT_FALSE(isCentralDatabase(host, connection));
  expectNoBox();
  raw.run("CREATE TABLE lmz_aux_border_contour (a)");
  EXPECT_TRUE(isCentralDatabase(host, connection));
  EXPECT_EQ(script.boxes.size(), 1U);
  expectBox(0,
            "Error : You must first create a working database by extracting the necessary data from this "
            "database. \r\n"
            "This can be done using the tool 'Data Query and Extraction'\r\n"
            "and then you may open the extracted database with this tool",
            "Error in Reading Database", BoxIcon::information);
  expectNothingElse();
}

TEST_F(ADatabaseOperation, tells_an_old_database_by_its_missing_table) {
  EXPECT_TRUE(dbHasAddrCodeTable(host, connection));
  expectNoBox();
  raw.run("DROP TABLE addr_code");
  Connection old(path);
  EXPECT_FALSE(dbHasAddrCodeTable(host, old));
  expectOnlyBox(
      "Addr_code and Op_agcy tables have been added to the database. Please get the latest database "
      "version. ",
      "Old Database Structure");
}

class ACopyOfTheTemplate : public ADatabaseOperation {
 protected:
  std::vector<std::string> filesOf(const std::string& place) {
    std::vector<std::string> names;
    for (const auto& file : fs::directory_iterator(place)) names.push_back(file.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  // A folder of its own, which anyone may read.
  std::string makeFolder(const std::string& name) {
    fs::permissions(folder.path(), fs::perms::owner_all | fs::perms::group_exec | fs::perms::others_exec);
    const std::string place = folder.file(name);
    fs::create_directory(place);
    return place;
  }

  // A database that nothing is loaded into.
  void copy(const std::string& place, const std::string& from = kTemplate) {
    const MasterCopy made = copyMasterDB(host, place, from);
    if (made.database != nullptr) putInPlace(host, *made.database);
  }

  void expectOpens(const std::string& database) {
    DbConnection opened;
    EXPECT_TRUE(OpenDB(host, database, opened));
    EXPECT_NO_THROW(opened->openTable("fmtv_vorna"));
    expectNoBox();
  }
};

TEST_F(ACopyOfTheTemplate, is_the_template_byte_by_byte) {
  const std::string place = makeFolder("new");
  copy(place + "/notices.mdb");
  expectNoBox();
  EXPECT_TRUE(test::readFile(place + "/notices.mdb") == test::readFile(kTemplate));
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb"}));
  expectOpens(place + "/notices.mdb");
}

TEST_F(ACopyOfTheTemplate, replaces_an_older_database_and_what_the_engine_left_beside_it) {
  const std::string place = makeFolder("old");
  const std::string database = place + "/notices.mdb";
  fs::copy_file(path, database);
  test::RawDatabase(database).run("INSERT INTO file_trace (file_name) VALUES ('old')");
  for (const char* ending : {"-wal", "-journal", "-shm"})
    folder.write("old/notices.mdb" + std::string(ending), "stale");
  folder.write("old/notices.mdb.txt", "not touched");
  copy(database);
  expectNoBox();
  EXPECT_TRUE(test::readFile(database) == test::readFile(kTemplate));
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb", "notices.mdb.txt"}));
  expectOpens(database);
}

TEST_F(ACopyOfTheTemplate, holds_nothing_of_a_load_that_was_killed) {
  const std::string place = makeFolder("killed");
  const std::string database = place + "/notices.mdb";
  {
    Connection load(path);
    load.BeginTrans();
    Recordset rows("file_trace", load, OpenAs::table);
    rows.AddNew();
    rows.Collect("file_name", "killed");
    rows.Update();
    load.CommitTrans();
    for (const char* ending : {"", "-wal", "-shm"}) fs::copy_file(path + ending, database + ending);
  }
  copy(database);
  expectNoBox();
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb"}));
  EXPECT_EQ(test::RawDatabase(database).value("SELECT count(*) FROM file_trace"), "0");
}

TEST_F(ACopyOfTheTemplate, without_the_template_is_told_of_and_leaves_what_was_there) {
  const std::string place = makeFolder("a");
  for (const char* name : {"notices.mdb", "notices.mdb-wal"})
    folder.write(std::string("a/") + name, "before");
  copy(place + "/notices.mdb", place + "/MasterHDLK_WQN.mdb");
  expectOnlyBox("Please copy MasterHDLK_WQN.mdb to the same location as the executable", "");
  EXPECT_EQ(test::readFile(place + "/notices.mdb"), "before");
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb", "notices.mdb-wal"}));
}

TEST_F(ACopyOfTheTemplate, in_a_read_only_folder_is_told_of_and_leaves_what_was_there) {
  const std::string place = makeFolder("fixed");
  for (const char* name : {"notices.mdb", "notices.mdb-wal"})
    folder.write(std::string("fixed/") + name, "before");
  fs::copy_file(kTemplate, folder.file("template.mdb"));
  fs::permissions(folder.file("template.mdb"), fs::perms::all);
  fs::permissions(
      place, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
  {
    const OrdinaryUser user;
    copy(place + "/notices.mdb", folder.file("template.mdb"));
  }
  fs::permissions(place, fs::perms::owner_all);
  expectOnlyBox("Error 70 : Permission denied: " + place + "/notices.mdb", "");
  EXPECT_EQ(test::readFile(place + "/notices.mdb"), "before");
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb", "notices.mdb-wal"}));
}

TEST_F(ACopyOfTheTemplate, onto_a_write_protected_database_is_told_of_and_leaves_it) {
  const std::string place = makeFolder("protected");
  folder.write("protected/notices.mdb", "before");
  fs::permissions(place + "/notices.mdb", fs::perms::owner_read);
  copy(place + "/notices.mdb");
  expectOnlyBox("Error 70 : Permission denied: " + place + "/notices.mdb", "");
  EXPECT_EQ(test::readFile(place + "/notices.mdb"), "before");
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb"}));
}

TEST_F(ACopyOfTheTemplate, goes_through_no_link_that_waits_beside_its_place) {
  const std::string place = makeFolder("links");
  folder.write("links/precious", "not touched");
  fs::create_symlink("precious", place + "/notices.mdb.part");
  fs::create_symlink("precious", place + "/notices.mdb");
  copy(place + "/notices.mdb");
  expectNoBox();
  EXPECT_EQ(test::readFile(place + "/precious"), "not touched");
  EXPECT_TRUE(test::readFile(place + "/notices.mdb") == test::readFile(kTemplate));
}

TEST_F(ACopyOfTheTemplate, on_a_full_disk_is_told_of_and_leaves_what_was_there) {
  const std::string place = makeFolder("full");
  for (const char* name : {"notices.mdb", "notices.mdb-wal"})
    folder.write(std::string("full/") + name, "before");
  {
    const FileSizeLimit limit(10000);
    copy(place + "/notices.mdb");
  }
  expectOnlyBox("Error 61 : Disk full: " + place + "/notices.mdb", "");
  EXPECT_EQ(test::readFile(place + "/notices.mdb"), "before");
  EXPECT_EQ(filesOf(place), (std::vector<std::string>{"notices.mdb", "notices.mdb-wal"}));
}

TEST_F(ACopyOfTheTemplate, that_failed_lets_no_database_open) {
  copy(folder.file("none.mdb"), folder.file("MasterHDLK_WQN.mdb"));
  expectOnlyBox("Please copy MasterHDLK_WQN.mdb to the same location as the executable", "");
  script.boxes.clear();
  DbConnection opened;
  EXPECT_FALSE(OpenDB(host, folder.file("none.mdb"), opened));
  expectOnlyBox("Erreur 14:unable to open database file", "OpenDB");
}

TEST_F(ACopyOfTheTemplate, onto_a_folder_is_told_of) {
  const std::string place = makeFolder("b");
  fs::create_directory(place + "/notices.mdb");
  copy(place + "/notices.mdb");
  expectOnlyBox("Error 70 : Permission denied: " + place + "/notices.mdb", "");
  EXPECT_TRUE(fs::is_directory(place + "/notices.mdb"));
}

}  // namespace
}  // namespace zamo
