#include "screens/layouts.h"

namespace zamo {
namespace {

constexpr FormSet kBoth = kAllotmentForms;
constexpr FormSet kGS2 = formBit(kGS2Allot);
constexpr FormSet kGT2 = formBit(kGT2Allot);

// clang-format off
constexpr PageRow kPages[] = {
    {kBoth, "notice", "N&otice"},
};

constexpr BoxRow kBoxes[] = {
    {kBoth, "notice", "identification",  "Notice"},
    {kBoth, "",       "FrameIntent",     ""},
    {kBoth, "notice", "FrameTrg",        ""},
    {kBoth, "notice", "plan",            "Frequency, plan entry and date"},
    {kBoth, "notice", "system",          "System"},
    {kBoth, "notice", "Frame_Art4_Only", ""},
    {kBoth, "notice", "FrameAllot",      ""},
    {kBoth, "",       "FrameSubArea",    ""},
};

constexpr CellRow kCells[] = {
    {kBoth, "identification", 0, 0, "Lbl_B_Adm"},
    {kBoth, "identification", 0, 1, "Combo_B_Adm"},
    {kBoth, "identification", 0, 2, "Lbl_AdmRefID"},
    {kBoth, "identification", 0, 3, "Txt_AdmRefID"},
    {kBoth, "identification", 1, 0, "Lbl_4B_Ctry"},
    {kBoth, "identification", 1, 1, "Combo_4B_Ctry"},
    {kBoth, "identification", 1, 2, "Lbl_EmailAddr"},
    {kBoth, "identification", 1, 3, "Txt_EmailAddr"},
    {kBoth, "identification", 0, 4, "FrameIntent", 1, 3},

    {kBoth, "FrameIntent", 0, 0, "OptInt_Add"},
    {kBoth, "FrameIntent", 1, 0, "OptInt_Mod"},

    {kBoth, "FrameTrg", 0, 0, "Lbl_TrgAdmRefID"},
    {kBoth, "FrameTrg", 0, 1, "Txt_TrgAdmRefID"},

    {kGS2,  "plan", 0, 0, "Lbl_KV19_FreqAssgn"},
    {kGS2,  "plan", 0, 1, "Combo_KV19_FreqAssgn Lbl_KV19_FreqAssgn_Unit"},
    {kGT2,  "plan", 0, 0, "Lbl_KV19_freqAssgn"},
    {kGT2,  "plan", 0, 1, "Txt_KV19_freqAssgn Lbl_KV19_freqAssgn_Unit"},
    {kBoth, "plan", 1, 0, "Lbl_KV19_Offset"},
    {kBoth, "plan", 1, 1, "Txt_KV19_Offset"},
    {kBoth, "plan", 2, 0, "Lbl_9D_Polariz"},
    {kBoth, "plan", 2, 1, "Combo_9D_Polariz"},
    {kBoth, "plan", 0, 2, "Lbl_KV19_Plan"},
    {kBoth, "plan", 0, 3, "Combo_KV19_Plan"},
    {kBoth, "plan", 1, 2, "Lbl_LMZ04_SfnID"},
    {kBoth, "plan", 1, 3, "Txt_LMZ04_SfnID"},
    {kBoth, "plan", 2, 2, "Lbl_Exp"},
    {kBoth, "plan", 2, 3, "Txt_Exp_DD Txt_Exp_MM Txt_Exp_YY"},

    {kBoth, "system", 0, 0, "Lbl_LMZ04_SpectMask"},
    {kBoth, "system", 0, 1, "Combo_LMZ04_SpectMask"},
    {kBoth, "system", 1, 0, "Lbl_LMZ04_RefPlan"},
    {kBoth, "system", 1, 1, "Combo_LMZ04_RefPlan"},
    {kGT2,  "system", 2, 0, "Lbl_LMZ04_TypRefNetwk"},
    {kGT2,  "system", 2, 1, "Combo_LMZ04_TypRefNetwk"},

    {kBoth, "Frame_Art4_Only", 0, 0, "Lbl_KV19_PubReq"},
    {kBoth, "Frame_Art4_Only", 0, 1, "Combo_KV19_PubReq"},

    {kBoth, "FrameAllot", 0, 0, "Lbl_LMZ04_allot_name"},
    {kBoth, "FrameAllot", 0, 1, "Txt_LMZ04_allot_name"},
    {kBoth, "FrameAllot", 1, 0, "Lbl_LMZ04_geo_area"},
    {kBoth, "FrameAllot", 1, 1, "Combo_LMZ04_geo_area"},
    {kBoth, "FrameAllot", 2, 0, "Lbl_LMZ04_or"},
    {kBoth, "FrameAllot", 3, 0, "Lbl_LMZ04_nb_sub_areas"},
    {kBoth, "FrameAllot", 3, 1, "Txt_LMZ04_nb_sub_areas"},
    {kBoth, "FrameAllot", 0, 2, "FrameSubArea", 1, 5},

    {kBoth, "FrameSubArea", 0, 0, "Txt_LMZ04_contour_id"},
    {kBoth, "FrameSubArea", 0, 1, "Button_Add_Contour"},
    {kBoth, "FrameSubArea", 1, 1, "Button_Clear_Contour"},
    {kBoth, "FrameSubArea", 0, 2, "ListBoxContourID", 1, 3},
};
// clang-format on

}  // namespace

LayoutTables allotmentLayout() {
  return {kPages, kBoxes, kCells};
}

}  // namespace zamo
