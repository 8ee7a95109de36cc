// The date of update and how it is compared, as both query dialogs ask for it.
#pragma once

#include <string>

#include "platform/dates.h"
#include "query/selection.h"

class QCheckBox;
class QHBoxLayout;
class QLineEdit;

namespace zamo {

class DateFields {
 public:
  // Opens with on or after. `format` stands below the fields, each of its words below its own.
  explicit DateFields(const char* format);

  // The row of all controls, for the frame that takes them.
  QHBoxLayout* row() const { return row_; }

  void setDate(const Date& date);
  DateChoice choice() const;

 private:
  QLineEdit* Txt_DD_;
  QLineEdit* Txt_MM_;
  QLineEdit* Txt_YYYY_;
  QCheckBox* CheckBoxGt_;
  QCheckBox* CheckBoxLs_;
  QCheckBox* CheckBoxEqual_;
  QHBoxLayout* row_;
};

}  // namespace zamo
