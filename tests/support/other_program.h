// A program that runs beside the test and is talked to line by line.
#pragma once

#include <sys/types.h>

#include <cstdio>
#include <string>
#include <vector>

namespace zamo::test {

class OtherProgram {
 public:
  // Looked for on the PATH; its standard error is that of the test.
  explicit OtherProgram(const std::vector<std::string>& command);
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  // Takes its input away, and waits for its end.
  ~OtherProgram();

  void say(const std::string& line);
  // The next line of its output, without its end; waits for it.
  std::string hear();

  // Each gives back when the program has gone.
  void leave();
  void kill();

  pid_t process() const { return process_; }

 private:
  pid_t process_ = -1;
  std::FILE* input_ = nullptr;
  std::FILE* output_ = nullptr;
};

}  // namespace zamo::test
