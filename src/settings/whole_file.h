// Reading and writing a small file in one piece. Writing goes to a temporary file in the same
// folder that is then renamed over the target, so a crash or a full disk never leaves half a
// settings file behind: the old file stays until the new one is complete.
#pragma once

#include <string>

namespace tesk {

// The whole content of a regular file; false when it is missing, a folder or unreadable.
bool ReadWholeFile(const std::string& path, std::string& content);

// Replaces the file with `content`; false (and the old file untouched) on any failure.
bool WriteWholeFile(const std::string& path, const std::string& content);

}  // namespace tesk
