// The rows of the grid as the toolkit's views ask for them.
#pragma once

#include <QAbstractTableModel>

#include "shell/grid_rows.h"

namespace zamo {

class NoticeGridModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void setRows(GridRows rows);
  const GridRows& rows() const { return rows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  // The text, numbers to the right, and long texts once more as their tool tips.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 private:
  QVariant alignment(std::size_t column) const;

  GridRows rows_;
};

}  // namespace zamo
