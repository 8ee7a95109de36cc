#include "query/query_controls.h"

#include <QDialog>
#include <QGridLayout>
#include <QScreen>
#include <QScrollArea>

#include "widgets/qt_text.h"
#include "widgets/upper_case.h"

namespace zamo {
namespace {

// Room for a window's frame and a task bar.
constexpr QSize kAroundForm(12, 48);

// clang-format off
constexpr ValueFilterNames kAdmNames = {
    "AdmFrm", " NOTIFYING  ADMINISTRATION ", "AdmAdodc", "Administration", "DataList_Adm", "SelectAdmList",
    "ButtonAdd", "&Add", "ButtonDel", "Button_AddAll", "ButtonClear"};
constexpr ValueFilterNames kCtryNames = {
    "CtryFrm", " GEOGRAPHICAL AREA ", "CtryAdodc", "Country", "DataList_Ctry", "SelectCtryList",
    "Button_AddCtry", "A&dd", "Button_DelCtry", "Button_AddAllCtry", "Button_ClearCtry"};

constexpr const char* kErpTip = "The use of this filter will retrieve only assignments. To Enter a single value, fill-out either the field From or To; to enter an inteveral, fill-out the field From and To.";

constexpr const char* kTabOrder[] = {
    "Opt_Assgn_Allot", "Opt_SubArea",
    "DataList_Adm", "ButtonAdd", "Button_AddAll", "ButtonDel", "ButtonClear", "SelectAdmList",
    "DataList_Ctry", "Button_AddCtry", "Button_AddAllCtry", "Button_DelCtry", "Button_ClearCtry", "SelectCtryList",
    "TxtContourID",
    "CheckBoxGT1", "CheckBoxGT2", "CheckBoxGS1", "CheckBoxGS2",
    "TxtChannelFreq", "TxtErp_fr", "TxtErp_to",
    "CheckBoxRPC", "CheckBoxSysVar", "CheckBoxSfn", "TxtSFNID", "CheckBoxMFN",
    "TxtSitename", "TxtRmks",
    "Txt_DD", "Txt_MM", "Txt_YYYY", "CheckBoxGt", "CheckBoxLs", "CheckBoxEqual",
    "ButtonOK", "ButtonCancel"};
// clang-format on

QRadioButton* makeOption(const char* name, const char* caption) {
  auto* option = new QRadioButton(caption);
  option->setObjectName(name);
  return option;
}

template <typename Layout>
Layout* layOut(QGroupBox& frame) {
  auto* const layout = new Layout(&frame);
  tighten(*layout);
  return layout;
}

void hideInPlace(QWidget& control) {
  QSizePolicy policy = control.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  control.setSizePolicy(policy);
  control.hide();
}

QGroupBox* placeGroups(const QueryControls& controls) {
  QGroupBox* const frame = makeFrame("SelectTypFrm", " NOTICE GROUP ");
  auto* const row = layOut<QHBoxLayout>(*frame);
  row->setSpacing(4 * kGap);
  row->addWidget(controls.Opt_Assgn_Allot);
  row->addWidget(controls.Opt_SubArea);
  row->addStretch();
  return frame;
}

QHBoxLayout* placeContourId(const QueryControls& controls) {
  auto* const row = new QHBoxLayout;
  row->setContentsMargins(kGap, 0, kGap, 0);
  row->addWidget(controls.LblContourID);
  row->addWidget(controls.TxtContourID);
  return row;
}

void placeTypes(const QueryControls& controls) {
  auto* const grid = layOut<QGridLayout>(*controls.NtcTypFrm);
  grid->addWidget(controls.CheckBoxGT1, 0, 0);
  grid->addWidget(controls.CheckBoxGT2, 0, 1);
  grid->addWidget(controls.CheckBoxGS1, 1, 0);
  grid->addWidget(controls.CheckBoxGS2, 1, 1);
}

QGroupBox* placeDefinitions(const QueryControls& controls) {
  QGroupBox* const frame = makeFrame("DefineFrm", "Define with ");
  auto* const rows = layOut<QVBoxLayout>(*frame);
  rows->addWidget(controls.CheckBoxRPC);
  rows->addWidget(controls.CheckBoxSysVar);
  return frame;
}

void placeNetworks(const QueryControls& controls) {
  auto* const grid = layOut<QGridLayout>(*controls.NetWkFrm);
  grid->addWidget(controls.CheckBoxSfn, 0, 0);
  grid->addWidget(controls.TxtSFNID, 0, 1);
  grid->addWidget(controls.CheckBoxMFN, 1, 0);
}

QGridLayout* placeNumbers(const QueryControls& controls) {
  auto* const grid = new QGridLayout;
  grid->setSpacing(kGap);
  grid->addWidget(makeLabel("LblFreq", "Assign Frequency"), 0, 0);
  grid->addWidget(controls.TxtChannelFreq, 0, 2);
  grid->addWidget(makeLabel("Lbl_Erp", "ERP (H or V)", kErpTip), 1, 0);
  grid->addWidget(makeLabel("Lbl_fr", "From"), 1, 1);
  grid->addWidget(controls.TxtErp_fr, 1, 2);
  grid->addWidget(makeLabel("LblTo", "To"), 1, 3);
  grid->addWidget(controls.TxtErp_to, 1, 4);
  grid->setColumnStretch(2, 1);
  grid->setColumnStretch(4, 1);
  return grid;
}

void placeTechnicalData(const QueryControls& controls) {
  placeNetworks(controls);
  auto* const frames = new QHBoxLayout;
  frames->addWidget(placeDefinitions(controls));
  frames->addWidget(controls.NetWkFrm, 1);
  auto* const rows = layOut<QVBoxLayout>(*controls.TechFrm);
  rows->addLayout(placeNumbers(controls));
  rows->addLayout(frames);
}

void placeNoticeData(const QueryControls& controls) {
  auto* const rows = layOut<QVBoxLayout>(*controls.NtcFrm);
  rows->addWidget(makeLabel("LblRmks", "Remarks (Full or Partial Text String)"));
  rows->addWidget(controls.TxtRmks);
  rows->addWidget(makeLabel("LblDateUpdated", "Date of Update"));
  rows->addLayout(controls.updated.row());
}

// What limits a selection of contours too stands at the left, the rest at the right.
QWidget* placeAll(const QueryControls& controls) {
  placeTypes(controls);
  placeTechnicalData(controls);
  layOut<QVBoxLayout>(*controls.SitenameFrm)->addWidget(controls.TxtSitename);
  placeNoticeData(controls);
  auto* const left = new QVBoxLayout;
  left->addWidget(controls.adm.frame(), 1);
  left->addWidget(controls.ctry.frame(), 1);
  left->addLayout(placeContourId(controls));
  auto* const right = new QVBoxLayout;
  for (QGroupBox* const frame : {controls.NtcTypFrm, controls.TechFrm, controls.SitenameFrm, controls.NtcFrm})
    right->addWidget(frame);
  right->addStretch();
  auto* const content = new QWidget;
  auto* const grid = new QGridLayout(content);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->addWidget(placeGroups(controls), 0, 0, 1, 2);
  grid->addLayout(left, 1, 0);
  grid->addLayout(right, 1, 1);
  grid->setColumnStretch(0, 1);
  return content;
}

}  // namespace

// clang-format off
QueryControls::QueryControls()
    : Opt_Assgn_Allot(makeOption("Opt_Assgn_Allot", "Only Assignments and Allotments (GT1, GT2, GS1, GS2)")),
      Opt_SubArea(makeOption("Opt_SubArea", "Only Sub Area (GA1)")),
      adm(kAdmNames),
      ctry(kCtryNames),
      LblContourID(makeLabel("LblContourID", "ContourID")),
      TxtContourID(makeField("TxtContourID", "ContourID")),
      CheckBoxGT1(makeCheckBox("CheckBoxGT1", "DVB-T Assignment (GT1)")),
      CheckBoxGT2(makeCheckBox("CheckBoxGT2", "DVB-T Allotment (GT2)")),
      CheckBoxGS1(makeCheckBox("CheckBoxGS1", "T-DAB Assignment (GS1)")),
      CheckBoxGS2(makeCheckBox("CheckBoxGS2", "T-DAB Allotment (GS2)")),
      TxtChannelFreq(makeField("TxtChannelFreq", "Assign Frequency", "The assign frequency")),
      TxtErp_fr(makeField("TxtErp_fr", "ERP from")),
      TxtErp_to(makeField("TxtErp_to", "ERP to")),
      CheckBoxRPC(makeCheckBox("CheckBoxRPC", "RPC [RPC1 - RPC5]", "The use of this filter will retrieve records having ANY RPC value.")),
      CheckBoxSysVar(makeCheckBox("CheckBoxSysVar", "System Variant", "The use of this filter will retrieve records having NO RPC value.")),
      CheckBoxSfn(makeCheckBox("CheckBoxSfn", "SFN", "The use of this filter will retrieve all records having a Sfn ID.")),
      CheckBoxMFN(makeCheckBox("CheckBoxMFN", "No SFN", "The use of this filter will retrieve all records having NO Sfn ID.")),
      TxtSFNID(makeField("TxtSFNID", "Sfn ID", "Sfn ID")),
      TxtSitename(makeField("TxtSitename", "Site/Allotment name")),
      TxtRmks(makeField("TxtRmks", "Remarks")),
      updated(" dd    mm      yyyy"),
      NtcTypFrm(makeFrame("NtcTypFrm", " NOTICE TYPE ")),
      TechFrm(makeFrame("TechFrm", " TECHNICAL DATA ")),
      NetWkFrm(makeFrame("NetWkFrm", "Network Topologies")),
      SitenameFrm(makeFrame("SitenameFrm", "Site/Allotment name")),
      NtcFrm(makeFrame("NtcFrm", " NOTICE DATA")) {
  // clang-format on
  Opt_Assgn_Allot->setChecked(true);
  Opt_SubArea->setEnabled(false);
  for (QCheckBox* const box : {CheckBoxGT1, CheckBoxGT2, CheckBoxGS1, CheckBoxGS2}) box->setChecked(true);
  TxtSFNID->setEnabled(false);
  QObject::connect(CheckBoxSfn, &QCheckBox::toggled, TxtSFNID, &QLineEdit::setEnabled);
  typeUpperCase(*TxtSFNID);
  typeUpperCase(*TxtSitename);
  // They keep their place, so that nothing jumps.
  hideInPlace(*LblContourID);
  hideInPlace(*TxtContourID);
}

EndButtons QueryControls::placeOn(QDialog& form) const {
  QWidget* const content = placeAll(*this);
  auto* const area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(content);
  auto* const rows = new QVBoxLayout(&form);
  tighten(*rows);
  rows->addWidget(area, 1);
  const EndButtons end = addEndButtons(*rows);
  setTabOrder(form, kTabOrder);
  const int below = rows->sizeHint().height() - area->sizeHint().height();
  const QSize whole = content->sizeHint() + QSize(2 * kGap, below);
  form.resize(whole.boundedTo(form.screen()->availableSize() - kAroundForm));
  return end;
}

QueryChoices QueryControls::choices() const {
  QueryChoices choices;
  choices.adm = adm.choice();
  choices.ctry = ctry.choice();
  choices.GT1 = CheckBoxGT1->isChecked();
  choices.GT2 = CheckBoxGT2->isChecked();
  choices.GS1 = CheckBoxGS1->isChecked();
  choices.GS2 = CheckBoxGS2->isChecked();
  choices.channelFreq = toText(TxtChannelFreq->text());
  choices.erpFrom = toText(TxtErp_fr->text());
  choices.erpTo = toText(TxtErp_to->text());
  choices.definedByRpc = CheckBoxRPC->isChecked();
  choices.definedBySysVar = CheckBoxSysVar->isChecked();
  choices.sfn = CheckBoxSfn->isChecked();
  choices.noSfn = CheckBoxMFN->isChecked();
  choices.sfnId = toText(TxtSFNID->text());
  choices.siteName = toText(TxtSitename->text());
  choices.remarks = toText(TxtRmks->text());
  choices.updated = updated.choice();
  choices.contourId = toText(TxtContourID->text());
  return choices;
}

}  // namespace zamo
