// The LAN settings window's widgets: the engine's address and login on top, the radio ports
// below, then the mode's note, the link status and the two buttons.
#include "qt/views/lan_setup_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/combo_items.h"

namespace tesk {

namespace {

void RenderControl(QWidget* w, const Control& d) {
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
}

void RenderCheck(QCheckBox* w, const CheckBox& d) {
  const QSignalBlocker block(w);
  w->setText(ToQString(d.caption));
  w->setCheckState(d.value == 1   ? Qt::Checked
                   : d.value == 2 ? Qt::PartiallyChecked
                                  : Qt::Unchecked);
  RenderControl(w, d);
}

void RenderList(QComboBox* w, const ComboBox& d) {
  const QSignalBlocker block(w);
  RenderComboItems(w, d);
  if (w->isEditable() && w->currentText() != ToQString(d.text)) w->setEditText(ToQString(d.text));
  RenderControl(w, d);
}

void RenderText(QLineEdit* w, const TextBox& d) {
  const QSignalBlocker block(w);
  if (w->text() != ToQString(d.text)) w->setText(ToQString(d.text));
  w->setReadOnly(d.locked);
  RenderControl(w, d);
}

}  // namespace

LanSetupView::LanSetupView(LanSetup& lan, QWidget* parent)
    : CancellingDialog(parent, lan.window().form, [&lan] { lan.Command2_Click(); }),
      m_lan(lan),
      m_data(lan.window()) {
  setObjectName(QStringLiteral("LAN_Setup"));
  setModal(false);
  auto* col = new QVBoxLayout(this);

  auto* engine = new QGroupBox(tr("Packet engine"), this);
  auto* form = new QFormLayout(engine);
  m_host = addList(m_data.cmbLANIPAddress, "cmbLANIPAddress", true);
  m_host->setMinimumContentsLength(24);
  form->addRow(tr("&Host name / IP:"), m_host);
  m_port = addText(m_data.txtAGWLANPort, "txtAGWLANPort");
  m_port->setMaxLength(5);
  m_port->setMaximumWidth(m_port->fontMetrics().horizontalAdvance(QStringLiteral("0")) * 10);
  form->addRow(tr("&Port:"), m_port);
  m_enable = addCheck(m_data.chkEnableLAN, "chkEnableLAN", nullptr);
  m_register = addCheck(m_data.chkRegisterCall, "chkRegisterCall", nullptr);
  m_txFrames = addCheck(m_data.chkForceDisplayTXFrames, "chkForceDisplayTXFrames",
                        [this] { m_lan.chkForceDisplayTXFrames_Click(); });
  form->addRow(m_enable);
  form->addRow(m_register);
  form->addRow(m_txFrames);
  m_usePassword =
      addCheck(m_data.ChkPassword, "ChkPassword", [this] { m_lan.ChkPassword_Click(); });
  m_password = addText(m_data.TxtPassword, "TxtPassword");
  m_password->setEchoMode(QLineEdit::PasswordEchoOnEdit);
  form->addRow(m_usePassword, m_password);
  col->addWidget(engine);

  auto* ports = new QGroupBox(tr("Radio ports"), this);
  auto* row = new QHBoxLayout(ports);
  m_rx = addList(m_data.cmbRX, "cmbRX", false);
  m_tx = addList(m_data.cmbTX, "cmbTX", false);
  auto* rxLabel = new QLabel(tr("&Receive:"), ports);
  rxLabel->setBuddy(m_rx);
  auto* txLabel = new QLabel(tr("&Transmit:"), ports);
  txLabel->setBuddy(m_tx);
  row->addWidget(rxLabel);
  row->addWidget(m_rx);
  row->addSpacing(16);
  row->addWidget(txLabel);
  row->addWidget(m_tx);
  row->addStretch(1);
  col->addWidget(ports);

  m_note = new QLabel(this);
  m_note->setObjectName(QStringLiteral("lblNote"));
  m_note->setWordWrap(true);
  col->addWidget(m_note);
  m_status = new QLabel(this);
  m_status->setObjectName(QStringLiteral("Label4"));
  m_status->setFrameShape(QFrame::StyledPanel);
  m_status->setWordWrap(true);
  m_status->setMinimumHeight(m_status->fontMetrics().lineSpacing() * 2 + 8);
  m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
  col->addWidget(m_status);

  const ApplyCancel buttons = addApplyCancel([this]() {
    m_lan.Command1_Click();
    refresh();
  });
  m_apply = buttons.apply;
  m_cancel = buttons.cancel;
  col->addWidget(buttons.box);
  refresh();
}

LanSetupView::~LanSetupView() = default;

QCheckBox* LanSetupView::addCheck(CheckBox& data, const char* name, std::function<void()> handler) {
  auto* w = new QCheckBox(this);
  w->setObjectName(QString::fromLatin1(name));
  CheckBox* d = &data;
  connect(w, &QCheckBox::clicked, this, [this, d, handler](bool on) {
    d->value = on ? 1 : 0;
    if (handler) handler();
    refresh();
  });
  return w;
}

QComboBox* LanSetupView::addList(ComboBox& data, const char* name, bool editable) {
  auto* w = new QComboBox(this);
  w->setObjectName(QString::fromLatin1(name));
  w->setEditable(editable);
  ComboBox* d = &data;
  if (editable) {
    w->setInsertPolicy(QComboBox::NoInsert);  // the remembered hosts are kept by Apply
    w->setCompleter(nullptr);
    connect(w, &QComboBox::editTextChanged, this,
            [d](const QString& t) { d->text = FromQString(t); });
  }
  connect(w, &QComboBox::currentIndexChanged, this, [d, w](int i) {
    d->listIndex = i;
    if (i >= 0) d->text = FromQString(w->itemText(i));
  });
  return w;
}

QLineEdit* LanSetupView::addText(TextBox& data, const char* name) {
  auto* w = new QLineEdit(this);
  w->setObjectName(QString::fromLatin1(name));
  TextBox* d = &data;
  connect(w, &QLineEdit::textChanged, this, [d](const QString& t) { d->text = FromQString(t); });
  return w;
}

void LanSetupView::refresh() {
  setWindowTitle(ToQString(m_data.form.caption));
  RenderList(m_host, m_data.cmbLANIPAddress);
  RenderText(m_port, m_data.txtAGWLANPort);
  RenderCheck(m_enable, m_data.chkEnableLAN);
  RenderCheck(m_register, m_data.chkRegisterCall);
  RenderCheck(m_txFrames, m_data.chkForceDisplayTXFrames);
  RenderCheck(m_usePassword, m_data.ChkPassword);
  RenderText(m_password, m_data.TxtPassword);
  RenderList(m_rx, m_data.cmbRX);
  RenderList(m_tx, m_data.cmbTX);
  m_note->setText(ToQString(m_data.lblNote.caption));
  m_note->setVisible(m_data.lblNote.visible);
  m_status->setText(ToQString(m_data.Label4.caption));
  m_status->setToolTip(ToQString(m_data.Label4.toolTip));
  m_apply->setText(ToQString(m_data.Command1.caption));
  RenderControl(m_apply, m_data.Command1);
  m_cancel->setText(ToQString(m_data.Command2.caption));
  RenderControl(m_cancel, m_data.Command2);
}

}  // namespace tesk
