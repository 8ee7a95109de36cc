// A main window over a scripted host: no box and no dialog ever waits for anybody.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <functional>
#include <string>

#include "shell/main_window.h"
#include "shell/start_up.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo::test {

inline QApplication& application() {
  static int argc = 1;
  static char name[] = "zamo-kv19";
  static char* argv[] = {name, nullptr};
  static auto* const instance = new QApplication(argc, argv);
  return *instance;
}

// One notice without a fault.
inline constexpr std::string_view kGoodFile =
    "<HEAD>\r\nt_adm = D\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_action = ADD\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";

// Its tail is missing.
inline constexpr std::string_view kFileWithoutTail =
    "<HEAD>\r\nt_adm = D\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_action = ADD\r\n</NOTICE>\r\n";

// Its polarization is none.
inline constexpr std::string_view kFileWithBadPolar =
    "<HEAD>\r\nt_adm = D\r\n</HEAD>\r\n"
    "<NOTICE>\r\nt_notice_type = GT1\r\nt_polar = X\r\n</NOTICE>\r\n"
    "<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";

class Window : public testing::Test {
 protected:
  Window() {
    application();
    shell.host = makeScriptedHost(script);
    shell.host.setStatus = [this, note = shell.host.setStatus](std::string_view text) {
      note(text);
      window.setStatus(text);
      if (onStatus) onStatus();
    };
  }

  void start(const std::optional<MapOpening>& map = {}) {
    startUp(shell, map);
    window.show();
  }

  template <typename Widget>
  Widget& control(const char* name) {
    auto* const found = window.findChild<Widget*>(name);
    if (found == nullptr) throw std::logic_error(std::string("no control ") + name);
    return *found;
  }
  QAction& menu(const char* name) { return control<QAction>(name); }

  // The control's caption as the operator reads it.
  template <typename Captioned>
  static std::string plain(const Captioned& captioned) {
    return captioned.text().remove('&').toStdString();
  }

  bool shows(const char* name) { return control<QWidget>(name).isVisibleTo(&window); }
  std::string status() { return control<QLineEdit>("TxtProcessingStatus").text().toStdString(); }

  // Chooses a file of this content through the menu at level 1.
  std::string open(std::string_view content, const char* command = "mnuFileOpenTxtBasicV") {
    const std::string path = folder.write("notices.txt", content);
    script.files.push_back(path);
    menu(command).trigger();
    return path;
  }
  std::string reportPath() const { return folder.file("notices_val_outcome.txt"); }

  void expectOneBox(const std::string& text, const std::string& title, BoxIcon icon) {
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, title);
    EXPECT_EQ(script.boxes[0].icon, icon);
  }

  TempFolder folder;
  Script script;
  Shell shell;
  MainWindow window{(application(), shell)};
  std::function<void()> onStatus;
};

}  // namespace zamo::test
