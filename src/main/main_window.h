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

class MonitorConsole;
class MonitorFilters;
class MonitorFind;
class TxPanel;

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

  // ---- transmit fields: the length counters, the list edit buttons, the fields' handlers ----
  // LblMaxLengte 0 to 2 count the Text/data, APRS comment and Message fields, each in its own
  // colour below the limit and in red above it.
  std::array<Label, 3> LblMaxLengte = [] {
    std::array<Label, 3> counters;
    const Color under[3] = {RGB(0, 128, 0), RGB(0, 0, 255), RGB(128, 0, 128)};
    for (int i = 0; i < 3; ++i) {
      counters[i].caption = "0";
      counters[i].foreColor = under[i];
      counters[i].toolTip = "Number of characters";
    }
    return counters;
  }();
  // Open the list editor on the Text/data, APRS comment and Message histories.
  std::array<Button, 3> cmdEditTXData = [] {
    std::array<Button, 3> buttons;
    const char* tips[3] = {"Edit the Text/data list", "Edit the APRS position comment list",
                           "Edit the APRS message list"};
    for (int i = 0; i < 3; ++i)
      buttons[i].toolTip = tips[i];
    return buttons;
  }();
  // The transmit field that has the keyboard focus, by name; a handler that moves the focus
  // (Enter in cmbFor) sets it, and the view follows.
  std::string txFocus;
  // The handlers of the transmit fields' keys, list picks, focus and drops; set by the panel.
  TxPanel* txPanel = nullptr;

  // ---- packet logs: the automatic log's label and the "Open" log entries ----
  // Double click switches the automatic log on ("All") or off; a right press pops up the log
  // menu mnuautolog.
  Label AutoLogLabel = [] {
    Label l;
    l.caption = "Log OFF";
    l.toolTip = "Double click to change Autolog status (right-click for options)";
    l.backColor = static_cast<Color>(0x8000000F);  // the system's button face
    l.foreColor = static_cast<Color>(0x80000012);  // the system's button text
    return l;
  }();
  // 10 today's automatic log, 20 any log, 40 the Digi LogBook.
  MenuArray mnuOpenLog;
  // The handlers of the log menus and label, and the note window; set by their owners.
  class PacketLog* packetLog = nullptr;
  class Meld* meld = nullptr;

  // ---- Monitor operations and filters: the buttons under the Monitor, the find and count
  // entries, and the handlers the view forwards the Monitor's events to ----
  Button cmdMonitorClear, cmdMonitorCut, cmdMonitorCopy, cmdMonitorPaste, cmdMonitorSave,
      cmdMonitorOpen, cmdMonitorPrint, cmdFind;
  MenuItem menufind, menufindcount, ExportToASCII;
  MenuItem menuFindNext = [] {
    MenuItem m;
    m.enabled = false;  // until a search has found something
    return m;
  }();
  // The control that has the keyboard focus, by name ("txtMonitor", "cmbDataText", ...); the
  // view sets it before it runs a handler.
  std::string ActiveControl;
  MonitorConsole* monitorConsole = nullptr;
  MonitorFilters* monitorFilters = nullptr;
  MonitorFind* monitorFind = nullptr;

  // ---- stations heard and own digipeats: the counter under the list, the hidden copy that the
  // auto-clear leaves alone, the list's buttons and menus, the digipeat total's menu ----
  Label StationTeller = [] {
    Label l;
    l.caption = "0";
    l.toolTip = "Number of stations heard";
    return l;
  }();
  ListBox lstMHeardbak = [] {
    ListBox b;
    b.visible = false;
    return b;
  }();
  Button cmdMHeardClear, cmdMheardSave, cmdViewMHeardList;
  // mnuMHeard: menumheardoptions 20 to 100 and the paste entries 10, 20, 30; items 55 and 58,
  // and 25 and 30 of mnuPictureViewerImg, are visible only while the list's popup is up.
  MenuArray menumheardoptions, menumheardoptionspaste, mnuPictureViewerImg;
  bool mnuMHeardPopup = false;  // set by a right release on the list: the view pops it up
  MenuItem mnuShowDigiStatuss = [] {
    MenuItem m;
    m.caption = "Reset your digipeated total";
    return m;
  }();
  class MHeardList* heardList = nullptr;
  class Digipeat* digipeat = nullptr;
  class ViewHeard* viewHeard = nullptr;  // frmViewHeard

  // ---- sending: the send menu's stop entry, the heard report's menu and the senders ----
  MenuItem mnuStopPending = [] {
    MenuItem m;
    m.caption = "Stop Pending";
    m.enabled = false;  // only while the message retry tick runs
    return m;
  }();
  // Set by a right press on cmdTXMHeard: the view pops up the heard report menu.
  bool menumheardsendPopup = false;
  class UiTextSender* uiTextSender = nullptr;
  class HeardReports* heardReports = nullptr;
};

}  // namespace tesk
