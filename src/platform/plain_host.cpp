#include "platform/plain_host.h"

#include <cstdio>

#include "platform/code_page.h"
#include "platform/system.h"

namespace zamo {
namespace {

constexpr std::size_t kMessageBuffer = 64 * std::size_t{1024};

void printLine(std::string_view text) {
  const std::string line = utf8FromText(text) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void printBox(const Box& box) {
  printLine(box.title.empty() ? box.text : box.title + ": " + box.text);
  std::fflush(stderr);
}

}  // namespace

Host makePlainHost(bool answer) {
  // A status a notice is too many system calls for a file or a pipe, where nobody watches.
  if (!standardErrorIsTerminal()) std::setvbuf(stderr, nullptr, _IOFBF, kMessageBuffer);
  Host host;
  host.showBox = printBox;
  host.askYesNo = [answer](const Box& box) {
    printBox(box);
    const bool isYes = answer && !box.needsUser;
    printLine(isYes ? "Yes" : "No");
    return isYes;
  };
  host.askText = [](const Box& box) {
    printBox(box);
    return std::string();
  };
  host.beep = [] {};
  host.setStatus = printLine;
  host.setNote = [](std::string_view text) {
    if (!text.empty()) printLine(text);
  };
  host.repaint = [] {};
  host.setHourglass = [](bool) {};
  host.now = systemNow;
  host.systemLogonName = systemUserName;
  host.readSetting = [](std::string_view) { return std::string(); };
  host.saveSetting = [](std::string_view, std::string_view) {};
  host.openFile = [](const OpenFileRequest&) { return std::optional<std::string>(); };
  host.chooseFolder = [](std::string_view) { return std::optional<std::string>(); };
  host.startTextViewer = [](const std::string&) { return true; };
  return host;
}

}  // namespace zamo
