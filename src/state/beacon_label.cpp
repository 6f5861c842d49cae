// Captions and colours of lblBeacon and LblSpEx, and their console lines.
#include "state/beacon_label.h"

#include "base/text.h"

namespace tesk {

namespace {

constexpr Color kSystemHighlight = static_cast<Color>(0x8000000D);
constexpr int kLightRed = 12;
constexpr int kLightYellow = 14;

}  // namespace

int SmartBeaconDigit(const std::string& intelligentBeacon) {
  return Val(Left(intelligentBeacon, 1)) != 0 ? 1 : 0;
}

void ShowBeaconCaption(StatusStrip& strip, Views& views, const std::string& caption,
                       int smartDigit) {
  Label& label = strip.lblBeacon;
  if (caption == kBeaconOff) {
    label.backColor = kButtonFace;
    label.foreColor = kSystemHighlight;
  } else {
    label.backColor = QBColor(kLightRed + smartDigit);
    label.foreColor = QBColor(kLightYellow);
  }
  if (label.caption == caption) return;
  label.caption = caption;
  views.notice("Beacon: " + caption);
}

void ShowShadowMark(StatusStrip& strip, Views& views, bool shown) {
  if (strip.LblSpEx.visible == shown) return;
  strip.LblSpEx.visible = shown;
  views.notice(shown ? "Shadow: " + strip.LblSpEx.caption : std::string("Shadow: off"));
}

}  // namespace tesk
