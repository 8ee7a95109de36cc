#include "query/query_form.h"

#include <QScrollArea>

#include "query/query_form_fixture.h"
#include "support/waiting.h"

// The font library keeps what it has read until the program's end, and the leak checker can't see that.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig";
}

namespace zamo {
namespace {

using test::QueryForm;
using test::Texts;

constexpr const char* kMixedSelect =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, fmtv_vorna.adm AS Adm, fmtv_vorna.adm_ref_id AS "
    "AdmRefID, fmtv_vorna.notice_typ AS NtcTyp, fmtv_vorna.long_deg & '\260 ' & long_min & '\264 ' & "
    "long_sec & '\264\264 ' & long_ew AS Longitude, fmtv_vorna.lat_deg & '\260 ' & lat_min & '\264 ' & "
    "lat_sec & '\264\264 ' & lat_ns AS Latitude, fmtv_vorna.freq_assgn AS Freq, fmtv_vorna.site_name AS "
    "Sitename, lmz_allotment.allot_name AS Allotname, fmtv_vorna.intent AS Intent, lmz_allotment.allotkey "
    "FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey) LEFT JOIN "
    "lmz_allotment ON fmtv_vorna.vornakey = lmz_allotment.vornakey";

// --- controls

struct Named {
  const char* name;
  const char* text;
  const char* toolTip;
  const char* parent;
};

constexpr const char* kRpcTip = "The use of this filter will retrieve records having ANY RPC value.";
constexpr const char* kVariantTip = "The use of this filter will retrieve records having NO RPC value.";
constexpr const char* kSfnTip = "The use of this filter will retrieve all records having a Sfn ID.";
constexpr const char* kNoSfnTip = "The use of this filter will retrieve all records having NO Sfn ID.";
constexpr const char* kErpTip =
    "The use of this filter will retrieve only assignments. To Enter a single value, fill-out either the "
    "field "
    "From or To; to enter an inteveral, fill-out the field From and To.";

// clang-format off
constexpr Named kFrames[] = {
    {"SelectTypFrm", " NOTICE GROUP ", "", ""},
    {"AdmFrm", " NOTIFYING  ADMINISTRATION ", "", ""},
    {"CtryFrm", " GEOGRAPHICAL AREA ", "", ""},
    {"NtcTypFrm", " NOTICE TYPE ", "", ""},
    {"TechFrm", " TECHNICAL DATA ", "", ""},
    {"DefineFrm", "Define with ", "", "TechFrm"},
    {"NetWkFrm", "Network Topologies", "", "TechFrm"},
    {"SitenameFrm", "Site/Allotment name", "", ""},
    {"NtcFrm", " NOTICE DATA", "", ""},
};
constexpr Named kButtons[] = {
    {"Opt_Assgn_Allot", "Only Assignments and Allotments (GT1, GT2, GS1, GS2)", "", "SelectTypFrm"},
    {"Opt_SubArea", "Only Sub Area (GA1)", "", "SelectTypFrm"},
    {"ButtonAdd", "Add", "", "AdmFrm"},
    {"ButtonDel", "Del", "", "AdmFrm"},
    {"Button_AddAll", "Add All", "", "AdmFrm"},
    {"ButtonClear", "Clear", "", "AdmFrm"},
    {"Button_AddCtry", "Add", "", "CtryFrm"},
    {"Button_DelCtry", "Del", "", "CtryFrm"},
    {"Button_AddAllCtry", "Add All", "", "CtryFrm"},
    {"Button_ClearCtry", "Clear", "", "CtryFrm"},
    {"CheckBoxGT1", "DVB-T Assignment (GT1)", "", "NtcTypFrm"},
    {"CheckBoxGT2", "DVB-T Allotment (GT2)", "", "NtcTypFrm"},
    {"CheckBoxGS1", "T-DAB Assignment (GS1)", "", "NtcTypFrm"},
    {"CheckBoxGS2", "T-DAB Allotment (GS2)", "", "NtcTypFrm"},
    {"CheckBoxRPC", "RPC [RPC1 - RPC5]", kRpcTip, "DefineFrm"},
    {"CheckBoxSysVar", "System Variant", kVariantTip, "DefineFrm"},
    {"CheckBoxSfn", "SFN", kSfnTip, "NetWkFrm"},
    {"CheckBoxMFN", "No SFN", kNoSfnTip, "NetWkFrm"},
    {"CheckBoxGt", "After", "", "NtcFrm"},
    {"CheckBoxLs", "Prior", "", "NtcFrm"},
    {"CheckBoxEqual", "Equal", "", "NtcFrm"},
    {"ButtonOK", "OK", "", ""},
    {"ButtonCancel", "Cancel", "", ""},
};
constexpr Named kLabels[] = {
    {"LblFreq", "Assign Frequency", "", "TechFrm"},
    {"Lbl_Erp", "ERP (H or V)", kErpTip, "TechFrm"},
    {"Lbl_fr", "From", "", "TechFrm"},
    {"LblTo", "To", "", "TechFrm"},
    {"LblRmks", "Remarks (Full or Partial Text String)", "", "NtcFrm"},
    {"LblDateUpdated", "Date of Update", "", "NtcFrm"},
    {"LblDDMMYYYY", " dd    mm      yyyy", "", "NtcFrm"},
    {"LblContourID", "ContourID", "", ""},
    {"AdmAdodc", "Administration", "", "AdmFrm"},
    {"CtryAdodc", "Country", "", "CtryFrm"},
};
constexpr Named kFields[] = {
    {"TxtChannelFreq", "", "The assign frequency", "TechFrm"},
    {"TxtErp_fr", "", "", "TechFrm"},
    {"TxtErp_to", "", "", "TechFrm"},
    {"TxtSFNID", "", "Sfn ID", "NetWkFrm"},
    {"TxtSitename", "", "", "SitenameFrm"},
    {"TxtRmks", "", "", "NtcFrm"},
    {"Txt_DD", "", "", "NtcFrm"},
    {"Txt_MM", "", "", "NtcFrm"},
    {"Txt_YYYY", "", "", "NtcFrm"},
    {"TxtContourID", "", "", ""},
};
// clang-format on

// The nearest frame that a control stands in.
std::string frameOf(const QWidget& control) {
  for (const QWidget* at = control.parentWidget(); at != nullptr; at = at->parentWidget()) {
    if (qobject_cast<const QGroupBox*>(at) != nullptr) return at->objectName().toStdString();
  }
  return "";
}

TEST_F(QueryForm, has_all_controls_with_their_captions_tips_and_frames) {
  open();
  EXPECT_EQ(form->objectName(), "QrySelectFrmKV19");
  const auto expectNamed = [this](const Named& named, const QString& text) {
    SCOPED_TRACE(named.name);
    EXPECT_EQ(text.toStdString(), named.text);
    EXPECT_EQ(control(named.name).toolTip().toStdString(), named.toolTip);
    EXPECT_EQ(frameOf(control(named.name)), named.parent);
  };
  for (const Named& frame : kFrames) expectNamed(frame, control<QGroupBox>(frame.name).title());
  for (const Named& button : kButtons)
    expectNamed(button, control<QAbstractButton>(button.name).text().remove('&'));
  for (const Named& label : kLabels) expectNamed(label, control<QLabel>(label.name).text());
  for (const Named& line : kFields) expectNamed(line, field(line.name).text());
  for (const char* name : {"DataList_Adm", "SelectAdmList"}) EXPECT_EQ(frameOf(list(name)), "AdmFrm");
  for (const char* name : {"DataList_Ctry", "SelectCtryList"}) EXPECT_EQ(frameOf(list(name)), "CtryFrm");
}

// --- load

TEST_F(QueryForm, opens_with_all_types_and_on_or_after) {
  run.qryIsNotice = false;
  run.qrySql = "SELECT 1";
  open();
  EXPECT_TRUE(run.qryIsNotice);
  EXPECT_EQ(run.qrySql, "");
  EXPECT_TRUE(control<QRadioButton>("Opt_Assgn_Allot").isChecked());
  EXPECT_FALSE(control<QRadioButton>("Opt_SubArea").isChecked());
  for (const char* name :
       {"CheckBoxGT1", "CheckBoxGT2", "CheckBoxGS1", "CheckBoxGS2", "CheckBoxGt", "CheckBoxEqual"})
    EXPECT_TRUE(isTicked(name)) << name;
  for (const char* name : {"CheckBoxLs", "CheckBoxSfn", "CheckBoxMFN", "CheckBoxRPC", "CheckBoxSysVar"})
    EXPECT_FALSE(isTicked(name)) << name;
  EXPECT_TRUE(run.QryGT1 && run.QryGT2 && run.QryGS1 && run.QryGS2);
  for (const char* name : {"ButtonAdd", "ButtonDel", "ButtonClear", "Button_AddCtry", "Button_DelCtry",
                           "Button_ClearCtry", "TxtSFNID", "Opt_SubArea"})
    EXPECT_FALSE(isEnabled(name)) << name;
  for (const char* name : {"Button_AddAll", "Button_AddAllCtry", "NtcFrm", "NtcTypFrm", "TechFrm",
                           "SitenameFrm", "NetWkFrm", "Opt_Assgn_Allot", "ButtonOK", "ButtonCancel"})
    EXPECT_TRUE(isEnabled(name)) << name;
  for (const char* name : {"AdmAdodc", "CtryAdodc", "TxtContourID", "LblContourID"})
    EXPECT_FALSE(isShown(name)) << name;
  expectNoBox();
}

TEST_F(QueryForm, lists_what_the_notices_have_once_each_and_sorted) {
  putSomeNotices();
  raw.run("INSERT INTO fmtv_vorna (adm, notice_typ) VALUES ('f', 'TB5')");
  open();
  EXPECT_EQ(items("DataList_Adm"), (Texts{"BEL", "F", "SUI"}));
  EXPECT_EQ(items("DataList_Ctry"), (Texts{"F", "LIE", "MCO"}));
  EXPECT_EQ(items("SelectAdmList"), Texts{});
  EXPECT_EQ(items("SelectCtryList"), Texts{});
}

TEST_F(QueryForm, without_notified_contours_offers_no_contours) {
  putContour("F", "F", "NULL");
  open();
  EXPECT_FALSE(isEnabled("Opt_SubArea"));
  click("Opt_SubArea");
  EXPECT_TRUE(run.qryIsNotice);
}

TEST_F(QueryForm, with_a_notified_contour_offers_contours) {
  putContour("F", "F");
  open();
  EXPECT_TRUE(isEnabled("Opt_SubArea"));
}

TEST_F(QueryForm, opens_with_empty_lists_when_the_engine_refuses_them) {
  putSomeNotices();
  raw.run("ALTER TABLE fmtv_vorna RENAME COLUMN ctry TO country");
  open();
  expectOnlyBox("Erreur 1:no such column: fmtv_vorna.ctry", "QrySelectFrmKV19");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(items("DataList_Adm"), Texts{});
  EXPECT_EQ(items("DataList_Ctry"), Texts{});
}

TEST_F(QueryForm, tells_once_when_nothing_can_be_read) {
  putSomeNotices();
  raw.run("DROP TABLE lmz_sub_area; DROP TABLE lmz_contour_pt; DROP TABLE lmz_contour");
  open();
  expectOnlyBox("Erreur 1:no such table: lmz_contour", "QrySelectFrmKV19");
  EXPECT_FALSE(isEnabled("Opt_SubArea"));
  EXPECT_EQ(items("DataList_Adm"), Texts{});
}

// --- groups

TEST_F(QueryForm, of_contours_lists_theirs_and_asks_for_nothing_else) {
  putSomeNotices();
  putContour("D", "LUX");
  putContour("AUT", "LIE", "NULL");
  open();
  click("Opt_SubArea");
  EXPECT_FALSE(run.qryIsNotice);
  for (const char* name : {"NtcFrm", "NtcTypFrm", "TechFrm", "SitenameFrm", "NetWkFrm"})
    EXPECT_FALSE(isEnabled(name)) << name;
  EXPECT_TRUE(isShown("TxtContourID"));
  EXPECT_TRUE(isShown("LblContourID"));
  EXPECT_EQ(items("DataList_Adm"), Texts{"D"});
  EXPECT_EQ(items("DataList_Ctry"), Texts{"LUX"});

  click("Opt_Assgn_Allot");
  EXPECT_TRUE(run.qryIsNotice);
  for (const char* name : {"NtcFrm", "NtcTypFrm", "TechFrm", "SitenameFrm", "NetWkFrm"})
    EXPECT_TRUE(isEnabled(name)) << name;
  EXPECT_FALSE(isEnabled("TxtSFNID"));
  EXPECT_FALSE(isShown("TxtContourID"));
  EXPECT_FALSE(isShown("LblContourID"));
  EXPECT_EQ(items("DataList_Adm"), (Texts{"BEL", "F", "SUI"}));
  EXPECT_EQ(items("DataList_Ctry"), (Texts{"F", "LIE", "MCO"}));
  expectNoBox();
}

TEST_F(QueryForm, keeps_what_was_chosen_when_the_group_changes) {
  putSomeNotices();
  putContour("F", "LUX");
  open();
  doubleClickItem("DataList_Adm", "SUI");
  clickItem("DataList_Adm", "F");
  click("Opt_SubArea");
  EXPECT_EQ(items("SelectAdmList"), Texts{"SUI"});
  EXPECT_TRUE(isEnabled("ButtonAdd"));
  click("ButtonAdd");
  EXPECT_EQ(items("SelectAdmList"), (Texts{"SUI", "F"}));
  click("Opt_Assgn_Allot");
  clickItem("DataList_Adm", "BEL");
  click("Opt_SubArea");
  EXPECT_FALSE(isEnabled("ButtonAdd"));
  EXPECT_EQ(whereOnOk(),
            " WHERE ((lmz_contour.adm = 'SUI') OR (lmz_contour.adm = 'F')) ORDER by lmz_contour.contourkey");
}

TEST_F(QueryForm, empties_the_contour_id_that_the_change_of_the_group_hides) {
  putContour("F", "F");
  open();
  click("Opt_SubArea");
  type("TxtContourID", "12");
  click("Opt_Assgn_Allot");
  EXPECT_FALSE(isShown("TxtContourID"));
  EXPECT_EQ(field("TxtContourID").text(), "");
  EXPECT_EQ(whereOnOk(), "");
}

TEST_F(QueryForm, whose_group_can_not_be_read_says_so_and_stays_open) {
  putSomeNotices();
  putContour("F", "LUX");
  open();
  raw.run("ALTER TABLE lmz_contour RENAME COLUMN ctry TO country");
  click("Opt_SubArea");
  expectOnlyBox("Erreur 1:no such column: lmz_contour.ctry", "QrySelectFrmKV19");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(items("DataList_Adm"), Texts{});
  EXPECT_EQ(items("DataList_Ctry"), Texts{});
}

// --- boxes

TEST_F(QueryForm, shows_the_contour_id_while_only_allotments_are_ticked) {
  open();
  click("CheckBoxGT1");
  EXPECT_FALSE(isShown("TxtContourID"));
  click("CheckBoxGS1");
  EXPECT_TRUE(isShown("TxtContourID"));
  EXPECT_TRUE(isShown("LblContourID"));
  EXPECT_FALSE(run.QryGT1 || run.QryGS1);
  EXPECT_TRUE(run.QryGT2 && run.QryGS2);
  type("TxtContourID", "12");
  click("CheckBoxGT2");
  EXPECT_TRUE(isShown("TxtContourID"));
  EXPECT_EQ(field("TxtContourID").text(), "12");
  click("CheckBoxGS2");
  EXPECT_FALSE(isShown("TxtContourID"));
  EXPECT_EQ(field("TxtContourID").text(), "");
  EXPECT_FALSE(run.QryGT2 || run.QryGS2);
}

TEST_F(QueryForm, empties_and_hides_the_contour_id_with_the_first_assignment) {
  open();
  click("CheckBoxGT1");
  click("CheckBoxGS1");
  type("TxtContourID", "12");
  click("CheckBoxGS1");
  EXPECT_FALSE(isShown("TxtContourID"));
  EXPECT_FALSE(isShown("LblContourID"));
  EXPECT_EQ(field("TxtContourID").text(), "");
  EXPECT_TRUE(run.QryGS1);
}

TEST_F(QueryForm, asks_for_the_network_while_networks_are_ticked) {
  open();
  click("CheckBoxSfn");
  EXPECT_TRUE(isEnabled("TxtSFNID"));
  click("CheckBoxMFN");
  EXPECT_TRUE(isEnabled("TxtSFNID"));
  click("CheckBoxSfn");
  EXPECT_FALSE(isEnabled("TxtSFNID"));
}

TEST_F(QueryForm, types_names_in_upper_case) {
  open();
  click("CheckBoxSfn");
  type("TxtSFNID", "f-sfn1");
  EXPECT_EQ(field("TxtSFNID").text(), "F-SFN1");
  type("TxtSitename", "le mans");
  EXPECT_EQ(field("TxtSitename").text(), "LE MANS");
  type("TxtRmks", "as typed");
  EXPECT_EQ(field("TxtRmks").text(), "as typed");
}

// --- checks

TEST_F(QueryForm, wants_a_number_for_the_frequency) {
  open();
  for (const char* text : {"x", "474,5", "4 7", " "})
    expectHeld("TxtChannelFreq", text, "Error - Assign frequency", "Value must be numerical", 1);
  for (const char* text : {"", "474", " 176.64 ", "-1", "1e2"}) expectLeft("TxtChannelFreq", text);
}

TEST_F(QueryForm, wants_a_day_between_1_and_31) {
  open();
  for (const char* text : {"0", "32", "x", "-1", "31.5", " "})
    expectHeld("Txt_DD", text, "Error - Date Update (day)", "Value should be between [1,31]", 1);
  for (const char* text : {"", "1", "01", "31"}) expectLeft("Txt_DD", text);
}

TEST_F(QueryForm, wants_a_month_between_1_and_12) {
  open();
  for (const char* text : {"0", "13", "mm", "12.1"})
    expectHeld("Txt_MM", text, "Error - Date Update (month)", "Value should be between [1,12]", 1);
  for (const char* text : {"", "1", "12"}) expectLeft("Txt_MM", text);
}

TEST_F(QueryForm, wants_a_year_from_2000_on_and_does_not_beep) {
  open();
  for (const char* text : {"1999", "09", "yyyy", "-2009"})
    expectHeld("Txt_YYYY", text, "Error - Date Update (year)", "Invalid year in date of notice", 0);
  for (const char* text : {"", "2000", "2026", "12000"}) expectLeft("Txt_YYYY", text);
}

TEST_F(QueryForm, takes_anything_in_the_other_fields) {
  open();
  click("CheckBoxSfn");
  click("CheckBoxGT1");
  click("CheckBoxGS1");
  for (const char* name : {"TxtErp_fr", "TxtErp_to", "TxtSFNID", "TxtSitename", "TxtRmks", "TxtContourID"})
    expectLeft(name, "?");
}

TEST_F(QueryForm, stays_with_a_wrong_value_though_ok_is_pressed) {
  open();
  type("Txt_DD", "32");
  click("ButtonOK");
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(field("Txt_DD").hasFocus());
  EXPECT_EQ(script.boxes.size(), 1U);
  QTest::keyClick(&field("Txt_DD"), Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(script.boxes.size(), 2U);
  control<QPushButton>("ButtonOK").click();
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(script.boxes.size(), 3U);
  EXPECT_FALSE(run.qryConfirmed);
  EXPECT_EQ(run.qrySql, "");
}

// --- leaving

TEST_F(QueryForm, refuses_after_together_with_prior) {
  open();
  click("CheckBoxLs");
  click("ButtonOK");
  expectOnlyBox("Please select either 'Prior' or 'After' for the date update", "Error-Date Update");
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(run.qryConfirmed);
  EXPECT_EQ(run.qrySql, "");
  EXPECT_EQ(hourglasses, (std::vector<bool>{true, false}));
  script.boxes.clear();
  click("CheckBoxGt");
  EXPECT_EQ(whereOnOk(), "");
  expectNoBox();
}

TEST_F(QueryForm, leaves_its_statement_with_ok) {
  run.qryConfirmed = false;
  open();
  click("ButtonOK");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_TRUE(run.qryConfirmed);
  EXPECT_TRUE(run.qryIsNotice);
  EXPECT_EQ(run.qrySql, kMixedSelect);
  EXPECT_EQ(hourglasses, (std::vector<bool>{true, false}));
  expectNoBox();
}

TEST_F(QueryForm, leaves_its_statement_with_return) {
  open();
  type("TxtRmks", "x");
  QTest::keyClick(&field("TxtRmks"), Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(run.qryConfirmed);
  EXPECT_EQ(run.qrySql, std::string(kMixedSelect) +
                            " WHERE  fmtv_rmks.rmk_text LIKE '%x%'  ORDER by fmtv_vorna.vornakey");
}

TEST_F(QueryForm, takes_every_field_into_the_statement) {
  putSomeNotices();
  open();
  doubleClickItem("DataList_Adm", "F");
  doubleClickItem("DataList_Ctry", "MCO");
  click("CheckBoxGS1");
  click("CheckBoxGS2");
  type("TxtChannelFreq", "474.0");
  type("TxtErp_fr", "10");
  type("TxtErp_to", "20");
  click("CheckBoxRPC");
  click("CheckBoxSfn");
  type("TxtSFNID", "s1");
  type("TxtSitename", "paris");
  field("TxtRmks").setText("Caf\u00e9");
  type("Txt_DD", "31");
  type("Txt_MM", "2");
  type("Txt_YYYY", "2009");
  EXPECT_EQ(
      whereOnOk(),
      " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1') OR (notice_typ = 'GT2') OR (notice_typ = 'DT2'))"
      " AND ((fmtv_vorna.adm = 'F')) AND ((fmtv_vorna.ctry = 'MCO')) AND ((erp_v_dbw >= 10 AND erp_v_dbw <= "
      "20) OR  (erp_h_dbw >= 10 AND erp_h_dbw <= 20)) AND (freq_assgn = '474') AND (ref_plan_cfg is Not "
      "NULL) AND ((site_name = 'PARIS') OR (allot_name = 'PARIS')) AND (sfn_id = 'S1') AND (d_updated >= "
      "#2/31/2009#) AND  fmtv_rmks.rmk_text LIKE '%Caf\351%'  ORDER by fmtv_vorna.vornakey");
  EXPECT_TRUE(run.QryGT1 && run.QryGT2);
  EXPECT_FALSE(run.QryGS1 || run.QryGS2);
}

TEST_F(QueryForm, takes_the_other_boxes_into_the_statement) {
  open();
  click("CheckBoxGT1");
  click("CheckBoxGT2");
  click("CheckBoxGS1");
  type("TxtContourID", "7");
  click("CheckBoxSysVar");
  click("CheckBoxMFN");
  click("CheckBoxGt");
  click("CheckBoxLs");
  click("CheckBoxEqual");
  type("Txt_DD", "1");
  type("Txt_MM", "2");
  type("Txt_YYYY", "2009");
  EXPECT_EQ(
      whereOnOk(),
      " WHERE ((notice_typ = 'GS2') OR (notice_typ = 'DS2')) AND  AND (ref_plan_cfg is NULL) AND (sfn_id is "
      "Null) AND (d_updated < #2/1/2009#)lmz_contour.contour_id = 7 ORDER by fmtv_vorna.vornakey");
}

TEST_F(QueryForm, leaves_a_statement_of_contours_with_ok) {
  putContour("F", "MCO");
  open();
  click("Opt_SubArea");
  doubleClickItem("DataList_Ctry", "MCO");
  type("TxtContourID", "012");
  click("ButtonOK");
  EXPECT_TRUE(run.qryConfirmed);
  EXPECT_FALSE(run.qryIsNotice);
  EXPECT_EQ(
      run.qrySql,
      "SELECT DISTINCT lmz_contour.contourkey AS ContourKey , lmz_contour.contour_id AS ContourID, "
      "lmz_contour.ctry AS Country, lmz_contour.adm AS Adm, lmz_contour.nb_test_pts AS NbTestPts FROM "
      "lmz_contour INNER JOIN lmz_contour_pt ON lmz_contour.contourkey = lmz_contour_pt.contourkey WHERE "
      "((lmz_contour.ctry = 'MCO')) AND lmz_contour.contour_id = 12 ORDER by lmz_contour.contourkey");
}

TEST_F(QueryForm, left_by_cancel_forgets_the_old_statement) {
  putContour("F", "F");
  run.qrySql = "SELECT ContourKey";
  run.qryConfirmed = true;
  open();
  click("Opt_SubArea");
  click("ButtonCancel");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Rejected);
  EXPECT_FALSE(run.qryConfirmed);
  EXPECT_TRUE(run.qryIsNotice);
  EXPECT_EQ(run.qrySql, "");
  EXPECT_EQ(hourglasses, (std::vector<bool>{true, false}));
  expectNoBox();
}

TEST_F(QueryForm, opened_again_begins_anew) {
  open();
  click("CheckBoxGT1");
  click("ButtonOK");
  EXPECT_NE(run.qrySql, "");
  EXPECT_FALSE(run.QryGT1);
  open();
  EXPECT_TRUE(isTicked("CheckBoxGT1"));
  EXPECT_TRUE(run.QryGT1);
  EXPECT_EQ(run.qrySql, "");
  click("ButtonCancel");
  EXPECT_EQ(run.qrySql, "");
  EXPECT_FALSE(run.qryConfirmed);
}

TEST_F(QueryForm, closes_whatever_stands_in_the_field) {
  const auto expectCloses = [this](auto&& close) {
    open();
    run.qryConfirmed = true;
    type("Txt_MM", "13");
    close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(run.qryConfirmed);
    expectNoBox();
  };
  expectCloses([this] { click("ButtonCancel"); });
  expectCloses([this] { QTest::keyClick(&field("Txt_MM"), Qt::Key_Escape); });
  expectCloses([this] {
    QTest::keyClick(&*form, Qt::Key_C, Qt::AltModifier);
    test::waitForButtons(*form);
  });
  expectCloses([this] { form->close(); });
}

// --- the keyboard and small displays

TEST_F(QueryForm, is_walked_through_in_reading_order) {
  putNotice("F", "F");
  putContour("F", "F");
  open();
  click("CheckBoxSfn");
  control("Opt_Assgn_Allot").setFocus();
  Texts walk;
  for (int i = 0; i < 40; ++i) {
    walk.push_back(form->focusWidget()->objectName().toStdString());
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    if (form->focusWidget() == &control("Opt_Assgn_Allot")) break;
  }
  EXPECT_EQ(walk,
            (Texts{"Opt_Assgn_Allot",   "DataList_Adm",   "Button_AddAll", "SelectAdmList", "DataList_Ctry",
                   "Button_AddAllCtry", "SelectCtryList", "CheckBoxGT1",   "CheckBoxGT2",   "CheckBoxGS1",
                   "CheckBoxGS2",       "TxtChannelFreq", "TxtErp_fr",     "TxtErp_to",     "CheckBoxRPC",
                   "CheckBoxSysVar",    "CheckBoxSfn",    "TxtSFNID",      "CheckBoxMFN",   "TxtSitename",
                   "TxtRmks",           "Txt_DD",         "Txt_MM",        "Txt_YYYY",      "CheckBoxGt",
                   "CheckBoxLs",        "CheckBoxEqual",  "ButtonOK",      "ButtonCancel"}));
}

TEST_F(QueryForm, adds_with_the_letters_of_its_buttons) {
  putSomeNotices();
  open();
  clickItem("DataList_Adm", "F");
  clickItem("DataList_Ctry", "MCO");
  QTest::keyClick(&*form, Qt::Key_A, Qt::AltModifier);
  QTest::keyClick(&*form, Qt::Key_D, Qt::AltModifier);
  test::waitForButtons(*form);
  EXPECT_EQ(items("SelectAdmList"), Texts{"F"});
  EXPECT_EQ(items("SelectCtryList"), Texts{"MCO"});
}

TEST_F(QueryForm, scrolls_downwards_only_on_a_small_display) {
  for (int i = 0; i < 120; ++i) putNotice("A" + std::to_string(i + 10), "F");
  open();
  form->resize(671, 336);
  auto& area = *form->findChild<QScrollArea*>();
  EXPECT_TRUE(test::waitFor([&area] { return area.viewport()->height() < 336; }));
  EXPECT_LE(area.widget()->minimumSizeHint().width(), area.viewport()->width());
  field("Txt_DD").setFocus();
  QTest::keyClick(&field("Txt_DD"), Qt::Key_Tab);
  const QRect seen(field("Txt_MM").mapTo(area.viewport(), QPoint()), field("Txt_MM").size());
  EXPECT_TRUE(area.viewport()->rect().contains(seen));
  EXPECT_TRUE(form->rect().contains(control("ButtonOK").geometry()));
}

}  // namespace
}  // namespace zamo
