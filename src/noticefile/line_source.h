// The lines of a notice file, read through once with memory for no more than its longest line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zamo {

// CR LF, a lone LF and a lone CR each end a line. A file that begins with a UTF-8 byte order mark is taken as
// UTF-8 and its lines are given in the code page. Every failure to open or read is thrown as a RunTimeError.
class LineSource {
 public:
  explicit LineSource(const std::string& path);
  // Lines from memory, read as those of a file would be.
  static LineSource ofText(std::string_view text);
  LineSource(LineSource&& other) noexcept;
  LineSource& operator=(LineSource&&) = delete;
  ~LineSource();

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

  std::string path_;
  int descriptor_ = -1;
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
