// The main window as data: the Monitor, the link lamp, the port frame, the clocks, the six
// transmit fields, the labels and the indexed menus, named as the operator's manual names them.
// The Qt view renders this struct; handlers live in the subsystems. Later subsystems add their
// controls here in their own block.
#pragma once

#include <array>
#include <map>
#include <string>

#include "platform/controls.h"
#include "platform/rich_text.h"

namespace tesk {

// An indexed menu (menuedits item 100, menusends item 9): sparse, created on first use.
using MenuArray = std::map<int, MenuItem>;

struct MainWindow {
  Window form;

  // ---- link, ports, clocks ----
  Frame frmLogoTitle;  // the link lamp: caption "LAN"/"+LAN"/"+", back colour green or red
  Frame FrameComm;     // "Communication Ports: TX-1 / RX All"
  Frame FrameMonitor;
  Label Klok;      // local time
  Label UTC_Klok;  // UTC
  Label LblAckON;
  Label lblBeacon;
  Label lblCallSign;    // the own call, upper-cased, above the Monitor
  Label lblMHeardCall;  // the own call beside the MHeard list; the heard report compares to it
  Label TextDDE_Ex;     // hidden: the last text posted for modules

  // ---- the Monitor ----
  RichText txtMonitor;

  // ---- transmit ----
  ComboBox cmbToCall, cmbViaCall, cmbDataText, cmbAPRSPos, cmbFor, cmbAPRSMessage;
  Button cmdTXDataText, cmdTXAPRS, cmdTXAPRSMessage, cmdTXConnect, cmdTXMHeard;
  Button CmdTXMultiLineDirect;

  // ---- MHeard ----
  OptionButton OptSort, OptUnsort;

  // ---- menus ----
  MenuItem MnuRun, menuextra;
  MenuArray menufiles, menuedits, menuoptions, menusends, menuheardsend, menumheardsend, mnuautolog,
      menuAgwport, menuAgwportRX, mPopupSys;

  // ---- tray ----
  bool trayIconShown = false;
  std::string trayToolTip;

  // ---- settings: fonts, geometry and labels the settings reader fills ----
  // The Monitor's font and background (txtMonitor's default style carries colour, size, bold).
  std::string txtMonitorFontName = "Fixedsys";
  Color txtMonitorBackColor = RGB(0, 0, 64);
  // The desktop's usable size in twips, filled by the view; 0 while not known. A stored window
  // size larger than this comes up maximised.
  long screenWidth = 0, screenHeight = 0;
  ListBox LstMHeardList;     // the MHeard list: colours from [DataBox Forecolor]/[Backcolor]
  Label lblMonitorFilter;    // the Monitor filter in force
  Label Lblmheardautoerase;  // "MHeard auto-erase ON"
  Label LblSpEx;             // "Shadow Exp. Mode!"
  MenuArray menufilters;     // the Monitor filter menu

  // ---- packet core and Monitor: the Monitor's two boxes, the lamps, the port selectors ----
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
  // Item 0 the receive lamp, item 1 the transmit lamp; both dark until a frame comes or goes.
  std::array<Image, 2> imgTXRXlight = [] {
    std::array<Image, 2> lamps;
    for (Image& lamp : lamps)
      lamp.visible = false;
    return lamps;
  }();
  // The digipeat flash: the picture shown while it is lit, and the label of the total.
  Image imgLogoDigi = [] {
    Image i;
    i.visible = false;
    return i;
  }();
  Label LblDigipeatedTot = [] {
    Label l;
    l.caption = "0";
    l.toolTip = "Your total digipeated packets status";
    l.backColor = static_cast<Color>(0x8000000F);  // the system's button face
    l.foreColor = static_cast<Color>(0x8000000D);  // the system's highlight
    return l;
  }();
  // The images that open the popups of the transmit (menuAgwport) and receive
  // (menuAgwportRX) port rows.
  Image imgTXPortSelector, imgRXPortSelector;
};

}  // namespace tesk
