// The pictures as they come out of the resources: every number loads, at its size and at the double.
#include "window/Windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

#include "Pictures.h"

namespace {

struct BitmapDeleter {
  using pointer = HBITMAP;
  void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using Bitmap = std::unique_ptr<HBITMAP, BitmapDeleter>;

Bitmap Load(int number) {
  return Bitmap(static_cast<HBITMAP>(
      ::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

BITMAP Describe(const Bitmap& bitmap) {
  BITMAP description = {};
  ::GetObjectW(bitmap.get(), sizeof(description), &description);
  return description;
}

// The mask's brightness, row by row.
std::vector<BYTE> Alpha(const Bitmap& mask, int size) {
  BITMAPINFO info = {};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::vector<DWORD> pixels(size * size);
  HDC dc = ::GetDC(nullptr);
  EXPECT_EQ(size, ::GetDIBits(dc, mask.get(), 0, size, pixels.data(), &info, DIB_RGB_COLORS));
  ::ReleaseDC(nullptr, dc);
  std::vector<BYTE> alpha;
  for (DWORD pixel : pixels) {
    EXPECT_EQ(pixel & 0xFF, pixel >> 8 & 0xFF) << "a mask is grey";
    alpha.push_back(static_cast<BYTE>(pixel & 0xFF));
  }
  return alpha;
}

TEST(PictureResources, EveryNumberLoadsAtItsSizeAndAtTheDouble) {
  for (const PictureNumbers& picture : kPictures) {
    for (int factor : {1, 2}) {
      SCOPED_TRACE(testing::Message() << "picture " << picture.bitmap << " times " << factor);
      const int offset = factor == 2 ? kDoubleSizeOffset : 0;
      const Bitmap bitmap = Load(picture.bitmap + offset);
      const Bitmap mask = Load(picture.mask + offset);
      ASSERT_TRUE(bitmap);
      ASSERT_TRUE(mask);
      for (const Bitmap* each : {&bitmap, &mask}) {
        EXPECT_EQ(picture.size * factor, Describe(*each).bmWidth);
        EXPECT_EQ(picture.size * factor, Describe(*each).bmHeight);
      }
    }
  }
}

TEST(PictureResources, MasksAreTransparentAroundAndOpaqueWithin) {
  for (const PictureNumbers& picture : kPictures) {
    SCOPED_TRACE(picture.bitmap);
    const int size = picture.size;
    const std::vector<BYTE> alpha = Alpha(Load(picture.mask), size);
    EXPECT_GT(std::count(alpha.begin(), alpha.end(), 255), 0) << "nothing is opaque";
    for (int i = 0; i < size; ++i) {
      EXPECT_EQ(0, alpha[i] | alpha[(size - 1) * size + i] | alpha[i * size] | alpha[i * size + size - 1]) << i;
    }
  }
}

TEST(PictureResources, PicturesAreFoundByTheirBitmap) {
  static_assert(FindPicture(321) == &kPictures[0]);
  EXPECT_EQ(FindPicture(321)->mask, 322);
  EXPECT_EQ(FindPicture(322), nullptr);
  EXPECT_EQ(FindPicture(0), nullptr);
  EXPECT_TRUE(Pictures::kOutput.mirrored) << "its arrow points to where the text goes";
  EXPECT_FALSE(Pictures::kFont.mirrored) << "letters never turn";
}

TEST(PictureResources, IconsHaveTheirOwnImageForEachUsualSize) {
  struct {
    int number;
    std::set<int> sizes;
  } const kIcons[] = {{Pictures::kApplicationIcon, {16, 20, 24, 32, 40, 48}},
                      {Pictures::kBasicSettingsIcon, {16, 20, 24, 32}},
                      {Pictures::kDocumentSettingsIcon, {16, 20, 24, 32}}};
  const HMODULE module = ::GetModuleHandleW(nullptr);
  for (const auto& icon : kIcons) {
    SCOPED_TRACE(icon.number);
    const HRSRC found = ::FindResourceW(module, MAKEINTRESOURCEW(icon.number), MAKEINTRESOURCEW(14));  // RT_GROUP_ICON
    ASSERT_TRUE(found);
    const BYTE* group = static_cast<const BYTE*>(::LockResource(::LoadResource(module, found)));
    std::set<int> sizes;
    for (int i = 0; i < group[4]; ++i) {
      const BYTE* entry = group + 6 + 14 * i;
      EXPECT_EQ(int{entry[0]}, int{entry[1]}) << "an icon is square";
      EXPECT_EQ(32, int{entry[6]}) << "bits a pixel";
      sizes.insert(entry[0]);
    }
    EXPECT_EQ(icon.sizes, sizes);
    for (int size : {16, 32}) {
      const HANDLE handle =
          ::LoadImageW(module, MAKEINTRESOURCEW(icon.number), IMAGE_ICON, size, size, LR_DEFAULTCOLOR);
      EXPECT_TRUE(handle) << size;
      ::DestroyIcon(static_cast<HICON>(handle));
    }
  }
}

}  // namespace
