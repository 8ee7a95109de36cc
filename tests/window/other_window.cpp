// The main window in a process of its own, worked by lines of standard input. Each gives one line: the
// status, then the boxes that came, all divided by "|".
//   open PATH       OpenDB, with all notices selected
//   load PATH       OpenTxt at level 1
//   correct KEY TEXT  opens the notice from the grid, gives its site that name, presses Update and closes the
//   form note            gives the line below the status instead close           closes the window
#include <QTest>
#include <QTimer>
#include <iostream>
#include <sstream>

#include "query/selection.h"
#include "shell/frozen_table.h"
#include "shell/notice_screens.h"
#include "window/window_fixture.h"

namespace zamo::test {
namespace {

class OtherWindow {
 public:
  OtherWindow() {
    shell_.host = makeScriptedHost(script_);
    shell_.host.setStatus = [this](std::string_view text) { window_.setStatus(text); };
    shell_.host.setNote = [this](std::string_view text) { window_.setNote(text); };
    shell_.host.askYesNo = [](const Box&) { return true; };
    useNoticeScreens(shell_, window_);
    shell_.forms.showQueryForm = [this] {
      shell_.run.qrySql = makeSelection({}).qrySql;
      shell_.run.qryIsNotice = true;
      shell_.run.qryConfirmed = true;
    };
    startUp(shell_, {});
    window_.show();
  }

  std::string answer(const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command >> std::ws;
    std::string rest;
    std::getline(words, rest);
    script_.boxes.clear();
    if (command == "note") return window_.findChild<QLabel*>("LblNote")->text().toStdString();
    if (command == "open") choose("mnuFileOpenDB", rest);
    if (command == "load") choose("mnuFileOpenTxtBasicV", rest);
    if (command == "correct") correct(rest.substr(0, rest.find(' ')), rest.substr(rest.find(' ') + 1));
    if (command == "close") window_.close();
    std::string said = window_.findChild<QLineEdit*>("TxtProcessingStatus")->text().toStdString();
    for (const Box& box : script_.boxes) said += "|" + box.title + ": " + box.text;
    std::replace(said.begin(), said.end(), '\n', ' ');
    return said;
  }

 private:
  void choose(const char* menu, const std::string& path) {
    script_.files.push_back(path);
    window_.findChild<QAction*>(menu)->trigger();
  }

  void correct(const std::string& key, const std::string& siteName) {
    auto& grid = *window_.findChild<QTableView*>("NtcDataGrid");
    const QModelIndexList found =
        grid.model()->match(grid.model()->index(0, 0), Qt::DisplayRole, QString::fromStdString(key));
    if (found.isEmpty()) return script_.boxes.push_back({"no notice " + key, "grid"});
    grid.setCurrentIndex(found.first());
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
      QWidget* const form = QApplication::activeModalWidget();
      if (form == nullptr) return;
      hand.stop();
      auto* const site = form->findChild<QLineEdit*>("Txt_4A_SiteName");
      site->selectAll();
      QTest::keyClicks(site, QString::fromStdString(siteName));
      form->findChild<QPushButton*>("Button_Next")->click();
      form->findChild<QPushButton*>("Button_Reset")->click();
    });
    hand.start(1);
    QTest::keyClick(&grid, Qt::Key_Return);
  }

  Script script_;
  Shell shell_;
  MainWindow window_{shell_};
};

}  // namespace
}  // namespace zamo::test

int main() {
  zamo::test::application();
  zamo::test::OtherWindow window;
  for (std::string line; std::getline(std::cin, line);) std::cout << window.answer(line) << std::endl;
}
