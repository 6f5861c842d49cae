// The main window's view renders its struct: the Monitor's runs in their colours (appended
// incrementally, rebuilt on a replacement), the link lamp's colour, and the transmit fields,
// whose edits go back into the struct.
#include "qt/views/main_window_view.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>

#include "qt/qt_event_loop.h"
#include "qt/qt_test_app.h"

namespace tesk {
namespace {

constexpr Color kYellow = RGB(255, 255, 0);
constexpr Color kCyan = RGB(0, 255, 255);

// The document's text with the colour of each character, as "text|colour" pieces.
std::vector<std::pair<QString, QColor>> Pieces(const QTextDocument& doc) {
  std::vector<std::pair<QString, QColor>> out;
  for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
    for (auto it = b.begin(); !it.atEnd(); ++it) {
      const QTextFragment f = it.fragment();
      out.emplace_back(f.text(), f.charFormat().foreground().color());
    }
  }
  return out;
}

QColor PixelAt(QWidget* w, QPoint p) {
  return w->grab().toImage().pixelColor(p);
}

class MainWindowViewTest : public ::testing::Test {
 protected:
  void SetUp() override { testing::QtApp(); }
  MainWindow data;
};

TEST_F(MainWindowViewTest, TheMonitorPaintsAppendedRunsInTheirColoursAndFollowsAReplacement) {
  MainWindowView view(data);
  QtEventLoop loop;
  MonitorView& monitor = view.monitor();
  data.txtMonitor.append("Fm PA3XYZ To CQ\r\n", kYellow);
  data.txtMonitor.append("hello \xE9", kCyan);
  EXPECT_EQ(monitor.renderedLength(), 0u);  // batched: painted by the next tick of the view
  ASSERT_TRUE(
      loop.waitUntil(5, [&] { return monitor.renderedLength() == data.txtMonitor.length(); }));
  EXPECT_EQ(monitor.toPlainText(), QString::fromUtf8("Fm PA3XYZ To CQ\nhello \xC3\xA9"));
  auto pieces = Pieces(*monitor.document());
  ASSERT_EQ(pieces.size(), 2u);
  EXPECT_EQ(pieces[0].first, "Fm PA3XYZ To CQ");
  EXPECT_EQ(pieces[0].second, QColor(255, 255, 0));
  EXPECT_EQ(pieces[1].second, QColor(0, 255, 255));

  // A CR LF split over two appends is one line end; a doubled CR shows as an empty line.
  data.txtMonitor.append("\r", kCyan);
  monitor.flush();
  data.txtMonitor.append("\nx\r\r\ny\r\n", kYellow);
  monitor.flush();
  EXPECT_EQ(monitor.toPlainText(), QString::fromUtf8("Fm PA3XYZ To CQ\nhello \xC3\xA9\nx\n\ny\n"));
  EXPECT_EQ(
      monitor.document()->findBlockByNumber(2).begin().fragment().charFormat().foreground().color(),
      QColor(255, 255, 0));

  data.txtMonitor.setText("RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!", TextStyle{kCyan});
  monitor.flush();
  EXPECT_EQ(monitor.toPlainText(), "RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!");
  pieces = Pieces(*monitor.document());
  ASSERT_EQ(pieces.size(), 1u);
  EXPECT_EQ(pieces[0].second, QColor(0, 255, 255));
}

TEST_F(MainWindowViewTest, TheLinkLampShowsItsCaptionAndBackColour) {
  MainWindowView view(data);
  view.resize(900, 600);
  auto* lamp = view.findChild<QLabel*>("frmLogoTitle");
  ASSERT_NE(lamp, nullptr);
  data.frmLogoTitle.caption = "+LAN";
  data.frmLogoTitle.backColor = RGB(0, 170, 0);
  view.refresh();
  EXPECT_EQ(lamp->text(), "+LAN");
  const QPoint inside(4, lamp->height() / 2);
  EXPECT_EQ(PixelAt(lamp, inside), QColor(0, 170, 0));
  data.frmLogoTitle.backColor = 255;  // red, red in the low byte
  view.refresh();
  EXPECT_EQ(PixelAt(lamp, inside), QColor(255, 0, 0));
}

TEST_F(MainWindowViewTest, TransmitFieldsRenderTheStructAndWriteEditsBack) {
  data.cmbToCall.list = {"CQ", "APRS"};
  data.cmbToCall.text = "CQ";
  data.cmbDataText.maxLength = 80;
  data.Klok.caption = "13:05:09";
  MainWindowView view(data);
  auto* to = view.findChild<QComboBox*>("cmbToCall");
  auto* text = view.findChild<QComboBox*>("cmbDataText");
  ASSERT_NE(to, nullptr);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(to->count(), 2);
  EXPECT_EQ(to->currentText(), "CQ");
  EXPECT_EQ(text->lineEdit()->maxLength(), 80);
  EXPECT_EQ(view.findChild<QLabel*>("Klok")->text(), "13:05:09");

  text->lineEdit()->setText(QString::fromUtf8("caf\xC3\xA9"));
  EXPECT_EQ(data.cmbDataText.text, "caf\xE9");
  EXPECT_EQ(data.cmbDataText.selStart, 4);
  to->setCurrentIndex(1);
  EXPECT_EQ(data.cmbToCall.text, "APRS");
  EXPECT_EQ(data.cmbToCall.listIndex, 1);

  // A send button works only once its handler is there, and follows the struct's flag.
  auto* send = view.findChild<QPushButton*>("cmdTXDataText");
  ASSERT_NE(send, nullptr);
  EXPECT_FALSE(send->isEnabled());
  int presses = 0;
  view.setCommand({Command::cmdTXDataText}, [&] { ++presses; });
  EXPECT_TRUE(send->isEnabled());
  send->click();
  EXPECT_EQ(presses, 1);
  data.cmdTXDataText.enabled = false;
  view.refresh();
  EXPECT_FALSE(send->isEnabled());
}

}  // namespace
}  // namespace tesk

namespace tesk {
namespace {

TEST_F(MainWindowViewTest, ClosingTheWindowAsksForTheShutDownFromTheLoopAndStaysOpen) {
  MainWindowView view(data);
  QtEventLoop loop;
  int shutDowns = 0;
  view.setOnClose([&] { ++shutDowns; });
  view.show();
  EXPECT_FALSE(view.close());  // the close is refused: the shut-down ends the process itself
  EXPECT_EQ(shutDowns, 0);
  EXPECT_TRUE(loop.waitUntil(5, [&] { return shutDowns == 1; }));
  EXPECT_TRUE(view.isVisible());
}

}  // namespace
}  // namespace tesk
