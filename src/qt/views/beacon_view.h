// The beacon window on screen: renders the BeaconWindow struct, writes the operator's typing
// back into it key by key (so the window's own rules filter it) and hands clicks to the
// window's handlers. It holds no behaviour of its own.
#pragma once

#include <array>
#include <functional>
#include <vector>

#include <QDialog>

#include "beacon/beacon_setup.h"
#include "qt/views/cancelling_dialog.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tesk {

class BeaconView : public CancellingDialog {
  Q_OBJECT
 public:
  explicit BeaconView(BeaconSetup& setup, QWidget* parent = nullptr);
  ~BeaconView() override;

  // Copies every field of the struct into its widget.
  void refresh();

 protected:
 private:
  QCheckBox* addCheck(CheckBox& data, const char* name, std::function<void()> click);
  // A text box whose keys go through `key`, or straight into the struct without one.
  QLineEdit* addText(TextBox& data, const QString& name, std::function<void(char)> key,
                     std::function<void()> left, int widthChars);
  QPushButton* addButton(Button& data, const QString& name, std::function<void()> press);
  QWidget* buildBeacon();
  QWidget* buildItems();
  QWidget* buildTimes();
  QWidget* buildStop();
  QWidget* buildShadow();
  void handle(const std::function<void()>& handler);

  BeaconSetup& m_setup;
  BeaconWindow& m_data;
  std::vector<std::pair<QCheckBox*, CheckBox*>> m_checks;
  std::vector<std::pair<QLineEdit*, TextBox*>> m_texts;
  std::vector<std::pair<QPushButton*, Button*>> m_buttons;
  std::array<QRadioButton*, kBeaconLineChoices> m_lines{};
  QLabel* m_intervalTime = nullptr;
  QLabel* m_pcTime = nullptr;
  QComboBox* m_stop = nullptr;
  QGroupBox* m_shadow = nullptr;
};

}  // namespace tesk
