// The built companion, run as a script would run it.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "support/places.h"
#include "support/temp_folder.h"

namespace zamo::test {

struct CompanionRun {
  int status = -1;
  std::string output;
  std::string messages;
};

// `arguments` as a shell takes them, `before` what it does first; the program runs in the folder.
inline CompanionRun runCompanion(const TempFolder& folder, const std::string& arguments,
                                 const std::string& before = "") {
  const std::string command = "cd '" + folder.path() + "' && " + before + ZAMO_BIN "/zamo-kv19-batch " +
                              arguments + " >out.log 2>err.log </dev/null";
  const int result = std::system(command.c_str());
  return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, readFile(folder.file("out.log")),
          readFile(folder.file("err.log"))};
}

}  // namespace zamo::test
