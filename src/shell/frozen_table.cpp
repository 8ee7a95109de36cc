#include "shell/frozen_table.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace zamo {
namespace {

constexpr int kRowPadding = 8;
constexpr int kEdgeWidth = 2;

// What both views have in common, so that their rows lie side by side.
void setUpView(QTableView& view) {
  view.setSelectionBehavior(QAbstractItemView::SelectRows);
  view.setSelectionMode(QAbstractItemView::SingleSelection);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  view.setAlternatingRowColors(true);
  view.setWordWrap(false);
  view.setTabKeyNavigation(false);
  view.verticalHeader()->hide();
  view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + kRowPadding);
  view.horizontalHeader()->setHighlightSections(false);
  view.horizontalHeader()->setSectionsClickable(false);
  view.setCornerButtonEnabled(false);
}

}  // namespace

FrozenTable::FrozenTable(QWidget* parent)
    : QTableView(parent), overlay_(new QTableView(this)), edge_(new QFrame(this)) {
  setUpView(*this);
  setUpView(*overlay_);
  overlay_->setFrameShape(QFrame::NoFrame);
  overlay_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  overlay_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  overlay_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  overlay_->setAutoScroll(false);
  // A click there gives the table the focus; the tabulator doesn't stop twice.
  overlay_->setFocusPolicy(Qt::ClickFocus);
  overlay_->setFocusProxy(this);
  overlay_->viewport()->installEventFilter(this);
  overlay_->hide();
  edge_->setFrameStyle(QFrame::VLine | QFrame::Plain);
  edge_->setLineWidth(kEdgeWidth);
  edge_->setForegroundRole(QPalette::Mid);
  edge_->setAttribute(Qt::WA_TransparentForMouseEvents);
  edge_->hide();
  // The overlay never leads: it can be behind with its layout.
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { followScrolling(); });
  connect(overlay_->verticalScrollBar(), &QScrollBar::rangeChanged, this, [this] { followScrolling(); });
}

void FrozenTable::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  overlay_->setModel(model);
  overlay_->setSelectionModel(selectionModel());
}

void FrozenTable::setFixedColumns(int count) {
  fixedCount_ = count;
  for (int column = 0; column < horizontalHeader()->count(); ++column) {
    horizontalHeader()->setSectionResizeMode(column,
                                             column < count ? QHeaderView::Fixed : QHeaderView::Interactive);
  }
  updateGeometries();
}

int FrozenTable::columnsThatCanFreeze() const {
  const int room = viewport()->width();
  if (horizontalHeader()->length() <= room) return 0;
  int count = 0;
  int width = 0;
  while (count < fixedCount_ && count < horizontalHeader()->count()) {
    width += columnWidth(count);
    if (width > room / 2) break;
    ++count;
  }
  return count;
}

void FrozenTable::placeOverlay() {
  frozenCount_ = columnsThatCanFreeze();
  frozenWidth_ = 0;
  for (int column = 0; column < horizontalHeader()->count(); ++column) {
    const bool isFrozen = column < frozenCount_;
    overlay_->setColumnHidden(column, !isFrozen);
    if (!isFrozen) continue;
    overlay_->setColumnWidth(column, columnWidth(column));
    frozenWidth_ += columnWidth(column);
  }
  const QRect rows = viewport()->geometry();
  const int top = horizontalHeader()->geometry().top();
  const int height = rows.bottom() + 1 - top;
  overlay_->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
  overlay_->setGeometry(rows.left(), top, frozenWidth_, height);
  overlay_->setVisible(frozenCount_ > 0);
  edge_->setGeometry(rows.left() + frozenWidth_ - 1, top, kEdgeWidth, height);
  edge_->setVisible(frozenCount_ > 0);
  followScrolling();
}

void FrozenTable::followScrolling() {
  overlay_->verticalScrollBar()->setValue(verticalScrollBar()->value());
}

void FrozenTable::updateGeometries() {
  QTableView::updateGeometries();
  placeOverlay();
}

void FrozenTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int before = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  if (frozenCount_ == 0) return;
  if (index.column() < frozenCount_) {
    horizontalScrollBar()->setValue(before);
    return;
  }
  const int hidden = frozenWidth_ - visualRect(index).left();
  if (hidden > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void FrozenTable::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) return QTableView::keyPressEvent(event);
  event->accept();
  if (onOpen) onOpen();
}

void FrozenTable::mouseDoubleClickEvent(QMouseEvent* event) {
  openAt(*this, *event);
}

bool FrozenTable::eventFilter(QObject* watched, QEvent* event) {
  if (watched != overlay_->viewport()) return QTableView::eventFilter(watched, event);
  if (event->type() == QEvent::MouseButtonDblClick) {
    openAt(*overlay_, *static_cast<QMouseEvent*>(event));
    return true;
  }
  if (event->type() == QEvent::Wheel) {
    QCoreApplication::sendEvent(viewport(), event);
    return true;
  }
  return false;
}

void FrozenTable::openAt(const QTableView& view, const QMouseEvent& event) {
  const bool hasRows = model() != nullptr && model()->rowCount() > 0;
  const bool isOnRow = view.indexAt(event.position().toPoint()).isValid();
  if (event.button() == Qt::LeftButton && (isOnRow || !hasRows) && onOpen) onOpen();
}

}  // namespace zamo
