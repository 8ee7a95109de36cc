#include "database/update_notice.h"

#include "database/delete_notice.h"
#include "database/key_value.h"
#include "database/lookups.h"
#include "database/notice_columns.h"
#include "database/notice_rows.h"
#include "database/write_notice.h"
#include "model/notice_words.h"
#include "platform/message.h"

namespace zamo {
namespace {

// clang-format off
const Message kNotUnique("box \"Update Error\": a notice that is corrected has not exactly one row", "The selected notice is not unique. Please consult the administrator!");
const Message kContourNotUnique("box \"Update Error\": a contour that is corrected has not exactly one row", "updateContour: The sub area unique. Please consult the administrator!");
// clang-format on

bool refuse(const Host& host, const Message& message) {
  host.showBox({message.filled({}), "Update Error", BoxIcon::exclamation});
  return false;
}

// The diagrams of the planes that the notice radiates in anew, and the other one gone. The last deletion
// settles the result, whatever `good` is.
bool updateDiagrams(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection,
                    bool good) {
  const bool isDirectional = ntc.t_ant_dir == "D";
  if (!isDirectional || ntc.t_polar == "U" || ntc.t_polar == "M") {
    good = updateAttnSection(host, ntc, key, 'H', connection) && good;
    good = updateAttnSection(host, ntc, key, 'V', connection) && good;
  } else if (ntc.t_polar == "H") {
    updateAttnSection(host, ntc, key, 'H', connection);
    good = deleteFromAntDiagr(host, key, 'V', connection);
  } else if (ntc.t_polar == "V") {
    updateAttnSection(host, ntc, key, 'V', connection);
    good = deleteFromAntDiagr(host, key, 'H', connection);
  }
  return good;
}

bool updateAssignmentTables(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection,
                            bool good) {
  if (isExactly(ntc.t_action, actions::MODIFY))
    good = updateArt5TargetTable(host, ntc, key, connection) && good;
  good = updateKv19OpPrdTable(host, ntc.op_hours, key, connection) && good;
  good = updateAntHgtSection(host, ntc, key, connection) && good;
  return updateDiagrams(host, ntc, key, connection, good);
}

bool updateChildTables(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  if (isExactly(ntc.t_action, actions::ADD)) deleteArt5TargetTable(host, key, connection);
  bool good = updateprocNtcHistTable(host, ntc, key, connection);
  // Remarks of both types go each time, so that only the internal ones stay.
  good = updateKV19RmksTable(host, ntc.t_remarks, key, true, connection) && good;
  good = updateKV19RmksTable(host, ntc.t_int_remarks, key, false, connection) && good;
  good = updateCoordSection(host, ntc.coord, key, ntc.d_rcv, connection) && good;
  if (isExactly(ntc.t_notice_type, types::TB2))
    good = updateKv19OpPrdTable(host, ntc.op_hours, key, connection) && good;
  if (isExactly(ntc.t_notice_type, {types::GT1, types::GS1})) {
    return updateAssignmentTables(host, ntc, key, connection, good);
  }
  return updateAllotTable(host, ntc, key, connection) && good;
}

// The number of sub-areas and their links. The number stays when the old links are not there to be deleted.
bool updateSubAreas(const Host& host, const NtcRec& ntc, Recordset& allotment, Connection& connection) {
  const std::int32_t allotkey = keyValue(allotment, "allotkey");
  const bool hadSubAreas = allotment.value("nb_sub_areas").has_value();
  if (hadSubAreas && !deleteSubAreaTable(host, allotkey, connection)) return false;
  const std::string& number = ntc.digital.allot.t_nb_sub_areas;
  collectOrClear(allotment, "nb_sub_areas", number);
  return number.empty() || addSubArea(host, ntc, allotkey, connection);
}

}  // namespace

bool updateNtcInDB(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return inTransaction(host, "updateNtcInDB", connection, [&] {
    return isExactly(ntc.t_notice_type, types::GA1) ? updateContour(host, ntc, key, connection)
                                                    : updateKv19VornaTable(host, ntc, key, connection);
  });
}

bool updateKv19VornaTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "updateKv19VornaTable", [&] {
    Recordset row(keyed("SELECT * FROM fmtv_vorna WHERE vornakey = ", key), connection);
    if (row.RecordCount() != 1) {
      row.CancelUpdate();
      row.Close();
      return refuse(host, kNotUnique);
    }
    setForCorrection(row, vornaColumns(), ntc);
    row.Update();
    row.Close();
    return updateChildTables(host, ntc, key, connection);
  });
}

bool updateprocNtcHistTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "updateprocNtcHistTable", [&] {
    Recordset row(keyed("SELECT * FROM proc_ntc_hist WHERE vornakey = ", key), connection);
    if (row.RecordCount() != 1) return writeToprocNtcHistTable(host, ntc, key, connection);
    setForCorrection(row, ntcHistColumns(), ntc);
    row.Update();
    return true;
  });
}

bool updateKV19RmksTable(const Host& host, std::string_view text, std::int32_t key, bool isAssignment,
                         Connection& connection) {
  return guarded(host, "updateKV19RmksTable", [&] {
    Recordset rows(keyed("SELECT * FROM fmtv_rmks WHERE vornakey = ", key), connection);
    deleteEveryRow(rows);
    return writeToKv19RmksTable(host, text, key, isAssignment, connection);
  });
}

bool updateCoordSection(const Host& host, const CoordListRec& coord, std::int32_t key,
                        std::string_view received, Connection& connection) {
  return guarded(host, "updateCoordSection", [&] {
    Recordset rows(keyed("SELECT * FROM fmtv_coord WHERE vornakey = ", key), connection);
    deleteEveryRow(rows);
    return !coord.present || writeCoordSection(host, coord, key, received, connection);
  });
}

bool updateKv19OpPrdTable(const Host& host, const OpHoursRec& hours, std::int32_t key,
                          Connection& connection) {
  return guarded(host, "updateKv19OpPrdTable", [&] {
    Recordset row(keyed("SELECT * FROM fmtv_op_prd WHERE vornakey = ", key), connection);
    if (row.RecordCount() != 1) return !hours.present || writeToKv19OpPrdTable(host, hours, key, connection);
    collectOrClear(row, "op_hh_fr", hours.t_op_hh_fr);
    collectOrClear(row, "op_hh_to", hours.t_op_hh_to);
    row.Update();
    return true;
  });
}

bool updateArt5TargetTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "updateArt5TargetTable", [&] {
    Recordset row(keyed("SELECT * FROM fmtv_art5_target WHERE vornakey = ", key), connection);
    if (row.RecordCount() != 1) {
      const bool isEmpty = ntc.t_trg_adm_ref_id.empty() && ntc.t_trg_freq_assgn.empty();
      return isEmpty || writeToArt5TargetTable(host, ntc, key, connection);
    }
    setForCorrection(row, art5TargetColumns(), ntc);
    row.Update();
    return true;
  });
}

bool updateAntHgtSection(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "updateAntHgtSection", [&] {
    Recordset rows(keyed("SELECT * FROM fmtv_ant_hgt WHERE vornakey = ", key), connection);
    deleteEveryRow(rows);
    return writeAntHgtSection(host, ntc, key, connection);
  });
}

bool updateAttnSection(const Host& host, const NtcRec& ntc, std::int32_t key, char polar,
                       Connection& connection) {
  return guarded(host, "updateAttnSection", [&] {
    deleteDiagramRows(key, polar, connection);
    // A diagram without a value to the north is dropped.
    if (polar == 'H' && ntc.ant_diagr_h[0].present) return writeAntDiagrH(host, ntc, key, connection);
    if (polar == 'V' && ntc.ant_diagr_v[0].present) return writeAntDiagrV(host, ntc, key, connection);
    return true;
  });
}

bool updateAllotTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection) {
  return guarded(host, "updateAllotTable", [&] {
    Recordset row(keyed("SELECT * FROM lmz_allotment WHERE vornakey = ", key), connection);
    if (row.RecordCount() != 1) return addAllot(host, ntc, key, connection);
    setForCorrection(row, allotmentColumns(), ntc);
    const bool good = updateSubAreas(host, ntc, row, connection);
    row.Update();
    row.Close();
    return good;
  });
}

bool updateContour(const Host& host, const NtcRec& ntc, std::int32_t contourkey, Connection& connection) {
  return guarded(host, "updateContour", [&] {
    Recordset row(keyed("SELECT * FROM lmz_contour WHERE contourkey = ", contourkey), connection);
    if (row.RecordCount() != 1) return refuse(host, kContourNotUnique);
    setForCorrection(row, contourColumns(), ntc);
    row.Update();
    const bool hasOldPoints = hasContourPoints(host, contourkey, connection);
    if (hasOldPoints && !deleteContourPointTable(host, contourkey, connection)) return false;
    return writeContourPoints(host, ntc.digital.contour, contourkey, connection);
  });
}

}  // namespace zamo
