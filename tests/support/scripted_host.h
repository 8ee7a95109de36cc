// A host for tests: it writes down what it is told and answers from a script.
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/host.h"

namespace zamo::test {

struct Script {
  // Written down.
  std::vector<Box> boxes;
  std::vector<Box> questions;
  std::vector<Box> prompts;
  std::vector<std::string> statuses;
  std::string note;  // that stands now
  std::vector<OpenFileRequest> fileRequests;
  std::vector<std::string> viewed;
  int repaints = 0;
  int yields = 0;
  int beeps = 0;
  int hourglasses = 0;  // that are turned now

  // Answers. A question without an answer left gets No, a prompt or a dialog without one is cancelled.
  std::deque<bool> answers;
  std::deque<std::string> texts;
  std::deque<std::string> files;
  std::deque<std::string> folders;
  std::map<std::string, std::string, std::less<>> settings;
  std::string logonName = "tester";
  DateTime now{Date{std::chrono::year(2026), std::chrono::month(3), std::chrono::day(7)}, 9, 5, 4};
  bool hasViewer = true;
};

// A host that works on `script`, which must outlive it.
Host makeScriptedHost(Script& script);

}  // namespace zamo::test
