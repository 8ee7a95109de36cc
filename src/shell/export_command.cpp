#include "shell/export_command.h"

#include <string>

#include "platform/files.h"
#include "platform/message.h"
#include "shell/command_parts.h"

namespace zamo {
namespace {

const Message kWriting("status: an export begins", "Writing the selected record to an electronic file");
const Message kCompleted("box \"Information\" and status: an export is finished",
                         "Electronic file completed");

std::string outputName(const std::string& databasePath, const DateTime& now) {
  return baseOf(databasePath) + std::to_string(now.hour) + std::to_string(now.minute) +
         std::to_string(now.second) + ".corr.txt";
}

}  // namespace

void mnuTxtDBAll(Shell& shell) {
  requireDatabase(shell);
  exportAll(shell);
}

void mnuTxtDBUpdated(Shell& shell) {
  requireDatabase(shell);
  const std::string condition = shell.forms.askUpdateCondition();
  if (!condition.empty()) exportUpdated(shell, condition);
}

ExportEnd exportAll(Shell& shell) {
  shell.host.setHourglass(true);
  return exportTextFromDb(
      shell, "SELECT fmtv_vorna.vornakey FROM fmtv_vorna ",
      "SELECT lmz_contour.contourkey FROM lmz_contour WHERE lmz_contour.nb_test_pts > 0 ");
}

ExportEnd exportUpdated(Shell& shell, std::string_view condition) {
  shell.host.setHourglass(true);
  return exportTextFromDb(shell,
                          std::string("SELECT fmtv_vorna.vornakey FROM fmtv_vorna WHERE ").append(condition),
                          std::string("SELECT lmz_contour.contourkey FROM lmz_contour WHERE ")
                              .append(condition)
                              .append(" AND lmz_contour.nb_test_pts > 0 "));
}

ExportEnd exportTextFromDb(Shell& shell, std::string_view noticeSql, std::string_view contourSql) {
  shell.forms.detachGrid();
  shell.run.CorrFileName = outputName(shell.run.DbFileName, shell.host.now());
  showStatus(shell, kWriting.words());
  ExportRun exported{kWindowVersion};
  if (exportDBToTxt(shell.host, shell.run.CorrFileName, *shell.run.DbConn, exported, noticeSql, contourSql,
                    "")) {
    shell.host.showBox({kCompleted.filled({}), "Information", BoxIcon::information});
    shell.host.setStatus(kCompleted.words());
  }
  shell.host.repaint();
  shell.host.setHourglass(false);
  return exported.end;
}

}  // namespace zamo
