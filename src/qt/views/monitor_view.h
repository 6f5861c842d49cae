// The Monitor on screen: a QPlainTextEdit that follows the Monitor's RichText through its
// change notices. Appends are added at the end of the document in their runs' colours, a
// replaced text is rebuilt; changes are collected and painted at most every 100 ms, so a burst
// of frames during a pass costs one repaint. While the Monitor is unlocked the operator types
// in the document, and each edit is handed to the station, which makes it in the RichText too.
#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <functional>
#include <string>
#include <string_view>

#include "platform/rich_text.h"

namespace tesk {

// Positions between the RichText, where a line end CR LF is two characters, and the document,
// where every line end is one: CR LF, a lone CR and a lone LF each show as one newline.
std::size_t DocPosition(std::string_view text, std::size_t textPos);
std::size_t TextPosition(std::string_view text, std::size_t docPos);

struct MonitorLook {
  Color background = RGB(0, 0, 64);
  std::string fontName = "Fixedsys";  // an old setting: the system's fixed-width font stands in
  int fontSize = 9;
  bool fontBold = false;
};

// The font to use for `look`: the named family if the system has it, else the fixed-width
// system font.
QFont MonitorFont(const MonitorLook& look);

class MonitorView : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit MonitorView(RichText& text, QWidget* parent = nullptr);
  ~MonitorView() override;

  // What the operator does in the text, for the station's handlers; each may be left empty.
  struct Handlers {
    std::function<void()> keyPress;  // a character typed while the Monitor is unlocked
    // The operator's typing replaced `removed` characters at `at` (RichText positions).
    std::function<void(std::size_t at, std::size_t removed, const std::string& text)> change;
    std::function<void()> undo;                     // the undo key
    std::function<void(QPoint global)> rightPress;  // the right button: the Monitor's menu
  };

  void setLook(const MonitorLook& look);
  void setHandlers(Handlers handlers) { m_handlers = std::move(handlers); }
  // The "Scroll" box: new text brings the end into view.
  void setFollow(bool on) { m_follow = on; }
  // Unlocked for editing: the operator may type.
  void setEditable(bool on);
  // Paints what changed now, without waiting for the batch timer.
  void flush();
  // Characters of the RichText that the document shows.
  std::size_t renderedLength() const { return m_rendered; }
  // The operator's selection into the RichText (before a handler reads it), and the RichText's
  // selection onto the screen (after a handler moved it).
  void writeSelectionBack();
  void showModelSelection();

  static constexpr int kBatchMs = 100;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void onChange(const RichText::Change& change);
  void onDocumentChange(int position, int removed, int added);
  void rebuild();
  void appendFrom(std::size_t from);

  RichText& m_text;
  QTimer m_batch;
  Handlers m_handlers;
  std::size_t m_rendered = 0;
  bool m_resetPending = true;
  bool m_lastWasCr = false;  // a CR painted last: an LF right behind it is the same line end
  bool m_follow = true;
  bool m_painting = false;   // the document changes because the RichText did
  bool m_mirroring = false;  // the RichText changes because the operator typed
};

}  // namespace tesk
