#include "shell/notice_grid_model.h"

#include <utility>

#include "widgets/qt_text.h"

namespace zamo {
namespace {

// A text of this length can be wider than its column may become.
constexpr std::size_t kLongText = 30;

}  // namespace

void NoticeGridModel::setRows(GridRows rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int NoticeGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.rowCount());
}

int NoticeGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.columnCount());
}

QVariant NoticeGridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::TextAlignmentRole) return alignment(column);
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  const std::string_view text = rows_.text(static_cast<std::size_t>(index.row()), column);
  if (role == Qt::ToolTipRole && text.size() < kLongText) return {};
  return fromText(text);
}

QVariant NoticeGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<std::size_t>(section);
  if (orientation != Qt::Horizontal || column >= rows_.columnCount()) return {};
  if (role == Qt::TextAlignmentRole) return alignment(column);
  return role == Qt::DisplayRole ? fromText(rows_.title(column)) : QVariant();
}

QVariant NoticeGridModel::alignment(std::size_t column) const {
  return {(rows_.holdsNumbers(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter};
}

}  // namespace zamo
