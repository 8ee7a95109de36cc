#include "query/date_fields.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "query/controls.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

// The middle of a word of the label, from its left edge.
int middleOf(const QLabel& label, const QString& word) {
  const QFontMetrics metrics(label.font());
  const qsizetype at = label.text().indexOf(word);
  return metrics.horizontalAdvance(label.text().left(at)) + metrics.horizontalAdvance(word) / 2;
}

// The three fields above their format, each in the middle of its word.
QVBoxLayout* placeAbove(QLabel& label, QLineEdit& day, QLineEdit& month, QLineEdit& year) {
  // Blanks as wide as letters make room for the fields.
  label.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  const int dayAt = middleOf(label, "dd");
  const int monthAt = middleOf(label, "mm");
  const int yearAt = middleOf(label, "yyyy");
  const int shortWidth = monthAt - dayAt - kGap;
  day.setFixedWidth(shortWidth);
  month.setFixedWidth(shortWidth);
  year.setFixedWidth(2 * (yearAt - monthAt - kGap) - shortWidth);
  label.setIndent(std::max(shortWidth / 2 - dayAt, 0));

  auto* const fields = new QHBoxLayout;
  fields->setSpacing(kGap);
  for (QLineEdit* const field : {&day, &month, &year}) fields->addWidget(field);
  auto* const rows = new QVBoxLayout;
  rows->setSpacing(0);
  rows->addLayout(fields);
  rows->addWidget(&label);
  return rows;
}

QString numberOf(unsigned number) {
  return QString::number(number);
}

}  // namespace

DateFields::DateFields(const char* format)
    : Txt_DD_(makeField("Txt_DD", "Date of Update, day")),
      Txt_MM_(makeField("Txt_MM", "Date of Update, month")),
      Txt_YYYY_(makeField("Txt_YYYY", "Date of Update, year")),
      CheckBoxGt_(makeCheckBox("CheckBoxGt", "After")),
      CheckBoxLs_(makeCheckBox("CheckBoxLs", "Prior")),
      CheckBoxEqual_(makeCheckBox("CheckBoxEqual", "Equal")),
      row_(new QHBoxLayout) {
  row_->setSpacing(kGap);
  row_->addLayout(placeAbove(*makeLabel("LblDDMMYYYY", format), *Txt_DD_, *Txt_MM_, *Txt_YYYY_));
  for (QCheckBox* const box : {CheckBoxGt_, CheckBoxLs_, CheckBoxEqual_})
    row_->addWidget(box, 0, Qt::AlignTop);
  row_->addStretch();
  CheckBoxGt_->setChecked(true);
  CheckBoxEqual_->setChecked(true);
}

void DateFields::setDate(const Date& date) {
  Txt_DD_->setText(numberOf(static_cast<unsigned>(date.day())));
  Txt_MM_->setText(numberOf(static_cast<unsigned>(date.month())));
  Txt_YYYY_->setText(QString::number(static_cast<int>(date.year())));
}

DateChoice DateFields::choice() const {
  return {toText(Txt_DD_->text()),  toText(Txt_MM_->text()),  toText(Txt_YYYY_->text()),
          CheckBoxGt_->isChecked(), CheckBoxLs_->isChecked(), CheckBoxEqual_->isChecked()};
}

}  // namespace zamo
