#include "tables.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace zamo::mapdata {
namespace {

template <typename One>
void forEachLine(const std::string& path, One one) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("can't read " + path);
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.front() != '#') one(line);
  }
}

std::vector<std::string> cellsOf(const std::string& line) {
  std::vector<std::string> cells;
  std::string cell;
  for (std::istringstream in(line); std::getline(in, cell, ',');) cells.push_back(cell);
  return cells;
}

double boundOf(const std::vector<std::string>& cells, std::size_t i, double without) {
  return i < cells.size() && !cells[i].empty() ? std::stod(cells[i]) : without;
}

}  // namespace

std::vector<CodeRow> readCodes(const std::string& path) {
  std::vector<CodeRow> rows;
  forEachLine(path, [&](const std::string& line) {
    const auto cells = cellsOf(line);
    if (cells.size() < 3) throw std::runtime_error(path + ": " + line);
    if (cells[0] == "iso2") return;
    rows.push_back({cells[0], cells[1], cells[2], boundOf(cells, 3, -1000), boundOf(cells, 4, 1000),
                    boundOf(cells, 5, -1000), boundOf(cells, 6, 1000)});
  });
  return rows;
}

std::string codeOf(const std::vector<CodeRow>& rows, const std::string& country, const Ring& ring) {
  Place at = ring.places.front();
  if (at.lon > 180) at.lon -= 360;
  for (const CodeRow& row : rows) {
    if (row.iso2 != country && row.iso3 != country) continue;
    if (at.lon >= row.lonFrom && at.lon < row.lonTo && at.lat >= row.latFrom && at.lat < row.latTo)
      return row.code;
  }
  throw std::runtime_error("no code for " + country);
}

std::vector<Claim> readClaims(const std::string& path) {
  std::vector<Claim> claims;
  forEachLine(path, [&](const std::string& line) {
    std::istringstream in(line);
    Claim claim;
    std::string over;
    if (!(in >> claim.winner >> over >> claim.loser) || over != "over")
      throw std::runtime_error(path + ": " + line);
    std::string word, charted;
    if (in >> word) {
      if (Place at; word == "at" && in >> at.lat >> at.lon) {
        claim.at = at;
      } else if (word == "as" && in >> charted && charted == "charted") {
        claim.asCharted = true;
      } else {
        throw std::runtime_error(path + ": " + line);
      }
    }
    claims.push_back(claim);
  });
  return claims;
}

std::vector<Patch> readPatches(const std::string& path) {
  std::vector<Patch> patches;
  forEachLine(path, [&](const std::string& line) {
    std::istringstream in(line);
    if (line.front() != ' ') {
      Patch patch;
      std::string kind;
      in >> kind >> patch.code;
      if (kind != "fill" && kind != "give") throw std::runtime_error(path + ": " + line);
      patch.kind = kind == "fill" ? Patch::Kind::fill : Patch::Kind::give;
      std::getline(in >> std::ws, patch.name);
      patches.push_back(patch);
    } else {
      if (patches.empty()) throw std::runtime_error(path + ": a place before the first patch");
      for (Place at; in >> at.lat >> at.lon;) patches.back().ring.places.push_back(at);
    }
  });
  for (Patch& patch : patches) {
    if (!tidy(patch.ring)) throw std::runtime_error(path + ": no area: " + patch.name);
  }
  return patches;
}

}  // namespace zamo::mapdata
