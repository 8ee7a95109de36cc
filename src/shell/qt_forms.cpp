#include "shell/qt_forms.h"

#include "query/only_date_update.h"
#include "query/query_form.h"

namespace zamo {

void useQtForms(Shell& shell, QWidget& window) {
  shell.forms.showQueryForm = [&shell, &window] {
    QrySelectFrmKV19 form(shell.host, shell.run, &window);
    form.exec();
  };
  shell.forms.askUpdateCondition = [&shell, &window] {
    OnlyDateUpdate form(shell.host, &window);
    form.exec();
    return form.filter();
  };
}

}  // namespace zamo
