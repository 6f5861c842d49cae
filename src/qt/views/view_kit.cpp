// The shared pieces of the main window's panel views.
#include "qt/views/view_kit.h"

#include <QAction>
#include <QMouseEvent>
#include <QPushButton>

#include "qt/qt_text.h"
#include "transmit/tx_panel.h"

namespace tesk {

QPushButton* ViewKit::addButton(QWidget* parent, Button& data, Command command, const char* name,
                                const QString& caption) {
  auto* w = new QPushButton(caption, parent);
  w->setObjectName(QString::fromLatin1(name));
  w->setAutoDefault(false);
  QObject::connect(w, &QPushButton::clicked, w, [this, command]() { press(command); });
  m_buttons.push_back({&data, w, command, caption});
  return w;
}

void ViewKit::press(Command command) {
  const std::optional<SendButton> send = TxPanel::SendButtonOf(command);
  if (send && m_handlers.txPanel != nullptr) {
    if (!m_commands.enabled({command})) return;
    m_handlers.txPanel->Press(*send);
    refresh();
    return;
  }
  run({command});
}

QAction* ViewKit::addAction(QMenu* menu, CommandKey key, const QString& fallback) {
  const CommandSpec* desc = m_commands.find(key);
  const QString caption =
      desc != nullptr && !desc->caption.empty() ? ToQString(desc->caption) : fallback;
  auto* action = new QAction(caption, menu);
  menu->addAction(action);
  if (desc != nullptr && !desc->shortcut.empty())
    action->setShortcut(QKeySequence(ToQString(desc->shortcut)));
  QObject::connect(action, &QAction::triggered, menu, [this, key]() { run(key); });
  m_actions.push_back({key, action, caption});
  return action;
}

void ViewKit::addActions(QMenu* menu, Command command, const std::vector<int>& rows) {
  for (int row : rows) {
    if (row < 0) {
      menu->addSeparator();
      continue;
    }
    addAction(menu, {command, row});
  }
}

void ViewKit::paint() {
  for (const auto& [data, widget] : m_labels)
    RenderLabel(widget, *data);
  for (const ButtonEntry& b : m_buttons) {
    b.widget->setText(b.data->caption.empty() ? b.caption : ToQString(b.data->caption));
    b.widget->setToolTip(ToQString(b.data->toolTip));
    b.widget->setVisible(b.data->visible);
    b.widget->setEnabled(b.data->enabled && m_commands.enabled({b.command}));
  }
  for (ActionEntry& e : m_actions) {
    const CommandSpec* desc = m_commands.find(e.key);
    const MenuItem* item = desc != nullptr ? desc->item : nullptr;
    e.action->setText(item && !item->caption.empty() ? ToQString(item->caption) : e.caption);
    e.action->setCheckable(item != nullptr && item->checked);
    e.action->setChecked(item != nullptr && item->checked);
    e.action->setVisible(item == nullptr || item->visible);
    e.action->setEnabled(m_commands.enabled(e.key));
  }
}

// ---- shared widgets ----------------------------------------------------------------------

bool IsOwnColor(Color c, Color dflt) {
  return c != dflt && (c & 0x80000000) == 0;
}

namespace {

// A system colour other than the widget's own default is taken from the desktop's palette, so
// the highlight of a label follows the desktop's theme as it does on the system it came from.
bool SystemRole(Color c, QPalette::ColorRole& role) {
  if ((c & 0x80000000) == 0) return false;
  switch (c & 0xFF) {
    case 5:
      role = QPalette::Base;
      return true;
    case 8:
      role = QPalette::WindowText;
      return true;
    case 13:
      role = QPalette::Highlight;
      return true;
    case 14:
      role = QPalette::HighlightedText;
      return true;
    case 18:
      role = QPalette::ButtonText;
      return true;
    default:
      return false;
  }
}

}  // namespace

void RenderMaxLength(QLineEdit* w, long maxLength) {
  const int wanted = maxLength > 0 ? static_cast<int>(maxLength) : 32767;
  if (w->maxLength() != wanted) w->setMaxLength(wanted);
}

void PaintColors(QWidget* w, const Control& c, QPalette::ColorRole fg, QPalette::ColorRole bg) {
  QPalette p = w->parentWidget() ? w->parentWidget()->palette() : w->palette();
  const bool back = IsOwnColor(c.backColor, kDefaultBack);
  QPalette::ColorRole system = fg;
  if (IsOwnColor(c.foreColor, kDefaultFore)) {
    p.setColor(fg, ToQColor(c.foreColor));
  } else if (SystemRole(c.foreColor, system)) {
    p.setColor(fg, p.color(system));
  }
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

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && onDoubleClick) {
    onDoubleClick();
    return;
  }
  QLabel::mouseDoubleClickEvent(event);
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton && onRightPress) {
    onRightPress(event->globalPosition().toPoint());
    return;
  }
  QLabel::mousePressEvent(event);
}

void PressLabel::mousePressEvent(QMouseEvent* event) {
  if (onPress) {
    onPress(event->globalPosition().toPoint());
    return;
  }
  QLabel::mousePressEvent(event);
}

}  // namespace tesk
