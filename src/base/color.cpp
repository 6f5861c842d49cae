// The classic 16-colour table behind QBColor and the system colour codes the settings file
// stores for some controls (0x80000000 plus a system colour index). Platforms without system
// colours paint those with the usual defaults of a current Windows desktop.
#include "base/color.h"

#include <array>
#include <cstddef>

namespace tesk {

namespace {

constexpr std::array<Color, 16> kQBColors = {
    RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
    RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
    RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
    RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255),
};

// Indexed by the system colour number (COLOR_SCROLLBAR = 0 ... COLOR_MENUBAR = 30).
constexpr std::array<Color, 31> kSystemColors = {
    RGB(200, 200, 200),  // 0 scroll bar
    RGB(0, 0, 0),        // 1 desktop
    RGB(153, 180, 209),  // 2 active caption
    RGB(191, 205, 219),  // 3 inactive caption
    RGB(240, 240, 240),  // 4 menu
    RGB(255, 255, 255),  // 5 window background
    RGB(100, 100, 100),  // 6 window frame
    RGB(0, 0, 0),        // 7 menu text
    RGB(0, 0, 0),        // 8 window text
    RGB(0, 0, 0),        // 9 caption text
    RGB(180, 180, 180),  // 10 active border
    RGB(244, 247, 252),  // 11 inactive border
    RGB(171, 171, 171),  // 12 application workspace
    RGB(0, 120, 215),    // 13 highlight
    RGB(255, 255, 255),  // 14 highlight text
    RGB(240, 240, 240),  // 15 button face
    RGB(160, 160, 160),  // 16 button shadow
    RGB(109, 109, 109),  // 17 grey text
    RGB(0, 0, 0),        // 18 button text
    RGB(0, 0, 0),        // 19 inactive caption text
    RGB(255, 255, 255),  // 20 button highlight
    RGB(105, 105, 105),  // 21 3D dark shadow
    RGB(227, 227, 227),  // 22 3D light
    RGB(0, 0, 0),        // 23 tool tip text
    RGB(255, 255, 225),  // 24 tool tip background
    RGB(0, 0, 0),        // 25 not used
    RGB(0, 102, 204),    // 26 hot-tracked item
    RGB(185, 209, 234),  // 27 active caption gradient
    RGB(215, 228, 242),  // 28 inactive caption gradient
    RGB(51, 153, 255),   // 29 menu highlight
    RGB(240, 240, 240),  // 30 menu bar
};

}  // namespace

Color QBColor(int n) {
  if (n < 0 || n >= static_cast<int>(kQBColors.size())) return kQBColors[0];
  return kQBColors[static_cast<std::size_t>(n)];
}

Color ResolveSystemColor(Color c) {
  if (c >= 0) return c;
  const auto index = static_cast<uint32_t>(c) & 0x7FFFFFFFu;
  // An unknown index paints black, as the system's own lookup does.
  return index < kSystemColors.size() ? kSystemColors[index] : RGB(0, 0, 0);
}

}  // namespace tesk
