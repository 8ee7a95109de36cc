// The statements of the query form, run on a working database.
#include <functional>

#include "database/generated_notices.h"
#include "database/load.h"
#include "database/lookups.h"
#include "database/notice_store.h"
#include "database/recordset.h"
#include "query/selection.h"

namespace zamo {
namespace {

using test::Texts;

using Keys = std::vector<std::int32_t>;

constexpr std::int32_t kUntouched = -1;

QueryChoices of(const std::function<void(QueryChoices&)>& change) {
  QueryChoices choices;
  change(choices);
  return choices;
}

QueryChoices ofContours(const std::function<void(QueryChoices&)>& change) {
  QueryChoices choices;
  choices.isNotice = false;
  change(choices);
  return choices;
}

class Selected : public test::NoticeStore {
 protected:
  // Stored under a reference of its own, by which the tests know it.
  void put(NtcRec ntc, const std::string& reference, const std::function<void(NtcRec&)>& change = {}) {
    ntc.t_adm_ref_id = reference;
    if (change) change(ntc);
    stored(ntc);
  }

  // One of each type; "old" is a GT1 under its old name.
  void putTypes() {
    put(makeGt1(), "gt1");
    put(makeGt2(), "gt2");
    put(makeGs1(), "gs1");
    put(makeGs2(), "gs2");
    put(makeGt1(), "old");
    raw.run("UPDATE fmtv_vorna SET notice_typ = 'DT1' WHERE adm_ref_id = 'old'");
  }

  Keys keysOf(const QueryChoices& choices) {
    Keys keys;
    std::int32_t count = kUntouched;
    const std::string sql = makeSelection(choices).qrySql;
    const bool succeeded = choices.isNotice ? getVornaKeyList(host, keys, sql, count, connection)
                                            : getContourKeyList(host, keys, count, sql, connection);
    EXPECT_TRUE(succeeded) << sql;
    EXPECT_EQ(count, static_cast<std::int32_t>(keys.size())) << sql;
    expectNothingTold();
    return keys;
  }

  // The references of the notices, or the identifiers of the contours.
  Texts found(const QueryChoices& choices) {
    Texts names;
    for (const std::int32_t key : keysOf(choices)) {
      const std::string id = std::to_string(key);
      names.push_back(
          choices.isNotice
              ? value("SELECT adm_ref_id FROM fmtv_vorna WHERE vornakey = " + id)
              : value("SELECT CAST(contour_id AS INTEGER) FROM lmz_contour WHERE contourkey = " + id));
    }
    return names;
  }

  // The common error box and nothing else; list and count stay as they are.
  void expectRefused(const QueryChoices& choices, const std::string& error) {
    Keys keys = {7};
    std::int32_t count = kUntouched;
    const std::string sql = makeSelection(choices).qrySql;
    SCOPED_TRACE(sql);
    const std::string operation = choices.isNotice ? "getVornaKeyList" : "getContourKeyList";
    EXPECT_FALSE(choices.isNotice ? getVornaKeyList(host, keys, sql, count, connection)
                                  : getContourKeyList(host, keys, count, sql, connection));
    EXPECT_EQ(keys, Keys{7});
    EXPECT_EQ(count, kUntouched);
    expectTold({operation + ": " + error});
  }

  // The first row of a selection, its columns as they are named, a Null as "NULL".
  Texts firstRow(const QueryChoices& choices, const Texts& columns) {
    const Recordset rows(makeSelection(choices).qrySql, connection);
    Texts values;
    for (const std::string& column : columns) values.push_back(rows.value(column).value_or("NULL"));
    return values;
  }
};

// --- types

TEST_F(Selected, without_a_filter_are_all_notices_whatever_their_type) {
  putTypes();
  stored(makeTb5());
  EXPECT_EQ(found({}).size(), 6U);
}

TEST_F(Selected, by_type_bring_along_what_stands_under_the_old_name) {
  putTypes();
  EXPECT_EQ(found(of([](auto& q) { q.GT1 = true; })), (Texts{"gt1", "old"}));
  EXPECT_EQ(found(of([](auto& q) { q.GS1 = true; })), (Texts{"gs1"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = true; })), (Texts{"gt2"}));
  EXPECT_EQ(found(of([](auto& q) { q.GS2 = true; })), (Texts{"gs2"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT1 = q.GS2 = true; })), (Texts{"gt1", "gs2", "old"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT1 = q.GS1 = true; })), (Texts{"gt1", "gs1", "old"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = q.GS2 = true; })), (Texts{"gt2", "gs2"}));
}

TEST_F(Selected, rows_of_the_mixed_select_have_the_columns_of_the_grid) {
  put(makeGt1(), "F-1");
  EXPECT_EQ(firstRow({}, {"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Longitude", "Latitude", "Freq",
                          "Sitename", "Allotname", "Intent", "allotkey"}),
            (Texts{value("SELECT vornakey FROM fmtv_vorna"), "F", "F-1", "GT1", "2\260 24\264 10\264\264 E",
                   "47\260 5\264 30\264\264 N", "474", "BOURGES", "NULL", "ADD", "NULL"}));
}

TEST_F(Selected, rows_of_assignments_have_the_columns_of_the_grid) {
  put(makeGs1(), "F-1");
  EXPECT_EQ(firstRow(of([](auto& q) { q.GS1 = true; }), {"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Longitude",
                                                         "Latitude", "Freq", "Sitename", "Intent"}),
            (Texts{value("SELECT vornakey FROM fmtv_vorna"), "F", "F-1", "GS1", "2\260 24\264 10\264\264 E",
                   "47\260 5\264 30\264\264 N", "174.928", "BOURGES", "ADD"}));
}

TEST_F(Selected, rows_of_allotments_have_the_columns_of_the_grid) {
  put(makeGt2(), "F-1", [](NtcRec& ntc) {
    ntc.digital.allot.t_geo_area.clear();
    ntc.digital.allot.t_nb_sub_areas = "1";
    ntc.digital.allot.t_contour_id[0] = "12";
  });
  EXPECT_EQ(
      firstRow(of([](auto& q) { q.GT2 = true; }),
               {"VornaKey", "Adm", "AdmRefID", "NtcTyp", "Freq", "Allotname", "Intent", "ContourID"}),
      (Texts{value("SELECT vornakey FROM fmtv_vorna"), "F", "F-1", "GT2", "474", "CENTRE", "ADD", "12"}));
}

TEST_F(Selected, allotments_come_once_for_each_contour) {
  put(test::makeAllotmentOf("2", {"1", "2"}), "two");
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = true; })), (Texts{"two", "two"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = q.GT1 = true; })), (Texts{"two"}));
}

// --- filters

TEST_F(Selected, by_administration_and_country_fit_both) {
  put(makeGt1(), "ff");
  put(makeGt1(), "fm", [](NtcRec& ntc) { ntc.t_ctry = "MCO"; });
  put(makeGt1(), "df", [](NtcRec& ntc) { ntc.t_adm = "D"; });
  put(makeGt2(), "bb", [](NtcRec& ntc) { ntc.t_adm = ntc.t_ctry = "BEL"; });
  EXPECT_EQ(found(of([](auto& q) { q.adm.values = {"F"}; })), (Texts{"ff", "fm"}));
  EXPECT_EQ(found(of([](auto& q) { q.adm.values = {"BEL", "D"}; })), (Texts{"bb", "df"}));
  EXPECT_EQ(found(of([](auto& q) { q.ctry.values = {"F", "MCO"}; })), (Texts{"df", "ff", "fm"}));
  EXPECT_EQ(found(of([](auto& q) {
              q.adm.values = {"F"};
              q.ctry.values = {"MCO", "BEL"};
            })),
            (Texts{"fm"}));
  EXPECT_EQ(found(of([](auto& q) { q.adm = {{"F"}, true}; })), (Texts{"bb", "df", "ff", "fm"}));
}

TEST_F(Selected, by_frequency_compare_numbers) {
  put(makeGt1(), "474");
  put(makeGs1(), "174.928");
  EXPECT_EQ(found(of([](auto& q) { q.channelFreq = "474.000"; })), (Texts{"474"}));
  EXPECT_EQ(found(of([](auto& q) { q.channelFreq = "0174.928"; })), (Texts{"174.928"}));
  EXPECT_EQ(found(of([](auto& q) { q.channelFreq = "47"; })), Texts{});
}

TEST_F(Selected, by_plan_configuration_have_one_or_none) {
  put(makeGt1(), "rpc");
  put(makeGt1UnderArt5(), "variant");
  EXPECT_EQ(found(of([](auto& q) { q.definedByRpc = true; })), (Texts{"rpc"}));
  EXPECT_EQ(found(of([](auto& q) { q.definedBySysVar = true; })), (Texts{"variant"}));
  EXPECT_EQ(found(of([](auto& q) { q.definedByRpc = q.definedBySysVar = true; })), (Texts{"rpc", "variant"}));
}

TEST_F(Selected, by_power_lie_within_both_bounds_or_are_equal_to_one) {
  put(makeGt1(), "h43");
  put(makeGt1(), "v20", [](NtcRec& ntc) {
    ntc.t_polar = "V";
    ntc.t_erp_h_dbw.clear();
    ntc.t_erp_v_dbw = "20";
  });
  put(makeGt2(), "none");
  const auto withPower = [this](const char* from, const char* to) {
    return found(of([=](auto& q) { q.erpFrom = from, q.erpTo = to; }));
  };
  EXPECT_EQ(withPower("20", "43"), (Texts{"h43", "v20"}));
  EXPECT_EQ(withPower("19.5", "42.9"), (Texts{"v20"}));
  EXPECT_EQ(withPower("43", ""), (Texts{"h43"}));
  EXPECT_EQ(withPower("", "20"), (Texts{"v20"}));
  EXPECT_EQ(withPower("", "42"), Texts{});
  expectRefused(of([](auto& q) { q.erpTo = "much"; }), "Erreur 1:no such column: much");
}

TEST_F(Selected, by_name_are_sites_and_allotments) {
  put(makeGt1(), "site", [](NtcRec& ntc) { ntc.t_site_name = "CENTRE"; });
  put(makeGt2(), "allotment");
  put(makeGt1(), "other");
  const auto named = [](QueryChoices& q) { q.siteName = "centre"; };
  EXPECT_EQ(found(of(named)), (Texts{"site", "allotment"}));
  EXPECT_EQ(found(of([&](auto& q) { named(q), q.GT1 = true; })), (Texts{"site"}));
  EXPECT_EQ(found(of([&](auto& q) { named(q), q.GT2 = true; })), (Texts{"allotment"}));
}

TEST_F(Selected, by_single_frequency_network_have_it_or_any_or_none) {
  put(makeGt1(), "none");
  put(makeGt2(), "one");
  put(makeGt2(), "other", [](NtcRec& ntc) { ntc.digital.t_sfn_id = "OTHER"; });
  EXPECT_EQ(found(of([](auto& q) { q.noSfn = true; })), (Texts{"none"}));
  EXPECT_EQ(found(of([](auto& q) { q.sfn = true; })), (Texts{"one", "other"}));
  EXPECT_EQ(found(of([](auto& q) { q.sfn = true, q.sfnId = "OTHER"; })), (Texts{"other"}));
}

TEST_F(Selected, by_date_are_compared_as_days) {
  for (const char* day : {"2009-02-28", "2009-03-01", "2009-03-02"})
    put(makeGt1(), day, [day](NtcRec& ntc) { ntc.d_updated = day; });
  const auto updated = [this](bool after, bool prior, bool equal) {
    return found(of([=](auto& q) { q.updated = {"1", "3", "2009", after, prior, equal}; }));
  };
  EXPECT_EQ(updated(true, false, true), (Texts{"2009-03-01", "2009-03-02"}));
  EXPECT_EQ(updated(true, false, false), (Texts{"2009-03-02"}));
  EXPECT_EQ(updated(false, true, true), (Texts{"2009-02-28", "2009-03-01"}));
  EXPECT_EQ(updated(false, true, false), (Texts{"2009-02-28"}));
  EXPECT_EQ(updated(false, false, true), (Texts{"2009-03-01"}));
}

TEST_F(Selected, by_remarks_come_once_though_several_fit) {
  put(makeGt1(), "both", [](NtcRec& ntc) {
    ntc.t_remarks = "near the coast";
    ntc.t_int_remarks = "COAST to be checked";
  });
  put(makeGt1(), "none");
  put(makeGt2(), "allotment", [](NtcRec& ntc) { ntc.t_remarks = "coast"; });
  const auto coast = [](QueryChoices& q) { q.remarks = "coast"; };
  EXPECT_EQ(found(of(coast)), (Texts{"both", "allotment"}));
  EXPECT_EQ(found(of([&](auto& q) { coast(q), q.GT1 = true; })), (Texts{"both"}));
  EXPECT_EQ(found(of([&](auto& q) { coast(q), q.GT2 = true; })), (Texts{"allotment"}));
}

TEST_F(Selected, by_everything_at_once_are_found) {
  put(makeGt1(), "all", [](NtcRec& ntc) {
    ntc.digital.t_sfn_id = "S1";
    ntc.t_remarks = "here";
    ntc.d_updated = "2009-03-01";
  });
  const auto all = [](QueryChoices& q) {
    q.adm.values = q.ctry.values = {"D", "F"};
    q.erpFrom = "40";
    q.erpTo = "45";
    q.channelFreq = "474";
    q.definedByRpc = true;
    q.siteName = "BOURGES";
    q.sfn = true;
    q.sfnId = "S1";
    q.updated = {"1", "3", "2009", false, false, true};
    q.remarks = "here";
  };
  EXPECT_EQ(found(of(all)), (Texts{"all"}));
  EXPECT_EQ(found(of([&](auto& q) { all(q), q.GT1 = true; })), (Texts{"all"}));
  EXPECT_EQ(found(of([&](auto& q) { all(q), q.GS1 = true; })), Texts{});
}

// --- contours

TEST_F(Selected, by_contour_are_the_allotments_that_it_belongs_to) {
  put(test::makeAllotmentOf("2", {"1", "2"}), "two");
  put(test::makeAllotmentOf("1", {"3"}), "one");
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = true, q.contourId = "2"; })), (Texts{"two"}));
  EXPECT_EQ(found(of([](auto& q) { q.GT2 = q.GS2 = true, q.contourId = "3"; })), (Texts{"one"}));
}

TEST_F(Selected, contours_are_those_that_were_notified) {
  storedContour("5");
  put(test::makeAllotmentOf("1", {"3"}), "names a contour");
  storedContour("12");
  raw.run("UPDATE lmz_contour SET adm = 'D', ctry = 'LUX' WHERE contour_id = 12");
  EXPECT_EQ(found(ofContours([](auto&) {})), (Texts{"5", "12"}));
  EXPECT_EQ(found(ofContours([](auto& q) { q.adm.values = {"D", "BEL"}; })), (Texts{"12"}));
  EXPECT_EQ(found(ofContours([](auto& q) { q.ctry.values = {"F", "BEL"}; })), (Texts{"5"}));
  EXPECT_EQ(found(ofContours([](auto& q) { q.contourId = "3"; })), Texts{});
  EXPECT_EQ(found(ofContours([](auto& q) {
              q.adm.values = {"D"};
              q.ctry.values = {"LUX"};
              q.contourId = "12";
            })),
            (Texts{"12"}));
}

TEST_F(Selected, rows_of_contours_have_the_columns_of_the_grid) {
  storedContour("5");
  EXPECT_EQ(firstRow(ofContours([](auto&) {}), {"ContourKey", "ContourID", "Country", "Adm", "NbTestPts"}),
            (Texts{value("SELECT contourkey FROM lmz_contour"), "5", "F", "F", "3"}));
}

// --- what the engine refuses

TEST_F(Selected, by_contour_and_another_filter_are_refused) {
  putTypes();
  expectRefused(of([](auto& q) {
                  q.GT2 = true;
                  q.contourId = "1";
                  q.adm.values = {"F"};
                }),
                "Erreur 1:near \"AND\": syntax error");
  expectRefused(of([](auto& q) { q.contourId = "1", q.noSfn = true; }),
                "Erreur 1:near \"AND\": syntax error");
}

TEST_F(Selected, by_contour_where_no_contours_are_joined_are_refused) {
  expectRefused(of([](auto& q) { q.contourId = "1"; }), "Erreur 1:no such column: lmz_contour.contour_id");
}

TEST_F(Selected, with_an_apostrophe_are_refused) {
  putTypes();
  expectRefused(of([](auto& q) { q.siteName = "L'ILE"; }), "Erreur 1:near \"ILE\": syntax error");
  expectRefused(of([](auto& q) { q.remarks = "L'ILE"; }), "Erreur 1:near \"ILE\": syntax error");
  expectRefused(of([](auto& q) { q.sfn = true, q.sfnId = "'"; }),
                "Erreur 1:unrecognized token: \"''') ORDER by fmtv_vorna.vornakey\"");
  expectRefused(ofContours([](auto& q) { q.adm.values = {"O'N"}; }), "Erreur 1:near \"N\": syntax error");
}

TEST_F(Selected, by_a_day_that_is_none_are_refused) {
  putTypes();
  expectRefused(of([](auto& q) { q.updated = {"31", "2", "2009", true, false, true}; }),
                "Erreur 1:Syntax error in date #2/31/2009#");
}

TEST_F(Selected, by_date_among_allotments_only_are_refused) {
  putTypes();
  const auto dated = [](QueryChoices& q) { q.updated = {"1", "3", "2009", true, false, true}; };
  expectRefused(of([&](auto& q) { dated(q), q.GT2 = true; }), "Erreur 1:ambiguous column name: d_updated");
  expectRefused(of([&](auto& q) { dated(q), q.GS2 = true; }), "Erreur 1:ambiguous column name: d_updated");
}

// --- many

TEST_F(Selected, of_made_up_notices_are_those_that_the_engine_itself_finds) {
  test::NoticeMaker maker(6);
  const std::string fileName = folder.file("made_up.txt");
  NtcRec ntc;
  for (int i = 0; i < 120; ++i) {
    LineSource lines = LineSource::ofText(maker.file(kNoticeTypes[static_cast<std::size_t>(i) % 8]));
    readNtcsFromFileToDB(host, lines, {ntc, fileName, "", [](auto&&...) {}}, connection);
  }
  script = {};
  const auto expectSame = [this](const QueryChoices& choices, const std::string& condition) {
    Keys expected;
    for (const auto& row : rows("SELECT vornakey FROM fmtv_vorna WHERE " + condition + " ORDER BY vornakey"))
      expected.push_back(std::stoi(row[0]));
    Keys keys = keysOf(choices);
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    EXPECT_EQ(keys, expected) << condition;
    EXPECT_FALSE(expected.empty()) << condition;
  };
  expectSame({}, "1");
  expectSame(of([](auto& q) { q.GT1 = q.GS1 = true; }), "notice_typ IN ('GT1', 'GS1')");
  expectSame(of([](auto& q) { q.GT2 = q.GS2 = true; }), "notice_typ IN ('GT2', 'GS2')");
  expectSame(of([](auto& q) { q.GT1 = q.GS2 = true; }), "notice_typ IN ('GT1', 'GS2')");
  expectSame(of([](auto& q) { q.sfn = true; }), "sfn_id IS NOT NULL");
  expectSame(of([](auto& q) { q.definedBySysVar = true; }), "ref_plan_cfg IS NULL");
  expectSame(of([](auto& q) { q.erpFrom = "0", q.erpTo = "30"; }),
             "erp_v_dbw BETWEEN 0 AND 30 OR erp_h_dbw BETWEEN 0 AND 30");
  expectSame(of([](auto& q) { q.remarks = "a"; }),
             "vornakey IN (SELECT vornakey FROM fmtv_rmks WHERE rmk_text LIKE '%a%')");
  expectSame(of([](auto& q) { q.remarks = "\351"; }),
             "vornakey IN (SELECT vornakey FROM fmtv_rmks WHERE rmk_text LIKE '%\303\251%')");
}

}  // namespace
}  // namespace zamo
