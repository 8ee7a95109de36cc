#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace zamo::test {

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "zamo_XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) throw std::filesystem::filesystem_error("mkdtemp", {});
  path_ = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TempFolder::file(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

std::string TempFolder::write(std::string_view name, std::string_view content) const {
  const std::string path = file(name);
  std::ofstream(path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
  return path;
}

std::vector<std::string> TempFolder::names() const {
  std::vector<std::string> all;
  for (const auto& entry : std::filesystem::directory_iterator(path_))
    all.push_back(entry.path().filename().string());
  std::sort(all.begin(), all.end());
  return all;
}

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.good()) << path;
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace zamo::test
