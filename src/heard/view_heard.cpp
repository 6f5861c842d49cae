// The details window's handlers. The 30-second refresh runs only while the window is loaded.
#include "heard/view_heard.h"

#include <algorithm>

#include "base/text.h"
#include "heard/mheard_list.h"

namespace tesk {

ViewHeard::ViewHeard(Platform& platform, const StationConfig& config, MainWindow& main,
                     MHeardList& list)
    : m_platform(platform),
      m_config(config),
      m_main(main),
      m_list(list),
      m_timer(platform.loop().createTimer()) {
  m_window.cmdcopy.caption = "Copy";
  m_window.cmdsave.caption = "Save...";
  m_window.cmdOpenmheard.caption = "Open...";
  m_window.Cmdheardsetup.caption = "Setup...";
  m_window.cmdMHeardView.caption = "View Station";
  m_window.Command1.caption = "Close";
  m_timer->setInterval(kRefreshMs);
  m_timer->setHandler([this] { Fill(); });
  m_list.openViewHeard = [this] { Show(); };
}

void ViewHeard::Show() {
  m_window.form.loaded = true;
  m_window.form.visible = true;
  Fill();
  m_timer->setEnabled(true);
  m_platform.views().show(kWindowKind);
}

void ViewHeard::Fill() {
  ListBox& heard = m_window.LstViewHeard[0];
  ListBox& sorted = m_window.LstViewHeard[1];
  heard.list.clear();
  sorted.list.clear();
  heard.listIndex = sorted.listIndex = -1;
  const bool autoClear = m_config.MHeard_AutoClear != 0;
  if (autoClear) {
    heard.list = m_main.lstMHeardbak.list;
  } else {
    for (int i = 0; i < m_list.count; ++i)
      heard.list.push_back(m_list.MHeardLines[static_cast<std::size_t>(i)]);
  }
  m_window.Label4.visible = autoClear;
  sorted.list = heard.list;
  std::sort(sorted.list.begin(), sorted.list.end());
  m_window.LblTotalheard.caption = Trim(Str(static_cast<long>(heard.list.size())));
  m_platform.views().refresh(kWindowKind);
}

ListBox& ViewHeard::visibleBox() {
  return m_window.OptMHSort[1].value ? m_window.LstViewHeard[1] : m_window.LstViewHeard[0];
}

void ViewHeard::OptMHSort_Click(int index) {
  m_window.OptMHSort[0].value = index == 0;
  m_window.OptMHSort[1].value = index == 1;
  m_window.LstViewHeard[0].visible = index == 0;
  m_window.LstViewHeard[1].visible = index == 1;
  m_platform.views().refresh(kWindowKind);
}

void ViewHeard::cmdcopy_Click() {
  const ListBox& box = visibleBox();
  if (box.list.empty()) {
    m_platform.dialogs().msgBox("No heard list to copy to clipboard", MsgButtons::Ok,
                                MsgIcon::Information, "Empty MHeard List");
    return;
  }
  std::string all;
  for (const std::string& row : box.list)
    all += row + CRLF;
  m_platform.clipboard().setText(all);
}

void ViewHeard::cmdsave_Click() {
  m_list.SaveRows(visibleBox().list);
}

void ViewHeard::cmdOpenmheard_Click() {
  m_list.OpenMHeardLog();
}

void ViewHeard::Cmdheardsetup_Click() {
  if (m_list.openSetupMHeard) m_list.openSetupMHeard();
}

void ViewHeard::cmdMHeardView_Click() {
  const ListBox& box = visibleBox();
  if (box.list.empty()) {
    m_platform.dialogs().msgBox("There are no stations heard to view.", MsgButtons::Ok,
                                MsgIcon::Information, "View Station Location");
    return;
  }
  if (box.listIndex < 0 || box.listIndex >= static_cast<long>(box.list.size())) {
    m_platform.dialogs().msgBox("Please select a call from the list first.", MsgButtons::Ok,
                                MsgIcon::Information, "View Station Location");
    return;
  }
  const std::string call = MHeardList::CallOf(box.list[static_cast<std::size_t>(box.listIndex)]);
  if (lookUpStation) lookUpStation(call);
}

void ViewHeard::Command1_Click() {
  m_timer->setEnabled(false);
  m_window.form.visible = false;
  m_window.form.loaded = false;
  m_platform.views().hide(kWindowKind);
}

}  // namespace tesk
