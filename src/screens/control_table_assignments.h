// The controls of the assignment forms alone: the site, the antenna and the azimuth grids.
#pragma once

#include "screens/control_spec.h"

namespace zamo {

// clang-format off
inline constexpr ControlSpec kAssignmentControls[] = {
  {kAssignmentForms,    ControlKind::text,   "Txt_4A_SiteName",         "Lbl_4A_SiteName",       "", "4A", "Name of the location of the transmitting station", nullptr, kUpper},
  {kAssignmentForms,    ControlKind::label,  "Lbl_4C",                  "",                      "", "4C", ""},
  {kAssignmentForms,    ControlKind::label,  "Lbl_4C_Long",             "",                      "", "Longitude        E/W", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Deg_Long",         "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Min_Long",         "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Sec_Long",         "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_EW",               "",                      "", "", "", nullptr, kUpper},
  {kAssignmentForms,    ControlKind::label,  "Lbl_4C_Lat",              "",                      "", "       Latitude             N/S", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Deg_Lat",          "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Min_Lat",          "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_Sec_Lat",          "",                      "", "", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_4C_NS",               "",                      "", "", "", nullptr, kUpper},
  {kAssignmentForms,    ControlKind::text,   "Txt_9EA_SiteAlt",         "Lbl_9EA_SiteAlt",       "", "9EA", "Altitude of site above sea level [m]"},
  {kAssignmentForms,    ControlKind::label,  "Lbl_9EA_SiteAlt_Unit",    "",                      "", "[m]", ""},

  {kAssignmentForms,    ControlKind::label,  "Lbl_InUse",               "",                      "", "2C", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_InUse_DD",            "",                      "", "", "[dd] for day"},
  {kAssignmentForms,    ControlKind::text,   "Txt_InUse_MM",            "",                      "", "", "[mm] for month"},
  {kAssignmentForms,    ControlKind::text,   "Txt_InUse_YY",            "",                      "", "", "[yyyy] for year"},

  {kAssignmentForms,    ControlKind::combo,  "Combo_9_AntDir",          "Lbl_9_AntDir",          "", "9", "Directivity of the antenna", directivities},
  {kAssignmentForms,    ControlKind::text,   "Txt_9E_AntHgt",           "Lbl_9E_AntHgt",         "", "9E", "Height of antenna above ground level"},
  {kAssignmentForms,    ControlKind::label,  "Lbl_9E_AntHgt_Unit",      "",                      "", "[m]", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_9EB_Eff_hgtmax",      "Lbl_9EB_Eff_hgtmax",    "", "9EB", "Maximum effective antenna height"},
  {kAssignmentForms,    ControlKind::label,  "Lbl_9EB_Eff_hgtmax_Unit", "",                      "", "[m]", ""},
  {kAssignmentForms,    ControlKind::text,   "Txt_8BH_Erp_H",           "Lbl_8BH_Erp_H",         "", "8BH", "Maximum effective radiated power (dBW) \226 Horizontal component"},
  {kAssignmentForms,    ControlKind::text,   "Txt_8BV_Erp_V",           "Lbl_8BV_Erp_V",         "", "8BV", "Maximum effective radiated power (dBW) \226 Vertical component"},
  {formBit(kGT1Assign), ControlKind::text,   "Txt_KV19_erpBeam_tilt",   "Lbl_KV19_erpBeam_tilt", "", "Erp.beam tilt", "Maximum effective radiated power in the plane defined by the beam tilt angle (dBW)"},
  {formBit(kGT1Assign), ControlKind::text,   "Txt_KV19_TiltAngle",      "Lbl_KV19_TiltAngle",    "", "Beam tilt", "Beam tilt angle (degrees)"},

  // Each frame of a grid is followed by its azimuth boxes. The buttons stand outside: they hide on their own.
  {kAssignmentForms,    ControlKind::frame,  "Frame_9EC_EffAntHeight",  "",                      "", "9EC", "Effective antenna height at different azimuths"},
  {kAssignmentForms,    ControlKind::button, "Button_Fill9EC",          "",                      "", "Modify 9EC", "Modify the effective height for a range of azimuths"},
  {kAssignmentForms,    ControlKind::frame,  "Frame_9NH_AttnH",         "",                      "", "9NH", "Attenuation (dB) of the horizontally polarized component at different azimuths"},
  {kAssignmentForms,    ControlKind::button, "Button_Fill9NH",          "",                      "", "Modify 9NH", "Modify the attenuation for a range of azimuths"},
  {kAssignmentForms,    ControlKind::frame,  "Frame_9NV_AttnV",         "",                      "", "9NV", "Attenuation (dB) of the vertically polarized component at different azimuths"},
  {kAssignmentForms,    ControlKind::button, "Button_Fill9NV",          "",                      "", "Modify 9NV", "Modify the attenuation for a range of azimuths"},
};

// The grids of 36 azimuths, by the frame that holds them. The names of boxes and labels end in the azimuth.
struct GridSpec {
  std::string_view frame;
  std::string_view boxes;
  std::string_view labels;
};
inline constexpr GridSpec kAzimuthGrids[] = {
  {"Frame_9EC_EffAntHeight", "Txt_9EC_azm", "Lbl_9EC_azm"},
  {"Frame_9NH_AttnH",        "Txt_9NHAzm",  "Lbl_9NHAzm"},
  {"Frame_9NV_AttnV",        "Txt_9NVAzm",  "Lbl_9NVAzm"},
};
// clang-format on

}  // namespace zamo
