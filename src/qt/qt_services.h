// The small services of the platform: sound (a player program, since Qt Multimedia's sound
// effect hangs the process at exit once it has loaded a file, and nothing may block or fail the
// program for a sound), printing and the clipboard, which is the desktop's in the windowed
// program and a plain string in the headless one.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <memory>

#include "platform/platform.h"

namespace tesk {

// Plays a sound file through the desktop's command-line player (PipeWire, PulseAudio or ALSA),
// without waiting. A new sound or an empty path stops the one playing. With no player there,
// nothing plays; the station's sound table works all the same.
class QtSound : public Sound {
 public:
  QtSound();
  // A given player program, called with `arguments` and the file.
  QtSound(const QString& player, const QStringList& arguments);
  ~QtSound() override;
  bool playing() const { return m_process && m_process->state() != QProcess::NotRunning; }
  QtSound(const QtSound&) = delete;
  QtSound& operator=(const QtSound&) = delete;
  void play(const std::string& path) override;

 private:
  void stop();
  QString m_player;  // the player program's path, empty when none was found
  QStringList m_playerArguments;
  std::unique_ptr<QProcess> m_process;
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
