// Between a record and the controls of its form, in both directions.
#pragma once

#include <string>

#include "model/ntc_rec.h"
#include "platform/host.h"
#include "screens/screen.h"

namespace zamo {

// Writes what the record holds to its controls; a control whose field is empty keeps what it shows. On the
// forms with a planning configuration a control that shows one, when the record has none, gives it to the
// record.
void fillNtcScreen(NtcRec& ntc, Screen& screen, FormCode code);
void fillContourScreen(const NtcRec& ntc, Screen& screen);

// Reads what the controls show into a cleared record, stamped with today and the logon name.
void readNtcFromScreen(NtcRec& ntc, const Screen& screen, FormCode code, const Host& host);
void readContourFromScreen(NtcRec& ntc, const Screen& screen, const Host& host);

// A test point of a record as the lists show it: longitude and latitude with their hemispheres behind. A
// longitude that is too short keeps the latitude in its place.
std::string pointItem(const PointRec& point);

// The filler and the reader of the form, whichever it is, and so for the contour too.
void fillForm(NtcRec& ntc, Screen& screen);
void readForm(NtcRec& ntc, const Screen& screen, const Host& host);

}  // namespace zamo
