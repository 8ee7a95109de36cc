// Complete validation on any bytes: the section reader with all rules behind it.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/plain_host.h"
#include "platform/run_time_error.h"
#include "validation/complete_validation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zamo::Host host = zamo::makePlainHost(true);
  host.setStatus = [](std::string_view) {};
  const auto knowsAll = [](std::string_view, std::string_view code) { return code == "001" || code == "A"; };
  zamo::LineSource lines = zamo::LineSource::ofText({reinterpret_cast<const char*>(data), size});
  zamo::NtcRec ntc;
  std::string report;
  try {
    const bool passed = zamo::validateNotices(host, lines, ntc, report, nullptr, {knowsAll, knowsAll});
    if (!passed && report.empty()) __builtin_trap();  // a refusal always has its reason
    if (!lines.atEnd()) __builtin_trap();
  } catch (const zamo::RunTimeError& error) {
    if (error.number == 0 || error.text.empty()) __builtin_trap();
  }
  return 0;
}
