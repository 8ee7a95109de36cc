// What TB2 has alone: the target of a change, by its identifier or by frequency and place.
#pragma once

#include "screens/control_spec.h"

namespace zamo {

// clang-format off
inline constexpr ControlSpec kTbControls[] = {
  {formBit(kTB2), ControlKind::frame, "Frame1",          "",              "",       "To Modify exist in target in the YBKO  ", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_TrgAdmRefID", "Lbl_trg_YBKO",  "Frame1", "Unique ID of the Target", "", nullptr, kUpper},
  {formBit(kTB2), ControlKind::label, "LblOr",           "",              "Frame1", "Or", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_TrgFreq",     "lbl_freqAssgn", "Frame1", "Freq. Assgn", ""},
  {formBit(kTB2), ControlKind::label, "Lbl_FreqUnit",    "",              "Frame1", "[MHz]", ""},
  {formBit(kTB2), ControlKind::label, "Lbl_4C_Long",     "",              "Frame1", "   Longitude       E/W", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Deg_Long", "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Min_Long", "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Sec_Long", "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_EW",       "",              "Frame1", "", "", nullptr, kUpper},
  {formBit(kTB2), ControlKind::label, "Lbl_4C_Lat",      "",              "Frame1", "      Latitude            N/S", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Deg_Lat",  "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Min_Lat",  "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_Sec_Lat",  "",              "Frame1", "", ""},
  {formBit(kTB2), ControlKind::text,  "Txt_4C_NS",       "",              "Frame1", "", "", nullptr, kUpper},
};
// clang-format on

}  // namespace zamo
