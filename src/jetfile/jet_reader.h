// The walk over the rows of a Jet file. What it reads nobody here has written: a damaged or hostile file can
// bring down the library below or keep it busy for ever, so it has a process of its own to run in.
#pragma once

#include <string>
#include <vector>

#include "jetfile/jet_parts.h"

namespace zamo {

// Gives the catalogue and then, in the order of `tables`, those of them that the file has; names in any case.
// A file that can't be read on ends with a failure.
void readJetFile(const std::string& path, const std::vector<std::string>& tables, const JetTaker& take);

}  // namespace zamo
