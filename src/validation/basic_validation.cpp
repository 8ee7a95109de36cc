#include "validation/basic_validation.h"

#include "noticefile/strict_reader.h"
#include "platform/code_page.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

const Message kStatus("status: a notice was read on level 1", "Notice no : %1");

}  // namespace

StageResult runBasicValidation(const Host& host, std::string& report, std::int64_t& noticesRead,
                               const std::string& filePath, bool withFileName) {
  noticesRead = 0;
  try {
    LineSource lines(filePath);
    return {validateLines(host, lines, report, noticesRead,
                          withFileName ? textFromUtf8(filePath) : std::string())};
  } catch (...) {
    return tellStageError(host, "Validate Notice", presentError());
  }
}

bool validateLines(const Host& host, LineSource& lines, std::string& report, std::int64_t& noticesRead,
                   std::string_view prefixOfFile) {
  bool result = false;
  StrictReading reading{lines, report, {}, host.yield, {}, {}};
  while (!lines.atEnd()) {
    readLine(reading);
    if (!isTagLine(reading.currentLine)) continue;
    reading.prefix = prefixOfFile;
    if (equalsIgnoringCase(reading.currentLine, kHeadTag)) {
      readLine(reading);
      result = valReadHead(reading);
    } else if (equalsIgnoringCase(reading.currentLine, kNoticeTag)) {
      readLine(reading);
      ++noticesRead;
      reading.prefix.append("Notice No : ").append(std::to_string(noticesRead));
      result = valReadNotice(reading) && result;
      if (prefixOfFile.empty()) {
        host.setStatus(kStatus.filled({std::to_string(noticesRead)}));
        host.repaint();
      }
    } else if (equalsIgnoringCase(reading.currentLine, kTailTag)) {
      readLine(reading);
      result = valReadTail(reading, noticesRead) && result;
    }
  }
  return result;
}

}  // namespace zamo
