#include "database/connection.h"

#include <sqlite3.h>

#include <filesystem>
#include <utility>

#include "database/files_beside.h"
#include "database/key_value.h"
#include "database/row_cursor.h"
#include "database/untrusted_file.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message.h"
#include "platform/numbers.h"

namespace zamo {
namespace {

// clang-format off
const Message kNotWorking("box of the operation, behind number 26: the file keeps the engine busy without end", "not a working database");
const Message kNoPlainTable("box \"OpenDB\", behind number 26: a table of the file is none, or computes something; its name", "not a working database: %1");
// clang-format on

// How long a database is waited for that another program is working on.
constexpr int kBusyMilliseconds = 2000;

// A value as the grid shows it: a Null as an empty text, a number in its shortest form.
void shownText(sqlite3_context* context, int /*count*/, sqlite3_value** values) {
  switch (sqlite3_value_type(values[0])) {
    case SQLITE_NULL:
      sqlite3_result_text(context, "", 0, SQLITE_STATIC);
      break;
    case SQLITE_FLOAT: {
      const std::string text = numberText(sqlite3_value_double(values[0]));
      sqlite3_result_text(context, text.c_str(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
      break;
    }
    default:
      sqlite3_result_value(context, values[0]);
  }
}

// The engine reads "", ":memory:" and "file:..." as something else than files of that name; an absolute path
// is plain.
std::string absolutePath(const std::string& path) {
  std::error_code failed;
  std::string absolute = std::filesystem::absolute(path, failed).string();
  if (failed || absolute.empty()) throw RunTimeError{SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN)};
  return absolute;
}

// The engine's last error.
RunTimeError engineError(sqlite3* database) {
  return {sqlite3_extended_errcode(database), textFromUtf8(sqlite3_errmsg(database))};
}

Obstacle obstacleOf(sqlite3* database) {
  const int code = sqlite3_extended_errcode(database);
  if ((code & 0xFF) == SQLITE_BUSY) return Obstacle::busy;
  // For a quota, or a limit of the file's size, the engine has no number of its own.
  const bool isUnwritten = code == SQLITE_FULL || code == SQLITE_IOERR_WRITE || code == SQLITE_IOERR_SHMSIZE;
  return isUnwritten ? Obstacle::noRoom : Obstacle::none;
}

RunTimeError noWorkingDatabase(const Message& message, std::string_view table = {}) {
  return {SQLITE_NOTADB, message.filled({table})};
}

}  // namespace

void FinalizeStatement::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Connection::Connection(const std::string& path, Purpose purpose) : path_(path), purpose_(purpose) {
  openEngine(absolutePath(path));
  run("PRAGMA foreign_keys = ON; PRAGMA cell_size_check = ON; PRAGMA mmap_size = 0");
  constexpr int traits = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
  if (sqlite3_create_function(handle(), "shown_text", 1, traits, nullptr, shownText, nullptr, nullptr) !=
      SQLITE_OK) {
    throw failure();
  }
  // The engine doesn't look at the file before the first statement.
  requirePlainTables();
  limit_->allowWork();
}

void Connection::openEngine(const std::string& path) {
  // The engine would wait for whoever is at the other end of a pipe.
  requireNoDevice(path_);
  for (const char* ending : kJournalEndings) requireNoDevice(path_ + ending);
  do {
    limit_.reset();
    database_.reset();
    if (purpose_ != Purpose::settle) hold_ = holdFile(path);
    sqlite3* database = nullptr;
    // Everything runs on one thread.
    constexpr int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(path.c_str(), &database, flags, nullptr);
    database_.reset(database);
    if (result != SQLITE_OK) throw engineError(database);
    restrictEngine(database);
    limit_.emplace(database);
    sqlite3_busy_timeout(database, kBusyMilliseconds);
    // Another file can have come to the path before it was held.
  } while (hold_ != nullptr && !leadsTo(path, hold_));
}

Connection::~Connection() {
  changing_.clear();
  // A recordset that outlives the connection doesn't keep the file open.
  for (const auto& [sql, select] : keptSelects_) {
    if (select != nullptr) select->statement.reset();
  }
  // Back into one file, which can be copied and opened anywhere.
  if (journalIsSet_ && purpose_ == Purpose::work) {
    sqlite3_exec(database_.get(), "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr);
  }
}

void Connection::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void Connection::BeginTrans() {
  if (inTransaction_) throw RunTimeError{kInvalidArgument, "A transaction is open already"};
  obstacle_ = Obstacle::none;
  if (!journalIsSet_) setJournal();
  run("BEGIN IMMEDIATE");
  inTransaction_ = true;
}

void Connection::CommitTrans() {
  if (!inTransaction_) throw RunTimeError{kInvalidArgument, "No transaction is open"};
  if (purpose_ == Purpose::work && !markIsRemoved_) removeMark();
  run("COMMIT");
  inTransaction_ = false;
  markIsRemoved_ = true;
}

void Connection::RollbackTrans() {
  if (!inTransaction_) throw RunTimeError{kInvalidArgument, "No transaction is open"};
  inTransaction_ = false;
  if (sqlite3_get_autocommit(handle()) == 0) run("ROLLBACK");
}

void Connection::setJournal() {
  if (purpose_ == Purpose::fill) {
    run("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF");
  } else {
    // With the engine's usual journal each notice would wait for the disk three times. With this one a killed
    // process loses nothing that was committed; a power cut may lose the last notices, never half of one.
    run("PRAGMA journal_mode = WAL");
    run("PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 4000");
  }
  run("PRAGMA cache_size = -32000");
  journalIsSet_ = true;
}

std::int32_t Connection::mark() {
  RowCursor row("SELECT user_version FROM pragma_user_version", *this);
  return row.next() ? toKey(row.value(0)) : 0;
}

void Connection::setMark(std::int32_t mark) {
  run(("PRAGMA user_version = " + std::to_string(mark)).c_str());
}

void Connection::removeMark() {
  if (mark() != 0) setMark(0);
}

bool Connection::mergeJournal() {
  std::string mode;
  const auto take = [](void* taken, int, char** values, char**) {
    *static_cast<std::string*>(taken) = values[0];
    return 0;
  };
  int result = sqlite3_exec(handle(), "PRAGMA journal_mode = DELETE", take, &mode, nullptr);
  // Nobody may be reading from it or about to write either.
  if (result == SQLITE_OK && mode == "delete")
    result = sqlite3_exec(handle(), "BEGIN EXCLUSIVE; COMMIT", nullptr, nullptr, nullptr);
  if (result != SQLITE_OK && result != SQLITE_BUSY) throw failure();
  return result == SQLITE_OK && mode == "delete";
}

void Connection::openTable(std::string_view name) {
  if (openedTables_.contains(name)) return;
  std::string quoted;
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  const std::string sql = "SELECT * FROM \"" + utf8FromText(quoted) + "\"";
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(handle(), sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK) throw failure();
  const Statement statement(prepared);
  openedTables_.emplace(name);
}

sqlite3_stmt* Connection::changing(const std::string& sql) {
  if (inTransaction_ && sqlite3_get_autocommit(handle()) != 0) {
    throw RunTimeError{SQLITE_ABORT, "The transaction was ended by an earlier error"};
  }
  Statement& kept = changing_[sql];
  if (kept == nullptr) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v3(handle(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr) !=
        SQLITE_OK) {
      throw failure();
    }
    kept.reset(prepared);
  }
  sqlite3_reset(kept.get());
  sqlite3_clear_bindings(kept.get());
  return kept.get();
}

std::shared_ptr<PreparedSelect>& Connection::keptSelect(std::string_view sql) {
  const auto found = keptSelects_.find(sql);
  return found != keptSelects_.end() ? found->second : keptSelects_[std::string(sql)];
}

RunTimeError Connection::failure() {
  if (obstacle_ == Obstacle::none) obstacle_ = obstacleOf(handle());
  if (!limit_->wasReached()) return engineError(handle());
  return std::exchange(toldOfLimit_, true) ? RunTimeError{} : noWorkingDatabase(kNotWorking);
}

void Connection::run(const char* sql) {
  if (limit_->run(sql) != SQLITE_OK) throw failure();
}

void Connection::requirePlainTables() {
  for (RowCursor rows("SELECT type, tbl_name, sql FROM sqlite_schema", *this); rows.next();) {
    const std::string table = rows.value(1).value_or("");
    if (!isPlainEntry(rows.value(0).value_or(""), table, rows.value(2).value_or("")))
      throw noWorkingDatabase(kNoPlainTable, table);
  }
}

ReadingOneState::ReadingOneState(Connection& connection) : connection_(connection) {
  if (sqlite3_exec(connection_.handle(), "BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK)
    throw connection_.failure();
}

ReadingOneState::~ReadingOneState() {
  // There is nothing to store; an error has ended it already.
  sqlite3_exec(connection_.handle(), "COMMIT", nullptr, nullptr, nullptr);
}

}  // namespace zamo
