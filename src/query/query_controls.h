// The controls of the query form and their places on it.
#pragma once

#include <QRadioButton>

#include "query/controls.h"
#include "query/date_fields.h"
#include "query/value_filter.h"

class QVBoxLayout;

namespace zamo {

// Made in the state in which the form opens, but for what the database and the run decide. The form that they
// are placed on owns them.
struct QueryControls {
  QueryControls();

  // All of them, in rows that scroll when the display is small. Gives the buttons that end the form.
  EndButtons placeOn(QDialog& form) const;

  QueryChoices choices() const;

  QRadioButton* Opt_Assgn_Allot;
  QRadioButton* Opt_SubArea;
  ValueFilter adm;
  ValueFilter ctry;
  QLabel* LblContourID;
  QLineEdit* TxtContourID;
  QCheckBox* CheckBoxGT1;
  QCheckBox* CheckBoxGT2;
  QCheckBox* CheckBoxGS1;
  QCheckBox* CheckBoxGS2;
  QLineEdit* TxtChannelFreq;
  QLineEdit* TxtErp_fr;
  QLineEdit* TxtErp_to;
  QCheckBox* CheckBoxRPC;
  QCheckBox* CheckBoxSysVar;
  QCheckBox* CheckBoxSfn;
  QCheckBox* CheckBoxMFN;
  QLineEdit* TxtSFNID;
  QLineEdit* TxtSitename;
  QLineEdit* TxtRmks;
  DateFields updated;

  QGroupBox* NtcTypFrm;
  QGroupBox* TechFrm;
  QGroupBox* NetWkFrm;
  QGroupBox* SitenameFrm;
  QGroupBox* NtcFrm;
};

}  // namespace zamo
