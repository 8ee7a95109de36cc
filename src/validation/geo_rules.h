// How the places of a notice relate to its country, by the world map.
#pragma once

#include <string>
#include <string_view>

#include "map/gzmp_map.h"
#include "model/ntc_rec.h"
#include "platform/host.h"

namespace zamo {

// The eight texts of a place, where they stand.
struct SiteTexts {
  std::string& longDeg;
  std::string& longMin;
  std::string& longSec;
  std::string& longEw;
  std::string& latDeg;
  std::string& latMin;
  std::string& latSec;
  std::string& latNs;
};

// Whether a site is accepted for a country: it lies there, or less than 10 km away within the planning area.
// `msg` gets a remark unless it lies there, and is left alone then. Empty seconds become "00" in the site's
// own texts. Throws what the map throws.
bool checkSiteInCountry(const Host& host, const GzmpMap& map, SiteTexts site, std::string_view t_ctry,
                        std::string& msg);

// Whether the polygon of a contour's test points crosses itself; each crossing is added to `errs`. An error
// of the machine is shown in the common error box.
bool ContourCross(const Host& host, const GzmpMap& map, const ContourRec& contour, std::string& errs,
                  std::string_view label);

// Countries, areas and coordinated administrations, and the places of assignments and contours on the map.
// Empty seconds of the site and of the target site become "00". Throws what the map throws.
bool checkNtcRefsGeo(const Host& host, const GzmpMap& map, NtcRec& ntc, std::string& errs,
                     std::string_view label);

}  // namespace zamo
