// The layout of the map's data file: a header, a table of countries, the caps that bound them, their outlines
// and the encoded indexes. Numbers stand as the processor has them, `byteOrder` tells whether that is ours.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zamo {

inline constexpr char kMapMagic[8] = {'G', 'Z', 'M', 'P', '3', '2', 'D', '\n'};
inline constexpr std::uint32_t kMapVersion = 2;
inline constexpr std::uint32_t kMapByteOrder = 0x01020304;

struct MapSpan {
  std::uint64_t offset = 0;
  std::uint64_t size = 0;
};

struct MapHeader {
  char magic[8] = {};
  std::uint32_t version = 0;
  std::uint32_t byteOrder = 0;
  std::uint64_t fileSize = 0;
  std::uint32_t countries = 0;
  std::uint32_t caps = 0;
  MapSpan countryTable;          // MapCountry, in the order of the shapes
  MapSpan capTable;              // MapCap
  MapSpan index;                 // all outlines together
  std::uint64_t contentSum = 0;  // of all behind the header
  std::uint64_t headerSum = 0;   // of all before this field
};

// A circle on the unit sphere that holds a part of a country.
struct MapCap {
  double centre[3] = {};
  double radius = 0;  // radians
};

struct MapCountry {
  char code[4] = {};  // blank padded, the last one 0
  std::uint32_t firstCap = 0;
  std::uint32_t caps = 0;
  std::uint32_t spare = 0;
  MapCap bound;  // of the whole country
  MapSpan
      loops;  // 32 bits each: the number of a loop's first place; behind the last, how many places there are
  MapSpan places;  // see map_shape.h
  MapSpan index;   // of its outline alone
};

static_assert(sizeof(MapHeader) == 96 && sizeof(MapCap) == 32 && sizeof(MapCountry) == 96);

// A sum that changes with any byte, at the speed at which memory is read.
inline std::uint64_t mapSum(std::string_view bytes) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
  constexpr std::size_t kLanes = 4;
  std::uint64_t lanes[kLanes] = {1, 2, 3, 4};
  std::size_t at = 0;
  for (; at + sizeof lanes <= bytes.size(); at += sizeof lanes) {
    std::uint64_t words[kLanes];
    std::memcpy(words, bytes.data() + at, sizeof words);
    for (std::size_t i = 0; i < kLanes; ++i) {
      const std::uint64_t mixed = (lanes[i] ^ words[i]) * kFactor;
      lanes[i] = mixed ^ (mixed >> 29);
    }
  }
  std::uint64_t sum = bytes.size();
  for (; at < bytes.size(); ++at) sum = (sum ^ static_cast<unsigned char>(bytes[at])) * kFactor;
  for (const std::uint64_t lane : lanes) {
    sum = (sum ^ lane) * kFactor;
    sum ^= sum >> 31;
  }
  return sum;
}

}  // namespace zamo
