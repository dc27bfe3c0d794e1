#include "window/COMemDC.h"

#include <gtest/gtest.h>

#include "driver/ImportPatch.h"
#include "support/Canvas.h"
#include "window/MemoryDC.h"

namespace {

constexpr COLORREF kGround = RGB(1, 2, 3), kInk = RGB(200, 100, 50);

void Fill(HDC dc, RECT rect, COLORREF color) {
  ::SetDCBrushColor(dc, color);
  ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

TEST(COMemDC, ShowsNothingBeforeItsEnd) {
  const Canvas canvas(20, 10, kGround);
  {
    const COMemDC surface(canvas);
    EXPECT_TRUE(surface.IsBuffered());
    Fill(surface, {0, 0, 20, 10}, kInk);
    EXPECT_EQ(kGround, canvas.At(5, 5));
  }
  EXPECT_EQ(kInk, canvas.At(0, 0));
  EXPECT_EQ(kInk, canvas.At(19, 9));
}

// A clip box in the middle, on a plain and on a mirrored surface.
class COMemDCClip : public testing::TestWithParam<bool> {};

TEST_P(COMemDCClip, DrawingLandsInItsPlace) {
  const bool mirrored = GetParam();
  const Canvas canvas(20, 10, kGround, mirrored);
  ::IntersectClipRect(canvas, 4, 2, 9, 7);
  {
    const COMemDC surface(canvas);
    Fill(surface, {4, 2, 20, 10}, kInk);
    Fill(surface, {5, 3, 6, 4}, RGB(0, 255, 0));
  }
  for (int y = 0; y < 10; ++y)
    for (int x = 0; x < 20; ++x) {
      const int logicalX = mirrored ? 19 - x : x;
      const bool inside = logicalX >= 4 && logicalX < 9 && y >= 2 && y < 7;
      const COLORREF expected = !inside ? kGround : logicalX == 5 && y == 3 ? RGB(0, 255, 0) : kInk;
      ASSERT_EQ(expected, canvas.At(x, y)) << x << ", " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(PlainAndMirrored, COMemDCClip, testing::Bool(),
                         [](const auto& test) { return test.param ? "Mirrored" : "Plain"; });

TEST(COMemDC, KeepsTheFontOfItsTarget) {
  const Canvas canvas(20, 10, kGround);
  const SelectScope font(canvas, ::GetStockObject(ANSI_FIXED_FONT));
  const COMemDC surface(canvas);
  EXPECT_EQ(::GetStockObject(ANSI_FIXED_FONT), ::GetCurrentObject(surface, OBJ_FONT));
}

TEST(COMemDC, WhatIsNoDisplayIsDrawnToDirectly) {
  const HDC recording = ::CreateMetaFileW(nullptr);
  ASSERT_EQ(DT_METAFILE, ::GetDeviceCaps(recording, TECHNOLOGY));
  {
    const COMemDC surface(recording);
    EXPECT_FALSE(surface.IsBuffered());
    EXPECT_EQ(recording, static_cast<HDC>(surface));
  }
  ::DeleteMetaFile(::CloseMetaFile(recording));
}

int technology = DT_RASDISPLAY;
int WINAPI CapsOfTheTechnology(HDC dc, int index) {
  return index == TECHNOLOGY ? technology : RealFunction("gdi32.dll", "GetDeviceCaps", &CapsOfTheTechnology)(dc, index);
}

TEST(COMemDC, PrintersAndPlottersAreDrawnToDirectly) {
  const Canvas canvas(20, 10, kGround);
  ASSERT_GT(PatchImport("gdi32.dll", "GetDeviceCaps", reinterpret_cast<void*>(&CapsOfTheTechnology)), 0);
  for (const auto& [kind, direct] : {std::pair{DT_RASPRINTER, true}, {DT_PLOTTER, true}, {DT_RASDISPLAY, false}}) {
    technology = kind;
    const COMemDC surface(canvas);
    EXPECT_EQ(direct, !surface.IsBuffered()) << kind;
    EXPECT_EQ(direct, static_cast<HDC>(surface) == static_cast<HDC>(canvas)) << kind;
  }
  RestoreImport("gdi32.dll", "GetDeviceCaps");
}

TEST(COMemDC, EmptyClipBoxDrawsNothing) {
  const Canvas canvas(20, 10, kGround);
  ::IntersectClipRect(canvas, 0, 0, 0, 0);
  {
    const COMemDC surface(canvas);
    Fill(surface, {0, 0, 20, 10}, kInk);
  }
  EXPECT_EQ(kGround, canvas.At(0, 0));
}

TEST(COMemDC, LeavesNoObjectsBehind) {
  const Canvas canvas(20, 10, kGround);
  for (int i = 0; i < 20'000; ++i) const COMemDC surface(canvas);
  EXPECT_TRUE(COMemDC(canvas).IsBuffered()) << "the system has no room for more";
}

TEST(MemoryDC, IsLaidOutLikeItsTarget) {
  for (const bool mirrored : {false, true}) {
    const Canvas canvas(20, 1, kGround, mirrored);
    {
      const MemoryDC image(canvas, 20, 1);
      ASSERT_TRUE(image);
      Fill(image, {0, 0, 20, 1}, kInk);
      Fill(image, {0, 0, 1, 1}, RGB(0, 255, 0));
      ::BitBlt(canvas, 0, 0, 20, 1, image, 0, 0, SRCCOPY);
    }
    EXPECT_EQ(RGB(0, 255, 0), canvas.At(mirrored ? 19 : 0, 0));
    EXPECT_EQ(kInk, canvas.At(mirrored ? 0 : 19, 0));
  }
}

}  // namespace
