// The status strip on screen: the link lamp, the port frame with the two port selectors and
// their popups, the beacon and acknowledgement labels, the automatic log's and the filter's
// labels, and the two clocks.
#pragma once

#include <QObject>
#include <functional>

#include "qt/views/view_kit.h"

class QLabel;
class QMenu;
class QToolButton;

namespace tesk {

class StatusStripView {
 public:
  // `logMenu` and `filterMenu` give the menus the two labels pop up (built with the menu bar).
  StatusStripView(ViewKit& kit, std::function<QMenu*()> logMenu,
                  std::function<QMenu*()> filterMenu);
  QWidget* build(QWidget* parent);
  void render();
  // The popup of the transmit (tx true) or receive port rows, beside its selector.
  void popupPorts(bool tx);

 private:
  QWidget* buildPorts(QWidget* parent);
  void renderLamp();

  ViewKit& m_kit;
  std::function<QMenu*()> m_logMenu, m_filterMenu;
  QLabel* m_lamp = nullptr;
  QLabel* m_frameComm = nullptr;
  QToolButton* m_txSelector = nullptr;
  QToolButton* m_rxSelector = nullptr;
  QMenu* m_txPorts = nullptr;  // menuAgwport
  QMenu* m_rxPorts = nullptr;  // menuAgwportRX
};

}  // namespace tesk
