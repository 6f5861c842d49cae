// Thin platform helpers; each swallows its own failure, as the flows that call them expect.
#include "platform/platform_helpers.h"

#include <fstream>

#include "base/text.h"

namespace tesk {

std::string ReadRegistryValue(Store& store, Hive hive, const std::string& key,
                              const std::string& name) {
  auto value = store.regRead(hive, key, name);
  return value ? CutAtNul(*value) : std::string();
}

void WriteRegistryValue(Store& store, Hive hive, const std::string& key, const std::string& name,
                        const std::string& text) {
  store.regWrite(hive, key, name, CutAtNul(text));
}

long FindTopWindow(Shell& shell, const std::string& title) {
  return shell.findProgramWindow(title);
}

bool FileExists(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  return f.good();
}

void OpenWebPage(Platform& platform, const std::string& url) {
  const int error = platform.shell().openUrl(url);
  if (error != 0)
    platform.dialogs().msgBox(
        "Could not open your Internet browser! Err nr:" + std::to_string(error), MsgButtons::Ok,
        MsgIcon::Exclamation, "TESK");
}

void WriteTextFile(const std::string& text, const std::string& path, int mode) {
  std::ofstream f(path, std::ios::binary | (mode == 0 ? std::ios::trunc : std::ios::app));
  if (!f) return;
  f << text;
  if (mode != 0) f << CRLF;
}

std::string JoinPath(const std::string& folder, const std::string& name) {
  if (folder.empty()) return name;
  if (folder.back() == '/') return folder + name;
  return folder + "/" + name;
}

}  // namespace tesk
