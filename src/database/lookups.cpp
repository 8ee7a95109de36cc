#include "database/lookups.h"

#include <cmath>
#include <limits>
#include <utility>

#include "database/dialect.h"
#include "database/key_value.h"
#include "database/operation.h"
#include "database/recordset.h"
#include "database/row_cursor.h"
#include "noticefile/writer_text.h"
#include "platform/message.h"
#include "platform/numbers.h"

namespace zamo {
namespace {

// clang-format off
const Message kContourNotUnique("box: several contours have the number, the country and the administration", "Problem : Contour ID is not unique !! Please consult the adminstrator");
const Message kOverwriteContour("question \"Duplicate ContourID\": the contour has test points already; its number, how many they are and how many would replace them", "Do you want to overwrite : \r\nContour ID : %1 defined with %2 test points  WITH\r\nContour ID : %1 defined with %3 test points ?");
// clang-format on

std::string asText(std::string_view value) {
  return std::string(joinedText(value));
}

std::string asNumber(std::string_view value) {
  return std::string(joinedNumber(value));
}

// The value of a text in plain decimals; an empty text is 0.
std::string decimals(std::string_view text) {
  return asNumber(numberText(leadingNumber(text)));
}

// The same as a 16-bit number, halves rounded to even.
std::string shortDecimals(std::string_view text) {
  const double value = std::nearbyint(leadingNumber(text));
  using Short = std::numeric_limits<std::int16_t>;
  if (value < Short::min() || value > Short::max()) throw RunTimeError{kOverflow, "Overflow"};
  return asNumber(numberText(value));
}

std::string textOf(const Recordset& rows, std::string_view field) {
  return rows.value(field).value_or("");
}

std::string contourStatement(std::string_view contourId, std::string_view ctry, std::string_view adm) {
  return "SELECT * FROM lmz_contour WHERE contour_id = " + asNumber(contourId) + " AND ctry = '" +
         asText(ctry) + "' AND adm = '" + asText(adm) + "'";
}

// What makes an allotment the same area: its name, or one of its sub-areas.
std::string areaCondition(const AllotRec& allot) {
  if (!allot.t_geo_area.empty()) return " geo_area = '" + asText(allot.t_geo_area) + "'";
  const double told = leadingNumber(allot.t_nb_sub_areas);
  std::string condition = " lmz_contour.contour_id = " + asNumber(allot.t_contour_id[0]);
  for (std::size_t i = 1; i < allot.t_contour_id.size() && static_cast<double>(i) < told; ++i) {
    condition += " or  lmz_contour.contour_id = " + asNumber(allot.t_contour_id[i]);
  }
  return condition;
}

std::string allotmentStatement(const NtcRec& ntc) {
  return "SELECT fmtv_vorna.vornakey, fmtv_vorna.intent, fmtv_vorna.adm_ref_id, fmtv_vorna.assgn_id FROM"
         " lmz_contour INNER JOIN ((fmtv_vorna INNER JOIN lmz_allotment ON fmtv_vorna.vornakey = "
         "lmz_allotment.vornakey)"
         " INNER JOIN lmz_sub_area ON lmz_allotment.allotkey = lmz_sub_area.allotkey)"
         " ON lmz_contour.contourkey = lmz_sub_area.contourkey WHERE (" +
         areaCondition(ntc.digital.allot) + ") AND fmtv_vorna.adm = '" + asText(ntc.t_adm) +
         "' AND fmtv_vorna.freq_assgn = " + asNumber(ntc.t_freq_assgn);
}

// What a contour tells of its points may be no whole number.
bool countPoints(const Host& host, double expected, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "countContourPoints", [&] {
    Recordset rows("SELECT * FROM lmz_contour_pt WHERE contourkey = " + std::to_string(contourkey),
                   connection);
    rows.MoveLast();
    return static_cast<double>(rows.RecordCount()) == expected;
  });
}

std::vector<std::int32_t> keysOf(std::string_view sql, std::string_view field, Connection& connection,
                                 const RowTaker& take) {
  RowCursor rows(sql, connection);
  const std::size_t column = rows.columnOf(field);
  std::vector<std::int32_t> keys;
  while (rows.next()) {
    keys.push_back(toKey(rows.value(column)));
    if (take) take(rows);
  }
  return keys;
}

std::int64_t countRows(std::string_view sql, Connection& connection) {
  RowCursor rows(sql, connection);
  std::int64_t count = 0;
  while (rows.next()) ++count;
  return count;
}

// A selection without a row leaves the list as it is; the count tells of it.
bool takeKeys(std::vector<std::int32_t> keys, std::vector<std::int32_t>& list, std::int32_t& count) {
  count = static_cast<std::int32_t>(keys.size());
  if (count > 0) list = std::move(keys);
  return true;
}

bool takeLastKey(std::string_view sql, std::string_view field, std::int32_t& number, Connection& connection) {
  const Recordset rows(sql, connection);
  if (rows.atEnd()) return false;
  number = keyValue(rows, field) - 1;
  return true;
}

}  // namespace

bool findByAdmRefId(const Host& host, std::string_view admRefId, std::string_view adm, std::int32_t& key,
                    Connection& connection) {
  return guarded(host, "findByAdmRefId", [&] {
    const Recordset rows("SELECT vornakey, intent FROM fmtv_vorna WHERE adm_ref_id = '" + asText(admRefId) +
                             "' AND adm = '" + asText(adm) + "'    ",
                         connection);
    if (rows.atEnd()) return false;
    key = keyValue(rows, "vornakey");
    return true;
  });
}

bool findAssignmentByElements(const Host& host, const NtcRec& ntc, std::int32_t& key, std::string& reference,
                              Connection& connection) {
  return guarded(host, "findAssignmentByElements", [&] {
    const Recordset rows(
        "SELECT vornakey, adm_ref_id From fmtv_vorna WHERE freq_assgn = " + decimals(ntc.t_freq_assgn) +
            " AND adm = '" + asText(ntc.t_adm) + "' AND long_deg = " + shortDecimals(ntc.long_deg) +
            " AND long_ew = '" + asText(ntc.long_ew) + "' AND long_min = " + shortDecimals(ntc.long_min) +
            " AND long_sec = " + shortDecimals(ntc.long_sec) +
            " AND lat_deg = " + shortDecimals(ntc.lat_deg) + " AND lat_ns = '" + asText(ntc.lat_ns) +
            "' AND lat_min = " + shortDecimals(ntc.lat_min) + " AND lat_sec = " + shortDecimals(ntc.lat_sec),
        connection);
    if (rows.atEnd()) return false;
    key = keyValue(rows, "vornakey");
    reference = textOf(rows, "adm_ref_id");
    return true;
  });
}

bool findAllotmentByElements(const Host& host, const NtcRec& ntc, std::int32_t& key, std::string& reference,
                             Connection& connection) {
  return guarded(host, "findAllotmentByElements", [&] {
    Recordset rows(allotmentStatement(ntc), connection);
    const bool found = !rows.atEnd();
    // The join gives its rows in the order of contours; the one stored first has the lowest key.
    std::int32_t lowest = std::numeric_limits<std::int32_t>::max();
    for (; !rows.atEnd(); rows.MoveNext()) {
      const std::int32_t one = keyValue(rows, "vornakey");
      if (one > lowest) continue;
      key = lowest = one;
      reference = textOf(rows, "adm_ref_id");
    }
    return found;
  });
}

FoundContour findContour(const Host& host, std::int32_t contourId, std::string_view ctry,
                         std::string_view adm, std::string_view newPoints, Connection& connection) {
  return guarded(host, "findContour", [&] {
    FoundContour contour;
    const std::string id = std::to_string(contourId);
    const Recordset rows(contourStatement(id, ctry, adm), connection);
    contour.problem = rows.RecordCount() > 1;
    if (contour.problem) host.showBox({kContourNotUnique.filled({}), ""});
    if (rows.RecordCount() != 1) return contour;
    const std::optional<std::string>& points = rows.value("nb_test_pts");
    contour.hasPoints = points.has_value();
    if (contour.hasPoints) contour.question = kOverwriteContour.filled({id, *points, newPoints});
    contour.contourkey = keyValue(rows, "contourkey");
    contour.found = true;
    return contour;
  });
}

bool contourPointCountMatches(const Host& host, std::string_view contourId, std::string_view ctry,
                              std::string_view adm, Connection& connection) {
  return guarded(host, "contourPointCountMatches", [&] {
    for (Recordset rows(contourStatement(contourId, ctry, adm), connection); !rows.atEnd(); rows.MoveNext()) {
      const std::optional<std::string>& told = rows.value("nb_test_pts");
      if (told && countPoints(host, leadingNumber(*told), keyValue(rows, "contourkey"), connection))
        return true;
    }
    return false;
  });
}

bool hasContourPoints(const Host& host, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "hasContourPoints", [&] {
    return !Recordset("SELECT * FROM lmz_contour_pt WHERE contourkey = " + std::to_string(contourkey),
                      connection)
                .atEnd();
  });
}

bool countContourPoints(const Host& host, std::int64_t expected, std::int32_t contourkey,
                        Connection& connection) {
  return countPoints(host, static_cast<double>(expected), contourkey, connection);
}

bool getTargetElements(const Host& host, std::int32_t key, std::string& frequency, std::string& longitude,
                       std::string& latitude, Connection& connection) {
  return guarded(host, "getTargetElements", [&] {
    const Recordset rows(
        "SELECT freq_assgn, long_deg, long_min, long_sec, long_ew, lat_deg, "
        "lat_min, lat_sec, lat_ns FROM fmtv_vorna WHERE vornakey = " +
            std::to_string(key),
        connection);
    if (rows.RecordCount() != 1) return false;
    const auto text = [&rows](std::string_view field) { return textOf(rows, field); };
    frequency = text("freq_assgn");
    longitude = makeCoordText(text("long_deg"), text("long_min"), text("long_sec"), text("long_ew"));
    latitude = makeCoordText(text("lat_deg"), text("lat_min"), text("lat_sec"), text("lat_ns"));
    return true;
  });
}

std::string getNoticeType(const Host& host, std::int32_t key, Connection& connection) {
  return guarded(host, "getNoticeType", [&] {
    const Recordset rows("SELECT notice_typ FROM fmtv_vorna WHERE vornakey = " + std::to_string(key),
                         connection);
    return rows.atEnd() ? std::string() : textOf(rows, "notice_typ");
  });
}

bool getVornaKeyList(const Host& host, std::vector<std::int32_t>& list, std::string_view sql,
                     std::int32_t& count, Connection& connection, const RowTaker& take) {
  return guarded(host, "getVornaKeyList",
                 [&] { return takeKeys(keysOf(sql, "vornakey", connection, take), list, count); });
}

bool getContourKeyList(const Host& host, std::vector<std::int32_t>& list, std::int32_t& count,
                       std::string_view sql, Connection& connection, const RowTaker& take) {
  return guarded(host, "getContourKeyList",
                 [&] { return takeKeys(keysOf(sql, "contourkey", connection, take), list, count); });
}

std::int64_t countSelectedRecords(const Host& host, Connection& connection, std::string_view firstSql,
                                  std::string_view secondSql) {
  return guarded(host, "countSelectedRecords", [&] {
    const std::int64_t first = countRows(firstSql, connection);
    return first + countRows(secondSql, connection);
  });
}

bool getLastVornaKey(const Host& host, Connection& connection, std::int32_t& number) {
  return guarded(host, "getLastVornaKey", [&] {
    return takeLastKey("SELECT fmtv_keys.vornakey FROM fmtv_keys", "vornakey", number, connection);
  });
}

bool getLastContourKey(const Host& host, Connection& connection, std::int32_t& number) {
  return guarded(host, "getLastContourKey", [&] {
    return takeLastKey("SELECT fmtv_keys.contourkey FROM fmtv_keys", "contourkey", number, connection);
  });
}

}  // namespace zamo
