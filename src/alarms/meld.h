// The note window Meld: a small, modeless notice that closes by itself. This first cut shows
// the text (and prints it in headless mode); the closing tick, size and placement arrive with
// the alarms.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/platform.h"

namespace tesk {

struct MeldWindow {
  Window form;
  Label lblMeld;
  Button cmdOK;
};

class Meld {
 public:
  explicit Meld(Platform& platform) : m_platform(platform) {}
  // Opens the note with `text`; a non-zero hideOk hides its OK button.
  void ShowMeld(const std::string& text, int hideOk);
  MeldWindow& window() { return m_window; }

 private:
  Platform& m_platform;
  MeldWindow m_window;
};

}  // namespace tesk
