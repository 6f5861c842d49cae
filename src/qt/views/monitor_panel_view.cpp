// The Monitor's widgets. The Monitor's own keys and edits go to the Monitor console; its buttons
// and boxes run their commands.
#include "qt/views/monitor_panel_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/monitor_console.h"
#include "qt/qt_text.h"

namespace tesk {

MonitorPanelView::MonitorPanelView(ViewKit& kit, std::function<QMenu*()> editMenu)
    : m_kit(kit), m_editMenu(std::move(editMenu)) {}

QWidget* MonitorPanelView::build(QWidget* parent) {
  MainWindow& d = m_kit.data();
  auto* area = new QWidget(parent);
  auto* col = new QVBoxLayout(area);
  col->setContentsMargins(0, 0, 0, 0);
  col->setSpacing(4);
  auto* header = new QHBoxLayout;
  auto* call = new QLabel(area);
  call->setObjectName(QStringLiteral("lblCallSign"));
  QFont bold = call->font();
  bold.setBold(true);
  call->setFont(bold);
  m_kit.paintLabel(d.lblCallSign, call);
  header->addWidget(call);
  header->addStretch(1);
  col->addLayout(header);
  m_monitor = new MonitorView(d.txtMonitor, area);
  m_monitor->setObjectName(QStringLiteral("txtMonitor"));
  m_monitor->setMinimumSize(320, 160);
  col->addWidget(m_monitor, 1);
  col->addWidget(buildControls(area));
  return area;
}

QWidget* MonitorPanelView::buildControls(QWidget* parent) {
  MainWindow& d = m_kit.data();
  auto* bar = new QWidget(parent);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(4);
  m_chkScroll = new QCheckBox(bar);
  m_chkScroll->setObjectName(QStringLiteral("chkScroll"));
  QObject::connect(m_chkScroll, &QCheckBox::clicked, bar, [this](bool on) {
    m_kit.data().chkScroll.value = on ? 1 : 0;
    m_kit.run({Command::chkScroll});
  });
  m_chkViewDataOnly = new QCheckBox(bar);
  m_chkViewDataOnly->setObjectName(QStringLiteral("chkViewDataOnly"));
  QObject::connect(m_chkViewDataOnly, &QCheckBox::clicked, bar,
                   [this](bool on) { m_kit.data().chkViewDataOnly.value = on ? 1 : 0; });
  row->addWidget(m_chkScroll);
  row->addWidget(m_chkViewDataOnly);
  row->addStretch(1);
  struct Entry {
    Button& data;
    Command command;
    const char* name;
    QString caption;
    const char* icon;
  };
  const Entry entries[] = {
      {d.cmdFind, Command::cmdFind, "cmdFind", QObject::tr("Find..."), "edit-find"},
      {d.cmdMonitorCut, Command::cmdMonitorCut, "cmdMonitorCut", QObject::tr("Cut"), "edit-cut"},
      {d.cmdMonitorCopy, Command::cmdMonitorCopy, "cmdMonitorCopy", QObject::tr("Copy"),
       "edit-copy"},
      {d.cmdMonitorPaste, Command::cmdMonitorPaste, "cmdMonitorPaste", QObject::tr("Paste"),
       "edit-paste"},
      {d.cmdMonitorOpen, Command::cmdMonitorOpen, "cmdMonitorOpen", QObject::tr("Open..."),
       "document-open"},
      {d.cmdMonitorSave, Command::cmdMonitorSave, "cmdMonitorSave", QObject::tr("Save..."),
       "document-save-as"},
      {d.cmdMonitorPrint, Command::cmdMonitorPrint, "cmdMonitorPrint", QObject::tr("Print..."),
       "document-print"},
      {d.cmdMonitorClear, Command::cmdMonitorClear, "cmdMonitorClear", QObject::tr("Clear"),
       "edit-clear"},
      {d.cmdStatistics, Command::cmdStatistics, "cmdStatistics", QObject::tr("Stats..."),
       "document-properties"},
  };
  for (const Entry& e : entries) {
    QPushButton* b = m_kit.addButton(bar, e.data, e.command, e.name, e.caption);
    b->setIcon(QIcon::fromTheme(QString::fromLatin1(e.icon)));
    b->setFocusPolicy(Qt::TabFocus);  // a click leaves the focus, and its selection, in place
    // Narrower than the style's usual button when room is short, so the MHeard list keeps its.
    b->setMinimumWidth(b->fontMetrics().horizontalAdvance(e.caption) + 16);
    row->addWidget(b);
  }
  MonitorView::Handlers handlers;
  if (MonitorConsole* console = m_kit.handlers().monitor) {
    handlers.keyPress = [console]() { console->txtMonitor_KeyPress(); };
    handlers.change = [console](std::size_t at, std::size_t removed, const std::string& text) {
      console->txtMonitor_Change(at, removed, text);
    };
  }
  handlers.undo = [this]() { m_kit.run({Command::menuedits, 0}); };
  handlers.rightPress = [this](QPoint at) { popup(at); };
  m_monitor->setHandlers(std::move(handlers));
  return bar;
}

void MonitorPanelView::popup(const QPoint& at) {
  // Items 100 to 140 show while the menu is up; the station hides them again afterwards.
  m_kit.run({Command::txtMonitor_RightPress});
  if (QMenu* menu = m_editMenu()) menu->exec(at);
  m_kit.run({Command::txtMonitor_PopupClosed});
}

void MonitorPanelView::render() {
  const MainWindow& d = m_kit.data();
  const auto renderBox = [](QCheckBox* w, const CheckBox& box) {
    const QSignalBlocker block(w);
    w->setText(ToQString(box.caption));
    w->setToolTip(ToQString(box.toolTip));
    w->setChecked(box.checked());
    w->setVisible(box.visible);
    w->setEnabled(box.enabled);
  };
  renderBox(m_chkScroll, d.chkScroll);
  renderBox(m_chkViewDataOnly, d.chkViewDataOnly);
  m_monitor->setFollow(d.chkScroll.checked());
  m_monitor->setEditable(!d.txtMonitor.locked());
}

}  // namespace tesk
