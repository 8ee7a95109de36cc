// Any bytes as a statement in the dialect of the operations, and as the values of one.
#include <sqlite3.h>

#include <cmath>
#include <filesystem>

#include "database/dialect.h"
#include "database/recordset.h"
#include "database/row_cursor.h"
#include "fuzz_support.h"
#include "platform/numbers.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace zamo::fuzz {
namespace {

constexpr int kMostRows = 100;

// No statement of the program's is endless or huge. Those of the fuzzer are ended soon.
constexpr int kMostInstructions = 200000;
constexpr int kLongestValue = 1 << 20;

// A template with some notices in it, open for the whole run: no statement may change it.
class Desk {
 public:
  Desk() : connection_(copiedTemplate()) {
    sqlite3_exec(connection_.handle(), R"(
      INSERT INTO fmtv_vorna (adm, notice_typ, freq_assgn, site_name, d_updated) VALUES
        ('F', 'GT1', 474, 'BOURGES', '2026-03-07'), ('F', 'GS1', 174.928, NULL, NULL), ('SUI', 'GT2', -0.5, '', '1999-12-31');
      INSERT INTO lmz_contour (contour_id, ctry, adm, nb_test_pts) VALUES (1, 'F', 'F', 3), (2, 'F', 'F', NULL);
      INSERT INTO fmtv_rmks (vornakey, rmk_text, rmk_type) VALUES (1, 'a remark', 'ASSIGNMENT'))",
                 nullptr, nullptr, nullptr);
    changes_ = sqlite3_total_changes(connection_.handle());
    require(changes_ > 0);
    sqlite3_limit(connection_.handle(), SQLITE_LIMIT_LENGTH, kLongestValue);
    sqlite3_progress_handler(
        connection_.handle(), 1000, [](void* left) { return --*static_cast<int*>(left) < 0 ? 1 : 0; },
        &left_);
  }

  // Gives the next statement its time.
  void refill() { left_ = kMostInstructions / 1000; }

  Connection& connection() { return connection_; }
  bool isUnchanged() { return sqlite3_total_changes(connection_.handle()) == changes_; }

 private:
  std::string copiedTemplate() {
    const std::string path = folder_.file("notices.mdb");
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path);
    return path;
  }

  test::TempFolder folder_;
  Connection connection_;
  int changes_ = 0;
  int left_ = 0;  // thousands of the engine's instructions
};

template <typename Action>
void mayThrow(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    require(error.number != 0 && !error.text.empty());
  }
}

void walk(std::string_view sql, Connection& connection) {
  RowCursor rows(sql, connection);
  for (int row = 0; row < kMostRows && rows.next(); ++row) {
    for (std::size_t column = 0; column < rows.columnCount(); ++column) {
      rows.value(column);
      rows.isNumber(column);
      rows.columnOf(rows.title(column));
    }
  }
}

void openWhole(std::string_view sql, Connection& connection) {
  Recordset rows(sql, connection);
  for (; !rows.atEnd(); rows.MoveNext()) rows.value(std::size_t{0});
}

// Whatever a value holds, it comes back as it is or doesn't get into a statement at all.
void sendValue(std::string_view value, Connection& connection) {
  mayThrow([&] {
    const Recordset rows("SELECT '" + std::string(joinedText(value)) + "' AS sent", connection);
    require(rows.RecordCount() == 1 && rows.value("sent") == std::string(value));
  });
  mayThrow([&] {
    const Recordset rows("SELECT " + std::string(joinedNumber(value)) + " AS sent", connection);
    const double sent = leadingNumber(value);
    require(rows.RecordCount() == 1 && (!std::isfinite(sent) || leadingNumber(*rows.value("sent")) == sent));
  });
}

}  // namespace
}  // namespace zamo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zamo;
  using namespace zamo::fuzz;
  static Desk desk;
  const std::string_view text = textOf(data, size);
  desk.refill();
  mayThrow([&] { walk(text, desk.connection()); });
  desk.refill();
  mayThrow([&] { openWhole(text, desk.connection()); });
  desk.refill();
  mayThrow([&] { desk.connection().openTable(text); });
  sendValue(text, desk.connection());
  require(desk.isUnchanged());
  return 0;
}
