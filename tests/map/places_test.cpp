#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <vector>

#include "real_map.h"
#include "support/places.h"

namespace zamo {
namespace {

struct KnownPlace {
  std::string name;
  double lat = 0;
  double lon = 0;
  std::string code;
};

std::vector<KnownPlace> knownPlaces() {
  std::vector<KnownPlace> places;
  std::ifstream file(std::string(ZAMO_TEST_DATA) + "/map/places.csv");
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.front() == '#' || line.starts_with("place,")) continue;
    std::istringstream cells(line);
    KnownPlace place;
    std::string lat, lon;
    std::getline(cells, place.name, ',');
    std::getline(cells, lat, ',');
    std::getline(cells, lon, ',');
    std::getline(cells, place.code);
    place.lat = std::stod(lat);
    place.lon = std::stod(lon);
    places.push_back(place);
  }
  return places;
}

std::set<std::string> codesOfPlaces() {
  std::set<std::string> codes;
  for (const KnownPlace& place : knownPlaces()) codes.insert(countryAt(place.lat, place.lon));
  return codes;
}

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

TEST(RealMap, every_known_place_lies_in_its_country) {
  const auto places = knownPlaces();
  ASSERT_GE(places.size(), 200U);
  for (const KnownPlace& place : places) {
    const std::string found = countryAt(place.lat, place.lon);
    EXPECT_EQ(found.empty() ? "sea" : found, place.code) << place.name;
  }
}

TEST(RealMap, every_country_and_area_of_the_plan_is_found_somewhere) {
  const auto areas = wordsOf(
      "AFS AGL ALB ALG AND AOE ARM ARS ASC AUT AZE AZR BDI BEL BEN BFA BHR BIH BLR BOT BUL CAF CME CNR COD "
      "COG COM "
      "CPV CTI CVA CYP CZE D DJI DNK E EGY ERI EST ETH F FIN FRO G GAB GEO GHA GIB GMB GNB GNE GRC GUI HNG "
      "HOL HRV I "
      "IRL IRN IRQ ISL ISR JOR KAZ KEN KGZ KWT LBN LBR LBY LIE LSO LTU LUX LVA MAU MCO MDA MDG MDR MKD MLI "
      "MLT MNE "
      "MOZ MRC MTN MWI MYT NGR NIG NMB NOR OMA POL POR QAT REU ROU RRW RUS S SDN SEN SEY SHN SMR SOM SRB SRL "
      "STP SUI "
      "SVK SVN SWZ SYR TCD TGO TJK TKM TRC TUN TUR TZA UAE UGA UKR UZB XGZ XWB YEM ZMB ZWE");
  ASSERT_EQ(areas.size(), 133U);
  const auto found = codesOfPlaces();
  for (const std::string& area : areas) EXPECT_TRUE(found.contains(area)) << area;
}

TEST(RealMap, every_administration_has_a_place_it_may_notify_for) {
  const auto administrations = wordsOf(
      "AFS AGL ALB ALG AND ARM ARS AUT AZE BDI BEL BEN BFA BHR BIH BLR BOT BUL CAF CME COD COG COM CPV CTI "
      "CVA CYP "
      "CZE D DJI DNK E EGY ERI EST ETH F FIN G GAB GEO GHA GMB GNB GNE GRC GUI HNG HOL HRV I IRL IRN IRQ ISL "
      "ISR JOR "
      "KAZ KEN KGZ KWT LBN LBR LBY LIE LSO LTU LUX LVA MAU MCO MDA MDG MKD MLI MLT MNE MOZ MRC MTN MWI NGR "
      "NIG NMB "
      "NOR OMA POL POR PSE QAT ROU RRW RUS S SDN SEN SEY SMR SOM SRB SRL STP SUI SVK SVN SWZ SYR TCD TGO TJK "
      "TKM TUN "
      "TUR TZA UAE UGA UKR UZB YEM ZMB ZWE");
  ASSERT_EQ(administrations.size(), 121U);
  const auto found = codesOfPlaces();
  for (const std::string& adm : administrations) {
    // It has no country of its own name, only Gaza and the West Bank.
    EXPECT_TRUE(adm == "PSE" ? found.contains("XGZ") && found.contains("XWB") : found.contains(adm)) << adm;
  }
}

TEST(RealMap, what_lies_outside_the_planning_area_has_its_own_codes) {
  const auto found = codesOfPlaces();
  for (const char* code : {"CHN", "AFG", "J", "KRE", "MNG", "PAK"}) EXPECT_TRUE(found.contains(code)) << code;
}

}  // namespace
}  // namespace zamo
