// Grids, coordination, sub-areas and test points on their way to the screen and back.
#include "screens/screen_mapping.h"

#include <gtest/gtest.h>

#include <vector>

#include "database/notice_store.h"
#include "screens/mapped_notice.h"

namespace zamo {
namespace {

using test::BareScreen;
using test::Contents;
using test::contentsOf;
using test::makeCoordination;
using test::RuledScreen;
using test::Texts;

const Texts kAssignments = {"GS1", "GT1"};
const Texts kAllotments = {"GS2", "GT2"};

NtcRec withAction(const std::string& action) {
  NtcRec ntc;
  ntc.t_action = action;
  return ntc;
}

// --- grids

std::string boxOf(const std::string& grid, int azimuth) {
  std::string digits = std::to_string(azimuth);
  digits.insert(0, 3 - digits.size(), '0');
  return grid + digits;
}

std::array<AzmValueRec, kAzimuths> numbered(int first) {
  std::array<AzmValueRec, kAzimuths> all;
  for (std::size_t i = 0; i < all.size(); ++i) {
    all[i] = {true, std::to_string(i * 10), std::to_string(first + static_cast<int>(i))};
  }
  return all;
}

struct GridCase {
  const char* polar;
  const char* antDir;
  bool h;
  bool v;
};

// clang-format off
const GridCase kGridCases[] = {
    {"H", "D",  true,  false},
    {"V", "D",  false, true},
    {"M", "D",  true,  true},
    {"",  "D",  false, false},
    {"H", "ND", false, false},
    {"V", "ND", false, false},
    {"M", "ND", false, false},
    {"M", "",   false, false},
};
// clang-format on

NtcRec withGrids(const GridCase& one) {
  NtcRec ntc;
  ntc.t_polar = one.polar;
  ntc.t_ant_dir = one.antDir;
  ntc.ant_hgt = numbered(100);
  ntc.ant_diagr_h = numbered(200);
  ntc.ant_diagr_v = numbered(300);
  return ntc;
}

TEST(ScreenMapping, each_grid_is_filled_when_its_plane_radiates_and_not_alike_all_round) {
  for (const std::string& type : kAssignments) {
    for (const GridCase& one : kGridCases) {
      BareScreen bare(type);
      bare.fill(withGrids(one));
      for (int i = 0; i < 36; ++i) {
        const Screen& screen = bare.screen;
        EXPECT_EQ(screen.text(madeName(boxOf("Txt_9EC_azm", i * 10))), std::to_string(100 + i));
        EXPECT_EQ(screen.text(madeName(boxOf("Txt_9NHAzm", i * 10))), one.h ? std::to_string(200 + i) : "")
            << one.polar << one.antDir;
        EXPECT_EQ(screen.text(madeName(boxOf("Txt_9NVAzm", i * 10))), one.v ? std::to_string(300 + i) : "")
            << one.polar << one.antDir;
      }
    }
  }
}

TEST(ScreenMapping, each_grid_is_read_by_what_the_combos_show) {
  const std::array<AzmValueRec, kAzimuths> none;
  for (const std::string& type : kAssignments) {
    for (const GridCase& one : kGridCases) {
      BareScreen bare(type);
      bare.screen.setText("Combo_9D_Polariz", one.polar);
      bare.screen.setText("Combo_9_AntDir", one.antDir);
      for (int i = 0; i < 36; ++i) {
        bare.screen.setText(madeName(boxOf("Txt_9EC_azm", i * 10)), std::to_string(100 + i));
        bare.screen.setText(madeName(boxOf("Txt_9NHAzm", i * 10)), std::to_string(200 + i));
        bare.screen.setText(madeName(boxOf("Txt_9NVAzm", i * 10)), std::to_string(300 + i));
      }
      const NtcRec ntc = bare.read();
      EXPECT_TRUE(ntc.ant_hgt == numbered(100)) << one.polar << one.antDir;
      EXPECT_TRUE(ntc.ant_diagr_h == (one.h ? numbered(200) : none)) << one.polar << one.antDir;
      EXPECT_TRUE(ntc.ant_diagr_v == (one.v ? numbered(300) : none)) << one.polar << one.antDir;
    }
  }
}

TEST(ScreenMapping, a_grid_keeps_its_gaps) {
  BareScreen bare("GS1");
  NtcRec ntc;
  ntc.ant_hgt[0] = {true, "000", "0"};
  ntc.ant_hgt[1] = {true, "10", ""};
  ntc.ant_hgt[35] = {true, "350", "-3"};
  bare.fill(ntc);
  EXPECT_EQ(contentsOf(bare.screen), (Contents{{"Txt_9EC_azm000", "0"}, {"Txt_9EC_azm350", "-3"}}));
  NtcRec expected;
  expected.ant_hgt[0] = {true, "0", "0"};
  expected.ant_hgt[35] = {true, "350", "-3"};
  EXPECT_TRUE(bare.read().ant_hgt == expected.ant_hgt);
}

// --- coordination

const Texts kWithCoordination = {"GS1", "GT1", "GS2", "GT2", "TB3"};

Texts administrationsOf(const NtcRec& ntc) {
  Texts all;
  for (const CoordEntryRec& entry : ntc.coord.entries) all.push_back(entry.adm);
  return all;
}

TEST(ScreenMapping, the_administrations_come_in_their_order) {
  for (const std::string& type : kWithCoordination) {
    BareScreen bare(type);
    bare.screen.setItems("ListAdmSel", {"D", "POL"});
    NtcRec ntc;
    ntc.coord = makeCoordination({"SUI", "BEL", "AUT"});
    bare.fill(ntc);
    EXPECT_EQ(bare.screen.items("ListAdmSel"), (Texts{"SUI", "BEL", "AUT"})) << type;
    const NtcRec back = bare.read();
    EXPECT_TRUE(back.coord.present);
    EXPECT_EQ(back.coord.count, 3);
    EXPECT_EQ(administrationsOf(back), (Texts{"SUI", "BEL", "AUT"})) << type;
    bare.fill(NtcRec());
    EXPECT_EQ(bare.screen.items("ListAdmSel"), Texts()) << type;
    EXPECT_FALSE(bare.read().coord.present) << type;
    EXPECT_EQ(bare.read().coord.count, 0) << type;
  }
}

TEST(ScreenMapping, the_count_of_administrations_need_not_fit_their_places) {
  struct Odd {
    std::int32_t count;
    std::size_t places;
    Texts shown;
  };
  const Odd odd[] = {{5, 2, {"A", "A"}}, {1, 3, {"A"}}, {-1, 3, {}}, {3, 0, {}}, {0, 2, {}}};
  for (const Odd& one : odd) {
    for (const std::string& type : kWithCoordination) {
      BareScreen bare(type);
      NtcRec ntc;
      ntc.coord.present = true;
      ntc.coord.count = one.count;
      ntc.coord.entries.assign(one.places, {"A", "", "", "", "", ""});
      bare.fill(ntc);
      EXPECT_EQ(bare.screen.items("ListAdmSel"), one.shown) << type;
    }
  }
}

TEST(ScreenMapping, a_place_without_an_administration_is_passed_over) {
  BareScreen bare("GT1");
  NtcRec ntc;
  ntc.coord = makeCoordination({"BEL", "", "SUI"});
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.items("ListAdmSel"), (Texts{"BEL", "SUI"}));
}

// --- sub-areas

NtcRec withSubAreas(const std::string& number, const Texts& ids) {
  NtcRec ntc;
  ntc.digital.allot.t_nb_sub_areas = number;
  for (std::size_t i = 0; i < ids.size(); ++i) ntc.digital.allot.t_contour_id[i] = ids[i];
  return ntc;
}

TEST(ScreenMapping, as_many_contours_are_listed_as_there_are_sub_areas) {
  struct Expected {
    const char* number;
    Texts ids;
    Texts shown;
  };
  const Texts ten = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
  const Expected all[] = {
      {"2", {"12", "7"}, {"12", "7"}},
      {"1", {"12", "7"}, {"12"}},
      {"3", {"12", "7"}, {"12", "7"}},
      {"3", {"12", "", "7"}, {"12", "7"}},
      {"", {"12"}, {}},
      {"0", {"12"}, {}},
      {"-1", {"12"}, {}},
      {"x", {"12"}, {}},
      {"1.9", {"12", "7"}, {"12"}},
      {"9", ten, {ten.begin(), ten.end() - 1}},
      {"10", ten, ten},
      {"12", ten, ten},
      {"1e300", ten, ten},
  };
  for (const std::string& type : kAllotments) {
    for (const Expected& one : all) {
      BareScreen bare(type);
      bare.screen.setItems("ListBoxContourID", {"99"});
      bare.fill(withSubAreas(one.number, one.ids));
      EXPECT_EQ(bare.screen.items("ListBoxContourID"), one.shown) << one.number;
      EXPECT_EQ(bare.screen.at("ListBoxContourID").index, one.shown.empty() ? -1 : 0) << one.number;
    }
  }
}

TEST(ScreenMapping, the_first_contour_is_the_chosen_one) {
  RuledScreen ruled(kGT2Allot);
  ruled.fill(withSubAreas("2", {"12", "7"}));
  EXPECT_EQ(ruled.form.selectedContourIdx, 0);
}

TEST(ScreenMapping, the_contours_are_read_in_the_order_of_the_list) {
  for (const std::string& type : kAllotments) {
    BareScreen bare(type);
    bare.screen.setItems("ListBoxContourID", {"12", "007"});
    const AllotRec allot = bare.read().digital.allot;
    EXPECT_EQ(allot.t_contour_id, (std::array<std::string, 10>{"12", "007"}));
    EXPECT_EQ(allot.t_nb_sub_areas, "");
    EXPECT_TRUE(allot.present);
  }
}

TEST(ScreenMapping, more_contours_than_an_allotment_holds_are_left_out) {
  BareScreen bare("GS2");
  bare.screen.setItems("ListBoxContourID", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"});
  EXPECT_EQ(bare.read().digital.allot.t_contour_id,
            (std::array<std::string, 10>{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

TEST(ScreenMapping, an_allotment_without_target_and_frequency_is_shown_all_the_same) {
  for (const std::string& type : kAllotments) {
    NtcRec ntc = makeNotice(type);
    ntc.t_freq_assgn.clear();
    BareScreen bare(type);
    bare.fill(ntc);
    EXPECT_EQ(bare.screen.text("Txt_LMZ04_allot_name"), "CENTRE");
    EXPECT_EQ(bare.screen.text("Combo_LMZ04_geo_area"), "F");
  }
}

TEST(ScreenMapping, the_target_of_an_addition_is_not_read_of_an_allotment) {
  BareScreen bare("GT2");
  bare.screen.setText("Txt_TrgAdmRefID", "F-9");
  bare.screen.setOption("OptInt_Add");
  EXPECT_EQ(bare.read().t_trg_adm_ref_id, "");
  bare.screen.setOption("OptInt_Mod");
  EXPECT_EQ(bare.read().t_trg_adm_ref_id, "F-9");
}

// --- contours

TEST(ScreenMapping, a_contour_lists_its_points_and_counts_those_that_are_missing) {
  BareScreen bare("GA1");
  bare.screen.setItems("ListBox_LMZ04_Coordinates", {"0010000E 400000N"});
  NtcRec ntc = makeGa1();
  ntc.digital.contour.points[1] = {true, "-1795959", "-895958"};
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.items("ListBox_LMZ04_Coordinates"),
            (Texts{"0020000E 470000N", "1795959W 895958S", "0023000E 480000N"}));
  EXPECT_EQ(bare.screen.text("Txt_CountDownTP"), "0");
  const ContourRec back = bare.read().digital.contour;
  EXPECT_TRUE(back.points == ntc.digital.contour.points);
  EXPECT_EQ(back.t_nb_test_pts, "3");
  EXPECT_TRUE(back.present);
}

TEST(ScreenMapping, nothing_is_counted_down_while_the_points_come) {
  BareScreen bare("GA1");
  Texts counts;
  bare.screen.setText("Txt_CountDownTP", "8");
  bare.screen.changed = [&](const Control& control) {
    if (control.name == "Txt_CountDownTP") counts.push_back(control.text);
    if (control.name == "ListBox_LMZ04_Coordinates" && !control.items.empty()) {
      counts.push_back("point at " + bare.screen.text("Txt_CountDownTP"));
    }
  };
  NtcRec ntc = makeGa1();
  ntc.digital.contour.t_nb_test_pts = "5";
  bare.fill(ntc);
  EXPECT_EQ(counts, (Texts{"0", "point at 0", "point at 0", "point at 0", "2"}));
}

TEST(ScreenMapping, the_number_of_points_need_not_fit_the_points) {
  struct Expected {
    const char* number;
    std::size_t points;
    std::size_t listed;
    const char* missing;
  };
  // clang-format off
  const Expected all[] = {
      {"99",  100, 99, "0"},
      {"99",  2,   2,  "97"},
      {"2",   5,   2,  "0"},
      {"",    5,   0,  "0"},
      {"0",   5,   0,  "0"},
      {"-3",  5,   0,  "-3"},
      {"x",   5,   0,  "0"},
      {"3",   0,   0,  "3"},
      {"3.5", 5,   3,  "0.5"},
  };
  // clang-format on
  for (const Expected& one : all) {
    BareScreen bare("GA1");
    NtcRec ntc;
    ntc.digital.contour.present = true;
    ntc.digital.contour.t_nb_test_pts = one.number;
    ntc.digital.contour.points.assign(one.points, {true, "+0020000", "+470000"});
    bare.fill(ntc);
    EXPECT_EQ(bare.screen.items("ListBox_LMZ04_Coordinates").size(), one.listed) << one.number;
    EXPECT_EQ(bare.screen.text("Txt_CountDownTP"), one.missing) << one.number;
  }
}

TEST(ScreenMapping, places_without_a_point_are_missing_points) {
  BareScreen bare("GA1");
  NtcRec ntc = makeGa1();
  ntc.digital.contour.points[1] = {};
  bare.fill(ntc);
  EXPECT_EQ(bare.screen.items("ListBox_LMZ04_Coordinates"), (Texts{"0020000E 470000N", "0023000E 480000N"}));
  EXPECT_EQ(bare.screen.text("Txt_CountDownTP"), "1");
}

TEST(ScreenMapping, the_places_of_points_hold_the_list_and_the_number) {
  struct Expected {
    const char* number;
    std::size_t listed;
    std::size_t places;
  };
  for (const Expected& one : {Expected{"3", 3, 4},
                              {"3", 5, 6},
                              {"5", 2, 6},
                              {"", 2, 3},
                              {"x", 0, 1},
                              {"-3", 1, 2},
                              {"99", 99, 100},
                              {"1e300", 1, 32768}}) {
    BareScreen bare("GA1");
    bare.screen.setText("Txt_LMZ04_nb_test_pts", one.number);
    bare.screen.setItems("ListBox_LMZ04_Coordinates", Texts(one.listed, "0020000E 470000N"));
    const ContourRec contour = bare.read().digital.contour;
    ASSERT_EQ(contour.points.size(), one.places) << one.number;
    for (std::size_t i = 0; i < one.places; ++i) {
      const PointRec expected = i < one.listed ? PointRec{true, "+0020000", "+470000"} : PointRec();
      EXPECT_TRUE(contour.points[i] == expected) << one.number << " " << i;
    }
    EXPECT_EQ(contour.t_nb_test_pts, one.number);
    EXPECT_EQ(contour.present, *one.number != '\0');
  }
}

TEST(ScreenMapping, points_are_cut_at_fixed_places_and_get_their_sign_from_the_hemisphere) {
  struct Expected {
    const char* item;
    const char* longitude;
    const char* latitude;
  };
  // clang-format off
  const Expected all[] = {
      {"0020000E 470000N",  "+0020000", "+470000"},
      {"0020000w 470000s",  "-0020000", "-470000"},
      {"+0020000 -470000",  "+0020000", "-470000"},
      {"0020000E 470000N9", "+0020000", "+470000"},
      {"0020000E",          "+0020000", ""},
      {"",                  "",         ""},
      {"abc",               "abc",      ""},
  };
  // clang-format on
  for (const Expected& one : all) {
    BareScreen bare("GA1");
    bare.screen.setItems("ListBox_LMZ04_Coordinates", {one.item});
    const PointRec point = bare.read().digital.contour.points.at(0);
    EXPECT_TRUE(point.present);
    EXPECT_EQ(point.t_long, one.longitude) << one.item;
    EXPECT_EQ(point.t_lat, one.latitude) << one.item;
  }
}

TEST(ScreenMapping, a_point_with_half_a_coordinate_comes_back_as_it_is) {
  for (const PointRec& point :
       {PointRec{true, "+0020000", ""}, {true, "", "-470000"}, {true, "+00224", "+4705"}}) {
    BareScreen bare("GA1");
    NtcRec ntc = makeGa1();
    ntc.digital.contour.points[0] = point;
    bare.fill(ntc);
    EXPECT_TRUE(bare.read().digital.contour.points.at(0) == point) << point.t_long << point.t_lat;
  }
}

TEST(ScreenMapping, a_contour_is_added_or_suppressed) {
  struct Expected {
    const char* stored;
    Contents shown;
    const char* read;
  };
  const Expected all[] = {{"ADD", {{"OptInt_Add", "set"}}, "ADD"},
                          {"add", {{"OptInt_Add", "set"}}, "ADD"},
                          {"SUPPRESS", {{"OptInt_Suppress", "set"}}, "SUPPRESS"},
                          {"suppress", {{"OptInt_Suppress", "set"}}, "SUPPRESS"},
                          {"MODIFY", {}, ""},
                          {"", {}, ""}};
  for (const Expected& one : all) {
    BareScreen bare("GA1");
    bare.fill(withAction(one.stored));
    Contents shown = contentsOf(bare.screen);
    shown.erase("Txt_CountDownTP");
    EXPECT_EQ(shown, one.shown) << one.stored;
    EXPECT_EQ(bare.screen.at("OptInt_Add").caption, "Add") << one.stored;
    EXPECT_EQ(bare.read().t_action, one.read) << one.stored;
  }
}

}  // namespace
}  // namespace zamo
