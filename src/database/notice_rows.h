// What the operations that change the rows of a notice share.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/connection.h"
#include "database/db_connection.h"
#include "database/operation.h"
#include "database/recordset.h"
#include "platform/host.h"

namespace zamo {

// The statement with a key behind it.
std::string keyed(std::string_view sql, std::int32_t key);

// A new row of the table, with its key set.
Recordset newRow(std::string_view table, std::string_view keyColumn, std::int32_t key,
                 Connection& connection);

void collectIfGiven(Recordset& row, std::string_view column, std::string_view text);
void collectOrClear(Recordset& row, std::string_view column, std::string_view text);

void deleteEveryRow(Recordset& rows);

// Runs `body` as one transaction, all or nothing, and gives whether it was committed. Whatever is thrown,
// none stays open.
template <typename Body>
bool inTransaction(const Host& host, std::string_view operation, Connection& connection, Body body) {
  const bool begun = guarded(host, operation, [&connection] {
    connection.BeginTrans();
    return true;
  });
  if (!begun) return false;
  bool success = false;
  try {
    success = guarded(host, operation, body);
  } catch (...) {
    endTransaction(host, false, connection);
    throw;
  }
  return endTransaction(host, success, connection);
}

}  // namespace zamo
