// A scroll bar that moves itself, by mouse and by keyboard. The parent is told of a scroll after the bar has moved. To
// a screen reader it has the name of the label before it.
#pragma once

#include "window/CAccessibleControl.h"

class CIntScrollBar : public CAccessibleControl<CScrollBar> {
 protected:
  bool OnWindowMessage(WindowMessage& message) override;
  bool OnReflected(WindowMessage& message) override;

 private:
  // Where the bar stands after a scroll; `given` is the position of a dragged thumb.
  int PositionAfter(int code, int given) const;

  CUString PartName(int) const override;
  int PartRole(int) const override;
  int PartState(int) const override { return 0; }
  CUString PartValue(int) const override;
};
