// Basic validation: every value of a notice file looked at as text.
#pragma once

#include <cstdint>
#include <string>

#include "noticefile/structure_check.h"
#include "platform/host.h"

namespace zamo {

// Walks the file from its first to its last line, adds a line to `report` for each bad value and doesn't stop
// at a bad notice. `noticesRead` takes the count of notices met. Passed is what the readers gave, from the
// <HEAD> on: a <HEAD> that stands behind a notice wipes out that notice's result, and without any <HEAD> the
// file fails. `withFileName` puts the file's name into each prefix.
StageResult runBasicValidation(const Host& host, std::string& report, std::int64_t& noticesRead,
                               const std::string& filePath, bool withFileName);

// The same on lines, with `noticesRead` counted on. Throws RunTimeError.
bool validateLines(const Host& host, LineSource& lines, std::string& report, std::int64_t& noticesRead,
                   std::string_view prefixOfFile);

}  // namespace zamo
