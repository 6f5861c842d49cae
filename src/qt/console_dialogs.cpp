// Message, input and file boxes on the console of the headless program.
#include "qt/console_dialogs.h"

#include <cstdio>
#include <vector>

#include "base/cp1252.h"
#include "base/text.h"
#include "qt/console_input.h"

namespace tesk {

namespace {

struct ButtonSet {
  const char* hint;
  std::vector<std::pair<char, MsgResult>> keys;  // the first one is the default button
};

ButtonSet ButtonsOf(MsgButtons b) {
  switch (b) {
    case MsgButtons::Ok:
      return {"(OK)", {{'O', MsgResult::Ok}}};
    case MsgButtons::OkCancel:
      return {"(O/C)", {{'O', MsgResult::Ok}, {'C', MsgResult::Cancel}}};
    case MsgButtons::YesNo:
      return {"(Y/N)", {{'Y', MsgResult::Yes}, {'N', MsgResult::No}}};
    case MsgButtons::YesNoCancel:
      return {"(Y/N/C)", {{'Y', MsgResult::Yes}, {'N', MsgResult::No}, {'C', MsgResult::Cancel}}};
    case MsgButtons::RetryCancel:
      return {"(R/C)", {{'R', MsgResult::Retry}, {'C', MsgResult::Cancel}}};
  }
  return {"(OK)", {{'O', MsgResult::Ok}}};
}

const char* ResultName(MsgResult r) {
  switch (r) {
    case MsgResult::Ok:
      return "OK";
    case MsgResult::Cancel:
      return "Cancel";
    case MsgResult::Yes:
      return "Yes";
    case MsgResult::No:
      return "No";
    case MsgResult::Retry:
      return "Retry";
    default:
      return "?";
  }
}

// The text's lines: CR LF, a lone CR or a lone LF each end one.
std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> lines(1);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  return lines;
}

}  // namespace

ConsoleDialogs::ConsoleDialogs(ConsoleInput& input, Output out)
    : m_input(input), m_out(std::move(out)) {}

void ConsoleDialogs::print(const std::string& utf8) {
  if (m_out) {
    m_out(utf8);
    return;
  }
  std::fputs(utf8.c_str(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

void ConsoleDialogs::printBox(const std::string& title, const std::string& text,
                              const std::string& hint) {
  std::vector<std::string> lines = SplitLines(text);
  lines.front() = "[" + title + "] " + lines.front();
  if (!hint.empty()) lines.back() += (lines.back().empty() ? "" : " ") + hint;
  for (const std::string& line : lines)
    print(Cp1252ToUtf8(line));
}

MsgResult ConsoleDialogs::msgBox(const std::string& text, MsgButtons buttons, MsgIcon,
                                 const std::string& title) {
  const ButtonSet set = ButtonsOf(buttons);
  printBox(title, text, set.hint);
  MsgResult result = set.keys.front().second;
  while (std::optional<std::string> line = m_input.takeLine()) {
    const std::string answer = UCase(Trim(*line));
    if (answer.empty()) break;
    // A console command typed ahead is no answer: the box takes its default button and the
    // command runs after it, rather than the box swallowing every line until it is answered.
    if (answer[0] == ':') {
      m_input.putBack(*line);
      break;
    }
    // A box with one button has nothing to choose: any line acknowledges it.
    if (set.keys.size() == 1) break;
    bool known = false;
    for (const auto& [key, value] : set.keys) {
      if (answer[0] == key) {
        result = value;
        known = true;
      }
    }
    if (known) break;
    print(std::string("? answer ") + set.hint);
  }
  print(std::string("-> ") + ResultName(result));
  return result;
}

std::string ConsoleDialogs::inputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
  printBox(title, prompt, defaultText.empty() ? "" : "[" + defaultText + "]");
  const std::optional<std::string> line = m_input.takeLine();
  if (!line || line->empty()) return defaultText;
  return *line;
}

std::string ConsoleDialogs::fileOpen(const std::string& title, const std::string&,
                                     const std::string& folder) {
  printBox(title, "file to open (folder " + folder + ", empty line cancels):", "");
  const std::optional<std::string> line = m_input.takeLine();
  return line ? *line : "";
}

std::string ConsoleDialogs::fileSave(const std::string& title, const std::string&,
                                     const std::string& folder, const std::string& name) {
  std::string suggested;
  if (!name.empty()) {
    suggested = folder.empty() || folder.back() == '/' ? folder + name : folder + "/" + name;
  }
  printBox(title, "save as:", suggested.empty() ? "" : "[" + suggested + "]");
  const std::optional<std::string> line = m_input.takeLine();
  if (!line || line->empty()) return suggested;
  return *line;
}

std::optional<Color> ConsoleDialogs::chooseColor(Color initial) {
  char now[16];
  std::snprintf(now, sizeof now, "#%02X%02X%02X", RedOf(initial), GreenOf(initial),
                BlueOf(initial));
  printBox("Color", "colour as #RRGGBB (empty line cancels):", std::string("[") + now + "]");
  const std::optional<std::string> line = m_input.takeLine();
  if (!line || line->size() != 7 || (*line)[0] != '#') return std::nullopt;
  unsigned r = 0, g = 0, b = 0;
  if (std::sscanf(line->c_str() + 1, "%2x%2x%2x", &r, &g, &b) != 3) return std::nullopt;
  return RGB(static_cast<int>(r), static_cast<int>(g), static_cast<int>(b));
}

}  // namespace tesk
