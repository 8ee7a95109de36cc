// The boxes, dialogs and settings as the toolkit gives them. A timer stands in for the operator.
#include "shell/qt_host.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <chrono>
#include <filesystem>
#include <fstream>

#include "platform/run_time_error.h"
#include "support/waiting.h"
#include "window/operators_hand.h"
#include "window/window_fixture.h"

namespace zamo::test {
namespace {

class QtHost : public testing::Test {
 protected:
  QtHost() {
    application();
    QApplication::setApplicationName("zamo-kv19");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(folder.path()));
    shell.host = host;
    startUp(shell, {});
    window.show();
  }

  template <typename Dialog>
  void whenOpened(std::function<void(Dialog&)> act) {
    operatorDoes<Dialog>(window, std::move(act));
  }

  TempFolder folder;
  Shell shell;
  MainWindow window{(application(), shell)};
  const Host host = makeQtHost(window);
};

TEST_F(QtHost, a_box_shows_its_text_title_and_icon) {
  whenOpened<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "The section <HEAD>\nis \u00B1 missing");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Information");
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    box.accept();
  });
  host.showBox({"The section <HEAD>\r\nis \261 missing", "Information", BoxIcon::information});
}

TEST_F(QtHost, a_note_is_a_line_of_its_own_until_it_is_taken_away) {
  host.setStatus("the status");
  auto* const note = window.findChild<QLabel*>("LblNote");
  ASSERT_NE(note, nullptr);
  EXPECT_TRUE(note->isHidden());
  host.setNote("kept as <b>caf\351</b>.mdb");
  EXPECT_FALSE(note->isHidden());
  EXPECT_EQ(note->text(), "kept as <b>caf\u00E9</b>.mdb");
  EXPECT_EQ(note->textFormat(), Qt::PlainText);
  EXPECT_FALSE(note->accessibleName().isEmpty());
  EXPECT_EQ(window.findChild<QLineEdit*>("TxtProcessingStatus")->text(), "the status");
  host.setNote("");
  EXPECT_TRUE(note->isHidden());
}

TEST_F(QtHost, a_box_without_a_title_has_the_programs_name) {
  const std::pair<BoxIcon, QMessageBox::Icon> icons[] = {
      {BoxIcon::none, QMessageBox::NoIcon},
      {BoxIcon::exclamation, QMessageBox::Warning},
      {BoxIcon::exclamationAndInformation, QMessageBox::Warning}};
  for (const auto& [icon, shown] : icons) {
    whenOpened<QMessageBox>([shown = shown](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "zamo-kv19");
      EXPECT_EQ(box.icon(), shown);
      box.accept();
    });
    host.showBox({"text", "", icon});
  }
}

TEST_F(QtHost, a_question_gives_the_answer) {
  for (const bool yes : {true, false}) {
    whenOpened<QMessageBox>(
        [yes](QMessageBox& box) { box.button(yes ? QMessageBox::Yes : QMessageBox::No)->click(); });
    EXPECT_EQ(host.askYesNo({"?", "", BoxIcon::information}), yes);
  }
}

TEST_F(QtHost, a_long_question_fits_the_display_with_its_buttons_in_sight) {
  std::string findings;
  for (int i = 1; i <= 75; ++i) findings += "FATAL ERROR : finding " + std::to_string(i) + "\r\n";
  whenOpened<QMessageBox>([](QMessageBox& box) {
    EXPECT_TRUE(box.text().startsWith("The notice contains error\nFATAL ERROR : finding 1\n"));
    EXPECT_TRUE(box.text().endsWith("FATAL ERROR : finding 75\n\nContinue to update the notice?"));
    const auto* const text = box.findChild<QPlainTextEdit*>("LongText");
    EXPECT_TRUE(text != nullptr && text->toPlainText() == box.text());
    EXPECT_TRUE(waitFor([&box] { return box.isVisible() && box.height() > 0; }));
    EXPECT_LE(box.height(), box.screen()->availableSize().height());
    for (const QAbstractButton* const button : box.buttons())
      EXPECT_TRUE(box.rect().contains({button->mapTo(&box, QPoint()), button->size()}));
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(
      host.askYesNo({"The notice contains error\r\n" + findings + "\r\nContinue to update the notice?",
                     "Update Notice with errors"}));
}

TEST_F(QtHost, a_question_left_by_escape_is_a_no) {
  whenOpened<QMessageBox>([](QMessageBox& box) { box.reject(); });
  EXPECT_FALSE(host.askYesNo({"?", "", BoxIcon::information}));
}

TEST_F(QtHost, the_pointer_is_normal_over_a_box_and_the_hourglass_again_behind_it) {
  host.setHourglass(true);
  host.setHourglass(true);
  whenOpened<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    box.accept();
  });
  host.showBox({"text", "", BoxIcon::none});
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  host.setHourglass(false);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  host.setHourglass(false);
}

TEST_F(QtHost, the_open_dialog_asks_for_what_was_requested_and_gives_the_path) {
  const std::string path = folder.write("notic\xC3\xA9.txt", "");
  whenOpened<QFileDialog>([this, path](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList({"Text Files (*.txt)", "Updated Files (*.upd)"}));
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), folder.path());
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(dialog.objectName(), "CMDialog");
    EXPECT_TRUE(dialog.testOption(QFileDialog::DontUseNativeDialog));
    // What selectFile would not do while the line has the focus.
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(host.openFile({folder.path(), "Text Files (*.txt)|*.txt|Updated Files (*.upd)|*.upd"}), path);
}

TEST_F(QtHost, a_cancelled_dialog_gives_nothing) {
  whenOpened<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(host.openFile({"c:\\", "Text Files (*.txt)|*.txt"}), std::nullopt);
  whenOpened<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(host.chooseFolder("Select the working folder"), std::nullopt);
}

TEST_F(QtHost, the_folder_dialog_offers_folders_alone_and_starts_in_the_present_one) {
  const std::string inner = folder.file("inner");
  std::filesystem::create_directory(inner);
  host.saveSetting("workDir", inner);
  whenOpened<QFileDialog>([inner](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Select the working folder");
    EXPECT_EQ(dialog.directory().absolutePath().toStdString(), inner);
    EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(host.chooseFolder("Select the working folder"), inner);
}

TEST_F(QtHost, a_folder_that_is_not_there_gives_way_to_the_home_folder) {
  EXPECT_EQ(dialogFolder("c:\\"), QDir::homePath());
  EXPECT_EQ(dialogFolder(""), QDir::homePath());
  EXPECT_EQ(dialogFolder(folder.path()).toStdString(), folder.path());
}

TEST_F(QtHost, a_filter_that_ends_in_a_bar_is_one_filter) {
  EXPECT_EQ(dialogFilter("Microsoft Access Database (*.mdb)|*.mdb|"), "Microsoft Access Database (*.mdb)");
}

TEST_F(QtHost, a_setting_is_read_back_as_it_was_saved) {
  EXPECT_EQ(host.readSetting("workDir"), "");
  for (const std::string value : {"c:\\", "/srv/notices, old; \"new\"",
                                  "/srv/\xC5\x81\xC3\xB3"
                                  "d\xC5\xBA"}) {
    host.saveSetting("workDir", value);
    EXPECT_EQ(host.readSetting("workDir"), value);
  }
  const QSettings stored("KV19_Requirements", "KV19_Requirements");
  EXPECT_EQ(stored.allKeys(), QStringList("Settings/workDir"));
}

TEST_F(QtHost, a_setting_that_cannot_be_saved_is_an_error) {
  folder.write("KV19_Requirements", "");
  EXPECT_THROW(host.saveSetting("workDir", "/srv"), RunTimeError);
}

TEST_F(QtHost, the_first_text_viewer_on_the_path_gets_the_file) {
  const std::string kept = qEnvironmentVariable("PATH").toStdString();
  const std::string seen = folder.file("seen");
  for (const char* viewer : {"kate", "gedit"}) {
    const std::string program =
        folder.write(viewer, std::string("#!/bin/sh\nprintf '%s %s' ") + viewer + " \"$1\" >'" + seen +
                                 ".tmp'\nmv '" + seen + ".tmp' '" + seen + "'\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }
  // Of the two, `gedit` comes first; the rest of the path is for the shell alone.
  std::filesystem::create_directory(folder.file("tools"));
  std::filesystem::create_symlink("/bin/mv", folder.file("tools/mv"));
  qputenv("PATH", QByteArray::fromStdString(folder.path() + ":" + folder.file("tools")));
  EXPECT_TRUE(host.startTextViewer("/srv/a file; \xC3\xA9.txt"));
  EXPECT_TRUE(waitFor([&seen] { return std::filesystem::exists(seen); }));
  EXPECT_EQ(readFile(seen), "gedit /srv/a file; \xC3\xA9.txt");
  qputenv("PATH", QByteArray::fromStdString(folder.file("tools")));
  EXPECT_FALSE(host.startTextViewer("/srv/file.txt"));
  qputenv("PATH", QByteArray::fromStdString(kept));
}

TEST_F(QtHost, yielding_for_each_character_of_a_long_value_costs_no_repaint_each) {
  int paints = 0;
  class Counter : public QObject {
   public:
    explicit Counter(int& count) : count_(count) {}
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
      if (event->type() == QEvent::UpdateRequest) ++count_;
      return false;
    }

   private:
    int& count_;
  } counter(paints);
  window.installEventFilter(&counter);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 1'000'000; ++i) host.yield();
  const auto taken = std::chrono::steady_clock::now() - start;
  EXPECT_GE(paints, 1);
  EXPECT_LE(paints, 2 + 2 * (taken / std::chrono::milliseconds(30)));
}

TEST_F(QtHost, a_status_reaches_the_status_line) {
  host.setStatus("File format has errors. Please correct and re-validate to proceed");
  EXPECT_EQ(window.findChild<QLineEdit*>("TxtProcessingStatus")->text(),
            "File format has errors. Please correct and re-validate to proceed");
}

}  // namespace
}  // namespace zamo::test
