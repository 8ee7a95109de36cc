#include "platform/host.h"

#include <algorithm>

namespace zamo {

std::string getLogonName(const Host& host) {
  std::string name = host.systemLogonName().substr(0, 8);
  std::erase(name, '\0');
  return name.empty() ? "Unknown (NON Windows NT environment)" : name;
}

void showRunTimeError(const Host& host, int number, std::string_view title, std::string_view description) {
  if (number == 0) return;
  const std::string text = "Erreur " + std::to_string(number) + ":" + std::string(description);
  host.showBox({text, std::string(title), BoxIcon::none});
}

}  // namespace zamo
