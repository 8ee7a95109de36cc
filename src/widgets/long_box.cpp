#include "widgets/long_box.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <memory>

namespace zamo {
namespace {

// A box grows to the width of a small display, and leaves this much of a larger one.
constexpr int kSmallDisplay = 1024;
constexpr int kBesideBox = 480;
constexpr int kAroundText = 120;  // the icon and the margins
constexpr int kWidestText = 760;

int widthOfText(QSize room) {
  const int box = room.width() <= kSmallDisplay ? room.width() : room.width() - kBesideBox;
  return std::min(box - kAroundText, kWidestText);
}

int heightOfText(const QMessageBox& box, int width) {
  constexpr int kAnyHeight = 1 << 24;
  return box.fontMetrics()
      .boundingRect(QRect(0, 0, width, kAnyHeight), Qt::TextWrapAnywhere | Qt::TextExpandTabs, box.text())
      .height();
}

QPlainTextEdit* makeText(const QString& words, QSize size) {
  auto* const text = new QPlainTextEdit(words);
  text->setObjectName("LongText");
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text->setMinimumSize(size);
  return text;
}

}  // namespace

void fitToDisplay(QMessageBox& box) {
  auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
  if (label == nullptr || box.layout() == nullptr) return;
  const QSize room = box.screen()->availableSize();
  const QSize size(widthOfText(room), room.height() / 2);
  if (heightOfText(box, size.width()) <= size.height()) return;
  QPlainTextEdit* const text = makeText(box.text(), size);
  const std::unique_ptr<QLayoutItem> taken(box.layout()->replaceWidget(label, text));
  label->hide();
  // The focus is on a button, as on every box; the text comes after them.
  for (QAbstractButton* const button : box.buttons()) QWidget::setTabOrder(button, text);
}

}  // namespace zamo
