#include "shell/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

#include "screens/err_msg_frm.h"
#include "shell/notice_grid.h"
#include "widgets/hint_colour.h"
#include "widgets/plain_tips.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

constexpr QSize kUsualSize(1000, 640);
constexpr QSize kSmallestSize(600, 320);
constexpr int kGap = 8;

constexpr std::string_view kHint = "To check a notice file, choose File > OpenTxt.";

// The words that every status text with bad news has, and no other.
constexpr std::string_view kBadNews = "has error";

// What a command may spend on painting each running number. After that they are painted as often as an eye
// can follow, so that a long file doesn't wait for them.
constexpr std::chrono::milliseconds kTimeForNumbers(500);

// A status without the number that it ends in.
std::string_view wordsOf(std::string_view status) {
  const std::size_t last = status.find_last_not_of("0123456789");
  return status.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

QString captionOf(std::string_view caption, char mnemonic) {
  QString text = fromText(caption);
  return text.insert(text.indexOf(QLatin1Char(mnemonic)), QLatin1Char('&'));
}

QLineEdit* makeReadOnlyLine(std::string_view name, const QString& spokenName) {
  auto* line = new QLineEdit;
  line->setObjectName(nameOf(name));
  line->setAccessibleName(spokenName);
  line->setReadOnly(true);
  return line;
}

// One line that takes no room while it has nothing to say.
QLabel* makeNote() {
  auto* note = new QLabel;
  note->setObjectName("LblNote");
  note->setAccessibleName("Note");
  note->setTextFormat(Qt::PlainText);
  note->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  note->setWordWrap(true);
  note->hide();
  return note;
}

// Stands where the grid is hidden.
QLabel* makeEmptyGrid() {
  auto* panel = new QLabel;
  panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  panel->setAutoFillBackground(true);
  panel->setBackgroundRole(QPalette::Base);
  panel->setForegroundRole(QPalette::PlaceholderText);
  panel->setAlignment(Qt::AlignCenter);
  panel->setWordWrap(true);
  return panel;
}

}  // namespace

void mnuFileExit(Shell& /*shell*/, QWidget& window) {
  window.close();
}

MainWindow::MainWindow(Shell& shell) : shell_(shell) {
  showTipsAsPlainText();
  keepHintsReadable();
  setObjectName("ZamoKV19Startup");
  makeMenus();
  makeControls();
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { AboutFrm(kWindowVersion, this).exec(); });
  setMinimumSize(kSmallestSize);
  resize(kUsualSize.boundedTo(screen()->availableSize()));
  shell_.draw = [this](const MainScreen& wanted) { draw(wanted); };
  shell_.forms.bindGrid = [this](GridRows rows) { NtcDataGrid_->bind(std::move(rows)); };
  shell_.forms.detachGrid = [this] {
    if (!shell_.screen.gridVisible) NtcDataGrid_->clear();
  };
}

MainWindow::~MainWindow() {
  shell_.draw = [](const MainScreen&) {};
  shell_.forms = {};
}

void MainWindow::makeMenus() {
  for (const MenuRow& row : kMenus) {
    const QString name = nameOf(row.name);
    const QString caption = captionOf(row.caption, row.mnemonic);
    auto* const parent = findChild<QMenu*>(nameOf(row.parent));
    if (holdsEntries(row)) {
      QMenu* const menu = row.parent.empty() ? menuBar()->addMenu(caption) : parent->addMenu(caption);
      menu->setObjectName(name);
      menu->menuAction()->setObjectName(name);
      continue;
    }
    QAction* const entry = parent->addAction(caption);
    entry->setObjectName(name);
    entry->setShortcut(QKeySequence(nameOf(row.shortcut)));
    entry->setEnabled(row.command != nullptr);
    if (row.command != nullptr)
      connect(entry, &QAction::triggered, this, [this, &row] { runCommand(row.name, row.command); });
  }
  auto* const english = findChild<QAction*>("mnuPrefLangE");
  english->setCheckable(true);
  // Alone in a group, the check mark stays when the entry is chosen.
  (new QActionGroup(this))->addAction(english);
}

QPushButton* MainWindow::makeButton(std::string_view name, std::string_view caption, char mnemonic,
                                    Command command) {
  auto* button = new QPushButton(captionOf(caption, mnemonic));
  button->setObjectName(nameOf(name));
  button->setAutoDefault(true);  // Return presses it, as the space bar does
  connect(button, &QPushButton::clicked, this, [this, name, command] { runCommand(name, command); });
  return button;
}

void MainWindow::makeControls() {
  LblInputTxt_ = new QLabel("Input");
  LblInputTxt_->setObjectName("LblInputTxt");
  TxtFileName_ = makeReadOnlyLine("TxtFileName", "Input");
  TxtProcessingStatus_ = makeReadOnlyLine("TxtProcessingStatus", "Status");
  errorMark_ = TxtProcessingStatus_->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                               QLineEdit::LeadingPosition);
  errorMark_->setVisible(false);
  ButtonViewFile_ =
      makeButton("ButtonViewFile", "View File", 'V', [](Shell& shell, QWidget&) { ButtonViewFile(shell); });
  ButtonReVal_ =
      makeButton("ButtonReVal", "ReValidate", 'R', [](Shell& shell, QWidget&) { ButtonReVal(shell); });

  note_ = makeNote();

  strip_ = new QFrame;
  auto* const strip = new QGridLayout(strip_);
  strip->setContentsMargins(0, 0, 0, 0);
  strip->setSpacing(kGap);
  strip->addWidget(LblInputTxt_, 0, 0);
  strip->addWidget(TxtFileName_, 0, 1);
  strip->addWidget(ButtonViewFile_, 0, 2);
  strip->addWidget(ButtonReVal_, 0, 3);
  // All of the width: the longest status just fits a small display that is scaled twice.
  strip->addWidget(TxtProcessingStatus_, 1, 0, 1, 4);
  strip->addWidget(note_, 2, 0, 1, 4);
  strip->setColumnStretch(1, 1);

  NtcDataGrid_ = new NoticeGrid(shell_);
  NtcDataGrid_->onOpen = [this] {
    runCommand("NtcDataGrid", [this](Shell&, QWidget&) { NtcDataGrid_->openCurrent(); });
  };
  emptyGrid_ = makeEmptyGrid();

  auto* const central = new QWidget;
  auto* const rows = new QVBoxLayout(central);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  rows->addWidget(strip_);
  rows->addWidget(NtcDataGrid_, 1);
  rows->addWidget(emptyGrid_, 1);
  setCentralWidget(central);

  setTabOrder(TxtFileName_, ButtonViewFile_);
  setTabOrder(ButtonViewFile_, ButtonReVal_);
  setTabOrder(ButtonReVal_, TxtProcessingStatus_);
  setTabOrder(TxtProcessingStatus_, NtcDataGrid_);
}

void MainWindow::draw(const MainScreen& screen) {
  if (drawn_ == screen) return;
  drawn_ = screen;
  setWindowTitle(fromText(screen.caption));
  findChild<QMenu*>("mnuFileOpenTxt")->menuAction()->setEnabled(screen.openTxtEnabled);
  findChild<QMenu*>("mnuQuery")->menuAction()->setEnabled(screen.queryEnabled);
  findChild<QMenu*>("mnuTxtDB")->menuAction()->setEnabled(screen.txtDbEnabled);
  findChild<QMenu*>("mnuPrefLang")->menuAction()->setVisible(screen.prefLangVisible);
  findChild<QAction*>("mnuPrefLangE")->setChecked(screen.englishChecked);
  const QString fileName = fromText(screen.fileName);
  TxtFileName_->setText(fileName);
  TxtFileName_->setToolTip(fileName);
  LblInputTxt_->setVisible(screen.inputVisible);
  TxtFileName_->setVisible(screen.inputVisible);
  TxtProcessingStatus_->setVisible(screen.statusVisible);
  ButtonViewFile_->setVisible(screen.viewFileVisible);
  ButtonReVal_->setVisible(screen.reValVisible);
  strip_->setVisible(screen.inputVisible || screen.statusVisible || screen.viewFileVisible ||
                     screen.reValVisible);
  const bool gridAppears = screen.gridVisible && !NtcDataGrid_->isVisibleTo(this);
  NtcDataGrid_->setVisible(screen.gridVisible);
  if (gridAppears) NtcDataGrid_->setFocus();
  emptyGrid_->setVisible(!screen.gridVisible);
  emptyGrid_->setText(screen.openTxtEnabled && !screen.inputVisible ? fromText(kHint) : QString());
}

void MainWindow::setStatus(std::string_view text) {
  const bool isRunningNumber = wordsOf(text) == wordsOf(status_);
  // The last number of a stage is seen before the next stage begins.
  if (!isRunningNumber) paintStatus();
  status_ = text;
  if (!isRunningNumber) return refresh();
  if (numbersPainted_ >= kTimeForNumbers) return;
  const auto before = std::chrono::steady_clock::now();
  paintStatus();
  numbersPainted_ += std::chrono::steady_clock::now() - before;
}

void MainWindow::setNote(std::string_view text) {
  note_->setText(fromText(text));
  note_->setVisible(!text.empty());
}

void MainWindow::paintStatus() {
  if (showStatus()) TxtProcessingStatus_->repaint();
}

bool MainWindow::showStatus() {
  const QString text = fromText(status_);
  if (text == TxtProcessingStatus_->text()) return false;
  TxtProcessingStatus_->setText(text);
  TxtProcessingStatus_->setCursorPosition(0);
  const bool bad = status_.find(kBadNews) != std::string::npos;
  if (bad == errorMark_->isVisible()) return true;
  errorMark_->setVisible(bad);
  QFont font = TxtProcessingStatus_->font();
  font.setBold(bad);
  TxtProcessingStatus_->setFont(font);
  return true;
}

void MainWindow::refresh() {
  showStatus();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  // Paints at once what is left to paint: the command may not come by again for long.
  QEvent paintNow(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(this, &paintNow);
}

void MainWindow::runCommand(std::string_view name, const std::function<void(Shell&, QWidget&)>& command) {
  if (running_) return;
  running_ = true;
  numbersPainted_ = {};
  runGuarded(shell_.host, name, [this, &command] { command(shell_, *this); });
  running_ = false;
  draw(shell_.screen);
  showStatus();
  if (closeWanted_) close();
}

bool MainWindow::event(QEvent* event) {
  // A form is opening over the window: nothing refreshes it until the form is closed.
  if (event->type() == QEvent::WindowBlocked) showStatus();
  return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  closeWanted_ = running_;
  event->setAccepted(!running_);
  if (!running_) closeDB(shell_.run.DbConn);
}

}  // namespace zamo
