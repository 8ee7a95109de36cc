// The load of a validated notice file into the working database, with its test for duplicates and their
// report.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "database/connection.h"
#include "model/ntc_rec.h"
#include "noticefile/line_source.h"
#include "platform/host.h"

namespace zamo {

// What the longest name of a file that a load leaves has behind the base of the notice file.
inline constexpr std::string_view kLongestEndingOfLoad = "_duplicat_report_31122000-235959.txt";

struct LoadRun {
  NtcRec& ntc;                     // the work area; its administration is that of the last <HEAD> read
  const std::string& ntcFileName;  // the path, from which the report gets its name
  std::string_view windowCaption;
  // Opens a report for the user (path, head of the message when there is no viewer).
  std::function<void(const std::string& path, std::string_view messageHead)> showReport;
};

enum class LoadEnd {
  failed,   // nothing could be stored
  stopped,  // the disk is full, and the user doesn't want to go on
  done,     // what the file gave was stored, to its end or to a failure of the reader
};

struct LoadResult {
  std::int64_t noticesRead = 0;  // those left out or rolled back among them
  bool complete = false;         // the whole file was read, and nothing was rolled back
  LoadEnd end = LoadEnd::failed;
};

// Reads the notices of the file to its end and stores each in a transaction of its own; a notice that repeats
// an entry is stored only if the user says so. A failure of the reader is shown in the common error box and
// ends the load; earlier notices stay. On a full disk the user is asked once whether to go on.
LoadResult readNtcsFromFileToDB(const Host& host, LineSource& lines, const LoadRun& load,
                                Connection& connection);

}  // namespace zamo
