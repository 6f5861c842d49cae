// The MHeard details window on screen: the two boxes of frmViewHeard (one visible, by the
// option), the totals, the auto-clear note and the buttons. It renders the window struct and
// forwards every press to the core's handlers; the 30-second refresh is the core's timer.
#pragma once

#include <QWidget>
#include <array>

#include "heard/view_heard.h"

class QLabel;
class QListWidget;
class QRadioButton;

namespace tesk {

class ViewHeardView : public QWidget {
  Q_OBJECT
 public:
  ViewHeardView(ViewHeard& heard, QWidget* parent = nullptr);

  void refresh();
  QListWidget* box(int index) const { return m_boxes[static_cast<std::size_t>(index)]; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void press(void (ViewHeard::*handler)());

  ViewHeard& m_heard;
  std::array<QListWidget*, 2> m_boxes{};
  std::array<QRadioButton*, 2> m_options{};
  QLabel* m_total = nullptr;
  QLabel* m_autoClear = nullptr;
};

}  // namespace tesk
