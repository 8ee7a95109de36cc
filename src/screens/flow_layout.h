// Lays boxes out in rows, as many side by side as the width allows.
#pragma once

#include <QLayout>
#include <vector>

namespace zamo {

// The boxes of a row are equally high and fill its width: what is left goes to those that want to grow, or to
// all of them. Height that is left goes to the rows that want to grow.
class FlowLayout final : public QLayout {
 public:
  // `usualWidth` is what the layout asks for if nothing says otherwise.
  FlowLayout(QWidget& page, int usualWidth);
  FlowLayout(const FlowLayout&) = delete;
  FlowLayout& operator=(const FlowLayout&) = delete;
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.push_back(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  Qt::Orientations expandingDirections() const override { return {}; }
  void setGeometry(const QRect& place) override;

 private:
  struct Row {
    std::vector<QLayoutItem*> items;
    int width = 0;
    int height = 0;
    bool grows = false;
  };
  std::vector<Row> rowsFor(int width) const;
  void placeRow(const Row& row, QRect place) const;

  std::vector<QLayoutItem*> items_;
  int usualWidth_;
};

}  // namespace zamo
