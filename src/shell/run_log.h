// The run log: one line of a semicolon file for each command. Nothing keeps it at present.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/shell.h"

namespace zamo {

struct RunLogPlaces {
  std::string localFile = "C:\\TEMP\\LMZ_Pro_Log.csv";
  std::string sharedFolder = "X:\\MN\\MNQST\\WQN\\LMZ_DraftPlan\\";
};

// Appends the two texts, the count (an empty text for 0) and the stamps of the run to the local file and,
// when its folder exists, to the shared one. Where writing is not permitted the file's name is extended by
// the logon name; any other failure leaves that file without the line.
void writeRunLog(const Shell& shell, std::string_view textOne, std::string_view textTwo, std::int32_t count,
                 const RunLogPlaces& places = {});

}  // namespace zamo
