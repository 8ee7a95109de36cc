// The rows of one SELECT.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"

namespace zamo {

// Opened on SQL text in the code page. Anything but one SELECT is refused, so that values joined into the
// text can never change data. Every failure is thrown as a RunTimeError.
class Recordset {
 public:
  Recordset(std::string_view sql, Connection& connection);

  std::int64_t RecordCount() const { return static_cast<std::int64_t>(rows_.size()); }
  bool atEnd() const { return position_ >= rows_.size(); }
  void MoveNext() { ++position_; }

  // A field of the current row as text in the code page, numbers in their shortest form; nothing for a Null.
  const std::optional<std::string>& value(std::size_t column) const;

 private:
  using Row = std::vector<std::optional<std::string>>;

  std::vector<Row> rows_;
  std::size_t position_ = 0;
};

}  // namespace zamo
