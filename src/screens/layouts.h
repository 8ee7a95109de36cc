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

// Names of controls with blanks between them. A word that names none doesn't compile.
class NamesInCell {
 public:
  consteval NamesInCell(const char* literal) : names_(literal) {
    std::string_view rest = names_;
    while (!rest.empty()) {
      const std::size_t end = rest.find(' ');
      if (!control_names::isControl(rest.substr(0, end))) throw "no form has a control of this name";
      rest = end == std::string_view::npos ? "" : rest.substr(end + 1);
    }
  }
  constexpr operator std::string_view() const { return names_; }

 private:
  std::string_view names_;
};

// A cell of a box.
struct CellRow {
  FormSet forms = 0;
  std::string_view box;
  int row = 0;
  int column = 0;
  NamesInCell controls;  // side by side; a box may be one of them
  int columnSpan = 1;
  int rowSpan = 1;
};

enum class FieldWidth : std::uint8_t { fixed, grows };
enum class FieldSide : std::uint8_t { left, right };  // numbers stand at the right end of their box

// How a text box or a list looks.
struct FieldLook {
  ControlStem control;
  int characters = 16;  // that it shows at least
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

FieldLook lookOf(ControlName control);

// Whether a combo can be typed into. The others are lists to pick from.
bool canBeTypedInto(ControlName combo);

// What every form has above its pages and below them.
inline constexpr ControlName kTopStrip[] = {"Lbl_Filename", "Txt_Filename", "Lbl_Ntc_Number",
                                            "Txt_Ntc_Number"};
struct ButtonRow {
  ControlName control;
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
