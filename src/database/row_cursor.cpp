#include "database/row_cursor.h"

#include <sqlite3.h>

#include "database/dialect.h"
#include "database/select_statement.h"
#include "platform/code_page.h"
#include "platform/text.h"

namespace zamo {

RowCursor::RowCursor(std::string_view sql, Connection& connection)
    : connection_(&connection), statement_(prepareSelect(utf8FromText(engineSql(sql)), 0, connection)) {}

bool RowCursor::next() {
  const int result = connection_->step(statement_.get());
  if (result == SQLITE_ROW) return true;
  if (result != SQLITE_DONE) throw connection_->failure();
  return false;
}

std::size_t RowCursor::columnCount() const {
  return static_cast<std::size_t>(sqlite3_column_count(statement_.get()));
}

std::string RowCursor::title(std::size_t column) const {
  return textFromUtf8(sqlite3_column_name(statement_.get(), static_cast<int>(column)));
}

std::size_t RowCursor::columnOf(std::string_view title) const {
  for (std::size_t column = 0; column < columnCount(); ++column) {
    if (equalsIgnoringCase(this->title(column), title)) return column;
  }
  throw RunTimeError{kIndexOutOfRange, "No such field"};
}

std::optional<std::string> RowCursor::value(std::size_t column) const {
  return columnText(statement_.get(), static_cast<int>(column));
}

bool RowCursor::isNumber(std::size_t column) const {
  const int type = sqlite3_column_type(statement_.get(), static_cast<int>(column));
  return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

}  // namespace zamo
