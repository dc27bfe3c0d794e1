// Shows a sample text in a font: an owner-drawn button that nobody can press. Set the members, then repaint.
#pragma once

#include "controls/CDrawnBox.h"
#include "controls/ColourPalette.h"
#include "window/Gdi.h"

class CFontPreview : public CDrawnBox {
 public:
  CFontPreview();

  CUString faceName;
  double pointSize = 0;  // its fraction is not shown
  bool bold = false, italic = false, underline = false;
  COLORREF colour = 0;  // no colour is black
  CUString sampleText;

 protected:
  void OnAttached() override;

 private:
  GdiFont MakeFont() const;
  void Draw(HDC dc, const RECT& client) const override;
  CUString PartName(int) const override { return sampleText; }
};
