// The example files, through the companion as an operator would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "support/places.h"
#include "support/temp_folder.h"

namespace zamo {
namespace {

struct Example {
  std::string name;
  std::string verdict;
  int level = 3;
};

// clang-format off
const std::array kExamples = {
    Example{"valid-all-types.txt",           "ok"},
    Example{"valid-tv-plan.txt",             "ok"},
    Example{"valid-tv-notified.txt",         "ok"},
    Example{"valid-radio.txt",               "ok"},
    Example{"valid-allotments.txt",          "ok"},
    Example{"valid-overseas.txt",            "ok"},
    Example{"valid-actions.upd",             "ok"},
    Example{"valid-utf8.txt",                "ok"},
    Example{"structure-missing-end-tag.txt", "structure"},
    Example{"structure-cut-off.txt",         "structure"},
    Example{"basic-errors.txt",              "basic"},
    Example{"complete-tv-errors.txt",        "complete", 2},
    Example{"complete-notified-errors.txt",  "complete", 2},
    Example{"complete-allotment-errors.txt", "complete", 2},
    Example{"complete-place-errors.txt",     "complete"},
};
// clang-format on

struct Outcome {
  int exitStatus = -1;
  std::string output;
};

Outcome check(const std::string& file, int level) {
  const std::string command =
      "'" ZAMO_BIN "/zamo-kv19-batch' check --level " + std::to_string(level) + " '" + file + "' 2>/dev/null";
  Outcome outcome;
  FILE* pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return outcome;
  std::array<char, 4096> part;
  while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe)) {
    outcome.output.append(part.data(), count);
  }
  const int status = ::pclose(pipe);
  if (WIFEXITED(status)) outcome.exitStatus = WEXITSTATUS(status);
  return outcome;
}

std::string withoutTheMoment(const std::string& report) {
  static const std::regex moment("\r\nOn \\d{4}-\\d\\d-\\d\\d -  \\d\\d:\\d\\d:\\d\\d by [^\r\n]+\r\n");
  return std::regex_replace(report, moment, "\r\nOn DATE -  TIME by USER\r\n",
                            std::regex_constants::format_first_only);
}

std::set<std::string> filesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

TEST(Examples, every_example_is_among_those_checked_here) {
  std::set<std::string> listed;
  for (const Example& example : kExamples) listed.insert(example.name);
  std::set<std::string> present;
  for (const std::string& name : filesIn(ZAMO_EXAMPLES)) {
    if (name.ends_with(".txt") || name.ends_with(".upd")) present.insert(name);
  }
  EXPECT_EQ(present, listed);
}

TEST(Examples, valid_ones_pass_and_leave_no_report) {
  for (const Example& example : kExamples) {
    if (example.verdict != "ok") continue;
    SCOPED_TRACE(example.name);
    const test::TempFolder folder;
    const std::string file = folder.write(example.name, test::readFile(ZAMO_EXAMPLES "/" + example.name));
    const Outcome outcome = check(file, example.level);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, file + "\tok\n");
    EXPECT_EQ(filesIn(folder.path()), std::set<std::string>{example.name});
  }
}

TEST(Examples, failing_ones_leave_the_report_that_stands_beside_them) {
  for (const Example& example : kExamples) {
    if (example.verdict == "ok") continue;
    SCOPED_TRACE(example.name);
    const test::TempFolder folder;
    const std::string base = example.name.substr(0, example.name.size() - 4);
    const std::string file = folder.write(example.name, test::readFile(ZAMO_EXAMPLES "/" + example.name));
    const Outcome outcome = check(file, example.level);
    const std::string report = folder.file(base + "_val_outcome.txt");
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.output, file + "\t" + example.verdict + "\t" + report + "\n");
    EXPECT_EQ(withoutTheMoment(test::readFile(report)),
              test::readFile(ZAMO_EXAMPLES "/" + base + ".expected"));
    EXPECT_EQ(filesIn(folder.path()), (std::set<std::string>{example.name, base + "_val_outcome.txt"}));
  }
}

}  // namespace
}  // namespace zamo
