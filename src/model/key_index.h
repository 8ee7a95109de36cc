// Finding a key's place in a fixed table of keys, by a hash made at compile time.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace zamo {

inline constexpr std::size_t kNoKey = static_cast<std::size_t>(-1);

// Keys are compared exactly. An empty place of the table is never found.
template <std::size_t Count>
class KeyIndex {
 public:
  constexpr explicit KeyIndex(const std::array<std::string_view, Count>& keys) : keys_(keys) {
    places_.fill(kFree);
    for (std::size_t place = 0; place < Count; ++place) {
      if (keys_[place].empty()) continue;
      std::size_t bucket = bucketOf(keys_[place]);
      while (places_[bucket] != kFree) bucket = (bucket + 1) % kBuckets;
      places_[bucket] = static_cast<Place>(place);
    }
  }

  // The first place that holds the key, or kNoKey.
  constexpr std::size_t find(std::string_view key) const {
    for (std::size_t bucket = bucketOf(key); places_[bucket] != kFree; bucket = (bucket + 1) % kBuckets) {
      if (keys_[places_[bucket]] == key) return places_[bucket];
    }
    return kNoKey;
  }

 private:
  static constexpr std::size_t kBuckets = std::max<std::size_t>(256, std::bit_ceil(2 * Count + 1));
  using Place = std::conditional_t<Count <= 0xFF, std::uint8_t, std::uint16_t>;
  static constexpr Place kFree = std::numeric_limits<Place>::max();
  static_assert(Count <= kFree);

  static constexpr std::size_t bucketOf(std::string_view key) {
    auto hash = static_cast<std::uint32_t>(key.size());
    for (const char c : key) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return (hash ^ (hash >> 15)) % kBuckets;
  }

  std::array<std::string_view, Count> keys_;
  std::array<Place, kBuckets> places_{};
};

}  // namespace zamo
