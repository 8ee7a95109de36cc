// A database file seen through the engine itself, so that a test doesn't lean on what it tests.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>
#include <vector>

namespace zamo::test {

using Rows = std::vector<std::vector<std::string>>;

class RawDatabase {
 public:
  // Opens the file, or makes it. Foreign keys are enforced.
  explicit RawDatabase(const std::string& path) {
    EXPECT_EQ(sqlite3_open(path.c_str(), &database_), SQLITE_OK) << path;
    sqlite3_extended_result_codes(database_, 1);
    run("PRAGMA foreign_keys = ON");
  }
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;
  ~RawDatabase() { sqlite3_close(database_); }

  // Runs statements that must succeed.
  void run(const std::string& sql) {
    EXPECT_EQ(codeOf(sql), SQLITE_OK) << sql << "\n" << sqlite3_errmsg(database_);
  }

  // Runs statements and gives the engine's extended code.
  int codeOf(const std::string& sql) {
    return sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr);
  }

  // The rows of a statement as text, Null as "NULL".
  Rows rows(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << sql << "\n"
        << sqlite3_errmsg(database_);
    Rows all;
    int result = SQLITE_DONE;
    while (statement != nullptr && (result = sqlite3_step(statement)) == SQLITE_ROW) {
      std::vector<std::string>& row = all.emplace_back();
      for (int column = 0; column < sqlite3_column_count(statement); ++column) {
        const unsigned char* text = sqlite3_column_text(statement, column);
        row.emplace_back(text == nullptr ? "NULL" : reinterpret_cast<const char*>(text));
      }
    }
    EXPECT_EQ(result, SQLITE_DONE) << sql;
    sqlite3_finalize(statement);
    return all;
  }

  // The first value of the first row; "no row" without one.
  std::string value(const std::string& sql) {
    const Rows all = rows(sql);
    return all.empty() ? "no row" : all[0][0];
  }

  sqlite3* handle() const { return database_; }

 private:
  sqlite3* database_ = nullptr;
};

// Tests put faults into tables by triggers, which a connection never runs by itself.
inline void letTriggersRun(sqlite3* database) {
  sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, nullptr);
}

}  // namespace zamo::test
