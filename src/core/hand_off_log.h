// The order in which one received frame is handed to the other subsystems. The receive path
// notes each hand-off here by name; nothing is kept unless recording is switched on, so a
// long-running station pays one test per hand-off. Tests and diagnostics read the list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tesk {

class HandOffLog {
 public:
  void note(std::string_view name) {
    if (recording) calls.emplace_back(name);
  }
  // Joins the names with ", " (handy in an assertion).
  std::string joined() const {
    std::string out;
    for (const std::string& c : calls)
      out += (out.empty() ? "" : ", ") + c;
    return out;
  }

  bool recording = false;
  std::vector<std::string> calls;
};

}  // namespace tesk
