#include "database/read_notice.h"

#include <array>
#include <cmath>
#include <filesystem>

#include "database/key_value.h"
#include "database/operation.h"
#include "database/recordset.h"
#include "model/notice_words.h"
#include "model/test_points.h"
#include "noticefile/writer_text.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kTooManyHeights("box \"Read Error\": a notice has more than 36 heights", "To many data in the table. Please consult the administrator!");
const Message kHeightWithoutAzimuth("box \"Read Error\": a height has no azimuth", "Corrupted data in the table. Please consult the administrator!");
const Message kAllotmentNotUnique("box \"Read Error\": an allotment has no row of its own or several; the key of the notice", "readFromAllotment: The assignment %1 is not UNIQUE. Please consult the administrator!");
const Message kContourMissing("box \"Read Error\": no contour has the key", "readOnlyContourID: The contour %1 is Missing . Please consult the administrator!");
const Message kRemarkTruncated("box \"Contour Remarks\": the remark of a contour without test points is too long", "readOnlyContourID: The notified remark is greater than 80, it will be truncated.");
// clang-format on

constexpr const char* kReadError = "Read Error";
constexpr std::size_t kLongestContourRemark = 80;

enum class Cleaning { raw, rawUnlessBlank, trim, upper, pad2, pad3, pad4 };
using enum Cleaning;

std::string cleaned(std::string_view value, Cleaning cleaning) {
  switch (cleaning) {
    case trim:
      return std::string(trimText(value));
    case upper:
      return upperText(trimText(value));
    case pad2:
      return padTo2(value);
    case pad3:
      return padTo3(value);
    case pad4:
      return padTo4(value);
    default:
      return std::string(value);
  }
}

template <typename Record>
struct Column {
  std::string_view name;
  std::string Record::*field = nullptr;
  Cleaning cleaning = raw;
  bool (*isRead)(const Record&) = nullptr;  // always, when there is none
};

// The columns that aren't Null, in the order of their table. Gives whether there was one.
template <typename Record, std::size_t Count>
bool readColumns(const Recordset& rows, const Column<Record> (&columns)[Count], Record& record) {
  bool any = false;
  for (const Column<Record>& column : columns) {
    if (column.isRead != nullptr && !column.isRead(record)) continue;
    const std::optional<std::string>& value = rows.value(column.name);
    any = any || value.has_value();
    if (!value || (column.cleaning == rawUnlessBlank && trimText(*value).empty())) continue;
    record.*column.field = cleaned(*value, column.cleaning);
  }
  return any;
}

bool isTb2(const NtcRec& ntc) {
  return isExactly(ntc.t_notice_type, types::TB2);
}
bool isNoTb2(const NtcRec& ntc) {
  return !isTb2(ntc);
}
bool isTb2OrTb3(const NtcRec& ntc) {
  return isTb2(ntc) || isExactly(ntc.t_notice_type, types::TB3);
}
bool isNoTb2OrTb3(const NtcRec& ntc) {
  return !isTb2OrTb3(ntc);
}
bool isTb3OrTb5(const NtcRec& ntc) {
  return isExactly(ntc.t_notice_type, {types::TB3, types::TB5});
}
bool isNoTb(const NtcRec& ntc) {
  return !isTb2(ntc) && !isTb3OrTb5(ntc);
}

bool modifiesPlan(const NtcRec& ntc) {
  const std::string& fragment = isTb2OrTb3(ntc) ? ntc.t_plan : ntc.t_fragment;
  return isExactly(ntc.t_action, actions::MODIFY) && isInAnyCase(trimText(fragment), fragments::KV19D);
}

bool isAllotment(const NtcRec& ntc) {
  const std::string& type = ntc.t_notice_type;
  return isExactly(type, {types::GT2, types::GS2, types::DT2, types::DS2});
}

// clang-format off
constexpr Column<NtcRec> kNoticeColumns[] = {
    {"assgn_id",              &NtcRec::assgn_id,            trim},
    {"adm",                   &NtcRec::t_adm,               raw},
    {"notice_typ",            &NtcRec::t_notice_type,       upper},
    {"stn_cls",               &NtcRec::stn_cls,             upper},
    {"tran_sys",              &NtcRec::t_sys_var,           upper},
    {"d_rcv",                 &NtcRec::d_rcv,               trim},
    {"d_adm_ntc",             &NtcRec::d_adm_ntc,           trim},
    {"fragment",              &NtcRec::t_plan,              raw,   isTb2OrTb3},
    {"fragment",              &NtcRec::t_fragment,          upper, isNoTb2OrTb3},
    {"prov",                  &NtcRec::t_prov,              upper},
    {"intent",                &NtcRec::t_action,            upper},
    {"adm_ref_id",            &NtcRec::t_trg_adm_ref_id,    trim,  isTb3OrTb5},
    // It was stored as the target's reference; the plan's own column below comes before it.
    {"adm_ref_id",            &NtcRec::t_plan_adm_ref_id,   trim,  isTb2},
    {"adm_ref_id",            &NtcRec::t_adm_ref_id,        upper, isNoTb},
    {"adm_ref_id",            &NtcRec::t_trg_adm_ref_id,    trim,  modifiesPlan},
    {"plan_adm_ref_id",       &NtcRec::t_plan_adm_ref_id,   rawUnlessBlank},
    {"freq_assgn",            &NtcRec::t_trg_freq_assgn,    trim,  isTb2},
    {"long_deg",              &NtcRec::trg_long_deg,        pad3,  isTb2},
    {"long_min",              &NtcRec::trg_long_min,        pad2,  isTb2},
    {"long_sec",              &NtcRec::trg_long_sec,        pad2,  isTb2},
    {"long_ew",               &NtcRec::trg_long_ew,         upper, isTb2},
    {"lat_deg",               &NtcRec::trg_lat_deg,         pad2,  isTb2},
    {"lat_min",               &NtcRec::trg_lat_min,         pad2,  isTb2},
    {"lat_sec",               &NtcRec::trg_lat_sec,         pad2,  isTb2},
    {"lat_ns",                &NtcRec::trg_lat_ns,          upper, isTb2},
    {"freq_assgn",            &NtcRec::t_freq_assgn,        trim,  isNoTb2},
    {"long_deg",              &NtcRec::long_deg,            pad3,  isNoTb2},
    {"long_min",              &NtcRec::long_min,            pad2,  isNoTb2},
    {"long_sec",              &NtcRec::long_sec,            pad2,  isNoTb2},
    {"long_ew",               &NtcRec::long_ew,             upper, isNoTb2},
    {"lat_deg",               &NtcRec::lat_deg,             pad2,  isNoTb2},
    {"lat_min",               &NtcRec::lat_min,             pad2,  isNoTb2},
    {"lat_sec",               &NtcRec::lat_sec,             pad2,  isNoTb2},
    {"lat_ns",                &NtcRec::lat_ns,              upper, isNoTb2},
    {"call_sign",             &NtcRec::t_call_sign,         trim},
    {"stn_id",                &NtcRec::stn_id,              trim},
    {"ctry",                  &NtcRec::t_ctry,              upper},
    {"site_name",             &NtcRec::t_site_name,         upper},
    {"polar",                 &NtcRec::t_polar,             upper},
    {"erp_h_dbw",             &NtcRec::t_erp_h_dbw,         trim},
    {"erp_v_dbw",             &NtcRec::t_erp_v_dbw,         trim},
    {"hgt_agl",               &NtcRec::t_hgt_agl,           trim},
    {"site_alt",              &NtcRec::t_site_alt,          trim},
    {"eff_hgtmax",            &NtcRec::t_eff_hgtmax,        trim},
    {"op_agcy",               &NtcRec::t_op_agcy,           upper},
    {"addr_code",             &NtcRec::t_addr_code,         trim},
    {"d_inuse",               &NtcRec::t_d_inuse,           trim},
    {"ant_dir",               &NtcRec::t_ant_dir,           trim},
    {"d_updated",             &NtcRec::d_updated,           trim},
    {"d_recog",               &NtcRec::d_recog,             trim},
    {"src_update",            &NtcRec::src_update,          trim},
    {"d_expiry",              &NtcRec::t_d_expiry,          trim},
    {"offset_khz",            &NtcRec::t_offset,            raw},
    {"erp_beam_tilt_dbw",     &NtcRec::t_erp_beam_tilt_dbw, raw},
    {"beam_tilt_angle",       &NtcRec::t_beam_tilt_angle,   raw},
    {"plan_entry",            &NtcRec::t_plan_entry,        upper},
    {"assgn_code",            &NtcRec::t_assgn_code,        upper},
    {"are_rmk_conds_met",     &NtcRec::t_remark_conds_met,  raw},
    {"has_signed_commitment", &NtcRec::t_signed_commitment, raw},
    {"is_pub_req",            &NtcRec::t_is_pub_req,        raw},
    {"is_resub",              &NtcRec::t_is_resub,          raw},
};

// Each of them marks the digital part.
constexpr Column<DigitalRec> kDigitalColumns[] = {
    {"rx_mode",               &DigitalRec::t_rx_mode,                 trim},
    {"ref_plan_cfg",          &DigitalRec::t_ref_plan_cfg,            trim},
    {"sfn_id",                &DigitalRec::t_sfn_id,                  trim},
    {"assoc_allot_id",        &DigitalRec::t_associated_adm_allot_id, trim},
    {"assoc_allot_sfn_id",    &DigitalRec::t_associated_allot_sfn_id, trim},
    {"spect_mask",            &DigitalRec::t_spect_mask,              trim},
};

constexpr Column<DigitalRec> kHistoryAddress[] = {
    {"email_addr",            &DigitalRec::t_email_addr},
};

constexpr Column<NtcRec> kHistoryUpdate[] = {
    {"src_update",            &NtcRec::src_update},
    {"d_updated",             &NtcRec::d_updated},
};

constexpr Column<NtcRec> kTargetColumns[] = {
    {"trg_adm_ref_id",        &NtcRec::t_trg_adm_ref_id,    trim},
    {"trg_freq_assgn",        &NtcRec::t_trg_freq_assgn,    trim},
    {"trg_long_deg",          &NtcRec::trg_long_deg,        pad3},
    {"trg_long_min",          &NtcRec::trg_long_min,        pad2},
    {"trg_long_sec",          &NtcRec::trg_long_sec,        pad2},
    {"trg_long_ew",           &NtcRec::trg_long_ew,         upper},
    {"trg_lat_deg",           &NtcRec::trg_lat_deg,         pad2},
    {"trg_lat_min",           &NtcRec::trg_lat_min,         pad2},
    {"trg_lat_sec",           &NtcRec::trg_lat_sec,         pad2},
    {"trg_lat_ns",            &NtcRec::trg_lat_ns,          upper},
};

constexpr Column<OpHoursRec> kHoursColumns[] = {
    {"op_hh_fr",              &OpHoursRec::t_op_hh_fr,      pad4},
    {"op_hh_to",              &OpHoursRec::t_op_hh_to,      pad4},
};

constexpr Column<CoordEntryRec> kCoordColumns[] = {
    {"adm",                   &CoordEntryRec::adm,          trim},
    {"coord_prov",            &CoordEntryRec::coord_prov,   trim},
    {"coord_st",              &CoordEntryRec::coord_st,     trim},
    {"src_status",            &CoordEntryRec::src_status,   trim},
    {"d_coord_st",            &CoordEntryRec::d_coord_st},
    {"decl_affct",            &CoordEntryRec::decl_affct},
};

constexpr Column<AllotRec> kAllotColumns[] = {
    {"typ_ref_netwk",         &AllotRec::t_typ_ref_netwk,   trim},
    {"allot_name",            &AllotRec::t_allot_name,      trim},
    {"geo_area",              &AllotRec::t_geo_area,        trim},
    {"nb_sub_areas",          &AllotRec::t_nb_sub_areas,    trim},
};

constexpr Column<ContourRec> kContourColumns[] = {
    {"contour_id",            &ContourRec::t_contour_id},
    {"nb_test_pts",           &ContourRec::t_nb_test_pts},
    {"d_updated",             &ContourRec::d_updated},
    {"d_recog",               &ContourRec::d_recog},
};

constexpr Column<NtcRec> kContourOwner[] = {
    {"ctry",                  &NtcRec::t_ctry},
    {"adm",                   &NtcRec::t_adm},
};

constexpr Column<NtcRec> kContourNotice[] = {
    {"intent",                &NtcRec::t_action},
    {"remarks",               &NtcRec::t_remarks},
};

struct Position {
  std::string longDegrees, longMinutes, longSeconds, longHemisphere;
  std::string latDegrees, latMinutes, latSeconds, latHemisphere;
};

constexpr Column<Position> kPositionColumns[] = {
    {"long_deg",              &Position::longDegrees,       pad3},
    {"long_min",              &Position::longMinutes,       pad2},
    {"long_sec",              &Position::longSeconds,       pad2},
    {"long_ew",               &Position::longHemisphere,    upper},
    {"lat_deg",               &Position::latDegrees,        pad2},
    {"lat_min",               &Position::latMinutes,        pad2},
    {"lat_sec",               &Position::latSeconds,        pad2},
    {"lat_ns",                &Position::latHemisphere,     upper},
};
// clang-format on

[[noreturn]] void throwOutOfRange() {
  throw RunTimeError{kIndexOutOfRange, "Subscript out of range"};
}

// Databases of these names come from elsewhere and hold no history.
bool hasHistory(const Connection& connection) {
  const std::string name = lowerText(std::filesystem::path(connection.path()).filename().string());
  return name.find("kv19.mdb") == std::string::npos && name.find("pelmarun.mdb") == std::string::npos;
}

using AzimuthEntries = std::array<AzmValueRec, kAzimuths>;

// One entry for each 10 degrees; halves go to the even one.
AzmValueRec& entryOf(std::string_view azimuth, AzimuthEntries& entries) {
  const double place = std::nearbyint(leadingNumber(azimuth) / 10);
  if (place < 0 || place >= static_cast<double>(entries.size())) throwOutOfRange();
  return entries[static_cast<std::size_t>(place)];
}

void readAzimuth(const Recordset& rows, std::string_view valueColumn, AzimuthEntries& entries) {
  const std::string azimuth(trimText(rows.value("azm").value()));
  AzmValueRec& entry = entryOf(azimuth, entries);
  entry.azm = azimuth;
  if (const std::optional<std::string>& value = rows.value(valueColumn)) entry.value = trimText(*value);
  entry.present = true;
}

bool readDiagram(Recordset rows, AzimuthEntries& entries) {
  for (std::size_t row = 0; row < entries.size() && !rows.atEnd() && rows.value("azm"); ++row) {
    readAzimuth(rows, "attn", entries);
    rows.MoveNext();
  }
  return true;
}

PointRec readPoint(const Recordset& rows) {
  Position at;
  readColumns(rows, kPositionColumns, at);
  return {true, makeCoordText(at.longDegrees, at.longMinutes, at.longSeconds, at.longHemisphere),
          makeCoordText(at.latDegrees, at.latMinutes, at.latSeconds, at.latHemisphere)};
}

// Of a database that has it.
bool readHistoryAndTarget(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  bool good = readProcNtcHist(key, ntc, connection);
  if (isExactly(ntc.t_action, actions::MODIFY))
    good = readFromFmtvArt5target(host, key, ntc, connection) && good;
  return good;
}

bool readAntennas(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  const std::string& polar = ntc.t_polar;
  const bool isBoth = polar == "M" || polar == "U";
  bool good = readFromKv19AntHgt(host, key, ntc, connection);
  if (ntc.t_ant_dir != "D") return good;
  if (isBoth || polar == "H") good = readFromKV19AntDiagr_H(host, key, ntc, connection) && good;
  if (isBoth || polar == "V") good = readFromKv19AntDiagr_V(host, key, ntc, connection) && good;
  return good;
}

// One that fails doesn't stop those behind it.
bool readSections(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  bool good = readNotifierRmks(key, ntc, connection);
  if (hasHistory(connection)) good = readHistoryAndTarget(host, key, ntc, connection) && good;
  good = readCoord(key, ntc.coord, connection) && good;
  if (isAllotment(ntc)) return readFromAllotment(host, key, ntc.digital, connection) && good;
  good = readFromKv19OpPrds(host, key, ntc.op_hours, connection) && good;
  return readAntennas(host, key, ntc, connection) && good;
}

}  // namespace

bool readNtcFromDB(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return readFromKv19Vorna(host, key, ntc, connection);
}

bool readContourNtcFromDB(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection) {
  const bool good = readContour(host, contourkey, ntc, connection);
  ntc.t_notice_type = types::GA1.text;
  return good;
}

bool readFromKv19Vorna(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readFromKv19Vorna", [&] {
    const Recordset rows("SELECT * FROM fmtv_vorna WHERE vornakey = ?", key, connection);
    if (rows.RecordCount() != 1) return false;
    readColumns(rows, kNoticeColumns, ntc);
    if (readColumns(rows, kDigitalColumns, ntc.digital)) ntc.digital.present = true;
    return readSections(host, key, ntc, connection);
  });
}

bool readContour(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readContour", [&] {
    Recordset rows(
        "SELECT lmz_contour.contourkey, lmz_contour.contour_id, lmz_contour.ctry,"
        " lmz_contour.adm, lmz_contour.intent, lmz_contour.remarks, lmz_contour.d_updated, "
        "lmz_contour.d_recog, "
        "lmz_contour.nb_test_pts, lmz_contour_pt.test_pt, lmz_contour_pt.long_deg, lmz_contour_pt.long_min, "
        "lmz_contour_pt.long_sec, lmz_contour_pt.long_ew, lmz_contour_pt.lat_deg, lmz_contour_pt.lat_min, "
        "lmz_contour_pt.lat_sec, lmz_contour_pt.lat_ns"
        " FROM lmz_contour INNER JOIN lmz_contour_pt ON"
        " lmz_contour.contourkey = lmz_contour_pt.contourkey WHERE"
        " lmz_contour.contourkey = ? ORDER BY lmz_contour_pt.test_pt",
        contourkey, connection);
    if (rows.atEnd()) {
      const bool found = readOnlyContourID(host, contourkey, ntc, connection);
      if (!found) host.showBox({kContourMissing.filled({std::to_string(contourkey)}), kReadError});
      return found;
    }
    ContourRec& contour = ntc.digital.contour;
    contour.present = true;
    readColumns(rows, kContourOwner, ntc);
    readColumns(rows, kContourNotice, ntc);
    readColumns(rows, kContourColumns, contour);
    sizePoints(contour);
    for (std::size_t place = 0; !rows.atEnd(); rows.MoveNext(), ++place) {
      if (place >= contour.points.size()) throwOutOfRange();
      contour.points[place] = readPoint(rows);
    }
    return true;
  });
}

bool readOnlyContourID(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readOnlyContourID", [&] {
    const Recordset rows(
        "SELECT lmz_contour.contourkey, lmz_contour.contour_id, lmz_contour.ctry, lmz_contour.adm, "
        "lmz_contour.remarks, lmz_contour.d_updated, lmz_contour.d_recog, lmz_contour.nb_test_pts FROM "
        "lmz_contour"
        " WHERE lmz_contour.contourkey = ?",
        contourkey, connection);
    if (rows.RecordCount() != 1) return false;
    ContourRec& contour = ntc.digital.contour;
    ntc.digital.present = contour.present = true;
    contour.points.clear();
    readColumns(rows, kContourOwner, ntc);
    readColumns(rows, kContourColumns, contour);
    if (const std::optional<std::string>& remarks = rows.value("remarks")) {
      if (remarks->size() > kLongestContourRemark)
        host.showBox({kRemarkTruncated.filled({}), "Contour Remarks"});
      ntc.t_remarks = remarks->substr(0, kLongestContourRemark);
    }
    return true;
  });
}

bool readFromAllotment(const Host& host, std::int32_t key, DigitalRec& digital, Connection& connection) {
  return guarded(host, "readFromAllotment", [&] {
    const Recordset rows("SELECT * from lmz_allotment WHERE vornakey = ?", key, connection);
    if (rows.RecordCount() != 1) {
      host.showBox({kAllotmentNotUnique.filled({std::to_string(key)}), kReadError});
      return false;
    }
    digital.allot.present = true;
    readColumns(rows, kAllotColumns, digital.allot);
    return !rows.value("nb_sub_areas") || readSubArea(host, keyValue(rows, "allotkey"), digital, connection);
  });
}

bool readSubArea(const Host& host, std::int32_t allotkey, DigitalRec& digital, Connection& connection) {
  return guarded(host, "readSubArea", [&] {
    Recordset rows(
        "SELECT lmz_contour.contour_id FROM lmz_sub_area"
        " INNER JOIN lmz_contour ON lmz_sub_area.contourkey = lmz_contour.contourkey"
        " WHERE allotkey = ?",
        allotkey, connection);
    auto& places = digital.allot.t_contour_id;
    for (std::size_t place = 0; !rows.atEnd(); rows.MoveNext(), ++place) {
      if (place >= places.size()) throwOutOfRange();
      if (const std::optional<std::string>& id = rows.value("contour_id")) places[place] = trimText(*id);
    }
    return true;
  });
}

bool readFromFmtvArt5target(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readFromFmtvArt5target", [&] {
    const Recordset rows("SELECT * FROM fmtv_art5_target WHERE vornakey = ?", key, connection);
    if (!rows.atEnd()) readColumns(rows, kTargetColumns, ntc);
    return true;
  });
}

bool readFromKv19OpPrds(const Host& host, std::int32_t key, OpHoursRec& hours, Connection& connection) {
  return guarded(host, "readFromKv19OpPrds", [&] {
    const Recordset rows("SELECT * FROM fmtv_op_prd WHERE vornakey = ?", key, connection);
    if (rows.atEnd()) return true;
    hours.present = true;
    readColumns(rows, kHoursColumns, hours);
    return true;
  });
}

bool readFromKv19AntHgt(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readFromKv19AntHgt", [&] {
    Recordset rows("SELECT * FROM fmtv_ant_hgt WHERE vornakey = ?", key, connection);
    // The administrator gets both reports: of the data, and of the access to the closed recordset that
    // follows.
    const auto tellAndClose = [&](const Message& message) {
      rows.Close();
      host.showBox({message.filled({}), kReadError});
    };
    for (std::size_t row = 0; !rows.atEnd(); rows.MoveNext(), ++row) {
      if (row >= ntc.ant_hgt.size()) tellAndClose(kTooManyHeights);
      if (!rows.value("azm")) tellAndClose(kHeightWithoutAzimuth);
      readAzimuth(rows, "eff_hgt", ntc.ant_hgt);
    }
    return true;
  });
}

bool readFromKV19AntDiagr_H(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readFromKV19AntDiagr_H", [&] {
    return readDiagram(
        Recordset("SELECT * FROM fmtv_ant_diag WHERE vornakey = ? AND polar = 'H' ", key, connection),
        ntc.ant_diagr_h);
  });
}

bool readFromKv19AntDiagr_V(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection) {
  return guarded(host, "readFromKv19AntDiagr_V", [&] {
    return readDiagram(
        Recordset("SELECT * FROM fmtv_ant_diag WHERE vornakey = ? AND polar = 'V' ", key, connection),
        ntc.ant_diagr_v);
  });
}

bool readCoord(std::int32_t key, CoordListRec& coord, Connection& connection) {
  Recordset rows("SELECT * FROM fmtv_coord WHERE vornakey = ? AND coord_st = 'COORD COMPLETED'", key,
                 connection);
  if (rows.atEnd()) return true;
  coord.count = static_cast<std::int32_t>(rows.RecordCount());
  coord.present = true;
  coord.entries.assign(static_cast<std::size_t>(coord.count), {});
  for (CoordEntryRec& entry : coord.entries) {
    // Without an administration the place stays empty.
    if (rows.value("adm")) readColumns(rows, kCoordColumns, entry);
    rows.MoveNext();
  }
  return true;
}

bool readProcNtcHist(std::int32_t key, NtcRec& ntc, Connection& connection) {
  const Recordset rows("SELECT * FROM proc_ntc_hist WHERE vornakey = ?", key, connection);
  if (rows.RecordCount() != 1) return true;
  ntc.digital.present = true;
  readColumns(rows, kHistoryAddress, ntc.digital);
  readColumns(rows, kHistoryUpdate, ntc);
  return true;
}

bool readNotifierRmks(std::int32_t key, NtcRec& ntc, Connection& connection) {
  ntc.t_remarks.clear();
  ntc.t_int_remarks.clear();
  for (Recordset rows("SELECT * FROM fmtv_rmks WHERE vornakey = ?", key, connection); !rows.atEnd();
       rows.MoveNext()) {
    const std::optional<std::string>& text = rows.value("rmk_text");
    const std::string type = rows.value("rmk_type").value_or("");
    if (text && type == "ASSIGNMENT") ntc.t_remarks += *text;
    if (text && type == "SCRATCHPAD") ntc.t_int_remarks += *text;
  }
  return true;
}

}  // namespace zamo
