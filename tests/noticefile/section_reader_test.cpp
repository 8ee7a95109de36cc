#include "noticefile/section_reader.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "noticefile/key_table.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

using Body = std::vector<std::string>;

Body operator+(Body body, const Body& more) {
  body.insert(body.end(), more.begin(), more.end());
  return body;
}

std::string textOf(const Body& body) {
  std::string text = "<SECTION>\r\n";
  for (const std::string& line : body) text.append(line).append("\r\n");
  return text;
}

// A reader run on a section whose opening tag stands on line 1, the first line of the body on line 2.
struct SectionRun {
  template <typename Read>
  SectionRun(const Body& body, NtcRec& record, Read read)
      : ntc(record), text(textOf(body)), lines(LineSource::ofText(text)), reading{lines, ntc, "P", {}, {}} {
    readLine(reading);
    readLine(reading);
    messages = read(reading);
    endLine = std::string(reading.currentLine);
    lineNo = lines.lineNo();
  }

  NtcRec& ntc;
  std::string text;
  LineSource lines;
  SectionReading reading;
  std::string messages;
  std::string endLine;
  std::int64_t lineNo = 0;
};

// Reads a notice into a record and gives the messages.
std::string readNotice(const Body& body, NtcRec& ntc) {
  const SectionRun run(body + Body{"</NOTICE>"}, ntc, readNoticeSection);
  EXPECT_EQ(run.endLine, "</NOTICE>");
  EXPECT_EQ(run.lineNo, static_cast<std::int64_t>(body.size()) + 2);
  return run.messages;
}

NtcRec cleanNotice(const Body& body) {
  NtcRec ntc;
  EXPECT_EQ(readNotice(body, ntc), " ");
  return ntc;
}

// The number of the error that reading a notice raises, 0 for none.
int errorOf(const Body& body) {
  NtcRec ntc;
  try {
    readNotice(body, ntc);
  } catch (const RunTimeError& error) {
    return error.number;
  }
  return 0;
}

std::string duplicate(const std::string& key) {
  return "FATAL ERROR : \r\nP : " + key + " : Duplicate key\r\n";
}

std::string duplicateId(const std::string& value) {
  return "FATAL ERROR : \r\nP : t_contour_id : Duplicate Contour ID : " + value +
         " Value will be ignored\r\n";
}

// Lines that begin with `stem` and a number of three digits, from `first` on.
Body azimuths(const std::string& stem, int first, int count, const std::string& value) {
  Body body;
  for (int i = first; i < first + count; ++i) body.push_back(stem + std::to_string(100 + i) + " = " + value);
  return body;
}

Body point(const std::string& longitude, const std::string& latitude) {
  return {"<POINT>", "t_long = " + longitude, "t_lat = " + latitude, "</POINT>"};
}

Body administrations(int first, int count) {
  Body body;
  for (int i = first; i < first + count; ++i) body.push_back("t_adm = X" + std::to_string(i));
  return body;
}

enum Flag { kNone = 0, kHours = 1, kDigital = 2, kAllot = 4, kContour = 8 };

int flagsOf(const NtcRec& ntc) {
  return (ntc.op_hours.present ? kHours : 0) | (ntc.digital.present ? kDigital : 0) |
         (ntc.digital.allot.present ? kAllot : 0) | (ntc.digital.contour.present ? kContour : 0);
}

enum class Second { duplicate, joined, replaced };

struct KeyCase {
  const char* key;
  const std::string& (*field)(const NtcRec&);
  const char* value;
  const char* stored;
  int flags = kNone;
  Second second = Second::duplicate;
};

std::ostream& operator<<(std::ostream& out, const KeyCase& one) {
  return out << one.key;
}

#define IN(path) [](const NtcRec& ntc) -> const std::string& { return ntc.path; }

// clang-format off
const KeyCase kKeys[] = {
    {"t_notice_type",             IN(t_notice_type),                      "xx1",        "XX1"},
    {"t_is_resub",                IN(t_is_resub),                         "True\351",   "True\351"},
    {"t_signed_commitment",       IN(t_signed_commitment),                "True",       "True"},
    {"t_remark_conds_met",        IN(t_remark_conds_met),                 "True",       "True"},
    {"t_is_pub_req",              IN(t_is_pub_req),                       "False",      "False"},
    {"t_plan_entry",              IN(t_plan_entry),                       "x3",         "X3"},
    {"t_assgn_code",              IN(t_assgn_code),                       "l",          "L"},
    {"t_d_inuse",                 IN(t_d_inuse),                          "1.Mar.2026", "1.Mar.2026"},
    {"t_d_expiry",                IN(t_d_expiry),                         "1.Mar.2026", "1.Mar.2026"},
    {"t_fragment",                IN(t_fragment),                         "kv19d",      "KV19D"},
    {"t_plan",                    IN(t_plan),                             "kv19d",      "KV19D"},
    {"t_prov",                    IN(t_prov),                             "pz11.2",     "PZ11.2"},
    {"t_action",                  IN(t_action),                           "add",        "ADD"},
    {"t_adm_ref_id",              IN(t_adm_ref_id),                       "ref \351 1", "REF \311 1"},
    {"t_trg_adm_ref_id",          IN(t_trg_adm_ref_id),                   "ref 1",      "ref 1"},
    {"t_plan_adm_ref_id",         IN(t_plan_adm_ref_id),                  "ref 1",      "ref 1"},
    {"t_call_sign",               IN(t_call_sign),                        "hb9",        "hb9"},
    {"t_freq_assgn",              IN(t_freq_assgn),                       "4e2",        "4e2"},
    {"t_trg_freq_assgn",          IN(t_trg_freq_assgn),                   "4e2",        "4e2"},
    {"t_offset",                  IN(t_offset),                           "1e1",        "1e1"},
    {"t_ctry",                    IN(t_ctry),                             "sui",        "SUI"},
    {"t_site_name",               IN(t_site_name),                        "le d\364me", "LE D\324ME"},
    {"t_polar",                   IN(t_polar),                            "h",          "H"},
    {"t_erp_h_dbw",               IN(t_erp_h_dbw),                        "1e1",        "1e1"},
    {"t_erp_v_dbw",               IN(t_erp_v_dbw),                        "1e1",        "1e1"},
    {"t_erp_beam_tilt_dbw",       IN(t_erp_beam_tilt_dbw),                "1e1",        "1e1"},
    {"t_beam_tilt_angle",         IN(t_beam_tilt_angle),                  "-1e1",       "-1e1"},
    {"t_site_alt",                IN(t_site_alt),                         "1e3",        "1e3"},
    {"t_eff_hgtmax",              IN(t_eff_hgtmax),                       "1e3",        "1e3"},
    {"t_hgt_alt",                 IN(t_hgt_agl),                          "1e2",        "1e2"},
    {"t_hgt_agl",                 IN(t_hgt_agl),                          "1e2",        "1e2"},
    {"t_op_agcy",                 IN(t_op_agcy),                          "7",          "007"},
    {"t_addr_code",               IN(t_addr_code),                        "a",          "A"},
    {"t_op_hh_fr",                IN(op_hours.t_op_hh_fr),                "06:30",      "0630",     kHours},
    {"t_op_hh_to",                IN(op_hours.t_op_hh_to),                "2400",       "2400",     kHours},
    {"t_ant_dir",                 IN(t_ant_dir),                          "nd",         "ND",       kDigital},
    {"t_sys_var",                 IN(t_sys_var),                          "c2",         "C2",       kDigital},
    {"t_rx_mode",                 IN(digital.t_rx_mode),                  "fx",         "FX",       kDigital},
    {"t_ref_plan_cfg",            IN(digital.t_ref_plan_cfg),             "rpc1",       "RPC1",     kDigital},
    {"t_sfn_id",                  IN(digital.t_sfn_id),                   "sfn",        "SFN",      kDigital},
    {"t_associated_adm_allot_id", IN(digital.t_associated_adm_allot_id),  "all",        "ALL",      kDigital},
    {"t_associated_allot_sfn_id", IN(digital.t_associated_allot_sfn_id),  "all",        "ALL",      kDigital},
    {"t_spect_mask",              IN(digital.t_spect_mask),               "n",          "N",        kDigital},
    {"t_typ_ref_netwk",           IN(digital.allot.t_typ_ref_netwk),      "rn1",        "RN1",      kDigital | kAllot},
    {"t_allot_name",              IN(digital.allot.t_allot_name),         "name",       "NAME",     kDigital | kAllot},
    {"t_geo_area",                IN(digital.allot.t_geo_area),           "sui",        "SUI",      kDigital | kAllot},
    {"t_nb_sub_areas",            IN(digital.allot.t_nb_sub_areas),       "2x",         "2x",       kDigital | kAllot},
    {"t_nb_test_pts",             IN(digital.contour.t_nb_test_pts),      "3x",         "3x",       kContour},
    {"t_remarks",                 IN(t_remarks),                          "Some text",  "Some text", kNone, Second::joined},
    {"t_int_remarks",             IN(t_int_remarks),                      "Some text",  "Some text", kNone, Second::replaced},
};
// clang-format on

#undef IN

class SectionReaderKey : public testing::TestWithParam<KeyCase> {};
INSTANTIATE_TEST_SUITE_P(Keys, SectionReaderKey, testing::ValuesIn(kKeys),
                         [](const auto& one) { return std::string(one.param.key); });

// The texts of a record that a single key may have filled, to see that it filled no other.
NtcRec withoutField(NtcRec ntc, const KeyCase& one) {
  const_cast<std::string&>(one.field(ntc)).clear();
  ntc.op_hours.present = ntc.digital.present = ntc.digital.allot.present = ntc.digital.contour.present =
      false;
  ntc.digital.contour.points = NtcRec().digital.contour.points;
  return ntc;
}

TEST_P(SectionReaderKey, is_stored_in_its_form_and_sets_its_flags_and_nothing_else) {
  const KeyCase& one = GetParam();
  const NtcRec ntc = cleanNotice({std::string(one.key) + " = " + one.value});
  EXPECT_EQ(one.field(ntc), one.stored);
  EXPECT_EQ(flagsOf(ntc), one.flags);
  EXPECT_EQ(withoutField(ntc, one), NtcRec());
}

TEST_P(SectionReaderKey, is_known_in_upper_case_and_with_blanks_and_tabs_around) {
  const KeyCase& one = GetParam();
  std::string key = one.key;
  for (char& c : key) c = static_cast<char>(std::toupper(c));
  EXPECT_EQ(one.field(cleanNotice({"\t " + key + "\t= " + one.value + " \t"})), one.stored);
}

TEST_P(SectionReaderKey, given_twice_keeps_its_first_value) {
  const KeyCase& one = GetParam();
  const std::string key = one.key;
  NtcRec ntc;
  const std::string messages = readNotice({key + " = " + one.value, key + " = 5", key + " ="}, ntc);
  if (one.second == Second::duplicate) {
    EXPECT_EQ(messages, " " + duplicate(key) + duplicate(key));
    EXPECT_EQ(one.field(ntc), one.stored);
  } else {
    EXPECT_EQ(messages, " ");
    EXPECT_EQ(one.field(ntc), one.second == Second::joined ? std::string(one.stored) + ";5;" : "");
  }
}

TEST_P(SectionReaderKey, with_an_empty_value_leaves_room_for_the_next) {
  const KeyCase& one = GetParam();
  const std::string key = one.key;
  if (key == "t_op_agcy") return;  // filled with zeros
  const NtcRec ntc = cleanNotice({key + " =", key + " = " + one.value});
  EXPECT_EQ(one.field(ntc), one.stored);
  EXPECT_EQ(flagsOf(ntc), one.flags);
}

TEST(SectionReader, every_key_of_a_notice_has_a_case) {
  std::set<std::string> keys = {"t_long", "t_lat", "t_trg_long", "t_trg_lat", "t_contour_id"};
  for (const KeyCase& one : kKeys) EXPECT_TRUE(keys.insert(one.key).second) << one.key;
  std::set<std::string> known = {"t_hgt_alt"};
  // The key table knows this one, and no reader stores it.
  for (const std::string_view key : kNoticeKeys) {
    if (!key.empty() && key != "t_d_adm_ntc") known.emplace(key);
  }
  EXPECT_EQ(keys, known);
}

TEST(SectionReader, keys_of_other_sections_and_unknown_keys_are_passed_over) {
  EXPECT_EQ(cleanNotice({"", "text", "= value", "X_ADM = F", "t_adm = F", "t_email_addr = a",
                         "t_d_adm_ntc = 1", "t_num_notices = 1", "t_foo = 1", "notice_type = GT1",
                         " x t_polar = H", "t_eff_hgt@azm010 = 5", "t_attn@azm010 = 5"}),
            NtcRec());
}

TEST(SectionReader, a_clean_notice_gives_a_blank) {
  NtcRec ntc;
  EXPECT_EQ(readNotice({}, ntc), " ");
  EXPECT_EQ(ntc, NtcRec());
}

TEST(SectionReader, the_value_holds_further_equal_signs) {
  EXPECT_EQ(cleanNotice({"t_remarks = a = b"}).t_remarks, "a = b");
}

TEST(SectionReader, the_two_heights_share_their_field) {
  for (const auto& [one, other] :
       {std::pair("t_hgt_agl", "t_hgt_alt"), std::pair("t_hgt_alt", "t_hgt_agl")}) {
    NtcRec ntc;
    EXPECT_EQ(readNotice({std::string(one) + " = 10", std::string(other) + " = 20"}, ntc),
              " " + duplicate(other));
    EXPECT_EQ(ntc.t_hgt_agl, "10");
  }
}

TEST(SectionReader, an_agency_is_filled_with_zeros_to_three_digits) {
  EXPECT_EQ(cleanNotice({"t_op_agcy = 12"}).t_op_agcy, "012");
  EXPECT_EQ(cleanNotice({"t_op_agcy = 0012"}).t_op_agcy, "0012");
  NtcRec ntc;
  EXPECT_EQ(readNotice({"t_op_agcy =", "t_op_agcy = 1"}, ntc), " " + duplicate("t_op_agcy"));
  EXPECT_EQ(ntc.t_op_agcy, "000");
}

TEST(SectionReader, remarks_are_joined_with_semicolons) {
  EXPECT_EQ(cleanNotice({"t_remarks = One", "t_remarks = two", "t_remarks = One"}).t_remarks, "One;two;One");
  EXPECT_EQ(cleanNotice({"t_remarks =", "t_remarks = two", "t_remarks =", "t_remarks = x"}).t_remarks,
            "two;;x");
}

TEST(SectionReader, the_last_internal_remark_counts) {
  EXPECT_EQ(cleanNotice({"t_int_remarks = One", "t_int_remarks = two"}).t_int_remarks, "two");
  EXPECT_EQ(cleanNotice({"t_int_remarks = One", "t_int_remarks ="}).t_int_remarks, "");
}

struct Parts {
  std::string degrees, hemisphere, minutes, seconds;
  bool operator==(const Parts&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Parts& parts) {
  return out << parts.degrees << "|" << parts.minutes << "|" << parts.seconds << "|" << parts.hemisphere;
}

Parts longOf(const NtcRec& ntc) {
  return {ntc.long_deg, ntc.long_ew, ntc.long_min, ntc.long_sec};
}
Parts latOf(const NtcRec& ntc) {
  return {ntc.lat_deg, ntc.lat_ns, ntc.lat_min, ntc.lat_sec};
}
Parts trgLongOf(const NtcRec& ntc) {
  return {ntc.trg_long_deg, ntc.trg_long_ew, ntc.trg_long_min, ntc.trg_long_sec};
}
Parts trgLatOf(const NtcRec& ntc) {
  return {ntc.trg_lat_deg, ntc.trg_lat_ns, ntc.trg_lat_min, ntc.trg_lat_sec};
}

struct CoordinateCase {
  std::string key;
  Parts (*of)(const NtcRec&);
};

const CoordinateCase kLongitudes[] = {{"t_long", longOf}, {"t_trg_long", trgLongOf}};
const CoordinateCase kLatitudes[] = {{"t_lat", latOf}, {"t_trg_lat", trgLatOf}};

TEST(SectionReader, a_longitude_is_cut_at_its_places) {
  for (const auto& [key, of] : kLongitudes) {
    SCOPED_TRACE(key);
    EXPECT_EQ(of(cleanNotice({key + " = +0073145"})), (Parts{"007", "E", "31", "45"}));
    EXPECT_EQ(of(cleanNotice({key + " = -00731"})), (Parts{"007", "W", "31", ""}));
    EXPECT_EQ(of(cleanNotice({key + " = 00731459"})), (Parts{"073", "W", "14", "59"}));
    EXPECT_EQ(of(cleanNotice({key + " = +007314"})), (Parts{"007", "E", "31", ""}));
    EXPECT_EQ(of(cleanNotice({key + " = +007314567"})), (Parts{"007", "E", "31", "45"}));
    EXPECT_EQ(of(cleanNotice({key + " = +00"})), (Parts{"00", "E", "", ""}));
  }
}

TEST(SectionReader, a_latitude_is_cut_at_its_places) {
  for (const auto& [key, of] : kLatitudes) {
    SCOPED_TRACE(key);
    EXPECT_EQ(of(cleanNotice({key + " = +465839"})), (Parts{"46", "N", "58", "39"}));
    EXPECT_EQ(of(cleanNotice({key + " = -4658"})), (Parts{"46", "S", "58", ""}));
    EXPECT_EQ(of(cleanNotice({key + " = 465839"})), (Parts{"65", "N", "83", "9"}));
    EXPECT_EQ(of(cleanNotice({key + " = -"})), (Parts{"", "S", "", ""}));
  }
}

TEST(SectionReader, a_coordinate_fills_its_four_parts_and_nothing_else) {
  NtcRec wanted;
  wanted.long_deg = "007", wanted.long_ew = "E", wanted.long_min = "31", wanted.long_sec = "45";
  wanted.lat_deg = "46", wanted.lat_ns = "N", wanted.lat_min = "58", wanted.lat_sec = "39";
  wanted.trg_long_deg = "008", wanted.trg_long_ew = "W", wanted.trg_long_min = "32", wanted.trg_long_sec = "";
  wanted.trg_lat_deg = "47", wanted.trg_lat_ns = "S", wanted.trg_lat_min = "59", wanted.trg_lat_sec = "";
  EXPECT_EQ(cleanNotice({"t_long = +0073145", "t_lat = +465839", "t_trg_long = -00832", "t_trg_lat = -4759"}),
            wanted);
}

TEST(SectionReader, a_coordinate_without_a_value_is_ignored) {
  for (const char* key : {"t_long", "t_lat", "t_trg_long", "t_trg_lat"}) {
    SCOPED_TRACE(key);
    const std::string empty = std::string(key) + " =";
    const std::string filled = std::string(key) + " = +0073145";
    EXPECT_EQ(cleanNotice({empty}), NtcRec());
    EXPECT_EQ(cleanNotice({empty, filled, empty}), cleanNotice({filled}));
  }
}

TEST(SectionReader, a_second_coordinate_gives_a_message_for_each_of_its_four_parts) {
  for (const auto& [key, of] : kLongitudes) {
    NtcRec ntc;
    const std::string one = duplicate(key);
    EXPECT_EQ(readNotice({key + " = +0073145", key + " = -0105500"}, ntc), " " + one + one + one + one);
    EXPECT_EQ(of(ntc), (Parts{"007", "E", "31", "45"}));
  }
  for (const auto& [key, of] : kLatitudes) {
    NtcRec ntc;
    const std::string one = duplicate(key);
    EXPECT_EQ(readNotice({key + " = +465839", key + " = -1055"}, ntc), " " + one + one + one + one);
    EXPECT_EQ(of(ntc), (Parts{"46", "N", "58", "39"}));
  }
}

TEST(SectionReader, a_second_coordinate_still_fills_the_seconds_that_the_first_left_empty) {
  for (const auto& [key, of] : kLongitudes) {
    NtcRec ntc;
    const std::string one = duplicate(key);
    EXPECT_EQ(readNotice({key + " = +00731", key + " = -0105500"}, ntc), " " + one + one + one);
    EXPECT_EQ(of(ntc), (Parts{"007", "E", "31", "00"}));
    NtcRec without;
    EXPECT_EQ(readNotice({key + " = +00731", key + " = -01055"}, without), " " + one + one + one);
    EXPECT_EQ(of(without), (Parts{"007", "E", "31", ""}));
  }
}

TEST(SectionReader, the_type_settles_the_class_of_station) {
  for (const char* type : {"GT1", "gt1", "GT2"}) {
    EXPECT_EQ(cleanNotice({std::string("t_notice_type = ") + type}).stn_cls, "BT") << type;
  }
  for (const char* type : {"GS1", "GS2", "gs2"}) {
    EXPECT_EQ(cleanNotice({std::string("t_notice_type = ") + type}).stn_cls, "BC") << type;
  }
  for (const char* type : {"GA1", "TB2", "TB3", "TB5", "DT1", ""}) {
    EXPECT_EQ(cleanNotice({std::string("t_notice_type = ") + type}).stn_cls, "") << type;
  }
}

using Ids = std::array<std::string, 10>;

TEST(SectionReader, contour_identifiers_behind_the_type_go_to_the_next_places_of_the_allotment) {
  for (const char* type : {"GT2", "GS2", "GT1", "TB2"}) {
    const NtcRec ntc =
        cleanNotice({std::string("t_notice_type = ") + type, "t_contour_id = 9", "t_contour_id = 1"});
    EXPECT_EQ(ntc.digital.allot.t_contour_id, (Ids{"9", "1"})) << type;
    EXPECT_EQ(ntc.digital.contour.t_contour_id, "");
    EXPECT_EQ(flagsOf(ntc), kNone);
  }
}

TEST(SectionReader, contour_identifiers_ahead_of_the_type_keep_their_order) {
  const NtcRec ntc =
      cleanNotice({"t_contour_id = 9", "t_contour_id = 1", "t_notice_type = GT2", "t_contour_id = 5"});
  EXPECT_EQ(ntc.digital.allot.t_contour_id, (Ids{"9", "1", "5"}));
}

TEST(SectionReader, contour_identifiers_are_compared_as_numbers) {
  NtcRec behind;
  EXPECT_EQ(readNotice({"t_notice_type = GT2", "t_contour_id = 7", "t_contour_id = 07", "t_contour_id = 8",
                        "t_contour_id = 7.0x"},
                       behind),
            " " + duplicateId("07") + duplicateId("7.0x"));
  EXPECT_EQ(behind.digital.allot.t_contour_id, (Ids{"7", "8"}));
  NtcRec ahead;
  EXPECT_EQ(readNotice({"t_contour_id = 07", "t_contour_id = 7", "t_contour_id = 70", "t_notice_type = GS2"},
                       ahead),
            " " + duplicateId("7"));
  EXPECT_EQ(ahead.digital.allot.t_contour_id, (Ids{"07", "70"}));
  NtcRec across;
  EXPECT_EQ(readNotice({"t_contour_id = 07", "t_notice_type = GS2", "t_contour_id = 7"}, across),
            " " + duplicateId("7"));
  EXPECT_EQ(across.digital.allot.t_contour_id, (Ids{"07"}));
}

TEST(SectionReader, a_tenth_contour_identifier_ahead_of_the_type_has_no_place) {
  Body body;
  for (int id = 1; id <= 9; ++id) body.push_back("t_contour_id = " + std::to_string(id));
  NtcRec ntc;
  EXPECT_EQ(readNotice(body + Body{"t_contour_id = 10", "t_contour_id = 1", "t_notice_type = GT2",
                                   "t_contour_id = 11", "t_contour_id = 12"},
                       ntc),
            " " + duplicate("t_contour_id") + duplicate("t_contour_id") + duplicate("t_contour_id"));
  EXPECT_EQ(ntc.digital.allot.t_contour_id, (Ids{"1", "2", "3", "4", "5", "6", "7", "8", "9", "11"}));
}

TEST(SectionReader, an_eleventh_contour_identifier_of_an_allotment_has_no_place) {
  Body body = {"t_notice_type = GT2"};
  for (int id = 1; id <= 10; ++id) body.push_back("t_contour_id = " + std::to_string(id));
  EXPECT_EQ(cleanNotice(body).digital.allot.t_contour_id[9], "10");
  NtcRec ntc;
  EXPECT_EQ(readNotice(body + Body{"t_contour_id = 11", "t_contour_id = 10"}, ntc),
            " " + duplicate("t_contour_id") + duplicateId("10"));
  EXPECT_EQ(ntc.digital.allot.t_contour_id, (Ids{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

TEST(SectionReader, a_contour_has_its_one_identifier_behind_the_type) {
  const NtcRec ntc = cleanNotice({"t_notice_type = ga1", "t_contour_id = 07"});
  EXPECT_EQ(ntc.digital.contour.t_contour_id, "07");
  EXPECT_EQ(ntc.digital.allot.t_contour_id, Ids());
  EXPECT_EQ(flagsOf(ntc), kContour);
  NtcRec twice;
  EXPECT_EQ(readNotice({"t_notice_type = GA1", "t_contour_id = 07", "t_contour_id = 8"}, twice),
            " " + duplicate("t_contour_id"));
  EXPECT_EQ(twice, ntc);
}

TEST(SectionReader, a_contour_has_its_one_identifier_ahead_of_the_type) {
  const NtcRec ntc = cleanNotice({"t_contour_id = 07", "t_notice_type = GA1"});
  EXPECT_EQ(ntc.digital.contour.t_contour_id, "07");
  EXPECT_EQ(ntc.digital.allot.t_contour_id, Ids());
  EXPECT_EQ(flagsOf(ntc), kContour);
  NtcRec twice;
  EXPECT_EQ(readNotice({"t_contour_id = 07", "t_notice_type = GA1", "t_contour_id = 8"}, twice),
            " " + duplicate("t_contour_id"));
  EXPECT_EQ(twice, ntc);
}

TEST(SectionReader, a_contour_with_two_identifiers_ahead_of_the_type_takes_neither) {
  NtcRec ntc;
  EXPECT_EQ(readNotice({"t_contour_id = 7", "t_contour_id = 8", "t_notice_type = GA1"}, ntc),
            " FATAL ERROR : \r\nP : GA1 can have only ONE t_contour_id \r\n");
  EXPECT_EQ(ntc.digital.contour.t_contour_id, "");
  EXPECT_EQ(ntc.digital.allot.t_contour_id, Ids());
  EXPECT_EQ(flagsOf(ntc), kNone);
}

TEST(SectionReader, contour_identifiers_of_a_notice_without_a_type_are_lost) {
  EXPECT_EQ(cleanNotice({"t_contour_id = 7", "t_contour_id = 8"}), NtcRec());
}

TEST(SectionReader, the_identifiers_of_one_notice_do_not_reach_the_next) {
  EXPECT_EQ(cleanNotice({"t_contour_id = 7"}), NtcRec());
  EXPECT_EQ(cleanNotice({"t_notice_type = GT2"}).digital.allot.t_contour_id, Ids());
}

TEST(SectionReader, an_empty_type_ahead_of_the_type_loses_no_identifier) {
  const NtcRec ntc =
      cleanNotice({"t_contour_id = 1", "t_notice_type =", "t_notice_type = GT2", "t_contour_id = 2"});
  EXPECT_EQ(ntc.digital.allot.t_contour_id, (Ids{"1", "2"}));
}

TEST(SectionReader, the_number_of_test_points_sizes_their_array) {
  const std::pair<const char*, std::size_t> cases[] = {{"3", 4},    {"0", 1},   {"", 1},     {"x", 1},
                                                       {"99", 100}, {"2.9", 3}, {"-0.5", 1}, {"3x", 4}};
  for (const auto& [value, size] : cases) {
    const NtcRec ntc = cleanNotice({std::string("t_nb_test_pts = ") + value});
    EXPECT_EQ(ntc.digital.contour.points, std::vector<PointRec>(size)) << value;
    EXPECT_TRUE(ntc.digital.contour.present);
  }
}

TEST(SectionReader, a_number_of_test_points_below_zero_is_out_of_range) {
  EXPECT_EQ(errorOf({"t_nb_test_pts = -1"}), 9);
}

TEST(SectionReader, points_are_stored_in_order_up_to_the_index_of_their_number) {
  const NtcRec ntc = cleanNotice(Body{"t_nb_test_pts = 2"} + point("+0070000", "+465000") +
                                 Body{"t_ctry = SUI"} + point("-00701", "-4651") + point("x", "y"));
  const std::vector<PointRec> wanted = {
      {true, "+0070000", "+465000"}, {true, "-00701", "-4651"}, {true, "x", "y"}};
  EXPECT_EQ(ntc.digital.contour.points, wanted);
  EXPECT_EQ(ntc.t_ctry, "SUI");
  EXPECT_EQ(longOf(ntc), Parts());
}

TEST(SectionReader, a_point_beyond_the_index_of_their_number_is_out_of_range) {
  const Body one = point("+00700", "+4650");
  EXPECT_EQ(errorOf(Body{"t_nb_test_pts = 2"} + one + one + one), 0);
  EXPECT_EQ(errorOf(Body{"t_nb_test_pts = 2"} + one + one + one + one), 9);
  EXPECT_EQ(errorOf(Body{"t_nb_test_pts = 0"} + one), 0);
  EXPECT_EQ(errorOf(Body{"t_nb_test_pts = 0"} + one + one), 9);
}

TEST(SectionReader, a_point_ahead_of_their_number_is_out_of_range) {
  EXPECT_EQ(errorOf(point("+00700", "+4650")), 9);
  EXPECT_EQ(errorOf({"<POINT>", "</POINT>"}), 9);
  EXPECT_EQ(errorOf(point("+00700", "+4650") + Body{"t_nb_test_pts = 3"}), 9);
}

TEST(SectionReader, a_point_without_values_takes_its_place_unmarked) {
  const NtcRec ntc = cleanNotice(Body{"t_nb_test_pts = 2", "<POINT>", "t_long =", "x = 1", "</POINT>",
                                      "<POINT>", "t_lat = +4650", "</POINT>"});
  const std::vector<PointRec> wanted = {{}, {true, "", "+4650"}, {}};
  EXPECT_EQ(ntc.digital.contour.points, wanted);
}

TEST(SectionReader, a_point_with_a_key_given_twice_is_told_and_takes_no_place) {
  const Body twice = {"<POINT>",  "t_long = a", "t_lat = b", "t_long = c",
                      "t_long =", "t_lat = d",  "</POINT>"};
  NtcRec ntc;
  EXPECT_EQ(readNotice(Body{"t_nb_test_pts = 2"} + point("1", "2") + twice + point("3", "4"), ntc),
            " P <POINT> #1 : PFATAL ERROR : \r\nP : t_long : Duplicate key\r\n"
            "FATAL ERROR : \r\nP : t_lat : Duplicate key\r\n\r\n");
  const std::vector<PointRec> wanted = {{true, "1", "2"}, {true, "3", "4"}, {}};
  EXPECT_EQ(ntc.digital.contour.points, wanted);
  NtcRec first;
  EXPECT_EQ(readNotice(twice, first),
            " P <POINT> #0 : PFATAL ERROR : \r\nP : t_long : Duplicate key\r\n"
            "FATAL ERROR : \r\nP : t_lat : Duplicate key\r\n\r\n");
}

std::vector<std::string> admsOf(const CoordListRec& coord) {
  std::vector<std::string> adms;
  for (const CoordEntryRec& entry : coord.entries) adms.push_back(entry.adm);
  return adms;
}

TEST(SectionReader, a_coordination_holds_its_administrations_in_order_and_a_free_entry) {
  for (const auto& [start, end] :
       {std::pair("<COORD>", "</COORD>"), std::pair("<COORDINATION>", "</COORDINATION>"),
        std::pair("<coord>", "</Coordination>"), std::pair("<COORDINATION>", "</coord>")}) {
    SCOPED_TRACE(start);
    const NtcRec ntc =
        cleanNotice({start, "t_adm = F", "T_ADM = d", "", "t_adm =", "x_adm = I", "t_foo = I", end});
    EXPECT_EQ(admsOf(ntc.coord), (std::vector<std::string>{"F", "d", ""}));
    EXPECT_EQ(ntc.coord.count, 2);
    EXPECT_TRUE(ntc.coord.present);
    EXPECT_EQ(ntc.t_adm, "");
  }
}

TEST(SectionReader, an_empty_coordination_is_not_present) {
  const NtcRec ntc = cleanNotice({"<COORD>", "t_adm =", "</COORD>"});
  EXPECT_EQ(ntc.coord, CoordListRec());
}

TEST(SectionReader, a_repeated_administration_is_skipped_without_a_message) {
  const NtcRec ntc = cleanNotice({"<COORD>", "t_adm = F", "t_adm = D", "t_adm = F", "t_adm = f", "</COORD>"});
  EXPECT_EQ(admsOf(ntc.coord), (std::vector<std::string>{"F", "D", "f", ""}));
  EXPECT_EQ(ntc.coord.count, 3);
}

TEST(SectionReader, a_second_coordination_replaces_the_first) {
  const NtcRec ntc = cleanNotice(
      {"<COORD>", "t_adm = F", "t_adm = D", "</COORD>", "<COORDINATION>", "t_adm = I", "</COORDINATION>"});
  EXPECT_EQ(admsOf(ntc.coord), (std::vector<std::string>{"I", ""}));
  EXPECT_EQ(ntc.coord.count, 1);
  EXPECT_EQ(cleanNotice({"<COORD>", "t_adm = F", "</COORD>", "<COORD>", "</COORD>"}).coord, CoordListRec());
}

TEST(SectionReader, a_coordination_has_122_places) {
  const NtcRec ntc =
      cleanNotice(Body{"<COORD>"} + administrations(1, 122) + Body{"t_adm = X121", "</COORD>"});
  EXPECT_EQ(ntc.coord.count, 122);
  ASSERT_EQ(ntc.coord.entries.size(), 123U);
  EXPECT_EQ(ntc.coord.entries[0].adm, "X1");
  EXPECT_EQ(ntc.coord.entries[121].adm, "X122");
  EXPECT_EQ(ntc.coord.entries[122], CoordEntryRec());
  EXPECT_EQ(errorOf(Body{"<COORD>"} + administrations(1, 123) + Body{"</COORD>"}), 9);
}

TEST(SectionReader, only_the_first_121_administrations_are_tested_for_repeats) {
  EXPECT_EQ(errorOf(Body{"<COORD>"} + administrations(1, 122) + Body{"t_adm = X122", "</COORD>"}), 9);
}

struct AzimuthCase {
  std::string tag;
  std::string stem;
  std::string foreignStem;
  std::array<AzmValueRec, kAzimuths> NtcRec::*values;
};

const AzimuthCase kAntHgt = {"ANT_HGT", "t_eff_hgt@azm", "t_attn@azm", &NtcRec::ant_hgt};
const AzimuthCase kDiagrH = {"ANT_DIAGR_H", "t_attn@azm", "t_eff_hgt@azm", &NtcRec::ant_diagr_h};
const AzimuthCase kDiagrV = {"ANT_DIAGR_V", "t_attn@azm", "t_eff_hgt@azm", &NtcRec::ant_diagr_v};

class SectionReaderAzimuths : public testing::TestWithParam<AzimuthCase> {
 protected:
  Body section(const Body& body) const {
    return Body{"<" + one.tag + ">"} + body + Body{"</" + one.tag + ">"};
  }

  AzimuthCase one = GetParam();
};
INSTANTIATE_TEST_SUITE_P(Sections, SectionReaderAzimuths, testing::Values(kAntHgt, kDiagrH, kDiagrV),
                         [](const auto& section) { return section.param.tag; });

TEST_P(SectionReaderAzimuths, are_stored_in_the_order_of_the_file_and_nowhere_else) {
  NtcRec wanted;
  auto& values = wanted.*one.values;
  values[0] = {true, "350", "-1"};
  values[1] = {true, "010", "x"};
  values[2] = {true, "350", "2"};
  values[3] = {true, "7.5", "=3"};
  EXPECT_EQ(cleanNotice(section({one.stem + "350 = -1", "", "text", one.stem + "010 = x", one.stem + "350=2",
                                 one.stem + "7.5 = =3"})),
            wanted);
}

TEST_P(SectionReaderAzimuths, are_known_by_tags_and_keys_in_any_case) {
  std::string tag = one.tag;
  for (char& c : tag) c = static_cast<char>(std::tolower(c));
  std::string key = one.stem;
  for (char& c : key) c = static_cast<char>(std::toupper(c));
  const NtcRec ntc = cleanNotice({"<" + tag + ">", key + "010 = 5", "</" + tag + ">", "t_ctry = F"});
  EXPECT_EQ((ntc.*one.values)[0], (AzmValueRec{true, "010", "5"}));
  EXPECT_EQ(ntc.t_ctry, "F");
}

TEST_P(SectionReaderAzimuths, with_an_empty_value_take_no_place) {
  NtcRec wanted;
  (wanted.*one.values)[0] = {true, "010", "5"};
  EXPECT_EQ(cleanNotice(section({one.stem + "000 =", one.stem + "010 = 5", one.stem + "020 ="})), wanted);
}

TEST_P(SectionReaderAzimuths, of_another_stem_and_other_keys_are_skipped) {
  EXPECT_EQ(cleanNotice(section({one.foreignStem + "010 = 5", one.stem + " = 5", one.stem + "x = 5",
                                 "x" + one.stem + "010 = 5", "t_foo@azm010 = 5", "t_ctry = F", "t_adm = F"})),
            NtcRec());
}

TEST_P(SectionReaderAzimuths, beyond_the_36th_are_told_each_and_dropped) {
  NtcRec ntc;
  EXPECT_EQ(readNotice(section(azimuths(one.stem, 0, 36, "5")), ntc), " ");
  NtcRec beyond;
  EXPECT_EQ(readNotice(section(azimuths(one.stem, 0, 37, "5")), beyond),
            "  <" + one.tag + "> FATAL ERROR : \r\nP : Cannot notify more than 36 values\r\n");
  EXPECT_EQ(beyond, ntc);
  NtcRec twice;
  EXPECT_EQ(readNotice(section(azimuths(one.stem, 0, 37, "5") + Body{one.stem + "010 ="}), twice),
            "  <" + one.tag +
                "> FATAL ERROR : \r\nP : Cannot notify more than 36 values"
                "FATAL ERROR : \r\nP : Cannot notify more than 36 values\r\n");
  EXPECT_EQ(twice, ntc);
}

TEST(SectionReader, a_second_section_of_heights_overwrites_the_first) {
  const Body first = Body{"<ANT_HGT>"} + azimuths("t_eff_hgt@azm", 0, 36, "5") + Body{"</ANT_HGT>"};
  const NtcRec ntc = cleanNotice(first + Body{"<ANT_HGT>", "t_eff_hgt@azm777 = 9", "</ANT_HGT>"});
  EXPECT_EQ(ntc.ant_hgt[0], (AzmValueRec{true, "777", "9"}));
  EXPECT_EQ(ntc.ant_hgt[1], (AzmValueRec{true, "101", "5"}));
  EXPECT_EQ(ntc.ant_hgt[35], (AzmValueRec{true, "135", "5"}));
}

TEST(SectionReader, a_second_section_of_a_diagram_gives_its_keys_twice) {
  for (const AzimuthCase& one : {kDiagrH, kDiagrV}) {
    SCOPED_TRACE(one.tag);
    const Body first = {"<" + one.tag + ">", "t_attn@azm000 = 1", "t_attn@azm010 = 2", "</" + one.tag + ">"};
    const Body second = {"<" + one.tag + ">", "t_attn@azm020 = 3", "t_attn@azm030 =", "t_attn@azm040 = 4",
                         "</" + one.tag + ">"};
    NtcRec ntc;
    EXPECT_EQ(readNotice(first + second, ntc),
              "  <" + one.tag +
                  "> FATAL ERROR : \r\nP : t_attn@azm020 : Duplicate key\r\n"
                  "FATAL ERROR : \r\nP : t_attn@azm040 : Duplicate key\r\n\r\n");
    EXPECT_EQ(ntc, cleanNotice(first));
  }
}

TEST(SectionReader, the_two_diagrams_are_no_duplicates_of_each_other) {
  const NtcRec ntc = cleanNotice({"<ANT_DIAGR_V>", "t_attn@azm000 = 1", "</ANT_DIAGR_V>", "<ANT_DIAGR_H>",
                                  "t_attn@azm000 = 2", "</ANT_DIAGR_H>"});
  EXPECT_EQ(ntc.ant_diagr_v[0].value, "1");
  EXPECT_EQ(ntc.ant_diagr_h[0].value, "2");
}

TEST(SectionReader, messages_stand_in_the_order_of_the_file) {
  NtcRec ntc;
  EXPECT_EQ(
      readNotice(Body{"t_ctry = F", "t_ctry = D"} + Body{"<ANT_HGT>"} +
                     azimuths("t_eff_hgt@azm", 0, 37, "5") + Body{"</ANT_HGT>", "t_polar = H", "t_polar = V"},
                 ntc),
      " FATAL ERROR : \r\nP : t_ctry : Duplicate key\r\n"
      " <ANT_HGT> FATAL ERROR : \r\nP : Cannot notify more than 36 values\r\n"
      "FATAL ERROR : \r\nP : t_polar : Duplicate key\r\n");
}

TEST(SectionReader, a_notice_ends_at_its_tag_in_any_case) {
  NtcRec ntc;
  const SectionRun run({"t_ctry = F", "</Notice>", "t_polar = H"}, ntc, readNoticeSection);
  EXPECT_EQ(run.messages, " ");
  EXPECT_EQ(run.endLine, "</Notice>");
  EXPECT_EQ(run.lineNo, 3);
  EXPECT_EQ(ntc.t_ctry, "F");
  EXPECT_EQ(ntc.t_polar, "");
}

TEST(SectionReader, a_notice_may_be_empty) {
  NtcRec ntc;
  const SectionRun run({"</NOTICE>", "t_ctry = F"}, ntc, readNoticeSection);
  EXPECT_EQ(run.messages, " ");
  EXPECT_EQ(run.lineNo, 2);
  EXPECT_EQ(ntc, NtcRec());
}

TEST(SectionReader, other_tags_inside_a_notice_are_passed_over) {
  EXPECT_EQ(cleanNotice({"<COORD_A>", "t_adm = F", "</COORD_A>", "<COORD_O>", "</COORD_O>", "</POINT>",
                         "<FOO>", "<HEAD>", "</TAIL>", "<ANT_HGT", "t_ctry = F"})
                .t_ctry,
            "F");
}

TEST(SectionReader, a_notice_that_the_file_breaks_off_is_read_to_there) {
  NtcRec ntc;
  const SectionRun run({"t_ctry = F", "t_ctry = D"}, ntc, readNoticeSection);
  EXPECT_EQ(run.messages, " " + duplicate("t_ctry"));
  EXPECT_EQ(run.endLine, "");
  EXPECT_EQ(ntc.t_ctry, "F");
  NtcRec none;
  EXPECT_EQ(SectionRun({}, none, readNoticeSection).messages, " ");
  EXPECT_EQ(none, NtcRec());
}

TEST(SectionReader, a_sub_section_that_the_file_breaks_off_is_read_to_there) {
  NtcRec coord;
  EXPECT_EQ(SectionRun({"<COORD>", "t_adm = F"}, coord, readNoticeSection).messages, " ");
  EXPECT_EQ(admsOf(coord.coord), (std::vector<std::string>{"F", ""}));
  NtcRec pointed;
  EXPECT_EQ(SectionRun({"t_nb_test_pts = 1", "<POINT>", "t_long = 1"}, pointed, readNoticeSection).messages,
            " ");
  EXPECT_EQ(pointed.digital.contour.points[0], (PointRec{true, "1", ""}));
  for (const AzimuthCase& one : {kAntHgt, kDiagrH, kDiagrV}) {
    NtcRec ntc;
    EXPECT_EQ(SectionRun({"<" + one.tag + ">", one.stem + "010 = 1", "</FOO>", one.stem + "020 = 2"}, ntc,
                         readNoticeSection)
                  .messages,
              " ");
    EXPECT_EQ((ntc.*one.values)[1], (AzmValueRec{true, "020", "2"}));
  }
}

TEST(SectionReader, a_sub_section_ends_at_its_own_tag_alone) {
  const NtcRec ntc =
      cleanNotice({"<ANT_HGT>", "</ANT_DIAGR_H>", "t_ctry = F", "<COORD>", "t_adm = F", "</COORD>",
                   "</NOTICE>", "t_eff_hgt@azm010 = 1", "</ANT_HGT>", "t_polar = H"});
  EXPECT_EQ(ntc.t_ctry, "");
  EXPECT_FALSE(ntc.coord.present);
  EXPECT_EQ(ntc.ant_hgt[0].value, "1");
  EXPECT_EQ(ntc.t_polar, "H");
}

TEST(SectionReader, the_head_gives_administration_and_address_as_they_stand) {
  NtcRec wanted;
  wanted.t_adm = "sui";
  wanted.digital.t_email_addr = "Me@Example.org";
  NtcRec ntc;
  const SectionRun run({"t_char_set = x", "T_ADM = sui", "t_email_addr = Me@Example.org", "t_d_sent = x",
                        "t_ctry = F", "X_ADM = F", "text", "</HEAD>", "t_adm = F"},
                       ntc, readHeadSection);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(run.endLine, "</HEAD>");
  EXPECT_EQ(run.lineNo, 9);
  EXPECT_EQ(ntc, wanted);
}

TEST(SectionReader, a_key_of_the_head_given_twice_keeps_its_first_value) {
  NtcRec ntc;
  const SectionRun run({"t_adm =", "t_adm = F", "t_adm = D", "t_email_addr = a",
                        "t_email_addr =", "t_adm =", "t_d_sent = 1", "t_d_sent = 2", "</HEAD>"},
                       ntc, readHeadSection);
  EXPECT_EQ(run.messages, duplicate("t_adm") + duplicate("t_email_addr") + duplicate("t_adm"));
  EXPECT_EQ(ntc.t_adm, "F");
  EXPECT_EQ(ntc.digital.t_email_addr, "a");
}

TEST(SectionReader, the_head_ends_at_its_tag_in_upper_case_alone) {
  NtcRec ntc;
  const SectionRun run({"</head>", "t_adm = F", "</Head>", "<NOTICE>", "</HEAD>", "t_email_addr = a"}, ntc,
                       readHeadSection);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(run.lineNo, 6);
  EXPECT_EQ(ntc.t_adm, "F");
  EXPECT_EQ(ntc.digital.t_email_addr, "");
}

TEST(SectionReader, a_head_that_the_file_breaks_off_is_read_to_there) {
  NtcRec ntc;
  const SectionRun run({"t_adm = F"}, ntc, readHeadSection);
  EXPECT_EQ(run.messages, "");
  EXPECT_EQ(run.endLine, "");
  EXPECT_EQ(ntc.t_adm, "F");
}

TEST(SectionReader, the_readers_of_sub_sections_stand_on_their_own) {
  NtcRec ntc;
  PointRec onePoint;
  EXPECT_EQ(SectionRun({"t_long = 1", "t_lat = 2", "t_lat = 3", "</Point>"}, ntc,
                       [&](SectionReading& reading) { return readPointSection(reading, onePoint); })
                .messages,
            duplicate("t_lat"));
  EXPECT_EQ(onePoint, (PointRec{true, "1", "2"}));
  CoordListRec coord;
  coord.present = true;
  coord.count = 1;
  coord.entries[0].adm = "OLD";
  const SectionRun coordRun({"t_adm = F", "</coordination>"}, ntc,
                            [&](SectionReading& reading) { return readCoordSection(reading, coord); });
  EXPECT_EQ(coordRun.messages, "");
  EXPECT_EQ(admsOf(coord), (std::vector<std::string>{"F", ""}));
  EXPECT_EQ(coord.count, 1);
  EXPECT_EQ(SectionRun({"t_eff_hgt@azm010 = 1", "</ant_hgt>"}, ntc, readAntHgtSection).endLine, "</ant_hgt>");
  EXPECT_EQ(SectionRun({"t_attn@azm010 = 1", "</ant_diagr_h>"}, ntc, readAntDiagrHSection).endLine,
            "</ant_diagr_h>");
  EXPECT_EQ(SectionRun({"t_attn@azm010 = 1", "</ant_diagr_v>"}, ntc, readAntDiagrVSection).endLine,
            "</ant_diagr_v>");
}

}  // namespace
}  // namespace zamo
