// The base of the settings windows' views: the close box and Escape run the window's Cancel while
// it is loaded, so the window's own code decides what closing leaves behind (and hides the view).
#pragma once

#include <QDialog>
#include <functional>
#include <utility>

#include "platform/controls.h"

class QCloseEvent;
class QDialogButtonBox;
class QPushButton;

namespace tesk {

class CancellingDialog : public QDialog {
 public:
  CancellingDialog(QWidget* parent, const Window& form, std::function<void()> cancel)
      : QDialog(parent), m_form(form), m_cancel(std::move(cancel)) {}

 protected:
  // The row under a settings window: Apply (Command1, the default button) runs `apply`, Cancel
  // (Command2) runs the window's Cancel. Both captions come from the window's struct.
  struct ApplyCancel {
    QDialogButtonBox* box;
    QPushButton* apply;
    QPushButton* cancel;
  };
  ApplyCancel addApplyCancel(std::function<void()> apply);

  void closeEvent(QCloseEvent* event) override;
  void reject() override;  // Escape: as Cancel

 private:
  const Window& m_form;
  std::function<void()> m_cancel;
};

}  // namespace tesk
