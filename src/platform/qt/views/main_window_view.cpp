// The main window's widgets, laid out as the operator reads them during a pass: the link lamp
// and clocks on top, the Monitor as the largest area with the MHeard list beside it behind a
// splitter, and the transmit fields below.
#include "platform/qt/views/main_window_view.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QVBoxLayout>

#include "base/text.h"
#include "platform/qt/qt_text.h"

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

void RenderCombo(QComboBox* w, const ComboBox& d) {
  const QSignalBlocker block(w);
  QStringList items;
  for (const std::string& s : d.list)
    items << ToQString(s);
  QStringList shown;
  for (int i = 0; i < w->count(); ++i)
    shown << w->itemText(i);
  if (items != shown) {
    w->clear();
    w->addItems(items);
  }
  const int index =
      d.listIndex >= 0 && d.listIndex < w->count() ? static_cast<int>(d.listIndex) : -1;
  if (w->currentIndex() != index) w->setCurrentIndex(index);
  const QString text = ToQString(d.text);
  if (w->currentText() != text) w->setEditText(text);
  w->setToolTip(ToQString(d.toolTip));
  w->setVisible(d.visible);
  w->setEnabled(d.enabled);
  w->lineEdit()->setReadOnly(d.locked);
  w->lineEdit()->setMaxLength(d.maxLength > 0 ? static_cast<int>(d.maxLength) : 32767);
  PaintColors(w->lineEdit(), d, QPalette::Text, QPalette::Base);
  w->lineEdit()->setAutoFillBackground(false);
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

MainWindowView::~MainWindowView() = default;

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
  return area;
}

QWidget* MainWindowView::buildHeardArea() {
  auto* box = new QGroupBox(tr("MHeard"), this);
  box->setObjectName(QStringLiteral("FrameMHeard"));
  auto* col = new QVBoxLayout(box);
  auto* call = new QLabel(box);
  call->setObjectName(QStringLiteral("lblMHeardCall"));
  m_labels[&m_data.lblMHeardCall] = call;
  col->addWidget(call);
  auto* list = new QListWidget(box);
  list->setObjectName(QStringLiteral("LstMHeardList"));
  list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  col->addWidget(list, 1);
  auto* row = new QHBoxLayout;
  m_optSort = new QRadioButton(box);
  m_optSort->setObjectName(QStringLiteral("OptSort"));
  m_optUnsort = new QRadioButton(box);
  m_optUnsort->setObjectName(QStringLiteral("OptUnsort"));
  row->addWidget(m_optSort);
  row->addWidget(m_optUnsort);
  row->addStretch(1);
  col->addLayout(row);
  box->setMinimumWidth(list->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 24);
  return box;
}

QComboBox* MainWindowView::addCombo(ComboBox& data, const char* name, const QString& toolTip) {
  auto* w = new QComboBox(this);
  w->setObjectName(QString::fromLatin1(name));
  w->setEditable(true);
  w->setInsertPolicy(QComboBox::NoInsert);  // the histories are kept by the transmit rules
  w->setDuplicatesEnabled(true);
  w->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  w->setMinimumContentsLength(10);
  w->setToolTip(toolTip);
  ComboBox* d = &data;
  connect(w, &QComboBox::editTextChanged, this,
          [d](const QString& t) { d->text = FromQString(t); });
  connect(w, &QComboBox::currentIndexChanged, this, [d](int i) { d->listIndex = i; });
  connect(w->lineEdit(), &QLineEdit::cursorPositionChanged, this, [d, w](int, int now) {
    d->selStart = now;
    d->selLength = w->lineEdit()->selectedText().size();
  });
  connect(w->lineEdit(), &QLineEdit::selectionChanged, this, [d, w]() {
    const QLineEdit* e = w->lineEdit();
    d->selStart = e->hasSelectedText() ? e->selectionStart() : e->cursorPosition();
    d->selLength = e->selectedText().size();
  });
  m_combos.push_back({d, w});
  return w;
}

QPushButton* MainWindowView::addButton(Button& data, const char* name, const QString& caption) {
  auto* w = new QPushButton(caption, this);
  w->setObjectName(QString::fromLatin1(name));
  w->setAutoDefault(false);
  const std::string key = name;
  connect(w, &QPushButton::clicked, this, [this, key]() { runCommand(key); });
  m_buttons.push_back({&data, w, key, caption});
  return w;
}

QWidget* MainWindowView::buildTransmitPanel() {
  auto* box = new QGroupBox(tr("Transmit"), this);
  box->setObjectName(QStringLiteral("FrameTransmit"));
  auto* grid = new QGridLayout(box);
  grid->setHorizontalSpacing(8);
  const auto label = [&](const QString& text, QWidget* buddy, int r, int c) {
    auto* l = new QLabel(text, box);
    l->setBuddy(buddy);
    grid->addWidget(l, r, c);
  };
  MainWindow& d = m_data;
  QComboBox* to = addCombo(d.cmbToCall, "cmbToCall", tr("Destination call (To)"));
  QComboBox* via = addCombo(d.cmbViaCall, "cmbViaCall", tr("Digipeater path (Via)"));
  QComboBox* text = addCombo(d.cmbDataText, "cmbDataText", tr("Text or data to send"));
  QComboBox* aprs = addCombo(d.cmbAPRSPos, "cmbAPRSPos", tr("APRS position comment"));
  QComboBox* forCall = addCombo(d.cmbFor, "cmbFor", tr("Message for this call"));
  QComboBox* msg = addCombo(d.cmbAPRSMessage, "cmbAPRSMessage", tr("APRS message text"));
  label(tr("&To"), to, 0, 0);
  grid->addWidget(to, 0, 1);
  label(tr("&Via"), via, 0, 2);
  grid->addWidget(via, 0, 3);
  label(tr("Te&xt/data"), text, 1, 0);
  grid->addWidget(text, 1, 1, 1, 3);
  label(tr("A&PRS"), aprs, 2, 0);
  grid->addWidget(aprs, 2, 1, 1, 3);
  label(tr("Fo&r"), forCall, 3, 0);
  grid->addWidget(forCall, 3, 1);
  label(tr("Messa&ge"), msg, 3, 2);
  grid->addWidget(msg, 3, 3);
  grid->addWidget(addButton(d.cmdTXMHeard, "cmdTXMHeard", tr("M&Heard")), 0, 4);
  grid->addWidget(addButton(d.CmdTXMultiLineDirect, "CmdTXMultiLineDirect", tr("M&ulti-Line")), 0,
                  5);
  grid->addWidget(addButton(d.cmdTXDataText, "cmdTXDataText", tr("Sen&d")), 1, 4);
  grid->addWidget(addButton(d.cmdTXConnect, "cmdTXConnect", tr("&Connect")), 1, 5);
  grid->addWidget(addButton(d.cmdTXAPRS, "cmdTXAPRS", tr("Send APRS")), 2, 4);
  grid->addWidget(addButton(d.cmdTXAPRSMessage, "cmdTXAPRSMessage", tr("Send Msg")), 3, 4);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 3);
  return box;
}

QMenu* MainWindowView::addMenu(const QString& title, const char* arrayName, MenuArray* array,
                               const std::vector<std::pair<int, QString>>& entries) {
  QMenu* menu = menuBar()->addMenu(title);
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
  return menu;
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
  addMenu(tr("&Edit"), "menuedits", &d.menuedits,
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
  addMenu(tr("&Send"), "menusends", &d.menusends,
          {{0, tr("&Header only")},
           {1, tr("&Text/data")},
           {2, tr("&APRS position")},
           {3, tr("APRS &message")},
           {-1, sep},
           {7, tr("M&Heard")},
           {-1, sep},
           {9, tr("&Connect")},
           {10, tr("&Disconnect")},
           {11, tr("Disconnect &twice")}});
  addMenu(tr("F&ilters"), "mnuFilters", nullptr, {{0, tr("&Monitor filter...")}});
  addMenu(tr("&Options"), "menuoptions", &d.menuoptions,
          {{130, tr("&Freeze Monitor")}, {140, tr("&Enable Monitor for Edit")}});
  addMenu(tr("&Beacon"), "mnuBeacon", nullptr, {{0, tr("&Beacon setup...")}});
  m_modulesMenu = addMenu(tr("&Modules"), "menuextras", nullptr, {{0, tr("(no add-ons)")}});
  m_launchMenu = addMenu(tr("&Launch"), "mnuRuns", nullptr, {{0, tr("(no programs)")}});
  addMenu(tr("&Help"), "mnuHelp", nullptr, {{0, tr("&Contents")}, {1, tr("&About TESK...")}});
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
    RenderCombo(c.widget, *c.data);
  for (const ButtonField& b : m_buttons) {
    b.widget->setText(b.data->caption.empty() ? b.caption : ToQString(b.data->caption));
    b.widget->setToolTip(ToQString(b.data->toolTip));
    b.widget->setVisible(b.data->visible);
    b.widget->setEnabled(b.data->enabled && hasCommand(b.key));
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
  renderMenus();
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
  handler();
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

}  // namespace tesk
