// What the commands have in common: the status line, and a database to work on.
#pragma once

#include <string_view>

#include "platform/run_time_error.h"
#include "shell/shell.h"

namespace zamo {

// Shows the status line with this text, at once.
inline void showStatus(Shell& shell, std::string_view text) {
  shell.screen.statusVisible = true;
  shell.draw(shell.screen);
  shell.host.setStatus(text);
  shell.host.repaint();
}

// A load that fails can leave the commands on a database enabled without one; they throw this RunTimeError.
inline void requireDatabase(const Shell& shell) {
  if (shell.run.DbConn == nullptr) throw RunTimeError{kInvalidArgument, "No database is open"};
}

}  // namespace zamo
