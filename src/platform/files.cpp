#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/run_time_error.h"

namespace zamo {
namespace {

constexpr std::size_t kCopyBuffer = 256 * std::size_t{1024};
constexpr std::size_t kLargePiece = 64 * std::size_t{1024};

}  // namespace

class OpenFile {
 public:
  OpenFile(std::string path, int flags)
      : path_(std::move(path)), descriptor_(::open(path_.c_str(), flags, 0666)) {
    if (descriptor_ < 0) throw fileError(errno, path_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }

  // The next bytes, read into `part`; none at the end.
  std::string_view read(std::string& part) const {
    ssize_t count = 0;
    do {
      count = ::read(descriptor_, part.data(), part.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) throw fileError(errno, path_);
    return {part.data(), static_cast<std::size_t>(count)};
  }

  void write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t written = ::write(descriptor_, content.data(), content.size());
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) throw fileError(errno, path_);
      content.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  void closeFlushed() {
    const bool flushed = ::fsync(descriptor_) == 0 || errno == EINVAL;
    const int flushError = errno;
    if (::close(std::exchange(descriptor_, -1)) != 0) throw fileError(errno, path_);
    if (!flushed) throw fileError(flushError, path_);
  }

 private:
  std::string path_;
  int descriptor_;
};

bool fileExists(const std::string& path, const Yield& yield) {
  if (yield) yield();
  std::error_code error;
  return std::filesystem::exists(path, error);
}

void replaceFile(const std::string& path, std::string_view content) {
  const std::string beside = path + ".part";
  try {
    OpenFile file(beside, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC);
    file.write(content);
    file.closeFlushed();
    renameFile(beside, path);
  } catch (const RunTimeError&) {
    ::unlink(beside.c_str());
    throw;
  }
}

void copyFile(const std::string& from, const std::string& destination) {
  OpenFile source(from, O_RDONLY | O_CLOEXEC);
  try {
    OpenFile target(destination, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC);
    std::string part(kCopyBuffer, '\0');
    for (std::string_view content; !(content = source.read(part)).empty();) target.write(content);
    target.closeFlushed();
  } catch (const RunTimeError&) {
    ::unlink(destination.c_str());
    throw;
  }
}

bool isSameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(one, other, error);
}

void requireReadable(const std::string& path) {
  const OpenFile opened(path, O_RDONLY | O_CLOEXEC);
}

void requireRemovable(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) throw fileError(EISDIR, path);
}

void removeFile(const std::string& path) {
  if (::unlink(path.c_str()) != 0 && errno != ENOENT) throw fileError(errno, path);
}

void renameFile(const std::string& from, const std::string& to) {
  if (std::rename(from.c_str(), to.c_str()) != 0) throw fileError(errno, to);
}

void appendToFile(const std::string& path, std::string_view content) {
  OpenFile file(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC);
  file.write(content);
}

GrowingFile::GrowingFile(const std::string& path)
    : file_(std::make_unique<OpenFile>(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC)) {}

GrowingFile::~GrowingFile() {
  try {
    flush();
  } catch (const RunTimeError&) {
    // Whoever lets go of an unfinished file knows that it isn't whole.
  }
}

void GrowingFile::write(std::string_view content) {
  held_ += content;
  if (held_.size() >= kLargePiece) flush();
}

void GrowingFile::flush() {
  if (!held_.empty()) file_->write(std::exchange(held_, {}));
}

void GrowingFile::close() {
  flush();
  file_->closeFlushed();
}

std::string baseOf(std::string_view path) {
  return std::string(path.substr(0, path.size() < 4 ? 0 : path.size() - 4));
}

std::string executableFolder() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

}  // namespace zamo
