// A contour in full: its number, its points as a list and as a chart.
#pragma once

#include <QDialog>

#include "model/ntc_rec.h"
#include "screens/contour_chart.h"

class QGridLayout;

namespace zamo {

class ContourDetailFrm final : public QDialog {
 public:
  // Shows the points that are present. `footer` tells under the chart which program drew it.
  ContourDetailFrm(const NtcRec& contour, OutlinesAround outlines, std::string_view footer,
                   QWidget* parent = nullptr);

 private:
  void addField(QGridLayout& cells, const char* name, const char* caption, const std::string& text);
};

// The point in degrees, with the longitude as x and the latitude as y, north and east positive.
QPointF chartPoint(const PointRec& point);

}  // namespace zamo
