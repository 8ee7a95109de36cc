#include "shell/preferences.h"

#include "platform/code_page.h"
#include "platform/message.h"
#include "shell/start_up.h"

namespace zamo {
namespace {

const Message kQuestion("question \"Set the Working Directory\"",
                        "The current working directory is : %1\r\nDo you want to change it?");

}  // namespace
void mnuPrefDir(Shell& shell) {
  const std::string stored = shell.host.readSetting(kWorkDirSetting);
  if (!stored.empty()) {
    const std::string question = kQuestion.filled({textFromUtf8(stored)});
    if (!shell.host.askYesNo({question, "Set the Working Directory", BoxIcon::information})) return;
  }
  const std::optional<std::string> chosen = shell.host.chooseFolder("Select the working folder");
  if (chosen && !chosen->empty()) shell.run.WorkDir = *chosen;
  shell.host.saveSetting(kWorkDirSetting, shell.run.WorkDir);
}

}  // namespace zamo
