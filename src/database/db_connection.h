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

// Whether the template holds the table `addr_code`; otherwise the user is told that it is an old one.
bool masterHasAddrCodeTable(const Host& host, const std::string& templatePath = masterTemplatePath());

}  // namespace zamo
