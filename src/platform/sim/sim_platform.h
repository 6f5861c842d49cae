// The deterministic platform of the tests: virtual time, in-memory sockets, scripted dialogs and
// a memory registry. Everything the station asks of the world is recorded for asserts.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/sim/sim_loop.h"
#include "platform/sim/sim_network.h"

namespace tesk {

class SimClock : public Clock {
 public:
  explicit SimClock(const SimLoop& loop) : m_loop(loop) {}
  DateTime localNow() const override;
  DateTime utcNow() const override;
  double monotonicSeconds() const override { return m_loop.now(); }
  std::string shortDate(const DateTime& t) const override;
  std::string longTime(const DateTime& t) const override;

  DateTime start{2026, 11, 22, 12, 0, 0, 0};  // local time at virtual time 0
  int utcOffsetMinutes = 60;                  // local minus UTC
  std::string dateFormat = "dd-MM-yyyy";      // the short date pattern: dd, d, MM, M, yyyy, yy

 private:
  const SimLoop& m_loop;
};

struct ShownBox {
  std::string kind;  // "msg", "input", "open", "save", "color"
  std::string text, title;
  MsgButtons buttons = MsgButtons::Ok;
  MsgIcon icon = MsgIcon::None;
  std::string answer;
};

class SimDialogs : public Dialogs {
 public:
  explicit SimDialogs(SimLoop& loop) : m_loop(loop) {}
  MsgResult msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                   const std::string& title) override;
  std::string inputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  std::string fileOpen(const std::string& title, const std::string& filter,
                       const std::string& folder) override;
  std::string fileSave(const std::string& title, const std::string& filter,
                       const std::string& folder, const std::string& name) override;
  std::optional<Color> chooseColor(Color initial) override;

  // Answers, taken in order: "Y", "N", "C", "O" (ok), "R" (retry) for message boxes; the text
  // itself for input boxes and file dialogs. An empty queue gives the default button (the
  // first one) or the default text.
  std::deque<std::string> answers;
  std::vector<ShownBox> shown;
  // Virtual seconds the "operator" takes to answer; the timers run meanwhile.
  double answerDelay = 0;
  // Called while a box is open (before it is answered), for tests that act inside it.
  std::function<void(const ShownBox&)> onShow;

 private:
  std::string take(ShownBox& box);
  SimLoop& m_loop;
};

class SimStore : public Store {
 public:
  std::optional<std::string> regRead(Hive hive, const std::string& key,
                                     const std::string& name) override;
  bool regWrite(Hive hive, const std::string& key, const std::string& name,
                const std::string& value) override;
  std::string getSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override;
  void saveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override;

  static std::string regKey(Hive hive, const std::string& key, const std::string& name);
  std::map<std::string, std::string> registry;  // "HKCU\key\name" -> value
  std::map<std::string, std::string> settings;  // "app\section\key" -> value
};

class SimSound : public Sound {
 public:
  void play(const std::string& path) override { played.push_back(path); }
  std::vector<std::string> played;
};

class SimShell : public Shell {
 public:
  int run(const std::string& commandLine, const std::string& workingDir) override;
  int openUrl(const std::string& url) override;
  int openMail(const std::string& url) override {
    mails.push_back(url);
    return openMailResult;
  }
  long findProgramWindow(const std::string& title) override;
  void closeProgramWindow(long handle) override { closed.push_back(handle); }

  std::vector<std::pair<std::string, std::string>> runs;  // command line, working folder
  std::vector<std::string> urls;
  std::map<std::string, long> windows;  // title -> handle of a running program
  std::vector<long> closed;
  int runResult = 0;
  int openUrlResult = 0;
  std::vector<std::string> mails;  // the mailto: addresses handed over
  int openMailResult = 0;
};

class SimPrinter : public Printer {
 public:
  bool printText(const std::string& text) override {
    printed.push_back(text);
    return true;
  }
  std::vector<std::string> printed;
};

class SimClipboard : public Clipboard {
 public:
  void setText(const std::string& text) override { content = text; }
  std::string text() override { return content; }
  void clear() override { content.clear(); }
  std::string content;
};

class SimViews : public Views {
 public:
  // Windows are recorded by their names, as the tests read them.
  void show(WindowKind window) override { shownWindows.push_back(WindowName(window)); }
  void hide(WindowKind window) override { hiddenWindows.push_back(WindowName(window)); }
  void refresh(WindowKind) override { ++refreshes; }
  void notice(const std::string& text) override { notices.push_back(text); }
  std::vector<std::string> shownWindows, hiddenWindows, notices;
  int refreshes = 0;
};

class SimPlatform : public Platform {
 public:
  SimPlatform() = default;
  EventLoop& loop() override { return simLoop; }
  Clock& clock() override { return simClock; }
  std::unique_ptr<TcpSocket> createSocket() override { return network.createSocket(); }
  Dialogs& dialogs() override { return simDialogs; }
  Store& store() override { return simStore; }
  Sound& sound() override { return simSound; }
  Shell& shell() override { return simShell; }
  Printer& printer() override { return simPrinter; }
  Clipboard& clipboard() override { return simClipboard; }
  Views& views() override { return simViews; }
  const SystemInfo& system() const override { return systemInfo; }

  SimLoop simLoop;
  SimClock simClock{simLoop};
  SimNetwork network{simLoop};
  SimDialogs simDialogs{simLoop};
  SimStore simStore;
  SimSound simSound;
  SimShell simShell;
  SimPrinter simPrinter;
  SimClipboard simClipboard;
  SimViews simViews;
  SystemInfo systemInfo{"", "/etc/", "SimOS 1.0", true};
};

}  // namespace tesk
