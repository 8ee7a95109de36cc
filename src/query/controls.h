// The controls of the two query dialogs, made with their names and captions.
#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <span>

class QBoxLayout;

namespace zamo {

inline constexpr int kGap = 6;

// Made without a parent: the layout that takes them gives them one.
QGroupBox* makeFrame(const char* name, const char* caption);
QLabel* makeLabel(const char* name, const char* caption, const char* toolTip = "");
QLineEdit* makeField(const char* name, const char* spokenName, const char* toolTip = "");
QCheckBox* makeCheckBox(const char* name, const char* caption, const char* toolTip = "");
QPushButton* makeButton(const char* name, const char* caption);

// What stands close together within a frame.
void tighten(QLayout& layout);

struct EndButtons {
  QPushButton* ButtonOK;
  QPushButton* ButtonCancel;
};

// The buttons that end a form, as its last row. Return presses the first; Escape does what the second does.
EndButtons addEndButtons(QBoxLayout& rows);

// Tab goes from each of these controls to the next.
void setTabOrder(QWidget& form, std::span<const char* const> names);

}  // namespace zamo
