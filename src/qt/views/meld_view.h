// The note window on screen: a small tool window with the note's text and its OK button. It is
// modeless and does not take the focus, so the operator's typing and the timers go on; it
// stands beside the Monitor and takes the height the note asks for.
#pragma once

#include <QWidget>
#include <functional>

#include "alarms/meld.h"

class QLabel;
class QPushButton;

namespace tesk {

class MeldView : public QWidget {
  Q_OBJECT
 public:
  // onOk runs when the operator presses OK or closes the window; the note's own routine closes
  // it.
  MeldView(MeldWindow& data, std::function<void()> onOk, QWidget* parent = nullptr);

  // Copies text, OK button, caption and size from the struct.
  void refresh();
  // Places the window beside `anchor` (the Monitor, in screen coordinates), kept inside
  // `screen`: to its right when there is room, else inside its top right corner.
  void placeBeside(const QRect& anchor, const QRect& screen);
  // Without a main window on screen: the struct's own position.
  void placeByData();

  QLabel* label() const { return m_label; }
  QPushButton* okButton() const { return m_ok; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  MeldWindow& m_data;
  std::function<void()> m_onOk;
  QLabel* m_label = nullptr;
  QPushButton* m_ok = nullptr;
};

}  // namespace tesk
