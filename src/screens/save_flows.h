// What the buttons Validation, Update, Add New and Delete do, the same on all forms.
#pragma once

#include "screens/notice_form.h"

namespace zamo {

void validateNotice(NoticeForm& form);
void updateNotice(NoticeForm& form);
void addNotice(NoticeForm& form);
void deleteNotice(NoticeForm& form);

}  // namespace zamo
