// A notice form with its controls and all that it works with, but neither window nor database.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screens/control_table.h"
#include "screens/control_text.h"
#include "screens/form_events.h"
#include "screens/notice_form.h"
#include "support/scripted_host.h"

namespace zamo::test {

inline const std::vector<FormCode> kFormCodes = {kGS1Assign,   kGT1Assign, kGS2Allot, kGT2Allot,
                                                 kGA1SubAllot, kTB5,       kTB3,      kTB2};

struct FormAtWork {
  explicit FormAtWork(FormCode code) : form(work, code) {
    makeControls(form.screen);
    screen.focusWanted = [this](const std::string& control) { focus.push_back(control); };
  }
  FormAtWork(const FormAtWork&) = delete;
  FormAtWork& operator=(const FormAtWork&) = delete;
  ~FormAtWork() = default;

  // What the user's hand does.
  void type(ControlName control, std::string_view text) {
    screen.byUser = true;
    screen.setText(control, text);
    screen.byUser = false;
  }
  void click(ControlName control) { act(Event::click, control); }
  void doubleClick(ControlName control) { act(Event::doubleClick, control); }
  void set(ControlName option) {
    screen.byUser = true;
    screen.setOption(option);
    screen.byUser = false;
  }
  void choose(ControlName control, std::string_view item) {
    screen.byUser = true;
    screen.chooseText(control, item);
    screen.byUser = false;
  }

  Script script;
  Host host = makeScriptedHost(script);
  RunState run;
  GzmpMap map;
  Workplace work{host, run, map, {}, {}, {}, {}, false};
  NoticeForm form;
  Screen& screen = form.screen;
  std::vector<std::string> focus;  // the controls that it went to

 private:
  void act(Event event, ControlName control) {
    screen.byUser = true;
    screen.raise(event, control);
    screen.byUser = false;
  }
};

}  // namespace zamo::test
