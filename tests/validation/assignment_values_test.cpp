#include "validation/assignment_rules.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "support/rule_cases.h"

namespace zamo {
namespace {

TEST(AssignmentValues, fragment) {
  expectValues({"GT1 GS1",
                textAt<&NtcRec::t_fragment>,
                {"", "KV19D", "NTFD_PZ", "kv19d", "ntfd_pz"},
                {"KV19", "KV19D ", " KV19D", "NTFD", "X"},
                fatal(" :  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}")});
  expectValues({"GA1 TB2 TB3", textAt<&NtcRec::t_fragment>, {"", "KV19D", "X"}, {}, ""});
}

TEST(AssignmentValues, radiated_powers) {
  expectValues({kAssignmentKinds,
                textAt<&NtcRec::t_erp_h_dbw>,
                {"", "53", "53.0", "52.9", "0", "-60", "  53", "53 dBW", "abc"},
                {"53.1", "53.001", "54", "  53.1", "+54", "54 dBW"},
                fatal(" :  t_erp_h_dbw : Value should be <= 53.0 (8BH)")});
  expectValues({kAssignmentKinds,
                textAt<&NtcRec::t_erp_v_dbw>,
                {"", "53", "53.0", "52.9", "0", "-60", "  53", "53 dBW", "abc"},
                {"53.1", "53.001", "54", "  53.1", "+54", "54 dBW"},
                fatal(" :  t_erp_v_dbw : Value should be <= 53.0 (8BV)")});
  for (const TextMember field : {textAt<&NtcRec::t_erp_h_dbw>, textAt<&NtcRec::t_erp_v_dbw>}) {
    expectValues({"GT2 GS2 GA1 TB2 TB3 TB5", field, {"53", "54", "100"}, {}, ""});
  }
}

TEST(AssignmentValues, polarization) {
  expectValues({kAssignmentKinds,
                textAt<&NtcRec::t_polar>,
                {"", "V", "H", "M", "v", "X", "UU", " U"},
                {"U", "u"},
                fatal(" :  t_polar : For assignments acceptable values are {V, H, M} (9D)")});
  expectValues({"GT2 GS2 GA1 TB2 TB3 TB5", textAt<&NtcRec::t_polar>, {"U", "u", "X"}, {}, ""});
}

TEST(AssignmentValues, a_call_sign_is_warned_of) {
  const std::string told = warning(" : t_call_sign (3A1) provided but NOT validated.");
  expectChanges({{"call sign", [](NtcRec& ntc) { ntc.t_call_sign = "FIP"; }, {{kAssignmentKinds, told}}},
                 {"blank", [](NtcRec& ntc) { ntc.t_call_sign = " "; }, {{kAssignmentKinds, told}}}},
                valuesOf);
}

TEST(AssignmentValues, beam_tilt_power_of_television) {
  const TextMember power = textAt<&NtcRec::t_erp_beam_tilt_dbw>;
  expectValues({"GT1 GT1/5",
                power,
                {"", "43.1", "52.9", "53", "53.0", "  53", "53 dBW"},
                {"53.1", "54", "  53.1", "+54"},
                fatal(" :  t_erp_beam_tilt_dbw : Value should be <= 53.0")});
  expectValues({"GT1 GT1/5",
                power,
                {},
                {"43", "43.0", "42.9", "0", "-5", "  43", "abc"},
                fatal(" :  t_erp_beam_tilt_dbw must be greater than t_erp_h_dbw")});
  expectValues({"GS1 GS1/5 GT2 GS2 GA1 TB2 TB3 TB5", power, {"", "0", "43", "54"}, {}, ""});
}

TEST(AssignmentValues, beam_tilt_power_is_compared_with_the_powers_that_are_given) {
  const std::string aboveH = fatal(" :  t_erp_beam_tilt_dbw must be greater than t_erp_h_dbw");
  const std::string aboveV = fatal(" :  t_erp_beam_tilt_dbw must be greater than t_erp_v_dbw");
  const struct {
    const char* tilt;
    const char* h;
    const char* v;
    std::string errs;
  } cases[] = {
      {"40", "", "", ""},
      {"40", "39.9", "", ""},
      {"40", "", "39.9", ""},
      {"40", "39.9", "39", ""},
      {"40", "40", "", aboveH},
      {"40", "", "40", aboveV},
      {"40", "40.1", "39", aboveH},
      {"40", "39", "40.1", aboveV},
      {"40", "40.0", "40", aboveH + aboveV},
      {"-5", "-5.1", "-6", ""},
      {"-5", "-5", "-4", aboveH + aboveV},
      {"", "40", "40", ""},
      {"0", "abc", "", aboveH},
      {"0", "", "-0", aboveV},
  };
  for (const auto& one : cases) {
    NtcRec ntc = makeGt1();
    ntc.t_erp_beam_tilt_dbw = one.tilt;
    ntc.t_erp_h_dbw = one.h;
    ntc.t_erp_v_dbw = one.v;
    EXPECT_EQ(valuesOf(ntc), (Verdict{one.errs.empty(), one.errs}))
        << one.tilt << ' ' << one.h << ' ' << one.v;
  }
}

TEST(AssignmentValues, beam_tilt_angle_of_television) {
  const TextMember angle = textAt<&NtcRec::t_beam_tilt_angle>;
  expectValues({"GT1 GT1/5",
                angle,
                {"", "-30", "-30.0", "-29.9", "0", "29.9", "30", "  30", "+30", "30 deg", "abc"},
                {"-30.1", "-31", "30.1", "31", "  31", "+30.01"},
                fatal(" :  t_beam_tilt_angle : Value should be [-30.0, 30.0]")});
  expectValues({"GS1 GS1/5 GT2 GS2 GA1 TB2 TB3 TB5", angle, {"", "0", "31", "-31"}, {}, ""});
}

// ---- heights and diagrams

using Azimuths = std::array<AzmValueRec, kAzimuths>;

struct Slot {
  std::size_t place;
  const char* azm;
};
constexpr Slot kSlots[] = {{0, "000"}, {1, "010"}, {17, "170"}, {35, "350"}};

// Puts a value in each of kSlots, one after the other, of a section of each kind of assignment. Another slot
// keeps the diagram normalized.
void expectSlotValue(Azimuths NtcRec::*section, const char* value, bool good, const std::string& beforeAzm,
                     const std::string& afterAzm) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    for (const Slot& slot : kSlots) {
      NtcRec ntc = makeKind(kind);
      (ntc.*section)[20].value = "0";
      (ntc.*section)[slot.place] = {true, slot.azm, value};
      const Verdict expected = good ? kPassed : failed(fatal(beforeAzm + slot.azm + afterAzm));
      EXPECT_EQ(valuesOf(ntc), expected) << kind << ' ' << slot.azm << " \"" << value << '"';
    }
  }
}

TEST(AssignmentHeights, a_height_lies_between_minus_3000_and_the_highest) {
  const auto expectHeight = [](const char* value, bool good) {
    expectSlotValue(&NtcRec::ant_hgt, value, good, " :  t_eff_hgt@azm",
                    " : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)");
  };
  for (const char* value :
       {"-3000", "-2999.9", "0", "", "299.9", "300", "300.0", "  300", "+300", "300m", "abc"}) {
    expectHeight(value, true);
  }
  for (const char* value : {"-3000.1", "-3001", "300.1", "301", "  301", "+301", "301m", "9999"}) {
    expectHeight(value, false);
  }
}

TEST(AssignmentHeights, without_a_highest_height_3000_is_the_bound) {
  NtcRec ntc = makeGt1();
  ntc.t_eff_hgtmax.clear();
  ntc.ant_hgt[3].value = "3000";
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.ant_hgt[3].value = "3000.1";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(
                " :  t_eff_hgt@azm030 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)")));
}

TEST(AssignmentHeights, the_highest_height_is_cut_to_an_integer) {
  NtcRec ntc = makeGs1();
  ntc.ant_hgt = makeAzimuths("250");
  ntc.t_eff_hgtmax = "250.9";
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.ant_hgt[3].value = "250.1";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(
                " :  t_eff_hgt@azm030 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)")));
  ntc.ant_hgt = makeAzimuths("-100");
  ntc.t_eff_hgtmax = "-100.9";
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.ant_hgt[35].value = "-99.9";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(
                " :  t_eff_hgt@azm350 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)")));
}

TEST(AssignmentHeights, an_empty_slot_counts_as_0) {
  NtcRec ntc = makeGt1();
  ntc.ant_hgt = {};
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.t_eff_hgtmax = "0";
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.ant_hgt = makeAzimuths("-200");
  ntc.t_eff_hgtmax = "-100";
  ntc.ant_hgt[5] = {true, "050", ""};
  ntc.ant_hgt[7] = {};
  EXPECT_EQ(
      valuesOf(ntc),
      failed(fatal(" :  t_eff_hgt@azm050 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)") +
             fatal(" :  t_eff_hgt@azm : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)")));
  ntc.ant_hgt = {};
  std::string all;
  for (int slot = 0; slot < 36; ++slot) {
    all += fatal(" :  t_eff_hgt@azm : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)");
  }
  EXPECT_EQ(valuesOf(ntc), failed(all));
}

TEST(AssignmentDiagrams, an_attenuation_lies_between_0_and_40) {
  const auto expectAttenuation = [](const char* value, bool good) {
    expectSlotValue(&NtcRec::ant_diagr_h, value, good, " : <ANT_DIAGR_H> :  t_attn@azm",
                    " : Value should be a numerical between [0.0 , 40.0]");
    expectSlotValue(&NtcRec::ant_diagr_v, value, good, " : <ANT_DIAGR_V> :  t_attn@azm",
                    " : Value should be a numerical between [0.0 , 40.0]");
  };
  for (const char* value : {"0", "0.0", "-0", "", "0.1", "39.9", "40", "40.0", "  40", "40 dB", "abc"}) {
    expectAttenuation(value, true);
  }
  for (const char* value : {"-0.1", "-1", "40.1", "41", "  41", "+40.5", "41 dB"})
    expectAttenuation(value, false);
}

TEST(AssignmentDiagrams, a_negative_attenuation_is_let_through_in_a_slot_that_is_not_present) {
  NtcRec ntc = makeGt1();
  ntc.ant_diagr_h[4] = {false, "040", "-1"};
  ntc.ant_diagr_v[4] = {false, "040", "-0.1"};
  EXPECT_EQ(valuesOf(ntc), kPassed);
  ntc.ant_diagr_v[4].value = "40.1";
  EXPECT_EQ(valuesOf(ntc),
            failed(fatal(" : <ANT_DIAGR_V> :  t_attn@azm040 : Value should be a numerical between "
                         "[0.0 , 40.0]")));
}

TEST(AssignmentDiagrams, a_diagram_has_a_0_or_an_empty_slot) {
  for (const std::string& kind : words(kAssignmentKinds)) {
    SCOPED_TRACE(kind);
    for (const char* one : {"0", "0.0", "-0", "  0", "", "abc"}) {
      for (const std::size_t place : {0U, 17U, 35U}) {
        NtcRec ntc = makeKind(kind);
        ntc.ant_diagr_h = ntc.ant_diagr_v = makeAzimuths("1");
        ntc.ant_diagr_h[place].value = ntc.ant_diagr_v[place].value = one;
        EXPECT_EQ(valuesOf(ntc), kPassed) << '"' << one << "\" at " << place;
      }
    }
    NtcRec ntc = makeKind(kind);
    ntc.ant_diagr_h = makeAzimuths("1");
    EXPECT_EQ(valuesOf(ntc), failed(fatal(" : <ANT_DIAGR_H> : has to be normalized ")));
    ntc.ant_diagr_h = {};
    EXPECT_EQ(valuesOf(ntc), kPassed);
    ntc.ant_diagr_v = makeAzimuths("0.001");
    EXPECT_EQ(valuesOf(ntc), failed(fatal(" : <ANT_DIAGR_V> : has to be normalized ")));
    ntc.ant_diagr_h = makeAzimuths("40");
    EXPECT_EQ(valuesOf(ntc), failed(fatal(" : <ANT_DIAGR_V> : has to be normalized ") +
                                    fatal(" : <ANT_DIAGR_H> : has to be normalized ")));
  }
}

TEST(AssignmentDiagrams, a_negative_attenuation_that_is_let_through_normalizes_nothing) {
  NtcRec ntc = makeGs1();
  ntc.ant_diagr_v = makeAzimuths("-1");
  for (AzmValueRec& slot : ntc.ant_diagr_v) slot.present = false;
  EXPECT_EQ(valuesOf(ntc), failed(fatal(" : <ANT_DIAGR_V> : has to be normalized ")));
}

TEST(AssignmentDiagrams, heights_and_diagrams_are_told_slot_by_slot) {
  NtcRec ntc = makeGt1();
  ntc.ant_diagr_h = ntc.ant_diagr_v = makeAzimuths("1");
  for (const std::size_t place : {2U, 3U}) {
    ntc.ant_hgt[place].value = "301";
    ntc.ant_diagr_h[place].value = "41";
    ntc.ant_diagr_v[place].value = "-1";
  }
  ntc.ant_diagr_v[0].value = "50";
  EXPECT_EQ(
      valuesOf(ntc),
      failed(fatal(" : <ANT_DIAGR_V> :  t_attn@azm000 : Value should be a numerical between [0.0 , 40.0]") +
             fatal(" :  t_eff_hgt@azm020 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)") +
             fatal(" : <ANT_DIAGR_H> :  t_attn@azm020 : Value should be a numerical between [0.0 , 40.0]") +
             fatal(" : <ANT_DIAGR_V> :  t_attn@azm020 : Value should be a numerical between [0.0 , 40.0]") +
             fatal(" :  t_eff_hgt@azm030 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)") +
             fatal(" : <ANT_DIAGR_H> :  t_attn@azm030 : Value should be a numerical between [0.0 , 40.0]") +
             fatal(" : <ANT_DIAGR_V> :  t_attn@azm030 : Value should be a numerical between [0.0 , 40.0]") +
             fatal(" : <ANT_DIAGR_V> : has to be normalized ") +
             fatal(" : <ANT_DIAGR_H> : has to be normalized ")));
}

TEST(AssignmentDiagrams, values_of_other_types_are_not_looked_at) {
  for (const std::string& kind : words("GT2 GS2 GA1 TB2 TB3 TB5")) {
    NtcRec ntc = makeKind(kind);
    ntc.ant_hgt = makeAzimuths("9999");
    ntc.ant_diagr_h = ntc.ant_diagr_v = makeAzimuths("41");
    EXPECT_EQ(valuesOf(ntc), kPassed) << kind;
  }
}

TEST(AssignmentValues, findings_come_in_order) {
  NtcRec ntc = makeGt1();
  ntc.t_fragment = "KV19";
  ntc.t_erp_h_dbw = "54";
  ntc.t_erp_v_dbw = "55";
  ntc.t_polar = "U";
  ntc.t_call_sign = "FIP";
  ntc.t_erp_beam_tilt_dbw = "53.5";
  ntc.t_beam_tilt_angle = "31";
  ntc.ant_hgt[0].value = "301";
  ntc.ant_diagr_v = makeAzimuths("1");
  const Verdict expected =
      failed(fatal(" :  t_fragment : Acceptable value for assignments are {KV19D, NTFD_PZ}") +
             fatal(" :  t_erp_h_dbw : Value should be <= 53.0 (8BH)") +
             fatal(" :  t_erp_v_dbw : Value should be <= 53.0 (8BV)") +
             fatal(" :  t_polar : For assignments acceptable values are {V, H, M} (9D)") +
             warning(" : t_call_sign (3A1) provided but NOT validated.") +
             fatal(" :  t_erp_beam_tilt_dbw : Value should be <= 53.0") +
             fatal(" :  t_erp_beam_tilt_dbw must be greater than t_erp_h_dbw") +
             fatal(" :  t_erp_beam_tilt_dbw must be greater than t_erp_v_dbw") +
             fatal(" :  t_beam_tilt_angle : Value should be [-30.0, 30.0]") +
             fatal(" :  t_eff_hgt@azm000 : Value should be an integer between [-3000 , t_eff_hgtmax] (9EC)") +
             fatal(" : <ANT_DIAGR_V> : has to be normalized "));
  EXPECT_EQ(judge(checkAssgnValues, ntc), expected);
  EXPECT_EQ(valuesOf(ntc), expected);
}

}  // namespace
}  // namespace zamo
