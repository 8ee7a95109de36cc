#include "validation/ref_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/text.h"

namespace zamo {
namespace {

using Codes = std::vector<std::string>;

Codes words(const char* text) {
  std::istringstream in(text);
  Codes all;
  for (std::string word; in >> word;) all.push_back(word);
  return all;
}

const Codes kAdministrations = words(
    "AFS AGL ALB ALG AND ARM ARS AUT AZE BDI BEL BEN BFA BHR BIH BLR BOT BUL CAF CME COD COG COM CPV CTI CVA "
    "CYP CZE D "
    "DJI DNK E EGY ERI EST ETH F FIN G GAB GEO GHA GMB GNB GNE GRC GUI HNG HOL HRV I IRL IRN IRQ ISL ISR JOR "
    "KAZ KEN "
    "KGZ KWT LBN LBR LBY LIE LSO LTU LUX LVA MAU MCO MDA MDG MKD MLI MLT MNE MOZ MRC MTN MWI NGR NIG NMB NOR "
    "OMA POL "
    "POR PSE QAT ROU RRW RUS S SDN SEN SEY SMR SOM SRB SRL STP SUI SVK SVN SWZ SYR TCD TGO TJK TKM TUN TUR "
    "TZA UAE UGA "
    "UKR UZB YEM ZMB ZWE");

const Codes kMoreAreas = words("AOE ASC AZR CNR FRO GIB MDR MYT REU SHN TRC XGZ XWB");

const Codes kSevenMhz = words(
    "ALB ALG AND ARS AUT AZR BEL BHR BIH BUL CME CNR CVA CYP CZE D DJI DNK E EGY ERI EST ETH F FIN FRO GHA "
    "GIB GNB GNE "
    "GRC HNG HOL HRV I IRL IRN IRQ ISL ISR JOR KEN KWT LBN LBR LBY LIE LTU LUX LVA MAU MDA MDR MKD MLI MLT "
    "MNE MRC MTN "
    "NIG NOR OMA POL POR QAT ROU RRW S SCG SDN SEY SMR SOM SRB SRL STP SUI SVK SVN SYR TCD TUN TUR UAE UGA "
    "UKR YEM XGZ "
    "XWB ZMB");

const Codes kEightMhzA = words("ARM AZE BLR GEO KAZ KGZ RUS TJK TKM UZB");
const Codes kEightMhzB = words("AFS AGL ASC BOT G GMB LSO MWI NMB SHN TRC TZA");
const Codes kEightMhzC = words("BDI BEN BFA CAF COD COG COM CPV CTI GAB GUI MDG MYT NGR REU SEN TGO");

const Codes kNumbered = words(
    "AFS AGL ALB ALG AND ARM ARS AUT AZE BDI BEL BEN BFA BHR BIH BLR BOT BUL CAF CME COD COG COM CPV CTI CVA "
    "CYP CZE D "
    "DJI DNK E EGY ERI EST ETH F FIN G GAB GEO GHA GMB GNB GNE GRC GUI HNG HOL HRV I IRL IRN IRQ ISL ISR JOR "
    "KAZ KEN "
    "KGZ KWT LBN LBR LBY LIE LSO LTU LUX LVA MAU MCO MDA MDG MKD MLI MLT MOZ MRC MTN MWI NGR NIG NMB NOR OMA "
    "POL POR "
    "PSE QAT ROU RRW RUS S SCG SDN SEN SEY SMR SOM SRL STP SUI SVK SVN SWZ SYR TCD TGO TJK TKM TUN TUR TZA "
    "UAE UGA UKR "
    "UZB YEM ZMB ZWE");

Codes allCodes() {
  std::set<std::string> codes;
  for (const Codes* list :
       {&kAdministrations, &kMoreAreas, &kSevenMhz, &kEightMhzA, &kEightMhzB, &kEightMhzC, &kNumbered}) {
    codes.insert(list->begin(), list->end());
  }
  for (const char* other : {"", " ", "X", "USA", "AF", "AFSS", "J"}) codes.insert(other);
  return {codes.begin(), codes.end()};
}

bool has(const Codes& list, const std::string& code) {
  return std::find(list.begin(), list.end(), code) != list.end();
}

template <typename Table>
Codes filled(const Table& table) {
  Codes codes;
  for (const std::string_view code : table) {
    if (!code.empty()) codes.emplace_back(code);
  }
  return codes;
}

TEST(RefData, tables_hold_their_codes_in_order_and_empty_places_behind) {
  EXPECT_EQ(filled(kv19Administrations), kAdministrations);
  EXPECT_EQ(filled(sevenMhzCountries), kSevenMhz);
  EXPECT_EQ(filled(eightMhzCountriesA), kEightMhzA);
  EXPECT_EQ(filled(eightMhzCountriesB), kEightMhzB);
  EXPECT_EQ(filled(eightMhzCountriesC), kEightMhzC);
  EXPECT_TRUE(kv19Administrations.back().empty());
  EXPECT_TRUE(eightMhzCountriesA.back().empty());
  EXPECT_TRUE(eightMhzCountriesB.back().empty());
  EXPECT_TRUE(eightMhzCountriesC.back().empty());
}

TEST(RefData, tables_have_their_places_and_counts) {
  EXPECT_EQ(kv19Administrations.size(), 122U);
  EXPECT_EQ(filled(kv19Administrations).size(), 121U);
  EXPECT_EQ(kv19GeoAreas.size(), 133U);
  EXPECT_EQ(filled(kv19GeoAreas).size(), 133U);
  EXPECT_EQ(sevenMhzCountries.size(), 90U);
  EXPECT_EQ(filled(sevenMhzCountries).size(), 90U);
  EXPECT_EQ(eightMhzCountriesA.size(), 11U);
  EXPECT_EQ(filled(eightMhzCountriesA).size(), 10U);
  EXPECT_EQ(eightMhzCountriesB.size(), 13U);
  EXPECT_EQ(filled(eightMhzCountriesB).size(), 12U);
  EXPECT_EQ(eightMhzCountriesC.size(), 18U);
  EXPECT_EQ(filled(eightMhzCountriesC).size(), 17U);
}

TEST(RefData, areas_are_the_administrations_without_one_and_with_thirteen_more) {
  Codes expected = kAdministrations;
  std::erase(expected, "PSE");
  expected.insert(expected.end(), kMoreAreas.begin(), kMoreAreas.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(filled(kv19GeoAreas), expected);
}

TEST(RefData, lists_are_alphabetical_but_for_the_end_of_one) {
  const auto ordered = [](const Codes& codes) { return std::is_sorted(codes.begin(), codes.end()); };
  EXPECT_TRUE(ordered(filled(kv19Administrations)));
  EXPECT_TRUE(ordered(filled(kv19GeoAreas)));
  EXPECT_TRUE(ordered(filled(eightMhzCountriesA)));
  EXPECT_TRUE(ordered(filled(eightMhzCountriesB)));
  EXPECT_TRUE(ordered(filled(eightMhzCountriesC)));
  Codes seven = filled(sevenMhzCountries);
  EXPECT_EQ((Codes{seven.end() - 4, seven.end()}), (Codes{"YEM", "XGZ", "XWB", "ZMB"}));
  std::erase(seven, "XGZ");
  std::erase(seven, "XWB");
  EXPECT_TRUE(ordered(seven));
}

TEST(RefData, sound_blocks_are_32_in_order) {
  const std::vector<double> expected = {
      174.928, 176.640, 178.352, 180.064, 181.936, 183.648, 185.360, 187.072, 188.928, 190.640, 192.352,
      194.064, 195.936, 197.648, 199.360, 201.072, 202.928, 204.640, 206.352, 208.064, 209.936, 211.648,
      213.360, 215.072, 216.928, 218.640, 220.352, 222.064, 223.936, 225.648, 227.360, 229.072};
  EXPECT_EQ(expected.size(), 32U);
  EXPECT_EQ((std::vector<double>(dabFrequencies.begin(), dabFrequencies.end())), expected);
}

TEST(RefData, television_channels_run_from_474_to_858_in_steps_of_8) {
  ASSERT_EQ(dvbtUhfFrequencies.size(), 50U);
  for (std::size_t i = 0; i < 49; ++i) EXPECT_EQ(dvbtUhfFrequencies[i], 474.0 + 8.0 * static_cast<double>(i));
  EXPECT_EQ(dvbtUhfFrequencies[48], 858.0);
  EXPECT_EQ(dvbtUhfFrequencies[49], 0.0);
}

TEST(RefData, administrations_are_found_in_any_case) {
  for (const std::string& code : allCodes()) {
    EXPECT_EQ(isKv19Administration(code), has(kAdministrations, code)) << code;
    EXPECT_EQ(isKv19Administration(lowerText(code)), has(kAdministrations, code)) << code;
  }
  EXPECT_TRUE(isKv19Administration("Mne"));
  EXPECT_FALSE(isKv19Administration("SCG"));
  EXPECT_FALSE(isKv19Administration(""));
}

TEST(RefData, rasters_are_found_exactly) {
  for (const std::string& code : allCodes()) {
    EXPECT_EQ(isSevenMhzCountry(code), has(kSevenMhz, code)) << code;
    EXPECT_EQ(isEightMhzCountryA(code), has(kEightMhzA, code)) << code;
    EXPECT_EQ(isEightMhzCountryB(code), has(kEightMhzB, code)) << code;
    EXPECT_EQ(isEightMhzCountryC(code), has(kEightMhzC, code)) << code;
  }
  EXPECT_FALSE(isSevenMhzCountry("fro"));
  EXPECT_FALSE(isEightMhzCountryA("rus"));
  EXPECT_FALSE(isEightMhzCountryB("g"));
  EXPECT_FALSE(isEightMhzCountryC("reu"));
}

TEST(RefData, empty_places_never_match) {
  EXPECT_FALSE(isSevenMhzCountry(""));
  EXPECT_FALSE(isEightMhzCountryA(""));
  EXPECT_FALSE(isEightMhzCountryB(""));
  EXPECT_FALSE(isEightMhzCountryC(""));
  EXPECT_EQ(admNumericBase(""), 0);
}

TEST(RefData, each_area_has_one_raster_but_for_the_three_tested_alone) {
  Codes without;
  for (const std::string_view area : kv19GeoAreas) {
    const int rasters = (isSevenMhzCountry(area) ? 1 : 0) + (isEightMhzCountryA(area) ? 1 : 0) +
                        (isEightMhzCountryB(area) ? 1 : 0) + (isEightMhzCountryC(area) ? 1 : 0);
    EXPECT_LE(rasters, 1) << area;
    if (rasters == 0) without.emplace_back(area);
  }
  for (const char* alone : {"MOZ", "SWZ", "ZWE"}) EXPECT_TRUE(has(without, alone)) << alone;
}

struct Group {
  const char* adm;
  Codes countries;
};

TEST(RefData, an_administration_notifies_for_itself_and_its_group_alone) {
  const std::vector<Group> groups = {
      {"E", words("CNR E")},         {"F", words("F MYT REU")}, {"G", words("ASC G GIB SHN TRC")},
      {"POR", words("AZR MDR POR")}, {"PSE", words("XGZ XWB")}, {"JOR", words("JOR XWB")},
      {"MRC", words("AOE MRC")},     {"DNK", words("DNK FRO")}, {"ISR", words("ISR XWB")},
  };
  for (const std::string& adm : allCodes()) {
    const auto group =
        std::find_if(groups.begin(), groups.end(), [&](const Group& one) { return one.adm == adm; });
    for (const std::string& ctry : allCodes()) {
      const bool expected = ctry == adm || (group != groups.end() && has(group->countries, ctry));
      EXPECT_EQ(isCtryOfAdm(ctry, adm), expected) << ctry << " of " << adm;
      EXPECT_EQ(isCtryOfAdm(lowerText(ctry), adm), expected) << ctry << " of " << adm;
      EXPECT_EQ(isCtryOfAdm(ctry, lowerText(adm)), expected) << ctry << " of " << adm;
    }
  }
}

TEST(RefData, three_administrations_notify_for_the_west_bank) {
  EXPECT_TRUE(isCtryOfAdm("XWB", "PSE"));
  EXPECT_TRUE(isCtryOfAdm("XWB", "JOR"));
  EXPECT_TRUE(isCtryOfAdm("XWB", "ISR"));
  EXPECT_FALSE(isCtryOfAdm("XGZ", "JOR"));
  EXPECT_FALSE(isCtryOfAdm("XGZ", "ISR"));
  EXPECT_TRUE(isCtryOfAdm("PSE", "PSE"));
}

TEST(RefData, groups_have_one_direction) {
  EXPECT_FALSE(isCtryOfAdm("G", "F"));
  EXPECT_TRUE(isCtryOfAdm("REU", "F"));
  EXPECT_FALSE(isCtryOfAdm("F", "REU"));
  EXPECT_TRUE(isCtryOfAdm("CNR", "E"));
  EXPECT_TRUE(isCtryOfAdm("fro", "DNK"));
}

TEST(RefData, key_blocks_are_numbered_in_alphabetical_order) {
  std::int32_t base = 80100000;
  for (const std::string& code : kNumbered) {
    EXPECT_EQ(admNumericBase(code), base) << code;
    EXPECT_EQ(admNumericBase(lowerText(code)), base) << code;
    base += 100000;
  }
  for (const std::string& code : allCodes()) {
    if (!has(kNumbered, code)) {
      EXPECT_EQ(admNumericBase(code), 0) << code;
    }
  }
}

TEST(RefData, known_key_blocks) {
  EXPECT_EQ(admNumericBase("AFS"), 80100000);
  EXPECT_EQ(admNumericBase("AGL"), 80200000);
  EXPECT_EQ(admNumericBase("D"), 82900000);
  EXPECT_EQ(admNumericBase("F"), 83700000);
  EXPECT_EQ(admNumericBase("f"), 83700000);
  EXPECT_EQ(admNumericBase("ZWE"), 92000000);
  EXPECT_EQ(admNumericBase("SRB"), 0);
  EXPECT_EQ(admNumericBase("MNE"), 0);
  EXPECT_NE(admNumericBase("SCG"), 0);
  EXPECT_EQ(admNumericBase("XWB"), 0);
}

}  // namespace
}  // namespace zamo
