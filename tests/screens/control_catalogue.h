// What an operator sees of each form, as the operator reads it: every control with its caption and its tip,
// and the lists of its combos.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "screens/screen.h"

// The short names of the rows stay in here.
namespace zamo::test::catalogue {

inline constexpr FormCode kForms[] = {kGS1Assign,   kGT1Assign, kGS2Allot, kGT2Allot,
                                      kGA1SubAllot, kTB5,       kTB3,      kTB2};

inline constexpr FormSet GS1 = 1U << 3;
inline constexpr FormSet GT1 = 1U << 4;
inline constexpr FormSet GS2 = 1U << 5;
inline constexpr FormSet GT2 = 1U << 6;
inline constexpr FormSet GA1 = 1U << 7;
inline constexpr FormSet TB5 = 1U << 8;
inline constexpr FormSet TB3 = 1U << 9;
inline constexpr FormSet TB2 = 1U << 10;
inline constexpr FormSet kAssign = GS1 | GT1;
inline constexpr FormSet kAllot = GS2 | GT2;
inline constexpr FormSet kBoth = kAssign | kAllot;
inline constexpr FormSet kAll = kBoth | GA1 | TB5 | TB3 | TB2;

inline constexpr ControlKind text = ControlKind::text;
inline constexpr ControlKind memo = ControlKind::memo;
inline constexpr ControlKind combo = ControlKind::combo;
inline constexpr ControlKind list = ControlKind::list;
inline constexpr ControlKind option = ControlKind::option;
inline constexpr ControlKind button = ControlKind::button;
inline constexpr ControlKind label = ControlKind::label;
inline constexpr ControlKind frame = ControlKind::frame;

struct Expected {
  FormSet forms = 0;
  ControlKind kind = text;
  std::string name;
  std::string frame;
  std::string caption;
  std::string tip;
};

// What an operator sees of each form: every control but the boxes of the azimuth grids.
// clang-format off
inline const std::vector<Expected> kCatalogue = {
  // The common buttons and boxes.
  {kAll, button, "Button_Next", "", "Update", "Update the Notice changes in the database"},
  {kAll, button, "Button_AddNew", "", "Add New", ""},
  {kAll, button, "Button_Finish", "", "Delete", "Delete the Notice from the database"},
  {kAll, button, "Button_Reset", "", "Close", "Close the screen"},
  {kAll, button, "Button_Validate", "", "Validation", "Save Notice and Close the File"},
  {kAll, button, "Button_Next_Ntc", "", ">>", ""},
  {kAll, button, "Button_Prev_Ntc", "", "<<", ""},
  {kAll, label, "Lbl_Filename", "", "File name", ""},
  {kAll, text, "Txt_Filename", "", "", ""},
  {kAll, label, "Lbl_Ntc_Number", "", "Notice Number", ""},
  {kAll, text, "Txt_Ntc_Number", "", "", ""},
  {kAll, label, "Lbl_Notified_Rmks", "", "Notified remarks", "Remarks indicated in this textbox will be loaded to the database"},
  {kAll, memo, "Txt_notified_Rmks", "", "", "Remarks indicated in this textbox will be loaded to the database"},
  {kBoth | TB5 | TB3 | TB2, label, "Lbl_int_rmk", "", "Internal Remarks", ""},
  {kBoth | TB5 | TB3 | TB2, memo, "txt_int_rmk", "", "", ""},
  {kAll, label, "Lbl_B_Adm", "", "B", "Notifying Administration"},
  {kAll, combo, "Combo_B_Adm", "", "", "Notifying Administration"},
  {kAll, label, "Lbl_EmailAddr", "", "e-mail", ""},
  {kAll, text, "Txt_EmailAddr", "", "", ""},

  // The corresponding notice of assignments and allotments.
  {kBoth, frame, "Frm_TB", "", "Create Corresponding Notice", ""},
  {kAssign, option, "Opt_TB2", "Frm_TB", "TB2 - CONFORM", ""},
  {kBoth, option, "Opt_TB3", "Frm_TB", "TB3 - PARTB", ""},
  {kBoth, option, "Opt_TB5", "Frm_TB", "TB5 - WITHDRAW/SUPPRESS", ""},
  {kBoth, button, "btn_Create", "Frm_TB", "Create notice", ""},

  // Assignments.
  {kAssign, frame, "Frame_9EC_EffAntHeight", "", "9EC", "Effective antenna height at different azimuths"},
  {kAssign, frame, "Frame_9NH_AttnH", "", "9NH", "Attenuation (dB) of the horizontally polarized component at different azimuths"},
  {kAssign, frame, "Frame_9NV_AttnV", "", "9NV", "Attenuation (dB) of the vertically polarized component at different azimuths"},
  {kAssign, button, "Button_Fill9EC", "", "Modify 9EC", "Modify the effective height for a range of azimuths"},
  {kAssign, button, "Button_Fill9NH", "", "Modify 9NH", "Modify the attenuation for a range of azimuths"},
  {kAssign, button, "Button_Fill9NV", "", "Modify 9NV", "Modify the attenuation for a range of azimuths"},
  {kAssign, frame, "FrameArt", "", "", ""},
  {kAssign, option, "Opt_Art4", "FrameArt", "Art. 4", ""},
  {kAssign, option, "Opt_Art5", "FrameArt", "Art. 5", ""},
  {kAssign, frame, "FrameIntent", "", "", ""},
  {kAssign, option, "OptInt_Add", "FrameIntent", "Add", ""},
  {kAssign, option, "OptInt_Mod", "FrameIntent", "Mod", ""},
  {kAssign, frame, "FrameTrg", "", "Identification of the Assignment to be: Modified", ""},
  {kAssign, label, "Lbl_TrgAdmRefID", "FrameTrg", "Unique ID of the target", ""},
  {kAssign, text, "Txt_TrgAdmRefID", "FrameTrg", "", ""},
  {kAssign, label, "Lbl_trg_or", "FrameTrg", "Or", ""},
  {kAssign, text, "Txt_trg_freq_assgn", "FrameTrg", "", "Target Assign Frequency"},
  {kAssign, text, "Txt_trg_long_DD", "FrameTrg", "", "Target Longitude:Degrees"},
  {kAssign, text, "Txt_trg_long_MM", "FrameTrg", "", "Target Longitude:Minutes"},
  {kAssign, text, "Txt_trg_long_SS", "FrameTrg", "", "Target Longitude:Seconds"},
  {kAssign, text, "Txt_trg_long_EW", "FrameTrg", "", "Target Longitude:E/W"},
  {kAssign, text, "Txt_trg_lat_DD", "FrameTrg", "", "Target Latitude:Degrees"},
  {kAssign, text, "Txt_trg_lat_MM", "FrameTrg", "", "Target Latitude:Minutes"},
  {kAssign, text, "Txt_trg_lat_SS", "FrameTrg", "", "Target Latitude:Seconds"},
  {kAssign, text, "Txt_trg_lat_NS", "FrameTrg", "", "Target Latitude:N/S"},
  {kAssign, frame, "Frame_Art4_Only", "", "Art. 4 ONLY", ""},
  {kAssign, label, "Lbl_KV19_PubReq", "Frame_Art4_Only", "Pub.Request", "TRUE, if administration requests the Vostrad to apply the procedure contained in 4.1.2.5"},
  {kAssign, combo, "Combo_KV19_PubReq", "Frame_Art4_Only", "", "TRUE, if administration requests the Vostrad to apply the procedure contained in 4.1.2.5"},
  {kAssign, frame, "Frame_ART5_Only", "", "Art. 5 ONLY", ""},
  {kAssign, label, "Lbl_ID3", "Frame_ART5_Only", "ID3", "Unique Identifier of the associated Plan entry"},
  {kAssign, text, "Txt_PlanAdm_RefID", "Frame_ART5_Only", "", "Unique Identifier of the associated Plan entry"},
  {kAssign, label, "Lbl_KV19_Rmk_Cond", "Frame_ART5_Only", "Rmk.Cond met", "Declaration by the notifying adm that all conditions associated with the remarks are fully met"},
  {kAssign, combo, "Combo_KV19_Rmk_Cond", "Frame_ART5_Only", "", "Declaration by the notifying adm that all conditions associated with the remarks are fully met"},
  {kAssign, label, "Lbl_KV19_SigComit", "Frame_ART5_Only", "Sign.Commitment", "Accompanied by a signed commitment of operation in compliance with provision 5.1.7 and 5.1.8"},
  {kAssign, combo, "Combo_KV19_SigComit", "Frame_ART5_Only", "", "Accompanied by a signed commitment of operation in compliance with provision 5.1.7 and 5.1.8"},
  {kAssign, label, "Lbl_KV19_IsResub", "Frame_ART5_Only", "ReSubmission", "With Ref. to provision 5.1.6, 5.1.7 and 5.1.8"},
  {kAssign, combo, "Combo_KV19_IsResub", "Frame_ART5_Only", "", "With Ref. to provision 5.1.6, 5.1.7 and 5.1.8"},
  {kAssign, label, "Lbl_3A1_CallSign", "Frame_ART5_Only", "3A1", "Call Sign or other identification used in accordance with Art 19 of PZ "},
  {kAssign, text, "Txt_3A1_CallSign", "Frame_ART5_Only", "", "Call Sign or other identification used in accordance with Art 19 of PZ "},
  {kAssign, label, "Lbl_12A_OpAgcy", "Frame_ART5_Only", "12A", "Symbol for the Operating agency"},
  {kAssign, text, "Txt_12A_OpAgcy", "Frame_ART5_Only", "", "Symbol for the Operating agency"},
  {kAssign, label, "Lbl_12B_AddrCde", "Frame_ART5_Only", "12B", "Symbol for the address of the administration responsible for the station"},
  {kAssign, text, "Txt_12B_AddrCde", "Frame_ART5_Only", "", "Symbol for the address of the administration responsible for the station"},
  {kAssign, label, "Lbl_10B", "Frame_ART5_Only", "10B", ""},
  {kAssign, label, "Lbl_10B_Ophhfr", "Frame_ART5_Only", "From(UTC)", "Start time of the regular hours of operation "},
  {kAssign, text, "Txt_10B_Ophhfr", "Frame_ART5_Only", "", "Start time of the regular hours of operation "},
  {kAssign, label, "Lbl_10B_Ophhto", "Frame_ART5_Only", "To(UTC)", "Stop time of the regular hours of operation "},
  {kAssign, text, "Txt_10B_Ophhto", "Frame_ART5_Only", "", "Stop time of the regular hours of operation "},
  {kAssign, frame, "FrameCoord", "", "COORDINATION", "Coordination successfully completed with the following administrations"},
  {kBoth | TB3, list, "ListAdmAvail", "FrameCoord", "", ""},
  {kBoth | TB3, list, "ListAdmSel", "FrameCoord", "", ""},
  {kBoth | TB3, button, "Button_Coord_Add", "FrameCoord", ">", ""},
  {kBoth | TB3, button, "Button_Coord_AddALL", "FrameCoord", ">>", ""},
  {kBoth | TB3, button, "Button_Coord_Del", "FrameCoord", "<", ""},
  {kBoth | TB3, button, "Button_Coord_Clear", "FrameCoord", "<<", ""},
  {kAssign, label, "Lbl_KV19_assoc_allot_sfnID", "", "Assoc.Allot.SFN ID", "SFN ID of the associated allotment to which this assignment is related "},
  {kAssign, text, "Txt_KV19_assoc_allot_sfnID", "", "", "SFN ID of the associated allotment to which this assignment is related "},
  {kAssign, label, "Lbl_KV19_Offset", "", "1E", "Offset - Between [-500 and +500] [kHz]"},
  {kAssign, text, "Txt_KV19_Offset", "", "", "Offset - Between [-500 and +500] [kHz]"},
  {kAssign, label, "Lbl_KV19_assgnCde", "", "Assgn code", "Assignment Code (L Linked with a SFN or allotment, C Converted, S Standalone) Ref: Annex 3 of the Agreement"},
  {kAssign, combo, "Combo_KV19_assgnCde", "", "", "Assignment Code (L Linked with a SFN or allotment, C Converted, S Standalone) Ref: Annex 3 of the Agreement"},
  {kAssign, label, "Lbl_KV19_Plan", "", "Plan Entry", "Type of Plan entry (1 Single Assignment, 2 SFN, 3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement"},
  {kAssign, combo, "Combo_KV19_Plan", "", "", "Type of Plan entry (1 Single Assignment, 2 SFN, 3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement"},
  {kAssign, label, "Lbl_LMZ04_AdmAllotID", "", "Assoc.Allotement ID", "Unique allotement identifier given by the administration for the allotement to which this assignment is related (assigned by the adm)"},
  {kAssign, text, "Txt_LMZ04_AdmAllotID", "", "", "Unique allotement identifier given by the administration for the allotement to which this assignment is related (assigned by the adm)"},
  {kAssign, label, "Lbl_LMZ04_SpectMask", "", "Spect Mask", "Spectrum mask"},
  {kAssign, combo, "Combo_LMZ04_SpectMask", "", "", "Spectrum mask"},
  {kAssign, label, "Lbl_LMZ04_RefPlan", "", "Ref. Planning", "Reference Planning Configuration"},
  {kAssign, combo, "Combo_LMZ04_RefPlan", "", "", "Reference Planning Configuration"},
  {kAssign, label, "Lbl_LMZ04_SfnID", "", "Sfn ID", "Indentifier for Single Frequency Network (SFN)"},
  {kAssign, text, "Txt_LMZ04_SfnID", "", "", "Indentifier for Single Frequency Network (SFN)"},
  {kAssign, label, "Lbl_9E_AntHgt", "", "9E", "Height of antenna above ground level"},
  {kAssign, text, "Txt_9E_AntHgt", "", "", "Height of antenna above ground level"},
  {kAssign, label, "Lbl_9E_AntHgt_Unit", "", "[m]", ""},
  {kAssign, label, "Lbl_9EB_Eff_hgtmax", "", "9EB", "Maximum effective antenna height"},
  {kAssign, text, "Txt_9EB_Eff_hgtmax", "", "", "Maximum effective antenna height"},
  {kAssign, label, "Lbl_9EB_Eff_hgtmax_Unit", "", "[m]", ""},
  {kAssign, label, "Lbl_9EA_SiteAlt", "", "9EA", "Altitude of site above sea level [m]"},
  {kAssign, text, "Txt_9EA_SiteAlt", "", "", "Altitude of site above sea level [m]"},
  {kAssign, label, "Lbl_9EA_SiteAlt_Unit", "", "[m]", ""},
  {kAssign, label, "Lbl_8BH_Erp_H", "", "8BH", "Maximum effective radiated power (dBW) \226 Horizontal component"},
  {kAssign, text, "Txt_8BH_Erp_H", "", "", "Maximum effective radiated power (dBW) \226 Horizontal component"},
  {kAssign, label, "Lbl_8BV_Erp_V", "", "8BV", "Maximum effective radiated power (dBW) \226 Vertical component"},
  {kAssign, text, "Txt_8BV_Erp_V", "", "", "Maximum effective radiated power (dBW) \226 Vertical component"},
  {kAssign, label, "Lbl_InUse", "", "2C", ""},
  {kAssign, text, "Txt_InUse_DD", "", "", "[dd] for day"},
  {kAssign, text, "Txt_InUse_MM", "", "", "[mm] for month"},
  {kAssign, text, "Txt_InUse_YY", "", "", "[yyyy] for year"},
  {kAssign, label, "Lbl_Exp", "", "Expiry Date", ""},
  {kAssign, text, "Txt_Exp_DD", "", "", "[dd] for day"},
  {kAssign, text, "Txt_Exp_MM", "", "", "[mm] for month"},
  {kAssign, text, "Txt_Exp_YY", "", "", "[yyyy] for year"},
  {kAssign, label, "Lbl_4C", "", "4C", ""},
  {kAssign, label, "Lbl_4C_Long", "", "Longitude        E/W", ""},
  {kAssign, text, "Txt_4C_Deg_Long", "", "", ""},
  {kAssign, text, "Txt_4C_Min_Long", "", "", ""},
  {kAssign, text, "Txt_4C_Sec_Long", "", "", ""},
  {kAssign, text, "Txt_4C_EW", "", "", ""},
  {kAssign, label, "Lbl_4C_Lat", "", "       Latitude             N/S", ""},
  {kAssign, text, "Txt_4C_Deg_Lat", "", "", ""},
  {kAssign, text, "Txt_4C_Min_Lat", "", "", ""},
  {kAssign, text, "Txt_4C_Sec_Lat", "", "", ""},
  {kAssign, text, "Txt_4C_NS", "", "", ""},
  {kAssign, label, "Lbl_4B_Ctry", "", "4B", "Country or geographical area"},
  {kAssign, combo, "Combo_4B_Ctry", "", "", "Country or geographical area"},
  {kAssign, label, "Lbl_4A_SiteName", "", "4A", "Name of the location of the transmitting station"},
  {kAssign, text, "Txt_4A_SiteName", "", "", "Name of the location of the transmitting station"},
  {kAssign, label, "Lbl_9D_Polariz", "", "9D", "Polarization"},
  {kAssign, combo, "Combo_9D_Polariz", "", "", "Polarization"},
  {kAssign, label, "Lbl_9_AntDir", "", "9", "Directivity of the antenna"},
  {kAssign, combo, "Combo_9_AntDir", "", "", "Directivity of the antenna"},
  {kAssign, label, "Lbl_AdmRefID", "", "Unique ID of the notice", ""},
  {kAssign, text, "Txt_AdmRefID", "", "", ""},

  // Sound and television.
  {GS1 | GS2, label, "Lbl_KV19_FreqAssgn", "", "1A", "[174.923 to 229.072] [MHz] Ref.A.3.1-15 of the Agreement"},
  {GS1 | GS2, combo, "Combo_KV19_FreqAssgn", "", "", "[174.923 to 229.072] [MHz] Ref.A.3.1-15 of the Agreement"},
  {GS1 | GS2, label, "Lbl_KV19_FreqAssgn_Unit", "", "[MHz]", ""},
  {GT1 | GT2, label, "Lbl_KV19_freqAssgn", "", "1A", "[177.5 to 226.5] or [474 to 858] Ref. A.3.1-2, A.3.1-3, A.3.1-4 and A.3.1-5 of the Agreement"},
  {GT1 | GT2, text, "Txt_KV19_freqAssgn", "", "", "[177.5 to 226.5] or [474 to 858] Ref. A.3.1-2, A.3.1-3, A.3.1-4 and A.3.1-5 of the Agreement"},
  {GT1 | GT2, label, "Lbl_KV19_freqAssgn_Unit", "", "[MHz]", ""},
  {GT1, label, "LblOr", "", "Or", ""},
  {GT1, label, "Lbl_LMZ04_DigSys", "", "Sys. variant", "Variante DVB-T. Ref: Table A.3.1-1 of the Agreement"},
  {GT1, combo, "Combo_LMZ04_Sys_Var", "", "", "Variante DVB-T. Ref: Table A.3.1-1 of the Agreement"},
  {GT1, label, "Lbl_LMZ04_RxMode", "", "Rx mode", "Reception mode. FX, PO, PI or MO"},
  {GT1, combo, "Combo_LMZ04_RxMode", "", "", "Reception mode. FX, PO, PI or MO"},
  {GT1, label, "Lbl_KV19_erpBeam_tilt", "", "Erp.beam tilt", "Maximum effective radiated power in the plane defined by the beam tilt angle (dBW)"},
  {GT1, text, "Txt_KV19_erpBeam_tilt", "", "", "Maximum effective radiated power in the plane defined by the beam tilt angle (dBW)"},
  {GT1, label, "Lbl_KV19_TiltAngle", "", "Beam tilt", "Beam tilt angle (degrees)"},
  {GT1, text, "Txt_KV19_TiltAngle", "", "", "Beam tilt angle (degrees)"},

  // Allotments.
  {kAllot, frame, "FrameTrg", "", "Identification of the Allotment to be: Modified", ""},
  {kAllot, label, "Lbl_TrgAdmRefID", "FrameTrg", "Unique ID of the target", ""},
  {kAllot, text, "Txt_TrgAdmRefID", "FrameTrg", "", ""},
  {kAllot, label, "Lbl_AdmRefID", "", "Unique ID of the notice", ""},
  {kAllot, text, "Txt_AdmRefID", "", "", ""},
  {kAllot, frame, "FrameIntent", "", "", ""},
  {kAllot, option, "OptInt_Add", "FrameIntent", "Add", ""},
  {kAllot, option, "OptInt_Mod", "FrameIntent", "Mod", ""},
  {kAllot, label, "Lbl_4B_Ctry", "", "4B", "Country or geographical area"},
  {kAllot, combo, "Combo_4B_Ctry", "", "", "Country or geographical area"},
  {GS2, label, "Lbl_9D_Polariz", "", "9", "Polarization"},
  {GT2, label, "Lbl_9D_Polariz", "", "9D", "Polarization"},
  {kAllot, combo, "Combo_9D_Polariz", "", "", "Polarization"},
  {kAllot, label, "Lbl_KV19_Plan", "", "Plan Entry", "Type of Plan entry (3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement"},
  {kAllot, combo, "Combo_KV19_Plan", "", "", "Type of Plan entry (3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement"},
  {kAllot, label, "Lbl_KV19_Offset", "", "1E", "Offset - Between [-500 and +500] [kHz]"},
  {kAllot, text, "Txt_KV19_Offset", "", "", "Offset - Between [-500 and +500] [kHz]"},
  {kAllot, label, "Lbl_Exp", "", "Expiry Date", ""},
  {kAllot, text, "Txt_Exp_DD", "", "", "[dd] for day"},
  {kAllot, text, "Txt_Exp_MM", "", "", "[mm] for month"},
  {kAllot, text, "Txt_Exp_YY", "", "", "[yyyy] for year"},
  {kAllot, label, "Lbl_LMZ04_RefPlan", "", "Ref. Planning", "Reference Planning Configuration"},
  {kAllot, combo, "Combo_LMZ04_RefPlan", "", "", "Reference Planning Configuration"},
  {kAllot, label, "Lbl_LMZ04_SfnID", "", "Sfn ID", "Indentifier for Single Frequency Network (SFN)"},
  {kAllot, text, "Txt_LMZ04_SfnID", "", "", "Indentifier for Single Frequency Network (SFN)"},
  {kAllot, label, "Lbl_LMZ04_SpectMask", "", "Spect Mask", "Spectrum mask"},
  {kAllot, combo, "Combo_LMZ04_SpectMask", "", "", "Spectrum mask"},
  {kAllot, frame, "Frame_Art4_Only", "", "Art. 4 ONLY", ""},
  {kAllot, label, "Lbl_KV19_PubReq", "Frame_Art4_Only", "Pub.Request", "TRUE, if administration requests the Vostrad to apply the procedure contained in 4.1.2.5"},
  {kAllot, combo, "Combo_KV19_PubReq", "Frame_Art4_Only", "", "TRUE, if administration requests the Vostrad to apply the procedure contained in 4.1.2.5"},
  {kAllot, frame, "FrameCoord", "", "COORDINATION", ""},
  {kAllot, frame, "FrameAllot", "", "Allotment Parameters ", ""},
  {kAllot, label, "Lbl_LMZ04_allot_name", "FrameAllot", "Allotment name", "Digital Broadcasting allotment name"},
  {kAllot, text, "Txt_LMZ04_allot_name", "FrameAllot", "", "Digital Broadcasting allotment name"},
  {kAllot, label, "Lbl_LMZ04_geo_area", "FrameAllot", "Geo.area", "Country Code (only in the case the allotment covers the entire country)"},
  {kAllot, combo, "Combo_LMZ04_geo_area", "FrameAllot", "", "Country Code (only in the case the allotment covers the entire country)"},
  {kAllot, label, "Lbl_LMZ04_or", "FrameAllot", "or", ""},
  {kAllot, label, "Lbl_LMZ04_nb_sub_areas", "FrameAllot", "Nb.Sub area(s)", "Number of sub-areas within this allotment [1-9]"},
  {kAllot, text, "Txt_LMZ04_nb_sub_areas", "FrameAllot", "", "Number of sub-areas within this allotment [1-9]"},
  {kAllot, frame, "FrameSubArea", "FrameAllot", "Sub Area Contour ID", ""},
  {kAllot, text, "Txt_LMZ04_contour_id", "FrameSubArea", "", "Unique contour number"},
  {kAllot, list, "ListBoxContourID", "FrameSubArea", "", "Set of Contour IDs"},
  {kAllot, button, "Button_Add_Contour", "FrameSubArea", ">>", "Add a Contour ID"},
  {kAllot, button, "Button_Clear_Contour", "FrameSubArea", "<<", "Clear the selected Contour ID"},
  {GT2, label, "Lbl_LMZ04_TypRefNetwk", "", "Typ.Ref.Netwk", "Type of Reference Network"},
  {GT2, combo, "Combo_LMZ04_TypRefNetwk", "", "", "Type of Reference Network"},

  // The contour.
  {GA1, frame, "FrameIntent", "", "", ""},
  {GA1, option, "OptInt_Add", "FrameIntent", "Add", ""},
  {GA1, option, "OptInt_Suppress", "FrameIntent", "Suppress", ""},
  {GA1, label, "Lbl_4B_Ctry", "", "4B", "Country or geographical area"},
  {GA1, combo, "Combo_4B_Ctry", "", "", "Country or geographical area"},
  {GA1, frame, "FrameSubArea", "", "Sub Allotment Area", ""},
  {GA1, label, "Lbl_LMZ04_contour_id", "FrameSubArea", "Contour ID", "Unique contour number"},
  {GA1, text, "Txt_LMZ04_contour_id", "FrameSubArea", "", "Unique contour number"},
  {GA1, label, "Lbl_LMZ04_nb_test_pts", "FrameSubArea", "Nb Test Pts", "Number of test points (upto 99)"},
  {GA1, text, "Txt_LMZ04_nb_test_pts", "FrameSubArea", "", "Number of test points (upto 99)"},
  {GA1, label, "Lbl_CountDownTP", "FrameSubArea", "Nb of Remaining Test Points", ""},
  {GA1, text, "Txt_CountDownTP", "FrameSubArea", "", ""},
  {GA1, label, "Lbl_LMZ04_Long", "FrameSubArea", "Longitude                    E/W", ""},
  {GA1, text, "Txt_LMZ04_Deg_Long", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_Min_Long", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_Sec_Long", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_EW", "FrameSubArea", "", ""},
  {GA1, label, "Lbl_LMZ04_Lat", "FrameSubArea", "Latitude                        N/S", ""},
  {GA1, text, "Txt_LMZ04_Deg_Lat", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_Min_Lat", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_Sec_Lat", "FrameSubArea", "", ""},
  {GA1, text, "Txt_LMZ04_NS", "FrameSubArea", "", ""},
  {GA1, label, "Lbl_LMZ04_Coordinates", "FrameSubArea", "Geo. Coordinates (long, lat)", "Coordinates of the test points"},
  {GA1, list, "ListBox_LMZ04_Coordinates", "FrameSubArea", "", "Coordinates of the test points"},
  {GA1, button, "Button_Add_Coordinates", "FrameSubArea", "Add", "Add a test point at the end of the list"},
  {GA1, button, "Button_Ins_Coordinates", "FrameSubArea", "Insert", "Insert above the selected ligne"},
  {GA1, button, "Button_Upd_Coordinates", "FrameSubArea", "Modify", "Modify the selected test point"},
  {GA1, button, "Button_Del_Coordinates", "FrameSubArea", "Delete", "Clear the selected test point"},
  {GA1, button, "Button_Clear_Coordinates", "FrameSubArea", "Clear", ""},
  {GA1, button, "Button_ClearAll_Coordinates", "FrameSubArea", "Clear All", "Clear all the test points"},
  {GA1, button, "Button_View", "FrameSubArea", "View Contour ID", ""},

  // The TB notices.
  {TB5, frame, "FrameArt", "", "", ""},
  {TB5, option, "Opt_Art4", "FrameArt", "Art. 4", ""},
  {TB5, option, "Opt_Art5", "FrameArt", "Art. 5", ""},
  {TB5, frame, "FrameIntent", "", "", ""},
  {TB5, option, "OptInt_WDraw", "FrameIntent", "Withdraw", ""},
  {TB5, option, "OptInt_Supp", "FrameIntent", "Suppress", ""},
  {TB5 | TB3 | TB2, frame, "FrameTrg", "", "", ""},
  {TB5 | TB3 | TB2, label, "Lbl_TrgAdmRefID", "FrameTrg", "Unique ID of the target", ""},
  {TB5 | TB3, text, "Txt_TrgAdmRefID", "FrameTrg", "", ""},
  {TB3, frame, "FrameCoord", "", "COORDINATION", ""},
  {TB2, text, "Txt_PlanAdmRefID", "FrameTrg", "", ""},
  {TB2, frame, "Frame_ART5_Only", "", "Art. 5 ONLY", ""},
  {TB2, label, "Lbl_InUse", "Frame_ART5_Only", "2C", ""},
  {TB2, text, "Txt_InUse_DD", "Frame_ART5_Only", "", "[dd] for day"},
  {TB2, text, "Txt_InUse_MM", "Frame_ART5_Only", "", "[mm] for month"},
  {TB2, text, "Txt_InUse_YY", "Frame_ART5_Only", "", "[yyyy] for year"},
  {TB2, label, "Lbl_12A_OpAgcy", "Frame_ART5_Only", "12A", "Symbol for the Operating agency"},
  {TB2, text, "Txt_12A_OpAgcy", "Frame_ART5_Only", "", "Symbol for the Operating agency"},
  {TB2, label, "Lbl_12B_AddrCde", "Frame_ART5_Only", "12B", "Symbol for the address of the administration responsible for the station"},
  {TB2, text, "Txt_12B_AddrCde", "Frame_ART5_Only", "", "Symbol for the address of the administration responsible for the station"},
  {TB2, label, "Lbl_10B", "Frame_ART5_Only", "10B", ""},
  {TB2, label, "Lbl_10B_Ophhfr", "Frame_ART5_Only", "From(UTC)", "Start time of the regular hours of operation "},
  {TB2, text, "Txt_10B_Ophhfr", "Frame_ART5_Only", "", "Start time of the regular hours of operation "},
  {TB2, label, "Lbl_10B_Ophhto", "Frame_ART5_Only", "To(UTC)", "Stop time of the regular hours of operation "},
  {TB2, text, "Txt_10B_Ophhto", "Frame_ART5_Only", "", "Stop time of the regular hours of operation "},
  {TB2, frame, "Frame1", "", "To Modify exist in target in the YBKO  ", ""},
  {TB2, label, "Lbl_trg_YBKO", "Frame1", "Unique ID of the Target", ""},
  {TB2, text, "Txt_TrgAdmRefID", "Frame1", "", ""},
  {TB2, label, "LblOr", "Frame1", "Or", ""},
  {TB2, label, "lbl_freqAssgn", "Frame1", "Freq. Assgn", ""},
  {TB2, text, "Txt_TrgFreq", "Frame1", "", ""},
  {TB2, label, "Lbl_FreqUnit", "Frame1", "[MHz]", ""},
  {TB2, label, "Lbl_4C_Long", "Frame1", "   Longitude       E/W", ""},
  {TB2, text, "Txt_4C_Deg_Long", "Frame1", "", ""},
  {TB2, text, "Txt_4C_Min_Long", "Frame1", "", ""},
  {TB2, text, "Txt_4C_Sec_Long", "Frame1", "", ""},
  {TB2, text, "Txt_4C_EW", "Frame1", "", ""},
  {TB2, label, "Lbl_4C_Lat", "Frame1", "      Latitude            N/S", ""},
  {TB2, text, "Txt_4C_Deg_Lat", "Frame1", "", ""},
  {TB2, text, "Txt_4C_Min_Lat", "Frame1", "", ""},
  {TB2, text, "Txt_4C_Sec_Lat", "Frame1", "", ""},
  {TB2, text, "Txt_4C_NS", "Frame1", "", ""},
};

inline const std::vector<std::string> kAzimuths = {
  "000", "010", "020", "030", "040", "050", "060", "070", "080", "090", "100", "110",
  "120", "130", "140", "150", "160", "170", "180", "190", "200", "210", "220", "230",
  "240", "250", "260", "270", "280", "290", "300", "310", "320", "330", "340", "350",
};
// clang-format on

inline void appendAzimuths(std::vector<Expected>& all, const std::string& grid, const std::string& holder) {
  for (const std::string& azimuth : kAzimuths) {
    all.push_back({kAssign, label, "Lbl_" + grid + azimuth, holder, azimuth, ""});
    all.push_back({kAssign, text, "Txt_" + grid + azimuth, holder, "", ""});
  }
}

inline std::vector<Expected> wholeCatalogue() {
  std::vector<Expected> all = kCatalogue;
  appendAzimuths(all, "9EC_azm", "Frame_9EC_EffAntHeight");
  appendAzimuths(all, "9NHAzm", "Frame_9NH_AttnH");
  appendAzimuths(all, "9NVAzm", "Frame_9NV_AttnV");
  return all;
}

inline std::map<std::string, Expected> catalogueOf(FormCode code) {
  std::map<std::string, Expected> form;
  for (const Expected& row : wholeCatalogue()) {
    if (isOneOf(code, row.forms)) {
      EXPECT_TRUE(form.emplace(row.name, row).second) << row.name << " twice on form " << code;
    }
  }
  return form;
}

using Items = std::vector<std::string>;

struct ExpectedList {
  FormSet forms = 0;
  std::string name;
  Items items;
};

// clang-format off
inline const Items kDabList = {
  "", "174.928", "176.64", "178.352", "180.064", "181.936", "183.648", "185.36", "187.072", "188.928", "190.64",
  "192.352", "194.064", "195.936", "197.648", "199.36", "201.072", "202.928", "204.64", "206.352", "208.064",
  "209.936", "211.648", "213.36", "215.072", "216.928", "218.64", "220.352", "222.064", "223.936", "225.648",
  "227.36", "229.072",
};

inline const std::vector<ExpectedList> kShortLists = {
  {kAssign, "Combo_9_AntDir", {"", "D", "ND"}},
  {kAssign, "Combo_9D_Polariz", {"", "H", "V", "M"}},
  {kAllot, "Combo_9D_Polariz", {"", "H", "V", "M", "U"}},
  {kAssign, "Combo_KV19_Plan", {"", "1", "2", "3", "4", "5"}},
  {kAllot, "Combo_KV19_Plan", {"", "3", "4", "5"}},
  {kBoth, "Combo_KV19_PubReq", {"", "TRUE", "FALSE"}},
  {kAssign, "Combo_KV19_IsResub", {"", "TRUE", "FALSE"}},
  {kAssign, "Combo_KV19_SigComit", {"", "TRUE", "FALSE"}},
  {kAssign, "Combo_KV19_Rmk_Cond", {"", "TRUE", "FALSE"}},
  {GS1 | GS2, "Combo_LMZ04_RefPlan", {"", "RPC4", "RPC5"}},
  {GT1 | GT2, "Combo_LMZ04_RefPlan", {"", "RPC1", "RPC2", "RPC3"}},
  {GS1 | GS2, "Combo_LMZ04_SpectMask", {"", "1", "2", "3"}},
  {GT1 | GT2, "Combo_LMZ04_SpectMask", {"", "N", "S"}},
  {GS1, "Combo_KV19_assgnCde", {"", "S", "L", "C"}},
  {GT1, "Combo_KV19_assgnCde", {"", "L", "C", "S"}},
  {GT1, "Combo_LMZ04_RxMode", {"", "FX", "PO", "PI", "MO"}},
  {GT1, "Combo_LMZ04_Sys_Var", {"", "A1", "A2", "A3", "A5", "A7", "B1", "B2", "B3", "B5", "B7", "C1", "C2", "C3", "C5", "C7",
                                "D1", "D2", "D3", "D5", "D7", "E1", "E2", "E3", "E5", "E7", "F1", "F2", "F3", "F5", "F7"}},
  {GT2, "Combo_LMZ04_TypRefNetwk", {"", "RN1", "RN2", "RN3", "RN4"}},
  {GS1 | GS2, "Combo_KV19_FreqAssgn", kDabList},
  {kBoth | TB3, "ListAdmSel", {}},
  {kAllot, "ListBoxContourID", {}},
  {GA1, "ListBox_LMZ04_Coordinates", {}},
};
// clang-format on

// The lists of codes: the empty row, then as many codes as there are.
struct CodeList {
  FormSet forms = 0;
  std::string name;
  std::size_t rows = 0;
  bool isOfAreas = false;
};
inline const std::vector<CodeList> kCodeLists = {
    {kAll, "Combo_B_Adm", 122, false},
    {kBoth | TB3, "ListAdmAvail", 122, false},
    {kBoth | GA1, "Combo_4B_Ctry", 134, true},
    {kAllot, "Combo_LMZ04_geo_area", 134, true},
};

}  // namespace zamo::test::catalogue
