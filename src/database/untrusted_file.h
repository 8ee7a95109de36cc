// A database file may come from anybody: what it can't do to the program that opens it.
#pragma once

#include <string_view>

struct sqlite3;

namespace zamo {

// Takes from the engine what a working database never needs: triggers, views, functions that reach beyond the
// file, sizes beyond reason.
void restrictEngine(sqlite3* database);

// Whether an entry of a schema (its kind, its table and the statement that made it) may stand in a working
// database: a table that the program reads or writes is a table, and computes nothing but what the template
// has it compute. What belongs to other tables is never looked at, and triggers never run.
bool isPlainEntry(std::string_view type, std::string_view table, std::string_view sql);

}  // namespace zamo
