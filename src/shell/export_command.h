// The commands that write notices of the open database to a text file.
#pragma once

#include <string_view>

#include "database/export.h"
#include "shell/shell.h"

namespace zamo {

// The menu commands: all notices, and those that meet the condition of the date dialog. Without a condition
// the latter ends there. Without an open database a RunTimeError is thrown.
void mnuTxtDBAll(Shell& shell);
void mnuTxtDBUpdated(Shell& shell);

// What they do. Contours without test points, which only allotments name, are left out.
ExportEnd exportAll(Shell& shell);
ExportEnd exportUpdated(Shell& shell, std::string_view condition);

// Writes what the two statements select beside the open database, into the file named in CorrFileName; its
// name holds the time of day. Behind it the mouse pointer is the usual one.
ExportEnd exportTextFromDb(Shell& shell, std::string_view noticeSql, std::string_view contourSql);

}  // namespace zamo
