#pragma once

#include "window/CSubclassedControl.h"

// A scroll bar that moves itself. The parent is told of a scroll after the bar has moved.
class CIntScrollBar : public CSubclassed<CScrollBar> {
 protected:
  bool OnReflected(WindowMessage& message) override;

 private:
  int PositionAfter(int code, int given) const;
};
