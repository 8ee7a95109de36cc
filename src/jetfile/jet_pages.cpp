#include "jetfile/jet_pages.h"

#include <filesystem>
#include <system_error>

namespace zamo {
namespace {

constexpr unsigned kOffsetBits = 0x1FFF;
constexpr unsigned kStateBits = 0xC000;

// The library has the names of two of these swapped, or not, by its version.
JetRowState stateOf(unsigned entry) {
  switch (entry & kStateBits) {
    case 0x4000:
      return JetRowState::movedAway;
    case 0x8000:
      return JetRowState::movedHere;
    case 0xC000:
      return JetRowState::deleted;
    default:
      return JetRowState::here;
  }
}

unsigned shortAt(const JetPage& page, std::size_t at) {
  return page[at] | static_cast<unsigned>(page[at + 1]) << 8;
}

}  // namespace

std::uint32_t jetWord(const unsigned char* bytes) {
  return bytes[0] | static_cast<std::uint32_t>(bytes[1]) << 8 | static_cast<std::uint32_t>(bytes[2]) << 16 |
         static_cast<std::uint32_t>(bytes[3]) << 24;
}

std::string_view bytesOf(const JetPage& page, JetSpan span) {
  return {reinterpret_cast<const char*>(page.data()) + span.start, span.size};
}

JetPlace jetPlace(std::string_view fourBytes) {
  const std::uint32_t word = jetWord(reinterpret_cast<const unsigned char*>(fourBytes.data()));
  return {word >> 8, word & 0xFF};
}

JetPages::JetPages(const std::string& path) : handle_(mdb_open(path.c_str(), MDB_NOFLAGS)) {
  std::error_code error;
  fileSize_ = std::filesystem::file_size(path, error);
  if (handle_ == nullptr || error) throw JetFailure::notOpened;
}

void JetPages::read(std::uint32_t number, JetPage& page) const {
  if (number >= count()) throw JetFailure::cutOff;
  if (mdb_read_alt_pg(handle(), number) != format().pg_size) throw JetFailure::cutOff;
  std::copy_n(handle()->alt_pg_buf, page.size(), page.begin());
}

std::optional<unsigned> JetPages::rowCount(const JetPage& page) const {
  const std::size_t list = format().row_count_offset;
  const unsigned rows = shortAt(page, list);
  if (list + 2 + std::size_t{2} * rows > pageSize()) return {};
  return rows;
}

JetRowEntry JetPages::rowEntry(const JetPage& page, unsigned row) const {
  const std::size_t list = format().row_count_offset + std::size_t{2};
  const unsigned entry = shortAt(page, list + std::size_t{2} * row);
  const std::size_t start = entry & kOffsetBits;
  // The rows fill the page from its end on.
  const std::size_t end =
      row == 0 ? pageSize() : shortAt(page, list + std::size_t{2} * (row - 1)) & kOffsetBits;
  const std::size_t lowest = list + std::size_t{2} * rowCount(page).value_or(0);
  JetRowEntry result{stateOf(entry), {}};
  if (start >= lowest && start < end && end <= pageSize()) result.span = JetSpan{start, end - start};
  return result;
}

bool isDataPageOf(const JetPage& page, std::uint32_t owner) {
  return page[0] == MDB_PAGE_DATA && jetWord(&page[4]) == owner;
}

}  // namespace zamo
