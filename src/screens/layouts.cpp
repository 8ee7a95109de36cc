#include "screens/layouts.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "screens/control_table.h"

namespace zamo {
namespace {

using enum FieldWidth;
using enum FieldSide;

// clang-format off
constexpr FieldLook kLooks[] = {
    {"Txt_4C_Deg_",               3, fixed, right, "deg"},
    {"Txt_4C_Min_",               2, fixed, right, "min"},
    {"Txt_4C_Sec_",               2, fixed, right, "sec"},
    {"Txt_4C_EW",                 1, fixed, left,  "E/W"},
    {"Txt_4C_NS",                 1, fixed, left,  "N/S"},
    {"Txt_LMZ04_Deg_",            3, fixed, right, "deg"},
    {"Txt_LMZ04_Min_",            2, fixed, right, "min"},
    {"Txt_LMZ04_Sec_",            2, fixed, right, "sec"},
    {"Txt_LMZ04_EW",              1, fixed, left,  "E/W"},
    {"Txt_LMZ04_NS",              1, fixed, left,  "N/S"},
    {"Txt_trg_long_EW",           1, fixed, left,  "E/W"},
    {"Txt_trg_lat_NS",            1, fixed, left,  "N/S"},
    {"Txt_trg_long_DD",           3, fixed, right, "deg"},
    {"Txt_trg_long_MM",           2, fixed, right, "min"},
    {"Txt_trg_long_SS",           2, fixed, right, "sec"},
    {"Txt_trg_lat_DD",            3, fixed, right, "deg"},
    {"Txt_trg_lat_MM",            2, fixed, right, "min"},
    {"Txt_trg_lat_SS",            2, fixed, right, "sec"},
    {"Txt_trg_freq_assgn",       10, fixed, right, "MHz"},
    {"Txt_TrgFreq",              10, fixed, right, ""},
    {"Txt_InUse_YY",              4, fixed, right, "yyyy"},
    {"Txt_InUse_MM",              2, fixed, right, "mm"},
    {"Txt_InUse_DD",              2, fixed, right, "dd"},
    {"Txt_Exp_YY",                4, fixed, right, "yyyy"},
    {"Txt_Exp_MM",                2, fixed, right, "mm"},
    {"Txt_Exp_DD",                2, fixed, right, "dd"},
    {"Txt_10B_",                  4, fixed, right, "hhmm"},
    {"Txt_12A_OpAgcy",            4, fixed, left,  ""},
    {"Txt_12B_AddrCde",           4, fixed, left,  ""},
    {"Txt_3A1_CallSign",         10, grows, left,  ""},
    {"Txt_PlanAdm_RefID",        18, grows, left,  ""},
    {"Txt_9EC_azm",               4, fixed, right, ""},
    {"Txt_9NHAzm",                4, fixed, right, ""},
    {"Txt_9NVAzm",                4, fixed, right, ""},
    {"Txt_9E_AntHgt",             6, fixed, right, ""},
    {"Txt_9EA_SiteAlt",           6, fixed, right, ""},
    {"Txt_9EB_Eff_hgtmax",        6, fixed, right, ""},
    {"Txt_8BH_Erp_H",             6, fixed, right, ""},
    {"Txt_8BV_Erp_V",             6, fixed, right, ""},
    {"Txt_KV19_erpBeam_tilt",     6, fixed, right, ""},
    {"Txt_KV19_TiltAngle",        6, fixed, right, ""},
    {"Txt_KV19_freqAssgn",       10, fixed, right, ""},
    {"Txt_KV19_Offset",          10, fixed, right, ""},
    {"Txt_LMZ04_nb_",             3, fixed, right, ""},
    {"Txt_LMZ04_contour_id",      5, fixed, right, ""},
    {"Txt_CountDownTP",           3, fixed, right, ""},
    {"Txt_LMZ04_SfnID",          16, grows, left,  ""},
    {"Txt_Ntc_Number",           10, fixed, right, ""},
    {"Txt_4A_SiteName",          30, grows, left,  ""},
    {"Txt_LMZ04_allot_name",     24, grows, left,  ""},
    {"Txt_TrgAdmRefID",          20, grows, left,  ""},
    {"Txt_PlanAdmRefID",         20, grows, left,  ""},
    {"Txt_AdmRefID",             20, grows, left,  ""},
    {"Txt_EmailAddr",            20, grows, left,  ""},
    {"ListAdm",                   8, grows, left,  ""},
    {"ListBoxContourID",          8, fixed, left,  ""},
    {"ListBox_LMZ04_Coordinates", 18, fixed, left, ""},
};

constexpr ControlName kTypedCombos[] = {"Combo_4B_Ctry", "Combo_LMZ04_geo_area"};

// clang-format on

constexpr int kGridColumns = 4;

constexpr std::array kTables = {assignmentLayout, allotmentLayout, contourLayout, tbLayout, commonLayout};

std::vector<std::string> splitNames(std::string_view names) {
  std::vector<std::string> split;
  while (!names.empty()) {
    const std::size_t end = std::min(names.find(' '), names.size());
    if (end > 0) split.emplace_back(names.substr(0, end));
    names.remove_prefix(std::min(end + 1, names.size()));
  }
  return split;
}

void appendGrid(std::vector<Cell>& cells, const GridSpec& grid) {
  for (int azimuth = 0; azimuth < 360; azimuth += 10) {
    const int place = azimuth / 10;
    Cell cell{grid.frame, place / kGridColumns, place % kGridColumns, {}};
    cell.controls = {azimuthBox(labelsOf(grid), azimuth), azimuthBox(boxesOf(grid), azimuth)};
    cell.isTight = true;
    cells.push_back(cell);
  }
}

void appendCell(FormLayout& layout, const CellRow& row) {
  layout.cells.push_back(
      {row.box, row.row, row.column, splitNames(row.controls), row.columnSpan, row.rowSpan});
  const auto* grid = std::ranges::find(kAzimuthGrids, std::string_view(row.controls), &GridSpec::frame);
  if (grid != std::end(kAzimuthGrids)) appendGrid(layout.cells, *grid);
}

}  // namespace

FormLayout layoutOf(FormCode code) {
  FormLayout layout;
  for (const auto& table : kTables) {
    const LayoutTables rows = table();
    for (const PageRow& row : rows.pages) {
      if (isOneOf(code, row.forms)) layout.pages.push_back(row);
    }
    for (const BoxRow& row : rows.boxes) {
      if (isOneOf(code, row.forms)) layout.boxes.push_back(row);
    }
    for (const CellRow& row : rows.cells) {
      if (isOneOf(code, row.forms)) appendCell(layout, row);
    }
  }
  return layout;
}

FieldLook lookOf(ControlName control) {
  const auto look = std::find_if(std::begin(kLooks), std::end(kLooks),
                                 [control](const FieldLook& row) { return row.control.begins(control); });
  return look == std::end(kLooks) ? FieldLook() : *look;
}

bool canBeTypedInto(ControlName combo) {
  return std::find(std::begin(kTypedCombos), std::end(kTypedCombos), combo) != std::end(kTypedCombos);
}

}  // namespace zamo
