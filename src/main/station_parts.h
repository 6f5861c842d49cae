// Every subsystem of one station, constructed in dependency order. Routines that reach across
// subsystems (the load pass, Einde) and the tests get here through Station::parts().
#pragma once

#include <memory>

#include "alarms/alarms.h"
#include "alarms/meld.h"
#include "alarms/packet_log.h"
#include "alarms/reports.h"
#include "alarms/sound_table.h"
#include "alarms/statistics.h"
#include "aprs/aprs_position.h"
#include "aprs/aprs_setup.h"
#include "aprs/message_reception.h"
#include "aprs/message_sending.h"
#include "aprs/messenger.h"
#include "beacon/beacon_file.h"
#include "beacon/beacon_scheduler.h"
#include "beacon/beacon_setup.h"
#include "beacon/shadow_experiment.h"
#include "connected/connection_control.h"
#include "connected/remote_commands.h"
#include "connected/text_sending.h"
#include "core/digi_flash.h"
#include "core/digipeat.h"
#include "core/hand_off_log.h"
#include "core/monitor_console.h"
#include "core/monitor_filters.h"
#include "core/monitor_find.h"
#include "core/packet_core.h"
#include "core/ports.h"
#include "heard/heard_reports.h"
#include "heard/mheard_list.h"
#include "heard/view_heard.h"
#include "link/agw_direct.h"
#include "link/lan_setup.h"
#include "link/modem_program.h"
#include "link/tcp_link.h"
#include "main/operator_console.h"
#include "main/startup.h"
#include "main/station_link_events.h"
#include "main/window_events.h"
#include "modules/add_ons.h"
#include "modules/module_mailbox.h"
#include "settings/settings_file.h"
#include "settings/setup.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_multi_line.h"
#include "transmit/tx_panel.h"
#include "transmit/ui_text_sender.h"
#include "viewport/view_port.h"

namespace tesk {

class Station;

struct StationParts {
  explicit StationParts(Station& station);

  HandOffLog handOffs;      // the order of the receive path's hand-offs, when recording
  HandOffLog klokkenSteps;  // the order of the one-second tick's steps, when recording
  MonitorConsole monitor;
  Meld meld;
  SoundTable sounds;
  ModuleMailbox mailbox;
  TransmitPrimitives transmit;
  StationLinkEvents linkEvents;  // where the link's lines, notes, posts and lamp go
  TcpLink tcpLink;
  AgwDirect direct;
  AddOns addOns;
  ModemProgram modem;
  LanSetup lanSetup;
  Ports ports;
  ViewPort viewPort;
  PacketLog packetLog;
  TextSending textSending;
  TxPanel txPanel;
  UiTextSender uiTextSender;
  TxMultiLineForm txMultiLine;    // frmTXMultiLine and the Multi-Line button
  AprsPosition aprsPosition;      // the position text and its send button
  AprsSetup aprsSetup;            // frmAPRSSetup
  MessageSending messageSending;  // APRS messages out and their retries
  SettingsFile settings;
  Setup setup;  // frmSetup
  // The receive path: the core, the Monitor's filter and lamps, and what the core hands on to.
  MonitorFilters filters;
  MonitorFind find;
  DigiFlash digiFlash;
  MHeardList heardList;
  ViewHeard viewHeard;  // frmViewHeard
  HeardReports heardReports;
  Digipeat digipeat;
  MessageReception messageReception;  // APRS messages in: acks, auto-replies, the list
  Messenger messenger;                // frmMessenger
  Alarms alarms;
  Reports reports;        // the reports of a pass, saved or mailed
  Statistics statistics;  // FrmStatistics
  RemoteCommands remoteCommands;
  ConnectionControl connection;
  BeaconScheduler beacon;
  BeaconSetup beaconSetup;  // the window Beacon
  BeaconFile beaconFile;
  ShadowExperiment shadow;
  PacketCore core;
  Startup startup;
  WindowEvents windowEvents;
  OperatorConsole console;  // standard input of a station without windows

  // The ticks: the core, and the one-second clock.
  std::unique_ptr<Timer> tmrMainPacketCore;
  std::unique_ptr<Timer> tmrKlokken;
  std::unique_ptr<Timer> TmrStatus;  // the module status poller, enabled only in server mode
};

}  // namespace tesk
