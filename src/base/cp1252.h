// The ANSI code page the station's texts are in (Windows-1252), converted to and from UTF-8 for
// the windows and the terminal. 0x80-0x9F hold the euro sign, curly quotes and dashes; the five
// unassigned codes map to the C1 control code points so that a round trip loses nothing.
#pragma once

#include <string>
#include <string_view>

namespace tesk {

std::string Cp1252ToUtf8(std::string_view ansi);
// Characters with no place in cp1252 become "?".
std::string Utf8ToCp1252(std::string_view utf8);

}  // namespace tesk
