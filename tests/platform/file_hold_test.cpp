#include "platform/file_hold.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "platform/files.h"
#include "platform/run_time_error.h"
#include "support/other_program.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using std::chrono::milliseconds;
using test::OtherProgram;

class AFile : public testing::Test {
 protected:
  static bool isHeldByThisProcess(const std::optional<FileUser>& user) {
    return user && user->process == ::getpid() && user->program == "platform_test" && !user->account.empty();
  }

  test::TempFolder folder;
  std::string path = folder.write("file", "content");
};

TEST_F(AFile, that_nobody_has_open_is_free) {
  EXPECT_FALSE(SoleUse(path).ask());
}

TEST_F(AFile, that_is_held_is_not_free_until_the_last_hold_is_gone) {
  FileHold hold = holdFile(path);
  FileHold again = holdFile(path);
  ASSERT_NE(hold, nullptr);
  EXPECT_TRUE(isHeldByThisProcess(SoleUse(path).ask()));
  hold.reset();
  EXPECT_TRUE(isHeldByThisProcess(SoleUse(path).ask()));
  again.reset();
  EXPECT_FALSE(SoleUse(path).ask());
}

TEST_F(AFile, that_is_let_go_of_is_free_for_who_asked_before) {
  FileHold hold = holdFile(path);
  SoleUse use(path);
  EXPECT_TRUE(use.ask());
  hold.reset();
  EXPECT_FALSE(use.ask());
}

// Holds a file in a process of its own.
std::vector<std::string> programThatHas(const std::string& path) {
  return {"sh", "-c", "exec 9<\"$1\"; echo ready; read answer", "sh", path};
}

TEST_F(AFile, that_another_program_has_open_is_not_free) {
  OtherProgram other(programThatHas(path));
  EXPECT_EQ(other.hear(), "ready");
  const std::optional<FileUser> user = SoleUse(path).ask();
  ASSERT_TRUE(user);
  EXPECT_EQ(user->process, other.process());
  EXPECT_EQ(user->program, "sh");
  other.leave();
  EXPECT_FALSE(SoleUse(path).ask());
}

TEST_F(AFile, is_free_again_when_who_had_it_is_killed) {
  OtherProgram other(programThatHas(path));
  EXPECT_EQ(other.hear(), "ready");
  EXPECT_TRUE(SoleUse(path).ask());
  other.kill();
  EXPECT_FALSE(SoleUse(path).ask());
}

TEST_F(AFile, is_waited_for_as_long_as_one_likes) {
  auto other = std::make_unique<OtherProgram>(programThatHas(path));
  EXPECT_EQ(other->hear(), "ready");
  SoleUse use(path);
  std::thread ending([&other] { other->leave(); });
  EXPECT_FALSE(use.ask(milliseconds(60'000)));
  ending.join();
}

TEST_F(AFile, that_is_replaced_keeps_others_waiting_and_leads_them_to_the_new_one) {
  const std::string beside = folder.write("beside", "new");
  auto use = std::make_unique<SoleUse>(path);
  EXPECT_FALSE(use->ask());
  EXPECT_FALSE(use->shutOut());
  std::atomic<bool> held = false;
  FileHold hold;
  std::thread other([&] {
    hold = holdFile(path);
    held = true;
  });
  // Nothing to wait for: whether the thread has begun or not, it can't be held yet.
  EXPECT_FALSE(held);
  renameFile(beside, path);
  use.reset();
  other.join();
  ASSERT_NE(hold, nullptr);
  EXPECT_TRUE(leadsTo(path, hold));
}

TEST_F(AFile, that_gives_way_to_another_is_no_longer_led_to) {
  const FileHold hold = holdFile(path);
  EXPECT_TRUE(leadsTo(path, hold));
  replaceFile(path, "new");
  EXPECT_FALSE(leadsTo(path, hold));
  EXPECT_FALSE(SoleUse(path).ask());
}

TEST_F(AFile, that_is_none_is_not_held) {
  EXPECT_EQ(holdFile(folder.file("none")), nullptr);
  EXPECT_EQ(holdFile(folder.path()), nullptr);
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  EXPECT_EQ(holdFile(folder.file("pipe")), nullptr);
  EXPECT_THROW(SoleUse(folder.file("none")), RunTimeError);
}

TEST_F(AFile, of_a_folder_whose_turn_another_has_waits) {
  auto turn = std::make_unique<FolderTurn>(path);
  std::atomic<int> order = 0;
  int mine = 0;
  int theirs = 0;
  std::thread other([&] {
    const FolderTurn second(path);
    theirs = ++order;
  });
  mine = ++order;
  turn.reset();
  other.join();
  EXPECT_EQ(mine, 1);
  EXPECT_EQ(theirs, 2);
}

// The engine's locks on a file go when any descriptor of it is closed: the holds of one process share theirs.
TEST_F(AFile, keeps_the_locks_of_the_engine_while_a_second_hold_comes_and_goes) {
  const FileHold hold = holdFile(path);
  const int descriptor = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  lock.l_len = 10;
  ASSERT_EQ(::fcntl(descriptor, F_SETLK, &lock), 0);
  holdFile(path).reset();
  EXPECT_TRUE(SoleUse(path).ask());
  // Another process sees whether it is still there.
  OtherProgram other({"python3", "-c",
                      "import fcntl,sys\n"
                      "try:\n"
                      "  fcntl.lockf(open(sys.argv[1],'r+'), fcntl.LOCK_EX | fcntl.LOCK_NB, 10)\n"
                      "  print('free')\n"
                      "except OSError:\n"
                      "  print('locked')\n",
                      path});
  EXPECT_EQ(other.hear(), "locked");
  ::close(descriptor);
}

}  // namespace
}  // namespace zamo
