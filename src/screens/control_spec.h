// How the tables of controls are written: a field together with what stands beside it.
#pragma once

#include <string_view>

#include "screens/control_lists.h"
#include "screens/screen.h"

namespace zamo {

struct ControlSpec {
  FormSet forms = 0;
  ControlKind kind = ControlKind::text;
  std::string_view name;
  std::string_view frame;    // that holds the control; empty: the form itself
  std::string_view caption;  // a field has it on its label; without one it has no label
  std::string_view tip;      // of a field and its label alike
  ItemList (*items)() = nullptr;
  bool upperCase = false;
  std::string_view label = {};  // where the label's name isn't "Lbl_" and what follows the field's prefix
  std::string_view unit = {};   // behind the field
};

inline constexpr bool kUpper = true;

inline constexpr FormSet kPlanForms = kAssignmentForms | kAllotmentForms;
inline constexpr FormSet kSoundForms = formBit(kGS1Assign) | formBit(kGS2Allot);
inline constexpr FormSet kTelevisionForms = formBit(kGT1Assign) | formBit(kGT2Allot);

}  // namespace zamo
