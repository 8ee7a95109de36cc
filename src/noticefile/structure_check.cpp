#include "noticefile/structure_check.h"

#include <vector>

#include "noticefile/lines.h"
#include "platform/code_page.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::string_view kTwoHeads = " : ERROR : There can only be one <HEAD> section\r\n";
constexpr std::string_view kTwoTails = " : ERROR : There can only be one <TAIL> section\r\n";
constexpr std::string_view kNoHead =
    " : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n";
constexpr std::string_view kNoNotice =
    " : ERROR : An electronic notice should have \r\n at least ONE <NOTICE> section\r\n";
constexpr std::string_view kNoTail = " : ERROR : An electronic notice should have \r\n ONE <TAIL> section\r\n";

struct OpenSection {
  std::string_view endTag;
  std::int64_t startLine = 0;
};

// Reads on to the end tag of `tag`. The sections inside are kept on a stack of our own, as a file can nest them
// deeper than calls can.
bool checkSection(LineSource& lines, std::string& errText, std::string_view tag, std::int64_t startLine) {
  std::vector<OpenSection> open = {{endTagOf(tag), startLine}};
  while (!open.empty()) {
    const OpenSection section = open.back();
    if (lines.atEnd()) {
      errText.append("The end tag : ").append(section.endTag);
      errText.append(" for the section started at line number ").append(std::to_string(section.startLine));
      errText.append(" was not found.\r\nPLEASE CORRECT TO PROCEED\r\n");
      return false;
    }
    const std::string_view line = lines.nextLine();
    if (!isTagLine(line)) continue;
    if (equalsIgnoringCase(line, section.endTag)) {
      open.pop_back();
    } else if (isTopTag(line)) {
      errText.append("The end tag : ").append(section.endTag);
      errText.append(" is missing at line number ").append(std::to_string(lines.lineNo()));
      return false;
    } else if (isSubTag(line)) {
      open.push_back({endTagOf(line), lines.lineNo()});
    }
  }
  return true;
}

}  // namespace

StageResult checkFileStructure(const Host& host, std::string& errText, const std::string& fileName) {
  try {
    LineSource lines(fileName);
    return {checkStructureOfLines(lines, errText, textFromUtf8(fileName))};
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, "Validate File format", error.text);
    return {false, true};
  }
}

bool checkStructureOfLines(LineSource& lines, std::string& errText, std::string_view fileName) {
  bool headSeen = false;
  bool tailSeen = false;
  std::int64_t notices = 0;
  std::string tag;
  std::string_view line = lines.nextLine();
  while (!lines.atEnd()) {
    if (isTopTag(line)) {
      tag = upperText(line);
      const std::int64_t startLine = lines.lineNo();
      // The line behind a top tag is passed over unseen, whatever it is.
      lines.nextLine();
      if (!checkSection(lines, errText, tag, startLine)) return false;
      bool* const only = tag == kHeadTag ? &headSeen : tag == kTailTag ? &tailSeen : nullptr;
      if (only == nullptr) {
        ++notices;
      } else if (*only) {
        errText.append(fileName).append(tag == kHeadTag ? kTwoHeads : kTwoTails);
        return false;
      } else {
        *only = true;
      }
    }
    line = lines.nextLine();
  }
  errText = "Number of Notice sections found : " + std::to_string(notices) + "\r\n";
  if (!headSeen) return errText.append(fileName).append(kNoHead), false;
  if (notices == 0) return errText.append(fileName).append(kNoNotice), false;
  if (!tailSeen) return errText.append(fileName).append(kNoTail), false;
  errText.append("The electronic file is structure is ok\r\n");
  return true;
}

}  // namespace zamo
