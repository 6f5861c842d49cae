// The position setup window's load, its icon row, the locator conversion and OK and Cancel.
// OK checks in a fixed order (latitude, longitude, user icon, the operator's confirmation of a
// changed position) and only then rebuilds [APRS]; the memory slots are in aprs_memory_slots.
#include "aprs/aprs_setup.h"

#include "base/text.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {

constexpr int kKeySpace = 32;
constexpr int kSelected = 1;  // BorderStyle of the icon picked
// The rows an icon click clears and OK looks through: the pictured icons, not the user's row.
constexpr int kPicturedIcons = 20;

TextBox Entry(long maxLength, const std::string& toolTip) {
  TextBox t;
  t.maxLength = maxLength;
  t.toolTip = toolTip;
  return t;
}

ComboBox Directions(const std::string& first, const std::string& second) {
  ComboBox c;
  c.list = {first, second};
  return c;
}

// The window as it is designed, before its load fills it.
APRSSetupWindow DesignedWindow() {
  APRSSetupWindow w;
  w.form.caption = "APRS Position Setup";
  w.txtLatH = Entry(2, "Latitude degrees (2 digits)");
  w.txtLatM = Entry(2, "Latitude minutes (2 digits)");
  w.txtLatS = Entry(2, "Latitude hundredths of a minute (2 digits)");
  w.txtLonH = Entry(3, "Longitude degrees (3 digits)");
  w.txtLonM = Entry(2, "Longitude minutes (2 digits)");
  w.txtLonS = Entry(2, "Longitude hundredths of a minute (2 digits)");
  w.txtMaiden = Entry(6,
                      "Maidenhead (IARU) locator conversion tool (enter 4 to 6 character locator, "
                      "example: KN55AB)");
  w.CmdOkLocat.caption = "Convert";
  w.chkAPRSCompressed.caption = "Send the position compressed";
  w.Check1.caption = "User defined icon";
  w.Text1 = Entry(1, "Symbol table character of the user defined icon");
  w.Text2 = Entry(1, "Symbol code character of the user defined icon");
  for (int i = 0; i < kAprsIconRows; ++i) {
    AprsIconImage& icon = w.img_APRSImage[static_cast<std::size_t>(i)];
    icon.picture = std::string(kAprsIcons[static_cast<std::size_t>(i)].code);
    icon.toolTip = std::string(kAprsIcons[static_cast<std::size_t>(i)].name);
  }
  for (int i = 0; i < kMemorySlots; ++i) {
    Button& slot = w.CmdMem[static_cast<std::size_t>(i)];
    slot.caption = "M" + std::to_string(i + 1);
    slot.toolTip = "Memory slot " + std::to_string(i + 1) +
                   ": left click reads the position, right click stores the present one";
  }
  w.Command1.caption = "OK";
  w.Command2.caption = "Cancel";
  w.Cmdaprsetup.caption = "Options...";
  w.Cmdaprsetup.enabled = false;  // until the setup window with its APRS page exists
  return w;
}

bool AllNegative(const TextBox& a, const TextBox& b, const TextBox& c) {
  return Val(a.text) < 0 && Val(b.text) < 0 && Val(c.text) < 0;
}

}  // namespace

AprsSetup::AprsSetup(Platform& platform, StationConfig& config, RunState& run,
                     AprsSendControls controls)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_controls(controls),
      m_window(DesignedWindow()) {}

void AprsSetup::Show() {
  if (!m_window.form.loaded) Form_Load();
  m_window.form.visible = true;
  m_platform.views().show(WindowKind::APRSSetup);
}

void AprsSetup::Form_Load() {
  m_window = DesignedWindow();
  APRSSetupWindow& w = m_window;
  w.form.loaded = true;
  w.Cmdaprsetup.enabled = static_cast<bool>(openSetupAprs);
  m_loadedPosition = Left(m_config.APRS, AprsPosition::kFixedLength);
  m_loadedEnabled = m_config.APRSEnabled;
  w.cmbLatDirection = Directions("N", "S");
  w.cmbLonDirection = Directions("E", "W");
  if (Len(m_config.APRS) >= AprsPosition::kFixedLength) {
    DecodeAPRS();
    if (Len(m_config.APRSCompressed) >= 8) w.chkAPRSCompressed.value = 1;
  } else {
    markIcon(0);
  }
}

PositionFields AprsSetup::fields() const {
  const APRSSetupWindow& w = m_window;
  return {w.txtLatH.text, w.txtLatM.text, w.txtLatS.text, w.cmbLatDirection.text,
          w.txtLonH.text, w.txtLonM.text, w.txtLonS.text, w.cmbLonDirection.text};
}

void AprsSetup::setFields(const PositionFields& f) {
  APRSSetupWindow& w = m_window;
  w.txtLatH.text = f.latH;
  w.txtLatM.text = f.latM;
  w.txtLatS.text = f.latS;
  w.cmbLatDirection.text = f.latDirection;
  w.txtLonH.text = f.lonH;
  w.txtLonM.text = f.lonM;
  w.txtLonS.text = f.lonS;
  w.cmbLonDirection.text = f.lonDirection;
  refresh();
}

void AprsSetup::DecodeAPRS() {
  const std::optional<DecodedPosition> decoded = AprsPosition::DecodeAPRS(m_config.APRS);
  if (!decoded) return;
  setFields(decoded->fields);
  const std::string symbol = decoded->table + decoded->code;
  for (int i = 0; i < kAprsIconRows; ++i) {
    if (kAprsIcons[static_cast<std::size_t>(i)].code == symbol) {
      markIcon(i);
      return;
    }
  }
  m_window.Check1.value = 1;
  m_window.Text1.text = decoded->table;
  m_window.Text2.text = decoded->code;
}

void AprsSetup::Maiden2World(const std::string& locator) {
  setFields(AprsPosition::Maiden2World(locator));
}

void AprsSetup::markIcon(int index) {
  m_window.img_APRSImage[static_cast<std::size_t>(index)].BorderStyle = kSelected;
  m_window.Label2.caption = std::string(kAprsIcons[static_cast<std::size_t>(index)].name);
}

void AprsSetup::img_APRSImage_Click(int index) {
  if (index < 0 || index >= kAprsIconRows) return;
  // Only the pictured icons lose their mark: a marked user row stays marked, as it always has.
  for (int i = 0; i < kPicturedIcons; ++i)
    m_window.img_APRSImage[static_cast<std::size_t>(i)].BorderStyle = 0;
  markIcon(index);
  m_window.Check1.value = 0;
  refresh();
}

// ---- OK and Cancel ----------------------------------------------------------------------------

void AprsSetup::Command1_Click() {
  if (!checkCoordinates()) return;
  std::string table, code, iconName;
  if (!pickSymbol(table, code, iconName)) return;
  PositionFields f = fields();
  f.latDirection = UCase(Trim(f.latDirection));
  f.lonDirection = UCase(Trim(f.lonDirection));
  const std::string text = AprsPosition::PositionText(f, table, code);
  if (text != m_loadedPosition && !confirmChange(text, iconName)) return;
  m_config.APRS = text + m_run.APRSWorkingText + m_run.TagText;
  m_config.APRSEnabled = -1;
  m_controls.cmdTXAPRS.enabled = true;
  m_controls.cmbAPRSPos.enabled = true;
  m_controls.cmbAPRSPos.locked = false;
  m_controls.menusendsRow2.enabled = true;
  m_config.APRSCompressed = m_window.chkAPRSCompressed.checked()
                                ? AprsPosition::APRStoCompressed(m_config.APRS, table, code)
                                : std::string();
  Unload();
  m_platform.views().refresh(WindowKind::Main);
}

bool AprsSetup::checkCoordinates() {
  APRSSetupWindow& w = m_window;
  const auto tooShort = [](const TextBox& box) { return Len(box.text) < 2; };
  const std::string latDirection = UCase(Trim(w.cmbLatDirection.text));
  const bool latBad = tooShort(w.txtLatH) || tooShort(w.txtLatM) || tooShort(w.txtLatS) ||
                      AllNegative(w.txtLatH, w.txtLatM, w.txtLatS) ||
                      (latDirection != "N" && latDirection != "S");
  std::string& lonH = w.txtLonH.text;
  if (Len(lonH) == 2) lonH = "0" + lonH;
  if (Len(lonH) == 1) lonH = "00" + lonH;
  const std::string lonDirection = UCase(Trim(w.cmbLonDirection.text));
  const bool lonBad = lonH.empty() || tooShort(w.txtLonM) || tooShort(w.txtLonS) ||
                      AllNegative(w.txtLonH, w.txtLonM, w.txtLonS) ||
                      (lonDirection != "E" && lonDirection != "W");
  if (!latBad && !lonBad) return true;

  std::string text;
  if (latBad) text += std::string("The Latitude is not in the correct format.") + CRLF;
  if (lonBad) text += std::string("The Longitude is not in the correct format.") + CRLF;
  text += std::string(CRLF) + "Do you want to try to enter your coordinates again?";
  if (m_platform.dialogs().msgBox(text, MsgButtons::YesNo, MsgIcon::Exclamation,
                                  "APRS coordinates not correct") == MsgResult::Yes) {
    w.focus = latBad ? "txtLatH" : "txtLonH";
    refresh();
    return false;
  }
  m_config.APRSEnabled = 0;
  Unload();
  return false;
}

bool AprsSetup::pickSymbol(std::string& table, std::string& code, std::string& name) {
  table = "\\";
  code = "S";
  name.clear();
  for (int i = 0; i < kPicturedIcons; ++i) {
    if (m_window.img_APRSImage[static_cast<std::size_t>(i)].BorderStyle != kSelected) continue;
    const AprsIconRow& row = kAprsIcons[static_cast<std::size_t>(i)];
    table = Left(row.code, 1);
    code = Right(row.code, 1);
    name = std::string(row.name);
  }
  if (!m_window.Check1.checked()) return true;
  if (m_window.Text1.text.empty() || m_window.Text2.text.empty()) {
    m_platform.dialogs().msgBox("Invalid entry in the user defined icon values.", MsgButtons::Ok,
                                MsgIcon::Exclamation, "Invalid user icon character");
    return false;
  }
  table = m_window.Text1.text;
  code = m_window.Text2.text;
  name = code + " " + table + " ";
  return true;
}

bool AprsSetup::confirmChange(const std::string& text, const std::string& iconName) {
  const std::string question =
      "Your latitude is: " + Mid(text, 2, 8) + CRLF + "Your longitude is: " + Mid(text, 11, 9) +
      CRLF + "Your selected Icon is: " + iconName + CRLF + CRLF + "Is this correct?";
  return m_platform.dialogs().msgBox(question, MsgButtons::YesNo, MsgIcon::Question,
                                     "APRS Setup complete") == MsgResult::Yes;
}

void AprsSetup::Cmdaprsetup_Click() {
  if (openSetupAprs) openSetupAprs();
}

void AprsSetup::Command2_Click() {
  m_config.APRSEnabled = m_loadedEnabled;
  Unload();
}

// ---- the locator ------------------------------------------------------------------------------

void AprsSetup::CmdOkLocat_Click() {
  const std::string locator = Trim(m_window.txtMaiden.text);
  if (Len(locator) < 4) return;
  Maiden2World(locator);
}

bool AprsSetup::txtMaiden_KeyDown(int keyCode) {
  if (keyCode != kKeyReturn) return false;
  CmdOkLocat_Click();
  return true;
}

void AprsSetup::txtMaiden_KeyUp(int keyCode) {
  TextBox& box = m_window.txtMaiden;
  if (keyCode == kKeySpace) {
    const long before = Len(Replace(Left(box.text, box.selStart), " ", ""));
    box.text = Replace(box.text, " ", "");
    box.selStart = before;
    box.selLength = 0;
  } else if (keyCode >= kKeyA && keyCode <= kKeyZ) {
    box.text = UCase(box.text);
  } else {
    return;
  }
  refresh();
}

// ---- the window's life ------------------------------------------------------------------------

void AprsSetup::Unload() {
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_platform.views().hide(WindowKind::APRSSetup);
}

void AprsSetup::refresh() {
  if (m_window.form.loaded) m_platform.views().refresh(WindowKind::APRSSetup);
}

}  // namespace tesk
