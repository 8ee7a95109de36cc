#include "database/write_notice.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "database/notice_store.h"

namespace zamo {
namespace {

using test::kAwkward;
using test::kNotSaved;
using test::makeAllotmentOf;
using test::makeBareNotice;
using test::NoticeStore;
using test::refusedIn;
using test::Rows;
using test::told;

class StoringAContour : public NoticeStore {};

TEST_F(StoringAContour, makes_a_contour_with_its_points) {
  NtcRec ntc = makeGa1();
  ntc.t_remarks = std::string(100, 'r');
  ntc.t_action = "MODIFY";
  ntc.digital.contour.d_updated = "2009-01-15";
  ntc.digital.contour.d_recog = "2009-01-16";
  ntc.digital.contour.points = {
      {true, "+0022410", "-470530"}, {true, "-1100203", "+01020"}, {true, "", ""}, {}};
  ntc = stored(ntc);
  EXPECT_EQ(outcome.status, ContourStatus::stored);
  EXPECT_EQ(
      rows("SELECT * FROM lmz_contour"),
      (Rows{{"1", "1.0", "F", "F", "MODIFY", "3.0", std::string(100, 'r'), "2009-01-15", "2009-01-16"}}));
  EXPECT_EQ(rows("SELECT * FROM lmz_contour_pt"),
            (Rows{{"1", "0", "2.0", "24.0", "10.0", "E", "47.0", "5.0", "30.0", "S"},
                  {"1", "1", "110.0", "2.0", "3.0", "W", "1.0", "2.0", "0.0", "N"},
                  {"1", "2", "NULL", "NULL", "NULL", "W", "NULL", "NULL", "NULL", "N"}}));
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_vorna"), "0");
  EXPECT_EQ(value("SELECT count(*) FROM fmtv_rmks"), "0");
  EXPECT_EQ(ntc.vornakey, 0);
}

TEST_F(StoringAContour, leaves_seconds_empty_that_a_point_does_not_give) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_nb_test_pts = "1";
  ntc.digital.contour.points = {{true, "-00224", "+4705"}};
  stored(ntc);
  EXPECT_EQ(rows("SELECT * FROM lmz_contour_pt"),
            (Rows{{"1", "0", "2.0", "24.0", "NULL", "W", "47.0", "5.0", "NULL", "N"}}));
}

TEST_F(StoringAContour, makes_a_contour_of_nothing) {
  stored(makeBareNotice("GA1"));
  EXPECT_EQ(rows("SELECT * FROM lmz_contour"),
            (Rows{{"1", "NULL", "NULL", "F", "NULL", "NULL", "NULL", "NULL", "NULL"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "0");
}

TEST_F(StoringAContour, keeps_awkward_texts_of_a_contour) {
  NtcRec ntc = makeGa1();
  ntc.t_remarks = kAwkward;
  ntc.t_action = kAwkward;
  stored(ntc);
  EXPECT_EQ(rows("SELECT intent, remarks FROM lmz_contour"), (Rows{{kAwkward, kAwkward}}));
  NtcRec elsewhere = makeGa1();
  elsewhere.t_ctry = "a; \"b\"";
  stored(elsewhere);
  EXPECT_EQ(value("SELECT ctry FROM lmz_contour WHERE contourkey = 2"), "a; \"b\"");
}

TEST_F(StoringAContour, tells_of_an_apostrophe_in_the_identity_of_a_contour_and_takes_it_for_new) {
  NtcRec ntc = makeGa1();
  ntc.t_ctry = "O'N";
  EXPECT_TRUE(store(ntc));
  expectTold({"findContour: Erreur 1:Syntax error: an apostrophe in O'N"});
  EXPECT_EQ(rows("SELECT ctry, adm, nb_test_pts FROM lmz_contour"), (Rows{{"O'N", "F", "3.0"}}));
  EXPECT_EQ(outcome.status, ContourStatus::stored);
  ntc = makeAllotmentOf("1", {"1"});
  ntc.t_adm = "F'";
  EXPECT_TRUE(store(ntc));
  expectTold({"findContour: Erreur 1:Syntax error: an apostrophe in F'"});
  EXPECT_EQ(rows("SELECT contourkey, adm FROM lmz_contour WHERE adm <> 'F'"), (Rows{{"2", "F'"}}));
  EXPECT_EQ(rows("SELECT contourkey FROM lmz_sub_area"), (Rows{{"2"}}));
}

TEST_F(StoringAContour, has_the_points_that_are_present_as_far_as_the_count_goes) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.points[1].present = false;
  ntc.digital.contour.points[3] = {true, "+0010000", "+460000"};
  stored(ntc);
  EXPECT_EQ(rows("SELECT test_pt FROM lmz_contour_pt"), (Rows{{"0"}, {"2"}}));
}

TEST_F(StoringAContour, fails_when_the_count_goes_beyond_the_points) {
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_nb_test_pts = "5";
  expectNotStored(ntc, {"addNewContour: Erreur 9:Subscript out of range", kNotSaved});
}

TEST_F(StoringAContour, fills_a_placeholder_without_a_question) {
  stored(makeAllotmentOf("1", {"1"}));
  stored(makeGa1());
  EXPECT_EQ(outcome.status, ContourStatus::stored);
  EXPECT_EQ(rows("SELECT contourkey, intent, nb_test_pts FROM lmz_contour"), (Rows{{"1", "ADD", "3.0"}}));
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour_pt"), "3");
  EXPECT_EQ(rows("SELECT * FROM lmz_sub_area"), (Rows{{"83700001", "1"}}));
}

class StoringAContourAgain : public StoringAContour {
 protected:
  StoringAContourAgain() {
    storedContour("1");
    again.digital.contour.t_nb_test_pts = "4";
    again.digital.contour.points[3] = {true, "+0022000", "+473000"};
    again.digital.contour.points.emplace_back();
  }

  void expectQuestion() {
    ASSERT_EQ(script.questions.size(), 1U);
    EXPECT_EQ(told(script.questions[0]),
              "Duplicate ContourID: Do you want to overwrite : \r\nContour ID : 1 defined with 3 test points "
              " WITH\r\n"
              "Contour ID : 1 defined with 4 test points ?");
    script.questions.clear();
  }

  NtcRec again = makeGa1();
};

TEST_F(StoringAContourAgain, replaces_it_when_the_answer_is_yes) {
  script.answers = {true};
  EXPECT_TRUE(store(again));
  expectQuestion();
  expectNothingTold();
  EXPECT_EQ(outcome.status, ContourStatus::replaced);
  EXPECT_EQ(outcome.replacedKey, 1);
  EXPECT_EQ(rows("SELECT contourkey, nb_test_pts FROM lmz_contour"), (Rows{{"1", "4.0"}}));
  EXPECT_EQ(rows("SELECT test_pt FROM lmz_contour_pt"), (Rows{{"0"}, {"1"}, {"2"}, {"3"}}));
}

TEST_F(StoringAContourAgain, stores_nothing_when_the_answer_is_no) {
  const auto before = everything();
  script.answers = {false};
  EXPECT_TRUE(store(again));
  expectQuestion();
  expectNothingTold();
  EXPECT_EQ(outcome.status, ContourStatus::notStored);
  EXPECT_EQ(outcome.replacedKey, 0);
  EXPECT_EQ(everything(), before);
}

TEST_F(StoringAContourAgain, makes_a_second_one_by_force) {
  EXPECT_TRUE(store(again, true));
  expectNothingTold();
  EXPECT_EQ(outcome.status, ContourStatus::stored);
  EXPECT_EQ(rows("SELECT contourkey, contour_id FROM lmz_contour"), (Rows{{"1", "1.0"}, {"2", "1.0"}}));
  // From then on the identifier isn't unique.
  expectNotStored(again,
                  {": Problem : Contour ID is not unique !! Please consult the adminstrator", kNotSaved});
  EXPECT_EQ(outcome.status, ContourStatus::notStored);
}

TEST_F(StoringAContourAgain, keeps_the_old_one_when_the_new_one_fails) {
  const auto before = everything();
  refuseRowsOf("lmz_contour_pt");
  script.answers = {true};
  EXPECT_FALSE(store(again));
  expectQuestion();
  expectTold({refusedIn("writeContourPoint"), kNotSaved});
  EXPECT_EQ(everything(), before);
  EXPECT_EQ(outcome.status, ContourStatus::replaced);
  expectNoTransaction();
}

TEST_F(StoringAContourAgain, takes_an_identifier_of_another_country_for_another_contour) {
  again.t_ctry = "REU";
  EXPECT_TRUE(store(again));
  expectNothingTold();
  EXPECT_EQ(value("SELECT count(*) FROM lmz_contour"), "2");
}

TEST_F(StoringAContourAgain, fails_when_its_identifier_is_no_number) {
  again.digital.contour.t_contour_id = "1x";
  expectNotStored(again, {"addContour: Erreur 13:Type mismatch", kNotSaved});
}

TEST_F(StoringAContourAgain, ends_the_transaction_when_the_question_throws) {
  host.askYesNo = [](const Box&) -> bool { throw std::runtime_error("closed"); };
  EXPECT_THROW(store(again), std::runtime_error);
  expectTold({kNotSaved});
  expectNoTransaction();
}

}  // namespace
}  // namespace zamo
