#include "database/delete_notice.h"

#include <gtest/gtest.h>

#include "database/notice_store.h"

namespace zamo {
namespace {

using test::kNotSaved;
using test::makeFullNotice;
using test::NoticeStore;
using test::refusedIn;
using test::Rows;
using test::Texts;
using test::wordsOf;

class DeletingANotice : public NoticeStore {
 protected:
  void remove(std::int32_t key) {
    deleteNtcFromDB(host, key, connection);
    expectNothingTold();
    expectNoTransaction();
  }

  void expectRefused(std::int32_t key, const Texts& boxes) {
    const auto before = everything();
    deleteNtcFromDB(host, key, connection);
    expectTold(boxes);
    EXPECT_EQ(everything(), before);
    expectNoTransaction();
  }

  NtcRec allotmentOf(const std::string& first, const std::string& second = "") {
    NtcRec ntc = makeFullNotice("GS2");
    ntc.digital.allot.t_contour_id = {first, second};
    return stored(ntc);
  }
};

TEST_F(DeletingANotice, takes_all_its_rows_and_no_others) {
  for (const std::string& kind : wordsOf("GT1/5 GS1 TB2 TB3 TB5")) {
    SCOPED_TRACE(kind);
    stored(makeFullNotice(kind));
    const auto before = everything();
    const NtcRec ntc = stored(makeFullNotice(kind));
    EXPECT_FALSE(tablesChangedSince(before).empty());
    remove(ntc.vornakey);
    EXPECT_EQ(tablesChangedSince(before), Texts{});
  }
  // A key once used stays used.
  EXPECT_EQ(value("SELECT vornakey FROM fmtv_keys"), "11");
}

TEST_F(DeletingANotice, is_refused_when_there_is_no_such_row) {
  stored(makeGt1());
  expectRefused(5,
                {"Database error (!): The selected notice is not unique. Please consult the administrator!",
                 kNotSaved});
}

TEST_F(DeletingANotice, takes_an_allotment_with_its_links_and_placeholders) {
  for (const std::string& type : wordsOf("GT2 GS2")) {
    const auto before = everything();
    remove(stored(makeFullNotice(type)).vornakey);
    EXPECT_EQ(tablesChangedSince(before), Texts{}) << type;
  }
}

TEST_F(DeletingANotice, knows_an_allotment_in_any_case) {
  const auto before = everything();
  const NtcRec ntc = stored(makeFullNotice("GT2"));
  raw.run("UPDATE fmtv_vorna SET notice_typ = 'gt2'");
  remove(ntc.vornakey);
  EXPECT_EQ(tablesChangedSince(before), Texts{});
}

TEST_F(DeletingANotice, keeps_a_contour_that_was_notified) {
  storedContour("1");
  const NtcRec ntc = allotmentOf("1", "2");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "2");
  remove(ntc.vornakey);
  EXPECT_EQ(rows("SELECT contourkey, nb_test_pts FROM lmz_contour"), (Rows{{"1", "3.0"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "3");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "0");
}

TEST_F(DeletingANotice, takes_the_links_of_other_allotments_to_a_shared_contour) {
  storedContour("1");
  const NtcRec one = allotmentOf("1", "2");
  const NtcRec other = allotmentOf("1", "3");
  remove(one.vornakey);
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700002", "3"}}));
  EXPECT_EQ(rows("SELECT contour_id FROM lmz_contour"), (Rows{{"1.0"}, {"3.0"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_allotment"), "1");
  remove(other.vornakey);
  EXPECT_EQ(rows("SELECT contour_id FROM lmz_contour"), (Rows{{"1.0"}}));
}

TEST_F(DeletingANotice, is_refused_when_another_deletion_took_all_its_links) {
  const NtcRec one = allotmentOf("1", "2");
  const NtcRec other = allotmentOf("2", "1");
  remove(one.vornakey);
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "0");
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "0");
  expectRefused(other.vornakey, {kNotSaved});
}

TEST_F(DeletingANotice, takes_an_allotment_without_sub_areas) {
  const auto before = everything();
  remove(stored(makeGt2()).vornakey);
  EXPECT_EQ(tablesChangedSince(before), Texts{});
}

TEST_F(DeletingANotice, leaves_links_alone_when_their_number_is_not_known) {
  const NtcRec ntc = allotmentOf("1");
  raw.run("UPDATE lmz_allotment SET nb_sub_areas = NULL");
  remove(ntc.vornakey);
  EXPECT_EQ(value("SELECT count(*) FROM lmz_sub_area"), "0");  // with their allotment
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "1");
}

TEST_F(DeletingANotice, deletes_nothing_whichever_table_fails) {
  storedContour("1");
  const NtcRec ntc = allotmentOf("1", "2");
  refuseRowsOf("fmtv_vorna", "DELETE");
  expectRefused(ntc.vornakey, {refusedIn("deleteOneFromKv19Vorna"), kNotSaved});
  refuseNoMore();
  refuseRowsOf("lmz_contour", "DELETE");
  expectRefused(ntc.vornakey, {refusedIn("deleteContourOrph"), kNotSaved});
  refuseNoMore();
  refuseRowsOf("lmz_sub_area", "DELETE");
  // That of the first contour, and that of the second with its placeholder; and those of the allotment.
  expectRefused(ntc.vornakey, {refusedIn("deleteContourOrph"), refusedIn("deleteContourOrph"),
                               refusedIn("deleteOneFromKv19Vorna"), kNotSaved});
  refuseNoMore();
  remove(ntc.vornakey);
}

TEST_F(DeletingANotice, does_not_begin_while_another_program_writes) {
  const NtcRec ntc = stored(makeGt1());
  const auto before = everything();
  raw.run("BEGIN IMMEDIATE");
  deleteNtcFromDB(host, ntc.vornakey, connection);
  expectTold({"deleteNtcFromDB: Erreur 5:database is locked"});
  deleteContourFromDB(host, 1, connection);
  expectTold({"deleteContourFromDB: Erreur 5:database is locked"});
  raw.run("ROLLBACK");
  EXPECT_EQ(everything(), before);
}

class DeletingAContour : public DeletingANotice {
 protected:
  void expectContourRefused(std::int32_t contourkey, const Texts& boxes) {
    const auto before = everything();
    deleteContourFromDB(host, contourkey, connection);
    expectTold(boxes);
    EXPECT_EQ(everything(), before);
    expectNoTransaction();
  }
};

TEST_F(DeletingAContour, leaves_a_placeholder_and_the_links_to_it) {
  storedContour("1");
  storedContour("2");
  allotmentOf("1", "2");
  auto expected = columnsOf("lmz_contour", "contourkey = 1");
  const Rows links = rows("SELECT * FROM lmz_sub_area");
  deleteContourFromDB(host, 1, connection);
  expectNothingTold();
  expectNoTransaction();
  expected["nb_test_pts"] = "NULL";
  EXPECT_EQ(columnsOf("lmz_contour", "contourkey = 1"), expected);
  EXPECT_EQ(rows("SELECT DISTINCT contourkey FROM lmz_contour_pt"), (Rows{{"2"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), links);
}

TEST_F(DeletingAContour, is_refused_when_there_is_no_such_row) {
  storedContour("1");
  expectContourRefused(
      2,
      {"Database error (!): deleteContourTable: The contour is corrupted. Please consult the administrator!",
       kNotSaved});
}

TEST_F(DeletingAContour, is_refused_with_fewer_than_two_points) {
  storedContour("1");
  const std::string corrupted =
      "Database error (!): deleteContourPointTable: The contour point is corrupted. Please consult the "
      "administrator!";
  raw.run("DELETE FROM lmz_contour_pt WHERE test_pt > 1");
  raw.run("DELETE FROM lmz_contour_pt WHERE test_pt > 0");
  expectContourRefused(1, {corrupted, kNotSaved});
  raw.run("DELETE FROM lmz_contour_pt");
  expectContourRefused(1, {corrupted, kNotSaved});
}

TEST_F(DeletingAContour, takes_one_of_two_points) {
  storedContour("1");
  raw.run("DELETE FROM lmz_contour_pt WHERE test_pt > 1");
  deleteContourFromDB(host, 1, connection);
  expectNothingTold();
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "0");
}

TEST_F(DeletingAContour, deletes_nothing_whichever_table_fails) {
  storedContour("1");
  refuseRowsOf("lmz_contour_pt", "DELETE");
  expectContourRefused(1, {refusedIn("deleteContourPointTable"), kNotSaved});
  refuseNoMore();
  refuseRowsOf("lmz_contour", "UPDATE");
  expectContourRefused(1, {refusedIn("deleteContourTable"), kNotSaved});
}

// --- What corrections delete

TEST_F(DeletingANotice, deletes_a_target_when_it_is_the_only_one) {
  const NtcRec one = stored(makeFullNotice("GT1/5"));
  const NtcRec two = stored(makeFullNotice("GT1/5"));
  raw.run("INSERT INTO fmtv_art5_target (vornakey) VALUES (83700002)");
  deleteArt5TargetTable(host, one.vornakey, connection);
  deleteArt5TargetTable(host, two.vornakey, connection);
  deleteArt5TargetTable(host, 5, connection);
  expectNothingTold();
  EXPECT_EQ(rows("SELECT vornakey FROM fmtv_art5_target"), (Rows{{"83700002"}, {"83700002"}}));
}

TEST_F(DeletingANotice, deletes_one_of_its_diagrams) {
  const NtcRec ntc = stored(makeFullNotice("GT1/5"));
  EXPECT_TRUE(deleteFromAntDiagr(host, ntc.vornakey, 'H', connection));
  EXPECT_EQ(rows("SELECT polar, count(*) FROM fmtv_ant_diag GROUP BY polar"), (Rows{{"V", "36"}}));
  EXPECT_TRUE(deleteFromAntDiagr(host, ntc.vornakey, 'H', connection));
  EXPECT_TRUE(deleteFromAntDiagr(host, 5, 'V', connection));
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_ant_diag"), "36");
  expectNothingTold();
}

TEST_F(DeletingANotice, deletes_the_links_of_one_allotment) {
  allotmentOf("1", "2");
  allotmentOf("1", "3");
  EXPECT_TRUE(deleteSubAreaTable(host, 83700001, connection));
  expectNothingTold();
  EXPECT_EQ(rows("SELECT DISTINCT allotkey FROM lmz_sub_area"), (Rows{{"83700002"}}));
  EXPECT_FALSE(deleteSubAreaTable(host, 83700001, connection));
  expectTold(
      {"Database error (!): deleteSubAreaTable: The allotment is corrupted. Please consult the "
       "administrator!"});
}

}  // namespace
}  // namespace zamo
