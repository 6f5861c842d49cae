// Thin helpers over the platform that many routines call by name: the registry stand-in, the
// program-window finder, file tests, the browser hand-off and the one-line file writer.
#pragma once

#include <string>

#include "platform/platform.h"

namespace tesk {

// Empty when the key or value is missing; the text is cut at its first NUL.
std::string ReadRegistryValue(Store& store, Hive hive, const std::string& key,
                              const std::string& name);
// Creates the key if needed; the value is cut at its first NUL.
void WriteRegistryValue(Store& store, Hive hive, const std::string& key, const std::string& name,
                        const std::string& text);
// The handle of the program "window" with exactly this title, or 0.
long FindTopWindow(Shell& shell, const std::string& title);
// True when the file can be opened for reading.
bool FileExists(const std::string& path);
// Hands the address to the browser; on failure tells the operator with the error number.
void OpenWebPage(Platform& platform, const std::string& url);
// Mode 0 replaces the file with the text (no line end); another mode appends text + CR LF.
// Errors are ignored.
void WriteTextFile(const std::string& text, const std::string& path, int mode);
// Joins a folder and a name with one "/".
std::string JoinPath(const std::string& folder, const std::string& name);

}  // namespace tesk
