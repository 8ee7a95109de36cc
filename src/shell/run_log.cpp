#include "shell/run_log.h"

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::string_view kLocalOnlyUser = "zuwerkal";

void appendLine(std::string file, const std::string& line, const std::string& logonName) {
  for (;;) {
    try {
      appendToFile(file, line);
      return;
    } catch (const RunTimeError& error) {
      // The name grows until it is taken or too long for a file, which is another error.
      if (error.number != kPermissionDenied) return;
      file += logonName + ".csv";
    }
  }
}

}  // namespace

void writeRunLog(const Shell& shell, std::string_view textOne, std::string_view textTwo, std::int32_t count,
                 const RunLogPlaces& places) {
  const std::string logonName = getLogonName(shell.host);
  const bool shared = fileExists(places.sharedFolder, shell.host.yield);
  std::string line;
  line.append(textOne).append(";").append(textTwo).append(";");
  if (count != 0) line += std::to_string(count);
  line.append(";").append(kWindowVersion).append(";").append(logonName).append(";");
  line.append(shortDateText(shell.host.now().date)).append(";");
  line.append(shell.run.fileTime).append("-").append(shell.run.startTime).append(kLineEnd);
  appendLine(places.localFile, line, logonName);
  if (logonName != kLocalOnlyUser && shared)
    appendLine(places.sharedFolder + "LMZ_Pro_Log.csv", line, logonName);
}

}  // namespace zamo
