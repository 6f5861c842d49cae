// The small services of the platform: sound (silent: Qt Multimedia's sound effect hangs the
// process at exit once it has loaded a file, and nothing may block or fail the program for a
// sound), printing (not offered yet) and the clipboard, which is the desktop's in the windowed
// program and a plain string in the headless one.
#pragma once

#include "platform/platform.h"

namespace tesk {

class QtSound : public Sound {
 public:
  // Returns at once and plays nothing; the station's sound table works all the same.
  void play(const std::string& path) override;
};

// Plain text on the default printer: through Qt's printer where the build has print support,
// else handed to the system's print command (lp). With an output file set, the pages go to that
// PDF file instead (tests, and a check without paper).
class QtPrinter : public Printer {
 public:
  bool printText(const std::string& text) override;
  void setOutputFile(const std::string& pdfPath) { m_outputFile = pdfPath; }

 private:
  std::string m_outputFile;
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
