// The lines of a notice file, read through once. Memory is bounded, whatever the file holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "platform/open_file.h"
#include "platform/text.h"

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
  // How many lines were read, those asked for at the end among them.
  std::int64_t lineNo() const { return lineNo_; }

  // The next line with its tabs turned into blanks and the blanks at both ends taken off; an empty text at
  // the end. Valid until the next call.
  std::string_view nextLine() {
    ++lineNo_;
    const std::size_t lineFeed = hasLoneReturn_ ? end_ : find('\n', next_);
    // A byte behind the line end is wanted too: it tells whether this was the last line.
    const bool isWhole = lineFeed + 1 < end_ && lineFeed - next_ <= kLongestLine;
    return isWhole ? given(next_, lineFeed - (lineFeed > next_ && buffer_[lineFeed - 1] == '\r' ? 1 : 0),
                           lineFeed + 1)
                   : nextLineOfAnyKind();
  }
  // The next line that begins with "<", or the last line there is; those before it count as read.
  std::string_view nextTagLine();

 private:
  LineSource() = default;
  std::size_t find(char byte, std::size_t from) const {
    const char* const text = buffer_.data();
    const void* found = std::memchr(text + from, byte, end_ - from);
    return found == nullptr ? end_ : static_cast<std::size_t>(static_cast<const char*>(found) - text);
  }
  // The line between two places; the next one begins at `after`.
  std::string_view given(std::size_t first, std::size_t stop, std::size_t after) {
    next_ = after;
    const std::string_view line = trimText({buffer_.data() + first, stop - first});
    return utf8_ ? inCodePage(line) : line;
  }
  std::string_view nextLineOfAnyKind();
  // Passes over lines that are in memory as a whole and hold no "<".
  void passLinesWithoutTag();
  void fill();
  void takeIn(std::size_t count);
  void skipUtf8Mark();
  std::string_view inCodePage(std::string_view line);

  std::optional<OpenFile> file_;  // none for lines from memory
  std::string buffer_;
  std::size_t next_ = 0;  // the first byte not yet given
  std::size_t end_ = 0;   // behind the last byte read
  // The first LF and CR from next_ on, or end_; stale when they lie before it.
  std::size_t lineFeed_ = 0;
  std::size_t carriageReturn_ = 0;
  bool hasLoneReturn_ = false;  // a CR without LF from next_ on; one that is the last byte isn't known yet
  bool wholeFileRead_ = false;
  bool utf8_ = false;
  bool exhausted_ = false;
  std::int64_t lineNo_ = 0;
  std::string converted_;
};

}  // namespace zamo
