// The platform: every operation the station needs from the outside world, behind small
// interfaces. The Qt implementation runs the real program; the sim implementation runs the same
// station in virtual time for the tests. Nothing in the core knows which one is in use.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/color.h"
#include "platform/event_loop.h"
#include "platform/rich_text.h"
#include "platform/window_kind.h"

namespace tesk {

// ---- time ------------------------------------------------------------------------------------
struct DateTime {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0, millisecond = 0;
  int dayOfWeek() const;  // 1 = Sunday ... 7 = Saturday, as Weekday() gives it
  double secondsSinceMidnight() const {
    return hour * 3600.0 + minute * 60.0 + second + millisecond / 1000.0;
  }
  bool operator==(const DateTime&) const = default;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime localNow() const = 0;
  virtual DateTime utcNow() const = 0;
  // Seconds on a clock that never jumps or wraps; the base of every wait.
  virtual double monotonicSeconds() const = 0;
  // The system's short date ("22-11-2026" or "11/22/2026") and long time ("13:05:09") texts.
  virtual std::string shortDate(const DateTime& t) const = 0;
  virtual std::string longTime(const DateTime& t) const = 0;
};

// ---- the engine socket ----------------------------------------------------------------------
// States as the station reads them: 0 closed, 7 connected, others are transitions
// (4 host lookup, 6 connecting, 8 closing, 9 error).
class TcpSocket {
 public:
  enum State { Closed = 0, HostLookup = 4, Connecting = 6, Connected = 7, Closing = 8, Error = 9 };
  static constexpr int kNotConnected = 40006;

  virtual ~TcpSocket() = default;
  virtual int state() const = 0;
  virtual void connectToHost(const std::string& host, int port) = 0;
  virtual void close() = 0;
  virtual std::size_t bytesAvailable() const = 0;
  virtual std::vector<uint8_t> peek(std::size_t n) = 0;
  virtual std::vector<uint8_t> read(std::size_t n) = 0;
  // Returns 0, or an error number with `lastErrorText()` set (40006 when not connected).
  virtual int send(const std::vector<uint8_t>& bytes) = 0;
  virtual std::string lastErrorText() const = 0;

  // Events, called from the loop.
  std::function<void()> onDataArrival;
  std::function<void()> onClose;
  std::function<void(int number, const std::string& description)> onError;
  std::function<void()> onSendComplete;
  std::function<void(long sent, long remaining)> onSendProgress;
};

// ---- dialogs --------------------------------------------------------------------------------
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel, RetryCancel };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgResult { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // Modal; timers keep running while it is open.
  virtual MsgResult msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                           const std::string& title) = 0;
  // Returns the text typed, or "" when cancelled (as InputBox does).
  virtual std::string inputBox(const std::string& prompt, const std::string& title,
                               const std::string& defaultText) = 0;
  // Return the chosen path, or "" when cancelled.
  virtual std::string fileOpen(const std::string& title, const std::string& filter,
                               const std::string& folder) = 0;
  virtual std::string fileSave(const std::string& title, const std::string& filter,
                               const std::string& folder, const std::string& name) = 0;
  virtual std::optional<Color> chooseColor(Color initial) = 0;
};

// ---- the registry stand-in and the per-application settings store -----------------------------
enum class Hive { CurrentUser, LocalMachine };

class Store {
 public:
  virtual ~Store() = default;
  // Missing key or value: nullopt.
  virtual std::optional<std::string> regRead(Hive hive, const std::string& key,
                                             const std::string& name) = 0;
  virtual bool regWrite(Hive hive, const std::string& key, const std::string& name,
                        const std::string& value) = 0;
  // GetSetting / SaveSetting.
  virtual std::string getSetting(const std::string& app, const std::string& section,
                                 const std::string& key, const std::string& defaultValue) = 0;
  virtual void saveSetting(const std::string& app, const std::string& section,
                           const std::string& key, const std::string& value) = 0;
};

// ---- sound, shell, printer, clipboard ----------------------------------------------------------
class Sound {
 public:
  virtual ~Sound() = default;
  // Asynchronous; an empty path stops what plays. A missing file or device plays nothing.
  virtual void play(const std::string& path) = 0;
};

class Shell {
 public:
  virtual ~Shell() = default;
  // Starts a program (path with arguments as one command line). Returns 0 or an error number.
  virtual int run(const std::string& commandLine, const std::string& workingDir) = 0;
  // Hands an address (web page, mail) to the desktop. Returns 0 or an error number.
  virtual int openUrl(const std::string& url) = 0;
  // Hands a mailto: address to the desktop's mail program. Returns 0 or an error number.
  virtual int openMail(const std::string& url) = 0;
  // A "window" of a program: on Linux the running program of that name, of this user.
  // Returns a handle (a process id) or 0.
  virtual long findProgramWindow(const std::string& title) = 0;
  // Asks it to close; nothing is waited for.
  virtual void closeProgramWindow(long handle) = 0;
};

class Printer {
 public:
  virtual ~Printer() = default;
  virtual bool printText(const std::string& text) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void setText(const std::string& text) = 0;
  virtual std::string text() = 0;
  virtual void clear() = 0;
};

// ---- windows ------------------------------------------------------------------------------
// The core's windows are plain structs; a view renders them. The core tells the views when a
// window is to be shown or hidden, and when its data changed.
class Views {
 public:
  virtual ~Views() = default;
  virtual void show(WindowKind window) = 0;
  virtual void hide(WindowKind window) = 0;
  // The data of `window` changed: repaint it.
  virtual void refresh(WindowKind window) = 0;
  // A line for the operator in headless mode (a note, a status); the GUI ignores it.
  virtual void notice(const std::string& text) = 0;
};

// ---- the process and its machine ----------------------------------------------------------------
struct SystemInfo {
  std::string commandLine;  // what remains after the program's own options, joined by blanks
  std::string windowsDir;   // the system's folder, with a trailing "/"
  std::string osName;       // operating system name and version
  bool headless = false;
};

class Platform {
 public:
  virtual ~Platform() = default;
  virtual EventLoop& loop() = 0;
  virtual Clock& clock() = 0;
  virtual std::unique_ptr<TcpSocket> createSocket() = 0;
  virtual Dialogs& dialogs() = 0;
  virtual Store& store() = 0;
  virtual Sound& sound() = 0;
  virtual Shell& shell() = 0;
  virtual Printer& printer() = 0;
  virtual Clipboard& clipboard() = 0;
  virtual Views& views() = 0;
  virtual const SystemInfo& system() const = 0;
};

}  // namespace tesk
