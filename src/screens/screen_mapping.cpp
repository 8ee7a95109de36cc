#include "screens/screen_mapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "model/notice_words.h"
#include "model/test_points.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "screens/bindings.h"
#include "screens/control_table.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

// What the type of a notice says of it.
struct FormConstants {
  FormCode code;
  std::string_view noticeType;
  std::string_view stationClass;
  std::string_view action;
  std::string_view plan;
};

// clang-format off
constexpr FormConstants kFormConstants[] = {
    {kGS1Assign,   types::GS1.text, "BC", "",        ""},
    {kGT1Assign,   types::GT1.text, "BT", "",        ""},
    {kGS2Allot,    types::GS2.text, "BC", "",        ""},
    {kGT2Allot,    types::GT2.text, "BT", "",        ""},
    {kGA1SubAllot, types::GA1.text, "",   "",        ""},
    {kTB5,         types::TB5.text, "",   "",        ""},
    {kTB3,         types::TB3.text, "",   actions::PARTB.text,   fragments::KV19D.text},
    {kTB2,         types::TB2.text, "",   actions::CONFORM.text, fragments::KV19D.text},
};

// An option that stands for a value. Where several are set the first counts.
struct OptionRow {
  FormSet forms;
  ControlName option;
  std::string_view value;
};

constexpr OptionRow kActions[] = {
    {kAssignmentForms | kAllotmentForms | kContourForm, "OptInt_Add",      actions::ADD.text},
    {kAssignmentForms | kAllotmentForms,                "OptInt_Mod",      actions::MODIFY.text},
    {kContourForm,                                      "OptInt_Suppress", actions::SUPPRESS.text},
    {formBit(kTB5),                                     "OptInt_WDraw",    actions::WITHDRAW.text},
    {formBit(kTB5),                                     "OptInt_Supp",     actions::SUPPRESS.text},
};

constexpr OptionRow kFragments[] = {
    {kAssignmentForms | formBit(kTB5), "Opt_Art4", fragments::KV19D.text},
    {kAssignmentForms | formBit(kTB5), "Opt_Art5", fragments::NTFD_PZ.text},
};
static_assert(areOnTheirForms(kActions, &OptionRow::option) && areOnTheirForms(kFragments, &OptionRow::option));

using AzimuthValues = std::array<AzmValueRec, kAzimuths>;

struct Grid {
  ControlStem boxes;
  AzimuthValues NtcRec::*values;
  std::string_view polar;  // that has a diagram in this plane, besides M; empty: the grid is there always
};

constexpr Grid kGrids[] = {
    {"Txt_9EC_azm", &NtcRec::ant_hgt,     ""},
    {"Txt_9NHAzm",  &NtcRec::ant_diagr_h, "H"},
    {"Txt_9NVAzm",  &NtcRec::ant_diagr_v, "V"},
};
// clang-format on

template <std::size_t Count>
const OptionRow* rowOfValue(const OptionRow (&rows)[Count], FormCode code, std::string_view value) {
  for (const OptionRow& one : rows) {
    if (isOneOf(code, one.forms) && equalsIgnoringCase(value, one.value)) return &one;
  }
  return nullptr;
}

template <std::size_t Count>
std::string valueOfOptions(const OptionRow (&rows)[Count], const Screen& screen, FormCode code) {
  for (const OptionRow& one : rows) {
    if (isOneOf(code, one.forms) && screen.isSet(one.option)) return std::string(one.value);
  }
  return {};
}

// --- to the screen

void fillInternalRemarks(const NtcRec& ntc, Screen& screen) {
  screen.setVisible({"txt_int_rmk", "Lbl_int_rmk"}, !ntc.t_int_remarks.empty());
  screen.setText("txt_int_rmk", ntc.t_int_remarks);
}

// Any other intent than the two that can be notified is shown as that of a recorded entry.
void fillIntent(const NtcRec& ntc, Screen& screen, FormCode code) {
  if (ntc.t_action.empty()) return;
  const OptionRow* known = rowOfValue(kActions, code, ntc.t_action);
  screen.setCaption("OptInt_Add", known != nullptr ? "ADD" : "RECORDED");
  screen.setOption(known != nullptr ? known->option : ControlName("OptInt_Add"));
}

void fillCoordination(const NtcRec& ntc, Screen& screen) {
  screen.clearItems("ListAdmSel");
  const CoordListRec& coord = ntc.coord;
  const auto count = static_cast<std::size_t>(std::max(coord.count, 0));
  for (std::size_t i = 0; i < std::min(count, coord.entries.size()); ++i) {
    if (!coord.entries[i].adm.empty()) screen.addItem("ListAdmSel", coord.entries[i].adm);
  }
}

// A configuration that stands on the screen counts for a notice that tells none.
void takeOverPlanning(NtcRec& ntc, const Screen& screen) {
  if (ntc.digital.present && ntc.digital.t_ref_plan_cfg.empty()) {
    ntc.digital.t_ref_plan_cfg = screen.text("Combo_LMZ04_RefPlan");
  }
}

void fillCommon(NtcRec& ntc, Screen& screen, FormCode code) {
  fillInternalRemarks(ntc, screen);
  fillIntent(ntc, screen, code);
  takeOverPlanning(ntc, screen);
  fillStage(ntc, screen, code, Stage::common);
  fillCoordination(ntc, screen);
}

void fillArticle(const NtcRec& ntc, Screen& screen, FormCode code) {
  const OptionRow* known = rowOfValue(kFragments, code, ntc.t_fragment);
  if (known == nullptr) return;
  screen.setOption(known->option);
  if (isOneOf(code, kAssignmentForms)) {
    screen.setVisible({"Opt_TB2", "Opt_TB3"}, known->option == "Opt_Art4");
  }
}

bool hasGrid(const Grid& grid, std::string_view polar, std::string_view directivity) {
  return grid.polar.empty() || ((polar == grid.polar || polar == "M") && directivity == "D");
}

void fillGrids(const NtcRec& ntc, Screen& screen) {
  for (const Grid& grid : kGrids) {
    if (!hasGrid(grid, ntc.t_polar, ntc.t_ant_dir)) continue;
    int azimuth = 0;
    for (const AzmValueRec& entry : ntc.*grid.values) {
      if (!entry.value.empty()) screen.setText(madeName(azimuthBox(grid.boxes, azimuth)), entry.value);
      azimuth += 10;
    }
  }
}

void fillAssignment(const NtcRec& ntc, Screen& screen, FormCode code) {
  fillArticle(ntc, screen, code);
  fillStage(ntc, screen, code, Stage::site);
  fillStage(ntc, screen, code, Stage::target);
  fillStage(ntc, screen, code, Stage::station);
  fillGrids(ntc, screen);
  fillStage(ntc, screen, code, Stage::system);
  // Blank hours are those of a whole day, but out of sight they would be notified where none may be.
  if (screen.isSet("Opt_Art4") && !ntc.op_hours.present) {
    screen.setText("Txt_10B_Ophhfr", "");
    screen.setText("Txt_10B_Ophhto", "");
  }
}

// Of a target only the boxes that carry it.
void showStoredTarget(Screen& screen) {
  bool isWhole = true;
  for (const Binding& one : bindingsOf(Stage::target)) {
    const bool isCarrying = !screen.isEmpty(one.control);
    screen.setVisible(one.control, isCarrying);
    isWhole = isWhole && isCarrying;
  }
  screen.setVisible("Lbl_trg_or", isWhole);
}

// A place that is counted but empty names no contour.
void fillSubAreas(const NtcRec& ntc, Screen& screen) {
  const AllotRec& allot = ntc.digital.allot;
  const double count = std::trunc(leadingNumber(allot.t_nb_sub_areas));
  for (std::size_t i = 0; i < allot.t_contour_id.size() && static_cast<double>(i) < count; ++i) {
    if (!allot.t_contour_id[i].empty()) screen.addItem("ListBoxContourID", allot.t_contour_id[i]);
  }
  screen.choose("ListBoxContourID", 0);
}

void fillAllotment(const NtcRec& ntc, Screen& screen, FormCode code) {
  screen.clearItems("ListBoxContourID");
  fillStage(ntc, screen, code, Stage::allotmentTarget);
  fillStage(ntc, screen, code, Stage::allotment);
  fillSubAreas(ntc, screen);
}

void fillTb5Intent(const NtcRec& ntc, Screen& screen) {
  if (ntc.t_action.empty()) return;
  screen.setOption(isInAnyCase(ntc.t_action, actions::WITHDRAW) ? ControlName("OptInt_WDraw")
                                                                : ControlName("OptInt_Supp"));
}

ControlName labelOfTarget(ControlName control) {
  if (control == "Txt_TrgFreq") return "lbl_freqAssgn";
  const std::string_view name = control;
  const bool isLongitude = name.ends_with("_Long") || name.ends_with("_EW");
  return isLongitude ? ControlName("Lbl_4C_Long") : ControlName("Lbl_4C_Lat");
}

// A target that is told by its frequency or its place takes the place of the reference.
void showStoredTb2Target(Screen& screen) {
  bool isReference = true;
  for (const Binding& one : bindingsOf(Stage::tbTarget)) {
    if (one.control == "Txt_TrgAdmRefID" || screen.isEmpty(one.control)) continue;
    isReference = false;
    screen.setVisible({one.control, labelOfTarget(one.control)}, true);
  }
  if (!screen.isEmpty("Txt_TrgFreq")) screen.setVisible("Lbl_FreqUnit", true);
  screen.setVisible({"Txt_TrgAdmRefID", "Lbl_trg_YBKO"}, isReference);
  if (!isReference) screen.setVisible("LblOr", false);
}

void fillTb(const NtcRec& ntc, Screen& screen, FormCode code) {
  fillInternalRemarks(ntc, screen);
  if (code == kTB5) {
    fillTb5Intent(ntc, screen);
    fillArticle(ntc, screen, code);
  }
  fillStage(ntc, screen, code, Stage::tb);
  fillStage(ntc, screen, code, Stage::tbTarget);
  if (code == kTB3) fillCoordination(ntc, screen);
}

void fillByForm(NtcRec& ntc, Screen& screen, FormCode code) {
  if (isOneOf(code, kTbForms)) return fillTb(ntc, screen, code);
  fillCommon(ntc, screen, code);
  if (isOneOf(code, kAssignmentForms)) fillAssignment(ntc, screen, code);
  if (isOneOf(code, kAllotmentForms)) fillAllotment(ntc, screen, code);
}

// A coordinate has its sign in front in a record and its hemisphere behind in the list. One that is in
// another form stays as it is, to be seen.
struct Axis {
  char positive;
  char negative;
  std::size_t size;
};

constexpr Axis kLongitude = {'E', 'W', 8};
constexpr Axis kLatitude = {'N', 'S', 7};

std::string listed(const std::string& coordinate, const Axis& axis) {
  const bool isPositive = coordinate.starts_with('+');
  if (coordinate.size() != axis.size || (!isPositive && !coordinate.starts_with('-'))) return coordinate;
  return coordinate.substr(1) + (isPositive ? axis.positive : axis.negative);
}

std::string recorded(std::string_view coordinate, const Axis& axis) {
  coordinate = trimText(coordinate);
  const char hemisphere = coordinate.empty() ? ' ' : upperChar(coordinate.back());
  const bool isPositive = hemisphere == axis.positive;
  if (!isPositive && hemisphere != axis.negative) return std::string(coordinate);
  coordinate.remove_suffix(1);
  return (isPositive ? "+" : "-") + std::string(coordinate);
}

void fillPoints(const NtcRec& ntc, Screen& screen) {
  const ContourRec& contour = ntc.digital.contour;
  screen.setText("Txt_CountDownTP", "0");
  const double count = std::trunc(leadingNumber(contour.t_nb_test_pts));
  for (std::size_t i = 0; i < contour.points.size() && static_cast<double>(i) < count; ++i) {
    const PointRec& point = contour.points[i];
    if (point.t_long.empty() && point.t_lat.empty()) continue;
    screen.addItem("ListBox_LMZ04_Coordinates", pointItem(point));
  }
  const double told = leadingNumber(screen.text("Txt_LMZ04_nb_test_pts"));
  const auto there = static_cast<double>(screen.items("ListBox_LMZ04_Coordinates").size());
  screen.setText("Txt_CountDownTP", numberText(told - there));
}

// --- from the screen

void readConstants(NtcRec& ntc, FormCode code, const Host& host) {
  ntc.d_updated = shortDateText(host.now().date);
  ntc.src_update = getLogonName(host);
  const auto* form = std::ranges::find(kFormConstants, code, &FormConstants::code);
  if (form == std::end(kFormConstants)) return;
  ntc.t_notice_type = form->noticeType;
  ntc.stn_cls = form->stationClass;
  ntc.t_action = form->action;
  ntc.t_plan = form->plan;
}

void readInternalRemarks(NtcRec& ntc, const Screen& screen) {
  if (screen.isVisible("Lbl_int_rmk") && screen.isVisible("txt_int_rmk")) {
    ntc.t_int_remarks = screen.text("txt_int_rmk");
  }
}

void readCoordination(NtcRec& ntc, const Screen& screen) {
  const std::vector<std::string>& items = screen.items("ListAdmSel");
  if (items.empty()) return;
  ntc.coord.present = true;
  ntc.coord.count = static_cast<std::int32_t>(items.size());
  ntc.coord.entries.assign(items.size(), {});
  for (std::size_t i = 0; i < items.size(); ++i) ntc.coord.entries[i].adm = items[i];
}

void readCommon(NtcRec& ntc, const Screen& screen, FormCode code) {
  readInternalRemarks(ntc, screen);
  ntc.t_action = valueOfOptions(kActions, screen, code);
  readStage(ntc, screen, code, Stage::common);
  readCoordination(ntc, screen);
}

void readArticle(NtcRec& ntc, const Screen& screen, FormCode code) {
  ntc.t_fragment = valueOfOptions(kFragments, screen, code);
  if (isExactly(ntc.t_fragment, fragments::NTFD_PZ)) ntc.t_prov = "PZ11.2";
}

void readGrids(NtcRec& ntc, const Screen& screen) {
  const std::string& polar = screen.text("Combo_9D_Polariz");
  const std::string& directivity = screen.text("Combo_9_AntDir");
  for (const Grid& grid : kGrids) {
    if (!hasGrid(grid, polar, directivity)) continue;
    int azimuth = 0;
    for (AzmValueRec& entry : ntc.*grid.values) {
      const std::string& value = screen.text(madeName(azimuthBox(grid.boxes, azimuth)));
      if (!value.empty()) entry = {true, std::to_string(azimuth), value};
      azimuth += 10;
    }
  }
}

void readAssignment(NtcRec& ntc, const Screen& screen, FormCode code) {
  readArticle(ntc, screen, code);
  readStage(ntc, screen, code, Stage::site);
  if (isExactly(ntc.t_action, actions::MODIFY)) readStage(ntc, screen, code, Stage::target);
  readStage(ntc, screen, code, Stage::station);
  readGrids(ntc, screen);
  readStage(ntc, screen, code, Stage::system);
}

void readAllotment(NtcRec& ntc, const Screen& screen, FormCode code) {
  ntc.t_fragment = fragments::KV19D.text;
  // An allotment always has a row of its own, however little of it is told.
  AllotRec& allot = ntc.digital.allot;
  allot.present = true;
  if (isExactly(ntc.t_action, actions::MODIFY)) readStage(ntc, screen, code, Stage::allotmentTarget);
  readStage(ntc, screen, code, Stage::allotment);
  const std::vector<std::string>& ids = screen.items("ListBoxContourID");
  std::copy_n(ids.begin(), std::min(ids.size(), allot.t_contour_id.size()), allot.t_contour_id.begin());
}

void readTb(NtcRec& ntc, const Screen& screen, FormCode code) {
  readInternalRemarks(ntc, screen);
  if (code == kTB5) {
    ntc.t_action = valueOfOptions(kActions, screen, code);
    ntc.t_fragment = (screen.isSet("Opt_Art4") ? fragments::KV19D : fragments::NTFD_PZ).text;
  }
  readStage(ntc, screen, code, Stage::tb);
  readStage(ntc, screen, code, Stage::tbTarget);
  if (code == kTB3) readCoordination(ntc, screen);
}

// As many places as are told and one more, whatever the list holds.
void readPoints(ContourRec& contour, const Screen& screen) {
  const std::vector<std::string>& items = screen.items("ListBox_LMZ04_Coordinates");
  const double told = std::clamp(leadingNumber(contour.t_nb_test_pts), 0.0, kMostTestPoints);
  contour.points.assign(std::max(static_cast<std::size_t>(told), items.size()) + 1, {});
  for (std::size_t i = 0; i < items.size(); ++i) {
    contour.points[i] = {true, recorded(characters(items[i], 1, 8), kLongitude),
                         recorded(characters(items[i], 10, 16), kLatitude)};
  }
}

}  // namespace

std::string pointItem(const PointRec& point) {
  std::string item = listed(point.t_long, kLongitude);
  item.resize(std::max(item.size(), kLongitude.size), ' ');
  return item + " " + listed(point.t_lat, kLatitude);
}

void fillNtcScreen(NtcRec& ntc, Screen& screen, FormCode code) {
  const Filling filling(screen, true);
  fillByForm(ntc, screen, code);
  settleAfterFill(screen);
  // Behind all rules, which know two ways to tell a target but not which one is stored.
  if (isOneOf(code, kAssignmentForms)) showStoredTarget(screen);
  if (code == kTB2) showStoredTb2Target(screen);
}

void fillContourScreen(const NtcRec& ntc, Screen& screen) {
  const Filling filling(screen, true);
  screen.clearItems("ListBox_LMZ04_Coordinates");
  fillStage(ntc, screen, kGA1SubAllot, Stage::contourOwner);
  const OptionRow* intent = rowOfValue(kActions, kGA1SubAllot, ntc.t_action);
  if (intent != nullptr) screen.setOption(intent->option);
  fillStage(ntc, screen, kGA1SubAllot, Stage::contour);
  fillPoints(ntc, screen);
  settleAfterFill(screen);
}

void readNtcFromScreen(NtcRec& ntc, const Screen& screen, FormCode code, const Host& host) {
  readConstants(ntc, code, host);
  if (isOneOf(code, kTbForms)) return readTb(ntc, screen, code);
  readCommon(ntc, screen, code);
  if (isOneOf(code, kAssignmentForms)) readAssignment(ntc, screen, code);
  if (isOneOf(code, kAllotmentForms)) readAllotment(ntc, screen, code);
}

void readContourFromScreen(NtcRec& ntc, const Screen& screen, const Host& host) {
  readConstants(ntc, kGA1SubAllot, host);
  ntc.t_action = valueOfOptions(kActions, screen, kGA1SubAllot);
  readStage(ntc, screen, kGA1SubAllot, Stage::contourOwner);
  readStage(ntc, screen, kGA1SubAllot, Stage::contour);
  ntc.digital.contour.d_updated = ntc.d_updated;
  readPoints(ntc.digital.contour, screen);
}

void fillForm(NtcRec& ntc, Screen& screen) {
  if (screen.code() == kGA1SubAllot) return fillContourScreen(ntc, screen);
  fillNtcScreen(ntc, screen, screen.code());
}

void readForm(NtcRec& ntc, const Screen& screen, const Host& host) {
  if (screen.code() == kGA1SubAllot) return readContourFromScreen(ntc, screen, host);
  readNtcFromScreen(ntc, screen, screen.code(), host);
}

}  // namespace zamo
