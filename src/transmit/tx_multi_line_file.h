// TXMultiLine.ini: the three pages of the Multi-Line window, kept between runs in the program
// folder. Each page is written as it stands with its CR LF line ends and closed by a marker
// line; two reserved pairs follow. The reader takes LF or CR LF line ends alike.
#pragma once

#include <array>
#include <string>

namespace tesk {

inline constexpr int kMultiLinePages = 3;
inline constexpr const char* kMultiLineFile = "TXMultiLine.ini";

using MultiLinePages = std::array<std::string, kMultiLinePages>;

// The file's content for these pages.
std::string FormatMultiLineFile(const MultiLinePages& pages);
// The pages of a file's content; what is missing stays empty.
MultiLinePages ParseMultiLineFile(const std::string& content);

// A missing or unreadable file gives three empty pages.
MultiLinePages LoadMultiLineFile(const std::string& path);
// Written whole or not at all: false, and the old file as it was, when the folder refuses it.
bool SaveMultiLineFile(const std::string& path, const MultiLinePages& pages);

}  // namespace tesk
