#include "database/connection.h"

#include <sqlite3.h>

#include <filesystem>

#include "platform/code_page.h"

namespace zamo {
namespace {

// The engine reads "", ":memory:" and "file:..." as something else than files of that name; an absolute path
// is plain.
std::string absolutePath(const std::string& path) {
  std::error_code failed;
  const std::string absolute = std::filesystem::absolute(path, failed).string();
  if (failed || absolute.empty()) throw RunTimeError{SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN)};
  return absolute;
}

}  // namespace

RunTimeError engineError(sqlite3* database) {
  return {sqlite3_extended_errcode(database), textFromUtf8(sqlite3_errmsg(database))};
}

Connection::Connection(const std::string& path) {
  sqlite3* database = nullptr;
  const int result = sqlite3_open_v2(absolutePath(path).c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  database_.reset(database);
  if (result != SQLITE_OK) throw engineError(database);
  // The engine doesn't look at the file before the first statement.
  if (sqlite3_exec(database, "PRAGMA foreign_keys = ON; SELECT count(*) FROM sqlite_schema", nullptr, nullptr,
                   nullptr) != SQLITE_OK) {
    throw engineError(database);
  }
}

void Connection::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void Connection::openTable(std::string_view name) {
  std::string quoted;
  for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
  prepareOnly("SELECT * FROM \"" + utf8FromText(quoted) + "\"");
}

void Connection::prepareOnly(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
    throw engineError(database_.get());
  }
  sqlite3_finalize(statement);
}

}  // namespace zamo
