// The self-pipe that brings SIGINT and SIGTERM into the event loop.
#include "app/signal_pipe.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace tesk {

namespace {

// A signal handler can reach nothing but a plain global; this is the pipe's write end, set once
// before the handlers are installed.
int g_signalWriteFd = -1;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void OnSignal(int sig) {
  const unsigned char b = static_cast<unsigned char>(sig);
  if (g_signalWriteFd >= 0) (void)!::write(g_signalWriteFd, &b, 1);
}

}  // namespace

SignalPipe::SignalPipe(std::function<void(int)> onSignal) : m_onSignal(std::move(onSignal)) {
  if (::pipe2(m_fds, O_CLOEXEC | O_NONBLOCK) != 0) return;
  g_signalWriteFd = m_fds[1];
  m_notifier = new QSocketNotifier(m_fds[0], QSocketNotifier::Read, this);
  connect(m_notifier, &QSocketNotifier::activated, this, &SignalPipe::readPipe);
  struct sigaction sa {};
  sa.sa_handler = OnSignal;
  sigemptyset(&sa.sa_mask);
  sa.sa_flags = SA_RESTART;
  ::sigaction(SIGINT, &sa, nullptr);
  ::sigaction(SIGTERM, &sa, nullptr);
}

SignalPipe::~SignalPipe() {
  ::signal(SIGINT, SIG_DFL);
  ::signal(SIGTERM, SIG_DFL);
  g_signalWriteFd = -1;
  if (m_fds[0] >= 0) ::close(m_fds[0]);
  if (m_fds[1] >= 0) ::close(m_fds[1]);
}

void SignalPipe::readPipe() {
  unsigned char b = 0;
  while (::read(m_fds[0], &b, 1) == 1) {
    if (m_onSignal) m_onSignal(b);
  }
}

}  // namespace tesk
