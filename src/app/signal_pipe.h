// SIGINT and SIGTERM as loop events: the handler writes one byte into a pipe whose read end a
// QSocketNotifier watches, so the shut-down runs on the loop, never inside a signal handler.
#pragma once

#include <QObject>
#include <functional>

class QSocketNotifier;

namespace tesk {

class SignalPipe : public QObject {
  Q_OBJECT
 public:
  // `onSignal` runs from the loop once per signal received.
  explicit SignalPipe(std::function<void(int)> onSignal);
  ~SignalPipe() override;

 private:
  void readPipe();

  std::function<void(int)> m_onSignal;
  int m_fds[2] = {-1, -1};
  QSocketNotifier* m_notifier = nullptr;
};

}  // namespace tesk
