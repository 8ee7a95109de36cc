// The rows of one SELECT, or a table that rows are added to.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"

namespace zamo {

enum class OpenAs { sqlText = 1, table = 2 };

// SQL text is in the code page and in the dialect of the operations. Anything but one SELECT is refused, so
// that values joined into the text can never change data. The rows of "SELECT * FROM" one table, with or
// without a condition, can be changed; a table opened as such only takes new rows. Every failure is thrown as
// a RunTimeError.
class Recordset {
 public:
  Recordset(std::string_view source, Connection& connection, OpenAs openAs = OpenAs::sqlText);
  // The rows of a SELECT in whose text a "?" stands for the key. The connection keeps it for the next key.
  Recordset(std::string_view select, std::int32_t key, Connection& connection);

  // Exact, and not changed by Delete.
  std::int64_t RecordCount() const;
  bool atEnd() const;
  // Moving drops the fields that were set and not stored.
  void MoveFirst();
  void MoveLast();
  void MoveNext();

  // A field of the current row as text in the code page, numbers in their shortest form; nothing for a Null.
  const std::optional<std::string>& value(std::size_t column) const;
  const std::optional<std::string>& value(std::string_view field) const;

  // Begins a new row, which Update stores with the fields that were set. It doesn't join the rows read here.
  void AddNew();
  // Sets a field of the current row, for Update. Nothing clears it. Text is converted by the engine to the
  // kind of the column; columns of dates take a date in any of its forms.
  void Collect(std::string_view field, std::optional<std::string_view> text);
  void Collect(std::string_view field, std::int64_t number);
  void CollectReal(std::string_view field, double number);
  // Stores the fields. What was read of the row stays as it was read.
  void Update();
  void CancelUpdate();
  // Deletes the current row, which can't be read any more. MoveNext leads to the one behind it.
  void Delete();

  // Every later access is an error.
  void Close();

 private:
  struct Row {
    std::int64_t rowid = 0;
    bool deleted = false;
  };
  struct Pending {
    std::string field;
    enum class Kind { null, text, whole, real } kind = Kind::null;
    std::string text;
    std::int64_t whole = 0;
    double real = 0;
  };

  void readRows();
  void requireOpen() const;
  bool rowsCanChange() const { return select_ != nullptr && !select_->table.empty(); }
  const Row& currentRow() const;
  void setPending(Pending pending);
  void insertPending();
  void updatePending();
  void runChange(const std::string& sql, const std::vector<Pending>& values,
                 std::optional<std::int64_t> rowid);

  Connection* connection_;
  std::string table_;  // whose rows can be changed, or that takes new ones
  bool closed_ = false;
  bool adding_ = false;
  std::shared_ptr<const PreparedSelect> select_;
  std::vector<Row> rows_;
  std::vector<std::optional<std::string>> values_;  // of all rows, one behind the other
  std::size_t position_ = 0;
  std::vector<Pending> pending_;
};

}  // namespace zamo
