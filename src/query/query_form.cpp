#include "query/query_form.h"

#include <algorithm>
#include <string_view>

#include "database/recordset.h"
#include "platform/run_time_error.h"
#include "query/field_rules.h"
#include "query/leave_rules.h"
#include "query/query_controls.h"

namespace zamo {
namespace {

constexpr std::string_view kFormName = "QrySelectFrmKV19";

struct ListSources {
  std::string_view adm;
  std::string_view ctry;
};

constexpr ListSources kOfNotices = {"SELECT DISTINCT fmtv_vorna.adm AS Adm FROM fmtv_vorna",
                                    "SELECT DISTINCT fmtv_vorna.ctry AS Ctry FROM fmtv_vorna"};
constexpr ListSources kOfContours = {
    "SELECT DISTINCT lmz_contour.adm AS Adm FROM lmz_contour WHERE nb_test_pts IS NOT NULL",
    "SELECT DISTINCT lmz_contour.ctry AS Ctry FROM lmz_contour WHERE nb_test_pts IS NOT NULL"};

// Sorted. A Null is no value to pick.
std::vector<std::string> valuesOf(std::string_view sql, Connection& connection) {
  std::vector<std::string> values;
  for (Recordset rows(sql, connection); !rows.atEnd(); rows.MoveNext()) {
    if (const auto& value = rows.value(0)) values.push_back(*value);
  }
  std::sort(values.begin(), values.end());
  return values;
}

}  // namespace

QrySelectFrmKV19::QrySelectFrmKV19(const Host& host, RunState& run, QWidget* parent)
    : QDialog(parent), host_(host), run_(run), controls_(std::make_unique<QueryControls>()) {
  setObjectName("QrySelectFrmKV19");
  setWindowTitle("Query");
  const EndButtons end = controls_->placeOn(*this);
  checks_ = checkFieldsOnLeaving(host_, *this, *end.ButtonCancel);
  run_.qryIsNotice = true;
  run_.qrySql.clear();
  takeTypes();
  guarded([this] {
    controls_->Opt_SubArea->setEnabled(Recordset(kOfContours.adm, *run_.DbConn).RecordCount() > 0);
    fillLists();
  });

  connect(controls_->Opt_Assgn_Allot, &QRadioButton::toggled, this, &QrySelectFrmKV19::chooseGroup);
  for (const QCheckBox* const box :
       {controls_->CheckBoxGT1, controls_->CheckBoxGT2, controls_->CheckBoxGS1, controls_->CheckBoxGS2})
    connect(box, &QCheckBox::toggled, this, &QrySelectFrmKV19::takeTypes);
  connect(end.ButtonOK, &QPushButton::clicked, this, &QrySelectFrmKV19::confirm);
  connect(end.ButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(this, &QDialog::rejected, this, &QrySelectFrmKV19::cancel);
}

QrySelectFrmKV19::~QrySelectFrmKV19() = default;

void QrySelectFrmKV19::chooseGroup(bool isNotice) {
  run_.qryIsNotice = isNotice;
  for (QGroupBox* const frame : {controls_->NtcFrm, controls_->NtcTypFrm, controls_->TechFrm,
                                 controls_->SitenameFrm, controls_->NetWkFrm})
    frame->setEnabled(isNotice);
  showContourId(!isNotice);
  // Out of sight it would still filter.
  if (isNotice) controls_->TxtContourID->clear();
  guarded([this] { fillLists(); });
}

void QrySelectFrmKV19::takeTypes() {
  run_.QryGT1 = controls_->CheckBoxGT1->isChecked();
  run_.QryGT2 = controls_->CheckBoxGT2->isChecked();
  run_.QryGS1 = controls_->CheckBoxGS1->isChecked();
  run_.QryGS2 = controls_->CheckBoxGS2->isChecked();
  const bool shown = wantsAllotmentsOnly(run_.QryGT1, run_.QryGT2, run_.QryGS1, run_.QryGS2);
  showContourId(shown);
  if (!shown) controls_->TxtContourID->clear();
}

void QrySelectFrmKV19::showContourId(bool shown) {
  controls_->LblContourID->setVisible(shown);
  controls_->TxtContourID->setVisible(shown);
}

void QrySelectFrmKV19::fillLists() {
  const ListSources& sources = run_.qryIsNotice ? kOfNotices : kOfContours;
  const auto adms = valuesOf(sources.adm, *run_.DbConn);
  const auto ctrys = valuesOf(sources.ctry, *run_.DbConn);
  controls_->adm.show(adms);
  controls_->ctry.show(ctrys);
}

void QrySelectFrmKV19::guarded(const std::function<void()>& read) {
  try {
    read();
  } catch (const RunTimeError& error) {
    controls_->adm.show({});
    controls_->ctry.show({});
    showRunTimeError(host_, error.number, kFormName, error.text);
  }
}

void QrySelectFrmKV19::confirm() {
  const Hourglass busy(host_);
  QueryChoices choices = controls_->choices();
  if (!checks_->mayLeave() || !mayCompareDates(host_, choices.updated.after, choices.updated.prior)) return;
  choices.isNotice = run_.qryIsNotice;
  run_.qrySql = makeSelection(choices).qrySql;
  run_.qryConfirmed = true;
  accept();
}

// The statement is empty here, and a selection without one is of notices.
void QrySelectFrmKV19::cancel() {
  const Hourglass busy(host_);
  run_.qryConfirmed = false;
  run_.qryIsNotice = true;
}

}  // namespace zamo
