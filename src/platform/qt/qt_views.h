// The windows of the program. The windowed program creates the Qt view of a window the first
// time the station shows it and repaints it on refresh; the headless program has no windows and
// prints the station's notices as lines instead.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "platform/platform.h"
#include "platform/qt/views/monitor_view.h"

class QSplashScreen;

namespace tesk {

struct MainWindow;
class MainWindowView;
class LanSetup;
class LanSetupView;
class EditTXDataView;
class MeldView;
class ViewHeardView;
class FindView;

class QtViews : public Views {
 public:
  QtViews();
  ~QtViews() override;
  void show(const std::string& window) override;
  void hide(const std::string& window) override;
  void refresh(const std::string& window) override;
  void notice(const std::string&) override {}

  // The main window's data, the look of its Monitor (asked each time the window is shown, as
  // the settings are read by then) and what closing it does.
  void attachMainWindow(MainWindow& data, std::function<MonitorLook()> look,
                        std::function<void()> onClose);
  MainWindowView* mainView() { return m_main.get(); }
  // The LAN settings window, opened from the main window's Options menu.
  void attachLanSetup(LanSetup& lan);
  LanSetupView* lanSetupView() { return m_lanSetup.get(); }
  // The line under the title on the splash picture (the version), asked when it is shown.
  void setSplashText(std::function<std::string()> text) { m_splashText = std::move(text); }
  // The note window, made the first time a note is shown (the station's note through the main
  // window's data).
  MeldView* meldView() { return m_meld.get(); }
  // The MHeard details window, made the first time it is shown.
  ViewHeardView* viewHeardView() { return m_viewHeard.get(); }

 private:
  MainWindowView& ensureMain();
  // The find window, on the Monitor or the terminal's text.
  void showFind();
  // The list editor of the transmit histories, reached through the main window's panel.
  EditTXDataView* ensureEditTXData();
  // Shows the note beside the Monitor without taking the focus.
  void showMeld();

  MainWindow* m_mainData = nullptr;
  std::function<MonitorLook()> m_look;
  std::function<void()> m_onClose;
  std::unique_ptr<MainWindowView> m_main;
  LanSetup* m_lanData = nullptr;
  std::unique_ptr<LanSetupView> m_lanSetup;  // after m_main: a child of it, destroyed first
  std::unique_ptr<EditTXDataView> m_editTXData;
  std::unique_ptr<MeldView> m_meld;            // after m_main: a child of it, destroyed first
  std::unique_ptr<ViewHeardView> m_viewHeard;  // after m_main: a child of it
  std::unique_ptr<FindView> m_find;            // frmFind, after m_main: a child of it
  std::unique_ptr<QSplashScreen> m_splash;
  std::function<std::string()> m_splashText;
};

class HeadlessViews : public Views {
 public:
  using Output = std::function<void(const std::string& utf8Line)>;
  explicit HeadlessViews(Output out = {}) : m_out(std::move(out)) {}
  void show(const std::string&) override {}
  void hide(const std::string&) override {}
  void refresh(const std::string&) override {}
  void notice(const std::string& text) override;

 private:
  Output m_out;
};

}  // namespace tesk
