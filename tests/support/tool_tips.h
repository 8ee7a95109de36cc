// The tool tip as the user reads it.
#pragma once

#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>
#include <string>

namespace zamo::test {

// The pointer comes to rest upon a place of the widget. A picture in what is shown reads as U+FFFC.
inline std::string tipAt(QWidget& widget, QPoint place) {
  QObject elsewhere;
  QEvent leaves(QEvent::WindowDeactivate);  // which takes the last tip away at once
  QApplication::sendEvent(&elsewhere, &leaves);
  QHelpEvent rests(QEvent::ToolTip, place, widget.mapToGlobal(place));
  QApplication::sendEvent(&widget, &rests);
  if (!QToolTip::isVisible()) return "";
  const QString shown = QToolTip::text();
  if (!Qt::mightBeRichText(shown)) return shown.toStdString();
  QTextDocument document;
  document.setHtml(shown);
  return document.toPlainText().toStdString();
}

}  // namespace zamo::test
