#include "noticefile/strict_reader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "noticefile/key_table.h"

namespace zamo {
namespace {

struct Outcome {
  bool good = false;
  std::string report;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << outcome.good << "\n" << outcome.report;
}

using Body = std::vector<std::string>;

// Runs a reader on a section whose opening tag stands on line 1, the first line of the body on line 2.
template <typename Read>
Outcome readBody(const Body& body, std::string_view prefix, Read read) {
  std::string text = "<SECTION>\r\n";
  for (const std::string& line : body) text.append(line).append("\r\n");
  LineSource lines = LineSource::ofText(text);
  Outcome outcome;
  StrictReading reading{lines, outcome.report, std::string(prefix), {}, {}, {}};
  readLine(reading);
  readLine(reading);
  outcome.good = read(reading);
  return outcome;
}

Outcome readNotice(Body body) {
  body.push_back("</NOTICE>");
  return readBody(body, "Notice No : 3", valReadNotice);
}

// A GT1 notice with one more line, which is line 3 of the text.
Outcome readLineOfNotice(const std::string& line) {
  return readNotice({"t_notice_type = GT1", line});
}

Outcome readHead(Body body) {
  body.push_back("</HEAD>");
  return readBody(body, "", valReadHead);
}

Outcome readTail(Body body, std::int64_t noticesRead) {
  body.push_back("</TAIL>");
  return readBody(body, "",
                  [noticesRead](StrictReading& reading) { return valReadTail(reading, noticesRead); });
}

Outcome readPoint(Body body) {
  body.push_back("</POINT>");
  return readBody(body, "Notice No : 3", valReadPoint);
}

Outcome readCoord(Body body) {
  body.push_back("</COORD>");
  return readBody(body, "Notice No : 3", valReadCoord);
}

Outcome readAntHgt(Body body) {
  body.push_back("</ANT_HGT>");
  return readBody(body, "Notice No : 3", valReadAntHgt);
}

const Outcome kClean{true, ""};

Outcome refused(std::string report) {
  return {false, std::move(report)};
}

// One row of the tables of a notice: what passes, what is refused, and with which words.
struct NoticeRow {
  const char* key;
  std::vector<const char*> passing;
  std::vector<const char*> failing;
  const char* report;
};

void PrintTo(const NoticeRow& row, std::ostream* out) {
  *out << row.key;
}

// clang-format off
const NoticeRow kNoticeRows[] = {
    // Enumerations.
    {"t_notice_type", {"GT1", "GS1", "GS2", "GT2", "GA1", "TB5", "TB3", "TB2", "gt1", "Ga1"}, {"GT3", "TB1", "GT", "GT11", "DT1", "G T1"},
     "Notice No : 3 : Error : Line No : 3  t_notice_type : Acceptables values are {GS1, GT1, GS2, GT2, GA1, TB2, TB3, TB5}\r\n"},
    {"t_plan", {"KV19D", "kv19d"}, {"KV19", "NTFD_PZ", "KV19DD"},
     "Notice No : 3 : Error : Line No : 3  t_plan : Acceptable value for assignments are {KV19D}\r\n"},
    {"t_fragment", {"NTFD_PZ", "KV19D", "ntfd_pz", "kv19d"}, {"NTFD", "KV19", "PZ"},
     "Notice No : 3 : Error : Line No : 3  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}\r\n"},
    {"t_action", {"MODIFY", "ADD", "SUPPRESS", "WITHDRAW", "CONFORM", "PARTB", "modify", "PartB"}, {"DELETE", "PART B", "AD"},
     "Notice No : 3 : Error : Line No : 3  t_action : Acceptable values are {ADD, MODIFY, SUPPRESS, WITHDRAW, CONFORM, PARTB}\r\n"},
    {"t_prov", {"PZ11.2", "pz11.2"}, {"PZ11.3", "PZ11,2", "PZ11"},
     "Notice No : 3 : Error : Line No : 3  t_prov : Acceptable value {PZ11.2}\r\n"},
    {"t_assgn_code", {"C", "L", "S", "c", "l", "s"}, {"X", "CL", "1"},
     "Notice No : 3 : Error : Line No : 3  t_assgn_code : Acceptable values are {L, C, S}\r\n"},
    {"t_polar", {"H", "V", "M", "U", "h", "v", "m", "u"}, {"X", "HV", "1"},
     "Notice No : 3 : Error : Line No : 3 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"},
    {"t_remark_conds_met", {"TRUE", "FALSE", "true", "False"}, {"YES", "T", "1"},
     "Notice No : 3 : Error : Line No : 3 t_remark_conds_met : Acceptable values are {TRUE, FALSE}\r\n"},
    {"t_is_resub", {"TRUE", "FALSE", "true", "False"}, {"YES", "T", "0"},
     "Notice No : 3 : Error : Line No : 3 t_is_resub : Acceptable values are {TRUE, FALSE}\r\n"},
    {"t_signed_commitment", {"TRUE", "FALSE", "true", "False"}, {"NO", "F", "-1"},
     "Notice No : 3 : Error : Line No : 3 t_signed_commitment : Acceptable values are {TRUE, FALSE}\r\n"},
    {"t_is_pub_req", {"TRUE", "FALSE", "true", "False"}, {"NO", "TRUE.", "VRAI"},
     "Notice No : 3 : Error : Line No : 3 t_is_pub_req : Acceptable values are {TRUE, FALSE}\r\n"},
    {"t_ant_dir", {"D", "ND", "d", "nd"}, {"N", "DN", "NDD"},
     "Notice No : 3 : Error : Line No : 3 t_ant_dir : Acceptable values are {D, ND} (9)\r\n"},
    {"t_rx_mode", {"FX", "PO", "PI", "MO", "fx", "mo"}, {"F", "XX", "PIMO"},
     "Notice No : 3 : Error : Line No : 3 t_rx_mode : Acceptable values are {FX, PO, PI, MO}\r\n"},
    // System variant.
    {"t_sys_var",
     {"A1", "A2", "A3", "A5", "A7", "B1", "B2", "B3", "B5", "B7", "C1", "C2", "C3", "C5", "C7",
      "D1", "D2", "D3", "D5", "D7", "E1", "E2", "E3", "E5", "E7", "F1", "F2", "F3", "F5", "F7"},
     {"a1", "A4", "A", "A0", "A6", "A8", "A9", "G1", "1A", "1", "f7", "AA"},
     "Notice No : 3 : Error : Line No : 3 t_sys_var : Acceptable values are {A1, A2, A3, A5, A7, B1, B2, B3, B5, B7, C1, C2, C3, C5, C7, D1, D2, D3, D5, D7, E1, E2, E3, E5, E7, F1, F2, F3, F5, F7}\r\n"},
    {"t_sys_var", {"F7"}, {"A11", "A1 B2", "ABC"},
     "Notice No : 3 : Error : Line No : 3 t_sys_var : Maximum number of alphanumerical characters is 2 \r\n"},
    // Free text.
    {"t_adm_ref_id", {"SUI 1 2 3", "12345678901234567890"}, {"SUI  1", "a   b"},
     "Notice No : 3 : Error : Line No : 3  t_adm_ref_id : Double space is not allowed\r\n"},
    {"t_adm_ref_id", {"12345678901234567890"}, {"123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3  t_adm_ref_id : Maximum number of alphanumerical characters is 20\r\n"},
    {"t_adm_ref_id", {"1234567890 234567890"}, {"1234567890  345678901"},
     "Notice No : 3 : Error : Line No : 3  t_adm_ref_id : Double space is not allowed\r\n"
     "Notice No : 3 : Error : Line No : 3  t_adm_ref_id : Maximum number of alphanumerical characters is 20\r\n"},
    {"t_trg_adm_ref_id", {"SUI 1"}, {"SUI  1"},
     "Notice No : 3 : Error : Line No : 3  t_trg_adm_ref_id : Double space is not allowed\r\n"},
    {"t_trg_adm_ref_id", {"12345678901234567890"}, {"123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3  t_trg_adm_ref_id : Maximum number of alphanumerical characters is 20\r\n"},
    {"t_plan_adm_ref_id", {"SUI 1"}, {"SUI  1"},
     "Notice No : 3 : Error : Line No : 3  t_plan_adm_ref_id : Double space is not allowed\r\n"},
    {"t_plan_adm_ref_id", {"12345678901234567890"}, {"123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3  t_plan_adm_ref_id : Maximum number of alphanumerical characters is 20\r\n"},
    {"t_site_name", {"LA DOLE"}, {"LA  DOLE"},
     "Notice No : 3 : Error : Line No : 3  t_sitename : Double space is not allowed (4A)\r\n"},
    {"t_site_name", {"123456789012345678901234567890"}, {"1234567890123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3  t_sitename : Maximum number of alphanumerical characters is 30 (4A)\r\n"},
    {"t_site_name", {"Gen\350ve"}, {"12345678901234567890  345678901"},
     "Notice No : 3 : Error : Line No : 3  t_sitename : Double space is not allowed (4A)\r\n"
     "Notice No : 3 : Error : Line No : 3  t_sitename : Maximum number of alphanumerical characters is 30 (4A)\r\n"},
    {"t_associated_adm_allot_id", {"SUI 1"}, {"SUI  1"},
     "Notice No : 3 : Error : Line No : 3 t_associated_adm_allot_id : Double space is not allowed\r\n"},
    {"t_associated_adm_allot_id", {"12345678901234567890"}, {"123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3 t_associated_adm_allot_id : Maximum number of alphanumerical characters is 20\r\n"},
    {"t_allot_name", {"SUI 1"}, {"SUI  1"},
     "Notice No : 3 : Error : Line No : 3 t_allot_name : Double space is not allowed\r\n"},
    {"t_allot_name", {"123456789012345678901234567890"}, {"1234567890123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3 t_allot_name : Maximum number of alphanumerical characters is 30\r\n"},
    {"t_call_sign", {"1234567890", "A  B"}, {"12345678901", "A  B  C  D  E"},
     "Notice No : 3 : Error : Line No : 3 t_call_sign : Maximum number of alphanumerical characters is 10\r\n"},
    {"t_sfn_id", {"123456789012345678901234567890", "A  B"}, {"1234567890123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3 t_sfn_id : Maximum number of alphanumerical characters is 30\r\n"},
    {"t_associated_allot_sfn_id", {"123456789012345678901234567890", "A  B"}, {"1234567890123456789012345678901"},
     "Notice No : 3 : Error : Line No : 3 t_associated_allot_sfn_id : Maximum number of alphanumerical characters is 30\r\n"},
    // Length only.
    {"t_ref_plan_cfg", {"RPC1", "XXXX", "R"}, {"RPC10", "RPC 1"},
     "Notice No : 3 : Error : Line No : 3 t_ref_plan_cfg : Acceptable values are : for DVB-T : {RPC1, RPC2, RPC3} and for T_DAB : {RPC4, RPC5}\r\n"},
    {"t_typ_ref_netwk", {"RN1", "RN9", "X"}, {"RN10", "RN 1"},
     "Notice No : 3 : Error : Line No : 3 t_typ_ref_netwk : Acceptable values are : for DVB-T allotment : {RN1, RN2, RN3, RN4}\r\n"},
    {"t_spect_mask", {"N", "S", "1", "X"}, {"NS", "12"},
     "Notice No : 3 : Error : Line No : 3 t_spect_mask : Acceptable values are : for DVB-T : {N, S} and for T-DAB : {1, 2, 3} \r\n"},
    // Numbers.
    {"t_plan_entry", {"1", "2", "3", "4", "5"}, {"0", "6", "9", "5.", "01", "+1", "A", "12", "-1"},
     "Notice No : 3 : Error : Line No : 3  t_plan_entry : Acceptables values for Assignments (GS1, GT1) are {1, 2, 3, 4, 5} and for Allotments (GS2, GT2) are {3, 4, 5}\r\n"},
    {"t_freq_assgn", {"474", "176.64", "-1", "+1.5", "1e3"}, {"474,5", "474 MHz", "4.7.4", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_trg_freq_assgn", {"474", "176.64"}, {"474,5", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_erp_h_dbw", {"20", "-3.5"}, {"20,5", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_erp_v_dbw", {"20", "-3.5"}, {"20,5", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_erp_beam_tilt_dbw", {"20", "-3.5"}, {"20,5", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_beam_tilt_angle", {"2", "-3.5"}, {"2,5", "X"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_hgt_agl", {"60", "60.5"}, {"60,5", "60 m"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_offset", {"0", "-166.7", "+166.7"}, {"0,5", "--1"},
     "Notice No : 3 : Error : Line No : 3 The decimal separate must be a FULL STOP\r\n"},
    {"t_site_alt", {"0", "-1000", "9000", "+5"}, {"5.0", "5,0", "5.", "X"},
     "Notice No : 3 : Error : Line No : 3 t_site_alt : Value should be an integer between [-1000, 8850] (9EA)\r\n"},
    {"t_eff_hgtmax", {"0", "-3000", "99999"}, {"5.0", "5,0", "X"},
     "Notice No : 3 : Error : Line No : 3 : Value should be an integer between [-3000, 3000] (9EB)\r\n"},
    {"t_op_agcy", {"001", "1", "1234", "-1.5"}, {"12345", "A", "1,2"},
     "Notice No : 3 : Error : Line No : 3  t_op_agcy : can have ONLY 3 digits no Characters (12A)\r\n"},
    {"t_addr_code", {"A", "b", "?"}, {"1", "AB", "0"},
     "Notice No : 3 : Error : Line No : 3  t_addr_code : can have ONLY 1 Characters no digits (12B)\r\n"},
    {"t_ctry", {"SUI", "D", "sui", "1A"}, {"SUIS", "1", "123", "1.5", "1e5"},
     "Notice No : 3 : Error : Line No : 3  t_ctry : cannot have more than 3 Characters (4B)\r\n"},
    {"t_geo_area", {"SUI", "D", "1.5", "-12"}, {"SUIS", "1", "123"},
     "Notice No : 3 : Error : Line No : 3 t_geo_area : Cannot have more than 3 Characters\r\n"},
    {"t_nb_sub_areas", {"1", "9", "0", "12345"}, {"-1", "1.0", "1,0", "X"},
     "Notice No : 3 : Error : Line No : 3 t_nb_sub_area : Value should be between [1, 9]\r\n"},
    {"t_contour_id", {"1", "9999", "0001"}, {"12345", "1.0", "1,0", "-1", "X"},
     "Notice No : 3 : Error : Line No : 3 t_contour_id : Maximum number of digits is 4 \r\n"},
    {"t_nb_test_pts", {"3", "99", "0", "01"}, {"100", "1.", "1,", "-1", "X"},
     "Notice No : 3 : Error : Line No : 3Value must be between [3-99]\r\n"},
    // Coordinates: format, degrees, minutes, seconds, and several at once.
    {"t_long", {"+0071234", "-00712", "+1795959", "X0301020", "+03010", "00000000"}, {"+030102", "+007123", "0071234", "+007", "+00712345"},
     "Notice No : 3 : Error : Line No : 3  t_long : Acceptable Longitude formats are \261DDDMMSS or \261DDDMM (4C)\r\n"},
    {"t_long", {"-1790000"}, {"+1805959", "+18000", "+1.95959", "+1,95959", "+-795959", "+0A71234"},
     "Notice No : 3 : Error : Line No : 3  t_long : DDD should be between [0,170] (4C)\r\n"},
    {"t_long", {"+00759"}, {"+0076034", "+00760", "+0071.34", "+007-134", "+0071A34"},
     "Notice No : 3 : Error : Line No : 3  t_long : MM should be between [0,59] (4C)\r\n"},
    {"t_long", {"+0071259"}, {"+0071260", "+007121.", "+00712,1", "+007121A"},
     "Notice No : 3 : Error : Line No : 3  t_long : SS should be between [0,59] (4C)\r\n"},
    {"t_long", {"+0000000"}, {"+1806060"},
     "Notice No : 3 : Error : Line No : 3  t_long : DDD should be between [0,170] (4C)\r\n"
     "Notice No : 3 : Error : Line No : 3  t_long : MM should be between [0,59] (4C)\r\n"
     "Notice No : 3 : Error : Line No : 3  t_long : SS should be between [0,59] (4C)\r\n"},
    {"t_lat", {"+465758", "-4657", "+895959", "X465758", "+890000"}, {"+46575", "+465", "46575812", "+4657589"},
     "Notice No : 3 : Error : Line No : 3 t_lat : Acceptable Latitude formats are \261DDMMSS or \261DDMM (4C)\r\n"},
    {"t_lat", {"-890000"}, {"+900000", "+9000", "+4.5758", "+A65758"},
     "Notice No : 3 : Error : Line No : 3 t_lat : DD should be between [0,90] (4C)\r\n"},
    {"t_lat", {"+4659"}, {"+466058", "+4660", "+465.58"},
     "Notice No : 3 : Error : Line No : 3 t_lat : MM should be between [0,59] (4C)\r\n"},
    {"t_lat", {"+465759"}, {"+465760", "+46575,"},
     "Notice No : 3 : Error : Line No : 3 t_lat : SS should be between [0,59] (4C)\r\n"},
    {"t_lat", {"+000000"}, {"+906060"},
     "Notice No : 3 : Error : Line No : 3 t_lat : DD should be between [0,90] (4C)\r\n"
     "Notice No : 3 : Error : Line No : 3 t_lat : MM should be between [0,59] (4C)\r\n"
     "Notice No : 3 : Error : Line No : 3 t_lat : SS should be between [0,59] (4C)\r\n"},
    {"t_trg_long", {"+0071234", "-00712", "+1795959", "X0301020"}, {"+007123", "+007", "+00712345"},
     "Notice No : 3 : Error : Line No : 3  t_trg_long : Acceptable Longitude formats are \261DDDMMSS or \261DDDMM \r\n"},
    {"t_trg_long", {"-1790000"}, {"+1800000", "+18000", "+0A71234"},
     "Notice No : 3 : Error : Line No : 3  t_trg_long : DDD should be between [0,180]\r\n"},
    {"t_trg_long", {"+00759"}, {"+0076034", "+00760"},
     "Notice No : 3 : Error : Line No : 3  t_trg_long : MM should be between [0,59]\r\n"},
    {"t_trg_long", {"+0071259"}, {"+0071260", "+007121A"},
     "Notice No : 3 : Error : Line No : 3  t_trg_long : SS should be between [0,59]\r\n"},
    {"t_trg_lat", {"+465758", "-4657", "+895959", "X465758"}, {"+46575", "+465", "+4657589"},
     "Notice No : 3 : Error : Line No : 3 t_trg_lat : Acceptable Latitude formats are \261DDMMSS or \261DDMM\r\n"},
    {"t_trg_lat", {"-890000"}, {"+900000", "+9000", "+A65758"},
     "Notice No : 3 : Error : Line No : 3 t_trg_lat : DD should be between [0,90]\r\n"},
    {"t_trg_lat", {"+4659"}, {"+466058", "+4660"},
     "Notice No : 3 : Error : Line No : 3 t_trg_lat : MM should be between [0,59]\r\n"},
    {"t_trg_lat", {"+465759"}, {"+465760", "+46575A"},
     "Notice No : 3 : Error : Line No : 3 t_trg_lat : SS should be between [0,59]\r\n"},
    // Dates.
    {"t_d_inuse", {"2007-06-15", "2000-01-01", "2008-02-29", "2007/06/15", "15.06.2007", "2007-6-5", "2007-06/15"},
     {"1999-12-31", "2007-02-29", "2007-13-01", "2007-06-31", "2007-06", "20070615", "07-06-15", "soon", "15.06", "31.12.1999"},
     "Notice No : 3 : Error : Line No : 3  t_d_inuse : Invalid date format YYYY-MM-DD (2C)\r\n"},
    {"t_d_expiry", {"2007-06-15", "2000-01-01", "15/06/2007"}, {"1999-12-31", "2007-06-31", "2007-06", "never"},
     "Notice No : 3 : Error : Line No : 3  t_d_expiry : Invalid date format YYYY-MM-DD\r\n"},
};

constexpr const char* kUntestedKeys[] = {"t_d_adm_ntc", "t_remarks", "t_int_remarks", "t_op_hh_fr", "t_op_hh_to"};
// clang-format on

class StrictReaderOfRow : public testing::TestWithParam<NoticeRow> {};

TEST_P(StrictReaderOfRow, accepts_what_it_should) {
  for (const char* value : GetParam().passing) {
    EXPECT_EQ(readLineOfNotice(std::string(GetParam().key) + " = " + value), kClean) << value;
  }
}

TEST_P(StrictReaderOfRow, refuses_the_rest_with_its_words_alone) {
  for (const char* value : GetParam().failing) {
    EXPECT_EQ(readLineOfNotice(std::string(GetParam().key) + "=" + value), refused(GetParam().report))
        << value;
  }
}

TEST_P(StrictReaderOfRow, passes_over_an_empty_value) {
  EXPECT_EQ(readLineOfNotice(std::string(GetParam().key) + " = "), kClean);
}

TEST_P(StrictReaderOfRow, knows_the_key_in_any_case) {
  std::string key = GetParam().key;
  key[0] = 'T';
  key[2] = static_cast<char>(key[2] - 'a' + 'A');
  EXPECT_EQ(readLineOfNotice(key + " = " + GetParam().failing[0]), refused(GetParam().report));
}

INSTANTIATE_TEST_SUITE_P(Notice, StrictReaderOfRow, testing::ValuesIn(kNoticeRows), [](const auto& row) {
  return std::string(row.param.key) + "_" + std::to_string(row.index);
});

TEST(StrictReader, every_key_of_the_table_has_a_row_here_or_no_test) {
  std::set<std::string_view> covered = {""};
  for (const NoticeRow& row : kNoticeRows) covered.insert(row.key);
  for (const char* key : kUntestedKeys) covered.insert(key);
  for (const std::string_view key : kNoticeKeys) EXPECT_TRUE(covered.contains(key)) << key;
  EXPECT_EQ(covered.size(), 56U);
}

TEST(StrictReader, keys_without_a_test_take_any_value) {
  for (const char* key : kUntestedKeys) {
    for (const std::string& value :
         {std::string("  two  blanks, x"), std::string(500, 'x'), std::string("99:99")}) {
      EXPECT_EQ(readLineOfNotice(std::string(key) + " = " + value), kClean) << key;
    }
  }
}

TEST(StrictReader, a_line_in_a_notice_has_prefix_and_physical_number) {
  Body body(38, "");
  body.insert(body.begin(), "t_notice_type = GT1");
  body.emplace_back("t_prov = PZ12");
  EXPECT_EQ(readNotice(body),
            refused("Notice No : 3 : Error : Line No : 41  t_prov : Acceptable value {PZ11.2}\r\n"));
}

TEST(StrictReader, goes_on_after_an_error) {
  EXPECT_EQ(
      readNotice({"t_notice_type = GT1", "t_polar = X", "t_ctry = SUI", "t_polar = Y", "t_plan_entry = 6"}),
      refused(
          "Notice No : 3 : Error : Line No : 3 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"
          "Notice No : 3 : Error : Line No : 5 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"
          "Notice No : 3 : Error : Line No : 6  t_plan_entry : Acceptables values for Assignments (GS1, GT1)"
          " are {1, 2, 3, 4, 5} and for Allotments (GS2, GT2) are {3, 4, 5}\r\n"));
}

TEST(StrictReader, undefined_keys_of_a_notice_are_told) {
  const Outcome expected =
      refused("Notice No : 3 : Error : Line No : 3  Undefined key. Please check the spelling\r\n");
  for (const char* line : {"t_foo = 1", "t_foo =", "T_FOO = 1", "t_ = 1", "t_adm = SUI", "t_hgt_alt = 60",
                           "t_eff_hgt@azm010 = 1", "t_site_name_ = x", "t_num_notices = 1"}) {
    EXPECT_EQ(readLineOfNotice(line), expected) << line;
  }
}

TEST(StrictReader, lines_without_a_key_of_its_kind_are_ignored) {
  for (const char* line : {"comment text", "", "foo = 1", "Notice No = 1", "t = 1", "tfoo = 1", "=", "= 1",
                           "X_ADM = 1", "<FOO>", "<COORD_A>", "</POINT>", "<NOTICE>"}) {
    EXPECT_EQ(readLineOfNotice(line), kClean) << line;
  }
}

TEST(StrictReader, a_value_may_hold_further_equals_signs) {
  EXPECT_EQ(readLineOfNotice("t_call_sign = A=B"), kClean);
  EXPECT_EQ(
      readLineOfNotice("t_polar == V"),
      refused("Notice No : 3 : Error : Line No : 3 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"));
}

TEST(StrictReader, tabs_count_as_blanks) {
  EXPECT_EQ(readLineOfNotice("\tt_polar\t=\tV\t"), kClean);
  EXPECT_EQ(readLineOfNotice("t_call_sign = A\tB"), kClean);
  EXPECT_EQ(readLineOfNotice("t_allot_name = A\t\tB"),
            refused("Notice No : 3 : Error : Line No : 3 t_allot_name : Double space is not allowed\r\n"));
}

TEST(StrictReader, a_notice_without_type_gets_the_fatal_line) {
  EXPECT_EQ(
      readNotice({"t_ctry = SUI", "t_action = ADD"}),
      refused("Notice No : 3 : <NOTICE> started at line : 2 has a  FATAL ERROR t_notice_type is not provided."
              " Cannot proceed further\r\n"));
  EXPECT_EQ(readNotice({}),
            refused("Notice No : 3 : <NOTICE> started at line : 2 has a  FATAL ERROR t_notice_type is"
                    " not provided. Cannot proceed further\r\n"));
}

TEST(StrictReader, an_empty_type_counts_as_none) {
  EXPECT_EQ(
      readNotice({"t_notice_type ="}),
      refused("Notice No : 3 : <NOTICE> started at line : 2 has a  FATAL ERROR t_notice_type is not provided."
              " Cannot proceed further\r\n"));
}

TEST(StrictReader, the_fatal_line_is_left_out_beside_another_error) {
  EXPECT_EQ(
      readNotice({"t_polar = X"}),
      refused("Notice No : 3 : Error : Line No : 2 t_polar : Acceptable values are {V, H, M, U} (9D)\r\n"));
}

TEST(StrictReader, a_refused_type_gets_no_fatal_line) {
  EXPECT_EQ(
      readNotice({"t_notice_type = XX"}),
      refused(
          "Notice No : 3 : Error : Line No : 2  t_notice_type : Acceptables values are {GS1, GT1, GS2, GT2,"
          " GA1, TB2, TB3, TB5}\r\n"));
}

TEST(StrictReader, an_undefined_key_in_a_point_lets_the_fatal_line_through) {
  EXPECT_EQ(
      readNotice({"<POINT>", "t_foo = 1", "</POINT>"}),
      refused("Notice No : 3 : Error : Line No : 3 Undefined key. Please check the spelling\r\n"
              "Notice No : 3 : <NOTICE> started at line : 2 has a  FATAL ERROR t_notice_type is not provided."
              " Cannot proceed further\r\n"));
}

// <HEAD>.

TEST(StrictHead, good_values_pass) {
  EXPECT_EQ(readHead({"t_adm = SUI", "t_email_addr = tester@example.org", "t_char_set = ISO-8859-1, any",
                      "t_d_sent = whenever"}),
            kClean);
  EXPECT_EQ(readHead({"t_adm =", "t_email_addr =", "t_char_set =", "t_d_sent ="}), kClean);
  EXPECT_EQ(readHead({}), kClean);
  EXPECT_EQ(readHead({"T_ADM = d", "t_email_addr = " + std::string(50, 'x')}), kClean);
}

TEST(StrictHead, an_administration_is_no_number_and_shorter_than_four) {
  for (const char* value : {"SUIS", "1", "123", "1.5", "1e5", "-12"}) {
    EXPECT_EQ(readHead({std::string("t_adm = ") + value}),
              refused(" : Error : Line No : 2 t_adm : cannot have more than 3 Characters (B)\r\n"))
        << value;
  }
}

TEST(StrictHead, a_mail_address_has_at_most_50_characters) {
  EXPECT_EQ(
      readHead({"t_email_addr = " + std::string(51, 'x')}),
      refused(" : Error : Line No : 2 t_email_addr : Maximum number of alphanumerical characters is 50\r\n"));
}

TEST(StrictHead, undefined_keys_are_told) {
  for (const char* line : {"t_foo = 1", "t_foo =", "t_notice_type = GT1", "t_num_notices = 1"}) {
    EXPECT_EQ(readHead({line}),
              refused(" : Error : Line No : 2 Undefined key. Please check the spelling\r\n"))
        << line;
  }
  EXPECT_EQ(readHead({"foo = 1", "comment", "<POINT>", "t_adm = SUI"}), kClean);
}

TEST(StrictHead, its_end_tag_may_be_in_lower_case) {
  EXPECT_EQ(readBody({"t_adm = SUI", "</head>", "t_foo = 1"}, "", valReadHead), kClean);
}

TEST(StrictHead, a_prefix_leads_its_lines_too) {
  EXPECT_EQ(readBody({"t_foo = 1", "</HEAD>"}, "/tmp/a.txt", valReadHead),
            refused("/tmp/a.txt : Error : Line No : 2 Undefined key. Please check the spelling\r\n"));
}

// <TAIL>.

TEST(StrictTail, the_count_must_be_that_of_the_notices_read) {
  EXPECT_EQ(readTail({"t_num_notices = 2"}, 2), kClean);
  EXPECT_EQ(readTail({"t_num_notices = 002"}, 2), kClean);
  EXPECT_EQ(readTail({"t_num_notices = 2.0"}, 2), kClean);
  EXPECT_EQ(readTail({"t_num_notices = 3"}, 2), refused(" : Error : Line No : 2 t_num_notices : The number "
                                                        "of notices notified : 3 and the number of notices"
                                                        " read : 2\r\n"));
  EXPECT_EQ(
      readTail({"t_num_notices = 2.5"}, 2),
      refused(" : Error : Line No : 2 t_num_notices : The number of notices notified : 2.5 and the number of"
              " notices read : 2\r\n"));
}

TEST(StrictTail, an_empty_count_gives_one_line) {
  EXPECT_EQ(readTail({"t_num_notices ="}, 2), refused(" : Error : Line No : 2 t_num_notices : Value must be "
                                                      "notified. The number of notices read : 2\r\n"));
}

TEST(StrictTail, a_count_that_is_no_number_gives_two_lines) {
  EXPECT_EQ(
      readTail({"t_num_notices = abc"}, 2),
      refused(" : Error : Line No : 2 t_num_notices : Value must be an integer\r\n"
              " : Error : Line No : 2 t_num_notices : The number of notices notified : abc and the number of"
              " notices read : 2\r\n"));
}

TEST(StrictTail, a_count_that_begins_with_the_right_number_gives_one_line) {
  EXPECT_EQ(readTail({"t_num_notices = 2 notices"}, 2),
            refused(" : Error : Line No : 2 t_num_notices : Value must be an integer\r\n"));
  EXPECT_EQ(readTail({"t_num_notices = abc"}, 0),
            refused(" : Error : Line No : 2 t_num_notices : Value must be an integer\r\n"));
}

TEST(StrictTail, other_keys_are_ignored_in_silence) {
  EXPECT_EQ(readTail({"t_foo = 1", "t_adm = 123456", "foo = 1", "text"}, 2), kClean);
  EXPECT_EQ(readTail({}, 2), kClean);
}

// <POINT>.

struct PointCase {
  const char* line;
  const char* report;
};

TEST(StrictPoint, good_values_pass) {
  for (const char* line : {"t_long = +0071234", "t_long = -00712", "t_long = +1695959", "t_long = X0301020",
                           "t_lat = +465758", "t_lat = -4657", "t_lat = +885959", "t_lat = X465758",
                           "t_long =", "t_lat =", "T_LONG = +00712", "foo = 1", "text"}) {
    EXPECT_EQ(readPoint({line}), kClean) << line;
  }
}

TEST(StrictPoint, refused_values_have_its_own_bounds_and_words) {
  for (const PointCase& given : {
           PointCase{
               "t_long = +030102",
               "Notice No : 3 : Error : Line No : 2 t_long : Acceptable Longitude formats are \261DDDMMSS or"
               " \261DDDMM (4C)\r\n"},
           PointCase{"t_long = +1700000",
                     "Notice No : 3 : Error : Line No : 2 t_long : DDD should be between [0,180](4C)\r\n"},
           PointCase{"t_long = +1795959",
                     "Notice No : 3 : Error : Line No : 2 t_long : DDD should be between [0,180](4C)\r\n"},
           PointCase{"t_long = +0076000",
                     "Notice No : 3 : Error : Line No : 2 t_long : MM should be between [0,59] (4C)\r\n"},
           PointCase{"t_long = +0070060",
                     "Notice No : 3 : Error : Line No : 2 t_long : SS should be between [0,59] (4C)\r\n"},
           PointCase{
               "t_lat = +46575",
               "Notice No : 3 : Error : Line No : 2 t_lat : Acceptable Latitude formats are \261DDMMSS or"
               " \261DDMM (4C)\r\n"},
           PointCase{"t_lat = +890000",
                     "Notice No : 3 : Error : Line No : 2 t_lat : DD should be between [0,89] (4C)\r\n"},
           PointCase{"t_lat = +466000",
                     "Notice No : 3 : Error : Line No : 2 t_lat : MM should be between [0,59] (4C)\r\n"},
           PointCase{"t_lat = +460060",
                     "Notice No : 3 : Error : Line No : 2 t_lat : SS should be between [0,59] (4C)\r\n"},
       }) {
    EXPECT_EQ(readPoint({given.line}), refused(given.report)) << given.line;
  }
}

TEST(StrictPoint, all_parts_of_a_value_are_told) {
  EXPECT_EQ(readPoint({"t_long = +1706060"}),
            refused("Notice No : 3 : Error : Line No : 2 t_long : DDD should be between [0,180](4C)\r\n"
                    "Notice No : 3 : Error : Line No : 2 t_long : MM should be between [0,59] (4C)\r\n"
                    "Notice No : 3 : Error : Line No : 2 t_long : SS should be between [0,59] (4C)\r\n"));
}

TEST(StrictPoint, an_undefined_key_adds_its_line_and_leaves_the_result) {
  EXPECT_EQ(
      readPoint({"t_foo = 1"}),
      (Outcome{true, "Notice No : 3 : Error : Line No : 2 Undefined key. Please check the spelling\r\n"}));
  EXPECT_EQ(
      readNotice({"t_notice_type = GA1", "<POINT>", "t_adm = SUI", "</POINT>"}),
      (Outcome{true, "Notice No : 3 : Error : Line No : 4 Undefined key. Please check the spelling\r\n"}));
}

TEST(StrictPoint, an_undefined_key_does_not_wipe_out_an_error) {
  EXPECT_EQ(readPoint({"t_lat = +890000", "t_foo = 1"}),
            refused("Notice No : 3 : Error : Line No : 2 t_lat : DD should be between [0,89] (4C)\r\n"
                    "Notice No : 3 : Error : Line No : 3 Undefined key. Please check the spelling\r\n"));
}

TEST(StrictPoint, its_bounds_are_the_reverse_of_those_of_the_notice) {
  EXPECT_EQ(readNotice({"t_notice_type = GA1", "t_long = +1795959", "t_lat = +890000", "<POINT>",
                        "t_long = +1795959", "t_lat = +890000", "</POINT>"}),
            refused("Notice No : 3 : Error : Line No : 6 t_long : DDD should be between [0,180](4C)\r\n"
                    "Notice No : 3 : Error : Line No : 7 t_lat : DD should be between [0,89] (4C)\r\n"));
}

// <COORDINATION>, <COORD>.

TEST(StrictCoord, good_values_pass) {
  for (const char* line :
       {"t_adm = SUI", "t_adm = d", "t_adm =", "t_adm = 1.5", "t_adm = 1e5", "foo = 1", "text"}) {
    EXPECT_EQ(readCoord({line}), kClean) << line;
  }
}

TEST(StrictCoord, an_administration_is_not_all_digits_and_shorter_than_four) {
  for (const char* line : {"t_adm = SUIS", "t_adm = 1", "t_adm = 123"}) {
    EXPECT_EQ(
        readCoord({line}),
        refused("Notice No : 3 : Error : Line No : 2  t_adm : cannot have more than 3 Characters (B)\r\n"))
        << line;
  }
}

TEST(StrictCoord, undefined_keys_are_told) {
  for (const char* line : {"t_foo = 1", "t_foo =", "t_ctry = SUI"}) {
    EXPECT_EQ(readCoord({line}),
              refused("Notice No : 3 : Error : Line No : 2 Undefined key. Please check the spelling\r\n"))
        << line;
  }
}

TEST(StrictCoord, either_closing_tag_ends_it) {
  for (const char* tag : {"</COORDINATION>", "</COORD>", "</coord>", "</Coordination>"}) {
    EXPECT_EQ(readBody({"t_adm = SUI", tag, "t_foo = 1"}, "", valReadCoord), kClean) << tag;
  }
}

// The antenna sections.

TEST(StrictAntennaHeights, whole_numbers_pass) {
  for (const char* line :
       {"t_eff_hgt@azm010 = 12", "t_eff_hgt@azm350 = -99999", "t_eff_hgt@azm5.5 = +1",
        "t_eff_hgt@azm999 = 1e3", "t_eff_hgt@azm010 =", "T_EFF_HGT@AZM010 = 1", "foo = 1"}) {
    EXPECT_EQ(readAntHgt({line}), kClean) << line;
  }
}

TEST(StrictAntennaHeights, other_values_are_refused_under_their_key) {
  for (const char* value : {"1.5", "1,5", "1.", "X", "1 2"}) {
    EXPECT_EQ(readAntHgt({std::string("t_eff_hgt@azm010 = ") + value}),
              refused("Notice No : 3 : Error : Line No : 2 t_eff_hgt@azm010 : Value should be between "
                      "[-3000, 3000]\r\n"))
        << value;
  }
  EXPECT_EQ(readAntHgt({"T_Eff_Hgt@AZM350 = X"}),
            refused("Notice No : 3 : Error : Line No : 2 t_eff_hgt@azm350 : Value should be between [-3000, "
                    "3000]\r\n"));
}

TEST(StrictAntennaHeights, keys_without_a_numeric_azimuth_are_undefined) {
  for (const char* line :
       {"t_eff_hgt@azm = 1", "t_eff_hgt@azmN = 1", "t_eff_hgt = 1", "t_foo = 1", "t_eff_hgt@azmN ="}) {
    EXPECT_EQ(readAntHgt({line}),
              refused("Notice No : 3 : Error : Line No : 2 Undefined key. Please check the spelling\r\n"))
        << line;
  }
}

TEST(StrictAntennaHeights, another_stem_with_a_numeric_azimuth_passes_in_silence) {
  EXPECT_EQ(readAntHgt({"t_attn@azm010 = X", "t_foo@azm010 = X", "t_eff_hgt@xyz010 = X"}), kClean);
}

struct Diagram {
  const char* closingTag;
  bool (*read)(StrictReading&);
};

void PrintTo(const Diagram& diagram, std::ostream* out) {
  *out << diagram.closingTag;
}

class StrictDiagram : public testing::TestWithParam<Diagram> {
 protected:
  Outcome read(const std::string& line) const {
    return readBody({line, GetParam().closingTag, "t_foo = 1"}, "Notice No : 3", GetParam().read);
  }
};

TEST_P(StrictDiagram, numbers_of_four_characters_pass) {
  for (const char* line : {"t_attn@azm010 = 12", "t_attn@azm010 = 12.5", "t_attn@azm010 = -1.5",
                           "t_attn@azm010 =", "t_attn@azm720 = 1e3", "T_ATTN@AZM010 = 1", "foo = 1"}) {
    EXPECT_EQ(read(line), kClean) << line;
  }
}

TEST_P(StrictDiagram, other_values_are_refused_under_their_key) {
  for (const char* value : {"12345", "12.55", "1,5", "X", "1 2"}) {
    EXPECT_EQ(
        read(std::string("t_attn@azm010 = ") + value),
        refused(
            "Notice No : 3 : Error : Line No : 2 t_attn@azm010 : Value must be numerical and cannot exceed 4"
            " digits\r\n"))
        << value;
  }
}

TEST_P(StrictDiagram, keys_without_a_numeric_azimuth_are_undefined) {
  for (const char* line : {"t_attn@azm = 1", "t_attn@azmN = 1", "t_attn = 1", "t_foo = 1"}) {
    EXPECT_EQ(read(line),
              refused("Notice No : 3 : Error : Line No : 2 Undefined key. Please check the spelling\r\n"))
        << line;
  }
}

TEST_P(StrictDiagram, another_stem_with_a_numeric_azimuth_passes_in_silence) {
  EXPECT_EQ(read("t_eff_hgt@azm010 = X"), kClean);
}

INSTANTIATE_TEST_SUITE_P(Antenna, StrictDiagram,
                         testing::Values(Diagram{"</ANT_DIAGR_H>", valReadAntDiagrH},
                                         Diagram{"</ANT_DIAGR_V>", valReadAntDiagrV}),
                         [](const auto& one) {
                           return std::string(one.index == 0 ? "horizontal" : "vertical");
                         });

// Sections in a notice.

TEST(StrictSubsections, their_results_are_those_of_the_notice) {
  struct Sub {
    const char* open;
    const char* line;
    const char* close;
    const char* report;
  };
  for (const Sub& sub : {
           Sub{"<POINT>", "t_lat = +900000", "</POINT>",
               "Notice No : 3 : Error : Line No : 4 t_lat : DD should be between [0,89] (4C)\r\n"},
           Sub{"<COORDINATION>", "t_adm = 1", "</COORDINATION>",
               "Notice No : 3 : Error : Line No : 4  t_adm : cannot have more than 3 Characters (B)\r\n"},
           Sub{"<COORD>", "t_adm = 1", "</COORD>",
               "Notice No : 3 : Error : Line No : 4  t_adm : cannot have more than 3 Characters (B)\r\n"},
           Sub{"<ANT_HGT>", "t_eff_hgt@azm010 = 1.5", "</ANT_HGT>",
               "Notice No : 3 : Error : Line No : 4 t_eff_hgt@azm010 : Value should be between [-3000, "
               "3000]\r\n"},
           Sub{"<ANT_DIAGR_H>", "t_attn@azm010 = X", "</ANT_DIAGR_H>",
               "Notice No : 3 : Error : Line No : 4 t_attn@azm010 : Value must be numerical and cannot "
               "exceed 4"
               " digits\r\n"},
           Sub{"<ant_diagr_v>", "t_attn@azm010 = X", "</ant_diagr_v>",
               "Notice No : 3 : Error : Line No : 4 t_attn@azm010 : Value must be numerical and cannot "
               "exceed 4"
               " digits\r\n"},
       }) {
    EXPECT_EQ(readNotice({"t_notice_type = GT1", sub.open, sub.line, sub.close}), refused(sub.report))
        << sub.open;
    EXPECT_EQ(readNotice({"t_notice_type = GT1", sub.open, sub.close}), kClean) << sub.open;
    // The type may stand behind the section, and the section's error keeps the fatal line away.
    EXPECT_EQ(readNotice({"", sub.open, sub.line, sub.close}), refused(sub.report)) << sub.open;
  }
}

TEST(StrictSubsections, the_notice_goes_on_behind_their_closing_tag) {
  EXPECT_EQ(readNotice({"<POINT>", "t_long = +00712", "</POINT>", "t_notice_type = GA1", "<COORD>",
                        "t_adm = SUI", "</COORD>", "t_foo = 1"}),
            refused("Notice No : 3 : Error : Line No : 9  Undefined key. Please check the spelling\r\n"));
}

TEST(StrictSubsections, one_may_stand_directly_behind_another) {
  EXPECT_EQ(readNotice({"<POINT>", "t_lat = +4657", "</POINT>", "<POINT>", "t_lat = +900000", "</POINT>",
                        "t_notice_type = GA1"}),
            refused("Notice No : 3 : Error : Line No : 6 t_lat : DD should be between [0,89] (4C)\r\n"));
}

TEST(StrictSubsections, the_closing_tag_of_a_notice_inside_one_does_not_close_the_notice) {
  EXPECT_EQ(
      readBody({"t_notice_type = GA1", "<POINT>", "</NOTICE>", "t_lat = +900000", "</POINT>", "</NOTICE>"},
               "Notice No : 3", valReadNotice),
      refused("Notice No : 3 : Error : Line No : 5 t_lat : DD should be between [0,89] (4C)\r\n"));
}

TEST(StrictReader, a_closing_tag_in_any_case_ends_the_notice) {
  EXPECT_EQ(readBody({"t_notice_type = GT1", "</Notice>", "t_foo = 1"}, "", valReadNotice), kClean);
}

TEST(StrictReader, the_end_of_the_file_ends_every_section) {
  EXPECT_EQ(readBody({"t_adm = SUI"}, "", valReadHead), kClean);
  EXPECT_EQ(
      readBody({"t_num_notices = 2"}, "", [](StrictReading& reading) { return valReadTail(reading, 2); }),
      kClean);
  EXPECT_EQ(readBody({"t_notice_type = GT1"}, "", valReadNotice), kClean);
  EXPECT_EQ(readBody({}, "", valReadHead), kClean);
  EXPECT_EQ(readBody({"t_long = +00712"}, "", valReadPoint), kClean);
  EXPECT_EQ(readBody({"t_adm = SUI"}, "", valReadCoord), kClean);
  EXPECT_EQ(readBody({"t_eff_hgt@azm010 = 1"}, "", valReadAntHgt), kClean);
  EXPECT_EQ(readBody({"t_attn@azm010 = 1"}, "", valReadAntDiagrH), kClean);
  EXPECT_EQ(readBody({"t_attn@azm010 = 1"}, "", valReadAntDiagrV), kClean);
}

TEST(StrictReader, the_end_of_the_file_keeps_what_was_found) {
  EXPECT_EQ(readBody({"t_foo = 1"}, "", valReadHead),
            refused(" : Error : Line No : 2 Undefined key. Please check the spelling\r\n"));
  EXPECT_EQ(readBody({"<POINT>", "t_lat = +900000"}, "Notice No : 3", valReadNotice),
            refused("Notice No : 3 : Error : Line No : 3 t_lat : DD should be between [0,89] (4C)\r\n"));
  EXPECT_EQ(
      readBody({"t_ctry = SUI"}, "Notice No : 3", valReadNotice),
      refused("Notice No : 3 : <NOTICE> started at line : 2 has a  FATAL ERROR t_notice_type is not provided."
              " Cannot proceed further\r\n"));
}

TEST(StrictReader, the_last_line_of_the_file_is_tested_without_a_line_end) {
  LineSource lines = LineSource::ofText("<HEAD>\r\nt_foo = 1");
  std::string report;
  StrictReading reading{lines, report, {}, {}, {}, {}};
  readLine(reading);
  readLine(reading);
  EXPECT_FALSE(valReadHead(reading));
  EXPECT_EQ(report, " : Error : Line No : 2 Undefined key. Please check the spelling\r\n");
}

TEST(StrictReader, adds_to_what_stands_in_the_report) {
  LineSource lines = LineSource::ofText("<HEAD>\r\nt_foo = 1\r\n</HEAD>\r\n");
  std::string report = "before\r\n";
  StrictReading reading{lines, report, {}, {}, {}, {}};
  readLine(reading);
  readLine(reading);
  EXPECT_FALSE(valReadHead(reading));
  EXPECT_EQ(report, "before\r\n : Error : Line No : 2 Undefined key. Please check the spelling\r\n");
}

TEST(StrictReader, leaves_the_closing_tag_as_the_current_line) {
  LineSource lines = LineSource::ofText("<NOTICE>\r\nt_notice_type = GT1\r\n</NOTICE>\r\n<TAIL>\r\n");
  std::string report;
  StrictReading reading{lines, report, {}, {}, {}, {}};
  readLine(reading);
  readLine(reading);
  EXPECT_TRUE(valReadNotice(reading));
  EXPECT_EQ(reading.currentLine, "</NOTICE>");
  EXPECT_EQ(lines.lineNo(), 3);
}

TEST(StrictReader, yields_while_it_looks_at_digits) {
  LineSource lines = LineSource::ofText("<NOTICE>\r\nt_contour_id = 1234\r\n</NOTICE>\r\n");
  std::string report;
  int yields = 0;
  StrictReading reading{lines, report, {}, [&yields] { ++yields; }, {}, {}};
  readLine(reading);
  readLine(reading);
  valReadNotice(reading);
  EXPECT_EQ(yields, 4);
}

TEST(KeyPrefix, is_t_and_underscore_in_any_case) {
  for (const char* key : {"t_adm", "T_ADM", "t_"}) EXPECT_TRUE(hasKeyPrefix(key)) << key;
  for (const char* key : {"", "t", "_t", "x_adm", "tadm", " t_adm"}) EXPECT_FALSE(hasKeyPrefix(key)) << key;
}

}  // namespace
}  // namespace zamo
