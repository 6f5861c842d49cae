// The note window: load, the self-closing tick, the size for a long text and its place beside
// the Monitor.
#include "alarms/meld.h"

#include "base/text.h"

namespace tesk {

Meld::Meld(Platform& platform, MainWindow& main)
    : m_platform(platform), m_main(main), m_timer(platform.loop().createTimer()) {
  m_window.form.caption = "TESK";
  m_window.form.width = kWidth;
  m_window.form.height = kHeight;
  m_window.labelHeight = kLabelHeight;
  m_timer->setHandler([this] { Timer1_Timer(); });
}

Meld::~Meld() = default;

void Meld::ShowMeld(const std::string& text, int hideOk) {
  if (!m_window.form.loaded) Load();
  m_window.lblMelding.caption = text;
  m_window.cmd_OK_Meld.visible = hideOk == 0;
  Activate();
  m_window.form.visible = true;
  Views& views = m_platform.views();
  views.show(WindowKind::Meld);
  views.refresh(WindowKind::Meld);
  views.notice(text);
}

void Meld::Load() {
  // The count starts here only: a replaced text goes on counting from where the first was.
  m_counter = 0;
  m_window.form.loaded = true;
  m_timer->setInterval(1000);
  m_timer->setEnabled(true);
}

void Meld::Unload() {
  if (!m_window.form.loaded) return;
  m_timer->setEnabled(false);
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_platform.views().hide(WindowKind::Meld);
}

void Meld::Timer1_Timer() {
  const long limit = Len(m_window.lblMelding.caption) / 20 + 1;
  ++m_counter;
  if (m_counter > limit) Unload();
}

void Meld::Activate() {
  const long length = Len(m_window.lblMelding.caption);
  long grow = 0;
  if (length > kLongText) grow = ((length - kLongText) / kCharsPerLine + 1) * kLineHeight;
  m_window.labelHeight = kLabelHeight + grow;
  m_window.form.width = kWidth;
  m_window.form.height = kHeight + grow;
  // Beside the Monitor: the Monitor fills the left four fifths of the main window, the note
  // stands at its right edge, below the menu and the status strip. The view refines this with
  // the Monitor's real rectangle.
  const Window& main = m_main.form;
  m_window.form.left = main.left + main.width * 4 / 5;
  m_window.form.top = main.top + 1200;
}

}  // namespace tesk
