// The beacon file's two buttons in the beacon window: the file goes to the desktop's own text
// editor, or a file dialog picks it and warns when it will not fit one frame.
#include <cstdint>
#include <filesystem>

#include "base/text.h"
#include "beacon/beacon_setup.h"

namespace tesk {

namespace {

constexpr std::uintmax_t kOneFrame = 80;

}  // namespace

void BeaconSetup::cmdEditAddFile_Click() {
  m_platform.shell().openUrl(Trim(m_window.txtAddFilePath.text));
}

void BeaconSetup::cmdBrowseAddFilePath_Click() {
  const std::string path = m_platform.dialogs().fileOpen(
      "Beacon file", "Beacon files (*.dat;*.txt)|*.dat;*.txt|All files (*.*)|*.*", m_run.AppPath);
  if (path.empty()) return;
  m_window.txtAddFilePath.text = path;
  refresh();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error || size <= kOneFrame) return;
  // A warning only: a longer file goes out in frames of 80.
  m_platform.dialogs().msgBox(
      std::string("Warning, filesize to large!") + CRLF +
          "Maximum Beacon file length is 80 characters, the file has " + std::to_string(size) +
          CRLF +
          "You can use up to 160 characters BUT TESK will split the file into 2 parts of 80 "
          "characters!",
      MsgButtons::Ok, MsgIcon::Exclamation, "Beacon File To Large");
}

}  // namespace tesk
