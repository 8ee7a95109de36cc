// The controls of the eight forms with their captions, tool tips and lists: one table of texts for all.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screens/screen.h"

namespace zamo {

struct ControlRow {
  FormSet forms = 0;
  std::string_view name;
  ControlKind kind = ControlKind::text;
  std::string_view frame;  // that holds the control; empty: the form itself
  std::string_view caption;
  std::string_view tip;
  std::vector<std::string> (*items)() = nullptr;  // of a combo or a list
  bool upperCase = false;                         // what is typed is turned to upper case
};

// The controls of a form, in the order in which the form is read, with each azimuth box of the grids.
std::vector<ControlRow> controlRows(FormCode code);

// Gives the screen its controls, with captions, tips and lists. Everything is shown and enabled, no option is
// set, and combos show their first, empty item.
void makeControls(Screen& screen);

// The name of an azimuth's box or label in a grid: what the names begin with, and the azimuth in degrees, in
// steps of 10.
std::string azimuthBox(ControlStem grid, int azimuth);

}  // namespace zamo
