// Prints every message of the tool with what brings it about: the content of docs/messages.tsv.
#include <cstdio>
#include <string>

#include "platform/code_page.h"
#include "platform/message.h"

namespace {

// The subject that a source file stands for.
std::string subjectOf(std::string_view file) {
  return std::string(file.substr(0, file.rfind('.')));
}

// Line ends can't stand in a line of the list.
std::string onOneLine(std::string_view words) {
  std::string line;
  for (const char c : words) {
    if (c == '\r') {
      line += "\\r";
    } else if (c == '\n') {
      line += "\\n";
    } else {
      line += c;
    }
  }
  return line;
}

}  // namespace

int main() {
  std::puts("subject\twhen\tmessage");
  zamo::MessageListing::forEach([](const zamo::ListedMessage& message) {
    const std::string line =
        subjectOf(message.file) + "\t" + std::string(message.trigger) + "\t" + onOneLine(message.words);
    std::puts(zamo::utf8FromText(line).c_str());
  });
}
