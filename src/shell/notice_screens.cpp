#include "shell/notice_screens.h"

#include <QApplication>
#include <QWidget>
#include <memory>

#include "database/agency_lookups.h"
#include "map/outlines_around.h"
#include "screens/contour_detail_frm.h"
#include "screens/err_msg_frm.h"
#include "screens/fill_range_frm.h"
#include "screens/notice_walk.h"
#include "screens/notice_window.h"

namespace zamo {
namespace {

// The form that a dialog stands over.
QWidget* formOnTop(QWidget& window) {
  QWidget* const form = QApplication::activeModalWidget();
  return form != nullptr ? form : &window;
}

AgencyLookups lookupsOf(const std::shared_ptr<MasterAgencies>& agencies) {
  return {
      [agencies](std::string_view adm, std::string_view code) { return agencies->isOpAgcyOfAdm(adm, code); },
      [agencies](std::string_view adm, std::string_view code) {
        return agencies->isAddrCodeOfAdm(adm, code);
      }};
}

std::vector<GzmpLine> outlinesOf(const Shell& shell, const GzmpBox& box) {
  if (!hasMap(shell.map.gzmp)) return {};
  return outlinesAround(shell.map, box);
}

Dialogs dialogsOver(Shell& shell, QWidget& window) {
  Dialogs dialogs;
  dialogs.showForm = [&window](NoticeForm& form) { showNoticeWindow(form, formOnTop(window)); };
  dialogs.FillRangeFrm = [&shell, &window](FillGrid grid, int hgtMax) {
    FillRangeFrm form(shell.host, grid, hgtMax, formOnTop(window));
    form.exec();
    return form.fill();
  };
  dialogs.ErrMsgFrm = [&window](const std::string& caption, const std::string& text) {
    ErrMsgFrm(caption, text, formOnTop(window)).exec();
  };
  dialogs.ContourDetailFrm = [&shell, &window](const NtcRec& contour) {
    const auto outlines = [&shell](const GzmpBox& box) { return outlinesOf(shell, box); };
    ContourDetailFrm(contour, outlines, kWindowVersion, formOnTop(window)).exec();
  };
  return dialogs;
}

}  // namespace

void useNoticeScreens(Shell& shell, QWidget& window) {
  const auto agencies = std::make_shared<MasterAgencies>();
  const auto work = std::make_shared<Workplace>(Workplace{
      shell.host, shell.run, shell.map.gzmp, lookupsOf(agencies), dialogsOver(shell, window), {}, {}, false});
  shell.forms.openNotice = [work](std::int32_t key, std::int32_t idx, const std::string& type) {
    openNtcFromGrid(*work, key, idx, type);
  };
}

}  // namespace zamo
