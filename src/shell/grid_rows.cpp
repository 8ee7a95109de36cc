#include "shell/grid_rows.h"

#include <limits>

#include "platform/run_time_error.h"

namespace zamo {

GridRows::GridRows(std::string_view sql, Connection& connection) {
  RowCursor cursor(sql, connection);
  takeTitles(cursor);
  while (cursor.next()) add(cursor);
}

void GridRows::takeTitles(const RowCursor& row) {
  columns_.resize(row.columnCount());
  for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i].title = row.title(i);
}

void GridRows::add(const RowCursor& row) {
  if (columns_.empty()) takeTitles(row);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    Column& column = columns_[i];
    if (const auto value = row.value(i)) {
      (row.isNumber(i) ? column.holdsNumbers : column.holdsOthers) = true;
      texts_ += *value;
      if (value->size() > column.longest) {
        column.longest = value->size();
        column.longestRow = rowCount_;
      }
    }
    ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
  }
  ++rowCount_;
  if (texts_.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw RunTimeError{kOverflow, "The selection is too large to be shown"};
  }
}

std::string_view GridRows::text(std::size_t row, std::size_t column) const {
  const std::size_t cell = row * columns_.size() + column;
  const std::size_t begin = cell == 0 ? 0 : ends_[cell - 1];
  return std::string_view(texts_).substr(begin, ends_[cell] - begin);
}

}  // namespace zamo
