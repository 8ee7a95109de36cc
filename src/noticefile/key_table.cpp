#include "noticefile/key_table.h"

namespace zamo {
namespace {

constexpr KeyIndex kIndex(kNoticeKeys);

}  // namespace

std::size_t keySlot(std::string_view key) {
  return kIndex.find(key);
}

}  // namespace zamo
