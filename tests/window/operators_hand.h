// A timer that stands in for the operator at a dialog.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <functional>
#include <utility>

namespace zamo::test {

// Does `act` with the dialog that opens next. Any other dialog fails the test and is closed.
template <typename Dialog>
void operatorDoes(QObject& owner, std::function<void(Dialog&)> act) {
  auto* const hand = new QTimer(&owner);
  QObject::connect(hand, &QTimer::timeout, &owner, [hand, act = std::move(act)] {
    QWidget* const opened = QApplication::activeModalWidget();
    if (opened == nullptr) return;
    hand->stop();
    hand->deleteLater();
    auto* const dialog = dynamic_cast<Dialog*>(opened);
    EXPECT_NE(dialog, nullptr);
    if (dialog == nullptr) {
      opened->close();
    } else {
      act(*dialog);
    }
  });
  hand->start(1);
}

}  // namespace zamo::test
