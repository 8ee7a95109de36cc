#include "noticefile/lines.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

enum class TagKind { top, sub, unread };

struct Tag {
  std::string_view start;
  std::string_view end;
  TagKind kind;
};

// clang-format off
constexpr std::array<Tag, 11> kTags = {{
    {kHeadTag,         "</HEAD>",         TagKind::top},
    {kNoticeTag,       "</NOTICE>",       TagKind::top},
    {kTailTag,         "</TAIL>",         TagKind::top},
    {"<ANT_HGT>",      "</ANT_HGT>",      TagKind::sub},
    {"<ANT_DIAGR_V>",  "</ANT_DIAGR_V>",  TagKind::sub},
    {"<ANT_DIAGR_H>",  "</ANT_DIAGR_H>",  TagKind::sub},
    {"<COORD>",        "</COORD>",        TagKind::sub},
    {"<COORDINATION>", "</COORDINATION>", TagKind::sub},
    {"<POINT>",        "</POINT>",        TagKind::sub},
    {"<COORD_A>",      "</COORD_A>",      TagKind::unread},
    {"<COORD_O>",      "</COORD_O>",      TagKind::unread},
}};
// clang-format on

const Tag* findTag(std::string_view line) {
  if (!isTagLine(line)) return nullptr;
  const auto* found = std::find_if(kTags.begin(), kTags.end(),
                                   [line](const Tag& tag) { return equalsIgnoringCase(tag.start, line); });
  return found == kTags.end() ? nullptr : found;
}

bool isTagOf(std::string_view line, TagKind kind) {
  const Tag* tag = findTag(line);
  return tag != nullptr && tag->kind == kind;
}

// Whether a text is ASCII without an upper case letter, eight characters at a time.
bool isPlainLowerCase(std::string_view text) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t tops = 0x80 * ones;
  const auto isPlain = [](std::uint64_t eight) {
    const std::uint64_t fromA = eight + (0x80 - 'A') * ones;
    const std::uint64_t behindZ = eight + (0x80 - 'Z' - 1) * ones;
    return ((eight | (fromA & ~behindZ)) & tops) == 0;
  };
  const auto eightAt = [text](std::size_t at) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + at, sizeof eight);
    return eight;
  };
  if (text.size() < 8) {
    return std::none_of(text.begin(), text.end(), [](char c) { return c < 0 || (c >= 'A' && c <= 'Z'); });
  }
  for (std::size_t at = 0; at + 8 <= text.size(); at += 8) {
    if (!isPlain(eightAt(at))) return false;
  }
  return isPlain(eightAt(text.size() - 8));
}

bool inLowerCase(std::string_view text) {
  return isPlainLowerCase(text) ||
         std::all_of(text.begin(), text.end(), [](char c) { return lowerChar(c) == c; });
}

}  // namespace

void tabsToBlanks(char* first, char* last) {
  while (first != last) {
    void* tab = std::memchr(first, '\t', static_cast<std::size_t>(last - first));
    if (tab == nullptr) return;
    first = static_cast<char*>(tab);
    *first = ' ';
  }
}

bool splitKeyValue(std::string_view line, KeyValue& result) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return false;
  result.key = trimText(line.substr(0, equals));
  result.value = trimText(line.substr(equals + 1));
  const bool lowers = !result.key.empty() && lowerChar(result.key.front()) == 't';
  if (lowers && !inLowerCase(result.key)) {
    result.lowered = lowerText(result.key);
    result.key = result.lowered;
  }
  return true;
}

bool parseAzimuthKey(std::string_view key, std::string_view& azimuth) {
  const std::size_t at = key.find('@');
  if (at == std::string_view::npos) return false;
  azimuth = key.size() < at + 4 ? std::string_view() : key.substr(at + 4);
  return isNumericText(azimuth);
}

bool isTopTag(std::string_view line) {
  return isTagOf(line, TagKind::top);
}

bool isSubTag(std::string_view line) {
  return isTagOf(line, TagKind::sub);
}

std::string_view endTagOf(std::string_view tag) {
  const Tag* found = findTag(tag);
  return found == nullptr ? std::string_view() : found->end;
}

}  // namespace zamo
