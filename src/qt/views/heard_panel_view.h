// The stations-heard panel on screen: the receive and transmit lamps, the digipeat flash and
// total with its menu, the list with its popup menu and drag, the counter, the sort options and
// the list's buttons.
#pragma once

#include <array>

#include "qt/views/view_kit.h"

class QLabel;
class QListWidget;
class QMenu;
class QRadioButton;

namespace tesk {

class HeardPanelView {
 public:
  explicit HeardPanelView(ViewKit& kit) : m_kit(kit) {}
  QWidget* build(QWidget* parent);
  void render();

 private:
  QWidget* buildDigiRow(QWidget* parent);
  void buildMenus(QWidget* parent);
  void popup(const QPoint& at);
  void renderList();

  ViewKit& m_kit;
  QListWidget* m_list = nullptr;     // LstMHeardList
  std::array<QLabel*, 2> m_lamps{};  // imgTXRXlight 0 receive, 1 transmit
  QLabel* m_digiLogo = nullptr;      // imgLogoDigi
  QMenu* m_heardMenu = nullptr;      // mnuMHeard
  QMenu* m_digiMenu = nullptr;       // mnuShowDigiStatus
  QRadioButton* m_optSort = nullptr;
  QRadioButton* m_optUnsort = nullptr;
};

}  // namespace tesk
