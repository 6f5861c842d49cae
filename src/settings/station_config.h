// Every value of the station's settings in memory: one field per entry of tesk.ini, named after
// its label with blanks and punctuation dropped ([Beacon Interval] is BeaconInterval), typed with
// the width the file gives it; plus the values of TESKLanMode.ini, which live in their own file.
// The initial values are the factory values, except where a comment says otherwise.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/color.h"

namespace tesk {

struct StationConfig {
  // ---- tesk.ini (entries in file order; the number is the entry's place in the file) ----
  std::string YourCallSign;                                 // 3
  std::string ToCall = "CQ";                                // 4 [To call]
  std::string Digistation = "ARISS";                        // 5 (ViaCall)
  int32_t AGWPERadioPort = 0;                               // 6
  int16_t AlarmSet = 0;                                     // 7
  std::string MonitorFontname = "Fixedsys";                 // 8
  int16_t BeaconInterval = 60;                              // 9 seconds
  int16_t TXMHeardType = 1;                                 // 10
  int16_t Beacon = 0;                                       // 11
  Color HeaderColor = 65535;                                // 12
  Color DataColor = 0xFFFF00;                               // 13 RGB(0,255,255)
  Color ScreenColor = 0x400000;                             // 14 RGB(0,0,64)
  std::string AlarmSetHeaderText = "RS0ISS*";               // 15
  std::string AlarmSetDataText = "KN55AB Hello from Ivo";   // 16
  std::string APRS;                                         // 17
  int16_t APRSEnabled = 0;                                  // 18
  float SelectedBeacon = 100001;                            // 19 six-digit mask
  std::vector<std::string> TXdatatext;                      // 20 history of cmbDataText
  std::vector<std::string> Totext;                          // 21 history of cmbToCall
  std::vector<std::string> Viatext;                         // 22 history of cmbViaCall
  std::vector<std::string> APRSData;                        // 23 history of cmbAPRSPos
  int16_t SavePosition = -1;                                // 24
  int32_t hsize = 0;                                        // 25 main window width, twips
  int32_t vsize = 0;                                        // 26 height
  int32_t leftpos = 0;                                      // 27 left
  int32_t toppos = 0;                                       // 28 top
  Color DataBoxForecolor = 16711680;                        // 29 blue
  Color DataBoxBackcolor = static_cast<Color>(0x80000016);  // 30 a system colour code
  std::string TXDataDefault;                                // 31 text in cmbDataText at exit
  int16_t TESKTag = 0;                                      // 32
  std::vector<std::string> APRSMessageFor;                  // 33 history of cmbFor
  std::vector<std::string> APRSMessageText;                 // 34 history of cmbAPRSMessage
  int16_t BBSCommands = 0;            // 35 state: 0 enabled, 1 disabled, 2 password
  std::string BBSPassword;            // 35 behind the first "/"
  float MonBufferLimit = 0;           // 36
  int16_t LogDigipeatedMessages = 1;  // 37
  std::string DefaultFor;             // 38 text in cmbFor at exit
  std::string DefaultMessage;         // 39 text in cmbAPRSMessage at exit
  std::string DefaultAPRSText;        // 40 text in cmbAPRSPos at exit
  std::string BeaconFile;             // 41
  int16_t BeaconFileType = 0;         // 42 first value: which lines are sent
  int16_t BeaconFileAddPosition = 0;  // 42 second value: position in front
  int16_t UseAlarmSound = 0;          // 43
  int16_t UTCTimeOffsetHours = 0;     // 44 hours "_" minutes
  int16_t UTCTimeOffsetMinutes = 0;   // 44
  int16_t LogAlarmToDisk = 0;         // 45
  int16_t AutoDisconnect = 0;         // 46 first value
  int16_t Filters = 0;                // 46 second value, Monitor filter 1 to 4
  int16_t RemoveSame = 0;             // 46 third value, "Remove double"
  std::string IgnoreMheardCalls =
      "RS0ISS RS0ISS-1 RS0ISS-11 RS0ISS-3 RS0ISS-4 PCSAT PCSAT-1 WD3ADO-1 MAIL-1 ANDE-1 "
      "PSAT";                                // 47
  int16_t TESKServer = 0;                    // 48
  int16_t TESKServerInit = 0;                // 48 the start-up copy the diagnostics print
  int16_t MessageboxAlarm = 0;               // 49
  std::string IntelligentBeacon = "0*";      // 50 digit (on 1, off 0) then the string
  int16_t PictureLoad = -1;                  // 51
  std::string RefreshPicLoadPath;            // 52 factory: program folder + file name
  float PicRefreshInterval = 0;              // 53
  int16_t AGWPERXPort = 0;                   // 54
  int16_t SlowPC = 0;                        // 55
  int16_t AutoBeacon = 0;                    // 56, first line
  std::string AutoBeaconStart;               // 56, second line: start times
  std::string AutoBeaconStop;                // 56, third line: stop times
  int16_t ShowPortInHeader = 0;              // 57
  int16_t AutomaticLogging = 2;              // 58
  std::string ConnectionCall = "RS0ISS-11";  // 59 first line: the last connected call
  std::vector<std::string> ConnectionCalls;  // 59 the connect history
  int16_t TXBoxCoherentColors = 1;           // 60
  std::string ExtraInfoReports;              // 61
  int16_t MHeard_AutoClear = 0;              // 62
  int16_t FixedMonitorWidth = 0;             // 63, written again as entry 74
  int16_t AckInterval = 20;                  // 64 seconds
  Color DigiColor = RGB(255, 128, 64);       // 65
  int16_t FontSize = 9;                      // 66
  int16_t FontBold = 0;                      // 67
  std::string AutodiscAllowCalls = "RS0ISS PCSAT XX9TK";  // 68
  int16_t TXMultiLineDefault = 0;                         // 69
  int16_t AutoAnswer = 0;                                 // 70
  std::string AutoAnswerText;                             // 71
  int16_t AckUIViewType = 0;                              // 72
  int16_t NoAckTag = 0;                                   // 73
  int32_t ImgViewerWidth = 0;                             // 75
  int32_t ImgViewerHeight = 0;                            // 76
  Color NoteBookForeColor = 0;                            // 77
  Color NoteBookBackColor = 16777215;                     // 78
  int16_t ConnectLog = 0;                                 // 79
  Color ConnectForeColor = 16777215;                      // 80
  Color ConnectBackColor = 0;                             // 81
  std::string ConnectionFont = "Fixedsys";                // 82
  std::string ShadowExperiment_ISO = "US";                // 83 before the first "_"
  std::string ShadowExperiment_DIGI = "BEACON ARISS";     // 83 behind it
  int16_t ShadowExperiment = 0;                           // 84
  int16_t OptionalDigLogSSID = 0;                         // 85
  int16_t UserSSID = 0;                                   // 86
  int16_t AutoDetectUTC = 1;                              // 87
  int16_t ShadowExpGMT = 0;                               // 88
  int16_t ShExpPauseTX = 60;                              // 89 seconds
  int16_t ShowUTCInHeader = 0;                            // 90
  int16_t intRunExtApp = 0;                               // 91
  std::string strRunExtApp1;                              // 92
  Color MessageColor = RGB(0, 200, 0);                    // 93
  int16_t MaxPacketLength = 0;                            // 94
  std::string strRunExtApp2;                              // 95
  std::string Picture_URL;                                // 96 ("http://" is set by the upgrade)
  int16_t AutoDigiLogBook = 1;                            // 97
  std::string DateSeparator = "-";                        // 98
  std::string CallDefinedLog = "ISS";                     // 99
  int16_t SystemTray = 0;                                 // 100
  int16_t Filter = 0;                                     // 101
  std::string FilterCall;                                 // 102
  int16_t TypeOfModem = 0;                                // 103
  int16_t AutoRunModemProgram = 0;                        // 104
  std::string ModemProgramPath;                           // 105
  int16_t AutoCloseModemProgram = 0;                      // 106
  std::string OtherTypeModemCaption;                      // 107
  std::string APRSCompressed;                             // 108
  int16_t AutoPasteCallInFor = 1;                         // 109
  // 110-112 start at zero, not at their factory values (1, 2, 0): a file of this version does
  // not read them back, so after a normal start they hold zero. Kept on purpose.
  int16_t AutoStopBeacon = 0;     // 110
  int16_t StopBeaconMaxDigi = 0;  // 111
  int16_t EditMonitor = 0;        // 112

  // ---- worked out by the settings reader, never written ----
  int16_t SelectedBeaconItems = 0;     // the digits "1" at places 2 to 6 of [Selected Beacon]
  int32_t AckRetryIntervalMs = 20000;  // interval of the message retry tick

  // ---- TESKLanMode.ini ----
  std::string HostName_IP_Default = "127.0.0.1";
  std::array<std::string, 5> HostName_IP{};
  int32_t LanPort = 8000;
  int16_t RegisterCall = 0;
  int16_t Emulate_TXFrames_On_SlowNetPC = 0;
  std::string Lan_Password;

  bool operator==(const StationConfig&) const = default;
};

}  // namespace tesk
