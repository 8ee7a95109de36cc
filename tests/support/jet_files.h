// The Jet files of the tests, and what each holds by the word of the library that wrote it down.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/temp_folder.h"

namespace zamo::test {

// A field of a table that stands in a file: UTF-8, and Null told apart from an empty text.
struct TrueField {
  bool isNull = false;
  std::string text;
};

struct TrueTable {
  std::string name;
  std::vector<std::string> columns;
  std::vector<std::vector<TrueField>> rows;
};

// The folder of the files that were written by the old program itself; empty where they aren't at hand.
std::string accessFilesFolder();

// Unpacks a file, by its name without ending, and gives its path in `folder`. Of another folder when `from`
// is given.
std::string unpackJetFile(const TempFolder& folder, std::string_view name, const std::string& from = {});

// Every table of the file, those without rows among them.
std::vector<TrueTable> trueTables(std::string_view name, const std::string& from = {});
const TrueTable& tableNamed(const std::vector<TrueTable>& tables, std::string_view name);

}  // namespace zamo::test
