// A notice form at work: its screen, what it remembers, and what it works with.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "map/gzmp_map.h"
#include "model/ntc_rec.h"
#include "platform/host.h"
#include "query/run_state.h"
#include "screens/screen.h"
#include "validation/reference_rules.h"

namespace zamo {

// What the screens share for the time of a run.
struct ScreenState {
  bool ntcListChanged = false;      // a save or a deletion came as far as its question
  bool screenIsBlank = false;       // nothing worth saving stands on the screen
  bool ntcFromOtherNotice = false;  // a TB screen was opened from another notice
};

enum class FillGrid : std::int16_t { effectiveHeight = 0, attenuation = 1 };

inline constexpr int kNoAzimuth = 9999;

// One value for a range of azimuths; after Cancel no azimuth is in the range.
struct AzimuthFill {
  std::string value;
  int from = kNoAzimuth;
  int to = kNoAzimuth;
};

struct NoticeForm;

// The dialogs that the forms open, all of them modal, and the showing of a form itself. Without a window
// nothing opens.
struct Dialogs {
  // Shows a form until it closes: until NoticeForm::close, or until the user closes its window.
  std::function<void(NoticeForm&)> showForm = [](NoticeForm&) {};
  std::function<AzimuthFill(FillGrid, int hgtMax)> FillRangeFrm = [](FillGrid, int) { return AzimuthFill(); };
  std::function<void(const std::string& caption, const std::string& text)> ErrMsgFrm =
      [](const std::string&, const std::string&) {};
  std::function<void(const NtcRec& contour)> ContourDetailFrm = [](const NtcRec&) {};
};

// A notice that waits for its form.
struct NextNotice {
  std::int32_t key = 0;
  NtcRec ntc;
  FormCode code = kNoForm;
};

// What the forms work with. One for the whole run; it must outlive the forms. The map of a run without map
// data is an empty record, and what asks it is left out then.
struct Workplace {
  const Host& host;
  RunState& run;
  const GzmpMap& map;
  AgencyLookups agencies;
  Dialogs dialogs;
  ScreenState state;
  std::optional<NextNotice> next;  // the walk goes on with it in another form
  bool isShowing = false;          // a form of the walk is on the display
};

inline bool hasMap(const GzmpMap& map) {
  return static_cast<bool>(map.gzmpCountryAtPoint);
}

// How the test point that stands in the coordinate boxes enters the list.
enum PointEditMode : std::int16_t { kAddPoint = 0, kInsertPoint = 1, kModifyPoint = 2 };

struct NoticeForm {
  NoticeForm(Workplace& workplace, FormCode code) : work(workplace), screen(code) {}

  Workplace& work;
  Screen screen;
  bool isNewNotice = false;  // the forms only ever show stored notices

  std::string pickedAdm;        // clicked last in ListAdmAvail
  int selectedAdmIdx = -1;      // clicked last in ListAdmSel
  int selectedContourIdx = -1;  // clicked last in ListBoxContourID
  int selectedPointIdx = -1;    // clicked last in ListBox_LMZ04_Coordinates
  std::int16_t pointEditMode = kAddPoint;

  // Ends the showing. The window sets what that takes.
  std::function<void()> close = [] {};
};

// Only what the user chooses tells whether something stands on the screen, and not a notice that a button of
// theirs brings to it.
inline void noteBlank(NoticeForm& form, bool isBlank) {
  if (form.screen.byUser && !form.screen.filling) form.work.state.screenIsBlank = isBlank;
}

}  // namespace zamo
