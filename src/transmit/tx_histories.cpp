// The duplicate test and the overflow rules of the transmit histories.
#include "transmit/tx_histories.h"

#include <algorithm>
#include <string_view>

#include "base/text.h"

namespace tesk {

namespace {

// The part of an entry its key is made of: blanks cut at the end, and at the start too where the
// rule trims both sides.
std::string_view KeyPart(std::string_view entry, HistoryCompare compare) {
  const std::size_t b = entry.find_last_not_of(' ');
  if (b == std::string_view::npos) return {};
  entry = entry.substr(0, b + 1);
  if (compare == HistoryCompare::UpperTrimmed || compare == HistoryCompare::LowerTrimmed)
    entry = entry.substr(entry.find_first_not_of(' '));
  return entry;
}

char Folded(char c, HistoryCompare compare) {
  if (compare == HistoryCompare::UpperRightTrimmed || compare == HistoryCompare::UpperTrimmed)
    return UCaseChar(c);
  if (compare == HistoryCompare::LowerRightTrimmed || compare == HistoryCompare::LowerTrimmed)
    return LCaseChar(c);
  return c;
}

// HistoryKey(a) == HistoryKey(b) without building either key: every send button walks a whole
// history with it.
bool SameKey(std::string_view a, std::string_view b, HistoryCompare compare) {
  a = KeyPart(a, compare);
  b = KeyPart(b, compare);
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (Folded(a[i], compare) != Folded(b[i], compare)) return false;
  return true;
}

}  // namespace

void AddHistoryEntry(std::vector<std::string>& list, const std::string& text,
                     const HistoryRule& rule) {
  // Entries beyond the cap (a longer list read from an old file) are not looked at.
  const std::size_t walk = std::min(list.size(), rule.cap);
  for (std::size_t i = 0; i < walk; ++i) {
    if (SameKey(list[i], text, rule.compare)) return;
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
