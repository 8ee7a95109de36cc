#include "screens/layouts.h"

#include <gmock/gmock.h>

#include <QGroupBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <algorithm>
#include <map>

#include "screens_window/shown_form.h"
#include "support/waiting.h"

namespace zamo {
namespace {

using test::kEveryForm;
using test::ShownForm;

constexpr QSize kWholeDisplay(1354, 720);
constexpr QSize kDisplayScaledTwice(671, 336);

std::vector<std::string> placedControls(FormCode code) {
  std::vector<std::string> names(std::begin(kTopStrip), std::end(kTopStrip));
  const FormLayout layout = layoutOf(code);
  for (const Cell& cell : layout.cells) names.insert(names.end(), cell.controls.begin(), cell.controls.end());
  for (const BoxRow& box : layout.boxes) {
    // A frame of a page; the others stand in cells.
    if (!box.page.empty() && box.title.empty() && box.box.starts_with("Fr")) names.emplace_back(box.box);
  }
  for (const ButtonRow& row : kButtonStrip) names.emplace_back(row.control);
  std::sort(names.begin(), names.end());
  return names;
}

TEST(Layouts, every_control_is_placed_once) {
  for (const FormCode code : kEveryForm) {
    std::vector<std::string> controls;
    for (const ControlRow& row : controlRows(code)) controls.emplace_back(row.name);
    std::sort(controls.begin(), controls.end());
    EXPECT_EQ(placedControls(code), controls) << code;
  }
}

TEST(Layouts, cells_dont_cover_each_other) {
  for (const FormCode code : kEveryForm) {
    std::map<std::pair<std::string_view, std::pair<int, int>>, std::string> taken;
    for (const Cell& cell : layoutOf(code).cells) {
      for (int row = cell.row; row < cell.row + cell.rowSpan; ++row) {
        for (int column = cell.column; column < cell.column + cell.columnSpan; ++column) {
          const auto [place, isFree] = taken.insert({{cell.box, {row, column}}, cell.controls.front()});
          EXPECT_TRUE(isFree) << code << ": " << place->second << " and " << cell.controls.front();
        }
      }
    }
  }
}

TEST(Layouts, every_control_stands_in_its_frame) {
  for (const FormCode code : kEveryForm) {
    ShownForm shown(code);
    shown.show();
    for (const ControlRow& row : controlRows(code)) {
      const QWidget* frame = shown.control(madeName(row.name)).parentWidget();
      while (frame != shown.window.get() && (!frame->inherits("QGroupBox") || frame->objectName().isEmpty()))
        frame = frame->parentWidget();
      const std::string name = frame == shown.window.get() ? "" : frame->objectName().toStdString();
      EXPECT_EQ(name, row.frame) << code << " " << row.name;
    }
  }
}

QString captionOf(const QWidget& widget) {
  QString caption;
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) caption = button->text();
  if (const auto* const frame = qobject_cast<const QGroupBox*>(&widget)) caption = frame->title();
  return caption.remove('&');
}

TEST(Layouts, captions_and_tips_are_those_of_the_table) {
  for (const FormCode code : kEveryForm) {
    ShownForm shown(code);
    shown.show();
    for (const ControlRow& row : controlRows(code)) {
      const QWidget& widget = shown.control(madeName(row.name));
      EXPECT_EQ(toText(captionOf(widget)), row.caption) << row.name;
      EXPECT_EQ(toText(widget.toolTip()), row.tip) << row.name;
    }
  }
}

// --- the order of the Tab key

// From the first field on, as the Tab key goes while every option can be reached. Azimuth boxes are left out.
std::vector<std::string> tabOrder(ShownForm& shown) {
  std::vector<std::string> names;
  shown.window->focusFirst();
  const QWidget* const first = shown.window->focusWidget();
  const QWidget* next = first;
  do {
    const std::string name = next->objectName().toStdString();
    const bool isControl = shown.form.screen.has(madeName(name)) && (next->focusPolicy() & Qt::TabFocus) != 0;
    if (isControl && !name.starts_with("Txt_9EC_azm") && !name.starts_with("Txt_9N")) names.push_back(name);
    next = next->nextInFocusChain();
  } while (next != first);
  return names;
}

std::vector<std::string> withButtons(std::vector<std::string> names) {
  for (const ControlName button :
       ControlNames{"Button_Next", "Button_AddNew", "Button_Finish", "Button_Validate", "Button_Prev_Ntc",
                    "Button_Next_Ntc", "Button_Reset"})
    names.emplace_back(button);
  return names;
}

// The first combo is disabled, so the walk begins behind it and comes to it last.
std::vector<std::string> firstLast(std::vector<std::string> names) {
  std::rotate(names.begin(), names.begin() + 1, names.end());
  return names;
}

TEST(TabOrder, follows_the_assignment_form) {
  ShownForm shown(kGT1Assign);
  shown.form.screen.setEnabled("Combo_B_Adm", false);
  shown.show();
  EXPECT_EQ(tabOrder(shown), firstLast(withButtons({"Combo_B_Adm",
                                                    "Txt_AdmRefID",
                                                    "Txt_EmailAddr",
                                                    "OptInt_Add",
                                                    "OptInt_Mod",
                                                    "Opt_Art4",
                                                    "Opt_Art5",
                                                    "Txt_TrgAdmRefID",
                                                    "Txt_trg_freq_assgn",
                                                    "Txt_trg_long_DD",
                                                    "Txt_trg_long_MM",
                                                    "Txt_trg_long_SS",
                                                    "Txt_trg_long_EW",
                                                    "Txt_trg_lat_DD",
                                                    "Txt_trg_lat_MM",
                                                    "Txt_trg_lat_SS",
                                                    "Txt_trg_lat_NS",
                                                    "Txt_4A_SiteName",
                                                    "Combo_4B_Ctry",
                                                    "Txt_4C_Deg_Long",
                                                    "Txt_4C_Min_Long",
                                                    "Txt_4C_Sec_Long",
                                                    "Txt_4C_EW",
                                                    "Txt_4C_Deg_Lat",
                                                    "Txt_4C_Min_Lat",
                                                    "Txt_4C_Sec_Lat",
                                                    "Txt_4C_NS",
                                                    "Txt_9EA_SiteAlt",
                                                    "Txt_KV19_freqAssgn",
                                                    "Txt_KV19_Offset",
                                                    "Combo_KV19_Plan",
                                                    "Combo_KV19_assgnCde",
                                                    "Txt_LMZ04_SfnID",
                                                    "Txt_LMZ04_AdmAllotID",
                                                    "Txt_KV19_assoc_allot_sfnID",
                                                    "Txt_InUse_DD",
                                                    "Txt_InUse_MM",
                                                    "Txt_InUse_YY",
                                                    "Txt_Exp_DD",
                                                    "Txt_Exp_MM",
                                                    "Txt_Exp_YY",
                                                    "Combo_LMZ04_SpectMask",
                                                    "Combo_LMZ04_RefPlan",
                                                    "Combo_LMZ04_Sys_Var",
                                                    "Combo_LMZ04_RxMode",
                                                    "Combo_9_AntDir",
                                                    "Combo_9D_Polariz",
                                                    "Txt_9E_AntHgt",
                                                    "Txt_9EB_Eff_hgtmax",
                                                    "Txt_8BH_Erp_H",
                                                    "Txt_8BV_Erp_V",
                                                    "Txt_KV19_erpBeam_tilt",
                                                    "Txt_KV19_TiltAngle",
                                                    "Combo_KV19_PubReq",
                                                    "Txt_PlanAdm_RefID",
                                                    "Combo_KV19_Rmk_Cond",
                                                    "Combo_KV19_SigComit",
                                                    "Combo_KV19_IsResub",
                                                    "Txt_3A1_CallSign",
                                                    "Txt_12A_OpAgcy",
                                                    "Txt_12B_AddrCde",
                                                    "Txt_10B_Ophhfr",
                                                    "Txt_10B_Ophhto",
                                                    "Button_Fill9EC",
                                                    "Button_Fill9NH",
                                                    "Button_Fill9NV",
                                                    "ListAdmAvail",
                                                    "Button_Coord_Add",
                                                    "Button_Coord_AddALL",
                                                    "Button_Coord_Del",
                                                    "Button_Coord_Clear",
                                                    "ListAdmSel",
                                                    "Txt_notified_Rmks",
                                                    "txt_int_rmk",
                                                    "Opt_TB2",
                                                    "Opt_TB3",
                                                    "Opt_TB5",
                                                    "btn_Create"})));
}

TEST(TabOrder, follows_the_allotment_form) {
  ShownForm shown(kGT2Allot);
  shown.form.screen.setEnabled("Combo_B_Adm", false);
  shown.show();
  EXPECT_EQ(tabOrder(shown), firstLast(withButtons({"Combo_B_Adm",
                                                    "Txt_AdmRefID",
                                                    "Combo_4B_Ctry",
                                                    "Txt_EmailAddr",
                                                    "OptInt_Add",
                                                    "OptInt_Mod",
                                                    "Txt_TrgAdmRefID",
                                                    "Txt_KV19_freqAssgn",
                                                    "Txt_KV19_Offset",
                                                    "Combo_9D_Polariz",
                                                    "Combo_KV19_Plan",
                                                    "Txt_LMZ04_SfnID",
                                                    "Txt_Exp_DD",
                                                    "Txt_Exp_MM",
                                                    "Txt_Exp_YY",
                                                    "Combo_LMZ04_SpectMask",
                                                    "Combo_LMZ04_RefPlan",
                                                    "Combo_LMZ04_TypRefNetwk",
                                                    "Combo_KV19_PubReq",
                                                    "Txt_LMZ04_allot_name",
                                                    "Combo_LMZ04_geo_area",
                                                    "Txt_LMZ04_nb_sub_areas",
                                                    "Txt_LMZ04_contour_id",
                                                    "Button_Add_Contour",
                                                    "Button_Clear_Contour",
                                                    "ListBoxContourID",
                                                    "ListAdmAvail",
                                                    "Button_Coord_Add",
                                                    "Button_Coord_AddALL",
                                                    "Button_Coord_Del",
                                                    "Button_Coord_Clear",
                                                    "ListAdmSel",
                                                    "Txt_notified_Rmks",
                                                    "txt_int_rmk",
                                                    "Opt_TB3",
                                                    "Opt_TB5",
                                                    "btn_Create"})));
}

TEST(TabOrder, follows_the_contour_form) {
  ShownForm shown(kGA1SubAllot);
  shown.form.screen.setEnabled("Combo_B_Adm", false);
  shown.show();
  EXPECT_EQ(tabOrder(shown), firstLast(withButtons({"Combo_B_Adm",
                                                    "Combo_4B_Ctry",
                                                    "OptInt_Add",
                                                    "OptInt_Suppress",
                                                    "Txt_EmailAddr",
                                                    "Txt_LMZ04_contour_id",
                                                    "Txt_LMZ04_nb_test_pts",
                                                    "Txt_LMZ04_Deg_Long",
                                                    "Txt_LMZ04_Min_Long",
                                                    "Txt_LMZ04_Sec_Long",
                                                    "Txt_LMZ04_EW",
                                                    "Txt_LMZ04_Deg_Lat",
                                                    "Txt_LMZ04_Min_Lat",
                                                    "Txt_LMZ04_Sec_Lat",
                                                    "Txt_LMZ04_NS",
                                                    "ListBox_LMZ04_Coordinates",
                                                    "Button_Add_Coordinates",
                                                    "Button_Ins_Coordinates",
                                                    "Button_Upd_Coordinates",
                                                    "Button_Del_Coordinates",
                                                    "Button_Clear_Coordinates",
                                                    "Button_ClearAll_Coordinates",
                                                    "Button_View",
                                                    "Txt_notified_Rmks"})));
}

TEST(TabOrder, follows_the_form_of_a_plan_entry_that_is_copied) {
  ShownForm shown(kTB2);
  shown.form.screen.setEnabled("Combo_B_Adm", false);
  shown.show();
  EXPECT_EQ(
      tabOrder(shown),
      firstLast(withButtons({"Combo_B_Adm",       "Txt_EmailAddr",   "Txt_PlanAdmRefID", "Txt_InUse_DD",
                             "Txt_InUse_MM",      "Txt_InUse_YY",    "Txt_12A_OpAgcy",   "Txt_12B_AddrCde",
                             "Txt_10B_Ophhfr",    "Txt_10B_Ophhto",  "Txt_TrgAdmRefID",  "Txt_TrgFreq",
                             "Txt_4C_Deg_Long",   "Txt_4C_Min_Long", "Txt_4C_Sec_Long",  "Txt_4C_EW",
                             "Txt_4C_Deg_Lat",    "Txt_4C_Min_Lat",  "Txt_4C_Sec_Lat",   "Txt_4C_NS",
                             "Txt_notified_Rmks", "txt_int_rmk"})));
}

// Whether the fields of a box are told row by row or column by column.
TEST(TabOrder, reads_each_box_in_one_direction) {
  for (const FormCode code : kEveryForm) {
    const FormLayout layout = layoutOf(code);
    for (const BoxRow& box : layout.boxes) {
      std::vector<std::pair<int, int>> rows;
      std::vector<std::pair<int, int>> columns;
      for (const Cell& cell : layout.cells) {
        if (cell.box != box.box || cell.controls.front().starts_with("Lbl_") ||
            cell.controls.front()[0] == 'F')
          continue;
        rows.emplace_back(cell.row, cell.column);
        columns.emplace_back(cell.column + cell.columnSpan, cell.row);
      }
      EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()) || std::is_sorted(columns.begin(), columns.end()))
          << code << " " << box.box;
    }
  }
}

TEST(TabOrder, goes_round_a_grid_with_the_azimuth) {
  ShownForm shown(kGS1Assign);
  shown.show();
  shown.pages().setCurrentIndex(1);
  shown.control("Txt_9EC_azm000").setFocus();
  for (int azimuth = 10; azimuth < 360; azimuth += 10) {
    QTest::keyClick(shown.window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(shown.focused(), azimuthBox("Txt_9EC_azm", azimuth));
  }
  QTest::keyClick(shown.window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(shown.focused(), "Button_Fill9EC");
}

// --- room

// What an operator reads must not be cut off.
void expectNothingIsCut(ShownForm& shown) {
  for (const ControlRow& row : controlRows(shown.form.screen.code())) {
    const QWidget& widget = shown.control(madeName(row.name));
    if (!widget.isVisible() || row.kind == ControlKind::frame) continue;
    const bool isRead =
        row.kind == ControlKind::label || row.kind == ControlKind::button || row.kind == ControlKind::option;
    const QSize needed = isRead ? widget.sizeHint() : widget.minimumSize();
    EXPECT_GE(widget.width(), needed.width()) << row.name;
    EXPECT_GE(widget.height(), needed.height()) << row.name;
    const QWidget& around = *widget.parentWidget();
    EXPECT_TRUE(around.rect().contains(widget.geometry())) << row.name;
  }
}

void expectNoScrollingSideways(ShownForm& shown) {
  for (const QScrollArea* const page : shown.window->findChildren<QScrollArea*>()) {
    if (page->isVisible()) {
      EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0) << shown.form.screen.code();
    }
  }
}

void expectShownWhole(ShownForm& shown, ControlName name, const QString& text) {
  const QLineEdit& box = shown.box(name);
  QStyleOptionFrame frame;
  frame.initFrom(&box);
  frame.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &box);
  const QRect inner = box.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &box);
  constexpr int kBesideText = 4;  // that a line edit keeps free
  EXPECT_GE(inner.width() - kBesideText, box.fontMetrics().horizontalAdvance(text)) << name;
}

void expectItFits(QSize size, bool sideways) {
  for (const FormCode code : kEveryForm) {
    ShownForm shown(code);
    shown.show(size);
    EXPECT_LE(shown.window->width(), size.width()) << code;
    EXPECT_LE(shown.window->height(), size.height()) << code;
    auto* const pages = shown.window->findChild<QTabWidget*>("Pages");
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
      if (pages != nullptr) pages->setCurrentIndex(page);
      test::waitForLayouts();
      expectNothingIsCut(shown);
      if (!sideways) expectNoScrollingSideways(shown);
    }
    if (pages != nullptr) {
      EXPECT_LE(pages->tabBar()->tabRect(pages->count() - 1).right(), pages->width()) << code;
    }
  }
}

TEST(Layouts, fit_a_whole_display) {
  expectItFits(kWholeDisplay, false);
}

TEST(Layouts, fit_a_display_that_is_scaled_twice) {
  expectItFits(kDisplayScaledTwice, false);
}

TEST(Layouts, fit_large_letters) {
  const test::Application application;
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 1.5);
  QApplication::setFont(large);
  expectItFits(kWholeDisplay, false);
  QApplication::setFont(usual);
}

TEST(Layouts, have_boxes_for_the_longest_numbers) {
  ShownForm shown(kGT1Assign);
  shown.show();
  expectShownWhole(shown, "Txt_KV19_freqAssgn", "858.000000");
  expectShownWhole(shown, "Txt_KV19_Offset", "-166.6667");
  expectShownWhole(shown, "Txt_4C_Deg_Long", "179");
  expectShownWhole(shown, "Txt_4C_Sec_Lat", "59");
  expectShownWhole(shown, "Txt_4C_EW", "W");
  expectShownWhole(shown, "Txt_8BH_Erp_H", "-12.55");
  expectShownWhole(shown, "Txt_9EA_SiteAlt", "-1000");
  expectShownWhole(shown, "Txt_InUse_DD", "31");
  expectShownWhole(shown, "Txt_Exp_YY", "2026");
  expectShownWhole(shown, "Txt_10B_Ophhto", "2400");
  shown.pages().setCurrentIndex(1);
  expectShownWhole(shown, "Txt_9EC_azm120", "-3000");
  expectShownWhole(shown, "Txt_9NHAzm000", "40.00");
}

TEST(Layouts, show_a_whole_page_without_scrolling_on_a_whole_display) {
  for (const FormCode code : kEveryForm) {
    ShownForm shown(code);
    shown.show(kWholeDisplay);
    auto* const pages = shown.window->findChild<QTabWidget*>("Pages");
    for (int page = 0; page < (pages == nullptr ? 1 : pages->count()); ++page) {
      if (pages != nullptr) pages->setCurrentIndex(page);
      test::waitForLayouts();
      for (const QScrollArea* const area : shown.window->findChildren<QScrollArea*>()) {
        if (area->isVisible()) {
          EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << code << " " << page;
        }
      }
    }
  }
}

TEST(Layouts, the_common_buttons_are_always_in_sight) {
  for (const FormCode code : kEveryForm) {
    ShownForm shown(code);
    shown.show(kDisplayScaledTwice);
    for (const ButtonRow& row : kButtonStrip) {
      QPushButton& button = shown.button(row.control);
      EXPECT_EQ(button.visibleRegion().boundingRect(), button.rect()) << code << " " << row.control;
    }
  }
}

}  // namespace
}  // namespace zamo
