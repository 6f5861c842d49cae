// Starting programs and handing addresses to the desktop, and the Linux stand-in for finding a
// program's window: the running process of that name owned by this user, closed with SIGTERM.
#pragma once

#include "platform/platform.h"

namespace tesk {

class QtShell : public Shell {
 public:
  int run(const std::string& commandLine, const std::string& workingDir) override;
  int openUrl(const std::string& url) override;
  int openMail(const std::string& url) override;
  long findProgramWindow(const std::string& title) override;
  void closeProgramWindow(long handle) override;

  // The process of this user whose name is `title` (its /proc comm, with or without an
  // extension such as ".exe" of a program run through Wine), or 0. Looks under `procRoot`.
  static long FindProcess(const std::string& title, const std::string& procRoot = "/proc");
};

}  // namespace tesk
