#include "database/corrections.h"

#include <cstdint>
#include <string_view>

#include "database/row_cursor.h"

namespace zamo {
namespace {

// FNV-1a.
class Fingerprint {
 public:
  void add(std::string_view text) {
    for (const char c : text) add(c);
    add('\0');
  }
  // Never 0, which is no mark.
  std::int32_t value() const { return static_cast<std::int32_t>(hash_ & 0x7FFFFFFF) | 1; }

 private:
  void add(char c) { hash_ = (hash_ ^ static_cast<unsigned char>(c)) * 16777619U; }

  std::uint32_t hash_ = 2166136261U;
};

// What a correction writes into, whoever makes it.
std::int32_t fingerprintOfHistory(Connection& connection) {
  Fingerprint fingerprint;
  RowCursor rows("SELECT vornakey, email_addr, src_update, d_updated FROM proc_ntc_hist", connection);
  while (rows.next()) {
    for (std::size_t column = 0; column < rows.columnCount(); ++column)
      fingerprint.add(rows.value(column).value_or(""));
  }
  return fingerprint.value();
}

bool hasRow(std::string_view sql, Connection& connection) {
  return RowCursor(sql, connection).next();
}

}  // namespace

void markAsLoaded(Connection& connection) {
  connection.setMark(fingerprintOfHistory(connection));
}

bool holdsCorrections(Connection& connection) {
  const bool hasNotices = hasRow("SELECT vornakey FROM fmtv_vorna", connection) ||
                          hasRow("SELECT contourkey FROM lmz_contour", connection);
  return hasNotices && connection.mark() != fingerprintOfHistory(connection);
}

}  // namespace zamo
