// Carrying a corrected notice back into the working database. The text of the operations' own boxes names
// them.
#pragma once

#include <cstdint>
#include <string_view>

#include "database/connection.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

// In one transaction: the row of the notice column by column, an empty value clearing it, and its child rows
// anew; or the contour of a GA1.
bool updateNtcInDB(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);

// The parts of it, in the caller's transaction.
bool updateKv19VornaTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool updateprocNtcHistTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool updateKV19RmksTable(const Host& host, std::string_view text, std::int32_t key, bool isAssignment,
                         Connection& connection);
bool updateCoordSection(const Host& host, const CoordListRec& coord, std::int32_t key,
                        std::string_view received, Connection& connection);
bool updateKv19OpPrdTable(const Host& host, const OpHoursRec& hours, std::int32_t key,
                          Connection& connection);
bool updateArt5TargetTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool updateAntHgtSection(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool updateAttnSection(const Host& host, const NtcRec& ntc, std::int32_t key, char polar,
                       Connection& connection);
bool updateAllotTable(const Host& host, const NtcRec& ntc, std::int32_t key, Connection& connection);
bool updateContour(const Host& host, const NtcRec& ntc, std::int32_t contourkey, Connection& connection);

}  // namespace zamo
