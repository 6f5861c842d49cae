// The Setup window on screen: a page list beside the pages, each page laid out from the rows of
// the control table that belong to it, the help line and Apply and Cancel. It renders the
// SetupWindow struct, writes the operator's edits back and calls the window's handlers; it holds
// no behaviour of its own.
#pragma once

#include <QDialog>
#include <map>
#include <string>
#include <vector>

#include "qt/views/cancelling_dialog.h"
#include "settings/setup.h"

class QLabel;
class QHBoxLayout;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QVBoxLayout;

namespace tesk {

class SetupView : public CancellingDialog {
  Q_OBJECT
 public:
  explicit SetupView(Setup& setup, QWidget* parent = nullptr);
  ~SetupView() override;

  // Copies every field of the struct into its widget.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // One control of the table and its widget; an option row has one widget per row.
  struct Bound {
    const SetupControl* row;
    std::vector<QWidget*> widgets;
    QLabel* caption = nullptr;  // the label beside a text or a list
  };
  QWidget* buildPage(SetupPage page);
  void addControl(QVBoxLayout* layout, QWidget* page, const SetupControl& row);
  // The line a control goes on: the one before when the table says so, else a new one.
  void placeOnLine(QVBoxLayout* layout, const SetupControl& row, QWidget* label, QWidget* field);
  void addColors(QVBoxLayout* layout, QWidget* page);
  void watch(QWidget* widget, const std::string& name);
  void changed(const SetupControl& row);
  void render(const Bound& bound);

  Setup& m_setup;
  SetupWindow& m_data;
  QListWidget* m_pages = nullptr;
  QStackedWidget* m_stack = nullptr;
  QLabel* m_help = nullptr;
  QLabel* m_heardExample = nullptr;
  QHBoxLayout* m_line = nullptr;  // the line being filled while a page is built
  bool m_lineStretches = false;
  std::vector<std::pair<Label*, QLabel*>> m_examples;
  std::vector<Bound> m_bound;
  std::map<QObject*, std::string> m_names;  // widget -> control name, for the help line
  QPushButton* m_apply = nullptr;
  QPushButton* m_cancel = nullptr;
};

}  // namespace tesk
