#include <sys/mman.h>
#include <sys/stat.h>

#include <utility>

#include "platform/mapped_file.h"
#include "platform/open_file.h"
#include "platform/run_time_error.h"

namespace zamo {

namespace {

// No content at all where it can't be mapped.
std::string_view mappedContent(const OpenFile& file) {
  const int descriptor = static_cast<int>(file.handle());
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || status.st_size <= 0) return {};
  const auto size = static_cast<std::size_t>(status.st_size);
  void* data = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, descriptor, 0);
  if (data == MAP_FAILED) return {};
  return {static_cast<const char*>(data), size};
}

}  // namespace

MappedFile::MappedFile(const std::string& path) {
  try {
    const std::string_view content = mappedContent(OpenFile::forReading(path));
    data_ = content.data();
    size_ = content.size();
  } catch (const RunTimeError&) {
    // What can't be read has no content.
  }
}

MappedFile::MappedFile(MappedFile&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0)) {}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
  std::swap(data_, other.data_);
  std::swap(size_, other.size_);
  return *this;
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) ::munmap(const_cast<char*>(data_), size_);
}

}  // namespace zamo
