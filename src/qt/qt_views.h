// The windows of the program. The windowed program keeps a registry from each window kind to
// the factory of its view: the view is made the first time the station shows that window and
// repainted on refresh. The headless program has no windows and prints the station's notices as
// lines instead.
#pragma once

#include <QString>
#include <functional>
#include <map>
#include <memory>

#include "platform/platform.h"
#include "qt/views/monitor_view.h"
#include "qt/views/view_kit.h"

class QSplashScreen;

namespace tesk {

struct MainWindow;
class AprsSetup;
class AprsSetupView;
class BeaconSetup;
class BeaconView;
class CommandTable;
class EditTXData;
class EditTXDataView;
class FindView;
class LanSetup;
class LanSetupView;
class MainWindowView;
class Meld;
class MeldView;
class Messenger;
class MessengerView;
class MonitorFind;
class TxMultiLineForm;
class TxMultiLineView;
class Setup;
class SetupView;
class Statistics;
class StatisticsView;
class ViewHeard;
class ViewHeardView;

class QtViews : public Views {
 public:
  QtViews();
  ~QtViews() override;
  void show(WindowKind window) override;
  void hide(WindowKind window) override;
  void refresh(WindowKind window) override;
  void notice(const std::string&) override {}

  // True when the registry has a view for `kind` and the data it renders is attached.
  bool hasView(WindowKind kind) const;

  // The main window's data, its commands and the handlers of its fields' events, the look of
  // its Monitor (asked each time the window is shown, as the settings are read by then) and what
  // closing it does.
  void attachMainWindow(MainWindow& data, CommandTable& commands, MainWindowHandlers handlers,
                        std::function<MonitorLook()> look, std::function<void()> onClose);
  void attachMeld(Meld& meld) { m_meldData = &meld; }
  void attachFind(MonitorFind& find) { m_findData = &find; }
  void attachViewHeard(ViewHeard& viewHeard) { m_viewHeardData = &viewHeard; }
  void attachLanSetup(LanSetup& lan) { m_lanData = &lan; }
  void attachEditTXData(EditTXData& editor) { m_editorData = &editor; }
  void attachAprsSetup(AprsSetup& setup) { m_aprsSetupData = &setup; }
  void attachTxMultiLine(TxMultiLineForm& multiLine) { m_txMultiLineData = &multiLine; }
  void attachSetup(Setup& setup) { m_setupData = &setup; }
  void attachMessenger(Messenger& messenger) { m_messengerData = &messenger; }
  void attachStatistics(Statistics& statistics) { m_statisticsData = &statistics; }
  void attachBeacon(BeaconSetup& setup) { m_beaconData = &setup; }
  // The line under the title on the splash picture (the version), asked when it is shown.
  void setSplashText(std::function<std::string()> text) { m_splashText = std::move(text); }

  MainWindowView* mainView() { return m_main.get(); }
  LanSetupView* lanSetupView() { return m_lanSetup.get(); }
  MeldView* meldView() { return m_meld.get(); }
  ViewHeardView* viewHeardView() { return m_viewHeard.get(); }
  AprsSetupView* aprsSetupView() { return m_aprsSetup.get(); }
  TxMultiLineView* txMultiLineView() { return m_txMultiLine.get(); }
  SetupView* setupView() { return m_setup.get(); }
  MessengerView* messengerView() { return m_messenger.get(); }
  StatisticsView* statisticsView() { return m_statistics.get(); }
  BeaconView* beaconView() { return m_beacon.get(); }

 private:
  // One line of the registry: whether its data is there, and how its view is shown, hidden and
  // repainted (each making the view on first use where that applies).
  struct Entry {
    std::function<bool()> ready;
    std::function<void()> show, hide, refresh;
  };
  void registerViews();
  // The hide and repaint of a view made on first use, and the whole line of a window that is a
  // child of the main window and renders `data`.
  template <typename View>
  static std::function<void()> HideOf(std::unique_ptr<View>& view);
  template <typename View>
  static std::function<void()> RefreshOf(std::unique_ptr<View>& view);
  template <typename Data, typename View>
  Entry ChildWindow(Data*& data, std::unique_ptr<View>& view, bool takeKeyboard);
  MainWindowView& ensureMain();
  void showMain();
  void showMeld();
  void showFind();
  void showSplash();
  // Raises a window over the main window and gives it the keyboard.
  static void bringUp(QWidget& view);

  std::map<WindowKind, Entry> m_registry;
  MainWindow* m_mainData = nullptr;
  CommandTable* m_commands = nullptr;
  MainWindowHandlers m_handlers;
  std::function<MonitorLook()> m_look;
  std::function<void()> m_onClose;
  Meld* m_meldData = nullptr;
  MonitorFind* m_findData = nullptr;
  ViewHeard* m_viewHeardData = nullptr;
  LanSetup* m_lanData = nullptr;
  EditTXData* m_editorData = nullptr;
  AprsSetup* m_aprsSetupData = nullptr;
  TxMultiLineForm* m_txMultiLineData = nullptr;
  Setup* m_setupData = nullptr;
  Messenger* m_messengerData = nullptr;
  Statistics* m_statisticsData = nullptr;
  BeaconSetup* m_beaconData = nullptr;
  std::unique_ptr<MainWindowView> m_main;
  // The other windows are children of the main window: destroyed before it.
  std::unique_ptr<LanSetupView> m_lanSetup;
  std::unique_ptr<EditTXDataView> m_editTXData;
  std::unique_ptr<AprsSetupView> m_aprsSetup;
  std::unique_ptr<TxMultiLineView> m_txMultiLine;
  std::unique_ptr<SetupView> m_setup;
  std::unique_ptr<StatisticsView> m_statistics;
  std::unique_ptr<BeaconView> m_beacon;
  std::unique_ptr<MeldView> m_meld;
  std::unique_ptr<ViewHeardView> m_viewHeard;
  std::unique_ptr<MessengerView> m_messenger;
  std::unique_ptr<FindView> m_find;
  std::unique_ptr<QSplashScreen> m_splash;
  std::function<std::string()> m_splashText;
};

class HeadlessViews : public Views {
 public:
  using Output = std::function<void(const std::string& utf8Line)>;
  explicit HeadlessViews(Output out = {}) : m_out(std::move(out)) {}
  // No windows: every kind is accepted and nothing is shown.
  void show(WindowKind) override {}
  void hide(WindowKind) override {}
  void refresh(WindowKind) override {}
  void notice(const std::string& text) override;

 private:
  Output m_out;
};

}  // namespace tesk
