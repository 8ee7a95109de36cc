#include "platform/host.h"

#include <algorithm>

#include "platform/message.h"

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

}  // namespace zamo
