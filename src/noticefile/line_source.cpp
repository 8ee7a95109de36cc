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

std::string_view LineSource::nextLine() {
  ++lineNo_;
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
  const std::string_view line = trimText({buffer_.data() + next_, stop - next_});
  next_ = after;
  return utf8_ ? inCodePage(line) : line;
}

std::size_t LineSource::find(char byte, std::size_t from) const {
  const void* found = std::memchr(buffer_.data() + from, byte, end_ - from);
  return found == nullptr ? end_ : static_cast<std::size_t>(static_cast<const char*>(found) - buffer_.data());
}

void LineSource::fill() {
  if (next_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + next_, end_ - next_);
    lineFeed_ -= next_;
    carriageReturn_ -= next_;
    end_ -= next_;
    next_ = 0;
  }
  if (end_ == buffer_.size()) buffer_.resize(2 * buffer_.size());
  const std::size_t count = file_->read(buffer_.data() + end_, buffer_.size() - end_);
  wholeFileRead_ = count == 0;
  takeIn(count);
}

void LineSource::takeIn(std::size_t count) {
  const std::size_t first = end_;
  end_ += count;
  tabsToBlanks(buffer_.data() + first, buffer_.data() + end_);
  if (lineFeed_ == first) lineFeed_ = find('\n', first);
  if (carriageReturn_ == first) carriageReturn_ = find('\r', first);
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
