// A file's content in memory, shared with whatever else has it mapped.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zamo {

class MappedFile {
 public:
  MappedFile() = default;
  // Empty if the file can't be mapped.
  explicit MappedFile(const std::string& path);
  MappedFile(MappedFile&& other) noexcept;
  MappedFile& operator=(MappedFile&& other) noexcept;
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;
  ~MappedFile();

  std::string_view content() const { return {data_, size_}; }

 private:
  const char* data_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace zamo
