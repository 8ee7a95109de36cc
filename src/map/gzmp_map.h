// The world map as the rules see it: a record of eight operations, so that any map will do, a drawn one too.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zamo {

// A point as the map takes it: latitude and longitude in degrees, north and east positive.
using GzmpPoint = std::array<float, 2>;

inline constexpr int kGzmpUnit = 72;
inline constexpr int kGzmpNoData = -1;
inline constexpr std::size_t kGzmpCodeLength = 3;

// The countries near a point, nearest first.
struct GzmpNearest {
  int count = 0;
  std::array<float, 10> distances{};  // km
  std::array<float, 10> bearings{};   // degrees from north, clockwise
  std::string codes;                  // three characters each, blank padded
  int status = 0;
};

struct GzmpSegments {
  int first = 0;
  int second = 0;
  bool operator==(const GzmpSegments&) const = default;
};

// Segments are numbered from 1 in the order of the points: segment 1 runs from point 1 to point 2.
struct GzmpCrossings {
  std::vector<GzmpSegments> segments;
  std::vector<GzmpPoint> places;
  int status = 0;
};

// All but the first three are callable once gzmpOpenData has given another status than kGzmpNoData.
// One thread at a time.
struct GzmpMap {
  std::function<void(int unit)> gzmpSetUnit;
  std::function<int()> gzmpInit;
  std::function<int()> gzmpOpenData;
  // The pair is DDMMSSHDDDMMSSH, latitude first. What isn't a number in it counts as 0.
  std::function<GzmpPoint(const std::string& pair)> gzmpParseCoords;
  std::function<void(const GzmpPoint& point, float radius)> gzmpLoadMapAround;
  // Three characters, blank padded; blanks at sea.
  std::function<std::string(const GzmpPoint& point)> gzmpCountryAtPoint;
  // At most `limit` countries within `radius` km, without the one found at the point.
  std::function<GzmpNearest(const GzmpPoint& point, float radius, int mode, const std::string& found,
                            int limit)>
      gzmpNearestCountries;
  // Of the closed polygon of the points, whether or not the last one repeats the first. Equal points that
  // follow each other count as a crossing of the segments before and behind them.
  std::function<GzmpCrossings(const std::vector<GzmpPoint>& points)> gzmpFindCrossings;
};

}  // namespace zamo
