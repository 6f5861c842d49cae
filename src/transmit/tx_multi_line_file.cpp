// The page file of the Multi-Line window. A page that ends in a control character (a TAB, or its
// own CR LF) gets its end marker on the same line, so the reader must find the marker at the end
// of a line, not only as a line of its own.
#include "transmit/tx_multi_line_file.h"

#include <string_view>
#include <vector>

#include "base/text.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

constexpr std::string_view kEndMarker = "[**end**]";
constexpr const char* kReserved = "[Reserved]";

bool EndsInControl(const std::string& text) {
  return !text.empty() && static_cast<unsigned char>(text.back()) < 31;
}

bool EndsWith(std::string_view s, std::string_view tail) {
  return s.size() >= tail.size() && s.substr(s.size() - tail.size()) == tail;
}

// Splits at LF; a CR before the LF belongs to the line end, so CR LF and LF files read alike.
// A CR anywhere else is part of the text.
std::vector<std::string> Lines(const std::string& content) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < content.size()) {
    std::size_t end = content.find('\n', start);
    const bool last = end == std::string::npos;
    if (last) end = content.size();
    std::string line = content.substr(start, end - start);
    if (!last && !line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    start = end + 1;
  }
  return lines;
}

}  // namespace

std::string FormatMultiLineFile(const MultiLinePages& pages) {
  std::string out;
  for (const std::string& page : pages) {
    out += page;
    // A page that ends in a control character takes its marker on the same line; so does one
    // that ends in its own CR LF, which keeps it from growing an empty line at each save.
    if (!EndsInControl(page)) out += CRLF;
    out += kEndMarker;
    out += CRLF;
  }
  for (int i = 0; i < 2; ++i) {
    out += kReserved;
    out += CRLF;
    out += CRLF;
  }
  return out;
}

MultiLinePages ParseMultiLineFile(const std::string& content) {
  MultiLinePages pages;
  const std::vector<std::string> lines = Lines(content);
  std::size_t at = 0;
  for (std::string& page : pages) {
    std::string text;
    while (at < lines.size()) {
      const std::string& line = lines[at++];
      if (line == kEndMarker) break;
      if (EndsWith(line, kEndMarker)) {
        // The page's last line, with the marker behind it.
        text += line.substr(0, line.size() - kEndMarker.size()) + CRLF;
        break;
      }
      text += line + CRLF;
    }
    if (Len(text) >= 2 && EndsWith(text, CRLF)) text.resize(text.size() - 2);
    page = std::move(text);
  }
  return pages;
}

MultiLinePages LoadMultiLineFile(const std::string& path) {
  std::string content;
  if (!ReadWholeFile(path, content)) return {};
  return ParseMultiLineFile(content);
}

bool SaveMultiLineFile(const std::string& path, const MultiLinePages& pages) {
  return WriteWholeFile(path, FormatMultiLineFile(pages));
}

}  // namespace tesk
