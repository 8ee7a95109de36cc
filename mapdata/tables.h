// The reviewed tables of the map: codes, claims, and what both sources get wrong.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "rings.h"

namespace zamo::mapdata {

// A country of the sources, or the part of one within bounds, and the regulator's code for it.
struct CodeRow {
  std::string iso2;
  std::string iso3;
  std::string code;
  double lonFrom, lonTo, latFrom, latTo;
};

std::vector<CodeRow> readCodes(const std::string& path);
// The code for a ring of a country, by its first place. Throws std::runtime_error for an unknown country.
std::string codeOf(const std::vector<CodeRow>& rows, const std::string& country, const Ring& ring);

// Where both claim an area it is the winner's; with a place only the area there, as charted all that the
// chart gives to the winner.
struct Claim {
  std::string winner;
  std::string loser;
  std::optional<Place> at;
  bool asCharted = false;
};

std::vector<Claim> readClaims(const std::string& path);

struct Patch {
  enum class Kind {
    fill,  // what is blank within the ring becomes the code's
    give   // all within the ring becomes the code's
  };
  Kind kind = Kind::fill;
  std::string code;
  std::string name;
  Ring ring;
};

std::vector<Patch> readPatches(const std::string& path);

}  // namespace zamo::mapdata
