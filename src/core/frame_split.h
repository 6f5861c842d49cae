// The split of a received frame's text into its header line and its data, shared by the
// Monitor and connected mode. The engine's text is a header line, a CR, then the data.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tesk {

struct SplitFrame {
  std::string header;     // from "Fm " on (or from the port prefix); empty for other texts
  std::string data;       // what follows the first line, each CR doubled to CR CR LF
  std::string firstLine;  // the first line when it is not a header
};

// Splits `frameText` (the fixed 512-character buffer) over `length` characters. The buffer is
// left holding the text behind the first CR, padded with blanks to 512, as connected mode
// reads it afterwards.
SplitFrame SplitFrameText(std::string& frameText, long length, int showPortInHeader);

// A text brought to a fixed length: cut, or padded with blanks.
std::string FixedLength(std::string_view text, std::size_t length);

}  // namespace tesk
