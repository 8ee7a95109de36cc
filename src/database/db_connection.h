// Opening and closing databases, and telling which sort of database a file is.
#pragma once

#include <memory>
#include <string>

#include "database/connection.h"
#include "platform/host.h"

namespace zamo {

// Empty while no database is open.
using DbConnection = std::unique_ptr<Connection>;

// Opens the database at `path` into `connection`. On failure the common error box, False, and no connection.
bool OpenDB(const Host& host, const std::string& path, DbConnection& connection);

// Closes and releases; nothing happens when none is open.
void closeDB(DbConnection& connection);

// The master template, beside the executable.
std::string masterTemplatePath();

// Ends the transaction of one notice: commits, or rolls back and tells the user that nothing was saved. Gives
// whether the notice is in the database; a commit that fails is shown in the common error box and rolled back
// likewise.
bool endTransaction(const Host& host, bool success, Connection& connection);

// Whether this is the full reference database, of which the user is told.
bool isCentralDatabase(const Host& host, Connection& connection);

// Whether the database holds the table `addr_code`; otherwise the user is told that it is an old one.
bool dbHasAddrCodeTable(const Host& host, Connection& connection);

// Copies the master template onto `destination`, replacing what is there and what an earlier run may have
// left beside it. A failure is told in a box and gives false. A destination that is the template itself, that
// can't be replaced or that another program has open is such a failure, and is left as it was.
bool copyMasterDB(const Host& host, const std::string& destination,
                  const std::string& templatePath = masterTemplatePath());

// Whether the template holds the table `addr_code`; otherwise the user is told that it is an old one.
bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath = masterTemplatePath());

}  // namespace zamo
