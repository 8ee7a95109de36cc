#include "noticefile/line_source.h"

#include <algorithm>
#include <cstring>

#include "noticefile/lines.h"
#include "platform/code_page.h"
#include "platform/message.h"
#include "platform/run_time_error.h"
#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::size_t kFirstBufferSize = 256 * std::size_t{1024};
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

const Message kLineTooLong("box, number 7: a line of a notice file is too long; its number",
                           "Out of memory: line %1 is longer than 1 MB");

// Both of these are simple enough for the compiler to look at sixteen bytes at once.

// Whether a CR has another byte than LF behind it.
bool holdsLoneReturn(std::string_view text) {
  unsigned char lone = 0;
  for (std::size_t i = 1; i < text.size(); ++i) {
    const bool isLone = (text[i - 1] == '\r') & (text[i] != '\n');
    lone = static_cast<unsigned char>(lone | static_cast<unsigned char>(isLone));
  }
  return lone != 0;
}

std::int64_t lineFeedsIn(std::string_view text) {
  constexpr std::size_t kMostInAByte = 255;
  std::int64_t all = 0;
  for (std::size_t at = 0; at < text.size(); at += kMostInAByte) {
    unsigned char some = 0;
    for (const char c : text.substr(at, kMostInAByte)) some = static_cast<unsigned char>(some + (c == '\n'));
    all += some;
  }
  return all;
}

}  // namespace

LineSource::LineSource(const std::string& path)
    : file_(OpenFile::forReading(path)), buffer_(kFirstBufferSize, '\0') {
  while (end_ <= kUtf8Mark.size() && !wholeFileRead_) fill();
  skipUtf8Mark();
}

LineSource LineSource::ofText(std::string_view text) {
  LineSource source;
  source.buffer_ = text;
  source.takeIn(text.size());
  source.wholeFileRead_ = true;
  source.skipUtf8Mark();
  return source;
}

std::string_view LineSource::nextLineOfAnyKind() {
  if (atEnd()) {
    exhausted_ = true;
    return {};
  }
  std::size_t stop = 0;
  std::size_t after = 0;
  for (;;) {
    if (lineFeed_ < next_) lineFeed_ = find('\n', next_);
    if (carriageReturn_ < next_) carriageReturn_ = find('\r', next_);
    stop = std::min(lineFeed_, carriageReturn_);
    after = std::min(stop + (carriageReturn_ + 1 == lineFeed_ ? 2 : 1), end_);
    if (stop - next_ > kLongestLine)
      throw RunTimeError{kOutOfMemory, kLineTooLong.filled({std::to_string(lineNo_)})};
    // A byte behind the line end is wanted too: it tells a CR from a CR LF, and whether this was the last
    // line.
    if (after < end_ || wholeFileRead_) break;
    fill();
  }
  return given(next_, stop, after);
}

std::string_view LineSource::nextTagLine() {
  std::string_view line;
  do {
    passLinesWithoutTag();
    line = nextLine();
  } while (!isTagLine(line) && !atEnd());
  return line;
}

void LineSource::passLinesWithoutTag() {
  // Where there can be lines of another kind or too long ones, each is looked at.
  if (hasLoneReturn_ || buffer_.size() > kLongestLine || atEnd()) return;
  // The last byte is none that a line may end at: what is behind it isn't known.
  const std::string_view text(buffer_.data() + next_, end_ - next_ - 1);
  const std::size_t lines = text.rfind('\n', text.find('<')) + 1;
  lineNo_ += lineFeedsIn(text.substr(0, lines));
  next_ += lines;
}

void LineSource::fill() {
  if (next_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + next_, end_ - next_);
    end_ -= next_;
    next_ = 0;
  }
  if (end_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const std::size_t count = file_->read(buffer_.data() + end_, buffer_.size() - end_);
  wholeFileRead_ = count == 0;
  takeIn(count);
}

void LineSource::takeIn(std::size_t count) {
  tabsToBlanks(buffer_.data() + end_, buffer_.data() + end_ + count);
  end_ += count;
  lineFeed_ = find('\n', next_);
  carriageReturn_ = find('\r', next_);
  hasLoneReturn_ = holdsLoneReturn({buffer_.data() + next_, end_ - next_});
}

void LineSource::skipUtf8Mark() {
  utf8_ = std::string_view(buffer_.data(), end_).starts_with(kUtf8Mark);
  if (utf8_) next_ = kUtf8Mark.size();
}

std::string_view LineSource::inCodePage(std::string_view line) {
  converted_ = textFromUtf8(line);
  return converted_;
}

}  // namespace zamo
