// The colour values the settings file and the labels use: the QBColor table as 0xBBGGRR values
// and the system colour codes that platforms without system colours must paint.
#include "base/color.h"

#include <gtest/gtest.h>

namespace tesk {
namespace {

TEST(Color, QBColorTable) {
  const Color want[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080,
                          0x008080, 0xC0C0C0, 0x808080, 0xFF0000, 0x00FF00, 0xFFFF00,
                          0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  for (int n = 0; n < 16; ++n)
    EXPECT_EQ(QBColor(n), want[n]) << n;
  EXPECT_EQ(QBColor(-1), 0);
  EXPECT_EQ(QBColor(16), 0);
  EXPECT_EQ(RGB(255, 128, 1), 0x0180FF);
  EXPECT_EQ(RedOf(QBColor(12)), 255);
  EXPECT_EQ(BlueOf(QBColor(9)), 255);
  EXPECT_EQ(GreenOf(QBColor(10)), 255);
}

TEST(Color, SystemColors) {
  EXPECT_EQ(ResolveSystemColor(static_cast<Color>(0x80000005u)), 0xFFFFFF);  // window
  EXPECT_EQ(ResolveSystemColor(static_cast<Color>(0x80000008u)), 0x000000);  // window text
  EXPECT_EQ(ResolveSystemColor(static_cast<Color>(0x8000000Fu)), 0xF0F0F0);  // button face
  // The settings file stores the 3D light code as the decimal 2147483670.
  EXPECT_EQ(ResolveSystemColor(static_cast<Color>(2147483670LL)), 0xE3E3E3);
  EXPECT_EQ(ResolveSystemColor(static_cast<Color>(0x800000FFu)), 0);
  EXPECT_EQ(ResolveSystemColor(0x123456), 0x123456);
  EXPECT_EQ(ResolveSystemColor(0), 0);
}

}  // namespace
}  // namespace tesk
