// The boxes of the windowed program: QMessageBox, QInputDialog, QFileDialog and QColorDialog,
// all modal over the active window. Their nested event loops keep the station's timers running,
// which the flows that wait on an open box rely on.
#pragma once

#include <QString>

#include "platform/platform.h"

namespace tesk {

class QtDialogs : public Dialogs {
 public:
  MsgResult msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                   const std::string& title) override;
  std::string inputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  std::string fileOpen(const std::string& title, const std::string& filter,
                       const std::string& folder) override;
  std::string fileSave(const std::string& title, const std::string& filter,
                       const std::string& folder, const std::string& name) override;
  std::optional<Color> chooseColor(Color initial) override;
};

// "Text files (*.txt)|*.txt|All files|*.*" as Qt writes it: "Text files (*.txt);;All files (*)".
QString ToQtFileFilter(const std::string& filter);

}  // namespace tesk
