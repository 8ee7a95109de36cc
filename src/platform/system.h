// What the operating system tells of the program, its user and its terminal. Each system has its own
// implementation of this.
#pragma once

#include <string>
#include <string_view>

#include "platform/dates.h"

namespace zamo {

// The present date and time of this machine.
DateTime systemNow();

// The name of the operating system's user, empty when it has none.
std::string systemUserName();

// The folder of the running executable, without a separator at its end.
std::string executableFolder();

// Whether somebody watches what goes to standard output, or to standard error.
bool standardOutputIsTerminal();
bool standardErrorIsTerminal();

// Gives the text to standard output as it is; false when that doesn't take all of it.
bool print(std::string_view text);

}  // namespace zamo
