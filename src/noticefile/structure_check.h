// The first look at a notice file: its section tags alone.
#pragma once

#include <string>
#include <string_view>

#include "noticefile/line_source.h"
#include "platform/host.h"
#include "platform/run_time_error.h"

namespace zamo {

// What a stage of the pipeline made of a file. `machineFailed` tells that the verdict comes from an error of
// the machine, which the user has been shown, and not from the file's content.
struct StageResult {
  bool passed = false;
  bool machineFailed = false;
  bool unreadable = false;  // by that error the file can't be opened or read to its end
};

// The result of a stage that an error of the machine ended. The user is told in the box of the stage.
StageResult tellStageError(const Host& host, std::string_view stage, const RunTimeError& error);

// Whether the file holds exactly one <HEAD>, exactly one <TAIL> and at least one <NOTICE>, each section
// closed. `errText` takes what is wrong, or the count of notices when nothing is.
// The messages call the file `title`.
StageResult checkFileStructure(const Host& host, std::string& errText, const std::string& fileName,
                               const std::string& title);
inline StageResult checkFileStructure(const Host& host, std::string& errText, const std::string& fileName) {
  return checkFileStructure(host, errText, fileName, fileName);
}

// The same on lines; `fileName` stands in the messages. Throws RunTimeError.
bool checkStructureOfLines(LineSource& lines, std::string& errText, std::string_view fileName);

}  // namespace zamo
