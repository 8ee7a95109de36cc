// Keys as they come out of a recordset.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "database/recordset.h"
#include "platform/run_time_error.h"

namespace zamo {

// The key that a value is. A Null, and what is no 32-bit number, is thrown as a RunTimeError.
inline std::int32_t toKey(const std::optional<std::string>& text) {
  if (!text) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  std::int32_t key = 0;
  const char* end = text->data() + text->size();
  const auto [last, failed] = std::from_chars(text->data(), end, key);
  if (failed == std::errc::result_out_of_range) throw RunTimeError{kOverflow, "Overflow"};
  if (failed != std::errc() || last != end) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  return key;
}

// The key in a field of the current row; errors likewise.
inline std::int32_t keyValue(const Recordset& rows, std::string_view field) {
  return toKey(rows.value(field));
}

}  // namespace zamo
