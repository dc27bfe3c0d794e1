// Draws the navigation bar, whole or one element of it. Nothing is sent to anybody while it draws.
#pragma once

#include "sheet/BarColors.h"
#include "sheet/BarModel.h"
#include "window/Gdi.h"

struct BarFonts {
  GdiFont underlined, normal, bold, title;
};

// All that the picture depends on.
struct BarView {
  const BarModel& model;
  const BarColors& colors;
  const BarFonts& fonts;
  SIZE client;
  BarTarget hot;    // the folder or entry under the mouse
  BarTarget focus;  // the element that shows the keyboard's focus, or none
};

class COutlook2Painter {
 public:
  COutlook2Painter(HDC dc, const BarView& view);
  ~COutlook2Painter();
  COutlook2Painter(const COutlook2Painter&) = delete;
  COutlook2Painter& operator=(const COutlook2Painter&) = delete;

  void DrawBar();
  // A folder button or an entry; anything else is left alone.
  void DrawElement(const BarTarget& target);

 private:
  void DrawTitle();
  void DrawFolders();
  void DrawArea();
  void DrawGroup(const COL2Item& group);
  void DrawFolder(int folder);
  void DrawEntry(const BarTarget& target);
  void DrawPlainEntry(const BarTarget& target, const COL2SubItem& entry, const RECT& rect);
  void DrawMarkedEntry(const COL2SubItem& entry, const RECT& rect, bool hot);
  void DrawFocus(const BarTarget& target, const RECT& rect);

  template <class Element>
  void DrawPicture(const Element& element, const RECT& box);
  void DrawLabel(const CUString& text, RECT rect, HFONT font, ColorValue color);
  void Fill(const RECT& rect, ColorValue color);
  void FillGradient(const RECT& rect, ColorPair colors);
  void DrawFrame(const RECT& rect, int thickness);
  int Scale(int pixelsAt96) const { return view_.model.Scale(pixelsAt96); }

  const HDC dc_;
  const BarView& view_;
  const int saved_;
};
