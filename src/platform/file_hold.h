// Holding a file, so that other programs of ours leave it in its place, and finding out who else has it open.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace zamo {

// Somebody who has a file open, as far as can be seen.
struct FileUser {
  std::string program;  // empty when it can't be seen
  std::int64_t process = 0;
  std::string account;
};

class HeldFile;

// While this or a copy of it lives, SoleUse is refused to all others. It ends with the process, whatever ends
// that.
using FileHold = std::shared_ptr<const HeldFile>;

// Holds the file that the path leads to. Somebody who puts another one in its place just now is waited for,
// for some seconds; then a RunTimeError is thrown. Empty when there is no such file or it can't be read. What
// the engine has open on the file must be closed before the last hold of this process goes.
FileHold holdFile(const std::string& path);

// Whether the path still leads to the held file.
bool leadsTo(const std::string& path, const FileHold& hold);

// The use of a file by nobody else, which whoever replaces or removes it needs. While this lives, holdFile
// waits. The process itself must not have the file open.
class SoleUse {
 public:
  // An existing file. Throws RunTimeError when it can't be opened for writing.
  explicit SoleUse(std::string path);
  SoleUse(const SoleUse&) = delete;
  SoleUse& operator=(const SoleUse&) = delete;
  ~SoleUse();

  // Asks for it: gives who has the file open, after having waited that long for the others to close it, or
  // nothing when it is granted. Others who know nothing of holds can open it again afterwards.
  std::optional<FileUser> ask(std::chrono::milliseconds patience = {});

  // Asks again. Once granted, whoever opens the file waits until this is gone, this process as well.
  std::optional<FileUser> shutOut();

 private:
  void reopen();
  std::optional<FileUser> otherUser(bool shutOut);

  std::string path_;
  std::intptr_t handle_ = -1;
};

// One of our programs at a time works on what stands in a folder. Waits its turn for some seconds, and where
// folders can't be locked not at all.
class FolderTurn {
 public:
  explicit FolderTurn(const std::string& pathInFolder);
  FolderTurn(const FolderTurn&) = delete;
  FolderTurn& operator=(const FolderTurn&) = delete;
  ~FolderTurn();

 private:
  std::intptr_t handle_ = -1;
};

}  // namespace zamo
