#include "window/AlphaImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/Canvas.h"

namespace {

constexpr UINT kUpright = 321, kUprightMask = 322;  // never flipped
constexpr UINT kFlipping = 249, kFlippingMask = 250;

GdiBitmap MakeBitmap(int width, int height, std::vector<DWORD> pixels) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = -height;
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  GdiBitmap bitmap(::CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  std::copy(pixels.begin(), pixels.end(), static_cast<DWORD*>(bits));
  return bitmap;
}

TEST(AlphaImage, BitmapAndMaskBecomeOnePicture) {
  const GdiBitmap bitmap = MakeBitmap(2, 2, {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF});
  const GdiBitmap mask = MakeBitmap(2, 2, {0xFFFFFF, 0x000000, 0x808080, 0xFFFFFF});
  const AlphaImage image = MakeAlphaImage(bitmap.Get(), mask.Get());
  EXPECT_EQ(2, image.Width());
  EXPECT_EQ(2, image.Height());
  EXPECT_EQ((std::vector<uint32_t>{0xFFFF0000, 0, 0x80000080, 0xFFFFFFFF}), image.Pixels().pixels);
}

TEST(AlphaImage, WithoutAMaskThePictureIsOpaque) {
  const GdiBitmap bitmap = MakeBitmap(1, 1, {0x123456});
  EXPECT_EQ(0xFF123456u, MakeAlphaImage(bitmap.Get(), nullptr).Pixels().pixels.at(0));
}

TEST(AlphaImage, WhatDoesNotFitIsNoPicture) {
  const GdiBitmap bitmap = MakeBitmap(2, 1, {0, 0}), mask = MakeBitmap(1, 2, {0, 0});
  EXPECT_TRUE(MakeAlphaImage(bitmap.Get(), mask.Get()).IsEmpty());
  EXPECT_TRUE(MakeAlphaImage(nullptr, mask.Get()).IsEmpty());
}

TEST(AlphaImage, BecomesAnIconOfAnySize) {
  AlphaImage image;
  EXPECT_FALSE(image.MakeIcon(16, 16));
  ASSERT_TRUE(image.Load(kUpright, kUprightMask, 96));
  for (const int size : {16, 17, 32, 50}) {
    const GdiIcon icon = image.MakeIcon(size, size);
    ASSERT_TRUE(icon);
    ICONINFO info{};
    ASSERT_TRUE(GetIconInfo(icon.Get(), &info));
    const GdiBitmap colors(info.hbmColor), mask(info.hbmMask);
    BITMAP bitmap{};
    GetObjectW(colors.Get(), sizeof bitmap, &bitmap);
    EXPECT_EQ(size, bitmap.bmWidth);
    EXPECT_EQ(size, bitmap.bmHeight);
  }
}

TEST(AlphaImage, IconIsTransparentWhereThePictureIs) {
  constexpr int kWidth = 17;  // more than a word
  std::vector<DWORD> colors(kWidth * 2, 0xFF0000), alpha(kWidth * 2, 0xFFFFFF);
  alpha[3] = alpha[kWidth + 16] = 0;
  const GdiBitmap bitmap = MakeBitmap(kWidth, 2, colors), mask = MakeBitmap(kWidth, 2, alpha);
  const GdiIcon icon = MakeAlphaImage(bitmap.Get(), mask.Get()).MakeIcon(kWidth, 2);
  ICONINFO info{};
  ASSERT_TRUE(GetIconInfo(icon.Get(), &info));
  const GdiBitmap iconColors(info.hbmColor), iconMask(info.hbmMask);
  const HDC dc = CreateCompatibleDC(nullptr);
  {
    const SelectScope selected(dc, iconMask.Get());
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < kWidth; ++x) {
        const bool transparent = (x == 3 && y == 0) || (x == 16 && y == 1);
        EXPECT_EQ(transparent ? RGB(255, 255, 255) : RGB(0, 0, 0), GetPixel(dc, x, y)) << x << " " << y;
      }
  }
  DeleteDC(dc);
}

TEST(AlphaImage, LoadsAPairByItsNumbers) {
  AlphaImage image;
  ASSERT_TRUE(image.Load(kUpright, kUprightMask, 96));
  EXPECT_EQ(16, image.Width());
  EXPECT_EQ(16, image.Pixels().width);
  const auto& pixels = image.Pixels().pixels;
  EXPECT_TRUE(std::any_of(pixels.begin(), pixels.end(), [](uint32_t pixel) { return pixel >> 24 == 0xFF; }));
  EXPECT_EQ(0u, pixels.front());  // the corner is transparent
}

TEST(AlphaImage, FinerDisplaysTakeTheDoubleSize) {
  for (const int dpi : {97, 120, 144, 192}) {
    AlphaImage image;
    ASSERT_TRUE(image.Load(kUpright, kUprightMask, dpi));
    EXPECT_EQ(32, image.Pixels().width);
    EXPECT_EQ(16, image.Width());
    EXPECT_EQ(16, image.Height());
  }
}

TEST(AlphaImage, AMissingResourceLeavesNoPicture) {
  AlphaImage image;
  ASSERT_TRUE(image.Load(kUpright, kUprightMask, 96));
  EXPECT_FALSE(image.Load(0x4FFE, kUprightMask, 96));
  EXPECT_TRUE(image.IsEmpty());
  EXPECT_FALSE(image.Load(kUpright, 0x4FFE, 96));
  EXPECT_TRUE(image.IsEmpty());
}

TEST(AlphaImage, DrawBlendsWithTheGround) {
  const GdiBitmap bitmap = MakeBitmap(3, 1, {0xFF0000, 0xFF0000, 0xFF0000});
  const GdiBitmap mask = MakeBitmap(3, 1, {0xFFFFFF, 0x000000, 0x808080});
  const Canvas canvas(5, 3, RGB(0, 0, 255));
  MakeAlphaImage(bitmap.Get(), mask.Get()).Draw(canvas, {1, 1, 4, 2});
  EXPECT_EQ(RGB(0, 0, 255), canvas.At(0, 1));
  EXPECT_EQ(RGB(255, 0, 0), canvas.At(1, 1));
  EXPECT_EQ(RGB(0, 0, 255), canvas.At(2, 1));
  EXPECT_NEAR(128, GetRValue(canvas.At(3, 1)), 1);
  EXPECT_NEAR(127, GetBValue(canvas.At(3, 1)), 1);
  EXPECT_EQ(RGB(0, 0, 255), canvas.At(4, 1));
  EXPECT_EQ(RGB(0, 0, 255), canvas.At(1, 0));
  EXPECT_EQ(RGB(0, 0, 255), canvas.At(1, 2));
}

TEST(AlphaImage, DrawFillsARectangleOfAnySize) {
  const GdiBitmap bitmap = MakeBitmap(1, 1, {0x00FF00});
  const AlphaImage image = MakeAlphaImage(bitmap.Get(), nullptr);
  const Canvas canvas(10, 10, RGB(0, 0, 0));
  image.Draw(canvas, {2, 3, 9, 8});
  image.Draw(canvas, {0, 0, 1, 1});  // another size after the first
  const Canvas black(10, 10, RGB(0, 0, 0));
  EXPECT_EQ(RGB(0, 255, 0), canvas.At(0, 0));
  EXPECT_EQ(RGB(0, 0, 0), canvas.At(1, 3));
  EXPECT_EQ(RGB(0, 255, 0), canvas.At(2, 3));
  EXPECT_EQ(RGB(0, 255, 0), canvas.At(8, 7));
  EXPECT_EQ(RGB(0, 0, 0), canvas.At(9, 7));
  EXPECT_EQ(RGB(0, 0, 0), canvas.At(8, 8));
  image.Draw(canvas, {5, 5, 5, 5});
}

TEST(AlphaImage, DisabledIsGrey) {
  const GdiBitmap bitmap = MakeBitmap(1, 1, {0x00FF00});
  const Canvas canvas(1, 1, RGB(255, 255, 255));
  MakeAlphaImage(bitmap.Get(), nullptr).Draw(canvas, {0, 0, 1, 1}, true);
  const COLORREF color = canvas.At(0, 0);
  EXPECT_EQ(GetRValue(color), GetGValue(color));
  EXPECT_EQ(GetGValue(color), GetBValue(color));
  EXPECT_LT(GetRValue(color), 255);
}

TEST(AlphaImage, AMirroredSurfaceHasItAtTheMirroredPlace) {
  const GdiBitmap bitmap = MakeBitmap(2, 1, {0xFF0000, 0x00FF00});
  const Canvas canvas(10, 1, RGB(0, 0, 0), true);
  MakeAlphaImage(bitmap.Get(), nullptr).Draw(canvas, {1, 0, 3, 1});
  EXPECT_EQ(RGB(255, 0, 0), canvas.At(7, 0));  // 10 - 3, and not flipped
  EXPECT_EQ(RGB(0, 255, 0), canvas.At(8, 0));
  EXPECT_EQ(RGB(0, 0, 0), canvas.At(6, 0));
  EXPECT_EQ(RGB(0, 0, 0), canvas.At(9, 0));
}

TEST(AlphaImage, TheSurfaceKeepsItsLayoutAndOrigin) {
  const GdiBitmap bitmap = MakeBitmap(1, 1, {0xFF0000});
  const AlphaImage image = MakeAlphaImage(bitmap.Get(), nullptr);
  const Canvas plain(10, 4, RGB(0, 0, 0)), mirrored(10, 4, RGB(0, 0, 0), true);
  ::SetWindowOrgEx(plain, 20, 30, nullptr);
  ::SetWindowOrgEx(mirrored, 0, 30, nullptr);
  for (int i = 0; i < 2; ++i) {
    image.Draw(plain, {21 + i, 31, 22 + i, 32});
    image.Draw(mirrored, {1 + i, 31, 2 + i, 32});
    EXPECT_EQ(RGB(255, 0, 0), plain.At(1 + i, 1));
    EXPECT_EQ(RGB(255, 0, 0), mirrored.At(8 - i, 1));
  }
  EXPECT_EQ(RGB(0, 0, 0), mirrored.At(9, 1));
  EXPECT_EQ(static_cast<DWORD>(LAYOUT_RTL), ::GetLayout(mirrored));
}

// The same picture on a plain surface and on a mirrored one, as they stand on the screen.
void DrawBothWays(UINT bitmapId, UINT maskId, const Canvas& plain, const Canvas& mirrored) {
  AlphaImage image;
  ASSERT_TRUE(image.Load(bitmapId, maskId, 96));
  image.Draw(plain, {0, 0, 16, 16});
  image.Draw(mirrored, {0, 0, 16, 16});
}

TEST(AlphaImage, TheTableOfPicturesSaysWhatIsFlipped) {
  const Canvas plain(16, 16, RGB(255, 255, 255)), mirrored(16, 16, RGB(255, 255, 255), true);
  DrawBothWays(kUpright, kUprightMask, plain, mirrored);
  const RECT none{};
  const RECT difference = plain.DifferenceFrom(mirrored);
  EXPECT_TRUE(::EqualRect(&none, &difference));

  const Canvas upright(16, 16, RGB(255, 255, 255)), flipped(16, 16, RGB(255, 255, 255), true);
  DrawBothWays(kFlipping, kFlippingMask, upright, flipped);
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) ASSERT_EQ(upright.At(x, y), flipped.At(15 - x, y)) << x << ", " << y;
}

}  // namespace
