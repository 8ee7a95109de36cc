#include "query/only_date_update.h"

#include <QVBoxLayout>

#include "query/controls.h"
#include "query/date_fields.h"
#include "query/field_rules.h"
#include "query/leave_rules.h"

namespace zamo {
namespace {

constexpr const char* kTabOrder[] = {"Txt_DD",     "Txt_MM",        "Txt_YYYY", "CheckBoxGt",
                                     "CheckBoxLs", "CheckBoxEqual", "ButtonOK", "ButtonCancel"};

}  // namespace

OnlyDateUpdate::OnlyDateUpdate(const Host& host, QWidget* parent) : QDialog(parent) {
  setObjectName("OnlyDateUpdate");
  setWindowTitle("Date of Update");
  DateFields date(" dd     mm       yyyy");
  date.setDate(host.now().date);
  QGroupBox* const NtcFrm = makeFrame("NtcFrm", " DATE OF UPDATE ");
  NtcFrm->setLayout(date.row());
  auto* const rows = new QVBoxLayout(this);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  rows->addWidget(NtcFrm);
  const EndButtons end = addEndButtons(*rows);
  zamo::setTabOrder(*this, kTabOrder);

  LeaveChecks* const checks = checkFieldsOnLeaving(host, *this, *end.ButtonCancel);
  connect(end.ButtonOK, &QPushButton::clicked, this, [this, &host, checks, date] {
    const DateChoice choice = date.choice();
    if (!checks->mayLeave() || !mayCompareDates(host, choice.after, choice.prior)) return;
    filter_ = dateFilter(choice);
    accept();
  });
  connect(end.ButtonCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(this, &QDialog::rejected, this, [this] { filter_.clear(); });
}

OnlyDateUpdate::~OnlyDateUpdate() = default;

}  // namespace zamo
