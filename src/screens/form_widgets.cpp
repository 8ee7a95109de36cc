#include "screens/form_widgets.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <algorithm>

#include "screens/layouts.h"
#include "widgets/hint_colour.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

constexpr QRgb kLockedColour = 0xFFC0C0C0;
constexpr int kItemsShown = 20;
constexpr int kListRows = 7;
constexpr int kFewestListRows = 4;
constexpr int kMemoRows = 4;
constexpr int kMemoColumns = 40;
constexpr int kSlack = 5;  // behind the last character of a box, for the cursor and a sign

constexpr const char* kMnemonic = "mnemonic";

// Boxes that only the program writes.
constexpr ControlName kReadOnly[] = {"Txt_Filename", "Txt_Ntc_Number", "Txt_CountDownTP"};

// --- making

QLineEdit* makeTextBox(const Control& control) {
  auto* const box = new QLineEdit;
  const FieldLook look = lookOf(madeName(control.name));
  const QFontMetrics metrics = box->fontMetrics();
  const QString hint = fromText(look.hint);
  box->setPlaceholderText(hint);
  if (look.side == FieldSide::right) box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // A line edit asks for 17 times the letter x, and for what stands around them.
  const int around = box->sizeHint().width() - 17 * metrics.horizontalAdvance('x') + kSlack;
  const int text =
      std::max(look.characters * metrics.horizontalAdvance('0'), metrics.horizontalAdvance(hint));
  box->setMinimumWidth(text + around);
  if (look.width == FieldWidth::fixed) box->setMaximumWidth(text + around);
  box->setSizePolicy(look.width == FieldWidth::grows ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                     QSizePolicy::Fixed);
  if (std::find(std::begin(kReadOnly), std::end(kReadOnly), madeName(control.name)) != std::end(kReadOnly)) {
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
    QPalette palette = box->palette();
    palette.setBrush(QPalette::Base, palette.brush(QPalette::Window));
    box->setPalette(palette);
  }
  return box;
}

class Memo final : public QPlainTextEdit {
 public:
  Memo() { setTabChangesFocus(true); }

  QSize sizeHint() const override {
    const int around = 2 * frameWidth() + 2 * static_cast<int>(document()->documentMargin());
    return {kMemoColumns * fontMetrics().averageCharWidth() + around,
            kMemoRows * fontMetrics().lineSpacing() + around};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

QComboBox* makeCombo(const Control& control) {
  auto* const combo = new QComboBox;
  combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  combo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  combo->setMaxVisibleItems(kItemsShown);
  combo->setFocusPolicy(Qt::StrongFocus);
  if (canBeTypedInto(madeName(control.name))) {
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    // What is typed is what is meant.
    combo->setCompleter(nullptr);
  }
  return combo;
}

QWidget* makeOption() {
  auto* const option = new QRadioButton;
  option->setAutoExclusive(true);
  return option;
}

QWidget* makeButton() {
  auto* const button = new QPushButton;
  // Return in a field must not press one.
  button->setAutoDefault(false);
  return button;
}

QWidget* makeLabel() {
  auto* const label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  return label;
}

QWidget* makePlain(const Control& control) {
  switch (control.kind) {
    case ControlKind::text:
      return makeTextBox(control);
    case ControlKind::memo:
      return new Memo;
    case ControlKind::combo:
      return makeCombo(control);
    case ControlKind::list:
      return new PickList(lookOf(madeName(control.name)).characters);
    case ControlKind::option:
      return makeOption();
    case ControlKind::button:
      return makeButton();
    case ControlKind::label:
      return makeLabel();
    case ControlKind::frame:
      return new QGroupBox;
  }
  return nullptr;
}

// --- showing

QString withoutMnemonics(std::string_view caption) {
  return fromText(caption).replace('&', "&&");
}

void showText(const Control& control, QLineEdit& box) {
  const QString text = fromText(control.text);
  if (box.text() == text) return;
  const int cursor = box.cursorPosition();
  box.setText(text);
  box.setCursorPosition(box.hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
}

QString memoText(std::string_view text) {
  return fromText(text).replace("\r\n", "\n").replace('\r', '\n');
}

QString memoText(const QPlainTextEdit& memo) {
  // Unlike the plain text this keeps a blank that doesn't break.
  return memo.document()
      ->toRawText()
      .replace(QChar::ParagraphSeparator, '\n')
      .replace(QChar::LineSeparator, '\n');
}

void showMemo(const Control& control, QPlainTextEdit& memo) {
  const QString text = memoText(control.text);
  if (memoText(memo) == text) return;
  const int position = memo.textCursor().position();
  memo.setPlainText(text);
  QTextCursor cursor = memo.textCursor();
  cursor.setPosition(std::min(position, static_cast<int>(text.size())));
  memo.setTextCursor(cursor);
}

template <typename List>
void showItems(const Control& control, List& list) {
  QStringList items;
  for (const std::string& item : control.items) items << fromText(item);
  list.clear();
  list.addItems(items);
}

bool hasItems(const Control& control, int count, const std::function<QString(int)>& itemAt) {
  if (count != static_cast<int>(control.items.size())) return false;
  for (int i = 0; i < count; ++i) {
    if (itemAt(i) != fromText(control.items[static_cast<std::size_t>(i)])) return false;
  }
  return true;
}

// The item that equals what is typed is the one that is chosen; choosing it must not move the cursor.
void showTyped(const Control& control, QComboBox& combo) {
  QLineEdit& edit = *combo.lineEdit();
  const QString text = fromText(control.text);
  if (edit.text() == text && combo.currentIndex() == control.index) return;
  const int cursor = edit.cursorPosition();
  combo.setCurrentIndex(control.index);
  edit.setText(text);
  edit.setCursorPosition(combo.hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
}

void showCombo(const Control& control, QComboBox& combo) {
  const auto itemAt = [&combo](int i) { return combo.itemText(i); };
  if (!hasItems(control, combo.count(), itemAt)) showItems(control, combo);
  if (combo.isEditable()) return showTyped(control, combo);
  combo.setCurrentIndex(control.index);
  combo.setPlaceholderText(fromText(control.text));
}

void showList(const Control& control, PickList& list) {
  if (!hasItems(control, list.count(), [&list](int i) { return list.item(i)->text(); }))
    showItems(control, list);
  list.chooseRow(control.index);
}

void showOption(const Control& control, QRadioButton& option) {
  option.setText(withoutMnemonics(control.caption));
  if (option.isChecked() == control.isSet) return;
  // A set of options may have none that is chosen.
  option.setAutoExclusive(false);
  option.setChecked(control.isSet);
  option.setAutoExclusive(true);
}

void showButton(const Control& control, QPushButton& button) {
  QString caption = withoutMnemonics(control.caption);
  const QChar letter = button.property(kMnemonic).toChar();
  const qsizetype place = letter.isNull() ? -1 : caption.indexOf(letter);
  if (place >= 0) caption.insert(place, '&');
  button.setText(caption);
}

void showGrey(const Control& control, QWidget& widget) {
  const bool isGrey = widget.palette().color(QPalette::Base) == QColor(kLockedColour);
  if (isGrey == control.grey) return;
  QPalette palette;
  if (control.grey) {
    palette.setColor(QPalette::Base, QColor(kLockedColour));
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::PlaceholderText, hintColour(palette));
  }
  widget.setPalette(palette);
}

void showContent(const Control& control, QWidget& widget) {
  switch (control.kind) {
    case ControlKind::text:
      return showText(control, static_cast<QLineEdit&>(widget));
    case ControlKind::memo:
      return showMemo(control, static_cast<QPlainTextEdit&>(widget));
    case ControlKind::combo:
      return showCombo(control, static_cast<QComboBox&>(widget));
    case ControlKind::list:
      return showList(control, static_cast<PickList&>(widget));
    case ControlKind::option:
      return showOption(control, static_cast<QRadioButton&>(widget));
    case ControlKind::button:
      return showButton(control, static_cast<QPushButton&>(widget));
    case ControlKind::label:
      return static_cast<QLabel&>(widget).setText(fromText(control.caption));
    case ControlKind::frame:
      return static_cast<QGroupBox&>(widget).setTitle(withoutMnemonics(control.caption));
  }
}

}  // namespace

PickList::PickList(int characters) : characters_(characters) {
  setUniformItemSizes(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] { picked(chosenRow()); });
}

int PickList::chosenRow() const {
  const QModelIndexList chosen = selectionModel()->selectedRows();
  return chosen.isEmpty() ? -1 : chosen.constFirst().row();
}

void PickList::chooseRow(int row) {
  if (chosenRow() == row) return;
  if (row >= 0) {
    setCurrentRow(row);
    return;
  }
  clearSelection();
}

QSize PickList::sizeFor(int rows) const {
  const int text = characters_ * fontMetrics().horizontalAdvance('0');
  const int around = 2 * frameWidth();
  return {text + verticalScrollBar()->sizeHint().width() + around + fontMetrics().height(),
          rows * (fontMetrics().height() + 2) + around};
}

QSize PickList::sizeHint() const {
  return sizeFor(kListRows);
}

QSize PickList::minimumSizeHint() const {
  return sizeFor(kFewestListRows);
}

void PickList::mousePressEvent(QMouseEvent* event) {
  const int before = chosenRow();
  QListWidget::mousePressEvent(event);
  const QModelIndex pressed = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && pressed.isValid() && pressed.row() == before) picked(before);
}

QWidget* makeWidget(const Control& control) {
  QWidget* const widget = makePlain(control);
  widget->setObjectName(nameOf(control.name));
  // What a rule hides keeps its place, so that nothing jumps.
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

void setMnemonic(QWidget& button, char letter) {
  button.setProperty(kMnemonic, QChar::fromLatin1(letter));
}

void showControl(const Control& control, QWidget& widget) {
  const QSignalBlocker silent(widget);
  showContent(control, widget);
  const QString tip = fromText(control.tip);
  if (widget.toolTip() != tip) widget.setToolTip(tip);
  if (control.kind == ControlKind::text || control.kind == ControlKind::list) showGrey(control, widget);
  widget.setEnabled(control.enabled);
  if (widget.isHidden() == control.visible) widget.setVisible(control.visible);
}

std::string enteredText(const QWidget& field) {
  QString text;
  if (const auto* const box = qobject_cast<const QLineEdit*>(&field)) text = box->text();
  if (const auto* const combo = qobject_cast<const QComboBox*>(&field)) text = combo->currentText();
  if (const auto* const memo = qobject_cast<const QPlainTextEdit*>(&field)) text = memoText(*memo);
  text.replace("\r\n", " ");
  for (QChar& c : text) {
    if (c == '\r' || c == '\n' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = ' ';
  }
  return toText(text);
}

}  // namespace zamo
