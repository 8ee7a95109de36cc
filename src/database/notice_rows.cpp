#include "database/notice_rows.h"

#include "database/dialect.h"

namespace zamo {

std::string keyed(std::string_view sql, std::int32_t key) {
  return std::string(sql).append(joinedNumber(std::to_string(key)));
}

Recordset newRow(std::string_view table, std::string_view keyColumn, std::int32_t key,
                 Connection& connection) {
  Recordset row(table, connection, OpenAs::table);
  row.AddNew();
  row.Collect(keyColumn, std::int64_t{key});
  return row;
}

void collectIfGiven(Recordset& row, std::string_view column, std::string_view text) {
  if (!text.empty()) row.Collect(column, text);
}

void collectOrClear(Recordset& row, std::string_view column, std::string_view text) {
  row.Collect(column, text.empty() ? std::nullopt : std::optional(text));
}

void deleteEveryRow(Recordset& rows) {
  for (; !rows.atEnd(); rows.MoveNext()) rows.Delete();
}

}  // namespace zamo
