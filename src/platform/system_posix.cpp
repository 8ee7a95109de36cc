#include <poll.h>
#include <pwd.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>
#include <system_error>

#include "platform/code_page.h"
#include "platform/system.h"
#include "platform/uninterrupted.h"

namespace zamo {

DateTime systemNow() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  const Date date{std::chrono::year(local.tm_year + 1900),
                  std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
                  std::chrono::day(static_cast<unsigned>(local.tm_mday))};
  return {date, local.tm_hour, local.tm_min, local.tm_sec};
}

std::string systemUserName() {
  const passwd* user = ::getpwuid(::geteuid());
  return user == nullptr ? std::string() : textFromUtf8(user->pw_name);
}

std::string executableFolder() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

bool standardOutputIsTerminal() {
  return ::isatty(STDOUT_FILENO) != 0;
}

bool standardErrorIsTerminal() {
  return ::isatty(STDERR_FILENO) != 0;
}

bool print(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written =
        uninterrupted([text] { return ::write(STDOUT_FILENO, text.data(), text.size()); });
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      pollfd waiting{STDOUT_FILENO, POLLOUT, 0};
      uninterrupted([&waiting] { return ::poll(&waiting, 1, -1); });
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace zamo
