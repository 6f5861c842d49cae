// Direct mode, first cut: no engine library on this platform yet, so the start reports none.
#include "link/agw_direct.h"

namespace tesk {

int16_t AgwDirect::AGWStartPoll(const std::string&, const std::string&, int32_t, int32_t) {
  ++m_startPolls;
  return 0;
}

void AgwDirect::AGWClose() { ++m_closes; }

int16_t AgwDirect::AGWPutData(const std::string&, const std::string&, int32_t, int32_t, int32_t) {
  ++m_puts;
  return 0;
}

int16_t AgwDirect::AGWGetData(std::string&, std::string&, int32_t&, int32_t&, int32_t&) {
  return 0;
}

}  // namespace tesk
