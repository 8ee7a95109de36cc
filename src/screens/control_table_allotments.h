// The controls of the allotment forms alone: the allotment's area.
#pragma once

#include "screens/control_spec.h"

namespace zamo {

// clang-format off
inline constexpr ControlSpec kAllotmentControls[] = {
  {kAllotmentForms, ControlKind::frame,  "FrameAllot",             "",                       "",             "Allotment Parameters ", ""},
  {kAllotmentForms, ControlKind::text,   "Txt_LMZ04_allot_name",   "Lbl_LMZ04_allot_name",   "FrameAllot",   "Allotment name", "Digital Broadcasting allotment name", nullptr, kUpper},
  {kAllotmentForms, ControlKind::combo,  "Combo_LMZ04_geo_area",   "Lbl_LMZ04_geo_area",     "FrameAllot",   "Geo.area", "Country Code (only in the case the allotment covers the entire country)", countriesAndAreas},
  {kAllotmentForms, ControlKind::label,  "Lbl_LMZ04_or",           "",                       "FrameAllot",   "or", ""},
  {kAllotmentForms, ControlKind::text,   "Txt_LMZ04_nb_sub_areas", "Lbl_LMZ04_nb_sub_areas", "FrameAllot",   "Nb.Sub area(s)", "Number of sub-areas within this allotment [1-9]"},
  {kAllotmentForms, ControlKind::frame,  "FrameSubArea",           "",                       "FrameAllot",   "Sub Area Contour ID", ""},
  {kAllotmentForms, ControlKind::text,   "Txt_LMZ04_contour_id",   "",                       "FrameSubArea", "", "Unique contour number"},
  {kAllotmentForms, ControlKind::button, "Button_Add_Contour",     "",                       "FrameSubArea", ">>", "Add a Contour ID"},
  {kAllotmentForms, ControlKind::button, "Button_Clear_Contour",   "",                       "FrameSubArea", "<<", "Clear the selected Contour ID"},
  {kAllotmentForms, ControlKind::list,   "ListBoxContourID",       "",                       "FrameSubArea", "", "Set of Contour IDs"},
};
// clang-format on

}  // namespace zamo
