// The transmit panel's widgets. Typing, list picks, focus and drops go to the transmit fields'
// rules; the buttons run their commands, a send button through its guard.
#include "qt/views/transmit_panel_view.h"

#include <algorithm>

#include <QComboBox>
#include <QDropEvent>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

#include "heard/heard_reports.h"
#include "qt/qt_text.h"
#include "qt/views/combo_items.h"
#include "transmit/ui_text_sender.h"

namespace tesk {

namespace {

void RenderCombo(QComboBox* w, const ComboBox& d, const QString& fallbackTip) {
  const QSignalBlocker block(w);
  QLineEdit* edit = w->lineEdit();
  const QSignalBlocker blockEdit(edit);
  RenderComboItems(w, d);
  const QString text = ToQString(d.text);
  if (w->currentText() != text) w->setEditText(text);
  // The caret and the selection are data too: a handler may have moved them.
  const int length = static_cast<int>(edit->text().size());
  const int start = static_cast<int>(std::clamp<long>(d.selStart, 0, length));
  const int selected = static_cast<int>(std::clamp<long>(d.selLength, 0, length - start));
  if (selected > 0) {
    if (edit->selectionStart() != start || edit->selectedText().size() != selected)
      edit->setSelection(start, selected);
  } else if (edit->hasSelectedText() || edit->cursorPosition() != start) {
    edit->setCursorPosition(start);
  }
  w->setToolTip(d.toolTip.empty() ? fallbackTip : ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
  edit->setReadOnly(d.locked);
  RenderMaxLength(edit, d.maxLength);
  PaintColors(edit, d, QPalette::Text, QPalette::Base);
  edit->setAutoFillBackground(false);
}

// The key numbers the transmit fields' handlers take: letters and digits as they are, Enter
// and Delete by their classic numbers, anything else 0.
int HandlerKey(int qtKey) {
  if ((qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9))
    return qtKey;
  if (qtKey == Qt::Key_Return || qtKey == Qt::Key_Enter) return kKeyReturn;
  if (qtKey == Qt::Key_Delete) return kKeyDelete;
  return 0;
}

}  // namespace

TransmitPanelView::~TransmitPanelView() {
  // The widgets outlive this object: closing a shown window moves the focus out of a field, and
  // an editable combo box then reports its text as picked from the list. Nothing of that may
  // reach the handlers of a panel half taken down.
  for (const auto& [object, index] : m_comboOf)
    const_cast<QObject*>(object)->removeEventFilter(this);
  for (const auto& [object, which] : m_sendButtons)
    const_cast<QObject*>(object)->removeEventFilter(this);
}

QComboBox* TransmitPanelView::addCombo(QWidget* parent, ComboBox& data, TxField field,
                                       const char* name, const QString& toolTip) {
  auto* w = new QComboBox(parent);
  w->setObjectName(QString::fromLatin1(name));
  w->setEditable(true);
  w->setInsertPolicy(QComboBox::NoInsert);  // the histories are kept by the transmit rules
  w->setDuplicatesEnabled(true);
  w->setCompleter(nullptr);  // a call typed is the call meant: no completion from the list
  w->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  w->setMinimumContentsLength(10);
  w->setMaxVisibleItems(15);
  w->setToolTip(toolTip);
  ComboBox* d = &data;
  QLineEdit* edit = w->lineEdit();
  connect(w, &QComboBox::editTextChanged, this,
          [d](const QString& t) { d->text = FromQString(t); });
  connect(w, &QComboBox::currentIndexChanged, this, [d](int i) { d->listIndex = i; });
  connect(w, &QComboBox::activated, this, [this, d, w, field](int i) {
    d->listIndex = i;
    d->text = FromQString(w->itemText(i));
    if (TxPanel* panel = m_kit.handlers().txPanel) panel->ListPick(field);
    m_kit.refresh();
  });
  const auto caret = [d, edit]() {
    d->selStart = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    d->selLength = edit->selectedText().size();
  };
  connect(edit, &QLineEdit::cursorPositionChanged, this, caret);
  connect(edit, &QLineEdit::selectionChanged, this, caret);
  connect(edit, &QLineEdit::textEdited, this, [this, d, field](const QString& t) {
    d->text = FromQString(t);
    d->listIndex = -1;  // typed over: no list entry is picked any more
    textEdited(field);
  });
  w->installEventFilter(this);
  edit->installEventFilter(this);
  m_comboOf[w] = m_combos.size();
  m_comboOf[edit] = m_combos.size();
  m_combos.push_back({d, w, field, toolTip});
  return w;
}

QWidget* TransmitPanelView::addCounter(QWidget* parent, int index) {
  auto* w = new QLabel(parent);
  w->setObjectName(QStringLiteral("LblMaxLengte%1").arg(index));
  w->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QFont f = w->font();
  f.setBold(true);
  w->setFont(f);
  w->setMinimumWidth(w->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
  m_kit.paintLabel(m_kit.data().LblMaxLengte[static_cast<std::size_t>(index)], w);
  return w;
}

QToolButton* TransmitPanelView::addEditButton(QWidget* parent, int selector) {
  auto* w = new QToolButton(parent);
  w->setObjectName(QStringLiteral("cmdEditTXData%1").arg(selector));
  w->setIcon(QIcon::fromTheme(QStringLiteral("document-edit"),
                              w->style()->standardIcon(QStyle::SP_FileDialogDetailedView)));
  w->setText(tr("Edit list"));
  w->setToolButtonStyle(Qt::ToolButtonIconOnly);
  w->setFocusPolicy(Qt::TabFocus);
  connect(w, &QToolButton::clicked, this, [this, selector]() {
    m_kit.run({Command::cmdEditTXData, selector});
  });
  m_editButtons.emplace_back(&m_kit.data().cmdEditTXData[static_cast<std::size_t>(selector)], w);
  return w;
}

void TransmitPanelView::addButtons(QWidget* parent, QGridLayout* grid) {
  MainWindow& d = m_kit.data();
  const auto add = [&](Button& data, Command command, const char* name, const QString& caption) {
    return m_kit.addButton(parent, data, command, name, caption);
  };
  QPushButton* send = add(d.cmdTXDataText, Command::cmdTXDataText, "cmdTXDataText", tr("Sen&d"));
  QPushButton* sendAprs = add(d.cmdTXAPRS, Command::cmdTXAPRS, "cmdTXAPRS", tr("Send APRS"));
  QPushButton* sendMsg =
      add(d.cmdTXAPRSMessage, Command::cmdTXAPRSMessage, "cmdTXAPRSMessage", tr("Send Msg"));
  QPushButton* heard = add(d.cmdTXMHeard, Command::cmdTXMHeard, "cmdTXMHeard", tr("M&Heard"));
  QPushButton* multi = add(d.CmdTXMultiLineDirect, Command::CmdTXMultiLineDirect,
                           "CmdTXMultiLineDirect", tr("M&ulti-Line"));
  m_sendButtons = {{send, SendButton::DataText},
                   {sendAprs, SendButton::APRS},
                   {sendMsg, SendButton::APRSMessage},
                   {heard, SendButton::MHeard},
                   {multi, SendButton::MultiLine}};
  for (QPushButton* b : {send, sendAprs, sendMsg, heard, multi})
    b->installEventFilter(this);
  send->setAcceptDrops(true);  // text dragged onto Send goes out as it is
  // The heard report's key (F8) works wherever the keyboard is in the window.
  const CommandSpec* report = m_kit.commands().find({Command::cmdTXMHeard});
  auto* f8 = new QShortcut(
      QKeySequence(report != nullptr ? ToQString(report->shortcut) : QStringLiteral("F8")),
      parent->window());
  f8->setObjectName(QStringLiteral("shortcutF8"));
  connect(f8, &QShortcut::activated, this, [this, heard]() {
    if (heard->isEnabled() && m_kit.data().cmdTXMHeard.visible) m_kit.press(Command::cmdTXMHeard);
  });
  grid->addWidget(heard, 0, 6);
  grid->addWidget(multi, 0, 7);
  grid->addWidget(send, 1, 6);
  grid->addWidget(add(d.cmdTXConnect, Command::cmdTXConnect, "cmdTXConnect", tr("&Connect")), 1, 7);
  grid->addWidget(sendAprs, 2, 6);
  grid->addWidget(sendMsg, 3, 6);
  m_messenger =
      add(d.cmdLoadMessenger, Command::cmdLoadMessenger, "cmdLoadMessenger", tr("Messenger"));
  m_messenger->setToolTip(ToQString(d.cmdLoadMessenger.toolTip));
  grid->addWidget(m_messenger, 3, 7);
}

QWidget* TransmitPanelView::build(QWidget* parent) {
  auto* box = new QGroupBox(tr("Transmit"), parent);
  box->setObjectName(QStringLiteral("FrameTransmit"));
  auto* grid = new QGridLayout(box);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  const auto label = [&](const QString& text, QWidget* buddy, int r, int c) {
    auto* l = new QLabel(text, box);
    l->setBuddy(buddy);
    // The underlined mnemonic is drawn unkerned and comes out wider than measured ("To"),
    // and a label clips its text: a little room behind it keeps the last letter whole.
    l->setMinimumWidth(l->sizeHint().width() + l->fontMetrics().averageCharWidth());
    grid->addWidget(l, r, c, Qt::AlignRight | Qt::AlignVCenter);
  };
  MainWindow& d = m_kit.data();
  QComboBox* to =
      addCombo(box, d.cmbToCall, TxField::ToCall, "cmbToCall", tr("Destination call (To)"));
  QComboBox* via =
      addCombo(box, d.cmbViaCall, TxField::ViaCall, "cmbViaCall", tr("Digipeater path (Via)"));
  QComboBox* text =
      addCombo(box, d.cmbDataText, TxField::DataText, "cmbDataText", tr("Text or data to send"));
  QComboBox* aprs =
      addCombo(box, d.cmbAPRSPos, TxField::APRSPos, "cmbAPRSPos", tr("APRS position comment"));
  QComboBox* forCall = addCombo(box, d.cmbFor, TxField::For, "cmbFor", tr("Message for this call"));
  QComboBox* msg = addCombo(box, d.cmbAPRSMessage, TxField::APRSMessage, "cmbAPRSMessage",
                            tr("APRS message text"));
  forCall->setMinimumContentsLength(9);
  // Columns: label, field, label, field, counter, list edit, send, second button.
  label(tr("&To"), to, 0, 0);
  grid->addWidget(to, 0, 1);
  label(tr("&Via"), via, 0, 2);
  grid->addWidget(via, 0, 3, 1, 3);
  label(tr("Te&xt/data"), text, 1, 0);
  grid->addWidget(text, 1, 1, 1, 3);
  label(tr("A&PRS"), aprs, 2, 0);
  grid->addWidget(aprs, 2, 1, 1, 3);
  label(tr("Fo&r"), forCall, 3, 0);
  grid->addWidget(forCall, 3, 1);
  label(tr("Messa&ge"), msg, 3, 2);
  grid->addWidget(msg, 3, 3);
  for (int i = 0; i < 3; ++i) {
    grid->addWidget(addCounter(box, i), i + 1, 4);
    grid->addWidget(addEditButton(box, i), i + 1, 5);
  }
  addButtons(box, grid);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 3);
  QWidget::setTabOrder(to, via);
  QWidget::setTabOrder(via, text);
  QWidget::setTabOrder(text, aprs);
  QWidget::setTabOrder(aprs, forCall);
  QWidget::setTabOrder(forCall, msg);
  m_heardReportMenu = new QMenu(box);
  m_heardReportMenu->setObjectName(QStringLiteral("menumheardsend"));
  addHeardReportEntries(m_heardReportMenu, Command::menumheardsend);
  // A chosen entry clears the request itself; a menu closed without a choice ends it here.
  connect(m_heardReportMenu, &QMenu::aboutToHide, this,
          [this]() { m_kit.data().menumheardsendPopup = false; });
  m_multiLineMenu = new QMenu(box);
  m_multiLineMenu->setObjectName(QStringLiteral("mnu_multilinePopup"));
  addMultiLineEntries(m_multiLineMenu);
  connect(m_multiLineMenu, &QMenu::aboutToHide, this,
          [this]() { m_kit.data().mnu_multilinePopup = false; });
  return box;
}

bool TransmitPanelView::eventFilter(QObject* watched, QEvent* event) {
  const auto send = m_sendButtons.find(watched);
  if (send != m_sendButtons.end())
    return sendButtonEvent(watched, send->second, event) || QObject::eventFilter(watched, event);
  const auto combo = m_comboOf.find(watched);
  if (combo == m_comboOf.end() || m_kit.handlers().txPanel == nullptr)
    return QObject::eventFilter(watched, event);
  const ComboField& field = m_combos[combo->second];
  const bool handled = watched == field.widget ? fieldEvent(field, event) : dropEvent(field, event);
  return handled || QObject::eventFilter(watched, event);
}

bool TransmitPanelView::fieldEvent(const ComboField& combo, QEvent* event) {
  TxPanel& panel = *m_kit.handlers().txPanel;
  switch (event->type()) {
    case QEvent::KeyPress: {
      const int key = HandlerKey(static_cast<QKeyEvent*>(event)->key());
      if (key != kKeyReturn && key != kKeyDelete) return false;
      const bool swallowed = panel.KeyDown(combo.field, key);
      m_kit.refresh();
      if (swallowed) followTxFocus();
      return swallowed;
    }
    case QEvent::KeyRelease: {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->isAutoRepeat()) return false;
      panel.KeyUp(combo.field, HandlerKey(key->key()));
      m_kit.refresh();
      return false;
    }
    case QEvent::FocusIn:
      panel.GotFocus(combo.field);
      m_kit.refresh();
      return false;
    case QEvent::FocusOut:
      // Opening the field's own list is not leaving it.
      if (static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason) return false;
      panel.LostFocus(combo.field);
      m_kit.refresh();
      return false;
    default:
      return false;
  }
}

bool TransmitPanelView::dropEvent(const ComboField& combo, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
  auto* drop = static_cast<QDropEvent*>(event);
  const QMimeData* mime = drop->mimeData();
  const bool isText = mime != nullptr && mime->hasText();
  const std::string text = isText ? FromQString(mime->text()) : std::string();
  TxPanel& panel = *m_kit.handlers().txPanel;
  if (!panel.DropAllowed(combo.field, text, isText)) {
    drop->ignore();
    return true;
  }
  const bool takesWhole = combo.field == TxField::ToCall || combo.field == TxField::ViaCall ||
                          combo.field == TxField::For;
  if (type != QEvent::Drop || !takesWhole) return false;  // the line edit inserts the rest
  panel.Drop(combo.field, text);
  drop->acceptProposedAction();
  m_kit.refresh();
  return true;
}

void TransmitPanelView::textEdited(TxField field) {
  // Run once the line edit has finished its own change, so a cut made by the rules is not
  // overwritten by the rest of the edit's notices.
  QTimer::singleShot(0, this, [this, field]() {
    if (TxPanel* panel = m_kit.handlers().txPanel) panel->Change(field);
    m_kit.refresh();
  });
}

void TransmitPanelView::followTxFocus() {
  for (const ComboField& c : m_combos) {
    if (c.widget->objectName().toStdString() == m_kit.data().txFocus && !c.widget->hasFocus()) {
      c.widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

void TransmitPanelView::addMultiLineEntries(QMenu* menu) {
  m_kit.addActions(menu, Command::mnu_multiline, {0, 1, 2, -1, 3});
}

void TransmitPanelView::addHeardReportEntries(QMenu* menu, Command command) {
  std::vector<int> rows;
  for (int type = 0; type < HeardReports::kTypes; ++type)
    rows.push_back(type);
  rows.push_back(-1);
  rows.push_back(HeardReports::kTypes);
  m_kit.addActions(menu, command, rows);
}

bool TransmitPanelView::sendButtonEvent(QObject* watched, SendButton which, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (which == SendButton::MultiLine && mouse->button() == Qt::RightButton) {
        m_kit.run({Command::CmdTXMultiLineDirect_RightPress});
        if (m_kit.data().mnu_multilinePopup)
          m_multiLineMenu->popup(mouse->globalPosition().toPoint());
        return true;
      }
      if (which != SendButton::MHeard || mouse->button() != Qt::RightButton) return false;
      m_kit.run({Command::cmdTXMHeard_RightPress});
      if (m_kit.data().menumheardsendPopup)
        m_heardReportMenu->popup(mouse->globalPosition().toPoint());
      return true;
    }
    case QEvent::MouseButtonRelease:
      // The guard goes up when the mouse button is released; the press it completes runs first.
      if (m_kit.handlers().txPanel != nullptr && static_cast<QWidget*>(watched)->isEnabled())
        m_kit.handlers().txPanel->SendButton_MouseUp(which);
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return which == SendButton::DataText && sendDropEvent(event);
    default:
      return false;
  }
}

bool TransmitPanelView::sendDropEvent(QEvent* event) {
  auto* drop = static_cast<QDropEvent*>(event);
  const QMimeData* mime = drop->mimeData();
  const bool isText = mime != nullptr && mime->hasText();
  const std::string text = isText ? FromQString(mime->text()) : std::string();
  UiTextSender* sender = m_kit.handlers().uiTextSender;
  if (sender == nullptr || !sender->DropAllowed(text, isText)) {
    drop->setDropAction(Qt::IgnoreAction);
    drop->ignore();
    return true;
  }
  // A copy: a text dragged out of a field stays in it.
  if (drop->possibleActions().testFlag(Qt::CopyAction)) drop->setDropAction(Qt::CopyAction);
  if (event->type() != QEvent::Drop) {
    drop->accept();
    return true;
  }
  const bool sent = sender->Drop(text, isText) == 1;
  if (!sent) drop->setDropAction(Qt::IgnoreAction);
  drop->setAccepted(sent);
  m_kit.refresh();
  return true;
}

void TransmitPanelView::render() {
  for (const ComboField& c : m_combos)
    RenderCombo(c.widget, *c.data, c.toolTip);
  for (const auto& [data, widget] : m_editButtons) {
    widget->setToolTip(ToQString(data->toolTip));
    widget->setVisible(data->visible);
    widget->setEnabled(data->enabled && m_kit.handlers().txPanel != nullptr);
  }
  if (m_messenger != nullptr)
    PaintColors(m_messenger, m_kit.data().cmdLoadMessenger, QPalette::ButtonText, QPalette::Button);
}

}  // namespace tesk
