// Reading and sending the beacon file. An unreadable file is reported at each turn of the item,
// and the scheduler counts the item as sent all the same.
#include "beacon/beacon_file.h"

#include <filesystem>
#include <fstream>

#include "base/text.h"

namespace tesk {

namespace {

constexpr std::size_t kLinesRead = 5;
constexpr long kPositionLength = 20;
constexpr long kKept = 160;
constexpr int kFileNotFound = 53;
constexpr int kPathAccess = 75;

}  // namespace

std::vector<std::string> BeaconFile::ReadLines(const std::string& path, int& error) {
  error = 0;
  std::error_code code;
  if (path.empty() || !std::filesystem::exists(path, code)) {
    error = kFileNotFound;
    return {};
  }
  std::ifstream in(path, std::ios::binary);
  if (!in || std::filesystem::is_directory(path, code)) {
    error = kPathAccess;
    return {};
  }
  std::vector<std::string> lines;
  std::string line;
  bool open = false;  // a line begun and not yet ended
  char c = 0;
  while (lines.size() < kLinesRead && in.get(c)) {
    if (c == '\r' || c == '\n') {
      lines.push_back(line);
      line.clear();
      open = false;
      if (c == '\r' && in.peek() == '\n') in.get(c);
      continue;
    }
    line += c;
    open = true;
  }
  if (open && lines.size() < kLinesRead) lines.push_back(line);
  return lines;
}

std::string BeaconFile::Selected(const std::vector<std::string>& lines, int selection) {
  const auto line = [&lines](std::size_t i) { return i < lines.size() ? lines[i] : std::string(); };
  switch (selection) {
    case 0:
      return line(0);
    case 1:
      return line(1);
    case 2:
      return line(0) + CR + line(1);
    default:
      return line(0) + CR + line(1) + CR + line(2) + CR + line(3);
  }
}

void BeaconFile::TX_BeaconFile() {
  int error = 0;
  const std::vector<std::string> lines = ReadLines(m_config.BeaconFile, error);
  if (error != 0) {
    if (m_hooks.ShowMeld)
      m_hooks.ShowMeld("Error transmitting Beacon file (Err:" + std::to_string(error) + ")" + CR +
                           "File missing or empty contents",
                       0);
    return;
  }
  const std::string text = Selected(lines, m_config.BeaconFileType);
  const std::string position =
      m_config.BeaconFileAddPosition != 0 ? Trim(Left(m_config.APRS, kPositionLength)) : "";
  const std::string tag = m_config.TESKTag == 0 ? m_run.TagText : "";
  // A long text loses its beginning, the position first.
  const std::string result = RTrim(Right(position + text + tag, kKept));
  // The sender sends even an empty text; the beacon sends none.
  if (result.empty()) return;
  m_run.MonitorSendText = result;
  if (m_hooks.StuurMonitorTekst) m_hooks.StuurMonitorTekst();
}

}  // namespace tesk
