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
bool OpenDB(const Host& host, const std::string& path, DbConnection& connection,
            Purpose purpose = Purpose::work);

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

// Whether the template holds the table `addr_code`; otherwise the user is told that it is an old one.
bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath = masterTemplatePath());

}  // namespace zamo
