#include "noticefile/structure_check.h"

#include <vector>

#include "noticefile/lines.h"
#include "platform/code_page.h"
#include "platform/message.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kEndTagNotFound("the file ends inside a section", "The end tag : %1 for the section started at line number %2 was not found.\r\nPLEASE CORRECT TO PROCEED\r\n");
const Message kEndTagMissing("a section of the top level begins inside another section", "The end tag : %1 is missing at line number %2");
const Message kTwoHeads("a second <HEAD>", "%1 : ERROR : There can only be one <HEAD> section\r\n");
const Message kTwoTails("a second <TAIL>", "%1 : ERROR : There can only be one <TAIL> section\r\n");
const Message kNoticeCount("always, when no section is open at the end", "Number of Notice sections found : %1\r\n");
const Message kNoHead("no <HEAD>", "%1 : ERROR : An electronic notice file should start with \r\n ONE <HEAD> section \r\n");
const Message kNoNotice("no <NOTICE>", "%1 : ERROR : An electronic notice should have \r\n at least ONE <NOTICE> section\r\n");
const Message kNoTail("no <TAIL>", "%1 : ERROR : An electronic notice should have \r\n ONE <TAIL> section\r\n");
const Message kSound("the structure is sound; no report is written then", "The electronic file is structure is ok\r\n");
// clang-format on

struct OpenSection {
  std::string_view endTag;
  std::int64_t startLine = 0;
};

// Reads on to the end tag of `tag`. The sections inside are kept on a stack of our own, as a file can nest
// them deeper than calls can.
bool checkSection(LineSource& lines, std::string& errText, std::string_view tag, std::int64_t startLine) {
  std::vector<OpenSection> open = {{endTagOf(tag), startLine}};
  while (!open.empty()) {
    const OpenSection section = open.back();
    if (lines.atEnd()) {
      errText.append(kEndTagNotFound.filled({section.endTag, std::to_string(section.startLine)}));
      return false;
    }
    const std::string_view line = lines.nextTagLine();
    if (!isTagLine(line)) continue;
    if (equalsIgnoringCase(line, section.endTag)) {
      open.pop_back();
    } else if (isTopTag(line)) {
      errText.append(kEndTagMissing.filled({section.endTag, std::to_string(lines.lineNo())}));
      return false;
    } else if (isSubTag(line)) {
      open.push_back({endTagOf(line), lines.lineNo()});
    }
  }
  return true;
}

}  // namespace

StageResult tellStageError(const Host& host, std::string_view stage, const RunTimeError& error) {
  showRunTimeError(host, error.number, stage, error.text);
  return {false, true, isFileError(error.number) || error.number == kOutOfMemory};
}

StageResult checkFileStructure(const Host& host, std::string& errText, const std::string& fileName,
                               const std::string& title) {
  try {
    LineSource lines(fileName);
    return {checkStructureOfLines(lines, errText, textFromUtf8(title))};
  } catch (...) {
    return tellStageError(host, "Validate File format", presentError());
  }
}

bool checkStructureOfLines(LineSource& lines, std::string& errText, std::string_view fileName) {
  bool headSeen = false;
  bool tailSeen = false;
  std::int64_t notices = 0;
  std::string tag;
  std::string_view line = lines.nextTagLine();
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
        errText.append((tag == kHeadTag ? kTwoHeads : kTwoTails).filled({fileName}));
        return false;
      } else {
        *only = true;
      }
    }
    line = lines.nextTagLine();
  }
  errText = kNoticeCount.filled({std::to_string(notices)});
  if (!headSeen) return errText.append(kNoHead.filled({fileName})), false;
  if (notices == 0) return errText.append(kNoNotice.filled({fileName})), false;
  if (!tailSeen) return errText.append(kNoTail.filled({fileName})), false;
  errText.append(kSound.words());
  return true;
}

}  // namespace zamo
