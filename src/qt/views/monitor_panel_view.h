// The Monitor's panel on screen: the own call above it, the Monitor, its two boxes and the
// buttons under it, and its right-click menu (the Edit menu, items 100 to 140 shown while it is
// up).
#pragma once

#include <functional>

#include "qt/views/monitor_view.h"
#include "qt/views/view_kit.h"

class QCheckBox;
class QMenu;

namespace tesk {

class MonitorPanelView {
 public:
  // `editMenu` gives the Edit menu, which is also the Monitor's right-click menu.
  MonitorPanelView(ViewKit& kit, std::function<QMenu*()> editMenu);
  QWidget* build(QWidget* parent);
  void render();
  MonitorView& monitor() { return *m_monitor; }

 private:
  QWidget* buildControls(QWidget* parent);
  void popup(const QPoint& at);

  ViewKit& m_kit;
  std::function<QMenu*()> m_editMenu;
  MonitorView* m_monitor = nullptr;
  QCheckBox* m_chkScroll = nullptr;
  QCheckBox* m_chkViewDataOnly = nullptr;
};

}  // namespace tesk
