// The filter menu's handler and the match rule. A frame passes while "No Filters" is checked,
// or when its header holds the filter text; with no item checked (after a refused input) and
// an empty text nothing passes.
#include "core/monitor_filters.h"

#include "base/text.h"

namespace tesk {

namespace {

constexpr Color kSystemButtonFace = static_cast<Color>(0x8000000F);
constexpr Color kSystemButtonText = static_cast<Color>(0x80000012);

}  // namespace

MonitorFilters::MonitorFilters(Platform& platform, StationConfig& config, MainWindow& main)
    : m_platform(platform), m_config(config), m_main(main) {
  m_main.menufilters[0].checked = true;  // a new station shows everything
  m_main.lblMonitorFilter.toolTip = kToolTip;
  ShowNoFilter();
}

MonitorFilters::~MonitorFilters() = default;

void MonitorFilters::ShowFilter(const std::string& caption) {
  Label& label = m_main.lblMonitorFilter;
  label.caption = caption;
  label.backColor = QBColor(10);
  label.foreColor = QBColor(1);
}

void MonitorFilters::ShowNoFilter() {
  Label& label = m_main.lblMonitorFilter;
  label.caption = "No Filter";
  label.backColor = kSystemButtonFace;
  label.foreColor = kSystemButtonText;
}

bool MonitorFilters::AskFilterText() {
  Dialogs& dialogs = m_platform.dialogs();
  const std::string typed = dialogs.inputBox(kInputPrompt, kInputTitle, m_filterText);
  if (Len(typed) > kMaxFilterLength) {
    // The message keeps the spelling operators know; kept on purpose.
    dialogs.msgBox("Search string to long. Maximum 40 characters", MsgButtons::Ok,
                   MsgIcon::Exclamation, "Filter");
    return false;
  }
  if (typed.empty()) return true;
  m_filterText = UCase(Trim(typed));
  m_main.menufilters[5].checked = true;
  ShowFilter(m_filterText);
  return true;
}

void MonitorFilters::menufilters_Click(int index) {
  MenuArray& menu = m_main.menufilters;
  if (index == 15) {
    // Only this item persists a filter; the settings file takes it at its next writing.
    m_config.Filter = static_cast<int16_t>(m_filterIndex);
    m_config.FilterCall = m_filterText;
    return;
  }
  for (int i = 0; i <= 5; ++i)
    menu[i].checked = false;
  const auto takeField = [&](int item, const ComboBox& field) {
    // An empty field leaves the item unchecked and the old filter text in force.
    if (field.text.empty()) return;
    menu[item].checked = true;
    m_filterText = UCase(Trim(field.text));
    ShowFilter(m_filterText);
  };
  switch (index) {
    case 0:
      menu[0].checked = true;
      m_filterText.clear();
      ShowNoFilter();
      break;
    case 1:
      takeField(1, m_main.cmbToCall);
      break;
    case 2:
      takeField(2, m_main.cmbViaCall);
      break;
    case 3:
      menu[3].checked = true;
      m_filterText = "*";  // the mark of a used digipeater
      ShowFilter("Digipeated");
      break;
    case 5:
      if (!AskFilterText()) return;  // refused: the index stays as it was
      break;
    default:
      break;
  }
  m_filterIndex = index;
}

void MonitorFilters::SetFilterText(const std::string& text) {
  // Restored as saved, even when empty: such a filter passes nothing.
  m_filterText = text;
  m_main.menufilters[0].checked = false;
  m_main.menufilters[5].checked = true;
  m_filterIndex = 5;
  ShowFilter(text);
}

bool MonitorFilters::FilterPasses(const std::string& header) const {
  const auto none = m_main.menufilters.find(0);
  if (none != m_main.menufilters.end() && none->second.checked) return true;
  return !m_filterText.empty() && InStr(header, m_filterText) > 0;
}

void MonitorFilters::RegisterCommands(CommandTable& commands) {
  const std::pair<int, const char*> rows[] = {{0, "No Filters"},
                                              {1, "Call (To)"},
                                              {2, "Digipeater Call (Via)"},
                                              {3, "Only Digipeated Packets"},
                                              {5, "Enter Call/text..."},
                                              {15, "Save Filter Settings"}};
  for (const auto& [index, caption] : rows)
    commands.addRow(Command::menufilters, m_main.menufilters, index, caption,
                    [this](int i) { menufilters_Click(i); });
}

}  // namespace tesk
