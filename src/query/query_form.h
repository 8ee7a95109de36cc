// The query form: the user says which notices or contours to fetch, and OK leaves the statement in the run
// state.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "platform/host.h"
#include "query/run_state.h"

namespace zamo {

class LeaveChecks;
struct QueryControls;

// Works on the open database of `run`. Opening it empties the statement of the last selection; what the
// engine refuses while the lists are filled is shown in the common error box, and they are empty then. OK
// sets qrySql and qryConfirmed; leaving in any other way leaves them empty and unset.
class QrySelectFrmKV19 final : public QDialog {
 public:
  // Both must outlive the form.
  QrySelectFrmKV19(const Host& host, RunState& run, QWidget* parent = nullptr);
  QrySelectFrmKV19(const QrySelectFrmKV19&) = delete;
  QrySelectFrmKV19& operator=(const QrySelectFrmKV19&) = delete;
  ~QrySelectFrmKV19() override;

 private:
  void chooseGroup(bool isNotice);
  void takeTypes();
  void showContourId(bool shown);
  void fillLists();
  void guarded(const std::function<void()>& read);
  void confirm();
  void cancel();

  const Host& host_;
  RunState& run_;
  std::unique_ptr<QueryControls> controls_;
  LeaveChecks* checks_ = nullptr;
};

}  // namespace zamo
