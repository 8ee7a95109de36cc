// How the tables of controls are written: a field together with its label.
#pragma once

#include <cstdint>
#include <string_view>

#include "screens/control_lists.h"
#include "screens/forms.h"

namespace zamo {

enum class ControlKind : std::uint8_t { text, memo, combo, list, option, button, label, frame };

struct ControlSpec {
  FormSet forms = 0;
  ControlKind kind = ControlKind::text;
  std::string_view name;
  std::string_view label;    // of a field
  std::string_view frame;    // that holds the control; empty: the form itself
  std::string_view caption;  // a field has it on its label, and without one it has no label of its own
  std::string_view tip;      // of a field and its label alike
  ItemList (*items)() = nullptr;
  bool upperCase = false;
};

inline constexpr bool kUpper = true;

inline constexpr FormSet kPlanForms = kAssignmentForms | kAllotmentForms;
inline constexpr FormSet kSoundForms = formBit(kGS1Assign) | formBit(kGS2Allot);
inline constexpr FormSet kTelevisionForms = formBit(kGT1Assign) | formBit(kGT2Allot);

}  // namespace zamo
