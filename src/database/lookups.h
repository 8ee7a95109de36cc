// The small read-only questions that the rest of the system puts to the working database. A lookup that fails
// is shown in the common error box under its name and reports false, or leaves its outputs as they are.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "database/row_cursor.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

// Whether a notice of the administration has the reference; `key` takes the first one's.
bool findByAdmRefId(const Host& host, std::string_view admRefId, std::string_view adm, std::int32_t& key,
                    Connection& connection);

// Whether an assignment of the administration has the frequency and the position of `ntc`; key and reference
// of the first one.
bool findAssignmentByElements(const Host& host, const NtcRec& ntc, std::int32_t& key, std::string& reference,
                              Connection& connection);

// Whether an allotment of the administration has the frequency of `ntc` and shares a sub-area with it.
bool findAllotmentByElements(const Host& host, const NtcRec& ntc, std::int32_t& key, std::string& reference,
                             Connection& connection);

struct FoundContour {
  bool found = false;      // exactly one
  bool problem = false;    // more than one, of which the user was told
  bool hasPoints = false;  // it was notified, and not only named by an allotment
  std::int32_t contourkey = 0;
  std::string question;  // whether to overwrite it, when it has points
};

// The contour of that identity. `newPoints` is the number of test points that would replace it.
FoundContour findContour(const Host& host, std::int32_t contourId, std::string_view ctry,
                         std::string_view adm, std::string_view newPoints, Connection& connection);

// Whether such a contour has exactly as many points as it says.
bool contourPointCountMatches(const Host& host, std::string_view contourId, std::string_view ctry,
                              std::string_view adm, Connection& connection);
bool hasContourPoints(const Host& host, std::int32_t contourkey, Connection& connection);
bool countContourPoints(const Host& host, std::int64_t expected, std::int32_t contourkey,
                        Connection& connection);

// Frequency and signed coordinates of the notice that a key points at.
bool getTargetElements(const Host& host, std::int32_t key, std::string& frequency, std::string& longitude,
                       std::string& latitude, Connection& connection);

// As it is stored; empty when no row has the key.
std::string getNoticeType(const Host& host, std::int32_t key, Connection& connection);

// What else is to become of the rows that a list of keys is taken from: called on each of them.
using RowTaker = std::function<void(const RowCursor& row)>;

// The keys of a selection, in the order of its statement.
bool getVornaKeyList(const Host& host, std::vector<std::int32_t>& list, std::string_view sql,
                     std::int32_t& count, Connection& connection, const RowTaker& take = {});
bool getContourKeyList(const Host& host, std::vector<std::int32_t>& list, std::int32_t& count,
                       std::string_view sql, Connection& connection, const RowTaker& take = {});

// The rows of both statements together.
std::int64_t countSelectedRecords(const Host& host, Connection& connection, std::string_view firstSql,
                                  std::string_view secondSql);

// The key counter less 1.
bool getLastVornaKey(const Host& host, Connection& connection, std::int32_t& number);
bool getLastContourKey(const Host& host, Connection& connection, std::int32_t& number);

}  // namespace zamo
