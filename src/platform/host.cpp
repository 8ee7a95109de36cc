#include "platform/host.h"

#include <algorithm>
#include <exception>
#include <new>

#include "platform/message.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

const Message kFailure("box, titled with the operation: a failure of the machine, with its number and text",
                       "Erreur %1:%2");

constexpr int kOutOfMemory = 7;
constexpr int kInternalError = 51;

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
  const auto fail = [&host, title](int number, std::string_view description) {
    host.setHourglass(false);
    showRunTimeError(host, number, title, description);
  };
  try {
    action();
  } catch (const RunTimeError& error) {
    fail(error.number, error.text);
  } catch (const std::bad_alloc&) {
    fail(kOutOfMemory, "Out of memory");
  } catch (const std::exception& error) {
    fail(kInternalError, error.what());
  }
}

}  // namespace zamo
