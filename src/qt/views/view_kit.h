// What the panel views of the main window share: the window's data, the command table and the
// handlers of the fields' events, the way a command is run (the focus and the Monitor's selection
// handed over first, everything repainted after), the labels and buttons each panel registers
// for painting, and the small widgets more than one panel uses.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPalette>
#include <QString>
#include <functional>
#include <map>
#include <vector>

#include "platform/controls.h"
#include "state/command_table.h"
#include "state/main_window.h"

class QComboBox;
class QPushButton;

namespace tesk {

class MHeardList;
class MonitorConsole;
class TxPanel;
class UiTextSender;

// The subsystems whose event handlers the panels call (typing, list picks, drops, the
// Monitor's keys). Any may be missing: a view test without a station has none.
struct MainWindowHandlers {
  TxPanel* txPanel = nullptr;
  MonitorConsole* monitor = nullptr;
  MHeardList* heardList = nullptr;
  UiTextSender* uiTextSender = nullptr;
};

class ViewKit {
 public:
  ViewKit(MainWindow& data, CommandTable& commands, MainWindowHandlers handlers)
      : m_data(data), m_commands(commands), m_handlers(handlers) {}
  virtual ~ViewKit() = default;

  MainWindow& data() { return m_data; }
  CommandTable& commands() { return m_commands; }
  const MainWindowHandlers& handlers() const { return m_handlers; }

  // Runs a command as a menu row or button does, then repaints.
  virtual void run(CommandKey key) = 0;
  virtual void refresh() = 0;
  // Moves the keyboard to the transmit field a handler named in txFocus.
  virtual void followTxFocus() = 0;

  // A label painted from its struct on every refresh.
  void paintLabel(Label& data, QLabel* widget) { m_labels[&data] = widget; }
  // A push button that runs `command` (a send button runs through its guard).
  QPushButton* addButton(QWidget* parent, Button& data, Command command, const char* name,
                         const QString& caption);
  // A menu row bound to a command: its caption, check, visibility and enabled state follow the
  // table and the row behind it.
  // `caption` is shown where the table has none (a button's command in a menu).
  QAction* addAction(QMenu* menu, CommandKey key, const QString& caption = {});
  void addActions(QMenu* menu, Command command, const std::vector<int>& rows);
  // Repaints the registered labels, buttons and menu rows.
  void paint();

  // A button's press: a send button's through the guard of the transmit rules.
  void press(Command command);

 private:
  struct ButtonEntry {
    Button* data;
    QPushButton* widget;
    Command command;
    QString caption;  // shown while the struct's caption is empty
  };
  struct ActionEntry {
    CommandKey key;
    QAction* action;
    QString caption;
  };

  MainWindow& m_data;
  CommandTable& m_commands;
  MainWindowHandlers m_handlers;
  std::map<Label*, QLabel*> m_labels;
  std::vector<ButtonEntry> m_buttons;
  std::vector<ActionEntry> m_actions;
};

// ---- shared widgets ----

// A colour the struct leaves at its default (or at a system colour) keeps the desktop's own.
bool IsOwnColor(Color c, Color dflt);
void PaintColors(QWidget* w, const Control& c, QPalette::ColorRole fg, QPalette::ColorRole bg);
void RenderLabel(QLabel* w, const Label& d);
// A text box's limit, 0 for none. Qt sets the text again with every new limit, which drops the
// operator's selection and moves the caret to the end, so an unchanged limit is left alone.
void RenderMaxLength(QLineEdit* w, long maxLength);

// A label that answers a double click and a right press.
class ClickLabel : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> onDoubleClick;
  std::function<void(QPoint)> onRightPress;

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
};

// A label that answers any mouse press (the digipeat total's and the filter label's menus).
class PressLabel : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void(QPoint)> onPress;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace tesk
