#include "screens/notice_window.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGroupBox>
#include <QScrollArea>
#include <QTabBar>
#include <QWheelEvent>

#include "platform/run_time_error.h"
#include "screens/notice_walk.h"
#include "screens_window/shown_form.h"
#include "support/contrast.h"
#include "support/dark_palette.h"
#include "support/tool_tips.h"
#include "support/waiting.h"
#include "window/operators_hand.h"

namespace zamo {
namespace {

using test::ShownForm;
using testing::ElementsAre;
using testing::IsEmpty;

class TelevisionAssignment : public testing::Test, public ShownForm {
 protected:
  TelevisionAssignment() : ShownForm(kGT1Assign) {}
};

class TelevisionAllotment : public testing::Test, public ShownForm {
 protected:
  TelevisionAllotment() : ShownForm(kGT2Allot) {}
};

class Contour : public testing::Test, public ShownForm {
 protected:
  Contour() : ShownForm(kGA1SubAllot) {}
};

TEST(NoticeWindow, is_named_after_its_form) {
  const std::pair<FormCode, const char*> names[] = {{kGS1Assign, "GS1AssignFrmKV19"},
                                                    {kGT1Assign, "GT1AssignFrmKV19"},
                                                    {kGS2Allot, "GS2AllotFrmKV19"},
                                                    {kGT2Allot, "GT2AllotFrmKV19"},
                                                    {kGA1SubAllot, "GA1SubAllotFrmKV19"},
                                                    {kTB5, "TB5FrmKV19"},
                                                    {kTB3, "TB3FrmKV19"},
                                                    {kTB2, "TB2FrmKV19"}};
  for (const auto& [code, name] : names) {
    ShownForm shown(code);
    shown.show();
    EXPECT_EQ(shown.window->objectName(), name);
  }
}

TEST(NoticeWindow, stays_open_when_escape_is_pressed_anywhere) {
  for (const FormCode code : test::kEveryForm) {
    ShownForm shown(code);
    shown.show();
    for (QWidget* const part : shown.window->findChildren<QWidget*>()) {
      if (!part->isVisible() || !part->isEnabled() || part->focusPolicy() == Qt::NoFocus) continue;
      part->setFocus();
      QTest::keyClick(part, Qt::Key_Escape);
      ASSERT_TRUE(shown.window->isVisible()) << code << " " << part->objectName().toStdString();
    }
    EXPECT_THAT(shown.raised, IsEmpty());
  }
}

TEST_F(TelevisionAssignment, escape_closes_an_open_list_and_chooses_nothing) {
  show();
  QComboBox& mask = combo("Combo_LMZ04_SpectMask");
  mask.setFocus();
  QTest::keyClick(&mask, Qt::Key_Down, Qt::AltModifier);
  ASSERT_TRUE(mask.view()->isVisible());
  QTest::keyClick(mask.view(), Qt::Key_Down);
  QTest::keyClick(mask.view(), Qt::Key_Escape);
  EXPECT_FALSE(mask.view()->isVisible());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(form.screen.text("Combo_LMZ04_SpectMask"), "");
}

TEST_F(TelevisionAssignment, a_tip_with_markup_is_shown_as_it_stands) {
  show();
  for (const ControlName name :
       ControlNames{"Txt_9E_AntHgt", "Combo_9D_Polariz", "Lbl_9E_AntHgt", "Button_Validate"}) {
    control(name).setToolTip("<b>A</b> <img src='/dev/zero'>");
    EXPECT_EQ(test::tipAt(control(name), {2, 2}), "<b>A</b> <img src='/dev/zero'>") << name;
  }
  EXPECT_EQ(test::tipAt(control("Button_Next"), {2, 2}), "Update the Notice changes in the database");
}

TEST_F(Contour, hints_in_empty_fields_can_be_read_on_light_and_dark_desktops) {
  show();
  const auto expectReadable = [this](bool locked) {
    form.screen.setGrey("Txt_LMZ04_Deg_Long", locked);
    QLineEdit& field = box("Txt_LMZ04_Deg_Long");
    const QColor ground = field.palette().color(QPalette::Base);
    for (const QPalette::ColorRole role : {QPalette::PlaceholderText, QPalette::Text})
      EXPECT_GE(test::contrast(field.palette().color(role), ground), test::kReadable) << locked << role;
    const QImage inside = field.grab(field.rect().adjusted(3, 3, -3, -3)).toImage();
    EXPECT_GE(test::contrastIn(inside, ground), test::kVisible) << locked;
  };
  EXPECT_EQ(box("Txt_LMZ04_Deg_Long").placeholderText(), "deg");
  expectReadable(false);
  expectReadable(true);
  const test::DarkDesktop dark;
  expectReadable(false);
  expectReadable(true);
}

// --- from the user to the screen

TEST_F(TelevisionAssignment, what_is_typed_reaches_the_screen_as_the_users) {
  show();
  QTest::keyClicks(&box("Txt_9E_AntHgt"), "75");
  EXPECT_EQ(form.screen.text("Txt_9E_AntHgt"), "75");
  EXPECT_THAT(raised, ElementsAre("change Txt_9E_AntHgt by the user", "change Txt_9E_AntHgt by the user"));
  EXPECT_FALSE(form.screen.byUser);
}

TEST_F(TelevisionAssignment, an_item_that_is_picked_is_chosen_and_picked_again_is_clicked) {
  show();
  QComboBox& mask = combo("Combo_LMZ04_SpectMask");
  mask.setFocus();
  QTest::keyClick(&mask, Qt::Key_Down);
  EXPECT_EQ(form.screen.text("Combo_LMZ04_SpectMask"), "N");
  EXPECT_THAT(raised, ElementsAre("click Combo_LMZ04_SpectMask by the user"));
  emit mask.activated(1);
  EXPECT_THAT(raised, ElementsAre("click Combo_LMZ04_SpectMask by the user",
                                  "click Combo_LMZ04_SpectMask by the user"));
  EXPECT_EQ(mask.currentText(), "N");
}

TEST_F(TelevisionAssignment, only_countries_and_areas_can_be_typed_in_combos_and_in_upper_case) {
  show();
  form.screen.forEach([this](const Control& control) {
    if (control.kind == ControlKind::combo) {
      EXPECT_EQ(combo(madeName(control.name)).isEditable(), control.name == "Combo_4B_Ctry") << control.name;
    }
  });
  QComboBox& country = combo("Combo_4B_Ctry");
  country.setFocus();
  QTest::keyClicks(&country, "sui");
  EXPECT_EQ(form.screen.text("Combo_4B_Ctry"), "SUI");
  EXPECT_EQ(country.currentText(), "SUI");
  EXPECT_EQ(country.lineEdit()->cursorPosition(), 3);
  QTest::keyClick(&country, Qt::Key_Backspace);
  QTest::keyClick(&country, Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(form.screen.text("Combo_4B_Ctry"), "SU");
  country.lineEdit()->insert("x");
  EXPECT_EQ(form.screen.text("Combo_4B_Ctry"), "SUx");
}

TEST_F(TelevisionAllotment, the_geographical_area_can_be_typed_in_upper_case) {
  show();
  EXPECT_TRUE(combo("Combo_4B_Ctry").isEditable());
  QComboBox& area = combo("Combo_LMZ04_geo_area");
  area.setFocus();
  QTest::keyClicks(&area, "d");
  EXPECT_EQ(form.screen.text("Combo_LMZ04_geo_area"), "D");
  EXPECT_EQ(form.screen.items("Combo_LMZ04_geo_area")[static_cast<std::size_t>(area.currentIndex())], "D");
}

TEST_F(TelevisionAssignment, an_option_that_is_clicked_is_set_and_the_other_unset) {
  show();
  option("Opt_Art4").click();
  EXPECT_TRUE(form.screen.isSet("Opt_Art4"));
  EXPECT_THAT(raised, ElementsAre("click Opt_Art4 by the user"));
  option("Opt_Art5").click();
  EXPECT_TRUE(form.screen.isSet("Opt_Art5"));
  EXPECT_FALSE(form.screen.isSet("Opt_Art4"));
  EXPECT_FALSE(option("Opt_Art4").isChecked());
  EXPECT_FALSE(option("OptInt_Add").isChecked());
  option("Opt_Art5").click();
  EXPECT_TRUE(option("Opt_Art5").isChecked());
  EXPECT_EQ(raised.size(), 2U);
}

TEST_F(TelevisionAssignment, the_tab_key_finds_a_group_of_options_at_the_one_that_is_set) {
  form.screen.setOption("OptInt_Mod");
  form.screen.setOption("Opt_Art5");
  show();
  const auto step = [this](ControlName from, Qt::Key key) {
    control(from).setFocus();
    QTest::keyClick(&control(from), key);
    return focused();
  };
  EXPECT_EQ(step("Txt_EmailAddr", Qt::Key_Tab), "OptInt_Mod");
  EXPECT_EQ(step("OptInt_Mod", Qt::Key_Tab), "Opt_Art5");
  EXPECT_EQ(step("Opt_Art5", Qt::Key_Backtab), "OptInt_Mod");
  EXPECT_EQ(step("OptInt_Mod", Qt::Key_Backtab), "Txt_EmailAddr");
  // The program sets another one, as for the next notice.
  form.screen.setOption("OptInt_Add");
  form.screen.setOption("Opt_Art4");
  EXPECT_EQ(step("Txt_EmailAddr", Qt::Key_Tab), "OptInt_Add");
  EXPECT_EQ(step("OptInt_Add", Qt::Key_Tab), "Opt_Art4");
  // The user does, with the mouse and with a key.
  QTest::mouseClick(&option("OptInt_Mod"), Qt::LeftButton, {}, QPoint(8, option("OptInt_Mod").height() / 2));
  EXPECT_TRUE(form.screen.isSet("OptInt_Mod"));
  EXPECT_EQ(step("Txt_EmailAddr", Qt::Key_Tab), "OptInt_Mod");
  QTest::keyClick(&option("OptInt_Mod"), Qt::Key_Up);
  EXPECT_TRUE(form.screen.isSet("OptInt_Add"));
  EXPECT_EQ(step("Txt_EmailAddr", Qt::Key_Tab), "OptInt_Add");
}

TEST_F(TelevisionAssignment, the_tab_key_finds_a_group_of_options_of_which_none_is_set) {
  form.screen.setOption("OptInt_Mod");
  form.screen.setOption("Opt_Art5");
  show();
  form.screen.unsetOption("Opt_Art5");
  box("Txt_EmailAddr").setFocus();
  QTest::keyClick(&box("Txt_EmailAddr"), Qt::Key_Tab);
  QTest::keyClick(&option("OptInt_Mod"), Qt::Key_Tab);
  EXPECT_EQ(focused(), "Opt_Art4");
  QTest::keyClick(&option("Opt_Art4"), Qt::Key_Space);
  EXPECT_TRUE(form.screen.isSet("Opt_Art4"));
}

TEST_F(TelevisionAssignment, a_button_raises_its_click_and_a_disabled_one_none) {
  show();
  QTest::mouseClick(&button("Button_Validate"), Qt::LeftButton);
  form.screen.setEnabled("Button_Next", false);
  QTest::mouseClick(&button("Button_Next"), Qt::LeftButton);
  EXPECT_THAT(raised, ElementsAre("click Button_Validate by the user"));
}

TEST_F(TelevisionAssignment, a_list_tells_each_click_and_the_double_click) {
  show();
  pages().setCurrentIndex(2);
  clickItem("ListAdmAvail", 3);
  EXPECT_EQ(form.screen.at("ListAdmAvail").index, 3);
  clickItem("ListAdmAvail", 3);
  PickList& items = list("ListAdmAvail");
  QTest::keyClick(&items, Qt::Key_Down);
  EXPECT_EQ(form.screen.at("ListAdmAvail").index, 4);
  EXPECT_THAT(raised, ElementsAre("click ListAdmAvail by the user", "click ListAdmAvail by the user",
                                  "click ListAdmAvail by the user"));
  raised.clear();
  clickItem("ListAdmAvail", 4);
  QTest::mouseDClick(items.viewport(), Qt::LeftButton, {}, items.visualItemRect(items.item(4)).center());
  EXPECT_THAT(raised, ElementsAre("click ListAdmAvail by the user", "doubleClick ListAdmAvail by the user"));
}

TEST_F(TelevisionAssignment, a_list_that_takes_the_focus_has_nothing_chosen) {
  show();
  pages().setCurrentIndex(2);
  list("ListAdmAvail").setFocus(Qt::TabFocusReason);
  EXPECT_EQ(form.screen.at("ListAdmAvail").index, -1);
  EXPECT_THAT(raised, IsEmpty());
}

TEST_F(TelevisionAssignment, line_breaks_in_remarks_become_blanks) {
  show();
  pages().setCurrentIndex(2);
  QPlainTextEdit& remarks = memo("Txt_notified_Rmks");
  remarks.setFocus();
  QTest::keyClicks(&remarks, "one");
  QTest::keyClick(&remarks, Qt::Key_Return);
  QTest::keyClicks(&remarks, "two");
  QTest::keyClick(&remarks, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(form.screen.text("Txt_notified_Rmks"), "one two ");
  remarks.insertPlainText("three\r\nfour\nfive");
  EXPECT_EQ(form.screen.text("Txt_notified_Rmks"), "one two three four five");
  EXPECT_EQ(remarks.toPlainText(), "one two three four five");
  EXPECT_EQ(remarks.textCursor().position(), 23);
}

TEST_F(TelevisionAssignment, line_breaks_that_are_pasted_into_a_box_become_blanks) {
  show();
  box("Txt_4A_SiteName").insert("KAHLER\r\nASTEN");
  EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "KAHLER ASTEN");
  EXPECT_EQ(box("Txt_4A_SiteName").text(), "KAHLER ASTEN");
}

TEST_F(TelevisionAssignment, a_stored_line_break_stays_until_the_remark_is_edited) {
  form.screen.setText("Txt_notified_Rmks", "one\r\ntwo\240three");
  show();
  pages().setCurrentIndex(2);
  QPlainTextEdit& remarks = memo("Txt_notified_Rmks");
  EXPECT_EQ(remarks.toPlainText().split('\n').size(), 2);
  EXPECT_EQ(form.screen.text("Txt_notified_Rmks"), "one\r\ntwo\240three");
  remarks.setFocus();
  remarks.moveCursor(QTextCursor::End);
  QTest::keyClicks(&remarks, "!");
  EXPECT_EQ(form.screen.text("Txt_notified_Rmks"), "one two\240three!");
}

TEST_F(TelevisionAssignment, tab_moves_on_from_a_remark) {
  form.screen.setVisible("txt_int_rmk", true);
  show();
  pages().setCurrentIndex(2);
  memo("Txt_notified_Rmks").setFocus();
  QTest::keyClick(&memo("Txt_notified_Rmks"), Qt::Key_Tab);
  EXPECT_EQ(focused(), "txt_int_rmk");
  EXPECT_EQ(form.screen.text("Txt_notified_Rmks"), "");
}

TEST_F(TelevisionAssignment, a_character_beyond_the_code_page_is_shown_as_it_is_kept) {
  show();
  box("Txt_4A_SiteName").insert(QString::fromUtf8("A\u0141"));
  EXPECT_EQ(form.screen.text("Txt_4A_SiteName"), "A?");
  EXPECT_EQ(box("Txt_4A_SiteName").text(), "A?");
}

TEST_F(TelevisionAssignment, letters_are_upper_case_in_the_fields_that_want_them) {
  show();
  constexpr ControlName upper[] = {"Txt_AdmRefID",      "Txt_TrgAdmRefID",
                                   "Txt_PlanAdm_RefID", "Txt_4A_SiteName",
                                   "Txt_4C_EW",         "Txt_4C_NS",
                                   "Txt_trg_lat_NS",    "Txt_trg_long_EW",
                                   "Txt_12A_OpAgcy",    "Txt_12B_AddrCde",
                                   "Txt_3A1_CallSign",  "Txt_LMZ04_AdmAllotID",
                                   "Txt_LMZ04_SfnID",   "Txt_KV19_assoc_allot_sfnID"};
  for (const ControlName name : upper) {
    QTest::keyClicks(&box(name), "e");
    EXPECT_EQ(form.screen.text(name), "E") << name;
  }
  QTest::keyClicks(&box("Txt_EmailAddr"), "e");
  EXPECT_EQ(form.screen.text("Txt_EmailAddr"), "e");
  form.screen.setText("Txt_4A_SiteName", "set by the program");
  EXPECT_EQ(box("Txt_4A_SiteName").text(), "set by the program");
}

// --- from the screen to the widgets

TEST_F(TelevisionAssignment, what_the_program_sets_is_shown_and_comes_back_but_once) {
  show();
  form.screen.setText("Txt_9E_AntHgt", "75");
  form.screen.choose("Combo_9_AntDir", 1);
  form.screen.setOption("Opt_Art4");
  form.screen.setText("Txt_notified_Rmks", "remark");
  form.screen.choose("ListAdmAvail", 2);
  EXPECT_EQ(box("Txt_9E_AntHgt").text(), "75");
  EXPECT_EQ(combo("Combo_9_AntDir").currentText(), "D");
  EXPECT_TRUE(option("Opt_Art4").isChecked());
  EXPECT_EQ(memo("Txt_notified_Rmks").toPlainText(), "remark");
  EXPECT_EQ(list("ListAdmAvail").chosenRow(), 2);
  EXPECT_THAT(raised, ElementsAre("change Txt_9E_AntHgt", "click Combo_9_AntDir", "click Opt_Art4",
                                  "change Txt_notified_Rmks", "click ListAdmAvail"));
}

TEST_F(TelevisionAssignment, a_set_of_options_can_be_without_a_choice) {
  form.screen.setOption("Opt_Art4");
  show();
  EXPECT_TRUE(option("Opt_Art4").isChecked());
  form.screen.unsetOption("Opt_Art4");
  EXPECT_FALSE(option("Opt_Art4").isChecked());
  EXPECT_FALSE(option("Opt_Art5").isChecked());
}

TEST_F(TelevisionAssignment, a_list_follows_its_items) {
  show();
  PickList& chosen = list("ListAdmSel");
  form.screen.addItem("ListAdmSel", "F");
  form.screen.addItem("ListAdmSel", "D");
  form.screen.choose("ListAdmSel", 1);
  EXPECT_EQ(chosen.count(), 2);
  EXPECT_EQ(chosen.item(1)->text(), "D");
  EXPECT_EQ(chosen.chosenRow(), 1);
  form.screen.removeItem("ListAdmSel", 0);
  EXPECT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen.item(0)->text(), "D");
  EXPECT_EQ(chosen.chosenRow(), -1);
  form.screen.clearItems("ListAdmSel");
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_THAT(raised, ElementsAre("click ListAdmSel"));
}

TEST_F(TelevisionAssignment, a_combo_follows_its_items) {
  show();
  form.screen.setItems("Combo_9_AntDir", {"", "X"});
  form.screen.choose("Combo_9_AntDir", 1);
  EXPECT_EQ(combo("Combo_9_AntDir").count(), 2);
  EXPECT_EQ(combo("Combo_9_AntDir").currentText(), "X");
  form.screen.setText("Combo_4B_Ctry", "no country");
  EXPECT_EQ(combo("Combo_4B_Ctry").currentText(), "no country");
  EXPECT_EQ(combo("Combo_4B_Ctry").currentIndex(), -1);
}

TEST_F(TelevisionAssignment, captions_and_the_title_follow) {
  show();
  form.screen.setCaption("OptInt_Add", "RECORDED");
  form.screen.setCaption("Lbl_trg_or", "");
  form.screen.setCaption("FrameTrg", "A & B");
  form.screen.setTitle("GT1      Digital");
  EXPECT_EQ(option("OptInt_Add").text(), "RECORDED");
  EXPECT_EQ(control<QLabel>("Lbl_trg_or").text(), "");
  EXPECT_EQ(control<QGroupBox>("FrameTrg").title(), "A && B");
  EXPECT_EQ(window->windowTitle(), "GT1      Digital");
}

TEST_F(TelevisionAssignment, what_is_hidden_leaves_its_place) {
  show();
  const auto placeOf = [this](ControlName name) { return control(name).mapTo(window.get(), QPoint()); };
  test::waitForLayouts();
  const QPoint site = placeOf("Txt_4A_SiteName");
  const QPoint planEntry = placeOf("Txt_PlanAdm_RefID");
  const QPoint power = placeOf("Txt_8BV_Erp_V");
  form.screen.setVisible({"FrameTrg", "Frame_Art4_Only", "Txt_8BH_Erp_H", "Lbl_8BH_Erp_H"}, false);
  test::waitForLayouts();
  EXPECT_FALSE(box("Txt_8BH_Erp_H").isVisible());
  EXPECT_FALSE(box("Txt_TrgAdmRefID").isVisible());
  EXPECT_EQ(placeOf("Txt_4A_SiteName"), site);
  EXPECT_EQ(placeOf("Txt_PlanAdm_RefID"), planEntry);
  EXPECT_EQ(placeOf("Txt_8BV_Erp_V"), power);
  form.screen.setVisible("FrameTrg", true);
  EXPECT_TRUE(box("Txt_TrgAdmRefID").isVisible());
}

TEST_F(TelevisionAssignment, common_buttons_that_are_hidden_leave_no_gap) {
  show();
  test::waitForLayouts();
  const QPoint place = button("Button_Next").pos();
  form.screen.setVisible("Button_Next", false);
  test::waitForLayouts();
  EXPECT_EQ(button("Button_AddNew").pos(), place);
}

TEST_F(TelevisionAllotment, a_locked_group_is_disabled_and_grey) {
  show();
  form.screen.setEnabled("FrameSubArea", false);
  form.screen.setGrey("Txt_LMZ04_contour_id", true);
  form.screen.setGrey("ListBoxContourID", true);
  EXPECT_FALSE(box("Txt_LMZ04_contour_id").isEnabled());
  EXPECT_EQ(box("Txt_LMZ04_contour_id").palette().color(QPalette::Base), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(list("ListBoxContourID").palette().color(QPalette::Base), QColor(0xC0, 0xC0, 0xC0));
  form.screen.setEnabled("FrameSubArea", true);
  form.screen.setGrey("Txt_LMZ04_contour_id", false);
  form.screen.setGrey("ListBoxContourID", false);
  EXPECT_TRUE(box("Txt_LMZ04_contour_id").isEnabled());
  EXPECT_EQ(box("Txt_LMZ04_contour_id").palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xFF));
  EXPECT_EQ(list("ListBoxContourID").palette().color(QPalette::Base), QColor(0xFF, 0xFF, 0xFF));
}

TEST_F(TelevisionAssignment, file_and_number_of_the_notice_are_only_read) {
  form.screen.setText("Txt_Ntc_Number", "17");
  show();
  EXPECT_TRUE(box("Txt_Filename").isReadOnly());
  EXPECT_TRUE(box("Txt_Ntc_Number").isReadOnly());
  QTest::keyClicks(&box("Txt_Ntc_Number"), "1");
  EXPECT_EQ(form.screen.text("Txt_Ntc_Number"), "17");
  EXPECT_FALSE(box("Txt_AdmRefID").isReadOnly());
}

TEST_F(TelevisionAssignment, numbers_stand_at_the_right_end) {
  show();
  for (const ControlName name :
       ControlNames{"Txt_9EC_azm000", "Txt_9NVAzm350", "Txt_4C_Deg_Lat", "Txt_KV19_freqAssgn",
                    "Txt_8BH_Erp_H", "Txt_Exp_YY", "Txt_trg_freq_assgn"})
    EXPECT_TRUE(box(name).alignment() & Qt::AlignRight) << name;
  EXPECT_TRUE(box("Txt_4A_SiteName").alignment() & Qt::AlignLeft);
}

TEST_F(TelevisionAssignment, the_window_lets_go_of_the_screen) {
  show();
  window.reset();
  form.screen.setText("Txt_9E_AntHgt", "75");
  form.screen.setFocus("Txt_9E_AntHgt");
  form.screen.setTitle("title");
  form.close();
  EXPECT_EQ(form.screen.text("Txt_9E_AntHgt"), "75");
}

// --- leaving a field

class WrongHeight : public TelevisionAssignment {
 protected:
  WrongHeight() {
    mayLeave = [this](ControlName name) {
      if (name != "Txt_9E_AntHgt") return true;
      ++asked;
      askedByUser = form.screen.byUser;
      return form.screen.text(name) != "900";
    };
    show();
    box("Txt_9E_AntHgt").setFocus();
    QTest::keyClicks(&box("Txt_9E_AntHgt"), "900");
  }
  int asked = 0;
  bool askedByUser = false;
};

TEST_F(WrongHeight, keeps_the_focus_and_is_told_once) {
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Tab);
  EXPECT_EQ(focused(), "Txt_9E_AntHgt");
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(askedByUser);
  QTest::mouseClick(&button("Button_Validate"), Qt::LeftButton);
  EXPECT_EQ(asked, 2);
  QTest::mouseClick(&box("Txt_9EB_Eff_hgtmax"), Qt::LeftButton);
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(focused(), "Txt_9E_AntHgt");
  EXPECT_THAT(raised, testing::Not(testing::Contains("click Button_Validate by the user")));
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Backspace);
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Tab);
  EXPECT_EQ(focused(), "Txt_9EB_Eff_hgtmax");
}

TEST_F(WrongHeight, keeps_its_page) {
  QTabBar& tabs = *pages().tabBar();
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
  EXPECT_EQ(pages().currentIndex(), 0);
  EXPECT_EQ(asked, 1);
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(pages().currentIndex(), 0);
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(pages().currentIndex(), 0);
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Backspace);
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
  EXPECT_EQ(pages().currentIndex(), 1);
}

TEST_F(WrongHeight, is_no_obstacle_to_closing) {
  QTest::mouseClick(&button("Button_Reset"), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(raised.back(), "click Button_Reset by the user");
}

TEST_F(WrongHeight, is_no_obstacle_to_the_frame) {
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(asked, 0);
}

TEST_F(WrongHeight, stays_when_escape_is_pressed) {
  raised.clear();
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(focused(), "Txt_9E_AntHgt");
  EXPECT_EQ(box("Txt_9E_AntHgt").text(), "900");
  EXPECT_EQ(asked, 0);
  EXPECT_THAT(raised, IsEmpty());
}

TEST_F(TelevisionAllotment, a_field_that_hands_the_focus_on_when_it_is_left_has_its_way) {
  mayLeave = [this](ControlName name) {
    if (name == "Txt_LMZ04_nb_sub_areas") form.screen.setFocus("Txt_LMZ04_contour_id");
    return true;
  };
  show();
  box("Txt_LMZ04_nb_sub_areas").setFocus();
  QTest::keyClick(&box("Txt_LMZ04_nb_sub_areas"), Qt::Key_Tab);
  EXPECT_TRUE(test::waitFor([this] { return focused() == "Txt_LMZ04_contour_id"; }));
  box("Txt_LMZ04_nb_sub_areas").setFocus();
  QTest::mouseClick(&box("Txt_KV19_Offset"), Qt::LeftButton);
  EXPECT_EQ(focused(), "Txt_KV19_Offset");
  EXPECT_TRUE(test::waitFor([this] { return focused() == "Txt_LMZ04_contour_id"; }));
}

TEST_F(TelevisionAssignment, the_field_that_the_program_wants_comes_to_the_front) {
  show({671, 336});
  form.screen.setFocus("Txt_9NVAzm350");
  EXPECT_EQ(pages().currentIndex(), 1);
  EXPECT_EQ(focused(), "Txt_9NVAzm350");
  EXPECT_FALSE(box("Txt_9NVAzm350").visibleRegion().isEmpty());
  form.screen.setFocus("Txt_12A_OpAgcy");
  EXPECT_EQ(pages().currentIndex(), 0);
  EXPECT_FALSE(box("Txt_12A_OpAgcy").visibleRegion().isEmpty());
}

TEST_F(TelevisionAssignment, a_page_that_is_clicked_is_ready_to_be_typed_into) {
  show();
  EXPECT_EQ(focused(), "Combo_B_Adm");
  QTabBar& tabs = *pages().tabBar();
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
  EXPECT_TRUE(test::waitFor([this] { return focused() == "Txt_9EC_azm000"; }));
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(2).center());
  EXPECT_TRUE(test::waitFor([this] { return focused() == "ListAdmAvail"; }));
}

// --- the keys

TEST_F(TelevisionAssignment, the_buttons_have_keys) {
  show();
  for (const auto& [key, modifier] :
       std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifier>>{{Qt::Key_U, Qt::AltModifier},
                                                                       {Qt::Key_A, Qt::AltModifier},
                                                                       {Qt::Key_D, Qt::AltModifier},
                                                                       {Qt::Key_V, Qt::AltModifier},
                                                                       {Qt::Key_Left, Qt::AltModifier},
                                                                       {Qt::Key_Right, Qt::AltModifier}}) {
    QTest::keyClick(&box("Txt_9E_AntHgt"), key, modifier);
    test::waitForButtons(*window);
  }
  EXPECT_THAT(raised, ElementsAre("click Button_Next by the user", "click Button_AddNew by the user",
                                  "click Button_Finish by the user", "click Button_Validate by the user",
                                  "click Button_Prev_Ntc by the user", "click Button_Next_Ntc by the user"));
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(test::waitFor([this] { return !window->isVisible(); }));
}

TEST_F(TelevisionAssignment, return_presses_the_button_that_has_the_focus_and_no_other) {
  show();
  box("Txt_9E_AntHgt").setFocus();
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Return);
  EXPECT_THAT(raised, IsEmpty());
  EXPECT_TRUE(window->isVisible());
  button("Button_Validate").setFocus();
  QTest::keyClick(&button("Button_Validate"), Qt::Key_Return);
  EXPECT_THAT(raised, ElementsAre("click Button_Validate by the user"));
}

void turnWheel(QWidget& over) {
  QWheelEvent down(QPointF(5, 5), over.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&over, &down);
}

TEST_F(TelevisionAssignment, the_wheel_changes_no_value_and_no_page) {
  show();
  QComboBox& mask = combo("Combo_LMZ04_SpectMask");
  mask.setFocus();
  turnWheel(mask);
  turnWheel(*pages().tabBar());
  EXPECT_EQ(mask.currentIndex(), 0);
  EXPECT_EQ(pages().currentIndex(), 0);
  EXPECT_THAT(raised, IsEmpty());
}

TEST_F(TelevisionAssignment, a_button_that_is_disabled_by_its_click_hands_the_focus_back) {
  onRaised = [this](Event, ControlName name) { form.screen.setEnabled(name, false); };
  show();
  pages().setCurrentIndex(2);
  button("Button_Coord_Add").setFocus();
  QTest::keyClick(&button("Button_Coord_Add"), Qt::Key_Space);
  EXPECT_EQ(focused(), "ListAdmAvail");
  button("Button_Next_Ntc").setFocus();
  QTest::keyClick(&button("Button_Next_Ntc"), Qt::Key_Space);
  EXPECT_EQ(focused(), "Button_Prev_Ntc");
}

// --- failures

TEST_F(TelevisionAssignment, a_failure_is_told_in_a_box_and_the_form_stays) {
  onRaised = [](Event, ControlName name) {
    if (name == "Button_Next") throw RunTimeError{kPermissionDenied, "database is locked"};
    if (name == "Button_AddNew") throw std::runtime_error("no such thing");
    if (name == "Button_Finish") throw std::bad_alloc();
  };
  show();
  button("Button_Next").click();
  ASSERT_EQ(script.boxes.size(), 1U);
  EXPECT_EQ(script.boxes[0].title, "Button_Next");
  EXPECT_THAT(script.boxes[0].text, testing::HasSubstr("70"));
  EXPECT_THAT(script.boxes[0].text, testing::HasSubstr("database is locked"));
  EXPECT_FALSE(form.screen.byUser);
  button("Button_AddNew").click();
  ASSERT_EQ(script.boxes.size(), 2U);
  EXPECT_EQ(script.boxes[1].title, "Button_AddNew");
  EXPECT_THAT(script.boxes[1].text, testing::HasSubstr("no such thing"));
  button("Button_Finish").click();
  ASSERT_EQ(script.boxes.size(), 3U);
  EXPECT_THAT(script.boxes[2].text, testing::HasSubstr("Out of memory"));
  QTest::keyClicks(&box("Txt_9E_AntHgt"), "7");
  EXPECT_EQ(form.screen.text("Txt_9E_AntHgt"), "7");
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(script.boxes.size(), 3U);
}

TEST_F(TelevisionAssignment, a_check_that_fails_holds_nobody) {
  mayLeave = [](std::string_view) -> bool { throw RunTimeError{kInvalidArgument, "broken"}; };
  show();
  box("Txt_9E_AntHgt").setFocus();
  script.boxes.clear();
  QTest::keyClick(&box("Txt_9E_AntHgt"), Qt::Key_Tab);
  EXPECT_EQ(focused(), "Txt_9EB_Eff_hgtmax");
  ASSERT_FALSE(script.boxes.empty());
  EXPECT_EQ(script.boxes[0].title, "Txt_9E_AntHgt");
}

// --- the walk

TEST_F(Contour, is_shown_until_the_form_closes) {
  bool wasModal = false;
  test::operatorDoes<NoticeWindow>(*qApp, [&](const NoticeWindow& shown) {
    wasModal = shown.objectName() == "GA1SubAllotFrmKV19";
    form.close();
  });
  showNoticeWindow(form, nullptr);
  EXPECT_TRUE(wasModal);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Contour, the_next_form_of_a_walk_takes_the_place_of_the_last) {
  const QRect place(40, 30, 700, 560);
  const auto closeAt = [&](NoticeForm& shown, const std::function<void(QWidget&)>& look) {
    test::operatorDoes<NoticeWindow>(*qApp, [&shown, look](NoticeWindow& opened) {
      look(opened);
      shown.close();
    });
    showNoticeWindow(shown, nullptr);
  };
  closeAt(form, [&](QWidget& shown) {
    shown.move(place.topLeft());
    shown.resize(place.size());
    work.next = NextNotice{1, {}, kTB3};
  });
  NoticeForm next(work, kTB3);
  makeControls(next.screen);
  QRect taken;
  closeAt(next, [&](QWidget& shown) {
    taken = QRect(shown.pos(), shown.size());
    work.next.reset();
  });
  EXPECT_EQ(taken, place);
  NoticeForm later(work, kTB3);
  makeControls(later.screen);
  closeAt(later, [&](QWidget& shown) { taken = QRect(shown.pos(), shown.size()); });
  EXPECT_NE(taken, place);
}

}  // namespace
}  // namespace zamo
