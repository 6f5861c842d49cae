// The transmit panel on screen: the six fields with their keys, focus, list picks and drops, the
// length counters, the list edit buttons, the send buttons with their guard and drops, and the
// heard report button's popup menu.
#pragma once

#include <QObject>
#include <QString>
#include <map>
#include <vector>

#include "qt/views/view_kit.h"
#include "transmit/tx_panel.h"

class QComboBox;
class QGridLayout;
class QMenu;
class QPushButton;
class QToolButton;

namespace tesk {

class TransmitPanelView : public QObject {
 public:
  explicit TransmitPanelView(ViewKit& kit) : m_kit(kit) {}
  ~TransmitPanelView() override;
  QWidget* build(QWidget* parent);
  void render();
  void followTxFocus();
  // The send menu's copy of the heard report menu (menusends 7).
  void addHeardReportEntries(QMenu* menu, Command command);
  // The Multi-Line rows: the three pages, then the window.
  void addMultiLineEntries(QMenu* menu);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct ComboField {
    ComboBox* data;
    QComboBox* widget;
    TxField field;
    QString toolTip;  // shown while the struct's tool tip is empty
  };
  QComboBox* addCombo(QWidget* parent, ComboBox& data, TxField field, const char* name,
                      const QString& toolTip);
  QWidget* addCounter(QWidget* parent, int index);
  QToolButton* addEditButton(QWidget* parent, int selector);
  void addButtons(QWidget* parent, QGridLayout* grid);
  bool fieldEvent(const ComboField& combo, QEvent* event);
  bool dropEvent(const ComboField& combo, QEvent* event);
  bool sendButtonEvent(QObject* watched, SendButton which, QEvent* event);
  bool sendDropEvent(QEvent* event);
  void textEdited(TxField field);

  ViewKit& m_kit;
  std::vector<ComboField> m_combos;
  std::map<const QObject*, std::size_t> m_comboOf;  // a field's combo box and line edit
  std::vector<std::pair<Button*, QToolButton*>> m_editButtons;
  std::map<const QObject*, SendButton> m_sendButtons;
  QMenu* m_heardReportMenu = nullptr;  // the popup of cmdTXMHeard: menumheardsend
  QMenu* m_multiLineMenu = nullptr;    // the popup of CmdTXMultiLineDirect: mnu_multiline
  QPushButton* m_messenger = nullptr;  // cmdLoadMessenger, red while a message waits
};

}  // namespace tesk
