// Telling a database that was only loaded from one that was worked on since.
#pragma once

#include "database/connection.h"

namespace zamo {

// To be called when a load has filled the database. Every later transaction of a working connection takes it
// back.
void markAsLoaded(Connection& connection);

// Whether replacing the database would lose somebody's work: it has notices and isn't as its load left it.
// Of a database that no mark was ever put into (an older version's, another program's) that is taken for
// granted.
bool holdsCorrections(Connection& connection);

}  // namespace zamo
