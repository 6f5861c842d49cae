// The note window: shown without stopping anything.
#include "alarms/meld.h"

namespace tesk {

void Meld::ShowMeld(const std::string& text, int hideOk) {
  m_window.form.loaded = true;
  m_window.form.visible = true;
  m_window.lblMeld.caption = text;
  m_window.cmdOK.visible = hideOk == 0;
  m_platform.views().show("Meld");
  m_platform.views().notice(text);
}

}  // namespace tesk
