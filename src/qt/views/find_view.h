// The find window (frmFind) on screen: renders the FindWindow struct and forwards the text, the
// two options and the buttons to the find routines. A small tool window that stays beside the
// main window while the operator presses Find Next.
#pragma once

#include <QDialog>
#include <functional>

#include "core/monitor_find.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace tesk {

class FindView : public QDialog {
  Q_OBJECT
 public:
  // `afterCommand` runs after each handler, so the text searched shows its selection.
  FindView(MonitorFind& find, std::function<void()> afterCommand, QWidget* parent = nullptr);

  void refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;  // Escape closes the window as its Close button does

 private:
  void run(const std::function<void()>& handler);

  MonitorFind& m_find;
  std::function<void()> m_after;
  QLineEdit* m_text = nullptr;
  QCheckBox* m_case = nullptr;
  QCheckBox* m_word = nullptr;
  QPushButton* m_next = nullptr;
  QPushButton* m_close = nullptr;
};

}  // namespace tesk
