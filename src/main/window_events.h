// The main window's own events as the operator causes them: minimising it, and the mouse on its
// tray icon with the icon's popup menu. The view only reports them; what they do is decided here.
#pragma once

#include <functional>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"

namespace tesk {

class WindowEvents {
 public:
  // The mouse buttons as the tray reports a release.
  static constexpr int kLeftButton = 1;
  static constexpr int kRightButton = 2;
  // The rows of the tray's popup menu.
  static constexpr int kPopupRestore = 0;
  static constexpr int kPopupExit = 1;

  WindowEvents(Platform& platform, const StationConfig& config, MainWindow& main,
               std::function<void()> einde)
      : m_platform(platform), m_config(config), m_main(main), m_einde(std::move(einde)) {}

  void RegisterCommands(CommandTable& commands);

  // The window changed its size or state; the view has written both into the struct.
  void Form_Resize();
  // A button released over the tray icon.
  void Tray_MouseUp(int button);
  void Tray_DblClick();
  void mPopupSys_Click(int index);

 private:
  void Restore();

  Platform& m_platform;
  const StationConfig& m_config;
  MainWindow& m_main;
  std::function<void()> m_einde;
};

}  // namespace tesk
