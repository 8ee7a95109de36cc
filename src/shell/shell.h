// One run of the program: the host, the state, what the main window shows of it and the forms over it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "map/world_map.h"
#include "platform/host.h"
#include "query/run_state.h"
#include "shell/grid_rows.h"

namespace zamo {

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

// What the commands need of the toolkit. Without a window nothing of it happens.
struct Forms {
  // The query form, modally. It leaves its choice in qrySql, qryIsNotice, qryConfirmed and the four type
  // flags.
  std::function<void()> showQueryForm = [] {};
  // The date dialog, modally; gives its condition, empty on Cancel.
  std::function<std::string()> askUpdateCondition = [] { return std::string(); };
  // Gives NtcDataGrid its rows. Detaching lets go of those that nobody sees.
  std::function<void(GridRows rows)> bindGrid = [](const GridRows&) {};
  std::function<void()> detachGrid = [] {};
  // The screen of the notice at that place of IndexList, modally.
  std::function<void(std::int32_t key, std::int32_t idx, const std::string& type)> openNotice =
      [](std::int32_t, std::int32_t, const std::string&) {};
};

// The screen is brought to the window by `draw`, if there is one.
struct Shell {
  Host host;
  RunState run;
  MainScreen screen;
  WorldMap map;  // which level 3 needs opened; empty after its opening failed
  Forms forms;
  std::function<void(const MainScreen&)> draw = [](const MainScreen&) {};
  std::string inputTitle;  // what messages call the notice file; empty: by its path
};

}  // namespace zamo
