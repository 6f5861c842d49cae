// The duplicate test and the overflow rules of the transmit histories.
#include "transmit/tx_histories.h"

#include <algorithm>

#include "base/text.h"

namespace tesk {

std::string HistoryKey(const std::string& entry, HistoryCompare compare) {
  switch (compare) {
    case HistoryCompare::UpperRightTrimmed:
      return UCase(RTrim(entry));
    case HistoryCompare::UpperTrimmed:
      return UCase(Trim(entry));
    case HistoryCompare::LowerRightTrimmed:
      return LCase(RTrim(entry));
    case HistoryCompare::LowerTrimmed:
      return LCase(Trim(entry));
    case HistoryCompare::RightTrimmed:
      return RTrim(entry);
  }
  return entry;
}

void AddHistoryEntry(std::vector<std::string>& list, const std::string& text,
                     const HistoryRule& rule) {
  const std::string key = HistoryKey(text, rule.compare);
  // Entries beyond the cap (a longer list read from an old file) are not looked at.
  const std::size_t walk = std::min(list.size(), rule.cap);
  for (std::size_t i = 0; i < walk; ++i) {
    if (HistoryKey(list[i], rule.compare) == key) return;
  }
  switch (rule.overflow) {
    case HistoryOverflow::RemoveFirst:
      if (list.size() >= rule.cap) list.erase(list.begin());
      list.push_back(text);
      break;
    case HistoryOverflow::RemoveFirstKeepEmpty:
      if (list.size() >= rule.cap) list.erase(list.begin() + (list.front().empty() ? 1 : 0));
      list.push_back(text);
      break;
    case HistoryOverflow::AddThenRemoveAtCap:
      // Kept on purpose: in a full list the entry removed is the one just added, so a full
      // history keeps its old entries and the new text is not remembered.
      list.push_back(text);
      if (list.size() > rule.cap) list.erase(list.begin() + static_cast<long>(rule.cap));
      break;
  }
}

}  // namespace tesk
