// Calls of the operating system that a signal interrupts are made again. For POSIX systems.
#pragma once

#include <cerrno>

namespace zamo {

// What `call` gives, once no signal has interrupted it.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace zamo
