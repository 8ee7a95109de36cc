#include "support/jet_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "support/places.h"

namespace zamo::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kOwnFiles = ZAMO_TEST_DATA "/jet";

// The bytes of a file, unpacked if it is packed.
std::string unpacked(const fs::path& path) {
  if (path.extension() != ".gz") return readFile(path.string());
  std::FILE* const pipe = ::popen(("gzip -dc '" + path.string() + "'").c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("no gzip");
  std::string bytes;
  std::array<char, 65536> part;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
    bytes.append(part.data(), count);
  }
  if (::pclose(pipe) != 0) throw std::runtime_error("gzip failed on " + path.string());
  return bytes;
}

// The records of a CSV file by RFC 4180; \N stands for Null.
std::vector<std::vector<TrueField>> records(const std::string& csv) {
  std::vector<std::vector<TrueField>> all;
  std::vector<TrueField> record;
  TrueField field;
  bool quoted = false;
  bool wasQuoted = false;
  const auto endField = [&] {
    field.isNull = !wasQuoted && field.text == "\\N";
    if (field.isNull) field.text.clear();
    record.push_back(std::move(field));
    field = {};
    wasQuoted = false;
  };
  for (std::size_t at = 0; at < csv.size(); ++at) {
    const char c = csv[at];
    if (quoted) {
      if (c != '"') {
        field.text += c;
      } else if (csv[at + 1] == '"') {
        field.text += csv[++at];
      } else {
        quoted = false;
      }
    } else if (c == '"') {
      quoted = wasQuoted = true;
    } else if (c == ',') {
      endField();
    } else if (c == '\n') {
      endField();
      all.push_back(std::move(record));
      record = {};
    } else {
      field.text += c;
    }
  }
  return all;
}

TrueTable readTable(const fs::path& path) {
  TrueTable table;
  table.name = path.filename().string();
  table.name.resize(table.name.find(".csv"));
  table.rows = records(unpacked(path));
  for (TrueField& name : table.rows.at(0)) table.columns.push_back(std::move(name.text));
  table.rows.erase(table.rows.begin());
  return table;
}

}  // namespace

std::string accessFilesFolder() {
  const char* const given = std::getenv("ZAMO_ACCESS_FILES");
  return given != nullptr ? given : ZAMO_ACCESS_FILES;
}

std::string unpackJetFile(const TempFolder& folder, std::string_view name, const std::string& from) {
  for (const auto& entry : fs::directory_iterator(from.empty() ? kOwnFiles : from)) {
    const fs::path packed = entry.path();
    if (packed.extension() != ".gz" || packed.stem().stem() != name) continue;
    return folder.write(packed.stem().string(), unpacked(packed));
  }
  throw std::runtime_error("no Jet file " + std::string(name));
}

std::vector<TrueTable> trueTables(std::string_view name, const std::string& from) {
  std::vector<TrueTable> tables;
  const fs::path truth = fs::path(from.empty() ? kOwnFiles : from) / "truth" / name;
  for (const auto& entry : fs::directory_iterator(truth)) tables.push_back(readTable(entry.path()));
  return tables;
}

const TrueTable& tableNamed(const std::vector<TrueTable>& tables, std::string_view name) {
  const auto found =
      std::find_if(tables.begin(), tables.end(), [name](const TrueTable& one) { return one.name == name; });
  if (found == tables.end()) throw std::runtime_error("no table " + std::string(name));
  return *found;
}

}  // namespace zamo::test
