// The controls that forms of several families share: those that come first on a form, those of the plan, and
// those that come last.
#pragma once

#include "screens/control_spec.h"

namespace zamo {

// clang-format off
inline constexpr ControlSpec kFirstControls[] = {
  {kAllForms,                                  ControlKind::text,   "Txt_Filename",       "Lbl_Filename",    "",            "File name", ""},
  {kAllForms,                                  ControlKind::text,   "Txt_Ntc_Number",     "Lbl_Ntc_Number",  "",            "Notice Number", ""},

  {kAssignmentForms | formBit(kTB5),           ControlKind::frame,  "FrameArt",           "",                "",            "", ""},
  {kAssignmentForms | formBit(kTB5),           ControlKind::option, "Opt_Art4",           "",                "FrameArt",    "Art. 4", ""},
  {kAssignmentForms | formBit(kTB5),           ControlKind::option, "Opt_Art5",           "",                "FrameArt",    "Art. 5", ""},

  {kPlanForms | kContourForm | formBit(kTB5),  ControlKind::frame,  "FrameIntent",        "",                "",            "", ""},
  {kPlanForms | kContourForm,                  ControlKind::option, "OptInt_Add",         "",                "FrameIntent", "Add", ""},
  {kPlanForms,                                 ControlKind::option, "OptInt_Mod",         "",                "FrameIntent", "Mod", ""},
  {kContourForm,                               ControlKind::option, "OptInt_Suppress",    "",                "FrameIntent", "Suppress", ""},
  {formBit(kTB5),                              ControlKind::option, "OptInt_WDraw",       "",                "FrameIntent", "Withdraw", ""},
  {formBit(kTB5),                              ControlKind::option, "OptInt_Supp",        "",                "FrameIntent", "Suppress", ""},

  {kAllForms,                                  ControlKind::combo,  "Combo_B_Adm",        "Lbl_B_Adm",       "",            "B", "Notifying Administration", administrations},
  {kAllForms,                                  ControlKind::text,   "Txt_EmailAddr",      "Lbl_EmailAddr",   "",            "e-mail", ""},
  {kPlanForms,                                 ControlKind::text,   "Txt_AdmRefID",       "Lbl_AdmRefID",    "",            "Unique ID of the notice", "", nullptr, kUpper},

  {kAssignmentForms,                           ControlKind::frame,  "FrameTrg",           "",                "",            "Identification of the Assignment to be: Modified", ""},
  {kAllotmentForms,                            ControlKind::frame,  "FrameTrg",           "",                "",            "Identification of the Allotment to be: Modified", ""},
  {kTbForms,                                   ControlKind::frame,  "FrameTrg",           "",                "",            "", ""},
  {kPlanForms | formBit(kTB5) | formBit(kTB3), ControlKind::text,   "Txt_TrgAdmRefID",    "Lbl_TrgAdmRefID", "FrameTrg",    "Unique ID of the target", "", nullptr, kUpper},
  {formBit(kTB2),                              ControlKind::text,   "Txt_PlanAdmRefID",   "Lbl_TrgAdmRefID", "FrameTrg",    "Unique ID of the target", "", nullptr, kUpper},
  {kAssignmentForms,                           ControlKind::label,  "Lbl_trg_or",         "",                "FrameTrg",    "Or", ""},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_freq_assgn", "",                "FrameTrg",    "", "Target Assign Frequency"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_long_DD",    "",                "FrameTrg",    "", "Target Longitude:Degrees"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_long_MM",    "",                "FrameTrg",    "", "Target Longitude:Minutes"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_long_SS",    "",                "FrameTrg",    "", "Target Longitude:Seconds"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_long_EW",    "",                "FrameTrg",    "", "Target Longitude:E/W", nullptr, kUpper},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_lat_DD",     "",                "FrameTrg",    "", "Target Latitude:Degrees"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_lat_MM",     "",                "FrameTrg",    "", "Target Latitude:Minutes"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_lat_SS",     "",                "FrameTrg",    "", "Target Latitude:Seconds"},
  {kAssignmentForms,                           ControlKind::text,   "Txt_trg_lat_NS",     "",                "FrameTrg",    "", "Target Latitude:N/S", nullptr, kUpper},

  {kAssignmentForms | kContourForm,            ControlKind::combo,  "Combo_4B_Ctry",      "Lbl_4B_Ctry",     "",            "4B", "Country or geographical area", countriesAndAreas, kUpper},
  {kAllotmentForms,                            ControlKind::combo,  "Combo_4B_Ctry",      "Lbl_4B_Ctry",     "",            "4B", "Country or geographical area", countriesAndAreas},
};

// What assignments and allotments have of the plan.
inline constexpr ControlSpec kPlanControls[] = {
  {kSoundForms,         ControlKind::combo, "Combo_KV19_FreqAssgn",       "Lbl_KV19_FreqAssgn",         "", "1A", "[174.923 to 229.072] [MHz] Ref.A.3.1-15 of the Agreement", dabCentreFrequencies},
  {kSoundForms,         ControlKind::label, "Lbl_KV19_FreqAssgn_Unit",    "",                           "", "[MHz]", ""},
  {kTelevisionForms,    ControlKind::text,  "Txt_KV19_freqAssgn",         "Lbl_KV19_freqAssgn",         "", "1A", "[177.5 to 226.5] or [474 to 858] Ref. A.3.1-2, A.3.1-3, A.3.1-4 and A.3.1-5 of the Agreement"},
  {kTelevisionForms,    ControlKind::label, "Lbl_KV19_freqAssgn_Unit",    "",                           "", "[MHz]", ""},
  {kPlanForms,          ControlKind::text,  "Txt_KV19_Offset",            "Lbl_KV19_Offset",            "", "1E", "Offset - Between [-500 and +500] [kHz]"},

  {kAssignmentForms,    ControlKind::combo, "Combo_9D_Polariz",           "Lbl_9D_Polariz",             "", "9D", "Polarization", polarizations},
  {formBit(kGT2Allot),  ControlKind::combo, "Combo_9D_Polariz",           "Lbl_9D_Polariz",             "", "9D", "Polarization", allotmentPolarizations},
  {formBit(kGS2Allot),  ControlKind::combo, "Combo_9D_Polariz",           "Lbl_9D_Polariz",             "", "9", "Polarization", allotmentPolarizations},

  {kAssignmentForms,    ControlKind::combo, "Combo_KV19_Plan",            "Lbl_KV19_Plan",              "", "Plan Entry", "Type of Plan entry (1 Single Assignment, 2 SFN, 3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement", planEntries},
  {kAllotmentForms,     ControlKind::combo, "Combo_KV19_Plan",            "Lbl_KV19_Plan",              "", "Plan Entry", "Type of Plan entry (3 Allotment, 4 Allotment with linked assignment(s) and SFN_id and 5 Allotment with a single linked assignment and no SFN_id)  Ref: Annex 3 of the Agreement", allotmentPlanEntries},

  {formBit(kGS1Assign), ControlKind::combo, "Combo_KV19_assgnCde",        "Lbl_KV19_assgnCde",          "", "Assgn code", "Assignment Code (L Linked with a SFN or allotment, C Converted, S Standalone) Ref: Annex 3 of the Agreement", soundAssignmentCodes},
  {formBit(kGT1Assign), ControlKind::combo, "Combo_KV19_assgnCde",        "Lbl_KV19_assgnCde",          "", "Assgn code", "Assignment Code (L Linked with a SFN or allotment, C Converted, S Standalone) Ref: Annex 3 of the Agreement", televisionAssignmentCodes},
  {kPlanForms,          ControlKind::text,  "Txt_LMZ04_SfnID",            "Lbl_LMZ04_SfnID",            "", "Sfn ID", "Indentifier for Single Frequency Network (SFN)", nullptr, kUpper},
  {kAssignmentForms,    ControlKind::text,  "Txt_LMZ04_AdmAllotID",       "Lbl_LMZ04_AdmAllotID",       "", "Assoc.Allotement ID", "Unique allotement identifier given by the administration for the allotement to which this assignment is related (assigned by the adm)", nullptr, kUpper},
  {kAssignmentForms,    ControlKind::text,  "Txt_KV19_assoc_allot_sfnID", "Lbl_KV19_assoc_allot_sfnID", "", "Assoc.Allot.SFN ID", "SFN ID of the associated allotment to which this assignment is related ", nullptr, kUpper},

  {kSoundForms,         ControlKind::combo, "Combo_LMZ04_SpectMask",      "Lbl_LMZ04_SpectMask",        "", "Spect Mask", "Spectrum mask", soundMasks},
  {kTelevisionForms,    ControlKind::combo, "Combo_LMZ04_SpectMask",      "Lbl_LMZ04_SpectMask",        "", "Spect Mask", "Spectrum mask", televisionMasks},
  {kSoundForms,         ControlKind::combo, "Combo_LMZ04_RefPlan",        "Lbl_LMZ04_RefPlan",          "", "Ref. Planning", "Reference Planning Configuration", soundPlanning},
  {kTelevisionForms,    ControlKind::combo, "Combo_LMZ04_RefPlan",        "Lbl_LMZ04_RefPlan",          "", "Ref. Planning", "Reference Planning Configuration", televisionPlanning},
  {formBit(kGT1Assign), ControlKind::label, "LblOr",                      "",                           "", "Or", ""},
  {formBit(kGT1Assign), ControlKind::combo, "Combo_LMZ04_Sys_Var",        "Lbl_LMZ04_DigSys",           "", "Sys. variant", "Variante DVB-T. Ref: Table A.3.1-1 of the Agreement", systemVariants},
  {formBit(kGT1Assign), ControlKind::combo, "Combo_LMZ04_RxMode",         "Lbl_LMZ04_RxMode",           "", "Rx mode", "Reception mode. FX, PO, PI or MO", receptionModes},
  {formBit(kGT2Allot),  ControlKind::combo, "Combo_LMZ04_TypRefNetwk",    "Lbl_LMZ04_TypRefNetwk",      "", "Typ.Ref.Netwk", "Type of Reference Network", referenceNetworks},
};

inline constexpr FormSet kCoordForms = kPlanForms | formBit(kTB3);
inline constexpr FormSet kArt5Forms = kAssignmentForms | formBit(kTB2);

inline constexpr ControlSpec kLastControls[] = {
  {kPlanForms,                      ControlKind::label,  "Lbl_Exp",             "",                  "",                "Expiry Date", ""},
  {kPlanForms,                      ControlKind::text,   "Txt_Exp_DD",          "",                  "",                "", "[dd] for day"},
  {kPlanForms,                      ControlKind::text,   "Txt_Exp_MM",          "",                  "",                "", "[mm] for month"},
  {kPlanForms,                      ControlKind::text,   "Txt_Exp_YY",          "",                  "",                "", "[yyyy] for year"},

  {kPlanForms,                      ControlKind::frame,  "Frame_Art4_Only",     "",                  "",                "Art. 4 ONLY", ""},
  {kPlanForms,                      ControlKind::combo,  "Combo_KV19_PubReq",   "Lbl_KV19_PubReq",   "Frame_Art4_Only", "Pub.Request", "TRUE, if administration requests the Vostrad to apply the procedure contained in 4.1.2.5", yesOrNo},

  {kArt5Forms,                      ControlKind::frame,  "Frame_ART5_Only",     "",                  "",                "Art. 5 ONLY", ""},
  {kAssignmentForms,                ControlKind::text,   "Txt_PlanAdm_RefID",   "Lbl_ID3",           "Frame_ART5_Only", "ID3", "Unique Identifier of the associated Plan entry", nullptr, kUpper},
  {kAssignmentForms,                ControlKind::combo,  "Combo_KV19_Rmk_Cond", "Lbl_KV19_Rmk_Cond", "Frame_ART5_Only", "Rmk.Cond met", "Declaration by the notifying adm that all conditions associated with the remarks are fully met", yesOrNo},
  {kAssignmentForms,                ControlKind::combo,  "Combo_KV19_SigComit", "Lbl_KV19_SigComit", "Frame_ART5_Only", "Sign.Commitment", "Accompanied by a signed commitment of operation in compliance with provision 5.1.7 and 5.1.8", yesOrNo},
  {kAssignmentForms,                ControlKind::combo,  "Combo_KV19_IsResub",  "Lbl_KV19_IsResub",  "Frame_ART5_Only", "ReSubmission", "With Ref. to provision 5.1.6, 5.1.7 and 5.1.8", yesOrNo},
  {kAssignmentForms,                ControlKind::text,   "Txt_3A1_CallSign",    "Lbl_3A1_CallSign",  "Frame_ART5_Only", "3A1", "Call Sign or other identification used in accordance with Art 19 of PZ ", nullptr, kUpper},
  // A plan assignment may have a date of bringing into use too, so there it stands outside of the frame.
  {formBit(kTB2),                   ControlKind::label,  "Lbl_InUse",           "",                  "Frame_ART5_Only", "2C", ""},
  {formBit(kTB2),                   ControlKind::text,   "Txt_InUse_DD",        "",                  "Frame_ART5_Only", "", "[dd] for day"},
  {formBit(kTB2),                   ControlKind::text,   "Txt_InUse_MM",        "",                  "Frame_ART5_Only", "", "[mm] for month"},
  {formBit(kTB2),                   ControlKind::text,   "Txt_InUse_YY",        "",                  "Frame_ART5_Only", "", "[yyyy] for year"},
  {kArt5Forms,                      ControlKind::text,   "Txt_12A_OpAgcy",      "Lbl_12A_OpAgcy",    "Frame_ART5_Only", "12A", "Symbol for the Operating agency", nullptr, kUpper},
  {kArt5Forms,                      ControlKind::text,   "Txt_12B_AddrCde",     "Lbl_12B_AddrCde",   "Frame_ART5_Only", "12B", "Symbol for the address of the administration responsible for the station", nullptr, kUpper},
  {kArt5Forms,                      ControlKind::label,  "Lbl_10B",             "",                  "Frame_ART5_Only", "10B", ""},
  {kArt5Forms,                      ControlKind::text,   "Txt_10B_Ophhfr",      "Lbl_10B_Ophhfr",    "Frame_ART5_Only", "From(UTC)", "Start time of the regular hours of operation "},
  {kArt5Forms,                      ControlKind::text,   "Txt_10B_Ophhto",      "Lbl_10B_Ophhto",    "Frame_ART5_Only", "To(UTC)", "Stop time of the regular hours of operation "},

  {kAssignmentForms,                ControlKind::frame,  "FrameCoord",          "",                  "",                "COORDINATION", "Coordination successfully completed with the following administrations"},
  {kAllotmentForms | formBit(kTB3), ControlKind::frame,  "FrameCoord",          "",                  "",                "COORDINATION", ""},
  {kCoordForms,                     ControlKind::list,   "ListAdmAvail",        "",                  "FrameCoord",      "", "", administrations},
  {kCoordForms,                     ControlKind::button, "Button_Coord_Add",    "",                  "FrameCoord",      ">", ""},
  {kCoordForms,                     ControlKind::button, "Button_Coord_AddALL", "",                  "FrameCoord",      ">>", ""},
  {kCoordForms,                     ControlKind::button, "Button_Coord_Del",    "",                  "FrameCoord",      "<", ""},
  {kCoordForms,                     ControlKind::button, "Button_Coord_Clear",  "",                  "FrameCoord",      "<<", ""},
  {kCoordForms,                     ControlKind::list,   "ListAdmSel",          "",                  "FrameCoord",      "", ""},

  {kAllForms,                       ControlKind::memo,   "Txt_notified_Rmks",   "Lbl_Notified_Rmks", "",                "Notified remarks", "Remarks indicated in this textbox will be loaded to the database"},
  {kAllForms & ~kContourForm,       ControlKind::memo,   "txt_int_rmk",         "Lbl_int_rmk",       "",                "Internal Remarks", ""},

  {kPlanForms,                      ControlKind::frame,  "Frm_TB",              "",                  "",                "Create Corresponding Notice", ""},
  {kAssignmentForms,                ControlKind::option, "Opt_TB2",             "",                  "Frm_TB",          "TB2 - CONFORM", ""},
  {kPlanForms,                      ControlKind::option, "Opt_TB3",             "",                  "Frm_TB",          "TB3 - PARTB", ""},
  {kPlanForms,                      ControlKind::option, "Opt_TB5",             "",                  "Frm_TB",          "TB5 - WITHDRAW/SUPPRESS", ""},
  {kPlanForms,                      ControlKind::button, "btn_Create",          "",                  "Frm_TB",          "Create notice", ""},

  {kAllForms,                       ControlKind::button, "Button_Prev_Ntc",     "",                  "",                "<<", ""},
  {kAllForms,                       ControlKind::button, "Button_Next_Ntc",     "",                  "",                ">>", ""},
  {kAllForms,                       ControlKind::button, "Button_Validate",     "",                  "",                "Validation", "Save Notice and Close the File"},
  {kAllForms,                       ControlKind::button, "Button_Next",         "",                  "",                "Update", "Update the Notice changes in the database"},
  {kAllForms,                       ControlKind::button, "Button_AddNew",       "",                  "",                "Add New", ""},
  {kAllForms,                       ControlKind::button, "Button_Finish",       "",                  "",                "Delete", "Delete the Notice from the database"},
  {kAllForms,                       ControlKind::button, "Button_Reset",        "",                  "",                "Close", "Close the screen"},
};
// clang-format on

}  // namespace zamo
