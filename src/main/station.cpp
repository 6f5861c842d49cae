// The station: builds every subsystem with the references it needs and wires the ticks.
#include "main/station.h"

#include "main/startup.h"
#include "main/station_parts.h"

namespace tesk {

namespace {

SettingsHooks MakeSettingsHooks(StationParts& parts) {
  SettingsHooks hooks;
  hooks.AutoLog = [&parts](int index) { parts.packetLog.AutoLog(index); };
  hooks.CalcUTC = [&parts] { parts.monitor.CalcUTC(); };
  hooks.menufilters_Click = [&parts](int index) { parts.filters.menufilters_Click(index); };
  hooks.setFilterText = [&parts](const std::string& text) { parts.filters.SetFilterText(text); };
  hooks.erasePendingMessages = [&parts] { parts.messageSending.EraseAll(); };
  return hooks;
}

SetupHooks MakeSetupHooks(StationParts& parts) {
  SetupHooks hooks;
  hooks.AGWStartPoll = [&parts](const std::string& call) {
    const std::string key = kAppKey;
    return parts.direct.AGWStartPoll(call, key, static_cast<int32_t>(call.size()),
                                     static_cast<int32_t>(key.size()));
  };
  hooks.ToonAktievePoort = [&parts] { parts.ports.ToonAktievePoort(); };
  hooks.SetTXMHeardType = [&parts](int16_t type) {
    parts.heardReports.SetTXMHeardType(type);
    return parts.heardReports.example();
  };
  hooks.ShowMeld = [&parts](const std::string& text) { parts.meld.ShowMeld(text, 0); };
  return hooks;
}

AprsSendControls AprsControls(MainWindow& main) {
  return {main.cmdTXAPRS, main.cmbAPRSPos, main.menusends[2]};
}

}  // namespace

StationParts::StationParts(Station& s)
    : monitor(s.platform(), s.config(), s.mainWindow(), s.run(), &txPanel),
      meld(s.platform(), s.mainWindow()),
      sounds(s.platform(), s.config(), s.run()),
      transmit(s.platform(), s.config(), s.run(), s.mainWindow(),
               TransmitPrimitives::Parts{tcpLink, direct, monitor, digiFlash, packetLog, heardList,
                                         messageReception}),
      linkEvents(s.mainWindow(),
                 StationLinkEvents::Parts{monitor, meld, mailbox, transmit, addOns}),
      tcpLink(s.platform(), s.config(), s.run(), linkEvents),
      direct(s.platform(), s.config(), s.run()),
      addOns(s.platform(), s.run(), s.mainWindow()),
      modem(s.platform(), s.config(), s.run(), s.mainWindow(), linkEvents),
      lanSetup(s.platform(), s.config(), s.run(), LanSetup::Parts{tcpLink, linkEvents, modem}),
      ports(s.platform(), s.config(), s.run(), s.mainWindow(), meld),
      packetLog(s.platform(), s.config(), s.run(), s.mainWindow(),
                [this] { settings.SaveSettings(); }),
      txPanel(s.platform(), s.config(), s.run(), s.mainWindow(), ports, meld, s.commands(),
              [this] { beacon.BeaconSeconds = 0; }),
      uiTextSender(s.platform(), s.config(), s.run(), s.mainWindow(), txPanel, transmit, heardList,
                   s.commands()),
      txMultiLine(s.platform(), s.config(), s.run(), s.mainWindow(), txPanel, transmit, meld),
      aprsPosition(s.platform(), s.config(), s.run(), AprsControls(s.mainWindow()), txPanel,
                   transmit),
      aprsSetup(s.platform(), s.config(), s.run(), AprsControls(s.mainWindow())),
      messageSending(s.platform(), s.config(), s.run(), s.mainWindow(), txPanel, transmit),
      settings(s.config(), s.run(), s.mainWindow(), s.platform(), MakeSettingsHooks(*this)),
      setup(s.platform(), s.config(), s.run(), s.mainWindow(), settings, s.commands(),
            MakeSetupHooks(*this)),
      filters(s.platform(), s.config(), s.mainWindow()),
      find(s.platform(), s.mainWindow()),
      digiFlash(s.platform(), s.mainWindow()),
      heardList(s.platform(), s.config(), s.run(), s.mainWindow()),
      viewHeard(s.platform(), s.config(), s.mainWindow(), heardList),
      heardReports(s.platform(), s.config(), s.run(), s.mainWindow(),
                   HeardReports::Parts{txPanel, uiTextSender, heardList, meld}),
      digipeat(s.platform(), s.config(), s.mainWindow(), digiFlash, sounds, beacon),
      messageReception(s.platform(), s.config(), s.run(), s.mainWindow(),
                       MessageReception::Parts{monitor, txPanel, transmit, sounds}),
      messenger(s.platform(), s.config(), s.run(), s.mainWindow(), messageSending),
      alarms(s.config(), sounds, meld, packetLog),
      reports(s.platform(), s.config(), s.run(), s.mainWindow(), meld),
      statistics(s.platform(), s.config(), s.run(), s.mainWindow(),
                 Statistics::Parts{monitor, find, digipeat}),
      connection(s.run(), remoteCommands, handOffs),
      beacon(s.platform(), s.config(), s.mainWindow()),
      beaconSetup(s.platform(), s.config(), s.run(), s.mainWindow(), beacon),
      beaconFile(s.config(), s.run(),
                 BeaconFile::Hooks{
                     [this] { uiTextSender.StuurMonitorTekst(); },
                     [this](const std::string& text, int flag) { meld.ShowMeld(text, flag); }}),
      shadow(s.platform(), s.config(), s.run(), s.mainWindow(), beacon,
             ShadowExperiment::Hooks{
                 [this](std::string& text, int16_t kind) { transmit.AGWPE_UI_Send(text, kind); },
                 [this](const std::string& text, int flag) { monitor.NotaInMonitor(text, flag); }}),
      core(s.platform(), s.config(), s.run(), s.mainWindow(),
           PacketCore::Parts{tcpLink, monitor, filters, mailbox, heardList, digipeat,
                             messageReception, packetLog, alarms, connection, beacon, digiFlash,
                             handOffs},
           [this](std::string& call, std::string& text, int32_t& kind, int32_t& length,
                  int32_t& port) { return direct.AGWGetData(call, text, kind, length, port); }),
      startup(s),
      windowEvents(s.platform(), s.config(), s.mainWindow(), [&s] { s.Einde(); }),
      console(s.platform(), s.commands()),
      tmrMainPacketCore(s.platform().loop().createTimer()),
      tmrKlokken(s.platform().loop().createTimer()),
      TmrStatus(s.platform().loop().createTimer()) {
  tmrMainPacketCore->setHandler([this] { core.Tick(); });
  tmrKlokken->setHandler([this] { startup.KlokkenTick(); });
  tmrKlokken->setInterval(1000);
  TmrStatus->setInterval(2000);
  // The openers of the setup window's pages.
  monitor.OpenMonitorSetup = [this] { setup.Show(SetupPage::Monitor); };
  heardList.openSetupMHeard = [this] { setup.Show(SetupPage::MHeard); };
  aprsSetup.openSetupAprs = [this] { setup.Show(SetupPage::Aprs); };
  beacon.items.cmdTXDataText_Click = [this] { uiTextSender.cmdTXDataText_Click(); };
  beacon.items.cmdTXAPRS_Click = [this] { aprsPosition.cmdTXAPRS_Click(); };
  beacon.items.cmdTXAPRSMessage_Click = [this] { messageSending.cmdTXAPRSMessage_Click(); };
  beacon.items.TX_BeaconFile = [this] { beaconFile.TX_BeaconFile(); };
  beacon.items.ExecuteShadowExp = [this] { shadow.ExecuteShadowExp(); };
  beacon.items.UTC_Klok_Change = [this] { shadow.UTC_Klok_Change(); };
  beacon.items.SendMheardList = [this](int type) {
    heardReports.SendMheardList(static_cast<int16_t>(type));
  };
  monitor.OpenStatistics = [this] { statistics.Show(); };
}

Station::Station(Platform& platform, StationOptions options)
    : m_platform(platform), m_options(std::move(options)) {
  m_run.OverrideHost = m_options.overrideHost;
  m_run.OverridePort = m_options.overridePort;
  m_main.form.caption = m_options.demo ? "TESK - simulated satellite pass" : "TESK";
  m_main.frmLogoTitle.caption = "";
  m_parts = std::make_unique<StationParts>(*this);
  RegisterCommands();
}

Station::~Station() = default;

void Station::Start() {
  // The one-second clock runs from the moment the main window loads.
  m_parts->tmrKlokken->setEnabled(true);
  m_parts->startup.EntryRoutine();
}

void Station::Einde() {
  m_parts->startup.Einde();
}

bool Station::loaded() const {
  return m_parts->startup.loaded();
}

void Station::consoleLine(const std::string& line) {
  m_parts->console.line(line);
}

void Station::RegisterCommands() {
  StationParts& p = *m_parts;
  CommandTable& c = m_commands;
  p.monitor.RegisterCommands(c);
  p.find.RegisterCommands(c);
  p.filters.RegisterCommands(c);
  p.packetLog.RegisterCommands(c);
  p.heardList.RegisterCommands(c);
  p.digipeat.RegisterCommands(c);
  p.ports.RegisterCommands(c);
  p.lanSetup.RegisterCommands(c);
  p.txPanel.RegisterCommands(c);
  p.uiTextSender.RegisterCommands(c);
  p.txMultiLine.RegisterCommands(c);
  p.messageSending.RegisterCommands(c);
  p.messenger.RegisterCommands(c);
  p.heardReports.RegisterCommands(c);
  p.windowEvents.RegisterCommands(c);
  p.aprsPosition.RegisterCommands(c);
  p.aprsSetup.RegisterCommands(c);
  p.setup.RegisterCommands(c);
  p.reports.RegisterCommands(c);
  p.statistics.RegisterCommands(c);
  p.beaconSetup.RegisterCommands(c);
  p.shadow.RegisterCommands(c);
  // The windows and senders still to be built: their rows and buttons show grey until then.
  MainWindow& m = m_main;
  c.addUnbuilt({Command::menufiles, 11}, "TESK &Profiles...", &m.menufiles[11]);
  c.addUnbuilt({Command::menuextras}, "(no add-ons)");
  c.addUnbuilt({Command::mnuRuns}, "(no programs)");
  c.addUnbuilt({Command::mnuHelp, 0}, "&Contents");
  c.addUnbuilt({Command::mnuHelp, 1}, "&About TESK...");
  for (Command sender : {Command::cmdTXConnect, Command::Connecting, Command::DisConnecting})
    c.addUnbuilt({sender});
  CommandSpec quit;
  quit.key = {Command::ConsoleQuit};
  quit.console = "quit";
  quit.usage = ":quit";
  quit.handler = [this](const std::string&) { Einde(); };
  c.add(std::move(quit));
  // A plain line is what typing into Text/data and Enter do.
  TxPanel& panel = p.txPanel;
  p.console.setPlainLine(
      [&panel](const std::string& text) { panel.TypeAndEnter(TxField::DataText, text); });
}

}  // namespace tesk
