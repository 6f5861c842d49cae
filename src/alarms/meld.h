// The note window Meld: a small, modeless notice that closes by itself after about a second per
// 20 characters. It never stops the timers and takes no answer; a note shown while one is open
// replaces its text and keeps its count. In the headless program a note is one output line.
#pragma once

#include <memory>
#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "state/main_window.h"

namespace tesk {

struct MeldWindow {
  MeldWindow() = default;
  MeldWindow(const MeldWindow&) = delete;
  MeldWindow& operator=(const MeldWindow&) = delete;

  Window form;
  Label lblMelding;
  Label& lblMeld = lblMelding;  // the name the first callers used
  Button cmd_OK_Meld = [] {
    Button b;
    b.caption = "OK";
    return b;
  }();
  long labelHeight = 0;  // twips; grows with a long text
};

class Meld {
 public:
  // Twips: the note's size for a text of up to 125 characters.
  static constexpr long kWidth = 4800;
  static constexpr long kHeight = 1500;
  static constexpr long kLabelHeight = 840;
  static constexpr long kLongText = 125;  // a longer text makes the note grow
  static constexpr long kLineHeight = 240;
  static constexpr long kCharsPerLine = 40;

  Meld(Platform& platform, MainWindow& main);
  ~Meld();
  Meld(const Meld&) = delete;
  Meld& operator=(const Meld&) = delete;
  // Opens the note with `text`, or replaces the text of the open one. A non-zero hideOk hides
  // the OK button.
  void ShowMeld(const std::string& text, int hideOk);
  // The OK button: closes the note.
  void cmd_OK_Meld_Click() { Unload(); }
  // The 1000 ms tick: closes the note once the counter exceeds Int(length / 20) + 1.
  void Timer1_Timer();

  MeldWindow& window() { return m_window; }
  const MeldWindow& window() const { return m_window; }
  Timer& timer() { return *m_timer; }
  int counter() const { return m_counter; }

 private:
  void Load();
  void Unload();
  // Size and place: taller for a long text, beside the Monitor.
  void Activate();

  Platform& m_platform;
  MainWindow& m_main;
  MeldWindow m_window;
  std::unique_ptr<Timer> m_timer;
  int m_counter = 0;
};

}  // namespace tesk
