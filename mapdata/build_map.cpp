// Makes the map file of the world out of the two sources and the tables beside this file.
#include <s2/s2debug.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>

#include "composition.h"
#include "map_writer.h"

int main(int argc, char** argv) {
  using namespace zamo::mapdata;
  if (argc != 5) {
    std::fprintf(stderr, "usage: build-map GEOJSON CHART TABLES MAP\n");
    return 2;
  }
  // The sources aren't valid polygons before they are repaired.
  FLAGS_s2debug = false;
  try {
    writeMap(compose({argv[1], argv[2], argv[3]}), argv[4]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "build-map: %s\n", error.what());
    return 1;
  }
  return 0;
}
