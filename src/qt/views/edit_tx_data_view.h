// The list editor frmEditTXData on screen: the entries with their lengths beside them in a
// second list that scrolls in step, the buttons to add, edit and remove, and OK and Cancel.
// It renders the EditTXDataWindow struct and hands every button to the editor's handlers.
#pragma once

#include <functional>

#include <QDialog>

#include "transmit/edit_tx_data.h"

class QListWidget;
class QPushButton;

namespace tesk {

class EditTXDataView : public QDialog {
  Q_OBJECT
 public:
  EditTXDataView(EditTXData& editor, QWidget* parent = nullptr);
  ~EditTXDataView() override;

  void refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  QPushButton* addButton(Button& data, const char* name, std::function<void()> handler);

  EditTXData& m_editor;
  EditTXDataWindow& m_data;
  QListWidget* m_entries = nullptr;
  QListWidget* m_lengths = nullptr;
  std::vector<std::pair<Button*, QPushButton*>> m_buttons;
  bool m_rendering = false;
};

}  // namespace tesk
