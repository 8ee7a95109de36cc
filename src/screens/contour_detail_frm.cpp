#include "screens/contour_detail_frm.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "platform/coordinates.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "screens/screen_mapping.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

const Message kChartTitle("title of the chart of a contour", "Contour ID : %1");

constexpr QSize kSize(900, 560);
constexpr int kListCharacters = 20;

int numberOf(std::string_view text) {
  return static_cast<int>(leadingNumber(text));
}

double decimalDegrees(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                      bool isNegative) {
  const double value = dmsToDegrees(numberOf(degrees), numberOf(minutes), numberOf(seconds));
  return isNegative ? -value : value;
}

}  // namespace

QPointF chartPoint(const PointRec& point) {
  const std::string_view lon = point.t_long;
  const std::string_view lat = point.t_lat;
  return {decimalDegrees(longDeg(lon), longMin(lon), longSec(lon), longHemisphere(lon) == "W"),
          decimalDegrees(latDeg(lat), latMin(lat), latSec(lat), latHemisphere(lat) == "S")};
}

ContourDetailFrm::ContourDetailFrm(const NtcRec& contour, OutlinesAround outlines, std::string_view footer,
                                   QWidget* parent)
    : QDialog(parent) {
  setObjectName("ContourDetailFrm");
  const ContourRec& record = contour.digital.contour;
  const std::string title = kChartTitle.filled({record.t_contour_id});
  setWindowTitle(fromText(title));

  auto* const left = new QGridLayout;
  const auto ifSet = [&record](const std::string& text) { return record.present ? text : std::string(); };
  addField(*left, "Txt_LMZ04_contour_id", "Contour ID", ifSet(record.t_contour_id));
  addField(*left, "Txt_LMZ04_nb_test_pts", "Nb. Test pts", ifSet(record.t_nb_test_pts));
  addField(*left, "TxtAdm", "B", contour.t_adm);
  addField(*left, "TxtCtry", "4B", contour.t_ctry);
  auto* const list = new QListWidget;
  list->setObjectName("ListBox_LMZ04_Coordinates");
  list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list->setMinimumWidth(list->fontMetrics().horizontalAdvance('0') * kListCharacters);
  auto* const listLabel = new QLabel("Geo. Coordinates (long, lat)");
  listLabel->setObjectName("Lbl_LMZ04_Coordinates");
  listLabel->setBuddy(list);
  left->addWidget(listLabel, left->rowCount(), 0, 1, 2);
  left->addWidget(list, left->rowCount(), 0, 1, 2);

  QPolygonF points;
  for (const PointRec& point : record.points) {
    if (!point.present) continue;
    list->addItem(fromText(pointItem(point)));
    points << chartPoint(point);
  }
  auto* const chart = new ContourChart(std::move(outlines));
  chart->setObjectName("MSChart_Contour");
  chart->setContour(fromText(title), points);

  auto* const footerLine = new QLabel(fromText(footer));
  footerLine->setObjectName("Lbl_PrinterFooter");
  footerLine->setEnabled(false);
  auto* const buttons = new QDialogButtonBox;
  QPushButton* const close = buttons->addButton("&Close", QDialogButtonBox::RejectRole);
  close->setObjectName("Button_Close");
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  auto* const cells = new QGridLayout(this);
  cells->addLayout(left, 0, 0);
  cells->addWidget(chart, 0, 1);
  cells->addWidget(footerLine, 1, 0, 1, 2);
  cells->addWidget(buttons, 2, 0, 1, 2);
  cells->setColumnStretch(1, 1);
  cells->setRowStretch(0, 1);
  resize(kSize.boundedTo(screen()->availableSize()));
}

void ContourDetailFrm::addField(QGridLayout& cells, const char* name, const char* caption,
                                const std::string& text) {
  auto* const label = new QLabel(caption);
  auto* const field = new QLineEdit(fromText(text));
  field->setObjectName(name);
  field->setReadOnly(true);
  label->setBuddy(field);
  const int row = cells.rowCount();
  cells.addWidget(label, row, 0);
  cells.addWidget(field, row, 1);
}

}  // namespace zamo
