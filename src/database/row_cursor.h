// The rows of one SELECT, one after the other and none of them kept, for those who read many.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "database/connection.h"

namespace zamo {

// SQL text is in the code page and in the dialect of the operations; anything but one SELECT is refused. Not
// for a walk during which rows are changed. Every failure is thrown as a RunTimeError.
class RowCursor {
 public:
  RowCursor(std::string_view sql, Connection& connection);

  // Goes to the next row, at first to the first one. False behind the last.
  bool next();

  std::size_t columnCount() const;
  // As the statement names it.
  std::string title(std::size_t column) const;
  // The column of that title, in any case; an unknown one is an error.
  std::size_t columnOf(std::string_view title) const;

  // Of the current row: text in the code page, numbers in their shortest form; nothing for a Null.
  std::optional<std::string> value(std::size_t column) const;
  bool isNumber(std::size_t column) const;

 private:
  Connection* connection_;
  Statement statement_;
};

}  // namespace zamo
