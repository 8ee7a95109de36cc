// Which control of which form carries which field of a notice: one row a binding.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model/fields.h"
#include "screens/screen.h"

namespace zamo {

enum class Conversion : std::uint8_t {
  plain,
  combo,         // to the screen: the item of the list that equals the value
  comboTrimmed,  // the same for the value without its blanks
  comboOrFirst,  // the same, and no value is the first item
  pad2,          // with zeros in front, both ways
  pad3,
  pad2Back,  // as it stands to the screen, with zeros in front from it
  pad3Back,
  date,  // day, month and year in three boxes
};

// What of a notice is brought over in one go, in the order in which it is.
enum class Stage : std::uint8_t {
  common,
  site,
  target,
  station,
  system,
  allotmentTarget,
  allotment,
  contourOwner,
  contour,
  tb,
  tbTarget,
};

struct Binding {
  Stage stage = Stage::common;
  FormSet forms = 0;
  ControlName control;  // of a date: the box of its day
  TextMember field;
  Conversion conversion = Conversion::plain;
  Group needs = Group::main;  // shown only when this group is present
  Group marks = Group::main;  // a value that is read makes this group present
  TextMember shown = {};      // what the screen shows in the field's place, where there is one
};

// All rows; and those of a stage.
std::span<const Binding> bindings();
std::span<const Binding> bindingsOf(Stage stage);

// The names of the three boxes of the date to which a box belongs.
struct DateBoxes {
  std::string day;
  std::string month;
  std::string year;
};
DateBoxes dateBoxes(ControlName box);

// The rows of a stage that the form has. An empty field leaves its control as it is, and an empty control its
// field.
void fillStage(const NtcRec& ntc, Screen& screen, FormCode code, Stage stage);
void readStage(NtcRec& ntc, const Screen& screen, FormCode code, Stage stage);

}  // namespace zamo
