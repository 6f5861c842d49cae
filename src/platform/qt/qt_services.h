// The small services of the platform: sound (silent for now: nothing may block or fail the
// program for want of an audio device), printing (not offered yet) and the clipboard, which is
// the desktop's in the windowed program and a plain string in the headless one.
#pragma once

#include "platform/platform.h"

namespace tesk {

class QtSound : public Sound {
 public:
  void play(const std::string& path) override;
};

class QtPrinter : public Printer {
 public:
  bool printText(const std::string& text) override;
};

class QtClipboard : public Clipboard {
 public:
  explicit QtClipboard(bool desktop) : m_desktop(desktop) {}
  void setText(const std::string& text) override;
  std::string text() override;
  void clear() override;

 private:
  bool m_desktop;
  std::string m_text;  // the headless program's clipboard
};

}  // namespace tesk
