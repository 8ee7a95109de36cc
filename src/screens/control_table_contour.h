// The controls of the contour form alone: the number of the contour and its test points.
#pragma once

#include "screens/control_spec.h"

namespace zamo {

// clang-format off
inline constexpr ControlSpec kContourControls[] = {
  {kContourForm, ControlKind::frame,  "FrameSubArea",                "",                      "",             "Sub Allotment Area", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_contour_id",        "Lbl_LMZ04_contour_id",  "FrameSubArea", "Contour ID", "Unique contour number"},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_nb_test_pts",       "Lbl_LMZ04_nb_test_pts", "FrameSubArea", "Nb Test Pts", "Number of test points (upto 99)"},
  {kContourForm, ControlKind::text,   "Txt_CountDownTP",             "Lbl_CountDownTP",       "FrameSubArea", "Nb of Remaining Test Points", ""},
  {kContourForm, ControlKind::label,  "Lbl_LMZ04_Long",              "",                      "FrameSubArea", "Longitude                    E/W", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Deg_Long",          "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Min_Long",          "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Sec_Long",          "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_EW",                "",                      "FrameSubArea", "", "", nullptr, kUpper},
  {kContourForm, ControlKind::label,  "Lbl_LMZ04_Lat",               "",                      "FrameSubArea", "Latitude                        N/S", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Deg_Lat",           "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Min_Lat",           "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_Sec_Lat",           "",                      "FrameSubArea", "", ""},
  {kContourForm, ControlKind::text,   "Txt_LMZ04_NS",                "",                      "FrameSubArea", "", "", nullptr, kUpper},
  {kContourForm, ControlKind::list,   "ListBox_LMZ04_Coordinates",   "Lbl_LMZ04_Coordinates", "FrameSubArea", "Geo. Coordinates (long, lat)", "Coordinates of the test points"},
  {kContourForm, ControlKind::button, "Button_Add_Coordinates",      "",                      "FrameSubArea", "Add", "Add a test point at the end of the list"},
  {kContourForm, ControlKind::button, "Button_Ins_Coordinates",      "",                      "FrameSubArea", "Insert", "Insert above the selected ligne"},
  {kContourForm, ControlKind::button, "Button_Upd_Coordinates",      "",                      "FrameSubArea", "Modify", "Modify the selected test point"},
  {kContourForm, ControlKind::button, "Button_Del_Coordinates",      "",                      "FrameSubArea", "Delete", "Clear the selected test point"},
  {kContourForm, ControlKind::button, "Button_Clear_Coordinates",    "",                      "FrameSubArea", "Clear", ""},
  {kContourForm, ControlKind::button, "Button_ClearAll_Coordinates", "",                      "FrameSubArea", "Clear All", "Clear all the test points"},
  {kContourForm, ControlKind::button, "Button_View",                 "",                      "FrameSubArea", "View Contour ID", ""},
};
// clang-format on

}  // namespace zamo
