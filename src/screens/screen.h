// A notice form as its rules see it: named controls with their states, and no window. Whatever shows the form
// follows the changes; the rules are the same with and without a display.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "screens/control_name.h"

namespace zamo {

// What happens to a control. The program's changes raise `change` and `click` as the user's do.
enum class Event : std::uint8_t { change, click, doubleClick };

struct Control {
  std::string name;
  ControlKind kind = ControlKind::text;
  std::string caption;  // of a label, an option, a button and a frame
  std::string tip;
  std::string text;                // of a text box and a combo
  std::vector<std::string> items;  // of a combo and a list
  int index = -1;                  // the item that is chosen; -1: none
  bool isSet = false;              // of an option
  bool visible = true;             // its own state: a frame that is hidden hides what it holds all the same
  bool enabled = true;
  bool grey = false;        // painted in the colour of a locked field
  std::string optionGroup;  // options of one group exclude each other
};

class Screen {
 public:
  explicit Screen(FormCode formCode) : code_(formCode) {}
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen() = default;

  FormCode code() const { return code_; }

  // Controls are made once, before the form is used.
  void add(Control control);

  // A name that the form doesn't have throws std::out_of_range.
  const Control& at(ControlName name) const;
  bool has(ControlName name) const { return controls_.find(std::string_view(name)) != controls_.end(); }
  const std::string& text(ControlName name) const { return at(name).text; }
  bool isEmpty(ControlName name) const { return at(name).text.empty(); }
  bool isSet(ControlName name) const { return at(name).isSet; }
  bool isVisible(ControlName name) const { return at(name).visible; }
  const std::vector<std::string>& items(ControlName name) const { return at(name).items; }

  void forEach(const std::function<void(const Control&)>& visit) const;

  // The caption of the form itself.
  const std::string& title() const { return title_; }
  void setTitle(std::string_view title);

  // Each of these tells `changed`, and raises the control's event where one is named, if there is a change.

  // The text of a text box, or of a combo that can be typed into. Raises `change`.
  void setText(ControlName name, std::string_view text);
  void setCaption(ControlName name, std::string_view caption);
  void setVisible(ControlName name, bool visible);
  void setVisible(ControlNames names, bool visible);
  void setEnabled(ControlName name, bool enabled);
  void setGrey(ControlName name, bool grey);
  // Sets the option and unsets the others of its group. Raises `click` for the one that is set.
  void setOption(ControlName name);
  void unsetOption(ControlName name);
  // Chooses an item of a combo or a list; -1 chooses none. A combo takes the item as its text. Raises
  // `click`.
  void choose(ControlName name, int index);
  // Chooses the first item that equals the text exactly; gives whether there is one. Otherwise nothing
  // changes.
  bool chooseText(ControlName name, std::string_view text);
  // The lists of combos and lists. What was chosen is forgotten, without an event.
  void setItems(ControlName name, std::vector<std::string> items);
  void addItem(ControlName name, std::string_view item);
  void insertItem(ControlName name, int index, std::string_view item);
  void removeItem(ControlName name, int index);
  void clearItems(ControlName name) { setItems(name, {}); }

  // Raises an event of a control as the user's hand does: choosing an item again is a click too.
  void raise(Event event, ControlName name) const;
  void setFocus(ControlName name) const;
  void redrawAll() const;

  // While a stored notice is brought to the screen: rules that clear a box leave what is stored to be seen.
  bool filling = false;
  // While the user's hand is on the form, and not the program's.
  bool byUser = false;

  // The window's: a control looks otherwise than before; the title; the focus goes somewhere.
  std::function<void(const Control&)> changed = [](const Control&) {};
  std::function<void(const std::string&)> titleChanged = [](const std::string&) {};
  std::function<void(const std::string&)> focusWanted = [](const std::string&) {};
  // The rules': something happened to a control.
  std::function<void(Event, ControlName)> raised = [](Event, ControlName) {};

 private:
  Control& find(ControlName name);

  FormCode code_;
  std::string title_;
  std::map<std::string, Control, std::less<>> controls_;
};

// Whether a stored notice is being brought to the screen, as long as this lives.
class Filling {
 public:
  Filling(Screen& screen, bool filling) : screen_(screen), before_(screen.filling) {
    screen_.filling = filling;
  }
  Filling(const Filling&) = delete;
  Filling& operator=(const Filling&) = delete;
  ~Filling() { screen_.filling = before_; }

 private:
  Screen& screen_;
  bool before_;
};

}  // namespace zamo
