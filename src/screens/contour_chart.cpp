#include "screens/contour_chart.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace zamo {
namespace {

constexpr double kMargin = 0.15;       // around the contour, of its larger side
constexpr double kSmallestSide = 0.1;  // degrees
constexpr double kReach = 2.5;         // of the outlines, in larger sides of the contour
constexpr int kTitleHeight = 28;
constexpr int kAxisWidth = 52;
constexpr int kAxisHeight = 24;
constexpr int kGridLines = 6;
constexpr double kPointRadius = 2.5;

// Degrees of longitude shorten towards the poles.
double shorteningAt(double latitude) {
  return std::max(0.05, std::cos(latitude * std::numbers::pi / 180));
}

// 1, 2 or 5 of some power of ten, so that about `lines` of them make the range.
double gridStep(double range, int lines) {
  const double rough = range / lines;
  const double power = std::pow(10, std::floor(std::log10(rough)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= rough) return factor * power;
  }
  return 10 * power;
}

QString degreesText(double value, double step) {
  const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
  return QString::number(value, 'f', decimals) + QChar(0xB0);
}

}  // namespace

ContourChart::ContourChart(OutlinesAround outlines, QWidget* parent)
    : QWidget(parent), outlines_(std::move(outlines)) {
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ContourChart::setContour(const QString& title, const QPolygonF& points) {
  title_ = title;
  points_ = points;
  setAccessibleName(title);
  lookAround();
  frame();
  update();
}

QRectF ContourChart::plotArea() const {
  return QRectF(rect()).adjusted(kAxisWidth, kTitleHeight, -12, -kAxisHeight);
}

// Puts the contour into the middle of the plot, with some room around, in its true proportions.
void ContourChart::frame() {
  const QRectF plot = plotArea();
  if (points_.isEmpty() || plot.width() <= 0 || plot.height() <= 0) return;
  const QRectF box = points_.boundingRect();
  const double shortening = shorteningAt(box.center().y());
  const double side = std::max({box.width() * shortening, box.height(), kSmallestSide}) * kMargin;
  const double width = std::max(box.width() * shortening, kSmallestSide) + 2 * side;
  const double height = std::max(box.height(), kSmallestSide) + 2 * side;
  const double perPixel = std::max(width / plot.width(), height / plot.height());
  const QSizeF shown(plot.width() * perPixel / shortening, plot.height() * perPixel);
  degrees_ = QRectF(box.center() - QPointF(shown.width() / 2, shown.height() / 2), shown);
}

// The outlines are asked for once, so far around that they are there whatever the shape of the window.
void ContourChart::lookAround() {
  around_.clear();
  if (points_.isEmpty()) return;
  const QRectF box = points_.boundingRect();
  const double shortening = shorteningAt(box.center().y());
  const double reach = std::max({box.width() * shortening, box.height(), kSmallestSide}) * kReach;
  const QPointF middle = box.center();
  around_ = outlines_({middle.x() - reach / shortening, std::max(middle.y() - reach, -90.0),
                       middle.x() + reach / shortening, std::min(middle.y() + reach, 90.0)});
}

QPointF ContourChart::placeOf(const QPointF& point) const {
  const QRectF plot = plotArea();
  return {plot.left() + (point.x() - degrees_.left()) / degrees_.width() * plot.width(),
          plot.bottom() - (point.y() - degrees_.top()) / degrees_.height() * plot.height()};
}

void ContourChart::resizeEvent(QResizeEvent* /*event*/) {
  frame();
}

void ContourChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont bold = font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRect(0, 0, width(), kTitleHeight), Qt::AlignCenter, title_);
  painter.setFont(font());
  if (points_.isEmpty()) return;
  drawGrid(painter);
  painter.setClipRect(plotArea());
  drawOutlines(painter);
  drawContour(painter);
}

void ContourChart::drawGrid(QPainter& painter) const {
  const QRectF plot = plotArea();
  const QPen line(palette().color(QPalette::Midlight), 1, Qt::DotLine);
  const QPen text(palette().color(QPalette::Text));
  const double stepX = gridStep(degrees_.width(), kGridLines);
  for (double x = std::ceil(degrees_.left() / stepX) * stepX; x <= degrees_.right(); x += stepX) {
    const double place = placeOf({x, degrees_.top()}).x();
    painter.setPen(line);
    painter.drawLine(QPointF(place, plot.top()), QPointF(place, plot.bottom()));
    painter.setPen(text);
    painter.drawText(QRectF(place - kAxisWidth, plot.bottom() + 2, 2 * kAxisWidth, kAxisHeight),
                     Qt::AlignHCenter | Qt::AlignTop, degreesText(x, stepX));
  }
  const double stepY = gridStep(degrees_.height(), kGridLines);
  for (double y = std::ceil(degrees_.top() / stepY) * stepY; y <= degrees_.bottom(); y += stepY) {
    const double place = placeOf({degrees_.left(), y}).y();
    painter.setPen(line);
    painter.drawLine(QPointF(plot.left(), place), QPointF(plot.right(), place));
    painter.setPen(text);
    painter.drawText(QRectF(0, place - kAxisHeight / 2.0, kAxisWidth - 4, kAxisHeight),
                     Qt::AlignRight | Qt::AlignVCenter, degreesText(y, stepY));
  }
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(plot);
}

void ContourChart::drawOutlines(QPainter& painter) const {
  painter.setPen(QPen(palette().color(QPalette::Mid), 1.2));
  for (const GzmpLine& line : around_) {
    QPolygonF places;
    places.reserve(static_cast<qsizetype>(line.size()));
    for (const GzmpPoint& point : line) places << placeOf({point[1], point[0]});
    painter.drawPolyline(places);
  }
}

void ContourChart::drawContour(QPainter& painter) const {
  QPolygonF places;
  for (const QPointF& point : points_) places << placeOf(point);
  QColor inside = palette().color(QPalette::Highlight);
  painter.setPen(QPen(inside, 2));
  inside.setAlpha(40);
  painter.setBrush(inside);
  painter.drawPolygon(places);
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.setPen(Qt::NoPen);
  for (const QPointF& place : places) painter.drawEllipse(place, kPointRadius, kPointRadius);
}

}  // namespace zamo
