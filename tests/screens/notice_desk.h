// Notice forms without a window over a working database; forms that are shown do what the test has laid out
// for them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screens/notice_selection.h"

namespace zamo::test {

class NoticeDesk : public NoticeSelection {
 protected:
  NoticeDesk() {
    work.dialogs.showForm = [this](NoticeForm& form) { actOn(form); };
    work.dialogs.ErrMsgFrm = [this](const std::string& caption, const std::string& text) {
      results.push_back({text, caption});
    };
  }

  // Each form that is shown for the entry takes the next of the steps; one without a step is closed by the
  // user at once.
  void open(std::int32_t idx) {
    openEntry(idx);
    EXPECT_EQ(shownNow, 0);
  }
  // The same with one step.
  void open(std::int32_t idx, std::function<void(NoticeForm&)> step) {
    steps.push_back(std::move(step));
    open(idx);
    EXPECT_TRUE(steps.empty()) << "a form was not shown";
  }

  void actOn(NoticeForm& form) {
    mostShown = std::max(mostShown, ++shownNow);
    shown.push_back(form.screen.code());
    closed = false;
    form.close = [this] { closed = true; };
    if (!steps.empty()) {
      const auto step = steps.front();
      steps.pop_front();
      step(form);
    }
    --shownNow;
  }

  static void click(NoticeForm& form, ControlName button) {
    form.screen.byUser = true;
    form.screen.raise(Event::click, button);
    form.screen.byUser = false;
  }
  static void type(NoticeForm& form, ControlName control, std::string_view text) {
    form.screen.byUser = true;
    form.screen.setText(control, text);
    form.screen.byUser = false;
  }

  std::vector<Box> results;  // of Validation
  std::deque<std::function<void(NoticeForm&)>> steps;
  std::vector<FormCode> shown;
  int shownNow = 0;
  int mostShown = 0;
  bool closed = false;
};

}  // namespace zamo::test
