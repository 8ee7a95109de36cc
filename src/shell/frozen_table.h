// A table whose first columns stay in sight when it scrolls sideways. A second view of the same rows lies
// over them.
#pragma once

#include <QTableView>
#include <functional>

namespace zamo {

class FrozenTable : public QTableView {
 public:
  explicit FrozenTable(QWidget* parent = nullptr);

  // Called for Enter and for a double click on a row, or anywhere on a table without rows.
  std::function<void()> onOpen;

  void setModel(QAbstractItemModel* model) override;

  // The user can't change the width of that many columns from the left, and they stay in sight as far as they
  // leave half of the table to the others: in a narrow window every column can still be read.
  void setFixedColumns(int count);

  // The columns that stay in sight at the present width: none where all of them fit.
  int frozenColumns() const { return frozenCount_; }

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void updateGeometries() override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  int columnsThatCanFreeze() const;
  void placeOverlay();
  void followScrolling();
  void openAt(const QTableView& view, const QMouseEvent& event);

  QTableView* overlay_;
  QFrame* edge_;  // of what stays in sight
  int fixedCount_ = 0;
  int frozenCount_ = 0;
  int frozenWidth_ = 0;
};

}  // namespace zamo
