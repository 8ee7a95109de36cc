// The grid of the selected notices.
#pragma once

#include <optional>

#include "shell/frozen_table.h"
#include "shell/notice_grid_model.h"
#include "shell/notice_query.h"

namespace zamo {

class NoticeGrid final : public FrozenTable {
 public:
  // Shows the selection of `shell`, which must outlive the grid.
  explicit NoticeGrid(Shell& shell);

  // Takes rows of the selection. The current one is the first, or the one that openCurrent remembers.
  void bind(GridRows rows);

  // Lets go of all rows.
  void clear();

  // Opens the notice of the current row. When the rows are shown again the current row is the same, or the
  // last one if there are fewer by then.
  void openCurrent();

 private:
  std::optional<GridRow> currentRow() const;
  void fitColumns();
  int widthOfColumn(int column) const;

  Shell& shell_;
  NoticeGridModel model_;
  int bookmark_ = 0;
  int scrolled_ = 0;
};

}  // namespace zamo
