// The filter's match rule. With no item checked and an empty text nothing passes.
#include "core/monitor_filters.h"

#include "base/text.h"

namespace tesk {

bool MonitorFilters::FilterPasses(const std::string& header) const {
  return noFilter || (!filterText.empty() && InStr(header, filterText) > 0);
}

}  // namespace tesk
