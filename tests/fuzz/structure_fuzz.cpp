// The structure check on any bytes.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "noticefile/structure_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zamo::LineSource lines = zamo::LineSource::ofText({reinterpret_cast<const char*>(data), size});
  std::string errText;
  zamo::checkStructureOfLines(lines, errText, "file.txt");
  if (errText.empty()) __builtin_trap();  // it always has something to tell
  return 0;
}
