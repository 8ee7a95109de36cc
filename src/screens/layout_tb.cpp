#include "screens/layouts.h"

namespace zamo {
namespace {

constexpr FormSet kTB5Only = formBit(kTB5);
constexpr FormSet kTB2Only = formBit(kTB2);
constexpr FormSet kTarget = formBit(kTB5) | formBit(kTB3);

// clang-format off
constexpr PageRow kPages[] = {
    {kTbForms, "notice", ""},
};

constexpr BoxRow kBoxes[] = {
    {kTbForms, "notice", "identification",  "Notice"},
    {kTB5Only, "",       "FrameIntent",     ""},
    {kTB5Only, "",       "FrameArt",        ""},
    {kTbForms, "",       "FrameTrg",        ""},
    {kTB2Only, "notice", "Frame_ART5_Only", ""},
    {kTB2Only, "notice", "Frame1",          ""},
};

constexpr CellRow kCells[] = {
    {kTbForms, "identification", 0, 0, "Lbl_B_Adm"},
    {kTbForms, "identification", 0, 1, "Combo_B_Adm"},
    {kTbForms, "identification", 0, 2, "Lbl_EmailAddr"},
    {kTbForms, "identification", 0, 3, "Txt_EmailAddr"},
    {kTB5Only, "identification", 0, 4, "FrameIntent", 1, 3},
    {kTB5Only, "identification", 0, 5, "FrameArt", 1, 3},
    {kTbForms, "identification", 1, 0, "FrameTrg", 4},

    {kTB5Only, "FrameIntent", 0, 0, "OptInt_WDraw"},
    {kTB5Only, "FrameIntent", 1, 0, "OptInt_Supp"},
    {kTB5Only, "FrameArt",    0, 0, "Opt_Art4"},
    {kTB5Only, "FrameArt",    1, 0, "Opt_Art5"},

    {kTbForms, "FrameTrg", 0, 0, "Lbl_TrgAdmRefID"},
    {kTarget,  "FrameTrg", 0, 1, "Txt_TrgAdmRefID"},
    {kTB2Only, "FrameTrg", 0, 1, "Txt_PlanAdmRefID"},

    {kTB2Only, "Frame_ART5_Only", 0, 0, "Lbl_InUse"},
    {kTB2Only, "Frame_ART5_Only", 0, 1, "Txt_InUse_DD Txt_InUse_MM Txt_InUse_YY"},
    {kTB2Only, "Frame_ART5_Only", 1, 0, "Lbl_12A_OpAgcy"},
    {kTB2Only, "Frame_ART5_Only", 1, 1, "Txt_12A_OpAgcy"},
    {kTB2Only, "Frame_ART5_Only", 2, 0, "Lbl_12B_AddrCde"},
    {kTB2Only, "Frame_ART5_Only", 2, 1, "Txt_12B_AddrCde"},
    {kTB2Only, "Frame_ART5_Only", 3, 0, "Lbl_10B"},
    {kTB2Only, "Frame_ART5_Only", 3, 1, "Lbl_10B_Ophhfr Txt_10B_Ophhfr Lbl_10B_Ophhto Txt_10B_Ophhto"},

    {kTB2Only, "Frame1", 0, 0, "Lbl_trg_YBKO"},
    {kTB2Only, "Frame1", 0, 1, "Txt_TrgAdmRefID", 2},
    {kTB2Only, "Frame1", 1, 0, "LblOr"},
    {kTB2Only, "Frame1", 2, 0, "lbl_freqAssgn"},
    {kTB2Only, "Frame1", 2, 1, "Txt_TrgFreq Lbl_FreqUnit"},
    {kTB2Only, "Frame1", 3, 1, "Lbl_4C_Long"},
    {kTB2Only, "Frame1", 3, 2, "Lbl_4C_Lat"},
    {kTB2Only, "Frame1", 4, 1, "Txt_4C_Deg_Long Txt_4C_Min_Long Txt_4C_Sec_Long Txt_4C_EW"},
    {kTB2Only, "Frame1", 4, 2, "Txt_4C_Deg_Lat Txt_4C_Min_Lat Txt_4C_Sec_Lat Txt_4C_NS"},
};
// clang-format on

}  // namespace

LayoutTables tbLayout() {
  return {kPages, kBoxes, kCells};
}

}  // namespace zamo
