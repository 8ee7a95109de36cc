#include "composition.h"

#include <s2/s2latlng_rect.h>
#include <s2/s2loop.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

#include "sources.h"
#include "tables.h"

namespace zamo::mapdata {
namespace {

using Clock = std::chrono::steady_clock;

// Holes up to this many degrees are lakes of the country around them; larger ones are left to the chart.
constexpr double kSmallHole = 0.1;
// The chart is drawn to some hundred metres, and needed only where the first source is blank. On a grid both
// sides of a border stay together.
constexpr double kChartGrid = 0.004;
// Land or water this far, in km, from anything else isn't a fault of drawing.
constexpr double kWide = 2.0;
// How far from the place that a claim names its area may lie, in km.
constexpr double kClaimReach = 10;

class Stage {
 public:
  explicit Stage(const char* name) : name_(name) {}
  ~Stage() {
    const std::chrono::duration<double> seconds = Clock::now() - start_;
    std::printf("  %-32s %6.1f s\n", name_, seconds.count());
    std::fflush(stdout);
  }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

 private:
  const char* name_;
  Clock::time_point start_ = Clock::now();
};

// Calls `one` for each number below `count`, on all processors.
void inParallel(std::size_t count, const std::function<void(std::size_t)>& one) {
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    for (std::size_t i = next++; i < count; i = next++) one(i);
  };
  std::vector<std::future<void>> workers;
  for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
    workers.push_back(std::async(std::launch::async, work));
  }
  for (auto& worker : workers) worker.get();
}

// Where the shells of the first source lie, by whole degrees, to find what is enclosed by a hole.
class Enclaves {
 public:
  void add(const Ring& shell, const std::string& code) {
    if (const auto place = placeInside(shell)) cells_[cellOf(*place)].push_back({*place, code});
  }

  bool isIn(const Ring& hole, const Box& box, const std::string& ownCode) const {
    for (int lat = floorOf(box.south); lat <= floorOf(box.north); ++lat) {
      for (int lon = floorOf(box.west); lon <= floorOf(box.east); ++lon) {
        const auto cell = cells_.find({lat, lon});
        if (cell == cells_.end()) continue;
        for (const Entry& entry : cell->second) {
          if (entry.code != ownCode && box.contains(entry.place) && isInside(hole, entry.place)) return true;
        }
      }
    }
    return false;
  }

 private:
  struct Entry {
    Place place;
    std::string code;
  };
  using Cell = std::pair<int, int>;
  static int floorOf(double degrees) { return static_cast<int>(std::floor(degrees)); }
  static Cell cellOf(const Place& place) { return {floorOf(place.lat), floorOf(place.lon)}; }

  std::map<Cell, std::vector<Entry>> cells_;
};

std::map<std::string, Loops> landOf(const std::vector<CountryRings>& countries,
                                    const std::vector<CodeRow>& codes) {
  Enclaves enclaves;
  for (const CountryRings& country : countries) {
    for (const Ring& ring : country.rings) {
      if (!ring.hole) enclaves.add(ring, codeOf(codes, country.country, ring));
    }
  }
  std::map<std::string, Loops> land;
  int lakes = 0;
  for (const CountryRings& country : countries) {
    for (const Ring& ring : country.rings) {
      const std::string code = codeOf(codes, country.country, ring);
      if (ring.hole) {
        const Box box = boxOf(ring);
        const bool small = box.east - box.west < kSmallHole && box.north - box.south < kSmallHole;
        if (small && !enclaves.isIn(ring, box, code)) {
          ++lakes;
          continue;
        }
      }
      land[code].push_back(pointsOf(ring));
    }
  }
  std::printf("filled %d small lakes\n", lakes);
  return land;
}

// The chart under the regulator's codes.
std::map<std::string, Loops> chartLand(const std::string& path, const std::vector<CodeRow>& codes) {
  std::vector<std::string> keys;
  for (const CodeRow& row : codes) {
    // Ice shelves and coasts move: there the first source is better alone.
    if (row.iso2 == "AQ") continue;
    const bool ofChina = row.iso2 == "HK" || row.iso2 == "MO";
    const std::string key = ofChina ? "CN" + row.iso2 : row.iso2;
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
  }
  std::map<std::string, Loops> land;
  int islets = 0;
  for (const CountryRings& country : readChart(path, keys)) {
    const std::string iso2 = country.country.substr(country.country.size() - 2);
    for (const Ring& ring : country.rings) {
      const Box box = boxOf(ring);
      // The chart's small islands stand hundreds of metres off, so they would stand twice.
      if (box.north - box.south < 0.02 && box.east - box.west < 0.04) {
        ++islets;
      } else {
        Ring coarse = ring;
        if (coarsen(coarse, kChartGrid)) land[codeOf(codes, iso2, ring)].push_back(pointsOf(coarse));
      }
    }
  }
  std::printf("left out %d islets of the chart\n", islets);
  return land;
}

std::vector<std::string> codesOf(const World& world) {
  std::vector<std::string> codes;
  for (const auto& [code, region] : world) codes.push_back(code);
  return codes;
}

World repaired(const std::map<std::string, Loops>& land) {
  World world;
  for (const auto& [code, loops] : land) world[code];
  const auto codes = codesOf(world);
  inParallel(codes.size(), [&](std::size_t i) {
    // Existing elements of a map may be changed side by side.
    world.at(codes[i]) = enclosed({&land.at(codes[i])});
  });
  std::size_t before = 0, after = 0;
  for (const auto& [code, loops] : land) {
    for (const auto& loop : loops) before += loop.size();
    after += static_cast<std::size_t>(world.at(code).vertices());
  }
  std::printf("repaired %zu countries: %zu places became %zu\n", world.size(), before, after);
  return world;
}

std::vector<const Loops*> allLoops(const World& world) {
  std::vector<const Loops*> all;
  for (const auto& [code, region] : world) all.push_back(&region.loops());
  return all;
}

double areaOf(const Region& region) {
  double area = 0;
  for (const auto& loop : region.loops()) area += squareKilometres(loop);
  return area;
}

void settleClaim(World& world, const World& chart, const Claim& claim,
                 const std::vector<std::string>& winners) {
  Region& loser = world.at(claim.loser);
  Region lost;
  if (claim.asCharted) {
    const Region common = intersection(chart.at(claim.winner), loser);
    Loops wide;
    for (const auto& loop : common.loops()) {
      S2Point at;
      if (squareKilometres(loop) > 1 && widthOf(loop, &at) > kWide) wide.push_back(loop);
    }
    lost = Region(wide);
    Region& winner = world.at(claim.winner);
    winner = enclosed({&winner.loops(), &lost.loops()});
  } else if (claim.at) {
    const Region common = intersection(world.at(claim.winner), loser);
    Loops there;
    for (const auto& loop : common.loops()) {
      if (distanceBetween(loop, *claim.at) <= kClaimReach) there.push_back(loop);
    }
    lost = Region(there);
  } else {
    std::vector<const Loops*> loops;
    for (const std::string& winner : winners) loops.push_back(&world.at(winner).loops());
    lost = enclosed(loops);
  }
  const double before = areaOf(loser);
  loser = difference(loser, lost);
  for (const std::string& winner : winners) std::printf("%s ", winner.c_str());
  std::printf("over %s: %.0f square kilometres\n", claim.loser.c_str(), before - areaOf(loser));
}

void settleClaims(World& world, const World& chart, const std::vector<Claim>& claims) {
  for (auto claim = claims.begin(); claim != claims.end();) {
    // Those who win against the same country do so at once: cutting a large one takes its time.
    std::vector<std::string> winners;
    auto next = claim;
    do {
      winners.push_back(next->winner);
      ++next;
    } while (next != claims.end() && next->loser == claim->loser && !claim->asCharted && !next->asCharted &&
             !claim->at && !next->at);
    settleClaim(world, chart, *claim, winners);
    claim = next;
  }
}

// Of those who still claim a wide area the chart names the owner.
void settleByChart(World& world, const World& chart) {
  std::map<std::string, Loops> lost;
  const Region twice = enclosed(allLoops(world), 2);
  for (const auto& loop : twice.loops()) {
    if (squareKilometres(loop) < 1) continue;
    S2Point at;
    const double width = widthOf(loop, &at);
    if (width < kWide / 2) continue;
    std::vector<std::string> claimants;
    for (const auto& [code, region] : world) {
      if (contains(region, at)) claimants.push_back(code);
    }
    const auto owner = std::find_if(claimants.begin(), claimants.end(), [&](const std::string& code) {
      const auto drawn = chart.find(code);
      return drawn != chart.end() && contains(drawn->second, at);
    });
    std::printf("claimed twice, %.1f km wide at %s:", 2 * width, placeText(at).c_str());
    for (const std::string& code : claimants) std::printf(" %s", code.c_str());
    std::printf(owner == claimants.end() ? ", not on the chart\n" : ", given to %s\n", owner->c_str());
    for (auto code = claimants.begin(); code != claimants.end() && owner != claimants.end(); ++code) {
      if (code != owner) lost[*code].push_back(loop);
    }
  }
  for (const auto& [code, loops] : lost) world.at(code) = difference(world.at(code), Region(loops));
}

void applyPatches(World& world, const std::vector<Patch>& patches) {
  if (patches.empty()) return;
  const Region land = enclosed(allLoops(world));
  for (const Patch& patch : patches) {
    Region area(Loops{pointsOf(patch.ring)});
    if (patch.kind == Patch::Kind::fill) {
      area = difference(area, land);
    } else {
      for (auto& [code, region] : world) {
        if (code != patch.code && !intersection(region, area).empty()) region = difference(region, area);
      }
    }
    Region& own = world[patch.code];
    own = enclosed({&own.loops(), &area.loops()});
    std::printf("patched %s: %s\n", patch.code.c_str(), patch.name.c_str());
  }
}

struct Filling {
  Loops kept;
  std::vector<std::string> notes;
  int dropped = 0;
};

// Of the chart's land where the first source has none: lakes and gaps between countries, which run along its
// land nearly all around, and wide areas. What is left are two drawings of one coast.
Filling chooseFilling(const std::string& code, const Region& blank, const Region& land) {
  Filling filling;
  Loops holes;
  for (const auto& loop : blank.loops()) {
    const double area = squareKilometres(loop);
    if (area < 0) {
      holes.push_back(loop);
      continue;
    }
    const double share = shareAlong(loop, land);
    S2Point at = loop.front();
    double width = 0;
    bool keep = share > 0.7;
    if (!keep && area > 3) {
      width = widthOf(loop, &at);
      keep = width > kWide / 2 || (share < 0.1 && width > kWide / 4);
    }
    if (!keep) {
      ++filling.dropped;
      continue;
    }
    filling.kept.push_back(loop);
    if (area > (share > 0.7 ? 1000 : 50)) {
      if (width == 0) width = widthOf(loop, &at);
      char note[160];
      std::snprintf(note, sizeof note,
                    "filled %s %s: %.0f square kilometres, %.1f km wide, %.0f %% along land", code.c_str(),
                    placeText(at).c_str(), area, 2 * width, share * 100);
      filling.notes.emplace_back(note);
    }
  }
  const Loops shells = filling.kept;
  std::vector<std::pair<S2LatLngRect, std::unique_ptr<S2Loop>>> bounds;
  for (const auto& shell : shells) {
    auto loop = std::make_unique<S2Loop>(shell, S2Debug::DISABLE);
    bounds.emplace_back(loop->GetRectBound(), std::move(loop));
  }
  for (const auto& hole : holes) {
    const S2Point inside = hole.front();
    for (const auto& [bound, loop] : bounds) {
      if (bound.Contains(inside) && loop->Contains(inside)) {
        filling.kept.push_back(hole);
        break;
      }
    }
  }
  return filling;
}

void fillBlanks(World& world, const World& chart) {
  const Region land = enclosed(allLoops(world));
  std::printf("land: %d places in %zu rings\n", land.vertices(), land.loops().size());
  std::vector<std::string> codes = codesOf(chart);
  for (const std::string& code : codes) world[code];
  // The longest first, so that no processor is left waiting for one of them.
  std::sort(codes.begin(), codes.end(), [&](const std::string& one, const std::string& other) {
    return chart.at(one).vertices() > chart.at(other).vertices();
  });
  std::mutex telling;
  int dropped = 0;
  inParallel(codes.size(), [&](std::size_t i) {
    const std::string& code = codes[i];
    const Filling filling = chooseFilling(code, difference(chart.at(code), land), land);
    Region& own = world.at(code);
    own = enclosed({&own.loops(), &filling.kept});
    const std::lock_guard lock(telling);
    for (const std::string& note : filling.notes) std::printf("%s\n", note.c_str());
    dropped += filling.dropped;
  });
  std::printf("left out %d slivers of the chart\n", dropped);
}

}  // namespace

World firstSource(const Sources& sources) {
  const Stage stage("reading the first source");
  return repaired(landOf(readGeoJson(sources.geoJson), readCodes(sources.tables + "/codes.csv")));
}

World chart(const Sources& sources) {
  const Stage stage("reading the chart");
  return repaired(chartLand(sources.chart, readCodes(sources.tables + "/codes.csv")));
}

World compose(const Sources& sources) {
  World world = firstSource(sources);
  const World drawn = chart(sources);
  {
    const Stage stage("claims and patches");
    settleClaims(world, drawn, readClaims(sources.tables + "/claims.txt"));
    settleByChart(world, drawn);
    applyPatches(world, readPatches(sources.tables + "/patches.txt"));
  }
  {
    const Stage stage("filling from the chart");
    fillBlanks(world, drawn);
  }
  return world;
}

}  // namespace zamo::mapdata
