#include "validation/frequency_rules.h"

#include "noticefile/strict_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "support/rule_cases.h"

namespace zamo {
namespace {

Texts joined(std::initializer_list<Texts> lists) {
  Texts all;
  for (const Texts& one : lists) all.insert(all.end(), one.begin(), one.end());
  return all;
}

const Texts kSevenMhz = words(
    "ALB ALG AND ARS AUT AZR BEL BHR BIH BUL CME CNR CVA CYP CZE D DJI DNK E EGY ERI EST ETH F FIN FRO GHA "
    "GIB "
    "GNB GNE GRC HNG HOL HRV I IRL IRN IRQ ISL ISR JOR KEN KWT LBN LBR LBY LIE LTU LUX LVA MAU MDA MDR MKD "
    "MLI "
    "MLT MNE MRC MTN NIG NOR OMA POL POR QAT ROU RRW S SCG SDN SEY SMR SOM SRB SRL STP SUI SVK SVN SYR TCD "
    "TUN "
    "TUR UAE UGA UKR YEM XGZ XWB ZMB");
const Texts kEightMhzA = words("ARM AZE BLR GEO KAZ KGZ RUS TJK TKM UZB");
const Texts kEightMhzB = words("AFS AGL ASC BOT G GMB LSO MWI NMB SHN TRC TZA");
const Texts kEightMhzC = words("BDI BEN BFA CAF COD COG COM CPV CTI GAB GUI MDG MYT NGR REU SEN TGO");
const Texts kEightMhzUnlisted = words("MOZ SWZ ZWE");
const Texts kEightMhz = joined({kEightMhzA, kEightMhzB, kEightMhzC, kEightMhzUnlisted});
// Areas of the plan without a raster, codes that aren't upper case, and none at all.
const Texts kNoRaster = {"MCO", "PSE", "AOE", "CNRX", "f", "fro", "rus", "moz", " F", "F ", "%1", ""};

const Texts kSevenMhzChannels = words("177.5 184.5 191.5 198.5 205.5 212.5 219.5 226.5");
const Texts kEightMhzChannels = words("178 186 194 202 210 218 226");

// What a frequency check says; empty when it passes.
std::string dvbtRefusal(std::string_view ctry, std::string_view frequency) {
  std::string msg;
  const bool good = checkDvbtFrequency(ctry, frequency, msg);
  EXPECT_EQ(good, msg.empty()) << ctry << ' ' << frequency << ' ' << msg;
  return msg;
}

std::string dabRefusal(std::string_view frequency) {
  std::string msg;
  const bool good = checkDabFrequency(frequency, msg);
  EXPECT_EQ(good, msg.empty()) << frequency << ' ' << msg;
  return msg;
}

std::string withThreeDecimals(double value) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.3f", value);
  return text.data();
}

TEST(DvbtFrequency, every_centre_from_474_to_858_passes_in_any_country) {
  int channels = 0;
  for (int frequency = 474; frequency <= 858; frequency += 8, ++channels) {
    for (const char* ctry : {"F", "RUS", "MOZ", "MCO", ""})
      EXPECT_EQ(dvbtRefusal(ctry, std::to_string(frequency)), "");
  }
  EXPECT_EQ(channels, 49);
}

TEST(DvbtFrequency, neighbours_of_a_centre_are_refused_in_any_country) {
  for (int frequency = 474; frequency <= 858; frequency += 8) {
    for (const double step : {-4.0, -1.0, -0.001, 0.001, 1.0, 4.0}) {
      const double value = frequency + step;
      if (value < 474 || value > 858) continue;
      for (const char* ctry : {"F", "RUS", "MCO", ""}) {
        EXPECT_EQ(dvbtRefusal(ctry, withThreeDecimals(value)), "Invalid DVB-T frequency in Bands IV and V")
            << value;
      }
    }
  }
}

TEST(DvbtFrequency, outside_474_to_858_the_raster_of_the_country_holds) {
  for (const char* frequency : {"470", "473.999", "858.001", "862", "866", "0", "-474", "abc", "", " "}) {
    SCOPED_TRACE(frequency);
    EXPECT_EQ(dvbtRefusal("F", frequency),
              "For F the valid frequencies are {177.5, 184.5, 191.5, 198.5, 205.5, 212.5, 219.5, 226.5} or "
              "[474, 858] ");
    EXPECT_EQ(dvbtRefusal("RUS", frequency),
              "For RUS the valid frequencies are {178, 188, 194, 202, 210, 218, 226} or [474, 858]");
    EXPECT_EQ(dvbtRefusal("MCO", frequency), "No frequency validation found for MCO");
  }
}

TEST(DvbtFrequency, countries_of_the_7_MHz_raster_have_its_channels_alone) {
  ASSERT_EQ(kSevenMhz.size(), 90U);
  for (const std::string& ctry : kSevenMhz) {
    for (const std::string& frequency : kSevenMhzChannels) EXPECT_EQ(dvbtRefusal(ctry, frequency), "");
    for (const std::string& frequency :
         joined({kEightMhzChannels, words("177 177.499 177.501 184 188 227 233.5")})) {
      EXPECT_EQ(dvbtRefusal(ctry, frequency), "For " + ctry +
                                                  " the valid frequencies are {177.5, 184.5, 191.5, 198.5, "
                                                  "205.5, 212.5, 219.5, 226.5} or [474, 858] ");
    }
  }
}

TEST(DvbtFrequency, countries_of_the_8_MHz_raster_have_its_channels_alone) {
  ASSERT_EQ(kEightMhz.size(), 42U);
  for (const std::string& ctry : kEightMhz) {
    for (const std::string& frequency : kEightMhzChannels) EXPECT_EQ(dvbtRefusal(ctry, frequency), "");
    for (const std::string& frequency :
         joined({kSevenMhzChannels, words("170 177.999 178.001 185 187 227 234")})) {
      EXPECT_EQ(
          dvbtRefusal(ctry, frequency),
          "For " + ctry + " the valid frequencies are {178, 188, 194, 202, 210, 218, 226} or [474, 858]");
    }
  }
}

TEST(DvbtFrequency, the_message_of_the_8_MHz_raster_names_188_and_the_raster_has_186) {
  EXPECT_EQ(dvbtRefusal("KAZ", "186"), "");
  EXPECT_EQ(dvbtRefusal("KAZ", "188"),
            "For KAZ the valid frequencies are {178, 188, 194, 202, 210, 218, 226} or [474, 858]");
}

TEST(DvbtFrequency, a_country_without_a_raster_is_told_below_474_and_above_858) {
  for (const std::string& ctry : kNoRaster) {
    for (const char* frequency : {"177.5", "178", "470", "866"}) {
      EXPECT_EQ(dvbtRefusal(ctry, frequency), "No frequency validation found for " + ctry);
    }
  }
}

TEST(DvbtFrequency, a_frequency_is_read_as_its_leading_number) {
  EXPECT_EQ(dvbtRefusal("F", "  474.000"), "");
  EXPECT_EQ(dvbtRefusal("F", "+474 MHz"), "");
  EXPECT_EQ(dvbtRefusal("F", "4.74e2"), "");
  EXPECT_EQ(dvbtRefusal("F", "0177.50"), "");
  EXPECT_EQ(dvbtRefusal("F", "474.5 MHz"), "Invalid DVB-T frequency in Bands IV and V");
  EXPECT_EQ(dvbtRefusal("MCO", "MHz 474"), "No frequency validation found for MCO");
}

TEST(DabFrequency, every_block_centre_passes) {
  const Texts centres = words(
      "174.928 176.640 178.352 180.064 181.936 183.648 185.360 187.072 188.928 190.640 192.352 194.064 "
      "195.936 "
      "197.648 199.360 201.072 202.928 204.640 206.352 208.064 209.936 211.648 213.360 215.072 216.928 "
      "218.640 "
      "220.352 222.064 223.936 225.648 227.360 229.072");
  ASSERT_EQ(centres.size(), 32U);
  for (const std::string& centre : centres) {
    EXPECT_EQ(dabRefusal(centre), "");
    for (const double step : {-1.0, -0.001, 0.001, 1.0}) {
      EXPECT_EQ(dabRefusal(withThreeDecimals(std::stod(centre) + step)),
                "Invalid T-DAB frequency in Band III");
    }
  }
}

TEST(DabFrequency, a_frequency_is_read_as_its_leading_number_and_compared_exactly) {
  for (const char* frequency : {"176.64", "  176.640", "+176.6400", "176.64 MHz"})
    EXPECT_EQ(dabRefusal(frequency), "");
  for (const char* frequency :
       {"174.93", "174.9280001", "174,928", "-174.928", "177.5", "474", "0", "", "abc", "MHz 174.928"}) {
    EXPECT_EQ(dabRefusal(frequency), "Invalid T-DAB frequency in Band III") << frequency;
  }
}

TEST(SystemVariant, a_letter_from_A_to_F_and_one_of_five_digits) {
  for (int letter = 0; letter < 256; ++letter) {
    for (int digit = 0; digit < 256; ++digit) {
      const std::string variant = {static_cast<char>(letter), static_cast<char>(digit)};
      const bool expected = letter >= 'A' && letter <= 'F' &&
                            (digit == '1' || digit == '2' || digit == '3' || digit == '5' || digit == '7');
      EXPECT_EQ(isSystemVariant(variant), expected) << variant;
    }
  }
  for (const char* variant : {"", "A", "1", "A11", " A1", "A1 "})
    EXPECT_FALSE(isSystemVariant(variant)) << variant;
}

Verdict rasterVerdict(const std::string& ctry, const std::string& frequency, char letter,
                      const std::string& fragment = "KV19D") {
  NtcRec ntc = makeGt1();
  ntc.t_ctry = ctry;
  ntc.t_freq_assgn = frequency;
  ntc.t_fragment = fragment;
  Verdict verdict;
  verdict.good = checkChannelRaster(ntc, letter, verdict.errs, kLabel);
  return verdict;
}

const Verdict kEightInSeven =
    failed("FATAL ERROR : \r\nNotice No : 7 :  8MHz system notified in a 7MHz channel.\r\n");
const Verdict kSevenInEight =
    failed("FATAL ERROR : \r\nNotice No : 7 :  7MHz system notified in a 8MHz channel.\r\n");

TEST(ChannelRaster, an_8_MHz_system_misfits_in_vhf_in_every_country_of_the_7_MHz_raster) {
  for (const std::string& ctry : kSevenMhz) {
    SCOPED_TRACE(ctry);
    for (const char letter : {'A', 'B', 'C'}) EXPECT_EQ(rasterVerdict(ctry, "177.5", letter), kEightInSeven);
    for (const char letter : {'D', 'E', 'F'}) EXPECT_EQ(rasterVerdict(ctry, "177.5", letter), kPassed);
  }
}

TEST(ChannelRaster, a_7_MHz_system_misfits_in_vhf_in_every_country_of_the_8_MHz_raster) {
  for (const std::string& ctry : kEightMhz) {
    SCOPED_TRACE(ctry);
    for (const char letter : {'A', 'B', 'C'}) EXPECT_EQ(rasterVerdict(ctry, "178", letter), kPassed);
    for (const char letter : {'D', 'E', 'F'}) EXPECT_EQ(rasterVerdict(ctry, "178", letter), kSevenInEight);
  }
}

TEST(ChannelRaster, nothing_misfits_in_vhf_in_a_country_without_a_raster) {
  for (const std::string& ctry : kNoRaster) {
    for (const char letter : {'A', 'B', 'C', 'D', 'E', 'F'})
      EXPECT_EQ(rasterVerdict(ctry, "178", letter), kPassed);
  }
}

TEST(ChannelRaster, a_7_MHz_system_misfits_in_uhf_and_without_a_frequency_everywhere) {
  for (const std::string& ctry : joined({kSevenMhz, kEightMhz, kNoRaster})) {
    SCOPED_TRACE(ctry);
    for (const char* frequency : {"", "470", "474", "858", "1000"}) {
      for (const char letter : {'A', 'B', 'C'}) EXPECT_EQ(rasterVerdict(ctry, frequency, letter), kPassed);
      for (const char letter : {'D', 'E', 'F'})
        EXPECT_EQ(rasterVerdict(ctry, frequency, letter), kSevenInEight);
    }
  }
}

TEST(ChannelRaster, vhf_is_a_given_frequency_below_470) {
  for (const char* frequency : {"469.999", "  469.9", "0", "-1", "abc", "174.928"}) {
    SCOPED_TRACE(frequency);
    EXPECT_EQ(rasterVerdict("F", frequency, 'A'), kEightInSeven);
    EXPECT_EQ(rasterVerdict("F", frequency, 'D'), kPassed);
    EXPECT_EQ(rasterVerdict("RUS", frequency, 'A'), kPassed);
    EXPECT_EQ(rasterVerdict("RUS", frequency, 'D'), kSevenInEight);
  }
}

TEST(ChannelRaster, a_misfit_is_a_warning_for_what_is_put_into_use) {
  const Verdict eightInSeven{true,
                             "WARNING : \r\nNotice No : 7 :  8MHz system notified in a 7MHz channel.\r\n"};
  const Verdict sevenInEight{true,
                             "WARNING : \r\nNotice No : 7 :  7MHz system notified in a 8MHz channel.\r\n"};
  for (const char* fragment : {"NTFD_PZ", "ntfd_pz", "Ntfd_Pz"}) {
    EXPECT_EQ(rasterVerdict("F", "177.5", 'A', fragment), eightInSeven);
    EXPECT_EQ(rasterVerdict("G", "178", 'D', fragment), sevenInEight);
    EXPECT_EQ(rasterVerdict("F", "474", 'D', fragment), sevenInEight);
    EXPECT_EQ(rasterVerdict("F", "", 'D', fragment), sevenInEight);
    EXPECT_EQ(rasterVerdict("F", "177.5", 'D', fragment), kPassed);
  }
  for (const char* fragment : {"KV19D", "kv19d", "", "NTFD_P", "NTFD_PZ "}) {
    EXPECT_EQ(rasterVerdict("F", "177.5", 'A', fragment), kEightInSeven);
    EXPECT_EQ(rasterVerdict("G", "178", 'D', fragment), kSevenInEight);
  }
}

}  // namespace
}  // namespace zamo
