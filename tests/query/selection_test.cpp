#include "query/selection.h"

#include <gtest/gtest.h>

namespace zamo {
namespace {

const std::string kMixed =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, fmtv_vorna.adm AS Adm, fmtv_vorna.adm_ref_id AS "
    "AdmRefID, fmtv_vorna.notice_typ AS NtcTyp, fmtv_vorna.long_deg & '\260 ' & long_min & '\264 ' & "
    "long_sec & '\264\264 ' & long_ew AS Longitude, fmtv_vorna.lat_deg & '\260 ' & lat_min & '\264 ' & "
    "lat_sec & '\264\264 ' & lat_ns AS Latitude, fmtv_vorna.freq_assgn AS Freq, fmtv_vorna.site_name AS "
    "Sitename, lmz_allotment.allot_name AS Allotname, fmtv_vorna.intent AS Intent, lmz_allotment.allotkey "
    "FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey) LEFT JOIN "
    "lmz_allotment ON fmtv_vorna.vornakey = lmz_allotment.vornakey";

const std::string kAssignments =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, fmtv_vorna.adm AS Adm, fmtv_vorna.adm_ref_id AS "
    "AdmRefID, fmtv_vorna.notice_typ AS NtcTyp, fmtv_vorna.long_deg & '\260 ' & long_min & '\264 ' & "
    "long_sec & '\264\264 ' & long_ew AS Longitude, fmtv_vorna.lat_deg & '\260 ' & lat_min & '\264 ' & "
    "lat_sec & '\264\264 ' & lat_ns AS Latitude, fmtv_vorna.freq_assgn AS Freq,  fmtv_vorna.site_name AS "
    "Sitename, fmtv_vorna.intent AS Intent FROM fmtv_vorna LEFT JOIN fmtv_rmks ON fmtv_vorna.vornakey = "
    "fmtv_rmks.vornakey ";

const std::string kAllotments =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, fmtv_vorna.adm AS Adm, fmtv_vorna.adm_ref_id AS "
    "AdmRefID, fmtv_vorna.notice_typ AS NtcTyp, fmtv_vorna.freq_assgn AS Freq, lmz_allotment.allot_name AS "
    "Allotname, fmtv_vorna.intent AS Intent, lmz_contour.contour_id AS ContourID FROM (fmtv_rmks RIGHT JOIN "
    "fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey) LEFT JOIN (lmz_allotment LEFT JOIN "
    "(lmz_sub_area LEFT JOIN lmz_contour ON lmz_sub_area.contourkey = lmz_contour.contourkey) ON "
    "lmz_allotment.allotkey = lmz_sub_area.allotkey) ON fmtv_vorna.vornakey = lmz_allotment.vornakey";

const std::string kContours =
    "SELECT DISTINCT lmz_contour.contourkey AS ContourKey , lmz_contour.contour_id AS ContourID, "
    "lmz_contour.ctry AS Country, lmz_contour.adm AS Adm, lmz_contour.nb_test_pts AS NbTestPts FROM "
    "lmz_contour INNER JOIN lmz_contour_pt ON lmz_contour.contourkey = lmz_contour_pt.contourkey";

QueryChoices contourChoices() {
  QueryChoices choices;
  choices.isNotice = false;
  return choices;
}

// No type is ticked, so that nothing but the one filter stands in the statement.
void expectWhere(const QueryChoices& choices, const std::string& where) {
  EXPECT_EQ(makeSelection(choices).qryWhere, where);
}

// --- the whole statement

TEST(Selection, with_all_types_and_nothing_else_is_the_mixed_select_alone) {
  QueryChoices choices;
  choices.GT1 = choices.GT2 = choices.GS1 = choices.GS2 = true;
  const Selection selection = makeSelection(choices);
  EXPECT_EQ(selection.qrySelect, kMixed);
  EXPECT_EQ(selection.qryWhere, "");
  EXPECT_EQ(selection.qrySql, kMixed);
}

TEST(Selection, without_any_type_is_the_mixed_select_alone) {
  EXPECT_EQ(makeSelection({}).qrySql, kMixed);
}

TEST(Selection, with_all_types_and_a_filter_is_ordered) {
  QueryChoices choices;
  choices.GT1 = choices.GT2 = choices.GS1 = choices.GS2 = true;
  choices.adm.values = {"F"};
  EXPECT_EQ(makeSelection(choices).qrySql,
            kMixed + " WHERE ((fmtv_vorna.adm = 'F')) ORDER by fmtv_vorna.vornakey");
}

TEST(Selection, of_assignment_types_takes_the_select_of_assignments) {
  QueryChoices choices;
  choices.GT1 = true;
  EXPECT_EQ(makeSelection(choices).qrySelect, kAssignments);
  EXPECT_EQ(makeSelection(choices).qrySql, kAssignments +
                                               " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1')) "
                                               "ORDER by fmtv_vorna.vornakey");
  choices.GS1 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kAssignments +
                                               " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1') OR "
                                               "(notice_typ = 'GS1') OR (notice_typ = 'DS1')) "
                                               "ORDER by fmtv_vorna.vornakey");
}

TEST(Selection, of_gs2_takes_the_select_of_allotments_and_extra_parentheses) {
  QueryChoices choices;
  choices.GS2 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kAllotments +
                                               " WHERE ((notice_typ = 'GS2') OR (notice_typ = 'DS2')) "
                                               "ORDER by fmtv_vorna.vornakey");
  choices.GT2 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kAllotments +
                                               " WHERE ((notice_typ = 'GT2') OR (notice_typ = 'DT2') OR "
                                               "(notice_typ = 'GS2') OR (notice_typ = 'DS2')) "
                                               "ORDER by fmtv_vorna.vornakey");
}

TEST(Selection, of_types_of_both_kinds_takes_the_mixed_select) {
  QueryChoices choices;
  choices.GT1 = choices.GT2 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kMixed +
                                               " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1') OR "
                                               "(notice_typ = 'GT2') OR (notice_typ = 'DT2')) "
                                               "ORDER by fmtv_vorna.vornakey");
  choices.GT2 = false;
  choices.GS2 = choices.GS1 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kMixed +
                                               " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1') OR "
                                               "(notice_typ = 'GS1') OR (notice_typ = 'DS1') OR "
                                               "(notice_typ = 'GS2') OR (notice_typ = 'DS2')) "
                                               "ORDER by fmtv_vorna.vornakey");
}

TEST(Selection, joins_all_filters_in_their_order) {
  QueryChoices choices;
  choices.GT1 = choices.GS1 = true;
  choices.adm.values = {"F", "SUI"};
  choices.ctry.values = {"F"};
  choices.erpFrom = "10";
  choices.erpTo = "20";
  choices.channelFreq = "474";
  choices.definedByRpc = true;
  choices.siteName = "PARIS";
  choices.sfn = true;
  choices.sfnId = "SFN1";
  choices.updated = {"31", "12", "2005", true, false, true};
  choices.remarks = "test";
  EXPECT_EQ(makeSelection(choices).qrySql,
            kAssignments +
                " WHERE ((notice_typ = 'GT1') OR (notice_typ = 'DT1') OR (notice_typ = 'GS1') OR "
                "(notice_typ = 'DS1')) AND ((fmtv_vorna.adm = 'F') OR (fmtv_vorna.adm = 'SUI')) AND "
                "((fmtv_vorna.ctry = 'F')) AND ((erp_v_dbw >= 10 AND erp_v_dbw <= 20) OR  (erp_h_dbw >= 10 "
                "AND erp_h_dbw <= 20)) AND (freq_assgn = '474') AND (ref_plan_cfg is Not NULL) AND "
                "(site_name = 'PARIS')  AND (sfn_id = 'SFN1') AND (d_updated >= #12/31/2005#) AND  "
                "fmtv_rmks.rmk_text LIKE '%test%'  ORDER by fmtv_vorna.vornakey");
}

// --- filters

TEST(Selection, lists_the_chosen_values) {
  QueryChoices choices;
  choices.adm.values = {"F"};
  expectWhere(choices, "((fmtv_vorna.adm = 'F'))");
  choices.adm.values = {"SUI", "D", "F"};
  expectWhere(choices, "((fmtv_vorna.adm = 'SUI') OR (fmtv_vorna.adm = 'D') OR (fmtv_vorna.adm = 'F'))");
  choices.adm.values.clear();
  choices.ctry.values = {"F", "MCO"};
  expectWhere(choices, "((fmtv_vorna.ctry = 'F') OR (fmtv_vorna.ctry = 'MCO'))");
}

TEST(Selection, does_not_filter_by_a_list_that_holds_all) {
  QueryChoices choices;
  choices.adm = {{"F", "SUI"}, true};
  choices.ctry = {{"F"}, true};
  expectWhere(choices, "");
  choices.isNotice = false;
  expectWhere(choices, "");
}

TEST(Selection, takes_the_frequency_as_a_quoted_number) {
  QueryChoices choices;
  for (const auto& [text, where] : {std::pair{"474", "(freq_assgn = '474')"},
                                    {"0474.000", "(freq_assgn = '474')"},
                                    {" 176.640 ", "(freq_assgn = '176.64')"},
                                    {"1e2", "(freq_assgn = '100')"},
                                    {"-0.50", "(freq_assgn = '-0.5')"},
                                    {"474x", "(freq_assgn = '474')"},
                                    {"x", "(freq_assgn = '0')"}}) {
    choices.channelFreq = text;
    expectWhere(choices, where);
  }
}

TEST(Selection, filters_by_plan_configuration_when_one_box_is_ticked) {
  QueryChoices choices;
  choices.definedBySysVar = true;
  expectWhere(choices, "(ref_plan_cfg is NULL)");
  choices.definedByRpc = true;
  expectWhere(choices, "");
  choices.definedBySysVar = false;
  expectWhere(choices, "(ref_plan_cfg is Not NULL)");
}

TEST(Selection, takes_both_powers_as_bounds) {
  QueryChoices choices;
  choices.erpFrom = "-5.50";
  choices.erpTo = "20";
  expectWhere(choices,
              "((erp_v_dbw >= -5.50 AND erp_v_dbw <= 20) OR  (erp_h_dbw >= -5.50 AND erp_h_dbw <= 20))");
}

TEST(Selection, takes_one_power_alone_as_the_value_itself) {
  QueryChoices choices;
  choices.erpFrom = "10";
  expectWhere(choices, "((erp_v_dbw = 10) OR (erp_h_dbw = 10))");
  choices.erpFrom.clear();
  choices.erpTo = "20";
  expectWhere(choices, "((erp_v_dbw = 20) OR (erp_h_dbw = 20))");
}

TEST(Selection, looks_for_the_name_where_the_select_has_it) {
  QueryChoices choices;
  choices.siteName = "Paris";
  expectWhere(choices, "((site_name = 'Paris') OR (allot_name = 'Paris'))");
  choices.GS1 = true;
  expectWhere(choices, "((notice_typ = 'GS1') OR (notice_typ = 'DS1')) AND (site_name = 'Paris') ");
  choices.GS2 = true;
  expectWhere(choices,
              "((notice_typ = 'GS1') OR (notice_typ = 'DS1') OR (notice_typ = 'GS2') OR (notice_typ = 'DS2'))"
              " AND ((site_name = 'Paris') OR (allot_name = 'Paris'))");
  choices.GS1 = false;
  expectWhere(choices, "((notice_typ = 'GS2') OR (notice_typ = 'DS2')) AND (allot_name = 'Paris')");
}

TEST(Selection, filters_by_single_frequency_network) {
  QueryChoices choices;
  choices.sfnId = "S1";
  expectWhere(choices, "");
  choices.sfn = true;
  expectWhere(choices, "(sfn_id = 'S1')");
  choices.noSfn = true;
  expectWhere(choices, "");
  choices.sfn = false;
  expectWhere(choices, "(sfn_id is Null)");
  choices.noSfn = false;
  choices.sfn = true;
  choices.sfnId.clear();
  expectWhere(choices, "(sfn_id is NOT Null)");
}

TEST(Selection, compares_the_date_as_the_boxes_say) {
  const auto filter = [](bool after, bool prior, bool equal) {
    return dateFilter({"1", "02", "2009", after, prior, equal});
  };
  EXPECT_EQ(filter(true, true, true), "");
  EXPECT_EQ(filter(true, false, true), "(d_updated >= #02/1/2009#)");
  EXPECT_EQ(filter(true, false, false), "(d_updated > #02/1/2009#)");
  EXPECT_EQ(filter(true, true, false), "(d_updated > #02/1/2009#)");
  EXPECT_EQ(filter(false, true, true), "(d_updated <= #02/1/2009#)");
  EXPECT_EQ(filter(false, true, false), "(d_updated < #02/1/2009#)");
  EXPECT_EQ(filter(false, false, true), "(d_updated = #02/1/2009#)");
  EXPECT_EQ(filter(false, false, false), "");
}

TEST(Selection, needs_the_whole_date) {
  EXPECT_EQ(dateFilter({"", "2", "2009", true, false, true}), "");
  EXPECT_EQ(dateFilter({"1", "", "2009", true, false, true}), "");
  EXPECT_EQ(dateFilter({"1", "2", "", true, false, true}), "");
}

TEST(Selection, takes_the_date_as_it_stands_with_the_month_first) {
  EXPECT_EQ(dateFilter({" 31", "2 ", "02009", false, false, true}), "(d_updated = #2 / 31/02009#)");
  QueryChoices choices;
  choices.updated = {"31", "2", "2009", false, true, false};
  expectWhere(choices, "(d_updated < #2/31/2009#)");
}

TEST(Selection, searches_within_the_remarks) {
  QueryChoices choices;
  choices.remarks = "bord de mer";
  expectWhere(choices, " fmtv_rmks.rmk_text LIKE '%bord de mer%' ");
  choices.sfn = true;
  expectWhere(choices, "(sfn_id is NOT Null) AND  fmtv_rmks.rmk_text LIKE '%bord de mer%' ");
}

TEST(Selection, leaves_an_apostrophe_as_it_was_typed) {
  QueryChoices choices;
  choices.siteName = "L'ILE";
  expectWhere(choices, "((site_name = 'L'ILE') OR (allot_name = 'L'ILE'))");
}

// --- the contour's identifier

TEST(Selection, by_contour_works_with_the_types_alone) {
  QueryChoices choices;
  choices.contourId = "012";
  expectWhere(choices, "lmz_contour.contour_id = 12");
  choices.GT2 = true;
  EXPECT_EQ(makeSelection(choices).qrySql, kAllotments +
                                               " WHERE ((notice_typ = 'GT2') OR (notice_typ = 'DT2')) AND "
                                               "lmz_contour.contour_id = 12 ORDER by fmtv_vorna.vornakey");
}

TEST(Selection, by_contour_and_an_earlier_filter_has_its_and_in_the_wrong_place) {
  QueryChoices choices;
  choices.GT2 = true;
  choices.contourId = "12";
  choices.adm.values = {"F"};
  EXPECT_EQ(makeSelection(choices).qrySql,
            kAllotments +
                " WHERE ((notice_typ = 'GT2') OR (notice_typ = 'DT2')) AND  AND ((fmtv_vorna.adm = 'F'))"
                "lmz_contour.contour_id = 12 ORDER by fmtv_vorna.vornakey");
  choices.GT2 = false;
  expectWhere(choices, " AND  AND ((fmtv_vorna.adm = 'F'))lmz_contour.contour_id = 12");
}

TEST(Selection, by_contour_and_remarks_joins_the_remarks_as_usual) {
  QueryChoices choices;
  choices.GS2 = true;
  choices.contourId = "12";
  choices.remarks = "x";
  expectWhere(choices,
              "((notice_typ = 'GS2') OR (notice_typ = 'DS2')) AND lmz_contour.contour_id = 12 AND  "
              "fmtv_rmks.rmk_text LIKE '%x%' ");
}

// --- contours

TEST(Selection, of_contours_without_a_filter_is_the_select_alone) {
  const Selection selection = makeSelection(contourChoices());
  EXPECT_EQ(selection.qrySelect, kContours);
  EXPECT_EQ(selection.qryWhere, "");
  EXPECT_EQ(selection.qrySql, kContours);
}

TEST(Selection, of_contours_joins_its_three_filters) {
  QueryChoices choices = contourChoices();
  choices.adm.values = {"F", "D"};
  choices.ctry.values = {"MCO"};
  choices.contourId = "7.0";
  EXPECT_EQ(makeSelection(choices).qrySql,
            kContours +
                " WHERE ((lmz_contour.adm = 'F') OR (lmz_contour.adm = 'D')) AND ((lmz_contour.ctry = "
                "'MCO')) AND lmz_contour.contour_id = 7 ORDER by lmz_contour.contourkey");
}

TEST(Selection, of_contours_takes_each_filter_alone) {
  QueryChoices choices = contourChoices();
  choices.contourId = "7";
  expectWhere(choices, "lmz_contour.contour_id = 7");
  choices.contourId.clear();
  choices.ctry.values = {"F"};
  expectWhere(choices, "((lmz_contour.ctry = 'F'))");
}

TEST(Selection, of_contours_takes_nothing_else_from_the_form) {
  QueryChoices choices = contourChoices();
  choices.GT1 = true;
  choices.channelFreq = "474";
  choices.erpFrom = "1";
  choices.definedByRpc = true;
  choices.siteName = choices.remarks = choices.sfnId = "x";
  choices.sfn = true;
  choices.updated = {"1", "2", "2009", true, false, false};
  EXPECT_EQ(makeSelection(choices).qrySql, kContours);
}

TEST(Selection, wants_allotments_only_without_any_assignment) {
  EXPECT_TRUE(wantsAllotmentsOnly(false, true, false, false));
  EXPECT_TRUE(wantsAllotmentsOnly(false, false, false, true));
  EXPECT_TRUE(wantsAllotmentsOnly(false, true, false, true));
  EXPECT_FALSE(wantsAllotmentsOnly(true, true, false, true));
  EXPECT_FALSE(wantsAllotmentsOnly(false, true, true, true));
  EXPECT_FALSE(wantsAllotmentsOnly(false, false, false, false));
}

}  // namespace
}  // namespace zamo
