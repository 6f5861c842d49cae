// The Monitor's part of the main window: the own call above it, the Monitor itself with its font,
// the two boxes and the buttons under it, the filter label, and the Edit and Filters menus with
// the find entries. The Monitor console, its filters and its find fill it.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/rich_text.h"
#include "state/menu_array.h"

namespace tesk {

struct MonitorPanel {
  Label lblCallSign;  // the own call, upper-cased, above the Monitor
  RichText txtMonitor;
  // The Monitor's font and background (txtMonitor's default style carries colour, size, bold).
  std::string txtMonitorFontName = "Fixedsys";
  Color txtMonitorBackColor = RGB(0, 0, 64);

  CheckBox chkScroll = [] {
    CheckBox c;
    c.caption = "Scroll";
    c.toolTip = "Automatic scrolling ON or OFF";
    c.value = 1;  // checked at start
    return c;
  }();
  CheckBox chkViewDataOnly = [] {
    CheckBox c;
    c.caption = "No header";
    c.toolTip = "Enable to view data only (no headers)";
    return c;
  }();

  Button cmdMonitorClear, cmdMonitorCut, cmdMonitorCopy, cmdMonitorPaste, cmdMonitorSave,
      cmdMonitorOpen, cmdMonitorPrint, cmdFind;
  Button cmdStatistics;  // opens the statistics of what the Monitor holds
  MenuItem menufind, menufindcount, ExportToASCII;
  MenuItem menuFindNext = [] {
    MenuItem m;
    m.enabled = false;  // until a search has found something
    return m;
  }();
  MenuArray menuedits;

  Label lblMonitorFilter;  // the Monitor filter in force
  MenuArray menufilters;   // the Monitor filter menu

  // The control that has the keyboard focus, by name ("txtMonitor", "cmbDataText", ...); the
  // view sets it before it runs a handler.
  std::string ActiveControl;
};

}  // namespace tesk
