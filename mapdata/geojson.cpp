#include <charconv>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "sources.h"

namespace zamo::mapdata {
namespace {

// Reads the few forms that the package has; anything else is refused.
class Reader {
 public:
  explicit Reader(std::string_view text) : left_(text) {}

  bool takeIf(char wanted) {
    skipBlanks();
    if (left_.empty() || left_.front() != wanted) return false;
    left_.remove_prefix(1);
    return true;
  }

  void take(char wanted) {
    if (!takeIf(wanted)) throw std::runtime_error(std::string("GeoJSON: expected ") + wanted);
  }

  std::string_view takeText() {
    take('"');
    const std::size_t length = left_.find('"');
    if (length == std::string_view::npos) throw std::runtime_error("GeoJSON: text without end");
    const std::string_view text = left_.substr(0, length);
    left_.remove_prefix(length + 1);
    return text;
  }

  std::string_view takeKey() {
    const std::string_view key = takeText();
    take(':');
    return key;
  }

  double takeNumber() {
    skipBlanks();
    double value = 0;
    const auto [end, error] = std::from_chars(left_.data(), left_.data() + left_.size(), value);
    if (error != std::errc()) throw std::runtime_error("GeoJSON: expected a number");
    left_.remove_prefix(static_cast<std::size_t>(end - left_.data()));
    return value;
  }

  // Calls `one` for each element of an array.
  template <typename One>
  void takeArray(One one) {
    take('[');
    if (takeIf(']')) return;
    do one();
    while (takeIf(','));
    take(']');
  }

  // Calls `one` with the key of each member of an object.
  template <typename One>
  void takeObject(One one) {
    take('{');
    if (takeIf('}')) return;
    do one(takeKey());
    while (takeIf(','));
    take('}');
  }

  // Whether an array of arrays of numbers stands next, seen from an array of arrays.
  bool isNested(int depth) {
    std::size_t at = 0;
    for (int level = 0; at < left_.size(); ++at) {
      if (left_[at] == '[') {
        if (++level == depth) return true;
      } else if (left_[at] != ' ' && left_[at] != '\n' && left_[at] != '\r') {
        return false;
      }
    }
    return false;
  }

 private:
  void skipBlanks() {
    while (!left_.empty() && (left_.front() == ' ' || left_.front() == '\n' || left_.front() == '\r')) {
      left_.remove_prefix(1);
    }
  }

  std::string_view left_;
};

void takePolygon(Reader& in, std::vector<Ring>& rings) {
  bool hole = false;
  in.takeArray([&] {
    Ring ring;
    ring.hole = hole;
    in.takeArray([&] {
      in.take('[');
      Place place;
      place.lon = in.takeNumber();
      in.take(',');
      place.lat = in.takeNumber();
      in.take(']');
      ring.places.push_back(place);
    });
    hole = true;
    if (tidy(ring)) rings.push_back(std::move(ring));
  });
}

void takeGeometry(Reader& in, std::vector<Ring>& rings) {
  in.takeObject([&](std::string_view key) {
    if (key != "coordinates") {
      in.takeText();
    } else if (in.isNested(4)) {
      in.takeArray([&] { takePolygon(in, rings); });
    } else {
      takePolygon(in, rings);
    }
  });
}

CountryRings takeFeature(Reader& in) {
  CountryRings feature;
  in.takeObject([&](std::string_view key) {
    if (key == "geometry") {
      takeGeometry(in, feature.rings);
    } else if (key == "properties") {
      in.takeObject([&](std::string_view property) {
        const std::string_view value = in.takeText();
        if (property == "A3") feature.country = value;
      });
    } else {
      in.takeText();
    }
  });
  return feature;
}

}  // namespace

std::vector<CountryRings> readGeoJson(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't read " + path);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  std::vector<CountryRings> countries;
  Reader in(text);
  in.takeObject([&](std::string_view key) {
    if (key == "features") {
      in.takeArray([&] { countries.push_back(takeFeature(in)); });
    } else {
      in.takeText();
    }
  });
  return countries;
}

}  // namespace zamo::mapdata
