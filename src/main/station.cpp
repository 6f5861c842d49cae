// The station: builds every subsystem with the references it needs and wires the ticks.
#include "main/station.h"

#include "base/text.h"
#include "main/station_parts.h"

namespace tesk {

namespace {

SettingsHooks MakeSettingsHooks(StationParts& parts) {
  SettingsHooks hooks;
  hooks.AutoLog = [&parts](int index) { parts.packetLog.AutoLog(index); };
  hooks.CalcUTC = [&parts] { parts.monitor.CalcUTC(); };
  hooks.menufilters_Click = [&parts](int index) { parts.filters.menufilters_Click(index); };
  hooks.setFilterText = [&parts](const std::string& text) { parts.filters.SetFilterText(text); };
  return hooks;
}

AprsSendControls AprsControls(MainWindow& main) {
  return {main.cmdTXAPRS, main.cmbAPRSPos, main.menusends[2]};
}

}  // namespace

StationParts::StationParts(Station& s)
    : monitor(s.platform(), s.config(), s.mainWindow(), s.run()),
      meld(s.platform(), s.mainWindow()),
      sounds(s.platform(), s.config(), s.run()),
      transmit(s.platform(), s.config(), s.run(), s.mainWindow(),
               TransmitPrimitives::Parts{tcpLink, direct, monitor, digiFlash, packetLog, heardList,
                                         messageReception}),
      tcpLink(s.platform(), s.config(), s.run(), s.mainWindow(),
              TcpLink::Parts{monitor, meld, mailbox, transmit}),
      direct(s.platform(), s.config(), s.run()),
      addOns(s.platform(), s.run(), s.mainWindow()),
      modem(s.platform(), s.config(), s.run(), s.mainWindow(), addOns),
      lanSetup(s.platform(), s.config(), s.run(), LanSetup::Parts{tcpLink, meld, modem}),
      ports(s.platform(), s.config(), s.run(), s.mainWindow(), meld),
      packetLog(s.platform(), s.config(), s.run(), s.mainWindow(),
                [this] { settings.SaveSettings(); }),
      txPanel(s.platform(), s.config(), s.run(), s.mainWindow(), ports, meld,
              [this] { beacon.BeaconSeconds = 0; }),
      uiTextSender(s.platform(), s.config(), s.run(), s.mainWindow(), txPanel, transmit, heardList),
      aprsPosition(s.platform(), s.config(), s.run(), AprsControls(s.mainWindow()), txPanel,
                   transmit),
      aprsSetup(s.platform(), s.config(), s.run(), AprsControls(s.mainWindow())),
      settings(s.config(), s.run(), s.mainWindow(), s.platform(), MakeSettingsHooks(*this)),
      filters(s.platform(), s.config(), s.mainWindow()),
      find(s.platform(), s.mainWindow()),
      digiFlash(s.platform(), s.mainWindow()),
      heardList(s.platform(), s.config(), s.run(), s.mainWindow()),
      viewHeard(s.platform(), s.config(), s.mainWindow(), heardList),
      heardReports(s.platform(), s.config(), s.run(), s.mainWindow(),
                   HeardReports::Parts{txPanel, uiTextSender, heardList, meld}),
      digipeat(s.platform(), s.config(), s.mainWindow(), digiFlash, sounds, beacon),
      alarms(s.config(), sounds, meld, packetLog),
      connection(s.run(), remoteCommands, handOffs),
      beacon(s.config()),
      core(s.platform(), s.config(), s.run(), s.mainWindow(),
           PacketCore::Parts{tcpLink, monitor, filters, mailbox, heardList, digipeat,
                             messageReception, packetLog, alarms, connection, beacon, digiFlash,
                             handOffs},
           [this](std::string& call, std::string& text, int32_t& kind, int32_t& length,
                  int32_t& port) { return direct.AGWGetData(call, text, kind, length, port); }),
      startup(s),
      console(s.platform()),
      tmrMainPacketCore(s.platform().loop().createTimer()),
      tmrKlokken(s.platform().loop().createTimer()),
      TmrStatus(s.platform().loop().createTimer()) {
  tmrMainPacketCore->setHandler([this] { core.Tick(); });
  tmrKlokken->setHandler([this] { startup.KlokkenTick(); });
  tmrKlokken->setInterval(1000);
  TmrStatus->setInterval(2000);
  txPanel.senders.cmdTXDataText_Click = [this] { uiTextSender.cmdTXDataText_Click(); };
  txPanel.senders.cmdTXMHeard_Click = [this] { heardReports.cmdTXMHeard_Click(); };
  beacon.items.cmdTXDataText_Click = [this] { uiTextSender.cmdTXDataText_Click(); };
  beacon.items.SendMheardList = [this](int type) {
    heardReports.SendMheardList(static_cast<int16_t>(type));
  };
}

Station::Station(Platform& platform, StationOptions options)
    : m_platform(platform), m_options(std::move(options)) {
  m_run.OverrideHost = m_options.overrideHost;
  m_run.OverridePort = m_options.overridePort;
  m_main.form.caption = m_options.demo ? "TESK - simulated satellite pass" : "TESK";
  m_main.frmLogoTitle.caption = "";
  m_parts = std::make_unique<StationParts>(*this);
  AddConsoleCommands();
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

void Station::AddConsoleCommands() {
  StationParts& p = *m_parts;
  TxPanel& panel = p.txPanel;
  // Each line does what typing into the field and Enter do in the window, so both stay one.
  const auto typeAndEnter = [&panel](TxField field, const std::string& text) {
    panel.box(field).text = text;
    panel.Change(field);
    panel.KeyDown(field, kKeyReturn);
  };
  const auto enterPath = [this, typeAndEnter](TxField field, const std::string& text) {
    typeAndEnter(field, text);
    m_platform.views().notice(
        "Path: To " + m_main.cmbToCall.text +
        (Trim(m_main.cmbViaCall.text).empty() ? std::string() : " Via " + m_main.cmbViaCall.text));
  };
  p.console.setPlainLine(
      [typeAndEnter](const std::string& text) { typeAndEnter(TxField::DataText, text); });
  p.console.add("to", ":to CALL",
                [enterPath](const std::string& a) { enterPath(TxField::ToCall, a); });
  p.console.add("via", ":via PATH",
                [enterPath](const std::string& a) { enterPath(TxField::ViaCall, a); });
  p.console.add("header", ":header",
                [&p](const std::string&) { p.uiTextSender.menusends_Click(0); });
  p.console.add("heard", ":heard [0-3]", [this, &p](const std::string& a) {
    if (a.empty()) {
      p.txPanel.Press(SendButton::MHeard);
    } else if (a.size() == 1 && a[0] >= '0' && a[0] <= '3') {
      p.heardReports.menumheardsend_Click(a[0] - '0');
    } else {
      m_platform.views().notice("The heard report type is 0 to 3, not: " + a);
    }
  });
  p.console.add("quit", ":quit", [this](const std::string&) { Einde(); });
}

}  // namespace tesk
