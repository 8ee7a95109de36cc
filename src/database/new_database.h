// A working database in the making.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "database/db_connection.h"
#include "platform/file_hold.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/run_time_error.h"

namespace zamo {

// Somebody has the database open, or is making it anew.
struct DatabaseInUse : RunTimeError {
  DatabaseInUse(const std::string& database, const FileUser& user);
};

// It is filled under a name of its own, beside the place that it is for, and takes that place in one step.
// Until then an old database there stays as it is, and this one goes with this object.
class NewDatabase {
 public:
  // A copy of the template. Throws RunTimeError and DatabaseInUse, with nothing made. What killed makings of
  // the same database have left is removed.
  NewDatabase(std::string place, const std::string& templatePath);

  // Where it is filled.
  const std::string& path() const { return file_->path(); }
  bool replacesAnother() const;

  // Puts it in its place, when it is filled and closed. An old database that somebody has worked on is kept
  // beside it, and a note tells where. From then on this holds it. Throws RunTimeError and DatabaseInUse, and
  // the old database stands as it was.
  void takePlace(const Host& host);

 private:
  void clearPlace(const Host& host, std::string& kept, std::optional<SoleUse>& old) const;

  std::string place_;
  std::optional<NewFile> file_;
  FileHold hold_;
};

// What became of an attempt to make one.
struct MasterCopy {
  std::unique_ptr<NewDatabase> database;
  bool isRefused = false;  // somebody has the place in use
};

// Copies the master template for `destination`, replacing what is there when the database takes its place. A
// failure is told in a box and gives no database. A destination that is the template itself, that can't be
// replaced or that somebody has in use is such a failure, and is left as it was.
MasterCopy copyMasterDB(const Host& host, const std::string& destination,
                        const std::string& templatePath = masterTemplatePath());

// Puts the database in its place; a failure is told in a box.
bool putInPlace(const Host& host, NewDatabase& database);

}  // namespace zamo
