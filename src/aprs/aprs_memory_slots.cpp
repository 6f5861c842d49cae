// The six memory slots of the position setup: MemLoc0.ini to MemLoc5.ini in the program folder,
// eight lines each (latitude degrees, minutes, decimals, direction, then the same of the
// longitude). A slot whose first line is empty or "0000" is empty. A file that cannot be read
// or written leaves the fields as they are and says nothing more.
#include <vector>

#include "aprs/aprs_setup.h"
#include "base/text.h"
#include "platform/platform_helpers.h"
#include "settings/sequential_input.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

constexpr std::size_t kSlotLines = 8;

bool EmptySlotLine(const std::string& first) {
  return first.empty() || first == "0000";
}

// Up to eight lines of the slot file, or nothing when it cannot be read.
std::optional<std::vector<std::string>> ReadSlotLines(const std::string& path) {
  std::string content;
  if (!ReadWholeFile(path, content)) return std::nullopt;
  SequentialInput in(std::move(content));
  std::vector<std::string> lines;
  while (lines.size() < kSlotLines && !in.atEnd()) {
    std::optional<std::string> line = in.lineInput();
    if (!line) break;
    lines.push_back(*line);
  }
  lines.resize(kSlotLines);
  return lines;
}

}  // namespace

std::string AprsSetup::slotPath(int index) const {
  return JoinPath(m_run.AppPath, "MemLoc" + std::to_string(index) + ".ini");
}

void AprsSetup::CmdMem_MouseUp(int index, int button) {
  if (index < 0 || index >= kMemorySlots) return;
  if (button < kRightButton) {
    readSlot(index);
  } else {
    saveSlot(index);
  }
}

void AprsSetup::readSlot(int index) {
  const std::string path = slotPath(index);
  Dialogs& dialogs = m_platform.dialogs();
  if (!FileExists(path)) {
    dialogs.msgBox("Empty Memory Slot, nothing to read.", MsgButtons::Ok, MsgIcon::Information,
                   "Empty Memory Slot");
    return;
  }
  const std::optional<std::vector<std::string>> lines = ReadSlotLines(path);
  if (!lines) return;
  const std::vector<std::string>& l = *lines;
  if (EmptySlotLine(l[0])) {
    dialogs.msgBox(std::string("No coordinates stored in this slot.") + CRLF +
                       "Please enter coordinates and press right-mouse on the memory slot to save.",
                   MsgButtons::Ok, MsgIcon::Information, "Empty Memory Slot");
    return;
  }
  setFields({l[0], l[1], l[2], l[3], l[4], l[5], l[6], l[7]});
}

void AprsSetup::saveSlot(int index) {
  const std::string path = slotPath(index);
  Dialogs& dialogs = m_platform.dialogs();
  const std::string number = std::to_string(index + 1);
  if (FileExists(path)) {
    const std::optional<std::vector<std::string>> lines = ReadSlotLines(path);
    if (!lines) return;
    if (!EmptySlotLine((*lines)[0]) &&
        dialogs.msgBox(std::string("There is already a location stored here.") + CRLF +
                           "Do you want to replace/update this memory slot with the current "
                           "location?",
                       MsgButtons::YesNo, MsgIcon::Question,
                       "Memory slot " + number) != MsgResult::Yes) {
      return;
    }
  }
  const PositionFields f = fields();
  if (f.latDirection.empty() || f.lonDirection.empty()) return;
  std::string content;
  for (const std::string* line :
       {&f.latH, &f.latM, &f.latS, &f.latDirection, &f.lonH, &f.lonM, &f.lonS, &f.lonDirection}) {
    content += *line + CRLF;
  }
  if (!WriteWholeFile(path, content)) return;
  dialogs.msgBox("Coordinates are successfully stored in Memory Slot nr." + number, MsgButtons::Ok,
                 MsgIcon::Information, "Save Memory Slot");
}

}  // namespace tesk
