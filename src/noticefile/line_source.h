// The lines of a notice file, read through once. Memory is bounded, whatever the file holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/open_file.h"

namespace zamo {

// The most bytes of a line.
inline constexpr std::size_t kLongestLine = 1024 * std::size_t{1024};

// CR LF, a lone LF and a lone CR each end a line. A file that begins with a UTF-8 byte order mark is taken as
// UTF-8 and its lines are given in the code page. Every failure to open or read and a line that is too long
// are thrown as a RunTimeError.
class LineSource {
 public:
  explicit LineSource(const std::string& path);
  // Lines from memory, read as those of a file would be.
  static LineSource ofText(std::string_view text);
  LineSource(LineSource&& other) = default;
  LineSource& operator=(LineSource&&) = delete;

  // True when no byte is left.
  bool atEnd() const { return next_ == end_; }
  // True once nextLine was called at the end.
  bool exhausted() const { return exhausted_; }
  // How many times nextLine was called.
  std::int64_t lineNo() const { return lineNo_; }

  // The next line with its tabs turned into blanks and the blanks at both ends taken off; an empty text at
  // the end. Valid until the next call.
  std::string_view nextLine();

 private:
  LineSource() = default;
  std::size_t find(char byte, std::size_t from) const;
  void fill();
  void takeIn(std::size_t count);
  void skipUtf8Mark();
  std::string_view inCodePage(std::string_view line);

  std::optional<OpenFile> file_;  // none for lines from memory
  std::string buffer_;
  std::size_t next_ = 0;      // the first byte not yet given
  std::size_t end_ = 0;       // behind the last byte read
  std::size_t lineFeed_ = 0;  // the first LF and CR from next_ on, or end_
  std::size_t carriageReturn_ = 0;
  bool wholeFileRead_ = false;
  bool utf8_ = false;
  bool exhausted_ = false;
  std::int64_t lineNo_ = 0;
  std::string converted_;
};

}  // namespace zamo
