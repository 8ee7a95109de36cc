#include "screens/notice_window.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "screens/control_table.h"
#include "screens/field_checks.h"
#include "screens/flow_layout.h"
#include "screens/form_widgets.h"
#include "widgets/hint_colour.h"
#include "widgets/plain_tips.h"
#include "widgets/qt_text.h"
#include "widgets/upper_case.h"

namespace zamo {
namespace {

constexpr int kGap = 6;
constexpr int kNarrowGap = 2;
// What a page asks for: a form with pages has most of a display, and a small one is no wider than it must be.
constexpr int kWidthOfPages = 1180;
constexpr int kWidthOfOnePage = 700;
// Room for a window's frame and a task bar on the smallest displays.
constexpr QSize kAroundWindow(12, 48);

constexpr ControlName kCloseButton = "Button_Reset";

struct FormName {
  FormCode code = kNoForm;
  const char* name = "";
};
// clang-format off
constexpr FormName kFormNames[] = {
    {kGS1Assign,   "GS1AssignFrmKV19"},
    {kGT1Assign,   "GT1AssignFrmKV19"},
    {kGS2Allot,    "GS2AllotFrmKV19"},
    {kGT2Allot,    "GT2AllotFrmKV19"},
    {kGA1SubAllot, "GA1SubAllotFrmKV19"},
    {kTB5,         "TB5FrmKV19"},
    {kTB3,         "TB3FrmKV19"},
    {kTB2,         "TB2FrmKV19"},
};
// clang-format on

const char* nameOfForm(FormCode code) {
  for (const FormName& row : kFormNames) {
    if (row.code == code) return row.name;
  }
  return "";
}

// A page that asks for all of the room that its content wants.
class Page final : public QScrollArea {
 public:
  QSize sizeHint() const override {
    const int scrollBar = verticalScrollBar()->sizeHint().width();
    return widget()->sizeHint() + QSize(scrollBar, 0);
  }
};

// The screen knows the user's hand as long as this lives.
class UsersHand {
 public:
  explicit UsersHand(Screen& screen) : screen_(screen), before_(std::exchange(screen.byUser, true)) {}
  UsersHand(const UsersHand&) = delete;
  UsersHand& operator=(const UsersHand&) = delete;
  ~UsersHand() { screen_.byUser = before_; }

 private:
  Screen& screen_;
  bool before_;
};

bool grows(const QWidget& widget) {
  return (widget.sizePolicy().horizontalPolicy() & QSizePolicy::ExpandFlag) != 0;
}

void keepPlace(QWidget& widget, bool keep) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(keep);
  widget.setSizePolicy(policy);
}

bool takesText(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

bool isLowerCaseLetter(const QKeyEvent& key) {
  constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return !key.text().isEmpty() && key.text().front().isLower() && (key.modifiers() & command) == 0;
}

// A combo hands what is typed to its field past the filters of the field, which turn it to upper case.
bool typeInto(QComboBox& combo, QEvent& event) {
  return combo.isEditable() && QCoreApplication::sendEvent(combo.lineEdit(), &event);
}

std::set<std::string, std::less<>> upperCaseFields(FormCode code) {
  std::set<std::string, std::less<>> names;
  for (const ControlRow& row : controlRows(code)) {
    if (row.upperCase) names.emplace(row.name);
  }
  return names;
}

}  // namespace

NoticeWindow::NoticeWindow(NoticeForm& form, LeaveRule mayLeave, QWidget* parent)
    : QDialog(parent), form_(form), mayLeave_(std::move(mayLeave)), layout_(layoutOf(form.screen.code())) {
  showTipsAsPlainText();
  keepHintsReadable();
  setObjectName(nameOfForm(form.screen.code()));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  makeWidgets();
  connectScreen();
  form_.screen.redrawAll();
  layOut();
  setTabOrder();
  chooseSize();
  focusFirst();
  checks_ = new LeaveChecks(*this, [this](QWidget& field) { return askToLeave(field); });
  if (QWidget* const shut = widget(kCloseButton)) checks_->setFree(*shut);
}

NoticeWindow::~NoticeWindow() {
  form_.screen.changed = [](const Control&) {};
  form_.screen.titleChanged = [](const std::string&) {};
  form_.screen.focusWanted = [](const std::string&) {};
  form_.close = [] {};
}

QWidget* NoticeWindow::widget(std::string_view name) const {
  const auto found = widgets_.find(name);
  return found == widgets_.end() ? nullptr : found->second;
}

// --- making

void NoticeWindow::makeWidgets() {
  const auto upperCase = upperCaseFields(form_.screen.code());
  form_.screen.forEach([&](const Control& control) {
    QWidget* const made = makeWidget(control);
    made->setParent(this);
    widgets_.emplace(control.name, made);
    if (control.kind == ControlKind::option)
      options_[control.optionGroup].push_back(static_cast<QRadioButton*>(made));
    connectControl(control, *made);
    made->installEventFilter(this);
    auto* const combo = qobject_cast<QComboBox*>(made);
    auto* const box = combo == nullptr ? qobject_cast<QLineEdit*>(made) : combo->lineEdit();
    if (box != nullptr && (combo != nullptr || upperCase.contains(control.name))) typeUpperCase(*box);
  });
  for (const auto& [name, made] : widgets_) {
    if (!takesText(*made)) continue;
    auto* const label = qobject_cast<QLabel*>(widget("Lbl_" + name.substr(name.find('_') + 1)));
    if (label != nullptr) label->setBuddy(made);
  }
}

void NoticeWindow::layOut() {
  auto* const rows = new QVBoxLayout(this);
  rows->setContentsMargins(kGap, kGap, kGap, kGap);
  rows->setSpacing(kGap);
  // Sizes are asked for as soon as a box stands on its page, and kept: the boxes come first.
  for (const BoxRow& row : layout_.boxes) makeBox(row);
  for (const Cell& cell : layout_.cells) fillCell(cell);
  for (const auto& [name, box] : boxes_) finishBox(box);
  rows->addLayout(makeTopStrip());
  rows->addWidget(makePages(), 1);
  rows->addLayout(makeButtonStrip());
}

QLayout* NoticeWindow::makeTopStrip() {
  auto* const strip = new QHBoxLayout;
  strip->setSpacing(kGap);
  for (const ControlName name : kTopStrip) {
    QWidget* const part = widget(name);
    if (part == nullptr) continue;
    keepPlace(*part, false);
    strip->addWidget(part);
  }
  return strip;
}

QLayout* NoticeWindow::makeButtonStrip() {
  auto* const strip = new QHBoxLayout;
  strip->setSpacing(kGap);
  for (const ButtonRow& row : kButtonStrip) {
    auto* const button = qobject_cast<QPushButton*>(widget(row.control));
    if (button == nullptr) continue;
    keepPlace(*button, false);
    if (row.control == "Button_Prev_Ntc") strip->addStretch();
    if (row.control == kCloseButton) strip->addSpacing(2 * kGap);
    if (row.mnemonic != 0) setMnemonic(*button, row.mnemonic);
    showControl(form_.screen.at(row.control), *button);
    if (!row.shortcut.empty()) button->setShortcut(QKeySequence(fromText(row.shortcut)));
    strip->addWidget(button);
  }
  return strip;
}

QWidget* NoticeWindow::makePages() {
  if (layout_.pages.size() == 1) return makePage(layout_.pages.front());
  tabs_ = new QTabWidget;
  tabs_->setObjectName("Pages");
  tabs_->setUsesScrollButtons(true);
  // A tab that is clicked takes the focus, so that the field before is left as by any other click.
  tabs_->tabBar()->setFocusPolicy(Qt::StrongFocus);
  tabs_->tabBar()->installEventFilter(this);
  connect(tabs_, &QTabWidget::tabBarClicked, this, &NoticeWindow::focusFirst, Qt::QueuedConnection);
  for (const PageRow& row : layout_.pages) tabs_->addTab(makePage(row), fromText(row.title));
  return tabs_;
}

QScrollArea* NoticeWindow::makePage(const PageRow& row) {
  auto* const area = new Page;
  area->setFocusPolicy(Qt::NoFocus);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  auto* const page = new QWidget;
  const bool isAlone = layout_.pages.size() == 1;
  auto* const flow = new FlowLayout(*page, isAlone ? kWidthOfOnePage : kWidthOfPages);
  const int margin = isAlone ? 0 : kGap;
  flow->setContentsMargins(margin, margin, margin, margin);
  flow->setSpacing(kGap);
  for (const BoxRow& box : layout_.boxes) {
    if (box.page == row.page) flow->addWidget(boxes_.find(box.box)->second.widget);
  }
  area->setWidget(page);
  pages_.push_back(area);
  return area;
}

void NoticeWindow::makeBox(const BoxRow& row) {
  QWidget* box = widget(row.box);
  if (box == nullptr) box = row.title.empty() ? new QWidget(this) : new QGroupBox(fromText(row.title), this);
  auto* const grid = new QGridLayout(box);
  const bool hasBorder = qobject_cast<QGroupBox*>(box) != nullptr;
  const int margin = hasBorder ? kGap : 0;
  grid->setContentsMargins(margin, margin, margin, margin);
  grid->setSpacing(kGap);
  boxes_.emplace(row.box, Box{box, grid});
}

void NoticeWindow::fillCell(const Cell& cell) {
  const auto box = boxes_.find(cell.box);
  if (box == boxes_.end()) return;
  std::vector<QWidget*> parts;
  for (const std::string& name : cell.controls) {
    if (QWidget* const part = widget(name)) parts.push_back(part);
  }
  QGridLayout& grid = *box->second.grid;
  if (parts.size() == 1) {
    grid.addWidget(parts.front(), cell.row, cell.column, cell.rowSpan, cell.columnSpan);
    return;
  }
  auto* const side = new QHBoxLayout;
  side->setSpacing(cell.isTight ? kNarrowGap : kGap);
  for (QWidget* const part : parts) side->addWidget(part);
  const bool fills =
      std::any_of(parts.begin(), parts.end(), [](const QWidget* part) { return grows(*part); });
  grid.addLayout(side, cell.row, cell.column, cell.rowSpan, cell.columnSpan,
                 fills ? Qt::Alignment() : Qt::AlignLeft);
}

// Room that is left goes to what grows. Where nothing does, the cells keep together.
void NoticeWindow::finishBox(const Box& box) {
  QGridLayout& grid = *box.grid;
  for (int i = 0; i < grid.count(); ++i) {
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid.getItemPosition(i, &row, &column, &rows, &columns);
    const Qt::Orientations directions = grid.itemAt(i)->expandingDirections();
    if ((directions & Qt::Horizontal) != 0) grid.setColumnStretch(column + columns - 1, 1);
    if ((directions & Qt::Vertical) != 0) grid.setRowStretch(row + rows - 1, 1);
  }
  grid.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void NoticeWindow::setTabOrder() {
  QWidget* last = tabs_ == nullptr ? nullptr : tabs_->tabBar();
  const auto append = [this, &last](std::string_view name) {
    QWidget* const next = widget(name);
    if (next == nullptr || next->focusPolicy() == Qt::NoFocus) return;
    if (last != nullptr) QWidget::setTabOrder(last, next);
    last = next;
  };
  for (const Cell& cell : layout_.cells) std::for_each(cell.controls.begin(), cell.controls.end(), append);
  for (const ButtonRow& row : kButtonStrip) append(row.control);
}

// As large as the largest page wants to be, if the display is.
void NoticeWindow::chooseSize() {
  resize(sizeHint().boundedTo(screen()->availableSize() - kAroundWindow));
}

// --- from the user to the screen

void NoticeWindow::connectControl(const Control& control, QWidget& made) {
  const std::string name = control.name;
  const auto enter = [this, name, &made] {
    act(name, [&](Screen& screen) { screen.setText(madeName(name), enteredText(made)); });
  };
  if (auto* const box = qobject_cast<QLineEdit*>(&made)) connect(box, &QLineEdit::textEdited, this, enter);
  if (auto* const memo = qobject_cast<QPlainTextEdit*>(&made))
    connect(memo, &QPlainTextEdit::textChanged, this, enter);
  if (auto* const combo = qobject_cast<QComboBox*>(&made)) {
    connect(combo, &QComboBox::activated, this, [this, name](int index) { pick(name, index); });
    if (combo->isEditable()) connect(combo->lineEdit(), &QLineEdit::textEdited, this, enter);
  }
  if (auto* const option = qobject_cast<QRadioButton*>(&made)) {
    connect(option, &QRadioButton::clicked, this,
            [this, name] { act(name, [&](Screen& screen) { screen.setOption(madeName(name)); }); });
  }
  if (auto* const button = qobject_cast<QPushButton*>(&made)) {
    connect(button, &QPushButton::clicked, this, [this, name] { press(name); });
  }
  if (control.kind != ControlKind::list) return;
  auto& list = static_cast<PickList&>(made);
  list.picked = [this, name](int row) { pick(name, row); };
  connect(&list, &QListWidget::itemDoubleClicked, this, [this, name] {
    act(name, [&](Screen& screen) { screen.raise(Event::doubleClick, madeName(name)); });
  });
}

void NoticeWindow::pick(const std::string& name, int index) {
  act(name, [&](Screen& screen) {
    if (index < 0) return;
    if (screen.at(madeName(name)).index == index) return screen.raise(Event::click, madeName(name));
    screen.choose(madeName(name), index);
  });
}

void NoticeWindow::press(const std::string& name) {
  act(name, [&](Screen& screen) { screen.raise(Event::click, madeName(name)); });
  // Whatever the form makes of it, this button closes.
  if (madeName(name) == kCloseButton) reject();
}

void NoticeWindow::act(const std::string& name, const std::function<void(Screen&)>& action) {
  runGuarded(form_.work.host, name, [this, &action] {
    const UsersHand hand(form_.screen);
    action(form_.screen);
  });
  showControl(form_.screen.at(madeName(name)), *widget(name));
}

bool NoticeWindow::askToLeave(QWidget& field) {
  const std::string name = field.objectName().toStdString();
  if (widget(name) != &field) return true;
  bool allowed = true;
  leaving_ = true;
  act(name, [&](Screen&) { allowed = mayLeave_(form_, madeName(name)); });
  leaving_ = false;
  return allowed;
}

void NoticeWindow::keyPressEvent(QKeyEvent* event) {
  // Edits are dropped by who closes the form, and not by a key that leaves lists and boxes as well.
  if (event->matches(QKeySequence::Cancel)) return;
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QDialog::keyPressEvent(event);
  // Return presses the button that has the focus, and no other.
  if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

bool NoticeWindow::eventFilter(QObject* watched, QEvent* event) {
  auto& part = static_cast<QWidget&>(*watched);
  auto* const combo = qobject_cast<QComboBox*>(watched);
  switch (event->type()) {
    case QEvent::FocusIn:
      if (static_cast<const QFocusEvent&>(*event).reason() != Qt::MouseFocusReason) bringToView(part);
      return false;
    case QEvent::Wheel:
      // Turning the wheel scrolls the page: it must not change a value or leave a field on the way.
      if (combo == nullptr && qobject_cast<QTabBar*>(watched) == nullptr) return false;
      event->ignore();
      return true;
    case QEvent::KeyPress:
      return combo != nullptr && isLowerCaseLetter(static_cast<const QKeyEvent&>(*event)) &&
             typeInto(*combo, *event);
    case QEvent::InputMethod:
      return combo != nullptr && typeInto(*combo, *event);
    default:
      return false;
  }
}

// --- from the screen to the widgets

void NoticeWindow::connectScreen() {
  Screen& screen = form_.screen;
  screen.changed = [this](const Control& control) {
    QWidget* const shown = widget(control.name);
    if (shown == nullptr) return;
    // A button that can't be pressed any more hands the focus back: on its way forward the next key would
    // press another one.
    const bool canStay = control.enabled && control.visible;
    if (!canStay && shown->hasFocus() && control.kind == ControlKind::button) focusPreviousChild();
    showControl(control, *shown);
    if (control.kind == ControlKind::option) settleTabStop(control.optionGroup);
  };
  screen.titleChanged = [this](const std::string& title) { setWindowTitle(fromText(title)); };
  screen.focusWanted = [this](const std::string& name) { focus(name); };
  form_.close = [this] { reject(); };
}

// The Tab key finds a group of options at the one that is set, and at any if none is.
void NoticeWindow::settleTabStop(const std::string& group) {
  const auto& options = options_[group];
  const bool isAnySet = std::any_of(options.begin(), options.end(),
                                    [](const QRadioButton* option) { return option->isChecked(); });
  for (QRadioButton* const option : options)
    option->setFocusPolicy(isAnySet && !option->isChecked() ? Qt::ClickFocus : Qt::StrongFocus);
}

void NoticeWindow::focus(const std::string& name) {
  QWidget* const wanted = widget(name);
  if (wanted == nullptr) return;
  if (!leaving_) return focusNow(*wanted);
  // Who goes back with Shift+Tab isn't sent forward again.
  if ((QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) != 0) return;
  // Where a click has turned the page, that page stays in front.
  checks_->afterLeaving([this, wanted] {
    if (wanted->isVisible()) focusNow(*wanted);
  });
}

void NoticeWindow::focusNow(QWidget& wanted) {
  bringToView(wanted);
  wanted.setFocus(Qt::TabFocusReason);  // which selects what stands in a field
}

void NoticeWindow::bringToView(QWidget& part) {
  for (QScrollArea* const page : pages_) {
    if (!page->isAncestorOf(&part)) continue;
    if (tabs_ != nullptr) tabs_->setCurrentWidget(page);
    page->ensureWidgetVisible(&part, kGap, kGap);
  }
}

void NoticeWindow::focusFirst() {
  for (const Cell& cell : layout_.cells) {
    for (const std::string& name : cell.controls) {
      QWidget* const first = widget(name);
      if (first == nullptr || (first->focusPolicy() & Qt::TabFocus) == 0) continue;
      if (tabs_ != nullptr && !tabs_->currentWidget()->isAncestorOf(first)) continue;
      if (first->isEnabled() && first->isVisibleTo(this)) return focusNow(*first);
    }
  }
}

void showNoticeWindow(NoticeForm& form, QWidget* parent) {
  // Where the walk left the last form.
  static std::optional<QRect> place;
  NoticeWindow window(form, mayLeaveField, parent);
  if (const auto last = std::exchange(place, std::nullopt)) {
    window.resize(last->size().expandedTo(window.minimumSizeHint()));
    window.move(last->topLeft());
  }
  window.exec();
  if (form.work.next) place = QRect(window.pos(), window.size());
}

}  // namespace zamo
