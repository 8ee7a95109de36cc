#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <thread>
#include <utility>

#include "platform/code_page.h"
#include "platform/file_hold.h"
#include "platform/run_time_error.h"

namespace zamo {
namespace {

using std::chrono::milliseconds;

// A program locks one byte far behind the end of any file; its place tells the process. So SQLite's locks,
// which lie elsewhere, are never met.
constexpr off_t kFirstHold = 0x7000'0000'0000'0000;
constexpr off_t kHolds = off_t{1} << 32;

constexpr milliseconds kPoll(10);
constexpr milliseconds kReplacing(10'000);
constexpr milliseconds kFolderTurn(30'000);
// Who can't be seen may be gone in a moment: a program that looks at every new file, say.
constexpr milliseconds kPassing(300);

using FileId = std::pair<dev_t, ino_t>;

std::optional<FileId> idOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return {};
  return FileId(status.st_dev, status.st_ino);
}

std::optional<FileId> idOf(int descriptor) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) return {};
  return FileId(status.st_dev, status.st_ino);
}

// Tries until it is done or the time is up.
template <typename Attempt>
bool within(milliseconds patience, Attempt attempt) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!attempt()) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(kPoll);
  }
  return true;
}

struct flock lockOf(short kind, off_t start, off_t length) {
  struct flock lock {};
  lock.l_type = kind;
  lock.l_whence = SEEK_SET;
  lock.l_start = start;
  lock.l_len = length;
  return lock;
}

enum class Locked { yes, no, impossible };

// These locks belong to the open file and not to the process: no other descriptor's closing drops them.
Locked tryLock(int descriptor, struct flock lock) {
  if (::fcntl(descriptor, F_OFD_SETLK, &lock) == 0) return Locked::yes;
  return errno == EAGAIN || errno == EACCES || errno == EINTR ? Locked::no : Locked::impossible;
}

// Granted only when nobody else has the file open; whoever opens it then waits until it is given back.
Locked takeLease(int descriptor) {
  // The signal that tells of those who wait; without a handler it does nothing, unlike the usual one.
  ::fcntl(descriptor, F_SETSIG, SIGURG);
  if (::fcntl(descriptor, F_SETLEASE, F_WRLCK) == 0) return Locked::yes;
  return errno == EAGAIN ? Locked::no : Locked::impossible;
}

std::string firstLine(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  return line;
}

std::string accountName(uid_t user) {
  const passwd* const entry = ::getpwuid(user);
  return entry == nullptr ? std::to_string(user) : entry->pw_name;
}

FileUser describeProcess(std::int64_t process) {
  const std::filesystem::path folder = "/proc/" + std::to_string(process);
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0) return {};
  return {textFromUtf8(firstLine(folder / "comm")), process, textFromUtf8(accountName(status.st_uid))};
}

// The other process that has the file open, among those whose files we may see.
std::optional<FileUser> seenUser(const FileId& file, int ownDescriptor) {
  namespace fs = std::filesystem;
  std::error_code failed;
  const std::string own = "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(ownDescriptor);
  for (const fs::directory_entry& entry : fs::directory_iterator("/proc", failed)) {
    const std::string name = entry.path().filename().string();
    std::int64_t process = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
    if (error != std::errc() || end != name.data() + name.size()) continue;
    std::error_code hidden;
    for (fs::directory_iterator opened(entry.path() / "fd", hidden);
         !hidden && opened != fs::directory_iterator(); opened.increment(hidden)) {
      if (opened->path() != own && idOf(opened->path().string()) == file) return describeProcess(process);
    }
  }
  return {};
}

int openFile(const std::string& path, int mode) {
  // Without O_NONBLOCK the opener waits for a pipe's other end, and for somebody who keeps others out.
  return ::open(path.c_str(), mode | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

}  // namespace

class HeldFile {
 public:
  HeldFile(int descriptor, FileId id) : descriptor_(descriptor), id_(id) {}
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;
  ~HeldFile() {
    all().erase(id_);
    ::close(descriptor_);
  }

  const FileId& id() const { return id_; }

  // Closing any descriptor of a file drops the engine's locks on it in the whole process, so a process has
  // one for all that hold it.
  static std::map<FileId, std::weak_ptr<const HeldFile>>& all() {
    static std::map<FileId, std::weak_ptr<const HeldFile>> held;
    return held;
  }
  static FileHold find(const FileId& id) {
    const auto found = all().find(id);
    return found == all().end() ? FileHold() : found->second.lock();
  }

 private:
  int descriptor_;
  FileId id_;
};

namespace {

// Whether it is settled: held, or nothing to be held.
bool tryHold(const std::string& path, FileHold& hold) {
  const std::optional<FileId> wanted = idOf(path);
  if (!wanted) return true;
  hold = HeldFile::find(*wanted);
  if (hold != nullptr) return true;
  const int descriptor = openFile(path, O_RDONLY);
  if (descriptor < 0) return errno != EAGAIN && errno != EINTR;
  const Locked locked = tryLock(descriptor, lockOf(F_RDLCK, kFirstHold + ::getpid(), 1));
  const std::optional<FileId> id = idOf(descriptor);
  if (locked == Locked::no || !id || idOf(path) != id) {
    ::close(descriptor);
    return false;
  }
  hold = std::make_shared<HeldFile>(descriptor, *id);
  HeldFile::all()[*id] = hold;
  return true;
}

// Who has the byte locked that is in our way.
FileUser holderOf(int descriptor) {
  struct flock lock = lockOf(F_WRLCK, kFirstHold, kHolds);
  const bool known =
      ::fcntl(descriptor, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK && lock.l_len == 1;
  return known ? describeProcess(lock.l_start - kFirstHold) : FileUser{};
}

}  // namespace

FileHold holdFile(const std::string& path) {
  FileHold hold;
  if (!within(kReplacing, [&] { return tryHold(path, hold); })) throw fileError(EACCES, path);
  return hold;
}

bool leadsTo(const std::string& path, const FileHold& hold) {
  return hold != nullptr && idOf(path) == hold->id();
}

SoleUse::SoleUse(std::string path) : path_(std::move(path)) {
  reopen();
}

SoleUse::~SoleUse() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

std::optional<FileUser> SoleUse::ask(milliseconds patience) {
  std::optional<FileUser> user;
  const auto isAlone = [&] {
    user = otherUser(false);
    return !user;
  };
  within(patience, isAlone);
  if (user && user->process == 0) within(kPassing, isAlone);
  return user;
}

std::optional<FileUser> SoleUse::shutOut() {
  return otherUser(true);
}

void SoleUse::reopen() {
  if (handle_ >= 0) ::close(static_cast<int>(std::exchange(handle_, -1)));
  const std::optional<FileId> id = idOf(path_);
  if (id && HeldFile::find(*id) != nullptr) return;
  const auto opened = [this] {
    handle_ = openFile(path_, O_RDWR);
    return handle_ >= 0 || (errno != EAGAIN && errno != EINTR);
  };
  within(kReplacing, opened);
  if (handle_ < 0) throw fileError(errno, path_);
}

std::optional<FileUser> SoleUse::otherUser(bool shutOut) {
  // Another program may have replaced the file since, or this one let go of it.
  if (handle_ < 0 || idOf(static_cast<int>(handle_)) != idOf(path_)) reopen();
  if (handle_ < 0) return describeProcess(::getpid());
  const int descriptor = static_cast<int>(handle_);
  const std::optional<FileId> id = idOf(descriptor);
  if (tryLock(descriptor, lockOf(F_WRLCK, kFirstHold, kHolds)) == Locked::no) {
    const FileUser holder = holderOf(descriptor);
    return holder.program.empty() ? seenUser(*id, descriptor).value_or(FileUser{}) : holder;
  }
  switch (takeLease(descriptor)) {
    case Locked::yes:
      if (!shutOut) ::fcntl(descriptor, F_SETLEASE, F_UNLCK);
      return {};
    case Locked::no:
      return seenUser(*id, descriptor).value_or(FileUser{});
    case Locked::impossible:
      break;
  }
  return seenUser(*id, descriptor);
}

FolderTurn::FolderTurn(const std::string& pathInFolder) {
  const std::string folder = std::filesystem::path(pathInFolder).parent_path().string();
  const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  handle_ = descriptor;
  if (descriptor < 0) return;
  within(kFolderTurn, [descriptor] {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR);
  });
}

FolderTurn::~FolderTurn() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

}  // namespace zamo
