#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/run_time_error.h"
#include "platform/uninterrupted.h"

namespace zamo {
namespace {

constexpr mode_t kForAllWithinTheMask = 0666;
constexpr mode_t kAnyoneWrites = S_IWUSR | S_IWGRP | S_IWOTH;

// Below 0 on failure.
int descriptorOf(const std::string& path, int flags) {
  return uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC, kForAllWithinTheMask); });
}

int openedAt(const std::string& path, int flags) {
  const int descriptor = descriptorOf(path, flags);
  if (descriptor < 0) throw fileError(errno, path);
  return descriptor;
}

bool isOnDisk(int descriptor) {
  // What has no disk behind it can't be flushed.
  return uninterrupted([descriptor] { return ::fsync(descriptor); }) == 0 || errno == EINVAL;
}

RunTimeError noFileError(const std::string& path) {
  return {kPermissionDenied, "Not a regular file: " + textFromUtf8(path)};
}

void requireFile(mode_t mode, const std::string& path) {
  if (S_ISDIR(mode)) throw fileError(EISDIR, path);
  if (!S_ISREG(mode)) throw noFileError(path);
}

// Whether the path is a name for what a program has open, as /dev/stdin is. It can lead to a regular file,
// but stands in no folder where something could be put beside it.
bool namesDescriptor(std::filesystem::path path) {
  constexpr int kMostLinks = 40;
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    const auto folder = std::filesystem::canonical(path.has_parent_path() ? path.parent_path() : ".", error);
    if (folder == "/dev" || folder == "/dev/fd" || folder.string().starts_with("/proc/")) return true;
    const auto target = std::filesystem::read_symlink(folder / path.filename(), error);
    if (error) return false;
    path = folder / target;
  }
  return false;
}

void flushFolderOf(const std::string& path) {
  const std::string folder = std::filesystem::path(path).parent_path().string();
  const int descriptor = descriptorOf(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
  // A folder may be open to changes and closed to readers, and not every file system can flush one.
  if (descriptor < 0) return;
  const bool failed = !isOnDisk(descriptor) && errno == EIO;
  ::close(descriptor);
  if (failed) throw fileError(EIO, path);
}

}  // namespace

RunTimeError fileError(int systemError, const std::string& path) {
  const std::string where = ": " + textFromUtf8(path);
  switch (systemError) {
    case ENOENT:
    case ENOTDIR:
      return {kFileNotFound, "File not found" + where};
    case ENAMETOOLONG:
      return {kFileNotFound, "The name is too long for a file" + where};
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
      return {kPermissionDenied, "Permission denied" + where};
    case ENXIO:  // a socket, or a device that isn't there
      return {kPermissionDenied, "Not a regular file" + where};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {kDiskFull, "Disk full" + where};
    default:
      return {kDeviceError, "Device I/O error" + where};
  }
}

OpenFile::OpenFile(std::string path, std::intptr_t handle) : path_(std::move(path)), handle_(handle) {}

OpenFile OpenFile::forReading(const std::string& path) {
  // Without O_NONBLOCK a pipe would be waited for until somebody writes into it.
  OpenFile file(path, openedAt(path, O_RDONLY | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (::fstat(static_cast<int>(file.handle_), &status) != 0) throw fileError(errno, path);
  requireFile(status.st_mode, path);
  if (namesDescriptor(path)) throw noFileError(path);
  return file;
}

OpenFile OpenFile::standardInput() {
  const int descriptor = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  if (descriptor < 0) throw fileError(errno, "-");
  return {"-", descriptor};
}

OpenFile OpenFile::forAppending(const std::string& path) {
  return {path, openedAt(path, O_WRONLY | O_CREAT | O_APPEND)};
}

std::optional<OpenFile> OpenFile::ofNewName(const std::string& path, const std::string& namedAs) {
  const int descriptor = descriptorOf(path, O_WRONLY | O_CREAT | O_EXCL);
  if (descriptor >= 0) return OpenFile(namedAs, descriptor);
  if (errno != EEXIST) throw fileError(errno, namedAs);
  return {};
}

OpenFile::OpenFile(OpenFile&& other) noexcept
    : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, -1)) {}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
  std::swap(path_, other.path_);
  std::swap(handle_, other.handle_);
  return *this;
}

OpenFile::~OpenFile() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

std::size_t OpenFile::read(char* into, std::size_t size) const {
  for (;;) {
    const ssize_t count = uninterrupted([&] { return ::read(static_cast<int>(handle_), into, size); });
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EAGAIN) throw fileError(errno, path_);
    // Standard input that somebody else has told not to wait.
    pollfd waiting{static_cast<int>(handle_), POLLIN, 0};
    uninterrupted([&waiting] { return ::poll(&waiting, 1, -1); });
  }
}

void OpenFile::write(std::string_view content) const {
  while (!content.empty()) {
    const ssize_t written =
        uninterrupted([&] { return ::write(static_cast<int>(handle_), content.data(), content.size()); });
    if (written < 0) throw fileError(errno, path_);
    content.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OpenFile::closeFlushed() {
  const int descriptor = static_cast<int>(std::exchange(handle_, -1));
  const bool flushed = isOnDisk(descriptor);
  const int flushError = errno;
  // An interrupted close has closed all the same.
  if (::close(descriptor) != 0 && errno != EINTR) throw fileError(errno, path_);
  if (!flushed) throw fileError(flushError, path_);
}

void requireReplaceable(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) return;
    throw fileError(errno, path);
  }
  if (S_ISLNK(status.st_mode)) return;
  requireFile(status.st_mode, path);
  // A rename asks the folder alone, and the superuser may write everything: both would pass over the mode.
  if ((status.st_mode & kAnyoneWrites) == 0) throw fileError(EACCES, path);
  if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw fileError(errno, path);
}

void requireNoDevice(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) return;
  requireFile(status.st_mode, path);
  if (namesDescriptor(path)) throw noFileError(path);
}

void requireNameable(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0 && errno == ENAMETOOLONG) throw fileError(errno, path);
}

void requireRemovable(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) throw fileError(EISDIR, path);
}

TemporaryFolder::TemporaryFolder() {
  std::error_code error;
  path_ = (std::filesystem::temp_directory_path(error) / "zamo-kv19.XXXXXX").string();
  if (error) throw fileError(error.value(), path_);
  if (::mkdtemp(path_.data()) == nullptr) throw fileError(errno, path_);
}

void removeFile(const std::string& path) {
  if (uninterrupted([&] { return ::unlink(path.c_str()); }) != 0 && errno != ENOENT) {
    throw fileError(errno, path);
  }
}

void renameFile(const std::string& from, const std::string& to) {
  if (uninterrupted([&] { return std::rename(from.c_str(), to.c_str()); }) != 0) throw fileError(errno, to);
  flushFolderOf(to);
}

}  // namespace zamo
