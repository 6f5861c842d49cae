// The list editor's rules: at most 25 entries in and out, the storage limit on adding, and the
// cut on editing that the window's own caption decides.
#include "transmit/edit_tx_data.h"

#include "base/text.h"

namespace tesk {

namespace {

constexpr std::size_t kListMax = 25;
constexpr std::size_t kStorageLimit = 26;

const char* const kCaptions[3] = {"Edit 'TX-Text/Data' List", "Edit 'TX-APRS Position' List",
                                  "Edit 'TX APRS-Messages' List"};

Button Captioned(const char* caption) {
  Button b;
  b.caption = caption;
  return b;
}

}  // namespace

EditTXData::EditTXData(Platform& platform, MainWindow& main) : m_platform(platform), m_main(main) {
  m_window.cmdAdd = Captioned("&Add...");
  m_window.cmdEdit = Captioned("&Edit...");
  m_window.cmdRemove = Captioned("&Remove");
  m_window.cmdRemoveAll = Captioned("Remove A&ll");
  m_window.cmdOK = Captioned("OK");
  m_window.cmdCancel = Captioned("Cancel");
}

ComboBox& EditTXData::field() {
  if (m_selector == 1) return m_main.cmbAPRSPos;
  if (m_selector == 2) return m_main.cmbAPRSMessage;
  return m_main.cmbDataText;
}

void EditTXData::Open(int selector) {
  m_selector = selector >= 0 && selector <= 2 ? selector : 0;
  m_window.form.caption = kCaptions[m_selector];
  m_window.lstTXData.list.clear();
  m_window.lstLength.list.clear();
  m_window.lstTXData.listIndex = -1;
  m_window.lstLength.listIndex = -1;
  m_window.topIndex = 0;
  const std::vector<std::string>& entries = field().list;
  for (std::size_t i = 0; i < entries.size() && i < kListMax; ++i)
    addRow(entries[i]);
  m_window.form.loaded = true;
  m_window.form.visible = true;
  m_platform.views().show(kWindowKind);
}

void EditTXData::addRow(const std::string& text) {
  m_window.lstTXData.list.push_back(text);
  m_window.lstLength.list.push_back(std::to_string(Len(text)));
}

void EditTXData::cmdAdd_Click() {
  ListBox& list = m_window.lstTXData;
  // One more than the 25 that OK puts back can be added; the 26th is lost on OK.
  if (list.list.size() >= kStorageLimit) {
    m_platform.dialogs().msgBox(
        "Maximum storage limit has been reached. Please delete one or more entries before adding "
        "a new entry.",
        MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
    return;
  }
  const std::string text = m_platform.dialogs().inputBox("Type the text:", "Add Entry", "");
  const std::string selected =
      list.listIndex >= 0 && list.listIndex < static_cast<long>(list.list.size())
          ? list.list[static_cast<std::size_t>(list.listIndex)]
          : std::string();
  if (text.empty() || text == selected) return;
  addRow(text);
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::cmdEdit_Click() {
  ListBox& list = m_window.lstTXData;
  if (list.listIndex < 0 || list.listIndex >= static_cast<long>(list.list.size())) return;
  const std::size_t row = static_cast<std::size_t>(list.listIndex);
  const std::string entry = list.list[row];
  std::string text = m_platform.dialogs().inputBox("Edit the text:", "Edit Line", entry);
  if (text.empty() || text == entry) return;
  // The cut follows the caption, not the selector. The Message caption reads "APRS-Messages",
  // so the 69 cut never matches it: kept as it is.
  const std::string& caption = m_window.form.caption;
  // A long Text/data entry was sent without a Via path and may stay long.
  if (InStr(caption, "Data") > 0) text = Left(text, Len(entry) > 80 ? 250 : 80);
  if (InStr(caption, "APRS Po") > 0) text = Left(text, 60);
  if (InStr(caption, "APRS M") > 0) text = Left(text, 69);
  list.list[row] = text;
  m_window.lstLength.list[row] = std::to_string(Len(text));
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::cmdRemove_Click() {
  ListBox& list = m_window.lstTXData;
  if (list.listIndex < 0 || list.listIndex >= static_cast<long>(list.list.size())) return;
  list.list.erase(list.list.begin() + list.listIndex);
  m_window.lstLength.list.erase(m_window.lstLength.list.begin() + list.listIndex);
  list.listIndex = -1;
  m_window.lstLength.listIndex = -1;
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::cmdRemoveAll_Click() {
  m_window.lstTXData.list.clear();
  m_window.lstLength.list.clear();
  m_window.lstTXData.listIndex = -1;
  m_window.lstLength.listIndex = -1;
  m_window.topIndex = 0;
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::cmdOK_Click() {
  ComboBox& box = field();
  const std::string text = box.text;
  box.list.clear();
  const std::vector<std::string>& rows = m_window.lstTXData.list;
  for (std::size_t i = 0; i < rows.size() && i < kListMax; ++i)
    box.list.push_back(rows[i]);
  box.listIndex = -1;
  box.text = text;
  close();
  m_platform.views().refresh(WindowKind::Main);
}

void EditTXData::cmdCancel_Click() {
  close();
}

void EditTXData::List_Click(long index) {
  m_window.lstTXData.listIndex = index;
  m_window.lstLength.listIndex = index;
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::List_Scroll(long topIndex) {
  m_window.topIndex = topIndex < 0 ? 0 : topIndex;
  m_platform.views().refresh(kWindowKind);
}

void EditTXData::close() {
  m_window.form.visible = false;
  m_window.form.loaded = false;
  m_platform.views().hide(kWindowKind);
}

}  // namespace tesk
