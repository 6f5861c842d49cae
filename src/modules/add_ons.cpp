// The /RUN switch and the run routine behind it.
#include "modules/add_ons.h"

#include "base/text.h"

namespace tesk {

void AddOns::RunBatchApplication(const std::string& text) {
  std::string line = text.empty() ? Trim(m_platform.system().commandLine) : text;
  if (Len(line) > 6) {
    const bool quoted = Left(line, 1) == "\"";
    const long at = quoted ? 2 : 1;
    // Only the upper-case spelling is recognised: the text is not upper-cased here.
    if (Mid(line, at, 4) == "/RUN") {
      std::string program = Trim(Mid(line, at + 4));
      if (quoted) program = "\"" + program;
      runProgram(program);
    }
  }
  m_platform.loop().yield();
  if (m_main.form.visible) m_platform.views().show(WindowKind::Main);
}

void AddOns::runProgram(const std::string& program) {
  const std::string path = Trim(program);
  if (path.empty()) return;
  // A full path (a drive letter's ":" on the original platform, a leading "/" here) runs as it
  // is; a bare name runs from the external programs folder, where its links lie.
  const bool fullPath = InStr(path, ":") > 0 || Left(path, 1) == "/" || Left(path, 2) == "\"/";
  m_platform.shell().run(path, fullPath ? std::string() : m_run.AppPath + "/ExternalPrograms");
}

}  // namespace tesk
