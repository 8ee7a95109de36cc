// Finding a key's place in a fixed table of keys, by a hash made at compile time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zamo {

inline constexpr std::size_t kNoKey = static_cast<std::size_t>(-1);

// Keys are compared exactly. An empty place of the table is never found.
template <std::size_t Count>
class KeyIndex {
 public:
  constexpr explicit KeyIndex(const std::array<std::string_view, Count>& keys) : keys_(keys) {
    static_assert(Count * 2 < kBuckets && Count < kFree);
    places_.fill(kFree);
    for (std::size_t place = 0; place < Count; ++place) {
      if (keys_[place].empty()) continue;
      std::size_t bucket = bucketOf(keys_[place]);
      while (places_[bucket] != kFree) bucket = (bucket + 1) % kBuckets;
      places_[bucket] = static_cast<std::uint8_t>(place);
    }
  }

  // The first place that holds the key, or kNoKey.
  std::size_t find(std::string_view key) const {
    for (std::size_t bucket = bucketOf(key); places_[bucket] != kFree; bucket = (bucket + 1) % kBuckets) {
      if (keys_[places_[bucket]] == key) return places_[bucket];
    }
    return kNoKey;
  }

 private:
  static constexpr std::size_t kBuckets = 256;
  static constexpr std::uint8_t kFree = 0xFF;

  static constexpr std::size_t bucketOf(std::string_view key) {
    auto hash = static_cast<std::uint32_t>(key.size());
    for (const char c : key) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    return (hash ^ (hash >> 15)) % kBuckets;
  }

  std::array<std::string_view, Count> keys_;
  std::array<std::uint8_t, kBuckets> places_{};
};

}  // namespace zamo
