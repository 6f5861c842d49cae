// The two-tick flashes of tmrDigiFlash. The on/off state is shared by the three flashes, as
// the one timer is; a digi flash cut short by a receive flash is cleaned up by it.
#include "core/digi_flash.h"

namespace tesk {

namespace {

constexpr Color kPureRed = RGB(255, 0, 0);
constexpr Color kWhite = RGB(255, 255, 255);
constexpr Color kSystemHighlight = static_cast<Color>(0x8000000D);

}  // namespace

DigiFlash::DigiFlash(Platform& platform, MainWindow& main)
    : m_platform(platform), m_main(main), m_timer(platform.loop().createTimer()) {
  m_timer->setInterval(500);
  m_timer->setHandler([this] { Tick(); });
}

void DigiFlash::ReceiveLamp() {
  if (m_main.imgTXRXlight[1].visible) return;
  m_main.imgTXRXlight[0].visible = true;
  LightMode = Receive;
  m_timer->setEnabled(true);
  m_platform.views().refresh(WindowKind::Main);
}

void DigiFlash::TransmitLamp() {
  m_main.imgTXRXlight[1].visible = true;
  LightMode = Transmit;
  m_timer->setEnabled(true);
  m_platform.views().refresh(WindowKind::Main);
}

void DigiFlash::DigiFlashStart() {
  LightMode = Digi;
  m_timer->setEnabled(true);
}

void DigiFlash::EndDigiFlash() {
  m_main.imgLogoDigi.visible = false;
  m_timer->setEnabled(false);
  m_main.LblDigipeatedTot.backColor = kButtonFace;
  m_main.LblDigipeatedTot.foreColor = kSystemHighlight;
}

void DigiFlash::Tick() {
  m_lit = !m_lit;
  switch (LightMode) {
    case Digi:
      if (m_lit) {
        m_timer->setInterval(600);
        m_main.imgLogoDigi.visible = true;
        m_main.LblDigipeatedTot.backColor = kPureRed;
        m_main.LblDigipeatedTot.foreColor = kWhite;
      } else {
        EndDigiFlash();
      }
      break;
    case Receive:
      if (m_lit) {
        m_timer->setInterval(250);
        m_main.imgTXRXlight[0].visible = true;
      } else {
        m_main.imgTXRXlight[0].visible = false;
        m_timer->setEnabled(false);
        if (m_main.imgLogoDigi.visible) EndDigiFlash();
      }
      break;
    default:
      if (m_lit) {
        m_timer->setInterval(500);
        m_main.imgTXRXlight[1].visible = true;
      } else {
        m_main.imgTXRXlight[1].visible = false;
        m_timer->setEnabled(false);
      }
      break;
  }
  m_platform.views().refresh(WindowKind::Main);
}

}  // namespace tesk
