#include "widgets/plain_tips.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

namespace zamo {
namespace {

constexpr const char* kName = "plainTips";
constexpr qsizetype kLongestLine = 80;

QString tipOfHeader(const QHeaderView& header, QPoint place) {
  if (header.model() == nullptr) return {};
  return header.model()
      ->headerData(header.logicalIndexAt(place), header.orientation(), Qt::ToolTipRole)
      .toString();
}

QString tipOfItem(const QAbstractItemView& view, QPoint place) {
  if (const auto* const header = qobject_cast<const QHeaderView*>(&view)) return tipOfHeader(*header, place);
  return view.indexAt(place).data(Qt::ToolTipRole).toString();
}

// The items of a view are under its viewport.
QString tipAt(const QWidget& widget, QPoint place) {
  const auto* const view = qobject_cast<const QAbstractItemView*>(widget.parentWidget());
  if (view == nullptr || view->viewport() != &widget) return widget.toolTip();
  return tipOfItem(*view, place);
}

// Markup of which nothing shows but the text, blanks included: only as markup a long tip is broken into
// lines.
QString asPlainMarkup(const QString& tip) {
  const char* const lines = tip.size() > kLongestLine ? "pre-wrap" : "pre";
  return QString("<p style='white-space:%1'>").arg(lines) + tip.toHtmlEscaped() + "</p>";
}

class PlainTips final : public QObject {
 public:
  explicit PlainTips(QObject& application) : QObject(&application) {
    setObjectName(kName);
    application.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType()) return false;
    auto& widget = static_cast<QWidget&>(*watched);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QString tip = tipAt(widget, help.pos());
    if (tip.isEmpty()) return false;
    QToolTip::showText(help.globalPos(), asPlainMarkup(tip), &widget);
    return true;
  }
};

}  // namespace

void showTipsAsPlainText() {
  QCoreApplication& application = *QCoreApplication::instance();
  if (application.findChild<QObject*>(kName, Qt::FindDirectChildrenOnly) == nullptr)
    new PlainTips(application);
}

}  // namespace zamo
