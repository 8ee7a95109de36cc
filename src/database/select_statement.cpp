#include "database/select_statement.h"

#include <sqlite3.h>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

RunTimeError notOneSelect() {
  return {kInvalidArgument, "A recordset takes one SELECT and nothing else"};
}

}  // namespace

Statement prepareSelect(const std::string& engineSelect, unsigned flags, Connection& connection) {
  // Looked at before the engine sees it: a PRAGMA takes effect when it is prepared.
  if (!equalsIgnoringCase(trimText(engineSelect).substr(0, 6), "SELECT")) throw notOneSelect();
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  if (sqlite3_prepare_v3(connection.handle(), engineSelect.c_str(), static_cast<int>(engineSelect.size()),
                         flags, &prepared, &tail) != SQLITE_OK) {
    throw connection.failure();
  }
  Statement statement(prepared);
  const char* const end = engineSelect.c_str() + engineSelect.size();
  const bool isWhole = isBlank({tail, static_cast<std::size_t>(end - tail)});
  if (!isWhole || sqlite3_stmt_readonly(prepared) == 0) throw notOneSelect();
  return statement;
}

std::optional<std::string> columnText(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_FLOAT:
      return numberText(sqlite3_column_double(statement, column));
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      return textFromUtf8({text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))});
    }
  }
}

}  // namespace zamo
