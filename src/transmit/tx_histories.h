// The shared shape of the six transmit histories: how a field's text is compared with the
// entries already there, how many entries are looked at, and what makes room for a new one.
// Kept apart from the panel so each field's rule reads as one line of settings.
#pragma once

#include <string>
#include <vector>

namespace tesk {

enum class HistoryCompare {
  UpperRightTrimmed,  // To, Message for
  UpperTrimmed,       // Via
  LowerRightTrimmed,  // Text/data
  LowerTrimmed,       // APRS comment
  RightTrimmed,       // Message: case counts
};

enum class HistoryOverflow {
  RemoveFirst,           // at the cap or more: drop entry 0, then add
  RemoveFirstKeepEmpty,  // the same, but drop entry 1 when entry 0 is the empty entry (Via)
  AddThenRemoveAtCap,    // add first, then drop the entry at index cap when over the cap
};

struct HistoryRule {
  std::size_t cap;
  HistoryCompare compare;
  HistoryOverflow overflow;
};

// Adds `text` (already normalised) to `list` unless one of the first `cap` entries matches it.
void AddHistoryEntry(std::vector<std::string>& list, const std::string& text,
                     const HistoryRule& rule);

}  // namespace tesk
