// Basic validation on any bytes, whether or not their structure is sound.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/plain_host.h"
#include "validation/basic_validation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zamo::Host host = zamo::makePlainHost(true);
  host.setStatus = [](std::string_view) {};
  zamo::LineSource lines = zamo::LineSource::ofText({reinterpret_cast<const char*>(data), size});
  std::string report;
  std::int64_t notices = 0;
  zamo::validateLines(host, lines, report, notices, "");
  if (!lines.atEnd()) __builtin_trap();
  return 0;
}
