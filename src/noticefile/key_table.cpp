#include "noticefile/key_table.h"

#include <cstdint>

namespace zamo {
namespace {

constexpr std::size_t kBuckets = 256;
constexpr std::uint8_t kFree = 0xFF;

constexpr std::size_t bucketOf(std::string_view key) {
  std::uint32_t hash = static_cast<std::uint32_t>(key.size());
  for (const char c : key) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  return (hash ^ (hash >> 15)) % kBuckets;
}

constexpr std::array<std::uint8_t, kBuckets> makeBuckets() {
  std::array<std::uint8_t, kBuckets> buckets{};
  buckets.fill(kFree);
  for (std::size_t slot = 0; slot < kNoticeKeys.size(); ++slot) {
    if (kNoticeKeys[slot].empty()) continue;
    std::size_t bucket = bucketOf(kNoticeKeys[slot]);
    while (buckets[bucket] != kFree) bucket = (bucket + 1) % kBuckets;
    buckets[bucket] = static_cast<std::uint8_t>(slot);
  }
  return buckets;
}

constexpr std::array<std::uint8_t, kBuckets> kSlots = makeBuckets();

}  // namespace

std::size_t keySlot(std::string_view key) {
  for (std::size_t bucket = bucketOf(key); kSlots[bucket] != kFree; bucket = (bucket + 1) % kBuckets) {
    if (kNoticeKeys[kSlots[bucket]] == key) return kSlots[bucket];
  }
  return kNoKey;
}

}  // namespace zamo
