// The deterministic platform: a virtual clock, scripted dialogs and recording stand-ins.
#include "platform/sim/sim_platform.h"

#include "platform/date_time.h"

namespace tesk {

namespace {

std::string Pad(int v, int width) {
  std::string s = std::to_string(v);
  while (static_cast<int>(s.size()) < width)
    s.insert(s.begin(), '0');
  return s;
}

}  // namespace

DateTime SimClock::localNow() const {
  return AddMilliseconds(start, m_loop.nowUs() / 1000);
}

DateTime SimClock::utcNow() const {
  return AddMilliseconds(localNow(), -static_cast<int64_t>(utcOffsetMinutes) * 60000);
}

std::string SimClock::shortDate(const DateTime& t) const {
  std::string out;
  for (std::size_t i = 0; i < dateFormat.size();) {
    auto starts = [&](const char* p) {
      return dateFormat.compare(i, std::string(p).size(), p) == 0;
    };
    if (starts("yyyy")) {
      out += Pad(t.year, 4), i += 4;
    } else if (starts("yy")) {
      out += Pad(t.year % 100, 2), i += 2;
    } else if (starts("MM")) {
      out += Pad(t.month, 2), i += 2;
    } else if (starts("M")) {
      out += std::to_string(t.month), i += 1;
    } else if (starts("dd")) {
      out += Pad(t.day, 2), i += 2;
    } else if (starts("d")) {
      out += std::to_string(t.day), i += 1;
    } else {
      out += dateFormat[i++];
    }
  }
  return out;
}

std::string SimClock::longTime(const DateTime& t) const {
  return Pad(t.hour, 2) + ":" + Pad(t.minute, 2) + ":" + Pad(t.second, 2);
}

std::string SimDialogs::take(ShownBox& box) {
  if (onShow) onShow(box);
  if (answerDelay > 0) m_loop.waitUntil(answerDelay, {});
  if (answers.empty()) return {};
  std::string a = answers.front();
  answers.pop_front();
  return a;
}

MsgResult SimDialogs::msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                             const std::string& title) {
  ShownBox box{"msg", text, title, buttons, icon, {}};
  std::string a = take(box);
  MsgResult first = MsgResult::Ok;
  if (buttons == MsgButtons::YesNo || buttons == MsgButtons::YesNoCancel) first = MsgResult::Yes;
  if (buttons == MsgButtons::RetryCancel) first = MsgResult::Retry;
  MsgResult r = first;
  if (a == "Y") r = MsgResult::Yes;
  if (a == "N") r = MsgResult::No;
  if (a == "C") r = MsgResult::Cancel;
  if (a == "O") r = MsgResult::Ok;
  if (a == "R") r = MsgResult::Retry;
  box.answer = a.empty() ? "default" : a;
  shown.push_back(box);
  return r;
}

std::string SimDialogs::inputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) {
  ShownBox box{"input", prompt, title, MsgButtons::OkCancel, MsgIcon::None, {}};
  const bool scripted = !answers.empty();
  std::string a = take(box);
  if (!scripted) a = defaultText;
  box.answer = a;
  shown.push_back(box);
  return a;
}

std::string SimDialogs::fileOpen(const std::string& title, const std::string&,
                                 const std::string& folder) {
  ShownBox box{"open", folder, title, MsgButtons::OkCancel, MsgIcon::None, {}};
  box.answer = take(box);
  shown.push_back(box);
  return box.answer;
}

std::string SimDialogs::fileSave(const std::string& title, const std::string&,
                                 const std::string& folder, const std::string& name) {
  ShownBox box{"save", folder + "/" + name, title, MsgButtons::OkCancel, MsgIcon::None, {}};
  box.answer = take(box);
  shown.push_back(box);
  return box.answer;
}

std::optional<Color> SimDialogs::chooseColor(Color initial) {
  ShownBox box{"color", {}, {}, MsgButtons::OkCancel, MsgIcon::None, {}};
  const bool scripted = !answers.empty();
  box.answer = take(box);
  shown.push_back(box);
  if (!scripted) return initial;
  if (box.answer.empty()) return std::nullopt;
  return static_cast<Color>(std::stol(box.answer));
}

std::string SimStore::regKey(Hive hive, const std::string& key, const std::string& name) {
  return std::string(hive == Hive::CurrentUser ? "HKCU\\" : "HKLM\\") + key + "\\" + name;
}

std::optional<std::string> SimStore::regRead(Hive hive, const std::string& key,
                                             const std::string& name) {
  auto it = registry.find(regKey(hive, key, name));
  if (it == registry.end()) return std::nullopt;
  return it->second;
}

bool SimStore::regWrite(Hive hive, const std::string& key, const std::string& name,
                        const std::string& value) {
  registry[regKey(hive, key, name)] = value;
  return true;
}

std::string SimStore::getSetting(const std::string& app, const std::string& section,
                                 const std::string& key, const std::string& defaultValue) {
  auto it = settings.find(app + "\\" + section + "\\" + key);
  return it == settings.end() ? defaultValue : it->second;
}

void SimStore::saveSetting(const std::string& app, const std::string& section,
                           const std::string& key, const std::string& value) {
  settings[app + "\\" + section + "\\" + key] = value;
}

int SimShell::run(const std::string& commandLine, const std::string& workingDir) {
  runs.emplace_back(commandLine, workingDir);
  return runResult;
}

int SimShell::openUrl(const std::string& url) {
  urls.push_back(url);
  return openUrlResult;
}

long SimShell::findProgramWindow(const std::string& title) {
  auto it = windows.find(title);
  return it == windows.end() ? 0 : it->second;
}

}  // namespace tesk
