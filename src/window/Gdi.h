// Owners of drawing objects: each frees what it holds, and cannot be copied.
#pragma once

#include <utility>

#include "window/Windows.h"

template <class Handle>
class GdiObject {
 public:
  GdiObject() = default;
  explicit GdiObject(Handle handle) : handle_(handle) {}
  GdiObject(GdiObject&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  GdiObject& operator=(GdiObject&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~GdiObject() {
    if (handle_) ::DeleteObject(handle_);
  }
  Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  Handle handle_ = nullptr;
};

using GdiFont = GdiObject<HFONT>;
using GdiBrush = GdiObject<HBRUSH>;
using GdiPen = GdiObject<HPEN>;
using GdiBitmap = GdiObject<HBITMAP>;
using GdiRegion = GdiObject<HRGN>;

// Selects an object into a device context for a scope.
class SelectScope {
 public:
  SelectScope(HDC dc, HGDIOBJ object) : dc_(dc), previous_(object ? ::SelectObject(dc, object) : nullptr) {}
  ~SelectScope() {
    if (previous_) ::SelectObject(dc_, previous_);
  }
  SelectScope(const SelectScope&) = delete;
  SelectScope& operator=(const SelectScope&) = delete;

 private:
  HDC dc_;
  HGDIOBJ previous_;
};

// An icon that was made at run time.
class GdiIcon {
 public:
  GdiIcon() = default;
  explicit GdiIcon(HICON icon) : icon_(icon) {}
  GdiIcon(GdiIcon&& other) noexcept : icon_(std::exchange(other.icon_, nullptr)) {}
  GdiIcon& operator=(GdiIcon&& other) noexcept {
    std::swap(icon_, other.icon_);
    return *this;
  }
  ~GdiIcon() {
    if (icon_) ::DestroyIcon(icon_);
  }
  HICON Get() const { return icon_; }
  explicit operator bool() const { return icon_ != nullptr; }

 private:
  HICON icon_ = nullptr;
};

// The device context of a window, for measuring and drawing outside of WM_PAINT. A null window means the screen.
class WindowDC {
 public:
  explicit WindowDC(HWND window) : window_(window), dc_(::GetDC(window)) {}
  ~WindowDC() { ::ReleaseDC(window_, dc_); }
  WindowDC(const WindowDC&) = delete;
  WindowDC& operator=(const WindowDC&) = delete;
  operator HDC() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

class PaintDC {
 public:
  explicit PaintDC(HWND window) : window_(window) { ::BeginPaint(window, &paint_); }
  ~PaintDC() { ::EndPaint(window_, &paint_); }
  PaintDC(const PaintDC&) = delete;
  PaintDC& operator=(const PaintDC&) = delete;
  operator HDC() const { return paint_.hdc; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
};

class ImageList {
 public:
  ImageList() = default;
  explicit ImageList(HIMAGELIST list) : list_(list) {}
  ImageList(ImageList&& other) noexcept : list_(std::exchange(other.list_, nullptr)) {}
  ImageList& operator=(ImageList&& other) noexcept {
    std::swap(list_, other.list_);
    return *this;
  }
  ~ImageList() {
    if (list_) ::ImageList_Destroy(list_);
  }
  HIMAGELIST Get() const { return list_; }
  explicit operator bool() const { return list_ != nullptr; }

 private:
  HIMAGELIST list_ = nullptr;
};

// A font like `base` but for what `change` does to its description. A null base means the default GUI font.
template <class Change>
GdiFont DeriveFont(HFONT base, Change change) {
  LOGFONTW description{};
  ::GetObjectW(base ? base : ::GetStockObject(DEFAULT_GUI_FONT), sizeof description, &description);
  change(description);
  return GdiFont(::CreateFontIndirectW(&description));
}

// The user runs a high-contrast scheme: ground and text are system colours then, whatever is laid down otherwise.
bool IsHighContrast();
