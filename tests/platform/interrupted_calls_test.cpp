// The calls of the operating system that the files make, with signals that come between and a look at what is
// flushed.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <filesystem>
#include <thread>

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace {

// How often each call is interrupted before it goes through.
constexpr int kInterruptions = 3;
bool isInterrupting = false;
int interruptionsLeft = 0;
int interruptions = 0;

// What was flushed, while it is asked for.
std::vector<std::string>* flushed = nullptr;

bool interrupted() {
  if (!isInterrupting) return false;
  if (interruptionsLeft == 0) {
    interruptionsLeft = kInterruptions;
    return false;
  }
  --interruptionsLeft;
  ++interruptions;
  errno = EINTR;
  return true;
}

}  // namespace

// These stand before those of the library, for this whole test program.
extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return interrupted() ? -1 : static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t read(int descriptor, void* into, std::size_t size) {
  return interrupted() ? -1 : ::syscall(SYS_read, descriptor, into, size);
}

ssize_t write(int descriptor, const void* from, std::size_t size) {
  return interrupted() ? -1 : ::syscall(SYS_write, descriptor, from, size);
}

int fsync(int descriptor) {
  if (interrupted()) return -1;
  if (flushed != nullptr) {
    flushed->push_back(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor)).string());
  }
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}
}

namespace zamo {
namespace {

using test::readFile;
using test::TempFolder;

class Interrupting {
 public:
  Interrupting() {
    isInterrupting = true;
    interruptionsLeft = kInterruptions;
    interruptions = 0;
  }
  Interrupting(const Interrupting&) = delete;
  Interrupting& operator=(const Interrupting&) = delete;
  ~Interrupting() { isInterrupting = false; }
};

// Standard input is this file while it lives.
class GivenInput {
 public:
  explicit GivenInput(int descriptor) : before_(::dup(STDIN_FILENO)) { ::dup2(descriptor, STDIN_FILENO); }
  GivenInput(const GivenInput&) = delete;
  GivenInput& operator=(const GivenInput&) = delete;
  ~GivenInput() {
    if (before_ >= 0) ::dup2(before_, STDIN_FILENO);
    if (before_ >= 0) ::close(before_);
  }

 private:
  int before_;
};

// A signal each half millisecond that lets no call go on.
class SignalStorm {
 public:
  SignalStorm() {
    struct sigaction handler {};
    handler.sa_handler = [](int) { signals_ = signals_ + 1; };
    ::sigaction(SIGALRM, &handler, &before_);
    const itimerval each{{0, 500}, {0, 500}};
    ::setitimer(ITIMER_REAL, &each, nullptr);
  }
  SignalStorm(const SignalStorm&) = delete;
  SignalStorm& operator=(const SignalStorm&) = delete;
  ~SignalStorm() {
    const itimerval none{};
    ::setitimer(ITIMER_REAL, &none, nullptr);
    ::sigaction(SIGALRM, &before_, nullptr);
  }

  static int signals() { return signals_; }

 private:
  inline static volatile std::sig_atomic_t signals_ = 0;
  struct sigaction before_ {};
};

TEST(AnInterruptedCall, of_a_replacement_is_made_again) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  {
    const Interrupting often;
    replaceFile(path, "new");
    // Opening, writing and flushing the file, opening and flushing its folder.
    EXPECT_EQ(interruptions, 5 * kInterruptions);
  }
  EXPECT_EQ(readFile(path), "new");
  EXPECT_EQ(folder.names(), std::vector<std::string>{"a.txt"});
}

TEST(AnInterruptedCall, of_a_copy_is_made_again) {
  const TempFolder folder;
  const std::string content(700'000, 'x');
  const std::string from = folder.write("from.mdb", content);
  {
    const Interrupting often;
    NewFile copy(folder.file("to.mdb"));
    copy.writeCopyOf(from);
    copy.close();
    copy.takePlace();
  }
  EXPECT_TRUE(readFile(folder.file("to.mdb")) == content);
}

TEST(AnInterruptedCall, of_a_growing_file_is_made_again) {
  const TempFolder folder;
  const std::string large(300'000, 'x');
  {
    const Interrupting often;
    GrowingFile file(folder.file("a.txt"));
    file.write("small");
    file.write(large);
    file.close();
    appendToFile(folder.file("a.txt"), "more");
  }
  EXPECT_TRUE(readFile(folder.file("a.txt")) == "small" + large + "more");
}

TEST(AnInterruptedCall, of_a_reader_is_made_again) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", std::string(600'000, 'x'));
  const Interrupting often;
  EXPECT_EQ(contentOf(path).size(), 600'000U);
}

TEST(StandardInput, is_kept_whole_in_a_storm_of_signals) {
  constexpr int kPieces = 200;
  const TempFolder folder;
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  // The writer is not to be interrupted: it starts with the signal blocked.
  sigset_t alarm;
  sigset_t before;
  ::sigemptyset(&alarm);
  ::sigaddset(&alarm, SIGALRM);
  ::pthread_sigmask(SIG_BLOCK, &alarm, &before);
  const int alreadyCome = SignalStorm::signals();
  std::thread writer([to = ends[1], alreadyCome] {
    for (int i = 0; i < kPieces; ++i) {
      // The reader waits at each piece until a signal has come.
      while (SignalStorm::signals() <= alreadyCome + i) std::this_thread::yield();
      EXPECT_EQ(::write(to, "piece\n", 6), 6);
    }
    ::close(to);
  });
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  {
    const GivenInput given(ends[0]);
    const SignalStorm storm;
    keepStandardInput(folder.file("kept.txt"));
  }
  writer.join();
  ::close(ends[0]);
  std::string expected;
  for (int i = 0; i < kPieces; ++i) expected += "piece\n";
  EXPECT_EQ(readFile(folder.file("kept.txt")), expected);
}

TEST(StandardInput, that_does_not_wait_is_waited_for) {
  const TempFolder folder;
  int ends[2];
  ASSERT_EQ(::pipe2(ends, O_NONBLOCK), 0);
  std::thread writer([to = ends[1]] {
    EXPECT_EQ(::write(to, "late", 4), 4);
    ::close(to);
  });
  {
    const GivenInput given(ends[0]);
    keepStandardInput(folder.file("kept.txt"));
  }
  writer.join();
  ::close(ends[0]);
  EXPECT_EQ(readFile(folder.file("kept.txt")), "late");
}

TEST(ARename, is_on_the_disk_with_its_content_before_it_and_its_folder_behind) {
  const TempFolder folder;
  std::vector<std::string> order;
  flushed = &order;
  {
    NewFile file(folder.file("a.txt"));
    file.write("new");
    file.close();
    ASSERT_EQ(order.size(), 1U);
    EXPECT_EQ(order[0], file.path());
    file.takePlace();
  }
  flushed = nullptr;
  ASSERT_EQ(order.size(), 2U);
  EXPECT_EQ(order[1], folder.path());
}

TEST(ARename, in_the_present_folder_flushes_that_one) {
  const TempFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  std::vector<std::string> order;
  flushed = &order;
  replaceFile("a.txt", "new");
  flushed = nullptr;
  std::filesystem::current_path(before);
  ASSERT_EQ(order.size(), 2U);
  EXPECT_EQ(order[1], folder.path());
}

}  // namespace
}  // namespace zamo
