// The map that the build made, opened once for all tests of a program.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "map/map_data.h"
#include "map/world_map.h"
#include "support/places.h"

namespace zamo {

inline const std::string kRealMapFile = std::string(ZAMO_BIN) + "/gzmp32d.dat";

inline const WorldMap& realMap() {
  static const WorldMap map = [] {
    WorldMap opened = makeWorldMap(kRealMapFile);
    opened.gzmp.gzmpSetUnit(72);
    opened.gzmp.gzmpInit();
    EXPECT_NE(opened.gzmp.gzmpOpenData(), -1) << kRealMapFile;
    return opened;
  }();
  return map;
}

inline const MapData& realData() {
  static const std::unique_ptr<MapData> data = MapData::open(kRealMapFile);
  return *data;
}

inline std::string countryAt(double lat, double lon) {
  const std::string code =
      realMap().gzmp.gzmpCountryAtPoint({static_cast<float>(lat), static_cast<float>(lon)});
  EXPECT_EQ(code.size(), 3U);
  return code.substr(0, code.find(' '));
}

}  // namespace zamo
