// Reading a notice back from the working database. A field whose column is Null stays as it is: the caller
// gives a cleared record.
#pragma once

#include <cstdint>

#include "database/connection.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

// False when no row has the key, without a word, or when a section could not be read.
bool readNtcFromDB(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);

// The same for a contour; the type becomes GA1 whatever the row says.
bool readContourNtcFromDB(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection);

// The readers of single tables.
bool readFromKv19Vorna(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);
bool readContour(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection);
bool readOnlyContourID(const Host& host, std::int32_t contourkey, NtcRec& ntc, Connection& connection);
bool readFromAllotment(const Host& host, std::int32_t key, DigitalRec& digital, Connection& connection);
bool readSubArea(const Host& host, std::int32_t allotkey, DigitalRec& digital, Connection& connection);
bool readFromFmtvArt5target(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);
bool readFromKv19OpPrds(const Host& host, std::int32_t key, OpHoursRec& hours, Connection& connection);
bool readFromKv19AntHgt(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);
bool readFromKV19AntDiagr_H(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);
bool readFromKv19AntDiagr_V(const Host& host, std::int32_t key, NtcRec& ntc, Connection& connection);

// These show no box of their own: what fails in them is thrown, and so told by readFromKv19Vorna.
bool readCoord(std::int32_t key, CoordListRec& coord, Connection& connection);
bool readProcNtcHist(std::int32_t key, NtcRec& ntc, Connection& connection);
bool readNotifierRmks(std::int32_t key, NtcRec& ntc, Connection& connection);

}  // namespace zamo
