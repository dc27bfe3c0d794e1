// A list box with pictures on a page, in colours of the test's own.
#pragma once

#include <memory>

#include "ControlDialog.h"
#include "controls/CListBoxST.h"
#include "PlatformSpy.h"

constexpr int kListId = 1032;
constexpr int kListWidth = 200, kListHeight = 120;

constexpr COLORREF kWindow = RGB(250, 240, 230), kText = RGB(10, 20, 30), kInverted = RGB(245, 235, 225);
constexpr COLORREF kSelected = RGB(40, 90, 160), kSelectedText = RGB(220, 221, 222), kGray = RGB(120, 130, 110);

constexpr ListPicture kFontPictures[] = {{269, 271}, {272, 274}, {270, 271}, {273, 274}};
constexpr ListPicture kFilePictures[] = {{502, 504}, {505, 507}, {503, 504}, {506, 507}};

class ListPage {
 public:
  explicit ListPage(DWORD style = LBS_OWNERDRAWFIXED, ControlDialog::Layout layout = ControlDialog::Layout::LeftToRight)
      : page(layout) {
    control = page.Add(L"LISTBOX", L"", LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_TABSTOP | style, kListId,
                       {10, 10, 10 + kListWidth, 10 + kListHeight});
    list = std::make_unique<CListBoxST>();
    EXPECT_TRUE(list->Attach(page, kListId));
    ShowKeyboardCues(control, false);
  }

  int ItemHeight(int row = 0) const { return static_cast<int>(control.Send(LB_GETITEMHEIGHT, row)); }
  int TextHeight() const {
    const WindowDC dc(control.Handle());
    const SelectScope font(dc, control.Font());
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(dc, &metrics);
    return metrics.tmHeight;
  }
  RECT RowRect(int row) const {
    RECT rect{};
    control.Send(LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect));
    return rect;
  }
  Picture PaintRow(int row) const { return Cut(Paint(control), RowRect(row)); }
  // The rectangle of a row that holds a colour, from its left and right edge on.
  RECT Filled(int row, COLORREF color) const {
    const Picture picture = PaintRow(row);
    RECT filled{picture.width, picture.height, 0, 0};
    for (int y = 0; y < picture.height; ++y)
      for (int x = 0; x < picture.width; ++x)
        if (picture.At(x, y) == PixelOf(color)) {
          filled.left = std::min<LONG>(filled.left, x);
          filled.right = std::max<LONG>(filled.right, x + 1);
          filled.top = std::min<LONG>(filled.top, y);
          filled.bottom = std::max<LONG>(filled.bottom, y + 1);
        }
    return filled.left < filled.right ? filled : RECT{};
  }

  const SystemColorScope colors{{{COLOR_WINDOW, kWindow},
                                 {COLOR_WINDOWTEXT, kText},
                                 {COLOR_HIGHLIGHT, kSelected},
                                 {COLOR_HIGHLIGHTTEXT, kSelectedText},
                                 {COLOR_GRAYTEXT, kGray}}};
  ControlDialog page;
  CWnd control;
  std::unique_ptr<CListBoxST> list;
};

// An image list of two filled squares.
class Squares {
 public:
  static constexpr int kSize = 20;
  static constexpr COLORREF kFirst = RGB(200, 0, 0), kSecond = RGB(0, 0, 200);

  Squares() : images(::ImageList_Create(kSize, kSize, ILC_COLOR32, 2, 0)) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    for (const COLORREF color : {kFirst, kSecond}) {
      BITMAPINFO format{};
      format.bmiHeader = {sizeof format.bmiHeader, kSize, kSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
      void* bits = nullptr;
      const GdiBitmap bitmap(::CreateDIBSection(dc, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
      std::fill_n(static_cast<uint32_t*>(bits), kSize * kSize, PixelOf(color));
      ::ImageList_Add(images.Get(), bitmap.Get(), nullptr);
    }
    ::DeleteDC(dc);
  }

  const ImageList images;
};
