// Waiting for what comes a moment later: for its state, however long it takes, and never for a time.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTest>
#include <algorithm>

namespace zamo::test {

inline constexpr int kPatience = 30000;  // milliseconds, for a machine that is busy

template <typename State>
bool waitFor(const State& state) {
  return QTest::qWaitFor(state, kPatience);
}

// A button that a key presses is clicked when it comes up again. A key that presses none waits for nothing.
inline void waitForButtons(const QWidget& window) {
  const auto buttons = window.findChildren<QAbstractButton*>();
  EXPECT_TRUE(waitFor([&buttons] {
    return std::none_of(buttons.begin(), buttons.end(),
                        [](const QAbstractButton* button) { return button->isDown(); });
  }));
}

// Until the layouts have followed what was shown and hidden.
inline void waitForLayouts() {
  QCoreApplication::processEvents();
}

}  // namespace zamo::test
