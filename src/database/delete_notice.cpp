#include "database/delete_notice.h"

#include "database/dialect.h"
#include "database/key_value.h"
#include "database/lookups.h"
#include "database/notice_rows.h"
#include "model/notice_words.h"
#include "platform/message.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kNotUnique("box \"Database error\": a notice that is to be deleted has not exactly one row", "The selected notice is not unique. Please consult the administrator!");
const Message kContourCorrupted("box \"Database error\": a contour that is to be deleted has not exactly one row", "deleteContourTable: The contour is corrupted. Please consult the administrator!");
const Message kPointsCorrupted("box \"Database error\": a contour that is to be deleted or corrected has fewer than two test points", "deleteContourPointTable: The contour point is corrupted. Please consult the administrator!");
const Message kAllotmentCorrupted("box \"Database error\": an allotment that is to be corrected has lost the links to its sub-areas", "deleteSubAreaTable: The allotment is corrupted. Please consult the administrator!");
// clang-format on

bool refuse(const Host& host, const Message& message) {
  host.showBox({message.filled({}), "Database error", BoxIcon::exclamation});
  return false;
}

bool isAllotmentType(std::string_view type) {
  return isInAnyCase(type, {types::GT2, types::GS2});
}

}  // namespace

bool deleteNtcFromDB(const Host& host, std::int32_t key, Connection& connection) {
  return inTransaction(host, "deleteNtcFromDB", connection, [&] {
    const bool isAllotment = isAllotmentType(getNoticeType(host, key, connection));
    const bool linksDeleted = !isAllotment || deleteLinkSubArea(host, key, connection);
    return deleteOneFromKv19Vorna(host, key, connection) && linksDeleted;
  });
}

bool deleteContourFromDB(const Host& host, std::int32_t contourkey, Connection& connection) {
  return inTransaction(host, "deleteContourFromDB", connection,
                       [&] { return deleteContourTable(host, contourkey, connection); });
}

bool deleteOneFromKv19Vorna(const Host& host, std::int32_t key, Connection& connection) {
  return guarded(host, "deleteOneFromKv19Vorna", [&] {
    Recordset rows(keyed("SELECT * FROM fmtv_vorna WHERE vornakey = ", key), connection);
    if (rows.RecordCount() != 1) return refuse(host, kNotUnique);
    rows.Delete();
    return true;
  });
}

bool deleteLinkSubArea(const Host& host, std::int32_t key, Connection& connection) {
  return guarded(host, "deleteLinkSubArea", [&] {
    Recordset rows(
        keyed("SELECT * FROM lmz_allotment WHERE vornakey = ", key) + " AND nb_sub_areas is NOT Null",
        connection);
    bool good = true;
    for (; !rows.atEnd(); rows.MoveNext()) {
      good = deleteSubAreaLinks(host, keyValue(rows, "allotkey"), connection) && good;
    }
    return good;
  });
}

bool deleteSubAreaLinks(const Host& host, std::int32_t allotkey, Connection& connection) {
  Recordset rows(keyed("SELECT * FROM lmz_sub_area WHERE allotkey = ", allotkey), connection);
  bool good = rows.RecordCount() > 0;
  for (; !rows.atEnd(); rows.MoveNext()) {
    good = deleteContourOrph(host, keyValue(rows, "contourkey"), connection) && good;
  }
  return good;
}

bool deleteContourOrph(const Host& host, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "deleteContourOrph", [&] {
    Recordset placeholders(
        keyed("SELECT * FROM lmz_contour WHERE contourkey = ", contourkey) + " AND nb_test_pts Is NULL",
        connection);
    deleteEveryRow(placeholders);
    // Those of other allotments that share the contour go as well.
    Recordset links(keyed("Select * FROM lmz_sub_area WHERE contourkey = ", contourkey), connection);
    deleteEveryRow(links);
    return true;
  });
}

bool deleteContourTable(const Host& host, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "deleteContourTable", [&] {
    Recordset rows(keyed("SELECT * FROM lmz_contour WHERE contourkey = ", contourkey), connection);
    if (rows.RecordCount() != 1) return refuse(host, kContourCorrupted);
    if (!deleteContourPointTable(host, contourkey, connection)) return false;
    rows.Collect("nb_test_pts", std::nullopt);
    rows.Update();
    return true;
  });
}

bool deleteContourPointTable(const Host& host, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "deleteContourPointTable", [&] {
    Recordset rows(keyed("SELECT * FROM lmz_contour_pt WHERE contourkey = ", contourkey), connection);
    if (rows.RecordCount() < 2) return refuse(host, kPointsCorrupted);
    deleteEveryRow(rows);
    return true;
  });
}

bool deleteSubAreaTable(const Host& host, std::int32_t allotkey, Connection& connection) {
  return guarded(host, "deleteSubAreaTable", [&] {
    Recordset rows(keyed("SELECT * FROM lmz_sub_area WHERE allotkey = ", allotkey), connection);
    if (rows.RecordCount() == 0) return refuse(host, kAllotmentCorrupted);
    deleteEveryRow(rows);
    return true;
  });
}

void deleteArt5TargetTable(const Host& host, std::int32_t key, Connection& connection) {
  guarded(host, "deleteArt5TargetTable", [&] {
    Recordset rows(keyed("SELECT * FROM fmtv_art5_target WHERE vornakey = ", key), connection);
    if (rows.RecordCount() == 1) rows.Delete();
    return true;
  });
}

bool deleteFromAntDiagr(const Host& host, std::int32_t key, char polar, Connection& connection) {
  return guarded(host, "deleteFromAntDiagr", [&] {
    deleteDiagramRows(key, polar, connection);
    return true;
  });
}

void deleteDiagramRows(std::int32_t key, char polar, Connection& connection) {
  std::string sql = keyed("SELECT * FROM fmtv_ant_diag WHERE vornakey = ", key);
  sql.append(" AND polar = '").append(joinedText({&polar, 1})).append("'");
  Recordset rows(sql, connection);
  deleteEveryRow(rows);
}

}  // namespace zamo
