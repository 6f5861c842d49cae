// The position setup window on screen: renders the APRSSetupWindow struct, writes the operator's
// typing back into it and hands clicks and keys to the window's handlers. It holds no behaviour
// of its own; the icons are drawn by aprs_icon_painter from the same table the handlers read.
#pragma once

#include <array>
#include <functional>

#include <QDialog>

#include "aprs/aprs_setup.h"
#include "qt/views/cancelling_dialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace tesk {

class AprsSetupView : public CancellingDialog {
  Q_OBJECT
 public:
  explicit AprsSetupView(AprsSetup& setup, QWidget* parent = nullptr);
  ~AprsSetupView() override;

  // Copies every field of the struct into its widget.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* addText(TextBox& data, const char* name, int widthChars);
  QComboBox* addDirection(ComboBox& data, const char* name);
  QPushButton* addButton(const char* name, std::function<void()> handler);
  // Runs a handler and repaints what it changed.
  void handle(const std::function<void()>& handler);

  AprsSetup& m_setup;
  APRSSetupWindow& m_data;
  QLineEdit *m_latH, *m_latM, *m_latS, *m_lonH, *m_lonM, *m_lonS;
  QComboBox *m_latDirection, *m_lonDirection;
  QLineEdit* m_maiden;
  QPushButton* m_convert;
  QCheckBox* m_compressed;
  std::array<QToolButton*, kAprsIconRows> m_icons{};
  QLabel* m_iconName;
  QCheckBox* m_userIcon;
  QLineEdit *m_userTable, *m_userCode;
  std::array<QPushButton*, kMemorySlots> m_slots{};
  QPushButton *m_ok, *m_cancel, *m_options;
};

}  // namespace tesk
