#include "window/AlphaImage.h"

#include <algorithm>

#include "DriverLIB/MessageText.h"
#include "Pictures.h"

namespace {

BITMAPINFO TopDownFormat(int width, int height) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = width;
  format.bmiHeader.biHeight = -height;  // rows from the top
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  return format;
}

GdiBitmap LoadResourceBitmap(UINT id) {
  return GdiBitmap(static_cast<HBITMAP>(::LoadImageW(static_cast<HINSTANCE>(ModuleInstance()), MAKEINTRESOURCEW(id),
                                                     IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

// The bitmap's pixels as 0x00RRGGBB, rows from the top; none when it has not the given size.
std::vector<uint32_t> ReadPixels(HBITMAP bitmap, int width, int height) {
  BITMAP description{};
  if (!bitmap || !::GetObjectW(bitmap, sizeof description, &description)) return {};
  if (description.bmWidth != width || description.bmHeight != height) return {};
  std::vector<uint32_t> pixels(static_cast<size_t>(width) * height);
  BITMAPINFO format = TopDownFormat(width, height);
  const WindowDC screen(nullptr);
  if (::GetDIBits(screen, bitmap, 0, height, pixels.data(), &format, DIB_RGB_COLORS) != height) return {};
  return pixels;
}

GdiBitmap MakeDibSection(const AlphaPixels& picture) {
  const BITMAPINFO format = TopDownFormat(picture.width, picture.height);
  void* bits = nullptr;
  GdiBitmap bitmap(::CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap) std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<uint32_t*>(bits));
  return bitmap;
}

// What can be seen through. Beside the alpha it has a meaning only where an icon is drawn as a shape, for what is
// disabled.
GdiBitmap MakeTransparencyMask(const AlphaPixels& picture) {
  constexpr uint32_t kHalfOpaque = 0x80000000;
  const int rowBytes = (picture.width + 15) / 16 * 2;  // rows end on whole words
  std::vector<uint8_t> bits(static_cast<size_t>(rowBytes) * picture.height);
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x)
      if (picture.pixels[static_cast<size_t>(y) * picture.width + x] < kHalfOpaque)
        bits[static_cast<size_t>(y) * rowBytes + x / 8] |= static_cast<uint8_t>(0x80 >> x % 8);
  return GdiBitmap(::CreateBitmap(picture.width, picture.height, 1, 1, bits.data()));
}

// Blends in device coordinates: the result must not depend on how the platform mirrors pictures.
void BlendUnmirrored(HDC dc, const RECT& device, HBITMAP bitmap) {
  const HDC source = ::CreateCompatibleDC(dc);
  if (!source) return;
  {
    const SelectScope selected(source, bitmap);
    const DWORD layout = ::GetLayout(dc);
    const int saved = ::SaveDC(dc);
    ::SetLayout(dc, 0);
    ::SetMapMode(dc, MM_TEXT);
    ::SetWindowOrgEx(dc, 0, 0, nullptr);
    ::SetViewportOrgEx(dc, 0, 0, nullptr);
    const int width = device.right - device.left, height = device.bottom - device.top;
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, device.left, device.top, width, height, source, 0, 0, width, height, blend);
    ::SetLayout(dc, layout);
    ::RestoreDC(dc, saved);
  }
  ::DeleteDC(source);
}

}  // namespace

AlphaImage MakeAlphaImage(HBITMAP bitmap, HBITMAP mask) {
  AlphaImage image;
  BITMAP description{};
  if (!bitmap || !::GetObjectW(bitmap, sizeof description, &description)) return image;
  const int width = description.bmWidth, height = description.bmHeight;
  const std::vector<uint32_t> colors = ReadPixels(bitmap, width, height);
  const std::vector<uint32_t> alpha =
      mask ? ReadPixels(mask, width, height) : std::vector<uint32_t>(colors.size(), 0xFFFFFF);
  if (colors.empty() || alpha.empty()) return image;
  image.pixels_ = CombineWithMask(width, height, colors.data(), alpha.data());
  image.width_ = width;
  image.height_ = height;
  return image;
}

bool AlphaImage::Load(UINT bitmapId, UINT maskId, int dpi) {
  const auto loadPair = [&](UINT offset) {
    const GdiBitmap bitmap = LoadResourceBitmap(bitmapId + offset), mask = LoadResourceBitmap(maskId + offset);
    if (bitmap && mask) *this = MakeAlphaImage(bitmap.Get(), mask.Get());
    return !IsEmpty();
  };
  *this = AlphaImage();
  if (dpi > 96 && loadPair(kDoubleSizeOffset)) {
    width_ /= 2;
    height_ /= 2;
  } else if (!loadPair(0)) {
    return false;
  }
  const PictureNumbers* picture = FindPicture(static_cast<int>(bitmapId));
  flips_ = picture && picture->mirrored;
  return true;
}

HBITMAP AlphaImage::Render(int width, int height, bool flipped, bool disabled) const {
  Rendition& last = rendition_;
  if (last.bitmap && last.width == width && last.height == height && last.flipped == flipped &&
      last.disabled == disabled)
    return last.bitmap.Get();
  AlphaPixels picture = Resize(pixels_, width, height);
  if (flipped) Flip(picture);
  if (disabled) MakeDisabled(picture);
  last = {MakeDibSection(picture), width, height, flipped, disabled};
  return last.bitmap.Get();
}

GdiIcon AlphaImage::MakeIcon(int width, int height) const {
  AlphaPixels picture = Resize(pixels_, width, height);
  if (picture.IsEmpty()) return {};
  DivideByAlpha(picture);
  const GdiBitmap colors = MakeDibSection(picture);
  const GdiBitmap mask = MakeTransparencyMask(picture);
  ICONINFO info{TRUE, 0, 0, mask.Get(), colors.Get()};
  return GdiIcon(::CreateIconIndirect(&info));
}

void AlphaImage::Draw(HDC dc, const RECT& rect, bool disabled) const {
  RECT device = rect;
  ::LPtoDP(dc, reinterpret_cast<POINT*>(&device), 2);
  const bool mirrored = (::GetLayout(dc) & LAYOUT_RTL) != 0;
  if (device.left > device.right) {
    // Mirrored: what was the outer edge of the right side is the inner edge of the left one.
    std::swap(device.left, device.right);
    ++device.left;
    ++device.right;
  }
  const int width = device.right - device.left, height = device.bottom - device.top;
  if (IsEmpty() || width <= 0 || height <= 0) return;
  if (const HBITMAP bitmap = Render(width, height, mirrored && flips_, disabled)) BlendUnmirrored(dc, device, bitmap);
}
