// The station: builds every subsystem with the references it needs and wires the ticks.
#include "main/station.h"

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

}  // namespace

StationParts::StationParts(Station& s)
    : monitor(s.platform(), s.config(), s.mainWindow(), s.run()),
      meld(s.platform(), s.mainWindow()),
      sounds(s.platform(), s.config(), s.run()),
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
      settings(s.config(), s.run(), s.mainWindow(), s.platform(), MakeSettingsHooks(*this)),
      filters(s.platform(), s.config(), s.mainWindow()),
      find(s.platform(), s.mainWindow()),
      digiFlash(s.platform(), s.mainWindow()),
      heardList(s.platform(), s.config(), s.run(), s.mainWindow()),
      viewHeard(s.platform(), s.config(), s.mainWindow(), heardList),
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
      tmrMainPacketCore(s.platform().loop().createTimer()),
      tmrKlokken(s.platform().loop().createTimer()),
      TmrStatus(s.platform().loop().createTimer()) {
  tmrMainPacketCore->setHandler([this] { core.Tick(); });
  tmrKlokken->setHandler([this] { startup.KlokkenTick(); });
  tmrKlokken->setInterval(1000);
  TmrStatus->setInterval(2000);
}

Station::Station(Platform& platform, StationOptions options)
    : m_platform(platform), m_options(std::move(options)) {
  m_run.OverrideHost = m_options.overrideHost;
  m_run.OverridePort = m_options.overridePort;
  m_main.form.caption = m_options.demo ? "TESK - simulated satellite pass" : "TESK";
  m_main.frmLogoTitle.caption = "";
  m_parts = std::make_unique<StationParts>(*this);
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
  // The operator console arrives with the transmit side; until then only :quit is understood.
  if (line == ":quit") {
    Einde();
    return;
  }
  m_platform.views().notice("Unknown console command: " + line);
}

}  // namespace tesk
