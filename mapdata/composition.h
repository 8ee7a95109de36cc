// The world's countries under the regulator's codes, made of two sources and reviewed tables.
#pragma once

#include <map>
#include <string>

#include "regions.h"

namespace zamo::mapdata {

struct Sources {
  std::string geoJson;
  std::string chart;
  std::string tables;  // the folder of codes.csv, claims.txt and patches.txt
};

using World = std::map<std::string, Region>;

// Each source by itself, repaired, under the regulator's codes.
World firstSource(const Sources& sources);
World chart(const Sources& sources);

// Tells on the standard output what it repaired. Throws std::runtime_error.
World compose(const Sources& sources);

}  // namespace zamo::mapdata
