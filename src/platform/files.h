// Files by path: what is there, and writing that never leaves half a file under its final name.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/numbers.h"

namespace zamo {

// True if the operating system finds something of that name. Errors count as not found. Yields once.
bool fileExists(const std::string& path, const Yield& yield = {});

// Puts `content` in place of the file: it is written beside it, flushed to the disk and renamed over it.
// On failure the old file stands as it was and a RunTimeError is thrown.
void replaceFile(const std::string& path, std::string_view content);

// Copies the bytes of a file and flushes them to the disk. On failure nothing is left at `destination`, and a
// RunTimeError is thrown.
void copyFile(const std::string& from, const std::string& destination);

// Whether both paths lead to one file.
bool isSameFile(const std::string& one, const std::string& other);

// Opens the file for reading and closes it again. Throws RunTimeError.
void requireReadable(const std::string& path);

// Throws RunTimeError when the path is taken by something that is no file.
void requireRemovable(const std::string& path);

// Either throws RunTimeError. A file that isn't there is removed already.
void removeFile(const std::string& path);
void renameFile(const std::string& from, const std::string& to);

// Adds `content` at the end of the file, which is created if need be. Throws RunTimeError.
void appendToFile(const std::string& path, std::string_view content);

class OpenFile;

// A file that grows while it is written. Every failure is thrown as a RunTimeError.
class GrowingFile {
 public:
  // Creates the file; one that is there is emptied.
  explicit GrowingFile(const std::string& path);
  GrowingFile(const GrowingFile&) = delete;
  GrowingFile& operator=(const GrowingFile&) = delete;
  // Gives the file what it holds back, without a word when that fails.
  ~GrowingFile();

  // Adds at the end. Small pieces are held back until they make a large one.
  void write(std::string_view content);
  // Gives the file all that is held back.
  void flush();
  // The same and puts the file on the disk. Nothing may be written behind it.
  void close();

 private:
  std::unique_ptr<OpenFile> file_;
  std::string held_;
};

// A path less its last four characters, whatever they are.
std::string baseOf(std::string_view path);

// The folder of the running executable, without a separator at its end.
std::string executableFolder();

}  // namespace zamo
