// The palette of a dark desktop that knows no colour of hints, as long as this lives.
#pragma once

#include <QApplication>
#include <QPalette>

namespace zamo::test {

inline QPalette darkPalette() {
  QPalette dark;
  const QColor ground(35, 38, 41);
  const QColor field(27, 30, 32);
  const QColor text(252, 252, 252);
  for (const auto role : {QPalette::Window, QPalette::Button}) dark.setColor(role, ground);
  for (const auto role : {QPalette::Base, QPalette::AlternateBase}) dark.setColor(role, field);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    dark.setColor(role, text);
  dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
  return dark;
}

class DarkDesktop {
 public:
  DarkDesktop() { use(darkPalette()); }
  DarkDesktop(const DarkDesktop&) = delete;
  DarkDesktop& operator=(const DarkDesktop&) = delete;
  ~DarkDesktop() { use(light_); }

 private:
  // The windows that are open follow with the next events.
  static void use(const QPalette& palette) {
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
  }

  QPalette light_ = QApplication::palette();
};

}  // namespace zamo::test
