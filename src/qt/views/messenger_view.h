// The messenger window on screen: the messages heard with their viewer, the filter row and
// total, the log choice, the buttons, and the messages sent in their frame. It renders the
// window struct and forwards every press, click and pick to the core's handlers; the 30-second
// refresh is the core's timer.
#pragma once

#include <QWidget>
#include <array>

#include "aprs/messenger.h"

class QGroupBox;
class QLabel;
class QListWidget;
class QMenu;
class QRadioButton;

namespace tesk {

class MessengerView : public QWidget {
  Q_OBJECT
 public:
  explicit MessengerView(Messenger& messenger, QWidget* parent = nullptr);

  void refresh();
  QListWidget* received() const { return m_received; }
  QListWidget* sentList() const { return m_sent; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void press(void (Messenger::*handler)());
  QWidget* buildReceived();
  QWidget* buildSent();

  Messenger& m_messenger;
  QListWidget* m_received = nullptr;
  QListWidget* m_sent = nullptr;
  QLabel* m_viewer = nullptr;
  QLabel* m_total = nullptr;
  QGroupBox* m_sentFrame = nullptr;
  QMenu* m_popup = nullptr;
  std::array<QRadioButton*, Messenger::kFilters> m_filters{};
  std::array<QRadioButton*, 2> m_logTypes{};
};

}  // namespace tesk
