// Storing a notice in the working database: a new row of fmtv_vorna and its child rows, or a contour.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

// What became of a GA1.
enum class ContourStatus : std::int16_t { notStored = 0, stored = 1, replaced = 2 };

struct ContourOutcome {
  ContourStatus status = ContourStatus::notStored;
  std::int32_t replacedKey = 0;  // of the contour that was replaced
};

// Stores the notice in one transaction, all or nothing. The new key goes into the record. `outcome` is told
// for a GA1; `force` makes a new contour of it without a look for one of the same identity.
bool writeNtcToDB(const Host& host, NtcRec& ntc, Connection& connection, ContourOutcome& outcome, bool force);

// The next key of a series.
bool writeVornaKeyTable(const Host& host, std::int32_t& key, std::string_view adm, Connection& connection);
bool writeAllotKeyTable(const Host& host, std::int32_t& key, std::string_view adm, Connection& connection);
bool writeContourKeyTable(const Host& host, std::int32_t& key, Connection& connection);

// The writers of single tables and sections, for a correction as well as for a new notice. They run in the
// caller's transaction.
bool writeToKv19VornaTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool writeToprocNtcHistTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool addAllot(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool addSubArea(const Host& host, const NtcRec& ntc, std::int32_t allotkey, Connection& connection);
bool addContour(const Host& host, const NtcRec& ntc, Connection& connection, ContourOutcome& outcome,
                bool force);
bool addNewContour(const Host& host, const NtcRec& ntc, Connection& connection);
// The points that the contour's count takes in; a count beyond the places of the record throws a
// RunTimeError.
bool writeContourPoints(const Host& host, const ContourRec& contour, std::int32_t contourkey,
                        Connection& connection);
bool writeContourPoint(const Host& host, std::int32_t contourkey, const PointRec& point, std::int32_t number,
                       Connection& connection);
bool writeToArt5TargetTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool writeToKv19OpPrdTable(const Host& host, const OpHoursRec& hours, std::int32_t key,
                           Connection& connection);
bool writeToKv19RmksTable(const Host& host, std::string_view text, std::int32_t key, bool isAssignment,
                          Connection& connection);
// `received` is the notice's date of receipt, which each row carries.
bool writeCoordSection(const Host& host, const CoordListRec& coord, std::int32_t key,
                       std::string_view received, Connection& connection);
bool writeTokv19CoordTable(const Host& host, const CoordEntryRec& entry, std::int32_t key,
                           std::string_view received, Connection& connection);
bool writeAntHgtSection(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool writeToKv19AntHgtTable(const Host& host, const AzmValueRec& value, std::int32_t key,
                            Connection& connection);
bool writeAntDiagrH(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool writeAntDiagrV(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool writeToKv19AntDiagTable(const Host& host, const AzmValueRec& value, std::string_view polar,
                             std::int32_t key, Connection& connection);

// A key at the end of the selection, so that a notice made on screen can be reached with the others.
void appendKeyToList(std::vector<std::int32_t>& list, std::int32_t& count, std::int32_t key);
void appendNewContourKey(std::vector<std::int32_t>& list, std::int32_t& count, std::int32_t key);

}  // namespace zamo
