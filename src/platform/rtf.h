// A small rich-text-format writer and reader for the Monitor's saves and opens: colours, bold and
// size per run, in the ANSI code page. The toolkit has none, and the files must open in the word
// processors operators use. The reader takes back everything the writer makes, the common
// subset of other programs' files, and plain text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/rich_text.h"

namespace tesk {

// The runs as one rich-text document in the font `fontName`. Line ends CR LF become paragraph
// marks; every other byte comes back as it went in.
std::string WriteRtf(const std::vector<TextRun>& runs, const std::string& fontName);

// True when the bytes start as a rich-text document does.
bool IsRtf(std::string_view bytes);

// The runs of a rich-text document; bytes that are not one are plain text in `plainStyle`.
// Groups the reader does not know (pictures, tables of styles, document info) are skipped.
std::vector<TextRun> ReadRtf(std::string_view bytes, const TextStyle& plainStyle);

}  // namespace tesk
