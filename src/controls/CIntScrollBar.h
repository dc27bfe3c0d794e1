#pragma once

#include "window/CAccessibility.h"
#include "window/CSubclassedControl.h"

// A scroll bar that moves itself, by mouse and by keyboard. The parent is told of a scroll after the bar has moved. To
// a screen reader it has the name of the label before it.
class CIntScrollBar : public CSubclassed<CScrollBar>, private CAccessibleSource {
 protected:
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;
  void OnDestroyed() override { accessibility_.Disconnect(); }

 private:
  // Where the bar stands after a scroll; `given` is the position of a dragged thumb.
  int PositionAfter(int code, int given) const;

  HWND AccessibleWindow() const override { return Handle(); }
  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override { return 0; }
  CUString PartValue(int) const override;
  RECT PartRect(int) const override { return ClientRect(); }

  CAccessibility accessibility_;
};
