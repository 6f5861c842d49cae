// The station: builds every subsystem with the references it needs and wires the ticks.
#include "main/station.h"

#include "main/station_parts.h"

namespace tesk {

namespace {

SettingsHooks MakeSettingsHooks(StationParts& parts) {
  SettingsHooks hooks;
  hooks.AutoLog = [&parts](int) { parts.packetLog.AutoLog(); };
  hooks.CalcUTC = [&parts] { parts.monitor.CalcUTC(); };
  return hooks;
}

}  // namespace

StationParts::StationParts(Station& s)
    : monitor(s.config(), s.mainWindow()),
      meld(s.platform()),
      tcpLink(s.platform(), s.config(), s.run(), s.mainWindow(),
              TcpLink::Parts{monitor, meld, mailbox, transmit}),
      direct(s.platform(), s.config(), s.run()),
      addOns(s.platform(), s.run(), s.mainWindow()),
      modem(s.platform(), s.config(), s.run(), s.mainWindow(), addOns),
      ports(s.config(), s.run(), s.mainWindow()),
      settings(s.config(), s.run(), s.mainWindow(), s.platform(), MakeSettingsHooks(*this)),
      core(s.platform(), s.config(), s.run(), tcpLink, monitor),
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

void Station::Einde() { m_parts->startup.Einde(); }

bool Station::loaded() const { return m_parts->startup.loaded(); }

void Station::consoleLine(const std::string& line) {
  // The operator console arrives with the transmit side; until then only :quit is understood.
  if (line == ":quit") {
    Einde();
    return;
  }
  m_platform.views().notice("Unknown console command: " + line);
}

}  // namespace tesk
