// The headless program's standard input: one non-blocking line queue.
#include "qt/console_input.h"

#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>

#include "base/cp1252.h"
#include "platform/event_loop.h"

namespace tesk {

ConsoleInput::ConsoleInput(EventLoop& loop) : m_loop(loop) {}

ConsoleInput::~ConsoleInput() = default;

void ConsoleInput::attach(int fd) {
  m_fd = fd;
  m_notifier = new QSocketNotifier(fd, QSocketNotifier::Read, this);
  connect(m_notifier, &QSocketNotifier::activated, this, &ConsoleInput::readFd);
}

void ConsoleInput::readFd() {
  // One read per notice: the notifier said data (or the end) is there, so it cannot block.
  char buf[4096];
  const ssize_t n = ::read(m_fd, buf, sizeof buf);
  if (n < 0 && (errno == EINTR || errno == EAGAIN)) return;
  if (n <= 0) {
    m_notifier->setEnabled(false);
    feedEof();
    return;
  }
  feed(std::string_view(buf, static_cast<std::size_t>(n)));
}

void ConsoleInput::feed(std::string_view bytes) {
  m_partial.append(bytes);
  std::size_t lf;
  while ((lf = m_partial.find('\n')) != std::string::npos) {
    std::string line = m_partial.substr(0, lf);
    m_partial.erase(0, lf + 1);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    m_lines.push_back(Utf8ToCp1252(line));
  }
  deliver();
}

void ConsoleInput::feedEof() {
  if (!m_partial.empty()) {
    m_lines.push_back(Utf8ToCp1252(m_partial));
    m_partial.clear();
  }
  m_eof = true;
  deliver();
}

void ConsoleInput::setConsoleHandler(std::function<void(const std::string&)> handler) {
  m_consoleHandler = std::move(handler);
}

void ConsoleInput::setLoadPassEnded() {
  m_loadPassEnded = true;
  deliver();
}

void ConsoleInput::deliver() {
  // One delivery at a time: a console line may open a box, whose wait lets more input arrive;
  // that input belongs to the box, and what is left is handed on by this same loop afterwards.
  if (m_delivering) return;
  m_delivering = true;
  while (m_boxesWaiting == 0 && m_loadPassEnded && !m_lines.empty() && !m_loop.ended()) {
    std::string line = std::move(m_lines.front());
    m_lines.pop_front();
    if (m_consoleHandler) m_consoleHandler(line);
  }
  m_delivering = false;
}

std::optional<std::string> ConsoleInput::takeLine() {
  ++m_boxesWaiting;
  m_loop.waitUntil(1e12, [this]() { return !m_lines.empty() || m_eof || m_loop.ended(); });
  --m_boxesWaiting;
  if (m_lines.empty()) return std::nullopt;
  std::string line = std::move(m_lines.front());
  m_lines.pop_front();
  // Lines typed ahead of the box, now without a box to take them, go to the console.
  if (!m_lines.empty()) m_loop.post([this]() { deliver(); });
  return line;
}

void ConsoleInput::putBack(std::string line) {
  m_lines.push_front(std::move(line));
  m_loop.post([this]() { deliver(); });
}

}  // namespace tesk
