// The main window: the menus, what file is being worked on, how far it is, and the grid of notices. It shows
// the states that the commands leave in Shell::screen and starts the commands.
#pragma once

#include <QMainWindow>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "shell/menu_table.h"
#include "shell/shell.h"

class QAction;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zamo {

class NoticeGrid;

class MainWindow final : public QMainWindow {
 public:
  // Becomes the `draw` of `shell` and shows its grid; `shell` must outlive the window.
  explicit MainWindow(Shell& shell);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow() override;

  // The text of the status line, painted at once. Only running numbers, once painting them has taken a while,
  // are left to the next refresh.
  void setStatus(std::string_view text);

  // The line below the status; an empty one is hidden.
  void setNote(std::string_view text);

  // Brings to the display what has changed, and handles what has queued up but for the user's input.
  void refresh();

  // Runs one command at a time: within a running one nothing happens. What the command throws ends up in a
  // box that is titled `name`.
  void runCommand(std::string_view name, const std::function<void(Shell&, QWidget&)>& command);

 protected:
  bool event(QEvent* event) override;
  // Closes the database too. A window that is closed within a command stays until the command has ended.
  void closeEvent(QCloseEvent* event) override;

 private:
  void makeMenus();
  void makeControls();
  QPushButton* makeButton(std::string_view name, std::string_view caption, char mnemonic, Command command);
  void draw(const MainScreen& screen);
  // Gives whether the line shows another text than before.
  bool showStatus();
  void paintStatus();

  Shell& shell_;
  std::optional<MainScreen> drawn_;
  std::string status_;
  std::chrono::nanoseconds numbersPainted_{};  // the time that this command has spent on painting them
  bool running_ = false;
  bool closeWanted_ = false;

  QFrame* strip_ = nullptr;
  QLabel* LblInputTxt_ = nullptr;
  QLineEdit* TxtFileName_ = nullptr;
  QLineEdit* TxtProcessingStatus_ = nullptr;
  QLabel* note_ = nullptr;
  QAction* errorMark_ = nullptr;
  QPushButton* ButtonViewFile_ = nullptr;
  QPushButton* ButtonReVal_ = nullptr;
  QLabel* emptyGrid_ = nullptr;
  NoticeGrid* NtcDataGrid_ = nullptr;
};

}  // namespace zamo
