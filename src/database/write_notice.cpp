#include "database/write_notice.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "database/key_value.h"
#include "database/lookups.h"
#include "database/notice_columns.h"
#include "database/notice_rows.h"
#include "database/update_notice.h"
#include "model/adm_numeric_base.h"
#include "model/notice_words.h"
#include "platform/coordinates.h"
#include "platform/dates.h"
#include "platform/message.h"
#include "platform/numbers.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoVornaKey("box \"Error Reading the database\": fmtv_keys has not exactly one row and a notice needs a key", "There is more than one Vornakey. Please consult your administrator!");
const Message kNoAllotKey("box \"Error Reading the database\": the same, and an allotment or a contour needs a key", "There is more than one Allokey. Please consult your administrator!");

struct Constant {
  std::string_view column;
  std::string_view value;
};

// What the program itself says of a notice.
constexpr Constant kVornaConstants[] = {
    {"src_update", "UQX"},
    {"src_notice", "NOTIFIER"},
    {"is_digital", "TRUE"},
    {"is_notice",  "TRUE"},
    {"amend_type", "NOT AMENDED"},
};

constexpr Constant kCoordConstants[] = {
    {"coord_prov", "COORD"},
    {"coord_st",   "COORD COMPLETED"},
    {"src_status", "NOTIFIER"},
    {"decl_affct", " "},
};

struct PointColumn {
  std::string_view column;
  std::string PointRec::*coordinate;
  std::string_view (*part)(std::string_view);
};

constexpr PointColumn kPointColumns[] = {
    {"long_deg", &PointRec::t_long, longDeg},
    {"long_min", &PointRec::t_long, longMin},
    {"long_sec", &PointRec::t_long, longSec},
    {"long_ew",  &PointRec::t_long, longHemisphere},
    {"lat_deg",  &PointRec::t_lat,  latDeg},
    {"lat_min",  &PointRec::t_lat,  latMin},
    {"lat_sec",  &PointRec::t_lat,  latSec},
    {"lat_ns",   &PointRec::t_lat,  latHemisphere},
};
// clang-format on

constexpr std::size_t kRemarkLength = 80;
constexpr double kMostSubAreas = 9;

bool isAssignmentType(const NtcRec& ntc) {
  return isExactly(ntc.t_notice_type, {types::GT1, types::GS1});
}

// Two planes share the letter of the notice, so each diagram says which it is.
std::string_view diagramPolar(const NtcRec& ntc, std::string_view plane) {
  const bool isBoth = ntc.t_polar == "U" || ntc.t_polar == "M";
  return isBoth ? plane : std::string_view(ntc.t_polar);
}

void collectAll(Recordset& row, std::span<const Constant> constants) {
  for (const Constant& one : constants) row.Collect(one.column, one.value);
}

// A key is the counter on top of the base; the counter of the series goes on by one.
bool takeKey(const Host& host, std::string_view column, std::int32_t base, const Message& refusal,
             std::int32_t& key, Connection& connection) {
  Recordset keys("SELECT * FROM fmtv_keys", connection);
  if (keys.RecordCount() != 1) {
    keys.CancelUpdate();
    host.showBox({refusal.filled({}), "Error Reading the database", BoxIcon::exclamation});
    return false;
  }
  const std::int32_t counter = keyValue(keys, column);
  if (counter >= std::numeric_limits<std::int32_t>::max() - base) throw RunTimeError{kOverflow, "Overflow"};
  key = base + counter;
  keys.Collect(column, std::int64_t{counter} + 1);
  keys.Update();
  keys.Close();
  return true;
}

// As the lookup of a contour takes it; an empty one is 0.
std::int32_t contourNumber(std::string_view id) {
  if (id.empty()) return 0;
  if (!isNumericText(id)) throw RunTimeError{kTypeMismatch, "Type mismatch"};
  const double number = std::nearbyint(leadingNumber(id));
  using Limits = std::numeric_limits<std::int16_t>;
  if (number < Limits::min() || number > Limits::max()) throw RunTimeError{kOverflow, "Overflow"};
  return static_cast<std::int32_t>(number);
}

void addVornaRow(const NtcRec& ntc, std::int32_t key, Connection& connection) {
  Recordset row = newRow("fmtv_vorna", "vornakey", key, connection);
  setForNewRow(row, vornaColumns(), ntc);
  collectAll(row, kVornaConstants);
  row.Collect("is_public", isInAnyCase(ntc.t_fragment, fragments::NTFD_PZ) ? "TRUE" : "FALSE");
  row.Update();
  row.Close();
}

bool writeAssignmentTables(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  bool good = true;
  if (isExactly(ntc.t_action, actions::MODIFY) && isExactly(ntc.t_fragment, fragments::NTFD_PZ)) {
    good = writeToArt5TargetTable(host, ntc, key, connection) && good;
  }
  if (ntc.op_hours.present) good = writeToKv19OpPrdTable(host, ntc.op_hours, key, connection) && good;
  good = writeAntHgtSection(host, ntc, key, connection) && good;
  if (ntc.t_ant_dir == "D" && isHorizontal(ntc)) good = writeAntDiagrH(host, ntc, key, connection) && good;
  if (ntc.t_ant_dir == "D" && isVertical(ntc)) good = writeAntDiagrV(host, ntc, key, connection) && good;
  return good;
}

// Every table is tried, whatever became of those before it.
bool writeChildTables(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  bool good = writeToprocNtcHistTable(host, ntc, key, connection);
  good = writeCoordSection(host, ntc.coord, key, ntc.d_rcv, connection) && good;
  good = writeToKv19RmksTable(host, ntc.t_remarks, key, true, connection) && good;
  good = writeToKv19RmksTable(host, ntc.t_int_remarks, key, false, connection) && good;
  if (isExactly(ntc.t_notice_type, types::TB2) && ntc.op_hours.present) {
    good = writeToKv19OpPrdTable(host, ntc.op_hours, key, connection) && good;
  }
  if (isAssignmentType(ntc)) {
    good = writeAssignmentTables(host, ntc, key, connection) && good;
  } else if (ntc.digital.allot.present) {
    good = addAllot(host, ntc, key, connection) && good;
  }
  return good;
}

// A contour that is named before its notice arrives.
void addPlaceholder(const Host& host, const NtcRec& ntc, std::string_view contourId, std::int32_t contourkey,
                    Connection& connection) {
  Recordset row = newRow("lmz_contour", "contourkey", contourkey, connection);
  collectIfGiven(row, "contour_id", contourId);
  collectIfGiven(row, "ctry", ntc.t_ctry);
  collectIfGiven(row, "adm", ntc.t_adm);
  row.Collect("d_updated", shortDateText(host.now().date));
  row.Update();
  row.Close();
}

// False when the identifier isn't unique or no key could be made.
bool linkContour(const Host& host, const NtcRec& ntc, std::string_view contourId, std::int32_t allotkey,
                 Connection& connection) {
  const FoundContour contour =
      findContour(host, contourNumber(contourId), ntc.t_ctry, ntc.t_adm, "", connection);
  if (contour.problem) return false;
  std::int32_t contourkey = contour.contourkey;
  Recordset link = newRow("lmz_sub_area", "allotkey", allotkey, connection);
  if (!contour.found) {
    if (!writeContourKeyTable(host, contourkey, connection)) return false;
    addPlaceholder(host, ntc, contourId, contourkey, connection);
  }
  link.Collect("contourkey", std::int64_t{contourkey});
  link.Update();
  link.Close();
  return true;
}

bool replaceContour(const Host& host, const NtcRec& ntc, const FoundContour& contour, Connection& connection,
                    ContourOutcome& outcome) {
  if (!contour.hasPoints) {
    outcome.status = ContourStatus::stored;
    return updateContour(host, ntc, contour.contourkey, connection);
  }
  if (!host.askYesNo({contour.question, "Duplicate ContourID"})) return true;
  outcome = {ContourStatus::replaced, contour.contourkey};
  return updateContour(host, ntc, contour.contourkey, connection);
}

bool addAsNewContour(const Host& host, const NtcRec& ntc, Connection& connection, ContourOutcome& outcome) {
  const bool added = addNewContour(host, ntc, connection);
  if (added) outcome.status = ContourStatus::stored;
  return added;
}

void appendTo(std::vector<std::int32_t>& list, std::int32_t& count, std::int32_t key) {
  list.resize(static_cast<std::size_t>(std::max(count, 0)));
  list.push_back(key);
  count = static_cast<std::int32_t>(list.size());
}

}  // namespace

bool writeNtcToDB(const Host& host, NtcRec& ntc, Connection& connection, ContourOutcome& outcome,
                  bool force) {
  outcome = {};
  return inTransaction(host, "writeNtcToDB", connection, [&] {
    if (isExactly(ntc.t_notice_type, types::GA1)) return addContour(host, ntc, connection, outcome, force);
    return writeVornaKeyTable(host, ntc.vornakey, ntc.t_adm, connection) &&
           writeToKv19VornaTable(host, ntc, ntc.vornakey, connection);
  });
}

bool writeVornaKeyTable(const Host& host, std::int32_t& key, std::string_view adm, Connection& connection) {
  return guarded(host, "writeVornaKeyTable", [&] {
    return takeKey(host, "vornakey", admNumericBase(adm), kNoVornaKey, key, connection);
  });
}

bool writeAllotKeyTable(const Host& host, std::int32_t& key, std::string_view adm, Connection& connection) {
  return guarded(host, "writeAllotKeyTable", [&] {
    return takeKey(host, "allotkey", admNumericBase(adm), kNoAllotKey, key, connection);
  });
}

bool writeContourKeyTable(const Host& host, std::int32_t& key, Connection& connection) {
  return guarded(host, "writeContourKeyTable",
                 [&] { return takeKey(host, "contourkey", 0, kNoAllotKey, key, connection); });
}

bool writeToKv19VornaTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "writeToKv19VornaTable", [&] {
    addVornaRow(ntc, key, connection);
    return writeChildTables(host, ntc, key, connection);
  });
}

bool writeToprocNtcHistTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "writeToprocNtcHistTable", [&] {
    Recordset row = newRow("proc_ntc_hist", "vornakey", key, connection);
    setForNewRow(row, ntcHistColumns(), ntc);
    row.Update();
    row.Close();
    return true;
  });
}

bool addAllot(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "addAllot", [&] {
    std::int32_t allotkey = 0;
    if (!writeAllotKeyTable(host, allotkey, ntc.t_adm, connection)) return false;
    Recordset row = newRow("lmz_allotment", "vornakey", key, connection);
    row.Collect("allotkey", std::int64_t{allotkey});
    setForNewRow(row, allotmentColumns(), ntc);
    row.Update();
    row.Close();
    return ntc.digital.allot.t_nb_sub_areas.empty() || addSubArea(host, ntc, allotkey, connection);
  });
}

bool addSubArea(const Host& host, const NtcRec& ntc, std::int32_t allotkey, Connection& connection) {
  return guarded(host, "addSubArea", [&] {
    const AllotRec& allot = ntc.digital.allot;
    const double places = std::min(std::trunc(leadingNumber(allot.t_nb_sub_areas)), kMostSubAreas);
    bool good = false;
    for (std::size_t i = 0; static_cast<double>(i) < places; ++i) {
      if (!allot.t_contour_id[i].empty()) {
        good = linkContour(host, ntc, allot.t_contour_id[i], allotkey, connection);
      }
    }
    return good;
  });
}

bool addContour(const Host& host, const NtcRec& ntc, Connection& connection, ContourOutcome& outcome,
                bool force) {
  outcome = {};
  return guarded(host, "addContour", [&] {
    if (force) return addAsNewContour(host, ntc, connection, outcome);
    const ContourRec& contour = ntc.digital.contour;
    const FoundContour found = findContour(host, contourNumber(contour.t_contour_id), ntc.t_ctry, ntc.t_adm,
                                           contour.t_nb_test_pts, connection);
    if (found.problem) return false;
    if (found.found) return replaceContour(host, ntc, found, connection, outcome);
    return addAsNewContour(host, ntc, connection, outcome);
  });
}

bool addNewContour(const Host& host, const NtcRec& ntc, Connection& connection) {
  return guarded(host, "addNewContour", [&] {
    std::int32_t contourkey = 0;
    if (!writeContourKeyTable(host, contourkey, connection)) return false;
    Recordset row = newRow("lmz_contour", "contourkey", contourkey, connection);
    setForNewRow(row, contourColumns(), ntc);
    row.Update();
    row.Close();
    return writeContourPoints(host, ntc.digital.contour, contourkey, connection);
  });
}

bool writeContourPoints(const Host& host, const ContourRec& contour, std::int32_t contourkey,
                        Connection& connection) {
  const double count = std::trunc(leadingNumber(contour.t_nb_test_pts));
  for (std::size_t i = 0; static_cast<double>(i) < count; ++i) {
    if (i >= contour.points.size()) throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
    const PointRec& point = contour.points[i];
    const auto number = static_cast<std::int32_t>(i);
    if (point.present && !writeContourPoint(host, contourkey, point, number, connection)) return false;
  }
  return true;
}

bool writeContourPoint(const Host& host, std::int32_t contourkey, const PointRec& point, std::int32_t number,
                       Connection& connection) {
  return guarded(host, "writeContourPoint", [&] {
    Recordset row = newRow("lmz_contour_pt", "contourkey", contourkey, connection);
    row.Collect("test_pt", std::int64_t{number});
    for (const PointColumn& one : kPointColumns) {
      collectIfGiven(row, one.column, one.part(point.*one.coordinate));
    }
    row.Update();
    row.Close();
    return true;
  });
}

bool writeToArt5TargetTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "writeToArt5TargetTable", [&] {
    Recordset row = newRow("fmtv_art5_target", "vornakey", key, connection);
    setForNewRow(row, art5TargetColumns(), ntc);
    row.Update();
    row.Close();
    return true;
  });
}

bool writeToKv19OpPrdTable(const Host& host, const OpHoursRec& hours, std::int32_t key,
                           Connection& connection) {
  return guarded(host, "writeToKv19OpPrdTable", [&] {
    Recordset row = newRow("fmtv_op_prd", "vornakey", key, connection);
    collectIfGiven(row, "op_hh_fr", hours.t_op_hh_fr);
    collectIfGiven(row, "op_hh_to", hours.t_op_hh_to);
    row.Update();
    row.Close();
    return true;
  });
}

bool writeToKv19RmksTable(const Host& host, std::string_view text, std::int32_t key, bool isAssignment,
                          Connection& connection) {
  return guarded(host, "writeToKv19RmksTable", [&] {
    std::int64_t number = 0;
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), kRemarkLength))) {
      Recordset row = newRow("fmtv_rmks", "vornakey", key, connection);
      row.Collect("rmk_text", text.substr(0, kRemarkLength));
      row.Collect("rmk_seq_no", number++);
      row.Collect("rmk_type", isAssignment ? "ASSIGNMENT" : "SCRATCHPAD");
      row.Update();
      row.Close();
    }
    return true;
  });
}

bool writeCoordSection(const Host& host, const CoordListRec& coord, std::int32_t key,
                       std::string_view received, Connection& connection) {
  return std::all_of(coord.entries.begin(), coord.entries.end(), [&](const CoordEntryRec& entry) {
    return entry.adm.empty() || writeTokv19CoordTable(host, entry, key, received, connection);
  });
}

bool writeTokv19CoordTable(const Host& host, const CoordEntryRec& entry, std::int32_t key,
                           std::string_view received, Connection& connection) {
  return guarded(host, "writeTokv19CoordTable", [&] {
    Recordset row = newRow("fmtv_coord", "vornakey", key, connection);
    row.Collect("adm", entry.adm);
    collectAll(row, kCoordConstants);
    collectOrClear(row, "d_coord_st", received);
    row.Update();
    row.Close();
    return true;
  });
}

bool writeAntHgtSection(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return std::all_of(ntc.ant_hgt.begin(), ntc.ant_hgt.end(), [&](const AzmValueRec& value) {
    return !value.present || writeToKv19AntHgtTable(host, value, key, connection);
  });
}

bool writeToKv19AntHgtTable(const Host& host, const AzmValueRec& value, std::int32_t key,
                            Connection& connection) {
  return guarded(host, "writeToKv19AntHgtTable", [&] {
    Recordset row = newRow("fmtv_ant_hgt", "vornakey", key, connection);
    collectIfGiven(row, "azm", value.azm);
    collectIfGiven(row, "eff_hgt", value.value);
    row.Update();
    row.Close();
    return true;
  });
}

bool writeAntDiagrH(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return std::all_of(ntc.ant_diagr_h.begin(), ntc.ant_diagr_h.end(), [&](const AzmValueRec& value) {
    return !value.present || writeToKv19AntDiagTable(host, value, diagramPolar(ntc, "H"), key, connection);
  });
}

bool writeAntDiagrV(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return std::all_of(ntc.ant_diagr_v.begin(), ntc.ant_diagr_v.end(), [&](const AzmValueRec& value) {
    return !value.present || writeToKv19AntDiagTable(host, value, diagramPolar(ntc, "V"), key, connection);
  });
}

bool writeToKv19AntDiagTable(const Host& host, const AzmValueRec& value, std::string_view polar,
                             std::int32_t key, Connection& connection) {
  return guarded(host, "writeToKv19AntDiagTable", [&] {
    Recordset row = newRow("fmtv_ant_diag", "vornakey", key, connection);
    collectIfGiven(row, "azm", value.azm);
    collectIfGiven(row, "attn", value.value);
    collectIfGiven(row, "polar", polar);
    row.Update();
    row.Close();
    return true;
  });
}

void appendKeyToList(std::vector<std::int32_t>& list, std::int32_t& count, std::int32_t key) {
  appendTo(list, count, key);
}

void appendNewContourKey(std::vector<std::int32_t>& list, std::int32_t& count, std::int32_t key) {
  appendTo(list, count, key);
}

}  // namespace zamo
