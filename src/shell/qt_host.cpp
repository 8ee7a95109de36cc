#include "shell/qt_host.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <array>
#include <memory>

#include "platform/run_time_error.h"
#include "platform/system.h"
#include "shell/main_window.h"
#include "shell/start_up.h"
#include "widgets/long_box.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

constexpr qint64 kRefreshMilliseconds = 30;
constexpr QSize kDialogSize(820, 480);

constexpr const char* kSettingsName = "KV19_Requirements";

// clang-format off
constexpr std::array<const char*, 6> kTextViewers = {
    "xdg-open", "gnome-text-editor", "gedit", "kate", "mousepad", "featherpad"};
// clang-format on

// While a box or a dialog waits for the user, the pointer is no hourglass.
class NormalPointer {
 public:
  NormalPointer() : wasHourglass_(QApplication::overrideCursor() != nullptr) {
    if (wasHourglass_) QApplication::restoreOverrideCursor();
  }
  NormalPointer(const NormalPointer&) = delete;
  NormalPointer& operator=(const NormalPointer&) = delete;
  ~NormalPointer() {
    if (wasHourglass_) QApplication::setOverrideCursor(Qt::WaitCursor);
  }

 private:
  bool wasHourglass_;
};

void setHourglass(bool on) {
  const bool isOn = QApplication::overrideCursor() != nullptr;
  if (on && !isOn) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (!on && isOn) QApplication::restoreOverrideCursor();
}

QMessageBox::Icon iconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::information:
      return QMessageBox::Information;
    case BoxIcon::exclamation:
    case BoxIcon::exclamationAndInformation:
      return QMessageBox::Warning;
    case BoxIcon::none:
      break;
  }
  return QMessageBox::NoIcon;
}

// The line ends of the messages are of every kind.
QString withPlainLineEnds(QString text) {
  return text.replace("\r\n", "\n").replace("\n\r", "\n").replace('\r', '\n');
}

// What a box or a dialog stands over: the form that the user works on.
QWidget* ownerOf(MainWindow& window) {
  QWidget* const modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : &window;
}

QMessageBox::StandardButtons buttonsOf(BoxButtons buttons) {
  if (buttons == BoxButtons::cancelTryContinue)
    return QMessageBox::Cancel | QMessageBox::Retry | QMessageBox::Ignore;
  return QMessageBox::Ok;
}

int execBox(MainWindow& window, const Box& box, QMessageBox::StandardButtons buttons) {
  window.refresh();
  const NormalPointer pointer;
  const QString title = box.title.empty() ? QGuiApplication::applicationDisplayName() : fromText(box.title);
  QMessageBox dialog(iconOf(box.icon), title, withPlainLineEnds(fromText(box.text)), buttons,
                     ownerOf(window));
  // Messages name tags like <HEAD>, which rich text would swallow.
  dialog.setTextFormat(Qt::PlainText);
  dialog.setTextInteractionFlags(Qt::TextSelectableByMouse);
  if (QAbstractButton* const goOn = dialog.button(QMessageBox::Ignore)) goOn->setText("Continue");
  if (QAbstractButton* const again = dialog.button(QMessageBox::Retry)) again->setText("Try Again");
  fitToDisplay(dialog);
  return dialog.exec();
}

std::string askText(MainWindow& window, const Box& box) {
  window.refresh();
  const NormalPointer pointer;
  return toText(QInputDialog::getText(ownerOf(window), fromText(box.title), fromText(box.text)));
}

std::optional<std::string> execFileDialog(MainWindow& window, QFileDialog& dialog) {
  window.refresh();
  const NormalPointer pointer;
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.resize(kDialogSize.boundedTo(window.screen()->availableSize()));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return QFile::encodeName(QDir::toNativeSeparators(dialog.selectedFiles().constFirst())).toStdString();
}

std::optional<std::string> openFile(MainWindow& window, const OpenFileRequest& request) {
  QFileDialog dialog(&window, QString(), dialogFolder(request.folder), dialogFilter(request.filter));
  dialog.setObjectName("CMDialog");
  dialog.setFileMode(QFileDialog::ExistingFile);
  return execFileDialog(window, dialog);
}

std::optional<std::string> chooseFolder(MainWindow& window, std::string_view title,
                                        const std::string& present) {
  QFileDialog dialog(&window, fromText(title), dialogFolder(present));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  return execFileDialog(window, dialog);
}

QString settingKey(std::string_view key) {
  return "Settings/" + QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

std::string readSetting(std::string_view key) {
  const QSettings settings(kSettingsName, kSettingsName);
  return settings.value(settingKey(key)).toString().toStdString();
}

void saveSetting(std::string_view key, std::string_view value) {
  QSettings settings(kSettingsName, kSettingsName);
  settings.setValue(settingKey(key), QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size())));
  settings.sync();
  if (settings.status() == QSettings::NoError) return;
  throw RunTimeError{kPermissionDenied,
                     "The setting cannot be saved in " + textFromUtf8(settings.fileName().toStdString())};
}

bool startTextViewer(const std::string& path) {
  const QStringList arguments = {QFile::decodeName(QByteArray::fromStdString(path))};
  return std::any_of(kTextViewers.begin(), kTextViewers.end(), [&arguments](const char* viewer) {
    const QString program = QStandardPaths::findExecutable(viewer);
    return !program.isEmpty() && QProcess::startDetached(program, arguments);
  });
}

// Refreshes the window, but no more often than an eye can follow.
Yield makeRefresh(MainWindow& window) {
  const auto sinceLast = std::make_shared<QElapsedTimer>();
  return [&window, sinceLast] {
    if (sinceLast->isValid() && sinceLast->elapsed() < kRefreshMilliseconds) return;
    window.refresh();
    sinceLast->start();
  };
}

}  // namespace

Host makeQtHost(MainWindow& window) {
  const Yield refresh = makeRefresh(window);
  Host host;
  host.showBox = [&window](const Box& box) { execBox(window, box, buttonsOf(box.buttons)); };
  host.askYesNo = [&window](const Box& box) {
    return execBox(window, box, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
  };
  host.askText = [&window](const Box& box) { return askText(window, box); };
  host.beep = QApplication::beep;
  host.setStatus = [&window](std::string_view text) { window.setStatus(text); };
  host.setNote = [&window](std::string_view text) { window.setNote(text); };
  host.repaint = refresh;
  host.yield = refresh;
  host.setHourglass = setHourglass;
  host.now = systemNow;
  host.systemLogonName = systemUserName;
  host.readSetting = readSetting;
  host.saveSetting = saveSetting;
  host.openFile = [&window](const OpenFileRequest& request) { return openFile(window, request); };
  host.chooseFolder = [&window](std::string_view title) {
    return chooseFolder(window, title, readSetting(kWorkDirSetting));
  };
  host.startTextViewer = startTextViewer;
  return host;
}

QString dialogFilter(std::string_view filter) {
  const QStringList parts = fromText(filter).split('|', Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString caption = parts[i].section(" (", 0, 0);
    filters << caption + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
  }
  return filters.join(";;");
}

QString dialogFolder(const std::string& folder) {
  const QString name = QFile::decodeName(QByteArray::fromStdString(folder));
  return !name.isEmpty() && QDir(name).exists() ? name : QDir::homePath();
}

}  // namespace zamo
