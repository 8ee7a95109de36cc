// What the host gives to everything below the window, as one record of functions.
// Text is in the code page; paths are as the operating system has them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/dates.h"
#include "platform/numbers.h"

namespace zamo {

enum class BoxIcon { none, information, exclamation, exclamationAndInformation };

enum class BoxButtons { ok, cancelTryContinue };

struct Box {
  std::string text;
  std::string title;  // empty: the program's own name
  BoxIcon icon = BoxIcon::none;
  BoxButtons buttons = BoxButtons::ok;
  bool needsUser = false;  // a question that nobody else answers with Yes
};

struct OpenFileRequest {
  std::string folder;  // where the dialog starts, as the user set it
  // Captions and patterns as the system has always written them: "Text Files (*.txt)|*.txt|..."
  std::string filter;
};

struct Host {
  std::function<void(const Box&)> showBox;
  std::function<bool(const Box&)> askYesNo;
  // One line of text from the user; empty on Cancel.
  std::function<std::string(const Box&)> askText;
  std::function<void()> beep;
  std::function<void(std::string_view)> setStatus;
  // A line of its own besides the status, which stays until the next one; an empty one takes it away.
  std::function<void(std::string_view)> setNote = [](std::string_view) {};
  std::function<void()> repaint;
  Yield yield;
  std::function<void(bool)> setHourglass;
  std::function<DateTime()> now;
  std::function<std::string()> systemLogonName;
  std::function<std::string(std::string_view key)> readSetting;
  std::function<void(std::string_view key, std::string_view value)> saveSetting;
  // The path of the file or folder that the user chose; nothing on Cancel.
  std::function<std::optional<std::string>(const OpenFileRequest&)> openFile;
  std::function<std::optional<std::string>(std::string_view title)> chooseFolder;
  // Starts the first text viewer there is on a file; false when there is none.
  std::function<bool(const std::string& path)> startTextViewer;
};

// The pointer is the hourglass as long as this lives.
class Hourglass {
 public:
  explicit Hourglass(const Host& host) : host_(host) { host_.setHourglass(true); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
  ~Hourglass() { host_.setHourglass(false); }

 private:
  const Host& host_;
};

// The first 8 characters of the logon name, those that are NUL left out.
std::string getLogonName(const Host& host);

// The box in which an operation tells of a failure of the machine. The title is the operation's name.
// With the number 0 nothing is shown.
void showRunTimeError(const Host& host, int number, std::string_view title, std::string_view description);

// Does what the user asked for. Whatever it throws ends up in that box, under a pointer that is normal again.
void runGuarded(const Host& host, std::string_view title, const std::function<void()>& action);

}  // namespace zamo
