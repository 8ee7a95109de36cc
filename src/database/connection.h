// The one door to SQLite: a connection to a database file.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/run_time_error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace zamo {

// The engine's last error on a connection.
RunTimeError engineError(sqlite3* database);

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const;
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// Every failure is thrown as a RunTimeError with the engine's number and text.
class Connection {
 public:
  // Opens an existing database file; it is never created. A file that is no database fails here.
  explicit Connection(const std::string& path);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  // As it was given.
  const std::string& path() const { return path_; }

  // One level of transaction. The first one sets the journal; until then opening leaves the file untouched. A
  // transaction that the engine has ended by itself (for want of room on the disk, say) takes no more changes
  // and can only be rolled back.
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();

  // Writes what stands in the journal into the database file. False when another connection keeps it open.
  bool mergeJournal();

  // Opens a table for adding rows and closes it again. Throws when there is no such table. Tables neither
  // come nor go while a database is open, so each is looked for once.
  void openTable(std::string_view name);

  // A prepared statement that changes data. It is kept with the connection and comes back reset.
  sqlite3_stmt* changing(const std::string& sql);

  sqlite3* handle() { return database_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };

  void run(const char* sql);

  std::string path_;
  std::unique_ptr<sqlite3, Close> database_;
  std::unordered_map<std::string, Statement> changing_;
  std::set<std::string, std::less<>> openedTables_;
  bool inTransaction_ = false;
  bool journalIsSet_ = false;
};

}  // namespace zamo
