#include "jetfile/jet_memo.h"

#include <optional>
#include <set>
#include <string>

#include "jetfile/jet_values.h"
#include "platform/code_page.h"

namespace zamo {
namespace {

// Length and way, the first place, and four bytes of no meaning to a reader.
constexpr std::size_t kHeadSize = 12;

constexpr std::uint32_t kInRow = 0x80000000;
constexpr std::uint32_t kInOnePlace = 0x40000000;
constexpr std::uint32_t kLengthBits = 0x3FFFFFFF;

// What stands at the place of a memo; nothing when no memo can stand there.
std::optional<std::string> pieceAt(const JetPages& pages, JetPlace place) {
  JetPage page;
  pages.read(place.page, page);
  if (!isDataPageOf(page, kMemoOwner) || place.row >= pages.rowCount(page).value_or(0)) return {};
  const JetRowEntry entry = pages.rowEntry(page, place.row);
  if (!entry.span) return {};
  return std::string(bytesOf(page, *entry.span));
}

std::optional<std::string> inOnePlace(const JetPages& pages, JetPlace place, std::size_t length) {
  std::optional<std::string> piece = pieceAt(pages, place);
  if (!piece || piece->size() < length) return {};
  piece->resize(length);
  return piece;
}

// Each piece begins with the place of the next one.
std::optional<std::string> alongChain(const JetPages& pages, JetPlace place, std::size_t length) {
  std::string bytes;
  std::set<std::pair<std::uint32_t, unsigned>> visited;
  while (bytes.size() < length) {
    if (!visited.emplace(place.page, place.row).second) return {};
    const std::optional<std::string> piece = pieceAt(pages, place);
    if (!piece || piece->size() <= 4) return {};
    place = jetPlace(*piece);
    bytes.append(*piece, 4, length - bytes.size());
  }
  return bytes;
}

JetValue textOrDamage(const JetPages& pages, const std::optional<std::string>& bytes) {
  return bytes ? jetTextValue(pages, *bytes) : JetUnreadable::damaged;
}

}  // namespace

JetValue jetTextValue(const JetPages& pages, std::string_view bytes) {
  // An old file has one byte for a character.
  if (pages.isJet3()) return utf16FromText(bytes);
  std::optional<std::u16string> text = jetText(bytes);
  if (!text) return JetUnreadable::damaged;
  return std::move(*text);
}

JetValue jetMemo(const JetPages& pages, std::string_view inRow) {
  if (inRow.empty()) return std::u16string();
  if (inRow.size() < kHeadSize) return JetUnreadable::damaged;
  const std::uint32_t head = jetWord(reinterpret_cast<const unsigned char*>(inRow.data()));
  const std::size_t length = head & kLengthBits;
  if (length > pages.fileSize()) return JetUnreadable::damaged;
  if (length > kLongestJetText) return JetUnreadable::tooLong;
  const JetPlace place = jetPlace(inRow.substr(4));
  if ((head & kInRow) != 0) {
    if (inRow.size() - kHeadSize < length) return JetUnreadable::damaged;
    return jetTextValue(pages, inRow.substr(kHeadSize, length));
  }
  if ((head & kInOnePlace) != 0) return textOrDamage(pages, inOnePlace(pages, place, length));
  return textOrDamage(pages, alongChain(pages, place, length));
}

}  // namespace zamo
