// The one application object of a test program that makes widgets.
#pragma once

#include <QApplication>

namespace zamo::test {

struct Application {
  Application() {
    static int argc = 1;
    static char name[] = "zamo-kv19";
    static char* argv[] = {name, nullptr};
    static auto* const instance = new QApplication(argc, argv);
    static_cast<void>(instance);
  }
};

}  // namespace zamo::test
