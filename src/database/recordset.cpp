#include "database/recordset.h"

#include <sqlite3.h>

#include <memory>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

RunTimeError notOneSelect() { return {kInvalidArgument, "A recordset takes one SELECT and nothing else"}; }

Statement prepareSelect(const std::string& sql, sqlite3* database) {
  // Looked at before the engine sees it: a PRAGMA takes effect when it is prepared.
  if (!equalsIgnoringCase(trimText(sql).substr(0, 6), "SELECT")) throw notOneSelect();
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  if (sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()), &prepared, &tail) != SQLITE_OK) {
    throw engineError(database);
  }
  Statement statement(prepared);
  const bool isWhole = isBlank({tail, static_cast<std::size_t>(sql.c_str() + sql.size() - tail)});
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

}  // namespace

Recordset::Recordset(std::string_view sql, Connection& connection) {
  const Statement statement = prepareSelect(utf8FromText(sql), connection.handle());
  int result = SQLITE_DONE;
  while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
    Row row;
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
      row.push_back(columnText(statement.get(), column));
    }
    rows_.push_back(std::move(row));
  }
  if (result != SQLITE_DONE) throw engineError(connection.handle());
}

const std::optional<std::string>& Recordset::value(std::size_t column) const {
  if (atEnd() || column >= rows_[position_].size()) throw RunTimeError{kIndexOutOfRange, "No such field"};
  return rows_[position_][column];
}

}  // namespace zamo
