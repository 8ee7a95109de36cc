// An open file, as the operating system gives it. Each system has its own implementation of this.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zamo {

// Every failure is thrown as a RunTimeError. A call that a signal interrupts is made again.
class OpenFile {
 public:
  // A regular file. Anything else is refused at once and never waited for.
  static OpenFile forReading(const std::string& path);
  // What the program is given to read, a pipe or a terminal too.
  static OpenFile standardInput();
  static OpenFile forAppending(const std::string& path);
  // A file that wasn't there; nothing when the name is taken, by a link too. Its errors speak of `namedAs`.
  static std::optional<OpenFile> ofNewName(const std::string& path, const std::string& namedAs);

  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(OpenFile&& other) noexcept;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile();

  // Reads on and gives the count of bytes, 0 at the end.
  std::size_t read(char* into, std::size_t size) const;
  void write(std::string_view content) const;
  // Puts the file on the disk and closes it.
  void closeFlushed();
  // As the system knows it.
  std::intptr_t handle() const { return handle_; }

 private:
  OpenFile(std::string path, std::intptr_t handle);

  std::string path_;
  std::intptr_t handle_;
};

}  // namespace zamo
