// The list editor frmEditTXData: one window for the Text/data, APRS comment and Message
// histories, picked by a selector 0, 1 or 2. The operator adds, edits and removes entries
// beside a second list that shows each entry's length; OK puts the list back into the field.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "state/main_window.h"

namespace tesk {

struct EditTXDataWindow {
  Window form;
  ListBox lstTXData;  // the entries
  ListBox lstLength;  // the length of each entry, row by row
  long topIndex = 0;  // first row shown; both lists scroll in step
  Button cmdAdd, cmdEdit, cmdRemove, cmdRemoveAll, cmdOK, cmdCancel;
};

class EditTXData {
 public:
  static constexpr const char* kWindowName = "frmEditTXData";
  static constexpr WindowKind kWindowKind = WindowKind::EditTXData;

  EditTXData(Platform& platform, MainWindow& main);

  // Opens the window on the list of selector 0 (Text/data), 1 (APRS) or 2 (Message).
  void Open(int selector);
  int selector() const { return m_selector; }
  EditTXDataWindow& window() { return m_window; }

  void cmdAdd_Click();
  void cmdEdit_Click();
  void cmdRemove_Click();
  void cmdRemoveAll_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  // A row picked in either list: both show it.
  void List_Click(long index);
  // Either list scrolled: the other follows.
  void List_Scroll(long topIndex);

 private:
  ComboBox& field();
  void addRow(const std::string& text);
  void close();

  Platform& m_platform;
  MainWindow& m_main;
  EditTXDataWindow m_window;
  int m_selector = 0;
};

}  // namespace tesk
