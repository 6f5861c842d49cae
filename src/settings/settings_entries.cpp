// The table of tesk.ini's entries in file order, from the call sign to [EditMonitor]. The
// labels are written for a human reader only; their spelling is kept exactly as older versions
// wrote it, since people compare files across versions.
#include "settings/settings_entries.h"

#include <array>

namespace tesk {

namespace {

const std::array<SettingsEntry, kLastEntry - kFirstEntry + 1> kEntries = {{
    {3, "[Your Call Sign]", EntryKind::Text, &StationConfig::YourCallSign},
    {4, "[To call]", EntryKind::Text, &StationConfig::ToCall},
    {5, "[Digistation]", EntryKind::Text, &StationConfig::Digistation},
    {6, "[AGWPE Radio Port]", EntryKind::Long, &StationConfig::AGWPERadioPort},
    {7, "[AlarmSet]", EntryKind::Int, &StationConfig::AlarmSet},
    {8, "[Monitor Fontname]", EntryKind::Text, &StationConfig::MonitorFontname},
    {9, "[Beacon Interval]", EntryKind::Int, &StationConfig::BeaconInterval},
    {10, "[TXMHeardType]", EntryKind::Int, &StationConfig::TXMHeardType},
    {11, "[Beacon]", EntryKind::Int, &StationConfig::Beacon},
    {12, "[Header color]", EntryKind::Long, &StationConfig::HeaderColor},
    {13, "[Data color]", EntryKind::Long, &StationConfig::DataColor},
    {14, "[Screen color]", EntryKind::Long, &StationConfig::ScreenColor},
    {15, "[AlarmSet Header Text]", EntryKind::Text, &StationConfig::AlarmSetHeaderText},
    {16, "[AlarmSet Data Text]", EntryKind::Text, &StationConfig::AlarmSetDataText},
    {17, "[APRS]", EntryKind::Text, &StationConfig::APRS},
    {18, "[APRS Enabled]", EntryKind::Int, &StationConfig::APRSEnabled},
    {19, "[Selected Beacon]", EntryKind::Single, &StationConfig::SelectedBeacon},
    {20, "[TX data text]", EntryKind::Special, {}},
    {21, "[To text]", EntryKind::Special, {}},
    {22, "[Via text]", EntryKind::Special, {}},
    {23, "[APRS-Data]", EntryKind::Special, {}},
    {24, "[SavePosition]", EntryKind::Int, &StationConfig::SavePosition},
    {25, "[h-size]", EntryKind::Long, &StationConfig::hsize},
    {26, "[v-size]", EntryKind::Long, &StationConfig::vsize},
    {27, "[left-pos]", EntryKind::Long, &StationConfig::leftpos},
    {28, "[top-pos]", EntryKind::Long, &StationConfig::toppos},
    {29, "[DataBox Forecolor]", EntryKind::Long, &StationConfig::DataBoxForecolor},
    {30, "[DataBox Backcolor]", EntryKind::Long, &StationConfig::DataBoxBackcolor},
    {31, "[TXDataDefault]", EntryKind::Text, &StationConfig::TXDataDefault,
     &MainWindow::cmbDataText},
    {32, "[TESK Tag]", EntryKind::Int, &StationConfig::TESKTag},
    {33, "[APRS Message For]", EntryKind::Special, {}},
    {34, "[APRS Message Text]", EntryKind::Special, {}},
    {35, "[BBS Commands]", EntryKind::Special, {}},
    {36, "[MonBufferLimit]", EntryKind::Single, &StationConfig::MonBufferLimit},
    {37, "[Log Digipeated Messages]", EntryKind::Int, &StationConfig::LogDigipeatedMessages},
    {38, "[Default For:]", EntryKind::Text, &StationConfig::DefaultFor, &MainWindow::cmbFor},
    {39, "[Default Message:]", EntryKind::Text, &StationConfig::DefaultMessage,
     &MainWindow::cmbAPRSMessage},
    {40, "[Default APRS Text]", EntryKind::Text, &StationConfig::DefaultAPRSText,
     &MainWindow::cmbAPRSPos},
    {41, "[Beacon File]", EntryKind::Text, &StationConfig::BeaconFile},
    {42, "[Beacon File Type]", EntryKind::Special, {}},
    {43, "[UseAlarmSound]", EntryKind::Int, &StationConfig::UseAlarmSound},
    {44, "[UTC Time Offset]", EntryKind::Special, {}},
    {45, "[Log Alarm To Disk]", EntryKind::Int, &StationConfig::LogAlarmToDisk},
    {46, "[AutoDisconnect, Filters, RemoveSame]", EntryKind::Special, {}},
    {47, "[Ignore Mheard Calls]", EntryKind::Text, &StationConfig::IgnoreMheardCalls},
    {48, "[TESK Server]", EntryKind::Int, &StationConfig::TESKServer},
    {49, "[Messagebox Alarm]", EntryKind::Int, &StationConfig::MessageboxAlarm},
    {50, "[IntelligentBeacon]", EntryKind::Special, {}},
    {51, "[PictureLoad]", EntryKind::Int, &StationConfig::PictureLoad},
    {52, "[RefreshPicLoadPath]", EntryKind::Text, &StationConfig::RefreshPicLoadPath},
    {53, "[PicRefreshInterval]", EntryKind::Single, &StationConfig::PicRefreshInterval},
    {54, "[AGWPE RX Port]", EntryKind::Int, &StationConfig::AGWPERXPort},
    {55, "[SlowPC]", EntryKind::Int, &StationConfig::SlowPC},
    {56, "[AutoBeacon]", EntryKind::Special, {}},
    {57, "[ShowPortInHeader]", EntryKind::Int, &StationConfig::ShowPortInHeader},
    {58, "[AutomaticLogging]", EntryKind::Int, &StationConfig::AutomaticLogging},
    {59, "[ConnectionCalls]", EntryKind::Special, {}},
    {60, "[TXBoxCoherentColors]", EntryKind::Int, &StationConfig::TXBoxCoherentColors},
    {61, "[ExtraInfoReports]", EntryKind::Text, &StationConfig::ExtraInfoReports},
    {62, "[MHeard_AutoClear]", EntryKind::Int, &StationConfig::MHeard_AutoClear},
    {63, "[FixedMonitorWidth]", EntryKind::Int, &StationConfig::FixedMonitorWidth},
    {64, "[AckInterval]", EntryKind::Int, &StationConfig::AckInterval},
    {65, "[DigiColor]", EntryKind::Long, &StationConfig::DigiColor},
    {66, "[FontSize]", EntryKind::Int, &StationConfig::FontSize},
    {67, "[FontBold]", EntryKind::Int, &StationConfig::FontBold},
    {68, "[AutodiscAllowCalls]", EntryKind::Text, &StationConfig::AutodiscAllowCalls},
    {69, "[TXMultiLineDefault]", EntryKind::Int, &StationConfig::TXMultiLineDefault},
    {70, "[AutoAnswer]", EntryKind::Int, &StationConfig::AutoAnswer},
    {71, "[AutoAnswerText]", EntryKind::Text, &StationConfig::AutoAnswerText},
    {72, "[AckUIViewType]", EntryKind::Int, &StationConfig::AckUIViewType},
    {73, "[NoAckTag]", EntryKind::Int, &StationConfig::NoAckTag},
    {74, "[FixedMonWidth]", EntryKind::Int, &StationConfig::FixedMonitorWidth},
    {75, "[ImgViewerWidth]", EntryKind::Long, &StationConfig::ImgViewerWidth},
    {76, "[ImgViewerHeight]", EntryKind::Long, &StationConfig::ImgViewerHeight},
    {77, "[NoteBookForeColor]", EntryKind::Long, &StationConfig::NoteBookForeColor},
    {78, "[NoteBookBackColor]", EntryKind::Long, &StationConfig::NoteBookBackColor},
    {79, "[ConnectLog]", EntryKind::Int, &StationConfig::ConnectLog},
    {80, "[ConnectForeColor]", EntryKind::Long, &StationConfig::ConnectForeColor},
    {81, "[ConnectBackColor]", EntryKind::Long, &StationConfig::ConnectBackColor},
    {82, "[ConnectionFont]", EntryKind::InputText, &StationConfig::ConnectionFont},
    {83, "[ShadowExperiment_ISO_DIGI]", EntryKind::Special, {}},
    {84, "[ShadowExperiment]", EntryKind::Int, &StationConfig::ShadowExperiment},
    {85, "[OptionalDigLogSSID]", EntryKind::Int, &StationConfig::OptionalDigLogSSID},
    {86, "[UserSSID]", EntryKind::Int, &StationConfig::UserSSID},
    {87, "[AutoDetectUTC]", EntryKind::Int, &StationConfig::AutoDetectUTC},
    {88, "[ShadowExpGMT]", EntryKind::Int, &StationConfig::ShadowExpGMT},
    {89, "[ShExpPauseTX]", EntryKind::Int, &StationConfig::ShExpPauseTX},
    {90, "[ShowUTCInHeader]", EntryKind::Int, &StationConfig::ShowUTCInHeader},
    {91, "[intRunExtApp]", EntryKind::Int, &StationConfig::intRunExtApp},
    {92, "[strRunExtApp1]", EntryKind::Text, &StationConfig::strRunExtApp1},
    {93, "[MessageColor]", EntryKind::Long, &StationConfig::MessageColor},
    {94, "[MaxPacketLength]", EntryKind::Int, &StationConfig::MaxPacketLength},
    {95, "[strRunExtApp2]", EntryKind::Text, &StationConfig::strRunExtApp2},
    {96, "[Picture_URL]", EntryKind::Text, &StationConfig::Picture_URL},
    {97, "[AutoDigiLogBook]", EntryKind::Int, &StationConfig::AutoDigiLogBook},
    {98, "[DateSeparator]", EntryKind::Text, &StationConfig::DateSeparator},
    {99, "[CallDefinedLog]", EntryKind::Text, &StationConfig::CallDefinedLog},
    {100, "[SystemTray]", EntryKind::Int, &StationConfig::SystemTray},
    {101, "[Filter]", EntryKind::Int, &StationConfig::Filter},
    {102, "[FilterCall]", EntryKind::InputText, &StationConfig::FilterCall},
    {103, "[TypeOfModem]", EntryKind::Int, &StationConfig::TypeOfModem},
    {104, "[AutoRunModemProgram]", EntryKind::Int, &StationConfig::AutoRunModemProgram},
    {105, "[ModemProgramPath]", EntryKind::Text, &StationConfig::ModemProgramPath},
    {106, "[AutoCloseModemProgram]", EntryKind::Int, &StationConfig::AutoCloseModemProgram},
    {107, "[OtherTypeModemCaption]", EntryKind::Text, &StationConfig::OtherTypeModemCaption},
    {108, "[APRSCompressed]", EntryKind::Text, &StationConfig::APRSCompressed},
    {109, "[AutoPasteCallInFor]", EntryKind::Int, &StationConfig::AutoPasteCallInFor},
    {110, "[AutoStopBeacon]", EntryKind::Int, &StationConfig::AutoStopBeacon},
    {111, "[StopBeaconMaxDigi]", EntryKind::Int, &StationConfig::StopBeaconMaxDigi},
    {112, "[EditMonitor]", EntryKind::Int, &StationConfig::EditMonitor},
}};

const std::array<SettingsList, 6> kLists = {{
    {20, &StationConfig::TXdatatext, &MainWindow::cmbDataText, 25, 31},
    {21, &StationConfig::Totext, &MainWindow::cmbToCall, 15, 18},
    {22, &StationConfig::Viatext, &MainWindow::cmbViaCall, 15, 18},
    {23, &StationConfig::APRSData, &MainWindow::cmbAPRSPos, 25, 31},
    {33, &StationConfig::APRSMessageFor, &MainWindow::cmbFor, 15, 18},
    {34, &StationConfig::APRSMessageText, &MainWindow::cmbAPRSMessage, 25, 31},
}};

}  // namespace

const SettingsEntry& SettingsEntryAt(int number) {
  if (number < kFirstEntry) number = kFirstEntry;
  if (number > kLastEntry) number = kLastEntry;
  return kEntries[static_cast<std::size_t>(number - kFirstEntry)];
}

const SettingsList* SettingsListAt(int number) {
  for (const SettingsList& list : kLists) {
    if (list.number == number) return &list;
  }
  return nullptr;
}

}  // namespace tesk
