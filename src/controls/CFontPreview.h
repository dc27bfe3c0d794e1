// Shows a sample text in a font: an owner-drawn button that nobody can press. Set the members, then repaint.
#pragma once

#include "controls/ColourPalette.h"
#include "window/CAccessibility.h"
#include "window/CSubclassedControl.h"
#include "window/Gdi.h"

class CFontPreview : public CSubclassed<CButton>, private CAccessibleSource {
 public:
  CFontPreview();

  CUString faceName;
  double pointSize = 0;  // its fraction is not shown
  bool bold = false, italic = false, underline = false;
  COLORREF colour = 0;  // no colour is black
  CUString sampleText;

 protected:
  void OnAttached() override;
  void OnDestroyed() override { accessibility_.Disconnect(); }
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  GdiFont MakeFont() const;
  void Draw(HDC dc, RECT rect) const;

  HWND AccessibleWindow() const override { return Handle(); }
  CUString PartName(int) const override { return sampleText; }
  int PartRole(int) const override;
  int PartState(int) const override;
  RECT PartRect(int) const override { return ClientRect(); }

  CAccessibility accessibility_;
};
