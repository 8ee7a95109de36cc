#include "support/other_program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

extern char** environ;

namespace zamo::test {

OtherProgram::OtherProgram(const std::vector<std::string>& command) {
  std::array<int, 2> in{};
  std::array<int, 2> out{};
  if (::pipe2(in.data(), O_CLOEXEC) != 0 || ::pipe2(out.data(), O_CLOEXEC) != 0) {
    ADD_FAILURE() << "no pipes";
    return;
  }
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
  ::posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  EXPECT_EQ(::posix_spawnp(&process_, arguments[0], &actions, nullptr, arguments.data(), environ), 0)
      << command[0];
  ::posix_spawn_file_actions_destroy(&actions);
  ::close(in[0]);
  ::close(out[1]);
  input_ = ::fdopen(in[1], "w");
  output_ = ::fdopen(out[0], "r");
  // A program that has gone is no reason for the test to go.
  std::signal(SIGPIPE, SIG_IGN);
}

OtherProgram::~OtherProgram() {
  leave();
}

void OtherProgram::say(const std::string& line) {
  std::fprintf(input_, "%s\n", line.c_str());
  EXPECT_EQ(std::fflush(input_), 0) << line;
}

std::string OtherProgram::hear() {
  std::string line;
  int c = std::fgetc(output_);
  for (; c != EOF && c != '\n'; c = std::fgetc(output_)) line += static_cast<char>(c);
  EXPECT_NE(c, EOF) << "the other program has gone, behind \"" << line << '"';
  return line;
}

void OtherProgram::leave() {
  if (process_ < 0) return;
  std::fclose(input_);
  std::fclose(output_);
  ::waitpid(process_, nullptr, 0);
  process_ = -1;
}

void OtherProgram::kill() {
  if (process_ >= 0) ::kill(process_, SIGKILL);
  leave();
}

}  // namespace zamo::test
