// The lamps of tmrDigiFlash (two ticks per flash, one timer and one on/off state shared by the
// three flashes), the port rows with their note, question and checks, the FrameComm caption,
// and the Smart Beacon release that received frames give.
#include <gtest/gtest.h>

#include "core/core_fixture.h"

namespace tesk::testing {
namespace {

class LampsTest : public CoreTest {
 protected:
  void SetUp() override { make("/LAN"); }
  DigiFlash& flash() { return parts().digiFlash; }
  Image& rx() { return main().imgTXRXlight[0]; }
  Image& tx() { return main().imgTXRXlight[1]; }
  void run(double s) { platform.simLoop.run(s); }
};

TEST_F(LampsTest, ReceiveAndTransmitLampsFlashForTwoTicks) {
  flash().ReceiveLamp();
  EXPECT_TRUE(rx().visible);
  EXPECT_EQ(flash().LightMode, DigiFlash::Receive);
  run(0.5);  // first tick: on, and the next one comes sooner
  EXPECT_TRUE(rx().visible);
  EXPECT_EQ(flash().timer().interval(), 250);
  run(0.25);
  EXPECT_FALSE(rx().visible);
  EXPECT_FALSE(flash().timer().enabled());

  // While the transmit lamp is lit a frame lights nothing.
  flash().TransmitLamp();
  flash().ReceiveLamp();
  EXPECT_FALSE(rx().visible);
  EXPECT_EQ(flash().LightMode, DigiFlash::Transmit);
  run(0.25);
  EXPECT_TRUE(tx().visible);
  EXPECT_EQ(flash().timer().interval(), 500);
  run(0.5);
  EXPECT_FALSE(tx().visible);
  EXPECT_FALSE(flash().timer().enabled());
}

TEST_F(LampsTest, DigiFlashAndItsCleanUpByAReceiveFlash) {
  const Label before = main().LblDigipeatedTot;
  flash().LightMode = DigiFlash::Digi;
  flash().timer().setEnabled(true);
  run(0.5);
  EXPECT_TRUE(main().imgLogoDigi.visible);
  EXPECT_EQ(main().LblDigipeatedTot.backColor, RGB(255, 0, 0));
  EXPECT_EQ(main().LblDigipeatedTot.foreColor, RGB(255, 255, 255));
  EXPECT_EQ(flash().timer().interval(), 600);
  run(0.6);
  EXPECT_FALSE(main().imgLogoDigi.visible);
  EXPECT_EQ(main().LblDigipeatedTot.backColor, before.backColor);
  EXPECT_EQ(main().LblDigipeatedTot.foreColor, before.foreColor);

  // A frame in the middle of a digi flash: the shared state is "on", so the receive flash's
  // next tick is its second one. It puts the lamp out and ends the digi flash too.
  flash().LightMode = DigiFlash::Digi;
  flash().timer().setEnabled(true);
  run(0.6);
  ASSERT_TRUE(main().imgLogoDigi.visible);
  flash().ReceiveLamp();
  run(0.6);
  EXPECT_FALSE(rx().visible);
  EXPECT_FALSE(main().imgLogoDigi.visible);
  EXPECT_EQ(main().LblDigipeatedTot.backColor, before.backColor);
  EXPECT_FALSE(flash().timer().enabled());
}

using PortsTest = LampsTest;

TEST_F(PortsTest, ReceiveRowsTellTheirChoiceAndCheckTheRow) {
  Ports& ports = parts().ports;
  const MeldWindow& note = parts().meld.window();
  config().AGWPERXPort = 6;
  config().AGWPERadioPort = 0;
  ports.ToonAktievePoort();
  EXPECT_EQ(main().FrameComm.caption, "Communication Ports: TX-1 / RX All");
  // The row in force, or a row beyond the seven: nothing, not even a note.
  ports.AGWPortRX(6);
  ports.AGWPortRX(7);
  EXPECT_FALSE(note.form.visible);
  ports.AGWPortRX(2);
  EXPECT_EQ(note.lblMeld.caption, "RX Port\r\nNow listening on port 3");
  EXPECT_EQ(config().AGWPERXPort, 2);
  EXPECT_TRUE(main().menuAgwportRX[2].checked);
  EXPECT_EQ(main().FrameComm.caption, "Communication Ports: TX-1 / RX-3");
  ports.AGWPortRX(6);
  EXPECT_EQ(note.lblMeld.caption, "RX Port\r\nNow listening on all available ports...");
  // The popup clears the rows and checks the one in force.
  ports.imgRXPortSelector_Click();
  EXPECT_FALSE(main().menuAgwportRX[2].checked);
  EXPECT_TRUE(main().menuAgwportRX[6].checked);
  EXPECT_TRUE(platform.simDialogs.shown.empty());
}

TEST_F(PortsTest, TransmitRowsAskFirstAndStopAtTheFifth) {
  Ports& ports = parts().ports;
  config().AGWPERXPort = 0;
  platform.simDialogs.answers = {"N"};
  ports.AGWPorts(3);
  ASSERT_EQ(platform.simDialogs.shown.size(), 1u);
  EXPECT_EQ(platform.simDialogs.shown[0].title, "Change TX port");
  EXPECT_EQ(platform.simDialogs.shown[0].text, "Are you sure you want to change the TX port?");
  EXPECT_EQ(config().AGWPERadioPort, 0);
  EXPECT_FALSE(main().menuAgwport[3].checked);
  platform.simDialogs.answers = {"Y"};
  ports.AGWPorts(3);
  EXPECT_EQ(config().AGWPERadioPort, 3);
  EXPECT_EQ(station->run().CurrentPort, 3);
  EXPECT_TRUE(main().menuAgwport[3].checked);
  EXPECT_EQ(main().FrameComm.caption, "Communication Ports: TX-4 / RX-1");
  // The same row, and the sixth and seventh rows, ask nothing.
  ports.AGWPorts(3);
  ports.AGWPorts(5);
  ports.AGWPorts(6);
  EXPECT_EQ(platform.simDialogs.shown.size(), 2u);
  ports.imgTXPortSelector_Click();
  EXPECT_TRUE(main().menuAgwport[3].checked);
  config().AGWPERadioPort = 6;
  ports.imgTXPortSelector_Click();
  for (int i = 0; i < 7; ++i)
    EXPECT_FALSE(main().menuAgwport[i].checked) << i;
}

using SmartBeaconTest = LampsTest;

TEST_F(SmartBeaconTest, HeldBeaconIsReleasedByItsStringAndHeldAgainTwoFramesLater) {
  BeaconScheduler& beacon = parts().beacon;
  int sent = 0;
  beacon.items.cmdTXDataText_Click = [&] { ++sent; };
  config().Beacon = -1;
  config().IntelligentBeacon = "1RS0ISS*";
  config().SelectedBeaconItems = 1;
  beacon.BeaconSeconds = config().BeaconInterval;
  EXPECT_FALSE(beacon.TimedBeacon());
  EXPECT_NE(beacon.BeaconHalted, 0);
  // The engine's port lines and frames without the string do not release it.
  beacon.SmartBeaconRelease("Port1 stereo left RS0ISS*");
  beacon.SmartBeaconRelease(" 1:Fm PA3ABC To CQ Via ARISS <UI>");
  EXPECT_NE(beacon.BeaconHalted, 0);
  beacon.SmartBeaconRelease(" 1:Fm PA3ABC To CQ Via rs0iss* <UI>");
  EXPECT_EQ(beacon.BeaconHalted, 0);
  EXPECT_TRUE(beacon.TimedBeacon());
  EXPECT_EQ(sent, 1);
  // While released every frame counts: two more bring the counter round and the hold back.
  beacon.SmartBeaconRelease("anything");
  beacon.SmartBeaconRelease("anything");
  EXPECT_EQ(beacon.HeardTurn, 0);
  beacon.BeaconSeconds = config().BeaconInterval;
  EXPECT_FALSE(beacon.TimedBeacon());
  EXPECT_EQ(sent, 1);
}

TEST_F(SmartBeaconTest, MessageItemGoesWithoutAckRequestAndShadowModeTakesOver) {
  BeaconScheduler& beacon = parts().beacon;
  int16_t ackDuringSend = -5;
  beacon.items.cmdTXAPRSMessage_Click = [&] { ackDuringSend = config().AckUIViewType; };
  int shadow = 0;
  beacon.items.ExecuteShadowExp = [&] { ++shadow; };
  config().AckUIViewType = 2;
  config().SelectedBeacon = 100100;
  config().SelectedBeaconItems = 1;
  beacon.BeaconSeconds = config().BeaconInterval;
  EXPECT_TRUE(beacon.TimedBeacon());
  EXPECT_EQ(ackDuringSend, 0);
  EXPECT_EQ(config().AckUIViewType, 2);
  config().ShadowExperiment = 1;
  beacon.BeaconSeconds = config().BeaconInterval;
  EXPECT_TRUE(beacon.TimedBeacon());
  EXPECT_EQ(shadow, 1);
}

}  // namespace
}  // namespace tesk::testing
