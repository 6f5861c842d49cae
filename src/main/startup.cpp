// The load pass and Einde. Steps that belong to subsystems built later call their named
// routines in place, so the order stays visible; every step runs whatever the one before did.
#include "main/startup.h"

#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "core/utc_clock.h"
#include "link/lan_settings_file.h"
#include "main/station.h"
#include "main/station_parts.h"
#include "platform/platform_helpers.h"
#include "state/beacon_label.h"

namespace tesk {

namespace {

constexpr int kVersionMajor = 5;
constexpr int kVersionMinor = 4;
constexpr int kVersionRevision = 4;
constexpr const char* kModuleApp = "XX9TK\\TESK";

bool On(int v) {
  return v != 0;
}

// The reader fills the transmit fields as code; their change handlers run here, as the original
// controls fired them, so the counters and typing limits are right from the start.
void RefreshTxCounters(StationParts& parts) {
  parts.txPanel.Change(TxField::DataText);
  parts.txPanel.Change(TxField::APRSPos);
  parts.txPanel.Change(TxField::APRSMessage);
}

}  // namespace

// ---- the entry routine ----------------------------------------------------------------------

void Startup::EntryRoutine() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  run.VersionText = Trim(std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                         std::to_string(kVersionRevision));
  const double splashTime = 1.0;
  const std::string splash =
      ReadRegistryValue(platform.store(), Hive::CurrentUser, "Software\\TESK\\Set", "SplashScreen");
  const int16_t splashOff = CInt(Val(Trim(splash)));
  if (splashOff == 0) {
    platform.views().show(WindowKind::Splash);
    platform.views().refresh(WindowKind::Splash);
    platform.loop().waitUntil(splashTime, {});
    if (platform.loop().ended()) return;
  }
  LoadPass();
  if (splashOff != 0) {
    platform.loop().yield();
    return;
  }
  platform.views().hide(WindowKind::Splash);
  platform.loop().yield();
}

void Startup::ComponentErrorBox(int number) {
  Platform& platform = m_station.platform();
  platform.dialogs().msgBox(
      "Error #" + std::to_string(number) + CRLF +
          "Possible fix: try updating the Active-X controls to the newest versions." + CRLF +
          "On the Web-> https://packages.debian.org/ has the run-time packages; please inform "
          "the author.",
      MsgButtons::Ok, MsgIcon::Critical, "TESK");
  platform.loop().endNow(1);
}

// ---- the load pass -----------------------------------------------------------------------

void Startup::LoadPass() {
  EventLoop& loop = m_station.platform().loop();
  stepsPathsAndSettings();
  stepsProgramsAndWindow();
  if (!FirstRunCallSign() || loop.ended()) return;
  stepsLogsAndTicks();
  if (loop.ended()) return;
  m_step = 20;
  if (On(m_station.run().LanMode)) StartLanLink();
  if (loop.ended()) return;
  m_step = 21;
  m_station.run().ToVia = m_station.config().YourCallSign;
  m_step = 22;
  if (!On(m_station.run().LanMode) && !StartDirectLink()) return;
  if (loop.ended()) return;
  stepsCoreAndLabels();
  stepsMailboxAndTray();
  WriteCheck();
  m_loaded = true;
}

void Startup::stepsPathsAndSettings() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationParts& parts = m_station.parts();
  StationConfig& config = m_station.config();
  m_step = 1;
  main.MnuRun.visible = false;
  main.menuextra.visible = false;
  m_step = 2;
  run.BaseCaption = main.form.caption;
  run.TagText =
      " {TESK" + std::to_string(kVersionMajor) + std::to_string(kVersionMinor).substr(0, 1) + "}";
  run.AppPath = m_station.options().appPath;
  while (run.AppPath.size() > 1 && run.AppPath.back() == '/')
    run.AppPath.pop_back();
  run.WindowsDir = platform.system().windowsDir;
  if (run.WindowsDir.empty() || run.WindowsDir.back() != '/') run.WindowsDir += "/";
  run.NotebookPath = JoinPath(run.AppPath, "Notebook.rtf");
  run.SettingsPath = JoinPath(run.AppPath, "tesk.ini");
  platform.loop().yield();
  m_step = 3;
  parts.addOns.RunBatchApplication("");
  m_step = 4;
  main.OptSort.visible = true;
  main.OptUnsort.visible = true;
  main.CmdTXMultiLineDirect.visible = true;
  main.CmdTXMultiLineDirect.toolTip = "Send Multiple lines of data/text(Default nr:" +
                                      std::to_string(config.TXMultiLineDefault + 1) + ")";
  m_step = 5;
  run.SeparatorChar = std::string(1, static_cast<char>(254));
  main.menuheardsend[3].enabled = true;
  main.menumheardsend[3].enabled = true;
  m_step = 6;
  run.StartedAt = platform.clock().localNow();
  run.PacketLengths = {255, 192, 160, 128, 96, 80, 64};
  m_step = 7;
  parts.settings.LoadSettings();
  RefreshTxCounters(parts);
  LoadLANINI(config, run, run.AppPath);
  m_step = 8;
  if (On(config.EditMonitor)) {
    main.menuedits[110].checked = true;
    main.menuoptions[140].checked = true;
    main.txtMonitor.setLocked(false);
  }
  m_step = 9;
  parts.viewPort.CheckHelpURLs();
}

void Startup::stepsProgramsAndWindow() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationParts& parts = m_station.parts();
  StationConfig& config = m_station.config();
  m_step = 10;
  parts.modem.StartModemProgram();
  m_step = 11;
  for (const std::string* program : {&config.strRunExtApp1, &config.strRunExtApp2}) {
    if (!On(config.intRunExtApp) || Len(*program) <= 5) continue;
    parts.addOns.RunBatchApplication("/RUN" + *program);
    platform.loop().yield();
  }
  m_step = 12;
  parts.addOns.BuildExternalProgramsMenu();
  m_step = 13;
  main.LblAckON.visible = config.AckUIViewType != 0;
  if (config.AckUIViewType == 1) main.LblAckON.toolTip = "Auto-Reply on Acknowledgement requests";
  if (config.AckUIViewType == 2) main.LblAckON.toolTip = "Send with Acknowledgement Request";
  m_step = 14;
  run.LanModeAtStart = run.LanMode;
  parts.heardReports.CheckType(config.TXMHeardType);
  parts.heardReports.DetectWindows();
  main.form.visible = true;
  platform.views().show(WindowKind::Main);
  platform.loop().yield();
}

bool Startup::soundModemInFolder() const {
  return !SoundModemInFolder(m_station.run().AppPath).empty();
}

bool Startup::FirstRunCallSign() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  StationParts& parts = m_station.parts();
  m_step = 15;
  if (!config.YourCallSign.empty() && config.YourCallSign != "MYCALL") return true;
  platform.views().show(WindowKind::Main);
  std::string answer = platform.dialogs().inputBox(
      std::string("Before you can use this program you") + CR + "need to enter your Call Sign:",
      "TESK Monitor: Your Call Sign please", "");
  answer = UCase(answer);
  // The length is tested before the answer is trimmed, on purpose: "  AB" passes as 4.
  if (Len(answer) < 3 || Len(answer) > 10) {
    platform.loop().endNow(0);
    return false;
  }
  config.YourCallSign = UCase(Trim(answer));
  const std::string modem = SoundModemInFolder(run.AppPath);
  if (soundModemInFolder()) {
    config.TypeOfModem = 1;
    config.AutoRunModemProgram = 1;
    config.AutoCloseModemProgram = 1;
    run.LanMode = 1;  // non-zero, deliberately not the usual true (-1)
    config.ModemProgramPath = modem;
    parts.addOns.RunBatchApplication("/RUN" + modem);
    if (run.ModemStartNote > 0) {
      const double left =
          run.ModemStartNote + 2.0 - platform.clock().localNow().secondsSinceMidnight();
      if (left > 0) platform.loop().waitUntil(left, {});
    }
  }
  parts.settings.SaveSettings();
  for (ComboBox* box : {&main.cmbDataText, &main.cmbToCall, &main.cmbViaCall, &main.cmbAPRSPos,
                        &main.cmbFor, &main.cmbAPRSMessage}) {
    box->list.clear();
    box->text.clear();
    box->listIndex = -1;
  }
  parts.settings.LoadSettings();
  RefreshTxCounters(parts);
  run.FirstRun = true;
  return true;
}

void Startup::stepsLogsAndTicks() {
  Platform& platform = m_station.platform();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  StationParts& parts = m_station.parts();
  m_step = 16;
  if (On(config.AutoDigiLogBook)) {
    main.mnuautolog[40].checked = true;
    // The Digi LogBook is named by the call cut at its first "-".
    main.mnuautolog[50].enabled = FileExists(parts.packetLog.DigiLogBookPath());
  }
  m_step = 17;
  parts.tmrMainPacketCore->setInterval(On(config.SlowPC) ? 500 : 250);
  if (On(config.SlowPC) && config.MonBufferLimit < 0) config.MonBufferLimit = 0;
  m_step = 18;
  if (On(config.AutoDetectUTC)) parts.monitor.CalcUTC();
  parts.textSending.RestoreMissingFiles();
  parts.viewPort.SetupPictureTimer();
  CheckForHelpFiles();
  m_step = 19;
  ApplyCommandLine();
  platform.loop().yield();
  parts.addOns.TESKAddOns();
  parts.txPanel.SetCoherentTXBoxColors();
}

void Startup::ApplyCommandLine() {
  RunState& run = m_station.run();
  const std::string line = UCase(Trim(m_station.platform().system().commandLine));
  if (Len(line) <= 1) return;
  // Only the first four letters count: "/LANX" turns LAN mode on too.
  if (Left(line, 4) == "/LAN") run.LanMode = -1;
  if (Left(line, 4) == "/AGW") run.LanMode = 0;
}

void Startup::StartLanLink() {
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationParts& parts = m_station.parts();
  run.EngineStatus = "LAN-Mode ";
  run.LinkStatus = "Error: LAN Not Initiated";
  // Connected mode does not run over TCP.
  main.cmdTXConnect.enabled = false;
  main.menusends[9].enabled = false;
  main.frmLogoTitle.caption += "LAN";
  parts.modem.CheckForTerminal();
  parts.monitor.NotaInMonitor("Detecting...Please wait", 0);
  parts.tcpLink.AGWWinsockInitialiseLan();
}

bool Startup::StartDirectLink() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  AgwDirect& direct = m_station.parts().direct;
  const std::string key = kAppKey;
  auto startPoll = [&] {
    return direct.AGWStartPoll(config.YourCallSign, key,
                               static_cast<int32_t>(Len(config.YourCallSign)),
                               static_cast<int32_t>(Len(key)));
  };
  platform.loop().yield();
  int16_t result = startPoll();
  if (result == 0) {
    direct.AGWClose();
    result = startPoll();
  }
  platform.loop().yield();
  if (result == 0) {
    Dialogs& dialogs = platform.dialogs();
    const std::string site = "https://www.tesk-station.example";
    if (run.FirstRun) {
      const MsgResult r = dialogs.msgBox(
          std::string("Cannot connect to a 'software modem' (AGW,SoundModem,Direwolf...)! Is it "
                      "activated?") +
              CR + "" + CR +
              "TESK needs a software packet engine to communicate with your modem or soundcard." +
              CR + "" + CR + "Choose 'Yes' to download the AGW Packet Engine now," + CRLF +
              "or choose 'No' to download UZ7HO soundmodem.",
          MsgButtons::YesNoCancel, MsgIcon::Question, "TESK: Software Modem Download");
      if (r == MsgResult::Cancel) {
        platform.loop().endNow(0);
        return false;
      }
      if (r == MsgResult::Yes) {
        OpenWebPage(platform, site + "/xx9tk/download/agwpe.zip");
      } else if (dialogs.msgBox(std::string("TESK needs a Software Modem.") + CR + CR +
                                    "Do you want to download the UZ7HO SoundModem now?",
                                MsgButtons::YesNo, MsgIcon::Question,
                                "TESK: UZ7HO SoundModem Download") == MsgResult::Yes) {
        OpenWebPage(platform, site + "/xx9tk/download/soundmodem.zip");
      } else {
        dialogs.msgBox(
            "If you still want to use the UZ7HO software modem and EasyTerm then "
            "please unzip both in the TESK folder.",
            MsgButtons::Ok, MsgIcon::Information, "TESK Software Modem");
      }
    } else {
      const MsgResult r = dialogs.msgBox(
          std::string("Cannot connect to the AGW Packet Engine or a 'SoftwareModem'!") + CRLF +
              "Is it running?" + CR + "" + CR +
              "TESK needs a Software Modem or the AGW Packet Engine to work properly." + CR + "" +
              CR + "Do you want to run TESK anyway?",
          MsgButtons::YesNo, MsgIcon::Question, "TESK: Software Modem Not Running");
      if (r == MsgResult::No) {
        platform.loop().endNow(0);
        return false;
      }
    }
    main.txtMonitor.setText("RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!",
                            TextStyle{config.HeaderColor});
    run.EngineStatus = "Software Modem Not Detected";
  }
  direct.AGWPutData(run.ToVia, "", 'P', 0, run.CurrentPort);
  return true;
}

void Startup::stepsCoreAndLabels() {
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  StationParts& parts = m_station.parts();
  m_step = 23;
  parts.tmrMainPacketCore->setEnabled(true);
  m_step = 24;
  if (On(config.AutoBeacon)) {
    ShowBeaconCaption(main, m_station.platform().views(), kAutoBeacon,
                      SmartBeaconDigit(config.IntelligentBeacon));
  }
  m_step = 25;
  if (On(config.AutomaticLogging)) parts.packetLog.AutoLog(config.AutomaticLogging);
  parts.ports.ToonAktievePoort();
  m_step = 26;
  if (Len(config.APRS) < 20 || !On(config.APRSEnabled)) {
    main.cmdTXAPRS.enabled = false;
    main.cmbAPRSPos.locked = true;
    main.menusends[2].enabled = false;
  }
  if (Len(config.APRS) > 20) run.APRSWorkingText = main.cmbAPRSPos.text;
}

void Startup::stepsMailboxAndTray() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  StationParts& parts = m_station.parts();
  ModuleMailbox& mailbox = parts.mailbox;
  m_step = 27;
  std::string text;
  mailbox.TESKRegistryMod(text, 5);
  parts.core.WriteDataToDisk = text == "-1" ? -1 : CInt(Val(text));
  text = run.AppPath;
  mailbox.TESKRegistryMod(text, 4);
  text = On(run.LanMode) ? run.LinkStatus : "LAN-Mode OFF";
  mailbox.TESKRegistryMod(text, 7);
  std::string status = "<<TESK Not Running Or TESK Server Mode Not Active!>>";
  if (On(config.TESKServer) || On(run.ServerSwitch)) {
    status =
        Left(run.EngineStatus, 2) == "No" ? "TESK Running, but no AGWPE!" : "TESK Server Active!";
    mailbox.TESKRegistryMod(status, 1);
    mailbox.TESKRegistryMod(status, 2);
    text = std::string("Default") + '\0';
    mailbox.TESKRegistryMod(text, 20);
    parts.TmrStatus->setEnabled(true);
  }
  text.clear();
  mailbox.TESKRegistryMod(text, 6);
  m_step = 28;
  if (!text.empty()) {
    run.ProfileName = text;
    main.menufiles[11].caption = "TESK Profiles [" + text + "]...";
  }
  m_step = 29;
  platform.loop().yield();
  if (config.TESKServer > 1) {
    run.ServerSwitch = config.TESKServer;
    text = std::to_string(run.ServerSwitch);
    mailbox.TESKRegistryMod(text, 8);
  }
  m_step = 30;
  if (On(config.SystemTray)) {
    main.trayIconShown = true;
    main.trayToolTip = "TESK";
    platform.views().show(WindowKind::Tray);
  }
}

void Startup::WriteCheck() {
  m_step = 31;
  RunState& run = m_station.run();
  if (run.WriteCheckDone) return;
  const std::string path = JoinPath(run.AppPath, "uactest.txt");
  int error = 0;
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) error = 75;  // path/file access error
    out << "TESK UAC WINDOWS TEST" << CRLF;
    if (!out) error = error ? error : 61;  // disk full
  }
  run.WriteCheckDone = true;
  if (error == 0) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    if (!in || !std::getline(in, line)) error = 62;  // input past end of file
  }
  if (error == 0) return;
  m_station.platform().dialogs().msgBox(
      std::string("Error accessing File. Folder write protected.") + CRLF +
          "Probably do to 'User Account Control' (UAC) of Windows." + CRLF +
          "Please grant TESK administror rights or install it in a root folder, example; C:\\TESK",
      MsgButtons::Ok, MsgIcon::Critical, "User Account Control Issue: " + std::to_string(error));
}

// ---- the clock tick ------------------------------------------------------------------------

void Startup::KlokkenTick() {
  Platform& platform = m_station.platform();
  MainWindow& main = m_station.mainWindow();
  StationParts& parts = m_station.parts();
  HandOffLog& order = parts.klokkenSteps;
  // Later parts read these texts (heard times, beacon windows, reports): always "hh:mm:ss".
  // Each clock is followed by its change handler, as the label's change event ran it.
  main.Klok.caption = ClockText(platform.clock().localNow());
  order.note("Klok_Change");
  parts.beacon.Klok_Change();
  main.UTC_Klok.caption = parts.monitor.BerekenUTC();
  order.note("UTC_Klok_Change");
  if (parts.beacon.items.UTC_Klok_Change) parts.beacon.items.UTC_Klok_Change();
  order.note("beacon counters");
  parts.beacon.CountSeconds();
  order.note("MHeard auto-clear");
  parts.heardList.AutoClearTick();
  if (On(m_station.run().LanMode)) {
    order.note("link supervision");
    parts.tcpLink.KlokkenTick();
  }
  platform.views().refresh(WindowKind::Main);
}

// ---- shut-down ---------------------------------------------------------------------------

void Startup::Einde() {
  Platform& platform = m_station.platform();
  RunState& run = m_station.run();
  MainWindow& main = m_station.mainWindow();
  StationConfig& config = m_station.config();
  StationParts& parts = m_station.parts();
  main.cmbToCall.text = UCase(main.cmbToCall.text);
  config.ToCall = main.cmbToCall.text;
  main.cmbViaCall.text = UCase(main.cmbViaCall.text);
  config.Digistation = main.cmbViaCall.text;
  parts.settings.SaveSettings();
  SaveLANINI(config, run, run.AppPath);
  // The Multi-Line pages are written when their window unloads, one loaded unseen included.
  parts.txMultiLine.Form_Unload();
  if (On(config.TESKServer) || On(run.ServerSwitch)) {
    std::string text = "TESK Terminated!";
    parts.mailbox.TESKRegistryMod(text, 2);
    text = run.AppPath;
    parts.mailbox.TESKRegistryMod(text, 4);
    text = "   ";
    parts.mailbox.TESKRegistryMod(text, 1);
    text = "Beacon OFF";
    parts.mailbox.TESKRegistryMod(text, 11);
  }
  platform.store().saveSetting(kModuleApp, "Module2", "Running", "No");
  platform.store().saveSetting(kModuleApp, "Module", "Message", "");
  WriteRegistryValue(platform.store(), Hive::CurrentUser, "Software\\TESK\\Command", "Command",
                     std::string(1, '\0'));
  main.TextDDE_Ex.caption.clear();
  if (!On(run.LanMode)) parts.direct.AGWClose();
  if (On(config.RegisterCall)) {
    parts.tcpLink.AGWWinsockReqRegInfo(0, "x", config.YourCallSign);
    platform.loop().yield();
  }
  platform.loop().yield();
  parts.tcpLink.closeSocket();
  platform.loop().yield();
  if (On(config.AutoCloseModemProgram)) parts.modem.DetectProgWindow();
  platform.loop().endNow(0);
}

}  // namespace tesk
