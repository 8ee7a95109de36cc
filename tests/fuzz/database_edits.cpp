#include "database_edits.h"

#include <sqlite3.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <memory>

#include "database/load.h"
#include "fuzz_support.h"
#include "support/places.h"
#include "support/temp_folder.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostBytes);

namespace zamo::fuzz {
namespace {

constexpr int kMostInstructions = 300000;
constexpr int kLongestValue = 1 << 20;
constexpr int kMostCopies = 64;
constexpr std::size_t kMostLines = 40;

// The engine itself, over bytes in memory.
class Engine {
 public:
  explicit Engine(const std::string& bytes) {
    sqlite3_open(":memory:", &database_);
    auto* copy = static_cast<unsigned char*>(sqlite3_malloc64(bytes.size()));
    std::memcpy(copy, bytes.data(), bytes.size());
    const auto size = static_cast<sqlite3_int64>(bytes.size());
    sqlite3_deserialize(database_, "main", copy, size, size,
                        SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE);
    sqlite3_limit(database_, SQLITE_LIMIT_LENGTH, kLongestValue);
    sqlite3_limit(database_, SQLITE_LIMIT_ATTACHED, 0);
    run("PRAGMA ignore_check_constraints = ON; PRAGMA writable_schema = ON");
    sqlite3_progress_handler(
        database_, 1000, [](void* left) { return --*static_cast<int*>(left) < 0 ? 1 : 0; }, &left_);
  }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;
  ~Engine() { sqlite3_close(database_); }

  // What can't be done is left.
  void run(const std::string& sql) {
    left_ = kMostInstructions / 1000;
    sqlite3_exec(database_, sql.c_str(), nullptr, nullptr, nullptr);
  }

  // With a value of its own kind in the place of the first "?".
  void run(const std::string& sql, std::string_view value) {
    sqlite3_stmt* statement = nullptr;
    left_ = kMostInstructions / 1000;
    if (sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK) {
      bind(statement, value);
      sqlite3_step(statement);
    }
    sqlite3_finalize(statement);
  }

  std::vector<std::string> column(const std::string& sql) {
    std::vector<std::string> values;
    sqlite3_exec(
        database_, sql.c_str(),
        [](void* taken, int, char** row, char**) {
          static_cast<std::vector<std::string>*>(taken)->emplace_back(row[0]);
          return 0;
        },
        &values, nullptr);
    return values;
  }

  std::string bytes() {
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, void (*)(void*)> content(
        sqlite3_serialize(database_, "main", &size, 0), sqlite3_free);
    return content ? std::string(reinterpret_cast<const char*>(content.get()), static_cast<std::size_t>(size))
                   : std::string();
  }

 private:
  static void bind(sqlite3_stmt* statement, std::string_view value) {
    const std::string rest(value.substr(std::min<std::size_t>(1, value.size())));
    if (value.starts_with('\'')) {
      std::string text = rest;
      for (std::size_t at = 0; (at = text.find("\\n", at)) != std::string::npos;) text.replace(at, 2, "\n");
      sqlite3_bind_text(statement, 1, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    } else if (value.starts_with('#')) {
      sqlite3_bind_double(statement, 1, std::strtod(rest.c_str(), nullptr));
    } else if (value.starts_with('x')) {
      std::string blob;
      for (std::size_t at = 0; at + 2 <= rest.size(); at += 2)
        blob += static_cast<char>(std::strtol(rest.substr(at, 2).c_str(), nullptr, 16));
      sqlite3_bind_blob(statement, 1, blob.data(), static_cast<int>(blob.size()), SQLITE_TRANSIENT);
    }
  }

  sqlite3* database_ = nullptr;
  int left_ = kMostInstructions / 1000;  // thousands of instructions
};

std::string wholeText(const std::string& path) {
  return test::readFile(path);
}

// The word up to the next blank, which is taken off.
std::string_view takeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

std::uint32_t takeNumber(std::string_view& text) {
  const std::string_view word = takeWord(text);
  std::uint32_t number = 0;
  std::from_chars(word.data(), word.data() + word.size(), number);
  return number;
}

bool isName(std::string_view text) {
  return !text.empty() &&
         text.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string_view::npos;
}

std::string rowOf(const std::string& table, std::uint32_t row) {
  return " rowid = (SELECT rowid FROM " + table + " LIMIT 1 OFFSET " + std::to_string(row) +
         " % max(1, (SELECT count(*) FROM " + table + ")))";
}

void set(Engine& engine, std::string_view rest) {
  const std::string_view what = takeWord(rest);
  const std::uint32_t row = takeNumber(rest);
  const std::size_t dot = std::min(what.find('.'), what.size());
  const std::string table(what.substr(0, dot));
  const std::string column(what.substr(std::min(dot + 1, what.size())));
  if (!isName(table) || !isName(column)) return;
  engine.run("UPDATE " + table + " SET " + column + " = ? WHERE" + rowOf(table, row), rest);
}

void copyRow(Engine& engine, std::string_view rest) {
  const std::string table(takeWord(rest));
  const std::uint32_t row = takeNumber(rest);
  const std::uint32_t times = takeNumber(rest) % kMostCopies;
  for (std::uint32_t i = 0; isName(table) && i < times; ++i)
    engine.run("INSERT INTO " + table + " SELECT * FROM " + table + " WHERE" + rowOf(table, row));
}

void dropRow(Engine& engine, std::string_view rest) {
  const std::string table(takeWord(rest));
  if (isName(table)) engine.run("DELETE FROM " + table + " WHERE" + rowOf(table, takeNumber(rest)));
}

struct BytePatch {
  std::uint32_t place = 0;
  std::uint32_t value = 0;
};

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty() && lines.size() < kMostLines) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::uint32_t below(std::size_t limit, std::mt19937& random) {
  return static_cast<std::uint32_t>(random() % limit);
}

template <std::size_t Count>
std::string oneOf(const char* const (&choices)[Count], std::mt19937& random) {
  return choices[below(Count, random)];
}

// clang-format off
constexpr const char* kValues[] = {
    "null", "'", "' ", "'GT1", "'GS1", "'GT2", "'GS2", "'GA1", "'TB2", "'TB3", "'TB5", "'DT2", "'DA1", "'gt1", "'ADD", "'MODIFY",
    "'SUPPRESS", "'KV19D", "'NTFD_PZ", "'RECORDED", "'D", "'M", "'U", "'H", "'V", "'1", "'3", "'TRUE", "'FALSE", "'COORD COMPLETED",
    "'ASSIGNMENT", "'SCRATCHPAD", "'2026-03-07", "'31.02.2026", "'0000-00-00", "'F", "'USA", "'XXXXXXXXXXXXXXXXXXXX", "'a\\nb",
    "'</NOTICE>\\n<NOTICE>", "'t_adm=F", "x00", "x4100FF", "xFF", "xC3", "'\xC3\xA9", "'\xE2\x82\xAC", "'\xF0\x9F\x98\x80", "#0", "#-0", "#1", "#-1",
    "#0.5", "#35", "#36", "#99", "#100", "#350", "#360", "#1e-300", "#1e300", "#inf", "#-inf", "#32767", "#32768", "#2147483647",
    "#2147483648", "#-2147483649", "#9223372036854775807", "#888888888", "#999999999"};
constexpr const char* kStatements[] = {
    "DROP TABLE %", "ALTER TABLE % RENAME TO other", "DELETE FROM %", "ALTER TABLE % ADD COLUMN more TEXT",
    "CREATE TRIGGER loud BEFORE UPDATE ON % BEGIN SELECT RAISE(ABORT, 'no'); END",
    "CREATE TRIGGER quiet AFTER INSERT ON % BEGIN DELETE FROM %; END",
    "CREATE TABLE kept AS SELECT * FROM %; DROP TABLE %; CREATE VIEW % AS SELECT * FROM kept",
    "DROP TABLE %; CREATE VIEW % AS WITH RECURSIVE more(vornakey) AS (SELECT 1 UNION ALL SELECT 1 FROM more) SELECT * FROM more",
    "UPDATE sqlite_schema SET sql = replace(sql, 'TEXT', 'BLOB') WHERE name = '%'",
    "UPDATE sqlite_schema SET rootpage = 2 WHERE name = '%'", "UPDATE sqlite_schema SET sql = 'nonsense' WHERE name = '%'",
    "PRAGMA user_version = 77", "PRAGMA page_size = 512; VACUUM", "PRAGMA auto_vacuum = 1; VACUUM", "PRAGMA encoding = 'UTF-16'",
    "CREATE TABLE lmz_aux_border_contour (a)", "UPDATE % SET vornakey = 1", "CREATE INDEX extra ON % (vornakey)"};
// clang-format on

std::string anyLine(const Subject& subject, std::mt19937& random) {
  const Subject::Column& column = subject.columns[below(subject.columns.size(), random)];
  const std::string row = std::to_string(below(10, random));
  switch (below(16, random)) {
    case 0:
      return "copy " + column.table + ' ' + row + ' ' + std::to_string(1 + below(40, random));
    case 1:
      return "drop " + column.table + ' ' + row;
    case 2: {
      std::string sql = oneOf(kStatements, random);
      for (std::size_t at = 0; (at = sql.find('%', at)) != std::string::npos; at += column.table.size())
        sql.replace(at, 1, column.table);
      return "sql " + sql;
    }
    case 3:
      return "byte " + std::to_string(below(subject.bytes.size(), random)) + ' ' +
             std::to_string(below(256, random));
    case 4:
      return "byte " + std::to_string(below(200, random)) + ' ' + std::to_string(below(256, random));
    default:
      return "set " + column.table + '.' + column.name + ' ' + row + ' ' + oneOf(kValues, random);
  }
}

// Other bytes behind the third blank, where the value of a line stands.
std::string withOtherValue(const std::string& line, std::size_t mostBytes) {
  std::size_t at = 0;
  for (int blank = 0; blank < 3 && at != std::string::npos; ++blank) at = line.find(' ', at + 1);
  at = at == std::string::npos ? line.size() : at + 1;
  std::string bytes = line.substr(at);
  bytes.resize(std::max(mostBytes, bytes.size() + 1));
  bytes.resize(
      LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(bytes.data()), line.size() - at, bytes.size()));
  std::replace(bytes.begin(), bytes.end(), '\n', ' ');
  return line.substr(0, at) + bytes;
}

}  // namespace

Subject makeSubject() {
  const test::TempFolder folder;
  const std::string path = folder.file("subject.mdb");
  std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", path);
  const std::string ntcFile = ZAMO_EXAMPLES "/valid-all-types.txt";
  {
    Connection connection(path);
    LineSource lines(ntcFile);
    NtcRec ntc;
    const LoadRun load{ntc, ntcFile, "", [](const std::string&, std::string_view) {}};
    require(readNtcsFromFileToDB(makeQuietHost(), lines, load, connection).complete);
  }
  Engine engine(wholeText(path));
  // A few rows of what the template brings are enough.
  engine.run("DELETE FROM op_agcy WHERE rowid > 5; DELETE FROM addr_code WHERE rowid > 5");
  engine.run("UPDATE sqlite_schema SET sql = replace(sql, ') STRICT', ')'); VACUUM");
  Subject subject{engine.bytes(), {}};
  for (const std::string& table :
       engine.column("SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite%'")) {
    for (const std::string& name : engine.column("SELECT name FROM pragma_table_info('" + table + "')"))
      subject.columns.push_back({table, name});
  }
  require(!subject.bytes.empty() && !subject.columns.empty());
  return subject;
}

std::string edited(const Subject& subject, std::string_view edits) {
  Engine engine(subject.bytes);
  std::vector<BytePatch> patches;
  for (const std::string& line : linesOf(edits)) {
    std::string_view rest = line;
    const std::string_view verb = takeWord(rest);
    if (verb == "set") set(engine, rest);
    if (verb == "copy") copyRow(engine, rest);
    if (verb == "drop") dropRow(engine, rest);
    if (verb == "sql") engine.run(std::string(rest));
    if (verb == "byte") {
      const std::uint32_t place = takeNumber(rest);
      patches.push_back({place, takeNumber(rest)});
    }
  }
  std::string bytes = engine.bytes();
  for (const BytePatch& patch : patches) {
    if (!bytes.empty()) bytes[patch.place % bytes.size()] = static_cast<char>(patch.value);
  }
  return bytes;
}

std::string mutated(const Subject& subject, std::string_view edits, std::size_t mostBytes,
                    std::mt19937& random) {
  std::vector<std::string> lines = linesOf(edits);
  const std::uint32_t what = lines.empty() ? 0 : below(8, random);
  const std::uint32_t at = lines.empty() ? 0 : below(lines.size(), random);
  if (what == 7) {
    lines.erase(lines.begin() + at);
  } else if (what == 6) {
    lines[at] = anyLine(subject, random);
  } else if (what >= 3) {
    lines[at] = withOtherValue(lines[at], 64);
  } else {
    lines.insert(lines.begin() + at, anyLine(subject, random));
  }
  std::string text;
  for (const std::string& line : lines) {
    if (text.size() + line.size() + 1 <= mostBytes) text += line + '\n';
  }
  return text;
}

}  // namespace zamo::fuzz
