// The process-wide run-time state that several subsystems share and that is never written to
// the settings file. Plain data; the station owns one.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/platform.h"

namespace tesk {

// One row of the table of messages sent with an ack request; an empty PendingFor is a free row.
struct PendingMessage {
  std::string PendingFor;   // the addressee as typed, trimmed
  std::string PendingText;  // the whole frame text: address block, message and tag
  int16_t PendingSeq = 0;   // the number of this row; the addressee's first row counts on
  int16_t PendingDone = 0;  // 0 pending, -1 given up or stopped, number + 100 when acked
};
constexpr int kPendingRows = 41;

// The received messages: a fixed table with room for a few more than the count ever reaches.
constexpr int kMessageLogRows = 203;
constexpr int16_t kMessageLogCap = 200;

struct RunState {
  std::string AppPath;       // program folder, no trailing separator
  std::string SettingsPath;  // AppPath + "/tesk.ini"
  std::string NotebookPath;  // AppPath + "/Notebook.rtf"
  std::string WindowsDir;    // the system folder, with a trailing separator
  std::string VersionText;   // "5.4.4"
  std::string TagText;       // " {TESK54}"
  std::string BaseCaption;
  DateTime StartedAt;
  std::string SeparatorChar;  // the character 254
  std::array<int16_t, 7> PacketLengths{255, 192, 160, 128, 96, 80, 64};
  int32_t CurrentPort = 0;
  int16_t LanMode = 0;
  int16_t LanModeAtStart = 0;
  std::string EngineStatus;
  std::string LinkStatus;
  std::string EnginePortList;
  std::string ToVia;
  std::string MonitorSendText;  // what StuurMonitorTekst sends in pieces of 80
  int16_t Connected = 0;
  std::string ConnectedCall;
  int16_t RemoteLogin = 0;
  std::array<int16_t, 13> TxCounters{};
  // Load-pass bookkeeping.
  bool FirstRun = false;
  double ModemStartNote = 0;  // seconds-since-midnight clock noted at the modem start
  bool WriteCheckDone = false;
  int16_t ServerSwitch = 0;  // the running server switch of the module mailbox
  std::string ProfileName;
  std::string APRSWorkingText;  // the position text the APRS sender works from
  std::array<PendingMessage, kPendingRows> PendingMessages{};  // kept for the run only
  std::array<std::string, kMessageLogRows> MessageLog{};       // lost at exit unless saved
  int16_t MessageLogCount = 0;                                 // held at kMessageLogCap
  // A run-only engine address (the demo engine); never written to the LAN settings.
  std::string OverrideHost;
  int OverridePort = 0;
};

}  // namespace tesk
