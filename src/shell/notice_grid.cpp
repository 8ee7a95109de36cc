#include "shell/notice_grid.h"

#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "database/key_value.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

// A column is as wide as the longest text and the first rows need, within bounds.
constexpr int kSampledRows = 200;
constexpr int kCellPadding = 14;
constexpr int kWidestInLetters = 40;

constexpr std::size_t kKeyColumn = 0;
constexpr std::size_t kTypeColumn = 3;

}  // namespace

NoticeGrid::NoticeGrid(Shell& shell) : shell_(shell) {
  setObjectName("NtcDataGrid");
  setAccessibleName("Notice");
  model_.setObjectName("adoDataSource");
  setModel(&model_);
}

void NoticeGrid::bind(GridRows rows) {
  model_.setRows(std::move(rows));
  fitColumns();
  setFixedColumns(fixedColumnCount(shell_.run));
  // Scrolled by hand: by itself it would bring the row into the middle as soon as it is shown.
  setAutoScroll(false);
  if (model_.rowCount() > 0) setCurrentIndex(model_.index(std::min(bookmark_, model_.rowCount() - 1), 0));
  setAutoScroll(true);
  doItemsLayout();
  verticalScrollBar()->setValue(scrolled_);
}

void NoticeGrid::clear() {
  model_.setRows({});
}

void NoticeGrid::openCurrent() {
  bookmark_ = std::max(0, currentIndex().row());
  scrolled_ = verticalScrollBar()->value();
  openGridRow(shell_, currentRow());
  bookmark_ = scrolled_ = 0;
}

std::optional<GridRow> NoticeGrid::currentRow() const {
  if (!currentIndex().isValid()) return {};
  const GridRows& rows = model_.rows();
  const auto row = static_cast<std::size_t>(currentIndex().row());
  const bool hasType = rows.columnCount() > kTypeColumn;
  return GridRow{toKey(std::string(rows.text(row, kKeyColumn))),
                 hasType ? std::string(rows.text(row, kTypeColumn)) : std::string()};
}

void NoticeGrid::fitColumns() {
  for (int column = 0; column < model_.columnCount(); ++column) {
    setColumnWidth(column, widthOfColumn(column));
  }
}

int NoticeGrid::widthOfColumn(int column) const {
  const QFontMetrics metrics = fontMetrics();
  const GridRows& rows = model_.rows();
  const auto place = static_cast<std::size_t>(column);
  const auto widthOf = [&](std::size_t row) {
    return metrics.horizontalAdvance(fromText(rows.text(row, place)));
  };
  int width = 0;
  const std::size_t sampled = std::min<std::size_t>(rows.rowCount(), kSampledRows);
  for (std::size_t row = 0; row < sampled; ++row) width = std::max(width, widthOf(row));
  if (sampled > 0) width = std::max(width, widthOf(rows.longestRow(place)));
  const int title = horizontalHeader()->fontMetrics().horizontalAdvance(fromText(rows.title(place)));
  return std::max(title, std::min(width, kWidestInLetters * metrics.averageCharWidth())) + kCellPadding;
}

}  // namespace zamo
