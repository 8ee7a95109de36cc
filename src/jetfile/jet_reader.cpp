#include "jetfile/jet_reader.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>
#include <optional>

#include "jetfile/jet_memo.h"
#include "jetfile/jet_pages.h"
#include "jetfile/jet_values.h"
#include "platform/code_page.h"
#include "platform/text.h"

namespace zamo {
namespace {

constexpr std::uint32_t kCataloguePage = 2;

// A moved row seldom moves on.
constexpr int kMostMoves = 16;

// Kinds of columns younger than the library.
constexpr int kBigInteger = 0x13;

struct FreeTable {
  void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};

// A table whose columns are known.
class OpenTable {
 public:
  OpenTable(const JetPages& pages, std::uint32_t page) {
    entry_.mdb = pages.handle();
    entry_.object_type = MDB_TABLE;
    entry_.table_pg = page;
    if (page >= pages.count()) throw JetFailure::cutOff;
    table_.reset(mdb_read_table(&entry_));
    // At once: it goes on where the library has stopped on the page.
    if (table_ == nullptr || mdb_read_columns(table_.get()) == nullptr || !hasSoundColumns()) {
      throw JetFailure::brokenTable;
    }
  }

  MdbTableDef* get() const { return table_.get(); }
  std::uint32_t page() const { return static_cast<std::uint32_t>(entry_.table_pg); }
  std::size_t columnCount() const { return table_->num_cols; }
  const MdbColumn& column(std::size_t at) const {
    return *static_cast<const MdbColumn*>(g_ptr_array_index(table_->columns, at));
  }

 private:
  bool hasSoundColumns() const {
    if (columnCount() == 0 || columnCount() > kMostJetColumns) return false;
    if (table_->columns->len != columnCount()) return false;
    for (std::size_t at = 0; at < columnCount(); ++at) {
      const MdbColumn& one = column(at);
      if (one.col_num < 0 || static_cast<std::size_t>(one.col_num) >= kMostJetColumns) return false;
      if (one.is_fixed != 0 && (one.fixed_offset < 0 || one.fixed_offset >= MDB_PGSIZE)) return false;
    }
    return true;
  }

  MdbCatalogEntry entry_{};
  std::unique_ptr<MdbTableDef, FreeTable> table_;
};

template <typename Number>
std::optional<Number> numberFrom(std::string_view bytes) {
  if (bytes.size() != sizeof(Number)) return {};
  Number number{};
  std::memcpy(&number, bytes.data(), sizeof(Number));
  return number;
}

template <typename Number>
JetValue wholeFrom(std::string_view bytes) {
  const std::optional<Number> number = numberFrom<Number>(bytes);
  if (!number) return JetUnreadable::damaged;
  return std::int64_t{*number};
}

template <typename Number, typename Value>
JetValue valueFrom(std::string_view bytes, Value (*make)(Number)) {
  const std::optional<Number> number = numberFrom<Number>(bytes);
  if (!number) return JetUnreadable::damaged;
  return make(*number);
}

static_assert(std::endian::native == std::endian::little, "the numbers of a file are");

JetValue valueFromBytes(const JetPages& pages, const MdbColumn& column, std::string_view bytes) {
  switch (column.col_type) {
    case MDB_BYTE:
      return wholeFrom<std::uint8_t>(bytes);
    case MDB_INT:
      return wholeFrom<std::int16_t>(bytes);
    case MDB_LONGINT:
      return wholeFrom<std::int32_t>(bytes);
    case kBigInteger:
      return wholeFrom<std::int64_t>(bytes);
    case MDB_MONEY:
      return valueFrom<std::int64_t>(bytes, jetMoney);
    case MDB_FLOAT:
      return valueFrom<float>(bytes, jetSingle);
    case MDB_DOUBLE:
      return valueFrom<double, double>(bytes, [](double number) { return number; });
    case MDB_DATETIME:
      return valueFrom<double, JetMoment>(bytes, [](double days) { return JetMoment{days}; });
    case MDB_NUMERIC: {
      // The library has precision and scale swapped, or not, by its version; the scale is never larger.
      std::optional<JetDecimal> decimal = jetDecimal(bytes, std::min(column.col_scale, column.col_prec));
      if (!decimal) return JetUnreadable::damaged;
      return std::move(*decimal);
    }
    case MDB_TEXT:
      return jetTextValue(pages, bytes);
    case MDB_MEMO:
      return jetMemo(pages, bytes);
    default:
      return JetUnreadable::kindWithoutText;
  }
}

// A row's page and the place on it.
struct FoundRow {
  JetPage page;
  JetSpan span;
};

class TableWalk {
 public:
  TableWalk(const JetPages& pages, const OpenTable& table)
      : pages_(pages), table_(table), fields_(table.columnCount()), part_(JetRow(table.columnCount())) {}

  // Gives each row, or that it is lost, in the order in which they stand in the file.
  void run(const JetTaker& take) {
    while (mdb_read_next_dpg(table_.get()) != 0) {
      std::copy_n(pages_.handle()->pg_buf, found_.page.size(), found_.page.begin());
      const JetPage here = found_.page;
      takePage(here, take);
      // What the library reads on from.
      std::copy(here.begin(), here.end(), pages_.handle()->pg_buf);
    }
    requireWhole();
  }

 private:
  void takePage(const JetPage& here, const JetTaker& take) {
    const std::optional<unsigned> count = pages_.rowCount(here);
    if (!count) return take(JetLostRow{});
    for (unsigned row = 0; row < *count; ++row) {
      const JetRowEntry entry = pages_.rowEntry(here, row);
      if (entry.state != JetRowState::here && entry.state != JetRowState::movedAway) continue;
      if (find(here, entry) && crack()) {
        take(part_);
      } else {
        take(JetLostRow{});
      }
    }
  }

  // Follows a moved row to where it is now.
  bool find(const JetPage& here, const JetRowEntry& first) {
    found_.page = here;
    JetRowEntry entry = first;
    for (int moves = 0; entry.state == JetRowState::movedAway; ++moves) {
      if (!entry.span || entry.span->size < 4 || moves == kMostMoves) return false;
      const JetPlace place = jetPlace(bytesOf(found_.page, *entry.span));
      pages_.read(place.page, found_.page);
      if (!isDataPageOf(found_.page, table_.page())) return false;
      if (place.row >= pages_.rowCount(found_.page).value_or(0)) return false;
      entry = pages_.rowEntry(found_.page, place.row);
      if (entry.state == JetRowState::here || entry.state == JetRowState::deleted) return false;
    }
    if (!entry.span) return false;
    found_.span = *entry.span;
    return true;
  }

  // Takes the row that was found apart, into part_.
  bool crack() {
    std::copy(found_.page.begin(), found_.page.end(), pages_.handle()->pg_buf);
    const std::size_t shortest = pages_.isJet3() ? 2 : 3;
    if (found_.span.size < shortest) return false;
    const int columns =
        mdb_crack_row(table_.get(), static_cast<int>(found_.span.start), found_.span.size, fields_.data());
    if (columns < 0) return false;
    for (std::size_t at = 0; at < fields_.size(); ++at) {
      const MdbColumn& column = table_.column(at);
      // A column that came later than the row.
      const bool isMissing = column.col_num >= columns;
      if (isMissing) fields_[at].is_null = 1;
      std::get<JetRow>(part_)[at] = value(column, fields_[at]);
    }
    return true;
  }

  JetValue value(const MdbColumn& column, const MdbField& field) const {
    if (column.col_type == MDB_BOOL) return field.is_null == 0;
    if (field.is_null != 0) return JetNull{};
    const auto start = static_cast<std::size_t>(field.start);
    const auto size = static_cast<std::size_t>(field.siz);
    const JetSpan row = found_.span;
    const bool isInside =
        field.start >= 0 && field.siz >= 0 && start >= row.start && start + size <= row.start + row.size;
    if (!isInside) return JetUnreadable::damaged;
    return valueFromBytes(pages_, column, bytesOf(found_.page, {start, size}));
  }

  // The library ends its walk at a page that isn't there as at the last one.
  void requireWhole() const {
    MdbTableDef* const table = table_.get();
    const gint32 next = mdb_map_find_next(pages_.handle(), table->usage_map,
                                          static_cast<unsigned>(table->map_sz), table->cur_phys_pg);
    if (next > 0 && static_cast<std::uint32_t>(next) >= pages_.count()) throw JetFailure::cutOff;
  }

  const JetPages& pages_;
  const OpenTable& table_;
  std::vector<MdbField> fields_;
  FoundRow found_;
  JetPart part_;  // a row
};

// The columns of the catalogue's own table that are read.
struct CatalogueColumns {
  std::size_t id;
  std::size_t name;
  std::size_t type;
  std::size_t flags;
};

std::size_t columnNamed(const OpenTable& table, std::string_view name) {
  for (std::size_t at = 0; at < table.columnCount(); ++at) {
    if (table.column(at).name == name) return at;
  }
  throw JetFailure::noCatalogue;
}

struct UserTable {
  JetTable table;
  std::uint32_t page = 0;
};

std::optional<UserTable> userTable(const JetRow& row, const CatalogueColumns& columns) {
  constexpr std::int64_t localTable = 1;
  constexpr std::uint32_t systemFlags = 0x80000002;
  constexpr std::uint32_t pageBits = 0xFFFFFF;
  const auto* id = std::get_if<std::int64_t>(&row[columns.id]);
  const auto* name = std::get_if<std::u16string>(&row[columns.name]);
  const auto* type = std::get_if<std::int64_t>(&row[columns.type]);
  const auto* flags = std::get_if<std::int64_t>(&row[columns.flags]);
  if (id == nullptr || name == nullptr || type == nullptr || *type != localTable) return {};
  if (flags != nullptr && (static_cast<std::uint32_t>(*flags) & systemFlags) != 0) return {};
  return UserTable{{textFromUtf16(*name), 0}, static_cast<std::uint32_t>(*id) & pageBits};
}

std::uint32_t rowsByTheFile(const JetPages& pages, std::uint32_t number) {
  JetPage page;
  pages.read(number, page);
  return page[0] == MDB_PAGE_TABLE ? jetWord(&page[pages.format().tab_num_rows_offset]) : 0;
}

std::vector<UserTable> readCatalogue(const JetPages& pages) {
  std::vector<UserTable> tables;
  try {
    const OpenTable catalogue(pages, kCataloguePage);
    const CatalogueColumns columns = {columnNamed(catalogue, "Id"), columnNamed(catalogue, "Name"),
                                      columnNamed(catalogue, "Type"), columnNamed(catalogue, "Flags")};
    TableWalk(pages, catalogue).run([&](const JetPart& part) {
      const auto* row = std::get_if<JetRow>(&part);
      if (row == nullptr) throw JetFailure::noCatalogue;
      if (std::optional<UserTable> table = userTable(*row, columns)) tables.push_back(std::move(*table));
    });
  } catch (const JetFailure failure) {
    throw failure == JetFailure::brokenTable ? JetFailure::noCatalogue : failure;
  }
  for (UserTable& one : tables) one.table.rows = rowsByTheFile(pages, one.page);
  return tables;
}

void readTable(const JetPages& pages, const UserTable& table, const JetTaker& take) {
  const OpenTable open(pages, table.page);
  JetTableHead head{table.table, {}};
  for (std::size_t at = 0; at < open.columnCount(); ++at) {
    head.columns.push_back(textFromUtf8(open.column(at).name));
  }
  take(head);
  TableWalk(pages, open).run(take);
  take(JetTableEnd{});
}

void readAll(const std::string& path, const std::vector<std::string>& wanted, const JetTaker& take) {
  const JetPages pages(path);
  const std::vector<UserTable> tables = readCatalogue(pages);
  JetCatalogue catalogue;
  for (const UserTable& one : tables) catalogue.tables.push_back(one.table);
  take(catalogue);
  for (const std::string& name : wanted) {
    const auto found = std::find_if(tables.begin(), tables.end(), [&name](const UserTable& one) {
      return equalsIgnoringCase(one.table.name, name);
    });
    if (found != tables.end()) readTable(pages, *found, take);
  }
}

}  // namespace

void readJetFile(const std::string& path, const std::vector<std::string>& tables, const JetTaker& take) {
  try {
    readAll(path, tables, take);
    take(JetFileEnd{});
  } catch (const JetFailure failure) {
    take(failure);
  }
}

}  // namespace zamo
