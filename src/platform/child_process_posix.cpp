#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

#include "platform/child_process.h"
#include "platform/run_time_error.h"

// Under this sanitizer a program takes terabytes of addresses.
#if defined(__SANITIZE_ADDRESS__)
#define ZAMO_ADDRESSES_UNLIMITED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZAMO_ADDRESSES_UNLIMITED
#endif
#endif

namespace zamo {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFirstOtherDescriptor = 3;
constexpr rlim_t kMostDescriptors = 64;
constexpr int kCantStart = 127;

// Closes it at the end, if it is open.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  int number() const { return number_; }
  void set(int number) {
    close();
    number_ = number;
  }
  void close() {
    if (number_ >= 0) ::close(number_);
    number_ = -1;
  }
  int release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

// Never one of the three standard ones, should they be closed here.
int movedUp(int descriptor) {
  const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstOtherDescriptor);
  ::close(descriptor);
  return moved;
}

struct Pipe {
  Descriptor readEnd;
  Descriptor writeEnd;

  explicit Pipe(const std::string& program) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw fileError(errno, program);
    readEnd.set(movedUp(ends[0]));
    writeEnd.set(movedUp(ends[1]));
  }
};

struct Limit {
  __rlimit_resource resource;
  rlimit value;
};

rlimit upTo(rlim_t most) {
  return {most, most};
}

std::vector<Limit> limitsOf(const ChildOrder& order) {
  const auto seconds = static_cast<rlim_t>(order.mostComputing.count());
  std::vector<Limit> limits = {{RLIMIT_CPU, {seconds, seconds + 1}},
                               {RLIMIT_CORE, upTo(0)},
                               {RLIMIT_FSIZE, upTo(0)},
                               {RLIMIT_NOFILE, upTo(kMostDescriptors)}};
#ifndef ZAMO_ADDRESSES_UNLIMITED
  limits.push_back({RLIMIT_AS, upTo(order.mostMemory)});
#endif
  return limits;
}

// All that the child needs, made before there is one: between its birth and its program it may call little.
struct Launch {
  std::string program;
  std::vector<std::string> texts;
  std::vector<char*> arguments;
  std::vector<char*> environment;
  std::vector<Limit> limits;
};

Launch launchOf(const ChildOrder& order) {
  Launch launch;
  launch.program = order.program;
  launch.limits = limitsOf(order);
  launch.texts.push_back(order.program);
  for (const std::string& argument : order.arguments) launch.texts.push_back(argument);
  const std::size_t variables = launch.texts.size();
  for (const std::string& name : order.keptVariables) {
    if (const char* const value = std::getenv(name.c_str())) launch.texts.push_back(name + "=" + value);
  }
  for (std::size_t i = 0; i < launch.texts.size(); ++i) {
    (i < variables ? launch.arguments : launch.environment).push_back(launch.texts[i].data());
  }
  launch.arguments.push_back(nullptr);
  launch.environment.push_back(nullptr);
  return launch;
}

// Calls nothing that isn't safe behind a fork of a program with several threads.
[[noreturn]] void become(const Launch& launch, int nothing, int output) {
  bool good = ::dup2(nothing, STDIN_FILENO) >= 0 && ::dup2(output, STDOUT_FILENO) >= 0 &&
              ::dup2(nothing, STDERR_FILENO) >= 0;
  ::close_range(kFirstOtherDescriptor, ~0U, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  ::signal(SIGPIPE, SIG_DFL);
  for (const Limit& limit : launch.limits) good = good && ::setrlimit(limit.resource, &limit.value) == 0;
  if (good) ::execve(launch.program.c_str(), launch.arguments.data(), launch.environment.data());
  ::_exit(kCantStart);
}

}  // namespace

struct ChildProcess::State {
  pid_t process = -1;
  Descriptor output;
  Clock::duration waitingLeft{};
  bool tookTooLong = false;
};

ChildProcess::ChildProcess(const ChildOrder& order) : state_(std::make_unique<State>()) {
  if (::access(order.program.c_str(), X_OK) != 0) throw fileError(errno, order.program);
  const Launch launch = launchOf(order);
  Pipe pipe(order.program);
  const Descriptor nothing(movedUp(::open("/dev/null", O_RDWR | O_CLOEXEC)));
  state_->waitingLeft = order.mostWaiting;
  state_->process = ::fork();
  if (state_->process == 0) become(launch, nothing.number(), pipe.writeEnd.number());
  if (state_->process < 0) throw fileError(errno, order.program);
  state_->output.set(pipe.readEnd.release());
}

ChildProcess::~ChildProcess() {
  ::kill(state_->process, SIGKILL);
  while (::waitpid(state_->process, nullptr, 0) < 0 && errno == EINTR) {
  }
}

std::size_t ChildProcess::read(char* into, std::size_t size) {
  const Clock::time_point start = Clock::now();
  pollfd output{state_->output.number(), POLLIN, 0};
  for (;;) {
    const Clock::duration left = state_->waitingLeft - (Clock::now() - start);
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(left).count();
    const int ready = ::poll(&output, 1, static_cast<int>(std::clamp<long>(milliseconds, 0, 1'000'000)));
    if (ready < 0 && errno == EINTR) continue;
    state_->tookTooLong = ready == 0;
    if (ready <= 0) return 0;
    break;
  }
  state_->waitingLeft -= Clock::now() - start;
  ssize_t count = 0;
  do {
    count = ::read(output.fd, into, size);
  } while (count < 0 && errno == EINTR);
  return count < 0 ? 0 : static_cast<std::size_t>(count);
}

bool ChildProcess::tookTooLong() const {
  return state_->tookTooLong;
}

}  // namespace zamo
