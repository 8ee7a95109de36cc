// The companion without a window: the same stages for scripts.
#pragma once

namespace zamo {

// Runs the call on the command line. Exit status: 0 nothing found, 1 findings, 2 wrong usage or a file that
// can't be read or written.
int runBatch(int argc, const char* const* argv);

}  // namespace zamo
