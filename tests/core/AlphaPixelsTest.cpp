#include "window/AlphaPixels.h"

#include <gtest/gtest.h>

namespace {

TEST(AlphaPixels, TheBrightnessOfTheMaskIsTheAlpha) {
  const uint32_t colors[] = {0x00FF8040, 0x00FF8040, 0x00FF8040, 0x00FF8040};
  const uint32_t mask[] = {0x00FFFFFF, 0x00000000, 0x00808080, 0x00FF0000};
  const AlphaPixels picture = CombineWithMask(2, 2, colors, mask);
  EXPECT_EQ(2, picture.width);
  EXPECT_EQ(2, picture.height);
  EXPECT_EQ((std::vector<uint32_t>{0xFFFF8040, 0x00000000, 0x80804020, 0x55552B15}), picture.pixels);
}

TEST(AlphaPixels, TheUnusedByteOfABitmapDoesNotCount) {
  const uint32_t color = 0xAB102030, mask = 0xCD000000;
  EXPECT_EQ(0u, CombineWithMask(1, 1, &color, &mask).pixels[0]);
}

TEST(AlphaPixels, DividedByTheAlphaColoursAreTheirOwn) {
  AlphaPixels picture{5, 1, {0xFF112233, 0x80402010, 0x01010000, 0x00000000, 0x02030000}};
  DivideByAlpha(picture);
  EXPECT_EQ((std::vector<uint32_t>{0xFF112233, 0x80804020, 0x01FF0000, 0x00000000, 0x02FF0000}), picture.pixels);
}

TEST(AlphaPixels, TheSameSizeIsTheSamePicture) {
  const AlphaPixels picture{2, 1, {0xFF112233, 0x80402010}};
  EXPECT_EQ(picture.pixels, Resize(picture, 2, 1).pixels);
}

TEST(AlphaPixels, HalfTheSizeAverages) {
  const AlphaPixels picture{4,
                            2,
                            {0xFF000000, 0xFF000000, 0xFFFFFFFF, 0x00000000,  //
                             0xFF000000, 0xFF000000, 0xFFFFFFFF, 0x00000000}};
  const AlphaPixels half = Resize(picture, 2, 1);
  EXPECT_EQ(2, half.width);
  EXPECT_EQ(1, half.height);
  EXPECT_EQ((std::vector<uint32_t>{0xFF000000, 0x80808080}), half.pixels);
}

TEST(AlphaPixels, DoubleTheSizeRepeats) {
  const AlphaPixels picture{2, 1, {0xFF0000FF, 0x00000000}};
  EXPECT_EQ((std::vector<uint32_t>{0xFF0000FF, 0xFF0000FF, 0, 0, 0xFF0000FF, 0xFF0000FF, 0, 0}),
            Resize(picture, 4, 2).pixels);
}

TEST(AlphaPixels, AnUnevenSizeSharesPixelsByArea) {
  const AlphaPixels picture{3, 1, {0xFF0000FF, 0xFF000000, 0xFF0000FF}};
  // Each of the two covers one and a half pixels.
  EXPECT_EQ((std::vector<uint32_t>{0xFF0000AA, 0xFF0000AA}), Resize(picture, 2, 1).pixels);
}

TEST(AlphaPixels, APictureOfOneColorKeepsItInEverySize) {
  const AlphaPixels picture{32, 32, std::vector<uint32_t>(32 * 32, 0x80402010)};
  for (const int size : {1, 7, 14, 16, 20, 21, 24, 28, 31, 33, 48, 64})
    EXPECT_EQ(std::vector<uint32_t>(static_cast<size_t>(size) * size, 0x80402010), Resize(picture, size, size).pixels);
}

TEST(AlphaPixels, NoSizeAndNoPictureGiveNone) {
  EXPECT_TRUE(Resize({}, 4, 4).IsEmpty());
  EXPECT_TRUE(Resize({1, 1, {0}}, 0, 4).IsEmpty());
  EXPECT_TRUE(Resize({1, 1, {0}}, 4, -1).IsEmpty());
}

TEST(AlphaPixels, FlipExchangesLeftAndRightOfEachRow) {
  AlphaPixels picture{3, 2, {1, 2, 3, 4, 5, 6}};
  Flip(picture);
  EXPECT_EQ((std::vector<uint32_t>{3, 2, 1, 6, 5, 4}), picture.pixels);
}

TEST(AlphaPixels, DisabledIsGreyAndHalfAsOpaque) {
  AlphaPixels picture{3, 1, {0xFFFFFFFF, 0xFFFF0000, 0x00000000}};
  MakeDisabled(picture);
  EXPECT_EQ((std::vector<uint32_t>{0x7F7F7F7F, 0x7F262626, 0x00000000}), picture.pixels);
}

}  // namespace
