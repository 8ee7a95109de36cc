#include "platform/child_process.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using namespace std::chrono_literals;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kAddressesAreLimited = false;
#elif defined(__has_feature)
constexpr bool kAddressesAreLimited = !__has_feature(address_sanitizer);
#else
constexpr bool kAddressesAreLimited = true;
#endif

ChildOrder shell(const std::string& script) {
  return {"/bin/sh", {"-c", script}, {}, 30s, std::size_t{512} * 1024 * 1024, 60s};
}

std::string outputOf(ChildProcess& child) {
  std::string output;
  std::array<char, 4096> part;
  while (const std::size_t count = child.read(part.data(), part.size())) output.append(part.data(), count);
  return output;
}

std::string outputOf(const ChildOrder& order) {
  ChildProcess child(order);
  const std::string output = outputOf(child);
  EXPECT_FALSE(child.tookTooLong());
  return output;
}

TEST(ChildProcess, gives_all_that_the_program_writes_and_then_nothing) {
  ChildProcess child(shell("echo first; echo unseen >&2; echo second"));
  EXPECT_EQ(outputOf(child), "first\nsecond\n");
  char none = 'x';
  EXPECT_EQ(child.read(&none, 1), 0);
  EXPECT_FALSE(child.tookTooLong());
}

TEST(ChildProcess, hands_its_arguments_on_as_they_are) {
  ChildOrder order = shell("printf '<%s>' \"$@\"");
  order.arguments.insert(order.arguments.end(), {"name", "a b", "", "'\"$HOME\n"});
  EXPECT_EQ(outputOf(order), "<a b><><'\"$HOME\n>");
}

TEST(ChildProcess, has_only_the_variables_that_are_named) {
  ::setenv("ZAMO_TEST_KEPT", "kept", 1);
  ::setenv("ZAMO_TEST_OTHER", "other", 1);
  ChildOrder order = shell("echo ${ZAMO_TEST_KEPT-none} ${ZAMO_TEST_OTHER-none} ${ZAMO_TEST_UNSET-none}");
  order.keptVariables = {"ZAMO_TEST_KEPT", "ZAMO_TEST_UNSET"};
  EXPECT_EQ(outputOf(order), "kept none none\n");
}

TEST(ChildProcess, reads_nothing_and_has_no_file_of_ours) {
  EXPECT_EQ(outputOf(shell("cat; for d in /proc/$$/fd/*; do readlink $d; done | grep -v pipe:")),
            "/dev/null\n/dev/null\n");
}

TEST(ChildProcess, that_dies_has_written_what_it_wrote) {
  EXPECT_EQ(outputOf(shell("echo before; kill -SEGV $$; echo behind")), "before\n");
}

TEST(ChildProcess, that_computes_too_long_is_ended) {
  ChildOrder order = shell("echo begun; while :; do :; done");
  order.mostComputing = 1s;
  EXPECT_EQ(outputOf(order), "begun\n");
}

TEST(ChildProcess, that_hangs_is_waited_for_no_longer_than_it_may) {
  ChildOrder order = shell("echo begun; exec sleep 1000");
  order.mostWaiting = 300ms;
  const auto start = std::chrono::steady_clock::now();
  {
    ChildProcess child(order);
    EXPECT_EQ(outputOf(child), "begun\n");
    EXPECT_TRUE(child.tookTooLong());
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, 100s);
}

TEST(ChildProcess, goes_with_the_one_that_started_it) {
  pid_t process = 0;
  {
    ChildProcess child(shell("echo $$; exec sleep 1000"));
    std::array<char, 64> part{};
    ASSERT_GT(child.read(part.data(), part.size() - 1), 0U);
    process = std::atoi(part.data());
  }
  ASSERT_GT(process, 0);
  EXPECT_FALSE(std::filesystem::exists("/proc/" + std::to_string(process)));
}

TEST(ChildProcess, gets_no_more_memory_than_it_may_have) {
  if (!kAddressesAreLimited) GTEST_SKIP() << "not limited under this sanitizer";
  ChildOrder order =
      shell("dd if=/dev/zero of=/dev/null bs=300M count=1 2>/dev/null && echo given || echo refused");
  EXPECT_EQ(outputOf(order), "given\n");
  order.mostMemory = std::size_t{200} * 1024 * 1024;
  EXPECT_EQ(outputOf(order), "refused\n");
}

TEST(ChildProcess, writes_no_file) {
  const test::TempFolder folder;
  const std::string path = folder.file("written.txt");
  EXPECT_EQ(outputOf(shell("echo before; /bin/echo text > '" + path + "'; echo $?")), "before\n153\n");
  EXPECT_EQ(test::readFile(path), "");
}

TEST(ChildProcess, without_its_program_is_an_error) {
  ChildOrder order = shell("");
  order.program = "/nowhere/program";
  try {
    const ChildProcess child(order);
    FAIL() << "started";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number, kFileNotFound);
    EXPECT_EQ(error.text, "File not found: /nowhere/program");
  }
}

}  // namespace
}  // namespace zamo
