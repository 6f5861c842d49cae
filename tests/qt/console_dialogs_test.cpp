// The headless program's boxes and console lines share one line queue on the standard input.
#include "qt/console_dialogs.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "qt/console_input.h"
#include "qt/qt_event_loop.h"
#include "qt/qt_test_app.h"

namespace tesk {
namespace {

class ConsoleDialogsTest : public ::testing::Test {
 protected:
  void SetUp() override { testing::QtApp(); }
  QtEventLoop loop;
  ConsoleInput input{loop};
  std::vector<std::string> out;
  ConsoleDialogs dialogs{input, [this](const std::string& l) { out.push_back(l); }};
};

TEST_F(ConsoleDialogsTest, BoxesTakeQueuedLinesThenDefaultsFromTheEndOfInputOn) {
  input.feed("y\r\n\nN\nmaybe\nc\nPA3XYZ\n\n");
  EXPECT_EQ(dialogs.msgBox("Run anyway?", MsgButtons::YesNoCancel, MsgIcon::Question, "T"),
            MsgResult::Yes);
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNo, MsgIcon::None, "T"), MsgResult::Yes);
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNoCancel, MsgIcon::None, "T"), MsgResult::No);
  // "maybe" is no answer: the box asks again and takes the next line.
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNoCancel, MsgIcon::None, "T"), MsgResult::Cancel);
  EXPECT_EQ(dialogs.inputBox("Call?", "T", "MYCALL"), "PA3XYZ");
  EXPECT_EQ(dialogs.inputBox("Call?", "T", "MYCALL"), "MYCALL");  // empty line: the default

  // A console command is no answer: the box takes its default and the line waits for the
  // console; a box with one button takes any other line.
  std::vector<std::string> console;
  input.setConsoleHandler([&](const std::string& l) { console.push_back(l); });
  input.setLoadPassEnded();
  loop.post([&] { input.feed(":beacon toggle\n"); });  // typed while the box waits
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNo, MsgIcon::None, "T"), MsgResult::Yes);
  EXPECT_TRUE(loop.waitUntil(5, [&] { return !console.empty(); }));
  EXPECT_EQ(console, (std::vector<std::string>{":beacon toggle"}));
  loop.post([&] { input.feed("whatever\n"); });
  EXPECT_EQ(dialogs.msgBox("Nothing to send", MsgButtons::Ok, MsgIcon::None, "T"), MsgResult::Ok);
  EXPECT_EQ(console.size(), 1u);

  input.feedEof();
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNoCancel, MsgIcon::None, "T"), MsgResult::Yes);
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::RetryCancel, MsgIcon::None, "T"), MsgResult::Retry);
  EXPECT_EQ(dialogs.inputBox("Call?", "T", ""), "");
  EXPECT_EQ(dialogs.fileOpen("Open", "*.*", "/tmp"), "");
  EXPECT_EQ(dialogs.fileSave("Save", "*.*", "/tmp", "a.txt"), "/tmp/a.txt");
}

TEST_F(ConsoleDialogsTest, ABoxPrintsItsTitleTextLinesAndButtons) {
  input.feedEof();
  dialogs.msgBox("Cannot connect!\r\nIs it running?\r\n\r\nRun anyway?", MsgButtons::YesNo,
                 MsgIcon::Question, "TESK: Software Modem Not Running");
  ASSERT_EQ(out.size(), 5u);
  EXPECT_EQ(out[0], "[TESK: Software Modem Not Running] Cannot connect!");
  EXPECT_EQ(out[1], "Is it running?");
  EXPECT_EQ(out[2], "");
  EXPECT_EQ(out[3], "Run anyway? (Y/N)");
  EXPECT_EQ(out[4], "-> Yes");
  out.clear();
  dialogs.msgBox("Caf\xE9", MsgButtons::Ok, MsgIcon::None, "T");
  EXPECT_EQ(out[0], "[T] Caf\xC3\xA9 (OK)");  // cp1252 in, UTF-8 out
}

TEST_F(ConsoleDialogsTest, LinesGoToTheConsoleAfterTheLoadPassUnlessABoxWaits) {
  std::vector<std::string> console;
  input.setConsoleHandler([&](const std::string& l) { console.push_back(l); });
  input.feed(":early\n");
  EXPECT_TRUE(console.empty());  // during the load pass lines wait
  input.setLoadPassEnded();
  EXPECT_EQ(console, (std::vector<std::string>{":early"}));

  // Through a real descriptor, as the standard input is read: a line typed while a box waits
  // answers the box, a second line typed ahead goes to the console afterwards.
  int fds[2];
  ASSERT_EQ(pipe(fds), 0);
  input.attach(fds[0]);
  loop.post([&] { ASSERT_EQ(write(fds[1], "n\n:status\n", 10), 10); });
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNo, MsgIcon::None, "T"), MsgResult::No);
  EXPECT_TRUE(loop.waitUntil(5, [&] { return console.size() == 2; }));
  EXPECT_EQ(console.back(), ":status");

  ASSERT_EQ(write(fds[1], "caf\xC3\xA9\n", 6), 6);
  EXPECT_TRUE(loop.waitUntil(5, [&] { return console.size() == 3; }));
  EXPECT_EQ(console.back(), "caf\xE9");
  close(fds[1]);  // end of input does not end anything; boxes answer by default
  EXPECT_TRUE(loop.waitUntil(5, [&] { return input.atEof(); }));
  EXPECT_EQ(dialogs.msgBox("x", MsgButtons::YesNo, MsgIcon::None, "T"), MsgResult::Yes);
  close(fds[0]);
}

}  // namespace
}  // namespace tesk
