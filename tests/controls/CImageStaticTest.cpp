#include "controls/CImageStatic.h"

#include <set>

#include "ControlDialog.h"
#include "Pictures.h"
#include "PlatformSpy.h"

namespace {

constexpr int kId = 1152;
constexpr int kWidth = 40, kHeight = 30, kSize = 16;
constexpr UINT kMissing = 9999;
constexpr UINT kPlainBitmap = 251, kPlainMask = 252;  // is never mirrored
constexpr UINT kArrowBitmap = 255, kArrowMask = 256;  // nor is this one
constexpr UINT kMirroredBitmap = 249, kMirroredMask = 250;

class ImagePage {
 public:
  explicit ImagePage(ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight,
                     ControlDialog::Kind kind = ControlDialog::Kind::Themed)
      : page(layout) {
    page.ground = kMarkedGround;
    control = page.Add(L"STATIC", L"Name", SS_LEFT, kId, {10, 10, 10 + kWidth, 10 + kHeight}, kind);
    EXPECT_TRUE(image.Attach(page, kId));
  }

  ControlDialog page;
  CWnd control;
  CImageStatic image;
};

// A bitmap of the resources as 0xFFRRGGBB, by another way than the one under test.
Picture LoadPicture(UINT id) {
  Picture picture{kSize, kSize, std::vector<uint32_t>(kSize * kSize)};
  const GdiBitmap bitmap(::LoadBitmapW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id)));
  BITMAPINFO format{};
  format.bmiHeader = {sizeof format.bmiHeader, kSize, -kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  const WindowDC screen(nullptr);
  EXPECT_EQ(kSize, ::GetDIBits(screen, bitmap.Get(), 0, kSize, picture.pixels.data(), &format, DIB_RGB_COLORS)) << id;
  for (uint32_t& pixel : picture.pixels) pixel |= 0xFF000000;
  return picture;
}

COLORREF ColorOf(uint32_t pixel) { return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF); }

Picture Mirrored(const Picture& picture) {
  Picture mirrored = picture;
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x)
      mirrored.pixels[static_cast<size_t>(y) * picture.width + x] = picture.At(picture.width - 1 - x, y);
  return mirrored;
}

int Blend(int color, int ground, int alpha) { return (color * alpha + ground * (255 - alpha) + 127) / 255; }

// What stands on the control, cut out at the target rectangle of an unmirrored window.
Picture Target(const ImagePage& test) {
  const IntRect& target = test.image.TargetRect();
  const RECT device = {target.left, target.top, target.right, target.bottom};
  return Cut(Paint(test.control), device);
}

void ExpectBlended(const Picture& picture, UINT bitmapId, UINT maskId, bool flipped) {
  Picture colors = LoadPicture(bitmapId), mask = LoadPicture(maskId);
  if (flipped) {
    colors = Mirrored(colors);
    mask = Mirrored(mask);
  }
  ASSERT_EQ(kSize, picture.width);
  ASSERT_EQ(kSize, picture.height);
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) {
      const int alpha = static_cast<int>(mask.At(x, y) & 0xFF);
      for (const int shift : {0, 8, 16}) {
        const int color = colors.At(x, y) >> shift & 0xFF;
        const int ground = PixelOf(kMarkedGround) >> shift & 0xFF;
        ASSERT_NEAR(Blend(color, ground, alpha), static_cast<int>(picture.At(x, y) >> shift & 0xFF), 2)
            << x << "," << y << " channel " << shift;
      }
    }
}

// --- Loading --------------------------------------------------------------------------------------------------------

TEST(CImageStatic, FailsWithoutABitmapAndShowsNothing) {
  const struct {
    UINT bitmapId, maskId;
  } rows[] = {{kMissing, 0}, {kMissing, kPlainMask}, {kMissing, kMissing}, {0, 0}, {0, kPlainMask}};
  for (const auto& row : rows) {
    for (const UINT earlierMask : {kPlainMask, UINT{0}}) {
      ImagePage test;
      ASSERT_TRUE(test.image.SetImage(kPlainBitmap, kNoTransparentColor, earlierMask));
      EXPECT_TRUE(test.image.IsLoaded());
      EXPECT_FALSE(test.image.SetImage(row.bitmapId, kNoTransparentColor, row.maskId)) << row.bitmapId;
      EXPECT_FALSE(test.image.IsLoaded());
      EXPECT_EQ(kWidth * kHeight, CountPixels(Paint(test.control), kMarkedGround)) << row.bitmapId;
    }
  }
}

TEST(CImageStatic, FailsWithoutAnImageListAndShowsNothing) {
  ImagePage test;
  const auto fail = [](int, int, UINT, int, int) -> HIMAGELIST { return nullptr; };
  PatchImport("comctl32.dll", "ImageList_Create", reinterpret_cast<void*>(+fail));
  EXPECT_FALSE(test.image.SetImage(kPlainBitmap, kNoTransparentColor));
  RestoreImport("comctl32.dll", "ImageList_Create");
  EXPECT_FALSE(test.image.IsLoaded());
  EXPECT_EQ(0, test.image.TargetRect().Width());
  EXPECT_EQ(kWidth * kHeight, CountPixels(Paint(test.control), kMarkedGround));
}

TEST(CImageStatic, ShowsNothingBeforeItHasAnImage) {
  ImagePage test;
  EXPECT_FALSE(test.image.IsLoaded());
  EXPECT_EQ(kWidth * kHeight, CountPixels(Paint(test.control), kMarkedGround));
}

TEST(CImageStatic, RepaintsWithANewImage) {
  ImagePage test;
  test.control.Redraw();
  EXPECT_FALSE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
  test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask);
  EXPECT_TRUE(::GetUpdateRect(test.control.Handle(), nullptr, FALSE));
}

TEST(CImageStatic, LeavesNothingOfAnEarlierImage) {
  ImagePage test, fresh;
  test.image.SetImage(kPlainBitmap, kNoTransparentColor);
  test.control.Redraw();
  test.image.SetImage(kArrowBitmap, kNoTransparentColor, kArrowMask);
  test.control.Redraw();
  fresh.image.SetImage(kArrowBitmap, kNoTransparentColor, kArrowMask);
  EXPECT_TRUE(Paint(fresh.control).pixels == Capture(test.control.Handle()).pixels);
}

// --- Painting -------------------------------------------------------------------------------------------------------

TEST(CImageStatic, TakesAlphaFromTheMask) {
  ImagePage test;
  ASSERT_TRUE(test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask));
  ExpectBlended(Target(test), kPlainBitmap, kPlainMask, false);
}

TEST(CImageStatic, LeavesTheTransparentColorOut) {
  const Picture bitmap = LoadPicture(kPlainBitmap);
  const COLORREF key = ColorOf(bitmap.At(0, 0));
  ImagePage test;
  ASSERT_TRUE(test.image.SetImage(kPlainBitmap, key));
  const Picture target = Target(test);
  int transparent = 0;
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) {
      const bool isKey = bitmap.At(x, y) == PixelOf(key);
      ASSERT_EQ(isKey ? PixelOf(kMarkedGround) : bitmap.At(x, y), target.At(x, y)) << x << "," << y;
      transparent += isKey;
    }
  EXPECT_GT(transparent, 0);
  EXPECT_LT(transparent, kSize * kSize);
}

TEST(CImageStatic, IsOpaqueWithoutMaskAndTransparentColor) {
  ImagePage test;
  ASSERT_TRUE(test.image.SetImage(kPlainBitmap, kNoTransparentColor));
  EXPECT_TRUE(LoadPicture(kPlainBitmap).pixels == Target(test).pixels);
}

TEST(CImageStatic, DoesWithoutAMissingMask) {
  const COLORREF key = ColorOf(LoadPicture(kPlainBitmap).At(0, 0));
  ImagePage test, expected;
  EXPECT_TRUE(test.image.SetImage(kPlainBitmap, key, kMissing));
  EXPECT_TRUE(expected.image.SetImage(kPlainBitmap, key));
  EXPECT_TRUE(Paint(expected.control).pixels == Paint(test.control).pixels);
}

TEST(CImageStatic, StandsOnThePagesGroundAndShowsNoText) {
  for (const auto kind : {ControlDialog::Kind::Themed, ControlDialog::Kind::Plain}) {
    ImagePage test(ControlDialog::Layout::LeftToRight, kind);
    test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask);
    test.control.Redraw();
    const Picture picture = Capture(test.control.Handle());
    const RECT inked = Inked(picture, kMarkedGround);
    const IntRect& target = test.image.TargetRect();
    EXPECT_GE(inked.left, target.left);
    EXPECT_GE(inked.top, target.top);
    EXPECT_LE(inked.right, target.right);
    EXPECT_LE(inked.bottom, target.bottom);
    test.control.SetText(L"Another name");
    test.control.Redraw();
    EXPECT_TRUE(picture.pixels == Capture(test.control.Handle()).pixels);
  }
}

TEST(CImageStatic, IsGreyWhenItIsDisabled) {
  for (const UINT mask : {kPlainMask, UINT{0}}) {
    ImagePage test;
    test.page.ground = RGB(128, 128, 128);
    test.image.SetImage(kPlainBitmap, kNoTransparentColor, mask);
    const Picture enabled = Paint(test.control);
    test.control.Enable(false);
    test.control.Redraw();
    const Picture disabled = Capture(test.control.Handle());
    int colored = 0, stillColored = 0;
    for (size_t i = 0; i < enabled.pixels.size(); ++i) {
      const auto isColored = [](uint32_t pixel) {
        const int red = pixel >> 16 & 0xFF, green = pixel >> 8 & 0xFF, blue = pixel & 0xFF;
        return std::abs(red - green) > 8 || std::abs(green - blue) > 8;
      };
      colored += isColored(enabled.pixels[i]);
      stillColored += isColored(disabled.pixels[i]);
    }
    EXPECT_GT(colored, 10);
    EXPECT_EQ(0, stillColored);
    test.control.Enable(true);
    test.control.Redraw();
    EXPECT_TRUE(enabled.pixels == Capture(test.control.Handle()).pixels);
  }
}

TEST(CImageStatic, PrintsWhatItPaints) {
  ImagePage test;
  test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask);
  EXPECT_TRUE(PrintsWhatItPaints(test.control));
}

// --- Place ----------------------------------------------------------------------------------------------------------

TEST(CImageStatic, IsCentredAtFirst) {
  ImagePage test;
  for (const UINT mask : {kPlainMask, UINT{0}}) {
    test.image.SetImage(kPlainBitmap, kNoTransparentColor, mask);
    EXPECT_EQ((IntRect{12, 7, 28, 23}), test.image.TargetRect());
  }
  test.control.Move({10, 10, 20, 20});
  EXPECT_EQ((IntRect{0, 0, kSize, kSize}), test.image.TargetRect()) << "no room, and no margin";
}

TEST(CImageStatic, FollowsAlignmentAndMargin) {
  ImagePage test;
  test.image.SetImage(kPlainBitmap, kNoTransparentColor);
  test.image.SetAlignment(kAlignRight | kAlignBottom, 3);
  EXPECT_EQ((IntRect{21, 14, 37, 30}), test.image.TargetRect());
  EXPECT_TRUE(LoadPicture(kPlainBitmap).pixels == Target(test).pixels);
  test.image.SetAlignment(0, 3);
  EXPECT_EQ((IntRect{3, 3, 19, 19}), test.image.TargetRect());
}

TEST(CImageStatic, MovesWhenItsControlChangesItsSize) {
  ImagePage test;
  test.image.SetImage(kPlainBitmap, kNoTransparentColor);
  test.control.Redraw();
  test.control.Move({10, 10, 10 + 60, 10 + 50});
  EXPECT_EQ((IntRect{22, 17, 38, 33}), test.image.TargetRect());
  test.control.Redraw();
  EXPECT_EQ(60 * 50 - kSize * kSize, CountPixels(Capture(test.control.Handle()), kMarkedGround));
}

TEST(CImageStatic, StandsMirroredInAMirroredPage) {
  ImagePage test(ControlDialog::Layout::RightToLeft);
  test.image.SetAlignment(kAlignRight, 3);
  test.image.SetImage(kPlainBitmap, kNoTransparentColor);
  // 3 from the left edge as the user sees it, and not turned over.
  EXPECT_TRUE(LoadPicture(kPlainBitmap).pixels == Cut(Paint(test.control), {3, 3, 19, 19}).pixels);
  test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask);
  ExpectBlended(Cut(Paint(test.control), {3, 3, 19, 19}), kPlainBitmap, kPlainMask, false);
}

TEST(CImageStatic, TurnsOverInAMirroredPageWhatHasADirection) {
  ASSERT_TRUE(FindPicture(kMirroredBitmap)->mirrored);
  ImagePage test(ControlDialog::Layout::RightToLeft);
  test.image.SetAlignment(0, 0);
  test.image.SetImage(kMirroredBitmap, kNoTransparentColor, kMirroredMask);
  ExpectBlended(Cut(Paint(test.control), {kWidth - kSize, 0, kWidth, kSize}), kMirroredBitmap, kMirroredMask, true);
}

// --- Dpi ------------------------------------------------------------------------------------------------------------

TEST(CImageStatic, GrowsWithTheDpi) {
  const DpiScope dpi(144);
  for (const UINT mask : {kPlainMask, UINT{0}}) {
    ImagePage test;
    test.image.SetImage(kPlainBitmap, kNoTransparentColor, mask);
    EXPECT_EQ((IntRect{8, 3, 32, 27}), test.image.TargetRect()) << "24 pixels high and wide";
    test.image.SetAlignment(0, 2);
    EXPECT_EQ((IntRect{3, 3, 27, 27}), test.image.TargetRect()) << "and so does the margin";
  }
}

TEST(CImageStatic, MixesNoColorsWithTheTransparentOne) {
  const DpiScope dpi(144);
  const Picture bitmap = LoadPicture(kPlainBitmap);
  const COLORREF key = ColorOf(bitmap.At(0, 0));
  ImagePage test;
  ASSERT_TRUE(test.image.SetImage(kPlainBitmap, key));
  const Picture target = Target(test);
  ASSERT_EQ(24, target.width);
  const std::set<uint32_t> colors(bitmap.pixels.begin(), bitmap.pixels.end());
  EXPECT_EQ(0, CountPixels(target, key));
  EXPECT_GT(CountPixels(target, kMarkedGround), 100);
  for (const uint32_t pixel : target.pixels)
    ASSERT_TRUE(pixel == PixelOf(kMarkedGround) || colors.contains(pixel)) << std::hex << pixel;
}

TEST(CImageStatic, HasFinerPicturesForFinerDisplays) {
  const DpiScope dpi(192);
  ImagePage test;
  test.page.ground = RGB(0, 0, 0);
  ASSERT_TRUE(test.image.SetImage(kPlainBitmap, kNoTransparentColor, kPlainMask));
  const Picture target = Target(test);
  ASSERT_EQ(2 * kSize, target.width);
  int differing = 0;  // pairs of rows that a mere doubling would make alike
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < 2 * kSize; ++x) differing += target.At(x, 2 * y) != target.At(x, 2 * y + 1);
  EXPECT_GT(differing, 20);
}

}  // namespace
