// Removing notices and contours from the working database.
#pragma once

#include <cstdint>

#include "database/connection.h"
#include "platform/host.h"

namespace zamo {

// Each in one transaction; gives whether it was committed. A deleted contour becomes a placeholder again,
// since allotments may link to it.
bool deleteNtcFromDB(const Host& host, std::int32_t key, Connection& connection);
bool deleteContourFromDB(const Host& host, std::int32_t contourkey, Connection& connection);

// The parts of it, and what corrections delete, in the caller's transaction. Errors in the links of one
// allotment are shown by deleteLinkSubArea.
bool deleteOneFromKv19Vorna(const Host& host, std::int32_t key, Connection& connection);
bool deleteLinkSubArea(const Host& host, std::int32_t key, Connection& connection);
bool deleteSubAreaLinks(const Host& host, std::int32_t allotkey, Connection& connection);
bool deleteContourOrph(const Host& host, std::int32_t contourkey, Connection& connection);
bool deleteContourTable(const Host& host, std::int32_t contourkey, Connection& connection);
bool deleteContourPointTable(const Host& host, std::int32_t contourkey, Connection& connection);
bool deleteSubAreaTable(const Host& host, std::int32_t allotkey, Connection& connection);
void deleteArt5TargetTable(const Host& host, std::int32_t key, Connection& connection);
bool deleteFromAntDiagr(const Host& host, std::int32_t key, char polar, Connection& connection);

// The rows of one antenna diagram. Throws a RunTimeError.
void deleteDiagramRows(std::int32_t key, char polar, Connection& connection);

}  // namespace zamo
