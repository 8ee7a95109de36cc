#include "screens/screen.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace zamo {

void Screen::add(Control control) {
  std::string name = control.name;
  controls_.insert_or_assign(std::move(name), std::move(control));
}

const Control& Screen::at(ControlName name) const {
  const auto found = controls_.find(std::string_view(name));
  if (found == controls_.end()) throw std::out_of_range("no control " + std::string(name));
  return found->second;
}

Control& Screen::find(ControlName name) {
  return const_cast<Control&>(std::as_const(*this).at(name));
}

void Screen::forEach(const std::function<void(const Control&)>& visit) const {
  for (const auto& [name, control] : controls_) visit(control);
}

void Screen::setTitle(std::string_view title) {
  title_ = title;
  titleChanged(title_);
}

void Screen::setText(ControlName name, std::string_view text) {
  Control& control = find(name);
  if (control.text == text) return;
  control.text = text;
  if (control.kind == ControlKind::combo) {
    const auto item = std::find(control.items.begin(), control.items.end(), text);
    control.index = item == control.items.end() ? -1 : static_cast<int>(item - control.items.begin());
  }
  changed(control);
  raised(Event::change, madeName(control.name));
}

void Screen::setCaption(ControlName name, std::string_view caption) {
  Control& control = find(name);
  if (control.caption == caption) return;
  control.caption = caption;
  changed(control);
}

void Screen::setVisible(ControlName name, bool visible) {
  Control& control = find(name);
  if (control.visible == visible) return;
  control.visible = visible;
  changed(control);
}

void Screen::setVisible(ControlNames names, bool visible) {
  for (const ControlName name : names) setVisible(name, visible);
}

void Screen::setEnabled(ControlName name, bool enabled) {
  Control& control = find(name);
  if (control.enabled == enabled) return;
  control.enabled = enabled;
  changed(control);
}

void Screen::setGrey(ControlName name, bool grey) {
  Control& control = find(name);
  if (control.grey == grey) return;
  control.grey = grey;
  changed(control);
}

void Screen::setOption(ControlName name) {
  Control& option = find(name);
  if (option.isSet) return;
  for (auto& [otherName, other] : controls_) {
    if (other.isSet && other.optionGroup == option.optionGroup) unsetOption(madeName(otherName));
  }
  option.isSet = true;
  changed(option);
  raised(Event::click, madeName(option.name));
}

void Screen::unsetOption(ControlName name) {
  Control& option = find(name);
  if (!option.isSet) return;
  option.isSet = false;
  changed(option);
}

void Screen::choose(ControlName name, int index) {
  Control& control = find(name);
  const bool isItem = index >= 0 && static_cast<std::size_t>(index) < control.items.size();
  const int wanted = isItem ? index : -1;
  const std::string text = isItem ? control.items[static_cast<std::size_t>(index)] : std::string();
  if (control.index == wanted && (control.kind == ControlKind::list || control.text == text)) return;
  control.index = wanted;
  if (control.kind == ControlKind::combo) control.text = text;
  changed(control);
  raised(Event::click, madeName(control.name));
}

bool Screen::chooseText(ControlName name, std::string_view text) {
  const std::vector<std::string>& all = items(name);
  const auto item = std::find(all.begin(), all.end(), text);
  if (item == all.end()) return false;
  choose(name, static_cast<int>(item - all.begin()));
  return true;
}

void Screen::setItems(ControlName name, std::vector<std::string> items) {
  Control& control = find(name);
  control.items = std::move(items);
  control.index = -1;
  changed(control);
}

void Screen::addItem(ControlName name, std::string_view item) {
  insertItem(name, static_cast<int>(items(name).size()), item);
}

void Screen::insertItem(ControlName name, int index, std::string_view item) {
  Control& control = find(name);
  const int place = std::clamp(index, 0, static_cast<int>(control.items.size()));
  control.items.insert(control.items.begin() + place, std::string(item));
  control.index = -1;
  changed(control);
}

void Screen::removeItem(ControlName name, int index) {
  Control& control = find(name);
  if (index < 0 || static_cast<std::size_t>(index) >= control.items.size()) return;
  control.items.erase(control.items.begin() + index);
  control.index = -1;
  changed(control);
}

void Screen::raise(Event event, ControlName name) const {
  raised(event, madeName(at(name).name));
}

void Screen::setFocus(ControlName name) const {
  focusWanted(at(name).name);
}

void Screen::redrawAll() const {
  titleChanged(title_);
  for (const auto& [name, control] : controls_) changed(control);
}

}  // namespace zamo
