#include "query/value_filter.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <algorithm>

#include "query/controls.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

constexpr QSize kSmallestList(76, 112);
constexpr QSize kItemMargin(14, 6);

// Shows its short values side by side, as many as there is room for.
QListWidget* makeList(const char* name, const QString& spokenName) {
  auto* list = new QListWidget;
  list->setObjectName(name);
  list->setAccessibleName(spokenName);
  list->setFlow(QListView::LeftToRight);
  list->setWrapping(true);
  list->setResizeMode(QListView::Adjust);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setMinimumSize(kSmallestList);
  list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return list;
}

// All of the size of the widest, so that they stand in columns.
void alignItems(QListWidget& list) {
  const QFontMetrics metrics(list.font());
  int width = 0;
  for (int row = 0; row < list.count(); ++row)
    width = std::max(width, metrics.horizontalAdvance(list.item(row)->text()));
  for (int row = 0; row < list.count(); ++row)
    list.item(row)->setSizeHint(QSize(width, metrics.height()) + kItemMargin);
}

QString textOf(const QList<QListWidgetItem*>& selected) {
  return selected.isEmpty() ? QString() : selected.first()->text();
}

QList<QListWidgetItem*> itemsOf(const QListWidget& list, const QString& text) {
  return list.findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

}  // namespace

ValueFilter::ValueFilter(const ValueFilterNames& names)
    : frame_(makeFrame(names.frame, names.frameCaption)),
      source_(makeLabel(names.source, names.sourceCaption)),
      dataList_(makeList(names.dataList, QString(names.sourceCaption))),
      selectList_(makeList(names.selectList, QString(names.sourceCaption) + ", chosen")),
      add_(makeButton(names.add, names.addCaption)),
      del_(makeButton(names.del, "Del")),
      addAll_(makeButton(names.addAll, "Add All")),
      clear_(makeButton(names.clear, "Clear")) {
  placeControls();
  connectControls();
  for (QPushButton* const button : {add_, del_, clear_}) button->setEnabled(false);
}

void ValueFilter::placeControls() {
  auto* const buttons = new QVBoxLayout;
  buttons->setSpacing(kGap);
  for (QPushButton* const button : {add_, addAll_, del_, clear_}) buttons->addWidget(button);
  buttons->addStretch();
  auto* const columns = new QHBoxLayout(frame_);
  tighten(*columns);
  columns->addWidget(dataList_, 1);
  columns->addLayout(buttons);
  columns->addWidget(selectList_, 1);
  source_->setParent(frame_);
  source_->hide();
}

void ValueFilter::connectControls() {
  const auto onClick = [this](QPushButton* button, void (ValueFilter::*act)()) {
    QObject::connect(button, &QPushButton::clicked, frame_, [this, act] { (this->*act)(); });
  };
  onClick(add_, &ValueFilter::add);
  onClick(addAll_, &ValueFilter::addAll);
  onClick(del_, &ValueFilter::del);
  onClick(clear_, &ValueFilter::clear);
  QObject::connect(dataList_, &QListWidget::itemSelectionChanged, frame_, [this] { pick(); });
  QObject::connect(dataList_, &QListWidget::itemClicked, frame_, [this] { pick(); });
  QObject::connect(dataList_, &QListWidget::itemDoubleClicked, frame_, [this] { add(); });
  QObject::connect(selectList_, &QListWidget::itemSelectionChanged, frame_, [this] { choose(); });
}

void ValueFilter::show(const std::vector<std::string>& values) {
  const bool wasPicked = add_->isEnabled();
  const QString picked = textOf(dataList_->selectedItems());
  dataList_->clear();
  for (const std::string& value : values) dataList_->addItem(fromText(value));
  alignItems(*dataList_);
  const auto same = itemsOf(*dataList_, picked);
  if (wasPicked && !same.isEmpty()) dataList_->setCurrentItem(same.first());
}

ListChoice ValueFilter::choice() const {
  ListChoice choice;
  choice.all = allAdded_;
  for (int row = 0; row < selectList_->count(); ++row)
    choice.values.push_back(toText(selectList_->item(row)->text()));
  return choice;
}

void ValueFilter::pick() {
  add_->setEnabled(!dataList_->selectedItems().isEmpty());
}

void ValueFilter::add() {
  const QString picked = textOf(dataList_->selectedItems());
  if (itemsOf(*selectList_, picked).isEmpty()) selectList_->addItem(picked);
  alignItems(*selectList_);
  clear_->setEnabled(true);
  allAdded_ = false;
}

void ValueFilter::addAll() {
  const int chosen = selectList_->currentRow();
  const bool wasChosen = !selectList_->selectedItems().isEmpty();
  selectList_->clear();
  for (int row = 0; row < dataList_->count(); ++row) selectList_->addItem(dataList_->item(row)->text());
  alignItems(*selectList_);
  if (wasChosen) selectList_->setCurrentRow(std::min(chosen, selectList_->count() - 1));
  clear_->setEnabled(true);
  addAll_->setEnabled(false);
  add_->setEnabled(false);
  allAdded_ = true;
}

void ValueFilter::choose() {
  del_->setEnabled(!selectList_->selectedItems().isEmpty());
}

// The next item is chosen then, so that several are deleted by as many clicks.
void ValueFilter::del() {
  const int row = selectList_->currentRow();
  delete selectList_->takeItem(row);
  selectList_->setCurrentRow(std::min(row, selectList_->count() - 1));
  if (selectList_->count() == 0) {
    del_->setEnabled(false);
    clear_->setEnabled(false);
  }
  addAll_->setEnabled(true);
  allAdded_ = false;
}

void ValueFilter::clear() {
  selectList_->clear();
  del_->setEnabled(false);
  clear_->setEnabled(false);
  addAll_->setEnabled(true);
  allAdded_ = false;
}

}  // namespace zamo
