// The Shadow Experiment's frame, its timing in the one-second clock, and the wizard.
#include "beacon/shadow_experiment.h"

#include "base/text.h"
#include "state/beacon_label.h"
#include "state/command_table.h"

namespace tesk {

namespace {

constexpr int16_t kTxShadow = 10;  // the transmit kind of these frames
constexpr int16_t kMinute = 60;
constexpr const char* kDefaultDestination = "BEACON ARISS";
constexpr const char* kWizardTitle = "Shadow Experiment Wizard";

std::string Two(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

}  // namespace

ShadowExperiment::ShadowExperiment(Platform& platform, StationConfig& config, RunState& run,
                                   MainWindow& main, BeaconScheduler& beacon, Hooks hooks)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_beacon(beacon),
      m_hooks(std::move(hooks)) {}

std::string ShadowExperiment::FrameText(const std::string& time, const DateTime& date) const {
  return "SpEx SHADOW " + time + " *" + UCase(m_config.ShadowExperiment_ISO) + "* " +
         Two(date.day) + "-" + Two(date.month) + "-" + std::to_string(date.year) + "/";
}

void ShadowExperiment::ExecuteShadowExp() {
  const DateTime local = m_platform.clock().localNow();
  const std::string time = m_config.ShadowExpGMT != 0 ? m_main.UTC_Klok.caption
                                                      : Two(local.hour) + ":" + Two(local.minute) +
                                                            ":" + Two(local.second);
  std::string text = FrameText(time, local);
  std::string destination = UCase(Trim(m_config.ShadowExperiment_DIGI));
  if (destination.empty()) destination = kDefaultDestination;
  // The working destination: the call path in direct mode, To and Via apart over TCP, where the
  // link sends those two values. All of it comes back after the one send.
  const std::string keptToVia = m_run.ToVia;
  const std::string keptTo = m_config.ToCall;
  const std::string keptVia = m_config.Digistation;
  m_run.ToVia = destination;
  if (m_run.LanMode != 0) {
    const long blank = InStr(destination, " ");
    m_config.ToCall = blank > 0 ? Left(destination, blank - 1) : destination;
    m_config.Digistation = blank > 0 ? Trim(Mid(destination, blank + 1)) : "";
  }
  if (m_hooks.AGWPE_UI_Send) m_hooks.AGWPE_UI_Send(text, kTxShadow);
  m_run.ToVia = keptToVia;
  m_config.ToCall = keptTo;
  m_config.Digistation = keptVia;
}

void ShadowExperiment::UTC_Klok_Change() {
  if (m_config.ShadowExperiment == 0 || m_config.Beacon == 0) return;
  const int16_t pause = m_config.ShExpPauseTX;
  int16_t& minute = m_beacon.ShadowMinute;
  ++minute;
  if (minute == kMinute) {
    if (pause == 0) ExecuteShadowExp();
    if (pause >= 1 && PauseAnnounced == 0) {
      if (m_hooks.NotaInMonitor)
        m_hooks.NotaInMonitor(
            "TESK ShadowExperiment Beacon Pausing for " + std::to_string(pause) + " seconds...", 0);
      PauseAnnounced = -1;
    }
    // The counter needs the pause and then the interval to come round again.
    m_beacon.BeaconSeconds = static_cast<int16_t>(-pause);
  } else if (minute >= kMinute + pause) {
    minute = 0;
    m_beacon.BeaconSeconds = 1;
    PauseAnnounced = 0;
  }
  m_platform.loop().yield();
}

// ---- the wizard ------------------------------------------------------------------------------

void ShadowExperiment::Wizard() {
  Dialogs& dialogs = m_platform.dialogs();
  const std::string intro =
      std::string(
          "The 'Wizard' will allow you to setup TESK for transmitting ISS Shadow "
          "Experiment beacon data.") +
      CRLF + CRLF +
      "Remember that transmitting during the Shadow Experiment is only allowed by stations who "
      "are granted the right to do so (Master Stations)." +
      CRLF + CRLF +
      "Everybody is welcome to send reception reports to the Information Storing Center; for "
      "reception only there is no need to use this wizard." +
      CRLF + CRLF +
      "Do you want to continue with the TESK Shadow Experiment packet transmissions Wizard?";
  if (dialogs.msgBox(intro, MsgButtons::YesNo, MsgIcon::Question, kWizardTitle) != MsgResult::Yes)
    return;
  if (!askInterval() || !askPause() || !askCountry()) return;
  if (dialogs.msgBox("Do you want to enable the Shadow Experiment beacon now?", MsgButtons::YesNo,
                     MsgIcon::Question, "Enable Shadow Experiment") == MsgResult::Yes) {
    m_config.Beacon = -1;
    dialogs.msgBox(
        "Summary: the beacon, during the Shadow Experiment, will transmit 1 minute of "
        "continues packets with an interval between each packet of " +
            std::to_string(m_config.BeaconInterval) + " seconds." + CRLF +
            "An additional pause of " + std::to_string(m_config.ShExpPauseTX) +
            " seconds added after every minute of beacon transmissions.",
        MsgButtons::Ok, MsgIcon::Information, "Shadow Experiment Enabled");
  }
  m_config.ShadowExperiment = -1;
  m_config.SelectedBeacon = 100000;
  m_config.SelectedBeaconItems = 0;
  if (m_config.Beacon != 0) {
    ShowShadowMark(m_main, m_platform.views(), true);
    m_beacon.ShowCaption(kBeaconOn);
  }
  m_platform.views().refresh(WindowKind::Main);
}

bool ShadowExperiment::askInterval() {
  const int16_t now = m_config.BeaconInterval;
  const std::string answer = m_platform.dialogs().inputBox(
      "What should the beacon interval be (2..9 seconds, default 3)?",
      "Shadow Experiment: Beacon Interval", std::to_string(now < 10 ? now : 3));
  // A cancelled box gives no text, which no check takes.
  if (Trim(answer).empty()) return false;
  const double value = Val(answer);
  if (value < 2 || value >= 10) return false;
  m_config.BeaconInterval = static_cast<int16_t>(value);
  return true;
}

bool ShadowExperiment::askPause() {
  const std::string answer = m_platform.dialogs().inputBox(
      "What should the beacon's pause be after one minute transmission (0...99 seconds, default "
      "60)?",
      "Shadow Experiment: Beacon Pause/TX", std::to_string(m_config.ShExpPauseTX));
  if (Trim(answer).empty()) return false;
  const double value = Val(answer);
  // 99 itself is refused though the question offers it, as it always was.
  if (value < 0 || value >= 99) return false;
  m_config.ShExpPauseTX = static_cast<int16_t>(value);
  return true;
}

bool ShadowExperiment::askCountry() {
  const std::string answer = m_platform.dialogs().inputBox(
      "What's your two-letter country ISO code (two-letter alphabetic code representing the "
      "names of countries (all countries can be found in the file 'ISO Country code list.txt'), "
      "examples: US=United States, GB=United Kingdom, CA=Canada, RU=Russia, AU=Australia, "
      "BE=Belgium...)?",
      "Shadow Experiment: Country two-letter ISO code", m_config.ShadowExperiment_ISO);
  if (Len(Trim(answer)) != 2) return false;
  m_config.ShadowExperiment_ISO = UCase(Trim(answer));
  return true;
}

void ShadowExperiment::RegisterCommands(CommandTable& commands) {
  CommandSpec wizard;
  wizard.key = {Command::mnuShadowWizard};
  wizard.caption = "ISS Shadow Experiment Wizard...";
  wizard.handler = [this](const std::string&) { Wizard(); };
  commands.add(std::move(wizard));
  CommandSpec console;
  console.key = {Command::ConsoleWizard};
  console.console = "wizard";
  console.usage = ":wizard";
  console.handler = [this](const std::string&) {
    Wizard();
    m_platform.views().notice(m_beacon.PlanLine());
  };
  commands.add(std::move(console));
}

}  // namespace tesk
