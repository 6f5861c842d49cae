// The lamps beside the Monitor and the digipeat flash. One timer, tmrDigiFlash, serves all
// three: whoever starts a flash sets LightMode and enables the timer, so a new flash replaces
// the one in progress. Each flash lasts two ticks: the first lights, the second puts out.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/platform.h"
#include "state/main_window.h"

namespace tesk {

class DigiFlash {
 public:
  enum Mode : int16_t { Digi = 0, Receive = 1, Transmit = 2 };

  DigiFlash(Platform& platform, MainWindow& main);

  // The receive lamp of the packet core: lit unless the transmit lamp is.
  void ReceiveLamp();
  // The transmit lamp of every transmission.
  void TransmitLamp();
  // The digipeat flash of an own frame come back: the picture and the red total.
  void DigiFlashStart();
  // The tick of tmrDigiFlash.
  void Tick();

  Timer& timer() { return *m_timer; }
  int16_t LightMode = Digi;  // which flash the timer is running

 private:
  void EndDigiFlash();

  Platform& m_platform;
  MainWindow& m_main;
  std::unique_ptr<Timer> m_timer;
  bool m_lit = false;  // toggled by every tick, whichever flash runs
};

}  // namespace tesk
