// The position setup's commands: the Options menu entry that opens the window, and the console's
// :position and :locator, which fill the window unseen and press OK as the operator would, so
// every check and question of OK applies to them too.
#include <sstream>
#include <vector>

#include "aprs/aprs_setup.h"
#include "base/text.h"
#include "state/command_table.h"

namespace tesk {

namespace {

constexpr const char* kPositionUsage =
    ":position LATD LATM LATS N|S LOND LONM LONS E|W [ICON] [compressed|plain]";
constexpr const char* kLocatorUsage = ":locator LOC [ICON] [compressed|plain]";
constexpr std::size_t kPositionWords = 8;
constexpr long kLocatorShortest = 4;
constexpr long kLocatorLongest = 6;

std::vector<std::string> Words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> words;
  for (std::string word; in >> word;)
    words.push_back(word);
  return words;
}

}  // namespace

bool AprsSetup::ReadChoices(const std::vector<std::string>& words, std::size_t first,
                            ConsoleChoices& choices) {
  if (words.size() < first || words.size() - first > 2) return false;
  const std::size_t extra = words.size() - first;
  std::size_t at = first;
  const auto isForm = [](const std::string& w) {
    return LCase(w) == "compressed" || LCase(w) == "plain";
  };
  if (extra == 2 || (extra == 1 && !isForm(words[at]))) {
    choices.icon = words[at++];
    if (Len(choices.icon) != 2) return false;
  }
  if (at < words.size()) {
    if (!isForm(words[at])) return false;
    choices.compressed = LCase(words[at]) == "compressed" ? 1 : 0;
  }
  return true;
}

void AprsSetup::ConsoleOk(const std::function<void()>& fill, const ConsoleChoices& choices) {
  if (!m_window.form.loaded) Form_Load();
  fill();
  if (!choices.icon.empty()) {
    int row = -1;
    for (int i = 0; i < kAprsUserIconRow; ++i) {
      if (kAprsIcons[static_cast<std::size_t>(i)].code == choices.icon) row = i;
    }
    if (row >= 0) {
      img_APRSImage_Click(row);
    } else {
      m_window.Check1.value = 1;
      m_window.Text1.text = Left(choices.icon, 1);
      m_window.Text2.text = Right(choices.icon, 1);
    }
  }
  if (choices.compressed >= 0) m_window.chkAPRSCompressed.value = choices.compressed;
  Command1_Click();
  // A Yes to "try again" or a No to the confirmation leaves the window open; nobody could
  // close it in headless mode, so the console does as Cancel.
  if (m_window.form.loaded) Command2_Click();
  ShowPosition();
}

void AprsSetup::ShowPosition() {
  m_platform.views().notice("[APRS] " + m_config.APRS);
  if (!m_config.APRSCompressed.empty())
    m_platform.views().notice("[APRSCompressed] " + m_config.APRSCompressed);
}

void AprsSetup::ConsolePosition(const std::string& argument) {
  const std::vector<std::string> w = Words(argument);
  if (w.empty()) {
    ShowPosition();
    return;
  }
  ConsoleChoices choices;
  if (w.size() < kPositionWords || !ReadChoices(w, kPositionWords, choices)) {
    m_platform.views().notice(std::string("Usage: ") + kPositionUsage);
    return;
  }
  ConsoleOk([this, &w] { setFields({w[0], w[1], w[2], w[3], w[4], w[5], w[6], w[7]}); }, choices);
}

void AprsSetup::ConsoleLocator(const std::string& argument) {
  const std::vector<std::string> w = Words(argument);
  ConsoleChoices choices;
  if (w.empty() || !ReadChoices(w, 1, choices)) {
    m_platform.views().notice(std::string("Usage: ") + kLocatorUsage);
    return;
  }
  // The field takes six characters at most, upper-cases letters and drops blanks.
  const std::string locator = Left(UCase(w[0]), kLocatorLongest);
  if (Len(locator) < kLocatorShortest) {
    // The window's Convert does nothing at all with a short locator; the console says why.
    m_platform.views().notice("A locator has 4 to 6 characters, e.g. JO20 or KN55AB");
    return;
  }
  ConsoleOk(
      [this, &locator] {
        m_window.txtMaiden.text = locator;
        CmdOkLocat_Click();
      },
      choices);
}

void AprsSetup::RegisterCommands(CommandTable& commands) {
  CommandSpec open;
  open.key = {Command::mnuAPRSSetup};
  open.caption = "APRS &Position...";
  open.handler = [this](const std::string&) { Show(); };
  commands.add(std::move(open));
  CommandSpec position;
  position.key = {Command::ConsolePosition};
  position.console = "position";
  position.usage = kPositionUsage;
  position.handler = [this](const std::string& a) { ConsolePosition(a); };
  commands.add(std::move(position));
  CommandSpec locator;
  locator.key = {Command::ConsoleLocator};
  locator.console = "locator";
  locator.usage = kLocatorUsage;
  locator.handler = [this](const std::string& a) { ConsoleLocator(a); };
  commands.add(std::move(locator));
}

}  // namespace tesk
