#include "screens/fill_range_frm.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cmath>

#include "platform/message.h"
#include "platform/numbers.h"
#include "screens/field_values.h"
#include "widgets/leave_checks.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

// clang-format off
const Message kFillHeights("title of the dialog that fills a range of 9EC", "Fill in Effective Antenna Height for a Range of azimuths");
const Message kFillAttenuations("title of the dialog that fills a range of 9NH or 9NV", "Fill in e.r.p Attenuation for a Range of azimuths");
const Message kNoAzimuthMessage("box \"Prevalidation Error - Fill Range\": an end of a range of azimuths", "The azm must be between [0, 350] at 10\272 intervals");
const Message kNoRange("box \"Prevalidation Error - Fill Range\": a range that ends before it begins", "Invalid range, azm:FROM is greater than azm:TO");
const Message kNoHeight("box \"Prevalidation Error - Eff. ant. height\": the value for a range of 9EC", "Value must be an integer between [-3000, 3000] and less than the t_eff_hgtmax (9EB)");
const Message kNoAttenuation("box \"Prevalidation Error - Attenuation \": the value for a range of 9NH or 9NV", " : Value should be a numerical between [0.0 , 40.0]");
// clang-format on

constexpr int kFieldWidth = 8;  // characters
constexpr int kLastAzimuth = 350;
constexpr int kAzimuthStep = 10;
constexpr double kHighestHeight = 3000;
constexpr double kHighestAttenuation = 40;

double numberIn(const QLineEdit& field) {
  return leadingNumber(toText(field.text()));
}

}  // namespace

FillRangeFrm::FillRangeFrm(const Host& host, FillGrid grid, int hgtMax, QWidget* parent)
    : QDialog(parent), host_(host), grid_(grid), hgtMax_(hgtMax) {
  const bool isHeight = grid == FillGrid::effectiveHeight;
  setObjectName("FillRangeFrm");
  setWindowTitle(fromText((isHeight ? kFillHeights : kFillAttenuations).words()));
  auto* const cells = new QGridLayout(this);
  auto* const azm = new QLabel("Azimuth");
  azm->setObjectName("LblAzm");
  cells->addWidget(azm, 0, 0, 1, 2);
  TxtFrom_ = addField("TxtFrom", "LblFrom", "From");
  TxtTo_ = addField("TxtTo", "LblTo", "To");
  TxtValue_ = addField("TxtValue", "LblValue", isHeight ? "eff_hgt" : "attn");
  auto* const buttons = new QDialogButtonBox;
  Button_OK_ = buttons->addButton("&OK", QDialogButtonBox::AcceptRole);
  Button_OK_->setObjectName("Button_OK");
  QPushButton* const cancel = buttons->addButton("&Cancel", QDialogButtonBox::RejectRole);
  cancel->setObjectName("Button_Cancel");
  cells->addWidget(buttons, cells->rowCount(), 0, 1, 2);
  cells->setColumnStretch(1, 1);
  auto* const checks = new LeaveChecks(*this, [this](QWidget& field) { return mayLeave(field); });
  checks->setFree(*cancel);
  connect(Button_OK_, &QPushButton::clicked, this, [this] { takeValues(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  enableOk();
}

QLineEdit* FillRangeFrm::addField(const char* name, const char* labelName, const char* caption) {
  auto* const cells = static_cast<QGridLayout*>(layout());
  auto* const label = new QLabel(caption);
  label->setObjectName(labelName);
  auto* const field = new QLineEdit;
  field->setObjectName(name);
  field->setAccessibleName(caption);
  field->setAlignment(Qt::AlignRight);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kFieldWidth);
  label->setBuddy(field);
  const int row = cells->rowCount();
  cells->addWidget(label, row, 0);
  cells->addWidget(field, row, 1);
  connect(field, &QLineEdit::textChanged, this, [this] { enableOk(); });
  return field;
}

void FillRangeFrm::enableOk() {
  if (Button_OK_ == nullptr) return;
  Button_OK_->setEnabled(!TxtFrom_->text().isEmpty() && !TxtTo_->text().isEmpty() &&
                         !TxtValue_->text().isEmpty());
}

bool FillRangeFrm::refuse(std::string_view title, std::string_view message) {
  host_.showBox({std::string(message), std::string(title), BoxIcon::exclamation});
  return false;
}

bool FillRangeFrm::mayLeave(const QWidget& field) {
  if (&field == TxtValue_) return mayLeaveValue();
  if (&field == TxtFrom_ || &field == TxtTo_) return mayLeaveAzimuth(static_cast<const QLineEdit&>(field));
  return true;
}

bool FillRangeFrm::mayLeaveAzimuth(const QLineEdit& field) {
  if (field.text().isEmpty()) return true;
  const bool isAzimuth = isIntegerIn(within(0, kLastAzimuth), toText(field.text())) &&
                         std::fmod(numberIn(field), kAzimuthStep) == 0;
  if (!isAzimuth) return refuse("Prevalidation Error - Fill Range", kNoAzimuthMessage.words());
  if (TxtFrom_->text().isEmpty() || TxtTo_->text().isEmpty() || numberIn(*TxtFrom_) <= numberIn(*TxtTo_))
    return true;
  return refuse("Prevalidation Error - Fill Range", kNoRange.words());
}

bool FillRangeFrm::mayLeaveValue() {
  const std::string text = toText(TxtValue_->text());
  if (text.empty()) return true;
  if (grid_ == FillGrid::attenuation) {
    return isNumberIn(within(0, kHighestAttenuation), text) ||
           refuse("Prevalidation Error - Attenuation ", kNoAttenuation.words());
  }
  return (isIntegerIn(within(-kHighestHeight, kHighestHeight), text) && leadingNumber(text) <= hgtMax_) ||
         refuse("Prevalidation Error - Eff. ant. height", kNoHeight.words());
}

void FillRangeFrm::takeValues() {
  for (QLineEdit* const field : {TxtFrom_, TxtTo_, TxtValue_}) {
    if (mayLeave(*field)) continue;
    field->setFocus();
    return;
  }
  fill_ = {toText(TxtValue_->text()), static_cast<int>(numberIn(*TxtFrom_)),
           static_cast<int>(numberIn(*TxtTo_))};
  accept();
}

}  // namespace zamo
