// The program's own command-line options and its folder. The options are taken off the command
// line first; what remains is the engine command line the station reads ("/LAN", "/RUN ...").
// The program folder comes from --home, $TESK_HOME or the user's data folder, and a new one is
// filled with the shipped data files.
#pragma once

#include <string>
#include <vector>

namespace tesk {

struct AppOptions {
  bool headless = false;
  bool demo = false;
  bool help = false;
  std::string home;         // --home DIR, empty when not given
  std::string commandLine;  // the rest, joined by blanks
  std::string error;        // a malformed option, for the usage text
};

AppOptions ParseAppOptions(const std::vector<std::string>& args);

// --home, else $TESK_HOME, else ~/.local/share/tesk; no trailing "/".
std::string ResolveAppPath(const AppOptions& options);

// Creates `appPath` when missing and copies the shared files into it when it is new (or empty).
// Returns a line for the operator: what was filled from where, or what went wrong (the program
// runs on either way); empty when the folder was already in use.
std::string PrepareAppPath(const std::string& appPath, const std::string& exeDir);

extern const char* const kUsage;

}  // namespace tesk
