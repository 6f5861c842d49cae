// The stations heard: entry from a shown header, the last-heard list and the auto-clear.
// The array keeps the order heard; the list box may be sorted, and its row count is what the
// operator and the counter see. The list's operations live in mheard_operations.cpp.
#include "heard/mheard_list.h"

#include <algorithm>
#include <cstdlib>

#include "base/text.h"

namespace tesk {

namespace {

bool On(int v) {
  return v != 0;
}

// Bubble sort as the list has always done it: ascending, binary comparison of whole lines.
void BubbleSortAscending(std::vector<std::string>& lines) {
  for (std::size_t i = 0; i + 1 < lines.size(); ++i)
    for (std::size_t j = 0; j + 1 < lines.size() - i; ++j)
      if (lines[j] > lines[j + 1]) std::swap(lines[j], lines[j + 1]);
}

}  // namespace

MHeardList::MHeardList(Platform& platform, StationConfig& config, RunState& run, MainWindow& main)
    : m_platform(platform), m_config(config), m_run(run), m_main(main) {
  m_main.OptSort.caption = "Sort Mheard list automatically (A-Z)";
  m_main.OptUnsort.caption = "Sort in the order they are heard (time)";
  m_main.OptUnsort.value = true;
  m_main.Lblmheardautoerase.caption = "MHeard auto-erase ON";
  m_main.Lblmheardautoerase.visible = false;  // the settings show it when the clear is on
  m_main.cmdMHeardClear.toolTip = "Clear MHeard List";
  m_main.cmdMheardSave.toolTip = "Save MHeard Log...";
  m_main.cmdViewMHeardList.toolTip = "Show MHeard Stations List and Details...";
  m_main.menumheardoptionspaste[10].caption = "To:";
  m_main.menumheardoptionspaste[20].caption = "Via:";
  m_main.menumheardoptionspaste[30].caption = "For:";
  const std::pair<int, const char*> items[] = {{20, "Copy Selected Call To Clipboard"},
                                               {30, "Copy MHeard List to Clipboard"},
                                               {40, "Clear MHeard List"},
                                               {45, "Remove Selected Call From Heard List"},
                                               {60, "Open MHeard Log..."},
                                               {65, "Save MHeard Log..."},
                                               {70, "Show MHeard Stations List and Details..."},
                                               {100, "Setup MHeard..."}};
  for (const auto& [index, caption] : items)
    m_main.menumheardoptions[index].caption = caption;
  // Shown only while the list's own popup is up.
  m_main.menumheardoptions[55].visible = false;
  m_main.menumheardoptions[58].visible = false;
  m_main.mnuPictureViewerImg[25].visible = false;
  m_main.mnuPictureViewerImg[30].visible = false;
}

std::string MHeardList::CallOf(const std::string& line) {
  return Trim(Left(line, 10));
}

std::string MHeardList::NowText() const {
  const Clock& clock = m_platform.clock();
  const DateTime now = clock.localNow();
  return clock.shortDate(now) + " " + clock.longTime(now);
}

std::string MHeardList::TimeText() const {
  if (!On(m_config.ShowUTCInHeader)) return NowText();
  const Clock& clock = m_platform.clock();
  return clock.shortDate(clock.localNow()) + " | " + m_main.UTC_Klok.caption;
}

void MHeardList::AddToMheardList(const std::string& header) {
  const long port = m_config.ShowPortInHeader;
  if (LCase(Mid(header, port + 1, 2)) != "fm") return;
  const std::string field = Mid(header, port + 4, 10);
  // No blank in the field: the cut fails and the call stays empty, as it always has.
  const long blank = InStr(field, " ");
  const std::string call = blank > 0 ? Trim(Left(field, blank - 1)) : std::string();
  AddToLastMheard(call, false);
  for (int i = 0; i <= count; ++i)
    if (CallOf(MHeardLines[static_cast<std::size_t>(i)]) == call) return;
  std::string line = call;
  line.resize(std::max(line.size(), kCallWidth), ' ');
  line += TimeText();
  MHeardLines[static_cast<std::size_t>(count)] = line;
  ListBox& box = m_main.LstMHeardList;
  if (count < kMaxCount) {
    ++count;
  } else if (!box.list.empty()) {
    // Full: the box loses its first row and every new station overwrites the same last array
    // line. The array and the box then differ; kept on purpose.
    box.list.erase(box.list.begin());
    if (box.listIndex >= static_cast<long>(box.list.size())) box.listIndex = -1;
  }
  box.list.push_back(line);
  if (On(m_config.MHeard_AutoClear)) m_main.lstMHeardbak.list.push_back(line);
  if (m_main.OptSort.value) SortMHeard();
  SetTeller(Trim(Str(static_cast<long>(box.list.size()))));
  // The headless console has no list to look at: it gets a line per new station.
  m_platform.views().notice("MHeard " + m_main.StationTeller.caption + ": " + call);
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::SetTeller(const std::string& caption) {
  m_main.StationTeller.caption = caption;
  StationTeller_Change();
}

void MHeardList::StationTeller_Change() {
  const double value = Val(m_main.StationTeller.caption);
  if (value == 1) m_main.cmdTXMHeard.enabled = true;
  if (value == 0) m_main.cmdTXMHeard.enabled = false;
}

void MHeardList::AddToLastMheard(const std::string& call, bool sort) {
  if (sort) {
    std::array<std::string, kLastHeard> lines = LastMHeard;
    const auto key = [](const std::string& l) { return Trim(Mid(l, 11, 40)); };
    // Larger first, passes shrinking by one until one makes no swap.
    bool swapped = true;
    for (int end = kLastHeard - 1; swapped && end > 0; --end) {
      swapped = false;
      for (int j = 0; j < end; ++j) {
        auto& a = lines[static_cast<std::size_t>(j)];
        auto& b = lines[static_cast<std::size_t>(j + 1)];
        if (key(a) < key(b)) {
          std::swap(a, b);
          swapped = true;
        }
      }
    }
    LastMHeard = lines;
    return;
  }
  const std::string wanted = Trim(Left(call, 10));
  // A substring test: a short call inside a longer listed call is ignored too.
  if (InStr(UCase(m_config.IgnoreMheardCalls + m_config.YourCallSign), wanted) > 0) return;
  std::string line = wanted;
  line.resize(std::max(line.size(), kCallWidth), ' ');
  line += NowText();
  for (std::string& entry : LastMHeard) {
    if (CallOf(entry) == wanted) {
      entry = line;
      return;
    }
  }
  LastMHeard[static_cast<std::size_t>(lastIndex)] = line;
  lastIndex = lastIndex >= 6 ? 0 : static_cast<int16_t>(lastIndex + 1);
}

void MHeardList::SortMHeard() {
  ListBox& box = m_main.LstMHeardList;
  const std::size_t rows = std::min(box.list.size(), MHeardLines.size());
  std::vector<std::string> lines(MHeardLines.begin(),
                                 MHeardLines.begin() + static_cast<long>(rows));
  BubbleSortAscending(lines);
  box.list = lines;
  box.listIndex = -1;
}

void MHeardList::OptSort_Click() {
  m_main.OptSort.value = true;
  m_main.OptUnsort.value = false;
  SortMHeard();
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::OptUnsort_Click() {
  m_main.OptSort.value = false;
  m_main.OptUnsort.value = true;
  ListBox& box = m_main.LstMHeardList;
  const std::size_t rows = std::min(box.list.size(), MHeardLines.size());
  box.list.clear();
  box.listIndex = -1;
  for (std::size_t i = 0; i < rows; ++i)
    if (!MHeardLines[i].empty()) box.list.push_back(MHeardLines[i]);
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::EraseList() {
  MHeardLines.fill(std::string());
  count = 0;
  m_main.LstMHeardList.list.clear();
  m_main.LstMHeardList.listIndex = -1;
  SetTeller("0");
}

void MHeardList::AutoClearTick() {
  const int16_t setting = m_config.MHeard_AutoClear;
  if (setting == 0) return;
  QuietSeconds = static_cast<int16_t>((QuietSeconds + 1) % 10000);
  // Positive: that many quiet seconds while beaconing (the core zeroes the counter on each
  // frame); negative: a plain repeating period.
  if (QuietSeconds != std::abs(static_cast<int>(setting))) return;
  QuietSeconds = 0;
  EraseList();
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::RegisterCommands(CommandTable& commands) {
  const auto add = [&commands](Command command, const Control& control, std::function<void()> run) {
    commands.addClick({command}, std::move(run), WhileEnabled(control));
  };
  add(Command::cmdMHeardClear, m_main.cmdMHeardClear, [this] { cmdMHeardClear_Click(); });
  add(Command::cmdMheardSave, m_main.cmdMheardSave, [this] { cmdMheardSave_Click(); });
  add(Command::cmdViewMHeardList, m_main.cmdViewMHeardList,
      [this] { menumheardoptions_Click(70); });
  add(Command::OptSort, m_main.OptSort, [this] { OptSort_Click(); });
  add(Command::OptUnsort, m_main.OptUnsort, [this] { OptUnsort_Click(); });
  for (int i : {10, 20, 30})
    commands.addRow(Command::menumheardoptionspaste, m_main.menumheardoptionspaste, i,
                    m_main.menumheardoptionspaste[i].caption,
                    [this](int index) { menumheardoptionspaste_Click(index); });
  for (int i : {20, 30, 40, 45, 60, 65, 70, 100})
    commands.addRow(Command::menumheardoptions, m_main.menumheardoptions, i,
                    m_main.menumheardoptions[i].caption,
                    [this](int index) { menumheardoptions_Click(index); });
}

}  // namespace tesk
