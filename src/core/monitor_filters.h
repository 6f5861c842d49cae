// The Monitor filter: one text that a frame's header must hold to be shown, listed, counted
// and logged. The filter menu arrives with the Monitor operations; until then "No Filters"
// stays chosen and every frame passes.
#pragma once

#include <string>

namespace tesk {

class MonitorFilters {
 public:
  // The match rule, at each frame: the header as received, case-sensitive.
  bool FilterPasses(const std::string& header) const;

  bool noFilter = true;    // the "No Filters" item of the filter menu is checked
  std::string filterText;  // upper-cased and trimmed when set
};

}  // namespace tesk
