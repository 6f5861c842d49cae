// The main window's widgets, laid out as the operator reads them during a pass: the link lamp
// and clocks on top, the Monitor as the largest area with the MHeard list beside it behind a
// splitter, and the transmit fields below.
#include "platform/qt/views/main_window_view.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDropEvent>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "alarms/packet_log.h"
#include "base/text.h"
#include "core/digipeat.h"
#include "core/monitor_console.h"
#include "core/monitor_filters.h"
#include "core/monitor_find.h"
#include "heard/heard_reports.h"
#include "heard/mheard_list.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/views/combo_items.h"
#include "transmit/ui_text_sender.h"

namespace tesk {

namespace {

// A colour the struct leaves at its default (or at a system colour) keeps the desktop's own.
bool IsOwnColor(Color c, Color dflt) {
  return c != dflt && (c & 0x80000000) == 0;
}

void PaintColors(QWidget* w, const Control& c, QPalette::ColorRole fg, QPalette::ColorRole bg) {
  QPalette p = w->parentWidget() ? w->parentWidget()->palette() : w->palette();
  const bool back = IsOwnColor(c.backColor, kDefaultBack);
  if (IsOwnColor(c.foreColor, kDefaultFore)) p.setColor(fg, ToQColor(c.foreColor));
  if (back) p.setColor(bg, ToQColor(c.backColor));
  w->setAutoFillBackground(back);
  w->setPalette(p);
}

void RenderLabel(QLabel* w, const Label& d) {
  const QString text = ToQStringLines(d.caption);
  if (w->text() != text) w->setText(text);
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
  PaintColors(w, d, QPalette::WindowText, QPalette::Window);
}

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
  edit->setMaxLength(d.maxLength > 0 ? static_cast<int>(d.maxLength) : 32767);
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

QIcon AppIcon() {
  QPixmap pm(64, 64);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(QColor(0, 0, 64));
  p.setPen(QPen(QColor(0, 170, 0), 4));
  p.drawEllipse(4, 4, 56, 56);
  p.setPen(QColor(255, 255, 0));
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(26);
  p.setFont(f);
  p.drawText(pm.rect(), Qt::AlignCenter, QStringLiteral("TK"));
  return QIcon(pm);
}

}  // namespace

MainWindowView::MainWindowView(MainWindow& data, QWidget* parent)
    : QMainWindow(parent), m_data(data) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(AppIcon());
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->setSpacing(6);
  layout->addWidget(buildStatusStrip());
  auto* split = new QSplitter(Qt::Horizontal, central);
  split->setObjectName(QStringLiteral("splitMonitorHeard"));
  split->setChildrenCollapsible(false);
  split->addWidget(buildMonitorArea());
  split->addWidget(buildHeardArea());
  split->setStretchFactor(0, 4);
  split->setStretchFactor(1, 1);
  layout->addWidget(split, 1);
  layout->addWidget(buildTransmitPanel());
  setCentralWidget(central);
  buildMenus();
  resize(1100, 720);
  refresh();
}

MainWindowView::~MainWindowView() {
  // The widgets outlive this object's members: closing a shown window moves the focus out of a
  // field, and an editable combo box then reports its text as picked from the list. Nothing of
  // that may reach the handlers of a window half taken down.
  for (QObject* child : findChildren<QObject*>()) {
    child->removeEventFilter(this);
    child->disconnect(this);
  }
}

QWidget* MainWindowView::buildStatusStrip() {
  auto* strip = new QFrame(this);
  strip->setFrameShape(QFrame::StyledPanel);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(6, 4, 6, 4);
  m_lamp = new QLabel(strip);
  m_lamp->setObjectName(QStringLiteral("frmLogoTitle"));
  m_lamp->setAlignment(Qt::AlignCenter);
  m_lamp->setMinimumWidth(m_lamp->fontMetrics().horizontalAdvance(QStringLiteral("+LAN")) * 2);
  row->addWidget(m_lamp);
  m_frameComm = new QLabel(strip);
  m_frameComm->setObjectName(QStringLiteral("FrameComm"));
  m_frameComm->setFrameShape(QFrame::StyledPanel);
  m_frameComm->setContentsMargins(6, 0, 6, 0);
  row->addWidget(m_frameComm);
  const auto addLabel = [&](Label& d, const char* name) {
    auto* w = new QLabel(strip);
    w->setObjectName(QString::fromLatin1(name));
    w->setContentsMargins(4, 0, 4, 0);
    m_labels[&d] = w;
    row->addWidget(w);
    return w;
  };
  addLabel(m_data.lblBeacon, "lblBeacon");
  addLabel(m_data.LblAckON, "LblAckON");
  row->addWidget(buildAutoLogLabel(strip));
  row->addWidget(buildFilterLabel(strip));
  row->addStretch(1);
  const auto addClock = [&](Label& d, const char* name, const QString& title) {
    auto* caption = new QLabel(title, strip);
    caption->setEnabled(false);  // the dimmed text of a caption
    row->addWidget(caption);
    QLabel* w = addLabel(d, name);
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSizeF(w->font().pointSizeF() * 1.15);
    f.setBold(true);
    w->setFont(f);
  };
  addClock(m_data.UTC_Klok, "UTC_Klok", tr("UTC"));
  addClock(m_data.Klok, "Klok", tr("Local"));
  return strip;
}

QWidget* MainWindowView::buildMonitorArea() {
  auto* area = new QWidget(this);
  auto* col = new QVBoxLayout(area);
  col->setContentsMargins(0, 0, 0, 0);
  col->setSpacing(4);
  auto* header = new QHBoxLayout;
  auto* call = new QLabel(area);
  call->setObjectName(QStringLiteral("lblCallSign"));
  QFont bold = call->font();
  bold.setBold(true);
  call->setFont(bold);
  m_labels[&m_data.lblCallSign] = call;
  header->addWidget(call);
  header->addStretch(1);
  col->addLayout(header);
  m_monitor = new MonitorView(m_data.txtMonitor, area);
  m_monitor->setObjectName(QStringLiteral("txtMonitor"));
  m_monitor->setMinimumSize(320, 160);
  col->addWidget(m_monitor, 1);
  col->addWidget(buildMonitorControls(area));
  return area;
}

QComboBox* MainWindowView::addCombo(ComboBox& data, TxField field, const char* name,
                                    const QString& toolTip) {
  auto* w = new QComboBox(this);
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
    if (m_data.txPanel != nullptr) m_data.txPanel->ListPick(field);
    refresh();
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

QPushButton* MainWindowView::addButton(Button& data, const char* name, const QString& caption) {
  auto* w = new QPushButton(caption, this);
  w->setObjectName(QString::fromLatin1(name));
  w->setAutoDefault(false);
  const std::string key = name;
  connect(w, &QPushButton::clicked, this, [this, key]() {
    if (!pressSend(key)) runCommand(key);
  });
  m_buttons.push_back({&data, w, key, caption});
  return w;
}

QWidget* MainWindowView::addCounter(int index) {
  auto* w = new QLabel(this);
  w->setObjectName(QStringLiteral("LblMaxLengte%1").arg(index));
  w->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QFont f = w->font();
  f.setBold(true);
  w->setFont(f);
  w->setMinimumWidth(w->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
  m_labels[&m_data.LblMaxLengte[static_cast<std::size_t>(index)]] = w;
  return w;
}

QToolButton* MainWindowView::addEditButton(int selector) {
  auto* w = new QToolButton(this);
  w->setObjectName(QStringLiteral("cmdEditTXData%1").arg(selector));
  w->setIcon(QIcon::fromTheme(QStringLiteral("document-edit"),
                              style()->standardIcon(QStyle::SP_FileDialogDetailedView)));
  w->setText(tr("Edit list"));
  w->setToolButtonStyle(Qt::ToolButtonIconOnly);
  w->setFocusPolicy(Qt::TabFocus);
  connect(w, &QToolButton::clicked, this, [this, selector]() {
    if (m_data.txPanel != nullptr) m_data.txPanel->cmdEditTXData_Click(selector);
  });
  m_editButtons.emplace_back(&m_data.cmdEditTXData[static_cast<std::size_t>(selector)], w);
  return w;
}

void MainWindowView::addTransmitButtons(QGridLayout* grid) {
  MainWindow& d = m_data;
  QPushButton* send = addButton(d.cmdTXDataText, "cmdTXDataText", tr("Sen&d"));
  QPushButton* sendAprs = addButton(d.cmdTXAPRS, "cmdTXAPRS", tr("Send APRS"));
  QPushButton* sendMsg = addButton(d.cmdTXAPRSMessage, "cmdTXAPRSMessage", tr("Send Msg"));
  QPushButton* heard = addButton(d.cmdTXMHeard, "cmdTXMHeard", tr("M&Heard"));
  QPushButton* multi = addButton(d.CmdTXMultiLineDirect, "CmdTXMultiLineDirect", tr("M&ulti-Line"));
  m_sendButtons = {{send, SendButton::DataText},
                   {sendAprs, SendButton::APRS},
                   {sendMsg, SendButton::APRSMessage},
                   {heard, SendButton::MHeard},
                   {multi, SendButton::MultiLine}};
  for (QPushButton* b : {send, sendAprs, sendMsg, heard, multi})
    b->installEventFilter(this);
  send->setAcceptDrops(true);  // text dragged onto Send goes out as it is
  // F8 sends the heard report wherever the keyboard is in the window.
  auto* f8 = new QShortcut(QKeySequence(Qt::Key_F8), this);
  f8->setObjectName(QStringLiteral("shortcutF8"));
  connect(f8, &QShortcut::activated, this, [this]() { pressButton("cmdTXMHeard"); });
  grid->addWidget(heard, 0, 6);
  grid->addWidget(multi, 0, 7);
  grid->addWidget(send, 1, 6);
  grid->addWidget(addButton(d.cmdTXConnect, "cmdTXConnect", tr("&Connect")), 1, 7);
  grid->addWidget(sendAprs, 2, 6);
  grid->addWidget(sendMsg, 3, 6);
}

QWidget* MainWindowView::buildTransmitPanel() {
  auto* box = new QGroupBox(tr("Transmit"), this);
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
  MainWindow& d = m_data;
  QComboBox* to = addCombo(d.cmbToCall, TxField::ToCall, "cmbToCall", tr("Destination call (To)"));
  QComboBox* via =
      addCombo(d.cmbViaCall, TxField::ViaCall, "cmbViaCall", tr("Digipeater path (Via)"));
  QComboBox* text =
      addCombo(d.cmbDataText, TxField::DataText, "cmbDataText", tr("Text or data to send"));
  QComboBox* aprs =
      addCombo(d.cmbAPRSPos, TxField::APRSPos, "cmbAPRSPos", tr("APRS position comment"));
  QComboBox* forCall = addCombo(d.cmbFor, TxField::For, "cmbFor", tr("Message for this call"));
  QComboBox* msg =
      addCombo(d.cmbAPRSMessage, TxField::APRSMessage, "cmbAPRSMessage", tr("APRS message text"));
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
    grid->addWidget(addCounter(i), i + 1, 4);
    grid->addWidget(addEditButton(i), i + 1, 5);
  }
  addTransmitButtons(grid);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 3);
  setTabOrder(to, via);
  setTabOrder(via, text);
  setTabOrder(text, aprs);
  setTabOrder(aprs, forCall);
  setTabOrder(forCall, msg);
  return box;
}

// ---- the transmit fields' events ------------------------------------------------------------

bool MainWindowView::eventFilter(QObject* watched, QEvent* event) {
  const auto send = m_sendButtons.find(watched);
  if (send != m_sendButtons.end())
    return sendButtonEvent(watched, send->second, event) ||
           QMainWindow::eventFilter(watched, event);
  const auto combo = m_comboOf.find(watched);
  if (combo == m_comboOf.end() || m_data.txPanel == nullptr)
    return QMainWindow::eventFilter(watched, event);
  const ComboField& field = m_combos[combo->second];
  const bool handled = watched == field.widget ? fieldEvent(field, event) : dropEvent(field, event);
  return handled || QMainWindow::eventFilter(watched, event);
}

bool MainWindowView::fieldEvent(const ComboField& combo, QEvent* event) {
  TxPanel& panel = *m_data.txPanel;
  switch (event->type()) {
    case QEvent::KeyPress: {
      const int key = HandlerKey(static_cast<QKeyEvent*>(event)->key());
      if (key != kKeyReturn && key != kKeyDelete) return false;
      const bool swallowed = panel.KeyDown(combo.field, key);
      refresh();
      if (swallowed) followTxFocus();
      return swallowed;
    }
    case QEvent::KeyRelease: {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->isAutoRepeat()) return false;
      panel.KeyUp(combo.field, HandlerKey(key->key()));
      refresh();
      return false;
    }
    case QEvent::FocusIn:
      panel.GotFocus(combo.field);
      refresh();
      return false;
    case QEvent::FocusOut:
      // Opening the field's own list is not leaving it.
      if (static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason) return false;
      panel.LostFocus(combo.field);
      refresh();
      return false;
    default:
      return false;
  }
}

bool MainWindowView::dropEvent(const ComboField& combo, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
  auto* drop = static_cast<QDropEvent*>(event);
  const QMimeData* mime = drop->mimeData();
  const bool isText = mime != nullptr && mime->hasText();
  const std::string text = isText ? FromQString(mime->text()) : std::string();
  TxPanel& panel = *m_data.txPanel;
  if (!panel.DropAllowed(combo.field, text, isText)) {
    drop->ignore();
    return true;
  }
  const bool takesWhole = combo.field == TxField::ToCall || combo.field == TxField::ViaCall ||
                          combo.field == TxField::For;
  if (type != QEvent::Drop || !takesWhole) return false;  // the line edit inserts the rest
  panel.Drop(combo.field, text);
  drop->acceptProposedAction();
  refresh();
  return true;
}

void MainWindowView::textEdited(TxField field) {
  // Run once the line edit has finished its own change, so a cut made by the rules is not
  // overwritten by the rest of the edit's notices.
  QTimer::singleShot(0, this, [this, field]() {
    if (m_data.txPanel != nullptr) m_data.txPanel->Change(field);
    refresh();
  });
}

void MainWindowView::followTxFocus() {
  for (const ComboField& c : m_combos) {
    if (c.widget->objectName().toStdString() == m_data.txFocus && !c.widget->hasFocus()) {
      c.widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

bool MainWindowView::hasSender(const std::string& key) const {
  const TxPanel* panel = m_data.txPanel;
  if (panel == nullptr) return false;
  const TxPanel::Senders& s = panel->senders;
  return (key == "cmdTXDataText" && s.cmdTXDataText_Click) ||
         (key == "cmdTXAPRS" && s.cmdTXAPRS_Click) ||
         (key == "cmdTXAPRSMessage" && s.cmdTXAPRSMessage_Click) ||
         (key == "cmdTXMHeard" && s.cmdTXMHeard_Click) ||
         (key == "CmdTXMultiLineDirect" && s.CmdTXMultiLineDirect_Click);
}

bool MainWindowView::pressSend(const std::string& key) {
  if (!hasSender(key)) return false;
  for (const auto& [button, which] : m_sendButtons) {
    if (button->objectName().toStdString() == key) {
      m_data.txPanel->Press(which);
      refresh();
      return true;
    }
  }
  return false;
}

QMenu* MainWindowView::addMenu(const QString& title, const char* arrayName, MenuArray* array,
                               const std::vector<std::pair<int, QString>>& entries) {
  QMenu* menu = menuBar()->addMenu(title);
  addEntries(menu, arrayName, array, entries);
  return menu;
}

void MainWindowView::addEntries(QMenu* menu, const char* arrayName, MenuArray* array,
                                const std::vector<std::pair<int, QString>>& entries) {
  for (const auto& [index, caption] : entries) {
    if (caption.isEmpty()) {
      menu->addSeparator();
      continue;
    }
    QAction* action = menu->addAction(caption);
    const std::string key = std::string(arrayName) + ":" + std::to_string(index);
    connect(action, &QAction::triggered, this, [this, key]() { runCommand(key); });
    m_menuEntries.push_back({array, index, key, caption, action});
  }
}

void MainWindowView::buildMenus() {
  MainWindow& d = m_data;
  const QString sep;
  QMenu* file = addMenu(tr("&File"), "menufiles", &d.menufiles,
                        {{11, tr("TESK &Profiles...")},
                         {40, tr("Save As &Report...")},
                         {50, tr("&Mail Report...")},
                         {-1, sep}});
  QAction* exit = file->addAction(tr("E&xit"));
  connect(exit, &QAction::triggered, this, &QWidget::close);
  m_editMenu = addMenu(tr("&Edit"), "menuedits", &d.menuedits,
                       {{0, tr("&Undo")},
                        {50, tr("&Delete")},
                        {70, tr("Select &All")},
                        {80, tr("&Clear All")},
                        {92, tr("Insert &Date and Time")},
                        {-1, sep},
                        {100, tr("&Freeze Monitor")},
                        {110, tr("&Enable Monitor for Edit")},
                        {120, tr("View Only Data in  Monitor")},
                        {130, tr("&Statistics...")},
                        {140, tr("Setup &Monitor...")}});
  buildSendMenu();
  m_filterMenu = addMenu(tr("&Filters"), "menufilters", &d.menufilters,
                         {{0, tr("No Filters")},
                          {1, tr("Call (To)")},
                          {2, tr("Digipeater Call (Via)")},
                          {3, tr("Only Digipeated Packets")},
                          {5, tr("Enter Call/text...")},
                          {-1, sep},
                          {15, tr("Save Filter Settings")}});
  QMenu* options = addMenu(tr("&Options"), "menuoptions", &d.menuoptions,
                           {{130, tr("&Freeze Monitor")}, {140, tr("&Enable Monitor for Edit")}});
  options->addSeparator();
  QAction* lanSetup = options->addAction(tr("&LAN Settings..."));
  connect(lanSetup, &QAction::triggered, this, [this]() { runCommand("mnuLanSetup"); });
  m_menuEntries.push_back({nullptr, 0, "mnuLanSetup", lanSetup->text(), lanSetup});
  addMenu(tr("&Beacon"), "mnuBeacon", nullptr, {{0, tr("&Beacon setup...")}});
  m_modulesMenu = addMenu(tr("&Modules"), "menuextras", nullptr, {{0, tr("(no add-ons)")}});
  m_launchMenu = addMenu(tr("&Launch"), "mnuRuns", nullptr, {{0, tr("(no programs)")}});
  buildLogMenus(file);
  buildMonitorMenus(file, m_editMenu);
  // Alt+H belongs to the M&Heard button, so the help menu takes Alt+P.
  addMenu(tr("Hel&p"), "mnuHelp", nullptr, {{0, tr("&Contents")}, {1, tr("&About TESK...")}});
}

void MainWindowView::renderMenus() {
  for (MenuEntry& e : m_menuEntries) {
    const MenuItem* item = nullptr;
    if (e.array != nullptr) {
      const auto it = e.array->find(e.index);
      if (it != e.array->end()) item = &it->second;
    }
    e.action->setText(item && !item->caption.empty() ? ToQString(item->caption) : e.caption);
    e.action->setCheckable(item != nullptr && item->checked);
    e.action->setChecked(item != nullptr && item->checked);
    e.action->setVisible(item == nullptr || item->visible);
    e.action->setEnabled(hasCommand(e.key) && (item == nullptr || item->enabled));
  }
  // menusends 7 is the submenu of the heard report types.
  const auto heardRow = m_data.menusends.find(7);
  const MenuItem* heardItem = heardRow != m_data.menusends.end() ? &heardRow->second : nullptr;
  QAction* heardSend = m_heardSendMenu->menuAction();
  heardSend->setText(heardItem && !heardItem->caption.empty() ? ToQString(heardItem->caption)
                                                              : tr("MH&eard"));
  heardSend->setVisible(heardItem == nullptr || heardItem->visible);
  heardSend->setEnabled(m_data.heardReports != nullptr &&
                        (heardItem == nullptr || heardItem->enabled));
  // The load pass hides these two; the add-on and program lists show them again.
  m_modulesMenu->menuAction()->setVisible(m_data.menuextra.visible);
  m_launchMenu->menuAction()->setVisible(m_data.MnuRun.visible);
}

void MainWindowView::renderLamp() {
  const Frame& f = m_data.frmLogoTitle;
  QString caption = ToQString(f.caption);
  m_lamp->setText(caption.isEmpty() ? QStringLiteral(" ") : caption);
  m_lamp->setToolTip(f.toolTip.empty() ? tr("Link to the packet engine") : ToQString(f.toolTip));
  m_lamp->setVisible(f.visible);
  QString style = QStringLiteral(
      "QLabel#frmLogoTitle { border-radius: 4px; padding: 3px 12px;"
      " font-weight: bold;");
  if (IsOwnColor(f.backColor, kDefaultBack)) {
    const QColor back = ToQColor(f.backColor);
    const QColor fore = IsOwnColor(f.foreColor, kDefaultFore) ? ToQColor(f.foreColor)
                        : back.lightness() < 150              ? QColor(Qt::white)
                                                              : QColor(Qt::black);
    style += QStringLiteral(" background-color: %1; color: %2;").arg(back.name(), fore.name());
  } else {
    style += QStringLiteral(" border: 1px solid palette(mid);");
  }
  m_lamp->setStyleSheet(style + QStringLiteral(" }"));
}

void MainWindowView::renderTray() {
  if (!m_data.trayIconShown || !QSystemTrayIcon::isSystemTrayAvailable()) {
    if (m_tray != nullptr) m_tray->hide();
    return;
  }
  if (m_tray == nullptr) {
    m_tray = new QSystemTrayIcon(windowIcon(), this);
    connect(m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason r) {
      if (r == QSystemTrayIcon::Trigger || r == QSystemTrayIcon::DoubleClick) {
        showNormal();
        raise();
        activateWindow();
      }
    });
  }
  m_tray->setToolTip(ToQString(CutAtNul(m_data.trayToolTip)));
  m_tray->show();
}

void MainWindowView::refresh() {
  const Window& form = m_data.form;
  setWindowTitle(form.caption.empty() ? QStringLiteral("TESK") : ToQString(form.caption));
  if (!m_geometrySet && form.width > 0 && form.height > 0) {
    m_geometrySet = true;  // twips: 15 to a pixel at the classic 96 dots per inch
    resize(static_cast<int>(form.width / 15), static_cast<int>(form.height / 15));
  }
  renderLamp();
  const Frame& comm = m_data.FrameComm;
  m_frameComm->setText(ToQString(comm.caption));
  m_frameComm->setToolTip(ToQString(comm.toolTip));
  m_frameComm->setVisible(comm.visible && !comm.caption.empty());
  for (const auto& [data, widget] : m_labels)
    RenderLabel(widget, *data);
  for (const ComboField& c : m_combos)
    RenderCombo(c.widget, *c.data, c.toolTip);
  for (const ButtonField& b : m_buttons) {
    b.widget->setText(b.data->caption.empty() ? b.caption : ToQString(b.data->caption));
    b.widget->setToolTip(ToQString(b.data->toolTip));
    b.widget->setVisible(b.data->visible);
    b.widget->setEnabled(b.data->enabled && (hasCommand(b.key) || hasSender(b.key)));
  }
  for (const auto& [data, widget] : m_editButtons) {
    widget->setToolTip(ToQString(data->toolTip));
    widget->setVisible(data->visible);
    widget->setEnabled(data->enabled && m_data.txPanel != nullptr);
  }
  const auto renderOption = [](QRadioButton* w, const OptionButton& d, const QString& caption) {
    const QSignalBlocker block(w);
    w->setText(d.caption.empty() ? caption : ToQString(d.caption));
    w->setChecked(d.value);
    w->setVisible(d.visible);
    w->setEnabled(d.enabled);
    w->setToolTip(ToQString(d.toolTip));
  };
  renderOption(m_optSort, m_data.OptSort, tr("Sort"));
  renderOption(m_optUnsort, m_data.OptUnsort, tr("Unsorted"));
  renderHeard();
  renderMenus();
  renderMonitorControls();
  renderTray();
}

void MainWindowView::setCommand(const std::string& key, std::function<void()> handler) {
  m_commands[key] = std::move(handler);
  refresh();
}

bool MainWindowView::hasCommand(const std::string& key) const {
  const auto it = m_commands.find(key);
  return it != m_commands.end() && it->second;
}

void MainWindowView::runCommand(const std::string& key) {
  const auto it = m_commands.find(key);
  if (it == m_commands.end() || !it->second) return;
  const std::function<void()> handler = it->second;
  beforeCommand();
  const RichText& monitor = m_data.txtMonitor;
  const std::pair<std::size_t, std::size_t> selection{monitor.selStart(), monitor.selLength()};
  handler();
  // Checks, captions and enabled entries follow what the handler changed; a selection it made
  // in the Monitor (a find, select all) shows.
  refresh();
  if (selection != std::pair{monitor.selStart(), monitor.selLength()}) {
    m_monitor->showModelSelection();
  }
}

void MainWindowView::closeEvent(QCloseEvent* event) {
  if (!m_onClose) {
    event->accept();
    return;
  }
  // The shut-down ends the process; it runs from the loop, not inside the close event.
  event->ignore();
  QTimer::singleShot(0, this, [this]() { m_onClose(); });
}

// ---- the automatic log's label and menus ----------------------------------------------------

namespace {

// A label that answers a double click and a right press.
class ClickLabel : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> onDoubleClick;
  std::function<void(QPoint)> onRightPress;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && onDoubleClick) {
      onDoubleClick();
      return;
    }
    QLabel::mouseDoubleClickEvent(event);
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::RightButton && onRightPress) {
      onRightPress(event->globalPosition().toPoint());
      return;
    }
    QLabel::mousePressEvent(event);
  }
};

}  // namespace

QLabel* MainWindowView::buildAutoLogLabel(QWidget* parent) {
  auto* w = new ClickLabel(parent);
  w->setObjectName(QStringLiteral("AutoLogLabel"));
  w->setContentsMargins(6, 1, 6, 1);
  w->setFrameShape(QFrame::StyledPanel);
  w->onDoubleClick = [this]() { runCommand("AutoLogLabel:DblClick"); };
  w->onRightPress = [this](QPoint at) {
    // The request is noted first, so a mode chosen from the popup may ask for its call.
    runCommand("AutoLogLabel:RightPress");
    if (m_logMenu != nullptr) m_logMenu->popup(at);
  };
  m_labels[&m_data.AutoLogLabel] = w;
  return w;
}

void MainWindowView::buildLogMenus(QMenu* file) {
  MainWindow& d = m_data;
  // Alt+L opens the Launch menu.
  m_logMenu = addMenu(tr("Lo&g"), "mnuautolog", &d.mnuautolog,
                      {{0, tr("Off")},
                       {1, tr("Only Digipeated")},
                       {2, tr("All")},
                       {3, tr("Only of Call...")},
                       {-1, QString()},
                       {10, tr("Open current Log...")},
                       {20, tr("Open Any Log...")},
                       {-1, QString()},
                       {40, tr("Digi LogBook")},
                       {50, tr("Open Digi LogBook...")}});
  m_logMenu->setObjectName(QStringLiteral("mnuautolog"));
  // "Open Log" in the File menu, above its closing separator and Exit.
  auto* open = new QMenu(tr("Open &Log"), file);
  open->setObjectName(QStringLiteral("mnuOpenLog"));
  QAction* before = nullptr;
  for (QAction* a : file->actions()) {
    if (a->isSeparator()) before = a;
  }
  file->insertMenu(before, open);
  const std::vector<std::pair<int, QString>> entries = {
      {10, tr("Current Auto-Log...")}, {20, tr("Any Log...")}, {40, tr("Digi LogBook...")}};
  for (const auto& [index, caption] : entries) {
    QAction* action = open->addAction(caption);
    const std::string key = "mnuOpenLog:" + std::to_string(index);
    connect(action, &QAction::triggered, this, [this, key]() { runCommand(key); });
    m_menuEntries.push_back({&d.mnuOpenLog, index, key, caption, action});
  }
  if (d.packetLog == nullptr) return;
  // The station's log handlers; every change they make is repainted through the views.
  PacketLog* log = d.packetLog;
  for (int i : {0, 1, 2, 3, 10, 20, 40, 50})
    m_commands["mnuautolog:" + std::to_string(i)] = [log, i]() { log->mnuautolog_Click(i); };
  for (int i : {10, 20, 40})
    m_commands["mnuOpenLog:" + std::to_string(i)] = [log, i]() { log->mnuOpenLog_Click(i); };
  m_commands["AutoLogLabel:DblClick"] = [log]() { log->AutoLogLabel_DblClick(); };
  m_commands["AutoLogLabel:RightPress"] = [log]() { log->AutoLogLabel_RightPress(); };
}

// ---- the MHeard list, the lamps and the own digipeats ----------------------------------------

namespace {

// The list box of the stations heard: a drag offers the selected row's call as text.
class HeardListWidget : public QListWidget {
 public:
  using QListWidget::QListWidget;
  std::function<QString()> dragText;

 protected:
  QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override {
    auto* mime = new QMimeData;
    const QString text = dragText ? dragText() : QString();
    mime->setText(text.isEmpty() && !items.isEmpty() ? items.first()->text().left(10).trimmed()
                                                     : text);
    return mime;
  }
};

// A label that answers any mouse press (the digipeat total's and the filter label's menus).
class PressLabel : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void(QPoint)> onPress;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (onPress) {
      onPress(event->globalPosition().toPoint());
      return;
    }
    QLabel::mousePressEvent(event);
  }
};

QLabel* MakeLamp(QWidget* parent, const char* name, const QString& tip) {
  auto* lamp = new QLabel(parent);
  lamp->setObjectName(QString::fromLatin1(name));
  lamp->setFixedSize(14, 14);
  lamp->setToolTip(tip);
  return lamp;
}

}  // namespace

QWidget* MainWindowView::buildDigiRow(QWidget* parent) {
  auto* strip = new QWidget(parent);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(0, 0, 0, 0);
  m_rxtxLamps[0] = MakeLamp(strip, "imgTXRXlight0", tr("Receive"));
  m_rxtxLamps[1] = MakeLamp(strip, "imgTXRXlight1", tr("Transmit"));
  row->addWidget(m_rxtxLamps[0]);
  row->addWidget(m_rxtxLamps[1]);
  row->addSpacing(6);
  m_digiLogo = new QLabel(tr("DIGI"), strip);
  m_digiLogo->setObjectName(QStringLiteral("imgLogoDigi"));
  m_digiLogo->setToolTip(tr("Your frame came back digipeated"));
  m_digiLogo->setStyleSheet(QStringLiteral(
      "QLabel#imgLogoDigi { background-color: #ff8040; color: white; font-weight: bold;"
      " border-radius: 4px; padding: 1px 8px; }"));
  QSizePolicy keep = m_digiLogo->sizePolicy();
  keep.setRetainSizeWhenHidden(true);  // the row doesn't jump while it flashes
  m_digiLogo->setSizePolicy(keep);
  m_digiLogo->setMinimumWidth(m_digiLogo->sizeHint().width());
  row->addWidget(m_digiLogo);
  row->addStretch(1);
  auto* total = new PressLabel(strip);
  total->setObjectName(QStringLiteral("LblDigipeatedTot"));
  total->setAlignment(Qt::AlignCenter);
  total->setContentsMargins(8, 1, 8, 1);
  total->setFrameShape(QFrame::StyledPanel);
  QFont big = total->font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.3);
  total->setFont(big);
  total->setMinimumWidth(total->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
  total->onPress = [this](QPoint at) {
    if (m_digiMenu != nullptr && m_data.digipeat != nullptr) m_digiMenu->popup(at);
  };
  m_labels[&m_data.LblDigipeatedTot] = total;
  row->addWidget(total);
  return strip;
}

QWidget* MainWindowView::buildHeardArea() {
  auto* box = new QGroupBox(tr("MHeard"), this);
  box->setObjectName(QStringLiteral("FrameMHeard"));
  auto* col = new QVBoxLayout(box);
  col->addWidget(buildDigiRow(box));
  auto* head = new QHBoxLayout;
  auto* call = new QLabel(box);
  call->setObjectName(QStringLiteral("lblMHeardCall"));
  m_labels[&m_data.lblMHeardCall] = call;
  head->addWidget(call);
  head->addStretch(1);
  auto* teller = new QLabel(box);
  teller->setObjectName(QStringLiteral("StationTeller"));
  QFont bold = teller->font();
  bold.setBold(true);
  teller->setFont(bold);
  m_labels[&m_data.StationTeller] = teller;
  auto* tellerCaption = new QLabel(tr("Stations:"), box);
  tellerCaption->setEnabled(false);
  head->addWidget(tellerCaption);
  head->addWidget(teller);
  col->addLayout(head);
  auto* list = new HeardListWidget(box);
  list->setObjectName(QStringLiteral("LstMHeardList"));
  list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  list->setDragEnabled(true);
  list->setDragDropMode(QAbstractItemView::DragOnly);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  list->dragText = [this]() {
    return m_data.heardList ? ToQString(m_data.heardList->DragText()) : QString();
  };
  m_heardList = list;
  connect(list, &QListWidget::currentRowChanged, this,
          [this](int r) { m_data.LstMHeardList.listIndex = r; });
  connect(list, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) {
    if (m_data.heardList == nullptr) return;
    m_data.heardList->LstMHeardList_DblClick();
    refresh();
    followTxFocus();
  });
  connect(list, &QListWidget::customContextMenuRequested, this,
          [this](const QPoint& p) { heardPopup(p); });
  col->addWidget(list, 1);
  auto* erase = new QLabel(box);
  erase->setObjectName(QStringLiteral("Lblmheardautoerase"));
  m_labels[&m_data.Lblmheardautoerase] = erase;
  col->addWidget(erase);
  auto* options = new QVBoxLayout;
  m_optSort = new QRadioButton(box);
  m_optSort->setObjectName(QStringLiteral("OptSort"));
  m_optUnsort = new QRadioButton(box);
  m_optUnsort->setObjectName(QStringLiteral("OptUnsort"));
  connect(m_optSort, &QRadioButton::clicked, this, [this]() {
    if (m_data.heardList != nullptr) m_data.heardList->OptSort_Click();
    refresh();
  });
  connect(m_optUnsort, &QRadioButton::clicked, this, [this]() {
    if (m_data.heardList != nullptr) m_data.heardList->OptUnsort_Click();
    refresh();
  });
  options->addWidget(m_optSort);
  options->addWidget(m_optUnsort);
  col->addLayout(options);
  auto* buttons = new QHBoxLayout;
  // Alt+D belongs to Send.
  buttons->addWidget(addButton(m_data.cmdViewMHeardList, "cmdViewMHeardList", tr("Deta&ils...")));
  buttons->addWidget(addButton(m_data.cmdMheardSave, "cmdMheardSave", tr("Sa&ve...")));
  buttons->addWidget(addButton(m_data.cmdMHeardClear, "cmdMHeardClear", tr("C&lear")));
  col->addLayout(buttons);
  buildHeardMenus();
  // Room for a whole row: the call in 21 columns and the first-heard time.
  list->setMinimumWidth(list->fontMetrics().horizontalAdvance(QString(42, QLatin1Char('M'))));
  return box;
}

void MainWindowView::buildHeardMenus() {
  m_heardMenu = new QMenu(this);
  m_heardMenu->setObjectName(QStringLiteral("mnuMHeard"));
  m_digiMenu = new QMenu(this);
  m_digiMenu->setObjectName(QStringLiteral("mnuShowDigiStatus"));
  MHeardList* heard = m_data.heardList;
  Digipeat* digi = m_data.digipeat;
  if (digi != nullptr) {
    QAction* reset = m_digiMenu->addAction(ToQString(m_data.mnuShowDigiStatuss.caption));
    reset->setObjectName(QStringLiteral("mnuShowDigiStatuss"));
    connect(reset, &QAction::triggered, this, [this, digi]() {
      digi->mnuShowDigiStatuss_Click();
      refresh();
    });
  }
  if (heard == nullptr) return;
  QMenu* paste = m_heardMenu->addMenu(tr("Paste Call To"));
  for (int i : {10, 20, 30}) {
    QAction* a = paste->addAction(ToQString(m_data.menumheardoptionspaste[i].caption));
    connect(a, &QAction::triggered, this, [this, heard, i]() {
      heard->menumheardoptionspaste_Click(i);
      refresh();
    });
  }
  for (int i : {20, 30, 40, 45, 60, 65, 70, 100}) {
    if (i == 40 || i == 60 || i == 100) m_heardMenu->addSeparator();
    QAction* a = m_heardMenu->addAction(ToQString(m_data.menumheardoptions[i].caption));
    connect(a, &QAction::triggered, this, [this, heard, i]() {
      heard->menumheardoptions_Click(i);
      refresh();
    });
  }
  m_commands["cmdMHeardClear"] = [heard]() { heard->cmdMHeardClear_Click(); };
  m_commands["cmdMheardSave"] = [heard]() { heard->cmdMheardSave_Click(); };
  m_commands["cmdViewMHeardList"] = [heard]() { heard->menumheardoptions_Click(70); };
}

void MainWindowView::heardPopup(const QPoint& at) {
  MHeardList* heard = m_data.heardList;
  if (heard == nullptr || m_heardMenu == nullptr) return;
  const QModelIndex index = m_heardList->indexAt(at);
  heard->LstMHeardList_RightPress(index.isValid() ? index.row() : -1);
  heard->LstMHeardList_RightRelease();
  refresh();
  if (m_data.mnuMHeardPopup) m_heardMenu->exec(m_heardList->viewport()->mapToGlobal(at));
  heard->PopupClosed();
}

void MainWindowView::renderHeard() {
  if (m_heardList == nullptr) return;
  const ListBox& d = m_data.LstMHeardList;
  const QSignalBlocker block(m_heardList);
  QStringList items;
  for (const std::string& s : d.list)
    items << ToQString(s);
  bool same = m_heardList->count() == items.size();
  for (int i = 0; same && i < items.size(); ++i)
    same = m_heardList->item(i)->text() == items[i];
  if (!same) {
    m_heardList->clear();
    m_heardList->addItems(items);
    // The list grows to show a whole row beside its vertical scroll bar: a date in the
    // desktop's form can be longer than the space first given, and a cut-off time helps nobody.
    const int rowWidth = m_heardList->sizeHintForColumn(0) + 2 * m_heardList->frameWidth() +
                         m_heardList->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (rowWidth > m_heardList->minimumWidth()) m_heardList->setMinimumWidth(rowWidth);
  }
  const int row =
      d.listIndex >= 0 && d.listIndex < m_heardList->count() ? static_cast<int>(d.listIndex) : -1;
  if (m_heardList->currentRow() != row) m_heardList->setCurrentRow(row);
  if (row >= 0) m_heardList->scrollToItem(m_heardList->item(row));
  m_heardList->setToolTip(ToQString(d.toolTip));
  PaintColors(m_heardList, d, QPalette::Text, QPalette::Base);
  m_heardList->setAutoFillBackground(false);
  const QString on[2] = {QStringLiteral("#20d020"), QStringLiteral("#ff3030")};
  for (std::size_t i = 0; i < 2; ++i) {
    const QString color = m_data.imgTXRXlight[i].visible ? on[i] : QStringLiteral("#404040");
    m_rxtxLamps[i]->setStyleSheet(
        QStringLiteral("QLabel { background-color: %1; border-radius: 7px;"
                       " border: 1px solid palette(dark); }")
            .arg(color));
  }
  m_digiLogo->setVisible(m_data.imgLogoDigi.visible);
}

// ---- the Monitor's operations, find and filter -----------------------------------------------

namespace {

// The name the station knows a focused widget by: a transmit field's line edit is its field.
std::string ControlName(const QWidget* w) {
  if (w == nullptr) return {};
  if (qobject_cast<const QComboBox*>(w->parentWidget()) != nullptr) w = w->parentWidget();
  return w->objectName().toStdString();
}

}  // namespace

QLabel* MainWindowView::buildFilterLabel(QWidget* parent) {
  auto* w = new PressLabel(parent);  // any press pops up the filter menu
  w->setObjectName(QStringLiteral("lblMonitorFilter"));
  w->setContentsMargins(6, 1, 6, 1);
  w->setFrameShape(QFrame::StyledPanel);
  w->onPress = [this](QPoint at) {
    if (m_filterMenu != nullptr) m_filterMenu->popup(at);
  };
  m_labels[&m_data.lblMonitorFilter] = w;
  return w;
}

QWidget* MainWindowView::buildMonitorControls(QWidget* parent) {
  auto* bar = new QWidget(parent);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  m_chkScroll = new QCheckBox(bar);
  m_chkScroll->setObjectName(QStringLiteral("chkScroll"));
  connect(m_chkScroll, &QCheckBox::clicked, this, [this](bool on) {
    m_data.chkScroll.value = on ? 1 : 0;
    runCommand("chkScroll");
  });
  m_chkViewDataOnly = new QCheckBox(bar);
  m_chkViewDataOnly->setObjectName(QStringLiteral("chkViewDataOnly"));
  connect(m_chkViewDataOnly, &QCheckBox::clicked, this,
          [this](bool on) { m_data.chkViewDataOnly.value = on ? 1 : 0; });
  row->addWidget(m_chkScroll);
  row->addWidget(m_chkViewDataOnly);
  row->addStretch(1);
  struct Entry {
    Button& data;
    const char* name;
    QString caption;
    const char* icon;
  };
  MainWindow& d = m_data;
  const Entry entries[] = {
      {d.cmdFind, "cmdFind", tr("Find..."), "edit-find"},
      {d.cmdMonitorCut, "cmdMonitorCut", tr("Cut"), "edit-cut"},
      {d.cmdMonitorCopy, "cmdMonitorCopy", tr("Copy"), "edit-copy"},
      {d.cmdMonitorPaste, "cmdMonitorPaste", tr("Paste"), "edit-paste"},
      {d.cmdMonitorOpen, "cmdMonitorOpen", tr("Open..."), "document-open"},
      {d.cmdMonitorSave, "cmdMonitorSave", tr("Save..."), "document-save-as"},
      {d.cmdMonitorPrint, "cmdMonitorPrint", tr("Print..."), "document-print"},
      {d.cmdMonitorClear, "cmdMonitorClear", tr("Clear"), "edit-clear"},
  };
  for (const Entry& e : entries) {
    QPushButton* b = addButton(e.data, e.name, e.caption);
    b->setIcon(QIcon::fromTheme(QString::fromLatin1(e.icon)));
    b->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus, and its selection, in place
    // Narrower than the style's usual button when room is short, so the MHeard list keeps its.
    b->setMinimumWidth(b->fontMetrics().horizontalAdvance(e.caption) + 16);
    row->addWidget(b);
  }
  MonitorView::Handlers handlers;
  if (MonitorConsole* console = d.monitorConsole) {
    handlers.keyPress = [console]() { console->txtMonitor_KeyPress(); };
    handlers.change = [console](std::size_t at, std::size_t removed, const std::string& text) {
      console->txtMonitor_Change(at, removed, text);
    };
  }
  handlers.undo = [this]() { runCommand("menuedits:0"); };
  handlers.rightPress = [this](QPoint at) { monitorPopup(at); };
  m_monitor->setHandlers(std::move(handlers));
  return bar;
}

QAction* MainWindowView::addItemAction(QMenu* menu, QAction* before, const std::string& key,
                                       const QString& caption, MenuItem* item) {
  auto* action = new QAction(caption, menu);
  menu->insertAction(before, action);
  connect(action, &QAction::triggered, this, [this, key]() { runCommand(key); });
  m_itemEntries.push_back({item, key, action});
  return action;
}

void MainWindowView::buildMonitorMenus(QMenu* file, QMenu* edit) {
  // The Monitor's files in the File menu, above its closing separator and Exit.
  QAction* closing = nullptr;
  for (QAction* a : file->actions()) {
    if (a->isSeparator()) closing = a;
  }
  addItemAction(file, closing, "cmdMonitorOpen", tr("&Open File in Monitor..."), nullptr);
  addItemAction(file, closing, "cmdMonitorSave", tr("Save as Rich &Text..."), nullptr);
  addItemAction(file, closing, "ExportToASCII", tr("Save As &ASCII or Log..."),
                &m_data.ExportToASCII);
  addItemAction(file, closing, "cmdMonitorPrint", tr("Print Mo&nitor..."), nullptr);
  // Cut, copy and paste behind Undo; find and count at the end of the Edit menu, which is also
  // the Monitor's right-click menu.
  const QList<QAction*> actions = edit->actions();
  QAction* second = actions.size() > 1 ? actions[1] : nullptr;
  addItemAction(edit, second, "cmdMonitorCut", tr("Cu&t"), nullptr);
  addItemAction(edit, second, "cmdMonitorCopy", tr("&Copy"), nullptr);
  addItemAction(edit, second, "cmdMonitorPaste", tr("&Paste"), nullptr);
  edit->addSeparator();
  addItemAction(edit, nullptr, "menufind", tr("&Find..."), &m_data.menufind)
      ->setShortcut(QKeySequence::Find);
  addItemAction(edit, nullptr, "menuFindNext", tr("Find &Next"), &m_data.menuFindNext)
      ->setShortcut(QKeySequence::FindNext);
  addItemAction(edit, nullptr, "menufindcount", tr("C&ount found words..."), &m_data.menufindcount);
  wireMonitorCommands();
}

void MainWindowView::wireMonitorCommands() {
  MainWindow& d = m_data;
  if (MonitorConsole* m = d.monitorConsole) {
    const std::pair<const char*, void (MonitorConsole::*)()> clicks[] = {
        {"cmdMonitorClear", &MonitorConsole::cmdMonitorClear_Click},
        {"cmdMonitorCut", &MonitorConsole::cmdMonitorCut_Click},
        {"cmdMonitorCopy", &MonitorConsole::cmdMonitorCopy_Click},
        {"cmdMonitorPaste", &MonitorConsole::cmdMonitorPaste_Click},
        {"cmdMonitorSave", &MonitorConsole::cmdMonitorSave_Click},
        {"cmdMonitorOpen", &MonitorConsole::cmdMonitorOpen_Click},
        {"cmdMonitorPrint", &MonitorConsole::cmdMonitorPrint_Click},
        {"ExportToASCII", &MonitorConsole::ExportToASCII_Click},
        {"chkScroll", &MonitorConsole::chkScroll_Click},
        {"txtMonitor:RightPress", &MonitorConsole::txtMonitor_RightPress},
        {"txtMonitor:PopupClosed", &MonitorConsole::txtMonitor_PopupClosed},
    };
    for (const auto& [key, click] : clicks)
      m_commands[key] = [m, click = click]() { (m->*click)(); };
    for (int i : {0, 50, 70, 80, 92, 100, 110, 120})
      m_commands["menuedits:" + std::to_string(i)] = [m, i]() { m->menuedits_Click(i); };
    // The statistics and the Monitor's setup page stay disabled until their windows exist.
    if (m->OpenStatistics) m_commands["menuedits:130"] = [m]() { m->menuedits_Click(130); };
    if (m->OpenMonitorSetup) m_commands["menuedits:140"] = [m]() { m->menuedits_Click(140); };
    for (int i : {130, 140})
      m_commands["menuoptions:" + std::to_string(i)] = [m, i]() { m->menuoptions_Click(i); };
  }
  if (MonitorFind* f = d.monitorFind) {
    m_commands["cmdFind"] = [f]() { f->ShowForMonitor(); };
    m_commands["menufind"] = [f]() { f->ShowForMonitor(); };
    m_commands["menuFindNext"] = [f]() { f->menuFindNext_Click(); };
    m_commands["menufindcount"] = [f]() { f->menufindcount_Click(); };
  }
  if (MonitorFilters* f = d.monitorFilters) {
    for (int i : {0, 1, 2, 3, 5, 15})
      m_commands["menufilters:" + std::to_string(i)] = [f, i]() { f->menufilters_Click(i); };
  }
}

void MainWindowView::monitorPopup(const QPoint& at) {
  // Items 100 to 140 show while the menu is up; the station hides them again afterwards.
  runCommand("txtMonitor:RightPress");
  m_editMenu->exec(at);
  runCommand("txtMonitor:PopupClosed");
}

void MainWindowView::renderMonitorControls() {
  const auto renderBox = [](QCheckBox* w, const CheckBox& d) {
    const QSignalBlocker block(w);
    w->setText(ToQString(d.caption));
    w->setToolTip(ToQString(d.toolTip));
    w->setChecked(d.checked());
    w->setVisible(d.visible);
    w->setEnabled(d.enabled);
  };
  renderBox(m_chkScroll, m_data.chkScroll);
  renderBox(m_chkViewDataOnly, m_data.chkViewDataOnly);
  for (const ItemEntry& e : m_itemEntries) {
    e.action->setVisible(e.item == nullptr || e.item->visible);
    e.action->setEnabled(hasCommand(e.key) && (e.item == nullptr || e.item->enabled));
  }
  m_monitor->setFollow(m_data.chkScroll.checked());
  m_monitor->setEditable(!m_data.txtMonitor.locked());
}

void MainWindowView::beforeCommand() {
  // A handler reads the focus and the Monitor's selection from the struct.
  m_data.ActiveControl = ControlName(QApplication::focusWidget());
  m_monitor->writeSelectionBack();
}

// ---- sending: the send menu, the heard report's menus, F8 and drops on Send ----------------

void MainWindowView::buildSendMenu() {
  MainWindow& d = m_data;
  m_sendMenu = addMenu(tr("&Send"), "menusends", &d.menusends,
                       {{0, tr("&Header only")},
                        {1, tr("&Text/data")},
                        {2, tr("&APRS position")},
                        {3, tr("APRS &message")}});
  m_sendMenu->setObjectName(QStringLiteral("menusend"));
  addItemAction(m_sendMenu, nullptr, "mnuStopPending", tr("Stop &Pending"), &d.mnuStopPending);
  m_sendMenu->addSeparator();
  m_heardSendMenu = m_sendMenu->addMenu(tr("MH&eard"));
  m_heardSendMenu->setObjectName(QStringLiteral("menuheardsend"));
  addHeardReportEntries(m_heardSendMenu, "menuheardsend", d.menuheardsend);
  m_sendMenu->addSeparator();
  addEntries(m_sendMenu, "menusends", &d.menusends,
             {{9, tr("&Connect")}, {10, tr("&Disconnect")}, {11, tr("Disconnect t&wice")}});
  // Stop Pending follows the message retry tick, which is looked at as the menu opens.
  connect(m_sendMenu, &QMenu::aboutToShow, this, [this]() {
    if (m_data.uiTextSender != nullptr) m_data.uiTextSender->menusend_Click();
    refresh();
  });
  m_heardReportMenu = new QMenu(this);
  m_heardReportMenu->setObjectName(QStringLiteral("menumheardsend"));
  addHeardReportEntries(m_heardReportMenu, "menumheardsend", d.menumheardsend);
  // A chosen entry clears the request itself; a menu closed without a choice ends it here.
  connect(m_heardReportMenu, &QMenu::aboutToHide, this,
          [this]() { m_data.menumheardsendPopup = false; });
  wireSendCommands();
}

void MainWindowView::addHeardReportEntries(QMenu* menu, const char* arrayName, MenuArray& array) {
  std::vector<std::pair<int, QString>> entries;
  for (int type = 0; type < HeardReports::kTypes; ++type)
    entries.emplace_back(type, ToQString(HeardReports::TypeCaption(type)));
  entries.emplace_back(-1, QString());
  entries.emplace_back(HeardReports::kTypes, tr("MHeard Setup..."));
  addEntries(menu, arrayName, &array, entries);
}

void MainWindowView::wireSendCommands() {
  // Rows 2, 3 and 9 to 11 run the position, message and connection senders; they stay disabled
  // until those register their commands.
  if (UiTextSender* sender = m_data.uiTextSender) {
    for (int row : {0, 1})
      m_commands["menusends:" + std::to_string(row)] = [sender, row]() {
        sender->menusends_Click(row);
      };
  }
  HeardReports* reports = m_data.heardReports;
  if (reports == nullptr) return;
  m_commands["cmdTXMHeard:RightPress"] = [reports]() { reports->cmdTXMHeard_RightPress(); };
  // The last entry opens the setup's MHeard page, so it works only once that page is there.
  const bool setup = m_data.heardList != nullptr && m_data.heardList->openSetupMHeard;
  for (int i = 0; i <= HeardReports::kTypes; ++i) {
    if (i == HeardReports::kTypes && !setup) continue;
    const std::string index = std::to_string(i);
    m_commands["menumheardsend:" + index] = [reports, i]() { reports->menumheardsend_Click(i); };
    m_commands["menuheardsend:" + index] = [reports, i]() { reports->menuheardsend_Click(i); };
  }
}

void MainWindowView::heardReportPopup(const QPoint& at) {
  runCommand("cmdTXMHeard:RightPress");
  if (m_data.menumheardsendPopup) m_heardReportMenu->popup(at);
}

bool MainWindowView::sendButtonEvent(QObject* watched, SendButton which, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      const auto* mouse = static_cast<QMouseEvent*>(event);
      if (which != SendButton::MHeard || mouse->button() != Qt::RightButton) return false;
      heardReportPopup(mouse->globalPosition().toPoint());
      return true;
    }
    case QEvent::MouseButtonRelease:
      // The guard goes up when the mouse button is released; the press it completes runs first.
      if (m_data.txPanel != nullptr && static_cast<QWidget*>(watched)->isEnabled())
        m_data.txPanel->SendButton_MouseUp(which);
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return which == SendButton::DataText && sendDropEvent(event);
    default:
      return false;
  }
}

bool MainWindowView::sendDropEvent(QEvent* event) {
  auto* drop = static_cast<QDropEvent*>(event);
  const QMimeData* mime = drop->mimeData();
  const bool isText = mime != nullptr && mime->hasText();
  const std::string text = isText ? FromQString(mime->text()) : std::string();
  UiTextSender* sender = m_data.uiTextSender;
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
  refresh();
  return true;
}

void MainWindowView::pressButton(const std::string& key) {
  for (const ButtonField& b : m_buttons) {
    if (b.key != key) continue;
    if (!b.widget->isEnabled() || !b.data->visible) return;
    if (!pressSend(key)) runCommand(key);
    return;
  }
}

}  // namespace tesk
