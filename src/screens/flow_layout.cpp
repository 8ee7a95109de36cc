#include "screens/flow_layout.h"

#include <QWidget>
#include <algorithm>
#include <numeric>

namespace zamo {
namespace {

bool growsIn(const QLayoutItem& item, Qt::Orientation direction) {
  return (item.expandingDirections() & direction) != 0;
}

}  // namespace

FlowLayout::FlowLayout(QWidget& page, int usualWidth) : QLayout(&page), usualWidth_(usualWidth) {}

FlowLayout::~FlowLayout() {
  qDeleteAll(items_);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  QLayoutItem* const item = itemAt(index);
  if (item != nullptr) items_.erase(items_.begin() + index);
  return item;
}

std::vector<FlowLayout::Row> FlowLayout::rowsFor(int width) const {
  std::vector<Row> rows;
  for (QLayoutItem* const item : items_) {
    const QSize size = item->sizeHint();
    if (rows.empty() || rows.back().width + spacing() + size.width() > width) rows.emplace_back();
    Row& row = rows.back();
    row.width += size.width() + (row.items.empty() ? 0 : spacing());
    row.height = std::max(row.height, size.height());
    row.grows = row.grows || growsIn(*item, Qt::Vertical);
    row.items.push_back(item);
  }
  return rows;
}

int FlowLayout::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  const std::vector<Row> rows = rowsFor(width - margins.left() - margins.right());
  const int between = spacing() * std::max(0, static_cast<int>(rows.size()) - 1);
  return std::accumulate(rows.begin(), rows.end(), margins.top() + margins.bottom() + between,
                         [](int sum, const Row& row) { return sum + row.height; });
}

QSize FlowLayout::sizeHint() const {
  const QMargins margins = contentsMargins();
  const int around = margins.left() + margins.right();
  int widest = 0;
  for (const Row& row : rowsFor(usualWidth_ - around)) widest = std::max(widest, row.width);
  return {widest + around, heightForWidth(widest + around)};
}

QSize FlowLayout::minimumSize() const {
  const QMargins margins = contentsMargins();
  int widest = 0;
  for (const QLayoutItem* const item : items_) widest = std::max(widest, item->minimumSize().width());
  return {widest + margins.left() + margins.right(), margins.top() + margins.bottom()};
}

void FlowLayout::placeRow(const Row& row, QRect place) const {
  const bool anyGrows = std::any_of(row.items.begin(), row.items.end(),
                                    [](const QLayoutItem* item) { return growsIn(*item, Qt::Horizontal); });
  auto takers =
      static_cast<int>(std::count_if(row.items.begin(), row.items.end(), [&](const QLayoutItem* item) {
        return !anyGrows || growsIn(*item, Qt::Horizontal);
      }));
  int left = place.width() - row.width;  // may be too little for a box that is alone in its row
  for (QLayoutItem* const item : row.items) {
    int width = item->sizeHint().width();
    if (!anyGrows || growsIn(*item, Qt::Horizontal)) {
      const int share = left / takers--;
      left -= share;
      width += share;
    }
    item->setGeometry({place.left(), place.top(), width, place.height()});
    place.setLeft(place.left() + width + spacing());
  }
}

void FlowLayout::setGeometry(const QRect& place) {
  QLayout::setGeometry(place);
  const QRect inner = place.marginsRemoved(contentsMargins());
  const std::vector<Row> rows = rowsFor(inner.width());
  auto takers =
      static_cast<int>(std::count_if(rows.begin(), rows.end(), [](const Row& row) { return row.grows; }));
  int left = std::max(0, place.height() - heightForWidth(place.width()));
  int top = inner.top();
  for (const Row& row : rows) {
    int height = row.height;
    if (row.grows) {
      const int share = left / takers--;
      left -= share;
      height += share;
    }
    placeRow(row, {inner.left(), top, inner.width(), height});
    top += height + spacing();
  }
}

}  // namespace zamo
