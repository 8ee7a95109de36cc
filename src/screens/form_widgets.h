// The widgets that show the controls of a notice form.
#pragma once

#include <QListWidget>
#include <functional>

#include "screens/screen.h"

namespace zamo {

// A list of which one item is chosen; the focus alone chooses none.
class PickList final : public QListWidget {
 public:
  explicit PickList(int characters);

  int chosenRow() const;
  void chooseRow(int row);

  // The user chose an item, perhaps the one that was chosen already.
  std::function<void(int row)> picked = [](int) {};

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QSize sizeFor(int rows) const;

  int characters_;
};

// A widget for a control, named like it, without a parent; its states are those of a new widget.
QWidget* makeWidget(const Control& control);

// Lets a button show a letter of its caption as its mnemonic.
void setMnemonic(QWidget& button, char letter);

// Brings the widget to what the control shows. Where nothing differs nothing happens, and no signal is given.
void showControl(const Control& control, QWidget& widget);

// What the user entered, as the control takes it: without line breaks, for a notice file has one line a
// value.
std::string enteredText(const QWidget& field);

}  // namespace zamo
