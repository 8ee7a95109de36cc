// What the grid shows: the rows of one SELECT, read once and kept close together. A hundred thousand of them
// take some twenty megabytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/row_cursor.h"

namespace zamo {

class GridRows {
 public:
  // No column and no row.
  GridRows() = default;
  // What the engine says against the statement is thrown as a RunTimeError.
  GridRows(std::string_view sql, Connection& connection);

  // Adds the row that the cursor of such a SELECT stands on.
  void add(const RowCursor& row);

  std::size_t rowCount() const { return rowCount_; }
  std::size_t columnCount() const { return columns_.size(); }

  // As the statement names it.
  const std::string& title(std::size_t column) const { return columns_[column].title; }
  // Whether every value of the column is a number, and there is one.
  bool holdsNumbers(std::size_t column) const {
    return columns_[column].holdsNumbers && !columns_[column].holdsOthers;
  }
  // A row whose text in the column is as long as any. There must be rows.
  std::size_t longestRow(std::size_t column) const { return columns_[column].longestRow; }

  // Text in the code page, a Null as an empty one. It stands as long as these rows.
  std::string_view text(std::size_t row, std::size_t column) const;

 private:
  struct Column {
    std::string title;
    bool holdsNumbers = false;
    bool holdsOthers = false;
    std::size_t longestRow = 0;
    std::size_t longest = 0;
  };

  void takeTitles(const RowCursor& row);

  std::vector<Column> columns_;
  std::size_t rowCount_ = 0;
  std::string texts_;                // of all cells, row by row
  std::vector<std::uint32_t> ends_;  // where each of them ends
};

}  // namespace zamo
