// Where the controls of the notice forms stand: pages of boxes, and in each box a grid of cells. Tables,
// which the window lays out; their order is the order of the Tab key.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "screens/screen.h"

namespace zamo {

// A page of the form. Forms with one page show no tabs.
struct PageRow {
  FormSet forms = 0;
  std::string_view page;
  std::string_view title;  // with its mnemonic
};

// A box of a page: a frame of the form, or a group that the form has no control for. Boxes of a page follow
// each other from left to right and from top to bottom, as the width allows. A box without a page stands in
// a cell of another box.
struct BoxRow {
  FormSet forms = 0;
  std::string_view page;
  std::string_view box;    // the frame's control, or a name of our own
  std::string_view title;  // of a group of our own; without a title it has no border either
};

// A cell of a box.
struct CellRow {
  FormSet forms = 0;
  std::string_view box;
  int row = 0;
  int column = 0;
  std::string_view controls;  // side by side, with blanks between the names; a box may be one of them
  int columnSpan = 1;
  int rowSpan = 1;
};

enum class FieldWidth : std::uint8_t { fixed, grows };
enum class FieldSide : std::uint8_t { left, right };  // numbers stand at the right end of their box

// How a text box or a list looks.
struct FieldLook {
  std::string_view control;  // or what the names of a group of boxes begin with
  int characters = 16;       // that it shows at least
  FieldWidth width = FieldWidth::grows;
  FieldSide side = FieldSide::left;
  std::string_view hint;  // what an empty box shows
};

struct LayoutTables {
  std::span<const PageRow> pages;
  std::span<const BoxRow> boxes;
  std::span<const CellRow> cells;
};

LayoutTables assignmentLayout();
LayoutTables allotmentLayout();
LayoutTables contourLayout();
LayoutTables tbLayout();
LayoutTables commonLayout();  // what comes last on the forms of several families

// A cell as the window takes it.
struct Cell {
  std::string_view box;
  int row = 0;
  int column = 0;
  std::vector<std::string> controls;
  int columnSpan = 1;
  int rowSpan = 1;
  bool isTight = false;  // its controls stand close together
};

struct FormLayout {
  std::vector<PageRow> pages;
  std::vector<BoxRow> boxes;
  std::vector<Cell> cells;
};

// The rows of a form, with every box of its azimuth grids. A form without a layout has none.
FormLayout layoutOf(FormCode code);

FieldLook lookOf(std::string_view control);

// Whether a combo can be typed into. The others are lists to pick from.
bool canBeTypedInto(std::string_view combo);

// What every form has above its pages and below them.
inline constexpr std::string_view kTopStrip[] = {"Lbl_Filename", "Txt_Filename", "Lbl_Ntc_Number",
                                                 "Txt_Ntc_Number"};
struct ButtonRow {
  std::string_view control;
  char mnemonic = 0;  // a letter of the caption
  std::string_view shortcut;
};
// clang-format off
inline constexpr ButtonRow kButtonStrip[] = {
    {"Button_Next",     'U', ""},
    {"Button_AddNew",   'A', ""},
    {"Button_Finish",   'D', ""},
    {"Button_Validate", 'V', ""},
    {"Button_Prev_Ntc",  0,  "Alt+Left"},
    {"Button_Next_Ntc",  0,  "Alt+Right"},
    {"Button_Reset",    'C', ""},
};
// clang-format on

}  // namespace zamo
