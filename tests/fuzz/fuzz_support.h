// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/plain_host.h"

namespace zamo::fuzz {

// Shows nothing, says yes to every question, and lives on one day.
inline Host makeQuietHost() {
  Host host = makePlainHost(true);
  host.showBox = [](const Box&) {};
  host.askYesNo = [](const Box&) { return true; };
  host.askText = [](const Box&) { return std::string("OTHER"); };
  host.setStatus = [](std::string_view) {};
  host.now = [] {
    return DateTime{Date{std::chrono::year(2026), std::chrono::month(3), std::chrono::day(7)}, 9, 5, 4};
  };
  host.systemLogonName = [] { return std::string("fuzzer"); };
  return host;
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends the run, and the input is kept, when what must always hold doesn't.
inline void require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace zamo::fuzz
