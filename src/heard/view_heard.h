// The details window frmViewHeard: the stations heard in two boxes (in the order heard and
// sorted), refreshed every 30 seconds while open, with copy, save, open, setup and the look-up
// of the selected station. It holds nothing that outlives it: each fill reads the list again.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"

namespace tesk {

class MHeardList;

struct ViewHeardWindow {
  Window form = [] {
    Window w;
    w.caption = "MHeard List Details";
    return w;
  }();
  // Box 0 in the order heard, box 1 sorted; OptMHSort picks the visible one.
  std::array<ListBox, 2> LstViewHeard = [] {
    std::array<ListBox, 2> boxes;
    boxes[1].sorted = true;
    boxes[1].visible = false;
    return boxes;
  }();
  std::array<OptionButton, 2> OptMHSort = [] {
    std::array<OptionButton, 2> o;
    o[0].caption = "Heard order";
    o[0].value = true;
    o[1].caption = "Sorted";
    return o;
  }();
  Label Label4 = [] {
    Label l;
    l.caption = "MHeard Auto-Clear = ON";
    l.visible = false;
    return l;
  }();
  Label lblTotalCaption = [] {
    Label l;
    l.caption = "Total Stations Heard=";
    return l;
  }();
  Label LblTotalheard;
  Label lblColumnTitle = [] {
    Label l;
    l.caption = "First Heard @ Date && Time";
    return l;
  }();
  Button cmdcopy, cmdsave, cmdOpenmheard, Cmdheardsetup, cmdMHeardView, Command1;
  std::string fontName = "Courier New";
};

class ViewHeard {
 public:
  static constexpr const char* kWindowName = "frmViewHeard";
  static constexpr WindowKind kWindowKind = WindowKind::ViewHeard;
  static constexpr int kRefreshMs = 30000;

  ViewHeard(Platform& platform, const StationConfig& config, MainWindow& main, MHeardList& list);

  // cmdViewMHeardList and item 70 of the MHeard menu: loads, fills and shows the window.
  void Show();
  // Both boxes cleared and refilled from the list (or its hidden copy under auto-clear).
  void Fill();
  void OptMHSort_Click(int index);
  void cmdcopy_Click();
  void cmdsave_Click();
  void cmdOpenmheard_Click();
  void Cmdheardsetup_Click();
  void cmdMHeardView_Click();
  void Command1_Click();

  ViewHeardWindow& window() { return m_window; }
  Timer& timer() { return *m_timer; }
  // The station look-up of a call (a web page); comes with the look-up links.
  std::function<void(const std::string& call)> lookUpStation;

 private:
  ListBox& visibleBox();

  Platform& m_platform;
  const StationConfig& m_config;
  MainWindow& m_main;
  MHeardList& m_list;
  ViewHeardWindow m_window;
  std::unique_ptr<Timer> m_timer;  // Timer1
};

}  // namespace tesk
