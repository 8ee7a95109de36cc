#include "shell/start_up.h"

#include "platform/files.h"
#include "platform/message.h"
#include "platform/system.h"

namespace zamo {
namespace {

const Message kNoMap("box \"File Missing\" at start: the map's data file isn't there",
                     "The file gzmp32d.dll not found. Cannot proceed any further. Plese install the GZMP");
const Message kNoMapData("box at start: the map's data file can't be used", "Can't find GZMP data files");

}  // namespace

MapOpening mapBesideExecutable(Shell& shell) {
  const std::string dataFile = executableFolder() + "/" + kMapDataFile;
  shell.map = makeWorldMap(dataFile);
  return {dataFile, [&map = shell.map.gzmp] {
            map.gzmpSetUnit(kGzmpUnit);
            map.gzmpInit();
            return map.gzmpOpenData();
          }};
}

bool openMap(const Host& host, const MapOpening& map) {
  if (!fileExists(map.dataFile, host.yield)) {
    host.showBox({kNoMap.filled({}), "File Missing", BoxIcon::information});
    return false;
  }
  if (map.open() == kGzmpNoData) {
    host.showBox({kNoMapData.filled({}), "", BoxIcon::none});
    return false;
  }
  return true;
}

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
  if (map) screen.openTxtEnabled = openMap(shell.host, *map);
  if (!screen.openTxtEnabled) shell.map = {};
  shell.run.DbConn.reset();
  shell.run.UserName = getLogonName(shell.host);
  shell.draw(screen);
}

}  // namespace zamo
