#include "platform/plain_host.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>

#include "platform/code_page.h"

namespace zamo {
namespace {

void printLine(std::string_view text) {
  const std::string line = utf8FromText(text) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void printBox(const Box& box) { printLine(box.title.empty() ? box.text : box.title + ": " + box.text); }

}  // namespace

Host makePlainHost(bool answer) {
  Host host;
  host.showBox = printBox;
  host.askYesNo = [answer](const Box& box) {
    printBox(box);
    printLine(answer ? "Yes" : "No");
    return answer;
  };
  host.setStatus = printLine;
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

DateTime systemNow() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  const Date date{std::chrono::year(local.tm_year + 1900), std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                  std::chrono::day(static_cast<unsigned>(local.tm_mday))};
  return {date, local.tm_hour, local.tm_min, local.tm_sec};
}

std::string systemUserName() {
  const passwd* user = ::getpwuid(::geteuid());
  return user == nullptr ? std::string() : textFromUtf8(user->pw_name);
}

}  // namespace zamo
