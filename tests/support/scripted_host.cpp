#include "support/scripted_host.h"

namespace zamo::test {
namespace {

template <typename Value>
std::optional<Value> takeNext(std::deque<Value>& values) {
  if (values.empty()) return {};
  Value next = values.front();
  values.pop_front();
  return next;
}

}  // namespace

Host makeScriptedHost(Script& script) {
  Host host;
  host.showBox = [&script](const Box& box) { script.boxes.push_back(box); };
  host.askYesNo = [&script](const Box& box) {
    script.questions.push_back(box);
    return takeNext(script.answers).value_or(false);
  };
  host.askText = [&script](const Box& box) {
    script.prompts.push_back(box);
    return takeNext(script.texts).value_or("");
  };
  host.beep = [&script] { ++script.beeps; };
  host.setStatus = [&script](std::string_view text) { script.statuses.emplace_back(text); };
  host.setNote = [&script](std::string_view text) { script.note = text; };
  host.repaint = [&script] { ++script.repaints; };
  host.yield = [&script] { ++script.yields; };
  host.setHourglass = [&script](bool on) { script.hourglasses = on ? 1 : 0; };
  host.now = [&script] { return script.now; };
  host.systemLogonName = [&script] { return script.logonName; };
  host.readSetting = [&script](std::string_view key) {
    const auto found = script.settings.find(key);
    return found == script.settings.end() ? std::string() : found->second;
  };
  host.saveSetting = [&script](std::string_view key, std::string_view value) {
    script.settings.insert_or_assign(std::string(key), std::string(value));
  };
  host.openFile = [&script](const OpenFileRequest& request) {
    script.fileRequests.push_back(request);
    return takeNext(script.files);
  };
  host.chooseFolder = [&script](std::string_view) { return takeNext(script.folders); };
  host.startTextViewer = [&script](const std::string& path) {
    if (script.hasViewer) script.viewed.push_back(path);
    return script.hasViewer;
  };
  return host;
}

}  // namespace zamo::test
