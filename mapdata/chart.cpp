#include <netcdf.h>

#include <cstdint>
#include <stdexcept>

#include "sources.h"

namespace zamo::mapdata {
namespace {

constexpr std::uint16_t kNewRing = 65535;
constexpr double kLargestValue = 65534;

void require(int status, const std::string& what) {
  if (status != NC_NOERR) throw std::runtime_error(what + ": " + nc_strerror(status));
}

struct Column {
  std::vector<std::uint16_t> values;
  double lowest = 0;
  double highest = 0;

  // The attribute `scale` of the chart is off by one part in 65535, so it isn't used.
  double degrees(std::size_t i) const { return lowest + values[i] * (highest - lowest) / kLargestValue; }
};

bool readColumn(int chart, const std::string& name, Column& column) {
  int variable = 0;
  if (nc_inq_varid(chart, name.c_str(), &variable) != NC_NOERR) return false;
  int dimension = 0;
  std::size_t length = 0;
  require(nc_inq_vardimid(chart, variable, &dimension), name);
  require(nc_inq_dimlen(chart, dimension, &length), name);
  column.values.resize(length);
  require(nc_get_var_ushort(chart, variable, column.values.data()), name);
  require(nc_get_att_double(chart, variable, "min", &column.lowest), name);
  require(nc_get_att_double(chart, variable, "max", &column.highest), name);
  return true;
}

std::vector<Ring> ringsOf(const Column& lon, const Column& lat) {
  std::vector<Ring> rings;
  for (std::size_t i = 0; i < lon.values.size(); ++i) {
    if (lon.values[i] == kNewRing) {
      rings.emplace_back();
      rings.back().hole = lat.values[i] == 1;
    } else if (!rings.empty()) {
      rings.back().places.push_back({lon.degrees(i), lat.degrees(i)});
    }
  }
  std::erase_if(rings, [](Ring& ring) { return !tidy(ring); });
  return rings;
}

}  // namespace

std::vector<CountryRings> readChart(const std::string& path, const std::vector<std::string>& keys) {
  int chart = 0;
  require(nc_open(path.c_str(), NC_NOWRITE, &chart), path);
  std::vector<CountryRings> countries;
  for (const std::string& key : keys) {
    Column lon, lat;
    if (!readColumn(chart, key + "_lon", lon) || !readColumn(chart, key + "_lat", lat)) continue;
    countries.push_back({key, ringsOf(lon, lat)});
  }
  nc_close(chart);
  return countries;
}

}  // namespace zamo::mapdata
