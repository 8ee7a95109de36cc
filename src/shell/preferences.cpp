#include "shell/preferences.h"

#include "platform/code_page.h"
#include "platform/text.h"
#include "shell/start_up.h"

namespace zamo {
void mnuPrefDir(Shell& shell) {
  const std::string stored = shell.host.readSetting(kWorkDirSetting);
  if (!stored.empty()) {
    const std::string question = std::string("The current working directory is : ")
                                     .append(textFromUtf8(stored))
                                     .append(kLineEnd)
                                     .append("Do you want to change it?");
    if (!shell.host.askYesNo({question, "Set the Working Directory", BoxIcon::information})) return;
  }
  const std::optional<std::string> chosen = shell.host.chooseFolder("Select the working folder");
  if (chosen && !chosen->empty()) shell.run.WorkDir = *chosen;
  shell.host.saveSetting(kWorkDirSetting, shell.run.WorkDir);
}

}  // namespace zamo
