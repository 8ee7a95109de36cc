#include "screens/err_msg_frm.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/message.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

const Message kAbout(
    "form AboutFrm, with the version",
    "%1\r\nChecks and corrects electronic notices of digital broadcasting stations under the "
    "regional frequency plan KV19.");

constexpr QSize kTextSize(760, 440);
constexpr QSize kAboutSize(460, 180);

QPlainTextEdit* makeText(const char* name, std::string_view text) {
  auto* const field = new QPlainTextEdit(fromText(text).replace("\r\n", "\n").replace('\r', '\n'));
  field->setObjectName(name);
  field->setReadOnly(true);
  field->setTabChangesFocus(true);
  return field;
}

void layOut(QDialog& form, QPlainTextEdit* text, const char* buttonName, const char* caption, QSize size) {
  auto* const rows = new QVBoxLayout(&form);
  rows->addWidget(text);
  auto* const buttons = new QDialogButtonBox;
  QPushButton* const button = buttons->addButton(caption, QDialogButtonBox::AcceptRole);
  button->setObjectName(buttonName);
  button->setDefault(true);
  rows->addWidget(buttons);
  QObject::connect(button, &QPushButton::clicked, &form, &QDialog::accept);
  form.resize(size.boundedTo(form.screen()->availableSize()));
}

}  // namespace

ErrMsgFrm::ErrMsgFrm(std::string_view caption, std::string_view text, QWidget* parent) : QDialog(parent) {
  setObjectName("ErrMsgFrm");
  setWindowTitle(fromText(caption));
  QPlainTextEdit* const field = makeText("ErrorMsgTxt", text);
  // Findings line up as they do in the reports.
  field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  layOut(*this, field, "Button_Close", "&Close", kTextSize);
}

AboutFrm::AboutFrm(std::string_view version, QWidget* parent) : QDialog(parent) {
  setObjectName("AboutFrm");
  setWindowTitle(fromText(version));
  layOut(*this, makeText("TxtAbout", kAbout.filled({version})), "ButtonOK", "&OK", kAboutSize);
}

}  // namespace zamo
