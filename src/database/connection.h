// The one door to SQLite: a connection to a database file.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "database/step_limit.h"
#include "platform/file_hold.h"
#include "platform/run_time_error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace zamo {

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const;
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// A SELECT as the engine has prepared it.
struct PreparedSelect {
  Statement statement;
  std::string table;  // whose whole rows it gives, the rowid in front of the fields; empty for any other
  std::vector<std::string> fields;

  int firstField() const { return table.empty() ? 0 : 1; }
};

// What a database is opened for.
enum class Purpose {
  work,    // it is held (platform/file_hold.h), others may work on it as well, and what is committed is safe
  fill,    // it is held and in the making: what is killed or cut off is thrown away, so nothing waits for the
           // disk
  settle,  // somebody has it for himself
};

// A reason to fail that has nothing to do with what is stored.
enum class Obstacle { none, noRoom, busy };

// Every failure is thrown as a RunTimeError with the engine's number and text.
class Connection {
 public:
  // Opens an existing database file; it is never created. A file that is no database fails here, and one
  // whose tables are something else than tables.
  explicit Connection(const std::string& path, Purpose purpose = Purpose::work);
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

  // A number that is kept in the file, 0 at first. The first change that is committed for work makes it 0
  // again.
  std::int32_t mark();
  void setMark(std::int32_t mark);

  // Writes what stands in the journal into the database file. False when another connection works with it.
  bool mergeJournal();

  // Opens a table for adding rows and closes it again. Throws when there is no such table. Tables neither
  // come nor go while a database is open, so each is looked for once.
  void openTable(std::string_view name);

  // A prepared statement that changes data. It is kept with the connection and comes back reset.
  sqlite3_stmt* changing(const std::string& sql);

  // Where a SELECT that is asked again and again is kept, by its text; empty until one is put there.
  std::shared_ptr<PreparedSelect>& keptSelect(std::string_view sql);

  // Takes a statement to its next row, with the engine's result.
  int step(sqlite3_stmt* statement) { return limit_->step(statement); }

  // What the engine's last call failed with. When the file has kept the engine busy for too long it is no
  // working database: that is told once, and what fails after it bears the number 0.
  RunTimeError failure();
  // What stood in the way of the last transaction or of what came behind it.
  Obstacle obstacle() const { return obstacle_; }
  // The file keeps the engine busy, and that was told.
  bool isGivenUp() const { return limit_->wasReached(); }

  sqlite3* handle() { return database_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };

  void openEngine(const std::string& path);
  void run(const char* sql);
  void requirePlainTables();
  void setJournal();
  void removeMark();

  std::string path_;
  Purpose purpose_;
  FileHold hold_;  // goes after the engine
  std::unique_ptr<sqlite3, Close> database_;
  std::optional<StepLimit> limit_;
  std::unordered_map<std::string, Statement> changing_;
  std::map<std::string, std::shared_ptr<PreparedSelect>, std::less<>> keptSelects_;
  std::set<std::string, std::less<>> openedTables_;
  bool inTransaction_ = false;
  bool journalIsSet_ = false;
  bool markIsRemoved_ = false;
  bool toldOfLimit_ = false;
  Obstacle obstacle_ = Obstacle::none;
};

// All that is read while it lives is of one state of the database, and the file is locked once and not for
// each statement. No transaction may be open, and none be begun.
class ReadingOneState {
 public:
  explicit ReadingOneState(Connection& connection);
  ReadingOneState(const ReadingOneState&) = delete;
  ReadingOneState& operator=(const ReadingOneState&) = delete;
  ~ReadingOneState();

 private:
  Connection& connection_;
};

}  // namespace zamo
