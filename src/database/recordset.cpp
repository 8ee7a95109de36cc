#include "database/recordset.h"

#include <sqlite3.h>

#include <algorithm>

#include "database/dialect.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace zamo {
namespace {

bool isBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

RunTimeError notOneSelect() {
  return {kInvalidArgument, "A recordset takes one SELECT and nothing else"};
}

Statement prepareSelect(const std::string& sql, sqlite3* database) {
  // Looked at before the engine sees it: a PRAGMA takes effect when it is prepared.
  if (!equalsIgnoringCase(trimText(sql).substr(0, 6), "SELECT")) throw notOneSelect();
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  if (sqlite3_prepare_v2(database, sql.c_str(), static_cast<int>(sql.size()), &prepared, &tail) !=
      SQLITE_OK) {
    throw engineError(database);
  }
  Statement statement(prepared);
  const bool isWhole = isBlank({tail, static_cast<std::size_t>(sql.c_str() + sql.size() - tail)});
  if (!isWhole || sqlite3_stmt_readonly(prepared) == 0) throw notOneSelect();
  return statement;
}

std::optional<std::string> columnText(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return {};
    case SQLITE_FLOAT:
      return numberText(sqlite3_column_double(statement, column));
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      return textFromUtf8({text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))});
    }
  }
}

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
  } else {
    openSelect(source);
  }
}

void Recordset::openSelect(std::string_view sql) {
  std::string select = utf8FromText(engineSql(sql));
  table_ = tableOfWholeRows(select);
  rowsHaveRowid_ = !table_.empty();
  if (rowsHaveRowid_) select.replace(0, std::string_view("SELECT *").size(), "SELECT rowid, *");
  const Statement statement = prepareSelect(select, connection_->handle());
  const int firstField = rowsHaveRowid_ ? 1 : 0;
  for (int column = firstField; column < sqlite3_column_count(statement.get()); ++column) {
    fields_.push_back(textFromUtf8(sqlite3_column_name(statement.get(), column)));
  }
  int result = SQLITE_DONE;
  while ((result = sqlite3_step(statement.get())) == SQLITE_ROW) {
    Row& row = rows_.emplace_back();
    if (rowsHaveRowid_) row.rowid = sqlite3_column_int64(statement.get(), 0);
    row.values.reserve(fields_.size());
    for (int column = firstField; column < sqlite3_column_count(statement.get()); ++column) {
      row.values.push_back(columnText(statement.get(), column));
    }
  }
  if (result != SQLITE_DONE) throw engineError(connection_->handle());
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
  const Row& row = currentRow();
  if (column >= row.values.size()) throw RunTimeError{kIndexOutOfRange, "No such field"};
  return row.values[column];
}

const std::optional<std::string>& Recordset::value(std::string_view field) const {
  const auto found = std::find_if(fields_.begin(), fields_.end(),
                                  [field](const std::string& one) { return equalsIgnoringCase(one, field); });
  return value(static_cast<std::size_t>(found - fields_.begin()));
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
  if (!rowsHaveRowid_) throw RunTimeError{kInvalidArgument, "The rows of this recordset can't be changed"};
  std::string settings;
  for (const Pending& one : pending_)
    settings.append(settings.empty() ? "" : ", ").append(one.field).append(" = ?");
  runChange("UPDATE " + table_ + " SET " + settings + " WHERE rowid = ?", pending_, row.rowid);
}

void Recordset::Delete() {
  const Row& row = currentRow();
  if (!rowsHaveRowid_) throw RunTimeError{kInvalidArgument, "The rows of this recordset can't be changed"};
  runChange("DELETE FROM " + table_ + " WHERE rowid = ?", {}, row.rowid);
  rows_[position_].deleted = true;
}

void Recordset::Close() {
  closed_ = true;
  rows_.clear();
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
  const int result = sqlite3_step(statement);
  if (result == SQLITE_DONE) {
    sqlite3_reset(statement);
    return;
  }
  const RunTimeError error = engineError(connection_->handle());
  sqlite3_reset(statement);
  throw error;
}

}  // namespace zamo
