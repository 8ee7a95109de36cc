// What the commands have in common: the status line and the hourglass.
#pragma once

#include <string_view>

#include "shell/shell.h"

namespace zamo {

// Shows the status line with this text, at once.
inline void showStatus(Shell& shell, std::string_view text) {
  shell.screen.statusVisible = true;
  shell.draw(shell.screen);
  shell.host.setStatus(text);
  shell.host.repaint();
}

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

}  // namespace zamo
