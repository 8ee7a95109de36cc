// How a notice's codes relate to the notifying administration: its countries, its coordination and its
// agencies.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "model/ntc_rec.h"

namespace zamo {

// The administration of a head: given, and one of the plan.
bool checkHeadAdm(const NtcRec& ntc, std::string& errs, std::string_view label);

// Countries, areas and coordinated administrations, without a look at the map.
bool checkNtcRefs(const NtcRec& ntc, std::string& errs, std::string_view label);

// What the master template knows of an administration. Either may throw a RunTimeError.
struct AgencyLookups {
  std::function<bool(std::string_view adm, std::string_view opAgcy)> isOpAgcyOfAdm;
  std::function<bool(std::string_view adm, std::string_view addrCode)> isAddrCodeOfAdm;
};

// Operating agency and address code, when given, against the master template.
bool checkOpAgcyAddrCode(const NtcRec& ntc, const AgencyLookups& lookups, std::string& errs,
                         std::string_view label);

}  // namespace zamo
