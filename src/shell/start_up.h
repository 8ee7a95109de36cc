// What happens once, before the main window can be used.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "shell/shell.h"

namespace zamo {

inline constexpr std::string_view kWorkDirSetting = "workDir";

// How the world map is opened.
struct MapOpening {
  std::string dataFile;
  std::function<int()>
      open;  // the library's three opening calls; gives the unit number, -1 without data files
};

// The map of the run, from its data file beside the executable. The shell keeps the map; it is opened by
// openMap.
MapOpening mapBesideExecutable(Shell& shell);

// Opens the map for the run. A data file that is missing or can't be used is told in a box, and gives false.
bool openMap(const Host& host, const MapOpening& map);

// Sets the controls, reads the working directory and the logon name and opens the map. A map that is missing
// or can't be opened disables the text commands and leaves all others. Without `map` that step is left out.
void startUp(Shell& shell, const std::optional<MapOpening>& map);

}  // namespace zamo
