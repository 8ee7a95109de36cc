#include "database/recordset.h"

#include <sqlite3.h>

#include <algorithm>

#include "database/dialect.h"
#include "database/select_statement.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/text.h"

namespace zamo {
namespace {

// The table of a "SELECT * FROM table", alone or with a WHERE; empty for any other statement.
std::string tableOfWholeRows(std::string_view engineSelect) {
  constexpr std::string_view head = "SELECT * FROM ";
  if (!equalsIgnoringCase(engineSelect.substr(0, head.size()), head)) return {};
  const std::string_view rest = engineSelect.substr(head.size());
  const std::size_t end = std::min(rest.find(' '), rest.size());
  const std::string_view behind = end == rest.size() ? std::string_view() : rest.substr(end + 1);
  const bool isOneTable = behind.empty() || equalsIgnoringCase(behind.substr(0, 6), "WHERE ");
  return isOneTable ? std::string(rest.substr(0, end)) : std::string();
}

PreparedSelect makeSelect(std::string_view sql, unsigned flags, Connection& connection) {
  PreparedSelect select;
  std::string text = utf8FromText(engineSql(sql));
  select.table = tableOfWholeRows(text);
  if (!select.table.empty()) text.replace(0, std::string_view("SELECT *").size(), "SELECT rowid, *");
  select.statement = prepareSelect(text, flags, connection);
  for (int column = select.firstField(); column < sqlite3_column_count(select.statement.get()); ++column) {
    select.fields.push_back(textFromUtf8(sqlite3_column_name(select.statement.get(), column)));
  }
  return select;
}

// Lets the engine go of what a statement has open.
class ResetAtEnd {
 public:
  explicit ResetAtEnd(sqlite3_stmt* statement) : statement_(statement) {}
  ResetAtEnd(const ResetAtEnd&) = delete;
  ResetAtEnd& operator=(const ResetAtEnd&) = delete;
  ~ResetAtEnd() { sqlite3_reset(statement_); }

 private:
  sqlite3_stmt* statement_;
};

// The template names all columns of dates alike, and no others.
bool isDateField(std::string_view field) {
  return field.starts_with("d_");
}

std::string storedDate(std::string_view text) {
  std::string slashed(text);
  std::replace(slashed.begin(), slashed.end(), getDateSeparator().front(), '/');
  const std::optional<Date> date = parseDate(slashed);
  return date ? shortDateText(*date) : std::string(text);
}

}  // namespace

Recordset::Recordset(std::string_view source, Connection& connection, OpenAs openAs)
    : connection_(&connection) {
  if (openAs == OpenAs::table) {
    connection.openTable(source);
    table_ = source;
    return;
  }
  const auto select = std::make_shared<PreparedSelect>(makeSelect(source, 0, connection));
  select_ = select;
  readRows();
  select->statement.reset();
}

Recordset::Recordset(std::string_view select, std::int32_t key, Connection& connection)
    : connection_(&connection) {
  std::shared_ptr<PreparedSelect>& kept = connection.keptSelect(select);
  if (kept == nullptr) {
    kept = std::make_shared<PreparedSelect>(makeSelect(select, SQLITE_PREPARE_PERSISTENT, connection));
  }
  select_ = kept;
  sqlite3_bind_int(select_->statement.get(), 1, key);
  readRows();
}

void Recordset::readRows() {
  table_ = select_->table;
  sqlite3_stmt* statement = select_->statement.get();
  const ResetAtEnd reset(statement);
  const int firstField = select_->firstField();
  const int end = firstField + static_cast<int>(select_->fields.size());
  int result = SQLITE_DONE;
  while ((result = connection_->step(statement)) == SQLITE_ROW) {
    rows_.push_back({firstField == 0 ? 0 : sqlite3_column_int64(statement, 0), false});
    for (int column = firstField; column < end; ++column) values_.push_back(columnText(statement, column));
  }
  if (result != SQLITE_DONE) throw connection_->failure();
}

std::int64_t Recordset::RecordCount() const {
  requireOpen();
  return static_cast<std::int64_t>(rows_.size());
}

bool Recordset::atEnd() const {
  requireOpen();
  return position_ >= rows_.size();
}

void Recordset::MoveFirst() {
  CancelUpdate();
  position_ = 0;
}

void Recordset::MoveLast() {
  CancelUpdate();
  position_ = rows_.empty() ? 0 : rows_.size() - 1;
}

void Recordset::MoveNext() {
  CancelUpdate();
  ++position_;
}

const std::optional<std::string>& Recordset::value(std::size_t column) const {
  currentRow();
  const std::size_t count = select_->fields.size();
  if (column >= count) throw RunTimeError{kIndexOutOfRange, "No such field"};
  return values_[position_ * count + column];
}

const std::optional<std::string>& Recordset::value(std::string_view field) const {
  currentRow();
  const std::vector<std::string>& fields = select_->fields;
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [field](const std::string& one) { return equalsIgnoringCase(one, field); });
  return value(static_cast<std::size_t>(found - fields.begin()));
}

void Recordset::AddNew() {
  requireOpen();
  if (table_.empty()) throw RunTimeError{kInvalidArgument, "The rows of this recordset can't be changed"};
  adding_ = true;
  pending_.clear();
}

void Recordset::Collect(std::string_view field, std::optional<std::string_view> text) {
  Pending pending;
  pending.field = field;
  if (text) {
    pending.kind = Pending::Kind::text;
    pending.text = utf8FromText(isDateField(field) ? storedDate(*text) : *text);
  }
  setPending(std::move(pending));
}

void Recordset::Collect(std::string_view field, std::int64_t number) {
  setPending({std::string(field), Pending::Kind::whole, {}, number, 0});
}

void Recordset::CollectReal(std::string_view field, double number) {
  setPending({std::string(field), Pending::Kind::real, {}, 0, number});
}

void Recordset::setPending(Pending pending) {
  requireOpen();
  if (!adding_) currentRow();
  const auto same = std::find_if(pending_.begin(), pending_.end(),
                                 [&pending](const Pending& one) { return one.field == pending.field; });
  if (same == pending_.end()) {
    pending_.push_back(std::move(pending));
  } else {
    *same = std::move(pending);
  }
}

void Recordset::Update() {
  requireOpen();
  if (adding_) {
    insertPending();
  } else if (!pending_.empty()) {
    updatePending();
  }
  CancelUpdate();
}

void Recordset::CancelUpdate() {
  requireOpen();
  adding_ = false;
  pending_.clear();
}

void Recordset::insertPending() {
  std::string names;
  std::string places;
  for (const Pending& one : pending_) {
    if (!names.empty()) names += ", ", places += ", ";
    names += one.field;
    places += "?";
  }
  runChange("INSERT INTO " + table_ +
                (pending_.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + places + ")"),
            pending_, {});
}

void Recordset::updatePending() {
  const Row& row = currentRow();
  if (!rowsCanChange()) throw RunTimeError{kInvalidArgument, "The rows of this recordset can't be changed"};
  std::string settings;
  for (const Pending& one : pending_)
    settings.append(settings.empty() ? "" : ", ").append(one.field).append(" = ?");
  runChange("UPDATE " + table_ + " SET " + settings + " WHERE rowid = ?", pending_, row.rowid);
}

void Recordset::Delete() {
  const Row& row = currentRow();
  if (!rowsCanChange()) throw RunTimeError{kInvalidArgument, "The rows of this recordset can't be changed"};
  runChange("DELETE FROM " + table_ + " WHERE rowid = ?", {}, row.rowid);
  rows_[position_].deleted = true;
}

void Recordset::Close() {
  closed_ = true;
  rows_.clear();
  values_.clear();
}

void Recordset::requireOpen() const {
  if (closed_) throw RunTimeError{kInvalidArgument, "The recordset is closed"};
}

const Recordset::Row& Recordset::currentRow() const {
  if (atEnd() || rows_[position_].deleted) throw RunTimeError{kIndexOutOfRange, "No current row"};
  return rows_[position_];
}

void Recordset::runChange(const std::string& sql, const std::vector<Pending>& values,
                          std::optional<std::int64_t> rowid) {
  sqlite3_stmt* statement = connection_->changing(sql);
  int place = 0;
  for (const Pending& one : values) {
    ++place;
    switch (one.kind) {
      case Pending::Kind::null:
        sqlite3_bind_null(statement, place);
        break;
      case Pending::Kind::text:
        sqlite3_bind_text(statement, place, one.text.data(), static_cast<int>(one.text.size()),
                          SQLITE_STATIC);
        break;
      case Pending::Kind::whole:
        sqlite3_bind_int64(statement, place, one.whole);
        break;
      case Pending::Kind::real:
        sqlite3_bind_double(statement, place, one.real);
        break;
    }
  }
  if (rowid) sqlite3_bind_int64(statement, place + 1, *rowid);
  const ResetAtEnd reset(statement);
  if (connection_->step(statement) != SQLITE_DONE) throw connection_->failure();
}

}  // namespace zamo
