#include "qt/views/cancelling_dialog.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QPushButton>

namespace tesk {

CancellingDialog::ApplyCancel CancellingDialog::addApplyCancel(std::function<void()> apply) {
  auto* box = new QDialogButtonBox(this);
  QPushButton* applyButton = box->addButton(QString(), QDialogButtonBox::ApplyRole);
  applyButton->setObjectName(QStringLiteral("Command1"));
  applyButton->setDefault(true);
  QPushButton* cancelButton = box->addButton(QString(), QDialogButtonBox::RejectRole);
  cancelButton->setObjectName(QStringLiteral("Command2"));
  connect(applyButton, &QPushButton::clicked, this, std::move(apply));
  connect(cancelButton, &QPushButton::clicked, this, [this]() { m_cancel(); });
  return {box, applyButton, cancelButton};
}

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
