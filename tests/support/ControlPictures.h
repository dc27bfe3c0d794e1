// Whether the library's pictures stand in the controls that are to show them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

#include "controls/CImageStatic.h"
#include "Pictures.h"
#include "window/Gdi.h"

// What a control draws, be it shown or not.
inline std::vector<uint32_t> Print(const CWnd& control) {
  const RECT client = control.ClientRect();
  BITMAPINFO format{};
  format.bmiHeader = {sizeof format.bmiHeader, client.right, -client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  const HDC dc = CreateCompatibleDC(nullptr);
  void* bits = nullptr;
  const GdiBitmap bitmap(CreateDIBSection(dc, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
  {
    const SelectScope selected(dc, bitmap.Get());
    control.Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
    GdiFlush();
  }
  DeleteDC(dc);
  const auto* pixels = static_cast<const uint32_t*>(bits);
  return {pixels, pixels + client.right * client.bottom};
}

// Takes the controls over from the dialog, which shows no pictures any more then.
inline void ExpectPictures(const CWnd& dialog, std::initializer_list<std::pair<int, PictureNumbers>> pictures) {
  for (const auto& [id, numbers] : pictures) {
    const std::vector<uint32_t> found = Print(dialog.Item(id));
    CImageStatic expected;
    ASSERT_TRUE(expected.Attach(dialog, id)) << id;
    ASSERT_TRUE(expected.SetImage(numbers.bitmap, kNoTransparentColor, numbers.mask)) << id;
    EXPECT_TRUE(Print(expected) == found) << id;
  }
}
