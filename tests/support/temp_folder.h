// A folder of its own for each test, gone with it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zamo::test {

class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::string& path() const { return path_; }
  std::string file(std::string_view name) const;
  // Writes a file into the folder and gives its path.
  std::string write(std::string_view name, std::string_view content) const;
  // The names of what is in it, sorted.
  std::vector<std::string> names() const;

 private:
  std::string path_;
};

// The bytes of a file; fails the test when it can't be read.
std::string readFile(const std::string& path);

}  // namespace zamo::test
