// The LAN settings window on screen: renders the LanSetupWindow struct and writes the operator's
// edits back into it; its check boxes and buttons call the window's handlers. It holds no
// behaviour of its own.
#pragma once

#include <functional>

#include <QDialog>

#include "link/lan_setup.h"
#include "qt/views/cancelling_dialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tesk {

class LanSetupView : public CancellingDialog {
  Q_OBJECT
 public:
  explicit LanSetupView(LanSetup& lan, QWidget* parent = nullptr);
  ~LanSetupView() override;

  // Copies every field of the struct into its widget.
  void refresh();

 protected:
 private:
  QCheckBox* addCheck(CheckBox& data, const char* name, std::function<void()> handler);
  QComboBox* addList(ComboBox& data, const char* name, bool editable);
  QLineEdit* addText(TextBox& data, const char* name);

  LanSetup& m_lan;
  LanSetupWindow& m_data;
  QComboBox* m_host = nullptr;
  QComboBox* m_rx = nullptr;
  QComboBox* m_tx = nullptr;
  QLineEdit* m_port = nullptr;
  QLineEdit* m_password = nullptr;
  QCheckBox* m_enable = nullptr;
  QCheckBox* m_register = nullptr;
  QCheckBox* m_txFrames = nullptr;
  QCheckBox* m_usePassword = nullptr;
  QLabel* m_status = nullptr;
  QLabel* m_note = nullptr;
  QPushButton* m_apply = nullptr;
  QPushButton* m_cancel = nullptr;
};

}  // namespace tesk
