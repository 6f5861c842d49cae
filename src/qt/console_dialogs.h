// The boxes of the headless program: each box is printed as lines on the standard output and
// answered by the next line of the console input (Y, N, C, O, R, or an empty line for the
// default button; the line itself for an input box). After the end of input every box takes its
// default, so a program fed from a script or /dev/null runs on.
#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"

namespace tesk {

class ConsoleInput;

class ConsoleDialogs : public Dialogs {
 public:
  using Output = std::function<void(const std::string& utf8Line)>;
  // `out` receives each line to show, in UTF-8; by default it goes to stdout, flushed.
  explicit ConsoleDialogs(ConsoleInput& input, Output out = {});

  MsgResult msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                   const std::string& title) override;
  std::string inputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  std::string fileOpen(const std::string& title, const std::string& filter,
                       const std::string& folder) override;
  std::string fileSave(const std::string& title, const std::string& filter,
                       const std::string& folder, const std::string& name) override;
  std::optional<Color> chooseColor(Color initial) override;

 private:
  // Prints "[title] text" over as many lines as the text has, `hint` behind the last one.
  void printBox(const std::string& title, const std::string& text, const std::string& hint);
  void print(const std::string& utf8);

  ConsoleInput& m_input;
  Output m_out;
};

}  // namespace tesk
