// The operator's operations on the MHeard list: the list box's mouse events and drag, the
// popup menu mnuMHeard, clearing and removing with their questions, and the MHeard log, which
// is the one lasting form of the list (nothing reads it back).
#include <filesystem>
#include <fstream>

#include "alarms/date_stamp.h"
#include "base/text.h"
#include "heard/mheard_list.h"

namespace tesk {

std::string MHeardList::MHeardFolder() const {
  return m_run.AppPath + "/MHeard";
}

std::string MHeardList::SelectedRow() const {
  const ListBox& box = m_main.LstMHeardList;
  if (box.listIndex < 0 || box.listIndex >= static_cast<long>(box.list.size())) return "";
  return box.list[static_cast<std::size_t>(box.listIndex)];
}

std::string MHeardList::SelectedCall() const {
  const std::string row = SelectedRow();
  return row.empty() ? "" : CallOf(row);
}

void MHeardList::LstMHeardList_DblClick() {
  if (SelectedCall().empty()) return;
  m_main.cmbFor.text = SelectedCall();
  m_main.txFocus = "cmbAPRSMessage";
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::LstMHeardList_RightPress(long row) {
  ListBox& box = m_main.LstMHeardList;
  if (row >= 0 && row < static_cast<long>(box.list.size())) box.listIndex = row;
}

void MHeardList::LstMHeardList_RightRelease() {
  m_main.menumheardoptions[55].visible = true;
  m_main.menumheardoptions[58].visible = true;
  m_main.mnuPictureViewerImg[25].visible = true;
  m_main.mnuPictureViewerImg[30].visible = true;
  m_main.mnuMHeardPopup = true;
}

void MHeardList::PopupClosed() {
  m_main.menumheardoptions[55].visible = false;
  m_main.menumheardoptions[58].visible = false;
  m_main.mnuPictureViewerImg[25].visible = false;
  m_main.mnuPictureViewerImg[30].visible = false;
  m_main.mnuMHeardPopup = false;
}

std::string MHeardList::DragText() const {
  return SelectedCall();
}

void MHeardList::Paste(ComboBox& field) {
  const std::string call = SelectedCall();
  if (call.empty()) {
    m_platform.dialogs().msgBox("Select one call from the Heard list first.", MsgButtons::Ok,
                                MsgIcon::Information, "TESK");
    return;
  }
  field.text = call;
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::menumheardoptionspaste_Click(int index) {
  if (index == 10) Paste(m_main.cmbToCall);
  if (index == 20) Paste(m_main.cmbViaCall);
  if (index == 30) Paste(m_main.cmbFor);
}

void MHeardList::menumheardoptions_Click(int index) {
  switch (index) {
    case 20:
      if (!SelectedCall().empty()) m_platform.clipboard().setText(SelectedCall());
      break;
    case 30: {
      std::string all;
      for (const std::string& row : m_main.LstMHeardList.list)
        all += row + CRLF;
      m_platform.clipboard().setText(all);
      break;
    }
    case 40:
      cmdMHeardClear_Click();
      break;
    case 45:
      RemoveSelectedCall();
      break;
    case 60:
      OpenMHeardLog();
      break;
    case 65:
      cmdMheardSave_Click();
      break;
    case 70:
      if (openViewHeard) openViewHeard();
      break;
    case 100:
      if (openSetupMHeard) openSetupMHeard();
      break;
    default:
      break;
  }
}

void MHeardList::cmdMHeardClear_Click() {
  if (m_platform.dialogs().msgBox("Do you want to erase the Heard Stations List?",
                                  MsgButtons::YesNo, MsgIcon::Question,
                                  "Clear and Reset MHeard List") != MsgResult::Yes)
    return;
  EraseList();
  // The last-heard list is emptied here and nowhere else.
  LastMHeard.fill(std::string());
  lastIndex = 0;
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::RemoveSelectedCall() {
  Dialogs& dialogs = m_platform.dialogs();
  ListBox& box = m_main.LstMHeardList;
  if (box.list.empty()) {
    dialogs.msgBox("No callsign in the Mheard list to remove", MsgButtons::Ok, MsgIcon::Information,
                   "Remove callsign");
    return;
  }
  const std::string call = SelectedCall();
  if (call.empty()) {
    dialogs.msgBox("You need to select a callsign first.", MsgButtons::Ok, MsgIcon::Information,
                   "Remove selected call from list");
    return;
  }
  if (dialogs.msgBox("Do you want to remove the callsign " + call + " from the Mheard list?",
                     MsgButtons::YesNo, MsgIcon::Question,
                     "Remove callsign from list") != MsgResult::Yes)
    return;
  if (box.listIndex < 0 || box.listIndex >= static_cast<long>(box.list.size())) return;
  box.list.erase(box.list.begin() + box.listIndex);
  box.listIndex = -1;
  count = static_cast<int16_t>(box.list.size());
  // The array takes the box's rows in their present order, so a sorted box sorts the array.
  MHeardLines.fill(std::string());
  for (std::size_t i = 0; i < box.list.size() && i < MHeardLines.size(); ++i)
    MHeardLines[i] = box.list[i];
  SetTeller(Trim(Str(static_cast<long>(box.list.size()))));
  m_platform.views().refresh(WindowKind::Main);
}

void MHeardList::OpenMHeardLog() {
  const std::string path = m_platform.dialogs().fileOpen(
      "Open MHeard Log...", "Log files (*.log)|*.log|All files (*.*)|*.*", MHeardFolder());
  if (!path.empty()) m_platform.shell().openUrl(path);
}

void MHeardList::cmdMheardSave_Click() {
  SaveRows(m_main.LstMHeardList.list);
}

void MHeardList::SaveRows(const std::vector<std::string>& rows) {
  std::error_code ec;
  std::filesystem::create_directories(MHeardFolder(), ec);
  const std::string name = "MHeard" + DateStamp(m_config, m_platform.clock()) + ".log";
  const std::string path = m_platform.dialogs().fileSave(
      "Save MHeard Log...", "Log files (*.log)|*.log", MHeardFolder(), name);
  if (path.empty()) return;
  std::string text = "[TESK Mheard Stations List: " + NowText() +
                     " * Total stations heard:" + Str(static_cast<long>(rows.size())) + " ]" + CRLF;
  for (const std::string& row : rows)
    text += Trim(row) + CRLF;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;  // a failed write passes in silence
}

}  // namespace tesk
