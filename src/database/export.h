// The export: notices of the working database written back as a notice file.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "noticefile/notice_writer.h"
#include "platform/files.h"
#include "platform/host.h"

namespace zamo {

enum class ExportEnd { failed, nothingSelected, declined, refused, written };

struct ExportRun {
  std::string_view programVersion;
  ExportEnd end = ExportEnd::failed;  // refused: a notice without an administration, or of a second one
  std::int32_t noticesWritten = 0;    // of a file that was finished
};

// Writes what the two statements select, contours last, into a file of that name, which replaces one that is
// there; nothing else on the disk changes. Gives whether the file was finished. One that wasn't stays as far
// as it got, without a tail, and the user has been told why.
bool exportDBToTxt(const Host& host, const std::string& fileName, Connection& connection, ExportRun& run,
                   std::string_view noticeSql, std::string_view contourSql, std::string_view header);

// A notice file that is being written.
struct WrittenFile {
  GrowingFile& stream;
  bool headWritten = false;
  std::int32_t nextNumber = 1;
  std::string adm;       // of the head: a file holds the notices of one administration
  bool refused = false;  // a notice was, for its administration
};

// Writes the notices of the keys in their order, the head before the first of the file; with the tail, which
// counts what was written so far, the file is finished and closed. Gives whether all were written.
bool writeNtcsToTxt(const Host& host, WrittenFile& file, const std::vector<std::int32_t>& keys,
                    bool areContours, bool withTail, Connection& connection);

// What the writer asks the database for. Host and connection must outlive it.
TargetLookup targetsOf(const Host& host, Connection& connection);

}  // namespace zamo
