// Whole records go to the screen and back, and through the database.
#include "screens/screen_mapping.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "database/delete_notice.h"
#include "database/generated_notices.h"
#include "database/notice_store.h"
#include "database/read_notice.h"
#include "database/update_notice.h"
#include "model/ntc_reset.h"
#include "noticefile/line_source.h"
#include "noticefile/lines.h"
#include "noticefile/section_reader.h"
#include "screens/mapped_notice.h"
#include "screens/visibility.h"

namespace zamo {
namespace {

using test::BareScreen;
using test::Contents;
using test::contentsOf;
using test::makeFullNotice;
using test::RuledScreen;

// --- whole records

// What becomes of a record that goes to the screen and back: today's stamps, coordinates with their zeros,
// dates without, azimuths as numbers, and only what the form has.
NtcRec expectedBack(NtcRec ntc) {
  ntc.d_updated = "2026-03-07";
  ntc.src_update = "tester";
  ntc.d_rcv.clear();
  ntc.digital.contour.d_updated.clear();
  const auto pad = [](std::string& text, std::size_t width) {
    if (!text.empty() && text.size() < width) text.insert(0, width - text.size(), '0');
  };
  pad(ntc.long_deg, 3);
  for (std::string* part : {&ntc.long_min, &ntc.long_sec, &ntc.lat_deg, &ntc.lat_min, &ntc.lat_sec})
    pad(*part, 2);
  if (ntc.t_d_inuse == "2009-02-01") ntc.t_d_inuse = "2009-2-1";
  for (auto* grid : {&ntc.ant_hgt, &ntc.ant_diagr_h, &ntc.ant_diagr_v}) {
    for (AzmValueRec& entry : *grid) {
      if (entry.present) entry.azm = std::to_string(std::stoi(entry.azm));
    }
  }
  return ntc;
}

constexpr const char* kKinds[] = {"GT1", "GS1", "GT1/5", "GS1/5", "GT2", "GS2", "GA1", "TB2", "TB3", "TB5"};

// One administration more than the last: the place behind it is made by the reader of files alone.
void dropLastPlace(CoordListRec& coord) {
  if (coord.present) coord.entries.pop_back();
}

TEST(ScreenMapping, a_valid_notice_of_each_kind_goes_to_the_screen_and_back) {
  for (const char* kind : kKinds) {
    BareScreen bare(kind);
    NtcRec expected = expectedBack(makeKind(kind));
    if (expected.t_notice_type == "GA1") {
      expected.digital.contour.d_updated = "2026-03-07";
      expected.digital.present = false;
    }
    EXPECT_TRUE(bare.fill(makeKind(kind)) == makeKind(kind)) << kind;
    EXPECT_TRUE(bare.read() == expected) << kind;
  }
}

TEST(ScreenMapping, a_full_notice_of_each_kind_goes_to_the_screen_and_back) {
  for (const char* kind : kKinds) {
    const NtcRec full = makeFullNotice(kind);
    NtcRec expected = expectedBack(full);
    const std::string type = full.t_notice_type;
    dropLastPlace(expected.coord);
    expected.digital.present = true;
    if (type == "GA1") {
      expected.digital.contour.d_updated = "2026-03-07";
      expected.t_int_remarks.clear();
    }
    if (type == "GA1" || type == "TB2" || type == "TB5") expected.coord = {};
    BareScreen bare(kind);
    bare.fill(full);
    EXPECT_TRUE(bare.read() == expected) << kind;
  }
}

// With all rules at work, on a form that has shown another notice before.
TEST(ScreenMapping, the_rules_of_the_forms_change_nothing_of_what_is_filled_in) {
  for (const char* kind : kKinds) {
    const NtcRec full = makeFullNotice(kind);
    RuledScreen ruled(test::formOf(kind));
    BareScreen bare(kind);
    ruled.fill(makeKind(full.t_notice_type == "GT1" ? "GT1/5" : kind));
    clearScreen(ruled.screen);
    ruled.fill(full);
    bare.fill(full);
    NtcRec expected = bare.read();
    // Of what is operated only from a day on the blank hours are those of a whole day.
    const bool hasHours = full.t_fragment == "NTFD_PZ";
    if (hasHours && !expected.op_hours.present) expected.op_hours = {true, "0000", "2400"};
    EXPECT_TRUE(ruled.read() == expected) << kind;
  }
}

TEST(ScreenMapping, filling_in_what_was_read_changes_nothing_more) {
  for (const char* kind : kKinds) {
    RuledScreen ruled(test::formOf(kind));
    ruled.fill(makeFullNotice(kind));
    const NtcRec first = ruled.read();
    const Contents shown = contentsOf(ruled.screen);
    EXPECT_TRUE(ruled.fill(first) == first) << kind;
    EXPECT_EQ(contentsOf(ruled.screen), shown) << kind;
    EXPECT_TRUE(ruled.read() == first) << kind;
  }
}

TEST(ScreenMapping, an_empty_record_and_an_empty_screen_do_no_harm) {
  for (const std::string_view type : kNoticeTypes) {
    BareScreen bare(type);
    const NtcRec before = bare.read();
    bare.fill(NtcRec());
    EXPECT_TRUE(bare.read() == before) << type;
  }
}

TEST(ScreenMapping, a_hostile_record_goes_to_the_screen_and_back) {
  const std::string longText(70000, '\377');
  for (const std::string_view type : kNoticeTypes) {
    NtcRec ntc = makeNotice(type);
    for (std::string* text :
         {&ntc.t_adm_ref_id, &ntc.t_remarks, &ntc.t_int_remarks, &ntc.t_site_name, &ntc.t_adm, &ntc.t_d_inuse,
          &ntc.long_deg, &ntc.t_trg_adm_ref_id, &ntc.t_notice_type}) {
      *text = longText;
    }
    ntc.t_action = ntc.t_fragment = std::string("\0%1\r\n", 5);
    ntc.coord.count = std::numeric_limits<std::int32_t>::max();
    ntc.digital.allot.t_nb_sub_areas = "12";
    ntc.digital.contour.t_nb_test_pts = "99";
    BareScreen bare(type);
    bare.fill(ntc);
    const NtcRec back = bare.read();
    EXPECT_EQ(back.t_notice_type, type);
    EXPECT_EQ(back.t_remarks, longText) << type;
  }
}

// --- through the database

class ScreenAndDatabase : public test::NoticeStore {
 protected:
  static std::int32_t keyOf(const NtcRec& ntc) { return isContour(ntc) ? 1 : ntc.vornakey; }
  static bool isContour(const NtcRec& ntc) { return ntc.t_notice_type == "GA1"; }
  static bool isTb(const NtcRec& ntc) { return ntc.t_notice_type.starts_with("TB"); }

  NtcRec readBack(const NtcRec& stored) {
    NtcRec ntc;
    resetNtc(ntc);
    EXPECT_TRUE(isContour(stored) ? readContourNtcFromDB(host, keyOf(stored), ntc, connection)
                                  : readNtcFromDB(host, keyOf(stored), ntc, connection));
    return ntc;
  }

  // A form that showed another notice before.
  static NtcRec overTheScreen(NtcRec ntc) {
    RuledScreen ruled(test::formOf(ntc.t_notice_type));
    ruled.fill(makeNotice(ntc.t_notice_type));
    clearScreen(ruled.screen);
    ruled.fill(std::move(ntc));
    return ruled.read();
  }

  // As the forms do: a TB notice is replaced, and any other corrected in its place.
  NtcRec correct(NtcRec screen, const NtcRec& stored) {
    if (isTb(stored)) {
      deleteNtcFromDB(host, keyOf(stored), connection);
      EXPECT_TRUE(store(screen));
      return screen;
    }
    EXPECT_TRUE(updateNtcInDB(host, screen, keyOf(stored), connection));
    return stored;
  }
};

TEST_F(ScreenAndDatabase, a_notice_that_is_corrected_without_a_change_stays_the_same) {
  for (const char* kind : kKinds) {
    const NtcRec first = stored(makeFullNotice(kind));
    NtcRec expected = readBack(first);
    const NtcRec second = correct(overTheScreen(expected), first);
    expected.d_updated = "2026-03-07";
    if (isContour(first)) expected.digital.contour.d_updated = "2026-03-07";
    if (isContour(first)) expected.d_updated = "";
    // A correction keeps the internal remarks alone, and tells no day of receipt.
    if (!isContour(first) && !isTb(first)) expected.t_remarks.clear();
    if (isTb(first)) {
      expected.d_rcv.clear();
    }
    // The form of these two has no list for it.
    if (first.t_notice_type == "TB2" || first.t_notice_type == "TB5") expected.coord = {};
    for (CoordEntryRec& entry : expected.coord.entries) entry.d_coord_st.clear();
    const bool isNotified = first.t_fragment == "NTFD_PZ";
    if (isNotified && !expected.op_hours.present) expected.op_hours = {true, "0000", "2400"};
    EXPECT_TRUE(readBack(second) == expected) << kind;
    expectNothingTold();
  }
}

TEST_F(ScreenAndDatabase, what_is_emptied_on_the_screen_is_gone_from_the_database) {
  for (const char* kind : {"GT1/5", "GS1/5", "GT2", "GS2"}) {
    const NtcRec first = stored(makeFullNotice(kind));
    RuledScreen ruled(test::formOf(kind));
    ruled.fill(readBack(first));
    ruled.screen.clearItems("ListAdmSel");
    ruled.screen.choose("Combo_LMZ04_SpectMask", 0);
    ruled.screen.setText("Txt_EmailAddr", "");
    if (ruled.screen.has("ListBoxContourID")) {
      ruled.screen.setText("Txt_LMZ04_nb_sub_areas", "1");
      ruled.screen.removeItem("ListBoxContourID", 0);
    } else {
      ruled.screen.setText("Txt_9EC_azm020", "");
      ruled.screen.setText("Txt_10B_Ophhfr", "");
    }
    correct(ruled.read(), first);
    const NtcRec back = readBack(first);
    EXPECT_FALSE(back.coord.present) << kind;
    EXPECT_EQ(back.digital.t_spect_mask, "") << kind;
    EXPECT_EQ(back.digital.t_email_addr, "") << kind;
    if (ruled.screen.has("ListBoxContourID")) {
      EXPECT_EQ(back.digital.allot.t_contour_id, (std::array<std::string, 10>{"2"})) << kind;
    } else {
      EXPECT_FALSE(back.ant_hgt[2].present) << kind;
      EXPECT_TRUE(back.ant_hgt[3].present) << kind;
      EXPECT_EQ(back.op_hours.t_op_hh_fr, "") << kind;
    }
    expectNothingTold();
  }
}

TEST_F(ScreenAndDatabase, a_screen_can_be_stored_as_a_further_notice) {
  for (const char* kind : {"GT1", "GS1", "GT1/5", "GS1/5", "GT2", "GS2", "TB2", "TB3", "TB5"}) {
    const NtcRec screen = overTheScreen(readBack(stored(makeFullNotice(kind))));
    NtcRec further = screen;
    ASSERT_TRUE(store(further)) << kind;
    EXPECT_TRUE(overTheScreen(readBack(further)) == screen) << kind;
    expectNothingTold();
  }
}

TEST_F(ScreenAndDatabase, a_point_that_was_added_on_the_screen_is_stored_where_it_lies) {
  const NtcRec first = storedContour("1");
  RuledScreen ruled(kGA1SubAllot);
  ruled.fill(readBack(first));
  ruled.screen.setText("Txt_LMZ04_nb_test_pts", "4");
  ruled.screen.addItem("ListBox_LMZ04_Coordinates", "0021500W 471530S");
  correct(ruled.read(), first);
  const ContourRec contour = readBack(first).digital.contour;
  ASSERT_EQ(contour.points.size(), 5U);
  EXPECT_TRUE(contour.points[3] == (PointRec{true, "-0021500", "-471530"}));
  EXPECT_TRUE(contour.points[0] == (PointRec{true, "+0020000", "+470000"}));
  expectNothingTold();
}

// --- notices made up at random

NtcRec recordOf(const std::string& file) {
  NtcRec ntc;
  LineSource lines = LineSource::ofText(file);
  SectionReading reading{lines, ntc, {}, {}, {}};
  std::string email;
  while (!lines.atEnd()) {
    readLine(reading);
    if (reading.currentLine == "<HEAD>") {
      readLine(reading);
      EXPECT_EQ(readHeadSection(reading), "");
      email = ntc.digital.t_email_addr;
    } else if (reading.currentLine == "<NOTICE>") {
      readLine(reading);
      resetNtc(ntc);
      ntc.digital.t_email_addr = email;
      EXPECT_EQ(readNoticeSection(reading), " ");
    }
  }
  return ntc;
}

// What a correction takes from a record.
NtcRec corrected(NtcRec ntc) {
  if (!ntc.t_notice_type.starts_with("TB") && ntc.t_notice_type != "GA1") ntc.t_remarks.clear();
  if (ntc.t_polar.empty()) {
    ntc.t_erp_h_dbw.clear();
    ntc.t_erp_v_dbw.clear();
  }
  for (auto* diagram : {&ntc.ant_diagr_h, &ntc.ant_diagr_v}) {
    if (!diagram->front().present) *diagram = {};
  }
  if (ntc.digital.allot.t_nb_sub_areas == "10") ntc.digital.allot.t_contour_id[9].clear();
  return ntc;
}

TEST_F(ScreenAndDatabase, what_is_read_from_the_screen_is_what_the_screen_shows_after_the_correction) {
  test::NoticeMaker maker(20090115);
  for (int round = 0; round < 12; ++round) {
    for (const std::string_view type : kNoticeTypes) {
      const std::string file = maker.file(type);
      NtcRec first = recordOf(file);
      EXPECT_TRUE(store(first, true)) << file;
      const std::int32_t contours =
          isContour(first) ? std::stoi(value("SELECT max(contourkey) FROM lmz_contour")) : 0;
      const auto read = [&](const NtcRec& ntc) {
        NtcRec back;
        resetNtc(back);
        EXPECT_TRUE(isContour(ntc) ? readContourNtcFromDB(host, contours, back, connection)
                                   : readNtcFromDB(host, ntc.vornakey, back, connection));
        return back;
      };
      NtcRec screen = overTheScreen(read(first));
      if (isTb(first)) {
        EXPECT_TRUE(store(screen));
        first = screen;
      } else {
        EXPECT_TRUE(updateNtcInDB(host, screen, isContour(first) ? contours : first.vornakey, connection));
      }
      screen.vornakey = 0;
      EXPECT_TRUE(overTheScreen(read(first)) == corrected(screen)) << file;
      expectNothingTold();
    }
  }
}

}  // namespace
}  // namespace zamo
