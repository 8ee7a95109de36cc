// A contour on a map: its points joined in their order and closed, over the outlines of the countries around.
#pragma once

#include <QPolygonF>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "map/world_map.h"

namespace zamo {

// The outlines of the countries within a box; lines of points with latitude first, in degrees.
using OutlinesAround = std::function<std::vector<GzmpLine>(const GzmpBox& box)>;

class ContourChart final : public QWidget {
 public:
  explicit ContourChart(OutlinesAround outlines, QWidget* parent = nullptr);

  // The points with the longitude as x and the latitude as y, in degrees, north and east positive.
  void setContour(const QString& title, const QPolygonF& points);

  const QString& title() const { return title_; }
  const QPolygonF& points() const { return points_; }

  // Where a point is drawn. A kilometre is as long on both axes.
  QPointF placeOf(const QPointF& point) const;

  QSize sizeHint() const override { return {520, 420}; }
  QSize minimumSizeHint() const override { return {240, 200}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void lookAround();
  void frame();
  QRectF plotArea() const;
  void drawGrid(QPainter& painter) const;
  void drawOutlines(QPainter& painter) const;
  void drawContour(QPainter& painter) const;

  OutlinesAround outlines_;
  QString title_;
  QPolygonF points_;
  QRectF degrees_;  // what the plot shows; y is the latitude
  std::vector<GzmpLine> around_;
};

}  // namespace zamo
