// The main window as data: the composition of its panels (status strip, Monitor, stations heard,
// transmit fields) and the menus and tray that belong to the window as a whole. The views render
// it; handlers live in the subsystems, each of which gets the panel it paints. It holds no
// pointer to any subsystem.
#pragma once

#include <string>

#include "platform/controls.h"
#include "state/aprs_message_panel.h"
#include "state/heard_panel.h"
#include "state/menu_array.h"
#include "state/monitor_panel.h"
#include "state/status_strip.h"
#include "state/transmit_panel.h"

namespace tesk {

// The menus of the window as a whole: File, Options, the add-on and program lists, the tray's.
struct WindowMenus {
  MenuItem MnuRun, menuextra;
  MenuArray menufiles, menuoptions, mPopupSys;
};

// The panels are bases so that each control keeps its one name (main.cmbToCall) while a
// subsystem takes a reference to the one panel it paints.
struct MainWindow : StatusStrip,
                    MonitorPanel,
                    HeardPanel,
                    TransmitPanel,
                    AprsMessagePanel,
                    WindowMenus {
  Window form;

  // ---- tray ----
  bool trayIconShown = false;
  std::string trayToolTip;
  // Filled by the view: false on a desktop without a tray area, where a minimised window stays
  // on the task bar.
  bool desktopHasTray = false;

  // The desktop's usable size in twips, filled by the view; 0 while not known. A stored window
  // size larger than this comes up maximised.
  long screenWidth = 0, screenHeight = 0;
};

}  // namespace tesk
