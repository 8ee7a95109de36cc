// The dialog that fills one value into a range of azimuths.
#pragma once

#include <QDialog>

#include "platform/host.h"
#include "screens/notice_form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zamo {

class FillRangeFrm final : public QDialog {
 public:
  // A height may not be above `hgtMax`, in metres; attenuations don't look at it.
  FillRangeFrm(const Host& host, FillGrid grid, int hgtMax, QWidget* parent = nullptr);

  // What OK left; after Cancel no azimuth is in the range.
  const AzimuthFill& fill() const { return fill_; }

 private:
  QLineEdit* addField(const char* name, const char* labelName, const char* caption);
  void enableOk();
  bool refuse(std::string_view title, std::string_view message);
  bool mayLeave(const QWidget& field);
  bool mayLeaveAzimuth(const QLineEdit& field);
  bool mayLeaveValue();
  void takeValues();

  const Host& host_;
  FillGrid grid_;
  int hgtMax_;
  AzimuthFill fill_;
  QLineEdit* TxtFrom_ = nullptr;
  QLineEdit* TxtTo_ = nullptr;
  QLineEdit* TxtValue_ = nullptr;
  QPushButton* Button_OK_ = nullptr;
};

}  // namespace zamo
