// The Multi-Line window on screen: one tab a page, each with its text, its length and its two
// signs, the character buttons, Send and the Default mark; below the tabs the font switch, the
// help button and Close. It renders the TXMultiLineWindow struct and hands every event to the
// window's handlers; typed text goes into the struct with CR LF line ends first.
#pragma once

#include <QDialog>
#include <array>

#include "transmit/tx_multi_line.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QToolButton;

namespace tesk {

class TxMultiLineView : public QDialog {
  Q_OBJECT
 public:
  explicit TxMultiLineView(TxMultiLineForm& multiLine, QWidget* parent = nullptr);
  ~TxMultiLineView() override;

  void refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  struct PageWidgets {
    QPlainTextEdit* text = nullptr;
    QLabel* length = nullptr;
    QLabel* maxLength = nullptr;
    QLabel* maxLines = nullptr;
    QPushButton* send = nullptr;
    QRadioButton* isDefault = nullptr;
    std::array<QPushButton*, TxMultiLineForm::kCharacterButtons> characters{};
  };
  QWidget* buildPage(int page);
  void textEdited(int page);
  void renderPage(int page);
  // Closing the window unloads it, which writes the pages.
  void unload();

  TxMultiLineForm& m_multiLine;
  TXMultiLineWindow& m_data;
  QTabWidget* m_tabs = nullptr;
  std::array<PageWidgets, kMultiLinePages> m_pages;
  QCheckBox* m_switchFont = nullptr;
  QToolButton* m_help = nullptr;
  bool m_rendering = false;
};

}  // namespace tesk
