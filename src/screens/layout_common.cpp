#include "screens/layouts.h"

namespace zamo {
namespace {

constexpr FormSet kPlan = kAssignmentForms | kAllotmentForms;
constexpr FormSet kTB3Only = formBit(kTB3);
constexpr FormSet kCoord = kPlan | kTB3Only;
constexpr FormSet kOnePage = kContourForm | kTbForms;

// clang-format off
constexpr PageRow kPages[] = {
    {kPlan, "last", "Coordination and re&marks"},
};

constexpr BoxRow kBoxes[] = {
    {kTB3Only,        "notice", "FrameCoord", ""},
    {kOnePage,        "notice", "remarks",    "Remarks"},

    {kPlan,           "last",   "FrameCoord", ""},
    {kPlan,           "last",   "remarks",    "Remarks"},
    {kPlan,           "last",   "Frm_TB",     ""},
};

constexpr CellRow kCells[] = {
    {kCoord, "FrameCoord", 0, 0, "ListAdmAvail", 1, 5},
    {kCoord, "FrameCoord", 0, 1, "Button_Coord_Add"},
    {kCoord, "FrameCoord", 1, 1, "Button_Coord_AddALL"},
    {kCoord, "FrameCoord", 2, 1, "Button_Coord_Del"},
    {kCoord, "FrameCoord", 3, 1, "Button_Coord_Clear"},
    {kCoord, "FrameCoord", 0, 2, "ListAdmSel", 1, 5},

    {kAllForms,                 "remarks", 0, 0, "Lbl_Notified_Rmks"},
    {kAllForms,                 "remarks", 1, 0, "Txt_notified_Rmks"},
    {kAllForms & ~kContourForm, "remarks", 2, 0, "Lbl_int_rmk"},
    {kAllForms & ~kContourForm, "remarks", 3, 0, "txt_int_rmk"},

    {kAssignmentForms, "Frm_TB", 0, 0, "Opt_TB2"},
    {kPlan,            "Frm_TB", 1, 0, "Opt_TB3"},
    {kPlan,            "Frm_TB", 2, 0, "Opt_TB5"},
    {kPlan,            "Frm_TB", 3, 0, "btn_Create"},
};
// clang-format on

}  // namespace

LayoutTables commonLayout() {
  return {kPages, kBoxes, kCells};
}

}  // namespace zamo
