// The small square before a row of the cockpit: filled when something differs, empty otherwise. A click leads where the
// row's link leads.
#pragma once

#include "cockpit/SquareColor.h"
#include "controls/CDrawnButton.h"
#include "controls/CMyHyperLink.h"

class CCockpitDiff : public CDrawnButton {
 public:
  // The row's link; it outlives this object. Without one a click does nothing.
  void SetLink(const CMyHyperLink& link) { link_ = &link; }

  // How much differs, from 0.0 to 1.0, and what: words set off by commas.
  void SetIntensity(double weight);
  void SetDifferences(const CUString& differences);

  COLORREF FillColor() const { return fillColor_; }

 protected:
  bool OnReflected(WindowMessage& message) override;
  bool OnWindowMessage(WindowMessage& message) override;

 private:
  void Draw(HDC dc, const RECT& client) override;

  CUString PartName(int) const override;
  CUString PartAction(int) const override;

  COLORREF fillColor_ = kNoFillColor;
  const CMyHyperLink* link_ = nullptr;
  CUString differences_;
};
