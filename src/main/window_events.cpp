#include "main/window_events.h"

namespace tesk {

void WindowEvents::RegisterCommands(CommandTable& commands) {
  commands.addClick({Command::Form_Resize}, [this] { Form_Resize(); });
  commands.addClick({Command::Tray_MouseUp, kLeftButton}, [this] { Tray_MouseUp(kLeftButton); });
  commands.addClick({Command::Tray_MouseUp, kRightButton}, [this] { Tray_MouseUp(kRightButton); });
  commands.addClick({Command::Tray_DblClick}, [this] { Tray_DblClick(); });
  const auto click = [this](int index) { mPopupSys_Click(index); };
  commands.addRow(Command::mPopupSys, m_main.mPopupSys, kPopupRestore, "&Restore", click);
  commands.addRow(Command::mPopupSys, m_main.mPopupSys, kPopupExit, "E&xit", click);
}

void WindowEvents::Form_Resize() {
  // Minimised to the tray: the icon brings it back. A desktop without a tray area leaves the
  // window minimised on its task bar, or it could not be found again.
  if (m_main.form.windowState != 1 || m_config.SystemTray == 0 || !m_main.desktopHasTray) return;
  m_main.form.visible = false;
  m_platform.views().hide(WindowKind::Main);
}

void WindowEvents::Tray_MouseUp(int button) {
  if (button == kLeftButton) Restore();
  if (button == kRightButton) m_platform.views().show(WindowKind::TrayPopup);
}

void WindowEvents::Tray_DblClick() {
  Restore();
}

void WindowEvents::mPopupSys_Click(int index) {
  if (index == kPopupRestore) Restore();
  if (index == kPopupExit && m_einde) m_einde();
}

void WindowEvents::Restore() {
  // Back to its normal size and in front of the other windows.
  m_main.form.windowState = 0;
  m_main.form.visible = true;
  m_platform.views().show(WindowKind::Main);
}

}  // namespace tesk
