// What lives for the whole run beside the main window, and what the window shows of it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/db_connection.h"
#include "map/gzmp_map.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

inline constexpr std::string_view kWindowVersion = " KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009";

enum ValLevels : std::int16_t { kBasic = 1, kCompleteWithoutGeo = 2, kCompleteWithGeo = 3 };

struct RunState {
  std::int16_t RunMode = 5;  // data correction, the one mode there is
  std::string WorkDir;
  std::string UserName;
  DbConnection DbConn;
  std::int16_t ValLevel = 0;
  NtcRec CurrNtc;
  std::string NtcFileName;  // paths are as the operating system has them
  std::string DbFileName;
  std::string CorrFileName;
  std::vector<std::int32_t> IndexList;
  std::int32_t IndexPos = 0;
  std::int32_t NtcCount = 0;
  std::int32_t SelKey = 0;
  std::string qrySql;
  bool qryIsNotice = false;
  bool qryConfirmed = false;
  bool GridListsContours = false;
  bool QryGT1 = false;
  bool QryGT2 = false;
  bool QryGS1 = false;
  bool QryGS2 = false;

  // Stamps for the run log: when the command started and when its file was chosen.
  std::string startTime;
  std::string fileTime;
};

// The states of the main window's controls. The stages write them and the window draws them.
struct MainScreen {
  bool openTxtEnabled = true;   // mnuFileOpenTxt
  bool queryEnabled = true;     // mnuQuery
  bool txtDbEnabled = true;     // mnuTxtDB
  bool prefLangVisible = true;  // mnuPrefLang
  bool englishChecked = false;  // mnuPrefLangE
  bool viewFileVisible = true;  // ButtonViewFile
  bool reValVisible = true;     // ButtonReVal
  bool inputVisible = true;     // LblInputTxt and TxtFileName
  bool statusVisible = true;    // TxtProcessingStatus
  bool gridVisible = true;      // NtcDataGrid
  std::string caption;
  std::string fileName;  // TxtFileName
  bool operator==(const MainScreen&) const = default;
};

// One run of the program: the host, the state, and the screen, which `draw` brings to the window, if there is
// one.
struct Shell {
  Host host;
  RunState run;
  MainScreen screen;
  GzmpMap map;  // the world map, which level 3 needs opened
  std::function<void(const MainScreen&)> draw = [](const MainScreen&) {};
};

}  // namespace zamo
