// The parts of a Jet file as bytes, on their way from the process that reads the file to the one that asked.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "jetfile/jet_parts.h"

namespace zamo {

// Hands on the bytes of the parts in large pieces; the last piece waits for `flush`.
class JetPartWriter {
 public:
  using Write = std::function<void(std::string_view)>;

  explicit JetPartWriter(Write write) : write_(std::move(write)) {}

  void put(const JetPart& part);
  void flush();

 private:
  Write write_;
  std::string held_;
};

// Makes parts of bytes that nobody vouches for: their lengths, their order and their number are checked.
class JetPartReader {
 public:
  // Reads on and gives the count of bytes, 0 at the end.
  using Read = std::function<std::size_t(char* into, std::size_t size)>;

  // No more than `mostBytes` are taken in all.
  JetPartReader(Read read, std::uint64_t mostBytes) : read_(std::move(read)), left_(mostBytes) {}

  // The next part. Nothing when the bytes end before the last part does, or make no part that may stand here.
  std::optional<JetPart> next();

 private:
  enum class Stage { start, betweenTables, inTable, end };

  bool fill(std::size_t size);
  bool follows(const JetPart& part);

  Read read_;
  std::uint64_t left_;
  Stage stage_ = Stage::start;
  std::size_t columns_ = 0;
  std::string held_;
  std::size_t taken_ = 0;
};

}  // namespace zamo
