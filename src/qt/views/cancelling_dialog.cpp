#include "qt/views/cancelling_dialog.h"

#include <QCloseEvent>

namespace tesk {

void CancellingDialog::closeEvent(QCloseEvent* event) {
  event->accept();
  if (m_form.loaded) m_cancel();
}

void CancellingDialog::reject() {
  if (m_form.loaded) {
    m_cancel();
  } else {
    QDialog::reject();
  }
}

}  // namespace tesk
