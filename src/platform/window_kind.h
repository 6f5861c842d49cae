// Every window the station can show, by kind. The core shows and hides windows by kind; the Qt
// side maps each kind to the factory of its view, the headless side shows nothing.
#pragma once

#include <array>

namespace tesk {

enum class WindowKind {
  Main,         // the main window
  Splash,       // frmSplash
  Tray,         // the tray icon of the main window
  TrayPopup,    // mPopupSys, the tray icon's menu
  Meld,         // the note window
  LanSetup,     // LAN_Setup
  EditTXData,   // frmEditTXData, the list editor of the transmit histories
  Find,         // frmFind
  ViewHeard,    // frmViewHeard
  TxPortPopup,  // menuAgwport, the transmit port rows
  RxPortPopup,  // menuAgwportRX, the receive port rows
  APRSSetup,    // frmAPRSSetup, the position setup
  TXMultiLine,  // frmTXMultiLine, the three pages of multi-line text
  Setup,        // frmSetup, the Setup window
  Messenger,    // frmMessenger, the APRS messages received and sent
  Statistics,   // FrmStatistics, the counts of the Monitor and the console's state
  Beacon,       // Beacon, the beacon settings
};

constexpr std::array<WindowKind, 17> kWindowKinds = {
    WindowKind::Main,        WindowKind::Splash,      WindowKind::Tray,
    WindowKind::TrayPopup,   WindowKind::Meld,        WindowKind::LanSetup,
    WindowKind::EditTXData,  WindowKind::Find,        WindowKind::ViewHeard,
    WindowKind::TxPortPopup, WindowKind::RxPortPopup, WindowKind::APRSSetup,
    WindowKind::TXMultiLine, WindowKind::Setup,       WindowKind::Messenger,
    WindowKind::Statistics,  WindowKind::Beacon};

// The window's own name, as the operator's manual and the records of the tests know it.
constexpr const char* WindowName(WindowKind kind) {
  switch (kind) {
    case WindowKind::Main:
      return "main";
    case WindowKind::Splash:
      return "frmSplash";
    case WindowKind::Tray:
      return "tray";
    case WindowKind::TrayPopup:
      return "mPopupSys";
    case WindowKind::Meld:
      return "Meld";
    case WindowKind::LanSetup:
      return "LAN_Setup";
    case WindowKind::EditTXData:
      return "frmEditTXData";
    case WindowKind::Find:
      return "frmFind";
    case WindowKind::ViewHeard:
      return "frmViewHeard";
    case WindowKind::TxPortPopup:
      return "menuAgwport";
    case WindowKind::RxPortPopup:
      return "menuAgwportRX";
    case WindowKind::APRSSetup:
      return "frmAPRSSetup";
    case WindowKind::TXMultiLine:
      return "frmTXMultiLine";
    case WindowKind::Setup:
      return "frmSetup";
    case WindowKind::Messenger:
      return "frmMessenger";
    case WindowKind::Statistics:
      return "FrmStatistics";
    case WindowKind::Beacon:
      return "Beacon";
  }
  return "";
}

}  // namespace tesk
