// The menus of the main window, one row each, in menu order.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "shell/export_command.h"
#include "shell/notice_query.h"
#include "shell/pipeline.h"
#include "shell/preferences.h"

class QWidget;

namespace zamo {

// What a menu entry or a button does.
using Command = void (*)(Shell& shell, QWidget& window);

// Closes the window; defined with it, so that this table needs no toolkit.
void mnuFileExit(Shell& shell, QWidget& window);

struct MenuRow {
  std::string_view name;
  std::string_view caption;
  char mnemonic;            // the letter of the caption that is underlined
  std::string_view parent;  // empty: in the menu bar
  std::string_view shortcut = {};
  Command command = nullptr;  // an entry without one is disabled
};

namespace menu {

template <ValLevels level>
void openTxt(Shell& shell, QWidget& /*window*/) {
  runTextCommand(shell, level);
}

// A command that doesn't ask for the window.
template <auto command>
void run(Shell& shell, QWidget& /*window*/) {
  command(shell);
}

// All texts are English: the languages are there and choose nothing.
inline void chooseNothing(Shell& /*shell*/, QWidget& /*window*/) {}

}  // namespace menu

// clang-format off
inline constexpr std::array<MenuRow, 18> kMenus = {{
    // name                       caption                             key  parent            shortcut  command
    {"mnuFile",                   "File",                             'F', "",               "",       nullptr},
    {"mnuFileOpenTxt",            "OpenTxt",                          'T', "mnuFile",        "",       nullptr},
    {"mnuFileOpenTxtBasicV",      "Include Basic Val",                'B', "mnuFileOpenTxt", "",       menu::openTxt<kBasic>},
    {"mnuFileOpenTxtComplVNoGeo", "Include Complete Val without Geo", 'o', "mnuFileOpenTxt", "",       menu::openTxt<kCompleteWithoutGeo>},
    {"mnuFileOpenTxtComplVGeo",   "Include Complete Val with Geo",    'G', "mnuFileOpenTxt", "",       menu::openTxt<kCompleteWithGeo>},
    {"mnuFileOpenDB",             "OpenDB",                           'D', "mnuFile",        "",       menu::run<mnuFileOpenDB>},
    {"mnuFileExit",               "Exit",                             'x', "mnuFile",        "Ctrl+X", mnuFileExit},
    {"mnuQuery",                  "Query",                            'Q', "",               "",       nullptr},
    {"mnuQueryNew",               "New",                              'N', "mnuQuery",       "",       menu::run<mnuQueryNew>},
    {"mnuTxtDB",                  "CreateTxtFromDB",                  'C', "",               "",       nullptr},
    {"mnuTxtDBUpdated",           "Select ONLY updated records",      'O', "mnuTxtDB",       "",       menu::run<mnuTxtDBUpdated>},
    {"mnuTxtDBAll",               "Select ALL records",               'A', "mnuTxtDB",       "",       menu::run<mnuTxtDBAll>},
    {"mnuPref",                   "Preferences",                      'P', "",               "",       nullptr},
    {"mnuPrefDir",                "Set Working Directory",            'W', "mnuPref",        "",       menu::run<mnuPrefDir>},
    {"mnuPrefLang",               "Language",                         'L', "mnuPref",        "",       nullptr},
    {"mnuPrefLangE",              "English",                          'E', "mnuPrefLang",    "",       menu::chooseNothing},
    {"mnuPrefLangF",              "French",                           'F', "mnuPrefLang",    "",       menu::chooseNothing},
    {"mnuPrefLangS",              "Spanish",                          'S', "mnuPrefLang",    "",       menu::chooseNothing},
}};
// clang-format on

// Whether other rows stand below this one.
constexpr bool holdsEntries(const MenuRow& row) {
  return std::any_of(kMenus.begin(), kMenus.end(),
                     [&row](const MenuRow& other) { return other.parent == row.name; });
}

constexpr bool menusAreSound() {
  for (std::size_t i = 0; i < kMenus.size(); ++i) {
    const MenuRow& row = kMenus[i];
    if (row.caption.find(row.mnemonic) == std::string_view::npos) return false;
    if (holdsEntries(row) && row.command != nullptr) return false;
    bool parentSeen = row.parent.empty();
    for (std::size_t j = 0; j < i; ++j) {
      if (kMenus[j].name == row.name) return false;
      if (kMenus[j].parent == row.parent && kMenus[j].mnemonic == row.mnemonic) return false;
      parentSeen = parentSeen || kMenus[j].name == row.parent;
    }
    if (!parentSeen) return false;
  }
  return true;
}
static_assert(menusAreSound(), "names are unique, parents come first, mnemonics tell siblings apart");

}  // namespace zamo
