// The frame of a database operation: run-time errors are its own business.
#pragma once

#include <string_view>

#include "platform/host.h"
#include "platform/run_time_error.h"

namespace zamo {

// Runs `body`, which gives the operation's result, and shows what it throws in the common error box under the
// operation's name; the result is `failed` then.
template <typename Body>
auto guarded(const Host& host, std::string_view operation, Body body, decltype(body()) failed = {}) {
  try {
    return body();
  } catch (const RunTimeError& error) {
    showRunTimeError(host, error.number, operation, error.text);
    return failed;
  }
}

}  // namespace zamo
