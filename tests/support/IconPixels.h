// What an icon looks like: two of the same picture are seldom the same handle.
#pragma once

#include <vector>

#include "window/Gdi.h"

// Width, height, and what it draws on black and on white; empty for no icon.
inline std::vector<DWORD> IconPixels(HICON icon) {
  ICONINFO info{};
  if (!::GetIconInfo(icon, &info)) return {};
  const GdiBitmap color(info.hbmColor), mask(info.hbmMask);
  BITMAP size{};
  ::GetObjectW(color.Get(), sizeof size, &size);
  std::vector<DWORD> pixels{static_cast<DWORD>(size.bmWidth), static_cast<DWORD>(size.bmHeight)};
  BITMAPINFO description{};
  description.bmiHeader = {sizeof description.bmiHeader, size.bmWidth, -size.bmHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  const HDC dc = ::CreateCompatibleDC(nullptr);
  for (const DWORD ground : {BLACKNESS, WHITENESS}) {
    void* bits = nullptr;
    const GdiBitmap canvas(::CreateDIBSection(dc, &description, DIB_RGB_COLORS, &bits, nullptr, 0));
    const SelectScope selected(dc, canvas.Get());
    ::PatBlt(dc, 0, 0, size.bmWidth, size.bmHeight, ground);
    ::DrawIconEx(dc, 0, 0, icon, size.bmWidth, size.bmHeight, 0, nullptr, DI_NORMAL);
    ::GdiFlush();
    const auto* drawn = static_cast<const DWORD*>(bits);
    pixels.insert(pixels.end(), drawn, drawn + size.bmWidth * size.bmHeight);
  }
  ::DeleteDC(dc);
  return pixels;
}

// The icon that a window shows in its title bar.
inline std::vector<DWORD> SmallIconPixels(HWND window) {
  return IconPixels(reinterpret_cast<HICON>(::SendMessageW(window, WM_GETICON, ICON_SMALL, 0)));
}
