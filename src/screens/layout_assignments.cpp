#include "screens/layouts.h"

namespace zamo {
namespace {

constexpr FormSet kBoth = kAssignmentForms;
constexpr FormSet kGS1 = formBit(kGS1Assign);
constexpr FormSet kGT1 = formBit(kGT1Assign);

// clang-format off
constexpr PageRow kPages[] = {
    {kBoth, "notice",   "N&otice"},
    {kBoth, "diagrams", "Antenna dia&grams"},
};

constexpr BoxRow kBoxes[] = {
    {kBoth, "notice",   "identification", "Notice"},
    {kBoth, "",         "FrameIntent",    ""},
    {kBoth, "",         "FrameArt",       ""},
    {kBoth, "notice",   "FrameTrg",       ""},
    {kBoth, "notice",   "site",           "Site"},
    {kBoth, "notice",   "plan",           "Frequency, plan entry and dates"},
    {kBoth, "notice",   "system",         "System"},
    {kBoth, "notice",   "antenna",        "Antenna"},
    {kBoth, "notice",   "Frame_Art4_Only", ""},
    {kBoth, "notice",   "Frame_ART5_Only", ""},

    {kBoth, "diagrams", "heights",        ""},
    {kBoth, "diagrams", "horizontal",     ""},
    {kBoth, "diagrams", "vertical",       ""},
    {kBoth, "",         "Frame_9EC_EffAntHeight", ""},
    {kBoth, "",         "Frame_9NH_AttnH", ""},
    {kBoth, "",         "Frame_9NV_AttnV", ""},
};

constexpr CellRow kCells[] = {
    {kBoth, "identification", 0, 0, "Lbl_B_Adm"},
    {kBoth, "identification", 0, 1, "Combo_B_Adm"},
    {kBoth, "identification", 0, 2, "Lbl_AdmRefID"},
    {kBoth, "identification", 0, 3, "Txt_AdmRefID"},
    {kBoth, "identification", 1, 0, "Lbl_EmailAddr"},
    {kBoth, "identification", 1, 1, "Txt_EmailAddr", 3},
    {kBoth, "identification", 0, 4, "FrameIntent", 1, 3},
    {kBoth, "identification", 0, 5, "FrameArt", 1, 3},

    {kBoth, "FrameIntent", 0, 0, "OptInt_Add"},
    {kBoth, "FrameIntent", 1, 0, "OptInt_Mod"},
    {kBoth, "FrameArt",    0, 0, "Opt_Art4"},
    {kBoth, "FrameArt",    1, 0, "Opt_Art5"},

    {kBoth, "FrameTrg", 0, 0, "Lbl_TrgAdmRefID"},
    {kBoth, "FrameTrg", 0, 1, "Txt_TrgAdmRefID"},
    {kBoth, "FrameTrg", 1, 0, "Lbl_trg_or"},
    {kBoth, "FrameTrg", 1, 1, "Txt_trg_freq_assgn"},
    {kBoth, "FrameTrg", 2, 0, "Txt_trg_long_DD Txt_trg_long_MM Txt_trg_long_SS Txt_trg_long_EW "
                              "Txt_trg_lat_DD Txt_trg_lat_MM Txt_trg_lat_SS Txt_trg_lat_NS", 2},

    {kBoth, "site", 0, 0, "Lbl_4A_SiteName"},
    {kBoth, "site", 0, 1, "Txt_4A_SiteName", 2},
    {kBoth, "site", 1, 0, "Lbl_4B_Ctry"},
    {kBoth, "site", 1, 1, "Combo_4B_Ctry"},
    {kBoth, "site", 2, 1, "Lbl_4C_Long"},
    {kBoth, "site", 2, 2, "Lbl_4C_Lat"},
    {kBoth, "site", 3, 0, "Lbl_4C"},
    {kBoth, "site", 3, 1, "Txt_4C_Deg_Long Txt_4C_Min_Long Txt_4C_Sec_Long Txt_4C_EW"},
    {kBoth, "site", 3, 2, "Txt_4C_Deg_Lat Txt_4C_Min_Lat Txt_4C_Sec_Lat Txt_4C_NS"},
    {kBoth, "site", 4, 0, "Lbl_9EA_SiteAlt"},
    {kBoth, "site", 4, 1, "Txt_9EA_SiteAlt Lbl_9EA_SiteAlt_Unit"},

    {kGS1,  "plan", 0, 0, "Lbl_KV19_FreqAssgn"},
    {kGS1,  "plan", 0, 1, "Combo_KV19_FreqAssgn Lbl_KV19_FreqAssgn_Unit"},
    {kGT1,  "plan", 0, 0, "Lbl_KV19_freqAssgn"},
    {kGT1,  "plan", 0, 1, "Txt_KV19_freqAssgn Lbl_KV19_freqAssgn_Unit"},
    {kBoth, "plan", 1, 0, "Lbl_KV19_Offset"},
    {kBoth, "plan", 1, 1, "Txt_KV19_Offset"},
    {kBoth, "plan", 2, 0, "Lbl_KV19_Plan"},
    {kBoth, "plan", 2, 1, "Combo_KV19_Plan"},
    {kBoth, "plan", 3, 0, "Lbl_KV19_assgnCde"},
    {kBoth, "plan", 3, 1, "Combo_KV19_assgnCde"},
    {kBoth, "plan", 0, 2, "Lbl_LMZ04_SfnID"},
    {kBoth, "plan", 0, 3, "Txt_LMZ04_SfnID"},
    {kBoth, "plan", 1, 2, "Lbl_LMZ04_AdmAllotID"},
    {kBoth, "plan", 1, 3, "Txt_LMZ04_AdmAllotID"},
    {kBoth, "plan", 2, 2, "Lbl_KV19_assoc_allot_sfnID"},
    {kBoth, "plan", 2, 3, "Txt_KV19_assoc_allot_sfnID"},
    {kBoth, "plan", 3, 2, "Lbl_InUse"},
    {kBoth, "plan", 3, 3, "Txt_InUse_DD Txt_InUse_MM Txt_InUse_YY"},
    {kBoth, "plan", 4, 2, "Lbl_Exp"},
    {kBoth, "plan", 4, 3, "Txt_Exp_DD Txt_Exp_MM Txt_Exp_YY"},

    {kBoth, "system", 0, 0, "Lbl_LMZ04_SpectMask"},
    {kBoth, "system", 0, 1, "Combo_LMZ04_SpectMask"},
    {kBoth, "system", 1, 0, "Lbl_LMZ04_RefPlan"},
    {kBoth, "system", 1, 1, "Combo_LMZ04_RefPlan"},
    {kGT1,  "system", 1, 2, "LblOr"},
    {kGT1,  "system", 2, 0, "Lbl_LMZ04_DigSys"},
    {kGT1,  "system", 2, 1, "Combo_LMZ04_Sys_Var"},
    {kGT1,  "system", 3, 0, "Lbl_LMZ04_RxMode"},
    {kGT1,  "system", 3, 1, "Combo_LMZ04_RxMode"},

    {kBoth, "antenna", 0, 0, "Lbl_9_AntDir"},
    {kBoth, "antenna", 0, 1, "Combo_9_AntDir"},
    {kBoth, "antenna", 1, 0, "Lbl_9D_Polariz"},
    {kBoth, "antenna", 1, 1, "Combo_9D_Polariz"},
    {kBoth, "antenna", 2, 0, "Lbl_9E_AntHgt"},
    {kBoth, "antenna", 2, 1, "Txt_9E_AntHgt Lbl_9E_AntHgt_Unit"},
    {kBoth, "antenna", 3, 0, "Lbl_9EB_Eff_hgtmax"},
    {kBoth, "antenna", 3, 1, "Txt_9EB_Eff_hgtmax Lbl_9EB_Eff_hgtmax_Unit"},
    {kBoth, "antenna", 0, 2, "Lbl_8BH_Erp_H"},
    {kBoth, "antenna", 0, 3, "Txt_8BH_Erp_H"},
    {kBoth, "antenna", 1, 2, "Lbl_8BV_Erp_V"},
    {kBoth, "antenna", 1, 3, "Txt_8BV_Erp_V"},
    {kGT1,  "antenna", 2, 2, "Lbl_KV19_erpBeam_tilt"},
    {kGT1,  "antenna", 2, 3, "Txt_KV19_erpBeam_tilt"},
    {kGT1,  "antenna", 3, 2, "Lbl_KV19_TiltAngle"},
    {kGT1,  "antenna", 3, 3, "Txt_KV19_TiltAngle"},

    {kBoth, "Frame_Art4_Only", 0, 0, "Lbl_KV19_PubReq"},
    {kBoth, "Frame_Art4_Only", 0, 1, "Combo_KV19_PubReq"},

    {kBoth, "Frame_ART5_Only", 0, 0, "Lbl_ID3"},
    {kBoth, "Frame_ART5_Only", 0, 1, "Txt_PlanAdm_RefID"},
    {kBoth, "Frame_ART5_Only", 1, 0, "Lbl_KV19_Rmk_Cond"},
    {kBoth, "Frame_ART5_Only", 1, 1, "Combo_KV19_Rmk_Cond"},
    {kBoth, "Frame_ART5_Only", 2, 0, "Lbl_KV19_SigComit"},
    {kBoth, "Frame_ART5_Only", 2, 1, "Combo_KV19_SigComit"},
    {kBoth, "Frame_ART5_Only", 3, 0, "Lbl_KV19_IsResub"},
    {kBoth, "Frame_ART5_Only", 3, 1, "Combo_KV19_IsResub"},
    {kBoth, "Frame_ART5_Only", 0, 2, "Lbl_3A1_CallSign"},
    {kBoth, "Frame_ART5_Only", 0, 3, "Txt_3A1_CallSign"},
    {kBoth, "Frame_ART5_Only", 1, 2, "Lbl_12A_OpAgcy"},
    {kBoth, "Frame_ART5_Only", 1, 3, "Txt_12A_OpAgcy"},
    {kBoth, "Frame_ART5_Only", 2, 2, "Lbl_12B_AddrCde"},
    {kBoth, "Frame_ART5_Only", 2, 3, "Txt_12B_AddrCde"},
    {kBoth, "Frame_ART5_Only", 3, 2, "Lbl_10B"},
    {kBoth, "Frame_ART5_Only", 3, 3, "Lbl_10B_Ophhfr Txt_10B_Ophhfr Lbl_10B_Ophhto Txt_10B_Ophhto"},

    {kBoth, "heights",    0, 0, "Frame_9EC_EffAntHeight"},
    {kBoth, "heights",    1, 0, "Button_Fill9EC"},
    {kBoth, "horizontal", 0, 0, "Frame_9NH_AttnH"},
    {kBoth, "horizontal", 1, 0, "Button_Fill9NH"},
    {kBoth, "vertical",   0, 0, "Frame_9NV_AttnV"},
    {kBoth, "vertical",   1, 0, "Button_Fill9NV"},
};
// clang-format on

}  // namespace

LayoutTables assignmentLayout() {
  return {kPages, kBoxes, kCells};
}

}  // namespace zamo
