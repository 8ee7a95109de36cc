// The window as it comes up.
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include <QPlainTextEdit>
#include <QTest>

#include "screens/err_msg_frm.h"
#include "support/contrast.h"
#include "support/dark_palette.h"
#include "window/operators_hand.h"
#include "window/window_fixture.h"

// The font library keeps what it has read until the program's end, and the leak checker can't see that.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}

namespace zamo::test {
namespace {

struct Entry {
  std::string name;
  std::string caption;
  int depth = 0;
  bool operator==(const Entry&) const = default;
};

void PrintTo(const Entry& entry, std::ostream* out) {
  *out << entry.depth << " " << entry.name << " \"" << entry.caption << "\"";
}

void collect(const QList<QAction*>& actions, int depth, std::vector<Entry>& entries) {
  for (const QAction* action : actions) {
    entries.push_back({action->objectName().toStdString(), action->text().remove('&').toStdString(), depth});
    if (action->menu() != nullptr) collect(action->menu()->actions(), depth + 1, entries);
  }
}

TEST_F(Window, menus_have_their_names_and_captions_in_menu_order) {
  start();
  std::vector<Entry> entries;
  collect(window.menuBar()->actions(), 0, entries);
  const std::vector<Entry> expected = {
      {"mnuFile", "File", 0},
      {"mnuFileOpenTxt", "OpenTxt", 1},
      {"mnuFileOpenTxtBasicV", "Include Basic Val", 2},
      {"mnuFileOpenTxtComplVNoGeo", "Include Complete Val without Geo", 2},
      {"mnuFileOpenTxtComplVGeo", "Include Complete Val with Geo", 2},
      {"mnuFileOpenDB", "OpenDB", 1},
      {"mnuFileExit", "Exit", 1},
      {"mnuQuery", "Query", 0},
      {"mnuQueryNew", "New", 1},
      {"mnuTxtDB", "CreateTxtFromDB", 0},
      {"mnuTxtDBUpdated", "Select ONLY updated records", 1},
      {"mnuTxtDBAll", "Select ALL records", 1},
      {"mnuPref", "Preferences", 0},
      {"mnuPrefDir", "Set Working Directory", 1},
      {"mnuPrefLang", "Language", 1},
      {"mnuPrefLangE", "English", 2},
      {"mnuPrefLangF", "French", 2},
      {"mnuPrefLangS", "Spanish", 2},
  };
  EXPECT_EQ(entries, expected);
}

TEST_F(Window, has_every_control_under_its_name_and_caption) {
  start();
  EXPECT_EQ(window.objectName(), "ZamoKV19Startup");
  EXPECT_EQ(window.windowTitle(), " KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009");
  EXPECT_EQ(plain(control<QLabel>("LblInputTxt")), "Input");
  EXPECT_EQ(plain(control<QPushButton>("ButtonViewFile")), "View File");
  EXPECT_EQ(plain(control<QPushButton>("ButtonReVal")), "ReValidate");
  EXPECT_TRUE(control<QLineEdit>("TxtFileName").isReadOnly());
  EXPECT_TRUE(control<QLineEdit>("TxtProcessingStatus").isReadOnly());
  EXPECT_EQ(control<QTableView>("NtcDataGrid").model()->columnCount(), 0);
}

TEST_F(Window, starts_with_what_has_nothing_to_show_hidden) {
  start();
  for (const char* hidden : {"ButtonViewFile", "ButtonReVal", "NtcDataGrid", "LblInputTxt", "TxtFileName",
                             "TxtProcessingStatus"}) {
    EXPECT_FALSE(shows(hidden)) << hidden;
  }
  EXPECT_FALSE(menu("mnuPrefLang").isVisible());
  for (const char* off : {"mnuQuery", "mnuTxtDB"}) EXPECT_FALSE(menu(off).isEnabled()) << off;
  for (const char* on :
       {"mnuFile", "mnuFileOpenTxt", "mnuFileOpenTxtBasicV", "mnuFileOpenTxtComplVNoGeo",
        "mnuFileOpenTxtComplVGeo", "mnuFileOpenDB", "mnuFileExit", "mnuPref", "mnuPrefDir"}) {
    EXPECT_TRUE(menu(on).isEnabled()) << on;
  }
  EXPECT_TRUE(script.boxes.empty());
}

void expectReadable(QLabel& hint) {
  const QColor ground = hint.palette().color(hint.backgroundRole());
  EXPECT_GE(contrast(hint.palette().color(hint.foregroundRole()), ground), kReadable);
  EXPECT_GE(contrastIn(hint.grab(hint.contentsRect()).toImage(), ground), kVisible);
}

TEST_F(Window, the_first_hint_can_be_read_on_light_and_dark_desktops) {
  start();
  // The toolkit hands a new palette on with its events.
  QCoreApplication::processEvents();
  QLabel* hint = nullptr;
  for (QLabel* const label : window.findChildren<QLabel*>()) {
    if (label->text() == "To check a notice file, choose File > OpenTxt.") hint = label;
  }
  ASSERT_NE(hint, nullptr);
  EXPECT_TRUE(hint->isVisible());
  expectReadable(*hint);
  const DarkDesktop dark;
  expectReadable(*hint);
}

TEST_F(Window, english_keeps_the_check_mark_whatever_language_is_chosen) {
  start();
  for (const char* language : {"mnuPrefLangE", "mnuPrefLangF", "mnuPrefLangS"}) menu(language).trigger();
  EXPECT_TRUE(menu("mnuPrefLangE").isChecked());
  EXPECT_FALSE(menu("mnuPrefLangF").isChecked());
  EXPECT_FALSE(menu("mnuPrefLangS").isChecked());
}

TEST_F(Window, a_missing_map_disables_the_text_commands_alone) {
  start(MapOpening{folder.file("no_map"), [] { return 1; }});
  expectOneBox("The file gzmp32d.dll not found. Cannot proceed any further. Plese install the GZMP",
               "File Missing", BoxIcon::information);
  EXPECT_FALSE(menu("mnuFileOpenTxt").isEnabled());
  EXPECT_TRUE(menu("mnuFileOpenDB").isEnabled());
  EXPECT_TRUE(menu("mnuFileExit").isEnabled());
  EXPECT_TRUE(menu("mnuPrefDir").isEnabled());
}

TEST_F(Window, a_map_without_its_data_disables_the_text_commands_alone) {
  start(MapOpening{folder.write("map", ""), [] { return -1; }});
  expectOneBox("Can't find GZMP data files", "", BoxIcon::none);
  EXPECT_FALSE(menu("mnuFileOpenTxt").isEnabled());
  EXPECT_TRUE(menu("mnuFileExit").isEnabled());
  EXPECT_TRUE(menu("mnuPrefDir").isEnabled());
}

TEST_F(Window, a_map_that_opens_is_not_spoken_of) {
  start(MapOpening{folder.write("map", ""), [] { return 0; }});
  EXPECT_TRUE(script.boxes.empty());
  EXPECT_TRUE(menu("mnuFileOpenTxt").isEnabled());
}

TEST_F(Window, exit_is_ctrl_x_even_while_a_text_line_has_the_focus) {
  start();
  EXPECT_EQ(menu("mnuFileExit").shortcut(), QKeySequence("Ctrl+X"));
  for (const char* line : {"TxtFileName", "TxtProcessingStatus"}) {
    QKeyEvent cut(QEvent::ShortcutOverride, Qt::Key_X, Qt::ControlModifier);
    cut.ignore();
    QCoreApplication::sendEvent(&control<QLineEdit>(line), &cut);
    EXPECT_FALSE(cut.isAccepted()) << line;
  }
}

TEST_F(Window, the_tabulator_walks_the_controls_as_they_are_read) {
  start();
  open(kFileWithoutTail);
  std::vector<std::string> walked;
  const QWidget* const first = &control<QLineEdit>("TxtFileName");
  for (const QWidget* next = first; walked.empty() || next != first; next = next->nextInFocusChain()) {
    if (next->focusPolicy() & Qt::TabFocus && next->isVisible())
      walked.push_back(next->objectName().toStdString());
  }
  EXPECT_EQ(walked, (std::vector<std::string>{"TxtFileName", "ButtonViewFile", "ButtonReVal",
                                              "TxtProcessingStatus"}));
}

TEST_F(Window, F1_tells_what_program_this_is) {
  start();
  (void)QTest::qWaitForWindowActive(&window);
  std::string about;
  operatorDoes<AboutFrm>(window, [&about](AboutFrm& form) {
    about = form.findChild<QPlainTextEdit*>("TxtAbout")->toPlainText().toStdString();
    form.findChild<QPushButton*>("ButtonOK")->click();
  });
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_EQ(about.rfind(" KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009\n", 0), 0U) << about;
}

TEST_F(Window, fits_a_small_display_scaled_twice) {
  start();
  open(kFileWithoutTail);
  EXPECT_LE(window.minimumSizeHint().width(), 1366 / 2);
  EXPECT_LE(window.minimumSizeHint().height(), 768 / 2);
  EXPECT_LE(window.minimumWidth(), 1366 / 2);
  EXPECT_LE(window.minimumHeight(), 768 / 2);
}

}  // namespace
}  // namespace zamo::test
