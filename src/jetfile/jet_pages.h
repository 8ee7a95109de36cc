// The pages of a Jet file and the rows that stand on them.
#pragma once

#include <glib.h>

#include <mdbtools.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "jetfile/jet_parts.h"

namespace zamo {

using JetPage = std::array<unsigned char, MDB_PGSIZE>;

// Where a row or a piece of a memo stands.
struct JetPlace {
  std::uint32_t page = 0;
  unsigned row = 0;
};

// Four bytes of a row: the row, and its page in three bytes.
JetPlace jetPlace(std::string_view fourBytes);

struct JetSpan {
  std::size_t start = 0;
  std::size_t size = 0;
};

enum class JetRowState { here, movedAway, movedHere, deleted };

struct JetRowEntry {
  JetRowState state = JetRowState::deleted;
  std::optional<JetSpan> span;  // nothing when it lies outside of the page
};

// A file that is open for reading. What can't be read throws JetFailure.
class JetPages {
 public:
  explicit JetPages(const std::string& path);

  MdbHandle* handle() const { return handle_.get(); }
  bool isJet3() const { return handle_->f->jet_version == MDB_VER_JET3; }
  const MdbFormatConstants& format() const { return *handle_->fmt; }
  std::size_t pageSize() const { return static_cast<std::size_t>(format().pg_size); }
  std::uint64_t fileSize() const { return fileSize_; }
  std::uint32_t count() const { return static_cast<std::uint32_t>(fileSize_ / pageSize()); }

  // A page as it was before it was encoded. A file that has lost it is cut off.
  void read(std::uint32_t number, JetPage& page) const;

  // How many rows the page tells of. Nothing when its list has no room for them.
  std::optional<unsigned> rowCount(const JetPage& page) const;
  JetRowEntry rowEntry(const JetPage& page, unsigned row) const;

 private:
  struct Close {
    void operator()(MdbHandle* handle) const { mdb_close(handle); }
  };

  std::unique_ptr<MdbHandle, Close> handle_;
  std::uint64_t fileSize_;
};

// Whether the page holds data of the table, or of memos, that `owner` stands for.
bool isDataPageOf(const JetPage& page, std::uint32_t owner);

inline constexpr std::uint32_t kMemoOwner = 0x4C41564C;  // "LVAL"

std::uint32_t jetWord(const unsigned char* bytes);
std::string_view bytesOf(const JetPage& page, JetSpan span);

}  // namespace zamo
