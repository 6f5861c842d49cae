// Reports of a pass: the head byte for byte (with and without UTC, the user's own UTC, a
// position, an extra line, no stations), the frames that follow it by the answer about a
// selection, the dated files in Reports, and the mail hand-off with the address it builds and
// what a failing hand-off or an unwritable folder leaves behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "alarms/reports.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

constexpr const char* kMonitor =
    "Fm PA3ABC To CQ <UI pid=F0 Len=5 >[12:00:00]\r\nhello\r\n"
    "Fm DL1XYZ-7 To APRS Via ARISS* <UI pid=F0 Len=3 >[12:00:05]\r\nabc\r\n";
const std::string kEnd = std::string("*** End of TESK Report ***\r\n");

std::string Decoded(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '%' && i + 2 < text.size();
    out += escape ? static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16)) : text[i];
    i += escape ? 2 : 0;
  }
  return out;
}

// Subject and body of a mailto: address without a recipient, decoded; empty for another shape.
std::pair<std::string, std::string> SubjectAndBody(const std::string& url) {
  const std::string head = "mailto:?subject=";
  const std::size_t body = url.find("&body=");
  if (url.rfind(head, 0) != 0 || body == std::string::npos) return {};
  return {Decoded(url.substr(head.size(), body - head.size())), Decoded(url.substr(body + 6))};
}

class ReportsTest : public StationTest {
 protected:
  void SetUp() override {
    make();
    station->run().AppPath = home.path();
    station->run().VersionText = "5.4.4";
    config().YourCallSign = "XX9TK";
    main().UTC_Klok.caption = "11:00:00";
    main().LstMHeardList.list = {"PA3ABC               22-11-2026 11:58:00  ",
                                 "DL1XYZ-7             22-11-2026 11:59:00"};
    main().txtMonitor.append(kMonitor, kMonitorStyle);
  }
  StationConfig& config() { return station->config(); }
  MainWindow& main() { return station->mainWindow(); }
  Reports& reports() { return station->parts().reports; }
  SimDialogs& dialogs() { return platform.simDialogs; }
  std::string reportPath(const std::string& tail) { return home.file("Reports/TESKReport" + tail); }
  // Selects "hello" and the line end after it.
  void selectHello() {
    const std::string text = main().txtMonitor.text();
    main().txtMonitor.setSelection(text.find("hello"), 7);
  }

  static constexpr TextStyle kMonitorStyle{0x00FFFF, false, 9};
};

TEST_F(ReportsTest, TheHeadWithoutUtcMarksTheSystemTimeAndCarriesTheExtraLine) {
  config().ShowUTCInHeader = 0;
  config().ExtraInfoReports = "Portable on the dike, 5 W";
  EXPECT_EQ(reports().PrepareReport(),
            "Report TESK v5.4.4\r\n"
            "------------------\r\n"
            "Report Save Date=22-11-2026 * SystemTime=12:00:00 UTC=11:00\r\n"
            "\r\n"
            "Callsign :XX9TK\r\n"
            "Portable on the dike, 5 W\r\n"
            "\r\n"
            "Stations Heard\r\n"
            "--------------\r\n"
            "PA3ABC               22-11-2026 11:58:00 System time\r\n"
            "DL1XYZ-7             22-11-2026 11:59:00\r\n"
            "Total Stations = 2\r\n"
            "\r\n"
            "Received Packet Frames\r\n"
            "----------------------\r\n");
}

TEST_F(ReportsTest, TheHeadWithUtcGivesThePositionAndAnEmptyListAnEmptyRow) {
  config().ShowUTCInHeader = 1;
  config().AutoDetectUTC = -1;
  config().APRS = "=5053.25N/00440.50E-";
  main().LstMHeardList.list.clear();
  EXPECT_EQ(reports().PrepareReport(),
            "Report TESK v5.4.4\r\n"
            "------------------\r\n"
            "Report Save Date=22-11-2026 * SystemTime=12:00:00 UTC=11:00 *UTC timestamp log\r\n"
            "\r\n"
            "Callsign :XX9TK\r\n"
            "Latitude :50.53.25N\r\n"
            "Longitude:004.40.50E\r\n"
            "\r\n"
            "Stations Heard\r\n"
            "--------------\r\n"
            "\r\n"
            "Total Stations = 0\r\n"
            "\r\n"
            "Received Packet Frames\r\n"
            "----------------------\r\n");
}

TEST_F(ReportsTest, TheTimeNoteFollowsTheUtcSettingsExactly) {
  config().ShowUTCInHeader = 1;
  config().AutoDetectUTC = 0;
  config().APRS = "=5053.25s/00440.50w-";
  std::string head = reports().PrepareReport();
  EXPECT_NE(head.find("UTC=11:00 *User timestamp log\r\n"), std::string::npos);
  EXPECT_NE(head.find("Latitude :50.53.25S\r\nLongitude:004.40.50W\r\n"), std::string::npos);
  EXPECT_EQ(head.find("System time"), std::string::npos);
  // UTC on, but not as 1: the times count as system time and no note is given.
  config().ShowUTCInHeader = -1;
  config().APRS = "=5053.25N/00440.50E";  // 19 characters: no position
  head = reports().PrepareReport();
  EXPECT_NE(head.find("UTC=11:00\r\n"), std::string::npos);
  EXPECT_NE(head.find("11:58:00 System time\r\n"), std::string::npos);
  EXPECT_EQ(head.find("Latitude"), std::string::npos);
}

TEST_F(ReportsTest, SaveTakesTheSelectionOrTheWholeMonitorByTheAnswer) {
  const std::string head = reports().PrepareReport();
  const std::string path = reportPath("22-11-2026.txt");
  selectHello();
  dialogs().answers = {"Y", path};
  EXPECT_EQ(reports().SaveReport(), path);
  EXPECT_EQ(dialogs().shown[0].text, Reports::kSaveQuestion);
  EXPECT_EQ(dialogs().shown[0].title, "Save");
  EXPECT_EQ(dialogs().shown[0].buttons, MsgButtons::YesNoCancel);
  // The dialog starts in Reports, made for it, with the dated name.
  EXPECT_EQ(dialogs().shown[1].kind, "save");
  EXPECT_EQ(dialogs().shown[1].text, path);
  EXPECT_TRUE(std::filesystem::is_directory(home.file("Reports")));
  EXPECT_EQ(ReadFile(path), head + "hello\r\n" + kEnd);

  // No: the whole Monitor, and the file of the same name is replaced.
  selectHello();
  dialogs().answers = {"N", path};
  reports().SaveReport();
  EXPECT_EQ(ReadFile(path), head + kMonitor + kEnd);

  // Cancel: no dialog, the file stays.
  selectHello();
  dialogs().shown.clear();
  dialogs().answers = {"C", home.file("other.txt")};
  EXPECT_EQ(reports().SaveReport(), "");
  EXPECT_EQ(dialogs().shown.size(), 1u);
  EXPECT_EQ(ReadFile(path), head + kMonitor + kEnd);

  // Cancelled file dialog: nothing written.
  dialogs().answers = {"N", ""};
  EXPECT_EQ(reports().SaveReport(), "");
  EXPECT_FALSE(std::filesystem::exists(home.file("other.txt")));
}

TEST_F(ReportsTest, WithoutASelectionNoQuestionIsAskedAndTheWholeMonitorFollowsTheHead) {
  const std::string path = home.file("mine.txt");
  WriteFile(path, "an older report that is longer than the new one will be, by far, by far...");
  main().txtMonitor.setSelection(main().txtMonitor.length(), 0);
  dialogs().answers = {path};
  reports().SaveReport();
  ASSERT_EQ(dialogs().shown.size(), 1u);
  EXPECT_EQ(dialogs().shown[0].kind, "save");
  EXPECT_EQ(ReadFile(path), reports().PrepareReport() + kMonitor + kEnd);
}

TEST_F(ReportsTest, MailWritesTheFileWithTwoUnderscoresAndHandsItsPathToTheMailProgram) {
  selectHello();
  dialogs().answers = {"Y"};
  const std::string path = reportPath("22-11-2026__.txt");
  EXPECT_EQ(reports().MailReport(), path);
  EXPECT_EQ(dialogs().shown[0].text, Reports::kMailQuestion);
  EXPECT_EQ(ReadFile(path), reports().PrepareReport() + "hello\r\n" + kEnd);
  ASSERT_EQ(platform.simShell.mails.size(), 1u);
  const std::string& url = platform.simShell.mails[0];
  EXPECT_EQ(url.find(' '), std::string::npos);  // blanks encoded too
  EXPECT_EQ(SubjectAndBody(url), std::make_pair(path + " ", path + " Attached"));
  EXPECT_TRUE(platform.simViews.notices.empty());
  // A program folder with blanks and an ampersand still gives one subject and one body.
  const std::string odd = "/tmp/my reports & more/TESKReport1__.txt";
  EXPECT_EQ(SubjectAndBody(Reports::MailtoUrl(odd)), std::make_pair(odd + " ", odd + " Attached"));

  // Cancel: no file, no mail.
  std::filesystem::remove(path);
  selectHello();
  dialogs().answers = {"C"};
  EXPECT_EQ(reports().MailReport(), "");
  EXPECT_FALSE(std::filesystem::exists(path));
  EXPECT_EQ(platform.simShell.mails.size(), 1u);
}

TEST_F(ReportsTest, AFailingHandOffKeepsTheFileAndSaysSoOnce) {
  platform.simShell.openMailResult = 2;
  main().txtMonitor.setSelection(0, 0);
  const std::string path = reportPath("22-11-2026__.txt");
  reports().MailReport();
  EXPECT_EQ(ReadFile(path), reports().PrepareReport() + kMonitor + kEnd);
  const MeldWindow& meld = station->parts().meld.window();
  EXPECT_TRUE(meld.form.visible);
  EXPECT_NE(meld.lblMelding.caption.find(path), std::string::npos);
  EXPECT_EQ(platform.simShell.mails.size(), 1u);
}

TEST_F(ReportsTest, AReportThatCannotBeWrittenIsOneNoteAndNoMail) {
  // A file where the folder Reports should be: nothing can go beneath it.
  WriteFile(home.file("Reports"), "not a folder");
  reports().MailReport();
  const MeldWindow& meld = station->parts().meld.window();
  EXPECT_NE(meld.lblMelding.caption.find(reportPath("22-11-2026__.txt")), std::string::npos);
  EXPECT_TRUE(platform.simShell.mails.empty());
  dialogs().answers = {reportPath("22-11-2026.txt")};
  EXPECT_EQ(reports().SaveReport(), "");
  EXPECT_EQ(ReadFile(home.file("Reports")), "not a folder");
}

TEST_F(ReportsTest, TheFileMenuAndTheConsoleRunTheSameRoutines) {
  CommandTable& table = station->commands();
  main().txtMonitor.setSelection(0, 0);
  EXPECT_TRUE(table.run({Command::menufiles, 50}));
  EXPECT_EQ(platform.simShell.mails.size(), 1u);
  dialogs().answers = {reportPath("x.txt")};
  station->consoleLine(":report save");
  EXPECT_EQ(platform.simViews.notices.back(), "Report saved: " + reportPath("x.txt"));
  station->consoleLine(":report mail");
  EXPECT_EQ(platform.simViews.notices.back(), "Report written: " + reportPath("22-11-2026__.txt"));
  station->consoleLine(":report");
  EXPECT_EQ(platform.simViews.notices.back(), "Usage: :report save|mail");
}

}  // namespace
}  // namespace tesk::testing
