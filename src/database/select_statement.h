// One SELECT on its way into the engine, and the values on their way out of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "database/connection.h"

namespace zamo {

// Takes the text in the engine's own dialect and in UTF-8; `flags` are the engine's. Anything but one SELECT
// is thrown as a RunTimeError, without having had an effect.
Statement prepareSelect(const std::string& engineSelect, unsigned flags, Connection& connection);

// A value of the row that the statement stands on: text in the code page, numbers in their shortest form;
// nothing for a Null.
std::optional<std::string> columnText(sqlite3_stmt* statement, int column);

}  // namespace zamo
