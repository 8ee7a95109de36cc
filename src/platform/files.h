// Files by path: what is there, and writing that never leaves half a file under its final name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/numbers.h"
#include "platform/open_file.h"

namespace zamo {

// True if the operating system finds something of that name. Errors count as not found. Yields once.
bool fileExists(const std::string& path, const Yield& yield = {});

// A file that is to take the place of another. It is made beside it under a name that no other has, and never
// through a link. Until it has taken the place it goes with this object. Every failure is thrown as a
// RunTimeError, which speaks of the place.
class NewFile {
 public:
  // Refused where requireReplaceable refuses.
  explicit NewFile(std::string place);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // Where it is now. Once it is closed, no descriptor of ours is on it.
  const std::string& path() const { return path_; }

  void write(std::string_view content);
  void writeCopyOf(const std::string& from);
  // Puts the content on the disk. Nothing may be written behind it.
  void close();
  // Puts this file where the other one is, if there is one, in one step. It may be open still.
  void takePlace();

 private:
  std::string place_;
  std::string path_;
  std::optional<OpenFile> file_;
  bool isInPlace_ = false;
};

// Whether a NewFile for the place has or had this name; both without a folder.
bool isNewFileName(std::string_view name, std::string_view place);

// Puts `content` in place of the file. On failure the old file stands as it was and a RunTimeError is thrown.
void replaceFile(const std::string& path, std::string_view content);

// Throws RunTimeError when what stands at the path is no file or may not be written, whoever asks. Of a link
// only the link is replaced.
void requireReplaceable(const std::string& path);

// Throws RunTimeError when the path leads to what can be waited for without end or has no place on a disk: a
// pipe, a device, another name for what a program has open. Folders and what isn't there pass.
void requireNoDevice(const std::string& path);

// Throws RunTimeError when the path is too long for a file to have.
void requireNameable(const std::string& path);

// Whether both paths lead to one file.
bool isSameFile(const std::string& one, const std::string& other);

// Opens the file for reading and closes it again. Throws RunTimeError.
void requireReadable(const std::string& path);

// Throws RunTimeError when the path is taken by something that is no file.
void requireRemovable(const std::string& path);

// Either throws RunTimeError. A file that isn't there is removed already. A new name is on the disk when this
// returns.
void removeFile(const std::string& path);
void renameFile(const std::string& from, const std::string& to);

// A folder of its own for what is needed for a while; it goes with this object and all that is in it. Throws
// RunTimeError.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// Reads what the program is given on its standard input to its end and makes a file of it. Throws
// RunTimeError.
void keepStandardInput(const std::string& path);

// The bytes of a file. Throws RunTimeError.
std::string contentOf(const std::string& path);

// Adds `content` at the end of the file, which is created if need be. Throws RunTimeError.
void appendToFile(const std::string& path, std::string_view content);

// A file that grows while it is written. Every failure is thrown as a RunTimeError.
class GrowingFile {
 public:
  // Makes the file, in place of one that is there.
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
  NewFile file_;
  std::string held_;
};

// A path less its last four characters, whatever they are.
std::string baseOf(std::string_view path);

}  // namespace zamo
