// The navigation bar as far as it is seen: its parts in their places, in the colours and fonts of the system, with one
// element under the mouse and one under the keyboard. What a click does is the derived class's matter.
#pragma once

#include "sheet/BarColors.h"
#include "sheet/BarModel.h"
#include "sheet/COutlook2Painter.h"
#include "window/CControlBar.h"

class COutlook2View : public CControlBar {
 public:
  enum class Slide { BySystem, Always, Never };

  int FixedWidth() const { return Scale(BarModel::kFixedWidth); }
  // The font of the parent, or the default GUI font.
  void SetBarFonts(bool ofParent);
  void InitBarColors();
  // Whether an opened folder slides up; by default what the user has set for the whole system.
  void SetSlide(Slide slide) { slide_ = slide; }

  const BarModel& Model() const { return model_; }
  const BarColors& Colors() const { return colors_; }
  const BarFonts& Fonts() const { return fonts_; }

  BarTarget HitTest(POINT point) const { return model_.HitTest({point.x, point.y}); }
  // The folder or entry under the mouse.
  BarTarget HotElement() const { return hot_; }

 protected:
  COutlook2View();

  bool OnWindowMessage(WindowMessage& message) override;

  // Asks the owner how the entry stands and keeps the answer in it; true when that is a new one.
  virtual bool Probe(COL2SubItem& entry) = 0;
  // The element that the keyboard acts on.
  virtual BarTarget FocusedElement() const = 0;

  // After a change of contents or size: every element to its place, child windows too.
  void Rearrange();
  void HideChildWindows();
  void RepaintAll() const;
  void Repaint(const IntRect& rect) const;
  // Draws one element straight into the window, and nothing else of it.
  void DrawElement(const BarTarget& target);
  void SetHot(const BarTarget& target);
  // The old hot entry is gone from the screen.
  void ForgetHotEntry();

  bool Slides() const;
  // The bar as it is now slides up from the bottom of the folder area.
  void AnimateFolder();

  BarModel model_;

 private:
  void OnPaint();
  void OnPrintClient(WindowMessage& message);
  LRESULT OnEraseBackground() { return TRUE; }  // painting covers it all
  void OnLookChanged();
  void OnDpiChanged();
  void PlaceChildWindows();
  BarView View() const;
  void Draw(HDC dc);

  BarColors colors_{};
  BarFonts fonts_;
  bool fontsOfParent_ = false;
  Slide slide_ = Slide::BySystem;
  BarTarget hot_;
};
