// Colours as the station stores them: 32-bit values with red in the low byte, and the classic
// 16-colour table that labels use through QBColor(n).
#pragma once

#include <cstdint>

namespace tesk {

using Color = int32_t;  // signed: system colour codes such as 0x80000016 print negative

constexpr Color RGB(int r, int g, int b) {
  return static_cast<Color>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr int RedOf(Color c) {
  return c & 0xFF;
}
constexpr int GreenOf(Color c) {
  return (c >> 8) & 0xFF;
}
constexpr int BlueOf(Color c) {
  return (c >> 16) & 0xFF;
}

// QBColor(n) for n in 0..15; other values give black.
Color QBColor(int n);

// A system colour code (high bit set) resolved to a plain RGB value for painting.
Color ResolveSystemColor(Color c);

}  // namespace tesk
