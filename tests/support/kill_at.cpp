// Preloaded into a program, kills it before its Nth call that changes a file (ZAMO_KILL_AT), or writes down
// how many such calls it made (ZAMO_CALLS_TO). So a test kills at every step there is, however fast the
// machine.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

long calls = 0;

void countCall() {
  static const char* const wanted = std::getenv("ZAMO_KILL_AT");
  static const long killAt = wanted == nullptr ? 0 : std::atol(wanted);
  if (++calls == killAt) ::kill(::getpid(), SIGKILL);
}

template <typename Function>
Function next(const char* name) {
  return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

int openCounted(const char* name, const char* path, int flags, mode_t mode) {
  if ((flags & O_CREAT) != 0) countCall();
  return next<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

struct AtEnd {
  AtEnd() = default;
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;
  ~AtEnd() {
    const char* const path = std::getenv("ZAMO_CALLS_TO");
    if (path == nullptr) return;
    std::FILE* const file = std::fopen(path, "w");
    std::fprintf(file, "%ld\n", calls);
    std::fclose(file);
  }
};
const AtEnd atEnd;

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = static_cast<mode_t>(va_arg(rest, int));
  va_end(rest);
  return openCounted("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = static_cast<mode_t>(va_arg(rest, int));
  va_end(rest);
  return openCounted("open64", path, flags, mode);
}

ssize_t write(int descriptor, const void* data, size_t size) {
  if (descriptor > STDERR_FILENO) countCall();
  return next<ssize_t (*)(int, const void*, size_t)>("write")(descriptor, data, size);
}

ssize_t pwrite(int descriptor, const void* data, size_t size, off_t offset) {
  countCall();
  return next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite")(descriptor, data, size, offset);
}

ssize_t pwrite64(int descriptor, const void* data, size_t size, off64_t offset) {
  countCall();
  return next<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64")(descriptor, data, size, offset);
}

int ftruncate(int descriptor, off_t size) noexcept {
  countCall();
  return next<int (*)(int, off_t)>("ftruncate")(descriptor, size);
}

int ftruncate64(int descriptor, off64_t size) noexcept {
  countCall();
  return next<int (*)(int, off64_t)>("ftruncate64")(descriptor, size);
}

int rename(const char* from, const char* to) noexcept {
  countCall();
  return next<int (*)(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) noexcept {
  countCall();
  return next<int (*)(const char*)>("unlink")(path);
}

int fsync(int descriptor) {
  countCall();
  return next<int (*)(int)>("fsync")(descriptor);
}

int fdatasync(int descriptor) {
  countCall();
  return next<int (*)(int)>("fdatasync")(descriptor);
}

}  // extern "C"
