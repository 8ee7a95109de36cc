// Every row of every Jet file against what another library has written down of it.
#include <gtest/gtest.h>

#include <charconv>
#include <cstdio>
#include <map>
#include <optional>

#include "jetfile/jet_reader.h"
#include "jetfile/jet_values.h"
#include "support/jet_files.h"

namespace zamo {
namespace {

using test::TempFolder;
using test::TrueField;
using test::TrueTable;

struct ReadTable {
  JetTableHead head;
  std::vector<JetRow> rows;
  int lost = 0;
  bool ended = false;
};

struct ReadFile {
  JetCatalogue catalogue;
  std::vector<ReadTable> tables;
  bool ended = false;
  std::optional<JetFailure> failure;
};

ReadFile readWhole(const std::string& path, const std::vector<std::string>& tables) {
  ReadFile file;
  readJetFile(path, tables, [&file](const JetPart& part) {
    if (const auto* catalogue = std::get_if<JetCatalogue>(&part)) file.catalogue = *catalogue;
    if (const auto* head = std::get_if<JetTableHead>(&part)) file.tables.push_back({*head, {}, 0, false});
    if (const auto* row = std::get_if<JetRow>(&part)) file.tables.back().rows.push_back(*row);
    if (std::holds_alternative<JetLostRow>(part)) ++file.tables.back().lost;
    if (std::holds_alternative<JetTableEnd>(part)) file.tables.back().ended = true;
    if (std::holds_alternative<JetFileEnd>(part)) file.ended = true;
    if (const auto* failure = std::get_if<JetFailure>(&part)) file.failure = *failure;
  });
  return file;
}

std::string utf8(std::u16string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    char32_t c = text[at];
    if (c >= 0xD800 && c < 0xDC00) c = 0x10000 + ((c - 0xD800) << 10) + (text[++at] - 0xDC00U);
    if (c < 0x80) {
      result += static_cast<char>(c);
      continue;
    }
    const int trails = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    const unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
    result += static_cast<char>(leads[trails] | (c >> (6 * trails)));
    for (int i = trails - 1; i >= 0; --i) result += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
  }
  return result;
}

std::optional<double> number(const std::string& text) {
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

bool isEqual(const JetValue& value, const TrueField& truth) {
  if (std::holds_alternative<JetNull>(value)) return truth.isNull;
  if (truth.isNull) return false;
  if (const auto* yes = std::get_if<bool>(&value)) return truth.text == (*yes ? "1" : "0");
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return truth.text == std::to_string(*whole);
  if (const auto* real = std::get_if<double>(&value)) return number(truth.text) == *real;
  if (const auto* decimal = std::get_if<JetDecimal>(&value)) return truth.text == decimal->digits;
  if (const auto* text = std::get_if<std::u16string>(&value)) return truth.text == utf8(*text);
  if (const auto* moment = std::get_if<JetMoment>(&value)) {
    const std::optional<DateTime> read = jetDateTime(*moment);
    return read && truth.text == shortDateText(read->date) + " " + timeText(*read);
  }
  return false;
}

void expectTable(const ReadTable& read, const TrueTable& truth) {
  SCOPED_TRACE(truth.name);
  EXPECT_EQ(read.head.table.name, truth.name);
  EXPECT_EQ(read.head.columns, truth.columns);
  EXPECT_TRUE(read.ended);
  EXPECT_EQ(read.lost, 0);
  EXPECT_EQ(read.head.table.rows, truth.rows.size()) << "by the file's own count";
  ASSERT_EQ(read.rows.size(), truth.rows.size());
  int different = 0;
  for (std::size_t row = 0; row < truth.rows.size(); ++row) {
    ASSERT_EQ(read.rows[row].size(), truth.rows[row].size());
    for (std::size_t column = 0; column < truth.columns.size(); ++column) {
      if (isEqual(read.rows[row][column], truth.rows[row][column])) continue;
      if (++different < 5)
        ADD_FAILURE() << "row " << row << ", " << truth.columns[column] << ": "
                      << truth.rows[row][column].text;
    }
  }
  EXPECT_EQ(different, 0);
}

// Gives the number of rows.
std::size_t expectFile(std::string_view name, std::string_view truthName, const std::string& from = {}) {
  SCOPED_TRACE(name);
  const TempFolder folder;
  const std::string path = test::unpackJetFile(folder, name, from);
  const std::vector<TrueTable> truth = test::trueTables(truthName, from);
  std::vector<std::string> names;
  for (const TrueTable& table : truth) names.push_back(table.name);
  const ReadFile read = readWhole(path, names);
  EXPECT_TRUE(read.ended);
  EXPECT_EQ(read.catalogue.tables.size(), truth.size());
  EXPECT_EQ(read.tables.size(), truth.size());
  if (read.tables.size() != truth.size()) return 0;
  std::size_t rows = 0;
  for (std::size_t table = 0; table < truth.size(); ++table) {
    expectTable(read.tables[table], truth[table]);
    rows += read.tables[table].rows.size();
  }
  return rows;
}

struct TrueFile {
  std::string name;
  std::string truth;
  std::size_t rows;
};

void PrintTo(const TrueFile& file, std::ostream* out) {
  *out << file.name;
}

class GeneratedFile : public testing::TestWithParam<TrueFile> {};

TEST_P(GeneratedFile, gives_every_row_and_no_other) {
  EXPECT_EQ(expectFile(GetParam().name, GetParam().truth), GetParam().rows);
}

std::string testName(const testing::TestParamInfo<TrueFile>& info) {
  std::string name = info.param.name;
  for (char& c : name) c = c == '-' ? '_' : c;
  return name;
}

INSTANTIATE_TEST_SUITE_P(
    Truth, GeneratedFile,
    testing::Values(TrueFile{"master-2000", "master-2000", 243}, TrueFile{"master-2003", "master-2003", 234},
                    TrueFile{"work-2000", "work-2000", 7062}, TrueFile{"work-2003", "work-2003", 2246},
                    TrueFile{"edge-2000", "edge-2000", 8566}, TrueFile{"edge-2003", "edge-2003", 49},
                    TrueFile{"moved-2000", "moved-2000", 169}, TrueFile{"old-2000", "old-2000", 2},
                    TrueFile{"central-2000", "central-2000", 2}, TrueFile{"encoded-2000", "master-2000", 243},
                    TrueFile{"faults-2000", "faults-2000", 26}, TrueFile{"codes-2007", "codes-2007", 242}),
    testName);

class FileOfTheOldProgram : public testing::TestWithParam<TrueFile> {};

TEST_P(FileOfTheOldProgram, gives_every_row_and_no_other) {
  const std::string folder = test::accessFilesFolder();
  if (folder.empty()) GTEST_SKIP() << "ZAMO_ACCESS_FILES names no folder with files of the old program";
  EXPECT_EQ(expectFile(GetParam().name, GetParam().truth, folder), GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(Truth, FileOfTheOldProgram,
                         testing::Values(TrueFile{"access2000-columns", "access2000-columns", 2},
                                         TrueFile{"access2000-encoded", "access2000-encoded", 2},
                                         TrueFile{"access2000-moved", "access2000-moved", 7},
                                         TrueFile{"access2003-deleted", "access2003-deleted", 2},
                                         TrueFile{"access2003-unicode", "access2003-unicode", 8},
                                         TrueFile{"access97", "access97", 7}),
                         testName);

}  // namespace
}  // namespace zamo
