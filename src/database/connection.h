// The one door to SQLite: a connection to a database file.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/run_time_error.h"

struct sqlite3;

namespace zamo {

// The engine's last error on a connection.
RunTimeError engineError(sqlite3* database);

// Every failure is thrown as a RunTimeError with the engine's number and text.
class Connection {
 public:
  // Opens an existing database file; it is never created. A file that is no database fails here.
  explicit Connection(const std::string& path);

  // Opens a table for adding rows and closes it again. Throws when there is no such table.
  void openTable(std::string_view name);

  sqlite3* handle() { return database_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };

  void prepareOnly(const std::string& sql);

  std::unique_ptr<sqlite3, Close> database_;
};

}  // namespace zamo
