#include "shell/start_up.h"

#include "platform/files.h"
#include "platform/message.h"

namespace zamo {
namespace {

const Message kNoMap("box \"File Missing\" at start: the map's data file isn't there",
                     "The file gzmp32d.dll not found. Cannot proceed any further. Plese install the GZMP");
const Message kNoMapData("box at start: the map's data file can't be used", "Can't find GZMP data files");

void openMap(Shell& shell, const MapOpening& map) {
  if (!fileExists(map.dataFile, shell.host.yield)) {
    shell.host.showBox({kNoMap.filled({}), "File Missing", BoxIcon::information});
    shell.screen.openTxtEnabled = false;
  } else if (map.open() == -1) {
    shell.host.showBox({kNoMapData.filled({}), "", BoxIcon::none});
    shell.screen.openTxtEnabled = false;
  }
}

}  // namespace

void startUp(Shell& shell, const std::optional<MapOpening>& map) {
  MainScreen& screen = shell.screen;
  screen.viewFileVisible = false;
  screen.reValVisible = false;
  screen.queryEnabled = false;
  screen.prefLangVisible = false;
  screen.txtDbEnabled = false;
  shell.run.WorkDir = shell.host.readSetting(kWorkDirSetting);
  if (shell.run.WorkDir.empty()) shell.run.WorkDir = "c:\\";
  screen.caption = kWindowVersion;
  shell.run.RunMode = 5;
  screen.englishChecked = true;
  screen.gridVisible = false;
  screen.inputVisible = false;
  screen.statusVisible = false;
  shell.draw(screen);
  if (map) openMap(shell, *map);
  shell.run.DbConn.reset();
  shell.run.UserName = getLogonName(shell.host);
  shell.draw(screen);
}

}  // namespace zamo
