#include "sheet/BarColors.h"

#include <gtest/gtest.h>

namespace {

constexpr SystemColors kSystem = {0xF0F0F0, 0xD1B499, 0xDBCDBF, 0x000000, 0xFFFFFF, 0x101010, 0xD77800, 0xFEFEFE};

TEST(BarColors, LightenMovesTheLightnessAndKeepsHueAndSaturation) {
  struct Row {
    ColorValue color;
    double factor;
    ColorValue expected;
  };
  const Row rows[] = {
      {0x1595EE, 0.3, 0xA4D6F8},  {0x5BC0F7, 0.3, 0xEDF8FE},   {0xD1B499, -0.2, 0xB18053}, {0x808080, 0.2, 0xB3B3B3},
      {0x00FF00, 0.25, 0x80FF80}, {0xFF0000, -0.25, 0x800000}, {0x0000FF, -0.1, 0x0000CC}, {0x123456, 0.15, 0x1F5A95},
      {0xC040FF, -0.3, 0x6F00A6}, {0x800000, -0.2, 0x1A0000},
  };
  for (const Row& row : rows) EXPECT_EQ(row.expected, LightenColor(row.color, row.factor)) << std::hex << row.color;
}

TEST(BarColors, LightenStopsAtBlackAndWhite) {
  EXPECT_EQ(0xFFFFFFu, LightenColor(0xDBCDBF, 0.2));
  EXPECT_EQ(0xFFFFFFu, LightenColor(0xFFFFFF, 0.5));
  EXPECT_EQ(0xFFFFFFu, LightenColor(0x102030, 2.0));
  EXPECT_EQ(0x000000u, LightenColor(0x102030, -1.0));
  EXPECT_EQ(0x000000u, LightenColor(0x000000, -0.3));
  EXPECT_EQ(0x4D4D4Du, LightenColor(0x000000, 0.3));
}

TEST(BarColors, LightenByNothingKeepsEveryColor) {
  for (ColorValue red = 0; red < 256; red += 15)
    for (ColorValue green = 0; green < 256; green += 17)
      for (ColorValue blue = 0; blue < 256; blue += 51) {
        const ColorValue color = red | green << 8 | blue << 16;
        ASSERT_EQ(color, LightenColor(color, 0)) << std::hex << color;
      }
}

TEST(BarColors, GradientRunsFromTheFirstRowToTheLast) {
  EXPECT_EQ(0x000000u, GradientColor(0x000000, 0x64C8FF, 0, 11));
  EXPECT_EQ(0x0A141Au, GradientColor(0x000000, 0x64C8FF, 1, 11));
  EXPECT_EQ(0x326480u, GradientColor(0x000000, 0x64C8FF, 5, 11));
  EXPECT_EQ(0x64C8FFu, GradientColor(0x000000, 0x64C8FF, 10, 11));
  EXPECT_EQ(0x80u, GradientColor(0xFF, 0x00, 1, 3));
}

TEST(BarColors, GradientOfOneRowHasItsFirstColor) { EXPECT_EQ(0x123456u, GradientColor(0x123456, 0xFFFFFF, 0, 1)); }

TEST(BarColors, ColorsComeFromThreeBaseColorsAndTheSystem) {
  const BarColors colors = MakeBarColors(kSystem, false);
  EXPECT_EQ(0x1595EEu, colors.a);
  EXPECT_EQ(0xA4D6F8u, colors.a2);
  EXPECT_EQ(0x5BC0F7u, colors.b);
  EXPECT_EQ(0xEDF8FEu, colors.b2);
  EXPECT_EQ(kSystem.inactiveCaption, colors.c);
  EXPECT_EQ(LightenColor(kSystem.inactiveCaption, 0.2), colors.c2);
  EXPECT_EQ((ColorPair{kSystem.activeCaption, 0xB18053}), colors.Title());
  EXPECT_EQ((ColorPair{kSystem.face, kSystem.activeCaption}), colors.Header());
  EXPECT_EQ(kSystem.face, colors.face);
  EXPECT_EQ(kSystem.window, colors.titleText);
  EXPECT_EQ(kSystem.captionText, colors.captionText);
  EXPECT_EQ(kSystem.buttonText, colors.buttonText);
  EXPECT_EQ(kSystem.window, colors.markText);
  EXPECT_EQ(kSystem.captionText, colors.linkText);
}

TEST(BarColors, FolderColorsDependOnSelectedAndHot) {
  const BarColors colors = MakeBarColors(kSystem, false);
  EXPECT_EQ((ColorPair{colors.a, colors.a2}), colors.Folder(true, true));
  EXPECT_EQ((ColorPair{colors.a2, colors.a}), colors.Folder(true, false));
  EXPECT_EQ((ColorPair{colors.b2, colors.b}), colors.Folder(false, true));
  EXPECT_EQ((ColorPair{colors.c2, colors.c}), colors.Folder(false, false));
  for (const bool selected : {false, true})
    for (const bool hot : {false, true}) EXPECT_EQ(kSystem.buttonText, colors.FolderText(selected, hot));
}

TEST(BarColors, HighContrastTakesSystemColorsOnly) {
  const BarColors colors = MakeBarColors(kSystem, true);
  for (const ColorPair pair : {colors.Folder(true, true), colors.Folder(true, false), colors.Folder(false, true)})
    EXPECT_EQ((ColorPair{kSystem.highlight, kSystem.highlight}), pair);
  EXPECT_EQ((ColorPair{kSystem.face, kSystem.face}), colors.Folder(false, false));
  EXPECT_EQ((ColorPair{kSystem.activeCaption, kSystem.activeCaption}), colors.Title());
  EXPECT_EQ((ColorPair{kSystem.activeCaption, kSystem.activeCaption}), colors.Header());
  EXPECT_EQ(kSystem.captionText, colors.titleText);
  EXPECT_EQ(kSystem.captionText, colors.captionText);
  EXPECT_EQ(kSystem.highlightText, colors.FolderText(true, false));
  EXPECT_EQ(kSystem.highlightText, colors.FolderText(false, true));
  EXPECT_EQ(kSystem.buttonText, colors.FolderText(false, false));
  EXPECT_EQ(kSystem.buttonText, colors.markText);
  EXPECT_EQ(kSystem.buttonText, colors.linkText);
}

}  // namespace
