#include "platform/host.h"

#include <algorithm>

#include "platform/message.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

const Message kFailure("box, titled with the operation: a failure of the machine, with its number and text",
                       "Erreur %1:%2");

}  // namespace

std::string getLogonName(const Host& host) {
  std::string name = host.systemLogonName().substr(0, 8);
  std::erase(name, '\0');
  return name.empty() ? "Unknown (NON Windows NT environment)" : name;
}

void showRunTimeError(const Host& host, int number, std::string_view title, std::string_view description) {
  if (number == 0) return;
  host.showBox({kFailure.filled({std::to_string(number), description}), std::string(title), BoxIcon::none});
}

void runGuarded(const Host& host, std::string_view title, const std::function<void()>& action) {
  try {
    action();
  } catch (...) {
    const RunTimeError error = presentError();
    host.setHourglass(false);
    showRunTimeError(host, error.number, title, error.text);
  }
}

}  // namespace zamo
