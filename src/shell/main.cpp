#include <QApplication>

#include "shell/main_window.h"
#include "shell/notice_screens.h"
#include "shell/qt_forms.h"
#include "shell/qt_host.h"
#include "shell/start_up.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName("zamo-kv19");
  QApplication::setStyle("Fusion");

  zamo::Shell shell;
  zamo::MainWindow window(shell);
  shell.host = zamo::makeQtHost(window);
  zamo::useQtForms(shell, window);
  zamo::useNoticeScreens(shell, window);
  zamo::startUp(shell, zamo::mapBesideExecutable(shell));
  window.show();
  return QApplication::exec();
}
