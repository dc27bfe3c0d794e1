// A box that draws itself and that nobody can press: to the system an owner-drawn button, to a screen reader a text.
#pragma once

#include "window/CAccessibleControl.h"

class CDrawnBox : public CAccessibleControl<CButton> {
 protected:
  // Covers the whole client area.
  virtual void Draw(HDC dc, const RECT& client) const = 0;

  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  int PartRole(int) const override;
  int PartState(int) const override;
};
