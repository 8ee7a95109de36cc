#include "shell/grid_rows.h"

#include <limits>

#include "database/row_cursor.h"
#include "platform/run_time_error.h"

namespace zamo {

GridRows::GridRows(std::string_view sql, Connection& connection) {
  RowCursor cursor(sql, connection);
  columns_.resize(cursor.columnCount());
  for (std::size_t i = 0; i < columns_.size(); ++i) columns_[i].title = cursor.title(i);
  for (; cursor.next(); ++rowCount_) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      Column& column = columns_[i];
      if (const auto value = cursor.value(i)) {
        (cursor.isNumber(i) ? column.holdsNumbers : column.holdsOthers) = true;
        texts_ += *value;
        if (value->size() > column.longest) {
          column.longest = value->size();
          column.longestRow = rowCount_;
        }
      }
      ends_.push_back(static_cast<std::uint32_t>(texts_.size()));
    }
    if (texts_.size() > std::numeric_limits<std::uint32_t>::max()) {
      throw RunTimeError{kOverflow, "The selection is too large to be shown"};
    }
  }
  texts_.shrink_to_fit();
  ends_.shrink_to_fit();
  for (Column& column : columns_) column.holdsNumbers = column.holdsNumbers && !column.holdsOthers;
}

std::string_view GridRows::text(std::size_t row, std::size_t column) const {
  const std::size_t cell = row * columns_.size() + column;
  const std::size_t begin = cell == 0 ? 0 : ends_[cell - 1];
  return std::string_view(texts_).substr(begin, ends_[cell] - begin);
}

}  // namespace zamo
