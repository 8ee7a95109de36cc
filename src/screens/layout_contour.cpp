#include "screens/layouts.h"

namespace zamo {
namespace {

constexpr FormSet kForm = kContourForm;

// clang-format off
constexpr PageRow kPages[] = {
    {kForm, "notice", ""},
};

constexpr BoxRow kBoxes[] = {
    {kForm, "notice", "identification", "Notice"},
    {kForm, "",       "FrameIntent",    ""},
    {kForm, "notice", "FrameSubArea",   ""},
};

constexpr CellRow kCells[] = {
    {kForm, "identification", 0, 0, "Lbl_B_Adm"},
    {kForm, "identification", 0, 1, "Combo_B_Adm"},
    {kForm, "identification", 0, 2, "Lbl_4B_Ctry"},
    {kForm, "identification", 0, 3, "Combo_4B_Ctry"},
    {kForm, "identification", 0, 4, "FrameIntent", 1, 3},

    {kForm, "FrameIntent", 0, 0, "OptInt_Add"},
    {kForm, "FrameIntent", 1, 0, "OptInt_Suppress"},
    {kForm, "identification", 0, 5, "Lbl_EmailAddr"},
    {kForm, "identification", 0, 6, "Txt_EmailAddr"},

    {kForm, "FrameSubArea", 0, 0, "Lbl_LMZ04_contour_id"},
    {kForm, "FrameSubArea", 0, 1, "Txt_LMZ04_contour_id"},
    {kForm, "FrameSubArea", 1, 0, "Lbl_LMZ04_nb_test_pts"},
    {kForm, "FrameSubArea", 1, 1, "Txt_LMZ04_nb_test_pts"},
    {kForm, "FrameSubArea", 2, 0, "Lbl_CountDownTP"},
    {kForm, "FrameSubArea", 2, 1, "Txt_CountDownTP"},
    {kForm, "FrameSubArea", 3, 0, "Lbl_LMZ04_Long", 2},
    {kForm, "FrameSubArea", 4, 0, "Txt_LMZ04_Deg_Long Txt_LMZ04_Min_Long Txt_LMZ04_Sec_Long Txt_LMZ04_EW", 2},
    {kForm, "FrameSubArea", 5, 0, "Lbl_LMZ04_Lat", 2},
    {kForm, "FrameSubArea", 6, 0, "Txt_LMZ04_Deg_Lat Txt_LMZ04_Min_Lat Txt_LMZ04_Sec_Lat Txt_LMZ04_NS", 2},
    {kForm, "FrameSubArea", 0, 2, "Lbl_LMZ04_Coordinates"},
    {kForm, "FrameSubArea", 1, 2, "ListBox_LMZ04_Coordinates", 1, 7},
    {kForm, "FrameSubArea", 1, 3, "Button_Add_Coordinates"},
    {kForm, "FrameSubArea", 2, 3, "Button_Ins_Coordinates"},
    {kForm, "FrameSubArea", 3, 3, "Button_Upd_Coordinates"},
    {kForm, "FrameSubArea", 4, 3, "Button_Del_Coordinates"},
    {kForm, "FrameSubArea", 5, 3, "Button_Clear_Coordinates"},
    {kForm, "FrameSubArea", 6, 3, "Button_ClearAll_Coordinates"},
    {kForm, "FrameSubArea", 7, 3, "Button_View"},
};
// clang-format on

}  // namespace

LayoutTables contourLayout() {
  return {kPages, kBoxes, kCells};
}

}  // namespace zamo
