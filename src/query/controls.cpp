#include "query/controls.h"

#include <QHBoxLayout>

namespace zamo {

QGroupBox* makeFrame(const char* name, const char* caption) {
  auto* frame = new QGroupBox(caption);
  frame->setObjectName(name);
  return frame;
}

QLabel* makeLabel(const char* name, const char* caption, const char* toolTip) {
  auto* label = new QLabel(caption);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setToolTip(toolTip);
  return label;
}

QLineEdit* makeField(const char* name, const char* spokenName, const char* toolTip) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setAccessibleName(spokenName);
  field->setToolTip(toolTip);
  return field;
}

QCheckBox* makeCheckBox(const char* name, const char* caption, const char* toolTip) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  return box;
}

QPushButton* makeButton(const char* name, const char* caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  return button;
}

void tighten(QLayout& layout) {
  layout.setContentsMargins(kGap, kGap, kGap, kGap);
  layout.setSpacing(kGap);
}

EndButtons addEndButtons(QBoxLayout& rows) {
  const EndButtons buttons{makeButton("ButtonOK", "&OK"), makeButton("ButtonCancel", "&Cancel")};
  buttons.ButtonOK->setDefault(true);
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(buttons.ButtonOK);
  row->addWidget(buttons.ButtonCancel);
  rows.addLayout(row);
  return buttons;
}

void setTabOrder(QWidget& form, std::span<const char* const> names) {
  QWidget* last = nullptr;
  for (const char* const name : names) {
    auto* const next = form.findChild<QWidget*>(name);
    if (last != nullptr) QWidget::setTabOrder(last, next);
    last = next;
  }
}

}  // namespace zamo
