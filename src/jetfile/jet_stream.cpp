#include "jetfile/jet_stream.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <utility>

namespace zamo {
namespace {

constexpr std::size_t kLargePiece = 64 * std::size_t{1024};
constexpr std::size_t kLargestPart = 64 * std::size_t{1024} * 1024;
constexpr std::size_t kMostTables = 100'000;

// A part is its size, its kind by the place in JetPart, and its content. Both processes are of one program on
// one machine, so numbers go as they stand in memory.
using PartSize = std::uint32_t;
using Kind = std::uint8_t;

template <typename Number>
void putNumber(std::string& out, Number number) {
  static_assert(std::is_trivially_copyable_v<Number>);
  out.append(reinterpret_cast<const char*>(&number), sizeof(number));
}

void putText(std::string& out, std::string_view text) {
  putNumber(out, static_cast<PartSize>(text.size()));
  out += text;
}

void putText(std::string& out, std::u16string_view text) {
  putText(out, std::string_view(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)));
}

struct PutValue {
  std::string& out;

  void operator()(JetNull /*null*/) const {}
  void operator()(bool value) const { putNumber(out, value); }
  void operator()(std::int64_t value) const { putNumber(out, value); }
  void operator()(double value) const { putNumber(out, value); }
  void operator()(const JetDecimal& value) const { putText(out, value.digits); }
  void operator()(JetMoment value) const { putNumber(out, value.days); }
  void operator()(const std::u16string& value) const { putText(out, value); }
  void operator()(JetUnreadable value) const { putNumber(out, value); }
};

void putTable(std::string& out, const JetTable& table) {
  putText(out, table.name);
  putNumber(out, table.rows);
}

struct PutPart {
  std::string& out;

  void operator()(const JetCatalogue& part) const {
    putNumber(out, static_cast<PartSize>(part.tables.size()));
    for (const JetTable& table : part.tables) putTable(out, table);
  }
  void operator()(const JetTableHead& part) const {
    putTable(out, part.table);
    putNumber(out, static_cast<PartSize>(part.columns.size()));
    for (const std::string& column : part.columns) putText(out, column);
  }
  void operator()(const JetRow& part) const {
    for (const JetValue& value : part) {
      putNumber(out, static_cast<Kind>(value.index()));
      std::visit(PutValue{out}, value);
    }
  }
  void operator()(JetFailure part) const { putNumber(out, part); }
  void operator()(JetLostRow /*part*/) const {}
  void operator()(JetTableEnd /*part*/) const {}
  void operator()(JetFileEnd /*part*/) const {}
};

// The content of one part. Whatever is taken behind its end fails, and so does all that follows.
class Content {
 public:
  explicit Content(std::string_view bytes) : bytes_(bytes) {}

  bool isAllTaken() const { return good_ && bytes_.empty(); }
  bool isGood() const { return good_; }
  void fail() { good_ = false; }

  template <typename Number>
  Number number() {
    Number number{};
    const std::string_view bytes = take(sizeof(number));
    if (good_) std::memcpy(&number, bytes.data(), sizeof(number));
    return number;
  }

  std::string_view text() { return take(number<PartSize>()); }

 private:
  std::string_view take(std::size_t size) {
    good_ = good_ && size <= bytes_.size();
    if (!good_) return {};
    const std::string_view taken = bytes_.substr(0, size);
    bytes_.remove_prefix(size);
    return taken;
  }

  std::string_view bytes_;
  bool good_ = true;
};

// A number as which no kind stands fails the content.
template <typename Enum>
Enum takeKindUpTo(Content& content, Enum last) {
  const auto number = content.number<std::underlying_type_t<Enum>>();
  if (number > static_cast<std::underlying_type_t<Enum>>(last)) content.fail();
  return static_cast<Enum>(number);
}

bool isPlainDecimal(std::string_view digits) {
  return !digits.empty() && digits.size() < 64 &&
         digits.find_first_not_of("-.0123456789") == std::string_view::npos;
}

JetValue takeValue(Content& content) {
  switch (content.number<Kind>()) {
    case 0:
      return JetNull{};
    case 1:
      return content.number<std::uint8_t>() != 0;
    case 2:
      return content.number<std::int64_t>();
    case 3:
      return content.number<double>();
    case 4: {
      JetDecimal decimal{std::string(content.text())};
      if (!isPlainDecimal(decimal.digits)) content.fail();
      return decimal;
    }
    case 5:
      return JetMoment{content.number<double>()};
    case 6: {
      const std::string_view bytes = content.text();
      std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
      if (bytes.size() % sizeof(char16_t) != 0) content.fail();
      std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
      return text;
    }
    case 7:
      return takeKindUpTo(content, JetUnreadable::kindWithoutText);
    default:
      content.fail();
      return JetNull{};
  }
}

JetTable takeTable(Content& content) {
  JetTable table;
  table.name = content.text();
  table.rows = content.number<std::uint32_t>();
  return table;
}

JetPart takeCatalogue(Content& content) {
  JetCatalogue catalogue;
  const auto count = content.number<PartSize>();
  if (count > kMostTables) content.fail();
  while (content.isGood() && catalogue.tables.size() < count) catalogue.tables.push_back(takeTable(content));
  return catalogue;
}

JetPart takeTableHead(Content& content) {
  JetTableHead head;
  head.table = takeTable(content);
  const auto count = content.number<PartSize>();
  if (count == 0 || count > kMostJetColumns) content.fail();
  while (content.isGood() && head.columns.size() < count) head.columns.emplace_back(content.text());
  return head;
}

JetPart takeRow(Content& content, std::size_t columns) {
  JetRow row;
  row.reserve(columns);
  while (content.isGood() && row.size() < columns) row.push_back(takeValue(content));
  return row;
}

std::optional<JetPart> takePart(std::string_view bytes, std::size_t columns) {
  Content content(bytes);
  JetPart part;
  switch (content.number<Kind>()) {
    case 0:
      part = takeCatalogue(content);
      break;
    case 1:
      part = takeTableHead(content);
      break;
    case 2:
      part = takeRow(content, columns);
      break;
    case 3:
      part = JetLostRow{};
      break;
    case 4:
      part = JetTableEnd{};
      break;
    case 5:
      part = JetFileEnd{};
      break;
    case 6:
      part = takeKindUpTo(content, JetFailure::brokenTable);
      break;
    default:
      content.fail();
  }
  if (!content.isAllTaken()) return {};
  return part;
}

static_assert(std::is_same_v<std::variant_alternative_t<2, JetPart>, JetRow>);
static_assert(std::is_same_v<std::variant_alternative_t<6, JetPart>, JetFailure>);
static_assert(std::is_same_v<std::variant_alternative_t<6, JetValue>, std::u16string>);
static_assert(std::is_same_v<std::variant_alternative_t<7, JetValue>, JetUnreadable>);

}  // namespace

void JetPartWriter::put(const JetPart& part) {
  const std::size_t start = held_.size();
  putNumber(held_, PartSize{0});
  putNumber(held_, static_cast<Kind>(part.index()));
  std::visit(PutPart{held_}, part);
  const std::size_t size = held_.size() - start - sizeof(PartSize);
  if (size > kLargestPart) {
    held_.resize(start);
    return put(JetLostRow{});
  }
  const auto written = static_cast<PartSize>(size);
  std::memcpy(held_.data() + start, &written, sizeof(written));
  if (held_.size() >= kLargePiece) flush();
}

void JetPartWriter::flush() {
  if (!held_.empty()) write_(std::exchange(held_, {}));
}

// Holds at least `size` bytes that were not taken yet.
bool JetPartReader::fill(std::size_t size) {
  if (held_.size() - taken_ >= size) return true;
  held_.erase(0, std::exchange(taken_, 0));
  while (held_.size() < size) {
    const std::size_t before = held_.size();
    const std::size_t wanted = std::max(kLargePiece, std::min(size - before, 16 * kLargePiece));
    held_.resize(before + wanted);
    const std::size_t count = read_(held_.data() + before, wanted);
    held_.resize(before + count);
    if (count == 0 || count > left_) return false;
    left_ -= count;
  }
  return true;
}

// Whether the part may stand behind what came so far.
bool JetPartReader::follows(const JetPart& part) {
  const Stage before = stage_;
  if (std::holds_alternative<JetFailure>(part)) {
    stage_ = Stage::end;
    return before != Stage::end;
  }
  if (std::holds_alternative<JetCatalogue>(part)) {
    stage_ = Stage::betweenTables;
    return before == Stage::start;
  }
  if (const auto* head = std::get_if<JetTableHead>(&part)) {
    columns_ = head->columns.size();
    stage_ = Stage::inTable;
    return before == Stage::betweenTables;
  }
  if (std::holds_alternative<JetTableEnd>(part)) {
    stage_ = Stage::betweenTables;
    return before == Stage::inTable;
  }
  if (std::holds_alternative<JetFileEnd>(part)) {
    stage_ = Stage::end;
    return before == Stage::betweenTables;
  }
  return before == Stage::inTable;
}

std::optional<JetPart> JetPartReader::next() {
  PartSize size = 0;
  if (!fill(sizeof(size))) return {};
  std::memcpy(&size, held_.data() + taken_, sizeof(size));
  if (size > kLargestPart || !fill(sizeof(size) + size)) return {};
  taken_ += sizeof(size);
  std::optional<JetPart> part = takePart(std::string_view(held_).substr(taken_, size), columns_);
  taken_ += size;
  if (!part || !follows(*part)) return {};
  return part;
}

}  // namespace zamo
