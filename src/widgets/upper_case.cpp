#include "widgets/upper_case.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include "platform/text.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

QString upperCase(QString text) {
  for (QChar& c : text) {
    const QChar upper = fromText(upperText(toText(QString(c)))).front();
    if (upper != QLatin1Char('?')) c = upper;
  }
  return text;
}

class UpperCase final : public QObject {
 public:
  explicit UpperCase(QLineEdit& field) : QObject(&field), field_(field) { field.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) return typeKey(static_cast<const QKeyEvent&>(*event));
    if (event->type() == QEvent::InputMethod) {
      auto& input = static_cast<QInputMethodEvent&>(*event);
      input.setCommitString(upperCase(input.commitString()), input.replacementStart(),
                            input.replacementLength());
    }
    return false;
  }

 private:
  bool typeKey(const QKeyEvent& key) {
    const QString text = key.text();
    constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (text.isEmpty() || !text.front().isLower() || (key.modifiers() & command) != 0) return false;
    if (!field_.isReadOnly()) field_.insert(upperCase(text));
    return true;
  }

  QLineEdit& field_;
};

}  // namespace

void typeUpperCase(QLineEdit& field) {
  new UpperCase(field);
}

}  // namespace zamo
