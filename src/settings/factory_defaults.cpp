// The factory state of the station: every value of tesk.ini's default column, the factory
// histories of the six transmit fields, and the labels and tables a reset puts back. Used when
// there is nothing usable to read and by the Setup window's reset.
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "settings/settings_file.h"

namespace tesk {

namespace {

constexpr Color kSystemHighlight = static_cast<Color>(0x8000000D);

// The e-mail style greeting of the factory Message history; the address is a made-up one.
constexpr const char* kFactoryGreeting = "Greetings from the TESK team. Mail: tesk-op@example.org";

std::vector<std::string> NonBlank(const std::vector<std::string>& list) {
  std::vector<std::string> out;
  for (const std::string& s : list) {
    if (!Trim(s).empty()) out.push_back(s);
  }
  return out;
}

void Show(ComboBox& box, std::size_t index) {
  box.listIndex = index < box.list.size() ? static_cast<long>(index) : -1;
  box.text = index < box.list.size() ? box.list[index] : "";
}

}  // namespace

void SettingsFile::SetFactoryDefaults() {
  setDefaultValues();
  refillHistories();
  if (m_hooks.erasePendingMessages) m_hooks.erasePendingMessages();
  m_main.lblBeacon.caption = "Beacon OFF";
  m_main.lblBeacon.backColor = kButtonFace;
  m_main.lblBeacon.foreColor = kSystemHighlight;
  if (m_hooks.AutoLog) m_hooks.AutoLog(m_config.AutomaticLogging);
}

void SettingsFile::setDefaultValues() {
  StationConfig& c = m_config;
  StationConfig d;  // its initial values are the factory values
  // The call sign is the caller's business: "MYCALL" or empty, or the one just read.
  d.YourCallSign = c.YourCallSign;
  // Entries without a factory value keep what they hold.
  d.hsize = c.hsize;
  d.vsize = c.vsize;
  d.leftpos = c.leftpos;
  d.toppos = c.toppos;
  d.BeaconFile = c.BeaconFile;
  d.BeaconFileType = c.BeaconFileType;
  d.BeaconFileAddPosition = c.BeaconFileAddPosition;
  d.Picture_URL = c.Picture_URL;
  d.ConnectionCalls = c.ConnectionCalls;
  d.TESKServerInit = c.TESKServerInit;
  d.SelectedBeaconItems = c.SelectedBeaconItems;
  d.AckRetryIntervalMs = c.AckRetryIntervalMs;
  d.HostName_IP = c.HostName_IP;
  d.RegisterCall = c.RegisterCall;
  d.Emulate_TXFrames_On_SlowNetPC = c.Emulate_TXFrames_On_SlowNetPC;
  d.Lan_Password = c.Lan_Password;
  // A position text that looks complete survives a reset, and stays enabled.
  if (Len(c.APRS) > 10 && Left(c.APRS, 1) == "=") {
    d.APRS = c.APRS;
    d.APRSEnabled = -1;
  }
  d.RefreshPicLoadPath = m_run.AppPath + "/tesk_bckgrnd.jpg";
  d.AutoStopBeacon = 1;
  d.StopBeaconMaxDigi = 2;
  d.EditMonitor = 0;
  c = std::move(d);
  m_run.LanMode = 0;
}

void SettingsFile::refillHistories() {
  MainWindow& w = m_main;
  StationConfig& c = m_config;
  const std::string v = version();
  w.cmbToCall.list = {"CQ", "APRS", "BEACON", "QST", "APRSAT"};
  w.cmbViaCall.list = {"ARISS", "RS0ISS", "4XTECH", "WIDE2-2", ""};
  w.cmbDataText.list = {"Software: TESK " + v, "KN55AB Ivo", "10 watt, 5/8 antenna",
                        "Hi All! TESK v" + v};
  w.cmbFor.list = {"BLN", "EMAIL", "NWS", "SAT", "BLN#ECHO"};
  // These two are added to, not cleared: a reset keeps the operator's own entries.
  w.cmbAPRSPos.list.push_back("73' Via Satellite");
  w.cmbAPRSMessage.list.push_back(kFactoryGreeting);
  w.cmbAPRSMessage.list.push_back("Hello All. TESK v." + v);
  w.cmbAPRSMessage.list.push_back("QSL and 73 via ISS");
  Show(w.cmbToCall, 0);
  Show(w.cmbViaCall, 0);
  Show(w.cmbDataText, 0);
  Show(w.cmbAPRSPos, 0);
  Show(w.cmbFor, 2);
  Show(w.cmbAPRSMessage, 1);
  // The histories and the field texts in memory match what the fields now show.
  c.Totext = NonBlank(w.cmbToCall.list);
  c.Viatext = NonBlank(w.cmbViaCall.list);
  c.TXdatatext = NonBlank(w.cmbDataText.list);
  c.APRSData = NonBlank(w.cmbAPRSPos.list);
  c.APRSMessageFor = NonBlank(w.cmbFor.list);
  c.APRSMessageText = NonBlank(w.cmbAPRSMessage.list);
  c.TXDataDefault = w.cmbDataText.text;
  c.DefaultAPRSText = w.cmbAPRSPos.text;
  c.DefaultFor = w.cmbFor.text;
  c.DefaultMessage = w.cmbAPRSMessage.text;
}

}  // namespace tesk
