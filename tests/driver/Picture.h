// Pictures of windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

// Pixels as 0xAARRGGBB, rows from the top, alpha always 255.
struct Picture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;

  bool IsEmpty() const { return pixels.empty(); }
  uint32_t At(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
  // How many different colours there are, counted up to `limit`. A window that was never painted has one.
  int ColourCount(int limit = 1000) const;
};

// The whole window with frame and children as it stands on the screen, what lies over it included. The window's
// thread must be settled.
Picture Capture(HWND window);

// A part of a picture; it is cut at the picture's edges.
Picture Cut(const Picture& picture, const RECT& part);

// Writes a PNG file. False, with the reason in `error` as an HRESULT, when that fails.
bool SavePng(const Picture& picture, const std::wstring& path, HRESULT* error = nullptr);
