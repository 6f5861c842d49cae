// The strip along the top of the main window: the link lamp, the port frame and its two port
// popups, the clocks, the beacon and acknowledgement labels, the receive and transmit lamps, the
// digipeat flash and total, and the automatic log's label. The packet core, the clocks, the
// ports and the logs paint it; the views render it.
#pragma once

#include <array>
#include <string>

#include "platform/controls.h"
#include "state/menu_array.h"

namespace tesk {

struct StatusStrip {
  Frame frmLogoTitle;  // the link lamp: caption "LAN"/"+LAN"/"+", back colour green or red
  Frame FrameComm;     // "Communication Ports: TX-1 / RX All"
  Frame FrameMonitor;
  Label Klok;      // local time
  Label UTC_Klok;  // UTC
  Label LblAckON;
  // Double click switches the beacon; beacon_label.h sets its captions and colours.
  Label lblBeacon = [] {
    Label l;
    l.caption = "Beacon OFF";
    l.toolTip = "Double click to enable/disable Beacon";
    l.backColor = static_cast<Color>(0x8000000F);  // the system's button face
    l.foreColor = static_cast<Color>(0x8000000D);  // the system's highlight
    return l;
  }();
  // Shown while the Shadow Experiment mode runs.
  Label LblSpEx = [] {
    Label l;
    l.caption = "Shadow Exp. Mode!";
    l.visible = false;
    return l;
  }();
  Label TextDDE_Ex;  // hidden: the last text posted for modules

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
  MenuItem mnuShowDigiStatuss = [] {
    MenuItem m;
    m.caption = "Reset your digipeated total";
    return m;
  }();

  // The images that open the popups of the transmit (menuAgwport) and receive
  // (menuAgwportRX) port rows, and the two popups.
  Image imgTXPortSelector, imgRXPortSelector;
  MenuArray menuAgwport, menuAgwportRX;

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
  MenuArray mnuautolog;
  // 10 today's automatic log, 20 any log, 40 the Digi LogBook.
  MenuArray mnuOpenLog;
};

}  // namespace tesk
