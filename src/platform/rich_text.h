// The rich-text control behind the Monitor and the terminal's text boxes: styled text with a
// selection, in memory. Both platforms use this one model; the Qt view renders it incrementally
// from the change notices (appends are cheap, a replacement repaints once), and headless mode
// prints appended lines. Positions are 0-based here, as the control's SelStart is.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"

namespace tesk {

struct TextStyle {
  Color color = 0;
  bool bold = false;
  int size = 0;  // points; 0 = the control's font size
  bool operator==(const TextStyle&) const = default;
};

struct TextRun {
  std::string text;
  TextStyle style;
  bool operator==(const TextRun&) const = default;
};

struct FindOptions {
  bool wholeWord = false;
  bool matchCase = false;
};

class RichText {
 public:
  struct Change {
    enum Kind { Appended, Reset } kind = Appended;
    std::size_t from = 0;  // for Appended: where the new text starts
  };
  using Listener = std::function<void(const Change&)>;

  // ---- content ----
  std::size_t length() const { return m_text.size(); }
  const std::string& text() const { return m_text; }
  std::vector<TextRun> runs() const { return runs(0, m_text.size()); }
  std::vector<TextRun> runs(std::size_t from, std::size_t count) const;
  TextStyle styleAt(std::size_t pos) const;

  // Appends at the end in a style (SelStart := Len; SelColor; SelText). Moves the caret there.
  void append(std::string_view text, const TextStyle& style);
  void append(std::string_view text, Color color) { append(text, TextStyle{color}); }
  // Replaces everything by plain text in one style.
  void setText(std::string_view text, const TextStyle& style);
  // Replaces everything by styled runs (a file opened, a range kept).
  void setRuns(const std::vector<TextRun>& runs);
  void clear() { setText("", m_defaultStyle); }

  // ---- selection and caret ----
  std::size_t selStart() const { return m_selStart; }
  std::size_t selLength() const { return m_selLength; }
  void setSelection(std::size_t start, std::size_t length);
  std::string selectedText() const;
  // Replaces the selection by `text` in `style`; the caret goes behind it.
  void replaceSelection(std::string_view text, const TextStyle& style);

  // Finds `what` from `start` (0-based); returns the position or -1. Selects the hit.
  long find(std::string_view what, std::size_t start, const FindOptions& options);

  // ---- control state ----
  bool locked() const { return m_locked; }
  void setLocked(bool on) { m_locked = on; }
  const TextStyle& defaultStyle() const { return m_defaultStyle; }
  void setDefaultStyle(const TextStyle& s) { m_defaultStyle = s; }

  // One listener per view; a second view chains through the first.
  void setListener(Listener l) { m_listener = std::move(l); }

 private:
  struct Mark {
    std::size_t start;
    TextStyle style;
  };
  void notify(Change::Kind kind, std::size_t from);
  // Adds text at the end, merging with the last mark when the style is the same; no notice.
  void appendRaw(std::string_view text, const TextStyle& style);
  // Drops marks that repeat the style of the mark before them.
  void mergeMarks();
  std::size_t markIndexAt(std::size_t pos) const;

  std::string m_text;
  std::vector<Mark> m_marks;  // style changes, sorted by start; m_marks[0].start == 0 when any
  std::size_t m_selStart = 0;
  std::size_t m_selLength = 0;
  bool m_locked = false;
  TextStyle m_defaultStyle;
  Listener m_listener;
};

}  // namespace tesk
