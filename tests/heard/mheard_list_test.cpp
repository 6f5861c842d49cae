// The MHeard list: the call taken from a header, the full list that slides, the last-heard list
// with its ignore test, the auto-clear in virtual time (both signs, and the reset by frames
// while beaconing), removing and clearing with their questions, the log file and the details
// window with its 30-second refresh.
#include <gtest/gtest.h>

#include "core/core_fixture.h"
#include "heard/mheard_list.h"
#include "heard/view_heard.h"

namespace tesk::testing {
namespace {

std::string Header(const std::string& call, const std::string& rest = " To CQ <UI pid=F0 Len=4 >") {
  return "Fm " + call + rest;
}

std::string StationCall(int n) {
  return "ST" + FormatZeros(n, 4);
}

class MHeardTest : public CoreTest {
 protected:
  void SetUp() override {
    make("/LAN");
    station->run().AppPath = home.path();
    config().YourCallSign = "XX9TK";
  }
  MHeardList& heard() { return parts().heardList; }
  std::vector<std::string>& rows() { return main().LstMHeardList.list; }
  std::vector<std::string> calls() {
    std::vector<std::string> out;
    for (const std::string& r : rows())
      out.push_back(MHeardList::CallOf(r));
    return out;
  }
  void add(const std::string& call) { heard().AddToMheardList(Header(call)); }
  std::string lastHeardOf(const std::string& call) {
    for (const std::string& l : heard().LastMHeard)
      if (MHeardList::CallOf(l) == call) return l;
    return "";
  }
  SimDialogs& dialogs() { return platform.simDialogs; }
};

TEST_F(MHeardTest, CallIsTheSourceWithSsidAndCaseKept) {
  add("PA3ABC-1");
  add("PA3ABC-2");
  add("pa3abc-1");
  add("PA3ABC-1");                                      // known: no new row
  heard().AddToMheardList("PA3XYZ To CQ Via RS0ISS*");  // not the engine's monitor form
  EXPECT_EQ(calls(), (std::vector<std::string>{"PA3ABC-1", "PA3ABC-2", "pa3abc-1"}));
  EXPECT_EQ(heard().count, 3);
  // The line: the call padded to 21, then the first-heard time.
  EXPECT_EQ(rows()[0], "PA3ABC-1" + std::string(13, ' ') + "22-11-2026 12:00:00");
  EXPECT_EQ(main().StationTeller.caption, "3");

  // With the port prefix the call moves two places; with the UTC clock the time text changes.
  config().ShowPortInHeader = 2;
  config().ShowUTCInHeader = -1;
  main().UTC_Klok.caption = "11:00:00";
  heard().AddToMheardList("1:" + Header("DL1ZZZ"));
  EXPECT_EQ(rows().back(), "DL1ZZZ" + std::string(15, ' ') + "22-11-2026 | 11:00:00");
}

TEST_F(MHeardTest, TheListSlidesFromThe251stStation) {
  for (int i = 1; i <= 250; ++i)
    add(StationCall(i));
  EXPECT_EQ(heard().count, 250);
  EXPECT_EQ(rows().size(), 250u);
  add(StationCall(251));
  // Row 0 of the box goes, the count stays, array line 250 holds the newcomer.
  EXPECT_EQ(heard().count, 250);
  ASSERT_EQ(rows().size(), 250u);
  EXPECT_EQ(MHeardList::CallOf(rows().front()), StationCall(2));
  EXPECT_EQ(MHeardList::CallOf(rows().back()), StationCall(251));
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[250]), StationCall(251));
  add(StationCall(252));
  EXPECT_EQ(heard().count, 250);
  EXPECT_EQ(MHeardList::CallOf(rows().front()), StationCall(3));
  // The same array line is overwritten; the old 250 lines stay as they were.
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[250]), StationCall(252));
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[0]), StationCall(1));
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[249]), StationCall(250));
  EXPECT_TRUE(heard().MHeardLines[251].empty());
  EXPECT_EQ(main().StationTeller.caption, "250");
}

TEST_F(MHeardTest, KnownStationKeepsItsRowButMovesInTheLastHeardList) {
  add("PA3ABC");
  add("DL1ZZZ");
  const std::vector<std::string> before = rows();
  platform.simLoop.run(65);
  add("PA3ABC");
  EXPECT_EQ(rows(), before);
  EXPECT_EQ(lastHeardOf("PA3ABC"), "PA3ABC" + std::string(15, ' ') + "22-11-2026 12:01:05");
  EXPECT_EQ(lastHeardOf("DL1ZZZ"), "DL1ZZZ" + std::string(15, ' ') + "22-11-2026 12:00:00");
  // Sorted newest first (the date text compares as text).
  heard().AddToLastMheard("", true);
  EXPECT_EQ(MHeardList::CallOf(heard().LastMHeard[0]), "PA3ABC");
  EXPECT_EQ(MHeardList::CallOf(heard().LastMHeard[1]), "DL1ZZZ");
}

TEST_F(MHeardTest, IgnoreTestOfTheLastHeardListIsASubstringTestWithTheOwnCall) {
  config().IgnoreMheardCalls = "RS0ISS-11 PCSAT";
  for (const char* call : {"XX9TK", "RS0ISS", "ISS", "PCSAT", "DL1ZZZ"})
    add(call);
  // All are in the main list, the own call too; only DL1ZZZ made the last-heard list.
  EXPECT_EQ(rows().size(), 5u);
  int used = 0;
  for (const std::string& l : heard().LastMHeard)
    used += l.empty() ? 0 : 1;
  EXPECT_EQ(used, 1);
  EXPECT_FALSE(lastHeardOf("DL1ZZZ").empty());
  // A lower-case call is not folded, so it is not ignored.
  add("xx9tk");
  EXPECT_FALSE(lastHeardOf("xx9tk").empty());
  // Seven entries, the oldest overwritten in turn.
  for (int i = 1; i <= 6; ++i)
    add(StationCall(i));
  EXPECT_TRUE(lastHeardOf("DL1ZZZ").empty());
  EXPECT_EQ(MHeardList::CallOf(heard().LastMHeard[0]), StationCall(6));
  EXPECT_EQ(heard().lastIndex, 1);
}

TEST_F(MHeardTest, TheCounterEnablesTheHeardReportButton) {
  add("PA3ABC");
  EXPECT_TRUE(main().cmdTXMHeard.enabled);
  dialogs().answers = {"Y"};
  heard().cmdMHeardClear_Click();
  EXPECT_EQ(main().StationTeller.caption, "0");
  EXPECT_FALSE(main().cmdTXMHeard.enabled);
  add("PA3ABC");
  EXPECT_TRUE(main().cmdTXMHeard.enabled);
}

TEST_F(MHeardTest, ClearAsksAndEmptiesBothLists) {
  add("PA3ABC");
  dialogs().answers = {"N"};
  heard().menumheardoptions_Click(40);
  ASSERT_EQ(dialogs().shown.size(), 1u);
  EXPECT_EQ(dialogs().shown[0].text, "Do you want to erase the Heard Stations List?");
  EXPECT_EQ(dialogs().shown[0].title, "Clear and Reset MHeard List");
  EXPECT_EQ(rows().size(), 1u);
  dialogs().answers = {"Y"};
  heard().cmdMHeardClear_Click();
  EXPECT_TRUE(rows().empty());
  EXPECT_EQ(heard().count, 0);
  EXPECT_TRUE(heard().MHeardLines[0].empty());
  EXPECT_TRUE(lastHeardOf("PA3ABC").empty());
  add("PA3ABC");  // heard anew after a clear
  EXPECT_EQ(rows().size(), 1u);
}

TEST_F(MHeardTest, RemovingWhileSortedPutsTheArrayInSortedOrder) {
  dialogs().answers = {"O"};
  heard().RemoveSelectedCall();
  EXPECT_EQ(dialogs().shown.back().text, "No callsign in the Mheard list to remove");
  EXPECT_EQ(dialogs().shown.back().title, "Remove callsign");
  for (const char* call : {"CC1C", "AA1A", "DD1D", "BB1B"})
    add(call);
  heard().OptSort_Click();
  EXPECT_EQ(calls(), (std::vector<std::string>{"AA1A", "BB1B", "CC1C", "DD1D"}));
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[0]), "CC1C");  // the array keeps heard order
  heard().RemoveSelectedCall();
  EXPECT_EQ(dialogs().shown.back().text, "You need to select a callsign first.");
  EXPECT_EQ(dialogs().shown.back().title, "Remove selected call from list");

  main().LstMHeardList.listIndex = 2;
  dialogs().answers = {"N"};
  heard().menumheardoptions_Click(45);
  EXPECT_EQ(dialogs().shown.back().text,
            "Do you want to remove the callsign CC1C from the Mheard list?");
  EXPECT_EQ(dialogs().shown.back().title, "Remove callsign from list");
  EXPECT_EQ(rows().size(), 4u);
  main().LstMHeardList.listIndex = 2;
  dialogs().answers = {"Y"};
  heard().RemoveSelectedCall();
  EXPECT_EQ(calls(), (std::vector<std::string>{"AA1A", "BB1B", "DD1D"}));
  EXPECT_EQ(heard().count, 3);
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[0]), "AA1A");
  EXPECT_EQ(MHeardList::CallOf(heard().MHeardLines[2]), "DD1D");
  EXPECT_TRUE(heard().MHeardLines[3].empty());
  EXPECT_EQ(main().StationTeller.caption, "3");
  // Back to heard order: now the array's (sorted) order.
  heard().OptUnsort_Click();
  EXPECT_EQ(calls(), (std::vector<std::string>{"AA1A", "BB1B", "DD1D"}));
  add("CC1C");  // the removed station comes back as new
  EXPECT_EQ(calls().back(), "CC1C");
}

TEST_F(MHeardTest, PasteCopyDoubleClickAndPopup) {
  add("PA3ABC");
  add("DL1ZZZ");
  heard().menumheardoptionspaste_Click(10);
  EXPECT_EQ(dialogs().shown.back().text, "Select one call from the Heard list first.");
  heard().LstMHeardList_RightPress(1);
  heard().LstMHeardList_RightRelease();
  EXPECT_TRUE(main().mnuMHeardPopup);
  EXPECT_TRUE(main().menumheardoptions[55].visible);
  EXPECT_TRUE(main().mnuPictureViewerImg[30].visible);
  heard().PopupClosed();
  EXPECT_FALSE(main().menumheardoptions[58].visible);
  heard().menumheardoptionspaste_Click(10);
  heard().menumheardoptionspaste_Click(20);
  EXPECT_EQ(main().cmbToCall.text, "DL1ZZZ");
  EXPECT_EQ(main().cmbViaCall.text, "DL1ZZZ");
  EXPECT_EQ(heard().DragText(), "DL1ZZZ");
  heard().menumheardoptions_Click(20);
  EXPECT_EQ(platform.simClipboard.content, "DL1ZZZ");
  heard().menumheardoptions_Click(30);
  EXPECT_EQ(platform.simClipboard.content, rows()[0] + "\r\n" + rows()[1] + "\r\n");
  main().LstMHeardList.listIndex = 0;
  heard().LstMHeardList_DblClick();
  EXPECT_EQ(main().cmbFor.text, "PA3ABC");
  EXPECT_EQ(main().txFocus, "cmbAPRSMessage");
}

TEST_F(MHeardTest, SaveWritesTheHeadLineAndTheTrimmedRows) {
  add("PA3ABC");
  add("DL1ZZZ");
  const std::string path = home.file("MHeard/saved.log");
  dialogs().answers = {path};
  heard().menumheardoptions_Click(65);
  ASSERT_EQ(dialogs().shown.back().kind, "save");
  EXPECT_EQ(ReadFile(path),
            std::string(
                "[TESK Mheard Stations List: 22-11-2026 12:00:00 * Total stations heard: 2 ]\r\n") +
                rows()[0] + "\r\n" + rows()[1] + "\r\n");
  dialogs().answers = {""};  // cancelled: nothing written, nothing opened
  heard().OpenMHeardLog();
  EXPECT_TRUE(platform.simShell.urls.empty());
}

// Direct mode with the one-second clock running: frames come through the core.
class MHeardAutoClear : public CoreTest {
 protected:
  void SetUp() override {
    startDirect();
    parts().tmrKlokken->setEnabled(true);
  }
  void frame(const std::string& call) {
    script.items.push_back({EngineText("x\r", 1, call + " To CQ"), 'U'});
    tick();
  }
  std::size_t rowCount() { return main().LstMHeardList.list.size(); }
  void run(double s) { platform.simLoop.run(s); }
};

TEST_F(MHeardAutoClear, PositiveClearsAfterQuietSecondsWhileBeaconing) {
  config().MHeard_AutoClear = 5;
  config().Beacon = -1;
  frame("PA3ABC");
  run(3.5);
  frame("DL1ZZZ");  // resets the count
  run(3);
  EXPECT_EQ(rowCount(), 2u);
  run(2);  // five quiet seconds
  EXPECT_EQ(rowCount(), 0u);
  EXPECT_EQ(parts().heardList.count, 0);
  EXPECT_EQ(main().StationTeller.caption, "0");
  // The hidden copy keeps every line added under the auto-clear.
  EXPECT_EQ(main().lstMHeardbak.list.size(), 2u);
}

TEST_F(MHeardAutoClear, NegativeClearsAtFixedPeriodsEvenDuringReception) {
  config().MHeard_AutoClear = -5;
  config().Beacon = -1;
  frame("PA3ABC");
  for (int i = 0; i < 4; ++i) {
    run(1);
    frame("DL1ZZ" + std::to_string(i));
  }
  EXPECT_EQ(rowCount(), 5u);
  run(1);  // five seconds from the start, frames or not
  EXPECT_EQ(rowCount(), 0u);
  // Without the beacon a positive value is a plain period too.
  config().MHeard_AutoClear = 3;
  config().Beacon = 0;
  frame("PA3ABC");
  run(2);
  frame("PA3XYZ");
  run(1);
  EXPECT_EQ(rowCount(), 0u);
}

TEST_F(MHeardTest, DetailsWindowFillsAndRefreshesEvery30Seconds) {
  ViewHeard& view = parts().viewHeard;
  add("PA3ABC");
  heard().menumheardoptions_Click(70);
  EXPECT_EQ(platform.simViews.shownWindows.back(), ViewHeard::kWindowName);
  EXPECT_EQ(view.window().LstViewHeard[0].list.size(), 1u);
  EXPECT_FALSE(view.window().Label4.visible);
  add("AA1A");
  platform.simLoop.run(29);
  EXPECT_EQ(view.window().LblTotalheard.caption, "1");
  platform.simLoop.run(1.5);
  EXPECT_EQ(view.window().LblTotalheard.caption, "2");
  EXPECT_EQ(MHeardList::CallOf(view.window().LstViewHeard[1].list[0]), "AA1A");
  // The visible box picks the rows for copy and the selection for the look-up.
  std::string looked;
  view.lookUpStation = [&](const std::string& call) { looked = call; };
  view.cmdMHeardView_Click();
  EXPECT_EQ(dialogs().shown.back().text, "Please select a call from the list first.");
  EXPECT_EQ(dialogs().shown.back().title, "View Station Location");
  view.OptMHSort_Click(1);
  view.window().LstViewHeard[1].listIndex = 0;
  view.cmdMHeardView_Click();
  EXPECT_EQ(looked, "AA1A");
  view.cmdcopy_Click();
  EXPECT_EQ(platform.simClipboard.content.substr(0, 4), "AA1A");
  // Under auto-clear the window reads the hidden copy and says so.
  config().MHeard_AutoClear = -100;
  add("ZZ9ZZ");
  dialogs().answers = {"Y"};
  heard().cmdMHeardClear_Click();
  view.Fill();
  EXPECT_TRUE(view.window().Label4.visible);
  EXPECT_EQ(view.window().LstViewHeard[0].list.size(), 1u);
  config().MHeard_AutoClear = 0;
  view.Fill();
  view.cmdcopy_Click();
  EXPECT_EQ(dialogs().shown.back().text, "No heard list to copy to clipboard");
  EXPECT_EQ(dialogs().shown.back().title, "Empty MHeard List");
  view.cmdMHeardView_Click();
  EXPECT_EQ(dialogs().shown.back().text, "There are no stations heard to view.");
  view.Command1_Click();
  EXPECT_FALSE(view.timer().enabled());
}

}  // namespace
}  // namespace tesk::testing
