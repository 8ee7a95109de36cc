#include "widgets/hint_colour.h"

#include <QApplication>
#include <QPalette>

namespace zamo {
namespace {

constexpr const char* kName = "hintColour";
constexpr int kPercentText = 65;

int between(int text, int ground) {
  return (text * kPercentText + ground * (100 - kPercentText)) / 100;
}

class HintColour final : public QObject {
 public:
  explicit HintColour(QObject& application) : QObject(&application) {
    setObjectName(kName);
    application.installEventFilter(this);
    follow();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == parent() && event->type() == QEvent::ApplicationPaletteChange) follow();
    return false;
  }

 private:
  static void follow() {
    QPalette palette = QApplication::palette();
    const QColor colour = hintColour(palette);
    if (palette.color(QPalette::PlaceholderText) == colour) return;
    palette.setColor(QPalette::PlaceholderText, colour);
    QApplication::setPalette(palette);
  }
};

}  // namespace

QColor hintColour(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  const QColor ground = palette.color(QPalette::Active, QPalette::Base);
  return {between(text.red(), ground.red()), between(text.green(), ground.green()),
          between(text.blue(), ground.blue())};
}

void keepHintsReadable() {
  QCoreApplication& application = *QCoreApplication::instance();
  if (application.findChild<QObject*>(kName, Qt::FindDirectChildrenOnly) == nullptr)
    new HintColour(application);
}

}  // namespace zamo
