// The statistics window on screen: the counts of the Monitor, the sent-frame counters, the
// history boxes, the stations heard and the engine in use, each in its own group, with the three
// buttons. It renders the window struct and forwards each press; the counting is the core's.
#pragma once

#include <QWidget>

#include "alarms/statistics.h"

class QLabel;
class QPushButton;

namespace tesk {

class StatisticsView : public QWidget {
  Q_OBJECT
 public:
  StatisticsView(Statistics& statistics, QWidget* parent = nullptr);
  ~StatisticsView() override;

  void refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void press(void (Statistics::*handler)());
  void showBusy(bool busy);

  Statistics& m_statistics;
  QLabel* m_label1 = nullptr;
  QLabel *m_txNames = nullptr, *m_txValues = nullptr;
  QLabel *m_fieldNames = nullptr, *m_fieldValues = nullptr;
  QLabel *m_heardNames = nullptr, *m_heardValues = nullptr;
  QLabel *m_status = nullptr, *m_mode = nullptr, *m_profile = nullptr;
  QPushButton *m_command1 = nullptr, *m_command2 = nullptr, *m_command3 = nullptr;
  bool m_busyShown = false;
};

}  // namespace tesk
