// The split works on the fixed buffer the way the receive path always has: the data runs for
// the whole length past the first line, so it takes in the frame's NUL and the blanks of the
// buffer, and a text without a header line starts its data with CR LF. Both are relied on.
#include "core/frame_split.h"

#include <algorithm>

#include "base/text.h"

namespace tesk {

namespace {

constexpr std::size_t kFrameTextLength = 512;

}  // namespace

std::string FixedLength(std::string_view text, std::size_t length) {
  std::string out(text.substr(0, std::min(text.size(), length)));
  out.resize(length, ' ');
  return out;
}

SplitFrame SplitFrameText(std::string& frameText, long length, int showPortInHeader) {
  SplitFrame out;
  std::string work;
  long crAt = 0;  // stays 0 when no CR comes within the length
  for (long i = 1; i <= length && i <= Len(frameText); ++i) {
    const auto c = static_cast<unsigned char>(frameText[static_cast<std::size_t>(i - 1)]);
    if (c == '\r') {
      crAt = i;
      break;
    }
    if (c > '\r') work.push_back(static_cast<char>(c));
  }
  if (Mid(work, 3, 4) == ":Fm ") {
    out.header = Mid(work, 4 - showPortInHeader);
    work.clear();
  } else {
    out.data += out.header + CRLF;  // the header is empty here: the data starts with CR LF
  }
  // No CR can be in the work line: the whole line, if any, is the first line.
  if (!work.empty()) out.firstLine += work;
  frameText = FixedLength(Mid(frameText, crAt + 1, length), kFrameTextLength);
  out.data.reserve(out.data.size() + static_cast<std::size_t>(length) + 16);
  for (long i = 1; i <= length && i <= Len(frameText); ++i) {
    const char c = frameText[static_cast<std::size_t>(i - 1)];
    if (c == '\r') {
      out.data += "\r\r\n";  // the CR doubled, on purpose: the logs carry it too
    } else {
      out.data.push_back(c);
    }
  }
  return out;
}

}  // namespace tesk
