// The standard input of the headless program as one line queue, read without blocking. A message
// or input box that waits takes the next line; otherwise, once the load pass has ended, a line is
// an operator console line. Lines that come in during the load pass wait for the next box or, if
// none asks, for the end of the load pass.
#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QSocketNotifier;

namespace tesk {

class EventLoop;

class ConsoleInput : public QObject {
  Q_OBJECT
 public:
  explicit ConsoleInput(EventLoop& loop);
  ~ConsoleInput() override;

  // Reads lines from `fd` (0 for the standard input) as they arrive.
  void attach(int fd);
  // Raw bytes as read; split into lines here (LF, with a CR before it dropped). UTF-8 in,
  // cp1252 out.
  void feed(std::string_view bytes);
  // End of input: a partial last line counts as a line; boxes get defaults from then on.
  void feedEof();
  bool atEof() const { return m_eof; }

  void setConsoleHandler(std::function<void(const std::string&)> handler);
  // The load pass is over: queued and later lines go to the console handler.
  void setLoadPassEnded();

  // For a box: waits (running events) for the next line. nullopt at end of input.
  std::optional<std::string> takeLine();
  // A line a box took but did not want: first in the queue again, for the console.
  void putBack(std::string line);

 private:
  void readFd();
  void deliver();

  EventLoop& m_loop;
  QSocketNotifier* m_notifier = nullptr;
  int m_fd = -1;
  std::string m_partial;
  std::deque<std::string> m_lines;
  std::function<void(const std::string&)> m_consoleHandler;
  int m_boxesWaiting = 0;
  bool m_loadPassEnded = false;
  bool m_eof = false;
  bool m_delivering = false;
};

}  // namespace tesk
