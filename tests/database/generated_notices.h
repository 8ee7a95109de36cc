// Notice files made up at random, each of one notice with whatever its type may carry. A seed gives the same
// files each time.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zamo::test {

class NoticeMaker {
 public:
  explicit NoticeMaker(std::uint32_t seed) : random_(seed) {}

  // The text of a file in the code page. No two contours of one maker share an identifier.
  std::string file(std::string_view type) {
    keys_.clear();
    sections_.clear();
    typeFirst_ = false;
    adm_ = anyOf({"F", "POL", "SUI", "BEL", "CZE"});
    key("t_notice_type", type);
    if (type == "GT1" || type == "GS1") assignment(type == "GT1");
    if (type == "GT2" || type == "GS2") allotment(type == "GT2");
    if (type == "GA1") contour();
    if (type == "TB2") conformity();
    if (type == "TB3") partB();
    if (type == "TB5") suppression();
    if (often()) key("t_remarks", remark());
    if (seldom()) key("t_int_remarks", remark());
    return text();
  }

 private:
  // --- chance

  int upTo(int most) { return static_cast<int>(random_() % static_cast<std::uint32_t>(most + 1)); }
  int between(int least, int most) { return least + upTo(most - least); }
  bool often() { return upTo(3) != 0; }
  bool seldom() { return upTo(3) == 0; }
  bool evenly() { return upTo(1) == 0; }
  std::string anyOf(std::initializer_list<const char*> values) {
    return values.begin()[upTo(static_cast<int>(values.size()) - 1)];
  }
  template <typename List>
  void shuffle(List& list) {
    std::shuffle(list.begin(), list.end(), random_);
  }

  // --- values

  static std::string digits(int number, int width) {
    std::array<char, 16> text;
    std::snprintf(text.data(), text.size(), "%0*d", width, number);
    return text.data();
  }

  // With none, two or three decimals, and perhaps a sign or zeros that say nothing.
  std::string number(int least, int most) {
    const int whole = between(least, most);
    std::string text = (whole > 0 && seldom() ? "+" : "") + std::to_string(whole);
    if (evenly()) text += "." + digits(upTo(99), evenly() ? 2 : 3);
    return text;
  }

  std::string word(int least, int most) {
    std::string text;
    for (int left = between(least, most); left > 0; --left) text += static_cast<char>('A' + upTo(25));
    return text;
  }

  std::string reference() {
    std::string text = adm_ + "-" + word(1, 6) + "-" + digits(upTo(9999), 4);
    if (seldom()) text.back() = 'x';
    return text;
  }

  // With every character of the upper half of the code page, and runs of blanks.
  std::string prose(int least, int most) {
    std::string all = "abcdefghijklmnopqrstuvwxyzABC 0123456789   .,;:'\"=<>#%&*[]?!/-";
    for (int c = 0x80; c <= 0xFF; ++c) all += static_cast<char>(c);
    std::string text;
    for (int left = between(least, most); left > 0; --left) {
      text += all[static_cast<std::size_t>(upTo(static_cast<int>(all.size()) - 1))];
    }
    if (!text.empty() && text.front() == ' ') text.front() = 'a';
    if (!text.empty() && text.back() == ' ') text.back() = 'z';
    return text;
  }
  std::string remark() {
    const int most = std::array{80, 81, 160, 250}[static_cast<std::size_t>(upTo(3))];
    return evenly() ? prose(most, most) : prose(0, most);
  }

  std::string date() {
    return std::to_string(between(1999, 2030)) + "-" + digits(between(1, 12), 2) + "-" +
           digits(between(1, 28), 2);
  }
  std::string time() { return digits(upTo(23), 2) + (evenly() ? ":" : "") + digits(upTo(59), 2); }
  std::string sixtieths() { return digits(upTo(59), 2) + (often() ? digits(upTo(59), 2) : ""); }
  std::string longitude() { return (evenly() ? "+" : "-") + digits(upTo(179), 3) + sixtieths(); }
  std::string latitude() { return (evenly() ? "+" : "-") + digits(upTo(89), 2) + sixtieths(); }
  std::string yesNo() { return anyOf({"TRUE", "FALSE"}); }
  std::string frequency(bool isTelevision) {
    if (isTelevision) return std::to_string(474 + 8 * upTo(48)) + anyOf({"", ".0", ".000"});
    return anyOf({"174.928", "178.352", "208.064", "222.0640", "218.640", "229.072"});
  }

  // --- lines

  void key(std::string_view name, std::string_view value) { keys_.emplace_back(name, value); }
  void section(std::string_view tag, const std::vector<std::string>& lines) {
    std::string body = "<" + std::string(tag) + ">\r\n";
    for (const std::string& line : lines) body += line + "\r\n";
    sections_.push_back(body + "</" + std::string(tag) + ">\r\n");
  }

  std::string text() {
    if (!typeFirst_) shuffle(keys_);
    std::string all = "<HEAD>\r\nt_adm = " + adm_ + "\r\n";
    if (often()) all += "t_email_addr = plan." + adm_ + "@adm.example\r\n";
    all += "</HEAD>\r\n<NOTICE>\r\n";
    for (const auto& [name, value] : keys_) all += name + " = " + value + "\r\n";
    for (const std::string& one : sections_) all += one;
    return all + "</NOTICE>\r\n<TAIL>\r\nt_num_notices = 1\r\n</TAIL>\r\n";
  }

  // --- parts of notices

  void coordination() {
    std::vector<std::string> all = {"AUT", "BEL", "CZE", "D",   "F",   "G", "HOL",
                                    "I",   "LUX", "POL", "SUI", "SVK", "S"};
    shuffle(all);
    all.resize(static_cast<std::size_t>(upTo(13)));
    for (std::string& adm : all) adm.insert(0, "t_adm = ");
    section(evenly() ? "COORD" : "COORDINATION", all);
  }

  // All 36, some of them, or all in another order; a missing one may stand there without a value.
  void azimuths(std::string_view tag, std::string_view stem, int least, int most) {
    const bool isWhole = often();
    std::vector<std::string> lines;
    for (int azimuth = 0; azimuth < 360; azimuth += 10) {
      const std::string line = std::string(stem) + digits(azimuth, 3) + " = ";
      if (isWhole || evenly()) {
        lines.push_back(line + number(least, most));
      } else if (evenly()) {
        lines.push_back(line);
      }
    }
    if (seldom()) shuffle(lines);
    section(tag, lines);
  }

  void targetElements() {
    key("t_trg_long", longitude());
    key("t_trg_lat", latitude());
    key("t_trg_freq_assgn", frequency(evenly()));
  }
  void target(bool byReference) {
    if (byReference) {
      key("t_trg_adm_ref_id", reference());
    } else {
      targetElements();
    }
  }

  void operation() {
    key("t_addr_code", anyOf({"A", "b", "C"}));
    if (often()) key("t_op_agcy", anyOf({"1", "01", "001", "27", "123"}));
    if (often()) key("t_op_hh_fr", time());
    if (often()) key("t_op_hh_to", time());
  }

  void station(bool isTelevision) {
    key("t_adm_ref_id", reference());
    key("t_ctry", adm_);
    key("t_freq_assgn", frequency(isTelevision));
    if (evenly()) key("t_offset", anyOf({"166.7", "-166.70", "500", "0"}));
    if (evenly()) key("t_d_expiry", date());
    key("t_plan_entry", std::to_string(between(1, 5)));
    key("t_polar", anyOf({"H", "V", "M", "U"}));
    key("t_spect_mask", isTelevision ? anyOf({"N", "S"}) : anyOf({"1", "2", "3"}));
    if (evenly())
      key("t_ref_plan_cfg", isTelevision ? anyOf({"RPC1", "RPC2", "RPC3"}) : anyOf({"RPC4", "RPC5"}));
    if (evenly()) key("t_sfn_id", "SFN-" + word(1, 20));
    if (often()) coordination();
  }

  void putIntoUse() {
    key("t_plan_adm_ref_id", reference());
    if (often()) key("t_prov", "PZ11.2");
    key("t_d_inuse", date());
    key("t_is_resub", yesNo());
    key("t_remark_conds_met", yesNo());
    key("t_signed_commitment", yesNo());
    operation();
  }

  void antenna() {
    key("t_ant_dir", anyOf({"D", "ND"}));
    if (often()) key("t_erp_h_dbw", number(-30, 55));
    if (often()) key("t_erp_v_dbw", number(-30, 55));
    if (evenly()) key("t_erp_beam_tilt_dbw", number(1, 55));
    if (evenly()) key("t_beam_tilt_angle", number(1, 9));
    key(evenly() ? "t_hgt_agl" : "t_hgt_alt", number(1, 600));
    key("t_eff_hgtmax", number(-2999, 3000));
    if (often()) azimuths("ANT_HGT", "t_eff_hgt@azm", 1, 3000);
    if (often()) azimuths("ANT_DIAGR_H", "t_attn@azm", 1, 40);
    if (often()) azimuths("ANT_DIAGR_V", "t_attn@azm", 1, 40);
  }

  void assignment(bool isTelevision) {
    const bool isInUse = evenly();
    const bool isModified = evenly();
    key("t_fragment", isInUse ? "NTFD_PZ" : "KV19D");
    key("t_action", isModified ? "MODIFY" : "ADD");
    if (isModified) target(evenly());
    station(isTelevision);
    antenna();
    if (isInUse) putIntoUse();
    if (!isInUse) key("t_is_pub_req", yesNo());
    key("t_assgn_code", anyOf({"S", "L", "C"}));
    key("t_long", longitude());
    key("t_lat", latitude());
    key("t_site_name", prose(1, 30));
    key("t_site_alt", number(1, 4000));
    if (evenly()) key("t_call_sign", word(1, 10));
    if (evenly()) key("t_associated_adm_allot_id", reference());
    if (evenly()) key("t_associated_allot_sfn_id", "SFN-" + word(1, 20));
    if (isTelevision && often()) key("t_sys_var", anyOf({"A1", "b3", "C2", "E7"}));
    if (isTelevision && often()) key("t_rx_mode", anyOf({"FX", "PO", "PI", "MO"}));
  }

  void allotment(bool isTelevision) {
    key("t_fragment", "KV19D");
    const bool isModified = evenly();
    key("t_action", isModified ? "MODIFY" : "ADD");
    if (isModified) target(evenly());
    station(isTelevision);
    key("t_is_pub_req", yesNo());
    key("t_allot_name", prose(1, 30));
    if (isTelevision) key("t_typ_ref_netwk", anyOf({"RN1", "RN2", "RN3", "rn4"}));
    if (seldom()) return key("t_geo_area", adm_);
    std::vector<int> ids;
    for (int id = 1; id <= 900; ++id) ids.push_back(id);
    shuffle(ids);
    const int count = seldom() ? 10 : between(1, 9);
    for (int i = 0; i < count; ++i)
      key("t_contour_id", digits(ids[static_cast<std::size_t>(i)], between(1, 4)));
    key("t_nb_sub_areas", std::to_string(count));
    typeFirst_ = count > 9;
  }

  void contour() {
    const int points = often() ? between(3, 20) : between(3, 99);
    key("t_action", anyOf({"ADD", "MODIFY"}));
    key("t_ctry", adm_);
    key("t_contour_id", digits(++lastContourId_, between(1, 4)));
    key("t_nb_test_pts", digits(points, between(1, 3)));
    for (int i = 0; i < points; ++i) section("POINT", {"t_long = " + longitude(), "t_lat = " + latitude()});
  }

  void conformity() {
    key("t_action", "CONFORM");
    key("t_plan", "KV19D");
    key("t_plan_adm_ref_id", reference());
    target(evenly());
    operation();
    if (evenly()) key("t_call_sign", word(1, 10));
    key("t_d_inuse", date());
  }

  void partB() {
    key("t_action", "PARTB");
    key("t_plan", "KV19D");
    key("t_trg_adm_ref_id", reference());
    if (often()) coordination();
  }

  void suppression() {
    key("t_action", anyOf({"SUPPRESS", "WITHDRAW"}));
    key("t_fragment", anyOf({"KV19D", "NTFD_PZ"}));
    key("t_trg_adm_ref_id", reference());
  }

  std::mt19937 random_;
  std::string adm_;
  std::vector<std::pair<std::string, std::string>> keys_;
  std::vector<std::string> sections_;
  bool typeFirst_ = false;  // more identifiers than are kept until the type is known
  int lastContourId_ = 0;
};

}  // namespace zamo::test
