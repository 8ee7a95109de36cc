#include "noticefile/line_source.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

using test::TempFolder;

constexpr std::size_t kBlock = 256 * std::size_t{1024};

using Lines = std::vector<std::string>;

Lines linesOf(LineSource lines) {
  Lines all;
  while (!lines.atEnd()) all.emplace_back(lines.nextLine());
  EXPECT_EQ(lines.lineNo(), static_cast<std::int64_t>(all.size()));
  EXPECT_FALSE(lines.exhausted());
  return all;
}

// The lines of the text, which must be the same from a file and from memory.
Lines linesOfText(std::string_view text) {
  const TempFolder folder;
  const Lines lines = linesOf(LineSource(folder.write("a.txt", text)));
  EXPECT_EQ(linesOf(LineSource::ofText(text)), lines);
  return lines;
}

// What reading the file to its end throws; number 0 for nothing.
RunTimeError errorOf(const std::string& path) {
  try {
    LineSource lines(path);
    while (!lines.atEnd()) lines.nextLine();
  } catch (const RunTimeError& error) {
    EXPECT_NE(error.text, "");
    return error;
  }
  return {};
}

int errorNumberOf(const std::string& path) {
  return errorOf(path).number;
}

TEST(LineSource, carriage_return_and_line_feed_end_a_line) {
  EXPECT_EQ(linesOfText("a\r\nb\r\nc\r\n"), (Lines{"a", "b", "c"}));
}

TEST(LineSource, a_lone_line_feed_ends_a_line) {
  EXPECT_EQ(linesOfText("a\nb\n\nc\n"), (Lines{"a", "b", "", "c"}));
}

TEST(LineSource, a_lone_carriage_return_ends_a_line) {
  EXPECT_EQ(linesOfText("a\rb\r\rc\r"), (Lines{"a", "b", "", "c"}));
}

TEST(LineSource, line_ends_can_be_mixed) {
  EXPECT_EQ(linesOfText("a\rb\nc\r\nd\n\re\r\r\nf"), (Lines{"a", "b", "c", "d", "", "e", "", "f"}));
}

TEST(LineSource, the_last_line_needs_no_end) {
  EXPECT_EQ(linesOfText("a\r\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(linesOfText("a"), (Lines{"a"}));
}

TEST(LineSource, no_empty_line_follows_the_last_line_end) {
  EXPECT_EQ(linesOfText("a\r\n"), (Lines{"a"}));
  EXPECT_EQ(linesOfText("a\r"), (Lines{"a"}));
  EXPECT_EQ(linesOfText("a\n"), (Lines{"a"}));
  EXPECT_EQ(linesOfText("\r\n"), (Lines{""}));
  EXPECT_EQ(linesOfText("\r\n\r\n"), (Lines{"", ""}));
}

TEST(LineSource, an_empty_file_is_at_its_end) {
  EXPECT_EQ(linesOfText(""), (Lines{}));
  LineSource lines = LineSource::ofText("");
  EXPECT_TRUE(lines.atEnd());
  EXPECT_FALSE(lines.exhausted());
  EXPECT_EQ(lines.lineNo(), 0);
}

TEST(LineSource, a_line_of_blanks_is_a_line_before_the_end) {
  EXPECT_EQ(linesOfText("a\r\n   "), (Lines{"a", ""}));
}

TEST(LineSource, tabs_become_blanks_and_blanks_at_both_ends_go) {
  EXPECT_EQ(linesOfText("\t a\t=\t\tb \t\r\n"), (Lines{"a =  b"}));
  EXPECT_EQ(linesOfText("  \t  \r\n"), (Lines{""}));
}

TEST(LineSource, only_blanks_are_trimmed) {
  EXPECT_EQ(linesOfText("\240a\240\r\n\va\f\r\n"), (Lines{"\240a\240", "\va\f"}));
}

TEST(LineSource, nul_bytes_are_kept) {
  const std::string text("a\0b\r\n\0\r\n", 8);
  EXPECT_EQ(linesOfText(text), (Lines{std::string("a\0b", 3), std::string("\0", 1)}));
}

TEST(LineSource, all_other_bytes_are_kept) {
  std::string text;
  for (int i = 0; i < 256; ++i) {
    if (i != '\t' && i != '\r' && i != '\n') text += static_cast<char>(i);
  }
  EXPECT_EQ(linesOfText(text), (Lines{text}));
}

TEST(LineSource, reading_on_at_the_end_gives_empty_texts_and_counts) {
  LineSource lines = LineSource::ofText("a\r\n");
  EXPECT_EQ(lines.nextLine(), "a");
  EXPECT_TRUE(lines.atEnd());
  EXPECT_FALSE(lines.exhausted());
  EXPECT_EQ(lines.lineNo(), 1);
  EXPECT_EQ(lines.nextLine(), "");
  EXPECT_TRUE(lines.exhausted());
  EXPECT_EQ(lines.lineNo(), 2);
  EXPECT_EQ(lines.nextLine(), "");
  EXPECT_EQ(lines.lineNo(), 3);
}

TEST(LineSource, the_end_is_known_as_soon_as_the_last_line_is_read) {
  const TempFolder folder;
  for (const char* text : {"a\r\nb\r\n", "a\rb\r", "a\nb\n", "a\nb"}) {
    LineSource lines(folder.write("a.txt", text));
    EXPECT_FALSE(lines.atEnd());
    lines.nextLine();
    EXPECT_FALSE(lines.atEnd());
    lines.nextLine();
    EXPECT_TRUE(lines.atEnd());
  }
}

TEST(LineSource, line_ends_may_straddle_the_blocks_that_are_read) {
  const TempFolder folder;
  for (const char* end : {"\r\n", "\n", "\r"}) {
    for (std::size_t before = kBlock - 4; before <= kBlock + 4; ++before) {
      const std::string first(before, 'x');
      const std::string path = folder.write("a.txt", first + end + "second" + end + "third");
      EXPECT_EQ(linesOf(LineSource(path)), (Lines{first, "second", "third"})) << before;
      EXPECT_EQ(linesOf(LineSource(folder.write("b.txt", first + end))), (Lines{first})) << before;
    }
  }
}

TEST(LineSource, lines_may_straddle_the_blocks_that_are_read) {
  std::string text;
  Lines expected;
  for (int i = 0; i < 200000; ++i) {
    expected.push_back("t_key_" + std::to_string(i) + " = value");
    text += " \t" + expected.back() + (i % 3 == 0 ? "\r\n" : i % 3 == 1 ? "\n" : "\r");
  }
  const TempFolder folder;
  EXPECT_TRUE(linesOf(LineSource(folder.write("a.txt", text))) == expected);
}

TEST(LineSource, empty_lines_may_straddle_the_blocks_that_are_read) {
  const TempFolder folder;
  const Lines lines = linesOf(LineSource(folder.write("a.txt", "x" + std::string(3 * kBlock, '\n'))));
  EXPECT_EQ(lines.size(), 3 * kBlock);
}

// What the lines of a text are, in the simplest way to tell.
Lines simplyCut(std::string_view text) {
  Lines lines;
  std::string line;
  const auto end = [&] {
    const std::size_t first = line.find_first_not_of(' ');
    const std::size_t last = line.find_last_not_of(' ');
    lines.push_back(first == std::string::npos ? "" : line.substr(first, last - first + 1));
    line.clear();
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (text[i] == '\r' || text[i] == '\n') {
      end();
    } else {
      line += text[i] == '\t' ? ' ' : text[i];
    }
  }
  if (!text.empty() && text.back() != '\r' && text.back() != '\n') end();
  return lines;
}

struct NumberedLine {
  std::int64_t number = 0;
  std::string text;
  bool operator==(const NumberedLine&) const = default;
};

// The tag lines, and the last line if it is none.
std::vector<NumberedLine> tagLinesOf(LineSource lines) {
  std::vector<NumberedLine> all;
  while (!lines.atEnd()) {
    const std::string line(lines.nextTagLine());
    all.push_back({lines.lineNo(), line});
  }
  return all;
}

// Files of about two blocks. In some all line ends are of one kind, as in nearly all files there are.
std::string randomText(std::mt19937& random) {
  const auto below = [&random](std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
  };
  constexpr std::array<std::string_view, 4> ends = {"\r\n", "\n", "\r", "\n\r"};
  constexpr std::array<std::string_view, 6> lines = {"t_attn@azm010 = 43", "<POINT>", "",
                                                     "  a <b>\t",          "\t <x>",  " "};
  const std::size_t kinds = 1 + below(ends.size());
  const std::size_t size = 2 * kBlock - 200 + below(400);
  std::string text;
  while (text.size() < size) text.append(lines[below(lines.size())]).append(ends[below(kinds)]);
  if (below(2) == 0) text += "last";
  return text;
}

TEST(LineSource, gives_the_lines_of_any_text_at_any_place_of_the_blocks) {
  const TempFolder folder;
  std::mt19937 random(7);
  for (int round = 0; round < 40; ++round) {
    const std::string text = randomText(random);
    const Lines expected = simplyCut(text);
    const std::string path = folder.write("a.txt", text);
    ASSERT_TRUE(linesOf(LineSource(path)) == expected) << round;
    ASSERT_TRUE(linesOf(LineSource::ofText(text)) == expected) << round;
    std::vector<NumberedLine> tags;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const bool isWanted = expected[i].starts_with('<') || i + 1 == expected.size();
      if (isWanted) tags.push_back({static_cast<std::int64_t>(i + 1), expected[i]});
    }
    ASSERT_TRUE(tagLinesOf(LineSource(path)) == tags) << round;
    ASSERT_TRUE(tagLinesOf(LineSource::ofText(text)) == tags) << round;
  }
}

TEST(LineSource, tag_lines_at_the_end_are_empty_texts_and_count) {
  LineSource lines = LineSource::ofText("a\r\n<b>\r\nc");
  EXPECT_EQ(lines.nextTagLine(), "<b>");
  EXPECT_EQ(lines.lineNo(), 2);
  EXPECT_EQ(lines.nextTagLine(), "c");
  EXPECT_FALSE(lines.exhausted());
  EXPECT_EQ(lines.nextTagLine(), "");
  EXPECT_TRUE(lines.exhausted());
  EXPECT_EQ(lines.lineNo(), 4);
}

TEST(LineSource, a_byte_order_mark_is_dropped) {
  EXPECT_EQ(linesOfText("\xEF\xBB\xBF<HEAD>\r\nb\r\n"), (Lines{"<HEAD>", "b"}));
  EXPECT_EQ(linesOfText("\xEF\xBB\xBF"), (Lines{}));
  EXPECT_EQ(linesOfText("\xEF\xBB\xBF\r\n"), (Lines{""}));
}

TEST(LineSource, a_file_with_the_mark_is_converted_from_utf_8) {
  EXPECT_EQ(linesOfText("\xEF\xBB\xBFt_site_name = Gen\xC3\xA8ve \xE2\x82\xAC\r\n\xC2\xB1\r\n"),
            (Lines{"t_site_name = Gen\350ve \200", "\261"}));
  EXPECT_EQ(linesOfText("\xEF\xBB\xBF\xD0\x94\xF0\x9F\x93\xBB\r\n"), (Lines{"?\?"}));
}

TEST(LineSource, a_file_without_the_mark_is_left_as_it_is) {
  EXPECT_EQ(linesOfText("Gen\xC3\xA8ve\r\n"), (Lines{"Gen\303\250ve"}));
  EXPECT_EQ(linesOfText("\xEF\xBB"), (Lines{"\xEF\xBB"}));
  EXPECT_EQ(linesOfText("a\xEF\xBB\xBF"), (Lines{"a\xEF\xBB\xBF"}));
  EXPECT_EQ(linesOfText("\r\n\xEF\xBB\xBF"
                        "a"),
            (Lines{"",
                   "\xEF\xBB\xBF"
                   "a"}));
}

TEST(LineSource, utf_8_may_straddle_the_blocks_that_are_read) {
  const TempFolder folder;
  for (std::size_t before = kBlock - 8; before <= kBlock; ++before) {
    const std::string path =
        folder.write("a.txt", "\xEF\xBB\xBF" + std::string(before, 'x') + "\xE2\x82\xAC\r\nb");
    EXPECT_EQ(linesOf(LineSource(path)), (Lines{std::string(before, 'x') + "\200", "b"})) << before;
  }
}

TEST(LineSource, moves_with_its_place_in_the_file) {
  const TempFolder folder;
  LineSource first(folder.write("a.txt", "a\r\nb\r\nc\r\n"));
  first.nextLine();
  LineSource second(std::move(first));
  EXPECT_EQ(second.nextLine(), "b");
  EXPECT_EQ(second.lineNo(), 2);
  EXPECT_EQ(second.nextLine(), "c");
  EXPECT_TRUE(second.atEnd());
}

TEST(LineSource, a_missing_file_is_error_53) {
  const TempFolder folder;
  EXPECT_EQ(errorNumberOf(folder.file("none.txt")), 53);
  EXPECT_EQ(errorNumberOf(folder.file("gone/none.txt")), 53);
  EXPECT_EQ(errorNumberOf(""), 53);
}

TEST(LineSource, a_folder_is_error_70) {
  const TempFolder folder;
  EXPECT_EQ(errorNumberOf(folder.path()), 70);
}

TEST(LineSource, what_is_no_file_is_error_70_and_not_waited_for) {
  const TempFolder folder;
  const std::string pipe = folder.file("pipe.txt");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(errorOf(pipe).text, "Not a regular file: " + pipe);
  std::filesystem::create_symlink("pipe.txt", folder.file("link.txt"));
  for (const std::string& path : {pipe, folder.file("link.txt"), std::string("/dev/null"),
                                  std::string("/dev/zero"), std::string("/dev/full")}) {
    EXPECT_EQ(errorNumberOf(path), 70) << path;
  }
}

TEST(LineSource, another_name_of_an_open_file_is_no_file) {
  const TempFolder folder;
  const int descriptor = ::open(folder.write("a.txt", "a\r\n").c_str(), O_RDONLY);
  const std::string number = std::to_string(descriptor);
  for (const std::string& path : {"/dev/fd/" + number, "/proc/self/fd/" + number,
                                  "/proc/" + std::to_string(::getpid()) + "/fd/" + number}) {
    EXPECT_EQ(errorOf(path).number, 70) << path;
    EXPECT_EQ(errorOf(path).text, "Not a regular file: " + path);
  }
  std::filesystem::create_symlink("/dev/fd/" + number, folder.file("link.txt"));
  EXPECT_EQ(errorNumberOf(folder.file("link.txt")), 70);
  ::close(descriptor);
}

TEST(LineSource, a_link_to_a_file_is_read) {
  const TempFolder folder;
  folder.write("a.txt", "a\r\n");
  std::filesystem::create_symlink("a.txt", folder.file("link.txt"));
  std::filesystem::create_symlink(folder.file("link.txt"), folder.file("second.txt"));
  EXPECT_EQ(linesOf(LineSource(folder.file("second.txt"))), (Lines{"a"}));
}

constexpr std::size_t kMegabyte = 1024 * std::size_t{1024};

TEST(LineSource, a_line_of_a_megabyte_is_given) {
  const std::string longest(kMegabyte, 'x');
  EXPECT_TRUE(linesOfText("a\r\n" + longest + "\r\nb\n" + longest + "\n" + longest) ==
              (Lines{"a", longest, "b", longest, longest}));
}

TEST(LineSource, a_longer_line_is_error_7_with_its_number) {
  const TempFolder folder;
  for (const char* end : {"\r\n", "\n", "\r", ""}) {
    const std::string text = "a\r\n\r\n" + std::string(kMegabyte + 1, 'x') + end;
    const RunTimeError error = errorOf(folder.write("a.txt", text));
    EXPECT_THROW(tagLinesOf(LineSource(folder.file("a.txt"))), RunTimeError);
    EXPECT_EQ(error.number, 7);
    EXPECT_EQ(error.text, "Out of memory: line 3 is longer than 1 MB");
    LineSource lines = LineSource::ofText(text);
    lines.nextLine();
    lines.nextLine();
    EXPECT_THROW(lines.nextLine(), RunTimeError);
  }
  // Blanks count, though they would be taken off.
  EXPECT_EQ(errorOf(folder.write("a.txt", std::string(kMegabyte + 1, ' '))).text,
            "Out of memory: line 1 is longer than 1 MB");
}

TEST(LineSource, memory_does_not_grow_with_a_line) {
  const TempFolder folder;
  const std::string path = folder.write("long.txt", "a\r\n");
  std::filesystem::resize_file(path, 1024 * kMegabyte);
  // In a process of its own, whose highest use of memory is this reader's.
  EXPECT_EXIT(
      {
        rusage before{};
        ::getrusage(RUSAGE_SELF, &before);
        const int number = errorNumberOf(path);
        rusage use{};
        ::getrusage(RUSAGE_SELF, &use);
        std::exit(number == 7 && use.ru_maxrss - before.ru_maxrss < 8 * 1024 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST(LineSource, memory_does_not_grow_with_many_long_lines) {
  const TempFolder folder;
  const std::string path = folder.file("long.txt");
  for (int i = 0; i < 60; ++i) {
    std::FILE* file = std::fopen(path.c_str(), "ab");
    ASSERT_NE(file, nullptr);
    const std::string line = std::string(kMegabyte, 'x') + "\n";
    std::fwrite(line.data(), 1, line.size(), file);
    std::fclose(file);
  }
  EXPECT_EXIT(
      {
        rusage before{};
        ::getrusage(RUSAGE_SELF, &before);
        const int number = errorNumberOf(path);
        rusage use{};
        ::getrusage(RUSAGE_SELF, &use);
        std::exit(number == 0 && use.ru_maxrss - before.ru_maxrss < 8 * 1024 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace zamo
