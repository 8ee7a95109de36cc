// The forms of the notices, by number and in sets.
#pragma once

#include <cstdint>

namespace zamo {

// What a notice type is turned into: it chooses the form and the tables of the form.
enum FormCode : std::int16_t {
  kNoForm = 0,
  kGS1Assign = 3,
  kGT1Assign = 4,
  kGS2Allot = 5,
  kGT2Allot = 6,
  kGA1SubAllot = 7,
  kTB5 = 8,
  kTB3 = 9,
  kTB2 = 10,
};

// A set of forms, for the rows of tables.
using FormSet = unsigned;
constexpr FormSet formBit(FormCode code) {
  return 1U << static_cast<unsigned>(code);
}
inline constexpr FormSet kAssignmentForms = formBit(kGS1Assign) | formBit(kGT1Assign);
inline constexpr FormSet kAllotmentForms = formBit(kGS2Allot) | formBit(kGT2Allot);
inline constexpr FormSet kContourForm = formBit(kGA1SubAllot);
inline constexpr FormSet kTbForms = formBit(kTB5) | formBit(kTB3) | formBit(kTB2);
inline constexpr FormSet kAllForms = kAssignmentForms | kAllotmentForms | kContourForm | kTbForms;

constexpr bool isOneOf(FormCode code, FormSet forms) {
  return (formBit(code) & forms) != 0;
}

}  // namespace zamo
