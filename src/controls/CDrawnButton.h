// A button that draws itself, with the hands of a push button: mouse, Space, Enter and screen readers press it. In the
// template it is a "Button" with BS_OWNERDRAW.
#pragma once

#include "window/CAccessibleControl.h"

class CDrawnButton : public CAccessibleControl<CButton> {
 public:
  // Tells the parent of a click. It may end the button, and its object.
  void Press() const;

 protected:
  // Covers the whole client area.
  virtual void Draw(HDC dc, const RECT& client) = 0;

  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override;
  CUString PartAction(int) const override;
  bool HasPartAction(int) const override { return true; }
  void DoPartAction(int) override { Press(); }
};
