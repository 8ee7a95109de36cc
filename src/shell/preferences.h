// The working directory, the one thing that outlives a run.
#pragma once

#include "shell/shell.h"

namespace zamo {

// Tells the present working directory, asks whether to change it and stores what was chosen. Cancelling the
// choice stores what the run has.
void mnuPrefDir(Shell& shell);

}  // namespace zamo
