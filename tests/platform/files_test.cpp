#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::readFile;
using test::TempFolder;

// The error that `work` throws; number 0 when it throws none.
template <typename Work>
RunTimeError errorOf(Work work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error;
  }
  return {};
}

std::size_t entriesIn(const std::string& folder) {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
  return count;
}

// Lets files grow to `bytes` only, so that writes fail midway as they do on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit{bytes, old_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    ::setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldHandler_);
  }

 private:
  rlimit old_{};
  void (*oldHandler_)(int);
};

TEST(Files, exist_as_file_or_folder) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "");
  EXPECT_TRUE(fileExists(path));
  EXPECT_TRUE(fileExists(folder.path()));
  EXPECT_FALSE(fileExists(folder.file("b.txt")));
  EXPECT_FALSE(fileExists(""));
}

TEST(Files, errors_count_as_not_found) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "");
  EXPECT_FALSE(fileExists(path + "/below"));
  EXPECT_FALSE(fileExists(folder.file(std::string(5000, 'x'))));
}

TEST(Files, the_question_whether_one_exists_yields_once) {
  int yields = 0;
  fileExists("/nowhere", [&yields] { ++yields; });
  EXPECT_EQ(yields, 1);
}

TEST(ReplaceFile, creates_the_file_byte_for_byte) {
  const TempFolder folder;
  const std::string content("a\r\n\0\261\n", 6);
  replaceFile(folder.file("a.txt"), content);
  EXPECT_EQ(readFile(folder.file("a.txt")), content);
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, leaves_nothing_of_a_longer_old_file) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "a long old text");
  replaceFile(path, "new");
  EXPECT_EQ(readFile(path), "new");
  replaceFile(path, "");
  EXPECT_EQ(readFile(path), "");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, a_missing_folder_is_file_not_found) {
  const TempFolder folder;
  const RunTimeError error = errorOf([&] { replaceFile(folder.file("gone/a.txt"), "new"); });
  EXPECT_EQ(error.number, 53);
  EXPECT_NE(error.text, "");
  EXPECT_EQ(entriesIn(folder.path()), 0U);
}

TEST(ReplaceFile, a_folder_of_that_name_is_permission_denied_and_stays) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  std::filesystem::create_directory(path);
  std::filesystem::create_directory(path + "/inside");
  const RunTimeError error = errorOf([&] { replaceFile(path, "new"); });
  EXPECT_EQ(error.number, 70);
  EXPECT_TRUE(std::filesystem::is_directory(path + "/inside"));
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, a_full_disk_leaves_the_old_file_and_no_other) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  RunTimeError error;
  {
    const FileSizeLimit limit(10000);
    error = errorOf([&] { replaceFile(path, std::string(50000, 'x')); });
  }
  EXPECT_EQ(error.number, 61);
  EXPECT_NE(error.text, "");
  EXPECT_EQ(readFile(path), "the old text");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, a_full_disk_leaves_no_new_file) {
  const TempFolder folder;
  RunTimeError error;
  {
    const FileSizeLimit limit(10000);
    error = errorOf([&] { replaceFile(folder.file("a.txt"), std::string(50000, 'x')); });
  }
  EXPECT_EQ(error.number, 61);
  EXPECT_EQ(entriesIn(folder.path()), 0U);
}

TEST(ReplaceFile, works_again_after_a_failure) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  {
    const FileSizeLimit limit(10000);
    errorOf([&] { replaceFile(path, std::string(50000, 'x')); });
  }
  replaceFile(path, std::string(50000, 'x'));
  EXPECT_EQ(readFile(path), std::string(50000, 'x'));
}

TEST(ReplaceFile, a_folder_without_write_permission_keeps_the_old_file) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions don't bind the superuser";
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  ::chmod(folder.path().c_str(), 0500);
  const RunTimeError error = errorOf([&] { replaceFile(path, "new"); });
  ::chmod(folder.path().c_str(), 0700);
  EXPECT_EQ(error.number, 70);
  EXPECT_EQ(readFile(path), "the old text");
}

// The mode binds everybody here, the superuser too.
void protect(const std::string& path) {
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
}

TEST(ReplaceFile, a_write_protected_file_is_permission_denied_and_stays) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  protect(path);
  const RunTimeError error = errorOf([&] { replaceFile(path, "new"); });
  EXPECT_EQ(error.number, 70);
  EXPECT_EQ(error.text, "Permission denied: " + path);
  EXPECT_EQ(readFile(path), "the old text");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, replaces_a_link_and_never_what_it_leads_to) {
  const TempFolder folder;
  const std::string elsewhere = folder.write("elsewhere.txt", "not touched");
  std::filesystem::create_symlink(elsewhere, folder.file("a.txt"));
  std::filesystem::create_hard_link(elsewhere, folder.file("b.txt"));
  replaceFile(folder.file("a.txt"), "new");
  replaceFile(folder.file("b.txt"), "new");
  EXPECT_EQ(readFile(elsewhere), "not touched");
  EXPECT_EQ(readFile(folder.file("a.txt")), "new");
  EXPECT_EQ(readFile(folder.file("b.txt")), "new");
}

// Each that stands in a folder for somebody's file.
TEST(ReplaceFile, touches_no_other_file_whatever_its_name) {
  const TempFolder folder;
  const std::string elsewhere = folder.write("elsewhere.txt", "not touched");
  std::filesystem::create_symlink(elsewhere, folder.file("a.txt.part"));
  std::filesystem::create_hard_link(elsewhere, folder.file("b.txt.part"));
  replaceFile(folder.file("a.txt"), "new");
  replaceFile(folder.file("b.txt"), "new");
  EXPECT_EQ(readFile(elsewhere), "not touched");
  EXPECT_EQ(entriesIn(folder.path()), 5U);
}

TEST(ReplaceFile, what_is_no_file_is_refused_and_stays) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  const RunTimeError error = errorOf([&] { replaceFile(path, "new"); });
  EXPECT_EQ(error.number, 70);
  EXPECT_EQ(error.text, "Not a regular file: " + path);
  EXPECT_TRUE(std::filesystem::is_fifo(path));
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ReplaceFile, takes_the_longest_name_there_can_be_and_refuses_a_longer_one) {
  const TempFolder folder;
  const std::string path = folder.file(std::string(255, 'x'));
  replaceFile(path, "new");
  EXPECT_EQ(readFile(path), "new");
  const RunTimeError error = errorOf([&] { replaceFile(path + "x", "new"); });
  EXPECT_EQ(error.number, 53);
  EXPECT_EQ(error.text, "The name is too long for a file: " + path + "x");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(NewFile, has_a_name_of_its_own_in_the_folder_of_the_place_it_is_to_take) {
  const TempFolder folder;
  const std::string place = folder.write("a.mdb", "the old one");
  NewFile one(place);
  NewFile other(place);
  EXPECT_NE(one.path(), other.path());
  EXPECT_EQ(std::filesystem::path(one.path()).parent_path(), folder.path());
  EXPECT_EQ(std::filesystem::file_size(one.path()), 0U);
  EXPECT_EQ(readFile(place), "the old one");
}

TEST(NewFile, in_the_present_folder_has_no_folder_in_its_name) {
  const TempFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  {
    NewFile file("a.mdb");
    EXPECT_EQ(file.path().find('/'), std::string::npos);
    file.takePlace();
  }
  std::filesystem::current_path(before);
  EXPECT_EQ(readFile(folder.file("a.mdb")), "");
}

TEST(NewFile, that_takes_no_place_leaves_what_was_there) {
  const TempFolder folder;
  const std::string place = folder.write("a.mdb", "the old one");
  {
    NewFile file(place);
    file.write("half of a new");
    file.close();
  }
  EXPECT_EQ(readFile(place), "the old one");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(NewFile, can_be_filled_by_others_before_it_takes_its_place) {
  const TempFolder folder;
  const std::string place = folder.write("a.mdb", "the old one");
  NewFile file(place);
  file.writeCopyOf(folder.write("template.mdb", std::string(700'000, 't')));
  file.close();
  appendToFile(file.path(), "filled");
  file.takePlace();
  EXPECT_EQ(readFile(place), std::string(700'000, 't') + "filled");
  EXPECT_EQ(entriesIn(folder.path()), 2U);
}

TEST(NewFile, takes_no_place_that_was_protected_meanwhile) {
  const TempFolder folder;
  const std::string place = folder.write("a.mdb", "the old one");
  {
    NewFile file(place);
    protect(place);
    EXPECT_EQ(errorOf([&] { file.takePlace(); }).number, 70);
  }
  EXPECT_EQ(readFile(place), "the old one");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(AppendToFile, adds_at_the_end_and_creates_what_is_missing) {
  const TempFolder folder;
  const std::string path = folder.file("log.csv");
  appendToFile(path, "one\r\n");
  appendToFile(path, "two\r\n");
  appendToFile(path, "");
  EXPECT_EQ(readFile(path), "one\r\ntwo\r\n");
}

TEST(AppendToFile, failures_are_errors_with_a_number) {
  const TempFolder folder;
  EXPECT_EQ(errorOf([&] { appendToFile(folder.file("gone/log.csv"), "x"); }).number, 53);
  EXPECT_EQ(errorOf([&] { appendToFile(folder.path(), "x"); }).number, 70);
}

TEST(GrowingFile, holds_what_was_written_in_small_and_large_pieces) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  const std::string large(300'000, 'x');
  GrowingFile file(path);
  file.write("a\r\n");
  file.write(large);
  file.write("");
  file.write("\261");
  file.close();
  EXPECT_EQ(readFile(path), "a\r\n" + large + "\261");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(GrowingFile, empties_what_is_there_and_shows_what_was_flushed) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "a long old text");
  GrowingFile file(path);
  EXPECT_EQ(readFile(path), "");
  file.write("new");
  file.flush();
  EXPECT_EQ(readFile(path), "new");
}

TEST(GrowingFile, keeps_all_that_was_written_when_it_is_let_go_of_unfinished) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  { GrowingFile(path).write("half"); }
  EXPECT_EQ(readFile(path), "half");
}

TEST(GrowingFile, failures_are_errors_with_a_number) {
  const TempFolder folder;
  EXPECT_EQ(errorOf([&] { GrowingFile(folder.file("gone/a.txt")); }).number, 53);
  EXPECT_EQ(errorOf([&] { GrowingFile{folder.path()}; }).number, 70);
}

TEST(GrowingFile, replaces_a_link_and_never_what_it_leads_to) {
  const TempFolder folder;
  const std::string elsewhere = folder.write("elsewhere.txt", "not touched");
  std::filesystem::create_symlink(elsewhere, folder.file("a.txt"));
  GrowingFile file(folder.file("a.txt"));
  file.write("new");
  file.close();
  EXPECT_EQ(readFile(elsewhere), "not touched");
  EXPECT_EQ(readFile(folder.file("a.txt")), "new");
}

TEST(GrowingFile, of_a_name_that_another_one_takes_meanwhile_stays_whole) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  std::filesystem::create_hard_link(folder.write("keep.txt", ""), path);
  GrowingFile one(path);
  std::filesystem::create_hard_link(path, folder.file("one.txt"));
  GrowingFile other(path);
  one.write("one");
  other.write("other");
  one.close();
  other.close();
  EXPECT_EQ(readFile(folder.file("one.txt")), "one");
  EXPECT_EQ(readFile(path), "other");
  EXPECT_EQ(readFile(folder.file("keep.txt")), "");
}

TEST(GrowingFile, a_write_protected_file_of_its_name_stays) {
  const TempFolder folder;
  const std::string path = folder.write("a.txt", "the old text");
  protect(path);
  EXPECT_EQ(errorOf([&] { GrowingFile{path}; }).number, 70);
  EXPECT_EQ(readFile(path), "the old text");
  EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(GrowingFile, a_full_disk_is_noticed_at_the_latest_when_it_is_closed) {
  const TempFolder folder;
  const FileSizeLimit limit(0);
  GrowingFile file(folder.file("a.txt"));
  EXPECT_EQ(errorOf([&] { file.write("small"); }).number, 0);
  EXPECT_EQ(errorOf([&] { file.close(); }).number, 61);
  file.write("small");
  EXPECT_EQ(errorOf([&] { file.flush(); }).number, 61);
  EXPECT_EQ(errorOf([&] { file.write(std::string(1'000'000, 'x')); }).number, 61);
}

TEST(GrowingFile, on_a_full_disk_keeps_what_there_was_room_for) {
  const TempFolder folder;
  const std::string path = folder.file("a.txt");
  {
    const FileSizeLimit limit(100'000);
    GrowingFile file(path);
    const RunTimeError error = errorOf([&] {
      for (int i = 0; i < 200'000; ++i) file.write("x");
      file.close();
    });
    EXPECT_EQ(error.number, 61);
  }
  EXPECT_EQ(readFile(path), std::string(100'000, 'x'));
}

TEST(Base, is_the_path_less_four_characters_whatever_they_are) {
  EXPECT_EQ(baseOf("/tmp/a.txt"), "/tmp/a");
  EXPECT_EQ(baseOf("/tmp/a.upd"), "/tmp/a");
  EXPECT_EQ(baseOf("notices"), "not");
  EXPECT_EQ(baseOf("a.html"), "a.");
  EXPECT_EQ(baseOf("\351.txt"), "\351");
}

TEST(Base, of_a_short_name_is_empty) {
  EXPECT_EQ(baseOf(".txt"), "");
  EXPECT_EQ(baseOf("abc"), "");
  EXPECT_EQ(baseOf("a"), "");
  EXPECT_EQ(baseOf(""), "");
}

}  // namespace
}  // namespace zamo
