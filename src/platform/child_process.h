// A program that runs beside this one on a short leash: for work that can crash or never end. Each system has
// its own implementation of this.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace zamo {

struct ChildOrder {
  std::string program;  // its path
  std::vector<std::string> arguments;
  // Of the environment it gets these variables alone.
  std::vector<std::string> keptVariables;
  std::chrono::seconds mostComputing{};  // of processor time
  std::size_t mostMemory = 0;            // bytes
  // In all, that `read` may spend on waiting for it.
  std::chrono::milliseconds mostWaiting{};
};

// It reads nothing, writes to its standard output alone and has no file of ours open.
class ChildProcess {
 public:
  // Throws RunTimeError when there is no such program.
  explicit ChildProcess(const ChildOrder& order);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  // Ends it if it still runs.
  ~ChildProcess();

  // Reads on in its standard output and gives the count of bytes: 0 when it has closed it, as it does when it
  // ends, whatever ends it, and when the waiting took too long.
  std::size_t read(char* into, std::size_t size);

  // Whether `read` gave up the waiting.
  bool tookTooLong() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace zamo
